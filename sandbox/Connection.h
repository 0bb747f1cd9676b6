// Serves the requests of one connection, one after the other, and carries out faults.
#pragma once

#include "sandbox/Backend.h"
#include "sandbox/Channel.h"
#include "sandbox/RequestReader.h"

#include <string>

namespace quillon::sandbox {

class Connection {
public:
    Connection(Channel& channel, Backend& backend, int number)
        : channel_{channel},
          backend_{backend},
          reader_{channel},
          number_{number} {}

    /// Returns when the connection has ended.
    void run();

private:
    bool exchange();
    bool answerWithFault(HttpRequest& request, const Fault& fault);
    bool refuse(RequestReader::Outcome outcome);
    bool send(const HttpReply& reply) { return channel_.write(onTheWire(reply)); }
    void sendPart(const HttpReply& reply);
    bool trickle(const HttpReply& reply, std::chrono::milliseconds pause);
    std::string onTheWire(const HttpReply& reply) const;
    bool pause(std::chrono::milliseconds duration);

    Channel& channel_;
    Backend& backend_;
    RequestReader reader_;
    int number_;
    bool closing_ = false;
    bool broken_ = false;
};

} // namespace quillon::sandbox
