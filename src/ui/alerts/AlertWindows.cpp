#include "ui/alerts/AlertWindows.h"

#include "base/Translate.h"
#include "platform/Workspace.h"
#include "ui/controls/Answer.h"
#include "ui/controls/MessageWindow.h"
#include "ui/controls/TextViews.h"

namespace quillon {

namespace {

/// Texts longer than this may need scrolling, and their readers may want to copy them.
constexpr std::size_t longText = 300; // bytes

void addText(MessageWindow& window, const QString& text) {
    window.addContent(new MessageText{text, MessageWindow::textWidth});
    window.setAccessibleDescription(text);
}

/// Adds the buttons. The first is the default; Escape and closing the window count as the last.
void addButtons(MessageWindow& window, const std::vector<std::string>& texts,
                const Answer<std::size_t>& answer) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const auto place = i == 0 ? MessageWindow::Place::primary : MessageWindow::Place::secondary;
        // An "&" in the text does not mark a mnemonic.
        QString text = QString::fromStdString(texts[i]);
        text.replace(QLatin1Char{'&'}, QLatin1String{"&&"});
        window.setEscape(window.addButton(text, place, [answer, i] { answer.give(i); }));
    }
}

} // namespace

QFuture<std::size_t> AlertWindows::show(Alert alert) {
    if (alert.buttons.empty()) alert.buttons.push_back(translate("Alert", "OK"));
    const QString text = QString::fromStdString(alert.informativeText);
    const bool isLong = alert.informativeText.size() > longText;
    auto* window = new MessageWindow{QString::fromStdString(alert.message),
                                     isLong ? QString{} : text, alert.warning};
    if (isLong) addText(*window, text);
    window->setWindowTitle(QStringLiteral("Quillon"));
    const Answer<std::size_t> answer{alert.buttons.size() - 1};
    addButtons(*window, alert.buttons, answer);
    window->setWindowModality(Qt::ApplicationModal);
    window->show();
    workspace_.bringToFront(*window->windowHandle());
    return answer.future();
}

} // namespace quillon
