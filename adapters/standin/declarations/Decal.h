// The framework's core library: the plug-in and its site, and the client's hooks.
#pragma once

#include "adapters/standin/declarations/Slots.h"

namespace ombrel::standin {

struct IACHooks;
struct IDecal;
struct IPluginSite2;

struct IPlugin2 : IUnknown {
    using Base = IUnknown;
    static constexpr GUID kId = {0xDFFED96D, 0xC0B3, 0x45CC, {0x9B, 0x19, 0xA9, 0x5A, 0xFE, 0xED, 0xA6, 0x12}};

    STDMETHOD(Initialize)(IPluginSite2* /*site*/) { return NotOffered(); }
    STDMETHOD(Terminate)() { return NotOffered(); }
};

struct IPluginSite2 : IUnknown {
    using Base = IUnknown;
    static constexpr GUID kId = {0xFF37AF34, 0x3CAE, 0x4235, {0x9D, 0x85, 0x6E, 0xE6, 0x97, 0x69, 0x03, 0xD6}};

    STDMETHOD(Unload)() { return NotOffered(); }
    STDMETHOD(get_Object)(BSTR /*path*/, IDispatch**) { return NotOffered(); }
    STDMETHOD(get_Decal)(IDecal**) { return NotOffered(); }
    STDMETHOD(get_Hooks)(IACHooks**) { return NotOffered(); }
    STDMETHOD(get_PluginSite)(IUnknown**) { return NotOffered(); }
    STDMETHOD(RegisterSinks)(IUnknown* /*plugin*/) { return NotOffered(); }
};

struct IDecal : IUnknown {
    using Base = IUnknown;
    static constexpr GUID kId = {0xA38715BB, 0x91E7, 0x4C66, {0x95, 0xF9, 0x36, 0x30, 0x96, 0xF2, 0x97, 0x60}};

    STDMETHOD(InitGraphics)(IUnknown* /*d3_ddevice*/) { return NotOffered(); }
    STDMETHOD(GetD3DDevice)(const GUID* /*riid*/, IUnknown** /*ppv_itf*/) { return NotOffered(); }
    STDMETHOD(get_HWND)(long*) { return NotOffered(); }
    STDMETHOD(put_HWND)(long) { return NotOffered(); }
    STDMETHOD(get_Focus)(VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(SendWM)(long /*hwnd*/, short /*u_msg*/, long /*w_param*/, long /*param*/, VARIANT_BOOL* /*eat*/) {
        return NotOffered();
    }
    STDMETHOD(GetScreenSize)(long* /*width*/, long* /*height*/) { return NotOffered(); }
    STDMETHOD(MapPath)(BSTR /*path*/, BSTR* /*mapped*/) { return NotOffered(); }
    STDMETHOD(StartPlugins)() { return NotOffered(); }
    STDMETHOD(StopPlugins)() { return NotOffered(); }
    STDMETHOD(get_Object)(BSTR /*path*/, const GUID* /*riid*/, IUnknown**) { return NotOffered(); }
    STDMETHOD(StartServices)() { return NotOffered(); }
    STDMETHOD(get_Configuration)(BSTR /*type*/, const GUID* /*clsid_advance*/, IUnknown**) { return NotOffered(); }
    STDMETHOD(StopServices)() { return NotOffered(); }
    STDMETHOD(get_Plugin)(const GUID* /*clsid*/, const GUID* /*riid*/, IUnknown**) { return NotOffered(); }
    STDMETHOD(get_Service)(const GUID* /*clsid*/, const GUID* /*riid*/, IUnknown**) { return NotOffered(); }
    STDMETHOD(Render2D)() { return NotOffered(); }
    STDMETHOD(Render3D)() { return NotOffered(); }
    STDMETHOD(PreReset)() { return NotOffered(); }
    STDMETHOD(PostReset)() { return NotOffered(); }
    STDMETHOD(get_Hooks)(IACHooks**) { return NotOffered(); }
    STDMETHOD(StartFilters)() { return NotOffered(); }
    STDMETHOD(StopFilters)() { return NotOffered(); }
    STDMETHOD(KillBitCheckByGUID)(BSTR /*guid*/, BSTR /*version*/, VARIANT_BOOL* /*disabled*/) { return NotOffered(); }
    STDMETHOD(KillBitCheckByProgID)(BSTR /*prog_id*/, BSTR /*version*/, VARIANT_BOOL* /*disabled*/) {
        return NotOffered();
    }
    STDMETHOD(get_PluginsRunning)(VARIANT_BOOL*) { return NotOffered(); }
};

struct IACHooks : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0x93FD982E, 0xD1CE, 0x46C3, {0x94, 0x28, 0x53, 0x2A, 0xCC, 0xDA, 0x06, 0xCE}};

    STDMETHOD(SetIDFilter)(IUnknown* /*idfilter*/) { return NotOffered(); }
    STDMETHOD(SetDecal)(IUnknown* /*decal*/) { return NotOffered(); }
    STDMETHOD(get_HooksAvail)(long*) { return NotOffered(); }
    STDMETHOD(get_HooksAvailEx)(long /*hook_id*/, VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(AddChatText)(BSTR /*text*/, long /*color*/, long /*target*/) { return NotOffered(); }
    STDMETHOD(AddChatTextRaw)(BSTR /*text*/, long /*color*/, long /*target*/) { return NotOffered(); }
    STDMETHOD(AddStatusText)(BSTR /*text*/) { return NotOffered(); }
    STDMETHOD(InvokeChatParser)(BSTR /*text*/) { return NotOffered(); }
    STDMETHOD(SetIdleTime)(double /*idle_timeout*/) { return NotOffered(); }
    STDMETHOD(Logout)() { return NotOffered(); }
    STDMETHOD(get_CurrentSelection)(long*) { return NotOffered(); }
    STDMETHOD(put_CurrentSelection)(long) { return NotOffered(); }
    STDMETHOD(get_PreviousSelection)(long*) { return NotOffered(); }
    STDMETHOD(put_PreviousSelection)(long) { return NotOffered(); }
    STDMETHOD(get_SelectedStackCount)(long*) { return NotOffered(); }
    STDMETHOD(put_SelectedStackCount)(long) { return NotOffered(); }
    STDMETHOD(get_MaxSelectedStackCount)(long*) { return NotOffered(); }
    STDMETHOD(SetCursorPosition)(long /*x*/, long /*y*/) { return NotOffered(); }
    STDMETHOD(get_AC3DRegionRect)(RECT* /*region*/) { return NotOffered(); }
    STDMETHOD(get_AC3DRegionRectPtr)(RECT** /*region*/) { return NotOffered(); }
    STDMETHOD(get_ACWindowRect)(RECT* /*region*/) { return NotOffered(); }
    STDMETHOD(get_ChatState)(VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(get_BusyState)(long*) { return NotOffered(); }
    STDMETHOD(get_BusyStateID)(long*) { return NotOffered(); }
    STDMETHOD(get_PointerState)(long*) { return NotOffered(); }
    STDMETHOD(get_VendorID)(long*) { return NotOffered(); }
    STDMETHOD(VendorBuyListAdd)(long /*id*/, long /*amount*/) { return NotOffered(); }
    STDMETHOD(VendorBuyListClear)() { return NotOffered(); }
    STDMETHOD(VendorBuyAll)() { return NotOffered(); }
    STDMETHOD(VendorSellListAdd)(long /*id*/) { return NotOffered(); }
    STDMETHOD(VendorSellListClear)() { return NotOffered(); }
    STDMETHOD(VendorSellAll)() { return NotOffered(); }
    STDMETHOD(get_CombatMode)(long*) { return NotOffered(); }
    STDMETHOD(SetCombatMode)(long) { return NotOffered(); }
    STDMETHOD(SetAutorun)(VARIANT_BOOL /*on_off*/) { return NotOffered(); }
    STDMETHOD(FaceHeading)(float /*heading*/, VARIANT_BOOL /*unknown*/, VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(get_CommandInterpreter)(long*) { return NotOffered(); }
    STDMETHOD(SelectItem)(long /*object_id*/) { return NotOffered(); }
    STDMETHOD(GiveItem)(long /*object*/, long /*destination*/) { return NotOffered(); }
    STDMETHOD(ApplyItem)(long /*use_this*/, long /*on_this*/) { return NotOffered(); }
    STDMETHOD(UseItem)(long /*object_id*/, long /*use_state*/) { return NotOffered(); }
    STDMETHOD(UseItemRaw)(long /*object_id*/, long /*use_state*/, long /*use_method*/) { return NotOffered(); }
    STDMETHOD(MoveItem)(long /*object_id*/, long /*pack_id*/, long /*slot*/, VARIANT_BOOL /*stack*/) {
        return NotOffered();
    }
    STDMETHOD(MoveItemEx)(long /*object_id*/, long /*destination_id*/) { return NotOffered(); }
    STDMETHOD(MoveItemExRaw)(long /*object*/, long /*destination*/, long /*move_flags*/) { return NotOffered(); }
    STDMETHOD(DropItem)(long /*object_id*/) { return NotOffered(); }
    STDMETHOD(CastSpell)(long /*spell_id*/, long /*object_id*/) { return NotOffered(); }
    STDMETHOD(IsValidObject)(long /*guid*/, VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(GetWeenieObjectPtr)(long /*object_id*/, long*) { return NotOffered(); }
    STDMETHOD(GetPhysicsObjectPtr)(long /*object_id*/, long*) { return NotOffered(); }
    STDMETHOD(get_HeadingDegrees)(double*) { return NotOffered(); }
    STDMETHOD(get_HeadingRadians)(double*) { return NotOffered(); }
    STDMETHOD(get_Landcell)(long*) { return NotOffered(); }
    STDMETHOD(get_LocationX)(double*) { return NotOffered(); }
    STDMETHOD(get_LocationY)(double*) { return NotOffered(); }
    STDMETHOD(get_LocationZ)(double*) { return NotOffered(); }
    STDMETHOD(get_SkillTrainLevel)(long /*skill_id*/, long*) { return NotOffered(); }
    STDMETHOD(get_SkillTotalXP)(long /*skill_id*/, int*) { return NotOffered(); }
    STDMETHOD(get_SkillFreePoints)(long /*skill_id*/, int*) { return NotOffered(); }
    STDMETHOD(get_SkillClicks)(long /*skill_id*/, int*) { return NotOffered(); }
    STDMETHOD(get_AttributeTotalXP)(long /*attribute_id*/, int*) { return NotOffered(); }
    STDMETHOD(get_AttributeClicks)(long /*attribute_id*/, int*) { return NotOffered(); }
    STDMETHOD(get_AttributeStart)(long /*attribute_id*/, int*) { return NotOffered(); }
    STDMETHOD(get_VitalTotalXP)(long /*vital_d*/, int*) { return NotOffered(); }
    STDMETHOD(get_VitalClicks)(long /*vital_id*/, int*) { return NotOffered(); }
    STDMETHOD(get_Vital)(long /*vital*/, long*) { return NotOffered(); }
    STDMETHOD(get_Attribute)(long /*attribute*/, long*) { return NotOffered(); }
    STDMETHOD(get_Skill)(long /*skill*/, long*) { return NotOffered(); }
    STDMETHOD(get_Misc)(long /*misc*/, long*) { return NotOffered(); }
    STDMETHOD(RequestID)(long /*object_id*/) { return NotOffered(); }
    STDMETHOD(IDQueueAdd)(long /*object_id*/) { return NotOffered(); }
    STDMETHOD(SpellTabAdd)(long /*tab*/, long /*index*/, long /*spell_id*/) { return NotOffered(); }
    STDMETHOD(SpellTabDelete)(long /*tab*/, long /*spell_id*/) { return NotOffered(); }
    STDMETHOD(TradeAdd)(long /*item_id*/) { return NotOffered(); }
    STDMETHOD(TradeAccept)() { return NotOffered(); }
    STDMETHOD(TradeDecline)() { return NotOffered(); }
    STDMETHOD(TradeReset)() { return NotOffered(); }
    STDMETHOD(TradeEnd)() { return NotOffered(); }
    STDMETHOD(SalvagePanelAdd)(long /*object_id*/) { return NotOffered(); }
    STDMETHOD(SalvagePanelSalvage)() { return NotOffered(); }
    STDMETHOD(get_OpenedContainer)(long*) { return NotOffered(); }
    STDMETHOD(AddSkillExp)(long /*skill_id*/, long /*experience*/) { return NotOffered(); }
    STDMETHOD(AddAttributeExp)(long /*attrib_id*/, long /*experience*/) { return NotOffered(); }
    STDMETHOD(AddVitalExp)(long /*vital_id*/, long /*experience*/) { return NotOffered(); }
    STDMETHOD(SmartboxPtr)(long*) { return NotOffered(); }
    STDMETHOD(ObjectHeight)(long /*object_id*/, float*) { return NotOffered(); }
    STDMETHOD(put_CallerRefInstanceInternal)(long) { return NotOffered(); }
    STDMETHOD(AutoWieldRaw)
    (long /*object_id*/, long /*slot_id*/, long /*explicit*/, long /*not_explicit*/, long /*zero_val1*/,
     long /*zero_val2*/) {
        return NotOffered();
    }
    STDMETHOD(AutoWield)(long /*object_id*/) { return NotOffered(); }
    STDMETHOD(AutoWieldEx)(long /*object_id*/, long /*slot_id*/, long /*explicit*/, long /*not_explicit*/) {
        return NotOffered();
    }
    STDMETHOD(FellowshipRecruit)(long /*object_id*/) { return NotOffered(); }
    STDMETHOD(FellowshipGrantLeader)(long /*object_id*/) { return NotOffered(); }
    STDMETHOD(FellowshipSetOpen)(VARIANT_BOOL /*is_open*/) { return NotOffered(); }
    STDMETHOD(FellowshipQuit)() { return NotOffered(); }
    STDMETHOD(FellowshipDisband)() { return NotOffered(); }
    STDMETHOD(FellowshipDismiss)(long /*object_id*/) { return NotOffered(); }
};

namespace IACHooksEvents {
inline constexpr GUID kId = {0xEB282FE5, 0x7170, 0x4A37, {0xA2, 0x6E, 0x92, 0xAF, 0x36, 0x38, 0x5D, 0x2C}};
inline constexpr DISPID kObjectDestroyed = 1;
inline constexpr DISPID kChatTextIntercept = 2;
inline constexpr DISPID kChatParserIntercept = 3;
inline constexpr DISPID kStatusTextIntercept = 4;
inline constexpr DISPID kObjectSelected = 5;
inline constexpr DISPID kMessageProcessed = 6;
inline constexpr DISPID kAC3DRegionChanged = 7;
inline constexpr DISPID kContainerOpened = 8;
inline constexpr DISPID kChatClickIntercept = 9;
inline constexpr DISPID kRenderPreUI = 10;
}  // namespace IACHooksEvents

}  // namespace ombrel::standin
