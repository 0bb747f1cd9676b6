#include "base/Translate.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

namespace quillon::test {

namespace {

TEST(Translate, FillsPlacesOnceWhateverTheValuesHold) {
    struct Case {
        const char* text;
        std::initializer_list<std::string_view> values;
        const char* result;
    };
    const Case cases[]{
        {"Couldn't read %1", {"100%2 sure.txt"}, "Couldn't read 100%2 sure.txt"},
        {"%2 of %1, %1", {"%2", "b"}, "b of %2, %2"},
        {"50 % of %1, %3 %", {"x", "y"}, "50 % of x, %3 %"},
        {"no place", {"x"}, "no place"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(filled(each.text, each.values), each.result);
}

/// A catalogue whose language has one more word for "two".
struct Duals : QTranslator {
    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* /*note*/,
                      int count) const override {
        const bool known = QLatin1String{context} == QLatin1String{"Send"} &&
                           QLatin1String{text} == QLatin1String{"Sent %n items"};
        if (!known) return {};
        return count == 2 ? QStringLiteral("beide") : QStringLiteral("%n Stück");
    }
};

TEST(Translate, AsksTheCatalogueByContextAndCount) {
    EXPECT_EQ(translate("Send", "Sent %n items", nullptr, 3), "Sent 3 items");
    Duals catalogue;
    QCoreApplication::installTranslator(&catalogue);
    EXPECT_EQ(translate("Send", "Sent %n items", nullptr, 2), "beide");
    EXPECT_EQ(translate("Send", "Sent %n items", nullptr, 3), "3 Stück");
    EXPECT_EQ(translate("Other", "Sent %n items", nullptr, 2), "Sent 2 items");
    QCoreApplication::removeTranslator(&catalogue);
}

} // namespace

} // namespace quillon::test
