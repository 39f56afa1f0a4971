// Which corpses of the character lie where, and until when.
//
// The game tells of a death in scraps: an event, chat lines with the place and the loss, a new object, the way back
// through portal space. They are gathered into one record and filed when the character is alive again.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>

#include "corpses/CorpseInfo.h"
#include "host/Types.h"

namespace ombrel {

class CorpseHandler {
public:
    CorpseHandler();
    ~CorpseHandler();
    CorpseHandler(const CorpseHandler&) = delete;
    CorpseHandler& operator=(const CorpseHandler&) = delete;

    bool HasDied() const { return died_; }  // a death is in progress
    void UpdateCorpseList();                // each second, and after each change

    // The scraps of a death.
    void CharDeath();
    void NewCorpse(host::Id guid, double ns, double ew);
    void CorpseCoords(const std::string& text);  // "12.3N, 45.6E"
    void CorpseData(const std::string& text);
    void AddCorpse();  // files what was gathered, if the player wants corpses tracked

    void AddCorpsefromData(double ns, double ew, std::int32_t time, bool dungeon, host::Id guid,
                           const std::string& data);
    void RemoveCorpsebyGUID(host::Id guid, double ns, double ew);
    void RemoveCorpsebyID(std::int32_t id);  // place in the list, from 1

    // A corpse that was opened and then vanishes has been looted.
    void OpenCorpse(double ns, double ew, host::Id guid);
    void CorpseDisappear(double ns, double ew, host::Id guid);
    std::string GetCorpse();  // where the selected corpse lies, for chat

    std::deque<CorpseInfo> Corpses;  // in the order of filing

private:
    void Remove(std::size_t index);

    std::deque<CorpseInfo> opened_;
    std::optional<CorpseInfo> pending_;
    bool died_ = false;
};

}  // namespace ombrel
