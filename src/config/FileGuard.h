// Keeps the plug-in from writing over what a player has lost no other copy of.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace pugi {
class xml_document;
}

namespace ombrel {

// Watches the files that the plug-in rewrites whole. One that exists but was not taken in from end to end is copied
// beside itself before its first rewriting.
class FileGuard {
public:
    // Opens a document. False when there is none, or when it can't be read or parsed.
    bool Open(const std::string& path, pugi::xml_document& document);

    // The document has been taken in whole.
    void Loaded(const std::string& path);

    // What to do with a sound file that was never opened.
    enum class Unseen { kGoes, kStays };

    // Writes a file over.
    template <class Write>
    void Replace(const std::string& path, Unseen unseen, Write write) {
        KeepIfNeeded(path, unseen);
        write();
        reasons_[path].clear();
    }

private:
    void KeepIfNeeded(const std::string& path, Unseen unseen);

    std::map<std::string, std::string> reasons_;  // by path: why it must be kept; empty when it need not
};

}  // namespace ombrel
