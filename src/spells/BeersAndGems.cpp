#include <string>

#include "automation/EventQueue.h"
#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"
#include "spells/SpellHandler.h"
#include "spells/Tables.h"

namespace ombrel {
namespace {

constexpr std::int32_t kNoBeer = 99999;
constexpr std::int32_t kWaitPasses = 5;     // after an order
constexpr double kRefillThreshold = 120.0;  // seconds, where the option holds no number

}  // namespace

// A gem that is picked up later is not seen before the next login.
void SpellHandler::InitSpells() try {
    auto& filter = *Vars::FilterHandler;
    lBenediction = filter.GetIDinInv(std::string(kBenediction.item));
    if (lBenediction != -1) wtcw_debug("Asheron's Benediction gem found");
    lFavor = filter.GetIDinInv(std::string(kFavor.item));
    if (lFavor != -1) wtcw_debug("Blackmoor's Favor gem found");
    lLesserBenediction = filter.GetIDinInv(std::string(kLesserBenediction.item));
    if (lLesserBenediction != -1) wtcw_debug("Asheron's Lesser Benediction gem found");
} catch (...) {
    ReportFailure("InitSpells", "SpellHandler");
}

// Nothing holds the calls back: the spell's arrival, or its cooldown, ends the requests.
void SpellHandler::HandleGems(bool needFavor, bool needBenediction, bool needLesser) try {
    if (!Vars::ControlHandler->UseGems->Checked()) return;

    const auto use = [](bool needed, host::Id gem, std::string_view debug_text) {
        if (!needed || gem == -1) return;
        wtcw_debug(debug_text);
        Vars::FilterHandler->UseItem(gem, 0);
    };
    use(needBenediction, lBenediction, kBenediction.debug_text);
    use(needLesser, lLesserBenediction, kLesserBenediction.debug_text);
    use(needFavor, lFavor, kFavor.debug_text);
} catch (...) {
    ReportFailure("HandleGems", "SpellHandler");
}

void SpellHandler::HandleBeers(std::int32_t selectedTime) try {
    auto& controls = *Vars::ControlHandler;
    if (Vars::EventQueue->running == 0) {  // while the queue works, the waits stand still
        for (std::int32_t& wait : beer_wait_)
            if (wait > 0) --wait;
    }
    const std::string& timer = controls.BeerTimer->Text();
    const double threshold = IsNumeric(timer) ? ToDouble(timer) : kRefillThreshold;
    const std::string& use_timer = controls.BeerUseTimer->Text();
    if (!IsNumeric(use_timer)) return;
    const double use_limit = ToDouble(use_timer);

    const auto& beers = BeerTable();
    LowBeer = kNoBeer;
    for (std::size_t i = 0; i < kBeers; ++i) {
        const bool ticked = (controls.*beers[i].option)->Checked();
        if (ticked && beer_remaining_[i] != 0 && beer_remaining_[i] < LowBeer) LowBeer = beer_remaining_[i];
    }
    const bool warn = controls.ChatOption("Buffs Expiration Warning");
    if (warn && LowBeer == threshold && !controls.UseBeers->Checked()) wtcw("Your beer spells are getting low!");

    // Drinking is held back when the tracked buff is about to run out, or none is tracked.
    if (controls.BeerUseCheck->Checked() && selectedTime < use_limit) return;
    if (!controls.UseBeers->Checked()) return;
    for (std::size_t i = 0; i < kBeers; ++i) {
        const bool ticked = (controls.*beers[i].option)->Checked();
        if (!ticked || beer_remaining_[i] >= threshold || beer_wait_[i] != 0) continue;
        beer_wait_[i] = kWaitPasses;
        AddBeer(std::string(beers[i].item));
    }
} catch (...) {
    ReportFailure("HandleBeers", "SpellHandler");
}

void SpellHandler::AddBeer(const std::string& name) try {
    auto& filter = *Vars::FilterHandler;
    const host::Id beer = filter.GetIDinInv(name);
    if (beer == -1 || beer == 0) return;  // none, or the search has failed
    Vars::EventQueue->Add(EventQueue::kUseStackOnItem, beer, filter.GetMyCharGUID(), filter.GetItemStackCount(beer));
} catch (...) {
    ReportFailure("AddBeer", "SpellHandler");
}

void SpellHandler::DrinkAllBeers() try {
    auto& controls = *Vars::ControlHandler;
    for (const Beer& beer : BeerTable())
        if ((controls.*beer.option)->Checked()) AddBeer(std::string(beer.item));
    Vars::EventQueue->Run();
} catch (...) {
    ReportFailure("DrinkAllBeers", "SpellHandler");
}

}  // namespace ombrel
