#include "adapters/sim/Clock.h"

#include <algorithm>
#include <stdexcept>
#include <tuple>
#include <utility>

#include "adapters/sim/Calls.h"

namespace ombrel::sim {

SimTimer::SimTimer(Clock& clock, Calls& calls, std::string name)
    : clock_(&clock), calls_(calls), name_(std::move(name)) {
    clock.timers_.push_back(this);
}

SimTimer::~SimTimer() {
    if (clock_) std::erase(clock_->timers_, this);
}

void SimTimer::Start(std::int32_t wait) {
    calls_.Note("Timer.Start"_op, {{"name", name_}, {"milliseconds", wait}});
    running_ = true;
    interval_ = std::max(wait, 1);
    due_ = clock_->now_ + interval_;
    started_ = ++clock_->starts_;
}

void SimTimer::Stop() {
    calls_.Note("Timer.Stop"_op, {{"name", name_}});
    running_ = false;
}

bool SimTimer::Running() const {
    calls_.Note("Timer.Running"_op);
    return running_;
}

Clock::~Clock() {
    for (SimTimer* timer : timers_) timer->clock_ = nullptr;
}

void Clock::AdvanceTo(std::int64_t moment) {
    if (moment < now_) throw std::invalid_argument("the clock can't run backwards");
    while (true) {
        SimTimer* timer = NextDue(moment);
        if (HappenNext(moment, timer)) continue;
        if (!timer) break;
        now_ = std::max(now_, timer->due_);
        timer->due_ += timer->interval_;
        Fire(*timer);
    }
    now_ = std::max(now_, moment);
}

void Clock::Stall(milliseconds time) {
    if (time.count() < 0) throw std::invalid_argument("the clock can't run backwards");
    now_ += time.count();
    while (true) {
        SimTimer* timer = NextDue(now_);
        if (HappenNext(now_, timer)) continue;
        if (!timer) break;
        const std::int64_t waits = (now_ - timer->due_) / timer->interval_ + 1;
        timer->due_ += waits * timer->interval_;
        Fire(*timer);
    }
}

void Clock::After(milliseconds wait, std::function<void()> action) {
    happenings_.push_back({now_ + wait.count(), ++starts_, std::move(action)});
}

std::vector<const SimTimer*> Clock::Running() const {
    std::vector<const SimTimer*> running;
    std::ranges::copy_if(timers_, std::back_inserter(running), &SimTimer::running_);
    std::ranges::sort(running, {}, &SimTimer::started_);
    return running;
}

SimTimer* Clock::NextDue(std::int64_t moment) const {
    SimTimer* next = nullptr;
    for (SimTimer* timer : timers_) {
        if (!timer->running_ || timer->due_ > moment) continue;
        if (!next || std::tie(timer->due_, timer->started_) < std::tie(next->due_, next->started_)) next = timer;
    }
    return next;
}

bool Clock::HappenNext(std::int64_t moment, const SimTimer* timer) {
    const auto order = [](const Happening& happening) { return std::tie(happening.due, happening.started); };
    const auto next = std::ranges::min_element(happenings_, {}, order);
    if (next == happenings_.end() || next->due > moment) return false;
    if (timer && std::tie(timer->due_, timer->started_) < order(*next)) return false;
    now_ = std::max(now_, next->due);
    const auto action = std::move(next->action);
    happenings_.erase(next);
    action();
    return true;
}

// The timer may go in its own timeout, so what is called is a copy.
void Clock::Fire(SimTimer& timer) {
    if (const auto timeout = timer.Timeout) timeout();
}

}  // namespace ombrel::sim
