#include "adapters/standin/View.h"

namespace ombrel::standin {

View::View(std::unique_ptr<host::View> view, std::int32_t icon_library)
    : state_(std::make_shared<ViewState>(std::move(view), icon_library)) {}

// Who asks twice gets the same object.
HRESULT View::get_Control(BSTR name, IControl** control) {
    return Serve([&] {
        *control = nullptr;
        host::Control* found = state_->view->Control(Narrow(name));
        if (!found) return E_INVALIDARG;
        const auto known = state_->handed_out.find(found);
        *control =
            (known != state_->handed_out.end() ? Ref<IControl>(known->second) : NewControl(state_, *found)).Detach();
        return S_OK;
    });
}

HRESULT View::put_Position(RECT* position) {
    return Serve([&] {
        state_->view->SetPosition({position->left, position->top, position->right, position->bottom});
    });
}

HRESULT View::get_Position(RECT* position) {
    return Serve([&] {
        const host::Rect rect = state_->view->Position();
        *position = {rect.left, rect.top, rect.right, rect.bottom};
    });
}

}  // namespace ombrel::standin
