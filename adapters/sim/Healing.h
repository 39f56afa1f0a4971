// Food that restores a vital, drinks with a spell in them, and healing kits that the skill may or may not master.
#pragma once

#include <random>

#include "adapters/sim/Aftermath.h"

namespace ombrel::sim {

class Healing {
public:
    explicit Healing(Aftermath& aftermath) : aftermath_(aftermath) {}

    void Eat(host::Id food);
    void UseKit(host::Id kit);

private:
    void Eaten(Object& food);
    void Heal(Object& kit);
    double Draw();  // from 0 to 1, the same row of numbers in every run

    Aftermath& aftermath_;
    std::minstd_rand random_{20060305};
};

}  // namespace ombrel::sim
