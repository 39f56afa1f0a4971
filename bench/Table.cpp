#include "bench/Table.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "bench/Allocations.h"

namespace ombrel::bench {
namespace {

std::string Duration(double seconds) {
    if (seconds < 1e-6) return fmt::format("{:.1f} ns", seconds * 1e9);
    if (seconds < 1e-3) return fmt::format("{:.2f} us", seconds * 1e6);
    if (seconds < 1.0) return fmt::format("{:.2f} ms", seconds * 1e3);
    return fmt::format("{:.2f} s", seconds);
}

}  // namespace

void Measure(benchmark::State& state, std::int64_t items, const std::function<void()>& round) {
    const std::uint64_t before = Allocations();
    for (auto _ : state) round();
    const auto rounds = static_cast<double>(state.iterations());
    state.counters["items"] = static_cast<double>(items);
    state.counters["allocations"] = static_cast<double>(Allocations() - before) / (rounds * static_cast<double>(items));
}

void MeasureProcessor(benchmark::State& state, std::int64_t items, const std::function<double()>& round) {
    Measure(state, items, [&] { state.SetIterationTime(round()); });
}

bool Table::ReportContext(const Context&) { return true; }

void Table::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration) continue;
        const std::string& name = run.run_name.function_name;
        if (run.error_occurred) {
            GetErrorStream() << name << ": " << run.error_message << '\n';
            continue;
        }
        const std::size_t slash = name.find('/');
        const std::string subject = name.substr(0, slash);
        const std::string who = name.substr(slash + 1);
        const double items = run.counters.at("items").value;
        const double seconds = run.real_accumulated_time / static_cast<double>(run.iterations) / items;

        std::vector<Row>& rows = subjects_[subject];
        auto row = std::ranges::find(rows, who, &Row::who);
        if (row == rows.end()) row = rows.insert(row, {run.family_index, who, seconds, 0.0});
        row->seconds = std::min(row->seconds, seconds);
        row->allocations = run.counters.at("allocations").value;
    }
}

void Table::Finalize() {
    std::vector<std::pair<std::string, std::vector<Row>>> subjects(subjects_.begin(), subjects_.end());
    for (auto& [name, rows] : subjects) std::ranges::sort(rows, {}, &Row::order);
    std::ranges::sort(subjects, {}, [](const auto& subject) { return subject.second.front().order; });

    auto& out = GetOutputStream();
    for (const auto& [name, rows] : subjects) {
        out << fmt::format("\n{:<64}{:>11}{:>13}{:>10}\n", name, "each", "allocations", "as long");
        for (const Row& row : rows) {
            out << fmt::format("  {:<62}{:>11}{:>13.1f}{:>10}\n", row.who, Duration(row.seconds), row.allocations,
                               fmt::format("x {:.2f}", row.seconds / rows.front().seconds));
        }
    }
    out.flush();
}

}  // namespace ombrel::bench
