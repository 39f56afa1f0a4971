#include "input/KeyboardAC.h"

#include "core/Hub.h"

namespace ombrel {

KeyboardAC::KeyboardAC() { wtcw_debug("KeyboardAC Init"); }

KeyboardAC::~KeyboardAC() { wtcw_debug("KeyboardAC Terminate"); }

void KeyboardAC::Run() {}
void KeyboardAC::SendKey(std::int32_t) {}
void KeyboardAC::SendString(const std::string&, bool) {}
void KeyboardAC::AddWaitforChat() {}

}  // namespace ombrel
