#include "base/ThisMachine.h"

#include <gtest/gtest.h>

namespace quillon::test {

TEST(ThisMachineTest, IsLocalhostAndTheLoopbackAddressesAlone) {
    for (const char* host : {"localhost", "127.0.0.1", "127.255.0.3", "::1", "[::1]"})
        EXPECT_TRUE(isThisMachine(host)) << host;
    for (const char* host :
         {"", "128.0.0.1", "126.255.255.255", "0.0.0.0", "192.0.2.1", "localhost.",
          "localhost.evil.example", "127.0.0.1.", "127.0.0.1.evil.example", "127.1",
          "::", "::ffff:127.0.0.1", "[::ffff:127.0.0.1]", "[127.0.0.1]", "[::1", "127.0.0.1:80"})
        EXPECT_FALSE(isThisMachine(host)) << host;
}

} // namespace quillon::test
