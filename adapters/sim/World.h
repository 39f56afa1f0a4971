// What a plug-in is told of the world: its objects, walks over them, the open vendor.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sim/Client.h"
#include "host/World.h"

namespace ombrel::sim {

// One object as it is now; after it has left the world, as it was last.
class SimWorldObject final : public host::WorldObject {
public:
    SimWorldObject(Calls& calls, std::shared_ptr<const Object> object) : calls_(calls), object_(std::move(object)) {}

    host::Id GUID() const override;
    std::optional<host::Position> Coordinates() const override;
    std::int32_t Type() const override;
    std::int32_t LastIdTime() const override;
    std::int32_t HasIdData() const override;

    std::int32_t Long(std::int32_t key, std::int32_t fallback) const override;
    bool LongExists(std::int32_t key) const override;
    double Double(std::int32_t key, double fallback) const override;
    bool Bool(std::int32_t key, bool fallback) const override;
    std::string String(std::int32_t key, std::string_view fallback) const override;

    std::string Name(std::int32_t kind, std::string_view fallback) const override;
    std::string Name() const override;
    host::Id Container() const override;

private:
    Calls& calls_;
    std::shared_ptr<const Object> object_;
};

class SimIterator final : public host::WorldIterator {
public:
    using Step = std::function<std::shared_ptr<const Object>()>;  // the next object, nothing at the end

    SimIterator(Calls& calls, Step step) : calls_(calls), step_(std::move(step)) {}

    host::WorldObjectPtr Next() override;
    void ByName(std::string_view name) override;
    void ByNameSubstring(std::string_view text) override;

    void Require(std::string_view name, bool whole) { conditions_.push_back({std::string(name), whole}); }

private:
    struct Condition {
        std::string name;
        bool whole;
    };
    bool Fits(const Object& object) const;

    Calls& calls_;
    Step step_;
    std::vector<Condition> conditions_;
};

class SimVendor final : public host::Vendor {
public:
    explicit SimVendor(Client& client) : client_(client) {}

    float SellRate() const override;
    host::WorldIteratorPtr ByName(std::string_view name) override;

private:
    Client& client_;
};

class SimWorld final : public host::World {
public:
    explicit SimWorld(Client& client) : client_(client), place_(client.world_objects_, *this) {}

    host::WorldObjectPtr Object(host::Id id) override;
    host::WorldIteratorPtr ByName(std::string_view name) override;
    host::WorldIteratorPtr ByNameSubstring(std::string_view text) override;
    host::WorldIteratorPtr All() override;
    host::WorldIteratorPtr Inventory() override;
    host::WorldIteratorPtr Owned() override;
    host::WorldIteratorPtr Landscape() override;
    std::unique_ptr<host::Vendor> Vendor() override;

private:
    enum class Scope { kAll, kCarried, kLandscape };
    std::unique_ptr<SimIterator> Walk(Scope scope);

    Client& client_;
    Copies<SimWorld>::Place place_;
};

}  // namespace ombrel::sim
