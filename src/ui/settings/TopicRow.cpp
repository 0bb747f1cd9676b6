#include "ui/settings/TopicRow.h"

#include "base/Translate.h"
#include "ui/accessibility/Accessibility.h"
#include "ui/controls/TextField.h"
#include "ui/controls/Tile.h"
#include "ui/text/IconLabel.h"

#include <QHBoxLayout>

namespace quillon {

namespace {

constexpr int betweenParts = 10;
constexpr double ruleWidth = 120;

/// What the name's field is called, and shows while it is empty.
QString hint(const Topic& topic) {
    const auto kind = topic.kind();
    return QString::fromStdString(kind ? translate("Topic", traits(*kind).hint) : topic.key);
}

/// What goes to the topic.
QString rule(const Topic& topic) {
    const auto kind = topic.kind();
    return QString::fromStdString(kind ? translate("Topic", traits(*kind).rule) : std::string{});
}

} // namespace

TopicRow::TopicRow()
    : tile_{new Tile{{}, {}}},
      name_{new TextField},
      rule_{new IconLabel{{}, {}, {.style = Text::caption, .ink = Ink::secondary}}} {
    auto* row = rowIn(this, betweenParts);
    row->addWidget(tile_);
    row->addWidget(name_, 1);
    row->addWidget(rule_);
    sizeRule();
    // QLineEdit::textEdited is not emitted when assistive technology edits the text.
    connect(name_, &QLineEdit::textChanged, this, [this](const QString& name) {
        if (name == shown_) return;
        shown_ = name;
        Q_EMIT edited(name);
    });
}

void TopicRow::setTopic(const Topic& topic) {
    tile_->setSymbol(std::string{topic.symbol()}, QColor::fromRgb(static_cast<QRgb>(topic.color)));
    name_->setPlaceholderText(hint(topic));
    if (name_->accessibleName() != hint(topic)) name_->setAccessibleName(hint(topic));
    setDescription(*name_, rule(topic));
    rule_->setText(rule(topic));
    // What the user is typing is already the topic's name, so that this is a name from elsewhere.
    const QString name = QString::fromStdString(topic.name).left(name_->maxLength());
    shown_ = name;
    if (name_->text() != name) name_->setText(name);
}

QWidget* TopicRow::field() const {
    return name_;
}

void TopicRow::themeChanged() {
    View::themeChanged();
    sizeRule();
}

void TopicRow::sizeRule() {
    rule_->setFixedWidth(Theme::wholeLength(ruleWidth));
}

} // namespace quillon
