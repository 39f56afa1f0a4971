#include "adapters/standin/Ledger.h"

#include <cxxabi.h>
#include <fmt/format.h>

#include <cstdlib>
#include <map>
#include <memory>

#include "adapters/standin/declarations/Slots.h"

namespace ombrel::standin {

Ledger& TheLedger() {
    static Ledger ledger;
    return ledger;
}

Habits& TheHabits() {
    static Habits habits;
    return habits;
}

std::string Ledger::Complaints() const {
    std::string text;
    const auto complain = [&text](std::uint64_t count, std::string_view what) {
        if (count > 0) text += fmt::format("{} {}\n", count, what);
    };
    complain(not_offered, "calls of what the framework doesn't offer");
    complain(eaten_echoes, "own lines eaten");
    complain(failed_sinks, "events answered with an error");
    complain(kept_messages, "messages kept");
    std::map<std::string, std::uint64_t> counts;
    for (const auto& [object, type] : live) {
        const std::unique_ptr<char, decltype(&std::free)> name(abi::__cxa_demangle(type, nullptr, nullptr, nullptr),
                                                               &std::free);
        ++counts[name ? name.get() : type];
    }
    for (const auto& [name, count] : counts) complain(count, name + " still held");
    return text;
}

void Ledger::Reset() { calls = not_offered = eaten_echoes = failed_sinks = kept_messages = 0; }

HRESULT NotOffered() {
    ++TheLedger().calls;
    ++TheLedger().not_offered;
    return E_NOTIMPL;
}

}  // namespace ombrel::standin
