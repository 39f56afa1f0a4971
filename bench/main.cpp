#include <benchmark/benchmark.h>

#include <vector>

#include "bench/Subjects.h"
#include "bench/Table.h"

int main(int argc, char** argv) {
    // What is given on the command line comes later, and wins.
    char repetitions[] = "--benchmark_repetitions=5";
    char interleaving[] = "--benchmark_enable_random_interleaving=true";
    char time[] = "--benchmark_min_time=0.1";
    std::vector<char*> arguments{argv[0], repetitions, interleaving, time};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());

    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;

    ombrel::bench::AddSorting();
    ombrel::bench::AddChatRoad();
    ombrel::bench::AddRules();
    ombrel::bench::AddMessages();
    ombrel::bench::AddSettings();
    ombrel::bench::AddSpells();
    ombrel::bench::AddDisplays();
    ombrel::bench::AddReplay();

    ombrel::bench::Table table;
    benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();
}
