// What a player reads in the chat windows, as lines for a terminal.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

#include "adapters/sim/Client.h"

namespace ombrel::sim {

enum class Colors : std::uint8_t { kPlain, kAnsi };

// The line as a player reads it: without the marks of its links, and without characters that a terminal would obey.
std::string ReadableChat(std::string_view text);

class Transcript {
public:
    // `out` must outlive the transcript.
    Transcript(std::ostream& out, Colors colors) : out_(out), colors_(colors) {}

    // "[00:00:05] [main] You say, "hello""; the floating windows go by their number.
    void Show(const Client::ChatLine& line);

    // A note of the session, as a heading of what follows.
    void ShowNote(std::string_view text);

private:
    std::ostream& out_;
    Colors colors_;
    std::string buffer_;
};

}  // namespace ombrel::sim
