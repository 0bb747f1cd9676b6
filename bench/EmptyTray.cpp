// bench_EmptyTray: the least that a program with an icon in the tray can be, to compare with.
#include <QApplication>
#include <QIcon>
#include <QPixmap>
#include <QSystemTrayIcon>

int main(int argc, char** argv) {
    const QApplication application{argc, argv};
    QPixmap picture{32, 32};
    picture.fill(Qt::white);
    QSystemTrayIcon icon{QIcon{picture}};
    icon.show();
    return QApplication::exec();
}
