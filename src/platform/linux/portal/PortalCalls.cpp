#include "platform/linux/portal/PortalCalls.h"

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>

#include <chrono>
#include <limits>
#include <utility>

namespace quillon {

namespace {

/// A portal that is only being started takes its first call after a second or two.
constexpr std::chrono::milliseconds openTime = std::chrono::seconds{10};

constexpr int noTimeout = std::numeric_limits<int>::max();

} // namespace

PortalCalls::PortalCalls(QDBusConnection bus) : bus_{std::move(bus)} {
    // Before any request: its answer may come before that of the call. Without the portal's name,
    // the owner of which Qt would wait to be told.
    bus_.connect({}, {}, portal::request, QStringLiteral("Response"), this,
                 SLOT(respond(QDBusMessage)));
    open_.emplace();
    openLimit_.setSingleShot(true);
    connect(&openLimit_, &QTimer::timeout, this, [this] { hide(); });
    openLimit_.start(openTime);
}

PortalCalls::~PortalCalls() {
    for (const auto& [path, responded] : requests_)
        tell(path, portal::request, "Close");
}

void PortalCalls::send(const QDBusMessage& message, Answered answered) {
    auto* const pending = new QDBusPendingCallWatcher{bus_.asyncCall(message, noTimeout), this};
    connect(pending, &QDBusPendingCallWatcher::finished, this,
            [pending, answered = std::move(answered)] {
                pending->deleteLater();
                answered(pending->reply());
            });
}

void PortalCalls::call(const QString& interface, const char* method, const QVariantList& arguments,
                       Answered answered) {
    QDBusMessage message = QDBusMessage::createMethodCall(portal::name, portal::path, interface,
                                                          QLatin1String{method});
    message.setArguments(arguments);
    send(message, [this, answered = std::move(answered)](const QDBusMessage& answer) {
        owner_.isEmpty() ? learnOwner([answer, answered] { answered(answer); }) : answered(answer);
    });
}

void PortalCalls::learnOwner(std::function<void()> then) {
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    QDBusMessage question = QDBusMessage::createMethodCall(
        bus, QStringLiteral("/org/freedesktop/DBus"), bus, QStringLiteral("GetNameOwner"));
    question << portal::name;
    // Newer versions of Qt do not tell who has sent an answer.
    send(question, [this, then = std::move(then)](const QDBusMessage& answer) {
        if (answer.type() == QDBusMessage::ReplyMessage)
            owner_ = answer.arguments().value(0).toString();
        then();
    });
}

void PortalCalls::request(const QString& interface, const char* method, QVariantList arguments,
                          QVariantMap options, Responded responded) {
    const QString token = newToken();
    const QString path = handle("request", token);
    options[QStringLiteral("handle_token")] = token;
    arguments << options;
    requests_[path] = std::move(responded);
    call(interface, method, arguments, [this, path](const QDBusMessage& answer) {
        hide();
        if (answer.type() == QDBusMessage::ErrorMessage) end(path, notTaken, {});
    });
}

void PortalCalls::tell(const QString& path, const QString& interface, const char* method,
                       const QVariantList& arguments) const {
    QDBusMessage message =
        QDBusMessage::createMethodCall(portal::name, path, interface, QLatin1String{method});
    message.setArguments(arguments);
    // Nobody is to be started for it.
    message.setAutoStartService(false);
    bus_.send(message);
}

bool PortalCalls::isPortal(const QDBusMessage& signal) const {
    return !owner_.isEmpty() && signal.service() == owner_;
}

QString PortalCalls::handle(const char* kind, const QString& token) const {
    QString caller = bus_.baseService().mid(1);
    caller.replace(QLatin1Char{'.'}, QLatin1Char{'_'});
    return QStringList{portal::path, QLatin1String{kind}, caller, token}.join(QLatin1Char{'/'});
}

QString PortalCalls::newToken() {
    static int count = 0;
    return QStringLiteral("quillon%1").arg(++count);
}

void PortalCalls::respond(const QDBusMessage& signal) {
    const QVariantList arguments = signal.arguments();
    if (!isPortal(signal) || signal.signature() != QLatin1String{"ua{sv}"}) return;
    end(signal.path(), arguments.at(0).toUInt(), qdbus_cast<QVariantMap>(arguments.at(1)));
}

void PortalCalls::end(const QString& path, uint code, const QVariantMap& results) {
    const auto ended = requests_.extract(path);
    if (ended) ended.mapped()(code, results);
}

} // namespace quillon
