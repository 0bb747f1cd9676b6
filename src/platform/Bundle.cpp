#include "platform/Bundle.h"

#include <QRegularExpression>

namespace quillon {

namespace {

/// Whether the text is a reverse domain name in ASCII.
bool isUnmistakable(const std::string& identifier) {
    static const QRegularExpression domain{
        QRegularExpression::anchoredPattern(QStringLiteral("[A-Za-z0-9-]+(\\.[A-Za-z0-9-]+)+"))};
    return domain.match(QString::fromStdString(identifier)).hasMatch();
}

} // namespace

std::optional<std::string> Bundle::text(std::string_view key) const {
    const auto found = info.find(key);
    return found == info.end() ? std::nullopt : std::optional{found->second};
}

std::string Bundle::folderName() const {
    std::string named = identifier();
    return isUnmistakable(named) ? named : applicationIdentifier;
}

} // namespace quillon
