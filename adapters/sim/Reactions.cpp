#include "adapters/sim/Reactions.h"

#include "adapters/sim/ManaStones.h"
#include "adapters/sim/Splitting.h"

namespace ombrel::sim {
namespace {

struct AnswerRow {
    Op operation;
    void (*answer)(Trade& trade, const Action& action);
};
constexpr AnswerRow kTrade[] = {
    {"ACHooks.SelectItem"_op, [](Trade& trade, const Action&) { trade.Select(); }},
    {"ACHooks.SetStackSize"_op, [](Trade& trade, const Action& action) { trade.SetStackSize(action.count); }},
    {"ACHooks.MergeStacks"_op, [](Trade& trade, const Action& action) { trade.Merge(action.id, action.target); }},
    {"ACHooks.VendorAddBuy"_op, [](Trade& trade, const Action& action) { trade.AddBuy(action.id, action.count); }},
    {"ACHooks.VendorBuyAll"_op, [](Trade& trade, const Action&) { trade.BuyAll(); }},
    {"ACHooks.VendorAddSell"_op, [](Trade& trade, const Action& action) { trade.AddSell(action.id); }},
    {"ACHooks.VendorSellAll"_op, [](Trade& trade, const Action&) { trade.SellAll(); }},
};

}  // namespace

Reactions::Reactions(Client& client)
    : aftermath_(client), appraisals_(aftermath_), deaths_(aftermath_), healing_(aftermath_), trade_(aftermath_) {}

void Reactions::Answer(const Action& action) {
    switch (action.operation) {
        case "ACHooks.IdentifyObject"_op:
            return appraisals_.Ask(action.id);
        case "ACHooks.UseItem"_op:
            return Use(action.id, aftermath_.client.sheet.Character);
        case "ACHooks.UseItemOnTarget"_op:
            return Use(action.id, action.target);
        default:
            break;
    }
    for (const AnswerRow& row : kTrade) {
        if (row.operation == action.operation) return row.answer(trade_, action);
    }
}

void Reactions::Use(host::Id id, host::Id target) {
    Client& client = aftermath_.client;
    const Object* item = client.FindObject(id);
    if (!item || !client.Carries(*item)) return;
    if (client.hooks.BusyState != 0) {
        client.StatusText("You're too busy!");
    } else if (item->Name == kSplittingTool) {
        SplitPea(aftermath_, target);
    } else if (target != client.sheet.Character) {
        return;
    } else if (item->Type == thing::kManaStone) {
        UseManaStone(aftermath_, id);
    } else if (item->Type == thing::kHealingKit) {
        healing_.UseKit(id);
    } else if (item->Type == thing::kFood) {
        healing_.Eat(id);
    }
}

}  // namespace ombrel::sim
