#include "ui/settings/ShortcutNote.h"

#include "desktop/ShortcutSentence.h"
#include "state/Store.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/TextField.h"
#include "ui/text/IconLabel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QVBoxLayout>

#include <array>

namespace quillon {

namespace {

struct OfferRow {
    const char* text;
    const char* symbol;
};

/// In the order of the offers.
constexpr std::array<OfferRow, 5> offers{{
    {"", ""},
    {QT_TRANSLATE_NOOP("quillon::ShortcutNote", "As&k again"), "arrow.triangle.2.circlepath"},
    {QT_TRANSLATE_NOOP("quillon::ShortcutNote", "Choose &keys…"), "keyboard.fill"},
    {QT_TRANSLATE_NOOP("quillon::ShortcutNote", "Add the s&hortcut"), "keyboard.fill"},
    {QT_TRANSLATE_NOOP("quillon::ShortcutNote", "&Copy"), "doc.on.doc"},
}};

} // namespace

ShortcutNote::ShortcutNote(Store& store)
    : store_{store},
      sentence_{new IconLabel},
      command_{new TextField},
      button_{new TextButton{{}}} {
    command_->setReadOnly(true);
    command_->setAccessibleName(tr("Command for the shortcut"));
    auto* const column = columnIn(this, Space::small);
    column->addWidget(sentence_);
    column->addWidget(command_);
    column->addWidget(button_, 0, Qt::AlignLeading);
    connect(button_, &TextButton::clicked, this, &ShortcutNote::takeOffer);
}

void ShortcutNote::refresh() {
    const HotKeyState& state = store_.shortcut();
    const QString text = QString::fromStdString(
        shortcutSentence(state, store_.config().shortcut, ShortcutPlace::settings));
    const bool attention = wantsAttention(state) && !store_.shortcutCommandCopied();
    sentence_->setSymbol(attention ? "exclamationmark.triangle.fill" : "info.circle");
    sentence_->setLook({.style = Text::callout, .ink = attention ? Ink::warning : Ink::secondary});
    sentence_->setAccessibleRole(attention ? QAccessible::AlertMessage : QAccessible::StaticText);
    sentence_->setText(text);
    const QString command = QString::fromStdString(state.command);
    if (command_->text() != command) command_->setText(command);
    command_->setCursorPosition(0);
    command_->setVisible(!command.isEmpty());
    refreshButton();
    setVisible(!text.isEmpty());
}

void ShortcutNote::refreshButton() {
    const OfferRow& row = offers.at(static_cast<std::size_t>(store_.shortcut().offer));
    button_->setVisible(*row.text != '\0');
    if (*row.text == '\0') return;
    button_->setText(tr(row.text));
    button_->setSymbol(row.symbol);
}

void ShortcutNote::takeOffer() {
    if (store_.shortcut().offer == HotKeyState::Offer::copyCommand)
        QGuiApplication::clipboard()->setText(command_->text());
    store_.takeShortcutOffer();
}

} // namespace quillon
