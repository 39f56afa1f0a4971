// Timers of the framework.
#pragma once

#include "adapters/decal/Com.h"
#include "adapters/decal/EventSink.h"
#include "adapters/decal/interfaces/DecalInput.h"
#include "host/Timer.h"

namespace ombrel::decal {

class DecalTimer final : public host::Timer {
public:
    // The name goes into the timer's tag.
    explicit DecalTimer(std::string_view name);

    void Start(std::int32_t milliseconds) override;
    void Stop() override;
    bool Running() const override;

private:
    Com<IDecalTimer> timer_;
    Events events_;
};

}  // namespace ombrel::decal
