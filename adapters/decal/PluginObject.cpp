#include "adapters/decal/PluginObject.h"

#include "adapters/decal/DecalSite.h"
#include "adapters/decal/Dispatch.h"
#include "adapters/decal/Module.h"
#include "adapters/decal/WindowsPlatform.h"
#include "core/failure.h"

namespace ombrel::decal {

namespace {

// The plug-in that runs: lines that are handed to any object of the class go to it.
APluginCore* running = nullptr;

constexpr ScriptMember<PluginObject> kMembers[] = {
    {L"AddChatText", 1, 3,
     [](PluginObject& self, const EventArguments& line, VARIANT*) {
         return self.AddChatText(Bstr(line.Text(0)).get(), line.Long(1), line.Long(2));
     }},
};
constexpr std::span<const ScriptMember<PluginObject>> kScriptMembers = kMembers;

}  // namespace

PluginObject::PluginObject() = default;

// The framework ends a plug-in before it lets go of it. One that it forgot ends here.
PluginObject::~PluginObject() {
    if (running == core_.get()) running = nullptr;
}

void* PluginObject::Query(const GUID& id) {
    if (id == IID_IUnknown || id == IPlugin2::kIid) return static_cast<IPlugin2*>(this);
    if (id == IWindowsMessageSink::kIid) return static_cast<IWindowsMessageSink*>(this);
    if (id == IID_IDispatch || id == IOmbrel::kIid) return static_cast<IOmbrel*>(this);
    return nullptr;
}

// A failure drops the plug-in from the framework's list; one inside the plug-in is told to the player instead.
HRESULT PluginObject::Initialize(::IUnknown* Site) try {
    auto site = Com<IPluginSite2>::Of(Site);
    if (!site) return E_INVALIDARG;
    if (running == core_.get()) running = nullptr;
    core_.reset();
    site_ = std::make_unique<DecalSite>(std::move(site), static_cast<IPlugin2*>(this));
    try {
        ThePlatform().set_window(site_->GameWindow());
    } catch (const Failure&) {
        // The first window message tells.
    }
    core_ = std::make_unique<APluginCore>(ThePlatform());
    running = core_.get();
    core_->IPlugin2_Initialize(*site_);
    return S_OK;
} catch (...) {
    return E_FAIL;
}

HRESULT PluginObject::Terminate() try {
    if (running == core_.get()) running = nullptr;
    if (core_) core_->IPlugin2_Terminate();
    core_.reset();
    site_.reset();
    return S_OK;
} catch (...) {
    return E_FAIL;
}

HRESULT PluginObject::WindowMessage(long HWND, short uMsg, long wParam, long lParam, VARIANT_BOOL* pbEat) try {
    if (!core_) return S_OK;
    ThePlatform().set_window(reinterpret_cast<::HWND>(static_cast<INT_PTR>(HWND)));
    bool eat = false;
    core_->IWindowsMessageSink_WindowMessage(HWND, static_cast<std::uint16_t>(uMsg), wParam, lParam, eat);
    if (eat && pbEat) *pbEat = VARIANT_TRUE;
    return S_OK;
} catch (...) {
    return S_OK;
}

HRESULT PluginObject::WindowMessageEnd() try {
    if (core_) core_->IWindowsMessageSink_WindowMessageEnd();
    return S_OK;
} catch (...) {
    return S_OK;
}

HRESULT PluginObject::GetTypeInfoCount(UINT* count) {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT PluginObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    return FindMember(kScriptMembers, names, count, ids);
}

HRESULT PluginObject::Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                             UINT*) {
    return CallMember(kScriptMembers, *this, member, parameters, result);
}

HRESULT PluginObject::AddChatText(BSTR text, long color, long window) try {
    if (running) running->AddChatText(ToUtf8({text, SysStringLen(text)}), color, window);
    return S_OK;
} catch (...) {
    return E_FAIL;
}

}  // namespace ombrel::decal
