// The row of the pattern list that a line's type and text lead to, found as the chat pipeline finds it.
#pragma once

#include "bench/ChatLines.h"
#include "chat/ChatTables.h"
#include "chat/ChatTextHandler.h"
#include "core/Vars.h"

namespace ombrel::bench {

constexpr int kNoRow = -1;

class OmbrelSorter {
public:
    OmbrelSorter() { tables_.BuildRows(Vars::ChatTextHandler->ChatList); }

    int Row(const Line& line) const {
        for (const PatternRow& row : tables_.RowsOf(line.type)) {
            if (row.kind == PatternRow::Kind::kText && row.pattern.Matches(line.text))
                return static_cast<int>(row.index);
        }
        return kNoRow;
    }

private:
    ChatTables tables_;
};

}  // namespace ombrel::bench
