// The hotkey plug-in.
#pragma once

#include "adapters/decal/Com.h"
#include "adapters/decal/EventSink.h"
#include "adapters/decal/interfaces/DHS.h"
#include "host/HotkeyService.h"

namespace ombrel::decal {

class DecalHotkeys final : public host::HotkeyService {
public:
    explicit DecalHotkeys(Com<IHotkeySystem> system);

    bool QueryHotkey(std::string_view name) override;
    void HotkeyRegister(std::string_view plugin, std::string_view name, std::string_view description) override;

private:
    Events::Table Handlers();

    Com<IHotkeySystem> system_;
    Events events_;
};

}  // namespace ombrel::decal
