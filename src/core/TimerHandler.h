// The plug-in's heartbeat and its delayed jobs.
//
// All timers fire on the client's thread, between other events. A one-shot timer is a repeating one that its own
// timeout stops. Released before every other handler, so that nothing fires into a half-released graph.
#pragma once

#include <cstdint>

#include "core/Ref.h"
#include "host/Timer.h"

namespace ombrel {

class TimerHandler {
public:
    TimerHandler();
    ~TimerHandler();
    TimerHandler(const TimerHandler&) = delete;
    TimerHandler& operator=(const TimerHandler&) = delete;

    void StartCoreTimer();                         // the one-second tick and the target's refresh
    void StartShowChangeTimer();                   // keeps the XP change line up for five seconds from now
    void StartTakeSS();                            // a screenshot in a second
    void StartMainHUDTime(std::int32_t interval);  // redraws the main HUD each `interval` milliseconds
    void StartStartupDelay();                      // three seconds after login
    void StartSellingPeas();
    void StopSellingPeas();

    void CoreTimer_Timeout();
    void ShowChange_Timeout();
    void TakeSS_Timeout();
    void MainHUDTime_Timeout();
    void TargetHUDRefresh_Timeout();
    void StartupDelay_Timeout();
    void SellingPeas_Timeout();

    Owned<host::Timer> CoreTimer;
    Owned<host::Timer> ShowChange;
    Owned<host::Timer> TakeSS;
    Owned<host::Timer> MainHUDTime;
    Owned<host::Timer> TargetHUDRefresh;
    Owned<host::Timer> StartupDelay;
    Owned<host::Timer> SellingPeas;
};

}  // namespace ombrel
