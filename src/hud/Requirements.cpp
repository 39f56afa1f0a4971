#include "hud/Requirements.h"

#include <fmt/format.h>

#include <array>
#include <span>
#include <string_view>

#include "core/failure.h"

namespace ombrel::target {
namespace {

// Short names, by index from 0. The last skills came to the game after the names.
constexpr std::array<std::string_view, 45> kSkills{
    "Ax", "Bo", "XB", "Dg", "Ma", "Me", "Mi", "",   "Sp",  // axe to spear
    "St", "Sw", "TW", "UA", "Ar", "Ma", "MC", "",   "IT",  // staff to item tinkering
    "AP", "De", "He", "Ju", "LP", "Ru", "",   "",   "AC",  // assess person to assess creature
    "WT", "AT", "MT", "CE", "IE", "LM", "WM", "Le", "Lo",  // weapon tinkering to loyalty
    "Fl", "Al", "Co", "Sa", "2H", "GC", "??", "??", "??",  // fletching on
};
constexpr std::array<std::string_view, 6> kAttributes{"Str", "End", "Cor", "Quk", "Foc", "Sel"};
constexpr std::array<std::string_view, 6> kVitals{"Hlt", "", "Stm", "", "Mna", ""};
constexpr std::array<std::string_view, 2> kTraining{"Trn", "Spc"};
constexpr std::array<std::string_view, 4> kPeoples{"Alv", "Ghr", "Sho", "Via"};

std::string_view NameAt(std::span<const std::string_view> names, std::int64_t index) {
    if (index < 0 || index >= std::ssize(names)) throw Failure(failure::kSubscript);
    return names[static_cast<std::size_t>(index)];
}

// The properties count from 1.
std::string_view NameOf(std::span<const std::string_view> names, std::int32_t number) {
    return NameAt(names, std::int64_t{number} - 1);
}

std::string WieldText(const Reading& reading) {
    const std::int32_t kind = reading.Long(key::kWieldKind);
    if (kind <= 0) return {};
    const std::int32_t skill = reading.Long(key::kWieldSkill);
    const std::int32_t level = reading.Long(key::kWieldLevel);
    switch (kind - 1) {
        case 0:
        case 1:
            return fmt::format(", {} {}", NameOf(kSkills, skill), level);
        case 2:
        case 3:
            return fmt::format(", {} {}", NameOf(kAttributes, skill), level);
        case 4:
        case 5:
            return fmt::format(", {} {}", NameOf(kVitals, skill), level);
        case 6:
            return fmt::format(", Lv {}", level);
        case 7:
            return fmt::format(", {} {}", NameOf(kTraining, level), NameOf(kSkills, skill));
        default:
            return {};
    }
}

std::string ActivationText(const Reading& reading) {
    std::string text;
    if (const auto lore = reading.Long(key::kLore); lore != 0) text += fmt::format(", Lr {}", lore);
    if (const auto people = reading.Long(key::kHeritage); people != 0)
        text += fmt::format(", {}", NameAt(kPeoples, people));
    if (const auto skill = reading.Long(key::kActivationSkill); skill != 0)
        text += fmt::format(", {} {}", NameAt(kSkills, skill), reading.Long(key::kActivationLevel));
    if (const auto rank = reading.Long(key::kRank); rank != 0) text += fmt::format(", Rk {}", rank);
    return text;
}

// Leaves the procedure's name in the reading when it fails.
std::string Named(Reading& reading, std::string_view procedure, std::string (*text_of)(const Reading&)) {
    const std::string_view caller = reading.procedure;
    reading.procedure = procedure;
    std::string text = text_of(reading);
    reading.procedure = caller;
    return text;
}

}  // namespace

std::string WieldReq(Reading& reading) { return Named(reading, "WieldReq", &WieldText); }

std::string ActivationReq(Reading& reading) { return Named(reading, "ActivationReq", &ActivationText); }

}  // namespace ombrel::target
