#include "tests/support/GameLines.h"

#include <cstdlib>
#include <fstream>

#include "core/text.h"

namespace ombrel::test {

std::vector<GameLine> GameLines() {
    const char* const folder = std::getenv("OMBREL_DATA");
    std::ifstream file(std::string(folder ? folder : OMBREL_SOURCE_DIR "/../shared/data") + "/chat-lines.tsv");
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
