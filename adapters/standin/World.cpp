#include "adapters/standin/World.h"

#include "adapters/sim/World.h"

namespace ombrel::standin {

namespace {

// The object that an event brings says who it is without being asked in earnest.
class EventObject final : public WorldObject {
public:
    EventObject(host::Id id, host::WorldObjectPtr object) : WorldObject(std::move(object)), id_(id) {}

    STDMETHOD(get_GUID)(long* id) override {
        return Serve([&] { *id = id_; });
    }

private:
    host::Id id_;
};

// Hands out the next object of a walk. The caller's last one is released when there is a next, and stays with the
// caller at the end.
HRESULT Step(host::WorldIterator* walk, IWorldObject** object, VARIANT_BOOL* there) {
    const host::WorldObjectPtr next = walk ? walk->Next() : nullptr;
    *there = ToVariantBool(next != nullptr);
    if (!next) return S_FALSE;
    if (*object) (*object)->Release();
    *object = Make<WorldObject>(next).Detach();
    return S_OK;
}

void Give(host::WorldIteratorPtr walk, IWorldIterator** result) {
    *result = Make<WorldIterator>(std::move(walk)).Detach();
}

}  // namespace

HRESULT WorldObject::get_GUID(long* id) {
    return Serve([&] { *id = object_->GUID(); });
}

HRESULT WorldObject::Coordinates(double* north_south, double* east_west, VARIANT_BOOL* there) {
    return Serve([&] {
        const auto place = object_->Coordinates();
        *there = ToVariantBool(place.has_value());
        if (!place) return;
        *north_south = place->ns;
        *east_west = place->ew;
    });
}

HRESULT WorldObject::get_ObjectClass(long* type) {
    return Serve([&] { *type = object_->Type(); });
}

HRESULT WorldObject::get_HasIdData(VARIANT_BOOL* identified) {
    return Serve([&] { *identified = ToVariantBool(object_->HasIdData() != 0); });
}

HRESULT WorldObject::get_LastIdTime(long* moment) {
    return Serve([&] { *moment = object_->LastIdTime(); });
}

HRESULT WorldObject::Longs(long key, long fallback, long* value) {
    return Serve([&] { *value = object_->Long(key, fallback); });
}

HRESULT WorldObject::Doubles(long key, double fallback, double* value) {
    return Serve([&] { *value = object_->Double(key, fallback); });
}

HRESULT WorldObject::Bools(long key, VARIANT_BOOL fallback, VARIANT_BOOL* value) {
    return Serve([&] { *value = ToVariantBool(object_->Bool(key, fallback != VARIANT_FALSE)); });
}

// Names are strings like others, the short form under key 1.
HRESULT WorldObject::Strings(long key, BSTR fallback, BSTR* value) {
    return Serve([&] {
        *value = NewText(key == 1 ? object_->Name(1, Narrow(fallback)) : object_->String(key, Narrow(fallback)));
    });
}

HRESULT WorldObject::LongExists(long key, long* value, VARIANT_BOOL* there) {
    return Serve([&] {
        *there = ToVariantBool(object_->LongExists(key));
        *value = 0;
    });
}

HRESULT WorldObject::get_Name(BSTR* name) {
    return Serve([&] { *name = NewText(object_->Name()); });
}

HRESULT WorldObject::get_Container(long* id) {
    return Serve([&] { *id = object_->Container(); });
}

HRESULT WorldIterator::Next(IWorldObject** object, VARIANT_BOOL* there) {
    return Serve([&] { return Step(walk_.get(), object, there); });
}

HRESULT WorldIterator::ByName(BSTR name) {
    return Serve([&] { walk_->ByName(Narrow(name)); });
}

HRESULT WorldIterator::ByNameSubstring(BSTR text) {
    return Serve([&] { walk_->ByNameSubstring(Narrow(text)); });
}

HRESULT Vendor::Next(IWorldObject** object, VARIANT_BOOL* there) {
    return Serve([&] { return Step(walk_.get(), object, there); });
}

HRESULT Vendor::ByName(BSTR name) {
    return Serve([&] {
        if (walk_)
            walk_->ByName(Narrow(name));
        else if (vendor_)
            walk_ = vendor_->ByName(Narrow(name));
    });
}

HRESULT Vendor::get_BuyRate(float* rate) {
    return Serve([&] { *rate = vendor_ ? vendor_->SellRate() : 0.0f; });
}

World::World(sim::Client& client, std::unique_ptr<host::World> world)
    : SourceObject(IWorldEvents::kId), client_(client), world_(std::move(world)) {
    world_->CreateObject = [this](host::Id id) { events.Raise(IWorldEvents::kCreateObject, ObjectOfEvent(id).get()); };
    world_->ChangeObject = [this](host::Id id, std::int32_t change) {
        events.Raise(IWorldEvents::kChangeObject, ObjectOfEvent(id).get(), change);
    };
    world_->MoveObject = [this](host::Id id) { events.Raise(IWorldEvents::kMoveObject, ObjectOfEvent(id).get()); };
    world_->ReleaseObject = [this](host::Id id) {
        events.Raise(IWorldEvents::kReleaseObject, ObjectOfEvent(id).get());
    };
}

Ref<IWorldObject> World::ObjectOfEvent(host::Id id) {
    std::shared_ptr<const sim::Object> known = client_.ShareObject(id);
    if (!known) {
        auto nameless = std::make_shared<sim::Object>();
        nameless->id = id;
        known = std::move(nameless);
    }
    return Make<EventObject>(id, std::make_shared<sim::SimWorldObject>(client_.calls, std::move(known))).get();
}

HRESULT World::get_Item(long id, IWorldObject** object) {
    return Serve([&] {
        *object = nullptr;
        const host::WorldObjectPtr found = world_->Object(id);
        if (!found) return S_FALSE;
        *object = Make<WorldObject>(found).Detach();
        return S_OK;
    });
}

HRESULT World::get_ByName(BSTR name, IWorldIterator** walk) {
    return Serve([&] { Give(world_->ByName(Narrow(name)), walk); });
}

HRESULT World::get_All(IWorldIterator** walk) {
    return Serve([&] { Give(world_->All(), walk); });
}

HRESULT World::get_ByNameSubstring(BSTR text, IWorldIterator** walk) {
    return Serve([&] { Give(world_->ByNameSubstring(Narrow(text)), walk); });
}

HRESULT World::get_Inventory(IWorldIterator** walk) {
    return Serve([&] { Give(world_->Inventory(), walk); });
}

HRESULT World::get_ByOwner(long id, IWorldIterator** walk) {
    return Serve([&] {
        if (id != client_.sheet.Character) return NotOffered();
        Give(world_->Owned(), walk);
        return S_OK;
    });
}

HRESULT World::get_Landscape(IWorldIterator** walk) {
    return Serve([&] { Give(world_->Landscape(), walk); });
}

HRESULT World::get_Vendor(IVendor** vendor) {
    return Serve([&] { *vendor = Make<Vendor>(world_->Vendor()).Detach(); });
}

}  // namespace ombrel::standin
