// What the client knows of objects: in the packs, on the landscape, at the vendor.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "host/Types.h"

namespace ombrel::host {

// Keys of numeric properties, as the framework numbers them.
namespace key {
constexpr std::int32_t kIcon = 0x0D000001;        // without the 0x06000000 base
constexpr std::int32_t kHolder = 0x0D000002;      // what holds it; 0 for worn things
constexpr std::int32_t kStackCount = 0x0D000006;  // 0 for what doesn't stack
constexpr std::int32_t kStackMaximum = 0x0D000007;
constexpr std::int32_t kMana = 0x6B;  // mana that an item holds now
}  // namespace key

// Classes of objects that the plug-in tells apart.
namespace object_class {
constexpr std::int32_t kCreature = 5;
constexpr std::int32_t kFood = 6;
constexpr std::int32_t kHealingKit = 29;
constexpr std::int32_t kNpc = 37;
}  // namespace object_class

// One object. It may outlive the thing in the world that it tells of; ask ACHooks::IsValidObject before acting on it.
class WorldObject {
public:
    virtual ~WorldObject() = default;

    virtual Id GUID() const = 0;
    virtual std::optional<Position> Coordinates() const = 0;  // nothing when it has no place on the map
    virtual std::int32_t Type() const = 0;                    // object class
    virtual std::int32_t LastIdTime() const = 0;              // seconds since 1970, universal time; 0 for never
    virtual std::int32_t HasIdData() const = 0;               // 0 when it has not been identified

    virtual std::int32_t Long(std::int32_t key, std::int32_t fallback) const = 0;
    virtual bool LongExists(std::int32_t key) const = 0;
    virtual double Double(std::int32_t key, double fallback) const = 0;
    virtual bool Bool(std::int32_t key, bool fallback) const = 0;
    virtual std::string String(std::int32_t key, std::string_view fallback) const = 0;

    virtual std::string Name(std::int32_t kind, std::string_view fallback) const = 0;  // kind 1 is the short form
    virtual std::string Name() const = 0;
    virtual Id Container() const = 0;  // what holds it, else who wears it, else 0
};

using WorldObjectPtr = std::shared_ptr<const WorldObject>;

// A walk over objects in the client's order. Conditions narrow what is still to come.
class WorldIterator {
public:
    virtual ~WorldIterator() = default;

    virtual WorldObjectPtr Next() = 0;  // nothing at the end
    virtual void ByName(std::string_view name) = 0;
    virtual void ByNameSubstring(std::string_view text) = 0;
};

using WorldIteratorPtr = std::unique_ptr<WorldIterator>;

// The open vendor.
class Vendor {
public:
    virtual ~Vendor() = default;

    virtual float SellRate() const = 0;  // the share of its value that the vendor pays for a thing
    virtual WorldIteratorPtr ByName(std::string_view name) = 0;
};

class World {
public:
    virtual ~World() = default;

    virtual WorldObjectPtr Object(Id id) = 0;  // nothing when the client doesn't know it

    // Names compare with case.
    virtual WorldIteratorPtr ByName(std::string_view name) = 0;
    virtual WorldIteratorPtr ByNameSubstring(std::string_view text) = 0;

    virtual WorldIteratorPtr All() = 0;
    virtual WorldIteratorPtr Inventory() = 0;  // all that the character carries and wears
    virtual WorldIteratorPtr Owned() = 0;      // all that belongs to the character; the same set
    virtual WorldIteratorPtr Landscape() = 0;  // all that nothing holds

    virtual std::unique_ptr<host::Vendor> Vendor() = 0;  // nothing when none is open

    std::function<void(Id id)> CreateObject;
    // change: 0 size, 1 storage, 2 identification, 3 the vendor's identification, 4 mana
    std::function<void(Id id, std::int32_t change)> ChangeObject;
    std::function<void(Id id)> MoveObject;
    std::function<void(Id id)> ReleaseObject;
};

}  // namespace ombrel::host
