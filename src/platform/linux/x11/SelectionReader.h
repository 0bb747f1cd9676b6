#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <QByteArray>

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace quillon {

/// Asks the owner of X11's CLIPBOARD selection for its content. Each question blocks the calling
/// thread until it is answered, given up or stopped.
class SelectionReader {
public:
    /// How long all questions since formats() together wait for an owner that gives nothing. Each
    /// byte starts the time anew. After it the owner counts as silent: no question is put to it
    /// until it changes, or answers after all.
    static constexpr std::chrono::milliseconds patience{1000};
    /// After this time, no further piece of a large answer is waited for, and the owner counts as
    /// silent.
    static constexpr std::chrono::seconds transferLimit{30};
    /// A larger answer counts as none, in bytes.
    static constexpr qsizetype maximumSize = qsizetype{256} * 1024 * 1024;

    /// `ownerChanged` is called on the reading thread, each time something is copied, the owner
    /// goes away, or one answers that counted as silent. Check ready() before use.
    SelectionReader(X11Connection& connection, std::function<void()> ownerChanged);

    /// False when the server lacks what reading needs (the XFixes extension).
    [[nodiscard]] bool ready() const { return firstXfixesEvent_ != 0; }

    /// Once stop is requested and the connection rung, the present question and every later one
    /// end.
    void stopOn(std::stop_token stop) { stop_ = std::move(stop); }

    /// The names of the targets that the owner offers, in its order; empty when there is no answer.
    /// Begins a reading.
    [[nodiscard]] std::vector<std::string> formats();

    /// The selection converted to the target of this name; none when refused or not answered, or
    /// when the answer is of a wrong type or too large.
    [[nodiscard]] std::optional<QByteArray> data(const std::string& format);

    /// Handles everything that has arrived. Call it between questions.
    void handleEvents();

private:
    struct Property {
        xcb_atom_t type = XCB_ATOM_NONE;
        int format = 0; ///< bits of one unit: 8, 16 or 32
        QByteArray bytes;
    };

    bool selectEvents();
    [[nodiscard]] std::optional<xcb_atom_t> atomOf(const std::string& name);
    [[nodiscard]] std::vector<std::string> namesOf(const std::vector<xcb_atom_t>& atoms);
    [[nodiscard]] bool isRightType(xcb_atom_t target, const Property& answer) const;

    [[nodiscard]] std::optional<Property> convert(xcb_atom_t target, qsizetype limit);
    void ask(xcb_atom_t target);
    [[nodiscard]] std::optional<Property> receivePieces(qsizetype announced, qsizetype limit);
    [[nodiscard]] XcbPointer<xcb_get_property_reply_t> takeProperty(qsizetype limit);

    void openWindow();
    void retireWindow();
    void handle(const xcb_generic_event_t& event);
    void noteAnswer(const xcb_selection_notify_event_t& event);
    void noteOwner(std::uint32_t sequence);
    void noteLateAnswer();

    [[nodiscard]] bool silent() const { return silence_ >= patience; }
    /// Both wait for what the connection brings; false when it does not come in time, or never
    /// will.
    template <typename Done>
    bool waitForOwner(Done done);
    template <typename Done>
    bool waitUntil(X11Connection::Time deadline, Done done);
    template <typename Reply>
    XcbPointer<Reply> reply(unsigned sequence);

    X11Connection& connection_;
    std::function<void()> ownerChanged_;
    std::stop_token stop_;
    int firstXfixesEvent_ = 0;
    xcb_atom_t clipboard_ = XCB_ATOM_NONE;
    xcb_atom_t targets_ = XCB_ATOM_NONE;
    xcb_atom_t incr_ = XCB_ATOM_NONE;
    xcb_atom_t utf8String_ = XCB_ATOM_NONE;
    xcb_atom_t property_ = XCB_ATOM_NONE; ///< owners put their answers here
    std::map<std::string, xcb_atom_t> atoms_;
    std::map<xcb_atom_t, std::string> names_;

    xcb_window_t window_ = XCB_WINDOW_NONE;
    std::deque<xcb_window_t> retired_; ///< windows of abandoned questions, for late answers
    bool open_ = false;                ///< a question was asked and is not completely answered
    bool overtaken_ = false;           ///< the owner changed since the question
    bool newValue_ = false;            ///< the owner wrote the property since it was last taken
    unsigned question_ = 0;            ///< the question's sequence number
    /// How long this reading has waited for the owner since its last byte.
    std::chrono::steady_clock::duration silence_{};
    xcb_atom_t target_ = XCB_ATOM_NONE;
    std::optional<xcb_atom_t> answer_; ///< the property of the answer; NONE when refused
};

} // namespace quillon
