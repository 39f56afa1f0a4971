// The settings file as a table: every element in the order of the file, its attributes, their defaults, and where each
// value lives while the plug-in runs. Loading and saving walk the same rows.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

#include "config/ControlHandler.h"
#include "config/ControlTools.h"
#include "config/HudRows.h"
#include "core/FilterHandler.h"

namespace ombrel::settings {

template <class Kind>
using Member = Ref<Kind> ControlHandler::*;

// Where a value lives. The place decides the form of the value: flags are "True" or "False", numbers whole, colours
// names.

struct InCheckbox {
    Member<host::Checkbox> control;
};
struct InEdit {
    Member<host::Edit> control;
};
// A percentage: the text stands in the edit as it is, its number in the slider.
struct InPercent {
    Member<host::Edit> edit;
    Member<host::Slider> slider;
};
// The number of the selected entry.
struct InChoice {
    Member<host::Choice> control;
};
// The text of the selected entry, which names the file of an alarm.
struct InSound {
    Member<host::Choice> control;
    Owned<DX8Sound> FilterHandler::*alarm;
};
// Cells of the element's row.
struct InFlag {
    std::int32_t column;
};
struct InText {
    std::int32_t column;
};
struct InNumber {
    std::int32_t column;
};
struct InHudColor {
    std::int32_t column;
};
struct InChatColor {
    std::int32_t column;
};
// The cell by which the row is found again.
struct InName {};
// A flag of some other list's row, read from files of an older shape and never written.
struct InOlderFlag {
    Member<host::List> list;
    std::int32_t column;
    std::int32_t row;
};
// Place and shape of the canvas of the element's row.
enum class InCanvas { kX, kY, kDockHorz, kDockVert, kDrawTitle };
// Corner of the options view.
enum class InView { kX, kY };
// The spell that the player follows.
struct InSelectedSpell {};

using Place = std::variant<InCheckbox, InEdit, InPercent, InChoice, InSound, InFlag, InText, InNumber, InHudColor,
                           InChatColor, InName, InOlderFlag, InCanvas, InView, InSelectedSpell>;

struct Attribute {
    std::string_view name;
    std::string_view missing;  // the value of a file that lacks the attribute
    Place place;

    // Files before version 1 hold the number of this choice's entry in place of its text.
    Member<host::Choice> entries = nullptr;
};

enum class Rows {
    kOnce,      // the element stands once
    kNamed,     // one for each row of the list, found by name; a name that the list lacks is passed over
    kRequired,  // the same, but such a name is a failure
    kOrdered,   // the same, and the order of the elements becomes that of the rows
    kAppended,  // one for each row, added at the end
};

struct RowIcon {
    std::int32_t column;
    std::int32_t icon;
};

struct Loading;

struct Element {
    std::string_view name;
    std::span<const Attribute> attributes;
    Rows rows = Rows::kOnce;
    Member<host::List> list = nullptr;
    std::string_view key = {};            // the list as FindName knows it
    std::int32_t row = 0;                 // of an element that stands once
    std::span<const RowIcon> icons = {};  // buttons of an appended row
    bool indexed_before_1 = false;        // the attributes with `entries` were numbers in files before version 1

    // What else happens to the plug-in before and after the attributes are read.
    void (*begin)(Loading& loading) = nullptr;
    void (*finish)(Loading& loading) = nullptr;
};

void DropAlarms(Loading& loading);
void MoveView(Loading& loading);
void PassEventStart(Loading& loading);
void PassOutputs(Loading& loading);
void PassXPChange(Loading& loading);
void PassLog(Loading& loading);
void PassHud(Loading& loading);
void PassMainHud(Loading& loading);
void PassItemHud(Loading& loading);
void PassTargetHud(Loading& loading);

using Controls = ControlHandler;

inline constexpr Attribute kLocation[] = {
    {"x", "0", InView::kX},
    {"y", "0", InView::kY},
};

inline constexpr Attribute kExp[] = {
    {"auto", "False", InCheckbox{&Controls::XPAuto}},
    {"filter", "False", InCheckbox{&Controls::XPFilter}},
    {"filterthreshold", "750", InEdit{&Controls::XPFilterThreshold}},
};

inline constexpr Attribute kUtil[] = {
    {"fillmana", "False", InCheckbox{&Controls::FillMana}},
    {"fillthreshold", "50000", InEdit{&Controls::FillThreshold}},
    {"levelss", "False", InCheckbox{&Controls::LevelSS}},
    {"startlevel", "6", InEdit{&Controls::StartLevel}},
    {"allegchange", "False", InCheckbox{&Controls::AllegChange}},
    {"logoutextend", "False", InCheckbox{&Controls::LogoutTimer}},
    {"statustext", "False", InCheckbox{&Controls::StatusText}},
    {"showerrors", "False", InCheckbox{&Controls::ShowErrors}},
    {"usegems", "False", InCheckbox{&Controls::UseGems}},
    {"splitpeas", "False", InCheckbox{&Controls::SplitPeas}},
    {"peathreshold", "10", InEdit{&Controls::PeaThreshold}},
    {"usebeers", "False", InCheckbox{&Controls::UseBeers}},
    {"beertimer", "120", InEdit{&Controls::BeerTimer}},
    {"beerstr", "True", InCheckbox{&Controls::BeerStr}},
    {"beerend", "True", InCheckbox{&Controls::BeerEnd}},
    {"beercoord", "True", InCheckbox{&Controls::BeerCoord}},
    {"beerquick", "True", InCheckbox{&Controls::BeerQuick}},
    {"beerfocus", "True", InCheckbox{&Controls::BeerFocus}},
    {"beerself", "True", InCheckbox{&Controls::BeerSelf}},
    {"beerusecheck", "False", InCheckbox{&Controls::BeerUseCheck}},
    {"beerusetimer", "120", InEdit{&Controls::BeerUseTimer}},
    {"eventstart", "False", InCheckbox{&Controls::EventStart}},
    {"togglevitals", "False", InCheckbox{&Controls::ToggleVitals}},
};

inline constexpr Attribute kVitalAlarm[] = {
    {"healthon", "False", InCheckbox{&Controls::AlarmHealthOn}},
    {"healthper", "0%", InEdit{&Controls::AlarmHealthPer}},
    {"healthsound", "None", InSound{&Controls::AlarmHealthSound, &FilterHandler::HealthAlarm}},
    {"staminaon", "False", InCheckbox{&Controls::AlarmStaminaOn}},
    {"staminaper", "0%", InEdit{&Controls::AlarmStaminaPer}},
    {"staminasound", "None", InSound{&Controls::AlarmStaminaSound, &FilterHandler::StaminaAlarm}},
    {"manaon", "False", InCheckbox{&Controls::AlarmManaOn}},
    {"manaper", "0%", InEdit{&Controls::AlarmManaPer}},
    {"manasound", "None", InSound{&Controls::AlarmManaSound, &FilterHandler::ManaAlarm}},
};

inline constexpr Attribute kOutputWindows[] = {
    {"main", "False", InCheckbox{&Controls::OutputMain}}, {"win1", "False", InCheckbox{&Controls::Output1}},
    {"win2", "False", InCheckbox{&Controls::Output2}},    {"win3", "False", InCheckbox{&Controls::Output3}},
    {"win4", "False", InCheckbox{&Controls::Output4}},
};

inline constexpr Attribute kSpells[] = {
    {"selected", "", InSelectedSpell{}},
    {"offset", "0", InEdit{&Controls::SpellsOffset}},
    {"trackitem", "False", InCheckbox{&Controls::SpellsItem}},
    {"beers", "False", InCheckbox{&Controls::SpellsBeers}},
};

inline constexpr Attribute kCorpses[] = {
    {"track", "True", InCheckbox{&Controls::CorpsesTrack}},
    {"absolute", "False", InCheckbox{&Controls::CorpsesAbsolute}},
    {"auto", "False", InCheckbox{&Controls::CorpsesAuto}},
};

inline constexpr Attribute kHudAll[] = {
    {"on", "False", InCheckbox{&Controls::HudOn}},
};

inline constexpr Attribute kHudClock[] = {
    {"on", "False", InFlag{hud::kOn}},
    {"disp", "False", InCheckbox{&Controls::HudClockDisp}},
    {"datedisp", "False", InCheckbox{&Controls::HudClockDateDisp}},
    {"label", "False", InCheckbox{&Controls::HudClockLabel}},
    {"hour", "False", InCheckbox{&Controls::HudClockHour}},
    {"shortdate", "False", InCheckbox{&Controls::HudClockShort}},
    {"color", "0", InChoice{&Controls::HudClockColor}},
    {"font", "Arial", InText{hud::kFont}, &Controls::HudGeneralFont},
    {"size", "16", InNumber{hud::kSize}, &Controls::HudGeneralSize},
    {"bgcolor", "Black", InHudColor{hud::kBackground}, &Controls::HudGeneralBGColor},
    {"alpha", "50%", InText{hud::kAlpha}, &Controls::HudGeneralBGAlpha},
    {"x", "0", InCanvas::kX},
    {"y", "0", InCanvas::kY},
    {"outline", "False", InFlag{hud::kOutline}},
    {"dockh", "False", InCanvas::kDockHorz},
    {"dockv", "False", InCanvas::kDockVert},
    {"drawtitle", "True", InCanvas::kDrawTitle},
    {"gt", "False", InOlderFlag{&Controls::HudClockList, 0, 4}},
    {"date", "False", InOlderFlag{&Controls::HudClockList, 0, 2}},
};

inline constexpr Attribute kClockList[] = {
    {"name", "", InName{}},
    {"enabled", "False", InFlag{0}},
    {"color", "White", InHudColor{4}},
};

inline constexpr Attribute kHudMain[] = {
    {"on", "False", InFlag{hud::kOn}},
    {"font", "Arial", InText{hud::kFont}, &Controls::HudGeneralFont},
    {"size", "16", InNumber{hud::kSize}, &Controls::HudGeneralSize},
    {"bgcolor", "Black", InHudColor{hud::kBackground}, &Controls::HudGeneralBGColor},
    {"alpha", "50%", InText{hud::kAlpha}, &Controls::HudGeneralBGAlpha},
    {"timeout", "0", InChoice{&Controls::HudTimeout}},
    {"x", "0", InCanvas::kX},
    {"y", "0", InCanvas::kY},
    {"label", "False", InCheckbox{&Controls::HudMainLbl}},
    {"outline", "False", InFlag{hud::kOutline}},
    {"dockh", "False", InCanvas::kDockHorz},
    {"dockv", "False", InCanvas::kDockVert},
    {"drawtitle", "True", InCanvas::kDrawTitle},
};

inline constexpr Attribute kHudLines[] = {
    {"name", "", InName{}},
    {"enabled", "False", InFlag{0}},
    {"color", "White", InHudColor{2}},
};

inline constexpr Attribute kHudItems[] = {
    {"on", "False", InFlag{hud::kOn}},
    {"color", "0", InChoice{&Controls::HudItemsColor}},
    {"size", "16", InNumber{hud::kSize}, &Controls::HudGeneralSize},
    {"font", "Arial", InText{hud::kFont}, &Controls::HudGeneralFont},
    {"bgcolor", "Black", InHudColor{hud::kBackground}, &Controls::HudGeneralBGColor},
    {"alpha", "50%", InText{hud::kAlpha}, &Controls::HudGeneralBGAlpha},
    {"iconsize", "0", InChoice{&Controls::HudItemsIconSize}},
    {"horz", "False", InCheckbox{&Controls::HudItemsHorz}},
    {"x", "0", InCanvas::kX},
    {"y", "0", InCanvas::kY},
    {"outline", "False", InFlag{hud::kOutline}},
    {"dockh", "False", InCanvas::kDockHorz},
    {"dockv", "False", InCanvas::kDockVert},
    {"drawtitle", "True", InCanvas::kDrawTitle},
};

inline constexpr Attribute kHudItem[] = {
    {"name", "False", InText{1}},
    {"enabled", "False", InFlag{0}},
    {"count", "False", InText{2}},
    {"icon", "False", InText{6}},
};

inline constexpr Attribute kHudStatus[] = {
    {"on", "False", InFlag{hud::kOn}},
    {"color", "0", InChoice{&Controls::HudStatusColor}},
    {"lines", "0", InChoice{&Controls::HudStatusLines}},
    {"font", "Arial", InText{hud::kFont}},
    {"size", "16", InNumber{hud::kSize}},
    {"bgcolor", "Black", InHudColor{hud::kBackground}},
    {"alpha", "100%", InText{hud::kAlpha}},
    {"x", "0", InCanvas::kX},
    {"y", "0", InCanvas::kY},
    {"outline", "True", InFlag{hud::kOutline}},
    {"dockh", "False", InCanvas::kDockHorz},
    {"dockv", "False", InCanvas::kDockVert},
    {"drawtitle", "True", InCanvas::kDrawTitle},
};

inline constexpr Attribute kHudTarget[] = {
    {"on", "True", InFlag{hud::kOn}},
    {"color", "0", InChoice{&Controls::HudTargetColor}},
    {"font", "Arial", InText{hud::kFont}},
    {"size", "16", InNumber{hud::kSize}},
    {"bgcolor", "Black", InHudColor{hud::kBackground}},
    {"alpha", "100%", InText{hud::kAlpha}},
    {"x", "0", InCanvas::kX},
    {"y", "0", InCanvas::kY},
    {"outline", "False", InFlag{hud::kOutline}},
    {"dockh", "False", InCanvas::kDockHorz},
    {"dockv", "False", InCanvas::kDockVert},
    {"drawtitle", "True", InCanvas::kDrawTitle},
    {"level", "6", InChoice{&Controls::HudTargetLevel}},
};

inline constexpr Attribute kChatOption[] = {
    {"name", "", InName{}},
    {"enabled", "False", InFlag{0}},
};

inline constexpr Attribute kChatFilter[] = {
    {"name", "False", InText{1}},
    {"enabled", "False", InFlag{0}},
    {"matching", "False", InText{2}},
    {"action", "False", InText{3}},
};

inline constexpr Attribute kChatAlias[] = {
    {"abbr", "False", InText{1}},
    {"full", "False", InText{2}},
    {"enabled", "False", InFlag{0}},
};

inline constexpr Attribute kChatColor[] = {
    {"name", "", InName{}},        {"enabled", "False", InFlag{0}},
    {"window", "D", InText{2}},    {"color", "False", InChatColor{3}},
    {"sound", "False", InText{4}},
};

inline constexpr Attribute kChatCustom[] = {
    {"text", "", InText{1}},   {"enabled", "False", InFlag{0}},    {"type", "False", InText{3}},
    {"window", "", InText{2}}, {"color", "False", InChatColor{4}}, {"sound", "False", InText{5}},
    {"action", "", InText{6}},
};

inline constexpr Attribute kChatLog[] = {
    {"enabled", "False", InCheckbox{&Controls::ChatLogEnable}},
    {"max", "100", InEdit{&Controls::ChatLogMax}},
    {"auto", "False", InCheckbox{&Controls::ChatLogAuto}},
    {"timestamp", "False", InCheckbox{&Controls::ChatLogTimestamp}},
    {"xml", "False", InCheckbox{&Controls::ChatLogXML}},
    {"bydate", "False", InCheckbox{&Controls::ChatLogByDate}},
    {"afkmsg", "I am currently away from the keyboard.", InEdit{&Controls::ChatLogAFKMessage}},
};

inline constexpr Attribute kChatLogOption[] = {
    {"name", "", InName{}},
    {"view", "False", InFlag{2}},
    {"file", "False", InFlag{4}},
};

inline constexpr Attribute kOneTouch[] = {
    {"enabled", "False", InCheckbox{&Controls::VitalsEnabled}},
    {"block", "100%", InPercent{&Controls::VitalsBlock, &Controls::VitalsBlockSlider}},
    {"success", "95", InPercent{&Controls::VitalsSuccess, &Controls::VitalsSuccessSlider}},
    {"cheap", "80%", InPercent{&Controls::VitalsCheap, &Controls::VitalsCheapSlider}},
    {"fallback", "75%", InPercent{&Controls::VitalsFallback, &Controls::VitalsFallbackSlider}},
};

inline constexpr Attribute kOneTouchException[] = {
    {"name", "", InText{0}},
};

inline constexpr RowIcon kItemIcons[] = {{3, icon::kUp}, {4, icon::kDown}, {5, icon::kDelete}};
inline constexpr RowIcon kFilterIcons[] = {{4, icon::kDelete}};
inline constexpr RowIcon kAliasIcons[] = {{3, icon::kDelete}};
inline constexpr RowIcon kExceptionIcons[] = {{1, icon::kDelete}};

inline constexpr Element kElements[] = {
    {.name = "Location", .attributes = kLocation, .finish = MoveView},
    {.name = "Exp", .attributes = kExp},
    {.name = "Util", .attributes = kUtil, .finish = PassEventStart},
    {.name = "Vital_Alarm", .attributes = kVitalAlarm, .begin = DropAlarms},
    {.name = "Output_Windows", .attributes = kOutputWindows, .finish = PassOutputs},
    {.name = "Spells", .attributes = kSpells},
    {.name = "Corpses", .attributes = kCorpses},
    {.name = "HUD_All", .attributes = kHudAll},
    {.name = "HUD_Clock",
     .attributes = kHudClock,
     .list = &Controls::HudGeneral,
     .row = hud::kClock,
     .indexed_before_1 = true,
     .finish = PassHud},
    {.name = "Clock_List",
     .attributes = kClockList,
     .rows = Rows::kRequired,
     .list = &Controls::HudClockList,
     .key = "HudClock"},
    {.name = "HUD_Main",
     .attributes = kHudMain,
     .list = &Controls::HudGeneral,
     .row = hud::kMain,
     .indexed_before_1 = true,
     .finish = PassMainHud},
    {.name = "HUD_LIST",
     .attributes = kHudLines,
     .rows = Rows::kOrdered,
     .list = &Controls::HudList,
     .key = "HudList",
     .finish = PassXPChange},
    {.name = "HUD_Items",
     .attributes = kHudItems,
     .list = &Controls::HudGeneral,
     .row = hud::kItems,
     .indexed_before_1 = true,
     .finish = PassItemHud},
    {.name = "HUD_Item",
     .attributes = kHudItem,
     .rows = Rows::kAppended,
     .list = &Controls::HudItems,
     .icons = kItemIcons},
    {.name = "HUD_Status",
     .attributes = kHudStatus,
     .list = &Controls::HudGeneral,
     .row = hud::kStatus,
     .finish = PassHud},
    {.name = "HUD_Target",
     .attributes = kHudTarget,
     .list = &Controls::HudGeneral,
     .row = hud::kTarget,
     .finish = PassTargetHud},
    {.name = "Chat_Option",
     .attributes = kChatOption,
     .rows = Rows::kNamed,
     .list = &Controls::ChatOptions,
     .key = "ChatOptions"},
    {.name = "Chat_Filter",
     .attributes = kChatFilter,
     .rows = Rows::kAppended,
     .list = &Controls::ChatFilter,
     .icons = kFilterIcons},
    {.name = "Chat_Alias",
     .attributes = kChatAlias,
     .rows = Rows::kAppended,
     .list = &Controls::ChatAlias,
     .icons = kAliasIcons},
    {.name = "Chat_Color",
     .attributes = kChatColor,
     .rows = Rows::kNamed,
     .list = &Controls::ChatColor,
     .key = "ChatColor"},
    {.name = "Chat_Custom", .attributes = kChatCustom, .rows = Rows::kAppended, .list = &Controls::ChatCustom},
    {.name = "Chat_Log", .attributes = kChatLog, .finish = PassLog},
    {.name = "Chat_Log_Option",
     .attributes = kChatLogOption,
     .rows = Rows::kNamed,
     .list = &Controls::ChatLogOptions,
     .key = "ChatLog"},
    {.name = "One_Touch", .attributes = kOneTouch},
    {.name = "One_Touch_Exception",
     .attributes = kOneTouchException,
     .rows = Rows::kAppended,
     .list = &Controls::VitalsExceptions,
     .icons = kExceptionIcons},
};

}  // namespace ombrel::settings
