#include "maintenance/MessageBoxAlerts.h"

#include "base/Translate.h"

#include <QMessageBox>
#include <QPromise>
#include <QPushButton>

#include <algorithm>
#include <memory>

namespace quillon {

namespace {

/// The buttons in the order of the alert, the first being the default and the last what Escape and
/// closing the window mean.
QList<QAbstractButton*> addButtons(QMessageBox& box, const Alert& alert) {
    QList<QAbstractButton*> buttons;
    for (const std::string& text : alert.buttons) {
        const auto role = buttons.isEmpty() ? QMessageBox::AcceptRole : QMessageBox::RejectRole;
        buttons.append(box.addButton(QString::fromStdString(text), role));
    }
    box.setDefaultButton(qobject_cast<QPushButton*>(buttons.first()));
    box.setEscapeButton(buttons.last());
    return buttons;
}

} // namespace

QFuture<std::size_t> MessageBoxAlerts::show(Alert alert) {
    auto* box = new QMessageBox;
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(QStringLiteral("Quillon"));
    box->setIcon(alert.warning ? QMessageBox::Warning : QMessageBox::Information);
    box->setTextFormat(Qt::PlainText);
    box->setText(QString::fromStdString(alert.message));
    box->setInformativeText(QString::fromStdString(alert.informativeText));
    if (alert.buttons.empty()) alert.buttons.push_back(translate("Alert", "OK"));
    const QList<QAbstractButton*> buttons = addButtons(*box, alert);

    const auto promise = std::make_shared<QPromise<std::size_t>>();
    promise->start();
    QObject::connect(box, &QDialog::finished, box, [box, buttons, promise] {
        const auto pressed = buttons.indexOf(box->clickedButton());
        promise->addResult(static_cast<std::size_t>(pressed < 0 ? buttons.size() - 1 : pressed));
        promise->finish();
    });
    box->setWindowModality(Qt::ApplicationModal);
    box->show();
    box->raise();
    box->activateWindow();
    return promise->future();
}

} // namespace quillon
