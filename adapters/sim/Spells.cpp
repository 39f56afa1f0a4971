#include "adapters/sim/Spells.h"

#include <utility>

namespace ombrel::sim {

namespace {

class SimSpell final : public host::Spell {
public:
    SimSpell(Calls& calls, SpellRowPtr row) : calls_(calls), row_(std::move(row)) {}

    std::int32_t ID() const override { return Ask("Spell.ID"_op, row_->ID); }
    std::string Name() const override { return Ask("Spell.Name"_op, row_->Name); }
    std::string Description() const override { return Ask("Spell.Description"_op, row_->Description); }
    std::int32_t School() const override { return Ask("Spell.School"_op, row_->School); }
    std::int32_t Icon() const override { return Ask("Spell.Icon"_op, row_->Icon); }
    std::int32_t Effect() const override { return Ask("Spell.Effect"_op, row_->Effect); }
    std::int32_t Flags() const override { return Ask("Spell.Flags"_op, row_->Flags); }
    std::int32_t ManaCost() const override { return Ask("Spell.ManaCost"_op, row_->ManaCost); }
    std::int32_t Diff() const override { return Ask("Spell.Diff"_op, row_->Diff); }
    std::int32_t Version() const override { return Ask("Spell.Version"_op, row_->Version); }
    std::int32_t Type() const override { return Ask("Spell.Type"_op, row_->Type); }
    double Duration() const override { return Ask("Spell.Duration"_op, row_->Duration); }
    bool Researchable() const override { return Ask("Spell.Researchable"_op, row_->Researchable); }
    std::int32_t ComponentCount() const override { return Ask("Spell.ComponentCount"_op, row_->ComponentCount); }
    std::int32_t TargetMask() const override { return Ask("Spell.TargetMask"_op, row_->TargetMask); }
    float RangeBase() const override { return Ask("Spell.RangeBase"_op, row_->RangeBase); }
    float RangeModifier() const override { return Ask("Spell.RangeModifier"_op, row_->RangeModifier); }
    float Speed() const override { return Ask("Spell.Speed"_op, row_->Speed); }
    std::int32_t SortOrder() const override { return Ask("Spell.SortOrder"_op, row_->SortOrder); }
    std::int32_t EffectOnCaster() const override { return Ask("Spell.EffectOnCaster"_op, row_->EffectOnCaster); }
    std::int32_t EffectOnTarget() const override { return Ask("Spell.EffectOnTarget"_op, row_->EffectOnTarget); }

private:
    template <class T>
    const T& Ask(Op operation, const T& answer) const {
        calls_.Note(operation);
        return answer;
    }

    Calls& calls_;
    SpellRowPtr row_;
};

}  // namespace

host::SpellPtr SimSpells::ByID(std::int32_t id) {
    client_.calls.Note("Spells.ByID"_op);
    return Give(client_.spells.ByID(id));
}

host::SpellPtr SimSpells::ByName(std::string_view name) {
    client_.calls.Note("Spells.ByName"_op);
    return Give(client_.spells.ByName(name));
}

host::SpellPtr SimSpells::Give(SpellRowPtr row) const {
    return row ? std::make_shared<SimSpell>(client_.calls, std::move(row)) : nullptr;
}

}  // namespace ombrel::sim
