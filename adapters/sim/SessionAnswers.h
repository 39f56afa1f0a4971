// Answers to a session's questions for state.
#pragma once

#include <nlohmann/json.hpp>
#include <string_view>

#include "adapters/sim/Client.h"

namespace ombrel::sim {

// The fields of an answer. What isn't there yet, as the controls before the view is loaded, has none.
nlohmann::ordered_json Answer(Client& client, std::string_view query, std::string_view name);

// A HUD's canvas as the plug-in has it: Main, Clock, Item, Status or Target.
nlohmann::ordered_json HudAnswer(std::string_view name);

}  // namespace ombrel::sim
