#pragma once

#include "cli/CommandLine.h"
#include "platform/Bundle.h"

#include <optional>
#include <string>

namespace quillon {

/// The program that runs already, as the session bus leads to it.
namespace RemoteProgram {

inline constexpr const char* busName = applicationIdentifier;
inline constexpr const char* objectPath = "/dev/vostrel/quillon";
inline constexpr const char* interfaceName = applicationIdentifier;

/// The prompt with which a command asks for the bot's token.
[[nodiscard]] std::string tokenPrompt();

/// Has the running program carry out the command, prints what it says and gives the exit code. None
/// when no program runs, or when the command is one that this process has to carry out itself.
[[nodiscard]] std::optional<int> run(const Invocation& invocation);

/// Has the running program come to the front. False when none runs, or when it does not answer
/// within 5 seconds. To be called while there is an application object.
[[nodiscard]] bool activate();

} // namespace RemoteProgram

} // namespace quillon
