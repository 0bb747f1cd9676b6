#pragma once

#include <QObject>

namespace quillon::test {

/// Some state that announces its changes, before they happen.
class Model : public QObject {
    Q_OBJECT

public:
    void set(int value) {
        Q_EMIT objectWillChange();
        value_ = value;
    }

    [[nodiscard]] int value() const { return value_; }

Q_SIGNALS:
    void objectWillChange();

private:
    int value_ = 0;
};

} // namespace quillon::test
