#include "adapters/sim/Calls.h"

#include <utility>

#include "core/failure.h"

namespace ombrel::sim {

std::span<const Operation> Operations() { return kOperations; }

std::optional<Op> FindOperation(std::string_view name) {
    if (name.empty()) return std::nullopt;
    if (name.find('.') != std::string_view::npos) return FindQualified(name);

    std::optional<Op> recorded, asked;
    int recordings = 0, questions = 0;
    for (std::size_t i = 0; i < kOperations.size(); ++i) {
        const Operation& row = kOperations[i];
        if (row.name != name && row.also != name) continue;
        if (row.kind != CallKind::kQuestion) {
            recorded = static_cast<Op>(i);
            ++recordings;
        } else {
            asked = static_cast<Op>(i);
            ++questions;
        }
    }
    if (recordings > 0) return recordings == 1 ? recorded : std::nullopt;
    return questions == 1 ? asked : std::nullopt;
}

void Calls::Fail(Op operation, std::int32_t times, std::int32_t number, std::string description) {
    if (times > 0)
        failures_.insert_or_assign(operation, PendingFailure{times, number, std::move(description)});
    else
        failures_.erase(operation);
}

void Calls::Pass(Op operation, std::initializer_list<Argument> arguments) {
    const auto pending = failures_.find(operation);
    if (pending == failures_.end()) return Tell(operation, arguments, false);

    const Failure failure(pending->second.number, pending->second.description);
    if (--pending->second.times == 0) failures_.erase(pending);
    Tell(operation, arguments, true);
    throw failure;
}

void Calls::NoteFailed(Op operation, std::initializer_list<Argument> arguments, std::int32_t number,
                       std::string description) {
    if (WillFail(operation)) Note(operation, arguments);
    ++counts_[operation];
    Tell(operation, arguments, true);
    throw Failure(number, std::move(description));
}

void Calls::Tell(Op operation, std::initializer_list<Argument> arguments, bool failed) const {
    if (!listener || kOperations[operation].kind == CallKind::kQuestion) return;
    listener(Call{operation, std::span<const Argument>(arguments.begin(), arguments.size()), failed});
}

}  // namespace ombrel::sim
