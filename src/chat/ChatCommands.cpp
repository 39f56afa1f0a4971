// The plug-in's own commands, "/m" and a word.
#include "chat/ChatCommands.h"

#include <fmt/format.h>

#include "automation/EventQueue.h"
#include "chat/ChatTextHandler.h"
#include "chat/LogHandler.h"
#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/like.h"
#include "core/text.h"
#include "corpses/CorpseHandler.h"
#include "host/Plugin.h"
#include "hud/HUDMainHandler.h"
#include "spells/SpellFilterHandler.h"
#include "stats/Statistics.h"

namespace ombrel {

namespace {

// `rest` is what stands behind the command's word, trimmed, in the case as typed.
using Action = void (*)(ChatTextHandler& chat, std::string_view rest);
using Report = std::string (*)();

struct Command {
    std::string_view test;       // against the lower-cased argument line
    Action run = nullptr;        // what it does, or else
    Report report = nullptr;     // what it tells,
    char channel = 0;            // to the player, or on a channel of the game: the letter of its command, "o" aloud
    std::string_view also = {};  // another form of the test
};

std::string Location() { return "My Location: " + Vars::FilterHandler->GetCharCoords(); }
std::string Corpse() { return "My Corpse Location: " + Vars::CorpseHandler->GetCorpse(); }

std::string Experience() {
    const ControlHandler& controls = *Vars::ControlHandler;
    return fmt::format("{} has made {} XP in {} for an average of {} XP/Hr while killing {} creatures.",
                       Vars::FilterHandler->GetMyCharName(), controls.XPSession->Text(),
                       ConvTime(Vars::Statistics->SessionSec, 10), controls.XPHour->Text(), controls.Kills->Text());
}

std::string LevelReport() {
    return fmt::format("{} needs {} XP to reach level {} ({}% Complete). It will take {} at the current rate.",
                       Vars::FilterHandler->GetMyCharName(), Vars::ControlHandler->XPNext->Text(),
                       NumberText(Vars::FilterHandler->GetMyCharLevel() + 1.0),
                       NumberText(Vars::Statistics->BarPercent), Vars::Statistics->TimetoLevel());
}

void Help(ChatTextHandler&, std::string_view) {
    wtcw(fmt::format("Ombrel Version: {} by Morquin of Dunmarrow.", kVersionText));
    wtcw("Location: \"/m \" + loc, floc, aloc, ploc, vloc, cloc, rloc, oloc");
    wtcw("Corpse: \"/m \" + corpse, fcorpse, acorpse, vcorpse, ccorpse, rcorpse, ocorpse ");
    wtcw("XP Report: \"/m \" + xp, fxp, axp, pxp, vxp, cxp, rxp, oxp");
    wtcw("Level Report: \"/m \" + level, flevel, alevel, plevel, vlevel, clevel, rlevel, olevel");
    wtcw("Misc: \"/m \" + resetxp, resethuds, chatcolors, chattypes, guid, find <search name>, runevents, clearevents");
}

void SelectedGuid(ChatTextHandler&, std::string_view) {
    const host::Id id = Vars::FilterHandler->GetCurrentSelection();
    wtcw(fmt::format("{}, GUID: {}", Vars::FilterHandler->GetName(id), id));
}

void ResetXP(ChatTextHandler&, std::string_view) {
    Vars::Statistics->ResetSession();
    Vars::HUDMainHandler->UpdateHUD();
}

void ClearEvents(ChatTextHandler&, std::string_view) {
    wtcw("Event Queue Cleared");
    Vars::EventQueue->Clear();
}

// "pattern|type|window|colour|sound|action" becomes a custom rule. Whether the rule is on is left to the player.
void AddCustomRule(ChatTextHandler& chat, std::string_view rest) {
    const std::vector<std::string_view> fields = Split(rest, "|");
    if (fields.size() < 6) {
        wtcw("Invalid Custom Chat Entry");
        return;
    }
    host::List& list = *Vars::ControlHandler->ChatCustom;
    const std::int32_t row = list.AddRow();
    list.SetData(1, row, std::string(fields[0]));
    list.SetData(3, row, std::string(fields[1]));
    list.SetData(2, row, std::string(fields[2]));
    list.SetData(4, row, Vars::Site->IconLibrary(), 0);
    list.SetData(4, row, chat.GetIconFromColor(fields[3]), 1);
    list.SetData(5, row, std::string(fields[4]));
    list.SetData(6, row, std::string(fields[5]));
}

void SwitchLog(ChatTextHandler&, std::string_view rest) {
    LogHandler& log = *Vars::LogHandler;
    if (rest.empty()) {
        log.SetFileLogging(false);
        wtcw("Closing log file");
    } else if (log.FileLogging()) {
        wtcw("Logging is currently in progress, close the current file before opening a new one");
    } else {
        log.SetLogfile(std::string(rest));
        wtcw(fmt::format("Now logging to {}{}", log.LogPath, log.logfile()));
        log.SetFileLogging(true);
    }
}

void ToggleChatTypes(ChatTextHandler& chat, std::string_view) {
    chat.showChatTypes = !chat.showChatTypes;
    wtcw(fmt::format("Chat Types: {}", BoolText(chat.showChatTypes)));
}

void ToggleDebug(ChatTextHandler&, std::string_view) {
    Vars::DebugMode = !Vars::DebugMode;
    wtcw(fmt::format("Debug mode toggled! {}", BoolText(Vars::DebugMode)));
}

void ToggleDebugSilent(ChatTextHandler&, std::string_view) {
    Vars::DebugSilent = !Vars::DebugSilent;
    Vars::DebugMode = Vars::DebugSilent;
    wtcw(fmt::format("Debug mode toggled! {}", BoolText(Vars::DebugMode)));
}

void ToggleDevMode(ChatTextHandler&, std::string_view) {
    Vars::FilterHandler->DevMode = !Vars::FilterHandler->DevMode;
    wtcw(fmt::format("Devmode toggled! {}", BoolText(Vars::FilterHandler->DevMode)));
}

void AskGuardian(const std::string& guardian, bool& pending) {
    pending = true;
    Vars::FilterHandler->UseItem(Vars::FilterHandler->GetID(guardian), 0);
}

// Tried from the top, the first hit runs: "*help*" leads, so any line that holds "help" asks for help, and "log*" takes
// what begins with "log".
constexpr Command kCommands[] = {
    {"*help*", Help},
    {"find*", [](ChatTextHandler&, std::string_view rest) { Vars::FilterHandler->Find(std::string(rest)); }},
    {"guid", SelectedGuid},
    {"resetxp", ResetXP},
    {"runevents", [](ChatTextHandler&, std::string_view) { Vars::EventQueue->Run(); }},
    {"clearevents", ClearEvents},
    {"resethuds", [](ChatTextHandler&, std::string_view) { Vars::FilterHandler->ResetHUDsPos(); }},
    {"chatcolors", [](ChatTextHandler& chat, std::string_view) { chat.ChatColors(); }},
    {"chatcustom*", AddCustomRule},
    {"log*", SwitchLog},
    {"loc", nullptr, Location},
    {"floc", nullptr, Location, 'f'},
    {"aloc", nullptr, Location, 'a'},
    {"ploc", nullptr, Location, 'p'},
    {"vloc", nullptr, Location, 'v'},
    {"cloc", nullptr, Location, 'c'},
    {"rloc", nullptr, Location, 'r'},
    {"oloc", nullptr, Location, 'o'},
    {"corpse", nullptr, Corpse},
    {"fcorpse", nullptr, Corpse, 'f'},
    {"acorpse", nullptr, Corpse, 'a'},
    {"pcorpse", nullptr, Corpse, 'p'},
    {"vcorpse", nullptr, Corpse, 'v'},
    {"ccorpse", nullptr, Corpse, 'c'},
    {"rcorpse", nullptr, Corpse, 'r'},
    {"ocorpse", nullptr, Corpse, 'o'},
    {"xp", nullptr, Experience, 0, "exp"},
    {"fxp", nullptr, Experience, 'f', "fexp"},
    {"axp", nullptr, Experience, 'a', "aexp"},
    {"pxp", nullptr, Experience, 'p', "pexp"},
    {"vxp", nullptr, Experience, 'v', "vexp"},
    {"cxp", nullptr, Experience, 'c', "cexp"},
    {"rxp", nullptr, Experience, 'r', "rexp"},
    {"oxp", nullptr, Experience, 'o', "oexp"},
    {"level", nullptr, LevelReport},
    {"flevel", nullptr, LevelReport, 'f'},
    {"alevel", nullptr, LevelReport, 'a'},
    {"plevel", nullptr, LevelReport, 'p'},
    {"vlevel", nullptr, LevelReport, 'v'},
    {"clevel", nullptr, LevelReport, 'c'},
    {"rlevel", nullptr, LevelReport, 'r'},
    {"olevel", nullptr, LevelReport, 'o'},
    {"chattypes", ToggleChatTypes},
    {"debug", ToggleDebug},
    {"debugsilent", ToggleDebugSilent},
    {"searchinv*",
     [](ChatTextHandler&, std::string_view rest) { Vars::FilterHandler->Find_in_Pack(std::string(rest)); }},
    {"templeforget*",
     [](ChatTextHandler& chat, std::string_view) {
         AskGuardian("Guardian of the Temple of Forgetfulness", chat.templeForgetPending);
     }},
    {"templeenlight*",
     [](ChatTextHandler& chat, std::string_view) {
         AskGuardian("Guardian of the Temple of Enlightenment", chat.templeEnlightenPending);
     }},
    {"sellpeas", [](ChatTextHandler&, std::string_view) { Vars::FilterHandler->StartPeas(); }},
    {"stopsellpeas", [](ChatTextHandler&, std::string_view) { Vars::FilterHandler->StopPeas(); }},
    {"dev", ToggleDevMode},
    {"fillmana", [](ChatTextHandler&, std::string_view) { Vars::FilterHandler->Fill_Mana(false); }},
    {"augs", [](ChatTextHandler&, std::string_view) { Vars::FilterHandler->Augs(); }},
    {"testcolors", [](ChatTextHandler& chat, std::string_view) { chat.ColorsTest(); }},
    {"listcolors", [](ChatTextHandler& chat, std::string_view) { chat.Colors(); }},
    {"listspells", [](ChatTextHandler&, std::string_view) { Vars::SpellFilterHandler->SpellExport(); }},
    {"listxp", [](ChatTextHandler& chat, std::string_view) { chat.XPList(3, 275); }},
    {"listenchant", [](ChatTextHandler&, std::string_view) { Vars::FilterHandler->ExportEnchantments(); }},
};

void Tell(char channel, const std::string& text) {
    if (channel == 0) {
        wtcw(text);
    } else if (channel == 'o') {
        Vars::FilterHandler->SendCommand(text);
    } else {
        Vars::FilterHandler->SendCommand(fmt::format("/{} {}", channel, text));
    }
}

void WriteSamples(std::int32_t window) {
    for (std::int32_t color = 0; color <= 40; ++color)
        Vars::FilterHandler->WriteToChatWindow(fmt::format("This is color {}", color), color, window);
}

}  // namespace

// An argument line that is no command is swallowed.
void ChatTextHandler::RunCommand(std::string_view arguments) {
    const std::string lower = ToLower(arguments);
    for (const Command& command : kCommands) {
        if (!LikeMatch(lower, command.test) && (command.also.empty() || lower != command.also)) continue;

        if (command.run) {
            const std::size_t word = command.test.starts_with('*') ? 0 : command.test.find('*');
            command.run(*this, word == std::string_view::npos ? std::string_view() : Trim(arguments.substr(word)));
        } else {
            Tell(command.channel, command.report());
        }
        return;
    }
}

std::vector<std::string_view> ChatCommands() {
    std::vector<std::string_view> tests;
    for (const Command& command : kCommands) {
        tests.push_back(command.test);
        if (!command.also.empty()) tests.push_back(command.also);
    }
    return tests;
}

void ChatTextHandler::Colors() try { WriteSamples(1); } catch (...) {
    ReportFailure("Colors", "ChatTextHandler");
}

void ChatTextHandler::ColorsTest() try { WriteSamples(0); } catch (...) {
    ReportFailure("ColorsTest", "ChatTextHandler");
}

void ChatTextHandler::ChatColors() try {
    const host::Choice& choice = *Vars::ControlHandler->ChatColorColor;
    for (std::int32_t i = 1; i < choice.Count(); ++i)
        IncomingText("This is the color " + choice.Text(i), ToLong(choice.Data(i)), 1, true, false);
} catch (...) {
    ReportFailure("ChatColors", "ChatTextHandler");
}

void ChatTextHandler::XPList(std::int32_t from, std::int32_t to) try {
    double previous = from == 3 ? 3000 : 0;
    for (std::int32_t level = from; level <= to; ++level) {
        const double n = level + 5;
        const double exact = (n * n * n * n * n - 7776) / 9;
        const double total = level < 126 ? RoundUp(exact) : Round(exact);
        wtcw(fmt::format("{}: {} ({})", level, FormatCount(total, false), FormatCount(total - previous, false)));
        previous = total;
    }
} catch (...) {
    ReportFailure("XPList", "ChatTextHandler");
}

}  // namespace ombrel
