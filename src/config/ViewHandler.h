// The options view.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/Ref.h"
#include "host/Controls.h"

namespace ombrel {

class ViewHandler {
public:
    ViewHandler();
    ~ViewHandler();
    ViewHandler(const ViewHandler&) = delete;
    ViewHandler& operator=(const ViewHandler&) = delete;

    void CreateMainView();  // from Ombrel_View.xml beside the plug-in's file

    // The text of a file in the plug-in's folder.
    void FileToString(std::string_view name, std::string& result);

    Owned<host::View> MainView;
};

}  // namespace ombrel
