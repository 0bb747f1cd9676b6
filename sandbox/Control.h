// The pages under /sandbox/ by which scripts look into the sandbox and steer it.
#pragma once

#include "sandbox/Http.h"

namespace quillon::sandbox {

class Backend;

/// Answers with JSON (the view also as text): 404 for an unknown page, 400 with {"error":…} for
/// parameters it cannot use. What each page takes is listed in Control.cpp.
HttpReply serveControl(Backend& backend, const HttpRequest& request);

} // namespace quillon::sandbox
