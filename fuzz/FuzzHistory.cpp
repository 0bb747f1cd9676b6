#include "Fuzz.h"

#include "state/Sent.h"

#include <algorithm>

// Whatever is read as history is written as at most 30 entries that read the same but for the date,
// whose last bits the change of the reference date may cost.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto history = quillon::decodeHistory(fuzzText(data, size));
    const auto again = quillon::decodeHistory(quillon::encodeHistory(history));
    require(again.size() == std::min(history.size(), quillon::historyLimit));
    for (std::size_t index = 0; index < again.size(); ++index) {
        require(again[index].id == history[index].id && again[index].error == history[index].error);
    }
    return 0;
}
