#pragma once

#include <chrono>

namespace quillon {

/// False when there is a session bus that does not greet who comes within `patience`: whoever asks
/// it for anything would wait for minutes. Call it while the process has one thread, and no
/// application object. Takes some milliseconds where the bus is well.
[[nodiscard]] bool sessionBusAnswers(std::chrono::milliseconds patience);

/// Has this process go on as where there is no session bus.
void doWithoutSessionBus();

} // namespace quillon
