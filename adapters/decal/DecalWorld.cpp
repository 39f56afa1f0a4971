#include "adapters/decal/DecalWorld.h"

#include "core/failure.h"

namespace ombrel::decal {

namespace {

template <class I>
host::WorldIteratorPtr Walk(Com<I> walk) {
    if (!walk) throw Failure(failure::kNoObject);
    return std::make_unique<DecalIterator<I>>(std::move(walk));
}

// The object that an event of the world is about.
host::Id Subject(const EventArguments& event) { return event.Object<IWorldObject>(0).Read(IWorldObject::GUID); }

}  // namespace

host::Id DecalWorldObject::GUID() const { return object_.Read(IWorldObject::GUID); }

std::optional<host::Position> DecalWorldObject::Coordinates() const {
    host::Position place;
    VARIANT_BOOL found = VARIANT_FALSE;
    object_.Call(IWorldObject::Coordinates, &place.ns, &place.ew, &found);
    if (!ToBool(found)) return std::nullopt;
    return place;
}

std::int32_t DecalWorldObject::Type() const { return object_.Read(IWorldObject::ObjectClass); }
std::int32_t DecalWorldObject::LastIdTime() const { return object_.Read(IWorldObject::LastIdTime); }
std::int32_t DecalWorldObject::HasIdData() const { return object_.Read(IWorldObject::HasIdData) ? 1 : 0; }

std::int32_t DecalWorldObject::Long(std::int32_t key, std::int32_t fallback) const {
    long value = fallback;
    object_.Call(IWorldObject::Longs, key, fallback, &value);
    return static_cast<std::int32_t>(value);
}

bool DecalWorldObject::LongExists(std::int32_t key) const {
    long value = 0;
    VARIANT_BOOL exists = VARIANT_FALSE;
    object_.Call(IWorldObject::LongExists, key, &value, &exists);
    return ToBool(exists);
}

double DecalWorldObject::Double(std::int32_t key, double fallback) const {
    double value = fallback;
    object_.Call(IWorldObject::Doubles, key, fallback, &value);
    return value;
}

bool DecalWorldObject::Bool(std::int32_t key, bool fallback) const {
    VARIANT_BOOL value = ToVariantBool(fallback);
    object_.Call(IWorldObject::Bools, key, ToVariantBool(fallback), &value);
    return ToBool(value);
}

std::string DecalWorldObject::String(std::int32_t key, std::string_view fallback) const {
    Bstr value;
    object_.Call(IWorldObject::Strings, key, Bstr(fallback).get(), value.Out());
    return value.get() ? value.Utf8() : std::string(fallback);
}

// Names are strings like others, the short form under key 1.
std::string DecalWorldObject::Name(std::int32_t kind, std::string_view fallback) const {
    return String(kind, fallback);
}

std::string DecalWorldObject::Name() const { return object_.Read(IWorldObject::Name); }
host::Id DecalWorldObject::Container() const { return object_.Read(IWorldObject::Container); }

template <class I>
host::WorldObjectPtr DecalIterator<I>::Next() {
    // Handed nothing, the walk releases nothing: each object that it gives is ours.
    Com<IWorldObject> object;
    VARIANT_BOOL found = VARIANT_FALSE;
    walk_.Call(I::Next, object.Out(), &found);
    if (!ToBool(found) || !object) return nullptr;
    return std::make_shared<DecalWorldObject>(std::move(object));
}

// What the vendor pays is the framework's rate of buying.
float DecalVendor::SellRate() const { return vendor_.Read(IVendor::BuyRate); }

// Each walk is on an object of its own, since conditions add up.
host::WorldIteratorPtr DecalVendor::ByName(std::string_view name) {
    auto walk = Walk(world_.Read(IWorld::Vendor));
    walk->ByName(name);
    return walk;
}

DecalWorld::DecalWorld(Com<IWorld> world, Com<IACHooks> hooks)
    : world_(std::move(world)), hooks_(std::move(hooks)), events_(world_.Unknown(), IWorldEvents::kIid, Handlers()) {}

host::WorldObjectPtr DecalWorld::Object(host::Id id) {
    auto object = world_.Read(IWorld::Item, id);
    if (!object) return nullptr;
    return std::make_shared<DecalWorldObject>(std::move(object));
}

host::WorldIteratorPtr DecalWorld::ByName(std::string_view name) {
    return Walk(world_.Read(IWorld::ByName, Bstr(name).get()));
}

host::WorldIteratorPtr DecalWorld::ByNameSubstring(std::string_view text) {
    return Walk(world_.Read(IWorld::ByNameSubstring, Bstr(text).get()));
}

host::WorldIteratorPtr DecalWorld::All() { return Walk(world_.Read(IWorld::All)); }
host::WorldIteratorPtr DecalWorld::Inventory() { return Walk(world_.Read(IWorld::Inventory)); }
host::WorldIteratorPtr DecalWorld::Owned() { return Inventory(); }
host::WorldIteratorPtr DecalWorld::Landscape() { return Walk(world_.Read(IWorld::Landscape)); }

std::unique_ptr<host::Vendor> DecalWorld::Vendor() {
    if (hooks_.Read(IACHooks::VendorID) == 0) return nullptr;
    auto vendor = world_.Read(IWorld::Vendor);
    if (!vendor) return nullptr;
    return std::make_unique<DecalVendor>(world_, std::move(vendor));
}

Events::Table DecalWorld::Handlers() {
    using Source = IWorldEvents;
    return {
        {Source::CreateObject, [this](const EventArguments& event) { Raise(CreateObject, Subject(event)); }},
        {Source::ReleaseObject, [this](const EventArguments& event) { Raise(ReleaseObject, Subject(event)); }},
        {Source::ChangeObject,
         [this](const EventArguments& event) { Raise(ChangeObject, Subject(event), event.Long(1)); }},
        {Source::MoveObject, [this](const EventArguments& event) { Raise(MoveObject, Subject(event)); }},
    };
}

template class DecalIterator<IWorldIterator>;
template class DecalIterator<IVendor>;

}  // namespace ombrel::decal
