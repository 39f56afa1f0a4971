// What the game tells, and who gets it.
#include <fmt/format.h>

#include "automation/EventQueue.h"
#include "chat/ChatTextHandler.h"
#include "chat/LogHandler.h"
#include "config/ControlHandler.h"
#include "config/HudRows.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/TimerHandler.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/convert.h"
#include "core/failure.h"
#include "core/like.h"
#include "core/text.h"
#include "core/time.h"
#include "corpses/CorpseHandler.h"
#include "hud/DX8Sound.h"
#include "hud/HUDClockHandler.h"
#include "hud/HUDItemHandler.h"
#include "hud/HUDMainHandler.h"
#include "hud/HUDStatusHandler.h"
#include "hud/HUDTargetHandler.h"
#include "input/DHSHandler.h"
#include "spells/SpellFilterHandler.h"
#include "spells/SpellHandler.h"
#include "stats/NetEchoHandler.h"
#include "stats/Statistics.h"

namespace ombrel {

namespace {

constexpr std::int32_t kShortName = 1;

// SettingsState of a load that went through.
constexpr std::int32_t kSettingsUsable = 2;

// The game's numbers of the augmentations that lengthen spells.
constexpr std::int32_t kArchmagesEndurance = 238;
constexpr std::int32_t kEnduringEnchantment = 232;

// Where the client's own button for its vitals stands.
constexpr host::Point kVitalsButton{20, 10};

constexpr std::int32_t kEnteringPortal = 1;

constexpr std::string_view kTooEncumbered = "You are too encumbered to sell that!";
constexpr std::string_view kTradeNote = "Trade Note (250,000)";

// The link that the plug-in writes into its own line, for the player to click.
constexpr std::string_view kQueueLink = "[Ombrel]";
constexpr host::Id kQueueLinkId = 0x710E0;

// Changes of an object, as the framework numbers them.
namespace change {
constexpr std::int32_t kSize = 0;
constexpr std::int32_t kStorage = 1;
constexpr std::int32_t kIdentified = 2;
constexpr std::int32_t kVendorIdentified = 3;
constexpr std::int32_t kMana = 4;
}  // namespace change

// A vital with its alarm, in the order in which they are looked at.
struct Alarm {
    Ref<host::Checkbox> ControlHandler::*on;
    Ref<host::Edit> ControlHandler::*percent;
    std::int32_t (host::CharacterStats::*current)() const;
    std::int32_t maximum;  // the vital's number
    Owned<DX8Sound> FilterHandler::*sound;
};

constexpr Alarm kAlarms[] = {
    {&ControlHandler::AlarmHealthOn, &ControlHandler::AlarmHealthPer, &host::CharacterStats::Health,
     host::vital::kHealth, &FilterHandler::HealthAlarm},
    {&ControlHandler::AlarmStaminaOn, &ControlHandler::AlarmStaminaPer, &host::CharacterStats::Stamina,
     host::vital::kStamina, &FilterHandler::StaminaAlarm},
    {&ControlHandler::AlarmManaOn, &ControlHandler::AlarmManaPer, &host::CharacterStats::Mana, host::vital::kMana,
     &FilterHandler::ManaAlarm},
};

// Where corpses are remembered: with one decimal.
double OneDecimal(double coordinate) { return ToDouble(FormatFixed(coordinate, 1)); }

void StartHotkeys() {
    Vars::DHSHandler.Release();
    Vars::DHSHandler = std::make_unique<DHSHandler>();
    if (!Vars::DHSHandler->HasService()) return;
    wtcw_debug("Hotkeys Enabled");
    Vars::DHSHandler->AddHotKeys();
}

void CreateHUDs() {
    Vars::HUDMainHandler->CreateHUD();
    Vars::HUDItemHandler->CreateHUD();
    Vars::HUDClockHandler->CreateHUD();
    Vars::HUDStatusHandler->CreateHUD();
    Vars::HUDTargetHandler->CreateHUD();
}

void StartLog() {
    wtcw_debug("Starting Automatic Logging");
    Vars::LogHandler->SetLogfile(Vars::LogHandler->AutomaticName());
    Vars::LogHandler->SetFileLogging(true);
}

// Hands the count of an augmentation that the character has to the spell lists.
void ReadAugmentation(const host::CharacterStats& character, std::int32_t id, std::string_view name) {
    std::int32_t count = 0;
    if (!character.Augmentation(id, count)) return;
    wtcw_debug(fmt::format("{} Count: {}", name, count));
    Vars::SpellHandler->Augs(count);
}

bool TargetIs(host::Id id) {
    host::WorldObjectPtr target;
    return Vars::HUDTargetHandler->GetObject(target) && target && target->GUID() == id;
}

// What of the framework's is not there, told once: the reports of the start find no chat yet.
void TellMissing() {
    if (!Vars::SpellFilterHandler->HasTable())
        wtcw_error("The framework's spell table is missing: spells have no names and no timers.");
    if (!Vars::NetEchoHandler->NetEcho)
        wtcw_error("The framework's echo filter is missing: nobody counts experience or follows the chat windows.");
    if (Vars::HudFailed) wtcw_error("The framework's render service is missing or at fault: the displays stay off.");
}

}  // namespace

// The order is a requirement: each step uses what the ones before it have brought.
void FilterHandler::Char_LoginComplete() try {
    ControlHandler& options = *Vars::ControlHandler;

    wtcw_debug("Login Complete Begin");
    options.stVersion->SetText(fmt::format("Ombrel v{}", kVersionText));
    options.Data_Load(0);  // first, since it tells which settings file is meant
    options.Settings_Load(0);
    if (Vars::SettingsState != kSettingsUsable) {
        wtcw_error("Unknown settings load failure! Plugin inactive.");
        return;
    }

    Vars::Statistics->InitStatistics();
    Vars::SpellHandler->InitSpells();
    Vars::CorpseHandler->UpdateCorpseList();
    if (options.LogoutTimer->Checked()) {
        wtcw_debug("Logout Extended");
        SetIdleTime(host::idle_time::kNever);
    }
    StartHotkeys();
    if (!Vars::HudFailed) CreateHUDs();
    TellMissing();
    ReadAugmentation(*CharStats, kArchmagesEndurance, "Archmage's Endurance");

    Vars::Loaded = true;  // from here on the other events act

    Vars::SpellHandler->BuildSpellList();
    Vars::SpellHandler->UpdateSpellList();
    Vars::TimerHandler->StartCoreTimer();
    hud::StartRefresh(options);
    if (options.ToggleVitals->Checked()) {
        wtcw_debug("Vitals Toggled");
        SendClick(kVitalsButton.x, kVitalsButton.y);
        SendClick(kVitalsButton.x, kVitalsButton.y);
    }
    wtcw("Plugin Loaded! Type /m help for commands.");
    FindFood();
    FindKits();
    if (options.FillMana->Checked()) {
        wtcw_debug("Filling Mana");
        Fill_Mana(true);
    }
    Vars::TimerHandler->StartStartupDelay();
    if (options.ChatLogAuto->Checked()) StartLog();
    wtcw_debug("Login Complete End");
} catch (...) {
    ReportFailure("LoginComplete", "FilterHandler");
}

void FilterHandler::Char_Logoff(std::int32_t) try {
    Vars::ControlHandler->Settings_Save(0, Durability::kPower);
    Vars::ControlHandler->Data_Save(Durability::kPower);
} catch (...) {
    ReportFailure("Char_Logoff", "FilterHandler");
}

void FilterHandler::Char_ChangeVital(std::int32_t, std::int32_t) try {
    if (!Vars::Loaded) return;
    wtcw_debug("ChangeVital");

    const ControlHandler& options = *Vars::ControlHandler;
    for (const Alarm& alarm : kAlarms) {
        if (!(options.*alarm.on)->Checked()) continue;  // a sound that plays is left as it is

        const double threshold = ToShare((options.*alarm.percent)->Text());
        const std::int32_t current = ((*CharStats).*alarm.current)();
        const std::int32_t maximum = CharStats->Vital(alarm.maximum);
        if (maximum == 0) throw Failure(failure::kDivisionByZero);

        DX8Sound& sound = *(this->*alarm.sound);
        const bool low = static_cast<double>(current) / maximum < threshold;
        if (low && sound.Status() == 0) sound.Play(true);
        if (!low && sound.Status() > 0) sound.StopPlay();
    }
} catch (...) {
    ReportFailure("Char_ChangeVital", "FilterHandler");
}

void FilterHandler::Char_ChangeEnchantments(std::int32_t, const host::Enchantment&) try {
    if (Vars::Loaded) Vars::SpellHandler->RebuildList(true);
} catch (...) {
    ReportFailure("Char_ChangeEnchantments", "FilterHandler");
}

// A character that has died comes back through portal space; its corpse is known by then.
void FilterHandler::Char_ChangePortalMode(std::int32_t mode) try {
    if (!Vars::CorpseHandler->HasDied() || mode != kEnteringPortal) return;
    Vars::CorpseHandler->AddCorpse();
    Vars::SpellHandler->RebuildList(true);
} catch (...) {
    ReportFailure("Char_ChangePortalMode", "FilterHandler");
}

void FilterHandler::Char_Death(const std::string&) try { Vars::CorpseHandler->CharDeath(); } catch (...) {
    ReportFailure("Char_Death", "FilterHandler");
}

void FilterHandler::ACHooks_ChatTextIntercept(const std::string& text, std::int32_t color, std::int32_t window,
                                              bool& eat) try {
    std::string_view line = text;
    if (line.ends_with('\n')) line.remove_suffix(1);
    eat = !Vars::ChatTextHandler->IncomingText(line, color, window, false, false);
} catch (...) {
    ReportFailure("ACHooks_ChatTextIntercept", "FilterHandler");
}

void FilterHandler::ACHooks_ChatParserIntercept(const std::string& text, bool& eat) try {
    eat = !Vars::ChatTextHandler->OutgoingText(std::string(Trim(text)));
} catch (...) {
    ReportFailure("ACHooks_ChatParserIntercept", "FilterHandler");
}

void FilterHandler::ACHooks_StatusTextIntercept(const std::string& text, bool& eat) try {
    if (!Vars::Loaded) return;
    if (text == kTooEncumbered) {
        wtcw("Unable to sell due to being encumbered.");
        StopPeas();
    }
    Vars::HUDStatusHandler->AddMessage(text);
    if (!Vars::ControlHandler->StatusText->Checked()) return;
    if (Vars::ControlHandler->ShowErrors->Checked()) Vars::ChatTextHandler->WriteError(text);
    eat = true;
} catch (...) {
    ReportFailure("ACHooks_StatusTextIntercept", "FilterHandler");
}

void FilterHandler::ACHooks_ChatClickIntercept(const std::string& text, host::Id id, bool& eat) try {
    eat = false;
    if (text != kQueueLink || id != kQueueLinkId) return;
    Vars::EventQueue->Run();
    eat = true;
} catch (...) {
    ReportFailure("ACHooks_ChatClickIntercept", "FilterHandler");
}

// The character stands at the corpse that it has just opened.
void FilterHandler::ACHooks_ContainerOpened(host::Id id) try {
    if (!Vars::ControlHandler->CorpsesAuto->Checked()) return;
    const host::WorldObjectPtr container = World->Object(id);
    if (!container || !IsOwnCorpse(container->Name(kShortName, ""))) return;
    Vars::CorpseHandler->OpenCorpse(GetRawNS(), GetRawEW(), id);
} catch (...) {
    ReportFailure("ACHooks_ContainerOpened", "FilterHandler");
}

void FilterHandler::ACHooks_ObjectSelected(host::Id id) try {
    if (!Vars::Loaded) return;
    Vars::NetEchoHandler->ResetHealth();

    HUDTargetHandler& target = *Vars::HUDTargetHandler;
    const host::WorldObjectPtr object = id == 0 ? nullptr : World->Object(id);
    if (!object) {
        wtcw_debug("Target = Nothing");
        target.SetObject(nullptr);
        target.RemoveTitle();
        target.CreateHUD();
        return;
    }
    if (object->LastIdTime() < NowUnix()) ACHooks->IdentifyObject(id);
    target.SetObject(object);
    target.CreateHUD();
} catch (...) {
    ReportFailure("ACHooks_ObjectSelected", "FilterHandler");
}

void FilterHandler::ACHooks_AC3DRegionChanged(std::int32_t, std::int32_t, std::int32_t, std::int32_t) try {
    if (!Vars::Loaded) return;
    Vars::HUDMainHandler->MainHud->frame.UpdatePos();
    Vars::HUDItemHandler->ItemHUD->frame.UpdatePos();
    Vars::HUDClockHandler->ClockHUD->frame.UpdatePos();
    Vars::HUDTargetHandler->TargetHud->frame.UpdatePos();
    Vars::HUDStatusHandler->StatusHud->frame.UpdatePos();
} catch (...) {
    ReportFailure("ACHooks_AC3DRegionChanged", "FilterHandler");
}

void FilterHandler::World_CreateObject(host::Id id) try {
    const host::WorldObjectPtr object = World->Object(id);
    if (!object) {
        wtcw_debug("CreateObject - Exit on Nothing");
        return;
    }
    if (Vars::CorpseHandler->HasDied() && IsOwnCorpse(object->Name())) {
        const host::Position place = object->Coordinates().value_or(host::Position{});
        Vars::CorpseHandler->NewCorpse(id, OneDecimal(place.ns), OneDecimal(place.ew));
    }
    if (SellingPeas && object->Name() == kTradeNote && object->Container() == CharStats->Character()) {
        wtcw_debug("New Trade Note created while Selling Peas");
        TradeNoteId = object->GUID();
    }
    UpdateItemHUD(*object);
} catch (...) {
    ReportFailure("World_CreateObject", "FilterHandler");
}

void FilterHandler::World_ChangeObject(host::Id id, std::int32_t kind) try {
    if (!Vars::Loaded) return;
    const host::WorldObjectPtr object = World->Object(id);
    if (!object) {
        wtcw_debug("ChangeObject - Exit on Nothing");
        return;
    }
    switch (kind) {
        case change::kSize:
        case change::kStorage:
        case change::kMana:
            UpdateItemHUD(*object);
            [[fallthrough]];
        case change::kIdentified:
        case change::kVendorIdentified:
            if (TargetIs(id)) Vars::HUDTargetHandler->CreateHUD();
            break;
        default:
            break;
    }
} catch (...) {
    ReportFailure("World_ChangeObject", "FilterHandler");
}

// Food and kits that come into reach are identified, so that one key can choose among them.
void FilterHandler::World_MoveObject(host::Id id) try {
    const host::WorldObjectPtr object = World->Object(id);
    if (!object) {
        wtcw_debug("MoveObject - Exit on Nothing");
        return;
    }
    UpdateItemHUD(*object);

    const std::int32_t type = object->Type();
    const bool food = type == host::object_class::kFood;
    const bool kit = type == host::object_class::kHealingKit;
    if ((!food && !kit) || object->HasIdData() != 0) return;
    if (Vars::DebugMode) wtcw_debug(fmt::format("ID {} on Move: {}", food ? "Food" : "Kit", object->Name()));
    ACHooks->IdentifyObject(id);
} catch (...) {
    ReportFailure("World_MoveObject", "FilterHandler");
}

void FilterHandler::World_ReleaseObject(host::Id id) try {
    wtcw_debug("ReleaseObject");
    const host::WorldObjectPtr object = World->Object(id);
    if (!object) {
        wtcw_debug("ReleaseObject - Exit on Nothing");
        return;
    }
    if (Vars::ControlHandler->CorpsesAuto->Checked() && IsOwnCorpse(object->Name())) {
        const host::Position place = object->Coordinates().value_or(host::Position{});
        Vars::CorpseHandler->CorpseDisappear(OneDecimal(place.ns), OneDecimal(place.ew), id);
    }
    if (TargetIs(id)) {
        Vars::HUDTargetHandler->SetObject(nullptr);
        Vars::HUDTargetHandler->CreateHUD();
    }
    Vars::HUDTargetHandler->TargetHud->RemoveDebuff(id);
} catch (...) {
    ReportFailure("World_ReleaseObject", "FilterHandler");
}

void FilterHandler::UpdateItemHUD(const host::WorldObject& object) try {
    const host::List& items = *Vars::ControlHandler->HudItems;
    const std::int32_t rows = items.Count();
    if (rows == 0) return;

    const std::string name = object.Name();
    for (std::int32_t row = 0; row < rows; ++row) {
        if (CellText(items, 1, row) != name) continue;
        Vars::HUDItemHandler->UpdateHUD();
        return;
    }
} catch (...) {
    ReportFailure("UpdateItemHUD", "FilterHandler");
}

void FilterHandler::FriendsOnline() try {
    FriendsCheck = Vars::ControlHandler->ChatOption("Show Friends Online on Login");
    if (!FriendsCheck) return;
    wtcw_debug("Checking Friends Online");
    SendCommand("/friends online");
} catch (...) {
    ReportFailure("FriendsOnline", "FilterHandler");
}

void FilterHandler::Augs() try {
    ReadAugmentation(*CharStats, kEnduringEnchantment, "Enduring Enchantment");
} catch (...) {
    ReportFailure("Augs", "FilterHandler");
}

bool FilterHandler::IsOwnCorpse(const std::string& name) { return LikeMatch(name, "Corpse of " + GetMyCharName()); }

}  // namespace ombrel
