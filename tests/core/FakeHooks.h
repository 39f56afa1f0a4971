// A client that only takes chat lines.
#pragma once

#include <string>
#include <vector>

#include "core/failure.h"
#include "host/ACHooks.h"

namespace ombrel {

struct ChatOutLine {
    std::string text;
    std::int32_t color;
    std::int32_t window;
    friend bool operator==(const ChatOutLine&, const ChatOutLine&) = default;
};

class FakeHooks : public host::ACHooks {
public:
    // `lines` gets what is written.
    explicit FakeHooks(std::vector<ChatOutLine>& lines) : lines_(lines) {}

    void ChatOut(std::string_view text, std::int32_t color, std::int32_t window) override {
        lines_.push_back({std::string(text), color, window});
        if (failing) throw Failure(failure::kInvalidCall);
    }
    void ChatOutRaw(std::string_view, std::int32_t, std::int32_t) override {}
    void InvokeChatParser(std::string_view) override {}
    void SetIdleTime(double) override {}
    host::Id CurrentSelection() const override { return 0; }
    bool ChatState() const override { return false; }
    std::int32_t BusyState() const override { return 0; }
    std::int32_t PointerState() const override { return 0; }
    std::int32_t CombatMode() const override { return 1; }
    host::Id ReferenceContainer() const override { return 0; }
    host::Rect Region3D() const override { return {}; }
    bool IsValidObject(host::Id) const override { return false; }
    void SelectItem(host::Id) override {}
    void UseItem(host::Id, std::int32_t) override {}
    void UseItemOnTarget(host::Id, host::Id) override {}
    void GiveItem(host::Id, host::Id) override {}
    void IdentifyObject(host::Id) override {}
    void RequestID(host::Id) override {}
    void SetStackSize(std::int32_t) override {}
    void MergeStacks(host::Id, host::Id) override {}
    bool VendorOpen() const override { return false; }
    void VendorAddBuy(host::Id, std::int32_t) override {}
    void VendorBuyAll() override {}
    void VendorAddSell(host::Id) override {}
    void VendorSellAll() override {}

    bool failing = false;

private:
    std::vector<ChatOutLine>& lines_;
};

}  // namespace ombrel
