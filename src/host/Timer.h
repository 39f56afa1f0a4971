// A timer of the framework.
#pragma once

#include <cstdint>
#include <functional>

namespace ombrel::host {

// Fires on the client's thread, between other events, until it is stopped. A timer that goes away never fires again.
class Timer {
public:
    virtual ~Timer() = default;

    // Starts the timer, or starts its wait anew when it runs already.
    virtual void Start(std::int32_t milliseconds) = 0;

    // Does nothing on a stopped timer.
    virtual void Stop() = 0;

    virtual bool Running() const = 0;

    std::function<void()> Timeout;
};

}  // namespace ombrel::host
