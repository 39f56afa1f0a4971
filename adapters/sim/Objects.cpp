#include "adapters/sim/Objects.h"

#include <algorithm>

namespace ombrel::sim {

host::Id Object::Holder() const {
    if (Container.value_or(0) != 0) return *Container;
    const auto wielder = Long.find(kWielderKey);
    return wielder == Long.end() ? 0 : wielder->second;
}

Object& Objects::Make(host::Id id) {
    auto& object = by_id_[id];
    if (!object) {
        object = std::make_shared<Object>();
        object->id = id;
        objects_.push_back(object);
        numbers_.push_back(++created_);
    }
    return *object;
}

std::shared_ptr<Object> Objects::Find(host::Id id) const {
    const auto found = by_id_.find(id);
    return found == by_id_.end() ? nullptr : found->second;
}

void Objects::Remove(host::Id id) {
    const auto found = by_id_.find(id);
    if (found == by_id_.end()) return;
    const auto place = std::ranges::find(objects_, found->second);
    numbers_.erase(numbers_.begin() + (place - objects_.begin()));
    objects_.erase(place);
    by_id_.erase(found);
}

std::shared_ptr<Object> Objects::After(std::uint64_t& number) const {
    const auto next = std::ranges::upper_bound(numbers_, number);
    if (next == numbers_.end()) return nullptr;
    number = *next;
    return objects_[static_cast<std::size_t>(next - numbers_.begin())];
}

bool Objects::Carries(host::Id owner, const Object& object) const {
    if (owner == 0) return false;
    // A pack can't hold more packs than there are things: a longer chain is a ring.
    host::Id holder = object.Holder();
    for (std::size_t links = 0; holder != 0 && links <= objects_.size(); ++links) {
        if (holder == owner) return true;
        const auto found = by_id_.find(holder);
        if (found == by_id_.end()) return false;
        holder = found->second->Holder();
    }
    return false;
}

}  // namespace ombrel::sim
