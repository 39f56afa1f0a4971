// A sound device in the shape of DirectSound.
#pragma once

#include <memory>

#include "adapters/standin/WindowsHeaders.h"
#include "host/LoopSound.h"
//
#include <dsound.h>

namespace ombrel::standin {

// What the DLL reads wave files by. The device learns here what it is about to be given: buffers have no names.
void NoteOpened(std::string_view path, bool found);

HRESULT MakeSoundDevice(std::unique_ptr<host::SoundDevice> device, IDirectSound8** result);

}  // namespace ombrel::standin
