// Drawing surfaces over the 3D area, and fonts that measure.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "adapters/sim/Client.h"
#include "host/RenderService.h"

namespace ombrel::sim {

class SimFont final : public host::Font {
public:
    SimFont(Calls& calls, std::string_view face, std::int32_t size, bool bold)
        : calls_(calls), face_(face), size_(size), bold_(bold) {}

    std::int32_t TextWidth(std::string_view text) const override;

private:
    Calls& calls_;
    std::string face_;
    std::int32_t size_;
    bool bold_;
};

// A surface, known in recordings by its number. Where the client has a screen, what is drawn here is drawn there.
class SimHudView final : public host::HudView {
public:
    SimHudView(Client& client, std::int32_t number, const host::Rect& region)
        : calls_(client.calls),
          number_(number),
          region_(region),
          screen_(client.screen),
          seen_(screen_ ? screen_->CreateHUD(region) : nullptr) {}

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

    void Remove();  // from the screen

    std::int32_t number() const { return number_; }
    const host::Rect& region() const { return region_; }
    bool enabled() const { return enabled_; }

private:
    Calls& calls_;
    std::int32_t number_;
    host::Rect region_;
    bool enabled_ = false;
    host::RenderService* screen_;
    std::unique_ptr<host::HudView> seen_;  // nothing without a screen
};

class SimRenderService final : public host::RenderService {
public:
    explicit SimRenderService(Client& client) : client_(client), place_(client.render_objects_, *this) {}

    std::unique_ptr<host::HudView> CreateHUD(const host::Rect& rect) override;
    void RemoveHUD(host::HudView& view) override;

private:
    Client& client_;
    Copies<SimRenderService>::Place place_;
};

}  // namespace ombrel::sim
