#include "adapters/sim/Hooks.h"

namespace ombrel::sim {

void SimHooks::ChatOut(std::string_view text, std::int32_t color, std::int32_t window) {
    client_.calls.Note("ACHooks.ChatOut"_op, {{"text", text}, {"color", color}, {"window", window}});
    client_.Show(text, color, window, true);
}

void SimHooks::ChatOutRaw(std::string_view text, std::int32_t color, std::int32_t window) {
    client_.calls.Note("ACHooks.ChatOutRaw"_op, {{"text", text}, {"color", color}, {"window", window}});
    client_.Show(text, color, window, true);
}

void SimHooks::InvokeChatParser(std::string_view text) {
    client_.calls.Note("ACHooks.InvokeChatParser"_op, {{"text", text}});
}

void SimHooks::SetIdleTime(double seconds) { client_.calls.Note("ACHooks.SetIdleTime"_op, {{"seconds", seconds}}); }

host::Id SimHooks::CurrentSelection() const {
    return Ask("ACHooks.CurrentSelection"_op, client_.hooks.CurrentSelection);
}

bool SimHooks::ChatState() const { return Ask("ACHooks.ChatState"_op, client_.hooks.ChatState); }

std::int32_t SimHooks::BusyState() const { return Ask("ACHooks.BusyState"_op, client_.hooks.BusyState); }

std::int32_t SimHooks::PointerState() const { return Ask("ACHooks.PointerState"_op, client_.hooks.PointerState); }

std::int32_t SimHooks::CombatMode() const { return Ask("ACHooks.CombatMode"_op, client_.hooks.CombatMode); }

host::Id SimHooks::ReferenceContainer() const {
    return Ask("ACHooks.ReferenceContainer"_op, client_.hooks.ReferenceContainer);
}

host::Rect SimHooks::Region3D() const { return Ask("ACHooks.Region3D"_op, client_.hooks.Region3D); }

bool SimHooks::IsValidObject(host::Id id) const {
    client_.calls.Note("ACHooks.IsValidObject"_op);
    const Object* object = client_.FindObject(id);
    return object && object->valid;
}

void SimHooks::SelectItem(host::Id id) {
    client_.calls.Note("ACHooks.SelectItem"_op, {{"id", id}});
    client_.hooks.CurrentSelection = id;
    client_.Act({.operation = "ACHooks.SelectItem"_op, .id = id});
}

void SimHooks::UseItem(host::Id id, std::int32_t flag) {
    client_.calls.Note("ACHooks.UseItem"_op, {{"id", id}, {"flag", flag}});
    client_.Act({.operation = "ACHooks.UseItem"_op, .id = id});
}

void SimHooks::UseItemOnTarget(host::Id id, host::Id target) {
    client_.calls.Note("ACHooks.UseItemOnTarget"_op, {{"id", id}, {"target", target}});
    client_.Act({.operation = "ACHooks.UseItemOnTarget"_op, .id = id, .target = target});
}

void SimHooks::GiveItem(host::Id id, host::Id target) {
    client_.calls.Note("ACHooks.GiveItem"_op, {{"id", id}, {"target", target}});
    client_.Act({.operation = "ACHooks.GiveItem"_op, .id = id, .target = target});
}

void SimHooks::IdentifyObject(host::Id id) {
    client_.calls.Note("ACHooks.IdentifyObject"_op, {{"id", id}});
    client_.Act({.operation = "ACHooks.IdentifyObject"_op, .id = id});
}

void SimHooks::RequestID(host::Id id) { IdentifyObject(id); }

void SimHooks::SetStackSize(std::int32_t count) {
    client_.calls.Note("ACHooks.SetStackSize"_op, {{"count", count}});
    client_.Act({.operation = "ACHooks.SetStackSize"_op, .count = count});
}

void SimHooks::MergeStacks(host::Id source, host::Id target) {
    client_.calls.Note("ACHooks.MergeStacks"_op, {{"source", source}, {"target", target}});
    client_.Act({.operation = "ACHooks.MergeStacks"_op, .id = source, .target = target});
}

bool SimHooks::VendorOpen() const { return Ask("ACHooks.VendorOpen"_op, client_.vendor.open); }

void SimHooks::VendorAddBuy(host::Id id, std::int32_t count) {
    client_.calls.Note("ACHooks.VendorAddBuy"_op, {{"id", id}, {"count", count}});
    client_.Act({.operation = "ACHooks.VendorAddBuy"_op, .id = id, .count = count});
}

void SimHooks::VendorBuyAll() {
    client_.calls.Note("ACHooks.VendorBuyAll"_op);
    client_.Act({.operation = "ACHooks.VendorBuyAll"_op});
}

void SimHooks::VendorAddSell(host::Id id) {
    client_.calls.Note("ACHooks.VendorAddSell"_op, {{"id", id}});
    client_.Act({.operation = "ACHooks.VendorAddSell"_op, .id = id});
}

void SimHooks::VendorSellAll() {
    client_.calls.Note("ACHooks.VendorSellAll"_op);
    client_.Act({.operation = "ACHooks.VendorSellAll"_op});
}

}  // namespace ombrel::sim
