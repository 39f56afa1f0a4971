#include "adapters/standin/PluginDll.h"

#include <fmt/format.h>

#include <functional>
#include <stdexcept>
#include <utility>

#include "adapters/standin/SystemCalls.h"
#include "adapters/standin/Timer.h"

namespace ombrel::standin {

namespace {

// Under what the DLL registers its plug-in.
constexpr GUID kPluginClass = {0xF11BC362, 0x933A, 0x4A7A, {0x89, 0x7B, 0x15, 0xBE, 0xB6, 0x9E, 0x53, 0x9C}};

// Classes that plug-ins make by themselves.
constexpr GUID kTimerClass = {0x79497C87, 0x92E1, 0x416B, {0xAE, 0x5C, 0x9D, 0x6C, 0x4C, 0x59, 0x13, 0x3C}};
constexpr GUID kHotkeyClass = {0xF5AA853D, 0xCCF3, 0x4562, {0xA6, 0x54, 0x3A, 0x68, 0xAB, 0x58, 0x3B, 0xCC}};

class Factory final : public Object<IClassFactory> {
public:
    using Maker = std::function<Ref<IDispatch>()>;
    explicit Factory(Maker maker) : maker_(std::move(maker)) {}

    STDMETHOD(CreateInstance)(IUnknown* outer, REFIID id, void** result) override {
        return Serve([&] {
            *result = nullptr;
            if (outer) return CLASS_E_NOAGGREGATION;
            return maker_()->QueryInterface(id, result);
        });
    }
    STDMETHOD(LockServer)(BOOL) override { return S_OK; }

private:
    Maker maker_;
};

template <class Function>
Function* Export(HMODULE module, const char* name) {
    const FARPROC address = GetProcAddress(module, name);
    if (!address) throw std::runtime_error(fmt::format("the DLL has no {}", name));
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(address));
}

// The plug-in that the framework makes for the client: the DLL's, from Initialize to Terminate.
class Guest final : public sim::Guest {
public:
    Guest(Services& services, const PluginDll& dll) : services_(services), dll_(dll) {}
    ~Guest() override { TheMessageSinks().Forget(); }

    void IPlugin2_Initialize(host::PluginSite&) override {
        if (!plugin_) plugin_ = dll_.Create();
        const auto site = Make<Site>(services_);
        const HRESULT result = plugin_->Initialize(site.get());
        if (FAILED(result)) plugin_ = {};
    }
    void IPlugin2_Terminate() override {
        if (plugin_) plugin_->Terminate();
        plugin_ = {};
        TheMessageSinks().Forget();
    }

    // By name, as scripts and other plug-ins do.
    void AddChatText(const std::string& text, std::int32_t color, std::int32_t window) override {
        const auto script = Ask<IDispatch>(plugin_.get(), IID_IDispatch);
        wchar_t name[] = L"AddChatText";
        LPOLESTR names = name;
        DISPID id = 0;
        if (!script || FAILED(script->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id))) return;
        EventArgument arguments[] = {window, color, text};
        VARIANT values[] = {arguments[0].Form(), arguments[1].Form(), arguments[2].Form()};
        DISPPARAMS parameters{values, nullptr, 3, 0};
        script->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
    }

private:
    Services& services_;
    const PluginDll& dll_;
    Ref<standin::IPlugin2> plugin_;
};

}  // namespace

PluginDll::PluginDll(const std::filesystem::path& path) : module_(LoadLibraryW(path.c_str())) {
    if (!module_) throw std::runtime_error(fmt::format("the DLL can't be loaded: error {}", GetLastError()));
}

PluginDll::~PluginDll() { FreeLibrary(module_); }

// The class is asked for as the framework asks, by the id under which the DLL is registered.
Ref<IPlugin2> PluginDll::Create() const {
    auto* get_class = Export<HRESULT WINAPI(REFCLSID, REFIID, void**)>(module_, "DllGetClassObject");
    Ref<IClassFactory> factory;
    Ref<IPlugin2> plugin;
    if (FAILED(get_class(kPluginClass, IID_IClassFactory, reinterpret_cast<void**>(factory.Receive()))) ||
        FAILED(factory->CreateInstance(nullptr, IPlugin2::kId, reinterpret_cast<void**>(plugin.Receive()))))
        throw std::runtime_error("the DLL gives no plug-in");
    return plugin;
}

bool PluginDll::CanUnload() const { return Export<HRESULT WINAPI()>(module_, "DllCanUnloadNow")() == S_OK; }

Framework::Framework(const PluginDll& dll)
    : client_(std::make_unique<sim::Client>()),
      services_{.client = *client_,
                .site = client_->site(),
                .icon_library = static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(dll.module()))} {
    RedirectSystemCalls(dll.module(), *client_);
    RegisterClasses();
    client_->make_guest = [this, &dll] { return std::make_unique<Guest>(services_, dll); };
}

Framework::~Framework() {
    client_.reset();
    for (const DWORD registration : registrations_) CoRevokeClassObject(registration);
}

void Framework::RegisterClasses() {
    const auto add = [this](const GUID& id, Factory::Maker maker) {
        DWORD registration = 0;
        const auto factory = Make<Factory>(std::move(maker));
        if (SUCCEEDED(CoRegisterClassObject(id, static_cast<IClassFactory*>(factory.get()), CLSCTX_INPROC_SERVER,
                                            REGCLS_MULTIPLEUSE, &registration)))
            registrations_.push_back(registration);
    };
    add(kTimerClass, [this] { return Ref<IDispatch>(Make<Timer>(services_.site.CreateTimer("")).get()); });
    add(kHotkeyClass, [] { return Ref<IDispatch>(Make<Hotkey>().get()); });
}

}  // namespace ombrel::standin
