// The character that is played.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "host/Types.h"

namespace ombrel::host {

// A spell on the character, or one of the game's shared cooldowns.
struct Enchantment {
    std::int32_t SpellID = 0;        // a 16-bit value read signed: cooldowns are negative
    std::int32_t TimeRemaining = 0;  // seconds; 0 or less for one that doesn't end
    std::int32_t Family = 0;

    friend bool operator==(const Enchantment&, const Enchantment&) = default;
};

// Vitals by the game's numbers.
namespace vital {
constexpr std::int32_t kHealth = 2;
constexpr std::int32_t kStamina = 4;
constexpr std::int32_t kMana = 6;
}  // namespace vital

class CharacterStats {
public:
    virtual ~CharacterStats() = default;

    virtual Id Character() const = 0;
    virtual std::int32_t Level() const = 0;
    virtual std::string Server() const = 0;
    virtual std::string Name() const = 0;
    virtual std::int32_t Health() const = 0;
    virtual std::int32_t Stamina() const = 0;
    virtual std::int32_t Mana() const = 0;
    virtual std::int32_t Vital(std::int32_t code) const = 0;  // the maximum of a vital
    virtual std::int32_t Skill(std::int32_t code) const = 0;  // effective value of a skill
    virtual std::int32_t Vitae() const = 0;                   // percent
    virtual std::int32_t Followers() const = 0;               // direct vassals
    virtual std::int32_t AllegianceSize() const = 0;          // the monarchy, its head included

    virtual std::int32_t EnchantmentCount() const = 0;
    virtual host::Enchantment Enchantment(std::int32_t index) const = 0;  // index from 0

    // Whether the character has the augmentation, and how often.
    virtual bool Augmentation(std::int32_t id, std::int32_t& count) const = 0;

    // No figure above holds before this event.
    std::function<void()> LoginComplete;
    std::function<void(std::int32_t kind)> Logoff;  // may come twice for one logoff
    std::function<void(std::int32_t vital, std::int32_t value)> ChangeVital;
    std::function<void(std::int32_t change, const host::Enchantment& enchantment)> ChangeEnchantments;
    std::function<void(std::int32_t mode)> ChangePortalMode;
    std::function<void(const std::string& text)> Death;
};

}  // namespace ombrel::host
