#pragma once

#include <QCoroTask>
#include <QDialog>

#include <functional>

class QHBoxLayout;
class QVBoxLayout;

namespace quillon {

class Spinner;
class TextButton;

/// Says what uninstalling removes, and uninstalls when the user confirms. Until then Escape closes
/// it. It deletes itself, and therefore has to be on the heap.
class UninstallSheet : public QDialog {
    Q_OBJECT

public:
    /// `uninstall` is called once, and ends the program.
    UninstallSheet(std::function<QCoro::Task<>()> uninstall, QWidget* parent);

    void reject() override;

protected:
    bool event(QEvent* event) override;

private:
    /// Gives the sheet its fixed width, and the height that it needs with it.
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
