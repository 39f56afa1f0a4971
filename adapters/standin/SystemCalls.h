// The calls that the plug-in DLL makes to the system, answered by the simulated client.
#pragma once

#include <filesystem>

#include "adapters/sim/Client.h"
#include "adapters/standin/WindowsHeaders.h"

namespace ombrel::standin {

// Leads the DLL's calls for clock, zone, folders, keys, mouse and sound to the client, through the DLL's import table.
// Everybody else's calls stay with the system. The client must outlive the DLL.
void RedirectSystemCalls(HMODULE dll, sim::Client& client);

}  // namespace ombrel::standin
