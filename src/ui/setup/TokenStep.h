#pragma once

#include "ui/accessibility/View.h"

namespace quillon {

class TextButton;
class TextField;

/// The controls of the step with the bot's token: the field for it or, once there is a token, the
/// way to another one. The token is in the field and nowhere else.
class TokenStep : public View {
    Q_OBJECT

public:
    explicit TokenStep(QWidget* parent = nullptr);

    void setState(bool tokenSaved, bool working);
    void clearToken();
    /// Where the user goes on.
    [[nodiscard]] QWidget* mainControl() const;

Q_SIGNALS:
    /// The user wants the token, as it was typed, to be the bot's.
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
