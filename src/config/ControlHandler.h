// All options, which live in the controls of the options view.
//
// The controls are the only copy of almost every option at run time: an option is read from its control at the moment
// of use, and the settings file copies the controls out and in. Controls, settings file and data file stand in one
// source each.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "config/FileGuard.h"
#include "config/NameIndex.h"
#include "core/Ref.h"
#include "core/files.h"
#include "host/Controls.h"

namespace ombrel {

struct Option;

class ControlHandler {
public:
    ControlHandler();
    ~ControlHandler();
    ControlHandler(const ControlHandler&) = delete;
    ControlHandler& operator=(const ControlHandler&) = delete;

    // Builds the view and binds its controls. A control that the view lacks is reported once and stays empty.
    void InitControls();
    void ReleaseControls();

    // Gives the lists their built-in rows. versionParts are the numbers of the settings file's version.
    void Init_Lists(std::span<const std::int32_t> versionParts);

    // action 1 is the defaults file; any other value is the global file when GlobalSettings is checked, else the
    // character's. Loading leaves SettingsState at 2 when the controls are complete; saving needs it there.
    void Settings_Load(std::int32_t action);
    void Settings_Save(std::int32_t action, Durability durability = Durability::kProcess);

    // What play has learned. action shows in the debug log alone.
    void Data_Load(std::int32_t action);
    void Data_Save(Durability durability = Durability::kProcess);

    // The row of a list whose text is `name`, or -1. Lists: "HudList", "HudClock", "ChatOptions", "ChatColor",
    // "ChatLog".
    std::int32_t FindName(std::string_view name, std::string_view list);

    // Whether the player has ticked a row of ChatOptions. A name that the list lacks is failure 9.
    bool ChatOption(std::string_view name);

    // Lets an option take effect, and saves it.
    void ChangeOption(const Option& option);

    // What controls do when the player uses them, where it is more than the change of an option.
    void ReloadSettings_Accepted();
    void ReloadDefault_Accepted();
    void SetDefault_Accepted();
    void GlobalSettings_Change();
    void ResetTime_Accepted();
    void BuffList_Change(std::int32_t column, std::int32_t row);
    void CorpsesList_Change(std::int32_t column, std::int32_t row);
    void VitalsAddExceptionBtn_Accepted();
    void VitalsAddExceptionSel_Accepted();
    void VitalsExceptions_Change(std::int32_t column, std::int32_t row);
    void HudOn_Change();
    void HudGeneral_Change(std::int32_t column, std::int32_t row);
    void HudGeneralFont_Change();
    void HudGeneralSize_Change();
    void HudGeneralBGColor_Change();
    void HudGeneralBGAlpha_Change();
    void HudList_Change(std::int32_t column, std::int32_t row);
    void HudMainColor_Change();
    void HudMainAll_Accepted();
    void HudClockList_Change(std::int32_t column, std::int32_t row);
    void HudClockColor_Change();
    void HudClockAll_Accepted();
    void HudItemsAdd_Accepted();
    void HudItemsSel_Accepted();
    void HudItems_Change(std::int32_t column, std::int32_t row);
    void ChatColor_Change(std::int32_t column, std::int32_t row);
    void ChatColorColor_Change();
    void ChatColorWindow_Change();
    void ChatColorSound_Change();
    void ChatCustom_Change(std::int32_t column, std::int32_t row);
    void ChatCustomAdd_Accepted();
    void ChatCustomEdit_Accepted();
    void ChatCustomDelete_Accepted();
    void ChatCustomUp_Accepted();
    void ChatCustomDown_Accepted();
    void FilterAdd_Accepted();
    void ChatFilter_Change(std::int32_t column, std::int32_t row);
    void AliasAdd_Accepted();
    void ChatAlias_Change(std::int32_t column, std::int32_t row);
    void ChatLogAFK_Change();
    void ChatLogAuto_Change();
    void ChatLogByDate_Change();
    void ChatLogClear_Accepted();
    void ChatLogDir_Accepted();
    void ChatLogFilter_Change();
    void ChatLogMax_End();
    void ChatLogSearch_Change();
    void ChatLogView_Change(std::int32_t column, std::int32_t row);
    void ChatLogXML_Change();

    // Each turns a HUD on or off, as its "X" button does.
    void ToggleAll();
    void ToggleMain();
    void ToggleItem();
    void ToggleClock();
    void ToggleTarget();
    void ToggleStatus();
    void ToggleBeers();
    void ToggleAFK();

    std::int32_t SelectedCorpse = -1;  // row of CorpsesList, -1 for none
    std::string SelectedSpell;         // name or family of the tracked spell, empty for the next to run out

    // StaticText
    Ref<host::StaticText> stVersion;
    Ref<host::StaticText> SpellsTracked;
    Ref<host::StaticText> CharName;
    Ref<host::StaticText> LevelNum;
    Ref<host::StaticText> XPNext;
    Ref<host::StaticText> XPTotal;
    Ref<host::StaticText> XPUn;
    Ref<host::StaticText> SessionTime;
    Ref<host::StaticText> XPSession;
    Ref<host::StaticText> XPHour;
    Ref<host::StaticText> XPMin;
    Ref<host::StaticText> XPChange;
    Ref<host::StaticText> Kills;
    Ref<host::StaticText> TotalTime;
    Ref<host::StaticText> TotalXP;
    Ref<host::StaticText> TotalXPHour;
    Ref<host::StaticText> TotalXPMin;
    Ref<host::StaticText> XP5Min;

    // PushButton
    Ref<host::PushButton> ReloadSettings;
    Ref<host::PushButton> ReloadDefault;
    Ref<host::PushButton> SetDefault;
    Ref<host::PushButton> HudClockAll;
    Ref<host::PushButton> HudClockDown;
    Ref<host::PushButton> HudClockUp;
    Ref<host::PushButton> HudMainAll;
    Ref<host::PushButton> HudItemsAdd;
    Ref<host::PushButton> HudItemsSel;
    Ref<host::PushButton> ResetTime;
    Ref<host::PushButton> FilterAdd;
    Ref<host::PushButton> AliasAdd;
    Ref<host::PushButton> ChatCustomDown;
    Ref<host::PushButton> ChatCustomUp;
    Ref<host::PushButton> ChatCustomDelete;
    Ref<host::PushButton> ChatCustomEdit;
    Ref<host::PushButton> ChatCustomAdd;
    Ref<host::PushButton> ChatLogDir;
    Ref<host::PushButton> ChatLogClear;
    Ref<host::PushButton> VitalsAddExceptionBtn;
    Ref<host::PushButton> VitalsAddExceptionSel;

    // Checkbox
    Ref<host::Checkbox> OutputMain;
    Ref<host::Checkbox> Output1;
    Ref<host::Checkbox> Output2;
    Ref<host::Checkbox> Output3;
    Ref<host::Checkbox> Output4;
    Ref<host::Checkbox> GlobalSettings;
    Ref<host::Checkbox> EventStart;
    Ref<host::Checkbox> LevelSS;
    Ref<host::Checkbox> AllegChange;
    Ref<host::Checkbox> LogoutTimer;
    Ref<host::Checkbox> StatusText;
    Ref<host::Checkbox> ShowErrors;
    Ref<host::Checkbox> ToggleVitals;
    Ref<host::Checkbox> AlarmHealthOn;
    Ref<host::Checkbox> AlarmStaminaOn;
    Ref<host::Checkbox> AlarmManaOn;
    Ref<host::Checkbox> UseGems;
    Ref<host::Checkbox> FillMana;
    Ref<host::Checkbox> SplitPeas;
    Ref<host::Checkbox> UseBeers;
    Ref<host::Checkbox> BeerStr;
    Ref<host::Checkbox> BeerEnd;
    Ref<host::Checkbox> BeerCoord;
    Ref<host::Checkbox> BeerQuick;
    Ref<host::Checkbox> BeerFocus;
    Ref<host::Checkbox> BeerSelf;
    Ref<host::Checkbox> BeerUseCheck;
    Ref<host::Checkbox> HudOn;
    Ref<host::Checkbox> HudClockDisp;
    Ref<host::Checkbox> HudClockDateDisp;
    Ref<host::Checkbox> HudClockHour;
    Ref<host::Checkbox> HudClockLabel;
    Ref<host::Checkbox> HudClockShort;
    Ref<host::Checkbox> SpellsItem;
    Ref<host::Checkbox> SpellsBeers;
    Ref<host::Checkbox> HudMainLbl;
    Ref<host::Checkbox> HudItemsHorz;
    Ref<host::Checkbox> XPAuto;
    Ref<host::Checkbox> XPFilter;
    Ref<host::Checkbox> ChatFilterMatching;
    Ref<host::Checkbox> ChatFilterAction;
    Ref<host::Checkbox> CorpsesTrack;
    Ref<host::Checkbox> CorpsesAbsolute;
    Ref<host::Checkbox> CorpsesAuto;
    Ref<host::Checkbox> ChatLogAFK;
    Ref<host::Checkbox> ChatLogEnable;
    Ref<host::Checkbox> ChatLogTimestamp;
    Ref<host::Checkbox> ChatLogXML;
    Ref<host::Checkbox> ChatLogAuto;
    Ref<host::Checkbox> ChatLogByDate;
    Ref<host::Checkbox> VitalsEnabled;

    // Notebook
    Ref<host::Notebook> nbMain;

    // Edit
    Ref<host::Edit> StartLevel;
    Ref<host::Edit> AlarmHealthPer;
    Ref<host::Edit> AlarmStaminaPer;
    Ref<host::Edit> AlarmManaPer;
    Ref<host::Edit> FillThreshold;
    Ref<host::Edit> PeaThreshold;
    Ref<host::Edit> BeerTimer;
    Ref<host::Edit> BeerUseTimer;
    Ref<host::Edit> HudClockTimer;
    Ref<host::Edit> SpellsOffset;
    Ref<host::Edit> HudItemsText;
    Ref<host::Edit> HudItemsCount;
    Ref<host::Edit> XPFilterThreshold;
    Ref<host::Edit> FilterBox;
    Ref<host::Edit> AliasAbbr;
    Ref<host::Edit> AliasFull;
    Ref<host::Edit> ChatCustomText;
    Ref<host::Edit> ChatCustomWindow;
    Ref<host::Edit> ChatCustomAction;
    Ref<host::Edit> ChatLogSearch;
    Ref<host::Edit> ChatLogAFKMessage;
    Ref<host::Edit> ChatLogMax;
    Ref<host::Edit> VitalsBlock;
    Ref<host::Edit> VitalsSuccess;
    Ref<host::Edit> VitalsCheap;
    Ref<host::Edit> VitalsFallback;
    Ref<host::Edit> VitalsAddException;

    // Choice
    Ref<host::Choice> AlarmHealthSound;
    Ref<host::Choice> AlarmStaminaSound;
    Ref<host::Choice> AlarmManaSound;
    Ref<host::Choice> HudGeneralBGColor;
    Ref<host::Choice> HudGeneralBGAlpha;
    Ref<host::Choice> HudGeneralFont;
    Ref<host::Choice> HudGeneralSize;
    Ref<host::Choice> HudClockColor;
    Ref<host::Choice> HudMainColor;
    Ref<host::Choice> HudTimeout;
    Ref<host::Choice> HudItemsColor;
    Ref<host::Choice> HudItemsIconSize;
    Ref<host::Choice> HudTargetColor;
    Ref<host::Choice> HudTargetLevel;
    Ref<host::Choice> HudStatusColor;
    Ref<host::Choice> HudStatusLines;
    Ref<host::Choice> ChatColorColor;
    Ref<host::Choice> ChatColorSound;
    Ref<host::Choice> ChatColorWindow;
    Ref<host::Choice> ChatCustomType;
    Ref<host::Choice> ChatCustomColor;
    Ref<host::Choice> ChatCustomSound;
    Ref<host::Choice> ChatLogFilter;

    // List
    Ref<host::List> HudGeneral;
    Ref<host::List> HudClockList;
    Ref<host::List> BuffList;
    Ref<host::List> DebuffList;
    Ref<host::List> HudList;
    Ref<host::List> HudItems;
    Ref<host::List> ChatOptions;
    Ref<host::List> ChatFilter;
    Ref<host::List> ChatAlias;
    Ref<host::List> ChatColor;
    Ref<host::List> ChatCustom;
    Ref<host::List> CorpsesList;
    Ref<host::List> ChatLogView;
    Ref<host::List> ChatLogOptions;
    Ref<host::List> VitalsExceptions;

    // Progress
    Ref<host::Progress> XPBar;

    // Slider
    Ref<host::Slider> VitalsBlockSlider;
    Ref<host::Slider> VitalsSuccessSlider;
    Ref<host::Slider> VitalsCheapSlider;
    Ref<host::Slider> VitalsFallbackSlider;

private:
    void WriteCustomRule(std::int32_t row);
    void MoveCustomRule(std::int32_t by);
    bool HasCustomRow() const;
    void AddItem(const std::string& name, std::int32_t icon);
    void AddException(const std::string& name);

    std::int32_t chat_color_row_ = 0;  // the marked rows
    std::int32_t chat_custom_row_ = -1;
    std::int32_t hud_general_row_ = 0;
    std::int32_t hud_list_row_ = 0;
    std::int32_t hud_clock_row_ = 0;

    template <class Row>
    void Bind(const Row& row);
    void FillSoundChoices();
    void ToggleHud(std::int32_t row);

    FileGuard files_;
    std::array<NameIndex, 5> names_;  // one for each list that FindName knows
};

}  // namespace ombrel
