// The settings file at the player's word, and options that something outside the view keeps a copy of.
#include "automation/EventQueue.h"
#include "config/ControlHandler.h"
#include "config/Effects.h"
#include "config/HudRows.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/failure.h"

namespace ombrel {
namespace {

constexpr std::int32_t kOwn = 0;  // what Settings_Load and Settings_Save act on
constexpr std::int32_t kDefaults = 1;

}  // namespace

void ControlHandler::ReloadSettings_Accepted() try {
    wtcw("Attempting to Reload Your Settings");
    Settings_Load(kOwn);
    hud::CreateAll();
} catch (...) {
    ReportFailure("ReloadSettings_Accepted", "ControlHandler");
}

void ControlHandler::ReloadDefault_Accepted() try {
    wtcw("Attempting to Load Default Settings");
    Settings_Load(kDefaults);
    hud::CreateAll();
} catch (...) {
    ReportFailure("ReloadDefault_Accepted", "ControlHandler");
}

void ControlHandler::SetDefault_Accepted() try {
    Settings_Save(kDefaults);
    wtcw("Settings Saved as Default");
} catch (...) {
    ReportFailure("SetDefault_Accepted", "ControlHandler");
}

// The other file is loaded; the data file keeps which one it is.
void ControlHandler::GlobalSettings_Change() try {
    Settings_Load(kOwn);
    Data_Save();
    hud::CreateAll();
} catch (...) {
    ReportFailure("GlobalSettings_Change", "ControlHandler");
}

void effect::PassEventStart(ControlHandler& controls, std::int32_t) {
    Vars::EventQueue->autorun = controls.EventStart->Checked();
}

void effect::SetIdleTime(ControlHandler& controls, std::int32_t) {
    Vars::FilterHandler->SetIdleTime(controls.LogoutTimer->Checked() ? host::idle_time::kNever
                                                                     : host::idle_time::kClient);
}

}  // namespace ombrel
