#include "tests/support/GameLines.h"

#include <fstream>

#include "core/text.h"
#include "tests/support/SourceFolder.h"

namespace ombrel::test {

std::vector<GameLine> GameLines() {
    std::ifstream file(GameData("chat-lines.tsv"));
    std::vector<GameLine> lines;
    std::string row;
    std::getline(file, row);
    while (std::getline(file, row)) {
        const auto fields = Split(row, "\t");
        lines.push_back({std::stoi(std::string(fields.at(0))), Replace(fields.at(1), "\\n", "\n"),
                         std::string(fields.size() > 2 ? fields[2] : "")});
    }
    return lines;
}

}  // namespace ombrel::test
