#include "adapters/standin/Hooks.h"

namespace ombrel::standin {

namespace {

// A vendor that is open without being anybody.
constexpr host::Id kNamelessVendor = 0x7ABC0001;

// A member whose hook the client lacks does nothing, and says so in a result that is no error.
template <class Body>
HRESULT ServeHook(std::string_view name, Body body) {
    const auto& missing = TheHabits().missing_hooks;
    if (!missing.empty() && missing.contains(name)) {
        ++TheLedger().calls;
        return S_FALSE;
    }
    return Serve(body);
}

}  // namespace

Hooks::Hooks(sim::Client& client, std::unique_ptr<host::ACHooks> hooks)
    : SourceObject(IACHooksEvents::kId), client_(client), hooks_(std::move(hooks)) {
    BindEvents();
}

void Hooks::BindEvents() {
    hooks_->ChatTextIntercept = [this](const std::string& text, std::int32_t color, std::int32_t window, bool& eat) {
        VARIANT_BOOL answer = ToVariantBool(eat);
        events.Raise(IACHooksEvents::kChatTextIntercept, text, color, window, &answer);
        eat = answer != VARIANT_FALSE;
    };
    hooks_->ChatParserIntercept = [this](const std::string& text, bool& eat) {
        VARIANT_BOOL answer = ToVariantBool(eat);
        events.Raise(IACHooksEvents::kChatParserIntercept, text, &answer);
        eat = answer != VARIANT_FALSE;
    };
    hooks_->StatusTextIntercept = [this](const std::string& text, bool& eat) {
        VARIANT_BOOL answer = ToVariantBool(eat);
        events.Raise(IACHooksEvents::kStatusTextIntercept, text, &answer);
        eat = answer != VARIANT_FALSE;
    };
    hooks_->ChatClickIntercept = [this](const std::string& text, host::Id id, bool& eat) {
        VARIANT_BOOL answer = ToVariantBool(eat);
        events.Raise(IACHooksEvents::kChatClickIntercept, text, id, &answer);
        eat = answer != VARIANT_FALSE;
    };
    hooks_->ContainerOpened = [this](host::Id id) { events.Raise(IACHooksEvents::kContainerOpened, id); };
    hooks_->ObjectSelected = [this](host::Id id) { events.Raise(IACHooksEvents::kObjectSelected, id); };
    hooks_->AC3DRegionChanged = [this](std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
        events.Raise(IACHooksEvents::kAC3DRegionChanged, left, top, right, bottom);
    };
}

// The client shows a plug-in's line to all plug-ins, that one included.
void Hooks::Echo(BSTR text, long color, long window) {
    VARIANT_BOOL eat = VARIANT_FALSE;
    events.Raise(IACHooksEvents::kChatTextIntercept, Narrow(text), static_cast<std::int32_t>(color),
                 static_cast<std::int32_t>(window), &eat);
    if (eat != VARIANT_FALSE) ++TheLedger().eaten_echoes;
}

HRESULT Hooks::AddChatText(BSTR text, long color, long window) {
    return ServeHook("AddChatText", [&] {
        hooks_->ChatOut(Narrow(text), color, window);
        Echo(text, color, window);
    });
}

HRESULT Hooks::AddChatTextRaw(BSTR text, long color, long window) {
    return ServeHook("AddChatTextRaw", [&] {
        hooks_->ChatOutRaw(Narrow(text), color, window);
        Echo(text, color, window);
    });
}

HRESULT Hooks::InvokeChatParser(BSTR text) {
    return ServeHook("InvokeChatParser", [&] { hooks_->InvokeChatParser(Narrow(text)); });
}

HRESULT Hooks::SetIdleTime(double seconds) {
    return ServeHook("SetIdleTime", [&] { hooks_->SetIdleTime(seconds); });
}

HRESULT Hooks::get_CurrentSelection(long* id) {
    return ServeHook("CurrentSelection", [&] { *id = hooks_->CurrentSelection(); });
}

HRESULT Hooks::get_ChatState(VARIANT_BOOL* open) {
    return ServeHook("ChatState", [&] { *open = ToVariantBool(hooks_->ChatState()); });
}

HRESULT Hooks::get_BusyState(long* state) {
    return ServeHook("BusyState", [&] { *state = hooks_->BusyState(); });
}

HRESULT Hooks::get_PointerState(long* image) {
    return ServeHook("PointerState", [&] { *image = hooks_->PointerState(); });
}

HRESULT Hooks::get_CombatMode(long* mode) {
    return ServeHook("CombatMode", [&] { *mode = hooks_->CombatMode(); });
}

// One number answers both of the plug-in's questions: who the open vendor is, and whether there is one.
HRESULT Hooks::get_VendorID(long* id) {
    return ServeHook("VendorID", [&] {
        const host::Id vendor = hooks_->ReferenceContainer();
        *id = vendor == 0 && hooks_->VendorOpen() ? kNamelessVendor : vendor;
    });
}

HRESULT Hooks::get_AC3DRegionRect(RECT* region) {
    return ServeHook("AC3DRegionRect", [&] {
        const host::Rect rect = hooks_->Region3D();
        *region = {rect.left, rect.top, rect.right, rect.bottom};
    });
}

HRESULT Hooks::IsValidObject(long id, VARIANT_BOOL* valid) {
    return ServeHook("IsValidObject", [&] { *valid = ToVariantBool(hooks_->IsValidObject(id)); });
}

HRESULT Hooks::SelectItem(long id) {
    return ServeHook("SelectItem", [&] { hooks_->SelectItem(id); });
}

HRESULT Hooks::UseItem(long id, long flag) {
    return ServeHook("UseItem", [&] { hooks_->UseItem(id, flag); });
}

HRESULT Hooks::ApplyItem(long id, long target) {
    return ServeHook("ApplyItem", [&] { hooks_->UseItemOnTarget(id, target); });
}

HRESULT Hooks::GiveItem(long id, long target) {
    return ServeHook("GiveItem", [&] { hooks_->GiveItem(id, target); });
}

HRESULT Hooks::RequestID(long id) {
    return ServeHook("RequestID", [&] { hooks_->RequestID(id); });
}

HRESULT Hooks::IDQueueAdd(long id) {
    return ServeHook("IDQueueAdd", [&] { hooks_->IdentifyObject(id); });
}

HRESULT Hooks::put_SelectedStackCount(long count) {
    return ServeHook("SelectedStackCount", [&] { hooks_->SetStackSize(count); });
}

HRESULT Hooks::MoveItemEx(long source, long target) {
    return ServeHook("MoveItemEx", [&] { hooks_->MergeStacks(source, target); });
}

HRESULT Hooks::VendorBuyListAdd(long id, long count) {
    return ServeHook("VendorBuyListAdd", [&] { hooks_->VendorAddBuy(id, count); });
}

HRESULT Hooks::VendorBuyAll() {
    return ServeHook("VendorBuyAll", [&] { hooks_->VendorBuyAll(); });
}

HRESULT Hooks::VendorSellListAdd(long id) {
    return ServeHook("VendorSellListAdd", [&] { hooks_->VendorAddSell(id); });
}

HRESULT Hooks::VendorSellAll() {
    return ServeHook("VendorSellAll", [&] { hooks_->VendorSellAll(); });
}

}  // namespace ombrel::standin
