// The declarations of the framework's interfaces, read as text: they compile for Windows only.
//
// What they say is held against the framework's own tables where those lie near the sources, in a folder "reference"
// one step aside of the way up.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/Matchers.h"
#include "tests/support/SourceFolder.h"

namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;

struct Member {
    std::string kind;  // Method, Get, Put
    std::string name;
    int slot;
    std::vector<std::string> parameters;
};

struct Declared {
    std::string name;
    std::string id;
    std::string base;
    std::vector<Member> members;
    std::map<std::string, int> events;  // to dispids
};

std::vector<std::string> SplitTypes(const std::string& list) {
    std::vector<std::string> types;
    std::istringstream stream(list);
    for (std::string type; std::getline(stream, type, ',');) {
        type.erase(0, type.find_first_not_of(' '));
        if (!type.empty()) types.push_back(type);
    }
    return types;
}

// `int` and enumerations are long; interfaces lose their library's name; records go by their Windows names.
std::string Plain(std::string type, const std::set<std::string>& enumerations) {
    const auto end = std::min(type.find('*'), type.size());
    std::string stars = type.substr(end);
    type.resize(end);
    if (const auto dot = type.rfind('.'); dot != std::string::npos) type.erase(0, dot + 1);
    if (type.starts_with("tag")) type.erase(0, 3);
    if (type.starts_with("SAFEARRAY")) type = "SAFEARRAY", stars = "**";
    if (type == "int" || enumerations.contains(type)) type = "long";
    return type + stars;
}

Member ReadMember(const std::smatch& match) {
    Member member{match[1], match[4], std::stoi(match[2]), SplitTypes(match[3])};
    if (member.kind == "Get") {
        // The result, which is written first, comes last.
        const std::string result = member.parameters.front();
        member.parameters.erase(member.parameters.begin());
        member.parameters.push_back(result + "*");
    }
    return member;
}

std::vector<Declared> ReadDeclarations() {
    static const std::regex opening(R"(^struct (I\w+) : Interface<\w+(?:, (\w+))?> \{$)");
    static const std::regex other(R"(^struct (I\w+)(?: : (IUnknown))? \{$)");
    static const std::regex id(R"re(GUID kIid = Guid\("([0-9A-F-]+)"\);)re");
    static const std::regex member(R"(static constexpr (Method|Get|Put)<(\d+)(?:, ([^>]*))?> (\w+)\{\};)");
    static const std::regex event(R"(static constexpr DISPID (\w+) = (\d+);)");

    std::vector<Declared> all;
    for (const auto& file : fs::directory_iterator(ombrel::test::SourceFolder() + "/adapters/decal/interfaces")) {
        if (file.path().filename() == "Member.h") continue;
        std::ifstream stream(file.path());
        for (std::string line; std::getline(stream, line);) {
            std::smatch match;
            if (std::regex_search(line, match, opening) || std::regex_search(line, match, other)) {
                all.push_back({match[1], {}, match[2], {}, {}});
            } else if (std::regex_search(line, match, id)) {
                if (!all.empty()) all.back().id = match[1];
            } else if (std::regex_search(line, match, member)) {
                all.back().members.push_back(ReadMember(match));
            } else if (std::regex_search(line, match, event)) {
                all.back().events[match[1]] = std::stoi(match[2]);
            } else {
                EXPECT_FALSE(line.find("static constexpr") != std::string::npos) << file.path() << ": " << line;
            }
        }
    }
    return all;
}

std::optional<fs::path> FindTables() {
    std::error_code ignored;
    for (fs::path folder = ombrel::test::SourceFolder(); folder.has_relative_path(); folder = folder.parent_path()) {
        for (const auto& beside : fs::directory_iterator(folder, ignored)) {
            const auto tables = beside.path() / "reference" / "framework-interfaces.jsonl";
            if (fs::is_regular_file(tables, ignored)) return tables;
        }
    }
    return std::nullopt;
}

struct Tables {
    std::map<std::string, Json> interfaces;  // by id
    std::set<std::string> enumerations;
};

Tables ReadTables(const fs::path& path) {
    Tables tables;
    std::ifstream stream(path);
    for (std::string line; std::getline(stream, line);) {
        const Json entry = Json::parse(line);
        if (!entry.contains("kind")) continue;
        if (entry["kind"] == "enum") tables.enumerations.insert(entry["name"]);
        if (entry["kind"] == "interface" || entry["kind"] == "dispatch") {
            std::string id = entry["guid"];
            tables.interfaces[id.substr(1, id.size() - 2)] = entry;
        }
    }
    return tables;
}

// The framework's member behind a declared one: by kind and name, where the writing half of a property is called Set...
const Json* FindMember(const Json& published, const Member& member) {
    const std::string name = member.kind == "Put" ? member.name.substr(3) : member.name;
    for (const Json& function : published["funcs"]) {
        const int kind = function["inv"];
        const bool fits = member.kind == "Method" ? kind == 1
                          : member.kind == "Get"  ? kind == 2
                                                  : kind == 4 || kind == 8;
        if (fits && function["name"] == name) return &function;
    }
    return nullptr;
}

TEST(Declarations, GiveEveryInterfaceAnIdOfItsOwnAndEveryMemberASlotOfItsOwn) {
    const auto declared = ReadDeclarations();
    ASSERT_GT(declared.size(), 40u);
    std::set<std::string> ids;
    for (const Declared& interface : declared) {
        SCOPED_TRACE(interface.name);
        EXPECT_EQ(interface.id.size(), 36u);
        EXPECT_TRUE(ids.insert(interface.id).second);
        std::set<int> slots;
        for (const Member& member : interface.members) {
            EXPECT_GE(member.slot, 3) << member.name;
            EXPECT_TRUE(slots.insert(member.slot).second) << member.name;
        }
    }
}

TEST(Declarations, AgreeWithTheFrameworksTables) {
    const auto path = FindTables();
    if (!path)
        GTEST_SKIP()
            << "waits for the framework's tables: reference/framework-interfaces.jsonl in a folder beside the checkout";
    const Tables tables = ReadTables(*path);

    int compared = 0;
    for (const Declared& interface : ReadDeclarations()) {
        SCOPED_TRACE(interface.name);
        const auto found = tables.interfaces.find(interface.id);
        ASSERT_NE(found, tables.interfaces.end());
        const Json& published = found->second;
        for (const Member& member : interface.members) {
            SCOPED_TRACE(member.name);
            if (interface.name == "IWorldObject" && member.name == "Doubles") continue;  // the tables lack it
            const Json* function = FindMember(published, member);
            ASSERT_NE(function, nullptr);
            EXPECT_EQ(function->at("vft"), member.slot * 4);
            std::vector<std::string> parameters, ours;
            for (const Json& parameter : function->at("params"))
                parameters.push_back(Plain(parameter["type"], tables.enumerations));
            for (const std::string& type : member.parameters) ours.push_back(Plain(type, {}));
            EXPECT_EQ(ours, parameters);
            ++compared;
        }
        for (const auto& [name, dispid] : interface.events) {
            SCOPED_TRACE(name);
            const auto& functions = published["funcs"];
            const auto event =
                std::ranges::find_if(functions, [&](const Json& function) { return function["name"] == name; });
            ASSERT_NE(event, functions.end());
            EXPECT_EQ(event->at("dispid"), dispid);
            ++compared;
        }
    }
    EXPECT_GT(compared, 150);
}

}  // namespace
