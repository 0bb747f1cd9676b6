#include "shots/LayoutCheck.h"
#include "ui/controls/Buttons.h"
#include "ui/text/IconLabel.h"

#include <gtest/gtest.h>

namespace quillon::test {

namespace {

/// What is found in a window with a label and a button, `width` pixels each, the button `apart`
/// pixels further down.
QStringList faults(const char* label, int width, int apart) {
    QWidget window;
    window.resize(400, 200);
    auto* words =
        new IconLabel{QString::fromUtf8(label), {}, {.overflow = Overflow::elideEnd}, &window};
    words->setGeometry(0, 0, width, 30);
    auto* button = new TextButton{QStringLiteral("áéíóú áéíóú"), {}, {}, &window};
    button->setGeometry(0, apart, width, 40);
    window.show();
    const QStringList names{QStringLiteral("Anna")};
    return layoutFaults(window, names) + languageFaults(window, names);
}

TEST(LayoutCheck, FindsEachFaultAlone) {
    EXPECT_EQ(faults("áéí óú", 300, 40).size(), 0);
    EXPECT_EQ(faults("áéí Anna óú", 300, 40).size(), 0);
    EXPECT_TRUE(faults("left", 300, 40).join(u' ').contains(u"not translated"));
    EXPECT_TRUE(faults("áéí óú", 300, 20).join(u' ').contains(u"lies over"));
    EXPECT_TRUE(faults("áéí óú", 300, 190).join(u' ').contains(u"sticks out"));
    EXPECT_EQ(faults("áéíóú áéíóú áéíóú", 60, 40).filter(QStringLiteral("cut off")).size(), 2);
    // A name may be of any length.
    EXPECT_EQ(faults("Anna áéíóú áéíóú", 60, 40).filter(QStringLiteral("cut off")).size(), 1);
}

} // namespace

} // namespace quillon::test
