#include <QApplication>

#include <gtest/gtest.h>

// For the thread sanitizer, which by default ends a program that starts a thread after it has
// started another program. The name is the sanitizer's.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" [[gnu::visibility("default")]] const char* __tsan_default_options() {
    return "die_after_fork=0";
}

// Every test program has an event loop to turn and a font to measure with, and needs no display.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application{argc, argv};
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
