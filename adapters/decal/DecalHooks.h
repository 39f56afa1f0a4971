// The client's hooks.
#pragma once

#include "adapters/decal/Com.h"
#include "adapters/decal/EventSink.h"
#include "adapters/decal/interfaces/Decal.h"
#include "host/ACHooks.h"

namespace ombrel::decal {

class DecalHooks final : public host::ACHooks {
public:
    explicit DecalHooks(Com<IACHooks> hooks);

    void ChatOut(std::string_view text, std::int32_t color, std::int32_t window) override;
    void ChatOutRaw(std::string_view text, std::int32_t color, std::int32_t window) override;
    void InvokeChatParser(std::string_view text) override;
    void SetIdleTime(double seconds) override;

    host::Id CurrentSelection() const override;
    bool ChatState() const override;
    std::int32_t BusyState() const override;
    std::int32_t PointerState() const override;
    std::int32_t CombatMode() const override;
    host::Id ReferenceContainer() const override;
    host::Rect Region3D() const override;
    bool IsValidObject(host::Id id) const override;

    void SelectItem(host::Id id) override;
    void UseItem(host::Id id, std::int32_t flag) override;
    void UseItemOnTarget(host::Id id, host::Id target) override;
    void GiveItem(host::Id id, host::Id target) override;
    void IdentifyObject(host::Id id) override;
    void RequestID(host::Id id) override;
    void SetStackSize(std::int32_t count) override;
    void MergeStacks(host::Id source, host::Id target) override;

    bool VendorOpen() const override;
    void VendorAddBuy(host::Id id, std::int32_t count) override;
    void VendorBuyAll() override;
    void VendorAddSell(host::Id id) override;
    void VendorSellAll() override;

private:
    Events::Table Handlers();

    Com<IACHooks> hooks_;
    Events events_;
};

}  // namespace ombrel::decal
