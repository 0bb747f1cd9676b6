#include "shots/Shots.h"

#include "base/Translate.h"
#include "shots/LayoutCheck.h"
#include "shots/Pseudo.h"
#include "shots/Words.h"
#include "support/Await.h"
#include "ui/theme/ApplicationTheme.h"
#include "ui/theme/Motion.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QFont>
#include <QPainter>
#include <QProxyStyle>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;

bool wanted(const char* look) {
    return qEnvironmentVariableIntValue(look) != 0;
}

/// A style in which nothing moves.
class StillStyle : public QProxyStyle {
public:
    StillStyle() : QProxyStyle{QStringLiteral("Fusion")} {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        if (hint == SH_Widget_Animate || hint == SH_Widget_Animation_Duration) return 0;
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
};

void dress() {
    QApplication::setStyle(new StillStyle);
    QApplication::setCursorFlashTime(0);
    QApplication::setQuitOnLastWindowClosed(false);
    setAnimationsEnabled(false);
    QApplication::setPalette(wanted("DARK") ? darkPalette() : lightPalette());
    if (wanted("PSEUDO")) QCoreApplication::installTranslator(new PseudoTranslator{qApp});
    if (wanted("RTL")) QApplication::setLayoutDirection(Qt::RightToLeft);
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight()); // off all windows
    QFont font{QStringLiteral("Inter"), 10};
    const double text = qEnvironmentVariable("TEXT", QStringLiteral("1")).toDouble();
    font.setPointSizeF(font.pointSizeF() * text);
    QApplication::setFont(font);
}

/// One large picture of all pictures, each with its name below.
class Sheet {
public:
    void add(const std::string& name, const QPixmap& picture) { all_.push_back({name, picture}); }

    [[nodiscard]] bool save(const QString& file) const {
        QPixmap sheet{static_cast<int>(width), layOut(nullptr)};
        sheet.fill(wanted("DARK") ? QColor{16, 17, 19} : QColor{214, 216, 219});
        QPainter painter{&sheet};
        painter.setFont(QFont{QStringLiteral("Inter"), 13});
        painter.setPen(wanted("DARK") ? Qt::white : Qt::black);
        layOut(&painter);
        return sheet.save(file);
    }

private:
    static constexpr int width = 2400;
    static constexpr int gap = 32;
    static constexpr int caption = 32;

    /// Paints the pictures in rows if there is a painter. Returns the height that they need.
    int layOut(QPainter* painter) const {
        int x = gap;
        int y = gap;
        int row = 0;
        for (const auto& [name, picture] : all_) {
            if (x > gap && x + picture.width() + gap > width) {
                x = gap;
                y += row + gap;
                row = 0;
            }
            const QRect place{{x, y}, picture.size()};
            if (painter) {
                painter->drawPixmap(place, picture);
                painter->drawText(place.left(), place.bottom() + caption - gap / 4,
                                  QString::fromStdString(name));
            }
            x += place.width() + gap;
            row = std::max(row, place.height() + caption);
        }
        return y + row + gap;
    }

    struct Entry {
        std::string name;
        QPixmap picture;
    };
    std::vector<Entry> all_;
};

/// The faults found in the windows that pictures were taken of.
struct Findings {
    QStringList names;
    QStringList faults;
};

Findings& findings() {
    static Findings all;
    return all;
}

bool complain(const Shot& shot, const QString& fault) {
    std::fprintf(stderr, "%s %s: %s\n", shot.name.c_str(), textLanguage().c_str(),
                 qUtf8Printable(fault));
    return false;
}

/// Takes and saves one picture. Without a folder it checks the window instead.
bool take(const Shot& shot, const QString& folder, Sheet& sheet) {
    findings().faults.clear();
    try {
        const QPixmap picture = shot.take();
        if (folder.isEmpty()) {
            for (const QString& fault : findings().faults)
                complain(shot, fault);
            return findings().faults.isEmpty();
        }
        const QString file = QDir{folder}.filePath(QString::fromStdString(shot.name + ".png"));
        sheet.add(shot.name, picture);
        return picture.save(file) || complain(shot, QStringLiteral("could not be saved"));
    } catch (const std::exception& error) {
        return complain(shot, QString::fromUtf8(error.what()));
    }
}

/// Takes those of the pictures that are named, or all.
bool takeAll(const std::vector<Shot>& shots, const QStringList& chosen, const QString& folder) {
    Sheet sheet;
    bool all = true;
    for (const Shot& shot : shots) {
        if (chosen.isEmpty() || chosen.contains(QString::fromStdString(shot.name)))
            all = take(shot, folder, sheet) && all;
    }
    if (!folder.isEmpty())
        all = sheet.save(QDir{folder}.filePath(QStringLiteral("sheet.png"))) && all;
    return all;
}

} // namespace

int takeShots(int argc, char** argv, const std::vector<Shot>& shots, const QStringList& names) {
    const QApplication application{argc, argv};
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2) {
        std::fprintf(stderr, "usage: %s FOLDER|--check [NAME...] | --list\n", argv[0]);
        return 2;
    }
    if (arguments[1] == QLatin1String{"--list"}) {
        for (const Shot& shot : shots)
            std::puts(shot.name.c_str());
        return 0;
    }
    dress();
    findings().names = names;
    const QString folder = arguments[1] == QLatin1String{"--check"} ? QString{} : arguments[1];
    bool all = folder.isEmpty() || QDir{}.mkpath(folder);
    const QStringList languages = qEnvironmentVariable("WORDS").split(QLatin1Char{':'});
    for (const QString& language : languages) {
        speak(language);
        all = takeAll(shots, arguments.sliced(2), folder) && all;
    }
    return all ? 0 : 1;
}

QString shown(const char* text) {
    const QString words = QString::fromUtf8(text);
    return wanted("PSEUDO") ? pseudo(withoutKey(words)) : spoken(words);
}

void until(const std::function<bool()>& so) {
    if (!waitUntil(so)) throw std::runtime_error{"what was waited for did not happen"};
}

QPixmap pictureOf(QWidget& window) {
    QWidget& frame = *window.window();
    if (frame.windowFlags() & Qt::WindowDoesNotAcceptFocus) {
        waitUntil([] { return false; }, 30ms);
    } else { // the focus shows only in an active window
        frame.activateWindow();
        waitUntil([&] { return frame.isActiveWindow(); }, 2s);
        waitUntil([] { return false; }, 60ms);
    }
    findings().faults += layoutFaults(window, findings().names);
    if (wanted("PSEUDO")) findings().faults += languageFaults(window, findings().names);
    return window.grab();
}

QWidget& onlyWindow() {
    QWidgetList windows;
    for (QWidget* each : QApplication::topLevelWidgets()) {
        if (each->isVisible()) windows << each;
    }
    if (windows.size() != 1)
        throw std::runtime_error{std::to_string(windows.size()) + " windows show"};
    return *windows.first();
}

} // namespace quillon::test
