// Windows and COM, without the macros that would rename members of ours.
#pragma once

// Objects of COM end by their own Release, never by their base.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// COM
#include <oaidl.h>
#include <ocidl.h>
#include <ole2.h>

// DirectSound's formats
#include <mmsystem.h>

#undef CreateFont
#undef DrawText
#undef GetObject
#undef MapVirtualKey
#undef VkKeyScan
#undef sndPlaySound
