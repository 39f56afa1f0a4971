#include "automation/EventQueue.h"

#include <fmt/format.h>

#include <algorithm>

#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"
#include "host/Plugin.h"

namespace ombrel {
namespace {

constexpr std::int32_t kBeat = 200;       // milliseconds, with entries to work on
constexpr std::int32_t kIdleBeat = 3000;  // with none, while the character is busy
constexpr std::int32_t kPeaceMode = 1;
constexpr std::size_t kMost = 10'000;  // entries

bool IsKnown(std::int32_t eventtype) {
    return eventtype >= EventQueue::kUseItem && eventtype <= EventQueue::kUseStackOnItem;
}

}  // namespace

EventQueue::EventQueue() {
    try {
        wtcw_debug("Event Queue Init");
        EventTimer = Vars::Site->CreateTimer("EventQueue.EventTimer");
        EventTimer->Timeout = [this] { EventTimer_Timeout(); };
    } catch (...) {
        ReportFailure("Class_Initialize", "EventQueue");
    }
}

EventQueue::~EventQueue() { wtcw_debug("Event Queue Terminate"); }

void EventQueue::Add(std::int32_t eventtype, host::Id arg1, host::Id arg2, std::int32_t arg3) try {
    const bool queued = std::any_of(events_.begin(), events_.end(), [&](const EventItem& event) {
        return event.eventtype == eventtype && event.arg1 == arg1 && event.arg2 == arg2;
    });
    if (queued) return;

    if (Vars::DebugMode) wtcw_debug(fmt::format("Adding Event: {} {} {} {}", eventtype, arg1, arg2, arg3));
    if (IsKnown(eventtype)) {
        const std::string name = Vars::FilterHandler->GetName(eventtype == kUseItemOnStack ? arg2 : arg1);
        wtcw("Adding " + name + " to the event queue. <Tell:IIDString:463072:[Ombrel]>Run queued events.<\\Tell>");
    }
    Append({eventtype, arg1, arg2, arg3});
    if (autorun) {
        running = 2;
        EventTimer->Start(kBeat);
    } else if (running == 0) {
        running = 1;
    }
} catch (...) {
    ReportFailure("Add", "EventQueue");
}

// What nobody works off does not grow for ever: the oldest goes.
void EventQueue::Append(const EventItem& event) {
    events_.push_back(event);
    if (events_.size() <= kMost) return;
    events_.pop_front();
    if (!overflowed_) wtcw_error("The event queue is full: its oldest events are lost.");
    overflowed_ = true;
}

void EventQueue::AddByName(std::int32_t eventtype, const std::string& name1, const std::string& name2) try {
    if (Vars::DebugMode) wtcw_debug(fmt::format("AddByName {} {} {}", eventtype, name1, name2));
    auto& filter = *Vars::FilterHandler;
    const host::Id arg1 = filter.GetID(name1);
    const host::Id arg2 = arg1 == -1 ? -1 : filter.GetID(name2);
    if (arg1 == -1 || arg2 == -1) {
        wtcw("Warning: You have no " + (arg1 == -1 ? name1 : name2));
        return;
    }
    std::int32_t arg3 = 0;
    if (eventtype == kUseItemOnStack) arg3 = filter.GetItemStackCount(arg2);
    if (eventtype == kUseStackOnItem) arg3 = filter.GetItemStackCount(arg1);
    Add(eventtype, arg1, arg2, arg3);
} catch (...) {
    ReportFailure("AddByName", "EventQueue");
}

void EventQueue::Run() try {
    wtcw_debug("Event Queue Run");
    running = 2;
    EventTimer->Start(kBeat);
} catch (...) {
    ReportFailure("Run", "EventQueue");
}

// The timer stops itself at its next tick.
void EventQueue::Clear() try {
    wtcw_debug("Event Queue Clear");
    events_.clear();
    running = 0;
} catch (...) {
    ReportFailure("Clear", "EventQueue");
}

void EventQueue::EventTimer_Timeout() try {
    if (waiting_) {
        waiting_ = !Ready(false);
    } else if (!events_.empty()) {
        HandleEvents();
    } else if (Ready(false)) {
        EventTimer->Stop();
        running = 0;
    } else {
        EventTimer->Start(kIdleBeat);
    }
} catch (...) {
    ReportFailure("EventTimer_Timeout", "EventQueue");
}

void EventQueue::HandleEvents() try {
    const EventItem event = events_.front();
    auto& filter = *Vars::FilterHandler;
    const auto both_exist = [&] { return filter.ItemExists(event.arg1) && filter.ItemExists(event.arg2); };
    switch (event.eventtype) {
        case kUseItem:
            wtcw_debug("Handling EVENT_USE_ITEM");
            return HandleEvent(event, both_exist());
        case kUseItemOnStack:
            wtcw_debug("Handling EVENT_USE_ITEM_ON_STACK");
            return HandleEvent(event, both_exist() && filter.GetItemStackCount(event.arg2) == event.arg3);
        case kUseStackOnItem: {
            const std::int32_t stack = filter.GetItemStackCount(event.arg1);
            wtcw_debug("Handling EVENT_USE_STACK_ON_ITEM, StackCount: " + NumberText(stack));
            return HandleEvent(event, both_exist() && stack == event.arg3);
        }
        default:
            return;  // stays at the head
    }
} catch (...) {
    ReportFailure("HandleEvents", "EventQueue");
}

// The entry stays at the head until a later pass sees its effect.
void EventQueue::HandleEvent(const EventItem& event, bool standing) {
    if (!standing) {
        wtcw_debug("Removing " + NumberText(event.eventtype));
        events_.pop_front();
    } else if (Ready(true)) {
        wtcw_debug("Applying Item");
        Vars::FilterHandler->ApplyItem(event.arg1, event.arg2);
        waiting_ = true;
    }
}

bool EventQueue::Ready(bool showMessage) try {
    auto& filter = *Vars::FilterHandler;
    const std::int32_t combat = filter.GetCombatMode();
    const std::int32_t busy = filter.GetBusyState();
    const bool ready = combat == kPeaceMode && busy == 0;
    if (ready) {
        message_shown_ = false;
    } else if (showMessage && !message_shown_) {
        wtcw("Please enter peace mode to continue handling the queued events.");
        message_shown_ = true;
    }
    if (Vars::DebugMode)
        wtcw_debug(fmt::format("Ready Check: {} {} {} {}", BoolText(ready), combat, busy, filter.GetPointerState()));
    return ready;
} catch (...) {
    ReportFailure("Ready", "EventQueue");
    return false;
}

}  // namespace ombrel
