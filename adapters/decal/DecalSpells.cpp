#include "adapters/decal/DecalSpells.h"

namespace ombrel::decal {

namespace {

class DecalSpell final : public host::Spell {
public:
    explicit DecalSpell(Com<ISpell> spell) : spell_(std::move(spell)) {}

    std::int32_t ID() const override { return spell_.Read(ISpell::SpellID); }
    std::string Name() const override { return spell_.Read(ISpell::Name); }
    std::string Description() const override { return spell_.Read(ISpell::Description); }
    std::int32_t School() const override { return spell_.Read(ISpell::SpellSchool); }
    std::int32_t Icon() const override { return spell_.Read(ISpell::Icon); }
    std::int32_t Effect() const override { return spell_.Read(ISpell::Effect); }
    std::int32_t Flags() const override { return spell_.Read(ISpell::Flags); }
    std::int32_t ManaCost() const override { return spell_.Read(ISpell::ManaCost); }
    std::int32_t Diff() const override { return spell_.Read(ISpell::Difficulty); }
    std::int32_t Version() const override { return spell_.Read(ISpell::SpellVersion); }
    std::int32_t Type() const override { return spell_.Read(ISpell::SpellType); }
    double Duration() const override { return spell_.Read(ISpell::Duration); }
    bool Researchable() const override { return spell_.Read(ISpell::Researchable); }
    std::int32_t ComponentCount() const override { return spell_.Read(ISpell::ComponentCount); }
    std::int32_t TargetMask() const override { return spell_.Read(ISpell::TargetMask); }
    float RangeBase() const override { return spell_.Read(ISpell::RangeBase); }
    float RangeModifier() const override { return spell_.Read(ISpell::RangeModifier); }
    float Speed() const override { return spell_.Read(ISpell::Speed); }
    std::int32_t SortOrder() const override { return spell_.Read(ISpell::SortOrder); }
    std::int32_t EffectOnCaster() const override { return spell_.Read(ISpell::EffectOnCaster); }
    std::int32_t EffectOnTarget() const override { return spell_.Read(ISpell::EffectOnTarget); }

private:
    Com<ISpell> spell_;
};

host::SpellPtr SpellOf(Com<ISpell> spell) {
    if (!spell) return nullptr;
    return std::make_shared<DecalSpell>(std::move(spell));
}

}  // namespace

DecalSpells::DecalSpells(Com<ISpells> spells)
    : spells_(std::move(spells)),
      events_(spells_.Unknown(), ISpellsEvents::kIid,
              {{ISpellsEvents::Login, [this](const EventArguments&) { Raise(Login); }}}) {}

host::SpellPtr DecalSpells::ByID(std::int32_t id) { return SpellOf(spells_.Read(ISpells::SpellByID, id)); }

host::SpellPtr DecalSpells::ByName(std::string_view name) {
    return SpellOf(spells_.Read(ISpells::SpellByName, Bstr(name).get()));
}

}  // namespace ombrel::decal
