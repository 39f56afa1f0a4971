// Which pea a spell component comes from.
#include <algorithm>
#include <iterator>

#include "chat/ChatTextHandler.h"

namespace ombrel {

namespace {

constexpr std::string_view kComponents[] = {
    "Lead Scarab",
    "Iron Scarab",
    "Copper Scarab",
    "Silver Scarab",
    "Gold Scarab",
    "Pyreal Scarab",

    "Hyssop",
    "Mandrake",
    "Saffron",
    "Damiana",
    "Mugwort",
    "Bistort",
    "Wormwood",
    "Ginseng",
    "Hawthorn",
    "Vervain",
    "Myrrh",
    "Eyebright",
    "Frankincense",
    "Dragonsblood",
    "Comfrey",
    "Yarrow",

    "Powdered Agate",
    "Powdered Amber",
    "Powdered Azurite",
    "Powdered Bloodstone",
    "Powdered Carnelian",
    "Powdered Hematite",
    "Powdered Lapis Lazuli",
    "Powdered Malachite",
    "Powdered Moonstone",
    "Powdered Onyx",
    "Powdered Quartz",
    "Powdered Turquoise",

    "Brimstone",
    "Cadmia",
    "Cinnabar",
    "Cobalt",
    "Colcothar",
    "Gypsum",
    "Quicksilver",
    "Realgar",
    "Stibnite",
    "Turpeth",
    "Verdigris",
    "Vitriol",

    "Poplar Talisman",
    "Blackthorn Talisman",
    "Yew Talisman",
    "Hemlock Talisman",
    "Alder Talisman",
    "Ebony Talisman",
    "Birch Talisman",
    "Oak Talisman",
    "Ashwood Talisman",
    "Elder Talisman",
    "Hazel Talisman",
    "Rowan Talisman",
    "Willow Talisman",
    "Cedar Talisman",

    "Red Taper",
    "Pink Taper",
    "Orange Taper",
    "Yellow Taper",
    "Green Taper",
    "Turquoise Taper",
    "Blue Taper",
    "Indigo Taper",
    "Violet Taper",
    "Brown Taper",
    "White Taper",
    "Grey Taper",
    "Prismatic Taper",
};

}  // namespace

std::string ChatTextHandler::PeaName(std::string_view component) {
    if (std::ranges::find(kComponents, component) == std::end(kComponents)) return "Unknown Pea";

    for (const std::string_view kind : {" Scarab", " Talisman", " Taper"}) {
        if (component.ends_with(kind)) component.remove_suffix(kind.size());
    }
    return std::string(component) + " Pea";
}

}  // namespace ombrel
