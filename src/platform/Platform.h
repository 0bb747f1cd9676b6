#pragma once

#include <filesystem>
#include <string>

namespace quillon {

class Clock;
class FileSystem;
class HttpTransport;
class Pasteboard;
class SecretStore;
class Sounds;

/// The services of the desktop that the program runs on. Its owner keeps them alive for longer than
/// whatever uses them.
struct Platform {
    Clock& clock;
    FileSystem& files;
    HttpTransport& http;
    Pasteboard& pasteboard;
    SecretStore& secrets;
    Sounds& sounds;
    /// Where settings, history and usage events live.
    std::filesystem::path dataFolder;
    /// Scheme and host of the Bot API, without a slash at the end.
    std::string botApi;
};

} // namespace quillon
