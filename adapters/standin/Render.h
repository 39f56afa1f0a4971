// Surfaces over the 3D area, and fonts.
#pragma once

#include <memory>

#include "adapters/standin/EventSource.h"
#include "adapters/standin/declarations/DecalPlugins.h"
#include "adapters/standin/declarations/DecalRender.h"
#include "host/RenderService.h"

namespace ombrel::standin {

class Font final : public Object<IFontCache> {
public:
    Font(std::unique_ptr<host::Font> font, long height) : font_(std::move(font)), height_(height) {}

    STDMETHOD(MeasureText)(BSTR text, SIZE* size) override;

private:
    std::unique_ptr<host::Font> font_;
    long height_;
};

class HudView final : public Object<IHUDView> {
public:
    explicit HudView(std::unique_ptr<host::HudView> view) : view_(std::move(view)) {}

    STDMETHOD(put_Region)(RECT* region) override;
    STDMETHOD(Fill)(RECT* area, long color) override;
    STDMETHOD(Clear)(RECT* area) override;
    STDMETHOD(BeginRender)(VARIANT_BOOL filter) override;
    STDMETHOD(EndRender)() override;
    STDMETHOD(BeginText)(BSTR face, long height, long weight, VARIANT_BOOL italic) override;
    STDMETHOD(EndText)() override;
    STDMETHOD(DrawPortalImage)(long image, RECT* area) override;
    STDMETHOD(WriteText)(RECT* area, long color, long format, BSTR text) override;
    STDMETHOD(put_Enabled)(VARIANT_BOOL enabled) override;

    host::HudView& view() { return *view_; }

private:
    std::unique_ptr<host::HudView> view_;
};

class RenderService final : public SourceObject<IRenderService> {
public:
    explicit RenderService(std::unique_ptr<host::RenderService> service);

    STDMETHOD(CreateHUD)(RECT* region, IHUDView** view) override;
    STDMETHOD(RemoveHUD)(IHUDView* view) override;

private:
    std::unique_ptr<host::RenderService> service_;
};

}  // namespace ombrel::standin
