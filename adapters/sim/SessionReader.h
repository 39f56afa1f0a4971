// Reads session files: one JSON object a line. Blank lines are passed over, and so is a byte order mark.
#pragma once

#include <cstdint>
#include <istream>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/sim/SessionFormat.h"

namespace ombrel::sim {

// A record that has been checked against the format.
struct Record {
    RecordKind kind = RecordKind::kNote;
    Json json;
};

class SessionReader {
public:
    // `input` must outlive the reader; `name` stands in reports.
    SessionReader(std::istream& input, std::string name) : input_(input), name_(std::move(name)) {}

    // The next record, or nothing at the end. Throws SessionError for a line that is no record.
    std::optional<Record> Next();

    // File and line of the record that was read last: "evening.jsonl:12".
    std::string Where() const;

private:
    std::istream& input_;
    std::string name_;
    std::string line_;
    std::int64_t number_ = 0;
};

// One line of a session as a record. Throws SessionError.
Record ParseRecord(std::string_view line);

}  // namespace ombrel::sim
