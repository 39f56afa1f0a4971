// The plug-in's globals: one reference per handler, and the state flags. Everything reaches everything else through
// here.
//
// A handler's source includes the headers of those that it calls; this one only names them. All of it is touched on the
// client's thread alone.
#pragma once

#include <tsl/ordered_map.h>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/Ref.h"

namespace ombrel {

namespace host {
class Decal;
class Platform;
class PluginSite;
}  // namespace host

class ChatTextHandler;
class ControlHandler;
class CorpseHandler;
class DHSHandler;
class EventQueue;
class FilterHandler;
class HUDClockHandler;
class HUDItemHandler;
class HUDMainHandler;
class HUDStatusHandler;
class HUDTargetHandler;
class KeyboardAC;
class LogHandler;
class NetEchoHandler;
class SpellFilterHandler;
class SpellHandler;
class Statistics;
class TimerHandler;
class ViewHandler;

namespace Vars {

// There from the making of the plug-in object to its end, since reports need clock and folders at any time.
extern Ref<host::Platform> Platform;

extern Ref<host::PluginSite> Site;
extern Global<host::Decal> Decal;

extern Global<ombrel::FilterHandler> FilterHandler;
extern Global<ombrel::ChatTextHandler> ChatTextHandler;
extern Global<ombrel::ViewHandler> ViewHandler;
extern Global<ombrel::ControlHandler> ControlHandler;
extern Global<ombrel::NetEchoHandler> NetEchoHandler;
extern Global<ombrel::SpellFilterHandler> SpellFilterHandler;
extern Global<ombrel::KeyboardAC> KeyboardAC;
extern Global<ombrel::EventQueue> EventQueue;
extern Global<ombrel::CorpseHandler> CorpseHandler;
extern Global<ombrel::Statistics> Statistics;
extern Global<ombrel::TimerHandler> TimerHandler;
extern Global<ombrel::SpellHandler> SpellHandler;
extern Global<ombrel::LogHandler> LogHandler;
extern Global<ombrel::HUDMainHandler> HUDMainHandler;
extern Global<ombrel::HUDClockHandler> HUDClockHandler;
extern Global<ombrel::HUDItemHandler> HUDItemHandler;
extern Global<ombrel::HUDStatusHandler> HUDStatusHandler;
extern Global<ombrel::HUDTargetHandler> HUDTargetHandler;
extern Global<ombrel::DHSHandler> DHSHandler;  // made at each login, outlives IPlugin2_Terminate

extern bool Loaded;                 // a character is in and settings are usable; never false again
extern bool HudFailed;              // a drawing surface could not be made: no HUD is created or drawn any more
extern std::int32_t SettingsState;  // 0 nothing loaded, 1 being applied, 2 usable
extern bool DebugMode;              // debug lines are written
extern bool DebugSilent;            // ... to the file only
extern bool XPDebug;                // two diagnostic chat lines; nothing sets it
extern std::string LastKillText;    // the last killing blow that the server told of

// Colours by chat colour number. The two tables were made at different times and differ in a few rows on purpose.
extern std::array<std::int32_t, 32> ChatScreenColors;    // 0x00BBGGRR, for the log view
extern std::array<std::string_view, 32> ChatHtmlColors;  // "#RRGGBB", for log files

// Short font name to full font name, in the order of the view's choice.
extern tsl::ordered_map<std::string, std::string> FontNames;

}  // namespace Vars
}  // namespace ombrel
