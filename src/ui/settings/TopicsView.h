#pragma once

#include "ui/accessibility/View.h"
#include "ui/controls/Refresher.h"

#include <QCoroTask>
#include <QPointer>

#include <optional>
#include <string>
#include <vector>

class QVBoxLayout;

namespace quillon {

class Card;
class IconLabel;
class Store;
class TextButton;
class TopicRow;

/// The names of the topics. They are stored while the user types, and go to Telegram on demand.
class TopicsView : public View {
    Q_OBJECT

public:
    explicit TopicsView(Store& store);

private:
    [[nodiscard]] Card* buildNames();

    void refresh();
    void refreshRows();
    void refreshStatus();
    void rename(std::size_t topic, const QString& name);
    void save();
    static QCoro::Task<> perform(QPointer<TopicsView> view, Store& store);
    /// `editsBefore` is the value of edits_ when the names were sent.
    void finish(const std::optional<std::string>& error, int editsBefore);

    Store& store_;
    std::optional<QString> status_;
    bool edited_ = false;
    /// How often the user has changed a name.
    int edits_ = 0;
    std::vector<TopicRow*> rows_;
    QVBoxLayout* names_ = nullptr;
    TextButton* save_ = nullptr;
    IconLabel* statusLine_ = nullptr;
    Refresher refresher_;
};

} // namespace quillon
