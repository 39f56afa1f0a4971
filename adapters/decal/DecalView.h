// The options view.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "adapters/decal/Com.h"
#include "adapters/decal/DecalList.h"
#include "adapters/decal/interfaces/DecalPlugins.h"
#include "host/Controls.h"

namespace ombrel::decal {

// The columns of the lists that a view's description names. The framework doesn't tell the kind of a column.
using ListColumns = std::map<std::string, std::vector<ColumnKind>, std::less<>>;
ListColumns ColumnsOf(std::string_view xml);

// A view's description in the form in which the framework takes it for text: other beginnings are file names to it.
std::string AsFrameworkXml(std::string_view xml);

class DecalView final : public host::View {
public:
    DecalView(Com<IView> view, ListColumns columns) : view_(std::move(view)), columns_(std::move(columns)) {}

    host::Control* Control(std::string_view name) override;
    host::Rect Position() const override;
    void SetPosition(const host::Rect& position) override;

private:
    std::unique_ptr<host::Control> Bind(const Com<IControl>& control, std::string_view name) const;

    Com<IView> view_;
    ListColumns columns_;
    std::map<std::string, std::unique_ptr<host::Control>, std::less<>> controls_;
};

}  // namespace ombrel::decal
