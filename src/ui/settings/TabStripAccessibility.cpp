#include "ui/settings/TabStrip.h"

#include "ui/accessibility/Accessibility.h"

#include <QAccessibleWidget>
#include <QPointer>

#include <vector>

namespace quillon {
namespace {

/// Describes one tab.
class TabDescription : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    TabDescription(TabStrip* strip, int index) : strip_{strip}, index_{index} {}

    [[nodiscard]] bool isValid() const override { return strip_ && index_ < strip_->count(); }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override { return parent()->window(); }
    [[nodiscard]] QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(strip_);
    }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override {
        return nullptr;
    }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override {
        return -1;
    }

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::PageTab; }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (!isValid() || kind != QAccessible::Name) return {};
        return strip_->tabText(index_).remove(QLatin1Char{'&'});
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

    [[nodiscard]] QRect rect() const override {
        if (!isValid()) return {};
        const QRect place = strip_->tabRect(index_);
        return {strip_->mapToGlobal(place.topLeft()), place.size()};
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const bool current = strip_->currentIndex() == index_;
        state.invisible = !strip_->isVisible();
        state.disabled = !strip_->isEnabled();
        state.selectable = state.focusable = true;
        state.selected = current;
        state.focused = current && strip_->hasFocus();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    [[nodiscard]] QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (isValid() && name == pressAction()) strip_->setCurrentIndex(index_);
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*name*/) const override {
        return {};
    }

private:
    QPointer<TabStrip> strip_;
    int index_;
};

/// Describes the strip, whose children are the tabs.
class StripDescription : public QAccessibleWidget {
public:
    explicit StripDescription(TabStrip* strip)
        : QAccessibleWidget{strip, QAccessible::PageTabList},
          strip_{strip} {}

    ~StripDescription() override {
        for (const QAccessible::Id tab : tabs_)
            QAccessible::deleteAccessibleInterface(tab);
    }

    StripDescription(const StripDescription&) = delete;
    StripDescription& operator=(const StripDescription&) = delete;

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.focused = false; // the tab has the focus
        return state;
    }

    [[nodiscard]] int childCount() const override { return strip_->count(); }

    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) return nullptr;
        for (int next = static_cast<int>(tabs_.size()); next <= index; ++next) {
            auto* tab = new TabDescription{strip_, next}; // deleted by the destructor
            tabs_.push_back(QAccessible::registerAccessibleInterface(tab));
        }
        return QAccessible::accessibleInterface(tabs_[static_cast<std::size_t>(index)]);
    }

    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        return child(strip_->tabAt(strip_->mapFromGlobal(QPoint{x, y})));
    }

    [[nodiscard]] QAccessibleInterface* focusChild() const override {
        return strip_->hasFocus() ? child(strip_->currentIndex()) : nullptr;
    }

    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        for (int i = 0; i < static_cast<int>(tabs_.size()); ++i) {
            if (QAccessible::accessibleInterface(tabs_[static_cast<std::size_t>(i)]) == child)
                return i;
        }
        return -1;
    }

private:
    TabStrip* strip_;
    mutable std::vector<QAccessible::Id> tabs_; // up to the last one that was asked for
};

} // namespace

void TabStrip::describe() {
    describeAs<TabStrip, StripDescription>();
}

} // namespace quillon
