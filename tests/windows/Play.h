// Sessions played through the plug-in itself, and through its DLL in the stand-in framework.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/standin/PluginDll.h"

namespace ombrel::standin {

std::filesystem::path DllPath();

// The example session that ends with a logoff, without what tells of HUDs from inside: a DLL doesn't show its insides.
std::string Evening();

// What comes of a session: what the plug-in called, a line each, and the files that it left.
struct Played {
    std::string calls;
    std::map<std::string, std::string> files;

    friend bool operator==(const Played&, const Played&) = default;
};

// Both play in folders of the same names, and trace all calls. `set_up` changes the client before the session.
using SetUp = std::function<void(sim::Client&)>;
Played PlayItself(std::string_view session, const SetUp& set_up = {});
Played PlayDll(std::string_view session, const SetUp& set_up = {});

// Where two texts part: the number of the line and both lines, or nothing.
std::string Difference(const std::string& expected, const std::string& actual);

// The player's folders, fresh, with the default settings in them. They go with this.
class Folders {
public:
    Folders();
    ~Folders();
    Folders(const Folders&) = delete;
    Folders& operator=(const Folders&) = delete;

    void GiveTo(sim::Client& client) const;
    std::map<std::string, std::string> Files() const;

private:
    std::filesystem::path root_;
};

}  // namespace ombrel::standin
