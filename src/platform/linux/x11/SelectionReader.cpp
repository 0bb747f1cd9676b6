#include "platform/linux/x11/SelectionReader.h"

#include <xcb/xcbext.h>
#include <xcb/xfixes.h>

#include <algorithm>
#include <cstring>
#include <span>
#include <utility>

namespace quillon {

namespace {

/// No owner has this many targets; a longer list counts as none.
constexpr qsizetype maximumTargets = 4096;
/// This many windows are kept for late answers. Owners that treat every X error as fatal would end
/// if a window were destroyed too soon.
constexpr std::size_t maximumRetired = 8;

std::span<const char> valueOf(const xcb_get_property_reply_t& reply) {
    return {static_cast<const char*>(xcb_get_property_value(&reply)),
            static_cast<std::size_t>(xcb_get_property_value_length(&reply))};
}

/// An INCR property holds a lower bound of the size to come; some owners leave it empty.
qsizetype announcedSize(const xcb_get_property_reply_t& reply) {
    std::uint32_t size = 0;
    const auto value = valueOf(reply);
    if (value.size() >= sizeof size) std::memcpy(&size, value.data(), sizeof size);
    return size;
}

} // namespace

std::unique_ptr<SelectionReader> SelectionReader::open(const char* display,
                                                       const ReaderHost& host) {
    auto connection = X11Connection::open(display);
    if (!connection) return nullptr;
    std::unique_ptr<SelectionReader> reader{new SelectionReader{std::move(connection), host}};
    return reader->firstXfixesEvent_ != 0 ? std::move(reader) : nullptr;
}

SelectionReader::SelectionReader(std::unique_ptr<X11Connection> connection, ReaderHost host)
    : connection_{std::move(connection)},
      host_{std::move(host)} {
    if (!selectEvents()) return;
    clipboard_ = internAtom(connection_->get(), "CLIPBOARD");
    targets_ = internAtom(connection_->get(), "TARGETS");
    incr_ = internAtom(connection_->get(), "INCR");
    utf8String_ = internAtom(connection_->get(), "UTF8_STRING");
    property_ = internAtom(connection_->get(), "QUILLON_CLIPBOARD");
    selectOwnerEvents(connection_->get(), connection_->root(), clipboard_);
    openWindow();
    xcb_flush(connection_->get());
}

bool SelectionReader::selectEvents() {
    const auto* extension = xcb_get_extension_data(connection_->get(), &xcb_xfixes_id);
    if (extension == nullptr || extension->present == 0) return false;
    // The server refuses every other XFixes request until the client has asked for a version.
    const auto cookie = xcb_xfixes_query_version(connection_->get(), 1, 0);
    const XcbPointer<xcb_xfixes_query_version_reply_t> version{
        xcb_xfixes_query_version_reply(connection_->get(), cookie, nullptr)};
    if (!version) return false;
    firstXfixesEvent_ = extension->first_event;
    return true;
}

std::vector<std::string> SelectionReader::formats() {
    if (!silent()) silence_ = {};
    const auto limit = maximumTargets * qsizetype{sizeof(xcb_atom_t)};
    const auto answer = convert(targets_, limit);
    if (!answer || !isRightType(targets_, *answer)) return {};
    std::vector<xcb_atom_t> atoms(static_cast<std::size_t>(answer->bytes.size()) /
                                  sizeof(xcb_atom_t));
    std::memcpy(atoms.data(), answer->bytes.constData(), atoms.size() * sizeof(xcb_atom_t));
    return namesOf(atoms);
}

std::optional<QByteArray> SelectionReader::data(const std::string& format) {
    const auto target = atomOf(format);
    if (!target) return {};
    auto answer = convert(*target, host_.limits.size);
    if (!answer || !isRightType(*target, *answer)) return {};
    return std::move(answer->bytes);
}

/// The two string targets name an encoding, so the answer's type must match. For media types,
/// owners differ in the type they give, and the content describes itself.
bool SelectionReader::isRightType(xcb_atom_t target, const Property& answer) const {
    if (target == targets_) {
        return answer.format == 32 && (answer.type == XCB_ATOM_ATOM || answer.type == targets_);
    }
    const bool strict = target == utf8String_ || target == XCB_ATOM_STRING;
    return answer.format == 8 && (!strict || answer.type == target);
}

std::optional<xcb_atom_t> SelectionReader::atomOf(const std::string& name) {
    if (const auto known = atoms_.find(name); known != atoms_.end()) return known->second;
    // If no program has made an atom of the name, no owner offers it.
    const auto cookie = xcb_intern_atom(connection_->get(), 1,
                                        static_cast<std::uint16_t>(name.size()), name.data());
    const auto answer = reply<xcb_intern_atom_reply_t>(cookie.sequence);
    if (!answer || answer->atom == XCB_ATOM_NONE) return {};
    return atoms_[name] = answer->atom;
}

std::vector<std::string> SelectionReader::namesOf(const std::vector<xcb_atom_t>& atoms) {
    std::vector<std::pair<xcb_atom_t, unsigned>> questions;
    for (const xcb_atom_t atom : atoms) {
        if (names_.contains(atom)) continue;
        questions.emplace_back(atom, xcb_get_atom_name(connection_->get(), atom).sequence);
    }
    const auto deadline = std::chrono::steady_clock::now() + host_.limits.patience;
    for (const auto& [atom, sequence] : questions) {
        if (std::chrono::steady_clock::now() >= deadline) {
            xcb_discard_reply(connection_->get(), sequence); // one deadline covers all questions
            continue;
        }
        const auto answer = reply<xcb_get_atom_name_reply_t>(sequence);
        if (!answer) continue; // the owner offers a number that is no atom
        names_[atom].assign(xcb_get_atom_name_name(answer.get()), answer->name_len);
    }
    std::vector<std::string> names;
    for (const xcb_atom_t atom : atoms) {
        if (const auto name = names_.find(atom); name != names_.end())
            names.push_back(name->second);
    }
    return names;
}

std::optional<SelectionReader::Property> SelectionReader::convert(xcb_atom_t target,
                                                                  qsizetype limit) {
    if (silent()) return {};
    ask(target);
    if (!waitForOwner([this] { return answer_.has_value(); })) return {};
    if (*answer_ == XCB_ATOM_NONE) {
        open_ = false;
        return {};
    }
    const auto answer = takeProperty(limit);
    if (!answer || answer->bytes_after > 0) return {};
    silence_ = {};
    if (answer->type == incr_) return receivePieces(announcedSize(*answer), limit);
    open_ = false;
    const auto value = valueOf(*answer);
    return Property{answer->type, answer->format,
                    QByteArray{value.data(), static_cast<qsizetype>(value.size())}};
}

/// An unfinished question may still be answered. Its window is left for that answer, so that it
/// cannot be taken for the answer to a later question.
void SelectionReader::ask(xcb_atom_t target) {
    if (open_) retireWindow();
    open_ = true;
    overtaken_ = false;
    target_ = target;
    answer_.reset();
    question_ = xcb_convert_selection(connection_->get(), window_, clipboard_, target, property_,
                                      XCB_CURRENT_TIME)
                    .sequence;
}

/// The owner writes one piece after another, each when the previous one was deleted; an empty piece
/// is the end.
std::optional<SelectionReader::Property> SelectionReader::receivePieces(qsizetype announced,
                                                                        qsizetype limit) {
    if (announced > limit) return {};
    Property whole;
    whole.bytes.reserve(announced);
    const auto end = std::chrono::steady_clock::now() + host_.limits.transfer;
    while (waitForOwner([this] { return newValue_; })) {
        if (std::chrono::steady_clock::now() >= end) {
            silence_ = host_.limits.patience;
            return {};
        }
        const auto piece = takeProperty(limit);
        if (!piece) return {};
        if (piece->type == XCB_ATOM_NONE) continue; // there is no property, so this is not a piece
        silence_ = {};
        const auto value = valueOf(*piece);
        if (value.empty()) {
            open_ = false;
            return whole;
        }
        if (whole.bytes.isEmpty()) {
            whole.type = piece->type;
            whole.format = piece->format;
        }
        const auto size = static_cast<qsizetype>(value.size());
        const bool same = piece->type == whole.type && piece->format == whole.format;
        if (!same || piece->bytes_after > 0 || size > limit - whole.bytes.size()) return {};
        whole.bytes.append(value.data(), size);
    }
    return {};
}

/// Reads and deletes the property. The deletion tells the owner to go on.
XcbPointer<xcb_get_property_reply_t> SelectionReader::takeProperty(qsizetype limit) {
    newValue_ = false;
    const auto units = static_cast<std::uint32_t>(limit / 4);
    const auto cookie = xcb_get_property(connection_->get(), 1, window_, property_,
                                         XCB_GET_PROPERTY_TYPE_ANY, 0, units);
    return reply<xcb_get_property_reply_t>(cookie.sequence);
}

void SelectionReader::openWindow() {
    window_ = xcb_generate_id(connection_->get());
    constexpr std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection_->get(), 0, window_, connection_->root(), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &events);
}

void SelectionReader::retireWindow() {
    retired_.push_back(window_);
    if (retired_.size() > maximumRetired) {
        xcb_destroy_window(connection_->get(), retired_.front());
        retired_.pop_front();
    }
    openWindow();
}

void SelectionReader::handleEvents() {
    while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(connection_->get())})
        handle(*event);
}

void SelectionReader::handle(const xcb_generic_event_t& event) {
    const int type = event.response_type & eventTypeMask;
    if (type == XCB_SELECTION_NOTIFY) {
        noteAnswer(reinterpret_cast<const xcb_selection_notify_event_t&>(event));
    } else if (type == XCB_PROPERTY_NOTIFY) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        const bool written = change.state == XCB_PROPERTY_NEW_VALUE;
        if (written && change.window == window_ && change.atom == property_) newValue_ = true;
        if (written && change.window != window_) noteLateAnswer();
    } else if (type == firstXfixesEvent_ + XCB_XFIXES_SELECTION_NOTIFY) {
        noteOwner(event.full_sequence);
    }
}

void SelectionReader::noteAnswer(const xcb_selection_notify_event_t& event) {
    if (open_ && event.requestor == window_) {
        if (event.target == target_) answer_ = event.property;
        return;
    }
    // A late answer is complete; destroying its window frees it.
    const auto late = std::find(retired_.begin(), retired_.end(), event.requestor);
    if (late == retired_.end()) return;
    xcb_destroy_window(connection_->get(), *late);
    retired_.erase(late);
    noteLateAnswer();
}

/// What a slow owner gave too late, it may give in time when it is asked again.
void SelectionReader::noteLateAnswer() {
    if (!silent()) return;
    silence_ = {};
    host_.changed();
}

/// An owner that was replaced or is gone answers no more, or with content that is no longer on the
/// clipboard. If the change came before the server had the question, the question went to the new
/// owner.
void SelectionReader::noteOwner(std::uint32_t sequence) {
    silence_ = {};
    host_.changed();
    const bool sinceQuestion = static_cast<std::int32_t>(sequence - question_) >= 0;
    if (open_ && sinceQuestion) overtaken_ = true;
}

template <typename Done>
bool SelectionReader::waitForOwner(Done done) {
    const auto start = std::chrono::steady_clock::now();
    if (waitUntil(start + host_.limits.patience - silence_, done)) {
        silence_ += std::chrono::steady_clock::now() - start;
        return true;
    }
    // An answer that comes now is a late one.
    if (!overtaken_) {
        silence_ = host_.limits.patience;
        retireWindow();
        open_ = false;
    }
    return false;
}

template <typename Done>
bool SelectionReader::waitUntil(Bell::Time deadline, Done done) {
    for (;;) {
        handleEvents();
        if (!connection_->alive() || host_.stop.stop_requested()) return false;
        if (done()) return true;
        if ((open_ && overtaken_) || std::chrono::steady_clock::now() >= deadline) return false;
        connection_->sleep(host_.bell, deadline);
    }
}

template <typename Reply>
XcbPointer<Reply> SelectionReader::reply(unsigned sequence) {
    void* answer = nullptr;
    xcb_generic_error_t* error = nullptr;
    const bool arrived = waitUntil(std::chrono::steady_clock::now() + host_.limits.patience, [&] {
        return xcb_poll_for_reply(connection_->get(), sequence, &answer, &error) != 0;
    });
    if (!arrived) xcb_discard_reply(connection_->get(), sequence);
    std::free(error); // NOLINT: xcb hands out malloc'd
    return XcbPointer<Reply>{static_cast<Reply*>(answer)};
}

} // namespace quillon
