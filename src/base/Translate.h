#pragma once

#include <QtGlobal> // QT_TRANSLATE_NOOP

#include <initializer_list>
#include <string>
#include <string_view>

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

/// Loads the catalogue of the user's language into the application object, if the program has one,
/// and Qt's own with it. To be called right after the application object is made.
void loadCatalogue();

} // namespace quillon
