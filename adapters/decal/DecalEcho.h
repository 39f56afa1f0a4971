// The echo of decoded messages.
#pragma once

#include "adapters/decal/Com.h"
#include "adapters/decal/EventSink.h"
#include "adapters/decal/interfaces/DecalFilters.h"
#include "adapters/decal/interfaces/DecalNet.h"
#include "host/EchoFilter2.h"

namespace ombrel::decal {

class DecalEcho final : public host::EchoFilter2 {
public:
    explicit DecalEcho(Com<IEcho2> echo);

private:
    Events::Table Handlers();

    Com<IEcho2> echo_;
    Events events_;
};

}  // namespace ombrel::decal
