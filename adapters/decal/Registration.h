// What the registry says of the plug-in.
#pragma once

#include "adapters/decal/Win32.h"

namespace ombrel::decal {

// Writes both classes, and the plug-in into the framework's list, where a player's "off" stays. What was written goes
// again when a step fails.
HRESULT RegisterServer();

// Takes out what the other writes, and folders of the framework's that are empty then.
HRESULT UnregisterServer();

}  // namespace ombrel::decal
