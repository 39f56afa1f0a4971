// The canvas of the main, clock, item and status HUDs: keyed lines, in a frame that fits them.
//
// Its owner adds lines and calls frame.DrawHUD; only lines whose text has changed are painted again.
#pragma once

#include <tsl/ordered_map.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "hud/HUDItem.h"
#include "hud/HudFrame.h"

namespace ombrel {

class HUDHandler {
public:
    HUDHandler();
    ~HUDHandler();
    HUDHandler(const HUDHandler&) = delete;
    HUDHandler& operator=(const HUDHandler&) = delete;

    // Adds a line, or gives the line of that key another text. With the text that it has already it is left alone, also
    // when colour, icon or alpha differ.
    void Add(const std::string& strKey, std::string_view strData, std::string_view strColor, std::int32_t lngIcon,
             bool bolNewLine, std::int32_t alpha = 10);
    void Clear();
    std::size_t count() const { return items_.size(); }

    const tsl::ordered_map<std::string, HUDItem>& items() const { return items_; }

    HudFrame frame;

private:
    bool SetHeightbyData();  // whether the size changed
    bool SetWidthbyData();
    void Paint(host::HudView& view, bool Force);

    // Where the next item goes.
    struct Cursor {
        std::int64_t left, top;
    };
    void PaintItem(host::HudView& view, const HUDItem& item, bool touch, Cursor& cursor) const;
    void PaintIcon(host::HudView& view, const HUDItem& item, const host::Rect& rect) const;
    void PaintText(host::HudView& view, const HUDItem& item, const host::Rect& rect, std::int32_t format) const;
    void WriteText(host::HudView& view, const host::Rect& rect, const HUDItem& item, std::int32_t format) const;

    tsl::ordered_map<std::string, HUDItem> items_;
};

}  // namespace ombrel
