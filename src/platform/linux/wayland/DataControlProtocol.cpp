#include "platform/linux/wayland/DataControlProtocol.h"

namespace quillon {

namespace {

/// For arguments that are no objects, and for objects whose kind is not checked.
const wl_interface* untyped[2] = {};

/// The objects of one protocol. Signatures are libwayland's: n is a new object, o an object (?o may
/// be null), s a text, h a descriptor.
class Objects {
public:
    Objects(const char* managerName, const char* deviceName, const char* offerName,
            int managerVersion)
        : manager_{managerName, managerVersion, 3, managerRequests_, 0, nullptr},
          device_{deviceName, managerVersion, 3, deviceRequests_, 4, deviceEvents_},
          offer_{offerName, managerVersion, 2, offerRequests_, 1, offerEvents_} {}
    Objects(const Objects&) = delete;
    Objects& operator=(const Objects&) = delete;

    [[nodiscard]] DataControlProtocol protocol(ClipboardWay way) const {
        return {way, std::uint32_t(manager_.version), &manager_, &device_, &offer_};
    }

private:
    const wl_interface* newDevice_[2] = {&device_, nullptr};
    const wl_interface* anOffer_[1] = {&offer_};
    wl_message managerRequests_[3] = {{"create_data_source", "n", untyped},
                                      {"get_data_device", "no", newDevice_},
                                      {"destroy", "", nullptr}};
    wl_message deviceRequests_[3] = {{"set_selection", "?o", untyped},
                                     {"destroy", "", nullptr},
                                     {"set_primary_selection", "?o", untyped}};
    wl_message deviceEvents_[4] = {{"data_offer", "n", anOffer_},
                                   {"selection", "?o", anOffer_},
                                   {"finished", "", nullptr},
                                   {"primary_selection", "?o", anOffer_}};
    wl_message offerRequests_[2] = {{"receive", "sh", untyped}, {"destroy", "", nullptr}};
    wl_message offerEvents_[1] = {{"offer", "s", untyped}};
    wl_interface manager_;
    wl_interface device_;
    wl_interface offer_;
};

} // namespace

const DataControlProtocol& extDataControl() {
    static const Objects objects{"ext_data_control_manager_v1", "ext_data_control_device_v1",
                                 "ext_data_control_offer_v1", 1};
    static const DataControlProtocol protocol = objects.protocol(ClipboardWay::extDataControl);
    return protocol;
}

const DataControlProtocol& wlrDataControl() {
    static const Objects objects{"zwlr_data_control_manager_v1", "zwlr_data_control_device_v1",
                                 "zwlr_data_control_offer_v1", 2};
    static const DataControlProtocol protocol = objects.protocol(ClipboardWay::wlrDataControl);
    return protocol;
}

} // namespace quillon
