// A character with the target display on, and words for what tests of its card do: things to look at, what the server
// tells of them, what is drawn.
#pragma once

#include <fmt/format.h>

#include <string>
#include <string_view>
#include <vector>

#include "adapters/sim/Render.h"
#include "hud/HUDTargetHandler.h"
#include "tests/support/Messages.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {

class TargetTest : public PluginTest {
protected:
    static constexpr host::Id kTarget = 0x5DB00201;

    void SetUp() override {
        client.LoadSpells(SpellTablePath());
        LogIn();
        canvas().frame.SetFontSize(16);
        canvas().frame.SetPos(5, 100, true);
        canvas().frame.HudOn();
        Forget();
    }

    static HudHandlerT& canvas() { return *Vars::HUDTargetHandler->TargetHud; }

    // An identified thing of that class.
    sim::Object& Thing(std::int32_t type, const std::string& name, host::Id id = kTarget) {
        sim::Object& thing = client.object(id);
        thing.Type = type;
        thing.Name = name;
        thing.HasIdData = 1;
        return thing;
    }
    sim::Object& Drudge(host::Id id = kTarget) {
        sim::Object& drudge = Thing(5, "Drudge Prowler", id);
        drudge.Long[25] = 8;
        drudge.Long[host::key::kIcon] = 4150;
        return drudge;
    }

    // What the server tells.
    void TellHealth(double ratio, host::Id id = kTarget) { ServerSays(client, HealthOf(id, ratio)); }
    void TellIdentity(std::int32_t health, std::int32_t maximum) {
        ServerSays(client, Identified(kTarget, 0x100, health, maximum));
    }
    void TellSpells(const std::vector<std::int32_t>& spells) {
        ServerSays(client, Identified(kTarget, 0x10, 0, 0, spells));
    }
    void TellEffect(std::int32_t code, host::Id id = kTarget) { ServerSays(client, EffectOn(id, code)); }

    // What was drawn on the card's surface since the last look, its frame left out.
    std::vector<std::string> Drawn() {
        const std::string view =
            fmt::format(" view={}", static_cast<sim::SimHudView*>(canvas().frame.view())->number());
        std::vector<std::string> drawn;
        bool inside = false;  // the frame and the title come in a text of their own
        for (const std::string& call : calls) {
            if (!call.ends_with(view)) continue;
            if (call.starts_with("BeginText")) inside = !call.starts_with("BeginText face=Arial height=14 weight=700");
            if (inside && !call.starts_with("BeginText") && !call.starts_with("EndText") && !call.starts_with("Clear"))
                drawn.push_back(call.substr(0, call.size() - view.size()));
            if (call.starts_with("EndText")) inside = false;
        }
        Forget();
        return drawn;
    }

    // The texts among it, and the images.
    std::vector<std::string> DrawnTexts() { return Ends(" text="); }
    std::vector<std::string> DrawnImages() { return Ends("DrawPortalImage image="); }

private:
    std::vector<std::string> Ends(std::string_view mark) {
        std::vector<std::string> ends;
        for (const std::string& call : Drawn()) {
            if (const auto at = call.find(mark); at != std::string::npos) ends.push_back(call.substr(at + mark.size()));
        }
        return ends;
    }
};

}  // namespace ombrel::test
