// Every control of the options view: its name there, its kind, the member that it is bound to, and what its events do.
//
// Events act only while a character is in (Vars::Loaded), so what they call need not ask.
#pragma once

#include <cstdint>
#include <string_view>
#include <variant>

#include "config/ControlHandler.h"
#include "config/Effects.h"
#include "config/HudRows.h"

namespace ombrel {

// The settings are saved; the option is read from its control where it matters.
inline constexpr Option kStored{};

using ControlEvent = void (ControlHandler::*)();
using ListEvent = void (ControlHandler::*)(std::int32_t column, std::int32_t row);

// What an event does: nothing, what becomes of an option, or a procedure of its own.
template <class Procedure>
using Answer = std::variant<std::monostate, Option, Procedure>;

template <class Kind>
struct ControlRow {
    std::string_view name;
    Ref<Kind> ControlHandler::*member;
    Answer<ControlEvent> change = {};  // changed or pressed; an edit's at each key
    Answer<ControlEvent> end = {};     // edits: the player has finished
};

template <>
struct ControlRow<host::List> {
    std::string_view name;
    Ref<host::List> ControlHandler::*member;
    Answer<ListEvent> change = {};  // a click on a cell
};

inline constexpr ControlRow<host::StaticText> kStaticTexts[] = {
    {"stVersion", &ControlHandler::stVersion},
    {"Spells_Tracked", &ControlHandler::SpellsTracked},
    {"Char_Name", &ControlHandler::CharName},
    {"Level_Num", &ControlHandler::LevelNum},
    {"XP_Next", &ControlHandler::XPNext},
    {"XP_Total", &ControlHandler::XPTotal},
    {"XP_Un", &ControlHandler::XPUn},
    {"Session_Time", &ControlHandler::SessionTime},
    {"XP_Session", &ControlHandler::XPSession},
    {"XP_Hour", &ControlHandler::XPHour},
    {"XP_Min", &ControlHandler::XPMin},
    {"XP_Change", &ControlHandler::XPChange},
    {"Kill_Count", &ControlHandler::Kills},
    {"Total_Time", &ControlHandler::TotalTime},
    {"Total_XP", &ControlHandler::TotalXP},
    {"Total_XP_Hour", &ControlHandler::TotalXPHour},
    {"Total_XP_Min", &ControlHandler::TotalXPMin},
    {"XP_5Min", &ControlHandler::XP5Min},
};

inline constexpr ControlRow<host::PushButton> kPushButtons[] = {
    {"Reload_Settings", &ControlHandler::ReloadSettings, &ControlHandler::ReloadSettings_Accepted},
    {"Reload_Default", &ControlHandler::ReloadDefault, &ControlHandler::ReloadDefault_Accepted},
    {"Set_Default", &ControlHandler::SetDefault, &ControlHandler::SetDefault_Accepted},
    {"HUD_Clock_All", &ControlHandler::HudClockAll, &ControlHandler::HudClockAll_Accepted},
    {"HUD_Timer_Down", &ControlHandler::HudClockDown, Option{"HudClockDown_Accepted", &effect::StartDownTimer}},
    {"HUD_Timer_Up", &ControlHandler::HudClockUp, Option{"HudClockUp_Accepted", &effect::StartUpTimer}},
    {"HUD_Main_All", &ControlHandler::HudMainAll, &ControlHandler::HudMainAll_Accepted},
    {"HUD_Items_Add", &ControlHandler::HudItemsAdd, &ControlHandler::HudItemsAdd_Accepted},
    {"HUD_Items_Sel", &ControlHandler::HudItemsSel, &ControlHandler::HudItemsSel_Accepted},
    {"Reset_Time", &ControlHandler::ResetTime, &ControlHandler::ResetTime_Accepted},
    {"Filter_Add", &ControlHandler::FilterAdd, &ControlHandler::FilterAdd_Accepted},
    {"Alias_Add", &ControlHandler::AliasAdd, &ControlHandler::AliasAdd_Accepted},
    {"Chat_Custom_Down", &ControlHandler::ChatCustomDown, &ControlHandler::ChatCustomDown_Accepted},
    {"Chat_Custom_Up", &ControlHandler::ChatCustomUp, &ControlHandler::ChatCustomUp_Accepted},
    {"Chat_Custom_Delete", &ControlHandler::ChatCustomDelete, &ControlHandler::ChatCustomDelete_Accepted},
    {"Chat_Custom_Edit", &ControlHandler::ChatCustomEdit, &ControlHandler::ChatCustomEdit_Accepted},
    {"Chat_Custom_Add", &ControlHandler::ChatCustomAdd, &ControlHandler::ChatCustomAdd_Accepted},
    {"Chat_Log_Dir", &ControlHandler::ChatLogDir, &ControlHandler::ChatLogDir_Accepted},
    {"Chat_Log_Clear", &ControlHandler::ChatLogClear, &ControlHandler::ChatLogClear_Accepted},
    {"Vitals_btnAddException", &ControlHandler::VitalsAddExceptionBtn, &ControlHandler::VitalsAddExceptionBtn_Accepted},
    {"Vitals_btnAddSelected", &ControlHandler::VitalsAddExceptionSel, &ControlHandler::VitalsAddExceptionSel_Accepted},
};

inline constexpr ControlRow<host::Checkbox> kCheckboxes[] = {
    {"Output_Main", &ControlHandler::OutputMain, Option{"OutputMain_Change", &effect::PassOutput, 0}},
    {"Output_1", &ControlHandler::Output1, Option{"Output1_Change", &effect::PassOutput, 1}},
    {"Output_2", &ControlHandler::Output2, Option{"Output2_Change", &effect::PassOutput, 2}},
    {"Output_3", &ControlHandler::Output3, Option{"Output3_Change", &effect::PassOutput, 3}},
    {"Output_4", &ControlHandler::Output4, Option{"Output4_Change", &effect::PassOutput, 4}},
    {"Global_Settings", &ControlHandler::GlobalSettings, &ControlHandler::GlobalSettings_Change},
    {"Event_Start", &ControlHandler::EventStart, Option{"EventStart_Change", &effect::PassEventStart}},
    {"Level_SS", &ControlHandler::LevelSS, kStored},
    {"Alleg_Change", &ControlHandler::AllegChange, kStored},
    {"Logout_Timer", &ControlHandler::LogoutTimer, Option{"LogoutTimer_Change", &effect::SetIdleTime}},
    {"Status_Text", &ControlHandler::StatusText, kStored},
    {"Show_Errors", &ControlHandler::ShowErrors, kStored},
    {"Toggle_Vitals", &ControlHandler::ToggleVitals, kStored},
    {"Util_checkVitalHealthOn", &ControlHandler::AlarmHealthOn, kStored},
    {"Util_checkVitalStaminaOn", &ControlHandler::AlarmStaminaOn, kStored},
    {"Util_checkVitalManaOn", &ControlHandler::AlarmManaOn, kStored},
    {"Use_Gems", &ControlHandler::UseGems, kStored},
    {"Fill_Mana", &ControlHandler::FillMana, kStored},
    {"Split_Peas", &ControlHandler::SplitPeas, kStored},
    {"Use_Beers", &ControlHandler::UseBeers, kStored},
    {"Beer_Str", &ControlHandler::BeerStr, kStored},
    {"Beer_End", &ControlHandler::BeerEnd, kStored},
    {"Beer_Coord", &ControlHandler::BeerCoord, kStored},
    {"Beer_Quick", &ControlHandler::BeerQuick, kStored},
    {"Beer_Focus", &ControlHandler::BeerFocus, kStored},
    {"Beer_Self", &ControlHandler::BeerSelf, kStored},
    {"Beer_Use_Check", &ControlHandler::BeerUseCheck, kStored},
    {"HUD_On", &ControlHandler::HudOn, &ControlHandler::HudOn_Change},
    {"HUD_Clock_Disp", &ControlHandler::HudClockDisp, Option{"HudClockDisp_Change", &effect::CreateHud, hud::kClock}},
    {"HUD_Date_Disp", &ControlHandler::HudClockDateDisp,
     Option{"HudClockDateDisp_Change", &effect::CreateHud, hud::kClock}},
    {"HUD_Clock_24", &ControlHandler::HudClockHour, Option{"HudClockHour_Change", &effect::CreateHud, hud::kClock}},
    {"HUD_Clock_Label", &ControlHandler::HudClockLabel,
     Option{"HudClockLabel_Change", &effect::CreateHud, hud::kClock}},
    {"HUD_Clock_Short", &ControlHandler::HudClockShort,
     Option{"HudClockShort_Change", &effect::CreateHud, hud::kClock}},
    {"Spells_Item", &ControlHandler::SpellsItem, Option{"SpellsItem_Change", &effect::RebuildSpells}},
    {"Spells_Beers", &ControlHandler::SpellsBeers, kStored},
    {"HUD_Main_Lbl", &ControlHandler::HudMainLbl, Option{"HudMainLbl_Change", &effect::UpdateMain}},
    {"HUD_Items_Horz", &ControlHandler::HudItemsHorz, Option{"HudItemsHorz_Change", &effect::CreateHud, hud::kItems}},
    {"XP_Auto", &ControlHandler::XPAuto, kStored},
    {"XP_Filter", &ControlHandler::XPFilter, kStored},
    {"Chat_Filter_Matching", &ControlHandler::ChatFilterMatching},
    {"Chat_Filter_Action", &ControlHandler::ChatFilterAction},
    {"Corpses_Track", &ControlHandler::CorpsesTrack, kStored},
    {"Corpses_Absolute", &ControlHandler::CorpsesAbsolute, Option{"CorpsesAbsolute_Change", &effect::UpdateMain}},
    {"Corpses_Auto", &ControlHandler::CorpsesAuto, kStored},
    {"Chat_Log_AFK", &ControlHandler::ChatLogAFK, &ControlHandler::ChatLogAFK_Change},
    {"Chat_Log_Enable", &ControlHandler::ChatLogEnable, kStored},
    {"Chat_Log_Timestamp", &ControlHandler::ChatLogTimestamp, kStored},
    {"Chat_Log_XML", &ControlHandler::ChatLogXML, &ControlHandler::ChatLogXML_Change},
    {"Chat_Log_Auto", &ControlHandler::ChatLogAuto, &ControlHandler::ChatLogAuto_Change},
    {"Chat_Log_By_Date", &ControlHandler::ChatLogByDate, &ControlHandler::ChatLogByDate_Change},
    {"Vitals_OneTouch_Enabled", &ControlHandler::VitalsEnabled, kStored},
};

inline constexpr ControlRow<host::Notebook> kNotebooks[] = {
    {"nbMain", &ControlHandler::nbMain},
};

inline constexpr ControlRow<host::Edit> kEdits[] = {
    {"Start_Level", &ControlHandler::StartLevel, {}, kStored},
    {"Util_txtVitalHealthPer", &ControlHandler::AlarmHealthPer, kStored, kStored},
    {"Util_txtVitalStaminaPer", &ControlHandler::AlarmStaminaPer, kStored, kStored},
    {"Util_txtVitalManaPer", &ControlHandler::AlarmManaPer, kStored, kStored},
    {"Fill_Threshold", &ControlHandler::FillThreshold, {}, kStored},
    {"Pea_Threshold", &ControlHandler::PeaThreshold, {}, kStored},
    {"Beer_Timer", &ControlHandler::BeerTimer, {}, kStored},
    {"Beer_Use_Timer", &ControlHandler::BeerUseTimer, {}, kStored},
    {"HUD_Clock_Timer", &ControlHandler::HudClockTimer},
    {"Spells_Offset", &ControlHandler::SpellsOffset, {}, kStored},
    {"HUD_Items_Text", &ControlHandler::HudItemsText},
    {"HUD_Items_Count", &ControlHandler::HudItemsCount},
    {"XP_Filter_Threshold", &ControlHandler::XPFilterThreshold, kStored, kStored},
    {"Filter_Box", &ControlHandler::FilterBox},
    {"Alias_Abbr", &ControlHandler::AliasAbbr},
    {"Alias_Full", &ControlHandler::AliasFull},
    {"Chat_Custom_Text", &ControlHandler::ChatCustomText},
    {"Chat_Custom_Window", &ControlHandler::ChatCustomWindow},
    {"Chat_Custom_Action", &ControlHandler::ChatCustomAction},
    {"Chat_Log_Search", &ControlHandler::ChatLogSearch, &ControlHandler::ChatLogSearch_Change,
     &ControlHandler::ChatLogSearch_Change},
    {"Chat_Log_AFK_Message", &ControlHandler::ChatLogAFKMessage, {}, kStored},
    {"Chat_Log_Max", &ControlHandler::ChatLogMax, {}, &ControlHandler::ChatLogMax_End},
    {"Vitals_txtBlock", &ControlHandler::VitalsBlock, Option{"VitalsBlock_Change", &effect::ReadPercent, 0},
     Option{"VitalsBlock_Change", &effect::ReadPercent, 0}},
    {"Vitals_txtSuccess", &ControlHandler::VitalsSuccess, Option{"VitalsSuccess_Change", &effect::ReadPercent, 1},
     Option{"VitalsSuccess_Change", &effect::ReadPercent, 1}},
    {"Vitals_txtCheap", &ControlHandler::VitalsCheap, Option{"VitalsCheap_Change", &effect::ReadPercent, 2},
     Option{"VitalsCheap_Change", &effect::ReadPercent, 2}},
    {"Vitals_txtFallback", &ControlHandler::VitalsFallback, Option{"VitalsFallback_Change", &effect::ReadPercent, 3},
     Option{"VitalsFallback_Change", &effect::ReadPercent, 3}},
    {"Vitals_txtAddException", &ControlHandler::VitalsAddException},
};

inline constexpr ControlRow<host::Choice> kChoices[] = {
    {"Util_cboVitalHealthSound", &ControlHandler::AlarmHealthSound,
     Option{"AlarmHealthSound_Change", &effect::LoadAlarm, 0}},
    {"Util_cboVitalStaminaSound", &ControlHandler::AlarmStaminaSound,
     Option{"AlarmStaminaSound_Change", &effect::LoadAlarm, 1}},
    {"Util_cboVitalManaSound", &ControlHandler::AlarmManaSound, Option{"AlarmManaSound_Change", &effect::LoadAlarm, 2}},
    {"HUD_General_BG_Color", &ControlHandler::HudGeneralBGColor, &ControlHandler::HudGeneralBGColor_Change},
    {"HUD_General_BG_Alpha", &ControlHandler::HudGeneralBGAlpha, &ControlHandler::HudGeneralBGAlpha_Change},
    {"HUD_General_Font", &ControlHandler::HudGeneralFont, &ControlHandler::HudGeneralFont_Change},
    {"HUD_General_Size", &ControlHandler::HudGeneralSize, &ControlHandler::HudGeneralSize_Change},
    {"HUD_Clock_Color", &ControlHandler::HudClockColor, &ControlHandler::HudClockColor_Change},
    {"HUD_Main_Color", &ControlHandler::HudMainColor, &ControlHandler::HudMainColor_Change},
    {"HUD_Timeout", &ControlHandler::HudTimeout, Option{"HudTimeout_Change", &effect::StartRefresh}},
    {"HUD_Items_Color", &ControlHandler::HudItemsColor,
     Option{"HudItemsColor_Change", &effect::CreateHud, hud::kItems}},
    {"HUD_Items_Icon_Size", &ControlHandler::HudItemsIconSize, Option{"HudItemsIconSize_Change", &effect::SetIconSize}},
    {"HUD_Target_Color", &ControlHandler::HudTargetColor, Option{"HudTargetColor_Change", &effect::ColorTarget}},
    {"HUD_Target_Level", &ControlHandler::HudTargetLevel, kStored},
    {"HUD_Status_Color", &ControlHandler::HudStatusColor,
     Option{"HudStatusColor_Change", &effect::CreateHud, hud::kStatus}},
    {"HUD_Status_Lines", &ControlHandler::HudStatusLines, kStored},
    {"Chat_Color_Color", &ControlHandler::ChatColorColor, &ControlHandler::ChatColorColor_Change},
    {"Chat_Color_Sound", &ControlHandler::ChatColorSound, &ControlHandler::ChatColorSound_Change},
    {"Chat_Color_Window", &ControlHandler::ChatColorWindow, &ControlHandler::ChatColorWindow_Change},
    {"Chat_Custom_Type", &ControlHandler::ChatCustomType},
    {"Chat_Custom_Color", &ControlHandler::ChatCustomColor},
    {"Chat_Custom_Sound", &ControlHandler::ChatCustomSound},
    {"Chat_Log_Filter", &ControlHandler::ChatLogFilter, &ControlHandler::ChatLogFilter_Change},
};

inline constexpr ControlRow<host::List> kLists[] = {
    {"HUD_General", &ControlHandler::HudGeneral, &ControlHandler::HudGeneral_Change},
    {"HUD_Clock", &ControlHandler::HudClockList, &ControlHandler::HudClockList_Change},
    {"Buff_List", &ControlHandler::BuffList, &ControlHandler::BuffList_Change},
    {"Debuff_List", &ControlHandler::DebuffList},
    {"HUD_LIST", &ControlHandler::HudList, &ControlHandler::HudList_Change},
    {"HUD_Items", &ControlHandler::HudItems, &ControlHandler::HudItems_Change},
    {"Chat_Options", &ControlHandler::ChatOptions, kStored},
    {"Chat_Filter", &ControlHandler::ChatFilter, &ControlHandler::ChatFilter_Change},
    {"Chat_Alias", &ControlHandler::ChatAlias, &ControlHandler::ChatAlias_Change},
    {"Chat_Color", &ControlHandler::ChatColor, &ControlHandler::ChatColor_Change},
    {"Chat_Custom", &ControlHandler::ChatCustom, &ControlHandler::ChatCustom_Change},
    {"Corpses_List", &ControlHandler::CorpsesList, &ControlHandler::CorpsesList_Change},
    {"Chat_Log_View", &ControlHandler::ChatLogView, &ControlHandler::ChatLogView_Change},
    {"Chat_Log_Options", &ControlHandler::ChatLogOptions, kStored},
    {"Vitals_listExceptions", &ControlHandler::VitalsExceptions, &ControlHandler::VitalsExceptions_Change},
};

inline constexpr ControlRow<host::Progress> kProgresses[] = {
    {"XP_Bar", &ControlHandler::XPBar},
};

inline constexpr ControlRow<host::Slider> kSliders[] = {
    {"Vitals_sldrBlock", &ControlHandler::VitalsBlockSlider,
     Option{"VitalsBlockSlider_Change", &effect::ReadSlider, 0}},
    {"Vitals_sldrSuccess", &ControlHandler::VitalsSuccessSlider,
     Option{"VitalsSuccessSlider_Change", &effect::ReadSlider, 1}},
    {"Vitals_sldrCheap", &ControlHandler::VitalsCheapSlider,
     Option{"VitalsCheapSlider_Change", &effect::ReadSlider, 2}},
    {"Vitals_sldrFallback", &ControlHandler::VitalsFallbackSlider,
     Option{"VitalsFallbackSlider_Change", &effect::ReadSlider, 3}},
};

}  // namespace ombrel
