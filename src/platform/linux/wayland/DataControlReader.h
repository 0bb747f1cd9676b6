#pragma once

#include "platform/linux/files/Descriptor.h"
#include "platform/linux/pasteboard/ClipboardReader.h"
#include "platform/linux/wayland/DataControlProtocol.h"
#include "platform/linux/wayland/Intake.h"
#include "platform/linux/wayland/Proxy.h"
#include "platform/linux/wayland/WaylandConnection.h"

namespace quillon {

/// Reads the clipboard of a Wayland compositor, whoever has the focus, by data-control: ext, else
/// wlr. Formats are media types, and names that programs of X11 offer through Xwayland. The
/// compositor tells of each change by itself; owners write into a pipe.
class DataControlReader final : public ClipboardReader {
public:
    /// Null if no compositor listens at `display` (null: what $WAYLAND_DISPLAY names), or it lets
    /// nobody read the clipboard. One that does not answer within the limits' patience may do so
    /// later: until then, way() is none.
    [[nodiscard]] static std::unique_ptr<DataControlReader> open(const char* display,
                                                                 const ReaderHost& host);

    ~DataControlReader() override;

    [[nodiscard]] ClipboardWay way() const override;
    [[nodiscard]] bool alive() const override;
    [[nodiscard]] std::vector<std::string> formats() override;
    [[nodiscard]] std::optional<QByteArray> data(const std::string& format) override;
    void handleEvents() override;
    void sleep() override;

private:
    class Offer;
    struct Events;
    /// Something that the compositor has told of, by its number there.
    struct Global {
        std::uint32_t name = 0;
        std::uint32_t version = 0; ///< 0 if it has told of none
    };

    DataControlReader(std::unique_ptr<WaylandConnection> connection, ReaderHost host);
    void noteGlobal(std::string_view interface, Global global);
    void bindDevice();
    [[nodiscard]] ProxyPointer bind(Global global, const wl_interface* interface,
                                    std::uint32_t version);
    void takeSelection(wl_proxy* offer);
    [[nodiscard]] std::unique_ptr<Offer> takeNewOffer(wl_proxy* proxy);
    void sync(std::function<void()> then);

    [[nodiscard]] std::optional<QByteArray> receive(Intake& intake);
    [[nodiscard]] std::optional<QByteArray> finished(Intake& intake);
    void noteLateAnswer();

    [[nodiscard]] bool silent() const { return silence_ >= host_.limits.patience; }
    /// Both wait for what the connection and `watched` bring; false when it does not come in time,
    /// or never will.
    template <typename Done>
    bool waitForOwner(int watched, Done done);
    template <typename Done>
    bool waitUntil(Bell::Time deadline, int watched, Done done);

    std::unique_ptr<WaylandConnection> connection_; ///< outlives all objects on it
    ReaderHost host_;
    ProxyPointer registry_;
    ProxyPointer callback_; ///< of the newest sync
    std::function<void()> synced_;
    Global seatGlobal_;
    Global extGlobal_;
    Global wlrGlobal_;
    ProxyPointer seat_;
    ProxyPointer manager_;
    ProxyPointer device_;
    const DataControlProtocol* protocol_ = nullptr; ///< null until the device was asked for
    bool ready_ = false;                            ///< the device has told what is copied
    bool refused_ = false;                          ///< there is no device, or no more

    std::vector<std::unique_ptr<Offer>> newOffers_; ///< it is not yet known what they are for
    std::unique_ptr<Offer> selection_;              ///< null when nothing is copied
    bool overtaken_ = false;                        ///< the selection changed since the question
    /// How long this reading has waited for the owner since its last byte.
    std::chrono::steady_clock::duration silence_{};
    std::optional<Intake> late_; ///< of a silent owner, which may answer after all
};

} // namespace quillon
