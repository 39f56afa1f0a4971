// A simulated client: a character, a world of objects, a clock, chat windows, an options view, surfaces.
//
// Set its state freely; raise its events when the plug-in is to hear of it. It gives the plug-in what the framework
// would give, through the host's interfaces, and never reaches into the plug-in.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sim/Calls.h"
#include "adapters/sim/Clock.h"
#include "adapters/sim/Copies.h"
#include "adapters/sim/Objects.h"
#include "adapters/sim/SpellTable.h"
#include "host/Plugin.h"

namespace ombrel {
class APluginCore;
}

namespace ombrel::sim {

class SimHooks;
class SimWorld;
class SimCharacter;
class SimEcho;
class SimSpells;
class SimHotkeys;
class SimRenderService;
class SimView;
class Reactions;

// The character's sheet.
struct Sheet {
    std::string Server = "Alpha";
    std::string Name = "Bob";
    host::Id Character = 0x50000001;
    std::int32_t Level = 1;
    std::int32_t Health = 100, Stamina = 100, Mana = 100;
    std::map<std::int32_t, std::int32_t> Vital{
        {host::vital::kHealth, 100}, {host::vital::kStamina, 100}, {host::vital::kMana, 100}};  // maxima
    std::int32_t Vitae = 100;
    std::int32_t Followers = 0;
    std::int32_t AllegianceSize = 1;
    std::map<std::int32_t, std::int32_t> Skill;
    std::map<std::int32_t, std::int32_t> Augmentation;
};

// An enchantment with the moment at which it ends.
struct ActiveEnchantment {
    std::int32_t SpellID = 0;
    std::int32_t Family = 0;
    std::int32_t permanent = 0;        // TimeRemaining of one that doesn't end: 0 or less
    std::optional<std::int64_t> ends;  // session milliseconds
};

// What the hooks answer.
struct HookState {
    host::Id CurrentSelection = 0;
    bool ChatState = false;
    std::int32_t BusyState = 0;
    std::int32_t PointerState = 0;
    std::int32_t CombatMode = 1;
    host::Id ReferenceContainer = 0;
    host::Rect Region3D{0, 0, 800, 600};
};

struct VendorState {
    bool open = false;
    float SellRate = 1.0f;
    std::vector<host::Id> items;
};

// The system under the client. The game window's origin is the screen's.
struct SystemState {
    host::TimeZone zone;
    std::string documents, common_data, plugin_folder;
    std::uint32_t documents_status = 0, common_data_status = 0;
    std::set<std::int32_t> keys_down, keys_toggled;
    host::Point cursor;
};

// A plug-in from elsewhere, in the place of this program's own.
class Guest : public host::IPlugin2 {
public:
    virtual void AddChatText(const std::string& text, std::int32_t color, std::int32_t window) = 0;
};

// Something that the plug-in had the character do.
struct Action {
    Op operation = 0;
    host::Id id = 0;
    host::Id target = 0;
    std::int32_t count = 0;
};

class Client {
public:
    Client();
    ~Client();
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    // State. Changing it raises no event.
    Sheet sheet;
    std::vector<ActiveEnchantment> enchantments;
    HookState hooks;
    VendorState vendor;
    SystemState system;
    std::map<std::string, std::int32_t, std::less<>> key_map;  // actions of the client to key codes
    std::set<std::string, std::less<>> missing_services;       // "World", "CharacterStats", "EchoFilter2", "Spells",
                                                               // "RenderService", "Hotkeys"
    std::set<std::string, std::less<>> known_hotkeys;
    bool hotkeys_available = true;
    bool render_available = true;

    // Draws what the plug-in draws, for those who want to see it. To be set before the plug-in starts.
    host::RenderService* screen = nullptr;

    // Called before the plug-in is terminated, while all that it shows is still there.
    std::function<void()> last_moment;

    // Puts a spell on the character. 0 seconds or less: one that doesn't end.
    void Enchant(std::int32_t SpellID, double seconds, std::int32_t Family);

    // Throws std::runtime_error with the reason. Without a table every spell is unknown.
    void LoadSpells(const std::string& tsv_path);
    SpellTable spells;
    bool spells_available = true;

    Object& object(host::Id id) { return objects_.Make(id); }  // at the end of the world's order when it is new
    const Object* FindObject(host::Id id) const { return objects_.Find(id).get(); }
    void RemoveObject(host::Id id) { objects_.Remove(id); }
    std::shared_ptr<const Object> ShareObject(host::Id id) const { return objects_.Find(id); }
    const std::vector<std::shared_ptr<Object>>& objects() const { return objects_.all(); }
    bool Carries(const Object& object) const { return objects_.Carries(sheet.Character, object); }  // the character

    Clock clock;
    Calls calls;

    // A world that reacts answers what the character does; otherwise nothing comes of it. The answer is the simulated
    // game's own, unless somebody puts another one here.
    bool reacts = false;
    std::function<void(const Action& action)> reaction;

    // The plug-in. `Start` makes the plug-in object and initializes it; a client without one raises events into
    // nothing.
    void Start();
    void Initialize();  // once more, on the same object
    void Terminate();
    APluginCore* plugin() { return plugin_.get(); }
    bool initialized() const { return initialized_; }    // and not terminated
    std::function<std::unique_ptr<Guest>()> make_guest;  // whom `Start` starts instead of this program's own plug-in
    SimView* view() { return view_; }                    // the options view, while the plug-in has one

    // What a plug-in is given.
    host::PluginSite& site() { return *site_; }
    host::Platform& platform() { return *platform_; }

    // Events, each as the framework raises it. Those with a result return what the plug-in set.
    void LoginComplete();
    void Logoff(std::int32_t kind);
    void ChangeVital(std::int32_t vital, std::int32_t value);  // the character's value changes first
    void ChangeEnchantments(std::int32_t change, const host::Enchantment& enchantment);
    void ChangePortalMode(std::int32_t mode);
    void Death(const std::string& text);
    bool ChatText(const std::string& text, std::int32_t color, std::int32_t window);  // also shows what is not eaten
    bool ChatParser(const std::string& text);
    bool StatusText(const std::string& text);
    bool ChatClick(const std::string& text, host::Id id);
    void ContainerOpened(host::Id id);
    void ObjectSelected(host::Id id);              // the selection changes first
    void RegionChanged(const host::Rect& region);  // the region changes first
    void CreateObject(host::Id id);
    void ChangeObject(host::Id id, std::int32_t change);
    void MoveObject(host::Id id);
    void ReleaseObject(host::Id id);
    void EchoServer(const host::Message& message);
    void EchoClient(const host::Message& message);
    bool WindowMessage(std::int32_t message, std::int32_t x, std::int32_t y, std::int32_t wParam,
                       std::int32_t lParam);  // the cursor moves first
    bool Hotkey(const std::string& name);
    void DeviceLost();
    void AddChatText(const std::string& text, std::int32_t color, std::int32_t window);  // of another plug-in

    // What a player reads: every line that reached a window, ours and the client's own. Window 1 is the main one.
    struct ChatLine {
        std::int64_t at;
        std::string text;
        std::int32_t color;
        std::int32_t window;
        bool from_plugin;
    };
    std::function<void(const ChatLine& line)> chat_listener;

private:
    friend class SimHooks;
    friend class SimWorld;
    friend class SimVendor;
    friend class SimCharacter;
    friend class SimEcho;
    friend class SimSpells;
    friend class SimHotkeys;
    friend class SimRenderService;
    friend class SimSite;
    friend class SimDecal;

    host::IPlugin2* running();
    void Show(std::string_view text, std::int32_t color, std::int32_t window, bool from_plugin);
    void Act(const Action& action);

    Objects objects_;

    // The plug-in's own copies of the client's objects, while it holds them.
    Copies<SimHooks> hooks_objects_;
    Copies<SimWorld> world_objects_;
    Copies<SimCharacter> character_objects_;
    Copies<SimEcho> echo_objects_;
    Copies<SimSpells> spells_objects_;
    Copies<SimHotkeys> hotkey_objects_;
    Copies<SimRenderService> render_objects_;

    std::unique_ptr<Reactions> reactions_;
    std::unique_ptr<host::Platform> platform_;
    std::unique_ptr<host::PluginSite> site_;
    std::unique_ptr<APluginCore> plugin_;
    std::unique_ptr<Guest> guest_;
    bool initialized_ = false;
    host::IWindowsMessageSink* sink_ = nullptr;
    SimView* view_ = nullptr;
    std::int32_t hud_views_ = 0;  // made so far
};

}  // namespace ombrel::sim
