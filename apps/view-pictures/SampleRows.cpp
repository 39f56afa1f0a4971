#include "apps/view-pictures/SampleRows.h"

#include <initializer_list>
#include <utility>

namespace ombrel::sim {
namespace {

constexpr std::int32_t kMarked = 0xFFFF80, kLibrary = 1;
constexpr std::int32_t kUp = 0x60028FD, kDown = 0x60028FC, kDelete = 0x60011F8;

// A text, a flag, or an icon; own icons have small numbers.
using Row = std::initializer_list<host::Cell>;

void Fill(SimView& view, std::string_view name, std::initializer_list<Row> rows, std::int32_t marked = -1) {
    auto* list = view.Get<SimList>(name);
    if (!list) return;
    list->Clear();
    for (const Row& cells : rows) {
        const std::int32_t row = list->AddRow();
        std::int32_t column = 0;
        for (const host::Cell& cell : cells) {
            const auto* icon = std::get_if<std::int32_t>(&cell);
            if (icon) {
                list->PutData(column, row, *icon < 1000 ? kLibrary : 0, 0);
                list->PutData(column, row, *icon, 1);
            } else {
                list->PutData(column, row, cell);
            }
            if (row == marked) list->SetColor(column, row, kMarked);
            ++column;
        }
    }
}

void FillTexts(SimView& view) {
    constexpr std::pair<std::string_view, std::string_view> texts[] = {
        {"stVersion", "Ombrel v1.1.0.1"},
        {"Char_Name", "Aldra of Holtburg"},
        {"Level_Num", "126"},
        {"XP_Next", "1,234,567,890"},
        {"XP_Total", "191,226,310,247"},
        {"XP_Un", "12,345,678,901"},
        {"Session_Time", "12:34:56"},
        {"XP_Session", "87,654,321"},
        {"XP_Hour", "12,345,678"},
        {"XP_Min", "205,761"},
        {"XP_5Min", "14,208,400"},
        {"XP_Change", "1,020,304"},
        {"Kill_Count", "1,234"},
        {"Total_Time", "123:45:06"},
        {"Total_XP", "1,987,654,321"},
        {"Total_XP_Hour", "16,062,031"},
        {"Total_XP_Min", "267,700"},
        {"Spells_Tracked", "1:02:07"},
    };
    for (const auto& [name, text] : texts)
        if (auto* control = view.Get<SimStaticText>(name)) control->PutText(text);
    if (auto* bar = view.Get<SimProgress>("XP_Bar")) bar->PutValue(42);
}

}  // namespace

void FillSampleRows(SimView& view) {
    FillTexts(view);
    Fill(view, "HUD_Items",
         {{true, "Prismatic Taper", "250", kUp, kDown, kDelete, "8202"},
          {true, "Treated Healing Kit", "5", kUp, kDown, kDelete, "7241"},
          {false, "Mana Scarab", "1000", kUp, kDown, kDelete, "-1"}});
    Fill(view, "Buff_List",
         {{0x60013C1, "Blade Bane VI on Helm", "0:58"},
          {0x6001397, "Robustify", "1:02:07"},
          {0x600138C, "Asheron's Benediction", "23:59:59"},
          {0x6001363, "Aura of Resistance", "12:30"}},
         1);
    Fill(view, "Debuff_List", {{0x60013B2, "Imperil Other VI", "3:41"}, {0x6001312, "Weakness Other VI", "02:05"}});
    Fill(view, "Corpses_List",
         {{"12.3N, 45.7W", "0.4N, 1.2E", "1:58:20", kDelete},
          {"102.4S, 88.9E", "99.9S, 50.0E", "05:07", kDelete},
          {"Dungeon", "0.0N, 0.0E", "3:20:00", kDelete}},
         0);
    Fill(view, "Chat_Custom",
         {{true, "*is looking for*", "M2", "All", 113, "bell.wav", "[]Look!"},
          {true, "You have killed*", "D", "0", 108, "None", ""},
          {false, "*spam*", "B", "27", 114, "None", ""}},
         0);
    Fill(view, "Chat_Filter",
         {{true, "darn", "Whole", "Replace", kDelete}, {true, "buy gold", "Part", "Block", kDelete}});
    Fill(view, "Chat_Alias", {{true, "/ls", "/lifestone", kDelete}, {true, "omw", "I am on my way!", kDelete}});
    Fill(view, "Chat_Log_View",
         {{"Bob says, \"Anyone going to the Olthoi?\"", "5"},
          {"You tell Bob, \"Wait for me!\"", "4"},
          {"[General] Elle: selling tapers", "3"},
          {"Tyla tells you, \"Hello\"", "2"}});
    Fill(view, "Vitals_listExceptions", {{"Golden Egg", kDelete}, {"Healing Kit of the Ancients", kDelete}});
}

}  // namespace ombrel::sim
