// The built-in rows of the lists, and how rows are found.
#include <array>
#include <initializer_list>
#include <string_view>

#include "chat/ChatTextHandler.h"
#include "config/ControlHandler.h"
#include "config/ControlTools.h"
#include "config/HudRows.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/failure.h"

namespace ombrel {

namespace {

using Lists = std::initializer_list<Ref<host::List> ControlHandler::*>;

constexpr std::string_view kHuds[] = {"Main", "Clock", "Items", "Status", "Target"};

constexpr std::string_view kChatOptions[] = {
    "Show All XP Changes",
    "Add XP to Level",
    "Add XP/Hr",
    "Add Time to Level",
    "Kill: Show Monster XP",
    "Kill: Show Unassigned XP",
    "Kill: Show XP to Level",
    "Kill: Show XP/Hr",
    "Kill: Show Kills to Level",
    "Kill: Show Time to Level",
    "Improved Vitae Message",
    "Show Comp Count on Burn",
    "Filter Nonexpired Spells",
    "Combine Item Spell Cast and Expire",
    "No Clickable Names",
    "Buffs Expiration Warning",
    "Running Low on Item Warning",
    "Send Rare Message to All Windows",
    "Show Friends Online on Login",
};

constexpr std::string_view kChatColors[] = {
    "Ombrel",          "Open Chat In",     "Open Chat Out",     "Emotes",
    "Tells In",        "Tells Out",        "NPC Tell",          "Fellowship In",
    "Fellowship Out",  "Patron In",        "Patron Out",        "Vassal In",
    "Vassal Out",      "Covassal In",      "Covassal Out",      "Allegiance Chat",
    "General Chat",    "Trade Chat",       "LFG Chat",          "Roleplay Chat",
    "Your Spells",     "Other Spells",     "Spellwords",        "Comp Burn",
    "Your Resists",    "Spell Expiration", "Recalls",           "Vitae",
    "Your War Combat", "Enemy War Combat", "Your Melee Combat", "Enemy Melee Combat",
    "Your Crits",      "Enemy Crits",      "Your Evades",       "Enemy Evades",
    "0 Damage Hits",   "Kill Message",
};

constexpr std::string_view kHudLines[] = {
    "Level",      "Session Time", "Session XP",    "Session XP/Hour", "5 Minute Avg",
    "Total Time", "Total XP",     "Total XP/Hour", "Next Level",      "Unassigned",
    "Kills",      "Coords",       "Corpse",        "Next Buff",       "XP Change",
};

constexpr std::string_view kLogClasses[] = {
    "Open Chat",   "Tells",      "Fellowship", "Patron/Covassal", "Vassal",  "Allegiance", "Channels",
    "Magic",       "Spellwords", "Combat",     "System",          "Recalls", "Tinkers",    "Rares",
    "Stat Raises", "Level",      "Vitae",      "Ombrel",          "Other",
};

struct Zone {
    std::string_view label;
    std::string_view offset;  // hours from universal time
};
constexpr Zone kClocks[] = {
    {"Down Timer", ""}, {"Up Timer", ""}, {"Date", ""},   {"Your Time", ""}, {"Game Time", "-5"}, {"Y", "-12"},
    {"X", "-11"},       {"HST", "-10"},   {"AKST", "-9"}, {"PST", "-8"},     {"MST", "-7"},       {"CST", "-6"},
    {"EST", "-5"},      {"AST", "-4"},    {"P", "-3"},    {"O", "-2"},       {"N", "-1"},         {"WET", "0"},
    {"CET", "+1"},      {"EET", "+2"},    {"C", "+3"},    {"D", "+4"},       {"E", "+5"},         {"F", "+6"},
    {"G", "+7"},        {"AWST", "+8"},   {"JST", "+9"},  {"AEST", "+10"},   {"L", "+11"},        {"M", "+12"},
};

// Adds a row with its name in column 1, switched off.
std::int32_t AddNamedRow(host::List& list, std::string_view name) {
    const std::int32_t row = list.AddRow();
    list.SetData(0, row, false);
    list.SetData(1, row, std::string(name));
    return row;
}

void AddHuds(host::List& list) {
    for (const auto name : kHuds) AddNamedRow(list, name);
    for (std::int32_t row = 0; row < list.Count(); ++row) {
        list.SetData(hud::kOn, row, true);
        list.SetData(hud::kFont, row, std::string("Arial"));
        list.SetData(hud::kSize, row, std::string("16"));
        SetMarker(list, hud::kBackground, row, GetColorFromIcon("Black"));
        list.SetData(hud::kAlpha, row, std::string("50%"));
        list.SetData(hud::kOutline, row, false);
    }
}

}  // namespace

void ControlHandler::Init_Lists(std::span<const std::int32_t> versionParts) try {
    for (const auto list :
         Lists{&ControlHandler::ChatAlias, &ControlHandler::ChatFilter, &ControlHandler::HudItems,
               &ControlHandler::ChatCustom, &ControlHandler::HudGeneral, &ControlHandler::HudClockList,
               &ControlHandler::ChatOptions, &ControlHandler::ChatColor, &ControlHandler::HudList,
               &ControlHandler::ChatLogOptions, &ControlHandler::VitalsExceptions}) {
        (this->*list)->Clear();
    }
    const bool old = versionParts.empty() || versionParts.front() < 1;

    AddHuds(*HudGeneral);
    if (old) {
        // Files of that age know neither of these HUDs.
        HudGeneral->SetData(hud::kOn, hud::kStatus, true);
        HudGeneral->SetData(hud::kOn, hud::kTarget, true);
    }

    for (const auto name : kChatOptions) AddNamedRow(*ChatOptions, name);

    const std::int32_t unchanged = Vars::ChatTextHandler->GetIconFromColor("Default");
    for (const auto name : kChatColors) {
        const std::int32_t row = AddNamedRow(*ChatColor, name);
        ChatColor->SetData(2, row, std::string("D"));
        SetMarker(*ChatColor, 3, row, unchanged);
        ChatColor->SetData(4, row, std::string("None"));
    }

    const std::int32_t white = GetColorFromIcon("White");
    for (const auto name : kHudLines) SetMarker(*HudList, 2, AddNamedRow(*HudList, name), white);
    if (old) {
        for (std::int32_t row = 5; row <= 7; ++row) HudList->SetData(0, row, true);
    }

    for (const auto name : kLogClasses) {
        const std::int32_t row = ChatLogOptions->AddRow();
        ChatLogOptions->SetData(1, row, std::string(name));
        ChatLogOptions->SetData(2, row, false);
        ChatLogOptions->SetData(4, row, false);
    }

    for (const auto& zone : kClocks) {
        const std::int32_t row = AddNamedRow(*HudClockList, zone.label);
        HudClockList->SetData(2, row, std::string(zone.offset));
        SetMarker(*HudClockList, 4, row, white);
    }

    chat_color_row_ = 0;
    chat_custom_row_ = -1;
    hud_general_row_ = hud_list_row_ = hud_clock_row_ = 0;
    for (const auto list : Lists{&ControlHandler::ChatColor, &ControlHandler::HudList, &ControlHandler::HudGeneral,
                                 &ControlHandler::HudClockList}) {
        (this->*list)->SetColor(1, 0, kHighlight);
    }
} catch (...) {
    ReportFailure("Init_Lists", "ControlHandler");
}

std::int32_t ControlHandler::FindName(std::string_view name, std::string_view list) try {
    struct Key {
        std::string_view text;
        Ref<host::List> ControlHandler::*list;
    };
    static constexpr std::array<Key, 5> kKeys{{
        {"ChatColor", &ControlHandler::ChatColor},
        {"ChatOptions", &ControlHandler::ChatOptions},
        {"ChatLog", &ControlHandler::ChatLogOptions},
        {"HudList", &ControlHandler::HudList},
        {"HudClock", &ControlHandler::HudClockList},
    }};
    for (std::size_t i = 0; i < kKeys.size(); ++i) {
        if (kKeys[i].text == list) return names_[i].Find(*(this->*kKeys[i].list), name);
    }
    return -1;
} catch (...) {
    ReportFailure("FindName", "ControlHandler");
    return -1;
}

bool ControlHandler::ChatOption(std::string_view name) {
    return CellFlag(*ChatOptions, 0, FindName(name, "ChatOptions"));
}

}  // namespace ombrel
