#pragma once

namespace quillon {

/// Lets the desktop's portal see which program is calling, for as long as this lives. Before it
/// answers the first call of a connection, it looks into /proc/PID/root of the caller, which the
/// kernel shows to none of the user's programs while a process keeps out of core dumps; it then
/// refuses everything. Core files stay forbidden meanwhile. Main thread only.
class OpenToPortals {
public:
    OpenToPortals();
    OpenToPortals(const OpenToPortals&) = delete;
    OpenToPortals& operator=(const OpenToPortals&) = delete;
    ~OpenToPortals();
};

} // namespace quillon
