#include "base/Text.h"
#include "base/ShownText.h"
#include "base/ThisMachine.h"
#include "base/Translate.h"

#include <gtest/gtest.h>

using namespace quillon;

namespace {

std::string_view firstCharacters(std::string_view text, std::size_t count) {
    return prefix(text, {.characters = count, .codePoints = 1000});
}

} // namespace

TEST(Text, TrimsTheWhiteSpaceItSays) {
    EXPECT_EQ(trimmed(" \t\r\n\u00A0\u2028\u3000x y\u0085\u2003 \n"), "x y");
    EXPECT_EQ(trimmed(" \n\u2029 "), "");
    EXPECT_EQ(trimmed("\u200Bx"), "\u200Bx") << "a zero-width space is no white space";
    EXPECT_EQ(trimmedSpaces("\u00A0\t x \u3000"), "x");
    EXPECT_EQ(trimmedSpaces("\n x \n"), "\n x \n") << "line breaks stay";
    EXPECT_EQ(trimmedControls("\n\uFEFF x\n"), " x") << "spaces stay";
    EXPECT_EQ(trimmed("\xFF \xFF"), "\xFF \xFF") << "invalid bytes are no space";
}

TEST(Text, FindsTheFirstLineThatIsNotEmpty) {
    EXPECT_EQ(firstLine("\n\r\n first\nsecond"), " first");
    EXPECT_EQ(firstLine("\u0085\u2028one\u2029two"), "one");
    EXPECT_EQ(firstLine("   \nx"), "   ") << "blank is not empty";
    EXPECT_EQ(firstLine("\n\n"), "\n\n") << "no such line: the whole text";
}

TEST(Text, TellsWhetherAnythingCanBeSeen) {
    EXPECT_FALSE(hasVisibleText(" \t\u200B\u200E\uFEFF\u00AD\u2800\u3164\uFE0F\x01\n"));
    EXPECT_TRUE(hasVisibleText("\u200B."));
    EXPECT_TRUE(hasVisibleText("\xFF")) << "it is sent as U+FFFD";
}

TEST(Text, RepairsInvalidUtf8AndNothingElse) {
    EXPECT_EQ(validUtf8("grün 👩‍👩‍👧"), "grün 👩‍👩‍👧");
    EXPECT_EQ(validUtf8("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD") << "a surrogate half";
    EXPECT_EQ(validUtf8("x\xE2\x82"), "x\uFFFD") << "cut in the middle";
}

TEST(Text, CutsBetweenUserPerceivedCharacters) {
    const std::string family = "👨‍👩‍👧‍👦"; // 7 code points
    EXPECT_EQ(firstCharacters(family + "ab", 2), family + "a");
    EXPECT_EQ(firstCharacters("e\u0301\u0302x", 1), "e\u0301\u0302");
    EXPECT_EQ(firstCharacters("\r\nx", 1), "\r\n");
    EXPECT_EQ(firstCharacters("🇩🇪🇫🇷🇮🇹", 2), "🇩🇪🇫🇷");
    EXPECT_EQ(firstCharacters("한국", 1), "한") << "jamo join to one syllable";
    EXPECT_EQ(prefix(family + family, {.characters = 9, .codePoints = 13}), family)
        << "two families have 14 code points";
    const char* const zalgo = "a\u0301\u0301\u0301\u0301\u0301";
    EXPECT_EQ(prefix(zalgo, {.characters = 1, .codePoints = 4}), "a\u0301\u0301\u0301")
        << "one character over the limit is cut all the same";
}

TEST(ShownText, LosesItsMiddleBetweenCharactersWhenItIsEndless) {
    const QString family =
        QStringLiteral("👨‍👩‍👧‍👦"); // one character, eleven units
    const QString wave = QStringLiteral("🌊");
    const std::pair<QString, QString> cases[]{
        {QStringLiteral("0123456789"), QStringLiteral("0123456789")},
        {QStringLiteral("012345678901"), QStringLiteral("01234…78901")},
        {QStringLiteral("012") + family + QStringLiteral("789"), QStringLiteral("012…789")},
        {QStringLiteral("a") + wave.repeated(9), QStringLiteral("a🌊🌊…🌊🌊")},
        // Longer than all that is kept.
        {family.repeated(2), family.left(5) + QStringLiteral("…")},
    };
    for (const auto& [text, shown] : cases)
        EXPECT_EQ(shortened(text, 10).toStdString(), shown.toStdString());
}

TEST(Translate, FillsPlacesOnceWhateverTheValuesHold) {
    EXPECT_EQ(filled("Couldn't read %1", {"100%2 sure.txt"}), "Couldn't read 100%2 sure.txt");
    EXPECT_EQ(filled("%2 of %1, %1", {"%2", "b"}), "b of %2, %2");
    EXPECT_EQ(filled("50 % of %1, %3 %", {"x", "y"}), "50 % of x, %3 %");
    EXPECT_EQ(filled("no place", {"x"}), "no place");
}

TEST(Translate, TakesTheFirstCatalogueOfTheUsersLanguages) {
    using Names = std::vector<std::string>;
    const std::tuple<const char*, const char*, Names> cases[]{
        {"", "de_AT.UTF-8@euro", {"de_AT", "de", "en"}},
        {"", "", {"en"}},
        {"ja", "C", {"en"}}, // says what it always says
        {"ja", "POSIX", {"en"}},
        {"ja", "C.UTF-8", {"ja", "en"}},
        {"sv:de_DE.UTF-8:C", "ru_RU.UTF-8", {"sv", "de_DE", "de", "ru_RU", "ru", "en"}},
        {"nl::en_GB:de", "ru", {"nl", "en_GB", "en"}}, // English is there, so nothing after it counts
        {":", "pt_PT", {"pt_PT", "pt", "pt_BR", "en"}},
        {"", "pt_BR.UTF-8", {"pt_BR", "pt", "en"}},
        {"", "zh_SG", {"zh_SG", "zh", "zh_CN", "en"}},
        {"", "zh_Hant_HK", {"zh_Hant_HK", "zh", "en"}}, // another script
        {"", "zh_TW.Big5", {"zh_TW", "zh", "en"}},
        {"../../etc/passwd", "_", {"en"}},
    };
    for (const auto& [languages, locale, names] : cases)
        EXPECT_EQ(wantedCatalogues({languages, locale}), names) << languages << " in " << locale;
}

TEST(ThisMachineTest, IsLocalhostAndTheLoopbackAddressesAlone) {
    for (const char* host : {"localhost", "127.0.0.1", "127.255.0.3", "::1", "[::1]"})
        EXPECT_TRUE(isThisMachine(host)) << host;
    for (const char* host :
         {"", "128.0.0.1", "126.255.255.255", "0.0.0.0", "192.0.2.1", "localhost.",
          "localhost.evil.example", "127.0.0.1.", "127.0.0.1.evil.example", "127.1",
          "::", "::ffff:127.0.0.1", "[::ffff:127.0.0.1]", "[127.0.0.1]", "[::1", "127.0.0.1:80"})
        EXPECT_FALSE(isThisMachine(host)) << host;
}
