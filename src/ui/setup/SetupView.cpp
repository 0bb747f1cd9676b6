#include "ui/setup/SetupView.h"

#include "state/Store.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Spinner.h"
#include "ui/setup/Collapsible.h"
#include "ui/setup/StepRow.h"
#include "ui/setup/TokenStep.h"
#include "ui/setup/TopicChips.h"
#include "ui/text/IconLabel.h"
#include "ui/text/Keycap.h"

#include <QApplication>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>
#include <tuple>
#include <utility>

namespace quillon {

SetupView::SetupView(Store& store) : store_{store}, refresher_{this, [this] { refresh(); }} {
    auto* column = columnIn(this, Space::medium, Space::large);
    column->addWidget(buildHeader());
    column->addLayout(buildRows());
    closing_ = new Collapsible{buildClosing()};
    column->addWidget(closing_);
    spinner_ = new Spinner;
    column->addWidget(spinner_, 0, Qt::AlignHCenter);
    errorLine_ = new IconLabel{{}, "exclamationmark.triangle.fill", {.ink = Ink::warning}};
    errorLine_->setAccessibleRole(QAccessible::AlertMessage);
    column->addWidget(errorLine_);
    column->addStretch(1);
    refresher_.watch(store, &Store::objectWillChange);
    refresh();
}

SetupProgress SetupView::progress() const {
    return {.tokenSaved = store_.tokenSaved(),
            .groupFound = store_.config().chatId.has_value(),
            .connected = store_.isConnected()};
}

QString SetupView::summary(int n) const {
    const Config& config = store_.config();
    const auto orElse = [](const std::optional<std::string>& name, const QString& other) {
        return name ? QString::fromStdString(*name) : other;
    };
    switch (n) {
    case 1:
        return tr("Made with @BotFather");
    case 2:
        return tr("Connected to @%1").arg(orElse(config.botName, tr("your bot")));
    case 3:
        return tr("Found %1").arg(orElse(config.chatTitle, tr("your group")));
    default:
        return tr("%n topics ready", nullptr, static_cast<int>(config.topics.size()));
    }
}

void SetupView::refresh() {
    const QWidget* const focused = window()->focusWidget();
    const SetupProgress now = progress();
    const int position = step(now);
    const bool animated = isVisible() && shownStep_ && *shownStep_ != position;
    shownStep_ = position;
    refreshRows(now, animated);
    refreshControls(now);
    closing_->setOpen(position > stepCount, animated);
    spinner_->setVisible(working_);
    errorLine_->setText(QString::fromStdString(error_.value_or(std::string{})));
    errorLine_->setVisible(error_.has_value());
    // Controls that were hidden here have passed the focus on. That was not the user's doing.
    if (focused && focused == focusMeanwhile_) focusMeanwhile_ = window()->focusWidget();
}

void SetupView::refreshRows(const SetupProgress& now, bool animated) {
    for (int n = 1; n <= stepCount; ++n) {
        const bool current = isCurrent(n, now);
        const StepRow::State state{.done = isDone(n, now),
                                   .current = current,
                                   .open = current || opened_.contains(n),
                                   .summary = summary(n)};
        rows_.at(static_cast<std::size_t>(n - 1))->setState(state, animated);
    }
}

void SetupView::refreshControls(const SetupProgress& now) {
    token_->setState(now.tokenSaved, working_);
    findGroup_->setText(now.groupFound ? tr("&Find again") : tr("&Find my group"));
    findGroup_->setEnabled(now.tokenSaved && !working_);
    chips_->setTopics(store_.config().topics);
    createTopics_->setText(now.connected ? tr("Topics &ready") : tr("C&reate the topics"));
    createTopics_->setSymbol(now.connected ? "checkmark.circle.fill"
                                           : "plus.rectangle.on.rectangle");
    createTopics_->setEnabled(now.groupFound && !now.connected && !working_);
    keys_->setLabels(keyLabels(store_.config().shortcut));
}

bool SetupView::moving() const {
    return closing_->moving() || std::ranges::any_of(rows_, &StepRow::moving);
}

int SetupView::growthAhead() const {
    return std::accumulate(rows_.begin(), rows_.end(), closing_->growthAhead(),
                           [](int sum, const StepRow* row) { return sum + row->growthAhead(); });
}

void SetupView::toggle(int n) {
    if (opened_.erase(n) == 0) opened_.insert(n);
    refresher_.refreshNow();
}

void SetupView::run(Action action) {
    stepBefore_ = step(progress());
    focusBefore_ = window()->focusWidget();
    // A button that is disabled passes the focus on to the next control, which this avoids.
    if (qobject_cast<QAbstractButton*>(focusBefore_)) focusBefore_->clearFocus();
    focusMeanwhile_ = window()->focusWidget();
    working_ = true;
    error_.reset();
    refresher_.refreshNow();
    perform(this, std::move(action));
}

QCoro::Task<> SetupView::perform(QPointer<SetupView> view, Action action) {
    std::optional<std::string> error;
    try {
        QCoro::Task<> work = action();
        co_await work;
    } catch (const std::exception& failure) {
        error = failure.what();
    }
    if (view) view->finish(std::move(error));
}

void SetupView::finish(std::optional<std::string> error) {
    working_ = false;
    error_ = std::move(error);
    refresher_.refreshNow();
    restoreFocus();
}

void SetupView::restoreFocus() {
    const auto usable = [](const QWidget* control) {
        return control && control->isVisible() && control->isEnabled();
    };
    // If the user has moved the focus meanwhile, it stays there.
    const QWidget* now = window()->focusWidget();
    if (now && now != focusMeanwhile_ && usable(now)) return;
    // After a success the control of the action still shows while its row closes, so skip it.
    const bool advanced = step(progress()) != stepBefore_;
    for (QWidget* control : {advanced ? nullptr : focusBefore_.data(), nextControl()}) {
        if (usable(control)) return control->setFocus(Qt::OtherFocusReason);
    }
}

QWidget* SetupView::nextControl() const {
    switch (step(progress())) {
    case 1:
        return token_->mainControl();
    case 3:
        return findGroup_;
    case 4:
        return createTopics_;
    default:
        return rows_.back()->header();
    }
}

void SetupView::connectBot(const QString& token) {
    const auto connecting = [](Store& store, std::string text,
                               QPointer<SetupView> view) -> QCoro::Task<> {
        QCoro::Task<std::string> connected = store.connectBot(std::move(text));
        co_await connected;
        if (view) view->token_->clearToken();
    };
    run([connecting, &store = store_, text = token.toStdString(), view = QPointer{this}] {
        return connecting(store, text, view);
    });
}

} // namespace quillon
