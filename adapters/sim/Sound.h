// The sound device: it plays nothing, and knows what plays.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "adapters/sim/Calls.h"
#include "host/LoopSound.h"

namespace ombrel::sim {

class SimSoundBuffer final : public host::SoundBuffer {
public:
    SimSoundBuffer(Calls& calls, std::string_view path) : calls_(calls), path_(path) {}
    ~SimSoundBuffer() override;

    void SetCurrentPosition(std::int32_t position) override;
    void Play(std::int32_t flags) override;
    void Stop() override;
    std::int32_t GetStatus() const override;

private:
    Calls& calls_;
    std::string path_;
    std::int32_t status_ = 0;
};

class SimSoundDevice final : public host::SoundDevice {
public:
    explicit SimSoundDevice(Calls& calls) : calls_(calls) {}

    void SetCooperativeLevel(std::int32_t level) override;
    std::unique_ptr<host::SoundBuffer> CreateSoundBuffer(std::string_view path) override;

private:
    Calls& calls_;
};

}  // namespace ombrel::sim
