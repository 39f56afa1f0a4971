// The settings file: into the controls, and out of them.
#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "chat/ChatTextHandler.h"
#include "config/ControlHandler.h"
#include "config/ControlTools.h"
#include "config/SettingsTable.h"
#include "config/SettingsValues.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/convert.h"
#include "core/text.h"
#include "hud/HUDTargetHandler.h"

namespace ombrel {

namespace {

using settings::Attribute;
using settings::Element;
using settings::Loading;
using settings::Rows;

constexpr std::int32_t kDefaults = 1;  // the action that means the defaults file
constexpr std::string_view kFolder = "\\Ombrel\\Settings\\";

std::string DefaultsFile() { return fmt::format("{}{}Ombrel_Settings.xml", GetDataFolder(), kFolder); }

// The defaults as they came with the plug-in.
std::string ShippedFile() { return fmt::format("{}{}Ombrel_Settings.xml", ProgramPath(), kFolder); }

std::string OwnFile(const ControlHandler& controls) {
    if (controls.GlobalSettings->Checked())
        return fmt::format("{}{}Ombrel_Global_Settings.xml", GetDataFolder(), kFolder);
    return fmt::format("{}{}Ombrel_Settings_{}_{}.xml", GetDataFolder(), kFolder, Vars::FilterHandler->GetMyServer(),
                       Vars::FilterHandler->GetMyCharName());
}

// Opens the document that an action means, or what stands in for it. Returns its path, empty when there is none.
std::string OpenSettings(const ControlHandler& controls, FileGuard& files, std::int32_t action,
                         pugi::xml_document& document) {
    std::string path;
    if (action == kDefaults) {
        path = DefaultsFile();
    } else {
        path = OwnFile(controls);
        if (files.Open(path, document)) return path;

        const bool global = controls.GlobalSettings->Checked();
        wtcw_error(global ? "Failed to find global settings, loading defaults"
                          : "Failed to find character's settings, loading defaults");
        path = global ? ShippedFile() : DefaultsFile();
    }
    if (files.Open(path, document)) return path;

    wtcw_error("Loading setting defaults failed.");
    return {};
}

std::vector<std::int32_t> VersionParts(const pugi::xml_node& root) {
    std::vector<std::int32_t> parts;
    for (const auto part : Split(GetAttribute(root, "Version", "0.0.0.0"), ".")) parts.push_back(ToLong(part));
    return parts;
}

void SwapRows(host::List& list, std::int32_t a, std::int32_t b) {
    SwapCells(list, 1, a, b);
    SwapCells(list, 0, a, b);
    SwapCells(list, 2, a, b, 1);
}

// The next place of the list, after the row of that name has been brought there.
std::int32_t NextPlace(Loading& loading, host::List& list, std::string_view name) {
    if (name == "XP/Hr") name = "Session XP/Hour";
    const std::int32_t found = loading.controls.FindName(name, loading.element->key);
    const std::int32_t place = loading.lines++;
    if (found < 0 || place >= list.Count()) throw Failure(failure::kSubscript);
    if (found != place) SwapRows(list, found, place);
    return place;
}

std::int32_t AppendRow(host::List& list, const Element& element) {
    const std::int32_t row = list.AddRow();
    for (const auto& [column, icon] : element.icons) {
        list.SetData(column, row, 0, 0);
        list.SetData(column, row, icon, 1);
    }
    return row;
}

// The row that an element is about; none when it is passed over.
std::optional<std::int32_t> FindRow(Loading& loading, const pugi::xml_node& node) {
    const Element& element = *loading.element;
    if (element.rows == Rows::kOnce) return element.row;

    host::List& list = *(loading.controls.*element.list);
    if (element.rows == Rows::kAppended) return AppendRow(list, element);

    const std::string_view name = GetAttribute(node, "name", "");
    loading.attribute = "name";
    if (element.rows == Rows::kOrdered) return NextPlace(loading, list, name);

    const std::int32_t row = loading.controls.FindName(name, element.key);
    if (row >= 0) return row;
    if (element.rows == Rows::kRequired) throw Failure(failure::kSubscript);
    return std::nullopt;
}

void ReadElement(Loading& loading, const Element& element, const pugi::xml_node& node) try {
    loading.element = &element;
    loading.attribute = {};
    loading.place = {};
    if (element.begin) element.begin(loading);

    const auto row = FindRow(loading, node);
    if (!row) return;
    loading.row = *row;

    for (const Attribute& attribute : element.attributes) {
        loading.attribute = attribute.name;
        const pugi::xml_attribute written = node.attribute(attribute.name.data());
        const std::string_view value = written ? std::string_view(written.value()) : attribute.missing;
        if (written && attribute.entries && element.indexed_before_1 && loading.before_1)
            LoadIndexed(loading, attribute, value);
        else
            LoadValue(loading, attribute, value);
    }
    loading.attribute = {};
    if (element.finish) element.finish(loading);
} catch (const Failure& failure) {
    throw Failure(failure.number(), fmt::format("{} ({} {})", failure.description(), element.name, loading.attribute));
}

void ReadDocument(ControlHandler& controls, const pugi::xml_node& root, bool before_1) {
    Loading loading{.controls = controls, .before_1 = before_1};
    for (const pugi::xml_node& node : root.children()) {
        const std::string_view name = node.name();
        const auto* element = std::ranges::find(settings::kElements, name, &Element::name);
        if (element != std::end(settings::kElements))
            ReadElement(loading, *element, node);
        else if (name == "Selected_Spell")
            controls.SelectedSpell = node.child_value();
    }
}

// The detail choices show row 0 of their lists.
void ShowFirstRows(const ControlHandler& controls) {
    const auto hud_color = [](const host::List& list, std::int32_t column) {
        return GetColorFromHUDIcon(CellIcon(list, column, 0));
    };
    const host::List& general = *controls.HudGeneral;
    SelectText(*controls.ChatColorColor, Vars::ChatTextHandler->GetColorFromIcon(CellIcon(*controls.ChatColor, 3, 0)));
    SelectText(*controls.ChatColorSound, CellText(*controls.ChatColor, 4, 0));
    SelectText(*controls.HudMainColor, hud_color(*controls.HudList, 2));
    SelectText(*controls.HudGeneralFont, CellText(general, hud::kFont, 0));
    SelectText(*controls.HudGeneralSize, CellText(general, hud::kSize, 0));
    SelectText(*controls.HudGeneralBGAlpha, CellText(general, hud::kAlpha, 0));
    SelectText(*controls.HudGeneralBGColor, hud_color(general, hud::kBackground));
    SelectText(*controls.HudClockColor, hud_color(*controls.HudClockList, 4));
}

// Docking counts from here on.
void PlaceHuds() {
    Vars::HUDTargetHandler->TargetHud->frame.SetFade(0);
    for (const std::int32_t row : {hud::kStatus, hud::kMain, hud::kItems, hud::kClock}) {
        HudFrame& frame = hud::FrameOf(row);
        frame.SetPos(frame.x(), frame.y(), false);
    }
}

void WriteElement(FlatXml& xml, const ControlHandler& controls, const Element& element, std::int32_t row) {
    xml.Begin(element.name);
    for (const Attribute& attribute : element.attributes) SaveValue(xml, controls, element, row, attribute);
    xml.End();
}

std::string WriteDocument(const ControlHandler& controls) {
    FlatXml xml(kVersionText);
    for (const Element& element : settings::kElements) {
        if (element.rows == Rows::kOnce) {
            WriteElement(xml, controls, element, element.row);
            continue;
        }
        const std::int32_t count = (controls.*element.list)->Count();
        for (std::int32_t row = 0; row < count; ++row) WriteElement(xml, controls, element, row);
    }
    return xml.Finish();
}

}  // namespace

void ControlHandler::Settings_Load(std::int32_t action) try {
    wtcw_debug(fmt::format("Settings Load with action {}", action));
    Vars::SettingsState = 0;

    pugi::xml_document document;
    const std::string path = OpenSettings(*this, files_, action, document);
    if (path.empty()) return;
    Vars::SettingsState = 1;

    const pugi::xml_node root = document.document_element();
    const auto version = VersionParts(root);
    Init_Lists(version);
    ReadDocument(*this, root, version.front() < 1);
    ShowFirstRows(*this);
    PlaceHuds();

    // Some other program's document counts as read, but it is not ours to lose.
    if (std::string_view(root.name()) == "Ombrel") files_.Loaded(path);
    Vars::SettingsState = 2;
    Settings_Save(0);
} catch (...) {
    ReportFailure(fmt::format("Settings_Load {}", Vars::SettingsState), "ControlHandler");
}

void ControlHandler::Settings_Save(std::int32_t action, Durability durability) try {
    if (Vars::DebugMode)
        wtcw_debug(fmt::format("Settings Save with action {}, settings state {}", action, Vars::SettingsState));
    if (Vars::SettingsState != 2) return;

    const std::string document = WriteDocument(*this);
    const std::string path = action == kDefaults ? DefaultsFile() : OwnFile(*this);
    files_.Replace(path, FileGuard::Unseen::kGoes, [&] { SaveFile(path, document, durability); });
} catch (...) {
    ReportFailure("Settings_Save", "ControlHandler");
}

}  // namespace ombrel
