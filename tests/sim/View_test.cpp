#include "adapters/sim/View.h"

#include "adapters/sim/Calls.h"
#include "core/failure.h"
#include "tests/support/Matchers.h"

namespace ombrel::sim {
namespace {

constexpr std::string_view kDescription = R"(<?xml version="1.0"?>
<view title="Sample" left="40" top="60" width="300" height="240">
  <control progid="DecalControls.FixedLayout">
    <control progid="DecalControls.Notebook" name="tabs" left="0" top="0" width="300" height="240">
      <page label="First">
        <control progid="DecalControls.FixedLayout">
          <control progid="DecalControls.StaticText" name="state" left="8" top="9" width="20" height="18" text="idle"/>
          <control progid="decalcontrols.CheckBox" name="run" checked="TRUE" text="Run"/>
          <control progid="DecalControls.Checkbox" name="misspelt" Checked="true" text="Run"/>
          <control progid="DecalControls.Edit" name="limit" text="25"/>
          <control progid="DecalControls.Choice" name="where" selected="1">
            <option text="Left side" data="L"/><option text="Right side" data="R"/>
          </control>
          <control progid="DecalControls.Choice" name="nowhere" selected="5"><option text="Only"/></control>
          <control progid="DecalControls.Slider" name="level" minimum="10" maximum="90" default="50"/>
          <control progid="DecalControls.Progress" name="done" value="30" max="200" maxvalue="7"/>
          <control progid="DecalControls.PushButton" name="go" text="Go"/>
          <control progid="DecalControls.Teapot" name="teapot"/>
          <control progid="DecalControls.StaticText" text="without a name"/>
        </control>
      </page>
      <page label="Second">
        <control progid="DecalControls.FixedLayout">
          <control progid="DecalControls.List" name="rows" left="4" top="4" width="200" height="90">
            <column progid="DecalControls.CheckColumn" fixedwidth="99"/>
            <column progid="DecalControls.TextColumn"/>
            <column progid="DecalControls.IconColumn"/>
            <column progid="DecalControls.TextColumn" fixedwidth="50"/>
          </control>
        </control>
      </page>
    </control>
  </control>
</view>)";

class SimViewTest : public testing::Test {
protected:
    template <class Kind>
    Kind& Get(std::string_view name) {
        Kind* control = view.Get<Kind>(name);
        if (!control) throw std::runtime_error("no " + std::string(name));
        return *control;
    }

    Calls calls;
    SimView view{calls, kDescription};
};

template <class Body>
std::int32_t FailureOf(Body body) {
    try {
        body();
    } catch (const Failure& problem) {
        return problem.number();
    }
    return 0;
}

TEST_F(SimViewTest, WhatTheFrameworkDoesNotReadHasNoEffect) {
    EXPECT_FALSE(Get<SimCheckbox>("misspelt").Checked());
    EXPECT_EQ(Get<SimChoice>("nowhere").Selected(), -1);
    EXPECT_EQ(view.Control("teapot"), nullptr);
    EXPECT_EQ(view.Control("Run"), nullptr);
    EXPECT_EQ(ColumnWidths(*view.Find("rows")), (std::vector<std::int32_t>{20, 94, 20, 50}));
}

TEST(SimView, ATextThatDescribesNoViewFails) {
    Calls calls;
    for (const std::string_view text : {"", "<view><control></view>", "<window/>", "plain text"})
        EXPECT_EQ(FailureOf([&] { SimView view(calls, text); }), failure::kInvalidCall) << text;
}

TEST_F(SimViewTest, OnlyThePlayerRaisesEvents) {
    int events = 0;
    auto& run = Get<SimCheckbox>("run");
    auto& limit = Get<SimEdit>("limit");
    auto& where = Get<SimChoice>("where");
    auto& level = Get<SimSlider>("level");
    auto& tabs = Get<SimNotebook>("tabs");
    run.Change = [&](bool) { ++events; };
    limit.Change = [&](const std::string&) { ++events; };
    where.Change = level.Change = tabs.Change = [&](std::int32_t) { ++events; };

    run.SetChecked(false), limit.SetText("1"), where.SetSelected(0), level.SetPosition(20), tabs.SetActivePage(1);
    run.PutChecked(false), limit.PutText("1"), where.PutSelected(0), level.PutPosition(20), tabs.PutActive(1);
    EXPECT_EQ(events, 0);

    run.Check(true), limit.Type("2"), where.Select(1), level.Move(95), tabs.Open(0);
    EXPECT_EQ(events, 5);
    EXPECT_EQ(level.Position(), 90) << "a slider stays between its ends";
}

TEST_F(SimViewTest, CellsTakeTheKindOfTheirColumn) {
    auto& list = Get<SimList>("rows");
    EXPECT_EQ(list.AddRow(), 0);
    EXPECT_EQ(list.Data(0, 0), host::Cell(false));
    EXPECT_EQ(list.Data(1, 0), host::Cell(std::string()));
    EXPECT_EQ(list.Data(2, 0, 1), host::Cell(0));

    list.SetData(0, 0, std::string("True"));
    list.SetData(1, 0, false);
    list.SetData(2, 0, std::string("101"), 1);
    list.SetData(3, 0, 42);
    EXPECT_EQ(list.Data(0, 0), host::Cell(true));
    EXPECT_EQ(list.Data(1, 0), host::Cell(std::string("False")));
    EXPECT_EQ(list.Data(2, 0, 1), host::Cell(101));
    EXPECT_EQ(list.Data(3, 0), host::Cell(std::string("42")));
    EXPECT_EQ(FailureOf([&] { list.SetData(2, 0, std::string("icon"), 1); }), failure::kTypeMismatch);
}

TEST_F(SimViewTest, PlacesOutsideAListOrChoiceFail) {
    auto& list = Get<SimList>("rows");
    auto& where = Get<SimChoice>("where");
    list.AddRow();
    const std::function<void()> attempts[] = {
        [&] { list.Data(0, 1); },        [&] { list.Data(0, -1); },     [&] { list.Data(4, 0); },
        [&] { list.Data(1, 0, 1); },     [&] { list.Data(2, 0, 2); },   [&] { list.SetData(0, 1, true); },
        [&] { list.SetColor(0, 1, 0); }, [&] { list.DeleteRow(1); },    [&] { where.Text(2); },
        [&] { where.Data(-1); },         [&] { where.SetSelected(2); }, [&] { list.Color(-1, 0); },
    };
    for (const auto& attempt : attempts)
        EXPECT_EQ(FailureOf(attempt), failure::kSubscript) << "attempt " << (&attempt - attempts);
    where.SetSelected(-1);
    EXPECT_EQ(where.Selected(), -1);
    where.SetSelected(1);
    where.Clear();
    EXPECT_EQ(where.Selected(), -1);
}

TEST_F(SimViewTest, TheRevisionMovesWithCellsAndRowsAndNothingElse) {
    auto& list = Get<SimList>("rows");
    std::uint32_t last = list.Revision();
    const auto moved = [&] { return std::exchange(last, list.Revision()) != last; };
    list.Clear();
    EXPECT_FALSE(moved());
    list.AddRow(), list.AddRow();
    EXPECT_TRUE(moved());
    list.SetData(1, 1, std::string("a"));
    EXPECT_TRUE(moved());
    list.SetData(1, 1, std::string("a")), list.SetColor(1, 1, 255), list.SetScrollPosition(1);
    EXPECT_FALSE(moved());
    list.Click(0, 3), list.Click(-1, 0), list.Click(1, 0), list.Click(9, 0);
    EXPECT_FALSE(moved()) << "beside the rows";
    list.Click(0, 1);
    EXPECT_TRUE(moved());
    list.DeleteRow(0);
    EXPECT_TRUE(moved());
    EXPECT_EQ(list.Data(1, 0), host::Cell(std::string("a")));
    list.Clear();
    EXPECT_TRUE(moved());
    EXPECT_EQ(list.Count(), 0);
}

}  // namespace
}  // namespace ombrel::sim
