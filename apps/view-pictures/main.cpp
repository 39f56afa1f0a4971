// Draws every tab of the options view of a character in the middle of play.
#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "adapters/sim/Client.h"
#include "adapters/sim/View.h"
#include "adapters/sim/draw/ViewPicture.h"
#include "apps/view-pictures/SampleRows.h"

namespace {

namespace fs = std::filesystem;

// Gone again with all that is in it.
class TemporaryFolder {
public:
    TemporaryFolder() : path_((fs::temp_directory_path() / "ombrel-view-XXXXXX").string()) {
        if (!mkdtemp(path_.data())) throw std::runtime_error("no temporary folder");
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& path() const { return path_; }

private:
    std::string path_;
};

void Draw(const std::string& plugin_folder, const std::string& folder, double scale) {
    const TemporaryFolder data;
    fs::copy(fs::path(plugin_folder) / "Ombrel", fs::path(data.path()) / "Ombrel", fs::copy_options::recursive);

    ombrel::sim::Client client;
    client.system.plugin_folder = plugin_folder;
    client.system.common_data = client.system.documents = data.path();
    client.sheet.Level = 126;
    client.Start();
    client.LoginComplete();
    if (!client.view()) throw std::runtime_error("the plug-in has no options view");
    ombrel::sim::FillSampleRows(*client.view());

    fs::create_directories(folder);
    for (const std::string& name : ombrel::sim::WriteTabPictures(*client.view(), folder, scale))
        fmt::print("{}\n", (fs::path(folder) / name).string());
}

}  // namespace

int main(int argc, char** argv) {
    std::string folder, plugin_folder = OMBREL_RESOURCES;
    double scale = 1.0;
    CLI::App app("Draws every tab of the options view, with sample rows in its lists, to PNG files.");
    app.add_option("folder", folder, "where the pictures go")->required();
    app.add_option("--plugin-folder", plugin_folder, "the folder of the view's description and the default settings")
        ->check(CLI::ExistingDirectory);
    app.add_option("--scale", scale, "how many pixels of the picture make one of the view")
        ->check(CLI::Range(0.5, 8.0));
    CLI11_PARSE(app, argc, argv);

    try {
        Draw(plugin_folder, folder, scale);
    } catch (const std::exception& problem) {
        fmt::print(stderr, "ombrel-view-pictures: {}\n", problem.what());
        return 1;
    }
    return 0;
}
