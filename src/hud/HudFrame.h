// What every HUD is around its content: a surface over the 3D area with a place, docking, a frame, and a title bar that
// fades in under the mouse.
//
// The canvas that holds a frame says how large its content is and paints it; the frame calls on it when something has
// to be drawn. Once a surface can't be made (Vars::HudFailed) every drawing operation of every HUD does nothing.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "core/Ref.h"
#include "host/RenderService.h"
#include "host/Timer.h"
#include "host/Types.h"

namespace ombrel {

class HudFrame {
public:
    // What a canvas calls itself: in reports, in its debug lines, and for the name of its timer.
    struct Names {
        std::string_view object;
        std::string_view timer;
        std::string_view create, resize, move, click, lost;
        // Further lines while the surface is made, and after a resize; empty for none.
        std::string_view dropped = {}, created = {}, resized = {};
    };

    // What the frame asks of its canvas.
    struct Content {
        std::function<bool()> fit;    // takes the content's size into width and height; whether it changed
        std::function<bool()> empty;  // nothing to show: the frame is clear then
        // Paints the content; `all` of it, or what has changed. A failure keeps what was painted before it.
        std::function<void(host::HudView& view, bool all)> paint;
        // A font has been set: takes the size that goes with it; whether it changed. Nothing where only `fit` sizes.
        std::function<bool()> measure = {};
        // With nothing to show the frame is clear in full fade too, and the title bar doesn't fade in.
        bool bare_when_empty = false;
    };

    static constexpr std::int32_t kTitleHeight = 14;
    static constexpr std::int32_t kBorder = 2;
    static constexpr std::int32_t kSpacer = 1;
    static constexpr std::int32_t kFullFade = 10;

    explicit HudFrame(const Names& names);
    ~HudFrame();
    HudFrame(const HudFrame&) = delete;
    HudFrame& operator=(const HudFrame&) = delete;

    // Takes the render service and makes the surface. Call it once the content is ready to be asked.
    void Open(Content content);

    // Moves the HUD. With checkDock the new place decides whether it sticks to the bottom and to the right of the 3D
    // area.
    void SetPos(std::int32_t x, std::int32_t y, bool checkDock);
    void UpdatePos();  // the 3D area has changed
    void SetX(std::int32_t x) { SetPos(x, y_, false); }
    void SetY(std::int32_t y) { SetPos(x_, y, false); }

    void SetEnabled(bool enabled);
    void HudOn() { SetEnabled(true); }
    void HUDOff();

    // Draws what has changed; everything anew when the size changes or Force is set.
    void DrawHUD(bool Force = false);
    void ResizeHUD();  // destroys and makes the surface again
    void DeviceLost();

    // The mouse is over the HUD, or has left it. During a drag nothing changes.
    void SetWithinCanvas(bool within);
    void SetFade(std::int32_t level);

    // Whether a point of the game window lies inside, all four edges left out.
    bool WithinHUD(std::int32_t x, std::int32_t y) const;
    // What of the title bar a point hits: 0 the bar, 1 the "X", 2 the "O", -1 nothing of it.
    std::int32_t ClickHUD(std::int32_t x, std::int32_t y) const;

    void SetTitle(std::string_view title);
    void SetFontFace(const std::string& face);
    void SetFontSize(std::int32_t pixels);
    void SetSize(std::int32_t width, std::int32_t height);  // without moving or drawing

    // Ends what was begun on the surface, after drawing that failed.
    void CloseRender() noexcept;

    std::int32_t TextWidth(std::string_view text) const;
    // Draws text in its colour, around it the outline if the player wants one.
    void WriteText(host::HudView& view, const host::Rect& rect, std::int32_t color, std::int32_t outline_color,
                   std::int32_t format, std::string_view text) const;

    const std::string& title() const { return title_; }
    std::int32_t x() const { return x_; }
    std::int32_t y() const { return y_; }
    std::int32_t width() const { return width_; }
    std::int32_t height() const { return height_; }
    const host::Rect& rect() const { return rect_; }
    bool Enabled() const { return enabled_; }
    bool WithinCanvas() const { return within_; }
    std::int32_t Fade() const { return fade_; }
    const std::string& FontFace() const { return font_face_; }
    std::int32_t FontSize() const { return font_size_; }
    std::int32_t SpaceWidth() const { return space_width_; }
    host::HudView* view() const { return view_.get(); }

    bool DrawTitle = true;
    bool Outline = false;
    bool DockVert = false;
    bool DockHorz = false;
    bool OnCanvas = false;  // it is being dragged
    std::int16_t IconSize = 16;
    std::int32_t BackgroundColor;  // 0xAARRGGBB

private:
    void ComputeDimensions();
    void MoveHUD();
    void CreateHUD();
    void OutputHud(bool Force);
    void TellOf(std::string_view line) const;
    void FontSet();
    void PaintFrame(host::HudView& view);
    void PaintTitle(host::HudView& view);
    void FadeTimer_Timeout();
    bool HasNoContent() const { return content_.empty && content_.empty(); }

    Names names_;
    Content content_;
    Owned<host::RenderService> service_;
    Owned<host::HudView> view_;
    Owned<host::Font> font_;
    Owned<host::Timer> fade_timer_;
    std::string title_;
    std::string font_face_ = "Arial";
    std::int32_t font_size_ = 16;
    std::int32_t title_width_ = 0;
    std::int32_t space_width_ = 0;
    std::int32_t x_ = 5;
    std::int32_t y_ = 100;
    std::int32_t width_ = 200;
    std::int32_t height_ = 200;
    host::Rect rect_;
    host::Rect relative_;
    bool enabled_ = false;
    bool within_ = false;
    bool fading_in_ = false;
    bool all_due_ = false;  // everything is to be painted, since the surface is new
    std::int32_t fade_ = 0;
};

}  // namespace ombrel
