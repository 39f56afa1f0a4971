// The spell service, as a plug-in gets it.
#pragma once

#include "adapters/sim/Client.h"
#include "host/Spells.h"

namespace ombrel::sim {

class SimSpells final : public host::Spells {
public:
    explicit SimSpells(Client& client) : client_(client), place_(client.spells_objects_, *this) {}

    host::SpellPtr ByID(std::int32_t id) override;
    host::SpellPtr ByName(std::string_view name) override;

private:
    host::SpellPtr Give(SpellRowPtr row) const;

    Client& client_;
    Copies<SimSpells>::Place place_;
};

}  // namespace ombrel::sim
