#include "adapters/sim/draw/HudScreen.h"

#include <cairo.h>

#include <algorithm>
#include <optional>
#include <string_view>

#include "adapters/sim/draw/HudText.h"
#include "adapters/sim/draw/Landscape.h"
#include "adapters/sim/draw/PortalImage.h"

namespace ombrel::sim {
namespace {

constexpr std::int32_t kBold = 600;
constexpr std::int32_t kCentred = 1;

// Surfaces are as large as a screen at most: what is wider is cut.
constexpr std::int32_t kLargest = 4096;

// Any rectangle may come; what lies far outside of every surface need not be told apart.
host::Rect Within(const host::Rect& rect) {
    const auto near = [](std::int32_t place) { return std::clamp(place, -4 * kLargest, 4 * kLargest); };
    return {near(rect.left), near(rect.top), near(rect.right), near(rect.bottom)};
}

std::int32_t Size(std::int32_t low, std::int32_t high) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(std::int64_t{high} - low, 1, kLargest));
}

}  // namespace

// A surface. As with the real one, nothing is drawn but between the beginning and the end of a rendering, and no text
// but between those of its text.
class HudScreen::View final : public host::HudView {
public:
    View(HudScreen& screen, const host::Rect& region)
        : screen_(&screen),
          region_(region),
          picture_(Size(region.left, region.right), Size(region.top, region.bottom)),
          pen_(picture_.Pen()) {
        screen.views_.push_back(this);
    }
    ~View() override { Leave(); }
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    void BeginRender(bool) override { rendering_ = true; }

    void Clear(const host::Rect& rect) override { Set(Within(rect), 0); }
    void Fill(const host::Rect& rect, std::int32_t color) override {
        Set(Within(rect), static_cast<std::uint32_t>(color));
    }

    void BeginText(std::string_view face, std::int32_t height, std::int32_t weight, bool italic) override {
        font_ = HudFont{std::string(face), height, weight >= kBold, italic};
    }
    void DrawText(const host::Rect& rect, std::int32_t color, std::int32_t format, std::string_view text) override {
        if (!rendering_ || !font_) return;
        DrawHudText(pen_.get(), Within(rect), text, *font_, format == kCentred ? HudAlign::kCentred : HudAlign::kLeft,
                    static_cast<std::uint32_t>(color));
    }
    void DrawPortalImage(std::int32_t image, const host::Rect& rect) override {
        if (rendering_) sim::DrawPortalImage(pen_.get(), image, Within(rect));
    }
    void EndText() override { font_.reset(); }
    void EndRender() override { rendering_ = false; }

    void SetRegion(const host::Rect& rect) override { region_ = rect; }
    void SetEnabled(bool enabled) override { enabled_ = enabled; }

    void Leave() {
        if (screen_) std::erase(screen_->views_, this);
        screen_ = nullptr;
    }
    void Forget() { screen_ = nullptr; }

    // A lost device takes what was drawn with it.
    void Lose() {
        cairo_save(pen_.get());
        cairo_set_operator(pen_.get(), CAIRO_OPERATOR_CLEAR);
        cairo_paint(pen_.get());
        cairo_restore(pen_.get());
    }

    void PaintOn(cairo_t* area, double left, double top) const {
        if (!enabled_) return;
        cairo_save(area);
        cairo_translate(area, region_.left - left, region_.top - top);
        cairo_rectangle(area, 0, 0, Size(region_.left, region_.right), Size(region_.top, region_.bottom));
        cairo_clip(area);
        cairo_set_source_surface(area, picture_.surface(), 0, 0);
        cairo_paint(area);
        cairo_restore(area);
    }

private:
    void Set(const host::Rect& rect, std::uint32_t color) {
        if (!rendering_ || rect.right <= rect.left || rect.bottom <= rect.top) return;
        cairo_save(pen_.get());
        cairo_set_operator(pen_.get(), CAIRO_OPERATOR_SOURCE);
        cairo_set_source_rgba(pen_.get(), (color >> 16 & 0xFF) / 255.0, (color >> 8 & 0xFF) / 255.0,
                              (color & 0xFF) / 255.0, (color >> 24) / 255.0);
        cairo_rectangle(pen_.get(), rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
        cairo_fill(pen_.get());
        cairo_restore(pen_.get());
    }

    HudScreen* screen_;  // none once the view is removed
    host::Rect region_;
    Picture picture_;
    Drawing pen_;
    std::optional<HudFont> font_;  // while text is drawn
    bool rendering_ = false;
    bool enabled_ = false;
};

HudScreen::HudScreen() {
    DeviceLost = [this] {
        for (View* view : views_) view->Lose();
    };
}

HudScreen::~HudScreen() {
    for (View* view : views_) view->Forget();
}

std::unique_ptr<host::HudView> HudScreen::CreateHUD(const host::Rect& rect) {
    return std::make_unique<View>(*this, rect);
}

void HudScreen::RemoveHUD(host::HudView& view) { static_cast<View&>(view).Leave(); }

Picture HudScreen::Show(const host::Rect& region) const {
    Picture area(Size(region.left, region.right), Size(region.top, region.bottom));
    const Drawing pen = area.Pen();
    PaintLandscape(pen.get(), area.width(), area.height());
    const double top = static_cast<double>(region.top) + kBarHeight;
    for (const View* view : views_) view->PaintOn(pen.get(), region.left, top);
    return area;
}

}  // namespace ombrel::sim
