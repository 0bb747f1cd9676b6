#include "Fuzz.h"

#include "state/LastSend.h"

// Whatever is read as what undo needs is within its limits, and is written as what reads the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto record = quillon::decodeUndo(fuzzText(data, size));
    require(record.last.count() <= quillon::lastSendLimit);
    require(record.takenBack.size() <= quillon::historyLimit);
    require(quillon::decodeUndo(quillon::encodeUndo(record)) == record);
    return 0;
}
