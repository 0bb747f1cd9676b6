#pragma once

#include "cli/Commands.h"

namespace quillon {

/// Prints a line for each thing that the program lives on, or with "--json" an object; with
/// "--names" the names of group, bot and topics as well. Fails when something that a send needs
/// does not work.
[[nodiscard]] QCoro::Task<int> runDoctor(CommandContext context, Arguments arguments);

} // namespace quillon
