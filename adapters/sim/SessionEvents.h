// The events of a session, raised in a simulated client.
#pragma once

#include "adapters/sim/Client.h"
#include "adapters/sim/Recorder.h"
#include "adapters/sim/SessionFormat.h"

namespace ombrel::sim {

// Raises any event but Initialize, and writes its result where it has one.
void RaiseEvent(Client& client, Recorder* recorder, const Json& record);

}  // namespace ombrel::sim
