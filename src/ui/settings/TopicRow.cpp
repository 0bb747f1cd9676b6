#include "ui/settings/TopicRow.h"

#include "ui/accessibility/Accessibility.h"
#include "ui/controls/TextField.h"
#include "ui/controls/Tile.h"
#include "ui/text/IconLabel.h"

#include <QCoreApplication>
#include <QHBoxLayout>

#include <algorithm>
#include <array>

namespace quillon {

namespace {

constexpr int betweenParts = 10;
constexpr double ruleWidth = 120;

/// The texts about the topic for one kind of content.
struct Caption {
    std::string_view key;
    const char* hint;
    const char* rule;
};

constexpr const char* context = "quillon::TopicRow";

constexpr std::array<Caption, 4> captions{{
    {"notes", QT_TRANSLATE_NOOP("quillon::TopicRow", "Text"),
     QT_TRANSLATE_NOOP("quillon::TopicRow", "copied text")},
    {"images", QT_TRANSLATE_NOOP("quillon::TopicRow", "Pictures"),
     QT_TRANSLATE_NOOP("quillon::TopicRow", "pictures")},
    {"files", QT_TRANSLATE_NOOP("quillon::TopicRow", "Files"),
     QT_TRANSLATE_NOOP("quillon::TopicRow", "any other file")},
    {"videos", QT_TRANSLATE_NOOP("quillon::TopicRow", "Videos"),
     QT_TRANSLATE_NOOP("quillon::TopicRow", "video files")},
}};

const Caption* captionOf(const std::string& key) {
    const auto* found = std::ranges::find(captions, key, &Caption::key);
    return found == captions.end() ? nullptr : found;
}

/// The text that the field shows while it is empty.
QString hint(const std::string& key) {
    const Caption* caption = captionOf(key);
    return caption ? QCoreApplication::translate(context, caption->hint)
                   : QString::fromStdString(key);
}

/// The text about what goes to the topic.
QString rule(const std::string& key) {
    const Caption* caption = captionOf(key);
    return caption ? QCoreApplication::translate(context, caption->rule) : QString{};
}

} // namespace

TopicRow::TopicRow(QWidget* parent)
    : View{parent},
      tile_{new Tile{{}, {}}},
      name_{new TextField},
      rule_{new IconLabel{{}, {}, {.style = Text::caption, .ink = Ink::secondary}}} {
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(betweenParts);
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
    name_->setPlaceholderText(hint(topic.key));
    if (name_->accessibleName() != hint(topic.key)) name_->setAccessibleName(hint(topic.key));
    setDescription(*name_, rule(topic.key));
    rule_->setText(rule(topic.key));
    // While the user types, the field's text already is the topic's name. Another name comes from
    // elsewhere.
    const QString name = QString::fromStdString(topic.name);
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
