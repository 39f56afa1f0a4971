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
constexpr std::int32_t kNarrowest = 20;
constexpr std::int32_t kIconBase = 0x6000000;
constexpr std::int32_t kWeight = 900;
constexpr std::int32_t kLeft = 0;
constexpr std::int32_t kCentred = 1;

std::int32_t Half(std::int32_t value) { return ToLong(value / 2.0); }

}  // namespace

HUDHandler::HUDHandler() : frame(kNames) {
    try {
        wtcw_debug("HUD Handler Init");
        Clear();
        frame.Open({[this] {
                        const bool height = SetHeightbyData();
                        return SetWidthbyData() || height;
                    },
                    [this] { return items_.empty(); }, [this](host::HudView& view, bool all) { Paint(view, all); }});
    } catch (...) {
        ReportFailure("Class_Initialize", "HUDHandler");
    }
}

HUDHandler::~HUDHandler() { wtcw_debug("HUD Handler Terminate"); }

void HUDHandler::Add(const std::string& strKey, std::string_view strData, std::string_view strColor,
                     std::int32_t lngIcon, bool bolNewLine, std::int32_t alpha) try {
    auto item = items_.find(strKey);
    if (item == items_.end())
        item = items_.try_emplace(strKey).first;
    else if (item->second.data == strData)
        return;
    HUDItem& line = item.value();
    line = {std::string(strData), std::string(strColor), alpha, lngIcon, bolNewLine, frame.TextWidth(strData), true};
} catch (...) {
    ReportFailure("Add", "HUDHandler");
}

void HUDHandler::Clear() {
    items_.clear();
    frame.SetSize(kNarrowest, frame.height());
}

// Measuring. A row of cells that a last one ends counts twice in the height, though it is drawn as one.

bool HUDHandler::SetHeightbyData() {
    const std::int32_t font = frame.FontSize();
    const std::int32_t icon = frame.IconSize;
    std::int32_t height = HudFrame::kTitleHeight + 2 * kSpacer;
    bool in_row = false;
    for (const auto& [key, item] : items_) {
        const bool has_icon = item.icon != -1;
        if (item.newline)
            height += has_icon ? std::max(font, icon) + 2 * kSpacer : font + kSpacer;
        else if (!in_row)
            height += has_icon ? icon + 2 * kSpacer + font + kSpacer : font + kSpacer;
        in_row = !item.newline;
    }
    if (frame.Outline) height += 1;
    height += kBorder;
    if (height == frame.height() || height == 0) return false;
    frame.SetSize(frame.width(), height);
    return true;
}

bool HUDHandler::SetWidthbyData() {
    const std::int32_t gap = 2 * frame.SpaceWidth();
    std::int32_t row = 0;
    std::int32_t widest = 0;
    bool clean = true;
    for (const auto& [key, item] : items_) {
        const bool has_icon = item.icon != -1;
        if (item.newline) {
            row += has_icon ? frame.IconSize + kSpacer + item.width + 2 : item.width;
            widest = std::max(widest, row);
            row = 0;
            if (!has_icon) clean = true;
        } else if (has_icon) {
            row += std::max<std::int32_t>(frame.IconSize, item.width + 4) + kSpacer;
        } else {
            row += item.width + gap;
            clean = false;
        }
    }
    if (!clean) row -= gap;
    widest = std::max(widest, row);
    const std::int32_t width = std::max(widest + 2 * kBorder + 2 * kSpacer, kNarrowest);
    if (width == frame.width()) return false;
    frame.SetSize(width, frame.height());
    return true;
}

// Painting.

void HUDHandler::Paint(host::HudView& view, bool Force) {
    Cursor cursor{kBorder + kSpacer, HudFrame::kTitleHeight + 2 * kSpacer + (frame.Outline ? 1 : 0),
                  frame.IconSize + 2 * kSpacer + kSpacer};
    view.BeginText(frame.FontFace(), frame.FontSize(), kWeight, false);
    for (auto item = items_.begin(); item != items_.end(); ++item) {
        const bool touch = Force || item->second.updated;
        PaintItem(view, item->second, touch, cursor);
        item.value().updated = false;
    }
    view.EndText();
}

void HUDHandler::PaintItem(host::HudView& view, const HUDItem& item, bool touch, Cursor& cursor) const {
    const std::int32_t font = frame.FontSize();
    const std::int32_t icon = frame.IconSize;
    const std::int32_t first = kBorder + kSpacer;
    const std::int32_t last = frame.width() - kBorder;
    if (item.icon != -1 && item.newline) {
        // A row of icon and text, both centred in its height.
        const std::int32_t height = std::max(font, icon);
        const std::int32_t icon_top = cursor.top + (height - icon) / 2;
        const host::Rect icon_rect{cursor.left, icon_top, cursor.left + icon, icon_top + icon};
        const std::int32_t text_top = cursor.top + (height - font) / 2;
        cursor.step = height + 2 * kSpacer;
        if (touch) {
            PaintIcon(view, item, icon_rect);
            PaintText(view, item, {icon_rect.right + 3 * kSpacer, text_top, last, text_top + font}, kLeft);
        }
        cursor.left = first;
        cursor.top += cursor.step;
    } else if (item.icon != -1) {
        // A cell: the icon, and its text centred below.
        const std::int32_t cell = std::max(icon, item.width + 4);
        const std::int32_t height = icon + 2 * kSpacer;
        const std::int32_t icon_top = cursor.top + 1 + Half(height - icon);
        const std::int32_t icon_left = cursor.left + Half(cell - icon);
        const std::int32_t text_top = icon_top + icon + kSpacer;
        if (touch) {
            PaintIcon(view, item, {icon_left, icon_top, icon_left + icon, icon_top + icon});
            PaintText(view, item, {cursor.left, text_top, cursor.left + cell, text_top + font}, kCentred);
        }
        cursor.left += cell + kSpacer;
        cursor.step = height + font + kSpacer;
    } else {
        const std::int32_t height = font + kSpacer;
        const std::int32_t right = item.newline ? last : cursor.left + item.width;
        if (touch) PaintText(view, item, {cursor.left, cursor.top, right, cursor.top + height}, kLeft);
        if (item.newline) {
            cursor.top += height;
            cursor.left = first;
        } else {
            cursor.left += item.width + 2 * frame.SpaceWidth();
        }
    }
}

void HUDHandler::PaintIcon(host::HudView& view, const HUDItem& item, const host::Rect& rect) const {
    view.Clear(rect);
    view.Fill(rect, frame.BackgroundColor);
    view.DrawPortalImage(item.icon + kIconBase, rect);
}

// A text is painted on its own cleared rectangle, so a shorter one leaves no trace.
void HUDHandler::PaintText(host::HudView& view, const HUDItem& item, const host::Rect& rect,
                           std::int32_t format) const {
    view.Clear(rect);
    view.Fill(rect, frame.BackgroundColor);
    frame.WriteText(view, rect, ConvertColor(item.color, item.alpha), GetHUDOutlineColor(item.color), format,
                    item.data);
}

}  // namespace ombrel
