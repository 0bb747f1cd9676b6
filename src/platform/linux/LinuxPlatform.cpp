#include "platform/linux/LinuxPlatform.h"

#include "base/Environment.h"
#include "platform/linux/LinuxFolders.h"
#include "platform/linux/LinuxSystemInfo.h"
#include "platform/linux/desktop/LinuxBundle.h"

namespace quillon {

namespace {

constexpr const char* botApiVariable = "QUILLON_BOT_API";
constexpr const char* serverVariable = "QUILLON_SERVER";

constexpr const char* telegramsBotApi = "https://api.telegram.org";

/// The base address in the variable, else the usual one, both without trailing slashes.
std::string baseAddress(const char* variable, const char* usual) {
    std::string address = environment(variable).value_or(usual);
    while (address.ends_with('/'))
        address.pop_back();
    return address;
}

CurlTransportOptions transportOptions() {
    CurlTransportOptions options;
    options.allowHttp = environment(botApiVariable) || environment(serverVariable);
    return options;
}

} // namespace

LinuxPlatform::LinuxPlatform(std::unique_ptr<Pasteboard> pasteboard,
                             std::unique_ptr<HotKeys> hotKeys)
    : bundle_{runningBundle()},
      folders_{linuxFolders()},
      http_{transportOptions()},
      pasteboard_{std::move(pasteboard)},
      secrets_{QDBusConnection::sessionBus()},
      defaults_{folders_.config / (std::string{applicationIdentifier} + ".ini")},
      hotKeys_{std::move(hotKeys)},
      loginItem_{folders_, bundle_.executable},
      workspace_{folders_},
      platform_{.clock = clock_,
                .files = files_,
                .http = http_,
                .pasteboard = *pasteboard_,
                .secrets = secrets_,
                .sounds = sounds_,
                .defaults = defaults_,
                .hotKeys = *hotKeys_,
                .loginItem = loginItem_,
                .trees = trees_,
                .workspace = workspace_,
                .bundle = bundle_,
                .folders = folders_,
                .system = linuxSystemInfo(),
                .dataFolder = folders_.data / dataFolderName,
                .botApi = baseAddress(botApiVariable, telegramsBotApi),
                .server = baseAddress(serverVariable, QUILLON_MAKERS_SERVER)} {}

} // namespace quillon
