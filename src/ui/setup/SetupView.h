#pragma once

#include "ui/accessibility/View.h"
#include "ui/controls/Refresher.h"
#include "ui/setup/Step.h"

#include <QCoroTask>
#include <QPointer>

#include <array>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

class QVBoxLayout;

namespace quillon {

class Collapsible;
class IconLabel;
class KeyRow;
class Spinner;
class StepRow;
class Store;
class TextButton;
class TokenStep;
class TopicChips;

/// The guide through the four steps of the setup, which shows which are done, which is next and
/// which are still ahead. The store's actions do the work, and go on even if the view is closed.
class SetupView : public View {
    Q_OBJECT

public:
    explicit SetupView(Store& store);

    /// Whether a row is opening or closing, and the number of pixels that the view will have grown
    /// by after that.
    [[nodiscard]] bool moving() const;
    [[nodiscard]] int growthAhead() const;

    /// The chat in which users make their bots.
    static constexpr const char* botFatherAddress = "https://t.me/BotFather";

private:
    using Action = std::function<QCoro::Task<>()>;

    [[nodiscard]] QWidget* buildHeader();
    [[nodiscard]] QVBoxLayout* buildRows();
    [[nodiscard]] QWidget* buildBotStep();
    [[nodiscard]] QWidget* buildTokenStep();
    [[nodiscard]] QWidget* buildGroupStep();
    [[nodiscard]] QWidget* buildTopicsStep();
    [[nodiscard]] QWidget* buildClosing();

    void refresh();
    void refreshRows(const SetupProgress& progress, bool animated);
    void refreshControls(const SetupProgress& progress);
    [[nodiscard]] SetupProgress progress() const;
    [[nodiscard]] QString summary(int n) const;

    /// Opens or closes a row for the user.
    void toggle(int n);
    /// Carries out one of the store's actions, and shows that it is under way or why it failed.
    void run(Action action);
    static QCoro::Task<> perform(QPointer<SetupView> view, Action action);
    void finish(std::optional<std::string> error);
    void connectBot(const QString& token);
    /// Moves the focus to the next control or, if the action failed, back to where it was when the
    /// action began.
    void restoreFocus();
    [[nodiscard]] QWidget* nextControl() const;

    Store& store_;
    bool working_ = false;
    std::optional<std::string> error_;
    std::set<int> opened_;
    /// The position that was shown last. A new one is animated.
    std::optional<int> shownStep_;
    int stepBefore_ = 1;
    QPointer<QWidget> focusBefore_;
    QPointer<QWidget> focusMeanwhile_;

    TokenStep* token_ = nullptr;
    TextButton* findGroup_ = nullptr;
    TextButton* createTopics_ = nullptr;
    TopicChips* chips_ = nullptr;
    std::array<StepRow*, stepCount> rows_{};
    KeyRow* keys_ = nullptr;
    Collapsible* closing_ = nullptr;
    Spinner* spinner_ = nullptr;
    IconLabel* errorLine_ = nullptr;
    Refresher refresher_;
};

} // namespace quillon
