// Where values cross between the plug-in's types and those of COM. Text is UTF-8 on one side and UTF-16 on the other.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "adapters/decal/Win32.h"
#include "host/Controls.h"
#include "host/Types.h"

namespace ombrel::decal {

// What is no character on one side is U+FFFD on the other.
std::string ToUtf8(std::wstring_view text);
std::wstring ToUtf16(std::string_view text);

constexpr VARIANT_BOOL ToVariantBool(bool value) { return value ? VARIANT_TRUE : VARIANT_FALSE; }
constexpr bool ToBool(VARIANT_BOOL value) { return value != VARIANT_FALSE; }

constexpr RECT ToRect(const host::Rect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }
constexpr host::Rect FromRect(const RECT& rect) {
    return {static_cast<std::int32_t>(rect.left), static_cast<std::int32_t>(rect.top),
            static_cast<std::int32_t>(rect.right), static_cast<std::int32_t>(rect.bottom)};
}

// A text on its way to or from COM.
class Bstr {
public:
    Bstr() = default;
    explicit Bstr(std::string_view text);
    ~Bstr() { SysFreeString(text_); }
    Bstr(Bstr&& other) noexcept : text_(other.Release()) {}
    Bstr& operator=(Bstr&&) = delete;

    BSTR get() const { return text_; }
    BSTR* Out() { return &text_; }  // of an empty one
    BSTR Release() {
        BSTR text = text_;
        text_ = nullptr;
        return text;
    }
    std::string Utf8() const { return ToUtf8({text_, SysStringLen(text_)}); }

private:
    BSTR text_ = nullptr;
};

// A value of any kind. Reading it as a kind that it can't become is failure 13, also when it is empty.
class Variant {
public:
    Variant() = default;
    explicit Variant(std::string_view text);
    explicit Variant(std::int32_t number);
    explicit Variant(bool flag);
    explicit Variant(const host::Cell& cell);
    ~Variant() { VariantClear(&value_); }
    Variant(Variant&& other) noexcept : value_(other.value_) { other.value_.vt = VT_EMPTY; }
    Variant& operator=(Variant&&) = delete;

    const VARIANT& get() const { return value_; }
    VARIANT* Out() { return &value_; }  // of an empty one

    std::int32_t Long() const;  // the low 32 bits of a whole number; a broken one rounds
    double Double() const;
    std::string Text() const;
    bool Bool() const;

private:
    VARIANT value_{};
};

// The same readings of a VARIANT that is another's, behind references too.
std::int32_t LongOf(const VARIANT& value);
double DoubleOf(const VARIANT& value);
std::string TextOf(const VARIANT& value);
bool BoolOf(const VARIANT& value);
IUnknown* ObjectOf(const VARIANT& value);  // borrowed; none for one that holds no object

// Takes an array of bytes over.
std::vector<std::uint8_t> TakeBytes(SAFEARRAY* bytes);

}  // namespace ombrel::decal
