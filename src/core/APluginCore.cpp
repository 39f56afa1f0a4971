#include "core/APluginCore.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <memory>
#include <string_view>
#include <system_error>

#include "automation/EventQueue.h"
#include "chat/ChatTextHandler.h"
#include "chat/LogHandler.h"
#include "config/ControlHandler.h"
#include "config/ViewHandler.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/TimerHandler.h"
#include "core/Vars.h"
#include "core/failure.h"
#include "core/files.h"
#include "corpses/CorpseHandler.h"
#include "hud/HUDClockHandler.h"
#include "hud/HUDItemHandler.h"
#include "hud/HUDMainHandler.h"
#include "hud/HUDStatusHandler.h"
#include "hud/HUDTargetHandler.h"
#include "hud/HudMouse.h"
#include "input/DHSHandler.h"
#include "input/KeyboardAC.h"
#include "spells/SpellFilterHandler.h"
#include "spells/SpellHandler.h"
#include "stats/NetEchoHandler.h"
#include "stats/Statistics.h"

namespace ombrel {

namespace {

struct ChatColorRow {
    std::int32_t screen;  // 0x00BBGGRR
    std::string_view html;
};

// By chat colour number. Rows 4, 6, 15, 21, 22 and 26 differ between screen and file on purpose.
constexpr ChatColorRow kChatColors[] = {
    {0x7EFF7F, "#7FFF7E"},  // 0
    {0x7EFF7F, "#7FFF7E"},  // 1
    {0xFFFFFF, "#FFFFFF"},  // 2
    {0x3AEBEB, "#EBEB3A"},  // 3
    {0x47BBBB, "#999647"},  // 4
    {0xFF7EFF, "#FF7EFF"},  // 5
    {0x4E54FF, "#B0342E"},  // 6
    {0xFFBE3E, "#3EBEFF"},  // 7
    {0x8F90F6, "#F6908F"},  // 8
    {0x8F90F6, "#F6908F"},  // 9
    {0x3AEBEB, "#EBEB3A"},  // 10
    {0x47BBBB, "#999647"},  // 11
    {0xC7D2D2, "#D2D2C7"},  // 12
    {0xDCDC3E, "#3EDCDC"},  // 13
    {0xEFDCB4, "#B4DCEF"},  // 14
    {0x4E54FF, "#B0342E"},  // 15
    {0x7EFF7F, "#7FFF7E"},  // 16
    {0xFFBE3E, "#3EBEFF"},  // 17
    {0x1E8FE7, "#E78F1E"},  // 18
    {0x3AEBEB, "#EBEB3A"},  // 19
    {0x7EFF7F, "#7FFF7E"},  // 20
    {0x4E54FF, "#B0342E"},  // 21
    {0x727BDD, "#B35B52"},  // 22
    {0x7EFF7F, "#7FFF7E"},  // 23
    {0x7EFF7F, "#7FFF7E"},  // 24
    {0x7EFF7F, "#7FFF7E"},  // 25
    {0x4E54FF, "#B0342E"},  // 26
    {0xEFDCB4, "#B4DCEF"},  // 27
    {0xEFDCB4, "#B4DCEF"},  // 28
    {0xEFDCB4, "#B4DCEF"},  // 29
    {0xEFDCB4, "#B4DCEF"},  // 30
    {0x3AEBEB, "#EBEB3A"},  // 31
};

struct FontRow {
    const char* key;
    const char* face;
};

constexpr FontRow kFonts[] = {
    {"Arial", "Arial"},     {"Courier", "Courier New"},        {"Franklin", "Franklin Gothic Medium"},
    {"Impact", "Impact"},   {"Palatino", "Palatino Linotype"}, {"Times", "Times New Roman"},
    {"Verdana", "Verdana"},
};

constexpr std::string_view kFirstKillText = "If you are reading this then you should know: I own.";

// Whose globals these are. A plug-in that ends after a newer one was made leaves the newer one's handlers alone.
const APluginCore* current = nullptr;

// Everything behind TimerHandler, in the order of the teardown: each handler may still reach those that come later.
void ReleaseHandlers() {
    Vars::FontNames.clear();
    Vars::LogHandler.Release();
    Vars::SpellHandler.Release();
    Vars::Statistics.Release();
    Vars::CorpseHandler.Release();
    Vars::EventQueue.Release();
    Vars::KeyboardAC.Release();
    Vars::HUDTargetHandler.Release();
    Vars::HUDStatusHandler.Release();
    Vars::HUDItemHandler.Release();
    Vars::HUDClockHandler.Release();
    Vars::HUDMainHandler.Release();
    Vars::SpellFilterHandler.Release();
    Vars::NetEchoHandler.Release();
    Vars::ControlHandler.Release();
    Vars::ViewHandler.Release();
    Vars::ChatTextHandler.Release();
    Vars::FilterHandler.Release();
    Vars::Decal.Release();
    Vars::Site = {};
}

// What an earlier life left behind: the hotkeys always, the rest when it was never terminated.
void ReleaseLeftovers() {
    Vars::TimerHandler.Release();
    Vars::DHSHandler.Release();
    ReleaseHandlers();
}

void ResetState() {
    Vars::LastKillText = kFirstKillText;
    Vars::Loaded = false;
    Vars::HudFailed = false;
    Vars::DebugMode = false;
    Vars::DebugSilent = false;
    Vars::XPDebug = false;
    Vars::SettingsState = 0;
}

// Each handler's making may use those before it.
void CreateHandlers() {
    Vars::FilterHandler = std::make_unique<FilterHandler>();
    Vars::ChatTextHandler = std::make_unique<ChatTextHandler>();
    Vars::ViewHandler = std::make_unique<ViewHandler>();
    Vars::ControlHandler = std::make_unique<ControlHandler>();
    Vars::NetEchoHandler = std::make_unique<NetEchoHandler>();
    Vars::SpellFilterHandler = std::make_unique<SpellFilterHandler>();
    Vars::KeyboardAC = std::make_unique<KeyboardAC>();
    Vars::EventQueue = std::make_unique<EventQueue>();
    Vars::CorpseHandler = std::make_unique<CorpseHandler>();
    Vars::Statistics = std::make_unique<Statistics>();
    Vars::TimerHandler = std::make_unique<TimerHandler>();
    Vars::SpellHandler = std::make_unique<SpellHandler>();
    Vars::LogHandler = std::make_unique<LogHandler>();
    Vars::HUDMainHandler = std::make_unique<HUDMainHandler>();
    Vars::HUDClockHandler = std::make_unique<HUDClockHandler>();
    Vars::HUDItemHandler = std::make_unique<HUDItemHandler>();
    Vars::HUDStatusHandler = std::make_unique<HUDStatusHandler>();
    Vars::HUDTargetHandler = std::make_unique<HUDTargetHandler>();
}

}  // namespace

APluginCore::APluginCore(host::Platform& platform) {
    current = this;
    Vars::Platform = &platform;
}

APluginCore::~APluginCore() {
    if (current != this) return;
    try {
        ReleaseLeftovers();
    } catch (...) {
        ReportFailure("Class_Terminate", "APluginCore");
    }
    Vars::Platform = {};
    current = nullptr;
}

void APluginCore::IPlugin2_Initialize(host::PluginSite& site) try {
    ResetState();
    ReleaseLeftovers();
    wtcw_debug("Plugin Core Init");

    // Looked for and no more: the folder is made with the first file that goes there.
    std::error_code ignored;
    (void)std::filesystem::is_directory(NativePath(ProgramPath() + "\\Settings"), ignored);

    InitTables();
    Vars::Site = &site;
    Vars::Decal = site.GetDecal();
    site.RegisterSink(*this);

    CreateHandlers();
    Vars::ControlHandler->InitControls();
} catch (...) {
    ReportFailure("IPlugin_Initialize", "APluginCore");
}

void APluginCore::IPlugin2_Terminate() try {
    if (current != this) return;
    Vars::TimerHandler.Release();  // before anything else, so that no timer fires into what is being torn down
    wtcw_debug("Plugin Core Terminate");
    ReleaseHandlers();
} catch (...) {
    ReportFailure("IPlugin_Terminate", "APluginCore");
}

void APluginCore::IWindowsMessageSink_WindowMessage(std::int32_t, std::int32_t message, std::int32_t, std::int32_t,
                                                    bool& eat) try {
    eat = false;
    HandleMouse(message);
} catch (...) {
    ReportFailure("IWindowsMessageSink_WindowMessage", "APluginCore");
}

void APluginCore::IWindowsMessageSink_WindowMessageEnd() {}

void APluginCore::AddChatText(const std::string& text, std::int32_t color, std::int32_t window) try {
    if (Vars::Loaded && Vars::ChatTextHandler) {
        Vars::ChatTextHandler->IncomingText(text, color, window, true, true);
    } else if (Vars::FilterHandler) {
        Vars::FilterHandler->WriteToChatWindow(text, color, window);
    }
} catch (...) {
    ReportFailure("AddChatText", "APluginCore");
}

void APluginCore::InitTables() {
    static_assert(std::size(kChatColors) == std::tuple_size_v<decltype(Vars::ChatScreenColors)>);
    std::ranges::transform(kChatColors, Vars::ChatScreenColors.begin(), &ChatColorRow::screen);
    std::ranges::transform(kChatColors, Vars::ChatHtmlColors.begin(), &ChatColorRow::html);

    Vars::FontNames.clear();
    for (const auto& [key, face] : kFonts) Vars::FontNames.emplace(key, face);
}

}  // namespace ombrel
