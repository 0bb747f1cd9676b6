#include "base/Translate.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace quillon {

namespace {

bool install(const QString& name, const QString& folder) {
    auto catalogue = std::make_unique<QTranslator>();
    if (!catalogue->load(QLocale{}, name, QStringLiteral("_"), folder)) return false;
    catalogue->setParent(QCoreApplication::instance());
    return QCoreApplication::installTranslator(catalogue.release());
}

} // namespace

std::string translate(const char* context, const char* text, const char* note, int count) {
    return QCoreApplication::translate(context, text, note, count).toStdString();
}

std::string filled(std::string_view text, std::initializer_list<std::string_view> values) {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool place = text[at] == '%' && at + 1 < text.size() && text[at + 1] >= '1' &&
                           static_cast<std::size_t>(text[at + 1] - '0') <= values.size();
        if (place) {
            result += values.begin()[text[++at] - '1'];
        } else {
            result += text[at];
        }
    }
    return result;
}

void loadCatalogue() {
    // The build compiles translations/*.ts into this resource folder.
    if (!install(QStringLiteral("quillon"), QStringLiteral(":/i18n"))) return;
    // Qt's own catalogue also sets the direction of writing, which must fit the texts, so it is
    // loaded only with ours.
    install(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

} // namespace quillon
