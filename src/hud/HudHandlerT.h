// The canvas of the target HUD: a card of one object, with its health and the debuffs on it.
#pragma once

#include <cstdint>
#include <string>

#include "host/World.h"
#include "hud/HudFrame.h"

namespace ombrel {

class HudHandlerT {
public:
    HudHandlerT();
    ~HudHandlerT();
    HudHandlerT(const HudHandlerT&) = delete;
    HudHandlerT& operator=(const HudHandlerT&) = delete;

    void SetObject(host::WorldObjectPtr object);  // nothing for none
    const host::WorldObjectPtr& Object() const { return object_; }
    void RemoveDebuff(host::Id object);
    void UpdateHealth(bool drawAlone);

    std::string FontColor = "White";
    HudFrame frame;

private:
    host::WorldObjectPtr object_;
};

}  // namespace ombrel
