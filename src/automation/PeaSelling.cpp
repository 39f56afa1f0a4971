// Sells stacks of peas to the open vendor and buys trade notes for the money, one step a tick.
#include <fmt/format.h>

#include <cmath>
#include <iterator>

#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/TimerHandler.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"

namespace ombrel {
namespace {

constexpr std::string_view kNote = "Trade Note (250,000)";
constexpr double kNotePrice = 287500.0;
constexpr std::string_view kRule = "---------------------------------";

struct Pea {
    std::string_view name;
    double value;  // pyreals
};

// The dearest go first.
constexpr Pea kPeas[] = {
    {"Pyreal", 50000}, {"Gold", 25000}, {"Silver", 12500}, {"Copper", 5000}, {"Iron", 2500}, {"Lead", 500},
};

// Steps of a sale. Those from kBuyNote on need the note among the vendor's goods.
namespace step {
constexpr std::int32_t kIdle = 0;
constexpr std::int32_t kSelect = 1;
constexpr std::int32_t kSplit = 2;
constexpr std::int32_t kAddToSell = 3;
constexpr std::int32_t kSell = 4;
constexpr std::int32_t kBuyNote = 10;
constexpr std::int32_t kBuy = 11;
constexpr std::int32_t kStack = 12;
constexpr std::int32_t kCheckStack = 13;
}  // namespace step

std::int32_t StackOf(const host::WorldObject& object) { return object.Long(host::key::kStackCount, 0); }

host::WorldIteratorPtr PackItems(host::World& world, std::string_view name) {
    auto walk = world.Inventory();
    walk->ByName(name);
    return walk;
}

std::int32_t Pyreals(host::World& world) {
    double sum = 0.0;
    const auto walk = PackItems(world, "Pyreal");
    while (const auto stack = walk->Next()) sum += StackOf(*stack);
    return ToLong(sum);
}

template <class... Arguments>
void Trace(fmt::format_string<Arguments...> text, Arguments&&... arguments) {
    if (Vars::DebugMode) wtcw_debug(std::string(kRule) + fmt::format(text, std::forward<Arguments>(arguments)...));
}

}  // namespace

void FilterHandler::StartPeas() try {
    sale_ = {};
    sale_.state = step::kSelect;
    SellingPeas = true;
    Vars::TimerHandler->StartSellingPeas();
} catch (...) {
    ReportFailure("StartPeas", "FilterHandler");
}

void FilterHandler::StopPeas() try {
    sale_.state = step::kIdle;
    SellingPeas = false;
    Vars::TimerHandler->StopSellingPeas();
} catch (...) {
    ReportFailure("StopPeas", "FilterHandler");
}

void FilterHandler::SellPeas() try {
    if (sale_.pea >= std::size(kPeas)) {
        wtcw("Done Selling Peas! MMD's Purchased: " + NumberText(sale_.bought));
        return StopPeas();
    }
    const auto vendor = ACHooks->VendorOpen() ? World->Vendor() : nullptr;
    if (!vendor) {
        wtcw("No vendor is open.  Please open a vendor window.");
        return StopPeas();
    }
    const std::int32_t pyreals = Pyreals(*World);
    const double rate = vendor->SellRate();
    const double needed = kNotePrice - pyreals;
    if (sale_.state >= step::kBuyNote) {
        const auto note = vendor->ByName(kNote)->Next();
        if (!note) {
            wtcw("No MMD Notes Found in Vendor!");
            return StopPeas();
        }
        return BuyStep(*note, needed);
    }
    const double each = kPeas[sale_.pea].value * rate;
    if (each == 0.0) throw Failure(failure::kDivisionByZero);
    SellStep(ToLong(std::ceil(needed / each)), pyreals, needed);
} catch (...) {
    ReportFailure("SellPeas", "FilterHandler");
}

void FilterHandler::NextPea() {
    ++sale_.pea;
    sale_.state = step::kSelect;
}

void FilterHandler::SellStep(std::int32_t count, std::int32_t pyreals, double needed) {
    const std::string_view name = kPeas[sale_.pea].name;
    switch (sale_.state) {
        case step::kSelect:
            Trace("Pyreal Count: {}, Needed Pyreals: {}", pyreals, NumberText(needed));
            return SelectPeas(count);
        case step::kSplit:
            Trace("Splitting Selected Item to Stack Size {}", count);
            if (GetItemStackCount(sale_.stack) < count) {
                Trace("You have insufficient {} Pea's.  Moving on.", name);
                return NextPea();
            }
            ACHooks->SetStackSize(count);
            sale_.state = step::kAddToSell;
            return;
        case step::kAddToSell:
            Trace("Adding Item {} to vendor window", sale_.stack);
            ACHooks->VendorAddSell(sale_.stack);
            sale_.state = step::kSell;
            return;
        case step::kSell:
            Trace("Selling All Items");
            ACHooks->VendorSellAll();
            sale_.state = step::kBuyNote;
            return;
        default:
            return;
    }
}

// Takes the first stack that is larger than what is needed, else the last.
void FilterHandler::SelectPeas(std::int32_t count) {
    const std::string_view name = kPeas[sale_.pea].name;
    const auto walk = PackItems(*World, fmt::format("{} Pea", name));
    host::WorldObjectPtr chosen;
    while (const auto stack = walk->Next()) {
        chosen = stack;
        if (StackOf(*stack) > count) break;
    }
    if (!chosen) {
        Trace("You have no more {} Pea's.  Moving on.", name);
        return NextPea();
    }
    sale_.stack = chosen->GUID();
    Trace("Selling {} Peas", name);
    Trace("Selecting Item: {}", sale_.stack);
    ACHooks->SelectItem(sale_.stack);
    sale_.state = step::kSplit;
}

void FilterHandler::BuyStep(const host::WorldObject& note, double needed) {
    switch (sale_.state) {
        case step::kBuyNote:
            if (needed >= 0.0) {
                sale_.state = step::kSelect;
                return;
            }
            Trace("Purchasing an MMD");
            Trace("Adding Tradenote {} to buy list", note.GUID());
            ACHooks->VendorAddBuy(note.GUID(), 1);
            sale_.state = step::kBuy;
            return;
        case step::kBuy:
            Trace("Buying All Items");
            ACHooks->VendorBuyAll();
            ++sale_.bought;
            sale_.state = step::kStack;
            return;
        case step::kStack:
            return StackNote();
        case step::kCheckStack:
            if (GetItemStackCount(sale_.target) == sale_.target_count) {
                sale_.state = step::kStack;
            } else {
                TradeNoteId = 0;
                sale_.state = step::kSelect;
            }
            return;
        default:
            return;
    }
}

// The new note joins a stack that has room; its arrival is awaited first.
void FilterHandler::StackNote() {
    Trace("Stacking MMD's");
    if (TradeNoteId == 0) return;
    const auto walk = PackItems(*World, kNote);
    while (const auto stack = walk->Next()) {
        const std::int32_t count = StackOf(*stack);
        const std::int32_t most = stack->Long(host::key::kStackMaximum, 0);  // 0 until the client knows it
        const bool full = most > 0 && count >= most;
        if (stack->GUID() == TradeNoteId || full) continue;
        wtcw_debug("Stack found, Stacking...");
        sale_.target = stack->GUID();
        sale_.target_count = count;
        ACHooks->MergeStacks(TradeNoteId, sale_.target);
        sale_.state = step::kCheckStack;
        return;
    }
    wtcw_debug("No Stacks Found, Leaving alone.");
    TradeNoteId = 0;
    sale_.state = step::kSelect;
}

}  // namespace ombrel
