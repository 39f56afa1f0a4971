// ombrel-windows-bench: what a chat line costs when it comes through the framework, with every option on and with none.

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <vector>

#include "adapters/sim/View.h"
#include "tests/windows/Play.h"

namespace ombrel::standin {
namespace {

using Clock = std::chrono::steady_clock;

void Tick(const sim::Element& element, bool checked) {
    if (auto* box = dynamic_cast<sim::SimCheckbox*>(element.control.get())) box->Check(checked);
    for (const auto& child : element.children) Tick(*child, checked);
    for (const auto& page : element.pages) {
        if (page.content) Tick(*page.content, checked);
    }
}

// Nanoseconds for a line, the best of several rounds.
double Measure(sim::Client& client) {
    constexpr int rounds = 20, lines = 2000;
    const std::string text = "Mira Fenn says, \"Nice weather by the lake.\"\n";
    auto best = Clock::duration::max();
    for (int round = 0; round < rounds; ++round) {
        const auto start = Clock::now();
        for (int line = 0; line < lines; ++line) client.ChatText(text, 2, 0);
        best = std::min(best, Clock::now() - start);
    }
    return std::chrono::duration<double, std::nano>(best).count() / lines;
}

void Row(const char* who, bool checked) {
    const Folders folders;
    const PluginDll dll(DllPath());
    Framework framework(dll);
    sim::Client& client = framework.client();
    folders.GiveTo(client);
    client.Start();
    client.LoginComplete();
    Tick(*client.view()->root(), checked);
    fmt::print("  {:<36}{:>8.0f} ns\n", who, Measure(client));
}

}  // namespace
}  // namespace ombrel::standin

int main() {
    const ombrel::standin::Apartment apartment;
    fmt::print("A chat line through the framework, under Wine\n");
    ombrel::standin::Row("every option on", true);
    ombrel::standin::Row("no option on", false);
}
