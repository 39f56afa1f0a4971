#include "adapters/sim/SessionEvents.h"

#include <stdexcept>

#include "adapters/sim/JsonMessage.h"
#include "adapters/sim/SessionControls.h"
#include "adapters/sim/View.h"

namespace ombrel::sim {
namespace {

const std::string& Text(const Json& record, const char* field = "text") {
    return record[field].get_ref<const std::string&>();
}

std::int32_t Integer(const Json& record, const char* field) { return record[field].get<std::int32_t>(); }

host::Id IdOf(const Json& record) { return Word(record["id"]); }

host::Enchantment EnchantmentOf(const Json& record) {
    const auto json = record.find("enchantment");
    if (json == record.end()) return {};
    return {.SpellID = SpellIdOf((*json)["SpellID"]),
            .TimeRemaining = json->value("TimeRemaining", 0),
            .Family = json->value("Family", 0)};
}

// lParam is the place as the system packs it, where the session leaves it out.
bool SendWindowMessage(Client& client, const Json& record) {
    const host::Point at{record.value("x", client.system.cursor.x), record.value("y", client.system.cursor.y)};
    const auto packed = static_cast<std::int32_t>((static_cast<std::uint32_t>(at.y) << 16) |
                                                  (static_cast<std::uint32_t>(at.x) & 0xFFFF));
    const std::int32_t wParam = record.contains("wParam") ? Word(record["wParam"]) : 0;
    const std::int32_t lParam = record.contains("lParam") ? Word(record["lParam"]) : packed;
    return client.WindowMessage(Word(record["message"]), at.x, at.y, wParam, lParam);
}

struct EventRow {
    std::string_view name;
    void (*raise)(Client& client, const Json& record);
};
constexpr EventRow kEvents[] = {
    {"Terminate", [](Client& client, const Json&) { client.Terminate(); }},
    {"Char_LoginComplete", [](Client& client, const Json&) { client.LoginComplete(); }},
    {"Char_Logoff", [](Client& client, const Json& record) { client.Logoff(Integer(record, "kind")); }},
    {"Char_ChangeVital",
     [](Client& client, const Json& record) {
         client.ChangeVital(Integer(record, "vital"), Integer(record, "value"));
     }},
    {"Char_ChangeEnchantments",
     [](Client& client, const Json& record) {
         client.ChangeEnchantments(Integer(record, "change"), EnchantmentOf(record));
     }},
    {"Char_ChangePortalMode",
     [](Client& client, const Json& record) { client.ChangePortalMode(Integer(record, "mode")); }},
    {"Char_Death", [](Client& client, const Json& record) { client.Death(Text(record)); }},
    {"ACHooks_ContainerOpened", [](Client& client, const Json& record) { client.ContainerOpened(IdOf(record)); }},
    {"ACHooks_ObjectSelected", [](Client& client, const Json& record) { client.ObjectSelected(IdOf(record)); }},
    {"ACHooks_AC3DRegionChanged",
     [](Client& client, const Json& record) {
         client.RegionChanged(
             {Integer(record, "left"), Integer(record, "top"), Integer(record, "right"), Integer(record, "bottom")});
     }},
    {"World_CreateObject", [](Client& client, const Json& record) { client.CreateObject(IdOf(record)); }},
    {"World_MoveObject", [](Client& client, const Json& record) { client.MoveObject(IdOf(record)); }},
    {"World_ReleaseObject", [](Client& client, const Json& record) { client.ReleaseObject(IdOf(record)); }},
    {"World_ChangeObject",
     [](Client& client, const Json& record) { client.ChangeObject(IdOf(record), Integer(record, "change")); }},
    {"NetEcho_EchoServer",
     [](Client& client, const Json& record) { client.EchoServer(JsonMessage(record["message"], client.calls)); }},
    {"NetEcho_EchoClient",
     [](Client& client, const Json& record) { client.EchoClient(JsonMessage(record["message"], client.calls)); }},
    {"DeviceLost", [](Client& client, const Json&) { client.DeviceLost(); }},
    {"AddChatText",
     [](Client& client, const Json& record) {
         client.AddChatText(Text(record), Integer(record, "color"), Integer(record, "window"));
     }},
    {"Control",
     [](Client& client, const Json& record) {
         if (client.view()) ActOnControl(*client.view(), record);
     }},
};

// Events that give something back.
struct AskingRow {
    std::string_view name;
    std::string_view result;
    bool (*raise)(Client& client, const Json& record);
};
constexpr AskingRow kAsking[] = {
    {"ACHooks_ChatTextIntercept", "eat",
     [](Client& client, const Json& record) {
         return client.ChatText(Text(record), Integer(record, "color"), Integer(record, "window"));
     }},
    {"ACHooks_ChatParserIntercept", "eat",
     [](Client& client, const Json& record) { return client.ChatParser(Text(record)); }},
    {"ACHooks_StatusTextIntercept", "eat",
     [](Client& client, const Json& record) { return client.StatusText(Text(record)); }},
    {"ACHooks_ChatClickIntercept", "eat",
     [](Client& client, const Json& record) { return client.ChatClick(Text(record), IdOf(record)); }},
    {"WindowMessage", "eat", SendWindowMessage},
    {"HK_HotkeyEvent", "handled",
     [](Client& client, const Json& record) { return client.Hotkey(Text(record, "name")); }},
};

}  // namespace

void RaiseEvent(Client& client, Recorder* recorder, const Json& record) {
    const std::string& name = Text(record, "event");
    for (const EventRow& row : kEvents) {
        if (row.name == name) return row.raise(client, record);
    }
    for (const AskingRow& row : kAsking) {
        if (row.name != name) continue;
        const bool value = row.raise(client, record);
        if (recorder) recorder->Result(row.name, row.result, value);
        return;
    }
    throw std::logic_error("no way to raise " + name);
}

}  // namespace ombrel::sim
