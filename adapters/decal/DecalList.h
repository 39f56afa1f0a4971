// A list of the options view, with its mirror.
//
// The mirror answers every reading of a cell, so that a chat line that looks into the lists for its rules calls
// nothing. It is true because nobody but us writes cells, and a player's click tells of itself.
#pragma once

#include <optional>
#include <vector>

#include "adapters/decal/DecalControls.h"

namespace ombrel::decal {

enum class ColumnKind : std::uint8_t { kText, kCheck, kIcon };

class DecalList final : public host::List {
public:
    DecalList(Com<IListDisp> control, std::vector<ColumnKind> columns);

    void Clear() override;
    std::int32_t AddRow() override;
    void DeleteRow(std::int32_t row) override;
    std::int32_t Count() const override { return static_cast<std::int32_t>(rows_.size()); }
    const host::Cell& Data(std::int32_t column, std::int32_t row, std::int32_t sub = 0) const override;
    void SetData(std::int32_t column, std::int32_t row, host::Cell value, std::int32_t sub = 0) override;
    std::int32_t Color(std::int32_t column, std::int32_t row) const override;
    void SetColor(std::int32_t column, std::int32_t row, std::int32_t color) override;
    std::int32_t ScrollPosition() const override;
    void SetScrollPosition(std::int32_t position) override;
    std::uint32_t Revision() const override { return revision_; }

private:
    struct MirrorCell {
        host::Cell sub[2];
        std::optional<std::int32_t> color;  // nothing: the list's own, which only it knows
    };
    using Row = std::vector<MirrorCell>;

    Events::Table Handlers();
    Row NewRow() const;
    std::int32_t SubCells(std::int32_t column) const;
    bool Within(std::int32_t column, std::int32_t row) const;
    void Refresh(std::int32_t column, std::int32_t row, std::int32_t sub);
    MirrorCell& At(std::int32_t column, std::int32_t row);
    const MirrorCell& At(std::int32_t column, std::int32_t row) const;

    ControlLink<IListDisp> control_;
    std::vector<ColumnKind> columns_;
    std::vector<Row> rows_;
    std::uint32_t revision_ = 1;
};

}  // namespace ombrel::decal
