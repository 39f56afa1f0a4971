// The character, as a plug-in is told of it.
#pragma once

#include "adapters/sim/Client.h"
#include "host/CharacterStats.h"

namespace ombrel::sim {

class SimCharacter final : public host::CharacterStats {
public:
    explicit SimCharacter(Client& client) : client_(client), place_(client.character_objects_, *this) {}

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
    template <class T>
    const T& Ask(Op operation, const T& answer) const {
        client_.calls.Note(operation);
        return answer;
    }

    void DropEnded() const;

    Client& client_;
    Copies<SimCharacter>::Place place_;
};

}  // namespace ombrel::sim
