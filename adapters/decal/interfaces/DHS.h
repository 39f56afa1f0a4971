// Library DHS (DHS.dll): the hotkey plug-in.
#pragma once

#include "adapters/decal/interfaces/Member.h"

namespace ombrel::decal {

inline constexpr GUID kHotkeyClass = Guid("F5AA853D-CCF3-4562-A654-3A68AB583BCC");

struct IHotkey;

struct IHotkeySystem : Interface<IHotkeySystem> {
    static constexpr GUID kIid = Guid("85C12F39-FD37-4E70-982A-3973FA6D376B");
    static constexpr Method<7, BSTR, IHotkey*> AddHotkey{};
    static constexpr Method<8, BSTR, VARIANT_BOOL*> QueryHotkey{};
};

struct IHotkey : Interface<IHotkey> {
    static constexpr GUID kIid = Guid("81B629ED-6204-4411-80E3-95CD65E40621");
    static constexpr Put<8, BSTR> SetEventTitle{};
    static constexpr Put<10, BSTR> SetEventDescription{};
};

struct IHotkeySystemEvents {
    static constexpr GUID kIid = Guid("B51801E0-74AF-4916-AB0F-E06B09567C3C");
    static constexpr DISPID HotkeyEvent = 1;
};

}  // namespace ombrel::decal
