// The canvas of the target HUD: a card of one object, with its health and the debuffs on it.
//
// The card has a fixed size of six rows. What it shows is put together as text first. An output paints all of it;
// between two outputs the health and the debuffs are painted alone, with the rows that they move.
#pragma once

#include <tsl/ordered_map.h>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/World.h"
#include "hud/HudFrame.h"
#include "hud/TargetCard.h"
#include "spells/SpellItemInfo.h"

namespace ombrel {

class HudHandlerT {
public:
    HudHandlerT();
    ~HudHandlerT();
    HudHandlerT(const HudHandlerT&) = delete;
    HudHandlerT& operator=(const HudHandlerT&) = delete;

    void SetObject(host::WorldObjectPtr object);  // nothing for none
    const host::WorldObjectPtr& Object() const { return object_; }

    // The object may have changed: reads it anew, and draws it.
    void Refresh();

    // What the server tells of the object's health. drawAlone draws it at once, else the next output does.
    void UpdateHealth(bool drawAlone);

    // Debuffs that the player has put on creatures, each with the time that its spell lasts.
    void AddDebuff(host::Id objectId, std::int32_t spellId);
    void RemoveDebuff(host::Id objectId);  // the creature is gone
    void RemoveDebuffSpell(host::Id objectId, std::int32_t family);
    void UpdateDebuffs(bool drawAlone);  // counts down for every creature, also while another is on show
    const tsl::ordered_map<host::Id, SpellItemInfo>& debuffs() const { return debuffs_; }

    // The texts of the card, the name first.
    std::vector<std::string> Rows() const;

    std::string FontColor = "White";
    HudFrame frame;

private:
    static constexpr std::size_t kRows = 6;

    // A row of the card as it is painted.
    struct Row {
        enum class Kind { kEmpty, kName, kText, kCentred, kHealth };
        Kind kind = Kind::kEmpty;
        std::string text;
        std::int32_t number = 0;  // of the name its icon, of the health bar how far the red goes

        friend bool operator==(const Row&, const Row&) = default;
    };
    using CardRows = std::array<Row, kRows>;

    // A place of the debuff strip; without minutes it is empty.
    struct Cell {
        std::int32_t icon = 0;
        std::int32_t minutes = 0;

        friend bool operator==(const Cell&, const Cell&) = default;
    };
    static constexpr std::size_t kCells = 8;
    using Strip = std::array<Cell, kCells>;
    static bool IsEmpty(const Strip& strip);

    bool Measure();
    std::int32_t TextHeight() const;
    bool CanDraw() const;
    void DrawAlone(std::string_view procedure);

    // What the card is to show.
    void ReadObject();
    void ArrangeRows(const target::TargetCard& card, CardRows& rows) const;
    void ArrangeStrip();
    Row HealthRow(const host::Rect& rect) const;
    void CountDown();

    // Painting, in TargetPainting.cpp.
    void Paint(host::HudView& view, bool all, std::string_view procedure);
    void PaintGround(host::HudView& view) const;
    void PaintRow(host::HudView& view, const Row& row, const host::Rect& rect) const;
    void PaintHealth(host::HudView& view, const Row& row, const host::Rect& rect) const;
    void PaintStrip(host::HudView& view) const;
    host::Rect RowRect(std::size_t row) const;
    host::Rect IconRect() const;
    host::Rect StripRect() const;

    host::WorldObjectPtr object_;
    host::Id object_id_ = 0;
    bool stale_ = false;        // the object is to be read anew
    bool health_told_ = false;  // the server has told of the health of this object
    target::TargetCard card_;
    target::ReportOnce reports_;
    tsl::ordered_map<host::Id, SpellItemInfo> debuffs_;
    bool measured_ = false;

    CardRows rows_;
    Strip strip_;
    CardRows painted_rows_;
    Strip painted_strip_;
    bool strip_due_ = false;  // the strip is to be painted although it looks the same
};

}  // namespace ombrel
