#include "adapters/sim/Sound.h"

#include "core/failure.h"
#include "core/files.h"

namespace ombrel::sim {

namespace {

constexpr std::int32_t kPlaying = 1;
constexpr std::int32_t kLooping = 4;
constexpr std::int32_t kLoopFlag = 1;

}  // namespace

// A release can't fail: it is noted as failed, and the buffer goes all the same.
SimSoundBuffer::~SimSoundBuffer() {
    try {
        calls_.Note("SoundBuffer.SoundRelease"_op, {{"path", path_}});
    } catch (const Failure&) {
    }
}

void SimSoundBuffer::SetCurrentPosition(std::int32_t /*position*/) { calls_.Note("SoundBuffer.SetCurrentPosition"_op); }

void SimSoundBuffer::Play(std::int32_t flags) {
    const bool loop = (flags & kLoopFlag) != 0;
    calls_.Note("SoundBuffer.Play"_op, {{"path", path_}, {"loop", loop}});
    status_ = loop ? kPlaying | kLooping : kPlaying;
}

void SimSoundBuffer::Stop() {
    calls_.Note("SoundBuffer.Stop"_op, {{"path", path_}});
    status_ = 0;
}

std::int32_t SimSoundBuffer::GetStatus() const {
    calls_.Note("SoundBuffer.GetStatus"_op);
    return status_;
}

void SimSoundDevice::SetCooperativeLevel(std::int32_t /*level*/) { calls_.Note("SoundDevice.SetCooperativeLevel"_op); }

std::unique_ptr<host::SoundBuffer> SimSoundDevice::CreateSoundBuffer(std::string_view path) {
    constexpr Op load = "SoundDevice.CreateSoundBuffer"_op;
    if (!FileExists(path))
        calls_.NoteFailed(load, {{"path", path}}, failure::kFileNotFound,
                          std::string(FailureText(failure::kFileNotFound)));
    calls_.Note(load, {{"path", path}});
    return std::make_unique<SimSoundBuffer>(calls_, path);
}

}  // namespace ombrel::sim
