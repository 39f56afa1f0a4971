#include "config/FileGuard.h"

#include <pugixml.hpp>

#include "core/failure.h"
#include "core/files.h"

namespace ombrel {

bool FileGuard::Open(const std::string& path, pugi::xml_document& document) {
    std::string content;
    try {
        content = ReadFile(path);
    } catch (const Failure& failure) {
        const bool missing = failure.number() == failure::kFileNotFound || failure.number() == failure::kPathNotFound;
        reasons_[path] = missing ? "" : "unreadable";
        return false;
    }
    if (!document.load_buffer(content.data(), content.size())) {
        reasons_[path] = "unreadable";
        return false;
    }
    reasons_[path] = "not taken over";
    return true;
}

void FileGuard::Loaded(const std::string& path) { reasons_[path].clear(); }

void FileGuard::KeepIfNeeded(const std::string& path, Unseen unseen) {
    if (!reasons_.contains(path)) {
        pugi::xml_document document;
        if (Open(path, document) && unseen == Unseen::kGoes) Loaded(path);
    }
    if (const std::string& reason = reasons_[path]; !reason.empty()) KeepCopy(path, reason);
}

}  // namespace ombrel
