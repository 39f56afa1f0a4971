// The target HUD: the selected object, and the debuffs that the player has put on it.
#pragma once

#include "core/Ref.h"
#include "host/World.h"
#include "hud/HudHandlerT.h"

namespace ombrel {

class HUDTargetHandler {
public:
    HUDTargetHandler();
    ~HUDTargetHandler();
    HUDTargetHandler(const HUDTargetHandler&) = delete;
    HUDTargetHandler& operator=(const HUDTargetHandler&) = delete;

    void CreateHUD();
    void UpdateHUD();
    void RemoveTitle();
    void SetObject(host::WorldObjectPtr object);  // nothing for no target
    bool GetObject(host::WorldObjectPtr& object);
    void UpdateDebuffs();  // each second

    // An effect that plays on an object: the codes of debuffs time the debuff, others do nothing.
    void Debuff(host::Id object, std::int32_t code, double speed);

    void ClickHUD(std::int32_t x, std::int32_t y);
    bool WithinTitle(std::int32_t x, std::int32_t y);

    Owned<HudHandlerT> TargetHud;
};

}  // namespace ombrel
