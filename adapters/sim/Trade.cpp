#include "adapters/sim/Trade.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ombrel::sim {
namespace {

constexpr milliseconds kDeal = 300ms;
constexpr milliseconds kMerge = 200ms;
constexpr std::string_view kPyreal = "Pyreal";
constexpr std::int32_t kFullPurse = 25000;  // pyreals in one stack
constexpr std::int32_t kMostBurden = 3;     // times the capacity
constexpr double kTill = 10'000'000;        // no vendor pays more at once
constexpr double kNotePrice = 1.15;         // of the value, everywhere
constexpr double kPrice = 1.35;

std::int64_t ValueOf(const Object& thing, std::int32_t count) {
    return std::int64_t{Long(thing, property::kValue)} * count / StackOf(thing);
}

std::int64_t BurdenOf(const Object& thing, std::int32_t count) {
    return std::int64_t{Long(thing, property::kBurden)} * count / StackOf(thing);
}

// What a vendor pays, without the error of the short number; a hair above, so that a whole pyreal stays whole.
double RateOf(const VendorState& vendor) { return std::round(vendor.SellRate * 1e6) / 1e6 + 1e-12; }

std::int32_t FullStack(const Object& stack, std::int32_t fallback) {
    const std::int32_t most = Long(stack, host::key::kStackMaximum);
    return most > 0 ? most : fallback;
}

}  // namespace

void Trade::Merge(host::Id source, host::Id target) {
    aftermath_.Occupy(kMerge, [this, source, target] {
        Object* from = aftermath_.Find(source);
        Object* to = aftermath_.Find(target);
        if (!from || !to || from == to || from->Name != to->Name) return;
        const std::int32_t moved = std::min(StackOf(*from), FullStack(*to, 1) - StackOf(*to));
        if (moved <= 0) return;
        aftermath_.SetStack(*to, StackOf(*to) + moved);
        aftermath_.SetStack(*from, StackOf(*from) - moved);
    });
}

bool Trade::Open() {
    if (aftermath_.client.vendor.open) return true;
    buying_.clear();
    selling_.clear();
    return false;
}

void Trade::AddBuy(host::Id id, std::int32_t count) {
    const auto& goods = aftermath_.client.vendor.items;
    if (Open() && count > 0 && std::ranges::find(goods, id) != goods.end()) buying_.push_back({id, count});
}

void Trade::AddSell(host::Id id) {
    const Object* thing = aftermath_.client.FindObject(id);
    if (!Open() || !thing || !aftermath_.client.Carries(*thing)) return;
    const std::int32_t stack = StackOf(*thing);
    const bool split = split_ != 0 && aftermath_.client.hooks.CurrentSelection == id;
    selling_.push_back({id, split ? std::clamp(split_, 1, stack) : stack});
}

void Trade::SellAll() {
    if (!Open()) return;
    aftermath_.Occupy(kDeal, [this, list = std::exchange(selling_, {})] { Sell(list); });
}

void Trade::BuyAll() {
    if (!Open()) return;
    aftermath_.Occupy(kDeal, [this, list = std::exchange(buying_, {})] { Buy(list); });
}

void Trade::Sell(const std::vector<Entry>& list) {
    const double rate = RateOf(aftermath_.client.vendor);
    std::vector<Entry> sold;
    std::int64_t money = 0;
    for (const Entry& entry : list) {
        const Object* thing = aftermath_.Find(entry.id);
        if (!thing) continue;
        sold.push_back({entry.id, std::min(entry.count, StackOf(*thing))});
        const double paid = std::floor(static_cast<double>(ValueOf(*thing, sold.back().count)) * rate);
        money += static_cast<std::int64_t>(std::clamp(paid, 0.0, kTill));
    }
    money = std::min(money, static_cast<std::int64_t>(kTill));
    if (!CanCarry(sold, money)) {
        aftermath_.client.StatusText("You are too encumbered to sell that!");
        return;
    }
    for (const Entry& entry : sold) {
        if (Object* thing = aftermath_.Find(entry.id)) aftermath_.SetStack(*thing, StackOf(*thing) - entry.count);
    }
    Earn(money);
}

// Who can't pay gets nothing.
void Trade::Buy(const std::vector<Entry>& list) {
    std::int64_t price = 0;
    for (const Entry& entry : list) {
        const Object* ware = aftermath_.Find(entry.id);
        if (!ware) return;
        const double rate = ware->Type == thing::kTradeNote ? kNotePrice : kPrice;
        const double asked = std::ceil(static_cast<double>(ValueOf(*ware, entry.count)) * rate - 0.01);
        price += static_cast<std::int64_t>(std::clamp(asked, 0.0, 1e12));
    }
    if (list.empty() || Money() < price) return;
    Pay(price);
    Client& client = aftermath_.client;
    for (const Entry& entry : list) {
        if (const Object* ware = aftermath_.Find(entry.id))
            client.CreateObject(aftermath_.Copy(*ware, entry.count, client.sheet.Character).id);
    }
}

// A character without a capacity carries everything.
bool Trade::CanCarry(const std::vector<Entry>& sold, std::int64_t money) {
    const Client& client = aftermath_.client;
    const Object* self = client.FindObject(client.sheet.Character);
    const std::int64_t capacity = self ? Long(*self, property::kBurdenCapacity) : 0;
    if (capacity == 0) return true;
    std::int64_t burden = 0;
    for (const Object* thing : aftermath_.Carried()) burden += Long(*thing, property::kBurden);
    for (const Entry& entry : sold) burden -= BurdenOf(*aftermath_.Find(entry.id), entry.count);
    const auto purses = aftermath_.Carried(kPyreal);
    if (!purses.empty()) burden += Long(*purses.front(), property::kBurden) * money / StackOf(*purses.front());
    return burden <= capacity * kMostBurden;
}

std::int64_t Trade::Money() {
    std::int64_t money = 0;
    for (const Object* purse : aftermath_.Carried(kPyreal)) money += StackOf(*purse);
    return money;
}

void Trade::Earn(std::int64_t money) {
    const auto purses = aftermath_.Carried(kPyreal);
    for (Object* purse : purses) {
        const std::int64_t room = FullStack(*purse, kFullPurse) - StackOf(*purse);
        const auto added =
            static_cast<std::int32_t>(std::clamp<std::int64_t>(money, 0, std::max<std::int64_t>(room, 0)));
        if (added > 0) aftermath_.SetStack(*purse, StackOf(*purse) + added);
        money -= added;
    }
    Client& client = aftermath_.client;
    while (money > 0) {
        const auto count = static_cast<std::int32_t>(std::min<std::int64_t>(money, kFullPurse));
        money -= count;
        Object& purse = aftermath_.Make(kPyreal, thing::kMoney);
        purse.Container = client.sheet.Character;
        purse.Long = {
            {property::kValue, count}, {host::key::kStackCount, count}, {host::key::kStackMaximum, kFullPurse}};
        client.CreateObject(purse.id);
    }
}

// The last purses are emptied first.
void Trade::Pay(std::int64_t money) {
    auto purses = aftermath_.Carried(kPyreal);
    std::ranges::reverse(purses);
    for (Object* purse : purses) {
        const auto paid = static_cast<std::int32_t>(std::min<std::int64_t>(money, StackOf(*purse)));
        money -= paid;
        if (paid > 0) aftermath_.SetStack(*purse, StackOf(*purse) - paid);
    }
}

}  // namespace ombrel::sim
