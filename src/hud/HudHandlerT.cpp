#include "hud/HudHandlerT.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"
#include "core/time.h"
#include "spells/SpellFilterHandler.h"
#include "stats/NetEchoHandler.h"

namespace ombrel {
namespace {

constexpr HudFrame::Names kNames{.object = "HudHandlerT",
                                 .timer = "HudHandlerT.FadeTimer",
                                 .create = "CreateHUDT1 ",
                                 .resize = "ResizeHUDT ",
                                 .move = "MoveHUDT ",
                                 .click = "ClickHUDT ",
                                 .lost = "DeviceLost ",
                                 .dropped = "CreateHUDT2 ",
                                 .created = "CreateHUDT3 ",
                                 .resized = "ResizeHUDTEnd "};

// The card is as wide as a long row of a weapon's figures; once a font is chosen, of a weapon with one figure more.
constexpr std::string_view kFirstMeasure = "99.99-99, 99 99 9.9, Wk 9, Tk 10";
constexpr std::string_view kMeasure = "99.99-99, 99 99 9.9 9.9, Wk 10, Tk 10";
constexpr std::int32_t kNarrowest = 160;

constexpr std::string_view kWaiting = "[Waiting for ID]";
constexpr double kMinute = 60.0;

// The families that the strip shows, in its order.
constexpr std::array<std::int32_t, 8> kFamilies{
    38,   // magic defence
    116,  // armour
    114,  // blades
    112,  // piercing
    110,  // fire
    106,  // cold
    108,  // lightning
    102,  // acid
};

}  // namespace

HudHandlerT::HudHandlerT() : frame(kNames) {
    static_assert(kFamilies.size() == kCells);
    try {
        wtcw_debug("HUD Handler Init");
        frame.Open({.fit = [] { return false; },
                    .empty = [this] { return object_ == nullptr; },
                    .paint =
                        [this](host::HudView& view, bool all) {
                            if (!object_ && !all && painted_rows_ == CardRows{}) return;  // clear already
                            ReadObject();
                            UpdateHealth(false);
                            UpdateDebuffs(false);
                            Paint(view, true, "OutputHud");
                        },
                    .measure = [this] { return Measure(); },
                    .bare_when_empty = true});
    } catch (...) {
        ReportFailure("Class_Initialize", "HudHandlerT");
    }
}

HudHandlerT::~HudHandlerT() { wtcw_debug("HUD Handler Terminate"); }

bool HudHandlerT::Measure() {
    const std::int32_t width = std::max(frame.TextWidth(measured_ ? kMeasure : kFirstMeasure), kNarrowest);
    const std::int32_t row = TextHeight() + HudFrame::kSpacer;
    const std::int32_t height =
        HudFrame::kTitleHeight + HudFrame::kSpacer + HudFrame::kBorder + static_cast<std::int32_t>(kRows) * row;
    measured_ = true;
    if (width == frame.width() && height == frame.height()) return false;
    frame.SetSize(width, height);
    return true;
}

// A hand-edited settings file may ask for any size; the card grows to more than a screen and no further.
std::int32_t HudHandlerT::TextHeight() const { return std::clamp(frame.FontSize(), 0, 10'000); }

bool HudHandlerT::CanDraw() const { return !Vars::HudFailed && frame.Enabled() && frame.view(); }

// Draws outside of an output, with a beginning and an end of its own, if there is anything to draw.
void HudHandlerT::DrawAlone(std::string_view procedure) {
    if (!strip_due_ && rows_ == painted_rows_ && strip_ == painted_strip_) return;
    host::HudView& view = *frame.view();
    view.BeginRender(false);
    try {
        Paint(view, false, procedure);
    } catch (...) {
        frame.CloseRender();
        throw;
    }
    view.EndRender();
}

// The object.

void HudHandlerT::SetObject(host::WorldObjectPtr object) try {
    object_ = std::move(object);
    stale_ = true;
    health_told_ = false;
    const host::Id before = std::exchange(object_id_, 0);
    if (object_) object_id_ = object_->GUID();
    if (object_id_ != before) reports_.Clear();
    frame.DrawHUD(false);
} catch (...) {
    ReportFailure("Object", "HudHandlerT");
}

void HudHandlerT::Refresh() {
    stale_ = true;
    frame.DrawHUD(false);
}

void HudHandlerT::ReadObject() {
    if (stale_ && object_) card_.Read(*object_, &reports_);
    stale_ = false;
}

void HudHandlerT::ArrangeRows(const target::TargetCard& card, CardRows& rows) const {
    std::size_t used = 0;
    const auto add = [&](Row::Kind kind, std::string_view text, std::int32_t number = 0) {
        if (used == rows.size()) return;
        Row& row = rows[used++];
        row.kind = kind;
        row.text = text;
        row.number = number;
    };
    if (object_) {
        add(Row::Kind::kName, card.name, card.icon);
        if (health_told_ || (card.health && !card.waiting)) rows[used++] = HealthRow(RowRect(1));
        if (card.waiting) add(Row::Kind::kCentred, kWaiting);
        for (const std::string& text : card.rows) add(Row::Kind::kText, text);
    }
    while (used < rows.size()) add(Row::Kind::kEmpty, {});
}

std::vector<std::string> HudHandlerT::Rows() const {
    std::vector<std::string> texts;
    CardRows rows = rows_;
    if (stale_ || !CanDraw()) {
        target::TargetCard card;
        if (object_) card.Read(*object_, nullptr);
        ArrangeRows(card, rows);
    }
    for (Row& row : rows) {
        if (!row.text.empty()) texts.push_back(std::move(row.text));
    }
    return texts;
}

// Health.

void HudHandlerT::UpdateHealth(bool drawAlone) try {
    if (drawAlone && object_) health_told_ = true;
    if (drawAlone && !CanDraw()) return;
    ReadObject();
    ArrangeRows(card_, rows_);
    if (!drawAlone) return;
    for (Row& row : painted_rows_) {
        if (row.kind == Row::Kind::kHealth) row = {};
    }
    DrawAlone("UpdateHealth");
} catch (...) {
    ReportFailure("UpdateHealth", "HudHandlerT");
}

HudHandlerT::Row HudHandlerT::HealthRow(const host::Rect& rect) const {
    const NetEchoHandler& server = *Vars::NetEchoHandler;
    const double ratio = server.TargetHealthRatio > 0 ? std::min(server.TargetHealthRatio, 1.0) : 0.0;
    Row row;
    row.kind = Row::Kind::kHealth;
    if (server.TargetHealthMax != 0) row.text = fmt::format("{} / {}", server.TargetHealth, server.TargetHealthMax);
    row.number = ToLong(RoundUp((rect.right - rect.left - 1) * ratio));
    return row;
}

// Debuffs.

void HudHandlerT::AddDebuff(host::Id objectId, std::int32_t spellId) try {
    auto& table = *Vars::SpellFilterHandler;
    auto spell = std::make_shared<SpellInfo>();
    spell->spellid = spellId;
    spell->family = table.GetFamily(spellId);
    spell->timeRemaining = table.GetDuration(spellId);
    spell->finish = ToLong(static_cast<double>(NowUnix()) + spell->timeRemaining);
    spell->difficulty = table.GetDifficulty(spellId);
    spell->lngIcon = table.GetIcon(spellId);
    spell->Name = table.GetName(spellId);
    spell->sTarget = NumberText(objectId);
    const std::int32_t family = spell->family;
    if (Vars::DebugMode) wtcw_debug(fmt::format("AddSpell {} {} {}", objectId, spellId, family));
    debuffs_[objectId].AddSpell(family, std::move(spell));
    UpdateDebuffs(true);
} catch (...) {
    ReportFailure("AddDebuff", "HudHandlerT");
}

void HudHandlerT::RemoveDebuff(host::Id objectId) try { debuffs_.erase(objectId); } catch (...) {
    ReportFailure("RemoveDebuff", "HudHandlerT");
}

void HudHandlerT::RemoveDebuffSpell(host::Id objectId, std::int32_t family) try {
    if (Vars::DebugMode) wtcw_debug(fmt::format("RemoveDebuffSpell {} {}", objectId, family));
    if (auto creature = debuffs_.find(objectId); creature != debuffs_.end()) creature.value().RemoveSpell(family);
} catch (...) {
    ReportFailure("RemoveDebuffSpell", "HudHandlerT");
}

void HudHandlerT::UpdateDebuffs(bool drawAlone) try {
    CountDown();
    ArrangeStrip();
    if (!drawAlone || !CanDraw()) return;
    ReadObject();
    ArrangeRows(card_, rows_);
    strip_due_ = !IsEmpty(strip_);
    DrawAlone("UpdateDebuffs");
} catch (...) {
    ReportFailure("UpdateDebuffs", "HudHandlerT");
}

void HudHandlerT::CountDown() {
    const std::int32_t now = NowUnix();
    std::vector<std::pair<host::Id, std::int32_t>> over;
    for (const auto& [creature, spells] : debuffs_) {
        for (const auto& [family, spell] : spells.Spells) {
            spell->timeRemaining = ToLong(static_cast<double>(spell->finish) - now);
            if (spell->timeRemaining < 1) over.emplace_back(creature, family);
        }
    }
    for (const auto& [creature, family] : over) {
        RemoveDebuffSpell(creature, family);
        if (const auto left = debuffs_.find(creature); left != debuffs_.end() && left->second.Spells.empty())
            debuffs_.erase(left);
    }
}

void HudHandlerT::ArrangeStrip() {
    strip_.fill({});
    if (!object_) return;
    const auto on_object = debuffs_.find(object_id_);
    if (on_object == debuffs_.end()) return;
    for (std::size_t i = 0; i < kCells; ++i) {
        if (const SpellInfoPtr spell = on_object->second.GetSpell(kFamilies[i]))
            strip_[i] = {spell->lngIcon, ToLong(RoundUp(spell->timeRemaining / kMinute))};
    }
}

}  // namespace ombrel
