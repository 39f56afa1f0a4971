// Library Decal (Decal.dll): the plug-in's site and the client's hooks.
#pragma once

#include "adapters/decal/interfaces/Member.h"

namespace ombrel::decal {

struct IACHooks;

// Handed to IPlugin2::Initialize.
struct IPluginSite2 : Interface<IPluginSite2> {
    static constexpr GUID kIid = Guid("FF37AF34-3CAE-4235-9D85-6EE6976903D6");
    static constexpr Get<4, IDispatch*, BSTR> Object{};
    static constexpr Get<6, IACHooks*> Hooks{};
    static constexpr Get<7, IUnknown*> PluginSite{};
    static constexpr Method<8, IUnknown*> RegisterSinks{};
};

// What the plug-in implements. Members are in the order of the vtable.
struct IPlugin2 : IUnknown {
    static constexpr GUID kIid = Guid("DFFED96D-C0B3-45CC-9B19-A95AFEEDA612");
    virtual HRESULT STDMETHODCALLTYPE Initialize(::IUnknown* Site) = 0;
    virtual HRESULT STDMETHODCALLTYPE Terminate() = 0;

protected:
    ~IPlugin2() = default;
};

// A member whose hook this client lacks answers S_FALSE and leaves its out parameters as they were.
struct IACHooks : Interface<IACHooks> {
    static constexpr GUID kIid = Guid("93FD982E-D1CE-46C3-9428-532ACCDA06CE");
    static constexpr Method<11, BSTR, long, long> AddChatText{};
    static constexpr Method<12, BSTR, long, long> AddChatTextRaw{};
    static constexpr Method<14, BSTR> InvokeChatParser{};
    static constexpr Method<15, double> SetIdleTime{};
    static constexpr Get<17, long> CurrentSelection{};
    static constexpr Put<22, long> SetSelectedStackCount{};
    static constexpr Get<25, RECT> AC3DRegionRect{};
    static constexpr Get<28, VARIANT_BOOL> ChatState{};
    static constexpr Get<29, long> BusyState{};
    static constexpr Get<31, long> PointerState{};
    static constexpr Get<32, long> VendorID{};
    static constexpr Method<33, long, long> VendorBuyListAdd{};
    static constexpr Method<35> VendorBuyAll{};
    static constexpr Method<36, long> VendorSellListAdd{};
    static constexpr Method<38> VendorSellAll{};
    static constexpr Get<39, long> CombatMode{};
    static constexpr Method<44, long> SelectItem{};
    static constexpr Method<45, long, long> GiveItem{};
    static constexpr Method<46, long, long> ApplyItem{};
    static constexpr Method<47, long, long> UseItem{};
    static constexpr Method<50, long, long> MoveItemEx{};
    static constexpr Method<54, long, VARIANT_BOOL*> IsValidObject{};
    static constexpr Method<76, long> RequestID{};
    static constexpr Method<77, long> IDQueueAdd{};
};

struct IACHooksEvents {
    static constexpr GUID kIid = Guid("EB282FE5-7170-4A37-A26E-92AF36385D2C");
    static constexpr DISPID ChatTextIntercept = 2;
    static constexpr DISPID ChatParserIntercept = 3;
    static constexpr DISPID StatusTextIntercept = 4;
    static constexpr DISPID ObjectSelected = 5;
    static constexpr DISPID AC3DRegionChanged = 7;
    static constexpr DISPID ContainerOpened = 8;
    static constexpr DISPID ChatClickIntercept = 9;
};

}  // namespace ombrel::decal
