#include "bench/Game.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace ombrel::bench {
namespace {

namespace fs = std::filesystem;

fs::path FreshFolder() {
    std::string name = (fs::temp_directory_path() / "ombrel-bench-XXXXXX").string();
    if (!mkdtemp(name.data()))
        throw std::runtime_error("no folder can be made in " + fs::temp_directory_path().string());
    return name;
}

}  // namespace

Game::Game() : folder_(FreshFolder()) {
    const fs::path resources = OMBREL_SOURCE_DIR "/resources";
    const fs::path settings = "Ombrel/Settings/Ombrel_Settings.xml";
    fs::create_directories(folder_ / "documents");
    fs::create_directories((folder_ / "data" / settings).parent_path());
    fs::copy_file(resources / settings, folder_ / "data" / settings);

    client.system.documents = (folder_ / "documents").string();
    client.system.common_data = (folder_ / "data").string();
    client.system.plugin_folder = resources.string();
    client.LoadSpells((resources / "sim" / "spells.tsv").string());
    sim::Object& character = client.object(client.sheet.Character);
    character.Name = client.sheet.Name;
    character.Coordinates = host::Position{12.3, -45.6};
    client.Start();
    client.LoginComplete();
}

Game::~Game() {
    client.calls.listener = nullptr;
    client.Terminate();
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

}  // namespace ombrel::bench
