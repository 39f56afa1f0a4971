// The hotkey plug-in.
#pragma once

#include "adapters/standin/declarations/Slots.h"

namespace ombrel::standin {

struct IHotkey;

struct IHotkey : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0x81B629ED, 0x6204, 0x4411, {0x80, 0xE3, 0x95, 0xCD, 0x65, 0xE4, 0x06, 0x21}};

    STDMETHOD(get_EventTitle)(BSTR*) { return NotOffered(); }
    STDMETHOD(put_EventTitle)(BSTR) { return NotOffered(); }
    STDMETHOD(get_EventDescription)(BSTR*) { return NotOffered(); }
    STDMETHOD(put_EventDescription)(BSTR) { return NotOffered(); }
    STDMETHOD(get_AltState)(VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(put_AltState)(VARIANT_BOOL) { return NotOffered(); }
    STDMETHOD(get_ControlState)(VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(put_ControlState)(VARIANT_BOOL) { return NotOffered(); }
    STDMETHOD(get_ShiftState)(VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(put_ShiftState)(VARIANT_BOOL) { return NotOffered(); }
    STDMETHOD(get_VirtualKey)(long*) { return NotOffered(); }
    STDMETHOD(put_VirtualKey)(long) { return NotOffered(); }
};

struct IHotkeySystem : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0x85C12F39, 0xFD37, 0x4E70, {0x98, 0x2A, 0x39, 0x73, 0xFA, 0x6D, 0x37, 0x6B}};

    STDMETHOD(AddHotkey)(BSTR /*plugin*/, IHotkey* /*hotkey*/) { return NotOffered(); }
    STDMETHOD(QueryHotkey)(BSTR /*title*/, VARIANT_BOOL* /*exists*/) { return NotOffered(); }
    STDMETHOD(Connect)(IUnknown* /*plugin*/) { return NotOffered(); }
    STDMETHOD(DeleteHotkey)(BSTR /*plugin_cookie*/, BSTR /*hotkey_name*/) { return NotOffered(); }
    STDMETHOD(QueryHotkeyEx)(BSTR /*plugin_cookie*/, BSTR /*title*/, IHotkey** /*hotkey*/) { return NotOffered(); }
};

namespace IHotkeySystemEvents {
inline constexpr GUID kId = {0xB51801E0, 0x74AF, 0x4916, {0xAB, 0x0F, 0xE0, 0x6B, 0x09, 0x56, 0x7C, 0x3C}};
inline constexpr DISPID kHotkeyEvent = 1;
}  // namespace IHotkeySystemEvents

}  // namespace ombrel::standin
