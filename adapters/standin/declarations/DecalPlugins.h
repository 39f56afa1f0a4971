// The library of views: the core object that plug-ins use, views, fonts, window messages.
#pragma once

#include "adapters/standin/declarations/Slots.h"

namespace ombrel::standin {

struct IACHooks;
struct IDecal;

struct IControl;
struct IFontCache;
struct IView;

struct IPluginSite : IUnknown {
    using Base = IUnknown;
    static constexpr GUID kId = {0xE9D10D39, 0x63A9, 0x478B, {0x81, 0xFE, 0x00, 0x45, 0xBA, 0x05, 0x93, 0xEF}};

    STDMETHOD(UnloadPlugin)(long /*id*/) { return NotOffered(); }
    STDMETHOD(GetPrimarySurface)(IUnknown** /*primary*/) { return NotOffered(); }
    STDMETHOD(Get3DDevice)(const GUID* /*ifaceid*/, IUnknown** /*ppv_itf*/) { return NotOffered(); }
    STDMETHOD(LoadBitmapFile)(BSTR /*filename*/, IUnknown** /*image*/) { return NotOffered(); }
    STDMETHOD(GetIconCache)(SIZE* /*psz*/, IUnknown** /*cache*/) { return NotOffered(); }
    STDMETHOD(LoadBitmapPortal)(long /*file*/, IUnknown** /*p1*/) { return NotOffered(); }
    STDMETHOD(DecalCreateFont)(BSTR /*face_name*/, long /*height*/, long /*flags*/, IFontCache** /*font*/) {
        return NotOffered();
    }
    STDMETHOD(GetScreenSize)(SIZE* /*sz*/) { return NotOffered(); }
    STDMETHOD(CreateCanvas)(SIZE* /*psz*/, IUnknown** /*canvas*/) { return NotOffered(); }
    STDMETHOD(CreateView)(BSTR /*title*/, void* /*params*/, IUnknown* /*layer*/, IView** /*view*/) {
        return NotOffered();
    }
    STDMETHOD(LoadView)(BSTR /*schema*/, IView** /*view*/) { return NotOffered(); }
    STDMETHOD(CreateBrushImage)(long /*color*/, IUnknown** /*img*/) { return NotOffered(); }
    STDMETHOD(LoadImageSchema)(IUnknown* /*schema*/, IUnknown** /*img*/) { return NotOffered(); }
    STDMETHOD(CreateFontSchema)
    (long /*def_height*/, long /*def_options*/, IUnknown* /*schema*/, IFontCache** /*cache*/) { return NotOffered(); }
    STDMETHOD(LoadResourceModule)(BSTR /*library*/, long* /*module*/) { return NotOffered(); }
    STDMETHOD(get_ResourcePath)(BSTR*) { return NotOffered(); }
    STDMETHOD(get_Plugin)(BSTR /*prog_id*/, IDispatch**) { return NotOffered(); }
    STDMETHOD(get_NetworkFilter)(BSTR /*prog_id*/, IDispatch**) { return NotOffered(); }
    STDMETHOD(LoadViewObject)(IUnknown* /*schema*/, IView** /*view*/) { return NotOffered(); }
    STDMETHOD(get_HWND)(long*) { return NotOffered(); }
    STDMETHOD(get_Focus)(VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(get_OldWndProc)(long* /*old_wnd_proc*/) { return NotOffered(); }
    STDMETHOD(QueryKeyboardMap)(BSTR /*name*/, long* /*ascii_val*/) { return NotOffered(); }
    STDMETHOD(get_Decal)(IDecal**) { return NotOffered(); }
    STDMETHOD(get_Hooks)(IACHooks**) { return NotOffered(); }
    STDMETHOD(RedrawBar)() { return NotOffered(); }
    STDMETHOD(get_FontName)(BSTR* /*font_name*/) { return NotOffered(); }
};

struct IControl : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0x996B377C, 0x1953, 0x4DB1, {0xAA, 0xC1, 0x15, 0x7F, 0x72, 0x59, 0x2D, 0x3E}};

    STDMETHOD(DestroyChild)(long /*index*/, long /*pos_type*/) { return NotOffered(); }
    STDMETHOD(get_ID)(long*) { return NotOffered(); }
    STDMETHOD(get_ChildCount)(long*) { return NotOffered(); }
    STDMETHOD(get_Child)(long /*index*/, long /*pos_type*/, IControl**) { return NotOffered(); }
};

struct IViewDisp : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0xF3B54A0C, 0x61B9, 0x4B7A, {0x9F, 0xD8, 0x82, 0xB0, 0x47, 0x7F, 0xB7, 0xD9}};

    STDMETHOD(get_Control)(BSTR /*name*/, IControl**) { return NotOffered(); }
    STDMETHOD(get_ControlEx)(BSTR /*name*/, const GUID* /*ifaceid*/, IUnknown** /*ppv_itf*/) { return NotOffered(); }
    STDMETHOD(putref_Control)(BSTR /*name*/, IControl*) { return NotOffered(); }
    STDMETHOD(get_Title)(BSTR*) { return NotOffered(); }
    STDMETHOD(put_Title)(BSTR) { return NotOffered(); }
    STDMETHOD(Alert)() { return NotOffered(); }
    STDMETHOD(SetIcon)(long /*icon*/, VARIANT /*icon_library*/) { return NotOffered(); }
    STDMETHOD(Activate)() { return NotOffered(); }
    STDMETHOD(Deactivate)() { return NotOffered(); }
    STDMETHOD(put_Position)(RECT*) { return NotOffered(); }
    STDMETHOD(get_Position)(RECT*) { return NotOffered(); }
};

struct IView : IViewDisp {
    using Base = IViewDisp;
    static constexpr GUID kId = {0xA2AE18B7, 0x85C9, 0x451C, {0x8C, 0xC3, 0xD0, 0xFF, 0xE6, 0xB8, 0x6E, 0xEB}};

    STDMETHOD(LoadControl)(IUnknown* /*parent*/, long /*id*/, IUnknown* /*xmlsource*/, long* /*assigned_id*/) {
        return NotOffered();
    }
    STDMETHOD(LoadSchema)(BSTR /*xmlschema*/) { return NotOffered(); }
    STDMETHOD(put_Alpha)(long) { return NotOffered(); }
    STDMETHOD(get_Activated)(VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(put_Activated)(VARIANT_BOOL) { return NotOffered(); }
    STDMETHOD(get_Transparent)(VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(put_Transparent)(VARIANT_BOOL) { return NotOffered(); }
    STDMETHOD(get_Alpha)(long*) { return NotOffered(); }
};

struct IFontCache : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0x12ECCB0F, 0x36A6, 0x451C, {0xB0, 0x86, 0x13, 0x06, 0xB7, 0x4A, 0xAE, 0xC2}};

    STDMETHOD(DecalDrawText)(POINT* /*pt*/, BSTR /*text*/, long /*clr*/, IUnknown* /*target*/) { return NotOffered(); }
    STDMETHOD(MeasureText)(BSTR /*text*/, SIZE* /*ext*/) { return NotOffered(); }
    STDMETHOD(HitTest)(BSTR /*text*/, long /*pos*/, long* /*index*/) { return NotOffered(); }
    STDMETHOD(DecalDrawTextEx)
    (POINT* /*pt*/, BSTR /*text*/, long /*clr1*/, long /*clr2*/, long /*flags*/, IUnknown* /*target*/) {
        return NotOffered();
    }
};

struct IWindowsMessageSink : IUnknown {
    using Base = IUnknown;
    static constexpr GUID kId = {0xA68BE455, 0xC241, 0x49C5, {0x9F, 0x8A, 0x07, 0x0E, 0x4C, 0xBE, 0x43, 0x0F}};

    STDMETHOD(WindowMessage)(long /*hwnd*/, short /*u_msg*/, long /*w_param*/, long /*param*/, VARIANT_BOOL* /*eat*/) {
        return NotOffered();
    }
    STDMETHOD(WindowMessageEnd)() { return NotOffered(); }
};

namespace IControlEvents {
inline constexpr GUID kId = {0x2FEBCBC3, 0x488C, 0x444F, {0xAD, 0x08, 0x5D, 0x30, 0x97, 0xD2, 0xD1, 0xED}};
inline constexpr DISPID kDestroy = 1;
}  // namespace IControlEvents

namespace ICommandEvents {
inline constexpr GUID kId = {0xF029D3A1, 0x29AF, 0x45EF, {0x92, 0x7E, 0x72, 0x9F, 0xED, 0xD8, 0x74, 0x03}};
inline constexpr DISPID kDestroy = 1;
inline constexpr DISPID kHit = 2;
inline constexpr DISPID kUnhit = 3;
inline constexpr DISPID kAccepted = 4;
inline constexpr DISPID kCanceled = 5;
}  // namespace ICommandEvents

}  // namespace ombrel::standin
