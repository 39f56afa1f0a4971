#include "adapters/sim/Render.h"

#include "adapters/sim/FontMetrics.h"

namespace ombrel::sim {

std::int32_t SimFont::TextWidth(std::string_view text) const {
    calls_.Note("Font.TextWidth"_op);
    return sim::TextWidth(text, face_, size_, bold_);
}

void SimHudView::BeginRender(bool filter) {
    calls_.Note("HudView.BeginRender"_op, {{"view", number_}});
    if (seen_) seen_->BeginRender(filter);
}

void SimHudView::Clear(const host::Rect& rect) {
    calls_.Note("HudView.Clear"_op, {{"view", number_}});
    if (seen_) seen_->Clear(rect);
}

void SimHudView::Fill(const host::Rect& rect, std::int32_t color) {
    calls_.Note("HudView.Fill"_op, {{"rect", rect}, {"color", color}, {"view", number_}});
    if (seen_) seen_->Fill(rect, color);
}

void SimHudView::BeginText(std::string_view face, std::int32_t height, std::int32_t weight, bool italic) {
    calls_.Note("HudView.BeginText"_op, {{"face", face}, {"height", height}, {"weight", weight}, {"view", number_}});
    if (seen_) seen_->BeginText(face, height, weight, italic);
}

void SimHudView::DrawText(const host::Rect& rect, std::int32_t color, std::int32_t format, std::string_view text) {
    calls_.Note("HudView.DrawText"_op,
                {{"rect", rect}, {"color", color}, {"format", format}, {"text", text}, {"view", number_}});
    if (seen_) seen_->DrawText(rect, color, format, text);
}

void SimHudView::DrawPortalImage(std::int32_t image, const host::Rect& rect) {
    calls_.Note("HudView.DrawPortalImage"_op, {{"image", image}, {"rect", rect}, {"view", number_}});
    if (seen_) seen_->DrawPortalImage(image, rect);
}

void SimHudView::EndText() {
    calls_.Note("HudView.EndText"_op, {{"view", number_}});
    if (seen_) seen_->EndText();
}

void SimHudView::EndRender() {
    calls_.Note("HudView.EndRender"_op, {{"view", number_}});
    if (seen_) seen_->EndRender();
}

void SimHudView::SetRegion(const host::Rect& rect) {
    calls_.Note("HudView.SetRegion"_op, {{"rect", rect}, {"view", number_}});
    region_ = rect;
    if (seen_) seen_->SetRegion(rect);
}

void SimHudView::SetEnabled(bool enabled) {
    calls_.Note("HudView.SetEnabled"_op, {{"enabled", enabled}, {"view", number_}});
    enabled_ = enabled;
    if (seen_) seen_->SetEnabled(enabled);
}

void SimHudView::Remove() {
    if (seen_) screen_->RemoveHUD(*seen_);
}

std::unique_ptr<host::HudView> SimRenderService::CreateHUD(const host::Rect& rect) {
    constexpr Op create = "RenderService.CreateHUD"_op;
    const bool ok = client_.render_available && !client_.calls.WillFail(create);
    client_.calls.Note(
        create, {{"left", rect.left}, {"top", rect.top}, {"right", rect.right}, {"bottom", rect.bottom}, {"ok", ok}});
    return ok ? std::make_unique<SimHudView>(client_, ++client_.hud_views_, rect) : nullptr;
}

void SimRenderService::RemoveHUD(host::HudView& view) {
    client_.calls.Note("RenderService.RemoveHUD"_op);
    static_cast<SimHudView&>(view).Remove();
}

}  // namespace ombrel::sim
