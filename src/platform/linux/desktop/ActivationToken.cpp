#include "platform/linux/desktop/ActivationToken.h"

#include <QGuiApplication>
#include <QVariant>

namespace quillon {
namespace {

constexpr const char* variable = "XDG_ACTIVATION_TOKEN";
/// The property of the application that keeps the launcher's.
constexpr const char* kept = "quillon_activation_token";

} // namespace

void ActivationToken::takeFromLauncher() {
    if (QGuiApplication::platformName().startsWith(QStringLiteral("wayland")))
        keep(qgetenv(variable));
    withdraw();
    qunsetenv("DESKTOP_STARTUP_ID");
}

void ActivationToken::keep(const QByteArray& token) {
    if (!token.isEmpty()) qGuiApp->setProperty(kept, token);
}

void ActivationToken::offer() {
    const QByteArray token = qGuiApp->property(kept).toByteArray();
    qGuiApp->setProperty(kept, {});
    if (!token.isEmpty() && !qEnvironmentVariableIsSet(variable)) qputenv(variable, token);
}

void ActivationToken::withdraw() {
    qunsetenv(variable);
}

} // namespace quillon
