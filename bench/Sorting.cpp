// Which row of the pattern list takes a line: our own matching beside what else a program could use. All get the type
// test first and must agree on every line.
#include <fnmatch.h>

#include <algorithm>
#include <array>
#include <memory>
#include <regex>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>
#include <re2/re2.h>
#include <re2/set.h>

#include "bench/ChatLines.h"
#include "bench/Game.h"
#include "bench/OmbrelSorter.h"
#include "bench/Subjects.h"
#include "bench/Table.h"
#include "chat/ChatTextHandler.h"
#include "core/Vars.h"

namespace ombrel::bench {
namespace {

// A textual row of the list. The others are not decided by a line's text.
struct Pattern {
    int row;
    std::string like;
};

// The rows of each chat type.
class Patterns {
public:
    Patterns() {
        const auto& list = Vars::ChatTextHandler->ChatList;
        for (std::size_t row = 0; row < list.size(); ++row) {
            if (list[row].TextIn.starts_with('_')) continue;
            types_.at(static_cast<std::size_t>(list[row].color)).push_back({static_cast<int>(row), list[row].TextIn});
        }
    }
    const std::vector<Pattern>& OfType(std::int32_t type) const { return types_.at(static_cast<std::size_t>(type)); }
    static constexpr std::int32_t kTypes = 33;

private:
    std::array<std::vector<Pattern>, kTypes> types_;
};

// The pattern as a regular expression that is searched for. Stars at the ends cost nothing this way.
std::string RegexOf(std::string_view like, std::string_view any) {
    const bool open_start = like.starts_with('*');
    const bool open_end = like.ends_with('*');
    if (open_start) like.remove_prefix(1);
    if (open_end && !like.empty()) like.remove_suffix(1);
    std::string regex = open_start ? "" : "^";
    for (std::size_t i = 0; i < like.size(); ++i) {
        if (like.substr(i).starts_with("[[]")) {
            regex += "\\[";
            i += 2;
        } else if (like[i] == '*') {
            regex += any;
            regex += "*?";
        } else {
            if (std::string_view(".]!()+?$^|{}\\").find(like[i]) != std::string_view::npos) regex += '\\';
            regex += like[i];
        }
    }
    return open_end ? regex : regex + "$";
}

// Tries the rows of the line's type, each made ready for one matcher, until one takes the text.
template <class Matcher>
class Sorter {
public:
    Sorter() {
        const Patterns patterns;
        for (std::int32_t type = 0; type < Patterns::kTypes; ++type) {
            for (const Pattern& pattern : patterns.OfType(type)) {
                types_[static_cast<std::size_t>(type)].push_back({pattern.row, Matcher(pattern.like)});
            }
        }
    }

    int Row(const Line& line) {
        for (Candidate& candidate : types_[static_cast<std::size_t>(line.type)]) {
            if (candidate.matcher.Matches(line.text)) return candidate.row;
        }
        return kNoRow;
    }

private:
    struct Candidate {
        int row;
        Matcher matcher;
    };
    std::array<std::vector<Candidate>, Patterns::kTypes> types_;
};

class Fnmatch {
public:
    explicit Fnmatch(const std::string& like) : like_(like) {}
    bool Matches(const std::string& text) { return fnmatch(like_.c_str(), text.c_str(), FNM_NOESCAPE) == 0; }

private:
    std::string like_;
};

class StdRegex {
public:
    explicit StdRegex(const std::string& like)
        : regex_(RegexOf(like, "[\\s\\S]"), std::regex::ECMAScript | std::regex::optimize) {}
    bool Matches(const std::string& text) { return std::regex_search(text, regex_); }

private:
    std::regex regex_;
};

class Pcre2 {
public:
    explicit Pcre2(const std::string& like) {
        const std::string regex = RegexOf(like, ".");
        int error = 0;
        PCRE2_SIZE at = 0;
        code_.reset(pcre2_compile(reinterpret_cast<PCRE2_SPTR>(regex.data()), regex.size(),
                                  PCRE2_DOTALL | PCRE2_DOLLAR_ENDONLY, &error, &at, nullptr));
        if (!code_ || pcre2_jit_compile(code_.get(), PCRE2_JIT_COMPLETE) != 0) {
            throw std::runtime_error("PCRE2 does not take " + regex);
        }
        match_.reset(pcre2_match_data_create(1, nullptr));
    }
    bool Matches(const std::string& text) {
        return pcre2_jit_match(code_.get(), reinterpret_cast<PCRE2_SPTR>(text.data()), text.size(), 0, 0, match_.get(),
                               nullptr) >= 0;
    }

private:
    struct Free {
        void operator()(pcre2_code* code) const { pcre2_code_free(code); }
        void operator()(pcre2_match_data* match) const { pcre2_match_data_free(match); }
    };
    std::unique_ptr<pcre2_code, Free> code_;
    std::unique_ptr<pcre2_match_data, Free> match_;
};

// One set for each chat type, which tries all its rows at once.
class Re2SetSorter {
public:
    Re2SetSorter() {
        RE2::Options options;
        options.set_dot_nl(true);
        options.set_encoding(RE2::Options::EncodingLatin1);
        for (std::int32_t type = 0; type < Patterns::kTypes; ++type) {
            if (patterns_.OfType(type).empty()) continue;
            auto& set = sets_[static_cast<std::size_t>(type)];
            set = std::make_unique<RE2::Set>(options, RE2::UNANCHORED);
            for (const Pattern& pattern : patterns_.OfType(type)) {
                std::string error;
                if (set->Add(RegexOf(pattern.like, "."), &error) < 0) throw std::runtime_error("RE2: " + error);
            }
            if (!set->Compile()) throw std::runtime_error("RE2 is out of memory");
        }
    }

    int Row(const Line& line) {
        const auto& set = sets_[static_cast<std::size_t>(line.type)];
        if (!set || !set->Match(line.text, &hits_)) return kNoRow;
        const int first = *std::ranges::min_element(hits_);
        return patterns_.OfType(line.type)[static_cast<std::size_t>(first)].row;
    }

private:
    Patterns patterns_;
    std::array<std::unique_ptr<RE2::Set>, Patterns::kTypes> sets_;
    std::vector<int> hits_;
};

template <class S>
void Sort(benchmark::State& state) {
    Game game;
    const OmbrelSorter ours;
    S sorter;
    for (const Line& line : ChatLines()) {
        if (sorter.Row(line) != ours.Row(line)) {
            state.SkipWithError(("sorts otherwise: " + line.text).c_str());
            return;
        }
    }
    Measure(state, static_cast<std::int64_t>(ChatLines().size()), [&] {
        for (const Line& line : ChatLines()) benchmark::DoNotOptimize(sorter.Row(line));
    });
}

}  // namespace

void AddSorting() {
    const std::string subject = "Sort a chat line into the pattern list/";
    benchmark::RegisterBenchmark((subject + "Ombrel").c_str(), Sort<OmbrelSorter>);
    benchmark::RegisterBenchmark((subject + "PCRE2 with JIT").c_str(), Sort<Sorter<Pcre2>>);
    benchmark::RegisterBenchmark((subject + "RE2, a set for each type").c_str(), Sort<Re2SetSorter>);
    benchmark::RegisterBenchmark((subject + "glibc fnmatch").c_str(), Sort<Sorter<Fnmatch>>);
    benchmark::RegisterBenchmark((subject + "std::regex").c_str(), Sort<Sorter<StdRegex>>);
}

}  // namespace ombrel::bench
