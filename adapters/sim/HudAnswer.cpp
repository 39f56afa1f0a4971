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

ordered_json FrameFields(const HudFrame& frame) {
    return {{"enabled", frame.Enabled()},
            {"x", frame.x()},
            {"y", frame.y()},
            {"width", frame.width()},
            {"height", frame.height()},
            {"title", frame.title()},
            {"drawTitle", frame.DrawTitle},
            {"fade", frame.Fade()},
            {"dockVert", frame.DockVert},
            {"dockHorz", frame.DockHorz},
            {"outline", frame.Outline},
            {"background", frame.BackgroundColor},
            {"fontFace", frame.FontFace()},
            {"fontSize", frame.FontSize()}};
}

ordered_json Fields(const HUDHandler& canvas) {
    ordered_json fields = FrameFields(canvas.frame);
    ordered_json items = ordered_json::array();
    for (const auto& [key, item] : canvas.items()) {
        items.push_back({{"key", key},
                         {"text", item.data},
                         {"color", item.color},
                         {"alpha", item.alpha},
                         {"icon", item.icon},
                         {"newline", item.newline}});
    }
    fields["items"] = std::move(items);
    return fields;
}

ordered_json Fields(const HudHandlerT& canvas) {
    ordered_json fields = FrameFields(canvas.frame);
    fields["object"] = canvas.Object() ? canvas.Object()->GUID() : 0;
    ordered_json debuffs = ordered_json::array();
    for (const auto& [creature, spells] : canvas.debuffs()) {
        for (const auto& [family, spell] : spells.Spells) {
            debuffs.push_back({{"object", creature},
                               {"family", family},
                               {"spell", spell->spellid},
                               {"remaining", spell->timeRemaining}});
        }
    }
    fields["debuffs"] = std::move(debuffs);
    fields["rows"] = canvas.Rows();
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
