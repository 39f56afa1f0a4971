// The game's own answers in a world that reacts: what is used takes effect, what is asked is answered, vendors trade,
// the dead come back. Everything takes its time on the virtual clock, and the same acts have the same outcome in every
// run.
#pragma once

#include <memory>

#include "adapters/sim/Aftermath.h"
#include "adapters/sim/Appraisals.h"
#include "adapters/sim/Deaths.h"
#include "adapters/sim/Healing.h"
#include "adapters/sim/Trade.h"

namespace ombrel::sim {

class Reactions {
public:
    explicit Reactions(Client& client);

    // To what the plug-in had the character do.
    void Answer(const Action& action);

    // To what happened in the world.
    void Died() { deaths_.Died(); }
    void Opened(host::Id id) { deaths_.Opened(id); }
    void Moved(host::Id) { deaths_.Moved(); }

private:
    void Use(host::Id id, host::Id target);

    Aftermath aftermath_;
    Appraisals appraisals_;
    Deaths deaths_;
    Healing healing_;
    Trade trade_;
};

}  // namespace ombrel::sim
