#pragma once

#include "doctor/Facts.h"

#include <QCoroTask>

namespace quillon {

class Store;
class Surroundings;
struct Platform;

/// Looks at everything that the program lives on, much of it side by side. Changes nothing, shows
/// nothing to anybody and asks the user nothing: a keyring that is locked stays so. Each look has a
/// limit, so that all end within 10 seconds, whatever hangs. All of the objects outlive it; `stays`
/// tells whether this is the program that stays, whose clipboard and shortcut are looked at.
[[nodiscard]] QCoro::Task<Facts> examine(Platform& platform, Store& store,
                                         const Surroundings& surroundings, bool stays);

} // namespace quillon
