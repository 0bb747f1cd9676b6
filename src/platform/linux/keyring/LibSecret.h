#pragma once

#include "base/LateLibrary.h"

#include <gio/gio.h>
#include <libsecret/secret.h>

namespace quillon {

/// The keyring's client, which is needed when a token is read or kept. It depends on eight
/// libraries, GLib's object system and D-Bus among them.
inline constinit const LateLibrary libsecret{QUILLON_LIBSECRET};

QUILLON_LATE(libsecret, secret_attributes_build);
QUILLON_LATE(libsecret, secret_collection_for_alias);
QUILLON_LATE(libsecret, secret_collection_for_alias_finish);
QUILLON_LATE(libsecret, secret_collection_get_locked);
QUILLON_LATE(libsecret, secret_item_delete);
QUILLON_LATE(libsecret, secret_item_delete_finish);
QUILLON_LATE(libsecret, secret_item_get_locked);
QUILLON_LATE(libsecret, secret_item_get_secret);
QUILLON_LATE(libsecret, secret_item_get_type);
QUILLON_LATE(libsecret, secret_item_load_secret);
QUILLON_LATE(libsecret, secret_item_load_secret_finish);
QUILLON_LATE(libsecret, secret_service_get_type);
QUILLON_LATE(libsecret, secret_service_open);
QUILLON_LATE(libsecret, secret_service_open_finish);
QUILLON_LATE(libsecret, secret_service_search);
QUILLON_LATE(libsecret, secret_service_search_finish);
QUILLON_LATE(libsecret, secret_service_store);
QUILLON_LATE(libsecret, secret_service_store_finish);
QUILLON_LATE(libsecret, secret_service_unlock);
QUILLON_LATE(libsecret, secret_service_unlock_finish);
QUILLON_LATE(libsecret, secret_value_get);
QUILLON_LATE(libsecret, secret_value_new);
QUILLON_LATE(libsecret, secret_value_unref);

// Of the libraries that it depends on. GLib itself is part of Qt's event loop, and so linked.
QUILLON_LATE(libsecret, g_async_result_get_type);
QUILLON_LATE(libsecret, g_bus_get);
QUILLON_LATE(libsecret, g_bus_get_finish);
QUILLON_LATE(libsecret, g_cancellable_cancel);
QUILLON_LATE(libsecret, g_cancellable_new);
QUILLON_LATE(libsecret, g_dbus_connection_set_exit_on_close);
QUILLON_LATE(libsecret, g_object_ref);
QUILLON_LATE(libsecret, g_object_unref);
QUILLON_LATE(libsecret, g_type_check_instance_cast);

} // namespace quillon
