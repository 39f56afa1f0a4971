#include "adapters/decal/ComObject.h"

namespace ombrel::decal {

std::atomic<long> held_objects{0};

}  // namespace ombrel::decal
