// Values of the settings file on their way into the controls and out of them.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "config/FlatXml.h"
#include "config/SettingsTable.h"
#include "host/Types.h"

namespace ombrel::settings {

// A file on its way into the controls.
struct Loading {
    ControlHandler& controls;
    bool before_1 = false;             // the file is older than version 1
    const Element* element = nullptr;  // at hand
    std::string_view attribute = {};   // at hand, empty between attributes
    std::int32_t row = 0;              // of its list
    host::Point place = {};            // its x and y
    std::int32_t lines = 0;            // HUD_LIST elements read
};

// Puts one value where it lives. Throws Failure for a value that is no number or flag where one belongs.
void LoadValue(Loading& loading, const Attribute& attribute, std::string_view value);

// The same for the number of an entry of the attribute's choice, as files before version 1 have it.
void LoadIndexed(Loading& loading, const Attribute& attribute, std::string_view number);

// Writes the value of an attribute, if it is one that is written.
void SaveValue(FlatXml& xml, const ControlHandler& controls, const Element& element, std::int32_t row,
               const Attribute& attribute);

}  // namespace ombrel::settings
