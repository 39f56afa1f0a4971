// The mouse over the HUDs: hover, drag, clicks, and the two keys that go with them.
//
// The render service gives no mouse events, so the game window's raw messages are tested against the five HUDs. None of
// them is kept from the game.
#pragma once

#include <cstdint>

namespace ombrel {

// Takes a message of the game window; only moves and the left button mean anything. A failure reaches the caller.
void HandleMouse(std::int32_t message);

}  // namespace ombrel
