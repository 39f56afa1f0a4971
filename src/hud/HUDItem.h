// One line or cell of a HUD.
#pragma once

#include <cstdint>
#include <string>

namespace ombrel {

struct HUDItem {
    std::string data;        // the text
    std::string color;       // a HUD colour by name
    std::int32_t alpha = 0;  // 0 to 10, as ConvertColor takes it
    std::int32_t icon = -1;  // icon number without its base, -1 for none
    bool newline = true;     // ends its row
    std::int32_t width = 0;  // of the text, in pixels
    bool updated = true;     // to be painted at the next output
};

}  // namespace ombrel
