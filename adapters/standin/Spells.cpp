#include "adapters/standin/Spells.h"

namespace ombrel::standin {

namespace {

// Nothing is what an unknown spell gives, without an error.
HRESULT Give(const host::SpellPtr& found, ISpell** spell) {
    *spell = nullptr;
    if (!found) return S_FALSE;
    *spell = Make<Spell>(found).Detach();
    return S_OK;
}

}  // namespace

HRESULT Spell::get_SpellID(long* id) {
    return Serve([&] { *id = spell_->ID(); });
}

HRESULT Spell::get_Name(BSTR* name) {
    return Serve([&] { *name = NewText(spell_->Name()); });
}

HRESULT Spell::get_Description(BSTR* text) {
    return Serve([&] { *text = NewText(spell_->Description()); });
}

HRESULT Spell::get_SpellSchool(long* school) {
    return Serve([&] { *school = spell_->School(); });
}

HRESULT Spell::get_Icon(long* icon) {
    return Serve([&] { *icon = spell_->Icon(); });
}

HRESULT Spell::get_Effect(long* family) {
    return Serve([&] { *family = spell_->Effect(); });
}

HRESULT Spell::get_Flags(long* flags) {
    return Serve([&] { *flags = spell_->Flags(); });
}

HRESULT Spell::get_ManaCost(long* cost) {
    return Serve([&] { *cost = spell_->ManaCost(); });
}

HRESULT Spell::get_Difficulty(long* difficulty) {
    return Serve([&] { *difficulty = spell_->Diff(); });
}

HRESULT Spell::get_SpellVersion(long* version) {
    return Serve([&] { *version = spell_->Version(); });
}

HRESULT Spell::get_SpellType(long* type) {
    return Serve([&] { *type = spell_->Type(); });
}

HRESULT Spell::get_Duration(double* seconds) {
    return Serve([&] { *seconds = spell_->Duration(); });
}

HRESULT Spell::get_Researchable(VARIANT_BOOL* researchable) {
    return Serve([&] { *researchable = ToVariantBool(spell_->Researchable()); });
}

HRESULT Spell::get_ComponentCount(long* count) {
    return Serve([&] { *count = spell_->ComponentCount(); });
}

HRESULT Spell::get_TargetMask(long* mask) {
    return Serve([&] { *mask = spell_->TargetMask(); });
}

HRESULT Spell::get_RangeBase(float* range) {
    return Serve([&] { *range = spell_->RangeBase(); });
}

HRESULT Spell::get_RangeModifier(float* range) {
    return Serve([&] { *range = spell_->RangeModifier(); });
}

HRESULT Spell::get_Speed(float* speed) {
    return Serve([&] { *speed = spell_->Speed(); });
}

HRESULT Spell::get_SortOrder(long* order) {
    return Serve([&] { *order = spell_->SortOrder(); });
}

HRESULT Spell::get_EffectOnCaster(long* effect) {
    return Serve([&] { *effect = spell_->EffectOnCaster(); });
}

HRESULT Spell::get_EffectOnTarget(long* effect) {
    return Serve([&] { *effect = spell_->EffectOnTarget(); });
}

Spells::Spells(std::unique_ptr<host::Spells> spells) : SourceObject(ISpellsEvents::kId), spells_(std::move(spells)) {
    spells_->Login = [this] { events.Raise(ISpellsEvents::kLogin); };
}

HRESULT Spells::get_SpellByID(long id, ISpell** spell) {
    return Serve([&] { return Give(spells_->ByID(id), spell); });
}

HRESULT Spells::get_SpellByName(BSTR name, ISpell** spell) {
    return Serve([&] { return Give(spells_->ByName(Narrow(name)), spell); });
}

}  // namespace ombrel::standin
