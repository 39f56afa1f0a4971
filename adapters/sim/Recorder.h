// Writes what the plug-in did to its host, as JSON Lines.
#pragma once

#include <array>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "adapters/sim/Calls.h"
#include "adapters/sim/Clock.h"

namespace ombrel::sim {

// The kinds of call that are recorded.
class Trace {
public:
    Trace();  // all but drawing

    // A list of kinds with commas between them, or "all". Nothing when it names another kind.
    static std::optional<Trace> Parse(std::string_view list);

    bool Has(CallKind kind) const { return kinds_[static_cast<std::size_t>(kind)]; }

private:
    std::array<bool, static_cast<std::size_t>(CallKind::kQuestion) + 1> kinds_{};
};

class Recorder {
public:
    // Both must outlive the recorder.
    Recorder(std::ostream& out, const Clock& clock, Trace trace = {}) : out_(out), clock_(clock), trace_(trace) {}
    ~Recorder() { Flush(); }
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    void Call(const sim::Call& call);
    void Result(std::string_view event, std::string_view name, bool value);  // name: eat, handled
    void Answer(std::string_view query, std::string_view name, const nlohmann::ordered_json& fields);
    void Note(std::string_view text);

    void Flush();

private:
    void Wrote();

    std::ostream& out_;
    const Clock& clock_;
    Trace trace_;
    std::string buffer_;
};

}  // namespace ombrel::sim
