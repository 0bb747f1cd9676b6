// bench_ReadClipboard FORMAT: reads the clipboard in this format, and prints how many bytes that
// were and how many milliseconds it took, the way to the clipboard included.
#include "platform/Pasteboard.h"
#include "platform/linux/OpenPasteboard.h"

#include <QCoreApplication>

#include <chrono>
#include <iostream>

int main(int argc, char** argv) {
    const QCoreApplication application{argc, argv};
    const auto begin = std::chrono::steady_clock::now();
    const auto pasteboard = quillon::openPasteboard();
    // Wayland's formats are known from the compositor, X11's from the owner.
    static_cast<void>(pasteboard->formats().result());
    const auto content = pasteboard->data(argv[1]).result();
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - begin;
    std::cout << (content ? content->size() : -1) << ' ' << took.count() << '\n';
    return 0;
}
