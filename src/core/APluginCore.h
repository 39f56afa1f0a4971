// The plug-in: the one object that the framework creates.
#pragma once

#include <cstdint>
#include <string>

#include "host/Plugin.h"

namespace ombrel {

// Owns the life of everything else. Created with its making, loaded with the character's login, ended by
// IPlugin2_Terminate. Nothing thrown leaves any of these procedures.
class APluginCore final : public host::IPlugin2, public host::IWindowsMessageSink {
public:
    // `platform` must outlive the plug-in. There is one plug-in at a time: a newer one takes the globals over.
    explicit APluginCore(host::Platform& platform);

    // Releases whatever is still there, also when IPlugin2_Terminate never came.
    ~APluginCore() override;
    APluginCore(const APluginCore&) = delete;
    APluginCore& operator=(const APluginCore&) = delete;

    // Makes the handlers in their fixed order and binds the options view. A step that fails is reported and ends the
    // procedure; the framework is told success all the same. Once more on the same object, it begins clean.
    void IPlugin2_Initialize(host::PluginSite& site) override;

    // Stops the timers, then releases every handler in a fixed order. Saves nothing: that was Char_Logoff's.
    void IPlugin2_Terminate() override;

    // Mouse messages move and click the HUDs. The message always goes on to the game.
    void IWindowsMessageSink_WindowMessage(std::int32_t window, std::int32_t message, std::int32_t wParam,
                                           std::int32_t lParam, bool& eat) override;
    void IWindowsMessageSink_WindowMessageEnd() override;

    // For other plug-ins and scripts: puts a line through the chat pipeline as if the game had said it. Before login it
    // goes to the chat window as it is; before IPlugin2_Initialize it is dropped.
    void AddChatText(const std::string& text, std::int32_t color, std::int32_t window);

private:
    static void InitTables();
};

}  // namespace ombrel
