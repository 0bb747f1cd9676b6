#pragma once

// The XKB extension's functions. Their C header names a member by a word that C++ keeps for itself;
// nothing else may be included while that word means something else.
#include <xcb/xcb.h>

#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
