#include "ui/settings/UninstallSheet.h"

#include "artwork/Palette.h"
#include "ui/controls/BrandViews.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Spinner.h"
#include "ui/controls/Tile.h"
#include "ui/text/IconLabel.h"
#include "ui/text/SymbolView.h"

#include <QPainter>
#include <QVBoxLayout>

#include <array>
#include <utility>

namespace quillon {

namespace {

constexpr double sheetWidth = 400;
constexpr double headerTile = 40;
constexpr double headerSymbol = 22;
constexpr double headerCorner = 10;
constexpr TextStyle titleStyle{16, QFont::Bold};
constexpr double telegramSize = 16;

/// One line of the list of what is removed.
struct Row {
    const char* symbol;
    QColor color;
    const char* text;
};

constexpr std::array<Row, 5> rows{{
    {"key.fill", Palette::yellow,
     QT_TRANSLATE_NOOP("quillon::UninstallSheet", "The bot token in the Keychain")},
    {"folder.fill", Palette::teal,
     QT_TRANSLATE_NOOP("quillon::UninstallSheet", "Settings, send history and caches")},
    {"slider.horizontal.3", Palette::purple,
     QT_TRANSLATE_NOOP("quillon::UninstallSheet", "Its preferences")},
    {"power", Palette::green, QT_TRANSLATE_NOOP("quillon::UninstallSheet", "Opening at login")},
    {"trash.fill", Palette::gray,
     QT_TRANSLATE_NOOP("quillon::UninstallSheet", "Then it moves the app to the Trash and quits")},
}};

/// A tile with the trash, larger than the tiles of rows.
class HeaderTile : public View {
public:
    HeaderTile() { setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed); }

    [[nodiscard]] QSize sizeHint() const override {
        const int side = Theme::wholeLength(headerTile);
        return {side, side};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter{this};
        paintBox(painter, rect(), headerCorner, theme().fill(Palette::pink));
        paintSymbol(painter, rect(), "trash.fill", Theme::length(headerSymbol),
                    Theme::onTile(Palette::pink));
    }
};

} // namespace

UninstallSheet::UninstallSheet(std::function<QCoro::Task<>()> uninstall, QWidget* parent)
    : QDialog{parent},
      uninstall_{std::move(uninstall)} {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Uninstall Quillon?"));
    auto* column = columnIn(this, Space::medium, Space::large);
    column->addLayout(buildHeader());
    column->addWidget(new IconLabel{
        tr("This removes from this Mac:"), {}, {.style = Text::callout, .ink = Ink::secondary}});
    column->addLayout(buildRows());
    column->addLayout(buildFooter());
    column->addLayout(buildButtons());
    fit();
    confirm_->setFocus();
}

void UninstallSheet::fit() {
    const int width = Theme::wholeLength(sheetWidth);
    setFixedSize(width, layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width)
                                                      : layout()->totalSizeHint().height());
}

/// Fits again, because the texts may become larger while the sheet shows.
bool UninstallSheet::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) fit();
    return QDialog::event(event);
}

QHBoxLayout* UninstallSheet::buildHeader() {
    auto* header = new QHBoxLayout;
    header->setSpacing(Space::medium);
    header->addWidget(new HeaderTile);
    header->addWidget(new IconLabel{tr("Uninstall Quillon?"), {}, {.style = titleStyle}}, 1);
    return header;
}

QVBoxLayout* UninstallSheet::buildRows() {
    auto* list = new QVBoxLayout;
    list->setSpacing(Space::small);
    for (const Row& each : rows)
        list->addWidget(new TileLabel{tr(each.text), each.symbol, each.color, Text::callout});
    return list;
}

QHBoxLayout* UninstallSheet::buildFooter() {
    auto* footer = new QHBoxLayout;
    footer->setSpacing(Space::small);
    footer->addWidget(new TelegramIcon{telegramSize});
    footer->addWidget(new IconLabel{tr("Your bot and group stay in Telegram."),
                                    {},
                                    {.style = Text::callout, .ink = Ink::secondary}},
                      1);
    return footer;
}

QHBoxLayout* UninstallSheet::buildButtons() {
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Space::small);
    spinner_ = new Spinner;
    spinner_->hide();
    cancel_ = new TextButton{tr("&Cancel")};
    confirm_ = new TextButton{tr("&Uninstall"), "trash", {.kind = ButtonKind::destructive}};
    confirm_->setDefault(true);
    cancel_->setAutoDefault(false);
    buttons->addStretch(1);
    buttons->addWidget(spinner_);
    buttons->addWidget(cancel_);
    buttons->addWidget(confirm_);
    connect(cancel_, &TextButton::clicked, this, &UninstallSheet::reject);
    connect(confirm_, &TextButton::clicked, this, &UninstallSheet::confirm);
    return buttons;
}

void UninstallSheet::confirm() {
    if (std::exchange(working_, true)) return;
    cancel_->setEnabled(false);
    confirm_->setEnabled(false);
    spinner_->show();
    uninstall_();
}

/// Called for Escape, for Cancel, and when the desktop closes the window.
void UninstallSheet::reject() {
    if (!working_) QDialog::reject();
}

} // namespace quillon
