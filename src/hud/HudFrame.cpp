#include "hud/HudFrame.h"

#include <fmt/format.h>

#include <array>

#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"
#include "host/Plugin.h"

namespace ombrel {
namespace {

constexpr std::int32_t kLeft = 0;
constexpr std::int32_t kCentred = 1;
constexpr std::int32_t kRegionOffset = 28;  // HUDs see the 3D area so much further down
constexpr std::int32_t kSnap = 3;           // pixels to an edge within which a HUD docks
constexpr std::int32_t kFadeBeat = 25;      // milliseconds
constexpr std::int32_t kBold = 1;
constexpr std::string_view kTitleFace = "Arial";
constexpr std::int32_t kTitleFont = 14;
constexpr std::int32_t kTitleWeight = 700;

// The title bar's two buttons stand at its right end.
constexpr std::int32_t kHideLeft = 18, kHideRight = 10;
constexpr std::int32_t kCloseLeft = 8;

host::Rect Moved(const host::Rect& rect, std::int32_t x, std::int32_t y) {
    return {rect.left + x, rect.top + y, rect.right + x, rect.bottom + y};
}

// A place that no screen reaches is a failure.
std::int32_t Sum(std::int32_t a, std::int32_t b, std::int32_t c = 0) { return ToLong(static_cast<double>(a) + b + c); }

void ClearAndFill(host::HudView& view, const host::Rect& rect, std::int32_t color) {
    view.Clear(rect);
    view.Fill(rect, color);
}

}  // namespace

HudFrame::HudFrame(const Names& names) : BackgroundColor(ConvertColor("Black", 5)), names_(names) {}

HudFrame::~HudFrame() {
    try {
        if (view_ && service_) service_->RemoveHUD(*view_);
    } catch (...) {
        ReportFailure("Class_Terminate", names_.object);
    }
}

void HudFrame::Open(Content content) try {
    content_ = std::move(content);
    ComputeDimensions();
    fade_timer_ = Vars::Site->CreateTimer(names_.timer);
    fade_timer_->Timeout = [this] { FadeTimer_Timeout(); };
    font_ = Vars::Decal->CreateFont(font_face_, font_size_, kBold);
    space_width_ = font_->TextWidth(" ");
    if (content_.measure && content_.measure()) ComputeDimensions();
    if (Vars::HudFailed) return;
    try {
        service_ = Vars::Site->GetRenderService();
    } catch (...) {
        Vars::HudFailed = true;
        throw;
    }
    service_->DeviceLost = [this] { DeviceLost(); };
    CreateHUD();
} catch (...) {
    ReportFailure("Class_Initialize", names_.object);
}

// Place and size.

void HudFrame::ComputeDimensions() {
    if (DockVert || DockHorz) {
        const host::Rect region = Vars::FilterHandler->Get3DRegion();
        if (DockVert) y_ = Sum(region.bottom, -height_, kRegionOffset);
        if (DockHorz) x_ = Sum(region.right, -width_);
    }
    rect_ = {x_, y_, Sum(x_, width_), Sum(y_, height_)};
    relative_ = {0, 0, width_, height_};
    if (Vars::DebugMode)
        wtcw_debug(fmt::format("ComputeDimensions: {}, {}, {}, {} | {}, {}", rect_.top, rect_.left, rect_.bottom,
                               rect_.right, relative_.right, relative_.bottom));
}

void HudFrame::SetPos(std::int32_t x, std::int32_t y, bool checkDock) try {
    if (checkDock) {
        const host::Rect area = Vars::FilterHandler->Get3DRect();
        const auto near = [](std::int64_t edge, std::int64_t border) { return std::abs(edge - border) < kSnap; };
        DockVert = near(std::int64_t{y} + height_, area.bottom);
        DockHorz = near(std::int64_t{x} + width_, area.right);
    }
    x_ = x;
    y_ = y;
    MoveHUD();
} catch (...) {
    ReportFailure("SetPos", names_.object);
}

void HudFrame::UpdatePos() try {
    if (!Vars::HudFailed && enabled_) MoveHUD();
} catch (...) {
    ReportFailure("UpdatePos", names_.object);
}

void HudFrame::MoveHUD() try {
    if (Vars::HudFailed) return;
    TellOf(names_.move);
    ComputeDimensions();
    view_->SetRegion(rect_);
} catch (...) {
    ReportFailure("MoveHUD", names_.object);
}

void HudFrame::SetSize(std::int32_t width, std::int32_t height) {
    width_ = width;
    height_ = height;
}

void HudFrame::TellOf(std::string_view line) const {
    if (Vars::DebugMode && !line.empty()) wtcw_debug(fmt::format("{}{}", line, title_));
}

// The surface.

// A surface that can't be made is the end of all HUDs until the plug-in is loaded again.
void HudFrame::CreateHUD() {
    if (Vars::HudFailed) return;
    TellOf(names_.create);
    view_.Release();
    TellOf(names_.dropped);
    Failure failure(0, {});
    try {
        view_ = service_->CreateHUD(rect_);
    } catch (const Failure& thrown) {
        failure = thrown;
    }
    if (view_) {
        all_due_ = true;
        return TellOf(names_.created);
    }
    Vars::HudFailed = true;
    ErrorReport(fmt::format("CreateHUD Failure{} {} {} {}", rect_.top, rect_.left, rect_.bottom, rect_.right),
                "HudHandler" + title_, failure.number(), failure.description(), 0);
}

void HudFrame::ResizeHUD() try {
    if (Vars::HudFailed) return;
    TellOf(names_.resize);
    ComputeDimensions();
    view_->SetEnabled(false);
    service_->RemoveHUD(*view_);
    CreateHUD();
    if (Vars::HudFailed) return;
    view_->BeginRender(false);
    ClearAndFill(*view_, relative_, BackgroundColor);
    view_->EndRender();
    view_->SetEnabled(enabled_);
    OutputHud(true);
    TellOf(names_.resized);
} catch (...) {
    ReportFailure("ResizeHUD", names_.object);
}

void HudFrame::DeviceLost() try {
    if (Vars::HudFailed) return;
    TellOf(names_.lost);
    content_.fit();
    ResizeHUD();
} catch (...) {
    ReportFailure("myService_DeviceLost", names_.object);
}

void HudFrame::SetEnabled(bool enabled) try {
    enabled_ = enabled;
    if (!Vars::HudFailed) view_->SetEnabled(enabled);
    DrawHUD(false);
} catch (...) {
    ReportFailure("Enabled", names_.object);
}

void HudFrame::HUDOff() try {
    enabled_ = false;
    if (!Vars::HudFailed) view_->SetEnabled(false);
} catch (...) {
    ReportFailure("HUDOff", names_.object);
}

void HudFrame::DrawHUD(bool Force) try {
    if (Vars::HudFailed || !enabled_) return;
    if (content_.fit() || Force) {
        wtcw_debug("Resize Done");
        ResizeHUD();
    } else {
        OutputHud(false);
    }
} catch (...) {
    ReportFailure("DrawHUD", names_.object);
}

// Drawing. The frame is drawn each time; of the content only what has changed.

void HudFrame::OutputHud(bool Force) try {
    all_due_ |= Force;
    host::HudView& view = *view_;
    view.BeginRender(false);
    PaintFrame(view);
    content_.paint(view, all_due_);
    view.EndRender();
    all_due_ = false;
} catch (...) {
    ReportFailure("OutputHud", names_.object);
    CloseRender();
}

// Every beginning needs its end, also when the drawing between them has failed.
void HudFrame::CloseRender() noexcept {
    if (!view_) return;
    try {
        view_->EndText();
    } catch (...) {  // reported already
    }
    try {
        view_->EndRender();
    } catch (...) {
    }
}

void HudFrame::PaintFrame(host::HudView& view) {
    std::int32_t frame = HasNoContent() ? ConvertColor("Black", 0) : BackgroundColor;
    const bool bare = content_.bare_when_empty && HasNoContent();
    if (!bare && within_ && DrawTitle && fade_ == kFullFade) frame = ConvertColor("Black", kFullFade);
    const host::Rect strip{0, 0, width_, kTitleHeight};
    view.BeginText(kTitleFace, kTitleFont, kTitleWeight, false);
    ClearAndFill(view, strip, 0);
    ClearAndFill(view, {0, kTitleHeight, kBorder, height_}, frame);
    ClearAndFill(view, {0, height_ - kBorder, width_, height_}, frame);
    ClearAndFill(view, {width_ - kBorder, kTitleHeight, width_, height_}, frame);
    if (within_ && DrawTitle) PaintTitle(view);
    view.EndText();
}

void HudFrame::PaintTitle(host::HudView& view) {
    const std::int32_t white = ConvertColor("White", fade_);
    view.Fill({0, 0, width_, kTitleHeight}, ConvertColor("Black", fade_));
    if (title_width_ < width_ - 30) view.DrawText({0, 0, width_ - 20, kTitleHeight}, white, kCentred, title_);
    view.DrawText({width_ - kHideLeft, 0, width_ - kHideRight, kTitleHeight}, white, kLeft, "O");
    view.DrawText({width_ - kCloseLeft, 0, width_, kTitleHeight}, white, kLeft, "X");
}

void HudFrame::WriteText(host::HudView& view, const host::Rect& rect, std::int32_t color, std::int32_t outline_color,
                         std::int32_t format, std::string_view text) const {
    // Up, down, left, right, and the four corners.
    static constexpr host::Point kAround[] = {{0, -1}, {0, 1}, {-1, 0}, {1, 0}, {-1, -1}, {1, -1}, {-1, 1}, {1, 1}};
    if (Outline) {
        for (const auto& [x, y] : kAround) view.DrawText(Moved(rect, x, y), outline_color, format, text);
    }
    view.DrawText(rect, color, format, text);
}

// Text.

void HudFrame::SetTitle(std::string_view title) try {
    title_ = title;
    title_width_ = TextWidth(title_);
} catch (...) {
    ReportFailure("title", names_.object);
}

void HudFrame::SetFontFace(const std::string& face) try {
    font_face_ = face;
    font_ = Vars::Decal->CreateFont(font_face_, font_size_, kBold);
    space_width_ = font_->TextWidth(" ");
    FontSet();
} catch (...) {
    ReportFailure("FontFace", names_.object);
}

void HudFrame::SetFontSize(std::int32_t pixels) try {
    font_size_ = pixels;
    font_ = Vars::Decal->CreateFont(font_face_, font_size_, kBold);
    FontSet();
} catch (...) {
    ReportFailure("FontSize", names_.object);
}

void HudFrame::FontSet() {
    if (content_.measure && content_.measure()) ResizeHUD();
}

std::int32_t HudFrame::TextWidth(std::string_view text) const { return font_->TextWidth(text); }

// The title bar.

void HudFrame::SetWithinCanvas(bool within) try {
    if (OnCanvas || within == within_) return;
    if (within) within_ = true;  // leaving waits until the bar has faded
    fading_in_ = within;
    if (!fade_timer_->Running()) fade_timer_->Start(kFadeBeat);
} catch (...) {
    ReportFailure("WithinCanvas", names_.object);
}

void HudFrame::FadeTimer_Timeout() try {
    if (fading_in_ && fade_ < kFullFade) ++fade_;
    if (!fading_in_ && fade_ >= 1) --fade_;
    const bool bare = content_.bare_when_empty && HasNoContent();
    if (bare) fade_ = 0;
    if (fade_ == kFullFade) fade_timer_->Stop();
    if (fade_ == 0) {
        fade_timer_->Stop();
        within_ = false;
    }
    if (DrawTitle || bare) DrawHUD(false);
} catch (...) {
    ReportFailure("FadeTimer_Timeout", names_.object);
}

void HudFrame::SetFade(std::int32_t level) { fade_ = level; }

bool HudFrame::WithinHUD(std::int32_t x, std::int32_t y) const {
    return enabled_ && x > rect_.left && x < rect_.right && y > rect_.top && y < rect_.bottom;
}

std::int32_t HudFrame::ClickHUD(std::int32_t x, std::int32_t y) const {
    TellOf(names_.click);
    const std::int64_t from_left = std::int64_t{x} - x_;
    const std::int64_t from_top = std::int64_t{y} - y_;
    if (!WithinHUD(x, y) || from_top <= 0 || from_top >= kTitleHeight || !DrawTitle) return -1;
    if (from_left > width_ - 20 && from_left < width_ - 12) return 2;
    if (from_left > width_ - 8 && from_left < width_) return 1;
    return 0;
}

}  // namespace ombrel
