#include "telegram/Url.h"

#include <QUrl>

namespace quillon {

namespace {

constexpr std::string_view allowed =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"
    "-._~:/?#[]@!$&'()*+,;=";
constexpr std::string_view hexDigits = "0123456789ABCDEFabcdef";

} // namespace

bool isUrlText(std::string_view text) {
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] != '%') {
            if (allowed.find(text[index]) == allowed.npos) return false;
            continue;
        }
        const std::string_view digits = text.substr(index + 1, 2);
        if (digits.size() < 2 || digits.find_first_not_of(hexDigits) != digits.npos) return false;
    }
    return true;
}

bool isServerAddress(std::string_view text) {
    const QUrl url{QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())),
                   QUrl::StrictMode};
    const bool web = url.scheme() == u"http" || url.scheme() == u"https";
    return isUrlText(text) && url.isValid() && web && !url.host().isEmpty() && !url.hasQuery() &&
           !url.hasFragment();
}

} // namespace quillon
