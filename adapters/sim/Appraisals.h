// Answers to questions about things: each takes its time, and they come in the order of the questions.
#pragma once

#include <cstdint>

#include "adapters/sim/Aftermath.h"

namespace ombrel::sim {

class Appraisals {
public:
    explicit Appraisals(Aftermath& aftermath) : aftermath_(aftermath) {}

    void Ask(host::Id id);

private:
    Aftermath& aftermath_;
    std::int64_t answered_ = 0;  // session milliseconds of the last answer, also one still to come
};

}  // namespace ombrel::sim
