// The spell table.
#pragma once

#include <memory>

#include "adapters/standin/EventSource.h"
#include "adapters/standin/declarations/SpellFilter.h"
#include "host/Spells.h"

namespace ombrel::standin {

class Spell final : public Object<ISpell> {
public:
    explicit Spell(host::SpellPtr spell) : spell_(std::move(spell)) {}

    STDMETHOD(get_SpellID)(long* id) override;
    STDMETHOD(get_Name)(BSTR* name) override;
    STDMETHOD(get_Description)(BSTR* text) override;
    STDMETHOD(get_SpellSchool)(long* school) override;
    STDMETHOD(get_Icon)(long* icon) override;
    STDMETHOD(get_Effect)(long* family) override;
    STDMETHOD(get_Flags)(long* flags) override;
    STDMETHOD(get_ManaCost)(long* cost) override;
    STDMETHOD(get_Difficulty)(long* difficulty) override;
    STDMETHOD(get_SpellVersion)(long* version) override;
    STDMETHOD(get_SpellType)(long* type) override;
    STDMETHOD(get_Duration)(double* seconds) override;
    STDMETHOD(get_Researchable)(VARIANT_BOOL* researchable) override;
    STDMETHOD(get_ComponentCount)(long* count) override;
    STDMETHOD(get_TargetMask)(long* mask) override;
    STDMETHOD(get_RangeBase)(float* range) override;
    STDMETHOD(get_RangeModifier)(float* range) override;
    STDMETHOD(get_Speed)(float* speed) override;
    STDMETHOD(get_SortOrder)(long* order) override;
    STDMETHOD(get_EffectOnCaster)(long* effect) override;
    STDMETHOD(get_EffectOnTarget)(long* effect) override;

private:
    host::SpellPtr spell_;
};

class Spells final : public SourceObject<ISpells> {
public:
    explicit Spells(std::unique_ptr<host::Spells> spells);

    STDMETHOD(get_SpellByID)(long id, ISpell** spell) override;
    STDMETHOD(get_SpellByName)(BSTR name, ISpell** spell) override;

private:
    std::unique_ptr<host::Spells> spells_;
};

}  // namespace ombrel::standin
