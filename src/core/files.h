// Files. Paths are texts with backslashes or slashes; a path without a root is failure 76, and nothing is made for it.
//
// Failures: 53 file not found, 61 disk full, 70 permission denied, 75 no access, 76 path not found, 57 anything else.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ombrel {

// The native path of a text.
std::filesystem::path NativePath(std::string_view text);

bool FileExists(std::string_view path);
std::string ReadFile(std::string_view path);  // the whole file, byte for byte

// How sure a saved file must be.
enum class Durability {
    kProcess,  // survives a crash of the client
    kPower,    // survives a power cut; slow
};

// Writes the content beside the old file and puts it in its place, so that a crash at any moment leaves the old file or
// the new one. Makes the folders that it needs.
void SaveFile(std::string_view path, std::string_view content, Durability durability);

// Adds to the end of a file, which it makes, with its folders, when it is missing. `heading` comes first in an empty
// file.
void AppendFile(std::string_view path, std::string_view content, std::string_view heading = {});

// Copies a file beside itself under "<name> (<reason> <date>)<extension>", with a number behind the date when another
// file has that name. Returns the copy's path; does nothing when there is no such file.
std::string KeepCopy(std::string_view path, std::string_view reason);

void MakeFolders(std::string_view folder);

// Names of the files in a folder that end in `extension` without regard to case, in order; none for a folder that is
// not there.
std::vector<std::string> ListFiles(std::string_view folder, std::string_view extension);

}  // namespace ombrel
