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

/// The guide through the setup: four steps, of which it shows what is done, what is next and what
/// is still ahead. The work is done by the store's actions, which go on when the view is gone.
class SetupView : public View {
    Q_OBJECT

public:
    explicit SetupView(Store& store, QWidget* parent = nullptr);

    /// Some row is opening or closing; and by how many pixels the view will then be higher.
    [[nodiscard]] bool moving() const;
    [[nodiscard]] int growthAhead() const;

    /// Where new users make their bots.
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

    /// Opens or closes a row by hand.
    void toggle(int n);
    /// Carries out one of the store's actions, showing that it works and what it failed with.
    void run(Action action);
    static QCoro::Task<> perform(QPointer<SetupView> view, Action action);
    void finish(std::optional<std::string> error);
    void connectBot(const QString& token);
    /// Gives the keyboard what comes next or, where the action failed, what it stood on when the
    /// action began.
    void restoreFocus();
    [[nodiscard]] QWidget* nextControl() const;

    Store& store_;
    bool working_ = false;
    std::optional<std::string> error_;
    std::set<int> opened_;
    /// The position shown last, for the animation to the next.
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
