// Library DecalInput (decalInput.dll): timers.
#pragma once

#include "adapters/decal/interfaces/Member.h"

namespace ombrel::decal {

inline constexpr GUID kTimerClass = Guid("79497C87-92E1-416B-AE5C-9D6C4C59133C");

struct IDecalTimer : Interface<IDecalTimer> {
    static constexpr GUID kIid = Guid("6CE124D7-534E-4BB6-AAF2-2BE22F69326D");
    static constexpr Method<7, long> Start{};
    static constexpr Method<8> Stop{};
    static constexpr Put<10, VARIANT> SetTag{};
    static constexpr Get<11, VARIANT_BOOL> Running{};
};

struct ITimerEvents {
    static constexpr GUID kIid = Guid("BBF25010-50FE-4398-BB78-BF8B9D392915");
    static constexpr DISPID Timeout = 1;
};

}  // namespace ombrel::decal
