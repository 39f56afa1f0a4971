// The vendor's side of a trade: lists of what is bought and sold, money, burden, stacks.
#pragma once

#include <cstdint>
#include <vector>

#include "adapters/sim/Aftermath.h"

namespace ombrel::sim {

class Trade {
public:
    explicit Trade(Aftermath& aftermath) : aftermath_(aftermath) {}

    void Select() { split_ = 0; }
    void SetStackSize(std::int32_t count) { split_ = count; }  // of the selected stack, for the next act
    void Merge(host::Id source, host::Id target);

    // The lists last as long as the vendor is open.
    void AddBuy(host::Id id, std::int32_t count);
    void BuyAll();
    void AddSell(host::Id id);
    void SellAll();

private:
    struct Entry {
        host::Id id;
        std::int32_t count;
    };

    bool Open();  // drops the lists when it isn't
    void Sell(const std::vector<Entry>& list);
    void Buy(const std::vector<Entry>& list);
    bool CanCarry(const std::vector<Entry>& sold, std::int64_t money);
    std::int64_t Money();
    void Earn(std::int64_t money);
    void Pay(std::int64_t money);

    Aftermath& aftermath_;
    std::int32_t split_ = 0;  // 0 for the whole stack
    std::vector<Entry> buying_;
    std::vector<Entry> selling_;
};

}  // namespace ombrel::sim
