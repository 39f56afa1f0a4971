// The calls that the plug-in makes, as the simulated client counts, records and fails them.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "adapters/sim/Operations.h"
#include "host/Types.h"

namespace ombrel::sim {

using Value = std::variant<std::int64_t, double, bool, std::string_view, host::Rect>;

struct Argument {
    Argument(std::string_view n, std::int32_t v) : name(n), value(std::int64_t{v}) {}
    Argument(std::string_view n, double v) : name(n), value(v) {}
    Argument(std::string_view n, bool v) : name(n), value(v) {}
    Argument(std::string_view n, std::string_view v) : name(n), value(v) {}
    Argument(std::string_view n, const std::string& v) : name(n), value(std::string_view(v)) {}
    Argument(std::string_view n, const char* v) : name(n), value(std::string_view(v)) {}
    Argument(std::string_view n, const host::Rect& v) : name(n), value(v) {}

    std::string_view name;
    Value value;
};

// A call that the plug-in made.
struct Call {
    Op operation;
    std::span<const Argument> arguments;
    bool failed = false;
};

std::span<const Operation> Operations();

// The operation of that name: "ChatOut", "World.Inventory". Of several with one bare name it is the one that is
// recorded; nothing when that leaves none or more than one.
std::optional<Op> FindOperation(std::string_view name);

// Where calls go, and which are made to fail.
class Calls {
public:
    // Makes the next `times` calls of an operation throw Failure.
    void Fail(Op operation, std::int32_t times, std::int32_t number, std::string description);
    void ClearFailures() { failures_.clear(); }
    bool WillFail(Op operation) const { return !failures_.empty() && failures_.contains(operation); }

    // Notes a call, whose arguments are only looked at when somebody listens, and throws when it is to fail.
    void Note(Op operation, std::initializer_list<Argument> arguments = {}) {
        ++counts_[operation];
        if (listener || !failures_.empty()) Pass(operation, arguments);
    }

    // Notes a call that fails by itself, and throws.
    [[noreturn]] void NoteFailed(Op operation, std::initializer_list<Argument> arguments, std::int32_t number,
                                 std::string description);

    // How often an operation was called.
    std::uint64_t Count(Op operation) const { return counts_.at(operation); }

    // Hears of each call but those that only ask.
    std::function<void(const Call& call)> listener;

private:
    struct PendingFailure {
        std::int32_t times;
        std::int32_t number;
        std::string description;
    };

    void Pass(Op operation, std::initializer_list<Argument> arguments);
    void Tell(Op operation, std::initializer_list<Argument> arguments, bool failed) const;

    std::map<Op, PendingFailure> failures_;
    std::array<std::uint64_t, kOperations.size()> counts_{};
};

}  // namespace ombrel::sim
