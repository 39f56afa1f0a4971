// The DLL itself.
#pragma once

#include <string>

#include "adapters/decal/Win32.h"

namespace ombrel::decal {

class WindowsPlatform;

HMODULE ThisModule();
std::wstring ModuleFile(HMODULE module);  // its path

// The system under the client, for everything in this process.
WindowsPlatform& ThePlatform();

}  // namespace ombrel::decal
