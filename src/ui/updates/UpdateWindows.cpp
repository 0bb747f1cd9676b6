#include "ui/updates/UpdateWindows.h"

#include "ui/controls/Answer.h"
#include "ui/controls/Card.h"
#include "ui/controls/MessageWindow.h"
#include "ui/controls/ProgressBar.h"
#include "ui/controls/TextViews.h"
#include "ui/updates/ReleaseNotes.h"

#include <QLocale>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

namespace quillon {

namespace {

using Place = MessageWindow::Place;

/// The progress bar's range. Its values are of type int, which is too small for bytes.
constexpr int barSteps = 1'000;
/// The longest version that is shown: those from outside must not fill the window.
constexpr qsizetype longestVersion = 40;
/// How long a check takes before its window shows. A quicker check shows nothing but its result.
constexpr std::chrono::milliseconds checkPatience{400};
/// The height of release notes, in points. Longer notes scroll.
constexpr double lowestNotes = 60;
constexpr double highestNotes = 240;

QString shownVersion(const std::string& version) {
    return QString::fromStdString(version).simplified().left(longestVersion);
}

QString megabytes(qint64 bytes) {
    return QLocale{}.toString(static_cast<double>(bytes) / 1e6, 'f', 1);
}

MessageWindow* makeWindow(const QString& title, const QString& text = {}, bool warning = false) {
    auto* window = new MessageWindow{title, text, warning};
    window->setWindowTitle(UpdateWindows::tr("Software Update"));
    return window;
}

QWidget* makeNotes(const std::string& notes) {
    auto* view = new ReadOnlyText;
    view->setStructuredText(releaseNotesHtml(notes));
    const int height = view->heightFor(Theme::length(MessageWindow::textWidth) - 2 * Space::small);
    view->setMinimumHeight(
        std::clamp(height, static_cast<int>(lowestNotes), Theme::wholeLength(highestNotes)));
    view->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    view->setAccessibleName(UpdateWindows::tr("Release notes"));
    auto* ground = new CardGround;
    auto* column = new QVBoxLayout{ground};
    column->setContentsMargins(Space::small, Space::small, Space::small, Space::small);
    column->addWidget(view);
    return ground;
}

} // namespace

UpdateWindows::~UpdateWindows() {
    delete current_;
    delete permission_;
}

void UpdateWindows::present(MessageWindow* dialog, bool gently) {
    if (current_ && current_->isVisible()) {
        // A user who has turned to another window during a download must not press a button
        // blindly.
        if (bar_ && !current_->isActiveWindow()) gently = true;
        const QPoint centre = current_->frameGeometry().center();
        dialog->adjustSize();
        dialog->move(centre - dialog->rect().center());
    }
    dismiss();
    current_ = dialog;
    dialog->setAttribute(Qt::WA_ShowWithoutActivating, gently);
    dialog->show();
    if (!gently) comeForward();
}

void UpdateWindows::comeForward() {
    if (!current_) return;
    current_->raise();
    current_->activateWindow();
}

void UpdateWindows::dismiss() {
    if (current_) current_->leave();
    current_.clear();
    bar_.clear();
}

QFuture<bool> UpdateWindows::askPermission() {
    const Answer<bool> answer{false};
    permission_ = makeWindow(
        tr("Check for updates automatically?"),
        tr("Quillon can look for a new version once a day. You can change this in its settings at "
           "any time, or check by hand."));
    TextButton* const check = permission_->addButton(tr("Check Automatically"), Place::primary,
                                                     [answer] { answer.give(true); });
    permission_->setEscape(permission_->addButton(tr("Don't Check"), Place::secondary));
    // Nobody has asked for this window; its keys may be meant for another program.
    check->setDefault(false);
    permission_->setAttribute(Qt::WA_ShowWithoutActivating);
    permission_->show();
    return answer.future();
}

void UpdateWindows::showChecking(std::stop_source cancel) {
    auto* dialog = makeWindow(tr("Checking for updates…"));
    dialog->addContent(new ProgressBar{tr("Checking for updates…")});
    dialog->setEscape(dialog->addButton(tr("Cancel"), Place::secondary,
                                        [cancel]() mutable { cancel.request_stop(); }));
    dismiss();
    current_ = dialog;
    QTimer::singleShot(checkPatience, dialog, [this, dialog] {
        if (current_ != dialog) return;
        dialog->show();
        comeForward();
    });
}

void UpdateWindows::showMessage(const QString& title, const QString& text) {
    auto* dialog = makeWindow(title, text);
    dialog->setEscape(dialog->addButton(tr("OK"), Place::primary));
    present(dialog);
}

void UpdateWindows::showUpToDate(std::string version) {
    showMessage(tr("Quillon is up to date"),
                tr("Version %1 is the newest there is.").arg(shownVersion(version)));
}

QFuture<UpdateChoice> UpdateWindows::showUpdate(UpdateOffer offer) {
    const Answer<UpdateChoice> answer{UpdateChoice::later};
    auto* dialog =
        makeWindow(tr("A new version of Quillon is available"),
                   tr("You have Quillon %1. Version %2 can be installed now.")
                       .arg(shownVersion(offer.installedVersion), shownVersion(offer.version)));
    if (!offer.notes.empty()) dialog->addContent(makeNotes(offer.notes), true);
    TextButton* const install = dialog->addButton(tr("Install"), Place::primary,
                                                  [answer] { answer.give(UpdateChoice::install); });
    // In a window that the user did not ask for, Return may have been meant for another program.
    install->setDefault(!offer.gently);
    dialog->setEscape(dialog->addButton(tr("Later"), Place::secondary));
    dialog->addButton(tr("Skip this version"), Place::apart,
                      [answer] { answer.give(UpdateChoice::skip); });
    present(dialog, offer.gently);
    return answer.future();
}

void UpdateWindows::showPreparing(std::string version, std::stop_source cancel) {
    preparing_ = shownVersion(version);
    const QString title = tr("Downloading Quillon %1").arg(preparing_);
    auto* dialog = makeWindow(title, tr("Connecting…"));
    auto* bar = new ProgressBar{title};
    dialog->addContent(bar);
    dialog->setEscape(dialog->addButton(tr("Cancel"), Place::secondary,
                                        [cancel]() mutable { cancel.request_stop(); }));
    present(dialog);
    bar_ = bar;
}

void UpdateWindows::showProgress(UpdateProgress progress) {
    if (!current_ || !bar_) return;
    if (progress.stage == UpdateProgress::Stage::unpacking) {
        bar_->setRange(0, 0);
        current_->setTexts(tr("Preparing Quillon %1").arg(preparing_),
                           tr("Checking and unpacking…"));
        return;
    }
    if (progress.total <= 0) return;
    bar_->setRange(0, barSteps);
    bar_->setValue(static_cast<int>(progress.received * barSteps / progress.total));
    current_->setTexts(
        tr("Downloading Quillon %1").arg(preparing_),
        tr("%1 of %2 MB").arg(megabytes(progress.received), megabytes(progress.total)));
}

QFuture<InstallTime> UpdateWindows::showReady(std::string version) {
    const Answer<InstallTime> answer{InstallTime::onQuit};
    auto* dialog =
        makeWindow(tr("Quillon %1 is ready to install").arg(shownVersion(version)),
                   tr("Quillon can start again with it now, or install it when you quit."));
    dialog->addButton(tr("Install and Relaunch"), Place::primary,
                      [answer] { answer.give(InstallTime::nowAndRelaunch); });
    dialog->setEscape(dialog->addButton(tr("Install on Quit"), Place::secondary));
    present(dialog);
    return answer.future();
}

void UpdateWindows::showInstalled(std::string version) {
    showMessage(tr("Quillon %1 is installed").arg(shownVersion(version)),
                tr("It will be there the next time you open Quillon."));
}

void UpdateWindows::showError(UpdateError error) {
    const QString text = QString::fromStdString(error.description);
    auto* dialog = makeWindow(tr("The update did not work"), {}, true);
    dialog->setAccessibleDescription(text);
    dialog->addContent(new MessageText{text, MessageWindow::textWidth});
    dialog->setEscape(dialog->addButton(tr("OK"), Place::primary));
    present(dialog);
}

} // namespace quillon
