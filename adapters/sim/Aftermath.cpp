#include "adapters/sim/Aftermath.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace ombrel::sim {

std::int32_t Long(const Object& object, std::int32_t key) {
    const auto found = object.Long.find(key);
    return found == object.Long.end() ? 0 : found->second;
}

double Double(const Object& object, std::int32_t key) {
    const auto found = object.Double.find(key);
    return found == object.Double.end() ? 0.0 : found->second;
}

std::int32_t StackOf(const Object& object) { return std::max(Long(object, host::key::kStackCount), 1); }

std::int32_t Clamped(std::int64_t number) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(number, Limits::min(), Limits::max()));
}

std::string Grouped(std::int64_t number) {
    std::string text = std::to_string(number);
    const std::size_t sign = number < 0 ? 1 : 0;
    for (std::size_t place = text.size(); place > sign + 3;) text.insert(place -= 3, ",");
    return text;
}

void Aftermath::Occupy(milliseconds time, std::function<void()> done) {
    ++busy_;
    client.hooks.BusyState = 1;
    After(time, [this, done = std::move(done)] {
        if (--busy_ == 0) client.hooks.BusyState = 0;
        done();
    });
}

std::vector<Object*> Aftermath::Carried(std::string_view name) {
    std::vector<Object*> carried;
    for (const auto& object : client.objects()) {
        if (client.Carries(*object) && (name.empty() || object->Name == name)) carried.push_back(object.get());
    }
    return carried;
}

std::int32_t Aftermath::Current(std::int32_t vital) const {
    const Sheet& sheet = client.sheet;
    return vital == host::vital::kHealth ? sheet.Health : vital == host::vital::kStamina ? sheet.Stamina : sheet.Mana;
}

std::int32_t Aftermath::Maximum(std::int32_t vital) const {
    const auto maximum = client.sheet.Vital.find(vital);
    return maximum == client.sheet.Vital.end() ? 0 : maximum->second;
}

std::int32_t Aftermath::Missing(std::int32_t vital) const {
    return Clamped(std::max<std::int64_t>(std::int64_t{Maximum(vital)} - Current(vital), 0));
}

// What is above the maximum stays there.
void Aftermath::Restore(std::int32_t vital, std::int32_t amount) {
    const std::int64_t now = Current(vital);
    const std::int64_t most = std::max<std::int64_t>({now, Maximum(vital), 0});
    client.ChangeVital(vital, Clamped(std::clamp<std::int64_t>(now + amount, 0, most)));
}

void Aftermath::SetStack(Object& stack, std::int32_t count) {
    if (count <= 0) return Vanish(stack.id);
    Resize(stack, count);
    client.ChangeObject(stack.id, change::kSize);
}

Object& Aftermath::Copy(const Object& original, std::int32_t count, host::Id container) {
    const Object model = original;
    Object& copy = Make(model.Name, model.Type);
    const host::Id id = copy.id;
    copy = model;
    copy.id = id;
    copy.Container = container;
    copy.Coordinates.reset();
    copy.Long.erase(kWielderKey);
    Resize(copy, count);
    return copy;
}

Object& Aftermath::Make(std::string_view name, std::int32_t type) {
    while (client.FindObject(next_id_)) ++next_id_;
    Object& made = client.object(next_id_++);
    made.Name = name;
    made.Type = type;
    return made;
}

// The client tells of a thing that goes while it still knows it.
void Aftermath::Vanish(host::Id id) {
    client.ReleaseObject(id);
    client.RemoveObject(id);
}

void Aftermath::Resize(Object& stack, std::int32_t count) {
    const std::int64_t before = StackOf(stack);
    for (const std::int32_t key : {property::kValue, property::kBurden}) {
        const auto sum = stack.Long.find(key);
        if (sum != stack.Long.end()) sum->second = Clamped(sum->second * std::int64_t{count} / before);
    }
    if (stack.Long.contains(host::key::kStackCount) || count > 1) stack.Long[host::key::kStackCount] = count;
}

}  // namespace ombrel::sim
