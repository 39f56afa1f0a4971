// Which corpses of the character lie where, and until when.
#pragma once

#include <cstdint>
#include <string>

#include "host/Types.h"

namespace ombrel {

class CorpseHandler {
public:
    CorpseHandler();
    ~CorpseHandler();
    CorpseHandler(const CorpseHandler&) = delete;
    CorpseHandler& operator=(const CorpseHandler&) = delete;

    bool HasDied() const { return died_; }  // a death is in progress
    void UpdateCorpseList();
    void CharDeath();
    void NewCorpse(host::Id guid, double ns, double ew);
    void CorpseCoords(const std::string& text);
    void CorpseData(const std::string& text);
    void AddCorpse();
    void OpenCorpse(double ns, double ew, host::Id guid);
    void CorpseDisappear(double ns, double ew, host::Id guid);
    std::string GetCorpse();  // where the selected corpse lies, for chat

private:
    bool died_ = false;
};

}  // namespace ombrel
