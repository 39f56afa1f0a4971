// The game's spell table.
#pragma once

#include "adapters/decal/Com.h"
#include "adapters/decal/EventSink.h"
#include "adapters/decal/interfaces/SpellFilter.h"
#include "host/Spells.h"

namespace ombrel::decal {

class DecalSpells final : public host::Spells {
public:
    explicit DecalSpells(Com<ISpells> spells);

    host::SpellPtr ByID(std::int32_t id) override;
    host::SpellPtr ByName(std::string_view name) override;

private:
    Com<ISpells> spells_;
    Events events_;
};

}  // namespace ombrel::decal
