#pragma once

#include "cli/CommandLine.h"
#include "platform/Bundle.h"

#include <QVariantMap>

#include <optional>
#include <string>
#include <string_view>

/// The program that already runs in this session, which is reached over the session bus.
namespace quillon::RemoteProgram {

inline constexpr const char* busName = applicationIdentifier;
inline constexpr const char* objectPath = "/dev/vostrel/quillon";
inline constexpr const char* interfaceName = applicationIdentifier;

/// Has the running program carry out the command, prints what it says and gives the exit code: 1
/// when the program gives no sign of life for 5 seconds. None when no program runs, or when the
/// command is one that this process has to carry out itself.
[[nodiscard]] std::optional<int> run(const Invocation& invocation);

/// What the desktop gave this process to let a window take the focus, for the running program to
/// use. Call it before there is an application object, which takes it for itself.
[[nodiscard]] QVariantMap activationData();

/// Has the running program show its "settings" or its "panel". False when none runs, or when it
/// does not answer within 4 seconds. Call it while there is an application object.
[[nodiscard]] bool activate(std::string_view wanted, const QVariantMap& activationData);

/// The sentence for a user whose command was not carried out to the end.
[[nodiscard]] std::string endedEarlyMessage();

} // namespace quillon::RemoteProgram
