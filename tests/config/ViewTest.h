// A player at the options view, with the plug-in behind it.
#pragma once

#include <filesystem>
#include <pugixml.hpp>
#include <string>

#include "adapters/sim/Controls.h"
#include "adapters/sim/View.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {

class ViewTest : public PluginTest {
protected:
    template <class Kind>
    Kind& Control(const char* name) {
        return dynamic_cast<Kind&>(*client.view()->Control(name));
    }

    void Check(const char* name, bool checked) { Control<sim::SimCheckbox>(name).Check(checked); }
    void Press(const char* name) { Control<sim::SimPushButton>(name).Press(); }
    void Click(const char* name, std::int32_t column, std::int32_t row) {
        Control<sim::SimList>(name).Click(column, row);
    }
    void Put(const char* name, std::string_view text) { Control<sim::SimEdit>(name).PutText(text); }

    // Fills a field and leaves it.
    void Enter(const char* name, std::string_view text) {
        Control<sim::SimEdit>(name).Type(text);
        Control<sim::SimEdit>(name).Finish();
    }

    // Picks the entry of that text.
    void Pick(const char* name, std::string_view text) {
        auto& choice = Control<sim::SimChoice>(name);
        for (std::int32_t index = 0; index < choice.Count(); ++index)
            if (choice.Text(index) == text) return choice.Select(index);
        FAIL() << name << " has no " << text;
    }

    std::string Picked(const char* name) {
        const auto& choice = Control<sim::SimChoice>(name);
        return choice.selected() < 0 ? std::string("(none)") : choice.Text(choice.selected());
    }

    static constexpr const char* kSettings = "Ombrel/Settings/Ombrel_Settings_Frostfell_Aldra.xml";

    // Whether the settings were saved since it was last asked.
    bool Saved() const { return std::filesystem::remove(common_data.path() / kSettings); }

    // An attribute of the saved settings: of the element that stands once, or of the row of that number.
    std::string Setting(const char* element, const char* attribute, int row = 0) const {
        pugi::xml_document document;
        const std::string text = common_data.Read(kSettings);
        document.load_buffer(text.data(), text.size());
        for (const pugi::xml_node& node : document.document_element().children(element))
            if (row-- == 0) return node.attribute(attribute).as_string("(missing)");
        return "(no element)";
    }

    // The next evening: the client has been closed, and the character comes back.
    void ComeBack() {
        client.Terminate();
        Start();
        LogIn();
    }
};

}  // namespace ombrel::test
