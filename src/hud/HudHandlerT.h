// The canvas of the target HUD: a card of one object, with its health and the debuffs on it.
#pragma once

#include <tsl/ordered_map.h>

#include <cstdint>
#include <string>

#include "host/World.h"
#include "hud/HudFrame.h"
#include "spells/SpellItemInfo.h"

namespace ombrel {

class HudHandlerT {
public:
    HudHandlerT();
    ~HudHandlerT();
    HudHandlerT(const HudHandlerT&) = delete;
    HudHandlerT& operator=(const HudHandlerT&) = delete;

    void SetObject(host::WorldObjectPtr object);  // nothing for none
    const host::WorldObjectPtr& Object() const { return object_; }
    void UpdateHealth(bool drawAlone);

    // Debuffs that the player has put on creatures, each with the time that its spell lasts.
    void AddDebuff(host::Id objectId, std::int32_t spellId);
    void RemoveDebuff(host::Id objectId);  // the creature is gone
    void RemoveDebuffSpell(host::Id objectId, std::int32_t family);
    void UpdateDebuffs(bool drawAlone);  // drops what is over
    const tsl::ordered_map<host::Id, SpellItemInfo>& debuffs() const { return debuffs_; }

    std::string FontColor = "White";
    HudFrame frame;

private:
    host::WorldObjectPtr object_;
    tsl::ordered_map<host::Id, SpellItemInfo> debuffs_;
};

}  // namespace ombrel
