#include "core/Vars.h"

namespace ombrel::Vars {

Ref<host::Platform> Platform;
Ref<host::PluginSite> Site;
Global<host::Decal> Decal;

Global<ombrel::FilterHandler> FilterHandler;
Global<ombrel::ChatTextHandler> ChatTextHandler;
Global<ombrel::ViewHandler> ViewHandler;
Global<ombrel::ControlHandler> ControlHandler;
Global<ombrel::NetEchoHandler> NetEchoHandler;
Global<ombrel::SpellFilterHandler> SpellFilterHandler;
Global<ombrel::KeyboardAC> KeyboardAC;
Global<ombrel::EventQueue> EventQueue;
Global<ombrel::CorpseHandler> CorpseHandler;
Global<ombrel::Statistics> Statistics;
Global<ombrel::TimerHandler> TimerHandler;
Global<ombrel::SpellHandler> SpellHandler;
Global<ombrel::LogHandler> LogHandler;
Global<ombrel::HUDMainHandler> HUDMainHandler;
Global<ombrel::HUDClockHandler> HUDClockHandler;
Global<ombrel::HUDItemHandler> HUDItemHandler;
Global<ombrel::HUDStatusHandler> HUDStatusHandler;
Global<ombrel::HUDTargetHandler> HUDTargetHandler;
Global<ombrel::DHSHandler> DHSHandler;

bool Loaded = false;
bool HudFailed = false;
std::int32_t SettingsState = 0;
bool DebugMode = false;
bool DebugSilent = false;
bool XPDebug = false;
std::string LastKillText = "If you are reading this then you should know: I own.";

std::array<std::int32_t, 32> ChatScreenColors = {};
std::array<std::string_view, 32> ChatHtmlColors = {};

tsl::ordered_map<std::string, std::string> FontNames;

}  // namespace ombrel::Vars
