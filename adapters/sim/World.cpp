#include "adapters/sim/World.h"

#include <algorithm>
#include <utility>

namespace ombrel::sim {

namespace {

template <class Map>
auto ValueOr(const Map& map, std::int32_t key, typename Map::mapped_type fallback) {
    const auto found = map.find(key);
    return found == map.end() ? fallback : found->second;
}

}  // namespace

host::Id SimWorldObject::GUID() const {
    calls_.Note("WorldObject.GUID"_op);
    return object_->id;
}

std::optional<host::Position> SimWorldObject::Coordinates() const {
    calls_.Note("WorldObject.Coordinates"_op);
    return object_->Coordinates;
}

std::int32_t SimWorldObject::Type() const {
    calls_.Note("WorldObject.Type"_op);
    return object_->Type;
}

std::int32_t SimWorldObject::LastIdTime() const {
    calls_.Note("WorldObject.LastIdTime"_op);
    return object_->LastIdTime;
}

std::int32_t SimWorldObject::HasIdData() const {
    calls_.Note("WorldObject.HasIdData"_op);
    return object_->HasIdData;
}

// The holder is the container alone: what is worn has none.
std::int32_t SimWorldObject::Long(std::int32_t key, std::int32_t fallback) const {
    calls_.Note("WorldObject.Long"_op);
    return ValueOr(object_->Long, key, key == host::key::kHolder ? object_->Container.value_or(0) : fallback);
}

bool SimWorldObject::LongExists(std::int32_t key) const {
    calls_.Note("WorldObject.LongExists"_op);
    return key == host::key::kHolder || object_->Long.contains(key);
}

double SimWorldObject::Double(std::int32_t key, double fallback) const {
    calls_.Note("WorldObject.Double"_op);
    return ValueOr(object_->Double, key, fallback);
}

bool SimWorldObject::Bool(std::int32_t key, bool fallback) const {
    calls_.Note("WorldObject.Bool"_op);
    return ValueOr(object_->Bool, key, fallback);
}

std::string SimWorldObject::String(std::int32_t key, std::string_view fallback) const {
    calls_.Note("WorldObject.String"_op);
    return ValueOr(object_->String, key, std::string(fallback));
}

// Names are strings like others to the framework, the short form under key 1.
std::string SimWorldObject::Name(std::int32_t kind, std::string_view fallback) const {
    calls_.Note("WorldObject.Name"_op);
    if (kind == 1) return object_->ShortName.value_or(object_->Name);
    return ValueOr(object_->String, kind, std::string(fallback));
}

std::string SimWorldObject::Name() const {
    calls_.Note("WorldObject.Name"_op);
    return object_->Name;
}

host::Id SimWorldObject::Container() const {
    calls_.Note("WorldObject.Container"_op);
    return object_->Holder();
}

host::WorldObjectPtr SimIterator::Next() {
    calls_.Note("WorldIterator.Next"_op);
    while (auto object = step_()) {
        if (Fits(*object)) return std::make_shared<SimWorldObject>(calls_, std::move(object));
    }
    return nullptr;
}

void SimIterator::ByName(std::string_view name) {
    calls_.Note("WorldIterator.ByName"_op);
    Require(name, true);
}

void SimIterator::ByNameSubstring(std::string_view text) {
    calls_.Note("WorldIterator.ByNameSubstring"_op);
    Require(text, false);
}

bool SimIterator::Fits(const Object& object) const {
    return std::ranges::all_of(conditions_, [&](const Condition& condition) {
        return condition.whole ? object.Name == condition.name : object.Name.find(condition.name) != std::string::npos;
    });
}

float SimVendor::SellRate() const {
    client_.calls.Note("Vendor.SellRate"_op);
    return client_.vendor.SellRate;
}

host::WorldIteratorPtr SimVendor::ByName(std::string_view name) {
    client_.calls.Note("Vendor.ByName"_op);
    auto step = [&client = client_, goods = client_.vendor.items,
                 next = std::size_t{0}]() mutable -> std::shared_ptr<const Object> {
        while (next < goods.size()) {
            if (auto object = client.objects_.Find(goods[next++])) return object;
        }
        return nullptr;
    };
    auto walk = std::make_unique<SimIterator>(client_.calls, std::move(step));
    walk->Require(name, true);
    return walk;
}

host::WorldObjectPtr SimWorld::Object(host::Id id) {
    client_.calls.Note("World.Object"_op);
    auto object = client_.objects_.Find(id);
    return object ? std::make_shared<SimWorldObject>(client_.calls, std::move(object)) : nullptr;
}

host::WorldIteratorPtr SimWorld::ByName(std::string_view name) {
    client_.calls.Note("World.ByName"_op);
    auto walk = Walk(Scope::kAll);
    walk->Require(name, true);
    return walk;
}

host::WorldIteratorPtr SimWorld::ByNameSubstring(std::string_view text) {
    client_.calls.Note("World.ByNameSubstring"_op);
    auto walk = Walk(Scope::kAll);
    walk->Require(text, false);
    return walk;
}

host::WorldIteratorPtr SimWorld::All() {
    client_.calls.Note("World.All"_op);
    return Walk(Scope::kAll);
}

host::WorldIteratorPtr SimWorld::Inventory() {
    client_.calls.Note("World.Inventory"_op);
    return Walk(Scope::kCarried);
}

host::WorldIteratorPtr SimWorld::Owned() {
    client_.calls.Note("World.Owned"_op);
    return Walk(Scope::kCarried);
}

host::WorldIteratorPtr SimWorld::Landscape() {
    client_.calls.Note("World.Landscape"_op);
    return Walk(Scope::kLandscape);
}

std::unique_ptr<host::Vendor> SimWorld::Vendor() {
    client_.calls.Note("World.Vendor"_op);
    return client_.vendor.open ? std::make_unique<SimVendor>(client_) : nullptr;
}

// What comes into the world during a walk is not part of it.
std::unique_ptr<SimIterator> SimWorld::Walk(Scope scope) {
    auto step = [&client = client_, scope, number = std::uint64_t{0},
                 last = client_.objects_.newest()]() mutable -> std::shared_ptr<const sim::Object> {
        const Objects& objects = client.objects_;
        while (auto object = objects.After(number)) {
            if (number > last) return nullptr;
            if (scope == Scope::kCarried && !objects.Carries(client.sheet.Character, *object)) continue;
            if (scope == Scope::kLandscape && object->Holder() != 0) continue;
            return object;
        }
        return nullptr;
    };
    return std::make_unique<SimIterator>(client_.calls, std::move(step));
}

}  // namespace ombrel::sim
