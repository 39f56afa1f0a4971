#include "apps/workbench/Sounds.h"

#include <SDL.h>

#include "core/files.h"

namespace ombrel::workbench {
namespace {

constexpr int kRate = 44'100, kStereo = 2, kBuffer = 1024;
constexpr int kAnyChannel = -1, kForever = -1;

}  // namespace

Sounds::Sounds() {
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return;
    open_ = Mix_OpenAudio(kRate, MIX_DEFAULT_FORMAT, kStereo, kBuffer) == 0;
}

Sounds::~Sounds() {
    if (open_) Mix_HaltChannel(kAnyChannel);
    chunks_.clear();
    if (open_) Mix_CloseAudio();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

void Sounds::Play(const std::string& path, bool loop) {
    if (!open_) return;
    auto& chunk = chunks_[path];
    if (!chunk) chunk.reset(Mix_LoadWAV(NativePath(path).c_str()));
    if (!chunk) return;
    const int channel = Mix_PlayChannel(kAnyChannel, chunk.get(), loop ? kForever : 0);
    if (loop && channel >= 0) loops_[path] = channel;
}

void Sounds::Stop(const std::string& path) {
    const auto loop = loops_.find(path);
    if (loop == loops_.end()) return;
    Mix_HaltChannel(loop->second);
    loops_.erase(loop);
}

}  // namespace ombrel::workbench
