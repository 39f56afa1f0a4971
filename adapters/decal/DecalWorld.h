// The world's objects.
#pragma once

#include "adapters/decal/Com.h"
#include "adapters/decal/EventSink.h"
#include "adapters/decal/interfaces/Decal.h"
#include "adapters/decal/interfaces/DecalFilters.h"
#include "host/World.h"

namespace ombrel::decal {

class DecalWorldObject final : public host::WorldObject {
public:
    explicit DecalWorldObject(Com<IWorldObject> object) : object_(std::move(object)) {}

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
    Com<IWorldObject> object_;
};

// A walk of the framework's: IWorldIterator, or IVendor for the goods of a vendor.
template <class I>
class DecalIterator final : public host::WorldIterator {
public:
    explicit DecalIterator(Com<I> walk) : walk_(std::move(walk)) {}

    host::WorldObjectPtr Next() override;
    void ByName(std::string_view name) override { walk_.Call(I::ByName, Bstr(name).get()); }
    void ByNameSubstring(std::string_view text) override { walk_.Call(I::ByNameSubstring, Bstr(text).get()); }

private:
    Com<I> walk_;
};

class DecalVendor final : public host::Vendor {
public:
    DecalVendor(Com<IWorld> world, Com<IVendor> vendor) : world_(std::move(world)), vendor_(std::move(vendor)) {}

    float SellRate() const override;
    host::WorldIteratorPtr ByName(std::string_view name) override;

private:
    Com<IWorld> world_;
    Com<IVendor> vendor_;
};

class DecalWorld final : public host::World {
public:
    // `hooks` tells whether a vendor is open.
    DecalWorld(Com<IWorld> world, Com<IACHooks> hooks);

    host::WorldObjectPtr Object(host::Id id) override;
    host::WorldIteratorPtr ByName(std::string_view name) override;
    host::WorldIteratorPtr ByNameSubstring(std::string_view text) override;
    host::WorldIteratorPtr All() override;
    host::WorldIteratorPtr Inventory() override;
    host::WorldIteratorPtr Owned() override;
    host::WorldIteratorPtr Landscape() override;
    std::unique_ptr<host::Vendor> Vendor() override;

private:
    Events::Table Handlers();

    Com<IWorld> world_;
    Com<IACHooks> hooks_;
    Events events_;
};

}  // namespace ombrel::decal
