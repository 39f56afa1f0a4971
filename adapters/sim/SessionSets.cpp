#include "adapters/sim/SessionSets.h"

#include <stdexcept>
#include <type_traits>
#include <utility>

#include "adapters/sim/SessionControls.h"
#include "adapters/sim/View.h"

namespace ombrel::sim {
namespace {

// Reads a field into `target` where the record has it.
template <class T>
void Read(const Json& record, const char* field, T& target) {
    if (const auto value = record.find(field); value != record.end()) value->get_to(target);
}

void ReadWord(const Json& record, const char* field, std::int32_t& target) {
    if (const auto value = record.find(field); value != record.end()) target = Word(*value);
}

// Adds to a table, replaces in it, and takes out keys with null.
template <class T>
void Merge(const Json& record, const char* field, std::map<std::int32_t, T>& table) {
    const auto values = record.find(field);
    if (values == record.end()) return;
    for (const auto& [name, value] : values->items()) {
        const std::int32_t key = KeyOf(name);
        if (value.is_null()) {
            table.erase(key);
        } else if constexpr (std::is_same_v<T, std::int32_t>) {
            table[key] = Word(value);
        } else {
            table[key] = value.template get<T>();
        }
    }
}

void SetClock(Client& client, const Json& record) {
    if (const auto now = record.find("now"); now != record.end()) {
        client.clock.SetEpoch(MomentOf(now->get_ref<const std::string&>()));
    }
    Read(record, "bias", client.system.zone.bias);
    Read(record, "daylight", client.system.zone.daylight);
    Read(record, "daylight_rule", client.system.zone.daylight_rule);
    if (const auto shift = record.find("shift"); shift != record.end()) client.clock.Shift(Milliseconds(*shift));
}

void SetCharacter(Client& client, const Json& record) {
    Sheet& sheet = client.sheet;
    Read(record, "Server", sheet.Server);
    Read(record, "Name", sheet.Name);
    ReadWord(record, "Character", sheet.Character);
    Read(record, "Level", sheet.Level);
    Read(record, "Health", sheet.Health);
    Read(record, "Stamina", sheet.Stamina);
    Read(record, "Mana", sheet.Mana);
    Merge(record, "Vital", sheet.Vital);
    Read(record, "Vitae", sheet.Vitae);
    Read(record, "Followers", sheet.Followers);
    Read(record, "AllegianceSize", sheet.AllegianceSize);
    Merge(record, "Skill", sheet.Skill);
    if (record.contains("Augmentation")) {
        sheet.Augmentation.clear();
        Merge(record, "Augmentation", sheet.Augmentation);
    }
}

void SetHooks(Client& client, const Json& record) {
    HookState& hooks = client.hooks;
    ReadWord(record, "CurrentSelection", hooks.CurrentSelection);
    Read(record, "ChatState", hooks.ChatState);
    Read(record, "BusyState", hooks.BusyState);
    Read(record, "PointerState", hooks.PointerState);
    Read(record, "CombatMode", hooks.CombatMode);
    ReadWord(record, "ReferenceContainer", hooks.ReferenceContainer);
    if (const auto region = record.find("Region3D"); region != record.end()) {
        const auto edges = region->get<std::array<std::int32_t, 4>>();
        hooks.Region3D = {edges[0], edges[1], edges[2], edges[3]};
    }
}

void SetObject(Client& client, const Json& record) {
    Object& object = client.object(Word(record["id"]));
    Read(record, "Name", object.Name);
    if (record.contains("ShortName")) object.ShortName = record["ShortName"].get<std::string>();
    Read(record, "Type", object.Type);
    if (record.contains("Container")) object.Container = Word(record["Container"]);
    if (const auto place = record.find("Coordinates"); place != record.end()) {
        object.Coordinates.reset();
        if (!place->is_null())
            object.Coordinates = host::Position{(*place)[0].get<double>(), (*place)[1].get<double>()};
    }
    Read(record, "LastIdTime", object.LastIdTime);
    Read(record, "HasIdData", object.HasIdData);
    Merge(record, "Long", object.Long);
    Merge(record, "Double", object.Double);
    Merge(record, "Bool", object.Bool);
    Merge(record, "String", object.String);
    Read(record, "valid", object.valid);
}

void SetEnchantments(Client& client, const Json& record) {
    const auto list = record.find("list");
    if (list == record.end()) return;
    client.enchantments.clear();
    for (const Json& entry : *list) {
        client.Enchant(SpellIdOf(entry["SpellID"]), entry.value("TimeRemaining", 0.0), entry.value("Family", 0));
    }
}

// A column that a row leaves out is empty.
SpellRow SpellOf(const Json& json) {
    SpellRow row;
    for (const SpellColumn& column : SpellColumns()) {
        const auto value = json.find(column.name);
        if (value == json.end()) continue;
        std::visit(
            [&](auto member) {
                if constexpr (std::is_same_v<decltype(member), std::int32_t SpellRow::*>) {
                    row.*member = Word(*value);
                } else {
                    value->get_to(row.*member);
                }
            },
            column.member);
    }
    return row;
}

void SetSpells(Client& client, const Json& record) {
    if (const auto rows = record.find("rows"); rows != record.end()) {
        for (const Json& row : *rows) client.spells.Put(SpellOf(row));
    }
    Read(record, "available", client.spells_available);
}

void SetVendor(Client& client, const Json& record) {
    Read(record, "open", client.vendor.open);
    Read(record, "SellRate", client.vendor.SellRate);
    if (const auto items = record.find("items"); items != record.end()) {
        client.vendor.items.clear();
        for (const Json& id : *items) client.vendor.items.push_back(Word(id));
    }
}

void SetFolders(Client& client, const Json& record) {
    const auto read = [&record](const char* field, std::uint32_t& status) {
        if (record.contains(field)) status = static_cast<std::uint32_t>(Word(record[field]));
    };
    read("documents", client.system.documents_status);
    read("common_data", client.system.common_data_status);
}

void SetView(Client& client, const Json& record) {
    host::Rect position = client.view()->position();
    const std::int32_t width = position.right - position.left, height = position.bottom - position.top;
    Read(record, "left", position.left);
    Read(record, "top", position.top);
    position.right = position.left + width;
    position.bottom = position.top + height;
    client.view()->PutPosition(position);
}

void SetKeys(Client& client, const Json& record) {
    Read(record, "down", client.system.keys_down);
    Read(record, "toggled", client.system.keys_toggled);
}

void SetDecal(Client& client, const Json& record) {
    const auto keys = record.find("MapKey");
    if (keys == record.end()) return;
    for (const auto& [action, key] : keys->items()) client.key_map[action] = key.get<std::int32_t>();
}

struct SetRow {
    std::string_view name;
    void (*apply)(Client& client, const Json& record);
};
constexpr SetRow kSets[] = {
    {"clock", SetClock},
    {"character", SetCharacter},
    {"hooks", SetHooks},
    {"object", SetObject},
    {"remove", [](Client& client, const Json& record) { client.RemoveObject(Word(record["id"])); }},
    {"enchantments", SetEnchantments},
    {"spells", SetSpells},
    {"vendor", SetVendor},
    {"hotkeys",
     [](Client& client, const Json& record) {
         Read(record, "available", client.hotkeys_available);
         Read(record, "known", client.known_hotkeys);
     }},
    {"render", [](Client& client, const Json& record) { Read(record, "available", client.render_available); }},
    {"folders", SetFolders},
    {"services", [](Client& client, const Json& record) { Read(record, "missing", client.missing_services); }},
    {"view", SetView},
    {"world", [](Client& client, const Json& record) { Read(record, "reacts", client.reacts); }},
    {"keys", SetKeys},
    {"decal", SetDecal},
    {"control", [](Client& client, const Json& record) { PutControl(*client.view(), record); }},
};

}  // namespace

void ApplySet(Client& client, const Json& record) {
    const std::string& name = record["set"].get_ref<const std::string&>();
    for (const SetRow& row : kSets) {
        if (row.name == name) return row.apply(client, record);
    }
    throw std::logic_error("no way to set " + name);
}

}  // namespace ombrel::sim
