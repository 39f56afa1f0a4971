#include "adapters/sim/SessionAnswers.h"
#include "core/Vars.h"
#include "hud/HUDClockHandler.h"
#include "hud/HUDItemHandler.h"
#include "hud/HUDMainHandler.h"
#include "hud/HUDStatusHandler.h"
#include "hud/HUDTargetHandler.h"

namespace ombrel::sim {
namespace {

using nlohmann::ordered_json;

template <class Canvas>
ordered_json CanvasFields(const Canvas& canvas) {
    return {{"enabled", canvas.Enabled()},
            {"x", canvas.x()},
            {"y", canvas.y()},
            {"title", canvas.title},
            {"drawTitle", canvas.DrawTitle},
            {"dockVert", canvas.DockVert},
            {"dockHorz", canvas.DockHorz},
            {"outline", canvas.Outline},
            {"background", canvas.BackgroundColor},
            {"fontFace", canvas.FontFace()},
            {"fontSize", canvas.FontSize()}};
}

ordered_json Fields(const HUDHandler& canvas) { return CanvasFields(canvas); }

ordered_json Fields(const HudHandlerT& canvas) {
    ordered_json fields = CanvasFields(canvas);
    fields["object"] = canvas.Object() ? canvas.Object()->GUID() : 0;
    return fields;
}

// The fields of the canvas that a handler holds, where both are there.
template <class Handler, class Canvas>
ordered_json Of(const Handler* handler, Owned<Canvas> Handler::*canvas) {
    return handler && handler->*canvas ? Fields(*(handler->*canvas)) : ordered_json::object();
}

}  // namespace

ordered_json HudAnswer(std::string_view name) {
    if (name == "Main") return Of(Vars::HUDMainHandler.get(), &HUDMainHandler::MainHud);
    if (name == "Clock") return Of(Vars::HUDClockHandler.get(), &HUDClockHandler::ClockHUD);
    if (name == "Item") return Of(Vars::HUDItemHandler.get(), &HUDItemHandler::ItemHUD);
    if (name == "Status") return Of(Vars::HUDStatusHandler.get(), &HUDStatusHandler::StatusHud);
    return Of(Vars::HUDTargetHandler.get(), &HUDTargetHandler::TargetHud);
}

}  // namespace ombrel::sim
