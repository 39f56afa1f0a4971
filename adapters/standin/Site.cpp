#include "adapters/standin/Site.h"

#include "adapters/standin/View.h"
#include "core/text.h"

namespace ombrel::standin {

namespace {

constexpr long kGameWindow = 1;

// Where each of the framework's components is found, by its name or by its class.
enum class Component { kWorld, kCharacter, kEcho, kSpells, kRender, kHotkeys };
struct Place {
    std::string_view folder;
    std::string_view name;
    std::string_view class_id;
    Component component;
};
constexpr std::string_view kFilters = "services\\decalnet.netservice\\";
constexpr std::string_view kServices = "services\\";
constexpr std::string_view kPlugins = "plugins\\";
constexpr Place kPlaces[] = {
    {kFilters, "decalfilters.world", "{53092d1b-f0b0-46ff-bf11-8f031ec9b137}", Component::kWorld},
    {kFilters, "decalfilters.characterstats", "{4540c969-08d1-46bf-97ad-6b19d3c10bee}", Component::kCharacter},
    {kFilters, "decalfilters.echofilter2", "{34239ead-6317-4c40-a405-193ba5232dd8}", Component::kEcho},
    {kFilters, "spellfilter.spells", "{c2d43735-be7e-4829-af73-f2e7e820eb16}", Component::kSpells},
    {kServices, "decalrender.renderservice", "{fb3c8286-88ed-4b4d-b413-94b40f346239}", Component::kRender},
    {kPlugins, "dhs.hotkeysystem", "{6b6b9fa8-37de-4fa3-8c60-52bd6a2f9855}", Component::kHotkeys},
};
constexpr std::string_view kHotkeyClass = kPlaces[5].class_id;

const Place* FindPlace(std::string_view path) {
    const std::string lower = ToLower(path);
    for (const Place& place : kPlaces) {
        if (!lower.starts_with(place.folder)) continue;
        const std::string_view rest = std::string_view(lower).substr(place.folder.size());
        if (rest == place.name || rest == place.class_id) return &place;
    }
    return nullptr;
}

}  // namespace

// A look-up reaches the client each time, for it may find the service gone.
Ref<IDispatch> Services::Find(std::string_view path) {
    const Place* place = FindPlace(path);
    if (!place) throw Failure(failure::kInvalidCall);
    switch (place->component) {
        case Component::kWorld: {
            auto found = site.GetWorld();
            return world.Get([&] { return Make<World>(client, std::move(found)); }).get();
        }
        case Component::kCharacter: {
            auto found = site.GetCharacterStats();
            return character.Get([&] { return Make<Character>(std::move(found)); }).get();
        }
        case Component::kEcho: {
            auto found = site.GetEchoFilter2();
            return echo.Get([&] { return Make<Echo>(std::move(found), client.calls); }).get();
        }
        case Component::kSpells: {
            auto found = site.GetSpells();
            return spells.Get([&] { return Make<Spells>(std::move(found)); }).get();
        }
        case Component::kRender: {
            auto found = site.GetRenderService();
            return render.Get([&] { return Make<RenderService>(std::move(found)); }).get();
        }
        case Component::kHotkeys:
            break;
    }
    return {};
}

HRESULT CoreSite::DecalCreateFont(BSTR face, long height, long options, IFontCache** font) {
    return Serve([&] {
        *font = nullptr;
        *font = Make<Font>(core_->CreateFont(Narrow(face), height, options), height).Detach();
    });
}

// A text that doesn't begin as XML is the name of a file.
HRESULT CoreSite::LoadView(BSTR schema, IView** view) {
    return Serve([&] {
        *view = nullptr;
        const std::string text = Narrow(schema);
        if (!text.starts_with("<?xml")) return STG_E_FILENOTFOUND;
        *view = Make<View>(core_->LoadView(text), services_.icon_library).Detach();
        return S_OK;
    });
}

HRESULT CoreSite::LoadResourceModule(BSTR library, long* module) {
    return Serve([&] {
        const HMODULE loaded = GetModuleHandleW(library);
        if (!loaded) return E_INVALIDARG;
        *module = static_cast<long>(reinterpret_cast<std::uintptr_t>(loaded));
        return S_OK;
    });
}

HRESULT CoreSite::get_Plugin(BSTR name, IDispatch** plugin) {
    return Serve([&] {
        *plugin = nullptr;
        const Place* place = FindPlace(std::string(kPlugins) + Narrow(name));
        auto found = core_->GetHotkeyService(place ? kHotkeyClass : std::string_view());
        if (!found) return E_INVALIDARG;
        *plugin = services_.hotkeys.Get([&] { return Make<HotkeySystem>(std::move(found)); }).Detach();
        return S_OK;
    });
}

HRESULT CoreSite::get_NetworkFilter(BSTR name, IDispatch** filter) {
    return Serve([&] {
        *filter = nullptr;
        *filter = services_.Find(std::string(kFilters) + Narrow(name)).Detach();
    });
}

HRESULT CoreSite::get_HWND(long* window) {
    return Serve([&] { *window = kGameWindow; });
}

HRESULT CoreSite::QueryKeyboardMap(BSTR action, long* key) {
    return Serve([&] { *key = core_->MapKey(Narrow(action)); });
}

HRESULT Site::get_Object(BSTR path, IDispatch** object) {
    return Serve([&] {
        *object = nullptr;
        *object = services_.Find(Narrow(path)).Detach();
    });
}

HRESULT Site::get_Hooks(IACHooks** hooks) {
    return Serve([&] {
        *hooks = nullptr;
        auto found = services_.site.GetHooks();
        *hooks = services_.hooks.Get([&] { return Make<Hooks>(services_.client, std::move(found)); }).Detach();
    });
}

HRESULT Site::get_PluginSite(IUnknown** site) {
    return Serve([&] {
        *site = nullptr;
        *site = Ref<IPluginSite>(Make<CoreSite>(services_, services_.site.GetDecal()).get()).Detach();
    });
}

// The answer is the same whether or not anybody was registered.
HRESULT Site::RegisterSinks(IUnknown* plugin) {
    return Serve([&] {
        services_.site.RegisterSink(TheMessageSinks());
        TheMessageSinks().Add(plugin);
    });
}

void MessageSinks::Add(IUnknown* plugin) {
    if (Ask<standin::IWindowsMessageSink>(plugin, standin::IWindowsMessageSink::kId)) sinks_.push_back(plugin);
}

// Each gets the message, and any may keep it from the game.
void MessageSinks::IWindowsMessageSink_WindowMessage(std::int32_t window, std::int32_t message, std::int32_t wParam,
                                                     std::int32_t lParam, bool& eat) {
    for (IUnknown* sink : sinks_) {
        VARIANT_BOOL answer = VARIANT_FALSE;
        if (const auto listener = Ask<standin::IWindowsMessageSink>(sink, standin::IWindowsMessageSink::kId)) {
            listener->WindowMessage(window, static_cast<short>(message), wParam, lParam, &answer);
        }
        eat = eat || answer != VARIANT_FALSE;
    }
}

MessageSinks& TheMessageSinks() {
    static MessageSinks sinks;
    return sinks;
}

}  // namespace ombrel::standin
