// The displays over the game: what a refresh costs, and a move of the mouse, beside drawing the lines anew each time.
#include <string>
#include <vector>

#include "adapters/sim/draw/HudScreen.h"
#include "bench/Game.h"
#include "bench/Subjects.h"
#include "bench/Table.h"
#include "config/ControlHandler.h"
#include "core/Vars.h"
#include "hud/HUDClockHandler.h"
#include "hud/HUDItemHandler.h"
#include "hud/HUDMainHandler.h"
#include "hud/HUDStatusHandler.h"
#include "hud/HUDTargetHandler.h"

namespace ombrel::bench {
namespace {

constexpr std::int32_t kMouseMove = 512;

// The main display with all of its fifteen lines, drawn where somebody could see it.
class Displays {
public:
    Displays() {
        game.client.screen = &screen_;
        auto& options = *Vars::ControlHandler;
        for (std::int32_t row = 0; row < options.HudList->Count(); ++row) options.HudList->SetData(0, row, true);
        const std::int32_t corpse = options.CorpsesList->AddRow();
        options.CorpsesList->SetData(1, corpse, std::string("1.0N, 2.0E"));
        for (HudFrame* frame : Frames()) {
            frame->Outline = false;
            frame->ResizeHUD();
            frame->HudOn();
        }
        Vars::HUDMainHandler->CreateHUD();
        Vars::HUDMainHandler->UpdateHUD();
    }
    Displays(const Displays&) = delete;
    Displays& operator=(const Displays&) = delete;

    static HUDHandler& Main() { return *Vars::HUDMainHandler->MainHud; }

private:
    static std::vector<HudFrame*> Frames() {
        return {&Vars::HUDMainHandler->MainHud->frame, &Vars::HUDClockHandler->ClockHUD->frame,
                &Vars::HUDItemHandler->ItemHUD->frame, &Vars::HUDStatusHandler->StatusHud->frame,
                &Vars::HUDTargetHandler->TargetHud->frame};
    }

    sim::HudScreen screen_;

public:
    Game game;
};

void Unchanged(benchmark::State& state) {
    const Displays displays;
    Measure(state, 1, [] { Vars::HUDMainHandler->UpdateHUD(); });
}

void TwoChanged(benchmark::State& state) {
    const Displays displays;
    bool other = false;
    Measure(state, 1, [&] {
        other = !other;
        Vars::ControlHandler->SessionTime->SetText(other ? "00:00:01" : "00:00:02");
        Vars::ControlHandler->Kills->SetText(other ? "1" : "2");
        Vars::HUDMainHandler->UpdateHUD();
    });
}

// What a display without memory would do: every line, every time.
void AllWithCairo(benchmark::State& state) {
    const Displays displays;
    sim::HudScreen screen;
    const HUDHandler& main = Displays::Main();
    const auto view = screen.CreateHUD(main.frame.rect());
    const std::int32_t height = main.frame.FontSize() + 1;
    Measure(state, 1, [&] {
        view->BeginRender(false);
        view->BeginText(main.frame.FontFace(), main.frame.FontSize(), 900, false);
        std::int32_t top = 16;
        for (const auto& [key, item] : main.items()) {
            const host::Rect line{3, top, main.frame.width() - 2, top + height};
            view->Clear(line);
            view->Fill(line, main.frame.BackgroundColor);
            view->DrawText(line, -1, 0, item.data);
            top += height;
        }
        view->EndText();
        view->EndRender();
    });
}

void MouseMove(benchmark::State& state) {
    Displays displays;
    std::int32_t x = 0;
    Measure(state, 1, [&] {
        x = x == 790 ? 700 : x + 1;
        displays.game.client.WindowMessage(kMouseMove, x, 595, 0, 0);
    });
}

}  // namespace

void AddDisplays() {
    const std::string refresh = "Refresh fifteen lines of a display/";
    benchmark::RegisterBenchmark((refresh + "Ombrel, nothing changed").c_str(), Unchanged);
    benchmark::RegisterBenchmark((refresh + "Ombrel, two lines changed").c_str(), TwoChanged);
    benchmark::RegisterBenchmark((refresh + "all fifteen drawn with cairo").c_str(), AllWithCairo);
    const std::string move = "Move the mouse among five displays/";
    benchmark::RegisterBenchmark((move + "Ombrel").c_str(), MouseMove);
    benchmark::RegisterBenchmark((move + "fifteen lines drawn with cairo").c_str(), AllWithCairo);
}

}  // namespace ombrel::bench
