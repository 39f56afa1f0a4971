#include "adapters/sim/Client.h"

#include <cmath>

#include "adapters/sim/Character.h"
#include "adapters/sim/Echo.h"
#include "adapters/sim/Hooks.h"
#include "adapters/sim/Hotkeys.h"
#include "adapters/sim/Platform.h"
#include "adapters/sim/Reactions.h"
#include "adapters/sim/Render.h"
#include "adapters/sim/Site.h"
#include "adapters/sim/Spells.h"
#include "adapters/sim/World.h"
#include "core/APluginCore.h"

namespace ombrel::sim {

namespace {

constexpr std::int32_t kGameWindow = 1;  // its handle

}  // namespace

Client::Client()
    : reactions_(std::make_unique<Reactions>(*this)),
      platform_(std::make_unique<SimPlatform>(*this)),
      site_(std::make_unique<SimSite>(*this)) {
    reaction = [this](const Action& action) { reactions_->Answer(action); };
}

Client::~Client() {
    if (initialized_) Terminate();
    plugin_.reset();
    guest_.reset();
}

void Client::Enchant(std::int32_t SpellID, double seconds, std::int32_t Family) {
    ActiveEnchantment entry;
    entry.SpellID = SpellID;
    entry.Family = Family;
    if (seconds > 0)
        entry.ends = clock.now() + std::llround(seconds * 1000);
    else
        entry.permanent = static_cast<std::int32_t>(seconds);
    enchantments.push_back(entry);
}

void Client::LoadSpells(const std::string& tsv_path) { spells = SpellTable::Load(tsv_path); }

void Client::Start() {
    if (!running()) {
        if (make_guest)
            guest_ = make_guest();
        else
            plugin_ = std::make_unique<APluginCore>(*platform_);
    }
    initialized_ = true;
    running()->IPlugin2_Initialize(*site_);
}

host::IPlugin2* Client::running() {
    if (guest_) return guest_.get();
    return plugin_.get();
}

void Client::Initialize() { Start(); }

// The framework forgets the receivers of window messages when it ends its plug-ins.
void Client::Terminate() {
    if (!running()) return;
    if (initialized_ && last_moment) last_moment();
    initialized_ = false;
    running()->IPlugin2_Terminate();
    sink_ = nullptr;
}

void Client::LoginComplete() {
    spells_objects_.Raise(&host::Spells::Login);
    character_objects_.Raise(&host::CharacterStats::LoginComplete);
}

void Client::Logoff(std::int32_t kind) { character_objects_.Raise(&host::CharacterStats::Logoff, kind); }

void Client::ChangeVital(std::int32_t vital, std::int32_t value) {
    if (vital == host::vital::kHealth) sheet.Health = value;
    if (vital == host::vital::kStamina) sheet.Stamina = value;
    if (vital == host::vital::kMana) sheet.Mana = value;
    character_objects_.Raise(&host::CharacterStats::ChangeVital, vital, value);
}

void Client::ChangeEnchantments(std::int32_t change, const host::Enchantment& enchantment) {
    host::Enchantment read = enchantment;
    read.SpellID = static_cast<std::int16_t>(enchantment.SpellID);
    character_objects_.Raise(&host::CharacterStats::ChangeEnchantments, change, read);
}

void Client::ChangePortalMode(std::int32_t mode) {
    character_objects_.Raise(&host::CharacterStats::ChangePortalMode, mode);
}

void Client::Death(const std::string& text) {
    character_objects_.Raise(&host::CharacterStats::Death, text);
    if (reacts) reactions_->Died();
}

bool Client::ChatText(const std::string& text, std::int32_t color, std::int32_t window) {
    bool eat = false;
    hooks_objects_.Raise(&host::ACHooks::ChatTextIntercept, text, color, window, eat);
    if (!eat) Show(text, color, window, false);
    return eat;
}

bool Client::ChatParser(const std::string& text) {
    bool eat = false;
    hooks_objects_.Raise(&host::ACHooks::ChatParserIntercept, text, eat);
    return eat;
}

bool Client::StatusText(const std::string& text) {
    bool eat = false;
    hooks_objects_.Raise(&host::ACHooks::StatusTextIntercept, text, eat);
    return eat;
}

bool Client::ChatClick(const std::string& text, host::Id id) {
    bool eat = false;
    hooks_objects_.Raise(&host::ACHooks::ChatClickIntercept, text, id, eat);
    return eat;
}

void Client::ContainerOpened(host::Id id) {
    hooks_objects_.Raise(&host::ACHooks::ContainerOpened, id);
    if (reacts) reactions_->Opened(id);
}

void Client::ObjectSelected(host::Id id) {
    hooks.CurrentSelection = id;
    hooks_objects_.Raise(&host::ACHooks::ObjectSelected, id);
}

void Client::RegionChanged(const host::Rect& region) {
    hooks.Region3D = region;
    hooks_objects_.Raise(&host::ACHooks::AC3DRegionChanged, region.left, region.top, region.right, region.bottom);
}

void Client::CreateObject(host::Id id) { world_objects_.Raise(&host::World::CreateObject, id); }

void Client::ChangeObject(host::Id id, std::int32_t change) {
    world_objects_.Raise(&host::World::ChangeObject, id, change);
}

void Client::MoveObject(host::Id id) {
    world_objects_.Raise(&host::World::MoveObject, id);
    if (reacts) reactions_->Moved(id);
}

void Client::ReleaseObject(host::Id id) { world_objects_.Raise(&host::World::ReleaseObject, id); }

void Client::EchoServer(const host::Message& message) { echo_objects_.Raise(&host::EchoFilter2::EchoServer, message); }

void Client::EchoClient(const host::Message& message) { echo_objects_.Raise(&host::EchoFilter2::EchoClient, message); }

bool Client::WindowMessage(std::int32_t message, std::int32_t x, std::int32_t y, std::int32_t wParam,
                           std::int32_t lParam) {
    system.cursor = {x, y};
    bool eat = false;
    if (sink_) sink_->IWindowsMessageSink_WindowMessage(kGameWindow, message, wParam, lParam, eat);
    return eat;
}

bool Client::Hotkey(const std::string& name) {
    bool handled = false;
    hotkey_objects_.Raise(&host::HotkeyService::HotkeyEvent, name, handled);
    return handled;
}

void Client::DeviceLost() {
    if (screen && screen->DeviceLost) screen->DeviceLost();
    render_objects_.Raise(&host::RenderService::DeviceLost);
}

void Client::AddChatText(const std::string& text, std::int32_t color, std::int32_t window) {
    if (guest_) guest_->AddChatText(text, color, window);
    if (plugin_) plugin_->AddChatText(text, color, window);
}

// A line for the default window stands in the main one.
void Client::Show(std::string_view text, std::int32_t color, std::int32_t window, bool from_plugin) {
    if (chat_listener) chat_listener({clock.now(), std::string(text), color, window == 0 ? 1 : window, from_plugin});
}

void Client::Act(const Action& action) {
    if (reacts && reaction) reaction(action);
}

}  // namespace ombrel::sim
