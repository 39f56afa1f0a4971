#include "adapters/decal/Com.h"

#include <fmt/format.h>

#include "core/failure.h"

namespace ombrel::decal {

namespace {

constexpr std::int32_t kCannotCreateObject = 429;

// The classic run time packs its numbers into results of this family.
constexpr std::uint32_t kRunTimeFamily = 0x800A0000;

std::int32_t NumberOf(HRESULT result) {
    const auto code = static_cast<std::uint32_t>(result);
    if ((code & 0xFFFF0000) == kRunTimeFamily) return static_cast<std::int32_t>(code & 0xFFFF);
    switch (result) {
        case E_OUTOFMEMORY:
            return failure::kOutOfMemory;
        case E_INVALIDARG:
            return failure::kInvalidCall;
        case DISP_E_TYPEMISMATCH:
            return failure::kTypeMismatch;
        case DISP_E_OVERFLOW:
            return failure::kOverflow;
        case DISP_E_BADINDEX:
            return failure::kSubscript;
        case REGDB_E_CLASSNOTREG:
            return kCannotCreateObject;
        default:
            return static_cast<std::int32_t>(result);
    }
}

// What the object itself told of the failure, if it tells.
std::string TakeDescription() {
    IErrorInfo* info = nullptr;
    if (GetErrorInfo(0, &info) != S_OK || !info) return {};
    Bstr description;
    info->GetDescription(description.Out());
    info->Release();
    return description.Utf8();
}

}  // namespace

void ThrowFailed(HRESULT result) {
    const std::int32_t number = NumberOf(result);
    std::string description = TakeDescription();
    if (description.empty())
        description = number == result
                          ? fmt::format("The framework failed with {:#010x}", static_cast<std::uint32_t>(result))
                          : std::string(FailureText(number));
    throw Failure(number, std::move(description));
}

void ThrowNoObject() { throw Failure(failure::kNoObject); }

Com<IUnknown> CreateUnknown(const GUID& class_id) {
    void* object = nullptr;
    if (FAILED(CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, &object)))
        throw Failure(kCannotCreateObject, "ActiveX component can't create object");
    return Com<IUnknown>::Taken(static_cast<IUnknown*>(object));
}

}  // namespace ombrel::decal
