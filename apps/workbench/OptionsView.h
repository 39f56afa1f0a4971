// The plug-in's options view, drawn from its description and worked with the mouse.
#pragma once

#include <imgui.h>

#include <map>
#include <string>

#include "adapters/sim/View.h"
#include "apps/workbench/Game.h"

namespace ombrel::workbench {

class OptionsView {
public:
    explicit OptionsView(Game& game) : game_(game) {}

    // A window of its own, which the player can move and close. `open` is what its button says.
    void Draw(bool& open, ImVec2 at);

    // What the view takes, with its title.
    static ImVec2 Size(const sim::SimView& view);

private:
    void DrawElement(const sim::Element& element, ImVec2 corner);
    void DrawNotebook(const sim::Element& element, ImVec2 low, ImVec2 high);
    void DrawText(const sim::Element& element, ImVec2 low, ImVec2 high);
    void DrawButton(const sim::Element& element, ImVec2 low, ImVec2 high);
    void DrawCheckbox(const sim::Element& element, ImVec2 low, ImVec2 high);
    void DrawEdit(const sim::Element& element, ImVec2 low, ImVec2 high);
    void DrawChoice(const sim::Element& element, ImVec2 low, ImVec2 high);
    void DrawList(const sim::Element& element, ImVec2 low, ImVec2 high);
    void DrawRow(const sim::Element& element, std::int32_t row, ImVec2 low, const std::vector<std::int32_t>& widths);
    void DrawProgress(const sim::Element& element, ImVec2 low, ImVec2 high);
    void DrawSlider(const sim::Element& element, ImVec2 low, ImVec2 high);

    // Something that the player did to a control, as a record.
    void Do(const sim::Element& element, const char* type, Json fields = {});
    bool Button(const sim::Element& element, ImVec2 low, ImVec2 high);

    Game& game_;
    std::string edited_, typed_;                   // the edit that has the keyboard, and its text so far
    std::map<std::string, std::int32_t> scrolls_;  // of lists, as they were drawn last
};

}  // namespace ombrel::workbench
