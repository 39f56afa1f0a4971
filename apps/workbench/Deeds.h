// What can be made to happen, as a table.
#pragma once

#include <span>
#include <string_view>

#include "apps/workbench/Game.h"

namespace ombrel::workbench {

struct Deed {
    std::string_view group;  // rows of one group stand together
    const char* label;
    const char* hint;
    void (*happen)(Game& game);
};

std::span<const Deed> Deeds();

}  // namespace ombrel::workbench
