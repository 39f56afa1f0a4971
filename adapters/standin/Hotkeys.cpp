#include "adapters/standin/Hotkeys.h"

namespace ombrel::standin {

namespace {

std::string TextOf(IHotkey* hotkey, HRESULT (STDMETHODCALLTYPE IHotkey::*get)(BSTR*)) {
    BSTR text = nullptr;
    (hotkey->*get)(&text);
    std::string result = Narrow(text);
    SysFreeString(text);
    return result;
}

}  // namespace

HRESULT Hotkey::get_EventTitle(BSTR* title) {
    return Serve([&] { *title = NewText(title_); });
}

HRESULT Hotkey::put_EventTitle(BSTR title) {
    return Serve([&] { title_ = Narrow(title); });
}

HRESULT Hotkey::get_EventDescription(BSTR* description) {
    return Serve([&] { *description = NewText(description_); });
}

HRESULT Hotkey::put_EventDescription(BSTR description) {
    return Serve([&] { description_ = Narrow(description); });
}

HotkeySystem::HotkeySystem(std::unique_ptr<host::HotkeyService> hotkeys)
    : SourceObject(IHotkeySystemEvents::kId), hotkeys_(std::move(hotkeys)) {
    hotkeys_->HotkeyEvent = [this](const std::string& name, bool& handled) {
        VARIANT_BOOL answer = ToVariantBool(handled);
        events.Raise(IHotkeySystemEvents::kHotkeyEvent, name, &answer);
        handled = answer != VARIANT_FALSE;
    };
}

HRESULT HotkeySystem::AddHotkey(BSTR plugin, IHotkey* hotkey) {
    return Serve([&] {
        hotkeys_->HotkeyRegister(Narrow(plugin), TextOf(hotkey, &IHotkey::get_EventTitle),
                                 TextOf(hotkey, &IHotkey::get_EventDescription));
    });
}

HRESULT HotkeySystem::QueryHotkey(BSTR title, VARIANT_BOOL* known) {
    return Serve([&] { *known = ToVariantBool(hotkeys_->QueryHotkey(Narrow(title))); });
}

}  // namespace ombrel::standin
