// What the plug-in does to the framework's objects, and how the framework treats the plug-in.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <unordered_map>

namespace ombrel::standin {

// The framework is one in its process, as the real one is.
struct Ledger {
    std::uint64_t calls = 0;          // of any slot of any object, counted references apart
    std::uint64_t not_offered = 0;    // of slots that nothing stands behind
    std::uint64_t eaten_echoes = 0;   // of the plug-in's own lines, which it has no business to touch
    std::uint64_t failed_sinks = 0;   // events that a sink of the plug-in answered with an error
    std::uint64_t kept_messages = 0;  // messages that outlived their event

    std::unordered_map<const void*, const char*> live;  // objects that somebody holds, by the names of their classes

    // All of that which a good plug-in leaves at nothing, in words, a line each.
    std::string Complaints() const;

    void Reset();  // what is live stays
};
Ledger& TheLedger();

// Liberties that the framework takes. All are within its rules.
struct Habits {
    bool last_sink_first = false;      // raises events in the other order
    bool odd_arguments = false;        // gives arguments of events in the rarer of their forms
    bool absent_fields_empty = false;  // answers for a field that a message lacks with nothing instead of an error
    std::set<std::string, std::less<>> missing_hooks{};  // members of the hooks that this client can't serve
};
Habits& TheHabits();

}  // namespace ombrel::standin
