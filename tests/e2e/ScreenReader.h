#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QRect>

#include <functional>
#include <string>
#include <vector>

namespace quillon::test {

/// Something in a window of the program, as the accessibility bus (AT-SPI 2) knows it. Every
/// question asks the program anew; one that is gone has no name and no states.
class Control {
public:
    /// No control.
    Control() = default;
    /// The object at `path` of the program that has the bus name `service`.
    Control(QString service, QString path) : service_{std::move(service)}, path_{std::move(path)} {}

    [[nodiscard]] explicit operator bool() const { return !path_.isEmpty(); }

    /// Such as "push button"; empty for roles that no test asks for.
    [[nodiscard]] std::string role() const;
    [[nodiscard]] std::string name() const;
    [[nodiscard]] std::string description() const;
    /// Whether it is "checked", "collapsed", "expanded", "focused", "selected", "sensitive" or
    /// "showing".
    [[nodiscard]] bool is(const std::string& state) const;
    /// What is read in a field.
    [[nodiscard]] std::string text() const;
    /// On the screen.
    [[nodiscard]] QRect place() const;
    [[nodiscard]] std::vector<Control> children() const;
    /// Whether it offers an action.
    [[nodiscard]] bool canBePressed() const;

    /// Does its first action: what a click does.
    void press() const;
    /// Puts the text into a field.
    void enter(const std::string& text) const;

private:
    /// Calls a method of one of the interfaces below org.a11y.atspi and waits for the answer.
    [[nodiscard]] QDBusMessage call(const char* interface, const char* method,
                                    const QVariantList& arguments = {}) const;
    [[nodiscard]] QVariant property(const char* interface, const char* name) const;

    QString service_;
    QString path_;
};

/// A screen reader: finds the program's controls on the accessibility bus, by what they are and
/// what they are called, and hears what the program announces. Events are delivered by the event
/// loop alone, never while a call waits for its answer.
class ScreenReader : public QObject {
    Q_OBJECT

public:
    /// Tells the session that assistive technology is in use, as a screen reader does that starts.
    ScreenReader();

    /// Whether a control is meant.
    using Which = std::function<bool(const Control&)>;

    /// The first one that shows, from the top of each window down; nothing when there is none.
    [[nodiscard]] Control find(const Which& which) const;
    /// Waits until such a control shows and can be used; a failure of the test if none comes.
    Control wait(const std::string& role, const std::string& name) const;
    [[nodiscard]] bool shows(const std::string& role, const std::string& name) const {
        return bool{
            find([&](const Control& each) { return each.name() == name && each.role() == role; })};
    }
    /// What has the keyboard.
    [[nodiscard]] Control focused() const;
    /// Waits until a control of this name has the keyboard; a failure of the test if none gets it.
    void waitForFocus(const std::string& name) const;
    /// The program's windows.
    [[nodiscard]] static std::vector<Control> windows();

    /// Waits until this has been read out, since the last forgetAnnouncements(): the name of an
    /// alert or a notification that has appeared.
    [[nodiscard]] bool hears(const std::string& text) const;
    void forgetAnnouncements() { heard_.clear(); }

private Q_SLOTS:
    void hear(const QDBusMessage& event);

private:
    std::vector<std::string> heard_;
};

} // namespace quillon::test
