#include "input/KeyboardAC.h"

#include "core/Hub.h"

namespace ombrel {

KeyboardAC::KeyboardAC() { wtcw_debug("KeyboardAC Init"); }

KeyboardAC::~KeyboardAC() { wtcw_debug("KeyboardAC Terminate"); }

void KeyboardAC::SendKey(std::int32_t) {}

}  // namespace ombrel
