#include "stats/Statistics.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <numeric>

#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/TimerHandler.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"
#include "core/text.h"
#include "hud/HUDMainHandler.h"
#include "stats/NetEchoHandler.h"

namespace ombrel {
namespace {

constexpr std::size_t kSamples = 5;  // minutes in the average

double Divide(double dividend, double divisor) {
    if (divisor == 0.0) throw Failure(failure::kDivisionByZero);
    return dividend / divisor;
}

std::int32_t SecondsSince(Date start) { return ToLong((NowDate() - start) * 86400.0); }

}  // namespace

double ExperienceOfLevel(double level, std::int32_t character_level) {
    if (level <= 1) return 0.0;
    if (level == 2) return 1000.0;
    if (level == 3 && character_level <= 2) return 2777.0;
    const double n = level + 5.0;
    const double exact = (n * n * n * n * n - 7776.0) / 9.0;
    return character_level < 126 ? RoundUp(exact) : Round(exact);
}

Statistics::Statistics() { wtcw_debug("Statistics Init"); }

Statistics::~Statistics() { wtcw_debug("Statistics Terminate"); }

void Statistics::ComputeLevel() {
    const std::int32_t level = std::max(Vars::FilterHandler->GetMyCharLevel(), 1);
    XPAtThisLevel = ExperienceOfLevel(level, level);
    XPAtNextLevel = ExperienceOfLevel(level + 1.0, level);
    XPToNextLevel = XPAtNextLevel - CharTotalXP;
    XPForThisLevel = XPAtNextLevel - XPAtThisLevel;
}

void Statistics::ShowBar() {
    BarPercent = Round(Divide(XPForThisLevel - XPToNextLevel, XPForThisLevel) * 100.0, 1);
    Vars::ControlHandler->XPBar->SetValue(ToLong(std::clamp(BarPercent, 0.0, 100.0)));
}

void Statistics::InitStatistics() try {
    wtcw_debug("InitStatistics");
    auto& controls = *Vars::ControlHandler;
    auto& filter = *Vars::FilterHandler;
    CharTotalXP = Vars::NetEchoHandler->TotalXP;
    CharUnXP = Vars::NetEchoHandler->UnassignedXP;
    ComputeLevel();

    LastUnXP = CharUnXP;
    TotalXPStart = CharTotalXP;
    TotalStartTime = NowDate();
    TotalSec = 0;
    TotalXP = 0.0;
    LastMinuteXP = CharTotalXP;
    MinuteSamples.insert(MinuteSamples.end(), kSamples, 0.0);  // a second login keeps ten, of which five count

    controls.CharName->SetText(filter.GetMyCharName());
    controls.LevelNum->SetText(NumberText(filter.GetMyCharLevel()));
    controls.XPTotal->SetText(FormatCount(CharTotalXP, false));
    controls.XPNext->SetText(FormatCount(XPToNextLevel, false));
    controls.XPUn->SetText(FormatCount(CharUnXP, false));
    for (auto text : {controls.TotalXP, controls.TotalXPHour, controls.TotalXPMin, controls.XPChange, controls.XP5Min})
        text->SetText("0");
    ShowBar();
    AllegFollowers = filter.GetAllegFollowers();
    MyFollowers = filter.GetMyFollowers();
    ResetSession();
} catch (...) {
    ReportFailure("InitStatistics", "Statistics");
}

void Statistics::ResetSession() try {
    auto& controls = *Vars::ControlHandler;
    for (auto text : {controls.XPSession, controls.XPHour, controls.XPMin, controls.Kills}) text->SetText("0");
    controls.SessionTime->SetText("00:00:00");
    SessionXPStart = LastTotalXP = CharTotalXP;
    SessionXP = SessionXPHour = SessionXPMin = 0.0;
    Kills = Deaths = Spells = Melee = 0;
    KillsLevel = 0.0;
    TimeToLevelText = "Infinity";
    XPTotalChange = 0.0;
    SessionStartTime = NowDate();
    SessionSec = 0;
    Vars::HUDMainHandler->CreateHUD();
} catch (...) {
    ReportFailure("ResetSession", "Statistics");
}

void Statistics::UpdateTime() try {
    auto& controls = *Vars::ControlHandler;
    SessionSec = SecondsSince(SessionStartTime);
    controls.SessionTime->SetText(ConvTime(SessionSec, 1, false));
    TotalSec = SecondsSince(TotalStartTime);
    controls.TotalTime->SetText(ConvTime(TotalSec, 1, false));
    UpdateXP();
    UpdateAllegiance();
} catch (...) {
    ReportFailure("UpdateTime", "Statistics");
}

void Statistics::UpdateXP() try {
    if (!Vars::Loaded || SessionSec == 0) return;

    auto& controls = *Vars::ControlHandler;
    if (TotalXP != 0.0) {  // a rate stands while its experience is 0
        TotalXPMin = Divide(TotalXP, TotalSec) * 60.0;
        TotalXPHour = TotalXPMin * 60.0;
        controls.TotalXPMin->SetText(FormatCount(TotalXPMin, false));
        controls.TotalXPHour->SetText(FormatCount(TotalXPHour, false));
    }
    if (SessionXP != 0.0) {
        SessionXPMin = Divide(SessionXP, SessionSec) * 60.0;
        SessionXPHour = SessionXPMin * 60.0;
        controls.XPMin->SetText(FormatCount(SessionXPMin, false));
        controls.XPHour->SetText(FormatCount(SessionXPHour, false));
    }
    ShowBar();
} catch (...) {
    ReportFailure("UpdateXP", "Statistics");
}

void Statistics::UpdateAvgXP() try {
    const double sample = CharTotalXP - LastMinuteXP;
    LastMinuteXP = CharTotalXP;
    if (!MinuteSamples.empty()) MinuteSamples.pop_front();
    MinuteSamples.push_back(sample);
    const auto count = static_cast<std::ptrdiff_t>(std::min(kSamples, MinuteSamples.size()));
    FiveMinAvg = std::accumulate(MinuteSamples.begin(), MinuteSamples.begin() + count, 0.0) * 12.0;
    Vars::ControlHandler->XP5Min->SetText(FormatCount(FiveMinAvg, false));
} catch (...) {
    ReportFailure("UpdateAvgXP", "Statistics");
}

void Statistics::ChangeXP(bool showMessage) try {
    if (!Vars::Loaded) return;

    auto& controls = *Vars::ControlHandler;
    const auto& server = *Vars::NetEchoHandler;
    // A single gain of over ten times all that the session has earned so far begins a new one.
    if (controls.XPAuto->Checked() && (server.TotalXP - LastTotalXP) * 0.1 > SessionXP) ResetSession();

    CharTotalXP = server.TotalXP;
    XPToNextLevel = XPAtNextLevel - CharTotalXP;
    XPTotalChange = CharTotalXP - LastTotalXP;
    LastTotalXP = CharTotalXP;
    CharUnXP = server.UnassignedXP;
    XPUnChange = CharUnXP - LastUnXP;
    LastUnXP = CharUnXP;
    if (XPTotalChange != 0.0) {
        // What went to skills by use came on top of what the kill gave, a tenth of it at most.
        MonsterXP = std::max(XPUnChange - RoundUp((XPTotalChange - XPUnChange) * 0.1), 0.0);
        KillsLevel = MonsterXP == 0.0 ? -1.0 : RoundUp(XPToNextLevel / MonsterXP);
        if (Vars::XPDebug) {
            wtcw(fmt::format("Monster XP: {} XPChange: {} XPUnChange: {}", NumberText(MonsterXP),
                             NumberText(XPTotalChange), NumberText(XPUnChange)));
        }
    }
    TotalXP = CharTotalXP - TotalXPStart;
    SessionXP = CharTotalXP - SessionXPStart;
    controls.XPUn->SetText(FormatCount(CharUnXP, false));
    controls.XPNext->SetText(FormatCount(XPToNextLevel, false));
    controls.XPTotal->SetText(FormatCount(CharTotalXP, false));
    controls.XPSession->SetText(FormatCount(SessionXP, false));
    controls.TotalXP->SetText(FormatCount(TotalXP, false));
    UpdateXP();
    EstimateTime();
    if (XPTotalChange != 0.0) {
        const bool small = ToDouble(controls.XPFilterThreshold->Text()) > XPTotalChange && controls.XPFilter->Checked();
        if (!small && showMessage) DisplayXP();
    }
    Vars::HUDMainHandler->CreateHUD();
} catch (...) {
    ReportFailure("ChangeXP", "Statistics");
}

void Statistics::DisplayXP() try {
    auto& controls = *Vars::ControlHandler;
    const std::string change = FormatCount(XPTotalChange, false);
    controls.XPChange->SetText(change);
    if (controls.ChatOption("Show All XP Changes")) {
        std::string line = "XP: " + change + ".";
        if (XPTotalChange != XPUnChange) {
            line.pop_back();
            line += fmt::format(" (Unassigned: {}, Skill: {}). ", FormatCount(XPUnChange, false),
                                FormatCount(XPTotalChange - XPUnChange, false));
        }
        if (controls.ChatOption("Add XP/Hr")) line += fmt::format(" [ {} XP/Hr ]", controls.XPHour->Text());
        if (controls.ChatOption("Add XP to Level")) line += fmt::format(" [ {} XP to level ]", controls.XPNext->Text());
        if (controls.ChatOption("Add Time to Level")) line += fmt::format(" [ {} to level ]", TimeToLevelText);
        wtcw(line);
    }
    if (XPChangeOn) {
        ShowXPChange = true;
        Vars::TimerHandler->StartShowChangeTimer();
    }
} catch (...) {
    ReportFailure("DisplayXP", "Statistics");
}

// The last estimate stands while there is no rate.
void Statistics::EstimateTime() {
    if (SessionXPHour != 0.0) TimeToLevelText = ConvTime(Divide(XPToNextLevel, SessionXPMin) * 60.0, 10, false);
}

std::string Statistics::TimetoLevel() try {
    EstimateTime();
    return TimeToLevelText;
} catch (...) {
    ReportFailure("TimetoLevel", "Statistics");
    return {};
}

void Statistics::Level() try {
    wtcw_debug("Char Level");
    ComputeLevel();
    auto& controls = *Vars::ControlHandler;
    controls.LevelNum->SetText(NumberText(Vars::FilterHandler->GetMyCharLevel()));
    controls.XPNext->SetText(FormatCount(XPToNextLevel, false));
    ShowBar();
    Vars::HUDMainHandler->CreateHUD();
    Vars::TimerHandler->StartTakeSS();
} catch (...) {
    ReportFailure("Level", "Statistics");
}

void Statistics::IncKills() try {
    ++Kills;
    Vars::ControlHandler->Kills->SetText(NumberText(Kills));
} catch (...) {
    ReportFailure("IncKills", "Statistics");
}

void Statistics::UpdateAllegiance() try {
    if (!Vars::Loaded || !Vars::ControlHandler->AllegChange->Checked()) return;

    const std::int32_t followers = Vars::FilterHandler->GetMyFollowers();
    const std::int32_t guild = Vars::FilterHandler->GetAllegFollowers();
    if (followers != MyFollowers) {
        wtcw(fmt::format("Number of followers under you has changed: {}({}), Guild:{}", followers,
                         followers - MyFollowers, guild));
        MyFollowers = followers;
        AllegFollowers = guild;
    } else if (guild != AllegFollowers) {
        wtcw(fmt::format("Number of followers in the monarchy has changed: {}({})", guild, guild - AllegFollowers));
        AllegFollowers = guild;
    }
} catch (...) {
    ReportFailure("UpdateAllegiance", "Statistics");
}

}  // namespace ombrel
