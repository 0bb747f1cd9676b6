#pragma once

#include "update/UpdateUserDriver.h"

#include <QCoreApplication>
#include <QPointer>

class QProgressBar;

namespace quillon {

class MessageWindow;

/// Shows the progress of updates in small windows that block nothing.
class UpdateWindows final : public UpdateUserDriver {
    Q_DECLARE_TR_FUNCTIONS(quillon::UpdateWindows)

public:
    UpdateWindows() = default;
    UpdateWindows(const UpdateWindows&) = delete;
    UpdateWindows& operator=(const UpdateWindows&) = delete;
    ~UpdateWindows() override;

    [[nodiscard]] QFuture<bool> askPermission() override;
    void showChecking(std::stop_source cancel) override;
    void showUpToDate(std::string version) override;
    [[nodiscard]] QFuture<UpdateChoice> showUpdate(UpdateOffer offer) override;
    void showPreparing(std::string version, std::stop_source cancel) override;
    void showProgress(UpdateProgress progress) override;
    [[nodiscard]] QFuture<InstallTime> showReady(std::string version) override;
    void showInstalled(std::string version) override;
    void showError(UpdateError error) override;
    void comeForward() override;
    void dismiss() override;

private:
    /// Shows the dialog in place of the present one. If `gently`, it does not become active.
    void present(MessageWindow* dialog, bool gently = false);
    void showMessage(const QString& title, const QString& text);

    QPointer<MessageWindow> current_;
    QPointer<MessageWindow> permission_;
    /// The bar of the window that shows while an update is being prepared.
    QPointer<QProgressBar> bar_;
    QString preparing_;
};

} // namespace quillon
