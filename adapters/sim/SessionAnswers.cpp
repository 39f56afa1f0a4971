#include "adapters/sim/SessionAnswers.h"

#include "adapters/sim/SessionControls.h"
#include "adapters/sim/View.h"

namespace ombrel::sim {
namespace {

using nlohmann::ordered_json;

ordered_json TimersAnswer(Client& client) {
    ordered_json running = ordered_json::array();
    for (const SimTimer* timer : client.clock.Running()) {
        running.push_back({{"name", timer->name()}, {"milliseconds", timer->interval()}});
    }
    return {{"running", std::move(running)}};
}

}  // namespace

ordered_json Answer(Client& client, std::string_view query, std::string_view name) {
    if (query == "timers") return TimersAnswer(client);
    if (query == "hud") return HudAnswer(name);
    const SimView* view = client.view();
    if (!view) return ordered_json::object();
    if (query == "view") return {{"left", view->position().left}, {"top", view->position().top}};
    return ControlState(*view, name);
}

}  // namespace ombrel::sim
