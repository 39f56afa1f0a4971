// A death and its consequences: what is lost, the corpse that holds it, the way back, the corpse's end.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "adapters/sim/Aftermath.h"

namespace ombrel::sim {

class Deaths {
public:
    explicit Deaths(Aftermath& aftermath) : aftermath_(aftermath) {}

    void Died();

    // A corpse of the character that is opened goes as soon as it is empty.
    void Opened(host::Id id);
    void Moved();

private:
    void LeaveCorpse();
    std::string TakeLoot(host::Id corpse);  // into the corpse; how the game tells of it
    void Return();
    void EndWhenEmpty(host::Id corpse);
    void Decay(host::Id corpse);
    std::vector<Object*> ContentsOf(host::Id corpse);

    Aftermath& aftermath_;
    std::set<host::Id> opened_;
    bool dying_ = false;
};

}  // namespace ombrel::sim
