#include "automation/EventQueue.h"

#include "core/Hub.h"

namespace ombrel {

EventQueue::EventQueue() { wtcw_debug("Event Queue Init"); }

EventQueue::~EventQueue() { wtcw_debug("Event Queue Terminate"); }

void EventQueue::Run() {}

}  // namespace ombrel
