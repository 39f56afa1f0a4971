// Records of a session that name a control of the options view.
#pragma once

#include "adapters/sim/SessionFormat.h"
#include "adapters/sim/View.h"

namespace ombrel::sim {

// Checks a record against the view: an event, a set or a query of a control. Throws SessionError.
void CheckControl(const SimView& view, const Json& record);

// Changes the control's state in silence.
void PutControl(SimView& view, const Json& record);

// Does what the player did.
void ActOnControl(SimView& view, const Json& record);

// The state of a control as an answer gives it.
nlohmann::ordered_json ControlState(const SimView& view, std::string_view name);

}  // namespace ombrel::sim
