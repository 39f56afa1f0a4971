#include "adapters/standin/Render.h"

namespace ombrel::standin {

namespace {

host::Rect ToRect(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

}  // namespace

HRESULT Font::MeasureText(BSTR text, SIZE* size) {
    return Serve([&] { *size = {font_->TextWidth(Narrow(text)), height_}; });
}

HRESULT HudView::put_Region(RECT* region) {
    return Serve([&] { view_->SetRegion(ToRect(*region)); });
}

HRESULT HudView::Fill(RECT* area, long color) {
    return Serve([&] { view_->Fill(ToRect(*area), color); });
}

HRESULT HudView::Clear(RECT* area) {
    return Serve([&] { view_->Clear(ToRect(*area)); });
}

HRESULT HudView::BeginRender(VARIANT_BOOL filter) {
    return Serve([&] { view_->BeginRender(filter != VARIANT_FALSE); });
}

HRESULT HudView::EndRender() {
    return Serve([&] { view_->EndRender(); });
}

HRESULT HudView::BeginText(BSTR face, long height, long weight, VARIANT_BOOL italic) {
    return Serve([&] { view_->BeginText(Narrow(face), height, weight, italic != VARIANT_FALSE); });
}

HRESULT HudView::EndText() {
    return Serve([&] { view_->EndText(); });
}

HRESULT HudView::DrawPortalImage(long image, RECT* area) {
    return Serve([&] { view_->DrawPortalImage(image, ToRect(*area)); });
}

HRESULT HudView::WriteText(RECT* area, long color, long format, BSTR text) {
    return Serve([&] { view_->DrawText(ToRect(*area), color, format, Narrow(text)); });
}

HRESULT HudView::put_Enabled(VARIANT_BOOL enabled) {
    return Serve([&] { view_->SetEnabled(enabled != VARIANT_FALSE); });
}

RenderService::RenderService(std::unique_ptr<host::RenderService> service)
    : SourceObject(IRenderServiceEvents::kId), service_(std::move(service)) {
    service_->DeviceLost = [this] { events.Raise(IRenderServiceEvents::kDeviceLost); };
}

HRESULT RenderService::CreateHUD(RECT* region, IHUDView** view) {
    return Serve([&] {
        *view = nullptr;
        auto made = service_->CreateHUD(ToRect(*region));
        if (!made) return S_FALSE;
        *view = Make<HudView>(std::move(made)).Detach();
        return S_OK;
    });
}

HRESULT RenderService::RemoveHUD(IHUDView* view) {
    return Serve([&] { service_->RemoveHUD(static_cast<HudView*>(view)->view()); });
}

}  // namespace ombrel::standin
