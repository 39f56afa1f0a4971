// The system's headers, without the macros that rename what our own headers declare.
#pragma once

// Interfaces of COM have no destructors that anybody calls.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// clang-format off
#include <windows.h>
#include <ocidl.h>
#include <olectl.h>
// clang-format on

#undef CreateFont
#undef DrawText
#undef GetObject
#undef MapVirtualKey
#undef VkKeyScan
#undef sndPlaySound
#undef SHGetFolderPath
