// Plays the records of a session in a simulated client.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sim/Client.h"
#include "adapters/sim/Recorder.h"
#include "adapters/sim/SessionReader.h"

namespace ombrel::sim {

class SessionPlayer {
public:
    // The recorder, which may be nothing, hears results, answers and notes; calls it hears from the client. Both must
    // outlive the player.
    SessionPlayer(Client& client, Recorder* recorder);
    ~SessionPlayer();

    // Plays one record. Throws SessionError for one that can't be played, of which nothing has happened then.
    void Play(const Record& record);

    // Starts the plug-in where nothing has yet.
    void Begin();

    // Told of each note on the way.
    std::function<void(std::string_view text)> note_listener;

private:
    void CheckNow(const Record& record);
    void Run(const Record& record);
    void Set(const Json& record);
    void Event(const Json& record);
    void Advance(const Json& record);
    void Fail(const Json& record);
    void Query(const Json& record);
    void SetWaiting();
    const SimView& Description();

    Client& client_;
    Recorder* recorder_;
    bool begun_ = false;
    std::vector<Json> waiting_;  // what was set of a view that isn't there yet

    // The view as its file describes it, for the names of its controls while the plug-in has loaded none.
    Calls description_calls_;
    std::unique_ptr<SimView> description_;
};

}  // namespace ombrel::sim
