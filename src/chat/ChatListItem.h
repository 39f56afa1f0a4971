// One row of the pattern list that sorts chat lines.
#pragma once

#include <cstdint>
#include <string>

namespace ombrel {

struct ChatListItem {
    std::string TextIn;      // wildcard pattern, or one of the pseudo patterns _KILL_, _EXPIRE_, _NPC_
    std::string ListID;      // the row of the Chat_Color list that rules the line
    std::int32_t color = 0;  // the chat type for which the pattern is valid
};

}  // namespace ombrel
