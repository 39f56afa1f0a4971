#include "adapters/standin/Object.h"

namespace ombrel::standin {

namespace {

// Where the classic numbers stand among results.
constexpr std::uint32_t kNumbered = 0x800A0000;
constexpr std::int32_t kLastNumber = 0xFFFF;

}  // namespace

HRESULT ResultOf(const Failure& failure) {
    Ref<ICreateErrorInfo> info;
    if (SUCCEEDED(CreateErrorInfo(info.Receive()))) {
        const Bstr description(failure.description());
        info->SetDescription(description.get());
        if (const auto told = Ask<IErrorInfo>(info.get(), IID_IErrorInfo)) SetErrorInfo(0, told.get());
    }
    const std::int32_t number = failure.number();
    if (number < 0) return number;
    return number == 0 || number > kLastNumber ? E_FAIL
                                               : static_cast<HRESULT>(kNumbered | static_cast<std::uint32_t>(number));
}

}  // namespace ombrel::standin
