// Timers.
#pragma once

#include "adapters/standin/declarations/Slots.h"

namespace ombrel::standin {

struct IDecalTimer : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0x6CE124D7, 0x534E, 0x4BB6, {0xAA, 0xF2, 0x2B, 0xE2, 0x2F, 0x69, 0x32, 0x6D}};

    STDMETHOD(Start)(long /*interval*/) { return NotOffered(); }
    STDMETHOD(Stop)() { return NotOffered(); }
    STDMETHOD(get_Tag)(VARIANT*) { return NotOffered(); }
    STDMETHOD(put_Tag)(VARIANT) { return NotOffered(); }
    STDMETHOD(get_Running)(VARIANT_BOOL*) { return NotOffered(); }
};

namespace ITimerEvents {
inline constexpr GUID kId = {0xBBF25010, 0x50FE, 0x4398, {0xBB, 0x78, 0xBF, 0x8B, 0x9D, 0x39, 0x29, 0x15}};
inline constexpr DISPID kTimeout = 1;
}  // namespace ITimerEvents

}  // namespace ombrel::standin
