#include "ui/settings/TopicsView.h"

#include "state/Store.h"
#include "ui/controls/BrandViews.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Card.h"
#include "ui/settings/TopicRow.h"
#include "ui/text/IconLabel.h"

#include <QVBoxLayout>

namespace quillon {

TopicsView::TopicsView(Store& store) : store_{store}, refresher_{this, [this] { refresh(); }} {
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(Space::large, Space::large, Space::large, Space::large);
    column->addWidget(buildNames());
    column->addStretch(1);
    refresher_.watch(store, &Store::objectWillChange);
    refresh();
}

Card* TopicsView::buildNames() {
    auto* card = new Card{tr("Topic names in your group"), "bubble.left.and.bubble.right.fill"};
    names_ = new QVBoxLayout;
    names_->setSpacing(Space::small);
    card->body()->addLayout(names_);
    save_ = new TextButton{tr("Sa&ve names to Telegram"), telegramSymbol};
    card->body()->addSpacing(Space::tight);
    card->body()->addWidget(save_, 0, Qt::AlignLeading);
    statusLine_ = new IconLabel{{}, {}, {.style = Text::callout, .ink = Ink::secondary}};
    statusLine_->setAccessibleRole(QAccessible::Notification);
    card->body()->addWidget(statusLine_);
    connect(save_, &TextButton::clicked, this, &TopicsView::save);
    return card;
}

void TopicsView::refresh() {
    refreshRows();
    save_->setEnabled(store_.isConnected() && edited_);
    refreshStatus();
}

void TopicsView::refreshRows() {
    const std::vector<Topic>& topics = store_.config().topics;
    while (rows_.size() > topics.size()) {
        delete rows_.back();
        rows_.pop_back();
    }
    while (rows_.size() < topics.size()) {
        auto* row = new TopicRow;
        connect(row, &TopicRow::edited, this,
                [this, index = rows_.size()](const QString& name) { rename(index, name); });
        names_->addWidget(row);
        rows_.push_back(row);
        // The row is newer than the button below it, so that Tab would otherwise reach it later.
        setTabOrder(row->field(), save_);
    }
    for (std::size_t i = 0; i < topics.size(); ++i)
        rows_[i]->setTopic(topics[i]);
}

void TopicsView::refreshStatus() {
    statusLine_->setSymbol(status_ ? "checkmark.circle.fill" : "info.circle");
    statusLine_->setText(status_.value_or(tr("Finish setup first")));
    statusLine_->setVisible(status_ || !store_.isConnected());
}

void TopicsView::rename(std::size_t topic, const QString& name) {
    edited_ = true;
    ++edits_;
    status_.reset();
    store_.changeConfig([&](Config& config) {
        if (topic < config.topics.size()) config.topics[topic].name = name.toStdString();
    });
}

void TopicsView::save() {
    perform(this, store_);
}

QCoro::Task<> TopicsView::perform(QPointer<TopicsView> view, Store& store) {
    const int editsBefore = view->edits_;
    std::optional<std::string> error;
    try {
        QCoro::Task<> renaming = store.renameTopics();
        co_await renaming;
    } catch (const std::exception& failure) {
        error = failure.what();
    }
    if (view) view->finish(error, editsBefore);
}

void TopicsView::finish(const std::optional<std::string>& error, int editsBefore) {
    // Names that were typed meanwhile are not saved, so that "saved" would be wrong.
    if (edits_ != editsBefore && !error) return;
    if (!error) edited_ = false;
    // The disabled button would pass the focus on to a name, which the next key would replace.
    if (!error && save_->hasFocus()) save_->clearFocus();
    status_ = error ? QString::fromStdString(*error) : tr("Saved to Telegram.");
    refresher_.refreshNow();
}

} // namespace quillon
