#include "ui/settings/SettingsView.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/Card.h"
#include "ui/controls/ScrollView.h"
#include "ui/settings/GeneralView.h"
#include "ui/settings/TabStrip.h"
#include "ui/settings/TopicsView.h"
#include "ui/settings/TroubleStrip.h"
#include "ui/setup/SetupView.h"
#include "ui/text/IconLabel.h"

#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace quillon {

namespace {

constexpr double designWidth = 540;

struct Tab {
    const char* tag;
    const char* title;
    const char* symbol;
};

constexpr std::array<Tab, 3> tabs{{
    {"setup", QT_TRANSLATE_NOOP("quillon::SettingsView", "&Setup"), "checklist"},
    {"topics", QT_TRANSLATE_NOOP("quillon::SettingsView", "&Topics"),
     "bubble.left.and.bubble.right.fill"},
    {"general", QT_TRANSLATE_NOOP("quillon::SettingsView", "&General"), "gearshape.fill"},
}};

/// Keys that go to another tab, wherever the focus is, and the number of tabs that they go further.
constexpr std::array<std::pair<const char*, int>, 4> tabKeys{
    {{"Ctrl+Tab", 1}, {"Ctrl+Shift+Tab", -1}, {"Ctrl+PgDown", 1}, {"Ctrl+PgUp", -1}}};

/// Holds the pages of the tabs. A page's height depends on its width, so minimumSizeHint(), which
/// is about the least width, would be meaningless here.
class Pages : public QWidget {
public:
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, 0}; }
};

} // namespace

SettingsView::SettingsView(Store& store, Updater& updater, SettingsActions actions,
                           const QString& tab)
    : setup_{new SetupView{store}},
      tabs_{new TabStrip},
      pages_{new Pages},
      troubles_{new TroubleStrip{actions.troubles}},
      offer_{buildOffer(actions.openPanel)},
      measuring_{this, [this] { measure(); }} {
    build();
    addPage(setup_);
    addPage(new TopicsView{store});
    addPage(new GeneralView{store, updater, std::move(actions)});
    connect(tabs_, &QTabBar::currentChanged, this, &SettingsView::showPage);
    for (const auto& [keys, step] : tabKeys) {
        auto* shortcut = new QShortcut{QKeySequence{QLatin1String{keys}}, this};
        connect(shortcut, &QShortcut::activated, this, [this, by = step] { stepTab(by); });
    }
    setTab(tab);
    showPage(tabs_->currentIndex());
}

void SettingsView::build() {
    for (const Tab& each : tabs)
        tabs_->add(tr(each.title), each.symbol);
    auto* stack = new QVBoxLayout{pages_};
    stack->setContentsMargins(0, 0, 0, 0);
    pages_->installEventFilter(this);
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(0, Space::small, 0, 0);
    column->setSpacing(0);
    column->addWidget(tabs_, 0, Qt::AlignHCenter);
    column->addSpacing(Space::small);
    column->addWidget(new Divider);
    column->addWidget(new ScrollView{pages_}, 1);
    column->addWidget(troubles_);
    column->addWidget(offer_);
    offer_->hide();
    connect(troubles_, &TroubleStrip::changed, this, [this] { measuring_.schedule(); });
}

QWidget* SettingsView::buildOffer(std::function<void()> openPanel) {
    auto* offer = new QWidget;
    auto* open = new TextButton{tr("Open pane&l"), {}, {.style = Text::callout}};
    connect(open, &TextButton::clicked, this, std::move(openPanel));
    auto* row = new QHBoxLayout;
    row->setContentsMargins(Space::large, Space::small, Space::large, Space::small);
    row->setSpacing(Space::small);
    row->addWidget(new IconLabel{tr("This desktop shows no icon for Quillon."),
                                 "info.circle",
                                 {.style = Text::callout, .ink = Ink::secondary}},
                   1, Qt::AlignVCenter);
    row->addWidget(open);
    auto* column = columnIn(offer, 0);
    column->addWidget(new Divider);
    column->addLayout(row);
    return offer;
}

void SettingsView::setPanelOffered(bool offered) {
    offer_->setVisible(offered);
    measuring_.schedule();
}

void SettingsView::addPage(QWidget* page) {
    page->setAccessibleName(QString{tr(tabs.at(pageList_.size()).title)}.remove(QLatin1Char{'&'}));
    page->hide();
    pages_->layout()->addWidget(page);
    pageList_.push_back(page);
}

QString SettingsView::tab() const {
    return QString::fromLatin1(tabs.at(static_cast<std::size_t>(tabs_->currentIndex())).tag);
}

void SettingsView::setTab(const QString& tag) {
    for (std::size_t i = 0; i < tabs.size(); ++i) {
        if (tag == QLatin1String{tabs.at(i).tag}) tabs_->setCurrentIndex(static_cast<int>(i));
    }
}

void SettingsView::stepTab(int by) {
    const int count = tabs_->count();
    tabs_->setCurrentIndex((tabs_->currentIndex() + by + count) % count);
    tabs_->setFocus(Qt::TabFocusReason);
}

void SettingsView::showPage(int index) {
    for (int i = 0; i < static_cast<int>(pageList_.size()); ++i)
        pageList_[static_cast<std::size_t>(i)]->setVisible(i == index);
    measuring_.schedule();
}

int SettingsView::fittingWidth() {
    return Theme::wholeLength(designWidth);
}

int SettingsView::fittingHeight() const {
    const QWidget* page = pageList_.at(static_cast<std::size_t>(tabs_->currentIndex()));
    const int above = Space::small + tabs_->sizeHint().height() + Space::small + 1;
    const int below = (offer_->isHidden() ? 0 : offer_->sizeHint().height()) +
                      (troubles_->isHidden() ? 0 : troubles_->heightForWidth(fittingWidth()));
    const int height = above + page->heightForWidth(fittingWidth()) + below;
    if (page != setup_ || !setup_->moving()) return height;
    // The window changes its height once: before rows of the guide grow, or after they have shrunk.
    return std::max(reported_, height + setup_->growthAhead());
}

void SettingsView::measure() {
    const int height = fittingHeight();
    if (height == reported_) return;
    reported_ = height;
    updateGeometry();
    Q_EMIT fittingHeightChanged(height);
}

bool SettingsView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == pages_ && event->type() == QEvent::LayoutRequest) measuring_.schedule();
    return View::eventFilter(watched, event);
}

void SettingsView::showEvent(QShowEvent* event) {
    View::showEvent(event);
    measuring_.schedule();
    troubles_->look();
}

/// What was wrong may have been mended in another window.
bool SettingsView::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) troubles_->lookIfDue();
    return View::event(event);
}

void SettingsView::themeChanged() {
    View::themeChanged();
    measuring_.schedule();
}

} // namespace quillon
