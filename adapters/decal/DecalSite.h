// What the framework hands to the plug-in at its start, and the look-ups that begin there.
#pragma once

#include "adapters/decal/Com.h"
#include "adapters/decal/interfaces/Decal.h"
#include "adapters/decal/interfaces/DecalPlugins.h"
#include "host/Plugin.h"

namespace ombrel::decal {

class DecalCore final : public host::Decal {
public:
    explicit DecalCore(Com<IPluginSite> site) : site_(std::move(site)) {}

    std::unique_ptr<host::View> LoadView(std::string_view xml) override;
    std::unique_ptr<host::Font> CreateFont(std::string_view face, std::int32_t size, std::int32_t options) override;
    std::unique_ptr<host::HotkeyService> GetHotkeyService(std::string_view class_id) override;
    std::int32_t MapKey(std::string_view action) override;

private:
    Com<IPluginSite> site_;
};

class DecalSite final : public host::PluginSite {
public:
    // `plugin` is what the framework knows the plug-in by. It keeps no reference to it, and neither does this.
    DecalSite(Com<IPluginSite2> site, IUnknown* plugin) : site_(std::move(site)), plugin_(plugin) {}

    std::unique_ptr<host::ACHooks> GetHooks() override;
    std::unique_ptr<host::Decal> GetDecal() override;
    std::unique_ptr<host::World> GetWorld() override;
    std::unique_ptr<host::CharacterStats> GetCharacterStats() override;
    std::unique_ptr<host::EchoFilter2> GetEchoFilter2() override;
    std::unique_ptr<host::Spells> GetSpells() override;
    std::unique_ptr<host::RenderService> GetRenderService() override;
    std::unique_ptr<host::Timer> CreateTimer(std::string_view name) override;
    std::int32_t IconLibrary() const override;
    void RegisterSink(host::IWindowsMessageSink& sink) override;

    HWND GameWindow() const;  // none when the framework doesn't tell

private:
    Com<IACHooks> Hooks() const;

    Com<IPluginSite2> site_;
    IUnknown* plugin_;
};

}  // namespace ombrel::decal
