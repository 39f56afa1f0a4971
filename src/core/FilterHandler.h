// What the game is asked, and what it tells.
//
// Other classes ask this one for names, places, counts and enchantments, and have it act on items; its event procedures
// hand what happens to the class that does the work. The queries and events stand in core/, the automations in
// automation/.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/Ref.h"
#include "host/ACHooks.h"
#include "host/CharacterStats.h"
#include "host/Timer.h"
#include "host/World.h"

namespace ombrel {

class DX8Sound;

class FilterHandler {
public:
    FilterHandler();
    ~FilterHandler();
    FilterHandler(const FilterHandler&) = delete;
    FilterHandler& operator=(const FilterHandler&) = delete;

    // What the host says. A failing call is reported, and the result is empty, 0 or false.
    std::string GetMyServer();
    std::string GetMyCharName();
    std::int32_t GetMyCharLevel();
    host::Id GetMyCharGUID();
    std::int32_t GetMyCharVitae();
    std::int32_t GetMyFollowers();     // direct vassals
    std::int32_t GetAllegFollowers();  // the monarchy without its head
    std::int32_t GetMyEnchantmentCount();
    host::Enchantment GetMyEnchantment(std::int32_t index);  // index from 0
    host::Id GetCurrentSelection();
    std::int32_t GetCombatMode();  // 1 is peace
    std::int32_t GetBusyState();   // 0 is free
    std::int32_t GetPointerState();
    bool GetChatState();
    bool ChatState();
    host::Rect Get3DRegion();
    host::Rect Get3DRect();  // the 3D area as HUDs see it, 28 pixels further down

    // What the host is told.
    void IDObject(host::Id id);
    void WriteToChatWindow(std::string_view text, std::int32_t color, std::int32_t window);
    void WriteToChatWindowRaw(std::string_view text, std::int32_t color, std::int32_t window);
    void SendCommand(std::string_view text);
    void SetIdleTime(double seconds);

    // Places as text, "12.3N, 45.6E". An object without a place on the map stands at 0.0N, 0.0E.
    std::string FormatCoord(double value);  // value is not negative
    std::string ConvCoords(double ns, double ew);
    std::string GetCharCoords();
    std::string GetItemCoords(host::Id id);
    double GetRawNS();  // the character's, with one decimal
    double GetRawEW();

    // Items. -1 says that there is none.
    bool ItemExists(host::Id id);
    std::string GetName(host::Id id);
    host::Id GetID(const std::string& name);
    host::Id GetIDinInv(const std::string& name);
    std::int32_t GetIcon(const std::string& name);  // 0 when nothing of that name is known
    std::int32_t GetItemCount(const std::string& name);
    std::int32_t GetItemStackCount(host::Id id);
    std::int32_t GetItemMana(host::Id id);

    // Acts on items; does nothing when one of them is gone.
    void UseItem(host::Id id, std::int32_t flag);
    void GiveItem(host::Id id, host::Id target);
    void ApplyItem(host::Id id, host::Id target);

    bool IsNPC(const std::string& name);
    bool Find(const std::string& name);          // writes and selects all that match around; always false
    bool Find_in_Pack(const std::string& name);  // the same for the first in the packs
    std::int32_t GetMyCharVitaeXP();

    // Enchantments on the character.
    std::int32_t GetActiveSpellFamily(const std::string& name);  // -1 when it doesn't run
    bool GetActiveSpell(std::int32_t family, host::Enchantment& best);
    bool IsSpellActive(const std::string& name);
    void ExportEnchantments();

    void ResetHUDsPos();

    // Events of the host.
    void Char_LoginComplete();
    void Char_Logoff(std::int32_t kind);
    void Char_ChangeVital(std::int32_t vital, std::int32_t value);
    void Char_ChangeEnchantments(std::int32_t change, const host::Enchantment& enchantment);
    void Char_ChangePortalMode(std::int32_t mode);
    void Char_Death(const std::string& text);
    void ACHooks_ChatTextIntercept(const std::string& text, std::int32_t color, std::int32_t window, bool& eat);
    void ACHooks_ChatParserIntercept(const std::string& text, bool& eat);
    void ACHooks_StatusTextIntercept(const std::string& text, bool& eat);
    void ACHooks_ChatClickIntercept(const std::string& text, host::Id id, bool& eat);
    void ACHooks_ContainerOpened(host::Id id);
    void ACHooks_ObjectSelected(host::Id id);
    void ACHooks_AC3DRegionChanged(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom);
    void World_CreateObject(host::Id id);
    void World_ChangeObject(host::Id id, std::int32_t change);
    void World_MoveObject(host::Id id);
    void World_ReleaseObject(host::Id id);

    void UpdateItemHUD(const host::WorldObject& object);
    void FriendsOnline();  // asks the client which friends are online, if the player wants to know
    void Augs();           // reads the augmentation that keeps enchantments, for /m augs

    // Mana charging.
    void Fill_Mana(bool automatic);
    void FindCHarge();
    void WaitforScan_Timeout();
    void UseCharge_Timeout();

    // One-touch vitals. True when something was used.
    void FindFood();
    void FindKits();
    bool UseFood(std::int32_t vital);
    bool UseKit(bool fallback);

    // Selling peas to a vendor, one step a tick.
    void StartPeas();
    void StopPeas();
    void SellPeas();

    Owned<host::ACHooks> ACHooks;
    Owned<host::World> World;
    Owned<host::CharacterStats> CharStats;
    Owned<host::Timer> WaitforScan;
    Owned<host::Timer> ScanItems;
    Owned<host::Timer> UseCharge;
    Owned<DX8Sound> HealthAlarm;
    Owned<DX8Sound> StaminaAlarm;
    Owned<DX8Sound> ManaAlarm;

    bool FriendsCheck = false;  // the answer to our own question for friends is awaited
    bool SellingPeas = false;   // peas are being sold
    bool DevMode = false;       // the developer display, toggled by /m dev
    host::Id TradeNoteId = 0;   // the note that was bought last, 0 when it has been stacked

private:
    void BindTimers();
    void BindHooks();
    void BindWorld();
    void BindCharStats();

    void SellStep(std::int32_t count, std::int32_t pyreals, double needed);
    void BuyStep(const host::WorldObject& note, double needed);
    void SelectPeas(std::int32_t count);
    void StackNote();
    void NextPea();

    // A fill under way.
    struct ManaFill {
        bool automatic = false;       // nobody asked for it by hand
        host::Id last_item = -1;      // the last piece of equipment that was asked about
        std::int32_t scan_start = 0;  // moment, a second before the questions
        host::Id stone = 0;           // the stone or charge to use
    };

    // A sale under way.
    struct PeaSale {
        std::int32_t state = 0;   // 0 idle, 1 to 4 selling, 10 to 13 buying
        std::int32_t bought = 0;  // notes
        std::size_t pea = 0;      // row of the table
        host::Id stack = 0;       // the stack in hand
        host::Id target = 0;      // the stack of notes that the new one joins
        std::int32_t target_count = 0;
    };

    ManaFill mana_fill_;
    PeaSale sale_;

    bool IsOwnCorpse(const std::string& name);  // whether a thing of that name is a corpse of the character
};

}  // namespace ombrel
