#include "ui/setup/TokenStep.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/TextField.h"
#include "ui/text/IconLabel.h"

#include <QHBoxLayout>

namespace quillon {

TokenStep::TokenStep() : entry_{buildEntry()}, kept_{buildKept()} {
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(entry_);
    column->addWidget(kept_);
    setState(false, false);
}

QWidget* TokenStep::buildEntry() {
    auto* entry = new QWidget;
    token_ = new TextField;
    token_->setEchoMode(QLineEdit::Password);
    token_->setPlaceholderText(tr("123456789:AA…"));
    token_->setAccessibleName(tr("Bot token"));
    connect_ = new TextButton{tr("&Connect"), "link", {.kind = ButtonKind::prominent}};
    auto* row = rowIn(entry, Space::small);
    row->addWidget(token_, 1);
    row->addWidget(connect_);
    connect(token_, &QLineEdit::textChanged, this, &TokenStep::enableConnect);
    connect(token_, &QLineEdit::returnPressed, this, &TokenStep::wantConnect);
    connect(connect_, &QPushButton::clicked, this, &TokenStep::wantConnect);
    return entry;
}

QWidget* TokenStep::buildKept() {
    auto* kept = new QWidget;
    auto* another = new TextButton{tr("&Use another bot"), "arrow.triangle.2.circlepath"};
    auto* column = columnIn(kept, Space::small);
    column->addWidget(new IconLabel{
        tr("The token is kept in your Mac's Keychain."), "lock.fill", {.ink = Ink::secondary}});
    column->addWidget(another, 0, Qt::AlignLeading);
    connect(another, &QPushButton::clicked, this, &TokenStep::anotherBotWanted);
    return kept;
}

void TokenStep::setState(bool tokenSaved, bool working) {
    working_ = working;
    entry_->setVisible(!tokenSaved);
    kept_->setVisible(tokenSaved);
    enableConnect();
}

void TokenStep::clearToken() {
    token_->clear();
}

QWidget* TokenStep::mainControl() const {
    return token_;
}

void TokenStep::enableConnect() {
    connect_->setEnabled(!token_->text().isEmpty() && !working_);
}

void TokenStep::wantConnect() {
    // Return in the field works even if the button is disabled, so check here as well.
    if (!working_) Q_EMIT connectWanted(token_->text());
}

} // namespace quillon
