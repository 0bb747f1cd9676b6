#include "Fuzz.h"

#include "state/Config.h"

// Whatever is read as settings is written and read again as the same settings.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (const auto config = quillon::decodeConfig(fuzzText(data, size))) {
        require(quillon::decodeConfig(quillon::encodeConfig(*config)) == config);
    }
    return 0;
}
