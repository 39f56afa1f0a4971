#include "config/FlatXml.h"

#include <pugixml.hpp>
#include <string>

#include "tests/support/Matchers.h"

namespace ombrel {
namespace {

using namespace std::string_literals;

TEST(FlatXml, LaysItselfOutWithReturnAndTab) {
    FlatXml xml("1.1.0.1");
    xml.Begin("Location");
    xml.Attribute("x", "3");
    xml.Attribute("y", "-4");
    xml.End();
    EXPECT_EQ(xml.Finish(), "<Ombrel Version=\"1.1.0.1\">\r\t<Location x=\"3\" y=\"-4\"/>\r\t\r</Ombrel>");
    EXPECT_EQ(FlatXml("").Finish(), "<Ombrel>\r\t\r</Ombrel>");
}

TEST(FlatXml, AnyTextComesBackWithoutWhatXmlCannotHold) {
    struct Row {
        std::string text;
        std::string back;
    };
    const Row rows[] = {
        {"a & b < c > d \" e ' f", "a & b < c > d \" e ' f"},
        {"line\r\nnext\ttab", "line\r\nnext\ttab"},
        {"  blanks  ", "  blanks  "},
        {"nul\0bell\x07 escape\x1b end\x1f"s, "nulbell escape end"},
        {"]]> &amp; &#10; Zo\xC3\xAB \xE2\x80\x99", "]]> &amp; &#10; Zo\xC3\xAB \xE2\x80\x99"},
        {"", ""},
    };
    for (const auto& row : rows) {
        FlatXml xml("");
        xml.Begin("Chat_Alias");
        xml.Attribute("full", row.text);
        xml.Attribute("abbr", "x");
        xml.End();
        const std::string text = xml.Finish();
        pugi::xml_document document;
        ASSERT_TRUE(document.load_buffer(text.data(), text.size())) << text;
        const pugi::xml_node node = document.document_element().child("Chat_Alias");
        EXPECT_EQ(GetAttribute(node, "full", "?"), row.back) << text;
        EXPECT_EQ(GetAttribute(node, "none", "?"), "?");
    }
}

}  // namespace
}  // namespace ombrel
