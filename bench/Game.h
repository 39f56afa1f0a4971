// A plug-in at work in the simulated client, with a character logged in and the default settings loaded.
#pragma once

#include <filesystem>

#include "adapters/sim/Client.h"

namespace ombrel::bench {

class Game {
public:
    Game();
    ~Game();
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    sim::Client client;
    const std::filesystem::path& folder() const { return folder_; }  // of all files that the plug-in writes

private:
    std::filesystem::path folder_;
};

}  // namespace ombrel::bench
