#pragma once

#include "platform/linux/pasteboard/ClipboardReader.h"
#include "platform/linux/x11/X11Connection.h"

#include <cstdint>
#include <deque>
#include <map>

namespace quillon {

/// Asks the owner of X11's CLIPBOARD selection for its content. Formats are X11 targets.
class SelectionReader final : public ClipboardReader {
public:
    /// Reads the clipboard of `display` (null: what $DISPLAY names); null if there is no such
    /// display or its server lacks XFixes.
    [[nodiscard]] static std::unique_ptr<SelectionReader> open(const char* display,
                                                               const ReaderHost& host);

    [[nodiscard]] ClipboardWay way() const override { return ClipboardWay::x11; }
    [[nodiscard]] bool alive() const override { return connection_->alive(); }
    [[nodiscard]] std::vector<std::string> formats() override;
    [[nodiscard]] std::optional<QByteArray> data(const std::string& format) override;
    void handleEvents() override;
    void sleep() override { connection_->sleep(host_.bell, {}); }

private:
    struct Property {
        xcb_atom_t type = XCB_ATOM_NONE;
        int format = 0; ///< bits of one unit: 8, 16 or 32
        QByteArray bytes;
    };

    SelectionReader(std::unique_ptr<X11Connection> connection, ReaderHost host);
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

    [[nodiscard]] bool silent() const { return silence_ >= host_.limits.patience; }
    /// Both wait for what the connection brings; false when it does not come in time, or never
    /// will.
    template <typename Done>
    bool waitForOwner(Done done);
    template <typename Done>
    bool waitUntil(Bell::Time deadline, Done done);
    template <typename Reply>
    XcbPointer<Reply> reply(unsigned sequence);

    std::unique_ptr<X11Connection> connection_;
    ReaderHost host_;
    int firstXfixesEvent_ = 0; ///< 0 if the server lacks XFixes
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
