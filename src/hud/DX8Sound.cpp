#include "hud/DX8Sound.h"

#include <fmt/format.h>

#include "core/Hub.h"
#include "core/Vars.h"
#include "core/failure.h"
#include "host/Platform.h"

namespace ombrel {

namespace {

constexpr std::int32_t kPriorityLevel = 1;
constexpr std::int32_t kPlayOnce = 0;
constexpr std::int32_t kPlayLooping = 1;

// What GetStatus says of a buffer at work; anything else is silence.
constexpr std::int32_t kPlaying = 1;
constexpr std::int32_t kPlayingLoop = 1 | 4;

}  // namespace

DX8Sound::DX8Sound() {
    wtcw_debug("DX8Sound Initialize");
    try {
        device_ = Vars::Platform->DirectSoundCreate();
        device_->SetCooperativeLevel(kPriorityLevel);
    } catch (...) {
        device_.Release();
        ReportFailure("Class_Initialize", "DX8Sound");
    }
}

DX8Sound::~DX8Sound() {
    wtcw_debug("DX8Sound-Terminate");
    buffer_.Release();
    device_.Release();
}

void DX8Sound::SetSound(std::string_view soundname) try {
    const std::string path = fmt::format("{}\\Sounds\\{}", ProgramPath(), soundname);
    if (Vars::DebugMode) wtcw_debug(fmt::format("DX8Sound-SetSound: {} {}", soundname, path));
    if (!device_) return;
    buffer_ = device_->CreateSoundBuffer(path);
    if (!buffer_) throw Failure(failure::kFileNotFound);
} catch (...) {
    buffer_.Release();
    ReportFailure("SetSound", "DX8Sound");
}

void DX8Sound::UnSetSound() { buffer_.Release(); }

void DX8Sound::Play(bool LoopSound) try {
    if (!buffer_) return;
    wtcw_debug("DX8Sound-Play");
    buffer_->SetCurrentPosition(0);
    buffer_->Play(LoopSound ? kPlayLooping : kPlayOnce);
} catch (...) {
    ReportFailure("Play", "DX8Sound");
}

void DX8Sound::StopPlay() try {
    if (!buffer_) return;
    wtcw_debug("DX8Sound-Stop");
    buffer_->Stop();
} catch (...) {
    ReportFailure("StopPlay", "DX8Sound");
}

std::int32_t DX8Sound::Status() try {
    if (!buffer_) return 0;
    switch (buffer_->GetStatus()) {
        case kPlaying:
            return 1;
        case kPlayingLoop:
            return 2;
        default:
            return 0;
    }
} catch (...) {
    ReportFailure("Status", "DX8Sound");
    return 0;
}

}  // namespace ombrel
