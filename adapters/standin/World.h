// What the framework knows of the world.
#pragma once

#include <memory>

#include "adapters/sim/Client.h"
#include "adapters/standin/EventSource.h"
#include "adapters/standin/declarations/DecalFilters.h"

namespace ombrel::standin {

class WorldObject : public Object<IWorldObject> {
public:
    explicit WorldObject(host::WorldObjectPtr object) : object_(std::move(object)) {}

    STDMETHOD(get_GUID)(long* id) override;
    STDMETHOD(Coordinates)(double* north_south, double* east_west, VARIANT_BOOL* there) override;
    STDMETHOD(get_ObjectClass)(long* type) override;
    STDMETHOD(get_HasIdData)(VARIANT_BOOL* identified) override;
    STDMETHOD(get_LastIdTime)(long* moment) override;
    STDMETHOD(Longs)(long key, long fallback, long* value) override;
    STDMETHOD(Doubles)(long key, double fallback, double* value) override;
    STDMETHOD(Bools)(long key, VARIANT_BOOL fallback, VARIANT_BOOL* value) override;
    STDMETHOD(Strings)(long key, BSTR fallback, BSTR* value) override;
    STDMETHOD(LongExists)(long key, long* value, VARIANT_BOOL* there) override;
    STDMETHOD(get_Name)(BSTR* name) override;
    STDMETHOD(get_Container)(long* id) override;

private:
    host::WorldObjectPtr object_;
};

class WorldIterator final : public Object<IWorldIterator> {
public:
    explicit WorldIterator(host::WorldIteratorPtr walk) : walk_(std::move(walk)) {}

    STDMETHOD(Next)(IWorldObject** object, VARIANT_BOOL* there) override;
    STDMETHOD(ByName)(BSTR name) override;
    STDMETHOD(ByNameSubstring)(BSTR text) override;

private:
    host::WorldIteratorPtr walk_;
};

// The goods of the open vendor; of none when there is none.
class Vendor final : public Object<IVendor> {
public:
    explicit Vendor(std::unique_ptr<host::Vendor> vendor) : vendor_(std::move(vendor)) {}

    STDMETHOD(Next)(IWorldObject** object, VARIANT_BOOL* there) override;
    STDMETHOD(ByName)(BSTR name) override;
    STDMETHOD(get_BuyRate)(float* rate) override;

private:
    std::unique_ptr<host::Vendor> vendor_;
    host::WorldIteratorPtr walk_;
};

class World final : public SourceObject<IWorld> {
public:
    World(sim::Client& client, std::unique_ptr<host::World> world);

    STDMETHOD(get_Item)(long id, IWorldObject** object) override;
    STDMETHOD(get_ByName)(BSTR name, IWorldIterator** walk) override;
    STDMETHOD(get_All)(IWorldIterator** walk) override;
    STDMETHOD(get_ByNameSubstring)(BSTR text, IWorldIterator** walk) override;
    STDMETHOD(get_Inventory)(IWorldIterator** walk) override;
    STDMETHOD(get_ByOwner)(long id, IWorldIterator** walk) override;
    STDMETHOD(get_Landscape)(IWorldIterator** walk) override;
    STDMETHOD(get_Vendor)(IVendor** vendor) override;

private:
    Ref<IWorldObject> ObjectOfEvent(host::Id id);

    sim::Client& client_;
    std::unique_ptr<host::World> world_;
};

}  // namespace ombrel::standin
