#pragma once

#include "ui/accessibility/View.h"

namespace quillon {

class TextButton;
class TextField;

/// The controls of the step with the bot's token: the field for the token or, once there is one,
/// the way to use another bot. This view keeps the token in the field and nowhere else.
class TokenStep : public View {
    Q_OBJECT

public:
    TokenStep();

    void setState(bool tokenSaved, bool working);
    void clearToken();
    /// The control with which the user goes on.
    [[nodiscard]] QWidget* mainControl() const;

Q_SIGNALS:
    /// The user wants to connect the bot with this token, which is as it was typed.
    void connectWanted(const QString& token);
    void anotherBotWanted();

private:
    [[nodiscard]] QWidget* buildEntry();
    [[nodiscard]] QWidget* buildKept();
    void enableConnect();
    void wantConnect();

    TextField* token_ = nullptr;
    TextButton* connect_ = nullptr;
    QWidget* entry_;
    QWidget* kept_;
    bool working_ = false;
};

} // namespace quillon
