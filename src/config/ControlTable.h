// Every control of the options view: its name there, its kind, the member that it is bound to, and who answers its
// events.
//
// Events reach their procedure only while a character is in (Vars::Loaded), so the procedures need not ask.
#pragma once

#include <cstdint>
#include <string_view>

#include "config/ControlHandler.h"

namespace ombrel {

using ControlEvent = void (ControlHandler::*)();
using ListEvent = void (ControlHandler::*)(std::int32_t column, std::int32_t row);

template <class Kind>
struct ControlRow {
    std::string_view name;
    Ref<Kind> ControlHandler::*member;
    ControlEvent change = nullptr;  // changed or pressed; an edit's at each key
    ControlEvent end = nullptr;     // edits: the player has finished
};

template <>
struct ControlRow<host::List> {
    std::string_view name;
    Ref<host::List> ControlHandler::*member;
    ListEvent change = nullptr;  // a click on a cell
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
    {"Reload_Settings", &ControlHandler::ReloadSettings},
    {"Reload_Default", &ControlHandler::ReloadDefault},
    {"Set_Default", &ControlHandler::SetDefault},
    {"HUD_Clock_All", &ControlHandler::HudClockAll},
    {"HUD_Timer_Down", &ControlHandler::HudClockDown},
    {"HUD_Timer_Up", &ControlHandler::HudClockUp},
    {"HUD_Main_All", &ControlHandler::HudMainAll},
    {"HUD_Items_Add", &ControlHandler::HudItemsAdd},
    {"HUD_Items_Sel", &ControlHandler::HudItemsSel},
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
    {"Vitals_btnAddException", &ControlHandler::VitalsAddExceptionBtn},
    {"Vitals_btnAddSelected", &ControlHandler::VitalsAddExceptionSel},
};

inline constexpr ControlRow<host::Checkbox> kCheckboxes[] = {
    {"Output_Main", &ControlHandler::OutputMain, &ControlHandler::OutputWindow_Change},
    {"Output_1", &ControlHandler::Output1, &ControlHandler::OutputWindow_Change},
    {"Output_2", &ControlHandler::Output2, &ControlHandler::OutputWindow_Change},
    {"Output_3", &ControlHandler::Output3, &ControlHandler::OutputWindow_Change},
    {"Output_4", &ControlHandler::Output4, &ControlHandler::OutputWindow_Change},
    {"Global_Settings", &ControlHandler::GlobalSettings},
    {"Event_Start", &ControlHandler::EventStart},
    {"Level_SS", &ControlHandler::LevelSS, &ControlHandler::SaveOption},
    {"Alleg_Change", &ControlHandler::AllegChange, &ControlHandler::SaveOption},
    {"Logout_Timer", &ControlHandler::LogoutTimer},
    {"Status_Text", &ControlHandler::StatusText, &ControlHandler::SaveOption},
    {"Show_Errors", &ControlHandler::ShowErrors, &ControlHandler::SaveOption},
    {"Toggle_Vitals", &ControlHandler::ToggleVitals},
    {"Util_checkVitalHealthOn", &ControlHandler::AlarmHealthOn},
    {"Util_checkVitalStaminaOn", &ControlHandler::AlarmStaminaOn},
    {"Util_checkVitalManaOn", &ControlHandler::AlarmManaOn},
    {"Use_Gems", &ControlHandler::UseGems},
    {"Fill_Mana", &ControlHandler::FillMana},
    {"Split_Peas", &ControlHandler::SplitPeas},
    {"Use_Beers", &ControlHandler::UseBeers},
    {"Beer_Str", &ControlHandler::BeerStr},
    {"Beer_End", &ControlHandler::BeerEnd},
    {"Beer_Coord", &ControlHandler::BeerCoord},
    {"Beer_Quick", &ControlHandler::BeerQuick},
    {"Beer_Focus", &ControlHandler::BeerFocus},
    {"Beer_Self", &ControlHandler::BeerSelf},
    {"Beer_Use_Check", &ControlHandler::BeerUseCheck},
    {"HUD_On", &ControlHandler::HudOn, &ControlHandler::HudOn_Change},
    {"HUD_Clock_Disp", &ControlHandler::HudClockDisp},
    {"HUD_Date_Disp", &ControlHandler::HudClockDateDisp},
    {"HUD_Clock_24", &ControlHandler::HudClockHour},
    {"HUD_Clock_Label", &ControlHandler::HudClockLabel},
    {"HUD_Clock_Short", &ControlHandler::HudClockShort},
    {"Spells_Item", &ControlHandler::SpellsItem},
    {"Spells_Beers", &ControlHandler::SpellsBeers},
    {"HUD_Main_Lbl", &ControlHandler::HudMainLbl},
    {"HUD_Items_Horz", &ControlHandler::HudItemsHorz},
    {"XP_Auto", &ControlHandler::XPAuto, &ControlHandler::SaveOption},
    {"XP_Filter", &ControlHandler::XPFilter, &ControlHandler::SaveOption},
    {"Chat_Filter_Matching", &ControlHandler::ChatFilterMatching},
    {"Chat_Filter_Action", &ControlHandler::ChatFilterAction},
    {"Corpses_Track", &ControlHandler::CorpsesTrack},
    {"Corpses_Absolute", &ControlHandler::CorpsesAbsolute},
    {"Corpses_Auto", &ControlHandler::CorpsesAuto},
    {"Chat_Log_AFK", &ControlHandler::ChatLogAFK, &ControlHandler::ChatLogAFK_Change},
    {"Chat_Log_Enable", &ControlHandler::ChatLogEnable, &ControlHandler::SaveOption},
    {"Chat_Log_Timestamp", &ControlHandler::ChatLogTimestamp, &ControlHandler::SaveOption},
    {"Chat_Log_XML", &ControlHandler::ChatLogXML, &ControlHandler::ChatLogXML_Change},
    {"Chat_Log_Auto", &ControlHandler::ChatLogAuto, &ControlHandler::ChatLogAuto_Change},
    {"Chat_Log_By_Date", &ControlHandler::ChatLogByDate, &ControlHandler::ChatLogByDate_Change},
    {"Vitals_OneTouch_Enabled", &ControlHandler::VitalsEnabled},
};

inline constexpr ControlRow<host::Notebook> kNotebooks[] = {
    {"nbMain", &ControlHandler::nbMain},
};

inline constexpr ControlRow<host::Edit> kEdits[] = {
    {"Start_Level", &ControlHandler::StartLevel, nullptr, &ControlHandler::SaveOption},
    {"Util_txtVitalHealthPer", &ControlHandler::AlarmHealthPer},
    {"Util_txtVitalStaminaPer", &ControlHandler::AlarmStaminaPer},
    {"Util_txtVitalManaPer", &ControlHandler::AlarmManaPer},
    {"Fill_Threshold", &ControlHandler::FillThreshold},
    {"Pea_Threshold", &ControlHandler::PeaThreshold},
    {"Beer_Timer", &ControlHandler::BeerTimer},
    {"Beer_Use_Timer", &ControlHandler::BeerUseTimer},
    {"HUD_Clock_Timer", &ControlHandler::HudClockTimer},
    {"Spells_Offset", &ControlHandler::SpellsOffset},
    {"HUD_Items_Text", &ControlHandler::HudItemsText},
    {"HUD_Items_Count", &ControlHandler::HudItemsCount},
    {"XP_Filter_Threshold", &ControlHandler::XPFilterThreshold, &ControlHandler::SaveOption,
     &ControlHandler::SaveOption},
    {"Filter_Box", &ControlHandler::FilterBox},
    {"Alias_Abbr", &ControlHandler::AliasAbbr},
    {"Alias_Full", &ControlHandler::AliasFull},
    {"Chat_Custom_Text", &ControlHandler::ChatCustomText},
    {"Chat_Custom_Window", &ControlHandler::ChatCustomWindow},
    {"Chat_Custom_Action", &ControlHandler::ChatCustomAction},
    {"Chat_Log_Search", &ControlHandler::ChatLogSearch, &ControlHandler::ChatLogSearch_Change,
     &ControlHandler::ChatLogSearch_Change},
    {"Chat_Log_AFK_Message", &ControlHandler::ChatLogAFKMessage, nullptr, &ControlHandler::SaveOption},
    {"Chat_Log_Max", &ControlHandler::ChatLogMax, nullptr, &ControlHandler::ChatLogMax_End},
    {"Vitals_txtBlock", &ControlHandler::VitalsBlock},
    {"Vitals_txtSuccess", &ControlHandler::VitalsSuccess},
    {"Vitals_txtCheap", &ControlHandler::VitalsCheap},
    {"Vitals_txtFallback", &ControlHandler::VitalsFallback},
    {"Vitals_txtAddException", &ControlHandler::VitalsAddException},
};

inline constexpr ControlRow<host::Choice> kChoices[] = {
    {"Util_cboVitalHealthSound", &ControlHandler::AlarmHealthSound},
    {"Util_cboVitalStaminaSound", &ControlHandler::AlarmStaminaSound},
    {"Util_cboVitalManaSound", &ControlHandler::AlarmManaSound},
    {"HUD_General_BG_Color", &ControlHandler::HudGeneralBGColor},
    {"HUD_General_BG_Alpha", &ControlHandler::HudGeneralBGAlpha},
    {"HUD_General_Font", &ControlHandler::HudGeneralFont},
    {"HUD_General_Size", &ControlHandler::HudGeneralSize},
    {"HUD_Clock_Color", &ControlHandler::HudClockColor},
    {"HUD_Main_Color", &ControlHandler::HudMainColor},
    {"HUD_Timeout", &ControlHandler::HudTimeout},
    {"HUD_Items_Color", &ControlHandler::HudItemsColor},
    {"HUD_Items_Icon_Size", &ControlHandler::HudItemsIconSize},
    {"HUD_Target_Color", &ControlHandler::HudTargetColor},
    {"HUD_Target_Level", &ControlHandler::HudTargetLevel},
    {"HUD_Status_Color", &ControlHandler::HudStatusColor},
    {"HUD_Status_Lines", &ControlHandler::HudStatusLines},
    {"Chat_Color_Color", &ControlHandler::ChatColorColor, &ControlHandler::ChatColorColor_Change},
    {"Chat_Color_Sound", &ControlHandler::ChatColorSound, &ControlHandler::ChatColorSound_Change},
    {"Chat_Color_Window", &ControlHandler::ChatColorWindow, &ControlHandler::ChatColorWindow_Change},
    {"Chat_Custom_Type", &ControlHandler::ChatCustomType},
    {"Chat_Custom_Color", &ControlHandler::ChatCustomColor},
    {"Chat_Custom_Sound", &ControlHandler::ChatCustomSound},
    {"Chat_Log_Filter", &ControlHandler::ChatLogFilter, &ControlHandler::ChatLogFilter_Change},
};

inline constexpr ControlRow<host::List> kLists[] = {
    {"HUD_General", &ControlHandler::HudGeneral},
    {"HUD_Clock", &ControlHandler::HudClockList},
    {"Buff_List", &ControlHandler::BuffList},
    {"Debuff_List", &ControlHandler::DebuffList},
    {"HUD_LIST", &ControlHandler::HudList},
    {"HUD_Items", &ControlHandler::HudItems},
    {"Chat_Options", &ControlHandler::ChatOptions, &ControlHandler::SaveList},
    {"Chat_Filter", &ControlHandler::ChatFilter, &ControlHandler::ChatFilter_Change},
    {"Chat_Alias", &ControlHandler::ChatAlias, &ControlHandler::ChatAlias_Change},
    {"Chat_Color", &ControlHandler::ChatColor, &ControlHandler::ChatColor_Change},
    {"Chat_Custom", &ControlHandler::ChatCustom, &ControlHandler::ChatCustom_Change},
    {"Corpses_List", &ControlHandler::CorpsesList},
    {"Chat_Log_View", &ControlHandler::ChatLogView, &ControlHandler::ChatLogView_Change},
    {"Chat_Log_Options", &ControlHandler::ChatLogOptions, &ControlHandler::SaveList},
    {"Vitals_listExceptions", &ControlHandler::VitalsExceptions},
};

inline constexpr ControlRow<host::Progress> kProgresses[] = {
    {"XP_Bar", &ControlHandler::XPBar},
};

inline constexpr ControlRow<host::Slider> kSliders[] = {
    {"Vitals_sldrBlock", &ControlHandler::VitalsBlockSlider},
    {"Vitals_sldrSuccess", &ControlHandler::VitalsSuccessSlider},
    {"Vitals_sldrCheap", &ControlHandler::VitalsCheapSlider},
    {"Vitals_sldrFallback", &ControlHandler::VitalsFallbackSlider},
};

}  // namespace ombrel
