#include "adapters/sim/Character.h"

#include "core/failure.h"

namespace ombrel::sim {

namespace {

std::int32_t ValueOrZero(const std::map<std::int32_t, std::int32_t>& map, std::int32_t key) {
    const auto found = map.find(key);
    return found == map.end() ? 0 : found->second;
}

}  // namespace

host::Id SimCharacter::Character() const { return Ask("CharacterStats.Character"_op, client_.sheet.Character); }

std::int32_t SimCharacter::Level() const { return Ask("CharacterStats.Level"_op, client_.sheet.Level); }

std::string SimCharacter::Server() const { return Ask("CharacterStats.Server"_op, client_.sheet.Server); }

std::string SimCharacter::Name() const { return Ask("CharacterStats.Name"_op, client_.sheet.Name); }

std::int32_t SimCharacter::Health() const { return Ask("CharacterStats.Health"_op, client_.sheet.Health); }

std::int32_t SimCharacter::Stamina() const { return Ask("CharacterStats.Stamina"_op, client_.sheet.Stamina); }

std::int32_t SimCharacter::Mana() const { return Ask("CharacterStats.Mana"_op, client_.sheet.Mana); }

std::int32_t SimCharacter::Vital(std::int32_t code) const {
    client_.calls.Note("CharacterStats.Vital"_op);
    return ValueOrZero(client_.sheet.Vital, code);
}

std::int32_t SimCharacter::Skill(std::int32_t code) const {
    client_.calls.Note("CharacterStats.Skill"_op);
    return ValueOrZero(client_.sheet.Skill, code);
}

std::int32_t SimCharacter::Vitae() const { return Ask("CharacterStats.Vitae"_op, client_.sheet.Vitae); }

std::int32_t SimCharacter::Followers() const { return Ask("CharacterStats.Followers"_op, client_.sheet.Followers); }

std::int32_t SimCharacter::AllegianceSize() const {
    return Ask("CharacterStats.AllegianceSize"_op, client_.sheet.AllegianceSize);
}

std::int32_t SimCharacter::EnchantmentCount() const {
    client_.calls.Note("CharacterStats.EnchantmentCount"_op);
    DropEnded();
    return static_cast<std::int32_t>(client_.enchantments.size());
}

// The client shows the seconds that have begun, so an enchantment never stands at 0.
host::Enchantment SimCharacter::Enchantment(std::int32_t index) const {
    client_.calls.Note("CharacterStats.Enchantment"_op);
    DropEnded();
    if (index < 0 || static_cast<std::size_t>(index) >= client_.enchantments.size())
        throw Failure(failure::kInvalidCall, "Invalid procedure call or argument");
    const ActiveEnchantment& entry = client_.enchantments[static_cast<std::size_t>(index)];
    return {.SpellID = static_cast<std::int16_t>(entry.SpellID),
            .TimeRemaining = entry.ends ? static_cast<std::int32_t>((*entry.ends - client_.clock.now() + 999) / 1000)
                                        : entry.permanent,
            .Family = entry.Family};
}

bool SimCharacter::Augmentation(std::int32_t id, std::int32_t& count) const {
    client_.calls.Note("CharacterStats.Augmentation"_op);
    const auto found = client_.sheet.Augmentation.find(id);
    count = found == client_.sheet.Augmentation.end() ? 0 : found->second;
    return found != client_.sheet.Augmentation.end();
}

void SimCharacter::DropEnded() const {
    std::erase_if(client_.enchantments, [now = client_.clock.now()](const ActiveEnchantment& entry) {
        return entry.ends && *entry.ends <= now;
    });
}

}  // namespace ombrel::sim
