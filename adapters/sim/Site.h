// What a plug-in is handed at its start: the look-ups of the client's objects.
#pragma once

#include <memory>
#include <string_view>

#include "adapters/sim/Client.h"
#include "host/Plugin.h"

namespace ombrel::sim {

class SimDecal final : public host::Decal {
public:
    explicit SimDecal(Client& client) : client_(client) {}

    std::unique_ptr<host::View> LoadView(std::string_view xml) override;
    std::unique_ptr<host::Font> CreateFont(std::string_view face, std::int32_t size, std::int32_t options) override;
    std::unique_ptr<host::HotkeyService> GetHotkeyService(std::string_view class_id) override;
    std::int32_t MapKey(std::string_view action) override;

private:
    Client& client_;
};

class SimSite final : public host::PluginSite {
public:
    explicit SimSite(Client& client) : client_(client) {}

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

private:
    // Throws when the service is missing.
    void LookUp(Op operation, std::string_view service) const;

    Client& client_;
};

}  // namespace ombrel::sim
