#include "hud/HUDHandler.h"

#include <algorithm>

#include "core/Hub.h"
#include "core/convert.h"
#include "core/failure.h"

namespace ombrel {
namespace {

constexpr HudFrame::Names kNames{"HUDHandler", "HUDHandler.FadeTimer", "CreateHUD ", "ResizeHUD ", "MoveHUD ",
                                 "ClickHUD ",  "DeviceLost "};
constexpr std::int32_t kSpacer = HudFrame::kSpacer;
constexpr std::int32_t kBorder = HudFrame::kBorder;
constexpr std::int32_t kFirst = kBorder + kSpacer;  // where rows begin
constexpr std::int32_t kNarrowest = 20;
constexpr std::int32_t kNoIcon = -1;
constexpr std::int32_t kIconBase = 0x6000000;
constexpr std::int32_t kWeight = 900;
constexpr std::int32_t kLeft = 0;
constexpr std::int32_t kCentred = 1;

// Far outside of every screen, with room to move by a pixel.
constexpr std::int64_t kFar = 1'000'000'000;

std::int32_t Near(std::int64_t value) { return static_cast<std::int32_t>(std::clamp(value, -kFar, kFar)); }

host::Rect MakeRect(std::int64_t left, std::int64_t top, std::int64_t right, std::int64_t bottom) {
    return {Near(left), Near(top), Near(right), Near(bottom)};
}

std::int64_t Rounded(double value) { return static_cast<std::int64_t>(Round(value)); }

}  // namespace

HUDHandler::HUDHandler() : frame(kNames) {
    try {
        wtcw_debug("HUD Handler Init");
        frame.Open({[this] {
                        const bool height = SetHeightbyData();
                        return SetWidthbyData() || height;
                    },
                    [this] { return items_.empty(); }, [this](host::HudView& view, bool all) { Paint(view, all); }});
        Clear();
    } catch (...) {
        ReportFailure("Class_Initialize", "HUDHandler");
    }
}

HUDHandler::~HUDHandler() { wtcw_debug("HUD Handler Terminate"); }

void HUDHandler::Add(const std::string& strKey, std::string_view strData, std::string_view strColor,
                     std::int32_t lngIcon, bool bolNewLine, std::int32_t alpha) try {
    auto item = items_.find(strKey);
    if (item != items_.end() && item->second.data == strData) return;
    const std::int32_t width = frame.TextWidth(strData);
    if (item == items_.end()) item = items_.try_emplace(strKey).first;
    HUDItem& line = item.value();
    line.data = strData;
    line.color = strColor;
    line.alpha = alpha;
    line.icon = lngIcon;
    line.newline = bolNewLine;
    line.width = width;
    line.updated = true;
} catch (...) {
    ReportFailure("Add", "HUDHandler");
}

void HUDHandler::Clear() {
    items_.clear();
    frame.SetSize(kNarrowest, frame.height());
}

// Measuring. A row of cells that a last one ends counts twice in the height, though it is drawn as one.

bool HUDHandler::SetHeightbyData() try {
    const std::int64_t font = frame.FontSize();
    const std::int64_t icon = frame.IconSize;
    std::int64_t height = HudFrame::kTitleHeight + 2 * kSpacer;
    bool in_row = false;
    for (const auto& [key, item] : items_) {
        const bool has_icon = item.icon != kNoIcon;
        if (item.newline)
            height += has_icon ? std::max(font, icon) + 2 * kSpacer : font + kSpacer;
        else if (!in_row)
            height += has_icon ? icon + 2 * kSpacer + font + kSpacer : font + kSpacer;
        in_row = !item.newline;
    }
    if (frame.Outline) height += 1;
    height += kBorder;
    if (height == frame.height() || height == 0) return false;
    frame.SetSize(frame.width(), ToLong(static_cast<double>(height)));
    return true;
} catch (...) {
    ReportFailure("SetHeightbyData", "HUDHandler");
    return false;
}

bool HUDHandler::SetWidthbyData() try {
    const std::int64_t gap = 2 * std::int64_t{frame.SpaceWidth()};
    std::int64_t row = 0;
    std::int64_t widest = 0;
    bool clean = true;
    for (const auto& [key, item] : items_) {
        const std::int64_t text = item.width;
        const bool has_icon = item.icon != kNoIcon;
        if (item.newline) {
            row += has_icon ? frame.IconSize + kSpacer + text + 2 : text;
            widest = std::max(widest, row);
            row = 0;
            if (!has_icon) clean = true;
        } else if (has_icon) {
            row += std::max<std::int64_t>(frame.IconSize, text + 4) + kSpacer;
        } else {
            row += text + gap;
            clean = false;
        }
    }
    if (!clean) row -= gap;
    widest = std::max(widest, row);
    const std::int64_t width = std::max<std::int64_t>(widest + 2 * kBorder + 2 * kSpacer, kNarrowest);
    if (width == frame.width()) return false;
    frame.SetSize(ToLong(static_cast<double>(width)), frame.height());
    return true;
} catch (...) {
    ReportFailure("SetWidthbyData", "HUDHandler");
    return false;
}

// Painting.

void HUDHandler::Paint(host::HudView& view, bool Force) {
    Cursor cursor{kFirst, HudFrame::kTitleHeight + 2 * kSpacer + (frame.Outline ? 1 : 0)};
    view.BeginText(frame.FontFace(), frame.FontSize(), kWeight, false);
    for (auto item = items_.begin(); item != items_.end(); ++item) {
        const bool touch = Force || item->second.updated;
        PaintItem(view, item->second, touch, cursor);
        item.value().updated = false;
    }
    view.EndText();
}

void HUDHandler::PaintItem(host::HudView& view, const HUDItem& item, bool touch, Cursor& cursor) const {
    const std::int64_t font = frame.FontSize();
    const std::int64_t icon = frame.IconSize;
    const std::int64_t last = frame.width() - kBorder;
    if (item.icon != kNoIcon && item.newline) {
        // A row of icon and text, both in the middle of its height.
        const std::int64_t height = std::max(font, icon);
        const std::int64_t icon_top = cursor.top + (height - icon) / 2;
        const std::int64_t text_left = cursor.left + icon + 3 * kSpacer;
        const std::int64_t text_top = cursor.top + (height - font) / 2;
        if (touch) {
            PaintIcon(view, item, MakeRect(cursor.left, icon_top, cursor.left + icon, icon_top + icon));
            PaintText(view, item, MakeRect(text_left, text_top, last, text_top + font), kLeft);
        }
        cursor.left = kFirst;
        cursor.top += height + 2 * kSpacer;
    } else if (item.icon != kNoIcon) {
        // A cell: the icon, and its text centred below.
        const std::int64_t cell = std::max(icon, std::int64_t{item.width} + 4);
        const std::int64_t icon_top = cursor.top + 1 + kSpacer;
        const std::int64_t icon_left = Rounded(static_cast<double>(cursor.left) + static_cast<double>(cell - icon) / 2);
        const std::int64_t text_top = icon_top + icon + kSpacer;
        if (touch) {
            PaintIcon(view, item, MakeRect(icon_left, icon_top, icon_left + icon, icon_top + icon));
            PaintText(view, item, MakeRect(cursor.left, text_top, cursor.left + cell, text_top + font), kCentred);
        }
        cursor.left += cell + kSpacer;
    } else {
        const std::int64_t height = font + kSpacer;
        const std::int64_t right = item.newline ? last : cursor.left + item.width;
        if (touch) PaintText(view, item, MakeRect(cursor.left, cursor.top, right, cursor.top + height), kLeft);
        if (item.newline) {
            cursor.top += height;
            cursor.left = kFirst;
        } else {
            cursor.left += item.width + 2 * std::int64_t{frame.SpaceWidth()};
        }
    }
}

void HUDHandler::PaintIcon(host::HudView& view, const HUDItem& item, const host::Rect& rect) const {
    view.Clear(rect);
    view.Fill(rect, frame.BackgroundColor);
    view.DrawPortalImage(static_cast<std::int32_t>(std::uint32_t{kIconBase} + static_cast<std::uint32_t>(item.icon)),
                         rect);
}

// A text is painted on its own cleared rectangle, so a shorter one leaves no trace.
void HUDHandler::PaintText(host::HudView& view, const HUDItem& item, const host::Rect& rect,
                           std::int32_t format) const {
    view.Clear(rect);
    view.Fill(rect, frame.BackgroundColor);
    WriteText(view, rect, item, format);
}

// A text that fails leaves the rest of the HUD to be drawn.
void HUDHandler::WriteText(host::HudView& view, const host::Rect& rect, const HUDItem& item, std::int32_t format) const
    try {
    frame.WriteText(view, rect, ConvertColor(item.color, item.alpha), GetHUDOutlineColor(item.color), format,
                    item.data);
} catch (...) {
    ReportFailure("WriteText", "HUDHandler");
}

}  // namespace ombrel
