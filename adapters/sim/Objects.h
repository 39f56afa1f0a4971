// The things of the simulated world, in the order in which they came.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/Types.h"

namespace ombrel::sim {

// Keys of numeric properties that say where an object is.
constexpr std::int32_t kWielderKey = 0x0D00000A;

// An object of the world.
struct Object {
    host::Id id = 0;
    std::string Name;
    std::optional<std::string> ShortName;  // Name where it is not given
    std::int32_t Type = 0;
    std::optional<host::Id> Container;  // without one, the wielder holds it
    std::optional<host::Position> Coordinates;
    std::int32_t LastIdTime = 0;
    std::int32_t HasIdData = 0;
    std::map<std::int32_t, std::int32_t> Long;
    std::map<std::int32_t, double> Double;
    std::map<std::int32_t, bool> Bool;
    std::map<std::int32_t, std::string> String;
    bool valid = true;

    // What holds it, else who wields it, else 0.
    host::Id Holder() const;
};

class Objects {
public:
    // The object of that id, created at the end of the order when it is new.
    Object& Make(host::Id id);
    std::shared_ptr<Object> Find(host::Id id) const;  // nothing when there is none
    void Remove(host::Id id);

    const std::vector<std::shared_ptr<Object>>& all() const { return objects_; }

    // Walks bear that objects come and go: each object has its number, in the order of creation.
    std::uint64_t newest() const { return created_; }
    std::shared_ptr<Object> After(std::uint64_t& number) const;  // the next one, whose number it sets

    // Whether the chain of what holds an object ends at the owner.
    bool Carries(host::Id owner, const Object& object) const;

private:
    std::vector<std::shared_ptr<Object>> objects_;
    std::vector<std::uint64_t> numbers_;  // of the same places
    std::unordered_map<host::Id, std::shared_ptr<Object>> by_id_;
    std::uint64_t created_ = 0;
};

}  // namespace ombrel::sim
