#pragma once

#include "base/LateLibrary.h"

#include <gio/gio.h>

/// The settings of GNOME, which only its own sessions need. In a namespace of their own, since the
/// keyring has some of these functions from another library.
namespace quillon::gio {

inline constinit const LateLibrary library{QUILLON_GIO};

QUILLON_LATE(library, g_bus_get_sync);
QUILLON_LATE(library, g_dbus_connection_set_exit_on_close);
QUILLON_LATE(library, g_object_unref);
QUILLON_LATE(library, g_settings_get_value);
QUILLON_LATE(library, g_settings_new_full);
QUILLON_LATE(library, g_settings_reset);
QUILLON_LATE(library, g_settings_schema_get_key);
QUILLON_LATE(library, g_settings_schema_has_key);
QUILLON_LATE(library, g_settings_schema_key_get_value_type);
QUILLON_LATE(library, g_settings_schema_key_unref);
QUILLON_LATE(library, g_settings_schema_list_keys);
QUILLON_LATE(library, g_settings_schema_source_get_default);
QUILLON_LATE(library, g_settings_schema_source_lookup);
QUILLON_LATE(library, g_settings_schema_unref);
QUILLON_LATE(library, g_settings_set_value);
QUILLON_LATE(library, g_settings_sync);

} // namespace quillon::gio
