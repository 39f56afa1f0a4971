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

ordered_json TargetFields(const HudHandlerT& canvas) {
    ordered_json fields = CanvasFields(canvas);
    fields["object"] = canvas.Object() ? canvas.Object()->GUID() : 0;
    return fields;
}

// The fields of the canvas that a handler holds, where both are there.
template <class Handler, class Canvas>
ordered_json Of(const Owned<Handler>& handler, const Owned<Canvas> Handler::*canvas) {
    if (!handler || !((*handler).*canvas)) return ordered_json::object();
    if constexpr (std::is_same_v<Canvas, HudHandlerT>) {
        return TargetFields(*((*handler).*canvas));
    } else {
        return CanvasFields(*((*handler).*canvas));
    }
}

}  // namespace

ordered_json HudAnswer(std::string_view name) {
    if (name == "Main") return Of(Vars::HUDMainHandler, &HUDMainHandler::MainHud);
    if (name == "Clock") return Of(Vars::HUDClockHandler, &HUDClockHandler::ClockHUD);
    if (name == "Item") return Of(Vars::HUDItemHandler, &HUDItemHandler::ItemHUD);
    if (name == "Status") return Of(Vars::HUDStatusHandler, &HUDStatusHandler::StatusHud);
    return Of(Vars::HUDTargetHandler, &HUDTargetHandler::TargetHud);
}

}  // namespace ombrel::sim
