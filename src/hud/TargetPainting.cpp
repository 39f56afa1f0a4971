// How the target's card comes onto its surface.

#include <fmt/format.h>

#include <algorithm>

#include "core/Hub.h"
#include "core/convert.h"
#include "hud/HudHandlerT.h"

namespace ombrel {
namespace {

constexpr std::int32_t kSpacer = HudFrame::kSpacer;
constexpr std::int32_t kBorder = HudFrame::kBorder;
constexpr std::int32_t kTitleHeight = HudFrame::kTitleHeight;
constexpr std::int32_t kIconBase = 0x6000000;
constexpr std::int32_t kWeight = 900;
constexpr std::int32_t kLeft = 0;
constexpr std::int32_t kCentred = 1;
constexpr std::int32_t kOpaque = 10;
constexpr std::int32_t kDarkRed = -8978432;  // 0xFF770000
constexpr std::string_view kWhite = "White";

// Parts of a card in reports, behind those that are read.
constexpr std::size_t kFirstRowPart = target::TargetCard::kParts;

void ClearAndFill(host::HudView& view, const host::Rect& rect, std::int32_t color) {
    view.Clear(rect);
    view.Fill(rect, color);
}

}  // namespace

// Places.

// In the midst of the first row, as far as the title bar lets it.
host::Rect HudHandlerT::IconRect() const {
    const std::int32_t left = kBorder + kSpacer;
    const std::int32_t lower = ToLong(RoundDown((TextHeight() - frame.IconSize) / 2.0));
    const std::int32_t top = std::max(kTitleHeight, kTitleHeight + kSpacer + lower);
    return {left, top, left + frame.IconSize, top + frame.IconSize};
}

// Rows beside the icon begin behind it: the name, and with a small font the row below.
host::Rect HudHandlerT::RowRect(std::size_t row) const {
    const std::int32_t height = TextHeight() + kSpacer;
    const std::int32_t top = kTitleHeight + kSpacer + static_cast<std::int32_t>(row) * height;
    const host::Rect icon = IconRect();
    const std::int32_t left = top < icon.bottom ? icon.right + 3 * kSpacer : icon.left;
    return {left, top, frame.width() - kBorder, top + height};
}

// The debuffs stand at the bottom: icons, and below each its minutes.
host::Rect HudHandlerT::StripRect() const {
    const std::int32_t bottom = frame.height() - kBorder;
    return {kBorder, bottom - TextHeight() - kSpacer - frame.IconSize, frame.width() - kBorder, bottom};
}

// Painting.

bool HudHandlerT::IsEmpty(const Strip& strip) {
    return std::ranges::all_of(strip, [](const Cell& cell) { return cell.minutes == 0; });
}

void HudHandlerT::Paint(host::HudView& view, bool all, std::string_view procedure) {
    const bool empty_strip = IsEmpty(strip_);
    const bool ground = all || empty_strip != IsEmpty(painted_strip_);
    const auto attempt = [&](std::size_t part, const auto& paint) {
        try {
            paint();
        } catch (...) {
            reports_.Report(part, procedure);
        }
    };
    view.BeginText(frame.FontFace(), frame.FontSize(), kWeight, false);
    if (ground) {
        PaintGround(view);
        painted_rows_.fill({});
        painted_strip_.fill({});
    }
    bool strip = strip_due_ || strip_ != painted_strip_;
    for (std::size_t i = 0; i < kRows; ++i) {
        if (rows_[i] == painted_rows_[i]) continue;
        strip |= !empty_strip;
        attempt(kFirstRowPart + i, [&] {
            PaintRow(view, rows_[i], RowRect(i));
            painted_rows_[i] = rows_[i];
        });
    }
    if (strip) {
        attempt(kFirstRowPart + kRows, [&] {
            PaintStrip(view);
            painted_strip_ = strip_;
            strip_due_ = false;
        });
    }
    view.EndText();
}

// Without a target nothing is seen of the card.
void HudHandlerT::PaintGround(host::HudView& view) const {
    const host::Rect inside{kBorder, kTitleHeight, frame.width() - kBorder, frame.height() - kBorder};
    ClearAndFill(view, inside, object_ ? frame.BackgroundColor : ConvertColor("Black", 0));
}

void HudHandlerT::PaintRow(host::HudView& view, const Row& row, const host::Rect& rect) const {
    ClearAndFill(view, rect, frame.BackgroundColor);
    if (row.kind == Row::Kind::kHealth) return PaintHealth(view, row, rect);
    if (row.kind == Row::Kind::kName) {
        ClearAndFill(view, IconRect(), frame.BackgroundColor);
        if (row.number != 0) view.DrawPortalImage(row.number + kIconBase, IconRect());
    }
    if (row.text.empty()) return;
    frame.WriteText(view, rect, ConvertColor(FontColor, kOpaque), GetHUDOutlineColor(FontColor),
                    row.kind == Row::Kind::kCentred ? kCentred : kLeft, row.text);
}

void HudHandlerT::PaintHealth(host::HudView& view, const Row& row, const host::Rect& rect) const {
    const host::Rect inside{rect.left + 1, rect.top + 1, rect.right - 1, rect.bottom - 1};
    view.Fill(rect, ConvertColor(kWhite, kOpaque));
    view.Fill(inside, kDarkRed);
    if (const std::int32_t right = rect.left + row.number; right > inside.left)
        view.Fill({inside.left, inside.top, right, inside.bottom}, ConvertColor("Red", kOpaque));
    if (row.text.empty()) return;
    frame.WriteText(view, rect, ConvertColor(kWhite, kOpaque), GetHUDOutlineColor(kWhite), kCentred, row.text);
}

// Every cell is as wide as the widest needs, so that each family keeps its place.
void HudHandlerT::PaintStrip(host::HudView& view) const {
    const host::Rect strip = StripRect();
    ClearAndFill(view, strip, frame.BackgroundColor);
    if (IsEmpty(strip_)) return;

    std::int32_t width = frame.IconSize;
    for (const Cell& cell : strip_) {
        if (cell.minutes != 0) width = std::max(width, frame.TextWidth(NumberText(cell.minutes)));
    }
    const std::int32_t text_top = strip.top + frame.IconSize + kSpacer;
    std::int32_t left = strip.left + kSpacer;
    for (const Cell& cell : strip_) {
        if (cell.minutes != 0) {
            const std::int32_t icon_left = left + (width - frame.IconSize) / 2;
            if (cell.icon != 0)
                view.DrawPortalImage(cell.icon,
                                     {icon_left, strip.top, icon_left + frame.IconSize, strip.top + frame.IconSize});
            frame.WriteText(view, {left, text_top, left + width, text_top + TextHeight()},
                            ConvertColor(kWhite, kOpaque), GetHUDOutlineColor(kWhite), kCentred,
                            NumberText(cell.minutes));
        }
        left += width + kSpacer;
    }
}

}  // namespace ombrel
