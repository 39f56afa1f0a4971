// What a plug-in is handed at its start.
#pragma once

#include <string>
#include <vector>

#include "adapters/standin/Character.h"
#include "adapters/standin/Echo.h"
#include "adapters/standin/Hooks.h"
#include "adapters/standin/Hotkeys.h"
#include "adapters/standin/Render.h"
#include "adapters/standin/Spells.h"
#include "adapters/standin/World.h"
#include "adapters/standin/declarations/Decal.h"
#include "adapters/standin/declarations/DecalPlugins.h"

namespace ombrel::standin {

// The framework's own objects, each there while somebody holds it.
struct Services {
    sim::Client& client;
    host::PluginSite& site;
    std::int32_t icon_library;  // how the plug-in calls the module of its own icons

    Only<Hooks> hooks{};
    Only<World> world{};
    Only<Character> character{};
    Only<Echo> echo{};
    Only<Spells> spells{};
    Only<RenderService> render{};
    Only<HotkeySystem> hotkeys{};

    // The object of a path, as "services\DecalRender.RenderService". Throws Failure when it is missing.
    Ref<IDispatch> Find(std::string_view path);
};

// The core object of the framework, as far as plug-ins use it.
class CoreSite final : public Object<IPluginSite> {
public:
    CoreSite(Services& services, std::unique_ptr<host::Decal> core) : services_(services), core_(std::move(core)) {}

    STDMETHOD(DecalCreateFont)(BSTR face, long height, long options, IFontCache** font) override;
    STDMETHOD(LoadView)(BSTR schema, IView** view) override;
    STDMETHOD(LoadResourceModule)(BSTR library, long* module) override;
    STDMETHOD(get_Plugin)(BSTR name, IDispatch** plugin) override;
    STDMETHOD(get_NetworkFilter)(BSTR name, IDispatch** filter) override;
    STDMETHOD(get_HWND)(long* window) override;
    STDMETHOD(QueryKeyboardMap)(BSTR action, long* key) override;

private:
    Services& services_;
    std::unique_ptr<host::Decal> core_;
};

class Site final : public Object<IPluginSite2> {
public:
    explicit Site(Services& services) : services_(services) {}

    STDMETHOD(get_Object)(BSTR path, IDispatch** object) override;
    STDMETHOD(get_Hooks)(IACHooks** hooks) override;
    STDMETHOD(get_PluginSite)(IUnknown** site) override;
    STDMETHOD(RegisterSinks)(IUnknown* plugin) override;

private:
    Services& services_;
};

// Hands window messages to who has registered for them. It holds nobody.
class MessageSinks final : public host::IWindowsMessageSink {
public:
    void Add(IUnknown* plugin);
    void Forget() { sinks_.clear(); }

    void IWindowsMessageSink_WindowMessage(std::int32_t window, std::int32_t message, std::int32_t wParam,
                                           std::int32_t lParam, bool& eat) override;
    void IWindowsMessageSink_WindowMessageEnd() override {}

private:
    std::vector<IUnknown*> sinks_;
};

MessageSinks& TheMessageSinks();

}  // namespace ombrel::standin
