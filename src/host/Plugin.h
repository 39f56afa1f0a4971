// The two ends of the framework: what it gives a plug-in, and what it asks of one.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "host/ACHooks.h"
#include "host/CharacterStats.h"
#include "host/Controls.h"
#include "host/EchoFilter2.h"
#include "host/HotkeyService.h"
#include "host/Platform.h"
#include "host/RenderService.h"
#include "host/Spells.h"
#include "host/Timer.h"
#include "host/Types.h"
#include "host/World.h"

namespace ombrel::host {

// The framework's core object.
class Decal {
public:
    virtual ~Decal() = default;

    // Builds a view from its description. Throws Failure when the text is no view.
    virtual std::unique_ptr<View> LoadView(std::string_view xml) = 0;

    // options 1: bold
    virtual std::unique_ptr<Font> CreateFont(std::string_view face, std::int32_t size, std::int32_t options) = 0;

    // The hotkey service is another plug-in, found by class id; nothing when it is not installed. It may come later
    // than we do: look it up at login.
    virtual std::unique_ptr<HotkeyService> GetHotkeyService(std::string_view class_id) = 0;

    // The virtual key code bound to an action of the client, as "CaptureScreenshot".
    virtual std::int32_t MapKey(std::string_view action) = 0;
};

// Handed to a plug-in at its start. Each look-up gives an object of the caller's own, with its own event slots; one of
// a service that is not there throws Failure.
class PluginSite {
public:
    virtual ~PluginSite() = default;

    virtual std::unique_ptr<ACHooks> GetHooks() = 0;
    virtual std::unique_ptr<host::Decal> GetDecal() = 0;

    // Services by path: the last part stands in the name.
    virtual std::unique_ptr<World> GetWorld() = 0;                    // services\DecalNet.NetService\DecalFilters.World
    virtual std::unique_ptr<CharacterStats> GetCharacterStats() = 0;  // ...\DecalFilters.CharacterStats
    virtual std::unique_ptr<EchoFilter2> GetEchoFilter2() = 0;        // ...\DecalFilters.EchoFilter2
    virtual std::unique_ptr<Spells> GetSpells() = 0;                  // ...\SpellFilter.Spells
    virtual std::unique_ptr<RenderService> GetRenderService() = 0;    // services\DecalRender.RenderService

    // Timers are made by class. The name, class and member, tells them apart in recordings.
    virtual std::unique_ptr<Timer> CreateTimer(std::string_view name) = 0;

    // The icon library of the plug-in's own file, for sub-cell 0 of icon columns.
    virtual std::int32_t IconLibrary() const = 0;

    // From now on window messages reach the plug-in. No reference is kept.
    virtual void RegisterSink(class IWindowsMessageSink& sink) = 0;
};

// What the framework asks of a plug-in.
class IPlugin2 {
public:
    virtual ~IPlugin2() = default;

    virtual void IPlugin2_Initialize(PluginSite& site) = 0;
    virtual void IPlugin2_Terminate() = 0;
};

class IWindowsMessageSink {
public:
    virtual ~IWindowsMessageSink() = default;

    // Each message of the game window; set `eat` to keep it from the game.
    virtual void IWindowsMessageSink_WindowMessage(std::int32_t window, std::int32_t message, std::int32_t wParam,
                                                   std::int32_t lParam, bool& eat) = 0;
    virtual void IWindowsMessageSink_WindowMessageEnd() = 0;
};

}  // namespace ombrel::host
