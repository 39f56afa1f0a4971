// The operations of the host boundary, as the simulated client counts, records and fails them.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "host/Types.h"

namespace ombrel::sim {

enum class CallKind : std::uint8_t {
    kChat,
    kCommand,
    kItem,
    kInput,
    kSound,
    kVendor,
    kHotkey,
    kHost,
    kDraw,
    kQuestion,  // only asked: never recorded, but can be made to fail
};

// One row per operation: its object, its name there, what kind of call it is. Sessions name an operation by its name, or by
// object, a dot and name where several objects have one of that name.
struct Operation {
    std::string_view object;
    std::string_view name;
    CallKind kind;
};

// An operation's place in the table of operations.
using Op = std::uint16_t;

using Value = std::variant<std::int64_t, double, bool, std::string_view, host::Rect>;

struct Argument {
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

// The operation of that name. Nothing when there is none, or when the bare name stands for several.
std::optional<Op> FindOperation(std::string_view name);

// The same for a name that the table has.
inline Op OperationNamed(std::string_view name) { return FindOperation(name).value(); }

// Where calls go, and which are made to fail.
class Calls {
public:
    // Makes the next `times` calls of an operation throw Failure.
    void Fail(Op operation, std::int32_t times, std::int32_t number, std::string description);
    void ClearFailures() { failures_.clear(); }

    // Notes a call, whose arguments are only looked at when somebody listens, and throws when it is to fail.
    void Note(Op operation, std::initializer_list<Argument> arguments = {});

    // How often an operation was called.
    std::uint64_t Count(Op operation) const;

    std::function<void(const Call& call)> listener;

private:
    struct PendingFailure {
        std::int32_t times;
        std::int32_t number;
        std::string description;
    };
    std::map<Op, PendingFailure> failures_;
};

}  // namespace ombrel::sim
