#include "adapters/sim/Site.h"

#include "adapters/sim/Character.h"
#include "adapters/sim/Echo.h"
#include "adapters/sim/Hooks.h"
#include "adapters/sim/Hotkeys.h"
#include "adapters/sim/Render.h"
#include "adapters/sim/Spells.h"
#include "adapters/sim/View.h"
#include "adapters/sim/World.h"
#include "core/failure.h"
#include "core/text.h"

namespace ombrel::sim {

namespace {

constexpr std::string_view kHotkeyClass = "{6b6b9fa8-37de-4fa3-8c60-52bd6a2f9855}";
constexpr std::int32_t kBold = 1;
constexpr std::int32_t kIconLibrary = 1;
constexpr std::int32_t kCannotCreateObject = 429;

}  // namespace

std::unique_ptr<host::View> SimDecal::LoadView(std::string_view xml) {
    constexpr Op load = "Decal.LoadView"_op;
    std::unique_ptr<SimView> view;
    try {
        view = std::make_unique<SimView>(client_.calls, xml);
    } catch (const Failure& failure) {
        client_.calls.NoteFailed(load, {}, failure.number(), failure.description());
    }
    client_.calls.Note(load);
    client_.view_ = view.get();
    view->Closed = [&client = client_, closing = view.get()] {
        if (client.view_ == closing) client.view_ = nullptr;
    };
    return view;
}

std::unique_ptr<host::Font> SimDecal::CreateFont(std::string_view face, std::int32_t size, std::int32_t options) {
    client_.calls.Note("Decal.CreateFont"_op);
    return std::make_unique<SimFont>(client_.calls, face, size, (options & kBold) != 0);
}

std::unique_ptr<host::HotkeyService> SimDecal::GetHotkeyService(std::string_view class_id) {
    client_.calls.Note("Decal.GetHotkeyService"_op);
    const bool there = client_.hotkeys_available && !client_.missing_services.contains("Hotkeys");
    return there && ToLower(class_id) == kHotkeyClass ? std::make_unique<SimHotkeys>(client_) : nullptr;
}

std::int32_t SimDecal::MapKey(std::string_view action) {
    client_.calls.Note("Decal.MapKey"_op, {{"action", action}});
    const auto found = client_.key_map.find(action);
    return found == client_.key_map.end() ? 0 : found->second;
}

std::unique_ptr<host::ACHooks> SimSite::GetHooks() {
    client_.calls.Note("PluginSite.GetHooks"_op);
    return std::make_unique<SimHooks>(client_);
}

std::unique_ptr<host::Decal> SimSite::GetDecal() {
    client_.calls.Note("PluginSite.GetDecal"_op);
    return std::make_unique<SimDecal>(client_);
}

std::unique_ptr<host::World> SimSite::GetWorld() {
    LookUp("PluginSite.GetWorld"_op, "World");
    return std::make_unique<SimWorld>(client_);
}

std::unique_ptr<host::CharacterStats> SimSite::GetCharacterStats() {
    LookUp("PluginSite.GetCharacterStats"_op, "CharacterStats");
    return std::make_unique<SimCharacter>(client_);
}

std::unique_ptr<host::EchoFilter2> SimSite::GetEchoFilter2() {
    LookUp("PluginSite.GetEchoFilter2"_op, "EchoFilter2");
    return std::make_unique<SimEcho>(client_);
}

std::unique_ptr<host::Spells> SimSite::GetSpells() {
    LookUp("PluginSite.GetSpells"_op, "Spells");
    return std::make_unique<SimSpells>(client_);
}

std::unique_ptr<host::RenderService> SimSite::GetRenderService() {
    LookUp("PluginSite.GetRenderService"_op, "RenderService");
    return std::make_unique<SimRenderService>(client_);
}

std::unique_ptr<host::Timer> SimSite::CreateTimer(std::string_view name) {
    client_.calls.Note("PluginSite.CreateTimer"_op);
    return std::make_unique<SimTimer>(client_.clock, client_.calls, std::string(name));
}

std::int32_t SimSite::IconLibrary() const {
    client_.calls.Note("PluginSite.IconLibrary"_op);
    return kIconLibrary;
}

void SimSite::RegisterSink(host::IWindowsMessageSink& sink) {
    client_.calls.Note("PluginSite.RegisterSink"_op);
    client_.sink_ = &sink;
}

void SimSite::LookUp(Op operation, std::string_view service) const {
    client_.calls.Note(operation);
    if (client_.missing_services.contains(service) || (service == "Spells" && !client_.spells_available))
        throw Failure(kCannotCreateObject, "ActiveX component can't create object");
}

}  // namespace ombrel::sim
