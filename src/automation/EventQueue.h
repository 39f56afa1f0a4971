// Item actions that wait until the character is in peace mode and idle, and stay until the world shows their effect.
//
// Nothing counts tries: an entry leaves the queue when the item is gone or the stack has another size, or with Clear.
// Queue only what uses something up.
#pragma once

#include <cstdint>
#include <deque>
#include <string>

#include "automation/EventItem.h"
#include "core/Ref.h"
#include "host/Timer.h"
#include "host/Types.h"

namespace ombrel {

class EventQueue {
public:
    // Kinds of action, and when they are done: an item is gone, or the stack of arg2 or of arg1 has changed.
    static constexpr std::int32_t kUseItem = 1;
    static constexpr std::int32_t kUseItemOnStack = 2;
    static constexpr std::int32_t kUseStackOnItem = 3;

    EventQueue();
    ~EventQueue();
    EventQueue(const EventQueue&) = delete;
    EventQueue& operator=(const EventQueue&) = delete;

    // Queues an action, unless one of the same kind on the same items waits already.
    void Add(std::int32_t eventtype, host::Id arg1, host::Id arg2, std::int32_t arg3);
    void AddByName(std::int32_t eventtype, const std::string& name1, const std::string& name2);
    void Run();
    void Clear();

    void EventTimer_Timeout();

    bool autorun = false;      // runs as soon as something is added
    std::int32_t running = 0;  // 0 idle and empty, 1 holding entries, 2 at work
    Owned<host::Timer> EventTimer;

private:
    void Append(const EventItem& event);
    void HandleEvents();
    void HandleEvent(const EventItem& event, bool standing);
    bool Ready(bool showMessage);

    std::deque<EventItem> events_;
    bool overflowed_ = false;     // the player knows that events were lost
    bool message_shown_ = false;  // this wait has shown the peace-mode message
    bool waiting_ = false;        // an action was sent, and the character isn't free yet
};

}  // namespace ombrel
