#include "adapters/sim/Splitting.h"

namespace ombrel::sim {
namespace {

constexpr milliseconds kSplit = 500ms;
constexpr std::string_view kPea = " Pea";

// What a pea may hold, by the end of its name, and how many of it.
struct Content {
    std::string_view ending;
    std::int32_t count;
};
constexpr Content kContents[] = {{" Scarab", 20}, {" Talisman", 20}, {" Taper", 50}, {"", 50}};

// The pea tells by its name what it holds; the stack that has run low tells which of the kinds it is.
void Split(Aftermath& aftermath, Object& pea) {
    const std::string what = pea.Name.substr(0, pea.Name.size() - kPea.size());
    for (const Content& content : kContents) {
        const auto stacks = aftermath.Carried(what + std::string(content.ending));
        if (stacks.empty()) continue;
        aftermath.SetStack(*stacks.front(), Clamped(std::int64_t{StackOf(*stacks.front())} + content.count));
        return aftermath.SetStack(pea, StackOf(pea) - 1);
    }
}

}  // namespace

void SplitPea(Aftermath& aftermath, host::Id pea) {
    aftermath.Occupy(kSplit, [&aftermath, pea] {
        Object* found = aftermath.Find(pea);
        if (found && found->Name.ends_with(kPea)) Split(aftermath, *found);
    });
}

}  // namespace ombrel::sim
