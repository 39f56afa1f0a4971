// The virtual clock: it moves only when it is told to, and fires what falls due on the way.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/Timer.h"

namespace ombrel::sim {

using std::chrono::milliseconds;

class Clock;
class Calls;

// A timer on the virtual clock. It leaves the clock when it goes.
class SimTimer final : public host::Timer {
public:
    SimTimer(Clock& clock, Calls& calls, std::string name);
    ~SimTimer() override;

    // A wait of less than a millisecond is one millisecond: the clock could never get past it otherwise.
    void Start(std::int32_t wait) override;
    void Stop() override;
    bool Running() const override;

    const std::string& name() const { return name_; }
    void Rename(std::string name) { name_ = std::move(name); }
    std::int32_t interval() const { return interval_; }

private:
    friend class Clock;
    Clock* clock_;  // none once the clock has gone
    Calls& calls_;
    std::string name_;
    bool running_ = false;
    std::int32_t interval_ = 0;
    std::int64_t due_ = 0;       // milliseconds since the session's start
    std::uint64_t started_ = 0;  // order of the last start: timers due at one moment fire in it
};

class Clock {
public:
    Clock() = default;
    ~Clock();
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;

    // Milliseconds since the session's start.
    std::int64_t now() const { return now_; }

    // Milliseconds since 1 January 1970, universal time, as the player's clock says.
    std::int64_t universal() const { return epoch_ + now_ + shift_; }
    void SetEpoch(std::int64_t moment) { epoch_ = moment; }  // the moment of the session's start
    void Shift(std::int64_t by) { shift_ += by; }            // the player's clock jumps; no timer notices

    // Runs to a moment that is not behind, and fires each timer that falls due on the way or exactly there.
    void AdvanceTo(std::int64_t moment);
    void Advance(milliseconds time) { AdvanceTo(now_ + time.count()); }

    // The client hangs: time passes, no timer fires, then each that fell due fires once. Its next wait ends when it
    // would have ended without the hang.
    void Stall(milliseconds time);

    // Has something happen once, when the wait is over: an answer of the server, say. It takes its turn among the
    // timers, and a client that hangs hears of it late, as of them.
    void After(milliseconds wait, std::function<void()> action);

    // Running timers, in the order of their last start.
    std::vector<const SimTimer*> Running() const;

private:
    friend class SimTimer;

    struct Happening {
        std::int64_t due;
        std::uint64_t started;
        std::function<void()> action;
    };

    // Of the timers that are due by then, the one that fires first.
    SimTimer* NextDue(std::int64_t moment) const;
    static void Fire(SimTimer& timer);
    // Lets happen what is due by then, and before the timer where there is one. False when nothing is.
    bool HappenNext(std::int64_t moment, const SimTimer* timer);

    std::int64_t now_ = 0;
    std::int64_t epoch_ = 1141560000000;  // 2006-03-05T12:00:00Z
    std::int64_t shift_ = 0;
    std::uint64_t starts_ = 0;
    std::vector<SimTimer*> timers_;
    std::vector<Happening> happenings_;
};

}  // namespace ombrel::sim
