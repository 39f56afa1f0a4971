// Timers.
#pragma once

#include <memory>
#include <string>

#include "adapters/standin/EventSource.h"
#include "adapters/standin/declarations/DecalInput.h"
#include "host/Timer.h"

namespace ombrel::standin {

// A timer is known by its tag.
class Timer final : public SourceObject<IDecalTimer> {
public:
    explicit Timer(std::unique_ptr<host::Timer> timer);

    STDMETHOD(Start)(long milliseconds) override;
    STDMETHOD(Stop)() override;
    STDMETHOD(get_Tag)(VARIANT* tag) override;
    STDMETHOD(put_Tag)(VARIANT tag) override;
    STDMETHOD(get_Running)(VARIANT_BOOL* running) override;

private:
    std::unique_ptr<host::Timer> timer_;
    std::string tag_;
};

}  // namespace ombrel::standin
