// A message of the game as a session file writes it.
#pragma once

#include "adapters/sim/Calls.h"
#include "adapters/sim/SessionFormat.h"
#include "host/EchoFilter2.h"

namespace ombrel::sim {

// A structure is an object, a list an array, bytes an array of numbers from 0 to 255. Numbers and texts turn into one
// another as the framework's do. Each reading can be made to fail. Both references must outlive the message.
class JsonMessage final : public host::Message {
public:
    // `json` has a "Type".
    JsonMessage(const Json& json, Calls& calls) : json_(json), calls_(calls) {}

    const Json& json() const { return json_; }

    std::int32_t Type() const override;
    std::int32_t Long(std::string_view field) const override;
    double Double(std::string_view field) const override;
    std::string Text(std::string_view field) const override;
    std::vector<std::uint8_t> Bytes(std::string_view field) const override;
    host::MessageMemberPtr Struct(std::string_view field) const override;
    host::MessageMemberPtr Item(std::int32_t index) const override;

private:
    const Json& json_;
    Calls& calls_;
};

}  // namespace ombrel::sim
