// What comes of the character's acts: after a while, in events and in lines of the game.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sim/Client.h"

namespace ombrel::sim {

using namespace std::chrono_literals;

// Properties by the game's keys.
namespace property {
constexpr std::int32_t kBurden = 5;  // of the whole stack, as the value
constexpr std::int32_t kWornOn = 10;
constexpr std::int32_t kValue = 19;
constexpr std::int32_t kRestoredVital = 89;
constexpr std::int32_t kRestored = 90;
constexpr std::int32_t kUses = 92;
constexpr std::int32_t kBurdenCapacity = 96;
constexpr std::int32_t kMana = 107;
constexpr std::int32_t kMaximumMana = 108;
constexpr std::int32_t kSpell = 0x0D000008;
constexpr std::int32_t kRestoration = 100;  // double: a kit's share of the skill
constexpr std::int32_t kDestruction = 137;  // double: the chance that a stone goes with its use
}  // namespace property

// Classes of objects, as the framework numbers them.
namespace thing {
constexpr std::int32_t kFood = 6;
constexpr std::int32_t kMoney = 7;
constexpr std::int32_t kTradeNote = 15;
constexpr std::int32_t kManaStone = 16;
constexpr std::int32_t kCorpse = 27;
constexpr std::int32_t kLifestone = 28;
constexpr std::int32_t kHealingKit = 29;
}  // namespace thing

// Changes of an object, as its event numbers them.
namespace change {
constexpr std::int32_t kSize = 0;
constexpr std::int32_t kIdentified = 2;
constexpr std::int32_t kMana = 4;
}  // namespace change

std::int32_t Long(const Object& object, std::int32_t key);  // 0 for one that it lacks
double Double(const Object& object, std::int32_t key);
std::int32_t StackOf(const Object& object);  // 1 for what doesn't stack
std::int32_t Clamped(std::int64_t number);   // the nearest that fits
std::string Grouped(std::int64_t number);    // "12,450"

class Aftermath {
public:
    explicit Aftermath(Client& c) : client(c) {}

    Client& client;

    void After(milliseconds wait, std::function<void()> happening) { client.clock.After(wait, std::move(happening)); }

    // The character is busy until it is done.
    void Occupy(milliseconds time, std::function<void()> done);

    void Say(const std::string& text) { client.ChatText(text + "\n", 0, 0); }  // a line of the game

    // The thing of that id, nothing when it has gone.
    Object* Find(host::Id id) { return client.FindObject(id) ? &client.object(id) : nullptr; }
    std::vector<Object*> Carried(std::string_view name = {});  // in the client's order, all without a name

    std::int32_t Maximum(std::int32_t vital) const;
    std::int32_t Missing(std::int32_t vital) const;  // not below 0
    void Restore(std::int32_t vital, std::int32_t amount);

    // A stack with another count, its value and burden with it; with none it goes.
    void SetStack(Object& stack, std::int32_t count);
    // A new thing like another one, in the character's pack or another container.
    Object& Copy(const Object& original, std::int32_t count, host::Id container);
    Object& Make(std::string_view name, std::int32_t type);
    void Vanish(host::Id id);

private:
    std::int32_t Current(std::int32_t vital) const;
    static void Resize(Object& stack, std::int32_t count);

    std::int32_t busy_ = 0;
    host::Id next_id_ = static_cast<host::Id>(0x80F00000);
};

}  // namespace ombrel::sim
