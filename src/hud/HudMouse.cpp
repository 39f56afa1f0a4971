#include "hud/HudMouse.h"

#include <algorithm>
#include <array>

#include "config/ControlHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "host/Platform.h"
#include "hud/HUDClockHandler.h"
#include "hud/HUDItemHandler.h"
#include "hud/HUDMainHandler.h"
#include "hud/HUDStatusHandler.h"
#include "hud/HUDTargetHandler.h"

namespace ombrel {
namespace {

constexpr std::int32_t kMouseMove = 512;
constexpr std::int32_t kLeftButtonDown = 513;
constexpr std::int32_t kLeftButtonUp = 514;
constexpr std::int32_t kControlKey = 17;
constexpr std::int32_t kShiftKey = 16;

// A HUD as the mouse sees it.
struct Hud {
    HudFrame& (*frame)();
    void (*click)(std::int32_t x, std::int32_t y);
    bool (*within_title)(std::int32_t x, std::int32_t y);
};

template <auto& handler, auto canvas>
constexpr Hud MakeHud() {
    return {[]() -> HudFrame& { return ((*handler).*canvas)->frame; },
            [](std::int32_t x, std::int32_t y) { handler->ClickHUD(x, y); },
            [](std::int32_t x, std::int32_t y) { return handler->WithinTitle(x, y); }};
}

// The order of every scan.
constexpr std::array<Hud, 5> kHuds{{
    MakeHud<Vars::HUDClockHandler, &HUDClockHandler::ClockHUD>(),
    MakeHud<Vars::HUDMainHandler, &HUDMainHandler::MainHud>(),
    MakeHud<Vars::HUDItemHandler, &HUDItemHandler::ItemHUD>(),
    MakeHud<Vars::HUDStatusHandler, &HUDStatusHandler::StatusHud>(),
    MakeHud<Vars::HUDTargetHandler, &HUDTargetHandler::TargetHud>(),
}};
constexpr const Hud& kMainHud = kHuds[1];

// Points of the game window. One drag offset serves all: of several HUDs picked up by one press, the last one's.
host::Point press_point;
host::Point drag_offset;

host::Point Cursor() { return Vars::Platform->ScreenToClient(Vars::Platform->GetCursorPos()); }

bool IsDown(std::int32_t key) { return Vars::Platform->GetAsyncKeyState(key) < 0; }

// Failure where the window is not: points and offsets of it are small.
host::Point Difference(const host::Point& a, const host::Point& b) {
    return {ToLong(static_cast<double>(a.x) - b.x), ToLong(static_cast<double>(a.y) - b.y)};
}

void PickUp(HudFrame& frame) {
    frame.OnCanvas = true;
    drag_offset = Difference(press_point, {frame.x(), frame.y()});
}

void Move() {
    const host::Point cursor = Cursor();
    for (const Hud& hud : kHuds) hud.frame().SetWithinCanvas(hud.frame().WithinHUD(cursor.x, cursor.y));
    for (const Hud& hud : kHuds) {
        if (!hud.frame().OnCanvas) continue;
        const host::Point place = Difference(cursor, drag_offset);
        hud.frame().SetPos(place.x, place.y, true);
    }
}

// Control drags a HUD from anywhere, shift brings a hidden title bar back, and without either the title bar drags.
void Press() {
    press_point = Cursor();
    const auto [x, y] = press_point;
    const bool control = IsDown(kControlKey);
    const bool shift = !control && IsDown(kShiftKey);
    for (const Hud& hud : kHuds) {
        HudFrame& frame = hud.frame();
        if (control) {
            if (frame.WithinHUD(x, y)) PickUp(frame);
        } else if (shift) {
            if (!frame.WithinHUD(x, y)) continue;
            frame.DrawTitle = true;
            if (&hud == &kMainHud) wtcw_debug("here");
        } else if (hud.within_title(x, y) && frame.DrawTitle) {
            PickUp(frame);
        }
    }
}

void Release() {
    const host::Point point = Cursor();
    if (point == press_point) {
        for (const Hud& hud : kHuds) {
            if (!hud.frame().WithinHUD(point.x, point.y)) continue;
            hud.click(point.x, point.y);
            hud.frame().DrawHUD(false);
            Vars::ControlHandler->Settings_Save(0);
        }
    }
    if (std::any_of(kHuds.begin(), kHuds.end(), [](const Hud& hud) { return hud.frame().OnCanvas; }))
        Vars::ControlHandler->Settings_Save(0);
    for (const Hud& hud : kHuds) hud.frame().OnCanvas = false;
}

}  // namespace

void HandleMouse(std::int32_t message) {
    if (message < kMouseMove || message > kLeftButtonUp) return;
    if (!Vars::Loaded || Vars::HudFailed || !Vars::ControlHandler->HudOn->Checked()) return;
    if (message == kMouseMove) return Move();
    if (message == kLeftButtonDown) return Press();
    Release();
}

}  // namespace ombrel
