#include "base/Translate.h"

#include "base/Environment.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <algorithm>
#include <array>
#include <memory>

namespace quillon {

namespace {

// The names of the two catalogues, as files and as objects.
constexpr QLatin1String ours{"quillon"};
constexpr QLatin1String qts{"qtbase"};

constexpr std::string_view english = "en";

/// Languages whose catalogue is that of one country, and those of their locales for which it is
/// not: the script of the latter is another one.
struct CountryCatalogue {
    std::string_view language;
    std::string_view catalogue;
    std::array<std::string_view, 4> others;
};

constexpr std::array countryCatalogues{
    CountryCatalogue{"pt", "pt_BR", {}},
    CountryCatalogue{"zh", "zh_CN", {"zh_TW", "zh_HK", "zh_MO", "zh_Hant"}},
};

/// "C" and "POSIX" are the locales of programs that are to say what they always say.
bool isNeutral(std::string_view locale) {
    return locale == "C" || locale == "POSIX";
}

/// Adds the catalogues that fit a locale such as "de_AT.UTF-8@euro".
void addCatalogues(std::vector<std::string>& names, std::string_view locale) {
    const std::string_view place = locale.substr(0, locale.find_first_of(".@"));
    const std::string_view language = place.substr(0, place.find('_'));
    if (language.empty() || isNeutral(language)) return;
    names.emplace_back(place);
    if (language != place) names.emplace_back(language);
    for (const CountryCatalogue& each : countryCatalogues) {
        const bool other = std::ranges::any_of(each.others, [&](std::string_view start) {
            return !start.empty() && place.starts_with(start);
        });
        if (each.language == language && each.catalogue != place && !other)
            names.emplace_back(each.catalogue);
    }
}

QTranslator* installed(QLatin1String name) {
    const auto* const application = QCoreApplication::instance();
    return application ? application->findChild<QTranslator*>(name, Qt::FindDirectChildrenOnly)
                       : nullptr;
}

/// Loads FOLDER/NAME_LANGUAGE.qm in place of what was loaded under the name.
bool load(QLatin1String name, const QString& folder, const QString& language) {
    auto catalogue = std::make_unique<QTranslator>();
    // Without delimiters Qt looks for no other file than this.
    const QString file = name + QLatin1Char{'_'} + language;
    if (!catalogue->load(file, folder, QStringLiteral(""))) return false;
    delete installed(name);
    catalogue->setObjectName(name);
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

std::vector<std::string> wantedCatalogues(const LanguageWish& wish) {
    std::vector<std::string> names;
    if (!isNeutral(wish.locale)) {
        for (std::string_view rest = wish.languages; !rest.empty();) {
            const std::size_t end = std::min(rest.find(':'), rest.size());
            addCatalogues(names, rest.substr(0, end));
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
        addCatalogues(names, wish.locale);
    }
    const auto last = std::ranges::find(names, english);
    names.erase(last, names.end());
    names.emplace_back(english);
    return names;
}

bool loadCatalogue(const QString& folder, const QString& name) {
    if (!load(ours, folder, name)) return false;
    // Qt's own catalogue also sets the direction of writing, which must fit the texts, so it is
    // loaded only with ours. Nothing of Qt's shows on a terminal.
    if (QCoreApplication::instance()->inherits("QGuiApplication"))
        load(qts, QLibraryInfo::path(QLibraryInfo::TranslationsPath), name);
    return true;
}

void loadCatalogue() {
    LanguageWish wish{.languages = environment("LANGUAGE").value_or(""), .locale = {}};
    for (const char* const variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (wish.locale.empty()) wish.locale = environment(variable).value_or("");
    }
    // The build compiles translations/*.ts into this resource folder.
    const QString folder = QStringLiteral(":/i18n");
    for (const std::string& name : wantedCatalogues(wish)) {
        if (loadCatalogue(folder, QString::fromStdString(name))) return;
    }
}

std::string textLanguage() {
    const QTranslator* const catalogue = installed(ours);
    return catalogue ? catalogue->language().toStdString() : std::string{english};
}

} // namespace quillon
