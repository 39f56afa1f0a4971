// A session's changes to the client's state, which raise no event.
#pragma once

#include "adapters/sim/Client.h"
#include "adapters/sim/SessionFormat.h"

namespace ombrel::sim {

// Applies a set record. The view must be there for what is set of it.
void ApplySet(Client& client, const Json& record);

}  // namespace ombrel::sim
