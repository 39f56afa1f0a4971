// Draws every tab of the options view.
#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "adapters/sim/Calls.h"
#include "adapters/sim/View.h"
#include "adapters/sim/draw/ViewPicture.h"
#include "apps/view-pictures/SampleRows.h"
#include "core/failure.h"

int main(int argc, char** argv) {
    std::string folder, description = OMBREL_RESOURCES "/Ombrel_View.xml";
    double scale = 1.0;
    CLI::App app("Draws every tab of the options view, with sample rows in its lists, to PNG files.");
    app.add_option("folder", folder, "where the pictures go")->required();
    app.add_option("--view", description, "the view's description")->check(CLI::ExistingFile);
    app.add_option("--scale", scale, "how many pixels of the picture make one of the view")
        ->check(CLI::Range(0.5, 8.0));
    CLI11_PARSE(app, argc, argv);

    try {
        std::ifstream file(description, std::ios::binary);
        const std::string xml{std::istreambuf_iterator<char>(file), {}};
        ombrel::sim::Calls calls;
        ombrel::sim::SimView view(calls, xml);
        ombrel::sim::FillSampleRows(view);
        std::filesystem::create_directories(folder);
        for (const auto& name : ombrel::sim::WriteTabPictures(view, folder, scale)) fmt::print("{}/{}\n", folder, name);
    } catch (const std::exception& problem) {
        fmt::print(stderr, "ombrel-view-pictures: {}\n", problem.what());
        return 1;
    }
    return 0;
}
