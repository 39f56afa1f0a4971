// Item actions that wait until the character is in peace mode and idle, and stay until the world shows their effect.
#pragma once

#include <cstdint>

namespace ombrel {

class EventQueue {
public:
    EventQueue();
    ~EventQueue();
    EventQueue(const EventQueue&) = delete;
    EventQueue& operator=(const EventQueue&) = delete;

    void Run();

    bool autorun = false;       // runs as soon as something is added
    std::int32_t running = 0;   // 0 idle and empty, 1 holding entries, 2 at work
};

}  // namespace ombrel
