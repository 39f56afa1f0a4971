// Library DecalRender (decalrender.dll): drawing surfaces over the 3D area. Rectangles go by address, so these members
// can be called by vtable only. Colours are 0xAARRGGBB.
#pragma once

#include "adapters/decal/interfaces/Member.h"

namespace ombrel::decal {

struct IHUDView;

struct IRenderService : Interface<IRenderService> {
    static constexpr GUID kIid = Guid("BB70ABAC-FF03-41FE-8714-C24692C10827");
    static constexpr Method<8, RECT*, IHUDView**> CreateHUD{};
    static constexpr Method<12, IHUDView*> RemoveHUD{};
};

struct IRenderServiceEvents {
    static constexpr GUID kIid = Guid("3C49F52D-55FF-42D8-99B0-BB185E9A684F");
    static constexpr DISPID DeviceLost = 1;
};

struct IRenderTarget : Interface<IRenderTarget> {
    static constexpr GUID kIid = Guid("F229E8CB-6F85-46F5-9C8A-8399F60A37CB");
    static constexpr Put<11, RECT*> SetRegion{};
    static constexpr Method<12, RECT*, long> Fill{};
    static constexpr Method<13, RECT*> Clear{};
    static constexpr Method<14, VARIANT_BOOL> BeginRender{};
    static constexpr Method<15> EndRender{};
    static constexpr Method<16, BSTR, long, long, VARIANT_BOOL> BeginText{};
    static constexpr Method<17> EndText{};
    static constexpr Method<18, long, RECT*> DrawPortalImage{};
    static constexpr Method<21, RECT*, long, long, BSTR> WriteText{};
};

struct IRenderScalable : Interface<IRenderScalable, IRenderTarget> {
    static constexpr GUID kIid = Guid("66B36C61-0020-4FF8-A717-1B53F97556C7");
};

struct IHUDView : Interface<IHUDView, IRenderScalable> {
    static constexpr GUID kIid = Guid("89D2D46A-FA62-466E-9D29-1A7344C30BD1");
    static constexpr Put<34, VARIANT_BOOL> SetEnabled{};
};

}  // namespace ombrel::decal
