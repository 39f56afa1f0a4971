#include "adapters/sim/Appraisals.h"

#include <algorithm>

namespace ombrel::sim {

namespace {
constexpr milliseconds kFirstAnswer = 150ms;
constexpr milliseconds kNextAnswer = 40ms;
}  // namespace

void Appraisals::Ask(host::Id id) {
    const std::int64_t now = aftermath_.client.clock.now();
    answered_ = std::max(answered_ + kNextAnswer.count(), now + kFirstAnswer.count());
    aftermath_.After(milliseconds(answered_ - now), [this, id] {
        Object* thing = aftermath_.Find(id);
        if (!thing) return;
        thing->LastIdTime = static_cast<std::int32_t>(aftermath_.client.clock.universal() / 1000);
        thing->HasIdData = 1;
        aftermath_.client.ChangeObject(id, change::kIdentified);
    });
}

}  // namespace ombrel::sim
