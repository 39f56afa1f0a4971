// The hotkey service, as a plug-in gets it.
#pragma once

#include "adapters/sim/Client.h"
#include "host/HotkeyService.h"

namespace ombrel::sim {

class SimHotkeys final : public host::HotkeyService {
public:
    explicit SimHotkeys(Client& client) : client_(client), place_(client.hotkey_objects_, *this) {}

    bool QueryHotkey(std::string_view name) override;
    void HotkeyRegister(std::string_view plugin, std::string_view name, std::string_view description) override;

private:
    Client& client_;
    Copies<SimHotkeys>::Place place_;
};

}  // namespace ombrel::sim
