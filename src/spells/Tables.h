// Beers and gems: what they are called, what they cast, and which option asks for them.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "config/ControlHandler.h"
#include "spells/SpellHandler.h"

namespace ombrel {

struct Beer {
    std::int32_t spell;
    std::string_view item;
    Ref<host::Checkbox> ControlHandler::*option;
};

// The order is that of every scan, and of drinking.
inline const std::array<Beer, SpellHandler::kBeers>& BeerTable() {
    static constexpr std::array<Beer, SpellHandler::kBeers> kTable{{
        {3530, "Tusker Spit Ale", &ControlHandler::BeerFocus},
        {3533, "Amber Ape", &ControlHandler::BeerCoord},
        {3531, "Bobo's Stout", &ControlHandler::BeerQuick},
        {3864, "Apothecary Zongo's Stout", &ControlHandler::BeerStr},
        {3862, "Duke Raoul's Distillation", &ControlHandler::BeerSelf},
        {3863, "Hunter's Stock Amber", &ControlHandler::BeerEnd},
    }};
    return kTable;
}

// A gem stays in the pack when it is used. The game's shared cooldown tells that one of its group was used just now.
struct Gem {
    std::string_view item;
    std::int32_t spell;
    std::int32_t cooldown;
    std::string_view debug_text;
};

inline constexpr Gem kFavor{"Blackmoor's Favor", 3811, -32765, "Favor spell not found, using gem"};
inline constexpr Gem kBenediction{"Asheron's Benediction", 3810, -32766, "Benediction spell not found, using gem"};
inline constexpr Gem kLesserBenediction{"Asheron's Lesser Benediction", 4024, -32766,
                                        "Lesser Benediction spell not found, using gem"};

}  // namespace ombrel
