#include "Fuzz.h"

#include "analytics/EventQueue.h"

// Whatever is read as a queue keeps to the limit, and is written and read again as the same queue.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using quillon::EventQueue;
    const EventQueue queue = EventQueue::decode(fuzzText(data, size));
    require(queue.size() <= EventQueue::limit);
    const EventQueue again = EventQueue::decode(queue.encode());
    require(again.encode() == queue.encode());
    return 0;
}
