#include "adapters/standin/Character.h"

namespace ombrel::standin {

HRESULT Enchantment::get_SpellID(long* id) {
    return Serve([&] { *id = enchantment_.SpellID; });
}

HRESULT Enchantment::get_TimeRemaining(long* seconds) {
    return Serve([&] { *seconds = enchantment_.TimeRemaining; });
}

HRESULT Enchantment::get_Family(long* family) {
    return Serve([&] { *family = enchantment_.Family; });
}

Character::Character(std::unique_ptr<host::CharacterStats> stats)
    : SourceObject(ICharacterStatsEvents::kId), stats_(std::move(stats)) {
    stats_->LoginComplete = [this] { events.Raise(ICharacterStatsEvents::kLoginComplete); };
    stats_->Logoff = [this](std::int32_t kind) { events.Raise(ICharacterStatsEvents::kLogoff, kind); };
    stats_->ChangeVital = [this](std::int32_t vital, std::int32_t value) {
        events.Raise(ICharacterStatsEvents::kChangeVital, vital, value);
    };
    stats_->ChangeEnchantments = [this](std::int32_t change, const host::Enchantment& enchantment) {
        events.Raise(ICharacterStatsEvents::kChangeEnchantments, change, Make<Enchantment>(enchantment).get());
    };
    stats_->ChangePortalMode = [this](std::int32_t mode) {
        events.Raise(ICharacterStatsEvents::kChangePortalMode, mode);
    };
    stats_->Death = [this](const std::string& text) { events.Raise(ICharacterStatsEvents::kDeath, text); };
}

HRESULT Character::get_Character(long* id) {
    return Serve([&] { *id = stats_->Character(); });
}

HRESULT Character::get_Level(long* level) {
    return Serve([&] { *level = stats_->Level(); });
}

HRESULT Character::get_Server(BSTR* name) {
    return Serve([&] { *name = NewText(stats_->Server()); });
}

HRESULT Character::get_Name(BSTR* name) {
    return Serve([&] { *name = NewText(stats_->Name()); });
}

HRESULT Character::get_Health(long* points) {
    return Serve([&] { *points = stats_->Health(); });
}

HRESULT Character::get_Stamina(long* points) {
    return Serve([&] { *points = stats_->Stamina(); });
}

HRESULT Character::get_Mana(long* points) {
    return Serve([&] { *points = stats_->Mana(); });
}

HRESULT Character::get_EffectiveVital(long vital, long* points) {
    return Serve([&] { *points = stats_->Vital(vital); });
}

HRESULT Character::get_EffectiveSkill(long skill, long* points) {
    return Serve([&] { *points = stats_->Skill(skill); });
}

HRESULT Character::get_Vitae(long* percent) {
    return Serve([&] { *percent = stats_->Vitae(); });
}

HRESULT Character::get_Followers(long* count) {
    return Serve([&] { *count = stats_->Followers(); });
}

HRESULT Character::get_MonarchFollowers(long* count) {
    return Serve([&] { *count = stats_->AllegianceSize(); });
}

HRESULT Character::get_EnchantmentCount(long* count) {
    return Serve([&] { *count = stats_->EnchantmentCount(); });
}

HRESULT Character::get_Enchantment(long index, IEnchantment** enchantment) {
    return Serve([&] {
        *enchantment = nullptr;
        *enchantment = Make<Enchantment>(stats_->Enchantment(index)).Detach();
    });
}

HRESULT Character::AugmentationExists(long key, long* count, VARIANT_BOOL* there) {
    return Serve([&] {
        std::int32_t number = 0;
        *there = ToVariantBool(stats_->Augmentation(key, number));
        *count = number;
    });
}

}  // namespace ombrel::standin
