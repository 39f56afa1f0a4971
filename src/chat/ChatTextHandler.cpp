#include "chat/ChatTextHandler.h"

#include <algorithm>
#include <iterator>

#include "chat/ChatTables.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/failure.h"
#include "host/Plugin.h"

namespace ombrel {

namespace {

struct PatternDefinition {
    std::string_view text_in;
    std::string_view list_id;
    std::int32_t type;
};

// Tried from the top for each line; the first whose row of Chat_Color is enabled rules the line. A pattern only matches
// lines of its own type, but the pseudo patterns match by what earlier stages found out.
constexpr PatternDefinition kPatterns[] = {
    {"<Ombrel>*", "Ombrel", 32},
    {"[[]General] *", "General Chat", 27},
    {"[[]Trade] *", "Trade Chat", 28},
    {"You say,*", "Spellwords", 17},
    {"*says,*", "Spellwords", 17},
    {"You resist*", "Your Resists", 7},
    {"You cast*", "Your Spells", 7},
    {"*cast*", "Other Spells", 7},
    {"You * for * with *", "Your War Combat", 7},
    {"* you for * with *", "Enemy War Combat", 7},
    {"Your spell fizzled*", "Your Spells", 7},
    {"The spell consumed*", "Comp Burn", 7},
    {"Critical hit!*You*", "Your Crits", 22},
    {"Critical hit!*You*", "Your Crits", 7},
    {"Critical hit!*", "Enemy Crits", 21},
    {"Critical hit!*", "Enemy Crits", 7},
    {"You evaded*", "Your Evades", 21},
    {"*evaded your attack.", "Enemy Evades", 22},
    {"*for 0 points*", "0 Damage Hits", 21},
    {"*for 0 points*", "0 Damage Hits", 22},
    {"*", "Your Melee Combat", 22},
    {"*", "Enemy Melee Combat", 21},
    {"_KILL_", "Kill Message", 0},
    {"_NPC_", "NPC Tell", 3},
    {"You tell*", "Tells Out", 4},
    {"*tells you*", "Tells In", 3},
    {"You say,*", "Open Chat Out", 2},
    {"*says,*", "Open Chat In", 2},
    {"[[]Fellowship] You say, *", "Fellowship Out", 19},
    {"[[]Fellowship] * says, *", "Fellowship In", 19},
    {"You say to your Patron,*", "Patron Out", 11},
    {"Your patron*", "Patron In", 10},
    {"You say to your Vassals,*", "Vassal Out", 11},
    {"Your vassal *", "Vassal In", 10},
    {"[[]Co-Vassals] You say, *", "Covassal Out", 10},
    {"[[]Co-Vassals] * says, *", "Covassal In", 10},
    {"*", "Allegiance Chat", 18},
    {"_EXPIRE_", "Spell Expiration", 7},
    {"*", "Emotes", 12},
    {"*is recalling*", "Recalls", 23},
    {"*is going to*", "Recalls", 23},
    {"Your experience has reduced your Vitae penalty!*", "Vitae", 7},
    {"[[]LFG] *", "LFG Chat", 29},
    {"[[]Roleplay] *", "Roleplay Chat", 30},
};

struct ChatColorName {
    std::string_view name;
    std::int32_t color;
    std::int32_t icon;
};

constexpr ChatColorName kColors[] = {
    {"White", 2, 101},   {"Grey", 12, 102},       {"Red", 21, 103},       {"Light Red", 22, 104},
    {"Blue", 7, 105},    {"Light Blue", 14, 106}, {"Turquoise", 13, 107}, {"Green", 0, 108},
    {"Yellow", 10, 109}, {"Dark Yellow", 4, 110}, {"Purple", 5, 111},     {"Pink", 8, 112},
    {"Orange", 18, 113}, {"Default", -1, 114},
};

const ChatColorName& ColorNamed(std::string_view name) {
    const auto* found = std::ranges::find(kColors, name, &ChatColorName::name);
    return found == std::end(kColors) ? kColors[0] : *found;
}

PatternRow::Kind KindOf(std::string_view pattern) {
    if (pattern == "_KILL_") return PatternRow::Kind::kKill;
    if (pattern == "_EXPIRE_") return PatternRow::Kind::kExpire;
    if (pattern == "_NPC_") return PatternRow::Kind::kNpc;
    return PatternRow::Kind::kText;
}

}  // namespace

void ChatTables::BuildRows(const std::vector<ChatListItem>& list) {
    for (std::size_t index = 0; index < list.size(); ++index) {
        const ChatListItem& item = list[index];
        const PatternRow row{index, KindOf(item.TextIn), LikePattern(item.TextIn)};
        if (row.kind == PatternRow::Kind::kText) {
            by_type.at(static_cast<std::size_t>(item.color)).push_back(row);
        } else {
            for (auto& rows : by_type) rows.push_back(row);
            pseudo_only.push_back(row);
        }
    }
}

ChatTextHandler::ChatTextHandler() : tables_(std::make_unique<ChatTables>()) {
    try {
        wtcw_debug("Chat Text Init");
        TimeSpells = Vars::Site->CreateTimer("ChatTextHandler.TimeSpells");
        TimeSpells->Timeout = [this] { TimeSpells_Timeout(); };
        TimeCast = Vars::Site->CreateTimer("ChatTextHandler.TimeCast");
        TimeCast->Timeout = [this] { TimeCast_Timeout(); };

        ChatList.reserve(std::size(kPatterns));
        for (const PatternDefinition& row : kPatterns) AddChatItem(row.text_in, row.list_id, row.type);
        tables_->BuildRows(ChatList);
    } catch (...) {
        ReportFailure("Class_Initialize", "ChatTextHandler");
    }
}

ChatTextHandler::~ChatTextHandler() {
    try {
        wtcw_debug("Chat Text Terminate");
        TimeSpells.Release();
        TimeCast.Release();
    } catch (...) {
        ReportFailure("Class_Terminate", "ChatTextHandler");
    }
}

void ChatTextHandler::AddChatItem(std::string_view pattern, std::string_view listId, std::int32_t type) {
    ChatList.push_back({std::string(pattern), std::string(listId), type});
}

std::int32_t ChatTextHandler::ConvertColor(std::string_view name) { return ColorNamed(name).color; }

std::int32_t ChatTextHandler::GetIconFromColor(std::string_view name) { return ColorNamed(name).icon; }

std::string_view ChatTextHandler::GetColorFromIcon(std::int32_t icon) {
    const auto* found = std::ranges::find(kColors, icon, &ChatColorName::icon);
    return found == std::end(kColors) ? std::string_view("Default") : found->name;
}

void ChatTextHandler::ResetTargetList() {
    for (auto& window : target_list_) {
        const bool own = window[chat_type::kOmbrel];
        std::ranges::fill(window, false);
        window[chat_type::kOmbrel] = own;
    }
    TargetCount = 0;
}

void ChatTextHandler::SetTargetList(std::int32_t window, std::int32_t type, bool value) {
    if (window < 0 || window >= kWindows || type < 0 || type >= kTypes) throw Failure(failure::kSubscript);
    target_list_[window][type] = value;
    ++TargetCount;
}

bool ChatTextHandler::GetTargetList(std::int32_t window, std::int32_t type) const {
    if (window < 0 || window >= kWindows || type < 0 || type >= kTypes) throw Failure(failure::kSubscript);
    return target_list_[window][type];
}

}  // namespace ombrel
