// A corpse of the character.
#pragma once

#include <cstdint>
#include <string>

#include "host/Types.h"

namespace ombrel {

struct CorpseInfo {
    host::Id guid = 0;  // 0 until the corpse has been seen
    double NS = 0.0;
    double EW = 0.0;
    std::int32_t time = 0;  // moment of its decay
    bool Dungeon = true;    // no place on the map is known
    std::string data = "You lost nothing.";
};

}  // namespace ombrel
