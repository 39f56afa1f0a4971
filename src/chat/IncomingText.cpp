// The stages of a chat line, in their order.
#include <fmt/format.h>

#include "chat/ChatLine.h"
#include "chat/ChatTables.h"
#include "chat/ChatTextHandler.h"
#include "chat/LogHandler.h"
#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/text.h"

namespace ombrel {

namespace {

// How deep lines may start other lines, and how many one line may start in all. Rules that feed themselves or each
// other end here, and the game goes on.
constexpr std::int32_t kMaxDepth = 24;
constexpr std::int32_t kMaxChain = 1000;

}  // namespace

bool ChatTextHandler::IncomingText(std::string_view text, std::int32_t color, std::int32_t target, bool rewrite,
                                   bool fromHost) {
    ChatLine line(text, color, target, rewrite);
    try {
        if (incoming_depth_ == 0) {
            chain_broken_ = false;
            chain_length_ = 0;
        }
        if (incoming_depth_ >= kMaxDepth || ++chain_length_ > kMaxChain) {
            chain_broken_ = true;
            throw Failure(failure::kStackSpace);
        }
        const DepthGuard guard(incoming_depth_, kMaxDepth);
        RunStages(line, fromHost);
    } catch (...) {
        ReportFailure("IncomingText", "ChatTextHandler");
    }
    return line.show;
}

// A stage that ends the line leaves at once: no log, no reply, and expireFlag as it is.
void ChatTextHandler::RunStages(ChatLine& line, bool fromHost) {
    killFlag = false;
    line.adminLine = line.received.starts_with('+');

    if (line.type == chat_type::kSystem && line.received.starts_with("You have entered")) {
        line.show = false;
        return;
    }
    if (!Vars::Loaded) return;
    if (fromHost) line.type = chat_type::kForeign;  // in the colour that the caller gave

    TempleReplies(line);
    RareDiscovery(line);
    DeathTexts(line);
    if (!FriendsList(line)) return;
    LowMana(line);
    Advancement(line);
    if (!WordFilter(line)) return;
    VitaeLine(line);
    ComponentBurn(line);
    if (!SpellExpiry(line)) return;
    if (!GatherCasts(line)) return;
    ItemSpells(line);
    KillLine(line);
    line.npc = line.type == chat_type::kTell;
    TellLinks(line);
    ChatTypeNumber(line);
    CustomRules(line);
    if (!line.written && !line.blocked) ClassifyAndColor(line);
    FinalWrite(line);
    Log(line);
    AutomaticReply(line);
    expireFlag = false;
}

void ChatTextHandler::ChatTypeNumber(ChatLine& line) {
    if (!showChatTypes) return;

    line.SetWorking(fmt::format("{} [{}]", line.working, line.type));
    line.rewrite = true;
}

// The row of Chat_Color that rules the line, or -1. `item` becomes its row of the pattern list.
std::int32_t ChatTextHandler::FindRuleRow(const ChatLine& line, const ChatListItem*& item) {
    const host::List& list = *Vars::ControlHandler->ChatColor;
    for (const PatternRow& row : tables_->RowsOf(line.type)) {
        bool matches = false;
        switch (row.kind) {
            case PatternRow::Kind::kText:
                matches = row.pattern.Matches(line.received);
                break;
            case PatternRow::Kind::kKill:
                matches = killFlag;
                break;
            case PatternRow::Kind::kExpire:
                matches = expireFlag;
                break;
            case PatternRow::Kind::kNpc:
                matches = line.npc;
                break;
        }
        if (!matches) continue;

        const auto& rows = tables_->color_rows.Get(list, [this](const host::List&) {
            std::vector<std::int32_t> found;
            for (const ChatListItem& each : ChatList)
                found.push_back(Vars::ControlHandler->FindName(each.ListID, "ChatColor"));
            return found;
        });
        const std::int32_t found = rows[row.index];
        if (!CellFlag(list, 0, found)) continue;

        item = &ChatList[row.index];
        return found;
    }
    return -1;
}

void ChatTextHandler::ClassifyAndColor(ChatLine& line) {
    const ChatListItem* item = nullptr;
    const std::int32_t row = FindRuleRow(line, item);
    if (!item) return;

    if (Vars::DebugMode) wtcw_debug("Rule Match " + item->ListID);
    ApplyColorRule(line, row);
}

// Puts out what must be put out and what no rule has taken care of.
void ChatTextHandler::FinalWrite(ChatLine& line) {
    if (!line.adminLine && !(line.rewrite && !line.written && !line.blocked)) return;

    if (line.type == chat_type::kOmbrel) {
        line.color = kOwnLineColor;
        WriteToShowing(line.working, line.type, line.color);
    } else {
        Vars::FilterHandler->WriteToChatWindow(line.working, line.color, line.target);
    }
    line.show = false;
    line.written = true;
}

void ChatTextHandler::Log(const ChatLine& line) {
    if (!line.show && !line.written) return;

    Vars::LogHandler->RollOver();
    Vars::LogHandler->AddToLog(line.plain, line.type, line.color);
}

void ChatTextHandler::AutomaticReply(const ChatLine& line) {
    if (line.type != chat_type::kTell || !Vars::ControlHandler->ChatLogAFK->Checked()) return;

    const std::string_view name = Trim(Split(line.plain, "tells you, ").front());
    Vars::FilterHandler->SendCommand(
        fmt::format("/tell {}, Auto Response: {}", name, Vars::ControlHandler->ChatLogAFKMessage->Text()));
}

// Writes to each window where the client shows the type.
void ChatTextHandler::WriteToShowing(std::string_view text, std::int32_t type, std::int32_t color) {
    for (std::int32_t window = 0; window < kWindows; ++window) {
        if (GetTargetList(window, type)) Vars::FilterHandler->WriteToChatWindow(text, color, window + 1);
    }
}

void ChatTextHandler::WriteError(std::string_view text) try {
    WriteToShowing(text, chat_type::kRareAnnouncement, chat_type::kError);
} catch (...) {
    ReportFailure("WriteError", "ChatTextHandler");
}

}  // namespace ombrel
