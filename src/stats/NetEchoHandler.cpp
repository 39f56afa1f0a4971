#include "stats/NetEchoHandler.h"

#include "core/Hub.h"

namespace ombrel {

NetEchoHandler::NetEchoHandler() { wtcw_debug("Net Echo Handler Init"); }

NetEchoHandler::~NetEchoHandler() { wtcw_debug("Net Echo Handler Terminate"); }

void NetEchoHandler::NetEcho_EchoServer(const host::Message&) {}
void NetEchoHandler::NetEcho_EchoClient(const host::Message&) {}
void NetEchoHandler::ResetHealth() {}

}  // namespace ombrel
