// The character's sheet.
#pragma once

#include <memory>

#include "adapters/standin/EventSource.h"
#include "adapters/standin/declarations/DecalFilters.h"
#include "host/CharacterStats.h"

namespace ombrel::standin {

class Enchantment final : public Object<IEnchantment> {
public:
    explicit Enchantment(const host::Enchantment& enchantment) : enchantment_(enchantment) {}

    STDMETHOD(get_SpellID)(long* id) override;
    STDMETHOD(get_TimeRemaining)(long* seconds) override;
    STDMETHOD(get_Family)(long* family) override;

private:
    host::Enchantment enchantment_;
};

class Character final : public SourceObject<ICharacterStats> {
public:
    explicit Character(std::unique_ptr<host::CharacterStats> stats);

    STDMETHOD(get_Character)(long* id) override;
    STDMETHOD(get_Level)(long* level) override;
    STDMETHOD(get_Server)(BSTR* name) override;
    STDMETHOD(get_Name)(BSTR* name) override;
    STDMETHOD(get_Health)(long* points) override;
    STDMETHOD(get_Stamina)(long* points) override;
    STDMETHOD(get_Mana)(long* points) override;
    STDMETHOD(get_EffectiveVital)(long vital, long* points) override;
    STDMETHOD(get_EffectiveSkill)(long skill, long* points) override;
    STDMETHOD(get_Vitae)(long* percent) override;
    STDMETHOD(get_Followers)(long* count) override;
    STDMETHOD(get_MonarchFollowers)(long* count) override;
    STDMETHOD(get_EnchantmentCount)(long* count) override;
    STDMETHOD(get_Enchantment)(long index, IEnchantment** enchantment) override;
    STDMETHOD(AugmentationExists)(long key, long* count, VARIANT_BOOL* there) override;

private:
    std::unique_ptr<host::CharacterStats> stats_;
};

}  // namespace ombrel::standin
