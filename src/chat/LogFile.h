// Log files on the disk.
//
// Each write adds to the end and costs what it adds, however long the file is. A write that fails leaves the file as it
// was.
#pragma once

#include <cstdint>
#include <deque>
#include <span>
#include <string>
#include <string_view>

#include "chat/LogItem.h"

namespace ombrel {

class LogFile {
public:
    virtual ~LogFile() = default;

    // Adds all items, or throws Failure and adds none.
    virtual void Write(const std::deque<LogItem>& items) = 0;
};

// Lines of text in the game's character set, each ending in CR LF, with the date in front when the player wants it.
class TextLog final : public LogFile {
public:
    // Makes the file when it is missing. Throws Failure.
    explicit TextLog(std::string path);
    void Write(const std::deque<LogItem>& items) override;

private:
    std::string path_;
};

// A document that is well-formed between writes: the end of its root is written over and put back with each of them. An
// end that a crash cut off is completed at the next opening, and no finished line is lost.
class XmlLog final : public LogFile {
public:
    // Opens the log, or begins a new one. A file that is no log is kept beside under a telling name. Throws Failure.
    explicit XmlLog(std::string path);
    void Write(const std::deque<LogItem>& items) override;

private:
    void Open();

    std::string path_;
    std::string closing_;          // the end tag of the root, and what stands behind it
    std::uint64_t insert_at_ = 0;  // where it begins
    std::uint64_t size_ = 0;       // of the file after our last write
};

// One line of the document. Failure 9 for a colour that the table lacks.
std::string XmlMessage(const LogItem& item);

}  // namespace ombrel
