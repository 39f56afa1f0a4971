// Text of the settings and data documents: a root, and below it a flat sequence of elements that have attributes alone.
//
// Written straight from the controls, without a tree in between, since the whole file is rewritten at every click.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace pugi {
class xml_node;
}

namespace ombrel {

class FlatXml {
public:
    // The root takes the attribute `Version` unless it is empty.
    explicit FlatXml(std::string_view version);

    void Begin(std::string_view element);

    // Characters that XML has no form for are left out.
    void Attribute(std::string_view name, std::string_view value);
    void Attribute(std::string_view name, const char* value) { Attribute(name, std::string_view(value)); }
    void Attribute(std::string_view name, std::int32_t value);
    void End();

    // Closes the root.
    std::string Finish();

private:
    std::string text_;
};

// An attribute of an element, or `missing` when it has none of that name. `name` is a literal.
std::string_view GetAttribute(const pugi::xml_node& node, std::string_view name, std::string_view missing);

}  // namespace ombrel
