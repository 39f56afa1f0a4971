#include "adapters/decal/DecalTimer.h"

namespace ombrel::decal {

DecalTimer::DecalTimer(std::string_view name)
    : timer_(CreateInstance<IDecalTimer>(kTimerClass)),
      events_(timer_.Unknown(), ITimerEvents::kIid,
              {{ITimerEvents::Timeout, [this](const EventArguments&) { Raise(Timeout); }}}) {
    timer_.Call(IDecalTimer::SetTag, Variant(name).get());
}

void DecalTimer::Start(std::int32_t milliseconds) { timer_.Call(IDecalTimer::Start, milliseconds); }
void DecalTimer::Stop() { timer_.Call(IDecalTimer::Stop); }
bool DecalTimer::Running() const { return timer_.Read(IDecalTimer::Running); }

}  // namespace ombrel::decal
