// The groups as the user's phone shows them.
#pragma once

#include "sandbox/Json.h"
#include "sandbox/World.h"

#include <string>

namespace quillon::sandbox {

/// {"groups":[{"id","title","type","is_forum","topics":[{"id","name","icon_color","messages":[…]}]}]}
/// The General topic has the id 0. A message has "id", "from" ("user" or "bot"), "kind" and, as far
/// as they apply, "text", "pre" (the texts of its pre blocks), "caption", "filename", "mime",
/// "size", "sha256", "width" and "height".
Json viewJson(const World& world);

/// The same as readable text: pre blocks behind a bar, one line per photo and document.
std::string viewText(const World& world);

} // namespace quillon::sandbox
