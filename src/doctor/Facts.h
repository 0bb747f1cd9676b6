#pragma once

#include "base/Json.h"
#include "platform/Clock.h"
#include "platform/HotKeys.h"
#include "platform/HttpTransport.h"
#include "platform/LoginItem.h"
#include "platform/SecretStore.h"
#include "platform/Surroundings.h"
#include "state/Config.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// A call of the Bot API, and what became of it.
struct ApiCall {
    enum class Outcome { notMade, silent, unreachable, badToken, refused, done };

    Outcome outcome = Outcome::notMade;
    /// Telegram's own words when it refused.
    std::string said{};
    Json result{};
};

/// All that was found, of which the rules make a report. What is absent among the looks at the
/// surroundings was not told in time.
struct Facts {
    Config config{};
    std::string version{};
    /// Whether this is the program that stays.
    bool stays = false;
    std::filesystem::path home{};
    std::filesystem::path dataFolder{};
    Clock::Time now{};

    std::optional<SystemTraits> system{};
    std::optional<XServerTraits> xServer{};
    std::optional<CompositorTraits> compositor{};
    std::optional<ClipboardTraits> clipboard{};
    std::optional<BusTraits> bus{};
    std::optional<FolderTraits> folder{};
    std::optional<Presence> sound{};

    /// Of the program that stays; of another, whether the keys are free. None where that cannot be
    /// told.
    std::optional<HotKeyState> shortcut{};
    /// Who has its keys, as far as the desktop tells.
    std::string shortcutHolder{};
    LoginItem::Status login = LoginItem::Status::notRegistered;
    /// The program is a copy that updates itself, and may do so where it lies.
    bool updatesItself = false;
    bool replaceable = false;

    std::optional<SecretAnswer> keyring{};
    /// The token can be had without asking the user.
    bool tokenAtHand = false;
    HttpLook look{};
    /// The variable of the environment that names a proxy on the way; empty without one.
    std::string proxyVariable{};

    ApiCall bot{};
    ApiCall group{};
    ApiCall membership{};          ///< the bot's own in the group
    std::vector<ApiCall> topics{}; ///< in the order of the settings' topics
};

} // namespace quillon
