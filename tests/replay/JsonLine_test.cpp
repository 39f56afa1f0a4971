#include "adapters/sim/JsonLine.h"

#include "tests/support/Matchers.h"

namespace ombrel::sim {
namespace {

TEST(JsonLine, WritesTheStyleOfTheFormat) {
    std::string out;
    JsonLine line(out);
    line.At(5250);
    line.Add("call", "SetRegion");
    line.Add("rect", host::Rect{1, 2, 3, -4});
    line.Add("seconds", 1e20);
    line.Add("whole", 30.0);
    line.Add("ok", true);
    line.AddJson("rows", nlohmann::ordered_json::parse(R"([["a", 1, true], {"icon": 116, "library": 0.5}])"));
    line.End();
    EXPECT_EQ(
        out, R"({"at": 5.25, "call": "SetRegion", "rect": [1, 2, 3, -4], "seconds": 1e+20, "whole": 30.0, "ok": true, )"
             R"("rows": [["a", 1, true], {"icon": 116, "library": 0.5}]})"
             "\n");
}

TEST(JsonLine, WritesAnyTextSoThatItReadsBack) {
    const std::pair<std::string, std::string> rows[] = {
        {"plain", "plain"},
        {"quote \" backslash \\ tab \t line\r\n", "quote \" backslash \\ tab \t line\r\n"},
        {std::string("\x00\x1F\x7F", 3), std::string("\x00\x1F\x7F", 3)},
        {"Aldra\xE2\x80\x99s \xF0\x9F\x90\x84", "Aldra\xE2\x80\x99s \xF0\x9F\x90\x84"},
        {"caf\xE9", "caf\xEF\xBF\xBD"},  // not UTF-8
        {"\xED\xA0\x80 \xE2\x82", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD \xEF\xBF\xBD\xEF\xBF\xBD"},
    };
    for (const auto& [text, expected] : rows) {
        std::string out;
        JsonLine line(out);
        line.Add("text", text);
        line.End();
        EXPECT_EQ(nlohmann::json::parse(out)["text"], expected);
    }
}

TEST(JsonLine, WritesMomentsInSecondsWithoutNeedlessZeros) {
    const std::pair<std::int64_t, const char*> rows[] = {{0, "0.0"},    {5, "0.005"},       {50, "0.05"},
                                                         {1000, "1.0"}, {100'100, "100.1"}, {86'400'001, "86400.001"}};
    for (const auto& [milliseconds, expected] : rows) {
        std::string out;
        JsonLine(out).At(milliseconds);
        EXPECT_EQ(out, std::string("{\"at\": ") + expected);
    }
}

}  // namespace
}  // namespace ombrel::sim
