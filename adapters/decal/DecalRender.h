// Drawing surfaces and fonts.
#pragma once

#include "adapters/decal/Com.h"
#include "adapters/decal/EventSink.h"
#include "adapters/decal/interfaces/DecalPlugins.h"
#include "adapters/decal/interfaces/DecalRender.h"
#include "host/RenderService.h"

namespace ombrel::decal {

class DecalFont final : public host::Font {
public:
    explicit DecalFont(Com<IFontCache> font) : font_(std::move(font)) {}

    std::int32_t TextWidth(std::string_view text) const override;

private:
    Com<IFontCache> font_;
};

class DecalHudView final : public host::HudView {
public:
    explicit DecalHudView(Com<IHUDView> view) : view_(std::move(view)) {}

    void BeginRender(bool filter) override;
    void Clear(const host::Rect& rect) override;
    void Fill(const host::Rect& rect, std::int32_t color) override;
    void BeginText(std::string_view face, std::int32_t height, std::int32_t weight, bool italic) override;
    void DrawText(const host::Rect& rect, std::int32_t color, std::int32_t format, std::string_view text) override;
    void DrawPortalImage(std::int32_t image, const host::Rect& rect) override;
    void EndText() override;
    void EndRender() override;
    void SetRegion(const host::Rect& rect) override;
    void SetEnabled(bool enabled) override;

    const Com<IHUDView>& view() const { return view_; }

private:
    Com<IHUDView> view_;
};

class DecalRenderService final : public host::RenderService {
public:
    explicit DecalRenderService(Com<IRenderService> service);

    std::unique_ptr<host::HudView> CreateHUD(const host::Rect& rect) override;
    void RemoveHUD(host::HudView& view) override;

private:
    Com<IRenderService> service_;
    Events events_;
};

}  // namespace ombrel::decal
