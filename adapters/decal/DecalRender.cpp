#include "adapters/decal/DecalRender.h"

namespace ombrel::decal {

std::int32_t DecalFont::TextWidth(std::string_view text) const {
    SIZE size{};
    font_.Call(IFontCache::MeasureText, Bstr(text).get(), &size);
    return static_cast<std::int32_t>(size.cx);
}

void DecalHudView::BeginRender(bool filter) { view_.Call(IHUDView::BeginRender, ToVariantBool(filter)); }

void DecalHudView::Clear(const host::Rect& rect) {
    RECT area = ToRect(rect);
    view_.Call(IHUDView::Clear, &area);
}

void DecalHudView::Fill(const host::Rect& rect, std::int32_t color) {
    RECT area = ToRect(rect);
    view_.Call(IHUDView::Fill, &area, color);
}

void DecalHudView::BeginText(std::string_view face, std::int32_t height, std::int32_t weight, bool italic) {
    view_.Call(IHUDView::BeginText, Bstr(face).get(), height, weight, ToVariantBool(italic));
}

void DecalHudView::DrawText(const host::Rect& rect, std::int32_t color, std::int32_t format, std::string_view text) {
    RECT area = ToRect(rect);
    view_.Call(IHUDView::WriteText, &area, color, format, Bstr(text).get());
}

void DecalHudView::DrawPortalImage(std::int32_t image, const host::Rect& rect) {
    RECT area = ToRect(rect);
    view_.Call(IHUDView::DrawPortalImage, image, &area);
}

void DecalHudView::EndText() { view_.Call(IHUDView::EndText); }
void DecalHudView::EndRender() { view_.Call(IHUDView::EndRender); }

void DecalHudView::SetRegion(const host::Rect& rect) {
    RECT area = ToRect(rect);
    view_.Call(IHUDView::SetRegion, &area);
}

void DecalHudView::SetEnabled(bool enabled) { view_.Call(IHUDView::SetEnabled, ToVariantBool(enabled)); }

DecalRenderService::DecalRenderService(Com<IRenderService> service)
    : service_(std::move(service)),
      events_(service_.Unknown(), IRenderServiceEvents::kIid,
              {{IRenderServiceEvents::DeviceLost, [this](const EventArguments&) { Raise(DeviceLost); }}}) {}

std::unique_ptr<host::HudView> DecalRenderService::CreateHUD(const host::Rect& rect) {
    RECT area = ToRect(rect);
    Com<IHUDView> view;
    service_.Call(IRenderService::CreateHUD, &area, view.Out());
    if (!view) return nullptr;
    return std::make_unique<DecalHudView>(std::move(view));
}

void DecalRenderService::RemoveHUD(host::HudView& view) {
    service_.Call(IRenderService::RemoveHUD, static_cast<DecalHudView&>(view).view().get());
}

}  // namespace ombrel::decal
