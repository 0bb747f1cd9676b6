#pragma once

#include "platform/Bundle.h"
#include "platform/Folders.h"
#include "platform/SystemInfo.h"

#include <filesystem>
#include <string>

namespace quillon {

class Clock;
class FileSystem;
class FileTree;
class HotKeys;
class HttpTransport;
class LoginItem;
class Pasteboard;
class SecretStore;
class Sounds;
class UserDefaults;
class Workspace;

/// The services of the desktop that the program runs on. Its owner keeps them alive for longer than
/// everything that uses them.
struct Platform {
    Clock& clock;
    FileSystem& files;
    HttpTransport& http;
    Pasteboard& pasteboard;
    SecretStore& secrets;
    Sounds& sounds;
    UserDefaults& defaults;
    HotKeys& hotKeys;
    LoginItem& loginItem;
    FileTree& trees;
    Workspace& workspace;
    Bundle bundle;
    Folders folders;
    SystemInfo system;
    /// The folder of settings, history and usage events.
    std::filesystem::path dataFolder;
    /// Scheme and host of the Bot API, without a slash at the end.
    std::string botApi;
    /// Scheme and host of the makers' server, without a slash at the end; empty when there is none.
    std::string server;
};

} // namespace quillon
