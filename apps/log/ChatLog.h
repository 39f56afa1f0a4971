// Chat logs as files hold them, text or XML.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace ombrel::log {

struct Line {
    std::string text;
    std::string date;   // as the file has it, "7/4/2024 1:05:09 PM"; empty in a text log without dates
    std::string day;    // "2024-07-04", also from the name of a log that is named by day; empty when nothing tells
    std::string color;  // "#RRGGBB"; text logs have none
    int tag = 0;        // log class; text logs have none
};

// The day of "7/4/2024 1:05:09 PM" or "7/4/2024"; empty when the text is no such date.
std::string DayOf(std::string_view date);

// All finished lines of a log. One that was cut off gives what it has. Throws std::runtime_error with the reason.
std::vector<Line> ReadLog(const std::filesystem::path& file);

}  // namespace ombrel::log
