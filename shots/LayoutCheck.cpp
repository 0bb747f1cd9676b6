#include "shots/LayoutCheck.h"

#include "shots/Pseudo.h"
#include "ui/text/IconLabel.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QScrollArea>
#include <QTabBar>

#include <algorithm>
#include <utility>

namespace quillon::test {

namespace {

/// By this much, in pixels, one release's Qt and fonts make a text wider than another's, with words
/// that are far longer than most languages' anyway.
constexpr int otherFonts = 2;

class Check {
public:
    Check(QWidget& window, QStringList names) : window_{window}, names_{std::move(names)} {
        // Longer names first, because one name may be part of another.
        std::ranges::sort(names_, [](auto& one, auto& other) { return one.size() > other.size(); });
    }

    QStringList layoutFaults() {
        for (QWidget* each : window_.findChildren<QWidget*>()) {
            if (!each->isVisible()) continue;
            if (isLeaf(*each)) room(*each);
            neighbours(*each);
            keys(*each);
        }
        return faults_;
    }

    QStringList languageFaults() {
        speech(QAccessible::queryAccessibleInterface(&window_));
        return faults_;
    }

private:
    [[nodiscard]] QString withoutNames(QString text) const {
        for (const QString& name : names_)
            text.remove(name);
        return text;
    }

    static QString nameOf(const QWidget& widget) {
        QAccessibleInterface* about =
            QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget));
        const QString name = about ? about->text(QAccessible::Name) : QString{};
        return QStringLiteral("%1 “%2”").arg(QString::fromUtf8(widget.metaObject()->className()),
                                             name);
    }

    void speech(QAccessibleInterface* about) {
        if (!about || about->state().invisible) return;
        for (const auto kind : {QAccessible::Name, QAccessible::Description}) {
            const QString text = about->text(kind);
            if (isUntranslated(withoutNames(text)))
                faults_ << QStringLiteral("not translated: “%1”").arg(text);
        }
        if (const auto* field = qobject_cast<QLineEdit*>(about->object());
            field && isUntranslated(withoutNames(field->placeholderText())))
            faults_ << QStringLiteral("not translated: “%1”").arg(field->placeholderText());
        for (int i = 0; i < about->childCount(); ++i)
            speech(about->child(i));
    }

    /// Whether the widget itself shows a text.
    static bool isLeaf(const QWidget& widget) {
        return qobject_cast<const QAbstractButton*>(&widget) ? !widget.layout()
               : qobject_cast<const QLabel*>(&widget) || qobject_cast<const View*>(&widget)
                   ? widget.findChildren<QWidget*>().isEmpty()
                   : qobject_cast<const QTabBar*>(&widget) != nullptr;
    }

    void room(const QWidget& widget) {
        const auto* const label = qobject_cast<const IconLabel*>(&widget);
        const QString text = label ? label->text().plain() : QString{};
        if (label && label->shownText() != text) {
            // Names may be of any length; the program's own words have to fit.
            if (withoutNames(text) == text &&
                label->sizeHint().width() > label->width() + otherFonts)
                faults_ << QStringLiteral("cut off: %1").arg(nameOf(widget));
            return;
        }
        const QSize needed = widget.hasHeightForWidth()
                                 ? QSize{0, widget.heightForWidth(widget.width())}
                                 : widget.minimumSizeHint();
        if (needed.width() > widget.width() || needed.height() > widget.height())
            faults_ << QStringLiteral("too small: %1").arg(nameOf(widget));
        const auto* const button = qobject_cast<const QAbstractButton*>(&widget);
        if (button && !button->hasHeightForWidth() && button->sizeHint().width() > button->width())
            faults_ << QStringLiteral("cut off: %1").arg(nameOf(widget));
    }

    void neighbours(const QWidget& widget) {
        const QWidget* const parent = widget.parentWidget();
        if (!parent || widget.isWindow() || isViewport(*parent)) return;
        if (!parent->rect().contains(widget.geometry()))
            faults_ << QStringLiteral("sticks out: %1").arg(nameOf(widget));
        for (const QWidget* other : parent->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (other == &widget) break;
            if (other->isVisible() && !other->isWindow() &&
                other->geometry().intersects(widget.geometry()))
                faults_ << QStringLiteral("%1 lies over %2").arg(nameOf(widget), nameOf(*other));
        }
    }

    void keys(const QWidget& widget) {
        if (!widget.isEnabled()) return;
        if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
            key(button->shortcut(), button->text());
        const auto* const tabs = qobject_cast<const QTabBar*>(&widget);
        for (int i = 0; tabs && i < tabs->count(); ++i)
            key(QKeySequence::mnemonic(tabs->tabText(i)), tabs->tabText(i));
    }

    /// One key reaches one control.
    void key(const QKeySequence& keys, const QString& text) {
        if (keys.isEmpty()) return;
        if (const QString other = keys_.value(keys); !other.isEmpty())
            faults_ << QStringLiteral("“%1” and “%2” have the same key").arg(other, text);
        keys_.insert(keys, text);
    }

    static bool isViewport(const QWidget& widget) {
        return qobject_cast<const QAbstractScrollArea*>(widget.parentWidget()) != nullptr;
    }

    QWidget& window_;
    QStringList names_;
    QMap<QKeySequence, QString> keys_;
    QStringList faults_;
};

} // namespace

QStringList layoutFaults(QWidget& window, const QStringList& names) {
    return Check{window, names}.layoutFaults();
}

QStringList languageFaults(QWidget& window, const QStringList& names) {
    return Check{window, names}.languageFaults();
}

} // namespace quillon::test
