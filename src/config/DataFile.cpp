// The data file: what play has learned about a character, and whether it uses the global settings.
#include <fmt/format.h>

#include <algorithm>
#include <pugixml.hpp>
#include <string>

#include "chat/LogHandler.h"
#include "config/ControlHandler.h"
#include "config/FlatXml.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "corpses/CorpseHandler.h"
#include "spells/SpellHandler.h"

namespace ombrel {

namespace {

std::string DataFile() {
    return fmt::format("{}\\Ombrel\\Data\\Ombrel_Data_{}_{}.xml", GetDataFolder(), Vars::FilterHandler->GetMyServer(),
                       Vars::FilterHandler->GetMyCharName());
}

std::int32_t LongAttribute(const pugi::xml_node& node, std::string_view name) {
    return ToLong(GetAttribute(node, name, "0"));
}

void LoadGlobal(const pugi::xml_node& node) {
    Vars::ControlHandler->GlobalSettings->SetChecked(ToBool(GetAttribute(node, "enabled", "False")));
}

void SaveGlobal(FlatXml& xml) {
    xml.Begin("Global");
    xml.Attribute("enabled", BoolText(Vars::ControlHandler->GlobalSettings->Checked()));
    xml.End();
}

void LoadCorpse(const pugi::xml_node& node) {
    const double ns = Val(GetAttribute(node, "ns", "0"));
    const double ew = Val(GetAttribute(node, "ew", "0"));
    const std::int32_t time = LongAttribute(node, "time");
    const bool dungeon = ToBool(GetAttribute(node, "dungeon", "0"));
    const host::Id guid = LongAttribute(node, "guid");
    Vars::CorpseHandler->AddCorpsefromData(ns, ew, time, dungeon, guid, std::string(GetAttribute(node, "data", "")));
}

void SaveCorpses(FlatXml& xml) {
    for (const CorpseInfo& corpse : Vars::CorpseHandler->Corpses) {
        xml.Begin("Corpse");
        xml.Attribute("ns", NumberText(corpse.NS));
        xml.Attribute("ew", NumberText(corpse.EW));
        xml.Attribute("time", corpse.time);
        xml.Attribute("dungeon", BoolText(corpse.Dungeon));
        xml.Attribute("guid", corpse.guid);
        xml.Attribute("data", corpse.data);
        xml.End();
    }
}

void LoadItemSpell(const pugi::xml_node& node) {
    const std::int32_t id = LongAttribute(node, "id");
    const std::int32_t remaining = LongAttribute(node, "remaining");
    const std::string target(GetAttribute(node, "target", ""));
    Vars::SpellHandler->AddItemSpellfromData(id, remaining, target);
}

void SaveItemSpells(FlatXml& xml) {
    for (const auto& [item, tracked] : Vars::SpellHandler->ItemSpells) {
        for (const auto& [family, spell] : tracked.Spells) {
            xml.Begin("Item_Spell");
            xml.Attribute("id", spell->spellid);
            xml.Attribute("remaining", spell->timeRemaining);
            xml.Attribute("target", spell->sTarget);
            xml.End();
        }
    }
}

void LoadLog(const pugi::xml_node& node) {
    const std::string message(GetAttribute(node, "message", ""));
    const std::int32_t type = LongAttribute(node, "type");
    const std::int32_t color = LongAttribute(node, "color");
    const std::int32_t tag = LongAttribute(node, "tag");
    const std::int32_t date = LongAttribute(node, "date");
    Vars::LogHandler->AddToLogFromData(message, type, color, tag, date);
}

void SaveLog(FlatXml& xml) {
    for (const LogItem& item : Vars::LogHandler->Log) {
        xml.Begin("Log");
        xml.Attribute("message", item.message);
        xml.Attribute("type", item.msgtype);
        xml.Attribute("color", item.msgcolor);
        xml.Attribute("tag", item.msgtag);
        xml.Attribute("date", item.msgdate);
        xml.End();
    }
}

// What is known stands in the file already: after a second login it would stand there twice, or in the file of another
// character.
void ForgetAll() {
    Vars::CorpseHandler->Corpses.clear();
    Vars::ControlHandler->SelectedCorpse = -1;
    Vars::SpellHandler->ItemSpells.clear();
    Vars::LogHandler->Log.clear();
}

// One row per kind of element, in the order of the file. `load` takes one element, `save` writes all of the kind.
struct Kind {
    std::string_view name;
    void (*load)(const pugi::xml_node& node);
    void (*save)(FlatXml& xml);
};
constexpr Kind kKinds[] = {
    {"Global", LoadGlobal, SaveGlobal},
    {"Corpse", LoadCorpse, SaveCorpses},
    {"Item_Spell", LoadItemSpell, SaveItemSpells},
    {"Log", LoadLog, SaveLog},
};

}  // namespace

void ControlHandler::Data_Load(std::int32_t action) try {
    wtcw_debug(fmt::format("Data Load with action {}", action));
    const std::string path = DataFile();
    ForgetAll();
    pugi::xml_document document;
    if (!files_.Open(path, document)) {
        GlobalSettings->SetChecked(false);
        Data_Save();
        return;
    }
    const pugi::xml_node root = document.document_element();
    for (const pugi::xml_node& node : root.children()) {
        const auto* kind = std::ranges::find(kKinds, std::string_view(node.name()), &Kind::name);
        if (kind != std::end(kKinds)) kind->load(node);
    }
    Vars::LogHandler->DisplayLog();
    if (std::string_view(root.name()) == "Ombrel") files_.Loaded(path);
    Data_Save();
} catch (...) {
    ReportFailure("Data_Load", "ControlHandler");
}

void ControlHandler::Data_Save(Durability durability) try {
    wtcw_debug("Data Save");
    FlatXml xml("");
    for (const Kind& kind : kKinds) kind.save(xml);

    // A file that was never loaded holds what this one lacks.
    const std::string path = DataFile();
    files_.Replace(path, FileGuard::Unseen::kStays, [&] { SaveFile(path, xml.Finish(), durability); });
} catch (...) {
    ReportFailure("Data_Save", "ControlHandler");
}

}  // namespace ombrel
