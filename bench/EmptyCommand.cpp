// bench_EmptyCommand: the least that a program of the command line can be, to compare with.
#include <QCoreApplication>

int main(int argc, char** argv) {
    const QCoreApplication application{argc, argv};
    return 0;
}
