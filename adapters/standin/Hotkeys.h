// The hotkey plug-in.
#pragma once

#include <memory>
#include <string>

#include "adapters/standin/EventSource.h"
#include "adapters/standin/declarations/DHS.h"
#include "host/HotkeyService.h"

namespace ombrel::standin {

class Hotkey final : public Object<IHotkey> {
public:
    STDMETHOD(get_EventTitle)(BSTR* title) override;
    STDMETHOD(put_EventTitle)(BSTR title) override;
    STDMETHOD(get_EventDescription)(BSTR* description) override;
    STDMETHOD(put_EventDescription)(BSTR description) override;

private:
    std::string title_, description_;
};

class HotkeySystem final : public SourceObject<IHotkeySystem> {
public:
    explicit HotkeySystem(std::unique_ptr<host::HotkeyService> hotkeys);

    STDMETHOD(AddHotkey)(BSTR plugin, IHotkey* hotkey) override;
    STDMETHOD(QueryHotkey)(BSTR title, VARIANT_BOOL* known) override;

private:
    std::unique_ptr<host::HotkeyService> hotkeys_;
};

}  // namespace ombrel::standin
