#include "adapters/decal/DecalSite.h"

#include "adapters/decal/DecalCharacter.h"
#include "adapters/decal/DecalEcho.h"
#include "adapters/decal/DecalHooks.h"
#include "adapters/decal/DecalHotkeys.h"
#include "adapters/decal/DecalRender.h"
#include "adapters/decal/DecalSpells.h"
#include "adapters/decal/DecalTimer.h"
#include "adapters/decal/DecalView.h"
#include "adapters/decal/DecalWorld.h"
#include "adapters/decal/Module.h"
#include "core/failure.h"

namespace ombrel::decal {

namespace {

constexpr std::int32_t kCannotCreateObject = 429;

constexpr std::string_view kWorld = R"(services\DecalNet.NetService\DecalFilters.World)";
constexpr std::string_view kCharacterStats = R"(services\DecalNet.NetService\DecalFilters.CharacterStats)";
constexpr std::string_view kEchoFilter2 = R"(services\DecalNet.NetService\DecalFilters.EchoFilter2)";
constexpr std::string_view kSpells = R"(services\DecalNet.NetService\SpellFilter.Spells)";
constexpr std::string_view kRenderService = R"(services\DecalRender.RenderService)";

[[noreturn]] void ThrowMissing() { throw Failure(kCannotCreateObject, "ActiveX component can't create object"); }

// A service by its path. One that isn't there, or is not what it should be, is failure 429.
template <class I>
Com<I> Service(const Com<IPluginSite2>& site, std::string_view path) {
    auto service = site.Look(IPluginSite2::Object, Bstr(path).get()).template As<I>();
    if (!service) ThrowMissing();
    return service;
}

Com<IPluginSite> CoreOf(const Com<IPluginSite2>& site) {
    auto core = site.Read(IPluginSite2::PluginSite).As<IPluginSite>();
    if (!core) ThrowMissing();
    return core;
}

}  // namespace

std::unique_ptr<host::View> DecalCore::LoadView(std::string_view xml) {
    Com<IView> view;
    site_.Call(IPluginSite::LoadView, Bstr(AsFrameworkXml(xml)).get(), view.Out());
    if (!view) throw Failure(failure::kNoObject);
    return std::make_unique<DecalView>(std::move(view), ColumnsOf(xml));
}

std::unique_ptr<host::Font> DecalCore::CreateFont(std::string_view face, std::int32_t size, std::int32_t options) {
    Com<IFontCache> font;
    site_.Call(IPluginSite::DecalCreateFont, Bstr(face).get(), size, options, font.Out());
    if (!font) throw Failure(failure::kNoObject);
    return std::make_unique<DecalFont>(std::move(font));
}

std::unique_ptr<host::HotkeyService> DecalCore::GetHotkeyService(std::string_view class_id) {
    auto system = site_.Look(IPluginSite::Plugin, Bstr(class_id).get()).As<IHotkeySystem>();
    if (!system) return nullptr;
    return std::make_unique<DecalHotkeys>(std::move(system));
}

std::int32_t DecalCore::MapKey(std::string_view action) {
    long key = 0;
    site_.Call(IPluginSite::QueryKeyboardMap, Bstr(action).get(), &key);
    return static_cast<std::int32_t>(key);
}

std::unique_ptr<host::ACHooks> DecalSite::GetHooks() { return std::make_unique<DecalHooks>(Hooks()); }

std::unique_ptr<host::Decal> DecalSite::GetDecal() { return std::make_unique<DecalCore>(CoreOf(site_)); }

std::unique_ptr<host::World> DecalSite::GetWorld() {
    return std::make_unique<DecalWorld>(Service<IWorld>(site_, kWorld), Hooks());
}

std::unique_ptr<host::CharacterStats> DecalSite::GetCharacterStats() {
    return std::make_unique<DecalCharacter>(Service<ICharacterStats>(site_, kCharacterStats));
}

std::unique_ptr<host::EchoFilter2> DecalSite::GetEchoFilter2() {
    return std::make_unique<DecalEcho>(Service<IEcho2>(site_, kEchoFilter2));
}

std::unique_ptr<host::Spells> DecalSite::GetSpells() {
    return std::make_unique<DecalSpells>(Service<ISpells>(site_, kSpells));
}

std::unique_ptr<host::RenderService> DecalSite::GetRenderService() {
    return std::make_unique<DecalRenderService>(Service<IRenderService>(site_, kRenderService));
}

std::unique_ptr<host::Timer> DecalSite::CreateTimer(std::string_view name) {
    return std::make_unique<DecalTimer>(name);
}

std::int32_t DecalSite::IconLibrary() const {
    return static_cast<std::int32_t>(reinterpret_cast<INT_PTR>(ThisModule()));
}

void DecalSite::RegisterSink(host::IWindowsMessageSink& /*sink*/) { site_.Call(IPluginSite2::RegisterSinks, plugin_); }

HWND DecalSite::GameWindow() const {
    const auto window = static_cast<INT_PTR>(CoreOf(site_).Read(IPluginSite::HWND));
    return reinterpret_cast<HWND>(window);
}

Com<IACHooks> DecalSite::Hooks() const {
    auto hooks = site_.Read(IPluginSite2::Hooks);
    if (!hooks) ThrowMissing();
    return hooks;
}

}  // namespace ombrel::decal
