// Library DecalPlugins (Inject.dll): views, fonts, key map and window messages.
#pragma once

#include "adapters/decal/interfaces/Member.h"

namespace ombrel::decal {

struct IControl;
struct IFontCache;
struct IView;

// IPluginSite2::PluginSite gives it as IUnknown.
struct IPluginSite : Interface<IPluginSite> {
    static constexpr GUID kIid = Guid("E9D10D39-63A9-478B-81FE-0045BA0593EF");
    static constexpr Method<9, BSTR, long, long, IFontCache**> DecalCreateFont{};
    static constexpr Method<13, BSTR, IView**> LoadView{};
    static constexpr Get<19, IDispatch*, BSTR> Plugin{};
    static constexpr Get<22, long> HWND{};
    static constexpr Method<25, BSTR, long*> QueryKeyboardMap{};
};

// Unlike elsewhere, the writing half of Position comes first.
struct IViewDisp : Interface<IViewDisp> {
    static constexpr GUID kIid = Guid("F3B54A0C-61B9-4B7A-9FD8-82B0477FB7D9");
    static constexpr Get<7, IControl*, BSTR> Control{};
    static constexpr Put<16, RECT*> SetPosition{};
    static constexpr Get<17, RECT> Position{};
};

struct IView : Interface<IView, IViewDisp> {
    static constexpr GUID kIid = Guid("A2AE18B7-85C9-451C-8CC3-D0FFE6B86EEB");
};

struct IControl : Interface<IControl> {
    static constexpr GUID kIid = Guid("996B377C-1953-4DB1-AAC1-157F72592D3E");
};

struct IFontCache : Interface<IFontCache> {
    static constexpr GUID kIid = Guid("12ECCB0F-36A6-451C-B086-1306B74AAEC2");
    static constexpr Method<8, BSTR, SIZE*> MeasureText{};
};

struct ICommandEvents {
    static constexpr GUID kIid = Guid("F029D3A1-29AF-45EF-927E-729FEDD87403");
    static constexpr DISPID Destroy = 1;
    static constexpr DISPID Accepted = 4;
};

struct IControlEvents {
    static constexpr GUID kIid = Guid("2FEBCBC3-488C-444F-AD08-5D3097D2D1ED");
    static constexpr DISPID Destroy = 1;
};

// What the plug-in implements. Members are in the order of the vtable. `uMsg` is short: its low 16 bits count.
struct IWindowsMessageSink : IUnknown {
    static constexpr GUID kIid = Guid("A68BE455-C241-49C5-9F8A-070E4CBE430F");
    virtual HRESULT STDMETHODCALLTYPE WindowMessage(long HWND, short uMsg, long wParam, long lParam,
                                                    VARIANT_BOOL* pbEat) = 0;
    virtual HRESULT STDMETHODCALLTYPE WindowMessageEnd() = 0;

protected:
    ~IWindowsMessageSink() = default;
};

}  // namespace ombrel::decal
