#pragma once

#include <QString>
#include <QtGlobal> // QT_TRANSLATE_NOOP

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

/// Texts for people, in the user's language, where no QObject's tr is at hand. Qt's lupdate finds
/// the calls by the function's name; context and text are literals. A text that stands in a table
/// is marked there with QT_TRANSLATE_NOOP and given to translate when it is shown.
namespace quillon {

/// The text in the user's language, as UTF-8; the text itself where no catalogue has it, or while
/// there is no application object. `note` is for the translator. With a `count`, which takes the
/// place of "%n", it is the plural form for it.
[[nodiscard]] std::string translate(const char* context, const char* text,
                                    const char* note = nullptr, int count = -1);

/// The text with the values at its places "%1" to "%9". A value may hold anything, even "%1".
[[nodiscard]] std::string filled(std::string_view text,
                                 std::initializer_list<std::string_view> values);

/// What the environment says about the user's language, as gettext's programs read it: LANGUAGE, a
/// list with colons between, and what the first of LC_ALL, LC_MESSAGES and LANG that is set says.
struct LanguageWish {
    std::string languages;
    std::string locale;
};

/// The names of the catalogues that would do, best first, such as "de_AT", "de", "en". Texts in
/// English are for everyone: "en" is always among them, and nothing comes after it.
[[nodiscard]] std::vector<std::string> wantedCatalogues(const LanguageWish& wish);

/// Loads the catalogue of the user's language, one of those that the build put into the program,
/// into the application object. A program with windows gets Qt's own with it. To be called right
/// after the application object is made.
void loadCatalogue();

/// Loads quillon_NAME.qm of the folder, in place of one that was loaded before. Returns whether
/// there is such a file.
bool loadCatalogue(const QString& folder, const QString& name);

/// The language of the texts, as in "pt_BR": that of the catalogue; "en" while there is none.
[[nodiscard]] std::string textLanguage();

} // namespace quillon
