// What game texts set off, and what the player is told beside them.
#include <fmt/format.h>

#include <utility>
#include <vector>

#include "automation/EventQueue.h"
#include "chat/ChatLine.h"
#include "chat/ChatTables.h"
#include "chat/ChatTextHandler.h"
#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/like.h"
#include "core/text.h"
#include "corpses/CorpseHandler.h"
#include "spells/SpellHandler.h"
#include "stats/NetEchoHandler.h"
#include "stats/Statistics.h"

namespace ombrel {

namespace {

constexpr std::string_view kBurnBegin = "The spell consumed the following components: ";
constexpr std::int32_t kGatherMilliseconds = 300;

const LikePattern kForgetReply("Guardian of the Temple of Forgetfulness tells you,*essence of*");
const LikePattern kEnlightenReply("Guardian of the Temple of Enlightenment tells you,*essence of*");
const LikePattern kRaised("Your * is now *");
const LikePattern kEarned("You've earned * experience in your *");
const LikePattern kCastOnOwnItem("*cast*on your*");
constexpr std::size_t kMaxGathered = 1000;

// Splits a text and takes one piece; one that is missing is failure 9.
std::string_view Piece(std::string_view text, std::string_view separator, std::size_t index) {
    const std::vector<std::string_view> pieces = Split(text, separator);
    if (index >= pieces.size()) throw Failure(failure::kSubscript);
    return pieces[index];
}

// The line is one of a group: all lines from the first until the timer fires. What stands for the group is made of its
// first line, so a flood of lines needs no place.
void Gather(std::vector<std::string>& lines, host::Timer& timer, std::string_view text) {
    if (!timer.Running()) {
        lines.clear();
        timer.Start(kGatherMilliseconds);
    }
    if (lines.size() < kMaxGathered) lines.emplace_back(text);
}

// What stands for a gathered group: a single line itself, else one line for all pieces of armour.
std::string LineOfGroup(const std::vector<std::string>& lines, std::string_view ending) {
    if (lines.size() == 1) return lines.front();
    return std::string(Split(lines.front(), " on ").front()).append(ending);
}

// A Guardian's answer to our own question: the right temple gets its Hyssop, any other is asked again.
void AnswerGuardian(const std::string& guardian, std::string_view text, bool& pending) {
    FilterHandler& filter = *Vars::FilterHandler;
    if (Contains(text, "Malar")) {
        const host::Id hyssop = filter.GetIDinInv("Hyssop");
        filter.GiveItem(hyssop, filter.GetID(guardian));
        pending = false;
    } else {
        filter.UseItem(filter.GetID(guardian), 0);
    }
}

}  // namespace

void ChatTextHandler::TempleReplies(ChatLine& line) {
    if (line.type != chat_type::kTell) return;

    if (templeForgetPending && kForgetReply.Matches(line.received))
        AnswerGuardian("Guardian of the Temple of Forgetfulness", line.received, templeForgetPending);
    if (templeEnlightenPending && kEnlightenReply.Matches(line.received))
        AnswerGuardian("Guardian of the Temple of Enlightenment", line.received, templeEnlightenPending);
}

// Many times over, so that nobody misses it.
void ChatTextHandler::RareDiscovery(ChatLine& line) {
    if (line.type != chat_type::kRareFind || !Contains(line.received, " has discovered ")) return;
    if (!Option(ChatOption::kRareToAllWindows)) return;

    for (const std::int32_t window : {1, 1, 2, 3, 4, 5})
        Vars::FilterHandler->WriteToChatWindow(line.received, line.color, window);
    for (int i = 0; i < 3; ++i) Vars::FilterHandler->WriteToChatWindow(line.received, chat_type::kRareAnnouncement, 0);
}

void ChatTextHandler::DeathTexts(ChatLine& line) {
    if (line.type != chat_type::kSystem) return;

    if (line.received == "Ack! You killed yourself!") {
        Vars::CorpseHandler->CharDeath();
        Vars::SpellHandler->RebuildList(true);
    }
    if (!Vars::CorpseHandler->HasDied()) return;
    if (line.received.starts_with("You've lost")) Vars::CorpseHandler->CorpseData(std::string(line.received));
    if (line.received.starts_with("Your corpse is located at "))
        Vars::CorpseHandler->CorpseCoords(Replace(Replace(line.received, "Your corpse is located at (", ""), ").", ""));
}

// The answer to our own question for friends: only a list with somebody on it is shown.
bool ChatTextHandler::FriendsList(ChatLine& line) {
    if (line.type != chat_type::kSystem || !Vars::FilterHandler->FriendsCheck) return true;

    if (Contains(line.received, "Your friends:")) {
        line.show = false;
        return false;
    }
    Vars::FilterHandler->FriendsCheck = false;
    if (Contains(line.received, "You have no friends that are online") ||
        Contains(line.received, "Your friends list is empty!")) {
        line.show = false;
        return false;
    }
    Vars::FilterHandler->WriteToChatWindow("Your friends: ", chat_type::kSystem, 0);
    return true;
}

void ChatTextHandler::LowMana(ChatLine& line) {
    if (line.type != chat_type::kMagic || !Contains(line.received, "is low on Mana.") ||
        !Contains(line.received, "Your") || !Vars::ControlHandler->FillMana->Checked()) {
        return;
    }
    Vars::FilterHandler->Fill_Mana(false);
    line.SetWorking(fmt::format("{} Preparing to autofill your items...", line.working));
    line.rewrite = true;
}

void ChatTextHandler::Advancement(ChatLine& line) {
    if (line.type == chat_type::kAdvancement && line.received.starts_with("You are now level"))
        Vars::Statistics->Level();

    const bool raised = line.type == chat_type::kAdvancement && kRaised.Matches(line.received);
    const bool earned = line.type == chat_type::kSystem && kEarned.Matches(line.received);
    if (!raised && !earned) return;
    Vars::Statistics->ChangeXP(false);
    Vars::NetEchoHandler->ResetXPBools();
}

void ChatTextHandler::VitaeLine(ChatLine& line) {
    if (line.type != chat_type::kMagic ||
        !line.received.starts_with("Your experience has reduced your Vitae penalty!") ||
        !Option(ChatOption::kImprovedVitae)) {
        return;
    }
    line.SetWorking(fmt::format("{} to {}%!", DropLast(line.working), Vars::FilterHandler->GetMyCharVitae()));
    line.rewrite = true;
}

// Counts what is left of each component that a spell has burnt. The full stop of the client's line belongs to the last
// name.
void ChatTextHandler::ComponentBurn(ChatLine& line) {
    if (line.type != chat_type::kMagic || !line.received.starts_with("The spell consumed")) return;

    struct Component {
        std::string name;
        std::int32_t count;
    };
    std::vector<Component> components;
    const std::string list = Replace(line.working, kBurnBegin, "");
    for (const std::string_view part : Split(list, ",")) {
        std::string name(Trim(part));
        const std::int32_t count = Vars::FilterHandler->GetItemCount(name);
        components.push_back({std::move(name), count});
    }
    if (Vars::ControlHandler->SplitPeas->Checked()) {
        const double threshold = ToDouble(Vars::ControlHandler->PeaThreshold->Text());
        for (const Component& component : components) {
            if (component.count < threshold) AddPea(PeaName(component.name));
        }
    }
    if (!Option(ChatOption::kCompCount)) return;

    std::string text(kBurnBegin);
    for (const Component& component : components) text += fmt::format("{} ({}), ", component.name, component.count);
    line.SetWorking(std::string(DropLast(text, 2)));
    line.rewrite = true;
}

bool ChatTextHandler::SpellExpiry(ChatLine& line) {
    if (line.type != chat_type::kMagic || !line.received.ends_with("has expired.") ||
        line.received.starts_with("Vitae penalty")) {
        return true;
    }
    if (line.rewrite) {  // the line of a group, or one of ours
        expireFlag = true;
        return true;
    }
    if (line.received.starts_with("The spell")) {
        if (Option(ChatOption::kCombineItemSpells)) {
            Gather(SpellsExpiring, *TimeSpells, line.received);
            line.show = false;
            return false;
        }
    } else {
        wtcw_debug("Spell Exp");
        if (Option(ChatOption::kFilterNonexpired) &&
            Vars::FilterHandler->IsSpellActive(Replace(Trim(line.working), " has expired.", ""))) {
            line.show = false;  // another cast has taken its place
            return false;
        }
    }
    expireFlag = true;
    return true;
}

bool ChatTextHandler::GatherCasts(ChatLine& line) {
    if (line.type != chat_type::kMagic || line.rewrite || !line.received.starts_with("You cast") ||
        Contains(line.received, "on yourself") || Contains(line.received, "of your")) {
        return true;
    }
    wtcw_debug("Spell Casting");
    if (!Option(ChatOption::kCombineItemSpells)) return true;

    Gather(SpellsCast, *TimeCast, line.received);
    line.show = false;
    return false;
}

void ChatTextHandler::ItemSpells(ChatLine& line) {
    if (line.type != chat_type::kMagic || !Contains(line.received, "cast")) return;
    const bool cast_by_us = line.received.starts_with("You cast") && Contains(line.received, " on ") &&
                            !Contains(line.received, "on yourself");
    if (!cast_by_us && !kCastOnOwnItem.Matches(line.received)) return;
    if (!Vars::ControlHandler->SpellsItem->Checked()) return;

    const std::string_view cast = Piece(line.working, " on ", 0);
    const std::string_view target = Piece(line.working, " on ", 1);
    const std::string spell(Trim(Piece(cast, " cast ", 1)));
    std::string item(Trim(Piece(target, ", surpassing", 0)));
    if (!Contains(item, "your armor")) item = Replace(item, "your ", "");
    Vars::SpellHandler->AddItemSpell(spell, item);
}

void ChatTextHandler::KillLine(ChatLine& line) {
    if (!Contains(line.received, Vars::LastKillText)) return;

    Statistics& statistics = *Vars::Statistics;
    const ControlHandler& controls = *Vars::ControlHandler;
    statistics.IncKills();
    std::string text(line.working);
    if (Option(ChatOption::kKillMonsterXP))
        text = fmt::format("{} for {} XP!", DropLast(text), FormatCount(statistics.MonsterXP, false));
    if (Option(ChatOption::kKillUnassignedXP))
        text += fmt::format(" You have {} XP unassigned.", controls.XPUn->Text());
    if (Option(ChatOption::kKillXPToLevel))
        text += fmt::format(" It will take {} XP to level.", controls.XPNext->Text());
    if (Option(ChatOption::kKillXPHour))
        text += fmt::format(" You are making {} XP per hour.", controls.XPHour->Text());
    if (Option(ChatOption::kKillKillsToLevel))
        text += fmt::format(" It will take {} similar kills to level.", FormatCount(statistics.KillsLevel, true));
    if (Option(ChatOption::kKillTimeToLevel))
        text += fmt::format(" It will take {} to level.", statistics.TimetoLevel());
    line.SetWorking(std::move(text));
    killFlag = true;
    line.rewrite = true;
}

// A line that comes in while the group's own line is on its way belongs to the next group, for which the timer goes on.
void ChatTextHandler::TimeSpells_Timeout() try {
    const std::vector<std::string> lines = std::exchange(SpellsExpiring, {});
    if (!lines.empty())
        IncomingText(LineOfGroup(lines, " on your armor has expired."), chat_type::kMagic, 0, true, false);
    if (SpellsExpiring.empty()) TimeSpells->Stop();
} catch (...) {
    ReportFailure("TimeSpells_Timeout", "ChatTextHandler");
}

void ChatTextHandler::TimeCast_Timeout() try {
    const std::vector<std::string> lines = std::exchange(SpellsCast, {});
    if (!lines.empty()) IncomingText(LineOfGroup(lines, " on your armor."), chat_type::kMagic, 0, true, false);
    if (SpellsCast.empty()) TimeCast->Stop();
} catch (...) {
    ReportFailure("TimeCast_Timeout", "ChatTextHandler");
}

void ChatTextHandler::AddPea(const std::string& name) try {
    Vars::EventQueue->AddByName(2, "Splitting Tool", name);
} catch (...) {
    ReportFailure("AddPea", "ChatTextHandler");
}

}  // namespace ombrel
