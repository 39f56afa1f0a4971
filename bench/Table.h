// The benchmarks' results as one table for people.
//
// A benchmark is named "subject/who". The first of a subject is Ombrel's own; the others are what it is compared with,
// and show how many times as long they take. Times are the best of all repetitions: the one that was disturbed least.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace ombrel::bench {

// Runs `round` again and again. One round handles `items` lines, messages or files: the table shows time and
// allocations for each.
void Measure(benchmark::State& state, std::int64_t items, const std::function<void()>& round);

// Likewise, where a round says itself how many seconds it took. For benchmarks with manual time.
void MeasureProcessor(benchmark::State& state, std::int64_t items, const std::function<double()>& round);

class Table final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    struct Row {
        std::int64_t order;  // of registration; the runs themselves are shuffled
        std::string who;
        double seconds = 0.0;  // for each item
        double allocations = 0.0;
    };
    std::map<std::string, std::vector<Row>> subjects_;
};

}  // namespace ombrel::bench
