#include "send/GivenBytes.h"

#include "base/Text.h"
#include "base/Translate.h"
#include "send/ItemSend.h"
#include "send/PngStructure.h"

namespace quillon {

namespace {

bool isPng(const QByteArray& bytes) {
    return !pngSize(bytes).isEmpty() && !isCutPng(bytes);
}

/// UTF-8 without the character NUL, which no text has and many other files do.
bool isText(const QByteArray& bytes) {
    return !bytes.contains('\0') && QByteArrayView{bytes}.isValidUtf8();
}

GivenBytes refused(const char* sentence, const std::string& source) {
    return {.item = std::nullopt, .problem = filled(translate("Send", sentence), {source})};
}

} // namespace

GivenBytes givenBytes(QByteArray bytes, std::optional<std::string> name,
                      const std::string& source) {
    if (bytes.isEmpty())
        return refused(QT_TRANSLATE_NOOP("Send", "%1 holds nothing to send."), source);
    if (name) return {.item = NamedBytes{std::move(*name), std::move(bytes)}};
    if (bytes.size() > maximumFileSize)
        return {.item = std::nullopt, .problem = tooBigText(source)};
    if (isPng(bytes)) return {.item = ClipImage{std::move(bytes), std::nullopt}};
    if (!isText(bytes)) {
        return refused(QT_TRANSLATE_NOOP("Send", "%1 is neither text nor a PNG picture. Give it a "
                                                 "file name with --name."),
                       source);
    }
    std::string text = bytes.toStdString();
    if (trimmed(text).empty())
        return refused(QT_TRANSLATE_NOOP("Send", "%1 holds nothing to send."), source);
    return {.item = ClipText{std::move(text)}};
}

} // namespace quillon
