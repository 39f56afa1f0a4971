#include "input/DHSHandler.h"

#include "core/Hub.h"

namespace ombrel {

DHSHandler::DHSHandler() { wtcw_debug("DHS Handler Init"); }

DHSHandler::~DHSHandler() { wtcw_debug("DHS Handler Terminate"); }

void DHSHandler::AddHotKeys() {}
void DHSHandler::HK_HotkeyEvent(const std::string&, bool&) {}

}  // namespace ombrel
