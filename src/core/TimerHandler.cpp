#include "core/TimerHandler.h"

#include <string>
#include <string_view>

#include "chat/LogHandler.h"
#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"
#include "corpses/CorpseHandler.h"
#include "host/Plugin.h"
#include "hud/HUDClockHandler.h"
#include "hud/HUDMainHandler.h"
#include "hud/HUDStatusHandler.h"
#include "hud/HUDTargetHandler.h"
#include "input/KeyboardAC.h"
#include "spells/SpellHandler.h"
#include "stats/Statistics.h"

namespace ombrel {

namespace {

using TimerMember = Owned<host::Timer> TimerHandler::*;

struct TimerRow {
    TimerMember timer;
    const char* name;
    void (TimerHandler::*timeout)();
};

constexpr TimerRow kTimers[] = {
    {&TimerHandler::CoreTimer, "TimerHandler.CoreTimer", &TimerHandler::CoreTimer_Timeout},
    {&TimerHandler::ShowChange, "TimerHandler.ShowChange", &TimerHandler::ShowChange_Timeout},
    {&TimerHandler::TakeSS, "TimerHandler.TakeSS", &TimerHandler::TakeSS_Timeout},
    {&TimerHandler::MainHUDTime, "TimerHandler.MainHUDTime", &TimerHandler::MainHUDTime_Timeout},
    {&TimerHandler::TargetHUDRefresh, "TimerHandler.TargetHUDRefresh", &TimerHandler::TargetHUDRefresh_Timeout},
    {&TimerHandler::StartupDelay, "TimerHandler.StartupDelay", &TimerHandler::StartupDelay_Timeout},
    {&TimerHandler::SellingPeas, "TimerHandler.SellingPeas", &TimerHandler::SellingPeas_Timeout},
};

constexpr TimerMember kStopOrder[] = {
    &TimerHandler::CoreTimer,        &TimerHandler::MainHUDTime,  &TimerHandler::ShowChange,  &TimerHandler::TakeSS,
    &TimerHandler::TargetHUDRefresh, &TimerHandler::StartupDelay, &TimerHandler::SellingPeas,
};

constexpr std::int32_t kCorePeriod = 1000;  // milliseconds, as the rest
constexpr std::int32_t kTargetPeriod = 2000;
constexpr std::int32_t kShowChangeDelay = 5000;
constexpr std::int32_t kScreenshotDelay = 1000;
constexpr std::int32_t kStartupDelay = 3000;
constexpr std::int32_t kSellingPeriod = 500;

// The screenshot of a new level.
void TakeScreenshot() {
    const ControlHandler& options = *Vars::ControlHandler;
    if (!options.LevelSS->Checked()) return;
    if (Vars::FilterHandler->GetMyCharLevel() < ToDouble(options.StartLevel->Text())) return;
    Vars::KeyboardAC->SendKey(Vars::Decal->MapKey("CaptureScreenshot"));
}

}  // namespace

TimerHandler::TimerHandler() {
    wtcw_debug("Timer Handler Init");
    for (const TimerRow& row : kTimers) {
        // One timer that can't be had leaves the others.
        try {
            this->*row.timer = Vars::Site->CreateTimer(row.name);
            (this->*row.timer)->Timeout = [this, timeout = row.timeout] { (this->*timeout)(); };
        } catch (...) {
            ReportFailure("Class_Initialize", "TimerHandler");
        }
    }
}

TimerHandler::~TimerHandler() {
    wtcw_debug("Timer Handler Terminate");
    for (const TimerMember timer : kStopOrder) {
        try {
            if (this->*timer) (this->*timer)->Stop();
        } catch (...) {
            ReportFailure("Class_Terminate", "TimerHandler");
        }
    }
    for (const TimerRow& row : kTimers) (this->*row.timer).Release();
}

void TimerHandler::StartCoreTimer() try {
    wtcw_debug("Starting Core Timer");
    CoreTimer->Stop();
    CoreTimer->Start(kCorePeriod);
    TargetHUDRefresh->Start(kTargetPeriod);
} catch (...) {
    ReportFailure("StartCoreTimer", "TimerHandler");
}

void TimerHandler::StartShowChangeTimer() try {
    ShowChange->Stop();
    ShowChange->Start(kShowChangeDelay);
} catch (...) {
    ReportFailure("StartShowChangeTimer", "TimerHandler");
}

void TimerHandler::StartTakeSS() try {
    TakeSS->Stop();
    TakeSS->Start(kScreenshotDelay);
} catch (...) {
    ReportFailure("StartShowChangeTimer", "TimerHandler");
}

void TimerHandler::StartMainHUDTime(std::int32_t interval) try {
    MainHUDTime->Stop();
    MainHUDTime->Start(interval);
} catch (...) {
    ReportFailure("StartMainHUDTime", "TimerHandler");
}

void TimerHandler::StartStartupDelay() try { StartupDelay->Start(kStartupDelay); } catch (...) {
    ReportFailure("StartStartupDelay", "TimerHandler");
}

void TimerHandler::StartSellingPeas() try { SellingPeas->Start(kSellingPeriod); } catch (...) {
    ReportFailure("StartSellingPeas", "TimerHandler");
}

void TimerHandler::StopSellingPeas() try { SellingPeas->Stop(); } catch (...) {
    ReportFailure("StopSellingPeas", "TimerHandler");
}

void TimerHandler::CoreTimer_Timeout() try {
    if (!Vars::Loaded) return;

    Vars::Statistics->UpdateTime();
    Vars::SpellHandler->UpdateSpellList();
    Vars::CorpseHandler->UpdateCorpseList();
    Vars::HUDClockHandler->UpdateHUD();
    Vars::HUDStatusHandler->Update();
    Vars::HUDTargetHandler->UpdateDebuffs();
    Vars::LogHandler->WriteFileLog();

    if (Vars::Statistics->TotalSec % 60 == 0) {
        if (!Vars::SpellHandler->ItemSpells.empty()) Vars::ControlHandler->Data_Save();
        Vars::Statistics->UpdateAvgXP();
    }
} catch (...) {
    ReportFailure("CoreTimer_Timeout", "TimerHandler");
}

void TimerHandler::ShowChange_Timeout() try {
    Vars::Statistics->ShowXPChange = false;
    ShowChange->Stop();
    Vars::HUDMainHandler->CreateHUD();
} catch (...) {
    ReportFailure("ShowChange_Timeout", "TimerHandler");
}

// One that fails is tried again with the next tick: the timer stops behind it.
void TimerHandler::TakeSS_Timeout() try {
    TakeScreenshot();
    TakeSS->Stop();
} catch (...) {
    ReportFailure("TakeSS", "TimerHandler");
}

void TimerHandler::MainHUDTime_Timeout() try { Vars::HUDMainHandler->UpdateHUD(); } catch (...) {
    ReportFailure("MainHUDTime_Timeout", "TimerHandler");
}

void TimerHandler::TargetHUDRefresh_Timeout() try {
    host::WorldObjectPtr target;
    if (!Vars::HUDTargetHandler->GetObject(target) || !target) return;
    if (target->Type() == host::object_class::kCreature) Vars::FilterHandler->IDObject(target->GUID());
} catch (...) {
    ReportFailure("TargetHUDRefresh_Timeout", "TimerHandler");
}

void TimerHandler::StartupDelay_Timeout() try {
    Vars::FilterHandler->FriendsOnline();
    StartupDelay->Stop();
} catch (...) {
    ReportFailure("StartupDelay_Timeout", "TimerHandler");
}

void TimerHandler::SellingPeas_Timeout() try {
    if (Vars::FilterHandler->GetBusyState() == 0) Vars::FilterHandler->SellPeas();
} catch (...) {
    ReportFailure("SellingPeas_Timeout", "TimerHandler");
}

}  // namespace ombrel
