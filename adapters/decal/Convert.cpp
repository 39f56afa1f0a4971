#include "adapters/decal/Convert.h"

#include "core/convert.h"
#include "core/failure.h"

namespace ombrel::decal {

namespace {

// The value behind references.
const VARIANT& Behind(const VARIANT& value) {
    const VARIANT* behind = &value;
    while (behind->vt == (VT_BYREF | VT_VARIANT) && behind->pvarVal) behind = behind->pvarVal;
    return *behind;
}

// A copy as a kind that it can become.
class Changed {
public:
    Changed(const VARIANT& value, VARTYPE kind) {
        if (value.vt == VT_EMPTY || value.vt == VT_NULL) throw Failure(failure::kTypeMismatch);
        if (FAILED(VariantChangeTypeEx(&value_, const_cast<VARIANT*>(&value), LOCALE_INVARIANT, 0, kind)))
            throw Failure(failure::kTypeMismatch);
    }
    ~Changed() { VariantClear(&value_); }
    Changed(const Changed&) = delete;
    Changed& operator=(const Changed&) = delete;

    const VARIANT* operator->() const { return &value_; }

private:
    VARIANT value_{};
};

BSTR NewText(std::wstring_view text) {
    BSTR made = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (!made) throw Failure(failure::kOutOfMemory);
    return made;
}

}  // namespace

std::string ToUtf8(std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    std::string bytes(text.size() * 3, '\0');  // no character needs more
    const int written = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(),
                                            static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(written));
    return bytes;
}

std::wstring ToUtf16(std::string_view text) {
    const int length = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');  // no character needs more
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), length)));
    return wide;
}

Bstr::Bstr(std::string_view text) : text_(NewText(ToUtf16(text))) {}

Variant::Variant(std::string_view text) {
    value_.bstrVal = NewText(ToUtf16(text));
    value_.vt = VT_BSTR;
}

Variant::Variant(std::int32_t number) {
    value_.lVal = number;
    value_.vt = VT_I4;
}

Variant::Variant(bool flag) {
    value_.boolVal = ToVariantBool(flag);
    value_.vt = VT_BOOL;
}

Variant::Variant(const host::Cell& cell)
    : Variant(std::visit(
          [](const auto& value) {
              if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::string>)
                  return Variant(std::string_view(value));
              else
                  return Variant(value);
          },
          cell)) {}

std::int32_t Variant::Long() const { return LongOf(value_); }
double Variant::Double() const { return DoubleOf(value_); }
std::string Variant::Text() const { return TextOf(value_); }
bool Variant::Bool() const { return BoolOf(value_); }

std::int32_t LongOf(const VARIANT& value) {
    const VARIANT& plain = Behind(value);
    switch (plain.vt) {
        case VT_I4:
        case VT_INT:
        case VT_UI4:
        case VT_UINT:
        case VT_ERROR:
            return static_cast<std::int32_t>(plain.lVal);
        case VT_I8:
        case VT_UI8:
            return static_cast<std::int32_t>(plain.llVal);
        case VT_BSTR:
            return ToLong(TextOf(plain));
        default:
            return static_cast<std::int32_t>(Changed(plain, VT_I4)->lVal);
    }
}

double DoubleOf(const VARIANT& value) {
    const VARIANT& plain = Behind(value);
    if (plain.vt == VT_BSTR) return ToDouble(TextOf(plain));
    return Changed(plain, VT_R8)->dblVal;
}

std::string TextOf(const VARIANT& value) {
    const VARIANT& plain = Behind(value);
    if (plain.vt == VT_BSTR) return ToUtf8({plain.bstrVal, SysStringLen(plain.bstrVal)});
    if (plain.vt == (VT_BYREF | VT_BSTR)) return ToUtf8({*plain.pbstrVal, SysStringLen(*plain.pbstrVal)});
    const Changed text(plain, VT_BSTR);
    return ToUtf8({text->bstrVal, SysStringLen(text->bstrVal)});
}

bool BoolOf(const VARIANT& value) {
    const VARIANT& plain = Behind(value);
    if (plain.vt == VT_BOOL) return ToBool(plain.boolVal);
    return ToBool(Changed(plain, VT_BOOL)->boolVal);
}

IUnknown* ObjectOf(const VARIANT& value) {
    const VARIANT& plain = Behind(value);
    if (plain.vt == VT_DISPATCH || plain.vt == VT_UNKNOWN) return plain.punkVal;
    if (plain.vt == (VT_BYREF | VT_DISPATCH) || plain.vt == (VT_BYREF | VT_UNKNOWN)) return *plain.ppunkVal;
    return nullptr;
}

std::vector<std::uint8_t> TakeBytes(SAFEARRAY* bytes) {
    std::vector<std::uint8_t> taken;
    void* data = nullptr;
    if (bytes && SafeArrayGetDim(bytes) == 1 && SafeArrayGetElemsize(bytes) == 1 &&
        SUCCEEDED(SafeArrayAccessData(bytes, &data))) {
        const auto* first = static_cast<const std::uint8_t*>(data);
        taken.assign(first, first + bytes->rgsabound[0].cElements);
        SafeArrayUnaccessData(bytes);
    }
    SafeArrayDestroy(bytes);
    return taken;
}

}  // namespace ombrel::decal
