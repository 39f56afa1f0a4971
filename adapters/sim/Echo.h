// The echo of game messages, as a plug-in gets it.
#pragma once

#include "adapters/sim/Client.h"
#include "host/EchoFilter2.h"

namespace ombrel::sim {

class SimEcho final : public host::EchoFilter2 {
public:
    explicit SimEcho(Client& client) : place_(client.echo_objects_, *this) {}

private:
    Copies<SimEcho>::Place place_;
};

}  // namespace ombrel::sim
