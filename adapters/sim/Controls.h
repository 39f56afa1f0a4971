// The controls of the simulated options view.
//
// Each has two sides: the host's operations, which the plug-in calls and which can be made to fail, and the player's:
// `Put...` changes the state in silence, the others act as the player does and raise the event.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/Controls.h"

namespace ombrel::sim {

class Calls;

class SimStaticText final : public host::StaticText {
public:
    SimStaticText(Calls& calls, std::string text) : calls_(calls), text_(std::move(text)) {}

    const std::string& Text() const override;
    void SetText(std::string_view text) override;

    const std::string& text() const { return text_; }
    void PutText(std::string_view text) { text_ = text; }

private:
    Calls& calls_;
    std::string text_;
};

class SimPushButton final : public host::PushButton {
public:
    SimPushButton(Calls& calls, std::string text) : calls_(calls), text_(std::move(text)) {}

    const std::string& Text() const override;
    void SetText(std::string_view text) override;

    const std::string& text() const { return text_; }
    void PutText(std::string_view text) { text_ = text; }
    void Press();

private:
    Calls& calls_;
    std::string text_;
};

class SimCheckbox final : public host::Checkbox {
public:
    SimCheckbox(Calls& calls, bool checked) : calls_(calls), checked_(checked) {}

    bool Checked() const override;
    void SetChecked(bool checked) override;

    bool checked() const { return checked_; }
    void PutChecked(bool checked) { checked_ = checked; }
    void Check(bool checked);

private:
    Calls& calls_;
    bool checked_;
};

class SimEdit final : public host::Edit {
public:
    SimEdit(Calls& calls, std::string text) : calls_(calls), text_(std::move(text)) {}

    const std::string& Text() const override;
    void SetText(std::string_view text) override;

    const std::string& text() const { return text_; }
    void PutText(std::string_view text) { text_ = text; }
    void Type(std::string_view text);  // the whole new text
    void Finish(bool success = true);  // leaves the field

private:
    Calls& calls_;
    std::string text_;
};

class SimChoice final : public host::Choice {
public:
    struct Entry {
        std::string text;
        std::string data;
    };

    SimChoice(Calls& calls, std::vector<Entry> entries, std::int32_t selected);

    void Add(std::string_view text, std::string_view data) override;
    void Clear() override;
    std::int32_t Count() const override;
    const std::string& Text(std::int32_t index) const override;
    const std::string& Data(std::int32_t index) const override;
    std::int32_t Selected() const override;
    void SetSelected(std::int32_t index) override;

    const std::vector<Entry>& entries() const { return entries_; }
    std::int32_t selected() const { return selected_; }
    void PutSelected(std::int32_t index);
    void Select(std::int32_t index);

private:
    Calls& calls_;
    std::vector<Entry> entries_;
    std::int32_t selected_;
};

class SimList final : public host::List {
public:
    enum class ColumnKind : std::uint8_t { kText, kCheck, kIcon };

    // What a cell shows where no colour was set.
    static constexpr std::int32_t kOwnColor = 0x00FFFFFF;

    SimList(Calls& calls, std::vector<ColumnKind> columns) : calls_(calls), columns_(std::move(columns)) {}

    void Clear() override;
    std::int32_t AddRow() override;
    void DeleteRow(std::int32_t row) override;
    std::int32_t Count() const override;
    const host::Cell& Data(std::int32_t column, std::int32_t row, std::int32_t sub = 0) const override;
    void SetData(std::int32_t column, std::int32_t row, host::Cell value, std::int32_t sub = 0) override;
    std::int32_t Color(std::int32_t column, std::int32_t row) const override;
    void SetColor(std::int32_t column, std::int32_t row, std::int32_t color) override;
    std::int32_t ScrollPosition() const override;
    void SetScrollPosition(std::int32_t position) override;
    std::uint32_t Revision() const override { return revision_; }

    const std::vector<ColumnKind>& columns() const { return columns_; }
    std::int32_t rows() const { return static_cast<std::int32_t>(rows_.size()); }
    const host::Cell& cell(std::int32_t column, std::int32_t row, std::int32_t sub = 0) const;
    std::optional<std::int32_t> color(std::int32_t column, std::int32_t row) const;  // nothing: the list's own
    void PutData(std::int32_t column, std::int32_t row, host::Cell value, std::int32_t sub = 0);
    std::int32_t scroll_position() const { return scroll_; }
    void PutScrollPosition(std::int32_t position) { scroll_ = position; }

    // A click anywhere, also beside the rows. One on a check cell flips it first.
    void Click(std::int32_t column, std::int32_t row);

private:
    struct SimCell {
        host::Cell sub[2];
        std::optional<std::int32_t> color;
    };
    const SimCell& At(std::int32_t column, std::int32_t row) const;
    SimCell& At(std::int32_t column, std::int32_t row);

    Calls& calls_;
    std::vector<ColumnKind> columns_;
    std::vector<std::vector<SimCell>> rows_;
    std::int32_t scroll_ = 0;
    std::uint32_t revision_ = 1;
};

class SimProgress final : public host::Progress {
public:
    SimProgress(Calls& calls, std::int32_t value, std::int32_t maximum)
        : calls_(calls), value_(value), maximum_(maximum) {}

    std::int32_t Value() const override;
    void SetValue(std::int32_t value) override;

    std::int32_t value() const { return value_; }
    std::int32_t maximum() const { return maximum_; }
    void PutValue(std::int32_t value) { value_ = value; }

private:
    Calls& calls_;
    std::int32_t value_;
    std::int32_t maximum_;
};

// The position stays between the ends.
class SimSlider final : public host::Slider {
public:
    SimSlider(Calls& calls, std::int32_t minimum, std::int32_t maximum, std::int32_t position);

    std::int32_t Position() const override;
    void SetPosition(std::int32_t position) override;

    std::int32_t position() const { return position_; }
    std::int32_t minimum() const { return minimum_; }
    std::int32_t maximum() const { return maximum_; }
    void PutPosition(std::int32_t position);
    void Move(std::int32_t position);

private:
    Calls& calls_;
    std::int32_t minimum_;
    std::int32_t maximum_;
    std::int32_t position_ = 0;
};

class SimNotebook final : public host::Notebook {
public:
    SimNotebook(Calls& calls, std::int32_t pages) : calls_(calls), pages_(pages) {}

    std::int32_t ActivePage() const override;
    void SetActivePage(std::int32_t page) override;

    std::int32_t active() const { return active_; }
    void PutActive(std::int32_t page);
    void Open(std::int32_t page);

private:
    Calls& calls_;
    std::int32_t pages_;
    std::int32_t active_ = 0;
};

}  // namespace ombrel::sim
