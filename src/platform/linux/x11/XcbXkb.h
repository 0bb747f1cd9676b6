#pragma once

// The XKB extension's functions. Their C header has a member named "explicit", a keyword of C++,
// which is renamed during that one include.
#include <xcb/xcb.h>

#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
