// Texts on their way between the framework's counted UTF-16 and our UTF-8.
#pragma once

#include <string>
#include <string_view>

#include "adapters/standin/WindowsHeaders.h"

namespace ombrel::standin {

std::wstring Wide(std::string_view text);
std::string Narrow(std::wstring_view text);
std::string Narrow(BSTR text);  // a null text is empty

// A counted text that ends with its owner.
class Bstr {
public:
    explicit Bstr(std::string_view text);
    ~Bstr() { SysFreeString(text_); }
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;

    BSTR get() const { return text_; }

private:
    BSTR text_;
};

// A counted text for an out parameter, whose caller owns it.
BSTR NewText(std::string_view text);

constexpr VARIANT_BOOL ToVariantBool(bool value) { return value ? VARIANT_TRUE : VARIANT_FALSE; }

}  // namespace ombrel::standin
