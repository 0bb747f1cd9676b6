#include "base/ThisMachine.h"

#include <arpa/inet.h>

#include <string>

namespace quillon {

bool isThisMachine(std::string_view host) {
    if (host == "localhost" || host == "::1" || host == "[::1]") return true;
    in_addr address{};
    return ::inet_pton(AF_INET, std::string{host}.c_str(), &address) == 1 &&
           ntohl(address.s_addr) >> 24 == IN_LOOPBACKNET;
}

} // namespace quillon
