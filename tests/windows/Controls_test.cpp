// The options view through the framework: what the plug-in believes of its controls is what they show.

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <random>

#include "adapters/sim/View.h"
#include "core/files.h"
#include "tests/windows/Play.h"

namespace ombrel::standin {
namespace {

using Json = nlohmann::ordered_json;

// A player who uses controls at random. The same seed is the same player.
class Player {
public:
    explicit Player(unsigned seed) : random_(seed) {
        const std::string plugin_folder = (std::filesystem::absolute(OMBREL_SOURCE_DIR) / "resources").string();
        view_ = std::make_unique<sim::SimView>(calls_, ReadFile(plugin_folder + "\\Ombrel_View.xml"));
        Collect(*view_->root());
    }

    // Does something to one control, and asks for its state every now and then.
    std::string Step() {
        const sim::Element& element = *controls_[Below(static_cast<int>(controls_.size()))];
        std::string records;
        if (Json act = Act(element); !act.is_null()) records += act.dump() + "\n";
        if (Below(3) == 0) records += Ask(element).dump() + "\n";
        if (Below(40) == 0)
            records += R"({"advance": 1.5})"
                       "\n";
        return records;
    }

    std::string AskAll() const {
        std::string records;
        for (const sim::Element* element : controls_) records += Ask(*element).dump() + "\n";
        return records;
    }

private:
    int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }

    void Collect(const sim::Element& element) {
        if (!element.name.empty() && element.control) controls_.push_back(&element);
        for (const auto& child : element.children) Collect(*child);
        for (const auto& page : element.pages) {
            if (page.content) Collect(*page.content);
        }
    }

    static Json Ask(const sim::Element& element) {
        return {{"query", element.kind == sim::ElementKind::kList ? "list" : "control"}, {"name", element.name}};
    }

    std::string Text() {
        constexpr const char* texts[] = {"",   "12", "-3", "0.5", "75%", "a*b", "Drudge", "Bl\u00e5b\u00e6r",
                                         "[x", "1e9"};
        return texts[Below(std::size(texts))];
    }

    Json Act(const sim::Element& element) {
        Json record{{"event", "Control"}, {"name", element.name}};
        switch (element.kind) {
            case sim::ElementKind::kPushButton:
                record["type"] = "Accepted";
                return record;
            case sim::ElementKind::kCheckbox:
                record["type"] = "Change";
                record["checked"] = Below(2) == 0;
                return record;
            case sim::ElementKind::kEdit:
                record["type"] = Below(2) == 0 ? "Change" : "End";
                record["text"] = Text();
                return record;
            case sim::ElementKind::kChoice: {
                const auto& entries = static_cast<const sim::SimChoice&>(*element.control).entries();
                if (entries.empty()) return {};
                record["type"] = "Change";
                record["selected"] = Below(static_cast<int>(entries.size()));
                return record;
            }
            case sim::ElementKind::kList:
                record["type"] = "Change";
                record["column"] = Below(6);
                record["row"] = Below(12);
                return record;
            case sim::ElementKind::kSlider:
                record["type"] = "Change";
                record["position"] = Below(101);
                return record;
            case sim::ElementKind::kNotebook:
                record["type"] = "Change";
                record["selected"] = Below(static_cast<int>(element.pages.size()));
                return record;
            default:
                return {};
        }
    }

    std::mt19937 random_;
    sim::Calls calls_;
    std::unique_ptr<sim::SimView> view_;
    std::vector<const sim::Element*> controls_;
};

TEST(ControlsTest, RandomUseLeavesTheSameControlsAndFilesAsWithoutTheFramework) {
    const Apartment apartment;
    for (const unsigned seed : {1u, 2u}) {
        SCOPED_TRACE(seed);
        TheLedger().Reset();
        Player player(seed);
        std::string session = R"({"event": "Initialize"})"
                              "\n"
                              R"({"event": "Char_LoginComplete"})"
                              "\n";
        for (int step = 0; step < 500; ++step) session += player.Step();
        session += player.AskAll() + R"({"event": "Char_Logoff", "kind": 0})"
                                     "\n";

        const Played itself = PlayItself(session);
        const Played dll = PlayDll(session);
        EXPECT_EQ(Difference(itself.calls, dll.calls), "");
        EXPECT_EQ(itself.files, dll.files);
        EXPECT_EQ(TheLedger().Complaints(), "");
    }
}

}  // namespace
}  // namespace ombrel::standin
