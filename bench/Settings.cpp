// Each change of an option saves all settings: beside what the XML library alone needs for the same document.
#include <filesystem>
#include <new>
#include <pugixml.hpp>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "bench/Game.h"
#include "bench/Subjects.h"
#include "bench/Table.h"
#include "config/ControlHandler.h"
#include "core/Vars.h"

namespace ombrel::bench {
namespace {

struct Element {
    std::string name;
    std::vector<std::pair<std::string, std::string>> attributes;
};

struct Settings {
    std::string version;
    std::vector<Element> elements;
};

std::filesystem::path SettingsFile(const Game& game) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(game.folder())) {
        const std::string name = entry.path().filename().string();
        if (name.starts_with("Ombrel_Settings_") && name.ends_with(".xml")) return entry.path();
    }
    throw std::runtime_error("the login has left no settings file");
}

Settings ReadSettings(const std::filesystem::path& file) {
    pugi::xml_document document;
    if (!document.load_file(file.c_str())) throw std::runtime_error("the settings cannot be read back");
    Settings settings{document.document_element().attribute("Version").value(), {}};
    for (const auto& node : document.document_element().children()) {
        if (node.type() != pugi::node_element) continue;
        Element element{node.name(), {}};
        for (const auto& attribute : node.attributes())
            element.attributes.emplace_back(attribute.name(), attribute.value());
        settings.elements.push_back(std::move(element));
    }
    return settings;
}

void Build(const Settings& settings, pugi::xml_document& document) {
    auto root = document.append_child("Ombrel");
    root.append_attribute("Version") = settings.version.c_str();
    root.append_child(pugi::node_pcdata).set_value("\r\t");
    for (const Element& element : settings.elements) {
        auto node = root.append_child(element.name.c_str());
        for (const auto& [name, value] : element.attributes) node.append_attribute(name.c_str()) = value.c_str();
        root.append_child(pugi::node_pcdata).set_value("\r\t");
    }
}

void SaveAll(benchmark::State& state) {
    Game game;
    Measure(state, 1, [] { Vars::ControlHandler->Settings_Save(0); });
}

// The least that can be done: the values are at hand, and a crash in the middle costs the player the settings.
enum class Way { kOverTheOldFile, kBesideAndRenamed };

void BareXml(benchmark::State& state, Way way) {
    Game game;
    const std::filesystem::path file = SettingsFile(game);
    const std::filesystem::path beside = file.string() + ".new";
    const Settings settings = ReadSettings(file);
    Measure(state, 1, [&] {
        const auto& target = way == Way::kOverTheOldFile ? file : beside;
        pugi::xml_document document;
        Build(settings, document);
        if (!document.save_file(target.c_str(), "", pugi::format_raw | pugi::format_no_declaration)) {
            throw std::runtime_error("the file cannot be written");
        }
        if (way == Way::kBesideAndRenamed) std::filesystem::rename(beside, file);
    });
}

void BareXmlInMemory(benchmark::State& state) {
    Game game;
    const Settings settings = ReadSettings(SettingsFile(game));
    Measure(state, 1, [&] {
        pugi::xml_document document;
        Build(settings, document);
        std::ostringstream text;
        document.save(text, "", pugi::format_raw | pugi::format_no_declaration);
        benchmark::DoNotOptimize(text.str().data());
    });
}

}  // namespace

void AddSettings() {
    pugi::set_memory_management_functions([](std::size_t size) { return ::operator new(size); },
                                          [](void* memory) { ::operator delete(memory); });
    benchmark::RegisterBenchmark("Save all settings/Ombrel", SaveAll);
    const std::string alone = "Save all settings/pugixml alone, values at hand, ";
    benchmark::RegisterBenchmark((alone + "beside and renamed").c_str(), BareXml, Way::kBesideAndRenamed);
    benchmark::RegisterBenchmark((alone + "over the old file").c_str(), BareXml, Way::kOverTheOldFile);
    benchmark::RegisterBenchmark((alone + "into memory").c_str(), BareXmlInMemory);
}

}  // namespace ombrel::bench
