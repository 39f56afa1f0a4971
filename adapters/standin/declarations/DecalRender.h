// Surfaces over the 3D area.
#pragma once

#include "adapters/standin/declarations/Slots.h"

namespace ombrel::standin {

struct IHUDView;
struct IRenderTarget;

struct IRenderService : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0xBB70ABAC, 0xFF03, 0x41FE, {0x87, 0x14, 0xC2, 0x46, 0x92, 0xC1, 0x08, 0x27}};

    STDMETHOD(get_Device)(IUnknown**) { return NotOffered(); }
    STDMETHOD(CreateHUD)(RECT* /*region*/, IHUDView**) { return NotOffered(); }
    STDMETHOD(CreateBackground)(RECT* /*region*/, IUnknown**) { return NotOffered(); }
    STDMETHOD(EncapsulateHUD)(POINT* /*coords*/, IUnknown* /*surface*/, IHUDView**) { return NotOffered(); }
    STDMETHOD(EncapsulateBackground)(POINT* /*coords*/, IUnknown* /*surface*/, IUnknown**) { return NotOffered(); }
    STDMETHOD(RemoveHUD)(IHUDView* /*hud*/) { return NotOffered(); }
};

struct IRenderTarget : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0xF229E8CB, 0x6F85, 0x46F5, {0x9C, 0x8A, 0x83, 0x99, 0xF6, 0x0A, 0x37, 0xCB}};

    STDMETHOD(get_Lost)(VARIANT_BOOL* /*lost*/) { return NotOffered(); }
    STDMETHOD(SetSurface)(IUnknown* /*surface*/) { return NotOffered(); }
    STDMETHOD(GetSurface)(IUnknown**) { return NotOffered(); }
    STDMETHOD(get_Region)(RECT*) { return NotOffered(); }
    STDMETHOD(put_Region)(RECT*) { return NotOffered(); }
    STDMETHOD(Fill)(RECT* /*fill_area*/, long /*color*/) { return NotOffered(); }
    STDMETHOD(Clear)(RECT* /*clear_area*/) { return NotOffered(); }
    STDMETHOD(BeginRender)(VARIANT_BOOL /*filter_texture*/) { return NotOffered(); }
    STDMETHOD(EndRender)() { return NotOffered(); }
    STDMETHOD(BeginText)(BSTR /*font_name*/, long /*height*/, long /*weight*/, VARIANT_BOOL /*italic*/) {
        return NotOffered();
    }
    STDMETHOD(EndText)() { return NotOffered(); }
    STDMETHOD(DrawPortalImage)(long /*portal_file*/, RECT* /*dest_area*/) { return NotOffered(); }
    STDMETHOD(DrawPortalImageEx)(long /*portal_file*/, long /*alpha*/, RECT* /*src_area*/, RECT* /*dest_area*/) {
        return NotOffered();
    }
    STDMETHOD(DrawImage)(long /*buffer*/, long /*size*/, RECT* /*dest_region*/, long /*color_key*/) {
        return NotOffered();
    }
    STDMETHOD(WriteText)(RECT* /*region*/, long /*color*/, long /*format*/, BSTR /*text*/) { return NotOffered(); }
    STDMETHOD(TilePortalImage)(long /*portal_file*/, RECT* /*dest_area*/) { return NotOffered(); }
    STDMETHOD(TilePortalImageEx)(long /*portal_file*/, RECT* /*src_area*/, RECT* /*dest_area*/) { return NotOffered(); }
    STDMETHOD(get_Constraints)(RECT*) { return NotOffered(); }
    STDMETHOD(Constrain)(RECT* /*region*/, IRenderTarget**) { return NotOffered(); }
};

struct IRenderScalable : IRenderTarget {
    using Base = IRenderTarget;
    static constexpr GUID kId = {0x66B36C61, 0x0020, 0x4FF8, {0xA7, 0x17, 0x1B, 0x53, 0xF9, 0x75, 0x56, 0xC7}};

    STDMETHOD(ScaleTo)(RECT* /*area*/) { return NotOffered(); }
    STDMETHOD(get_ScaleFactor)(float* /*factor*/) { return NotOffered(); }
    STDMETHOD(put_ScaleFactor)(float /*factor*/) { return NotOffered(); }
    STDMETHOD(get_Scaling)(VARIANT_BOOL* /*enable*/) { return NotOffered(); }
    STDMETHOD(put_Scaling)(VARIANT_BOOL /*enable*/) { return NotOffered(); }
    STDMETHOD(get_ScaleRect)(RECT* /*area*/) { return NotOffered(); }
};

struct IHUDView : IRenderScalable {
    using Base = IRenderScalable;
    static constexpr GUID kId = {0x89D2D46A, 0xFA62, 0x466E, {0x9D, 0x29, 0x1A, 0x73, 0x44, 0xC3, 0x0B, 0xD1}};

    STDMETHOD(get_ID)(int*) { return NotOffered(); }
    STDMETHOD(get_Enabled)(VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(put_Enabled)(VARIANT_BOOL) { return NotOffered(); }
    STDMETHOD(SetBackground)(IUnknown* /*background*/) { return NotOffered(); }
    STDMETHOD(get_Angle)(float* /*angle*/) { return NotOffered(); }
    STDMETHOD(put_Angle)(float /*angle*/) { return NotOffered(); }
    STDMETHOD(get_Alpha)(int* /*alpha*/) { return NotOffered(); }
    STDMETHOD(put_Alpha)(int /*alpha*/) { return NotOffered(); }
    STDMETHOD(PushClipRegion)(RECT* /*region*/) { return NotOffered(); }
    STDMETHOD(PopClipRegion)() { return NotOffered(); }
    STDMETHOD(RemoveClipping)() { return NotOffered(); }
    STDMETHOD(get_IsClipped)(VARIANT_BOOL* /*clipped*/) { return NotOffered(); }
    STDMETHOD(MeasureText)(BSTR /*text*/, RECT* /*ret*/) { return NotOffered(); }
};

namespace IRenderServiceEvents {
inline constexpr GUID kId = {0x3C49F52D, 0x55FF, 0x42D8, {0x99, 0xB0, 0xBB, 0x18, 0x5E, 0x9A, 0x68, 0x4F}};
inline constexpr DISPID kDeviceLost = 1;
}  // namespace IRenderServiceEvents

}  // namespace ombrel::standin
