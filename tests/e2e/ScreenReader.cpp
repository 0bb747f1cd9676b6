// The library's headers first: its structures have members that Qt's keywords would replace.
#include <atspi/atspi.h>

#include "ScreenReader.h"
#include "support/Await.h"

#include <QDBusInterface>
#include <QDBusVariant>

#include <algorithm>
#include <array>
#include <deque>

namespace quillon::test {

namespace {

using Accessible = _AtspiAccessible;

std::string taken(char* text) {
    std::string copy = text ? text : "";
    g_free(text);
    return copy;
}

std::shared_ptr<Accessible> owned(Accessible* accessible) {
    return {accessible, [](Accessible* last) {
                if (last) g_object_unref(last);
            }};
}

void turnOn(const QString& property) {
    QDBusInterface status{QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                          QStringLiteral("org.freedesktop.DBus.Properties")};
    status.call(QStringLiteral("Set"), QStringLiteral("org.a11y.Status"), property,
                QVariant::fromValue(QDBusVariant{true}));
}

bool announces(const std::string& role) {
    return role == "alert" || role == "notification";
}

} // namespace

Control::Control(Accessible* accessible) : accessible_{owned(accessible)} {}

std::string Control::role() const {
    return accessible_ ? taken(atspi_accessible_get_role_name(accessible_.get(), nullptr)) : "";
}

std::string Control::name() const {
    return accessible_ ? taken(atspi_accessible_get_name(accessible_.get(), nullptr)) : "";
}

std::string Control::description() const {
    return accessible_ ? taken(atspi_accessible_get_description(accessible_.get(), nullptr)) : "";
}

std::vector<std::string> Control::states() const {
    std::vector<std::string> names;
    AtspiStateSet* set = atspi_accessible_get_state_set(accessible_.get());
    if (!set) return names;
    GArray* states = atspi_state_set_get_states(set);
    auto* kinds = static_cast<GEnumClass*>(g_type_class_ref(ATSPI_TYPE_STATE_TYPE));
    for (guint i = 0; i < states->len; ++i) {
        const GEnumValue* kind =
            g_enum_get_value(kinds, static_cast<int>(g_array_index(states, AtspiStateType, i)));
        if (kind) names.emplace_back(kind->value_nick);
    }
    g_type_class_unref(kinds);
    g_array_free(states, TRUE);
    g_object_unref(set);
    return names;
}

bool Control::is(const std::string& state) const {
    return std::ranges::count(states(), state) > 0;
}

std::string Control::text() const {
    AtspiText* text = atspi_accessible_get_text_iface(accessible_.get());
    if (!text) return {};
    std::string content =
        taken(atspi_text_get_text(text, 0, atspi_text_get_character_count(text, nullptr), nullptr));
    g_object_unref(text);
    return content;
}

QRect Control::place() const {
    AtspiComponent* component = atspi_accessible_get_component_iface(accessible_.get());
    if (!component) return {};
    AtspiRect* box = atspi_component_get_extents(component, ATSPI_COORD_TYPE_SCREEN, nullptr);
    g_object_unref(component);
    if (!box) return {};
    const QRect place{box->x, box->y, box->width, box->height};
    g_free(box);
    return place;
}

std::vector<Control> Control::children() const {
    std::vector<Control> all;
    const int count = atspi_accessible_get_child_count(accessible_.get(), nullptr);
    for (int i = 0; i < count; ++i) {
        Control child{atspi_accessible_get_child_at_index(accessible_.get(), i, nullptr)};
        if (child) all.push_back(std::move(child));
    }
    return all;
}

std::vector<std::string> Control::actions() const {
    std::vector<std::string> names;
    AtspiAction* action = atspi_accessible_get_action_iface(accessible_.get());
    if (!action) return names;
    const int count = atspi_action_get_n_actions(action, nullptr);
    for (int i = 0; i < count; ++i)
        names.push_back(taken(atspi_action_get_action_name(action, i, nullptr)));
    g_object_unref(action);
    return names;
}

void Control::press() const {
    AtspiAction* action = atspi_accessible_get_action_iface(accessible_.get());
    ASSERT_NE(action, nullptr) << name();
    EXPECT_TRUE(atspi_action_do_action(action, 0, nullptr)) << name();
    g_object_unref(action);
}

void Control::enter(const std::string& text) const {
    AtspiEditableText* field = atspi_accessible_get_editable_text_iface(accessible_.get());
    ASSERT_NE(field, nullptr) << name();
    EXPECT_TRUE(atspi_editable_text_set_text_contents(field, text.c_str(), nullptr)) << name();
    g_object_unref(field);
}

/// What the bus tells of its own accord.
struct ScreenReader::Ears {
    AtspiEventListener* listener = nullptr;
    std::vector<std::string> heard;

    static void hear(AtspiEvent* event, void* ears) {
        Control source{static_cast<Accessible*>(g_object_ref(event->source))};
        if (event->detail1 == 1 && announces(source.role()))
            static_cast<Ears*>(ears)->heard.push_back(source.name());
        g_boxed_free(ATSPI_TYPE_EVENT, event);
    }
};

ScreenReader::ScreenReader() : ears_{std::make_unique<Ears>()} {
    // It would tell of each program that it finds gone.
    g_log_set_handler(
        "dbind", G_LOG_LEVEL_WARNING, [](const char*, GLogLevelFlags, const char*, void*) {},
        nullptr);
    turnOn(QStringLiteral("IsEnabled"));
    turnOn(QStringLiteral("ScreenReaderEnabled"));
    atspi_init();
    // What is remembered may be older than what the test has just done.
    Accessible* root = atspi_get_desktop(0);
    atspi_accessible_set_cache_mask(root, ATSPI_CACHE_NONE);
    g_object_unref(root);
    ears_->listener = atspi_event_listener_new(Ears::hear, ears_.get(), nullptr);
    atspi_event_listener_register(ears_->listener, "object:state-changed:showing", nullptr);
}

ScreenReader::~ScreenReader() {
    atspi_event_listener_deregister(ears_->listener, "object:state-changed:showing", nullptr);
    g_object_unref(ears_->listener);
}

std::vector<Control> ScreenReader::windows() {
    std::vector<Control> all;
    for (const Control& application : Control{atspi_get_desktop(0)}.children()) {
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

Control ScreenReader::find(const std::string& role, const std::string& name) const {
    return find([&](const Control& each) { return each.name() == name && each.role() == role; });
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

const std::vector<std::string>& ScreenReader::announcements() const {
    return ears_->heard;
}

void ScreenReader::forgetAnnouncements() {
    ears_->heard.clear();
}

} // namespace quillon::test
