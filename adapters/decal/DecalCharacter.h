// The character that is played.
#pragma once

#include "adapters/decal/Com.h"
#include "adapters/decal/EventSink.h"
#include "adapters/decal/interfaces/DecalFilters.h"
#include "host/CharacterStats.h"

namespace ombrel::decal {

class DecalCharacter final : public host::CharacterStats {
public:
    explicit DecalCharacter(Com<ICharacterStats> stats);

    host::Id Character() const override;
    std::int32_t Level() const override;
    std::string Server() const override;
    std::string Name() const override;
    std::int32_t Health() const override;
    std::int32_t Stamina() const override;
    std::int32_t Mana() const override;
    std::int32_t Vital(std::int32_t code) const override;
    std::int32_t Skill(std::int32_t code) const override;
    std::int32_t Vitae() const override;
    std::int32_t Followers() const override;
    std::int32_t AllegianceSize() const override;
    std::int32_t EnchantmentCount() const override;
    host::Enchantment Enchantment(std::int32_t index) const override;
    bool Augmentation(std::int32_t id, std::int32_t& count) const override;

private:
    Events::Table Handlers();

    Com<ICharacterStats> stats_;
    Events events_;
};

}  // namespace ombrel::decal
