// The one door to the game's spell table. A spell that the table lacks is a normal case with an answer of its own; so
// is a table that is not there at all.
#pragma once

#include <cstdint>
#include <string>

#include "core/Ref.h"
#include "host/Spells.h"

namespace ombrel {

class SpellFilterHandler {
public:
    SpellFilterHandler();
    ~SpellFilterHandler();
    SpellFilterHandler(const SpellFilterHandler&) = delete;
    SpellFilterHandler& operator=(const SpellFilterHandler&) = delete;

    // Whether the framework offers its spell table.
    bool HasTable() const { return static_cast<bool>(SpellFilter); }

    std::int32_t GetID(const std::string& name);  // -1 when it is not known
    std::string GetName(std::int32_t id);         // with plain apostrophes; "Unknown " and the number
    std::int32_t GetFamily(std::int32_t id);      // -1
    std::int32_t GetIcon(std::int32_t id);        // the icon of an unknown spell, never 0
    std::int32_t GetDifficulty(std::int32_t id);  // power level; -1
    std::int32_t GetDuration(std::int32_t id);    // whole seconds; -1, as for a spell that doesn't end
    bool IsADebuff(std::int32_t id);

    void SpellInfo(std::int32_t id);  // writes the spell's row to chat; nothing for an unknown one
    void SpellExport();               // the head and the rows of all spells up to 5000

    Owned<host::Spells> SpellFilter;

private:
    host::SpellPtr Find(std::int32_t id);
};

}  // namespace ombrel
