#include "ui/accessibility/View.h"

#include "base/ShownText.h"
#include "ui/accessibility/Accessibility.h"

#include <QAbstractButton>
#include <QDialog>

#include <utility>

namespace quillon {

namespace {

class ViewDescription : public ContainerDescription {
public:
    explicit ViewDescription(View* view) : ContainerDescription{view}, view_{view} {}

    [[nodiscard]] QAccessible::Role role() const override {
        const QAccessible::Role role = view_->accessibleRole();
        const bool holds = role == QAccessible::Graphic && childCount() > 0;
        return holds ? ContainerDescription::role() : role;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        QString given = ContainerDescription::text(kind);
        if (kind != QAccessible::Name || !given.isEmpty()) return given;
        return shortened(view_->accessibleText());
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.busy = view_->accessibleBusy();
        if (decorates(this)) state.invisible = true;
        return state;
    }

    using Relations = QList<std::pair<QAccessibleInterface*, QAccessible::Relation>>;

    [[nodiscard]] Relations relations(QAccessible::Relation match) const override {
        Relations relations = QAccessibleWidget::relations(match);
        if (view_->accessibleLabel() && (match & QAccessible::Label)) {
            relations.append({QAccessible::queryAccessibleInterface(view_->accessibleLabel()),
                              QAccessible::Label});
        }
        return relations;
    }

protected:
    [[nodiscard]] QList<QAccessibleInterface*> parts() const override {
        const QAccessible::Role role = view_->accessibleRole();
        QList<QAccessibleInterface*> parts = ContainerDescription::parts();
        if (role == QAccessible::StaticText || role == QAccessible::ListItem) {
            parts.removeIf([](const QAccessibleInterface* part) {
                return !qobject_cast<const QAbstractButton*>(part->object());
            });
        }
        return parts;
    }

private:
    View* view_;
};

} // namespace

View::View(QWidget* parent) : Themed{parent} {
    describeAs<QWidget, ContainerDescription>();
    describeAs<QDialog, ContainerDescription>();
    describeAs<View, ViewDescription>();
}

void View::announceText() {
    QAccessibleEvent changed{this, QAccessible::NameChanged};
    QAccessible::updateAccessibility(&changed);
}

} // namespace quillon
