// sendMessage, sendPhoto, sendDocument and sendChatAction.
#include "sandbox/ApiError.h"
#include "sandbox/Methods.h"
#include "sandbox/Picture.h"
#include "sandbox/Text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillon::sandbox {

namespace {

constexpr std::size_t longestMarkup = 32'768; // bytes before the markup is read
constexpr std::size_t longestText = 4096;     // Bot API, sendMessage: characters after parsing
constexpr std::size_t longestCaption = 1024;  // Bot API, sendPhoto and sendDocument
constexpr std::size_t biggestPhoto = 10'485'760;
constexpr std::size_t biggestFile = 52'428'800;
constexpr int longestSides = 10'000; // Bot API, sendPhoto: width and height together
constexpr int greatestRatio = 20;

FormattedText formatted(const MethodCall& call, std::string_view parameter) {
    const std::string text = call.parameters.text(parameter);
    if (!isUtf8(text)) throw badRequest("strings must be encoded in UTF-8");
    if (text.size() > longestMarkup) throw badRequest("text is too long");
    const std::string mode = lowered(call.parameters.text("parse_mode"));
    if (mode.empty() || mode == "none") return trimmed({cleaned(text), {}});
    if (mode != "html") throw badRequest("unsupported parse_mode");
    try {
        return trimmed(parseHtml(cleaned(text)));
    } catch (const EntityError& error) {
        throw badRequest(std::string{"can't parse entities: "} + error.what());
    }
}

FormattedText messageText(const MethodCall& call) {
    if (call.parameters.text("text").empty()) throw badRequest("message text is empty");
    FormattedText text = formatted(call, "text");
    if (isBlank(text.text)) throw badRequest("text must be non-empty");
    if (codePoints(text.text) > longestText) throw badRequest("message is too long");
    return text;
}

FormattedText caption(const MethodCall& call) {
    FormattedText text = formatted(call, "caption");
    if (codePoints(text.text) > longestCaption) throw badRequest("message caption is too long");
    if (isBlank(text.text)) return {};
    return text;
}

// 0 stands for the General topic; 1, its number on the phone, is refused.
std::int64_t threadOf(const MethodCall& call, Chat& chat) {
    const auto thread =
        std::max<std::int64_t>(0, call.parameters.integer("message_thread_id").value_or(0));
    if (thread != 0 && chat.topic(thread) == nullptr) throw badRequest("message thread not found");
    return thread;
}

// `right` continues "not enough rights to send … to the chat".
Json deliver(MethodCall& call, Message message, const std::string& right) {
    Chat& chat = chatOf(call);
    const auto thread = threadOf(call, chat);
    if (chat.role(call.bot.id) == BotRole::restricted)
        throw badRequest("not enough rights to send " + right + " to the chat");
    message.topic = thread;
    message.sender = call.bot.id;
    const Message& posted = call.world.post(chat, std::move(message));
    call.changed.notify_all();
    return call.world.messageJson(chat, posted);
}

const UploadedFile& uploaded(const MethodCall& call, std::string_view field) {
    const std::string reference = call.parameters.text(field);
    constexpr std::string_view attached = "attach://";
    const UploadedFile* file = call.parameters.file(field);
    if (file == nullptr && reference.starts_with(attached))
        file = call.parameters.file(reference.substr(attached.size()));
    if (file == nullptr && reference.empty())
        throw badRequest("there is no " + std::string{field} + " in the request");
    if (file == nullptr)
        throw badRequest("wrong remote file identifier specified: Wrong string length");
    if (file->bytes.empty()) throw badRequest("file must be non-empty");
    if (file->size > biggestFile) throw ApiError{413, "Request Entity Too Large"};
    return *file;
}

// A name is shown without folders, and not at all if it is not UTF-8.
std::string shownName(const std::string& filename) {
    if (!isUtf8(filename)) return {};
    return cleaned(filename.substr(filename.find_last_of('/') + 1));
}

Message fileMessage(const std::string& kind, const UploadedFile& file, FormattedText text) {
    Message message;
    message.kind = kind;
    message.text = std::move(text);
    message.filename = shownName(file.filename);
    message.mime = file.mime.empty() ? "application/octet-stream" : file.mime;
    message.size = file.size;
    message.sha256 = file.sha256;
    return message;
}

// Unless detection is off, a GIF becomes an animation and an MP4 a video.
std::string documentKind(const MethodCall& call, std::string_view bytes) {
    if (call.parameters.flag("disable_content_type_detection")) return "document";
    if (bytes.starts_with("GIF8")) return "animation";
    if (bytes.size() > 8 && bytes.substr(4, 4) == "ftyp") return "video";
    return "document";
}

// Bot API, sendChatAction; the server also takes "cancel", which ends what the others show.
constexpr std::array<std::string_view, 12> actions{
    "cancel",         "typing",        "upload_photo",      "record_video",
    "upload_video",   "record_voice",  "upload_voice",      "upload_document",
    "choose_sticker", "find_location", "record_video_note", "upload_video_note"};

} // namespace

// What it shows for five seconds at the most is no part of the sandbox's phone.
Json sendChatAction(MethodCall& call) {
    if (std::ranges::find(actions, lowered(call.parameters.text("action"))) == actions.end())
        throw badRequest("wrong parameter action in request");
    Chat& chat = chatOf(call);
    threadOf(call, chat);
    if (chat.role(call.bot.id) == BotRole::restricted)
        throw badRequest("not enough rights to send text messages to the chat");
    return true;
}

Json sendMessage(MethodCall& call) {
    Message message;
    message.text = messageText(call);
    return deliver(call, std::move(message), "text messages");
}

Json sendPhoto(MethodCall& call) {
    const UploadedFile& file = uploaded(call, "photo");
    if (file.size > biggestPhoto) {
        throw badRequest("file of size " + std::to_string(file.size) +
                         " bytes is too big for a photo; the maximum size is " +
                         std::to_string(biggestPhoto) + " bytes");
    }
    Message message = fileMessage("photo", file, caption(call));
    chatOf(call);
    const auto size = pictureSize(file.bytes);
    if (!size) throw badRequest("IMAGE_PROCESS_FAILED");
    const auto [shorter, longer] = std::minmax({size->width, size->height});
    // This subtracts, because the sum of two widths from a file might overflow.
    if (longer > longestSides - shorter || longer / greatestRatio > shorter ||
        (longer / greatestRatio == shorter && longer % greatestRatio != 0))
        throw badRequest("PHOTO_INVALID_DIMENSIONS");
    message.width = size->width;
    message.height = size->height;
    return deliver(call, std::move(message), "photos");
}

Json sendDocument(MethodCall& call) {
    const UploadedFile& file = uploaded(call, "document");
    Message message = fileMessage(documentKind(call, file.bytes), file, caption(call));
    return deliver(call, std::move(message), "documents");
}

} // namespace quillon::sandbox
