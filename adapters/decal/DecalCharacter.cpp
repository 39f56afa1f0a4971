#include "adapters/decal/DecalCharacter.h"

#include "core/failure.h"

namespace ombrel::decal {

namespace {

host::Enchantment Read(const Com<IEnchantment>& enchantment) {
    host::Enchantment read;
    // Cooldowns are negative: the framework gives the game's 16-bit number unsigned.
    read.SpellID = static_cast<std::int16_t>(enchantment.Read(IEnchantment::SpellID));
    read.TimeRemaining = enchantment.Read(IEnchantment::TimeRemaining);
    read.Family = enchantment.Read(IEnchantment::Family);
    return read;
}

}  // namespace

DecalCharacter::DecalCharacter(Com<ICharacterStats> stats)
    : stats_(std::move(stats)), events_(stats_.Unknown(), ICharacterStatsEvents::kIid, Handlers()) {}

host::Id DecalCharacter::Character() const { return stats_.Read(ICharacterStats::Character); }
std::int32_t DecalCharacter::Level() const { return stats_.Read(ICharacterStats::Level); }
std::string DecalCharacter::Server() const { return stats_.Read(ICharacterStats::Server); }
std::string DecalCharacter::Name() const { return stats_.Read(ICharacterStats::Name); }
std::int32_t DecalCharacter::Health() const { return stats_.Read(ICharacterStats::Health); }
std::int32_t DecalCharacter::Stamina() const { return stats_.Read(ICharacterStats::Stamina); }
std::int32_t DecalCharacter::Mana() const { return stats_.Read(ICharacterStats::Mana); }

std::int32_t DecalCharacter::Vital(std::int32_t code) const {
    return stats_.Read(ICharacterStats::EffectiveVital, code);
}

std::int32_t DecalCharacter::Skill(std::int32_t code) const {
    return stats_.Read(ICharacterStats::EffectiveSkill, code);
}

std::int32_t DecalCharacter::Vitae() const { return stats_.Read(ICharacterStats::Vitae); }
std::int32_t DecalCharacter::Followers() const { return stats_.Read(ICharacterStats::Followers); }
std::int32_t DecalCharacter::AllegianceSize() const { return stats_.Read(ICharacterStats::MonarchFollowers); }
std::int32_t DecalCharacter::EnchantmentCount() const { return stats_.Read(ICharacterStats::EnchantmentCount); }

host::Enchantment DecalCharacter::Enchantment(std::int32_t index) const {
    return Read(stats_.Read(ICharacterStats::Enchantment, index));
}

bool DecalCharacter::Augmentation(std::int32_t id, std::int32_t& count) const {
    long times = 0;
    VARIANT_BOOL exists = VARIANT_FALSE;
    stats_.Call(ICharacterStats::AugmentationExists, id, &times, &exists);
    count = static_cast<std::int32_t>(times);
    return ToBool(exists);
}

Events::Table DecalCharacter::Handlers() {
    using Source = ICharacterStatsEvents;
    return {
        {Source::LoginComplete, [this](const EventArguments&) { Raise(LoginComplete); }},
        {Source::Logoff, [this](const EventArguments& event) { Raise(Logoff, event.Long(0)); }},
        {Source::ChangeVital,
         [this](const EventArguments& event) { Raise(ChangeVital, event.Long(0), event.Long(1)); }},
        {Source::ChangeEnchantments,
         [this](const EventArguments& event) {
             const auto enchantment = event.Object<IEnchantment>(1);
             Raise(ChangeEnchantments, event.Long(0), enchantment ? Read(enchantment) : host::Enchantment());
         }},
        {Source::ChangePortalMode, [this](const EventArguments& event) { Raise(ChangePortalMode, event.Long(0)); }},
        {Source::Death, [this](const EventArguments& event) { Raise(Death, event.Text(0)); }},
    };
}

}  // namespace ombrel::decal
