// Files that tests read: the project's own, and collections from the game where the machine has them.
#pragma once

#include <string>
#include <string_view>

namespace ombrel::test {

// The folder of the project, which has sessions/ and resources/.
const std::string& SourceFolder();

// The simulated client's spells.
std::string SpellTablePath();

// The path of a file with things of the real game: in the folder that OMBREL_DATA names, or beside the project.
std::string GameData(std::string_view file);

}  // namespace ombrel::test
