// The client's hooks.
#pragma once

#include <memory>

#include "adapters/sim/Client.h"
#include "adapters/standin/EventSource.h"
#include "adapters/standin/declarations/Decal.h"

namespace ombrel::standin {

class Hooks final : public SourceObject<IACHooks> {
public:
    Hooks(sim::Client& client, std::unique_ptr<host::ACHooks> hooks);

    STDMETHOD(AddChatText)(BSTR text, long color, long window) override;
    STDMETHOD(AddChatTextRaw)(BSTR text, long color, long window) override;
    STDMETHOD(InvokeChatParser)(BSTR text) override;
    STDMETHOD(SetIdleTime)(double seconds) override;

    STDMETHOD(get_CurrentSelection)(long* id) override;
    STDMETHOD(get_ChatState)(VARIANT_BOOL* open) override;
    STDMETHOD(get_BusyState)(long* state) override;
    STDMETHOD(get_PointerState)(long* image) override;
    STDMETHOD(get_CombatMode)(long* mode) override;
    STDMETHOD(get_VendorID)(long* id) override;
    STDMETHOD(get_AC3DRegionRect)(RECT* region) override;
    STDMETHOD(IsValidObject)(long id, VARIANT_BOOL* valid) override;

    STDMETHOD(SelectItem)(long id) override;
    STDMETHOD(UseItem)(long id, long flag) override;
    STDMETHOD(ApplyItem)(long id, long target) override;
    STDMETHOD(GiveItem)(long id, long target) override;
    STDMETHOD(RequestID)(long id) override;
    STDMETHOD(IDQueueAdd)(long id) override;
    STDMETHOD(put_SelectedStackCount)(long count) override;
    STDMETHOD(MoveItemEx)(long source, long target) override;

    STDMETHOD(VendorBuyListAdd)(long id, long count) override;
    STDMETHOD(VendorBuyAll)() override;
    STDMETHOD(VendorSellListAdd)(long id) override;
    STDMETHOD(VendorSellAll)() override;

private:
    void BindEvents();
    void Echo(BSTR text, long color, long window);

    sim::Client& client_;
    std::unique_ptr<host::ACHooks> hooks_;
};

}  // namespace ombrel::standin
