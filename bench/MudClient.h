// Another program that shows lines by rules: a client of text games, run as a player runs it, on a terminal, with the
// lines coming in from a server.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace ombrel::bench {

// Serves `lines` to one client and runs `command` on a terminal until it ends. `command` finds the server's port where
// it says "PORT". Returns the seconds of processor time that the client took, and what it showed last.
struct ClientRun {
    double seconds = 0.0;
    std::string shown;  // its end
};
ClientRun RunClient(std::vector<std::string> command, const std::filesystem::path& home, std::string_view lines);

}  // namespace ombrel::bench
