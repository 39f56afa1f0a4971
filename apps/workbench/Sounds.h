// Plays the plug-in's sounds, where the machine has a device for them.
#pragma once

#include <SDL_mixer.h>

#include <map>
#include <memory>
#include <string>

namespace ombrel::workbench {

class Sounds {
public:
    Sounds();
    ~Sounds();
    Sounds(const Sounds&) = delete;
    Sounds& operator=(const Sounds&) = delete;

    bool available() const { return open_; }

    void Play(const std::string& path, bool loop);
    void Stop(const std::string& path);

private:
    struct Free {
        void operator()(Mix_Chunk* chunk) const { Mix_FreeChunk(chunk); }
    };
    bool open_ = false;
    std::map<std::string, std::unique_ptr<Mix_Chunk, Free>> chunks_;
    std::map<std::string, int> loops_;  // the channel of each sound that goes on
};

}  // namespace ombrel::workbench
