#include "bench/ChatLines.h"

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>

namespace ombrel::bench {
namespace {

constexpr const char* kCollection = OMBREL_SOURCE_DIR "/../shared/data/chat-lines.tsv";
constexpr const char* kStory = OMBREL_SOURCE_DIR "/sessions/an-evening.jsonl";

// Columns: chat type, text with \n for a line feed, remarks. Type -1 is a status text, which is no chat line.
std::vector<Line> ReadCollection() {
    std::vector<Line> lines;
    std::ifstream file(kCollection);
    std::string row;
    std::getline(file, row);
    while (std::getline(file, row)) {
        const std::size_t tab = row.find('\t');
        if (tab == std::string::npos) continue;
        const int type = std::stoi(row.substr(0, tab));
        if (type < 0) continue;
        std::string text = row.substr(tab + 1, row.find('\t', tab + 1) - tab - 1);
        for (std::size_t at = text.find("\\n"); at != std::string::npos; at = text.find("\\n", at))
            text.replace(at, 2, "\n");
        lines.push_back({type, std::move(text)});
    }
    return lines;
}

std::vector<Line> ReadStory() {
    std::vector<Line> lines;
    std::ifstream file(kStory);
    std::string row;
    while (std::getline(file, row)) {
        if (row.empty()) continue;
        const auto record = nlohmann::json::parse(row);
        if (record.value("event", "") != "ACHooks_ChatTextIntercept") continue;
        std::string text = record.at("text");
        if (text.ends_with('\n')) text.pop_back();
        lines.push_back({record.at("color"), std::move(text)});
    }
    return lines;
}

}  // namespace

const std::vector<Line>& ChatLines() {
    static const std::vector<Line> lines = [] {
        std::vector<Line> read = std::filesystem::exists(kCollection) ? ReadCollection() : ReadStory();
        if (read.empty()) throw std::runtime_error("there are no chat lines to measure with");
        return read;
    }();
    return lines;
}

}  // namespace ombrel::bench
