#pragma once

#include <QCoroTask>
#include <QDialog>

#include <functional>

class QHBoxLayout;
class QVBoxLayout;

namespace quillon {

class Spinner;
class TextButton;

/// Says what uninstalling removes, and does it when the user confirms. Escape leaves, until then.
/// On the heap, since it goes by itself.
class UninstallSheet : public QDialog {
    Q_OBJECT

public:
    /// `uninstall` ends the program; it is called once.
    UninstallSheet(std::function<QCoro::Task<>()> uninstall, QWidget* parent);

    void reject() override;

protected:
    bool event(QEvent* event) override;

private:
    /// As wide as the design, and as high as that takes.
    void fit();
    [[nodiscard]] QHBoxLayout* buildHeader();
    [[nodiscard]] QVBoxLayout* buildRows();
    [[nodiscard]] QHBoxLayout* buildFooter();
    [[nodiscard]] QHBoxLayout* buildButtons();
    void confirm();

    std::function<QCoro::Task<>()> uninstall_;
    bool working_ = false;
    Spinner* spinner_ = nullptr;
    TextButton* cancel_ = nullptr;
    TextButton* confirm_ = nullptr;
};

} // namespace quillon
