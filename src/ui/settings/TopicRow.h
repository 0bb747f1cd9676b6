#pragma once

#include "state/Topic.h"
#include "ui/accessibility/View.h"

namespace quillon {

class IconLabel;
class TextField;
class Tile;

/// The row in which the user edits the name of a topic.
class TopicRow : public View {
    Q_OBJECT

public:
    TopicRow();

    void setTopic(const Topic& topic);

    /// The field that takes the focus.
    [[nodiscard]] QWidget* field() const;

Q_SIGNALS:
    /// The user changed the name.
    void edited(const QString& name);

protected:
    void themeChanged() override;

private:
    void sizeRule();

    Tile* tile_;
    TextField* name_;
    IconLabel* rule_;
    QString shown_; // the topic's name
};

} // namespace quillon
