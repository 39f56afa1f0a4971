// Whatever the client fails at, a player reads one report and plays on.
//
// Each event is raised once to see which operations of the client it needs. Then each of these fails once, in a client
// of its own: nothing may escape, one report is written, and the same event works again.
#include <fmt/format.h>

#include <functional>
#include <ostream>
#include <utility>

#include "adapters/sim/Calls.h"
#include "adapters/sim/Controls.h"
#include "adapters/sim/View.h"
#include "core/TimerHandler.h"
#include "corpses/CorpseHandler.h"
#include "hud/HUDTargetHandler.h"
#include "spells/SpellHandler.h"
#include "stats/NetEchoHandler.h"
#include "tests/support/Messages.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

struct EventRow {
    const char* name;
    std::function<void(sim::Client&)> raise;
    std::function<void(sim::Client&)> prepare = [](sim::Client&) {};  // once the character is in the world
    bool before_login = false;

    friend void PrintTo(const EventRow& row, std::ostream* out) { *out << row.name; }
};

constexpr host::Id kCorpse = 0x100, kDrudge = 0x101, kHam = 0x102, kKit = 0x103, kNote = 0x104, kAle = 0x105;
constexpr host::Id kSword = 0x106, kStone = 0x120, kRing = 0x121, kPeas = 0x122, kWare = 0x123, kOldNotes = 0x124;

// Spells that run out, one on the character and one that is new to the list.
void Enchant(sim::Client& client) {
    client.LoadSpells(SpellTablePath());
    client.Enchant(1332, 2700, 1);
    client.Enchant(1327, 210, 116);
    client.Enchant(-32766, 60, 0);
    client.ChangeEnchantments(0, {});
}

void LookAtDrudge(sim::Client& client) { client.ObjectSelected(kDrudge); }
void FollowCorpses(sim::Client&) { Vars::ControlHandler->CorpsesAuto->SetChecked(true); }

// A wound, and something to eat.
void Starve(sim::Client& client) {
    client.sheet.Health = 50;
    client.object(kHam).Long = {{89, 2}, {90, 40}};
}

template <class Kind>
Kind& View(sim::Client& client, const char* name) {
    return *client.view()->Get<Kind>(name);
}

// Something worn that lacks mana, and a stone that has some.
void RunLow(sim::Client& c) {
    sim::Object& ring = c.object(kRing);
    ring.Name = "Ring";
    ring.Long = {{sim::kWielderKey, c.sheet.Character}, {10, 1}, {107, 3}, {108, 900}};
    ring.Double = {{5, -1.0}};
    ring.LastIdTime = 2000000000;
    sim::Object& stone = c.object(kStone);
    stone.Name = "Mana Stone";
    stone.Container = c.sheet.Character;
    stone.HasIdData = 1;
    stone.Long = {{107, 500}};
}

// A sale at one of its steps, by a character who has the price of a note.
void OpenMarket(sim::Client& c, int step) {
    c.object(kPeas).Name = "Pyreal Pea";
    c.object(kPeas).Container = c.sheet.Character;
    c.object(kPeas).Long = {{host::key::kStackCount, 100}};
    c.object(kWare).Name = "Trade Note (250,000)";
    c.object(kOldNotes).Name = "Trade Note (250,000)";
    c.object(kOldNotes).Container = c.sheet.Character;
    c.object(kOldNotes).Long = {{host::key::kStackCount, 1}, {host::key::kStackMaximum, 250}};
    c.object(kDrudge).Name = "Pyreal";
    c.object(kDrudge).Container = c.sheet.Character;
    c.object(kDrudge).Long = {{host::key::kStackCount, 300000}};
    c.vendor = {true, 0.9f, {kWare}};
    Vars::FilterHandler->StartPeas();
    for (int done = 1; done < step; ++done) Vars::FilterHandler->SellPeas();
    c.CreateObject(kNote);
    Vars::TimerHandler->StopSellingPeas();  // its steps are taken one by one
}

const EventRow kEvents[] = {
    {"Login", [](sim::Client& c) { c.LoginComplete(); }, [](sim::Client&) {}, true},
    {"LoginAgain", [](sim::Client& c) { c.LoginComplete(); }},
    {"Logoff", [](sim::Client& c) { c.Logoff(1); }},
    {"ChangeVital", [](sim::Client& c) { c.ChangeVital(2, 10); },
     [](sim::Client&) {
         Vars::ControlHandler->AlarmHealthOn->SetChecked(true);
         Vars::ControlHandler->AlarmHealthPer->SetText("50%");
     }},
    {"ChangeEnchantments", [](sim::Client& c) { c.ChangeEnchantments(0, {}); }},
    {"Death", [](sim::Client& c) { c.Death("You have died."); }},
    {"PortalAfterDeath", [](sim::Client& c) { c.ChangePortalMode(1); },
     [](sim::Client& c) { c.Death("You have died."); }},
    {"GameLine", [](sim::Client& c) { c.ChatText("Tom says, \"hello\"\n", 2, 0); }},
    {"TypedLine", [](sim::Client& c) { c.ChatParser("/m loc"); }},
    {"StatusText", [](sim::Client& c) { c.StatusText("You're too busy!"); },
     [](sim::Client&) {
         Vars::ControlHandler->StatusText->SetChecked(true);
         Vars::ControlHandler->ShowErrors->SetChecked(true);
     }},
    {"ExperienceMessage", [](sim::Client& c) { ServerSays(c, Quality(kUnassignedXP, 500)); },
     [](sim::Client& c) { ServerSays(c, Quality(kTotalXP, 1000)); }},
    {"ExperienceSpent", [](sim::Client& c) { ServerSays(c, Quality(kUnassignedXP, 10)); },
     [](sim::Client& c) {
         ServerSays(c, Quality(kTotalXP, 1000));
         ServerSays(c, Quality(kUnassignedXP, 500));
     }},
    {"EffectMessage", [](sim::Client& c) { ServerSays(c, EffectOn(kDrudge, 44)); }, LookAtDrudge},
    {"KillMessage", [](sim::Client& c) { ServerSays(c, KillText("You flatten Drudge Slave!")); }},
    {"LoginSnapshot", [](sim::Client& c) { ServerSays(c, LoginSnapshot(1000, 500)); }},
    {"IdentificationMessage", [](sim::Client& c) { ServerSays(c, Identified(kDrudge, 0x100, 18, 36, {2108})); },
     LookAtDrudge},
    {"HealthMessage", [](sim::Client& c) { ServerSays(c, HealthOf(kDrudge, 0.5)); }, LookAtDrudge},
    {"OptionsMessage",
     [](sim::Client& c) {
         ClientSays(c, OptionsChanged(WindowOptions({0x18, 0x00080000})));
     }},
    {"QueueLink", [](sim::Client& c) { c.ChatClick("[Ombrel]", 0x710E0); }},
    {"CorpseOpened", [](sim::Client& c) { c.ContainerOpened(kCorpse); }, FollowCorpses},
    {"ObjectSelected", [](sim::Client& c) { c.ObjectSelected(kDrudge); }},
    {"SelectionCleared", [](sim::Client& c) { c.ObjectSelected(0); }},
    {"RegionChanged",
     [](sim::Client& c) {
         c.RegionChanged({0, 0, 1024, 768});
     }},
    {"ObjectCreated", [](sim::Client& c) { c.CreateObject(kNote); },
     [](sim::Client&) { Vars::FilterHandler->SellingPeas = true; }},
    {"TargetChanged", [](sim::Client& c) { c.ChangeObject(kDrudge, 0); }, LookAtDrudge},
    {"FoodMoved", [](sim::Client& c) { c.MoveObject(kHam); }},
    {"KitMoved", [](sim::Client& c) { c.MoveObject(kKit); }},
    {"CorpseReleased", [](sim::Client& c) { c.ReleaseObject(kCorpse); }, FollowCorpses},
    {"TargetReleased", [](sim::Client& c) { c.ReleaseObject(kDrudge); }, LookAtDrudge},
    {"WeaponSelected", [](sim::Client& c) { c.ObjectSelected(kSword); }},
    {"WeaponIdentified", [](sim::Client& c) { c.ChangeObject(kSword, 2); },
     [](sim::Client& c) {
         c.object(kSword).HasIdData = 0;
         c.ObjectSelected(kSword);
         c.object(kSword).HasIdData = 1;
     }},
    {"TargetHurt",
     [](sim::Client& c) { ServerSays(c, HealthOf(kDrudge, Vars::NetEchoHandler->TargetHealthRatio / 2)); },
     LookAtDrudge},
    {"TargetIdentified", [](sim::Client& c) { ServerSays(c, Identified(kDrudge, 0x110, 18, 36, {2074})); },
     LookAtDrudge},
    {"DebuffLands", [](sim::Client& c) { ServerSays(c, EffectOn(kDrudge, 48)); },
     [](sim::Client& c) {
         c.LoadSpells(SpellTablePath());
         c.ObjectSelected(kDrudge);
     }},
    {"DebuffRunsOut", [](sim::Client& c) { c.clock.Advance(1s); },
     [](sim::Client& c) {
         c.LoadSpells(SpellTablePath());
         c.ObjectSelected(kDrudge);
         Vars::HUDTargetHandler->TargetHud->AddDebuff(kDrudge, 15);  // for a minute
         c.clock.Advance(59s);
     }},
    {"TitleFadesIn", [](sim::Client& c) { c.clock.Advance(25ms); },
     [](sim::Client& c) {
         c.ObjectSelected(kDrudge);
         const host::Rect& card = Vars::HUDTargetHandler->TargetHud->frame.rect();
         c.WindowMessage(512, card.left + 20, card.top + 40, 0, 0);
     }},
    {"MouseMove", [](sim::Client& c) { c.WindowMessage(512, 20, 20, 0, 0); }},
    {"MouseDown", [](sim::Client& c) { c.WindowMessage(513, 20, 20, 0, 0); }},
    {"MouseUp", [](sim::Client& c) { c.WindowMessage(514, 20, 20, 0, 0); }},
    {"Hotkey", [](sim::Client& c) { c.Hotkey("OM:OneKeyHeal"); }},
    {"FoodKey", [](sim::Client& c) { c.Hotkey("OM:OneKeyHealth"); }, Starve},
    {"SmartKey", [](sim::Client& c) { c.Hotkey("OM:OneKeySmartHeal"); }, Starve},
    {"FillAskedFor", [](sim::Client& c) { c.ChatParser("/m fillmana"); }, [](sim::Client& c) { RunLow(c); }},
    {"FillByALine", [](sim::Client& c) { c.ChatText("Your Ring is low on Mana.\n", 7, 0); },
     [](sim::Client& c) {
         RunLow(c);
         Vars::ControlHandler->FillMana->SetChecked(true);
     }},
    {"ManaScanned", [](sim::Client&) { Vars::FilterHandler->WaitforScan_Timeout(); },
     [](sim::Client& c) {
         RunLow(c);
         Vars::FilterHandler->Fill_Mana(true);
     }},
    {"StoneUsed", [](sim::Client&) { Vars::FilterHandler->UseCharge_Timeout(); },
     [](sim::Client& c) {
         RunLow(c);
         Vars::FilterHandler->FindCHarge();
     }},
    {"PeasOffered", [](sim::Client& c) { c.ChatParser("/m sellpeas"); }},
    {"PeasSelected", [](sim::Client&) { Vars::FilterHandler->SellPeas(); }, [](sim::Client& c) { OpenMarket(c, 1); }},
    {"PeasSplit", [](sim::Client&) { Vars::FilterHandler->SellPeas(); }, [](sim::Client& c) { OpenMarket(c, 2); }},
    {"PeasSold", [](sim::Client&) { Vars::FilterHandler->SellPeas(); }, [](sim::Client& c) { OpenMarket(c, 4); }},
    {"NoteBought", [](sim::Client&) { Vars::FilterHandler->SellPeas(); }, [](sim::Client& c) { OpenMarket(c, 5); }},
    {"NoteStacked", [](sim::Client&) { Vars::FilterHandler->SellPeas(); }, [](sim::Client& c) { OpenMarket(c, 7); }},
    {"OpenedCorpseReleased", [](sim::Client& c) { c.ReleaseObject(kCorpse); },
     [](sim::Client& c) {
         Vars::ControlHandler->CorpsesAuto->SetChecked(true);
         Vars::CorpseHandler->AddCorpsefromData(12.4, -45.6, 0, false, kCorpse, "");
         c.ContainerOpened(kCorpse);
     }},
    {"DeviceLost", [](sim::Client& c) { c.DeviceLost(); }},
    {"BuffsBeersAndGems", [](sim::Client& c) { c.clock.Advance(1s); },
     [](sim::Client& c) {
         Vars::ControlHandler->UseGems->SetChecked(true);
         Vars::ControlHandler->UseBeers->SetChecked(true);
         Vars::SpellHandler->lFavor = kNote;
         Enchant(c);
     }},
    {"ItemEnchanted", [](sim::Client& c) { c.ChatText("You cast Blade Bane VI on your armor.\n", 7, 1); }, Enchant},
    {"BeersDrunk", [](sim::Client& c) { c.Hotkey("OM:DrinkBeersNow"); }},
    {"QueueApplies", [](sim::Client& c) { c.clock.Advance(200ms); },
     [](sim::Client& c) { c.Hotkey("OM:DrinkBeersNow"); }},
    {"QueueIsEmpty", [](sim::Client& c) { c.clock.Advance(200ms); }, [](sim::Client& c) { c.Hotkey("OM:RunEvents"); }},
    {"SpellsExported", [](sim::Client& c) { c.ChatParser("/m listspells"); },
     [](sim::Client& c) {
         sim::SpellRow row;
         row.ID = 7;
         c.spells = {};
         c.spells.Put(row);
     }},
    {"FirstSeconds", [](sim::Client& c) { c.clock.Advance(3s); }},
    {"AMinute", [](sim::Client& c) { c.clock.Advance(60s); }},

    // The player at the options view.
    {"SwitchStored", [](sim::Client& c) { View<sim::SimCheckbox>(c, "Beer_Str").Check(false); }},
    {"SwitchOutput", [](sim::Client& c) { View<sim::SimCheckbox>(c, "Output_2").Check(true); }},
    {"SwitchHuds", [](sim::Client& c) { View<sim::SimCheckbox>(c, "HUD_On").Check(true); }},
    {"SwitchLogout", [](sim::Client& c) { View<sim::SimCheckbox>(c, "Logout_Timer").Check(true); }},
    {"ClockFormat", [](sim::Client& c) { View<sim::SimCheckbox>(c, "HUD_Clock_24").Check(true); }},
    {"HudFont", [](sim::Client& c) { View<sim::SimChoice>(c, "HUD_General_Font").Select(2); }},
    {"HudBackground", [](sim::Client& c) { View<sim::SimChoice>(c, "HUD_General_BG_Color").Select(4); }},
    {"HudRow", [](sim::Client& c) { View<sim::SimList>(c, "HUD_General").Click(6, 1); }},
    {"LineColor", [](sim::Client& c) { View<sim::SimChoice>(c, "HUD_Main_Color").Select(3); }},
    {"LineRow", [](sim::Client& c) { View<sim::SimList>(c, "HUD_LIST").Click(0, 2); }},
    {"RefreshPeriod", [](sim::Client& c) { View<sim::SimChoice>(c, "HUD_Timeout").Select(2); }},
    {"DownTimer", [](sim::Client& c) { View<sim::SimPushButton>(c, "HUD_Timer_Down").Press(); }},
    {"ItemBySelection", [](sim::Client& c) { View<sim::SimPushButton>(c, "HUD_Items_Sel").Press(); },
     [](sim::Client& c) { c.hooks.CurrentSelection = kHam; }},
    {"ItemMoved", [](sim::Client& c) { View<sim::SimList>(c, "HUD_Items").Click(3, 1); },
     [](sim::Client& c) {
         for (const char* name : {"Ham", "Arrow", "Pie"}) {
             View<sim::SimEdit>(c, "HUD_Items_Text").PutText(name);
             View<sim::SimPushButton>(c, "HUD_Items_Add").Press();
         }
     }},
    {"ExceptionBySelection", [](sim::Client& c) { View<sim::SimPushButton>(c, "Vitals_btnAddSelected").Press(); },
     [](sim::Client& c) { c.hooks.CurrentSelection = kHam; }},
    {"Percentage", [](sim::Client& c) { View<sim::SimEdit>(c, "Vitals_txtCheap").Type("60"); }},
    {"CorpseRead", [](sim::Client& c) { View<sim::SimList>(c, "Corpses_List").Click(1, 0); },
     [](sim::Client& c) {
         c.Death("You have died.");
         c.ChangePortalMode(1);
     }},
    {"RuleAdded", [](sim::Client& c) { View<sim::SimPushButton>(c, "Chat_Custom_Add").Press(); }},
    {"GlobalSettings", [](sim::Client& c) { View<sim::SimCheckbox>(c, "Global_Settings").Check(true); }},
    {"DefaultsSet", [](sim::Client& c) { View<sim::SimPushButton>(c, "Set_Default").Press(); }},
};

// Operations whose failure is told of more than once, or not at all.
struct Exception {
    std::string_view event;      // what its name begins with
    std::string_view operation;  // likewise
    std::size_t fewest;
    std::size_t most;
};

const Exception kExceptions[] = {
    // Reported by the procedure that asks for the folder, and its error text by the one that writes there.
    {"", "Platform.SHGetFolderPath", 1, 2},
    // A player without the hotkey service gets no message.
    {"", "Decal.GetHotkeyService", 0, 0},
    // Lists that were not filled, and then the settings that find no rows in them.
    {"Login", "List.", 1, 2},
    {"Login", "PluginSite.IconLibrary", 1, 2},
    // A row that could not be looked for, and the option that is read from it.
    {"ExperienceMessage", "List.", 1, 2},
    {"BuffsBeersAndGems", "List.", 1, 2},
    // The same while a character plays, whose HUDs look for rows too.
    {"GlobalSettings", "List.", 1, 4},
    {"GlobalSettings", "PluginSite.IconLibrary", 1, 4},
};

// How often a failure may be told of.
std::pair<std::size_t, std::size_t> ExpectedReports(std::string_view event, std::string_view operation) {
    for (const Exception& row : kExceptions) {
        if (event.starts_with(row.event) && operation.starts_with(row.operation)) return {row.fewest, row.most};
    }
    return {1, 1};
}

// What an evening has to offer: something to select, to eat, to find again.
struct Evening : GameSession {
    explicit Evening(const EventRow& event) {
        client.object(client.sheet.Character).Coordinates = {12.3, -45.6};
        client.object(kCorpse).Name = "Corpse of Aldra";
        client.object(kCorpse).Coordinates = {12.4, -45.6};
        client.object(kDrudge).Name = "Drudge Slave";
        client.object(kDrudge).Type = host::object_class::kCreature;
        client.object(kDrudge).HasIdData = 1;
        client.object(kDrudge).Long = {{host::key::kIcon, 4150}, {25, 8}};
        sim::Object& sword = Carry(kSword, "Silver Simi");
        sword.Type = 1;
        sword.HasIdData = 1;
        sword.Long = {{107, 900}, {108, 1200}, {158, 1}, {159, 11}, {160, 325}};
        Carry(kHam, "Ham").Type = host::object_class::kFood;
        Carry(kKit, "Plentiful Healing Kit").Type = host::object_class::kHealingKit;
        Carry(kNote, "Trade Note (250,000)");
        Carry(kAle, "Tusker Spit Ale").Long[host::key::kStackCount] = 3;
        Start();
        if (!event.before_login) LogIn();
        event.prepare(client);
        TakeReports();
    }
};

// The operations that an event needs.
std::vector<sim::Op> NeededBy(const EventRow& event) {
    Evening evening(event);
    const sim::Calls& calls = evening.client.calls;
    std::vector<std::uint64_t> before;
    for (sim::Op op = 0; op < sim::Operations().size(); ++op) before.push_back(calls.Count(op));
    event.raise(evening.client);
    EXPECT_THAT(evening.TakeReports(), IsEmpty());

    std::vector<sim::Op> needed;
    for (sim::Op op = 0; op < before.size(); ++op) {
        if (calls.Count(op) > before[op]) needed.push_back(op);
    }
    return needed;
}

class HostFailures : public testing::TestWithParam<EventRow> {};

TEST_P(HostFailures, AreReportedOnceAndOver) {
    const EventRow& event = GetParam();
    for (const sim::Op op : NeededBy(event)) {
        const sim::Operation& operation = sim::Operations()[op];
        const std::string name = fmt::format("{}.{}", operation.object, operation.name);
        SCOPED_TRACE(name);
        const auto [fewest, most] = ExpectedReports(event.name, name);

        Evening evening(event);
        evening.client.calls.Fail(op, 1, 5, "made to fail");
        EXPECT_NO_THROW(event.raise(evening.client));
        const std::vector<std::string> reports = evening.TakeReports();
        EXPECT_TRUE(reports.size() >= fewest && reports.size() <= most) << testing::PrintToString(reports);

        evening.client.calls.ClearFailures();
        EXPECT_NO_THROW(event.raise(evening.client));
        EXPECT_THAT(evening.TakeReports(), IsEmpty()) << "after the failure is over";
    }
}

INSTANTIATE_TEST_SUITE_P(Events, HostFailures, testing::ValuesIn(kEvents),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace ombrel::test
