#include "adapters/decal/DecalHooks.h"

namespace ombrel::decal {

namespace {

// How many lines and commands of ours are on their way into the client. What it raises meanwhile is no news to us.
int writing = 0;
int commanding = 0;

class [[nodiscard]] Within {
public:
    explicit Within(int& depth) : depth_(depth) { ++depth_; }
    ~Within() { --depth_; }
    Within(const Within&) = delete;
    Within& operator=(const Within&) = delete;

private:
    int& depth_;
};

}  // namespace

DecalHooks::DecalHooks(Com<IACHooks> hooks)
    : hooks_(std::move(hooks)), events_(hooks_.Unknown(), IACHooksEvents::kIid, Handlers()) {}

void DecalHooks::ChatOut(std::string_view text, std::int32_t color, std::int32_t window) {
    const Bstr line(text);
    const Within ours(writing);
    hooks_.Call(IACHooks::AddChatText, line.get(), color, window);
}

void DecalHooks::ChatOutRaw(std::string_view text, std::int32_t color, std::int32_t window) {
    const Bstr line(text);
    const Within ours(writing);
    hooks_.Call(IACHooks::AddChatTextRaw, line.get(), color, window);
}

void DecalHooks::InvokeChatParser(std::string_view text) {
    const Bstr line(text);
    const Within ours(commanding);
    hooks_.Call(IACHooks::InvokeChatParser, line.get());
}

void DecalHooks::SetIdleTime(double seconds) { hooks_.Call(IACHooks::SetIdleTime, seconds); }

host::Id DecalHooks::CurrentSelection() const { return hooks_.Read(IACHooks::CurrentSelection); }
bool DecalHooks::ChatState() const { return hooks_.Read(IACHooks::ChatState); }
std::int32_t DecalHooks::BusyState() const { return hooks_.Read(IACHooks::BusyState); }
std::int32_t DecalHooks::PointerState() const { return hooks_.Read(IACHooks::PointerState); }
std::int32_t DecalHooks::CombatMode() const { return hooks_.Read(IACHooks::CombatMode); }
host::Id DecalHooks::ReferenceContainer() const { return hooks_.Read(IACHooks::VendorID); }
host::Rect DecalHooks::Region3D() const { return FromRect(hooks_.Read(IACHooks::AC3DRegionRect)); }

// A client that can't tell leaves the answer as it is: better to act in vain than never.
bool DecalHooks::IsValidObject(host::Id id) const {
    VARIANT_BOOL valid = VARIANT_TRUE;
    hooks_.Call(IACHooks::IsValidObject, id, &valid);
    return ToBool(valid);
}

void DecalHooks::SelectItem(host::Id id) { hooks_.Call(IACHooks::SelectItem, id); }
void DecalHooks::UseItem(host::Id id, std::int32_t flag) { hooks_.Call(IACHooks::UseItem, id, flag); }
void DecalHooks::UseItemOnTarget(host::Id id, host::Id target) { hooks_.Call(IACHooks::ApplyItem, id, target); }
void DecalHooks::GiveItem(host::Id id, host::Id target) { hooks_.Call(IACHooks::GiveItem, id, target); }
void DecalHooks::IdentifyObject(host::Id id) { hooks_.Call(IACHooks::IDQueueAdd, id); }
void DecalHooks::RequestID(host::Id id) { hooks_.Call(IACHooks::RequestID, id); }
void DecalHooks::SetStackSize(std::int32_t count) { hooks_.Call(IACHooks::SetSelectedStackCount, count); }
void DecalHooks::MergeStacks(host::Id source, host::Id target) { hooks_.Call(IACHooks::MoveItemEx, source, target); }

bool DecalHooks::VendorOpen() const { return hooks_.Read(IACHooks::VendorID) != 0; }
void DecalHooks::VendorAddBuy(host::Id id, std::int32_t count) { hooks_.Call(IACHooks::VendorBuyListAdd, id, count); }
void DecalHooks::VendorBuyAll() { hooks_.Call(IACHooks::VendorBuyAll); }
void DecalHooks::VendorAddSell(host::Id id) { hooks_.Call(IACHooks::VendorSellListAdd, id); }
void DecalHooks::VendorSellAll() { hooks_.Call(IACHooks::VendorSellAll); }

Events::Table DecalHooks::Handlers() {
    using Source = IACHooksEvents;
    return {
        {Source::ChatTextIntercept,
         [this](const EventArguments& event) {
             if (writing != 0) return;
             bool eat = false;
             Raise(ChatTextIntercept, event.Text(0), event.Long(1), event.Long(2), eat);
             if (eat) event.Answer(3, true);
         }},
        {Source::ChatParserIntercept,
         [this](const EventArguments& event) {
             if (commanding != 0) return;
             bool eat = false;
             Raise(ChatParserIntercept, event.Text(0), eat);
             if (eat) event.Answer(1, true);
         }},
        {Source::StatusTextIntercept,
         [this](const EventArguments& event) {
             bool eat = false;
             Raise(StatusTextIntercept, event.Text(0), eat);
             if (eat) event.Answer(1, true);
         }},
        {Source::ChatClickIntercept,
         [this](const EventArguments& event) {
             bool eat = false;
             Raise(ChatClickIntercept, event.Text(0), event.Long(1), eat);
             if (eat) event.Answer(2, true);
         }},
        {Source::ContainerOpened, [this](const EventArguments& event) { Raise(ContainerOpened, event.Long(0)); }},
        {Source::ObjectSelected, [this](const EventArguments& event) { Raise(ObjectSelected, event.Long(0)); }},
        {Source::AC3DRegionChanged,
         [this](const EventArguments& event) {
             Raise(AC3DRegionChanged, event.Long(0), event.Long(1), event.Long(2), event.Long(3));
         }},
    };
}

}  // namespace ombrel::decal
