// ombrel-log: reads chat logs, searches them, and makes them web pages.
#include <fmt/format.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include "apps/log/Output.h"
#include "apps/log/Search.h"
#include "core/failure.h"
#include "core/files.h"

namespace {

using namespace ombrel;

constexpr int kFound = 0, kNothing = 1, kFailed = 2;

struct Options {
    std::vector<std::string> files;
    std::string words, days, html;
    std::string color = "auto";
    std::vector<std::string> classes;
};

int Complain(std::string_view what) {
    fmt::print(stderr, "ombrel-log: {}\n", what);
    return kFailed;
}

log::Search SearchFor(const Options& options) {
    log::Search search;
    search.SetWords(options.words);
    for (const std::string& name : options.classes) search.AddClass(name);
    if (!options.days.empty()) search.SetDays(options.days);
    return search;
}

void Print(std::span<const log::Line> lines, const std::string& color) {
    const bool colored = color == "always" || (color == "auto" && isatty(STDOUT_FILENO) && !std::getenv("NO_COLOR"));
    for (const log::Line& line : lines) fmt::print("{}\n", log::TerminalLine(line, colored));
}

void WritePage(std::span<const log::Line> lines, const std::string& file) {
    const auto path = std::filesystem::absolute(file);
    if (!std::filesystem::is_directory(path.parent_path()))
        throw std::runtime_error(fmt::format("{}: no such folder", path.parent_path().string()));
    SaveFile(path.string(), log::HtmlPage(lines), Durability::kProcess);
}

int Run(const Options& options) {
    const log::Search search = SearchFor(options);
    int status = kNothing;
    std::vector<log::Line> found;
    for (const std::string& file : options.files) {
        try {
            for (log::Line& line : log::ReadLog(file))
                if (search.Fits(line)) found.push_back(std::move(line));
        } catch (const std::exception& error) {
            status = Complain(error.what());
        }
    }
    if (options.html.empty())
        Print(found, options.color);
    else
        WritePage(found, options.html);
    if (std::fflush(stdout) != 0 || std::ferror(stdout)) return Complain("can't write all of the output");
    return status == kNothing && !found.empty() ? kFound : status;
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    CLI::App app(
        "Reads Ombrel's chat logs, text and XML, one after the other, and prints the lines that fit.\n"
        "Text logs tell no classes.");
    app.footer("Exit status: 0 lines found, 1 none, 2 something went wrong.");
    app.add_option("files", options.files, "The logs")->required();
    app.add_option("-s,--search", options.words, "Words: \"this+that\" for both, \"this|that\" for either");
    app.add_option("-c,--class", options.classes, "Class of lines, as \"Tells\"; several with commas")->delimiter(',');
    app.add_option("-d,--day", options.days, "2024-07-04, or 2024-07-01..2024-07-04");
    app.add_option("--html", options.html, "Write one web page with the lines, to search in a browser");
    app.add_option("--color", options.color, "auto, always or never")
        ->check(CLI::IsMember({"auto", "always", "never"}))
        ->capture_default_str();
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) return app.exit(error);
        return Complain(error.what());
    }
    try {
        return Run(options);
    } catch (const std::exception& error) {
        return Complain(error.what());
    }
}
