// One line of the chat log.
#pragma once

#include <cstdint>
#include <string>

namespace ombrel {

struct LogItem {
    std::string message;        // without name links
    std::int32_t msgtype = 0;   // chat type
    std::int32_t msgcolor = 0;  // colour that it was shown in, 0 to 31
    std::int32_t msgdate = 0;   // moment
    std::int32_t msgtag = 0;    // log class
    std::int32_t MsgID = 0;     // serial number in the store, 0 in the file queue
};

}  // namespace ombrel
