// One queued action on an item.
#pragma once

#include <cstdint>

#include "host/Types.h"

namespace ombrel {

struct EventItem {
    std::int32_t eventtype = 0;
    host::Id arg1 = 0;      // the item to use
    host::Id arg2 = 0;      // what it is used on
    std::int32_t arg3 = 0;  // the stack size seen when the action was queued
};

}  // namespace ombrel
