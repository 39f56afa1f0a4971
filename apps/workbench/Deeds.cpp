#include "apps/workbench/Deeds.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

namespace ombrel::workbench {
namespace {

constexpr std::int64_t kPrey = 3674210562, kPortal = 3674210563, kSpada = 2147487749, kTassets = 2147487750,
                       kBeer = 2147487747, kShopkeeper = 3674210561;

// Types of the server's messages, and of the events in one of them.
constexpr int kQuality = 0x02CF, kEvent = 0xF7B0;
constexpr int kKillText = 0x1AD, kTargetHealth = 0x1C0;
constexpr int kTotalExperience = 1, kUnassignedExperience = 2;

void Hear(Game& game, const std::string& text, int color) {
    game.Do({{"event", "ACHooks_ChatTextIntercept"}, {"text", text + "\n"}, {"color", color}, {"window", 0}});
}

void Hear(Game& game, const std::string& link, const std::string& rest, int color) {
    Hear(game, fmt::format("<Tell:IIDString:1342309377:{0}>{0}<\\Tell>{1}", link, rest), color);
}

void SetVital(Game& game, int vital, int value) {
    const auto maximum = game.client().sheet.Vital.find(vital);
    const int most = maximum == game.client().sheet.Vital.end() ? value : maximum->second;
    game.Do({{"event", "Char_ChangeVital"}, {"vital", vital}, {"value", std::clamp(value, 1, most)}});
}

void SendExperience(Game& game, int key, std::int64_t value) {
    Json bytes = Json::array();
    for (int byte = 0; byte < 8; ++byte) bytes.push_back(static_cast<int>(value >> (8 * byte) & 0xFF));
    game.Do({{"event", "NetEcho_EchoServer"}, {"message", {{"Type", kQuality}, {"key", key}, {"value", bytes}}}});
}

void Kill(Game& game, const std::string& text, std::int64_t experience) {
    game.Do({{"event", "NetEcho_EchoServer"}, {"message", {{"Type", kEvent}, {"event", kKillText}, {"text", text}}}});
    Hear(game, text, 0);
    game.total_experience += experience;
    game.unassigned_experience += experience;
    SendExperience(game, kTotalExperience, game.total_experience);
    SendExperience(game, kUnassignedExperience, game.unassigned_experience);
}

// A spell as the client shows it: the line, the list of enchantments, the event.
void Cast(Game& game, const std::string& name, int spell, int family, int seconds) {
    Json list = Json::array();
    for (const sim::ActiveEnchantment& active : game.client().enchantments) {
        if (active.SpellID == spell) continue;
        const std::int64_t left = active.ends ? (*active.ends - game.client().clock.now()) / 1000 : active.permanent;
        if (active.ends && left <= 0) continue;
        list.push_back({{"SpellID", active.SpellID}, {"TimeRemaining", left}, {"Family", active.Family}});
    }
    const Json cast = {{"SpellID", spell}, {"TimeRemaining", seconds}, {"Family", family}};
    list.push_back(cast);
    Hear(game, fmt::format("You cast {0} on yourself", name), 7);
    game.Do({{"set", "enchantments"}, {"list", list}});
    game.Do({{"event", "Char_ChangeEnchantments"}, {"change", 0}, {"enchantment", cast}});
}

void Select(Game& game, std::int64_t id) { game.Do({{"event", "ACHooks_ObjectSelected"}, {"id", id}}); }

void JumpToMidnight(Game& game) {
    constexpr std::int64_t kDay = 86'400, kBefore = 10;
    const std::int64_t local =
        game.client().clock.universal() / 1000 - std::int64_t{game.client().system.zone.bias} * 60;
    game.Do({{"set", "clock"}, {"shift", kDay - kBefore - local % kDay}});
}

void SayAllTypes(Game& game) {
    for (int type = 0; type < 32; ++type) Hear(game, fmt::format("This is a line of chat type {}.", type), type);
}

constexpr auto kDeeds = std::to_array<Deed>({
    {"Chat", "A friend tells you", "A tell, with a name to click",
     [](Game& game) { Hear(game, "Mira Fenn", " tells you, \"Room for one more at the bridge?\"", 3); }},
    {"Chat", "Somebody speaks near you", "Local speech",
     [](Game& game) { Hear(game, "Alden Quill", " says, \"The drudges are out by the lake.\"", 2); }},
    {"Chat", "Your fellowship talks", "Goes to a floating window where the options route it",
     [](Game& game) { Hear(game, "[Fellowship] Mira Fenn says, \"I have the left one\"", 19); }},
    {"Chat", "A stranger on Trade", "The Trade channel: word filters and custom rules apply",
     [](Game& game) { Hear(game, "[Trade] Ysolde says, \"Selling boots, left ones only\"", 28); }},
    {"Chat", "A line of every chat type", "All 32 colours, for a look at colour rules", SayAllTypes},
    {"Chat", "A status text over the 3D area", "\"You're too busy!\"",
     [](Game& game) {
         game.Do({{"event", "ACHooks_StatusTextIntercept"}, {"text", "You're too busy!"}});
     }},

    {"Fight", "Take 60 damage", "Alarms sound below their thresholds",
     [](Game& game) {
         Hear(game, "Drudge Ravener mangles you for 60 points of bludgeoning damage!", 21);
         SetVital(game, host::vital::kHealth, game.client().sheet.Health - 60);
     }},
    {"Fight", "Lose stamina and mana", "80 of each",
     [](Game& game) {
         SetVital(game, host::vital::kStamina, game.client().sheet.Stamina - 80);
         SetVital(game, host::vital::kMana, game.client().sheet.Mana - 80);
     }},
    {"Fight", "Recover", "All three vitals are full again",
     [](Game& game) {
         for (const auto& [vital, most] : std::map(game.client().sheet.Vital)) SetVital(game, vital, most);
     }},
    {"Fight", "Kill a drudge", "8,600 experience",
     [](Game& game) { Kill(game, "You cleave Drudge Prowler in twain!", 8'600); }},
    {"Fight", "Kill something great", "1,250,000 experience",
     [](Game& game) { Kill(game, "Olthoi Eviscerator is reduced to cinders!", 1'250'000); }},
    {"Fight", "Spend experience", "Half of what is unassigned goes into a skill",
     [](Game& game) {
         game.unassigned_experience /= 2;
         SendExperience(game, kUnassignedExperience, game.unassigned_experience);
         Hear(game, "Your base Melee Defense skill is now 211!", 13);
     }},
    {"Fight", "Die", "The corpse, the lifestone and what follows",
     [](Game& game) {
         game.Do({{"event", "Char_Death"}, {"text", "Drudge Ravener killed you!"}});
     }},

    {"Spells", "Cast Strength for 45 minutes", "An enchantment in the lists and on the main display",
     [](Game& game) { Cast(game, "Strength Self VI", 1332, 1, 2700); }},
    {"Spells", "Cast Strength for a minute", "Watch the warnings as it runs out",
     [](Game& game) { Cast(game, "Strength Self VI", 1332, 1, 60); }},
    {"Spells", "A spell ends", "The client's own line",
     [](Game& game) { Hear(game, "Strength Self VI has expired.", 7); }},

    {"World", "Select the drudge", "Its card on the target display", [](Game& game) { Select(game, kPrey); }},
    {"World", "Hit it", "A seventh of its health goes",
     [](Game& game) {
         game.prey_health = game.prey_health < 0.2 ? 1.0 : game.prey_health - 0.15;
         game.Do({{"event", "NetEcho_EchoServer"},
                  {"message",
                   {{"Type", kEvent}, {"event", kTargetHealth}, {"object", kPrey}, {"health", game.prey_health}}}});
     }},
    {"World", "Select a sword", "Silver Spada, with its requirements and its mana",
     [](Game& game) { Select(game, kSpada); }},
    {"World", "Select armour", "Iron Chainmail Tassets, worn", [](Game& game) { Select(game, kTassets); }},
    {"World", "Select food", "Beer", [](Game& game) { Select(game, kBeer); }},
    {"World", "Select the portal", "To Arwic, for levels 1 to 60", [](Game& game) { Select(game, kPortal); }},
    {"World", "Select nothing", "The card goes", [](Game& game) { Select(game, 0); }},
    {"World", "Meet the shopkeeper", "A vendor's window opens",
     [](Game& game) {
         game.Do({{"set", "vendor"}, {"open", true}, {"SellRate", 0.9}});
         game.Do({{"event", "ACHooks_ContainerOpened"}, {"id", kShopkeeper}});
     }},
    {"World", "Leave the shopkeeper", "",
     [](Game& game) {
         game.Do({{"set", "vendor"}, {"open", false}});
     }},

    {"Time", "Ten seconds to midnight", "Logs and dates roll over", JumpToMidnight},
    {"Time", "An hour passes", "At once, with every tick of it", [](Game& game) { game.Run(3600); }},
    {"Time", "The graphics device is lost", "All displays paint themselves again",
     [](Game& game) { game.Do({{"event", "DeviceLost"}}); }},
    {"Time", "Log off", "Settings and data are saved",
     [](Game& game) { game.Do({{"event", "Char_Logoff"}, {"kind", 0}}); }},
});

}  // namespace

std::span<const Deed> Deeds() { return kDeeds; }

}  // namespace ombrel::workbench
