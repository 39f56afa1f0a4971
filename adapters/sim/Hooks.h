// The client's hooks, as a plug-in gets them.
#pragma once

#include "adapters/sim/Client.h"
#include "host/ACHooks.h"

namespace ombrel::sim {

class SimHooks final : public host::ACHooks {
public:
    explicit SimHooks(Client& client) : client_(client), place_(client.hooks_objects_, *this) {}

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
    template <class T>
    const T& Ask(Op operation, const T& answer) const {
        client_.calls.Note(operation);
        return answer;
    }

    Client& client_;
    Copies<SimHooks>::Place place_;
};

}  // namespace ombrel::sim
