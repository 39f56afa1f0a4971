// Views: the windows of plug-ins, with their controls.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "adapters/standin/EventSource.h"
#include "adapters/standin/declarations/DecalPlugins.h"
#include "host/Controls.h"

namespace ombrel::standin {

// What a view and its controls share. It goes when all of them have gone.
struct ViewState {
    std::unique_ptr<host::View> view;
    std::int32_t icon_library;                       // how the plug-in calls the module of its own icons
    std::map<host::Control*, IControl*> handed_out;  // controls that the plug-in holds
};

class View final : public Object<IView> {
public:
    View(std::unique_ptr<host::View> view, std::int32_t icon_library);

    STDMETHOD(get_Control)(BSTR name, IControl** control) override;
    STDMETHOD(put_Position)(RECT* position) override;
    STDMETHOD(get_Position)(RECT* position) override;

private:
    std::shared_ptr<ViewState> state_;
};

// An object for a control of the view.
Ref<IControl> NewControl(const std::shared_ptr<ViewState>& state, host::Control& control);

}  // namespace ombrel::standin
