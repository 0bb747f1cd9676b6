#include "ScreenReader.h"

#include "support/Await.h"

#include <QDBusArgument>
#include <QDBusReply>

#include <algorithm>
#include <deque>
#include <map>

namespace quillon::test {

namespace {

constexpr const char* busName = "accessibility";
constexpr int patience = 5'000; // ms for one answer

/// What GetRole answers. The names that programs give their roles differ from toolkit to toolkit.
const std::map<uint, std::string> roles{
    {2, "alert"},          {7, "check box"},    {16, "dialog"},       {23, "frame"},
    {27, "image"},         {29, "label"},       {32, "list item"},    {37, "page tab"},
    {40, "password text"}, {43, "push button"}, {44, "radio button"}, {61, "text"},
    {101, "notification"}};

/// Bits of what GetState answers.
const std::map<std::string, unsigned> stateBits{
    {"checked", 4},   {"collapsed", 5},  {"expanded", 10}, {"focused", 12},
    {"selected", 23}, {"sensitive", 24}, {"showing", 25}};

QDBusMessage ask(const QDBusConnection& bus, const QString& service, const QString& path,
                 const QString& interface, const QString& method, const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    return bus.call(message, QDBus::Block, patience);
}

/// Asks the service of the session that knows about assistive technology.
QDBusMessage askSession(const char* interface, const char* method,
                        const QVariantList& arguments = {}) {
    return ask(QDBusConnection::sessionBus(), QStringLiteral("org.a11y.Bus"),
               QStringLiteral("/org/a11y/bus"), QLatin1String{interface}, QLatin1String{method},
               arguments);
}

const QDBusConnection& accessibilityBus() {
    static const QDBusConnection bus = [] {
        const QDBusReply<QString> address = askSession("org.a11y.Bus", "GetAddress");
        return QDBusConnection::connectToBus(address.value(), QLatin1String{busName});
    }();
    return bus;
}

QVariant firstOf(const QDBusMessage& answer) {
    return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments().value(0) : QVariant{};
}

} // namespace

QDBusMessage Control::call(const char* interface, const char* method,
                           const QVariantList& arguments) const {
    if (!*this) return {};
    return ask(accessibilityBus(), service_, path_,
               QStringLiteral("org.a11y.atspi.") + QLatin1String{interface}, QLatin1String{method},
               arguments);
}

QVariant Control::property(const char* interface, const char* name) const {
    if (!*this) return {};
    const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");
    const QDBusMessage answer =
        ask(accessibilityBus(), service_, path_, properties, QStringLiteral("Get"),
            {QStringLiteral("org.a11y.atspi.") + QLatin1String{interface}, QLatin1String{name}});
    return qvariant_cast<QDBusVariant>(firstOf(answer)).variant();
}

std::string Control::role() const {
    const auto role = roles.find(firstOf(call("Accessible", "GetRole")).toUInt());
    return role == roles.end() ? "" : role->second;
}

std::string Control::name() const {
    return property("Accessible", "Name").toString().toStdString();
}

std::string Control::description() const {
    return property("Accessible", "Description").toString().toStdString();
}

bool Control::is(const std::string& state) const {
    const auto words = qdbus_cast<QList<uint>>(firstOf(call("Accessible", "GetState")));
    return !words.isEmpty() && (words.constFirst() >> stateBits.at(state) & 1U) != 0;
}

std::string Control::text() const {
    return firstOf(call("Text", "GetText", {0, -1})).toString().toStdString();
}

QRect Control::place() const {
    constexpr uint onTheScreen = 0;
    const QVariant extents = firstOf(call("Component", "GetExtents", {onTheScreen}));
    return extents.isValid() ? qdbus_cast<QRect>(extents) : QRect{};
}

std::vector<Control> Control::children() const {
    std::vector<Control> all;
    const QVariant answer = firstOf(call("Accessible", "GetChildren"));
    if (!answer.isValid()) return all;
    const auto list = qvariant_cast<QDBusArgument>(answer);
    list.beginArray();
    while (!list.atEnd()) {
        QString service;
        QDBusObjectPath path;
        list.beginStructure();
        list >> service >> path;
        list.endStructure();
        all.emplace_back(service, path.path());
    }
    list.endArray();
    return all;
}

bool Control::canBePressed() const {
    return property("Action", "NActions").toInt() > 0;
}

void Control::press() const {
    EXPECT_TRUE(firstOf(call("Action", "DoAction", {0})).toBool()) << name();
}

void Control::enter(const std::string& text) const {
    const QVariantList arguments{QString::fromStdString(text)};
    EXPECT_TRUE(firstOf(call("EditableText", "SetTextContents", arguments)).toBool()) << name();
}

ScreenReader::ScreenReader() {
    for (const char* property : {"IsEnabled", "ScreenReaderEnabled"}) {
        askSession("org.freedesktop.DBus.Properties", "Set",
                   {QStringLiteral("org.a11y.Status"), QLatin1String{property},
                    QVariant::fromValue(QDBusVariant{true})});
    }
    QDBusConnection bus = accessibilityBus();
    EXPECT_TRUE(bus.connect({}, {}, QStringLiteral("org.a11y.atspi.Event.Object"),
                            QStringLiteral("StateChanged"), this, SLOT(hear(QDBusMessage))));
    // Programs tell only what somebody has asked the registry for.
    ask(bus, QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("/org/a11y/atspi/registry"),
        QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("RegisterEvent"),
        {QStringLiteral("object:state-changed:showing")});
}

void ScreenReader::hear(const QDBusMessage& event) {
    const QVariantList arguments = event.arguments();
    if (arguments.value(0) != QStringLiteral("showing") || arguments.value(1) != 1) return;
    const Control source{event.service(), event.path()};
    const std::string role = source.role();
    if (role == "alert" || role == "notification") heard_.push_back(source.name());
}

std::vector<Control> ScreenReader::windows() {
    std::vector<Control> all;
    const Control desktop{QStringLiteral("org.a11y.atspi.Registry"),
                          QStringLiteral("/org/a11y/atspi/accessible/root")};
    for (const Control& application : desktop.children()) {
        if (application.name() != "Quillon") continue;
        for (const Control& window : application.children())
            all.push_back(window);
    }
    return all;
}

Control ScreenReader::find(const Which& which) const {
    const std::vector<Control> roots = windows();
    std::deque<Control> waiting{roots.begin(), roots.end()};
    while (!waiting.empty()) {
        Control control = waiting.front();
        waiting.pop_front();
        if (!control.is("showing")) continue; // nor does what is in it
        if (which(control)) return control;
        const std::vector<Control> children = control.children();
        waiting.insert(waiting.end(), children.begin(), children.end());
    }
    return {};
}

Control ScreenReader::wait(const std::string& role, const std::string& name) const {
    Control found;
    const auto ready = [&] {
        found = find([&](const Control& each) {
            return each.name() == name && each.role() == role && each.is("sensitive");
        });
        return bool{found};
    };
    EXPECT_TRUE(waitUntil(ready)) << "there is no " << role << " \"" << name << "\"";
    return found;
}

Control ScreenReader::focused() const {
    return find([](const Control& each) { return each.is("focused"); });
}

void ScreenReader::waitForFocus(const std::string& name) const {
    EXPECT_TRUE(waitUntil([&] { return focused().name() == name; }))
        << focused().name() << " has the keyboard, not " << name;
}

bool ScreenReader::hears(const std::string& text) const {
    return waitUntil([&] { return std::ranges::count(heard_, text) > 0; });
}

} // namespace quillon::test
