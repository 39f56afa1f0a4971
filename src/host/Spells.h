// The game's spell table, as the framework's spell service offers it.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace ombrel::host {

class Spell {
public:
    virtual ~Spell() = default;

    virtual std::int32_t ID() const = 0;
    virtual std::string Name() const = 0;
    virtual std::string Description() const = 0;
    virtual std::int32_t School() const = 0;
    virtual std::int32_t Icon() const = 0;
    virtual std::int32_t Effect() const = 0;  // the family
    virtual std::int32_t Flags() const = 0;
    virtual std::int32_t ManaCost() const = 0;
    virtual std::int32_t Diff() const = 0;
    virtual std::int32_t Version() const = 0;
    virtual std::int32_t Type() const = 0;
    virtual double Duration() const = 0;  // seconds, -1 for a spell without one
    virtual bool Researchable() const = 0;
    virtual std::int32_t ComponentCount() const = 0;
    virtual std::int32_t TargetMask() const = 0;
    virtual float RangeBase() const = 0;
    virtual float RangeModifier() const = 0;
    virtual float Speed() const = 0;
    virtual std::int32_t SortOrder() const = 0;
    virtual std::int32_t EffectOnCaster() const = 0;
    virtual std::int32_t EffectOnTarget() const = 0;
};

using SpellPtr = std::shared_ptr<const Spell>;

class Spells {
public:
    virtual ~Spells() = default;

    // Nothing for a spell that the table lacks. Of several spells of one name, the one with the lowest id.
    virtual SpellPtr ByID(std::int32_t id) = 0;
    virtual SpellPtr ByName(std::string_view name) = 0;

    std::function<void()> Login;
};

}  // namespace ombrel::host
