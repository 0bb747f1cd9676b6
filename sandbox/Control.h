// The pages under /sandbox/ with which scripts inspect and control the sandbox.
#pragma once

#include "sandbox/Http.h"

namespace quillon::sandbox {

class Backend;

/// Answers with JSON (the view also as text): 404 for an unknown page, 400 with {"error":…} for
/// parameters it cannot use. Control.cpp lists what each page takes.
HttpReply serveControl(Backend& backend, const HttpRequest& request);

} // namespace quillon::sandbox
