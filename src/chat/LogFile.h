// Log files on the disk.
//
// Each write adds to the end and costs what it adds, however long the file is. A write that fails leaves the file as it
// was.
#pragma once

#include <cstdint>
#include <deque>
#include <string>

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
    // Reads the log; a new one is made by its first line. A file that is no log is kept beside under a telling name.
    // Throws Failure.
    explicit XmlLog(std::string path);
    void Write(const std::deque<LogItem>& items) override;

private:
    void Open();
    bool IsAsLeft() const;  // nobody else has touched the file

    std::string path_;
    bool begun_ = false;           // the file holds a log
    std::uint64_t insert_at_ = 0;  // where the end tag of the root begins
    std::string closing_;          // that tag, and what stands behind it
    std::uint64_t size_ = 0;       // of the file as we left it
};

}  // namespace ombrel
