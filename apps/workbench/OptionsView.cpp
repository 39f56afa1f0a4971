#include "apps/workbench/OptionsView.h"

#include <imgui_stdlib.h>

#include <algorithm>
#include <cmath>

#include "adapters/sim/draw/Icons.h"
#include "apps/workbench/Style.h"

namespace ombrel::workbench {
namespace {

using sim::Element;
using sim::ElementKind;

constexpr float kScale = 1.6f;  // of the description's pixels

ImVec2 operator+(ImVec2 a, ImVec2 b) { return {a.x + b.x, a.y + b.y}; }
ImVec2 operator-(ImVec2 a, ImVec2 b) { return {a.x - b.x, a.y - b.y}; }
ImVec2 Scaled(std::int32_t x, std::int32_t y) {
    return {static_cast<float>(x) * kScale, static_cast<float>(y) * kScale};
}

ImU32 FromBgr(std::int32_t color) {
    const auto bgr = static_cast<std::uint32_t>(color);
    return IM_COL32(bgr & 255, bgr >> 8 & 255, bgr >> 16 & 255, 255);
}

template <class Kind>
Kind& As(const Element& element) {
    return static_cast<Kind&>(*element.control);
}

ImFont* FontOf(const Element& element) {
    const float size = static_cast<float>(element.Number("fontsize", 14)) * kScale * 0.82f;
    const bool bold = element.Text("fontstyle").find("bold") != std::string_view::npos;
    return FontFor(size, bold ? Weight::kBold : Weight::kRegular);
}

ImU32 ColorOf(const Element& element, ImU32 standard) {
    return element.attributes.contains("textcolor") ? FromBgr(element.Number("textcolor")) : standard;
}

// A line in the middle of the height, cut off at the edges.
void Text(ImFont* font, ImVec2 low, ImVec2 high, std::string_view text, ImU32 color, std::string_view align) {
    const float size = font->FontSize;
    const char* begin = text.data();
    const char* end = begin + text.size();
    const ImVec2 extent = font->CalcTextSizeA(size, 10'000, 0, begin, end);
    ImVec2 at{low.x, std::floor((low.y + high.y - extent.y) / 2)};
    if (align == "center") at.x = std::floor((low.x + high.x - extent.x) / 2);
    if (align == "right") at.x = std::floor(high.x - extent.x);
    const ImVec4 clip{low.x, low.y - 2, high.x, high.y + 2};
    ImGui::GetWindowDrawList()->AddText(font, size, at, color, begin, end, 0, &clip);
}

void Box(ImVec2 low, ImVec2 high, ImU32 fill, ImU32 frame) {
    ImDrawList& draw = *ImGui::GetWindowDrawList();
    draw.AddRectFilled(low, high, fill);
    draw.AddRect(low, high, frame);
}

void CheckMark(ImVec2 low, float size, bool checked) {
    Box(low, low + ImVec2(size, size), Rgb(kListBack), Rgb(kBorder));
    if (!checked) return;
    const ImVec2 mark[] = {low + ImVec2(size * 0.2f, size * 0.5f), low + ImVec2(size * 0.43f, size * 0.76f),
                           low + ImVec2(size * 0.82f, size * 0.22f)};
    ImGui::GetWindowDrawList()->AddPolyline(mark, 3, Rgb(kMark), ImDrawFlags_None, 2.5f);
}

void Icon(ImVec2 low, ImVec2 high, std::int32_t library, std::int32_t number) {
    if (number == 0) return;
    ImDrawList& draw = *ImGui::GetWindowDrawList();
    const ImVec2 middle{(low.x + high.x) / 2, (low.y + high.y) / 2};
    const float r = 6.5f;
    const sim::Icon icon = sim::IconOf(library, number);
    switch (icon.shape) {
        case sim::IconShape::kUp:
            draw.AddTriangleFilled(middle + ImVec2(-r, r * 0.6f), middle + ImVec2(r, r * 0.6f),
                                   middle + ImVec2(0, -r * 0.7f), Rgb(icon.color));
            break;
        case sim::IconShape::kDown:
            draw.AddTriangleFilled(middle + ImVec2(-r, -r * 0.6f), middle + ImVec2(r, -r * 0.6f),
                                   middle + ImVec2(0, r * 0.7f), Rgb(icon.color));
            break;
        case sim::IconShape::kDelete:
            draw.AddLine(middle - ImVec2(r - 1, r - 1), middle + ImVec2(r - 1, r - 1), Rgb(icon.color), 3);
            draw.AddLine(middle + ImVec2(-r + 1, r - 1), middle + ImVec2(r - 1, -r + 1), Rgb(icon.color), 3);
            break;
        case sim::IconShape::kNoColor:
            draw.AddRect(middle - ImVec2(r, r), middle + ImVec2(r, r), Rgb(kBorder));
            draw.AddLine(middle + ImVec2(-r, r), middle + ImVec2(r, -r), Rgb(kBorder));
            break;
        case sim::IconShape::kColor:
            Box(middle - ImVec2(r, r), middle + ImVec2(r, r), Rgb(icon.color), Rgb(kBorder));
            break;
    }
}

}  // namespace

ImVec2 OptionsView::Size(const sim::SimView& view) {
    const host::Rect& at = view.position();
    return Scaled(at.right - at.left, at.bottom - at.top) + ImVec2(2, 2 + ImGui::GetFrameHeight());
}

void OptionsView::Draw(bool& open, ImVec2 at) {
    sim::SimView* view = game_.client().view();
    if (!open || !view || !view->root()) return;
    ImGui::SetNextWindowPos(at, ImGuiCond_FirstUseEver);
    ImGui::SetNextWindowSize(Size(*view));
    ImGui::PushStyleVar(ImGuiStyleVar_WindowPadding, {1, 1});
    const ImGuiWindowFlags flags = ImGuiWindowFlags_NoResize | ImGuiWindowFlags_NoScrollbar |
                                   ImGuiWindowFlags_NoScrollWithMouse | ImGuiWindowFlags_NoCollapse;
    if (ImGui::Begin((view->title() + " options###options").c_str(), &open, flags))
        DrawElement(*view->root(), ImGui::GetCursorScreenPos());
    ImGui::End();
    ImGui::PopStyleVar();
}

void OptionsView::Do(const Element& element, const char* type, Json fields) {
    Json record = fields.is_object() ? std::move(fields) : Json::object();
    record["event"] = "Control";
    record["name"] = element.name;
    record["type"] = type;
    game_.Do(std::move(record));
}

bool OptionsView::Button(const Element& element, ImVec2 low, ImVec2 high) {
    ImGui::SetCursorScreenPos(low);
    ImGui::PushID(&element);
    const bool pressed = ImGui::InvisibleButton("", {std::max(1.0f, high.x - low.x), std::max(1.0f, high.y - low.y)});
    ImGui::PopID();
    return pressed;
}

void OptionsView::DrawElement(const Element& element, ImVec2 corner) {
    const ImVec2 low = corner + Scaled(element.rect.left, element.rect.top);
    const ImVec2 high = corner + Scaled(element.rect.right, element.rect.bottom);
    switch (element.kind) {
        case ElementKind::kLayout:
            for (const auto& child : element.children) DrawElement(*child, low);
            break;
        case ElementKind::kNotebook:
            return DrawNotebook(element, low, high);
        case ElementKind::kStaticText:
            return DrawText(element, low, high);
        case ElementKind::kPushButton:
            return DrawButton(element, low, high);
        case ElementKind::kCheckbox:
            return DrawCheckbox(element, low, high);
        case ElementKind::kEdit:
            return DrawEdit(element, low, high);
        case ElementKind::kChoice:
            return DrawChoice(element, low, high);
        case ElementKind::kList:
            return DrawList(element, low, high);
        case ElementKind::kProgress:
            return DrawProgress(element, low, high);
        case ElementKind::kSlider:
            return DrawSlider(element, low, high);
    }
}

void OptionsView::DrawNotebook(const Element& element, ImVec2 low, ImVec2 high) {
    auto& notebook = As<sim::SimNotebook>(element);
    const float height = sim::kTabHeight * kScale;
    ImFont* const font = FontFor(16, Weight::kRegular);
    // The strip is as wide as the page: its labels share what is left.
    float labels = 0;
    for (const auto& page : element.pages) labels += font->CalcTextSizeA(font->FontSize, 1000, 0, page.label.c_str()).x;
    const float margin = std::clamp((high.x - low.x - labels) / static_cast<float>(element.pages.size()), 4.0f, 22.0f);
    float x = low.x;
    for (std::size_t page = 0; page < element.pages.size(); ++page) {
        const std::string& label = element.pages[page].label;
        const float width = font->CalcTextSizeA(font->FontSize, 1000, 0, label.c_str()).x + margin;
        const auto number = static_cast<std::int32_t>(page);
        const ImVec2 tab_low{x, low.y + (number == notebook.active() ? 0.0f : 3.0f)},
            tab_high{x + width, low.y + height};
        ImGui::SetCursorScreenPos(tab_low);
        ImGui::PushID(&element.pages[page]);
        const bool pressed = ImGui::InvisibleButton("", tab_high - tab_low);
        const bool hovered = ImGui::IsItemHovered();
        ImGui::PopID();
        const bool active = number == notebook.active();
        Box(tab_low, tab_high, Rgb(active ? kTabOpen : hovered ? 0x4A4434 : kTab), Rgb(kBorder));
        Text(font, tab_low, tab_high, label, Rgb(active ? 0xFFF4C8 : 0xBDB596), "center");
        if (pressed && !active) Do(element, "Change", {{"selected", number}});
        x += width;
    }
    ImGui::GetWindowDrawList()->AddLine({low.x, low.y + height}, {high.x, low.y + height}, Rgb(kBorder));
    const auto active = static_cast<std::size_t>(notebook.active());
    if (active < element.pages.size() && element.pages[active].content)
        DrawElement(*element.pages[active].content, {low.x, low.y + height});
}

void OptionsView::DrawText(const Element& element, ImVec2 low, ImVec2 high) {
    Text(FontOf(element), low, high, As<sim::SimStaticText>(element).text(), ColorOf(element, Rgb(0xFFFFFF)),
         element.Text("justify"));
}

void OptionsView::DrawButton(const Element& element, ImVec2 low, ImVec2 high) {
    const bool pressed = Button(element, low, high);
    const std::uint32_t face = ImGui::IsItemActive() ? 0xA8986C : ImGui::IsItemHovered() ? 0xDCCEA2 : kButton;
    ImGui::GetWindowDrawList()->AddRectFilled(low, high, Rgb(face), 3);
    ImGui::GetWindowDrawList()->AddRect(low, high, Rgb(0x6B5D36), 3);
    Text(FontOf(element), low, high, As<sim::SimPushButton>(element).text(), ColorOf(element, Rgb(kInk)), "center");
    if (pressed) Do(element, "Accepted");
}

void OptionsView::DrawCheckbox(const Element& element, ImVec2 low, ImVec2 high) {
    auto& box = As<sim::SimCheckbox>(element);
    const bool pressed = Button(element, low, high);
    const float size = 12 * kScale * 0.85f;
    CheckMark({low.x, std::floor((low.y + high.y - size) / 2)}, size, box.checked());
    Text(FontOf(element), {low.x + sim::kCheckWidth * kScale, low.y}, high, element.Text("text"),
         ColorOf(element, Rgb(0xFFFFFF)), {});
    if (pressed) Do(element, "Change", {{"checked", !box.checked()}});
}

void OptionsView::DrawEdit(const Element& element, ImVec2 low, ImVec2 high) {
    auto& edit = As<sim::SimEdit>(element);
    ImGui::PushStyleColor(ImGuiCol_FrameBg, Rgb(kField));
    ImGui::PushStyleColor(ImGuiCol_Text, Rgb(kInk));
    ImGui::PushStyleColor(ImGuiCol_TextSelectedBg, Rgb(0xC8B070));
    const float padding = std::max(0.0f, (high.y - low.y - ImGui::GetFontSize()) / 2);
    ImGui::PushStyleVar(ImGuiStyleVar_FramePadding, {4, padding});
    ImGui::SetCursorScreenPos(low);
    ImGui::SetNextItemWidth(high.x - low.x);
    ImGui::PushID(&element);
    std::string text = edited_ == element.name ? typed_ : edit.text();
    const bool entered = ImGui::InputText("", &text, ImGuiInputTextFlags_EnterReturnsTrue);
    if (ImGui::IsItemActive() && edited_ != element.name) {
        edited_ = element.name;
        typed_ = edit.text();
    }
    if (edited_ == element.name && text != typed_) {
        typed_ = text;
        Do(element, "Change", {{"text", text}});
    }
    const bool left = edited_ == element.name && (ImGui::IsItemDeactivated() || entered);
    ImGui::PopID();
    ImGui::PopStyleVar();
    ImGui::PopStyleColor(3);
    ImGui::GetWindowDrawList()->AddRect(low, high, Rgb(kBorder));
    if (!left) return;
    edited_.clear();
    Do(element, "End");
}

void OptionsView::DrawChoice(const Element& element, ImVec2 low, ImVec2 high) {
    auto& choice = As<sim::SimChoice>(element);
    const bool pressed = Button(element, low, high);
    Box(low, high, Rgb(kField), Rgb(kBorder));
    const ImVec2 button{high.x - sim::kChoiceButton * kScale * 0.8f, low.y};
    Box(button, high, Rgb(kButton), Rgb(kBorder));
    const ImVec2 middle{(button.x + high.x) / 2, (low.y + high.y) / 2};
    ImGui::GetWindowDrawList()->AddTriangleFilled(middle + ImVec2(-5, -3), middle + ImVec2(5, -3),
                                                  middle + ImVec2(0, 4), Rgb(kInk));
    const auto& entries = choice.entries();
    if (choice.selected() >= 0 && static_cast<std::size_t>(choice.selected()) < entries.size())
        Text(FontOf(element), {low.x + 5, low.y}, {button.x, high.y},
             entries[static_cast<std::size_t>(choice.selected())].text, Rgb(kInk), {});
    ImGui::PushID(&element);
    if (pressed) ImGui::OpenPopup("entries");
    ImGui::SetNextWindowPos({low.x, high.y});
    ImGui::SetNextWindowSizeConstraints({high.x - low.x, 0}, {400, 260});
    if (ImGui::BeginPopup("entries")) {
        for (std::size_t entry = 0; entry < entries.size(); ++entry) {
            const auto number = static_cast<std::int32_t>(entry);
            ImGui::PushID(number);
            const bool taken = ImGui::Selectable(entries[entry].text.c_str(), number == choice.selected());
            ImGui::PopID();
            if (!taken) continue;
            Do(element, "Change", {{"selected", number}});
            break;  // the entries may have changed
        }
        ImGui::EndPopup();
    }
    ImGui::PopID();
}

void OptionsView::DrawRow(const Element& element, std::int32_t row, ImVec2 low,
                          const std::vector<std::int32_t>& widths) {
    const auto& list = As<sim::SimList>(element);
    const float height = static_cast<float>(element.Number("rowheight", 20)) * kScale;
    float x = low.x;
    for (std::size_t column = 0; column < widths.size(); ++column) {
        const auto number = static_cast<std::int32_t>(column);
        const ImVec2 cell{x, low.y}, end{x + static_cast<float>(widths[column]) * kScale, low.y + height};
        switch (list.columns()[column]) {
            case sim::SimList::ColumnKind::kText: {
                Element look;
                look.attributes = element.columns[column];
                Text(FontOf(look), cell + ImVec2(2, 0), end - ImVec2(2, 0),
                     std::get<std::string>(list.cell(number, row)),
                     FromBgr(list.color(number, row).value_or(sim::SimList::kOwnColor)), look.Text("justify"));
                break;
            }
            case sim::SimList::ColumnKind::kCheck: {
                const float size = 12 * kScale * 0.85f;
                CheckMark({std::floor((cell.x + end.x - size) / 2), std::floor((cell.y + end.y - size) / 2)}, size,
                          std::get<bool>(list.cell(number, row)));
                break;
            }
            case sim::SimList::ColumnKind::kIcon:
                Icon(cell, end, std::get<std::int32_t>(list.cell(number, row, 0)),
                     std::get<std::int32_t>(list.cell(number, row, 1)));
                break;
        }
        x = end.x;
    }
    ImGui::GetWindowDrawList()->AddLine({low.x, low.y + height}, {x, low.y + height}, Rgb(kListLine));
}

void OptionsView::DrawList(const Element& element, ImVec2 low, ImVec2 high) {
    auto& list = As<sim::SimList>(element);
    const std::vector<std::int32_t> widths = sim::ColumnWidths(element);
    const float height = static_cast<float>(element.Number("rowheight", 20)) * kScale;
    ImGui::SetCursorScreenPos(low);
    ImGui::PushStyleVar(ImGuiStyleVar_ItemSpacing, {0, 0});
    ImGui::PushID(&element);
    ImGui::PushStyleVar(ImGuiStyleVar_WindowPadding, {0, 0});
    ImGui::BeginChild("rows", high - low, false, ImGuiWindowFlags_AlwaysVerticalScrollbar);
    ImGui::PopStyleVar();

    // The plug-in scrolls by rows; so does the player's wheel, in its terms.
    const auto drawn = scrolls_.find(element.name);
    if (drawn == scrolls_.end() || drawn->second != list.scroll_position())
        ImGui::SetScrollY(static_cast<float>(list.scroll_position()) * height);
    std::optional<std::pair<std::int32_t, std::int32_t>> clicked;
    ImGuiListClipper clipper;
    clipper.Begin(list.rows(), height);
    while (clipper.Step()) {
        for (int row = clipper.DisplayStart; row < clipper.DisplayEnd && row < list.rows(); ++row) {
            const ImVec2 at = ImGui::GetCursorScreenPos();
            ImGui::PushID(row);
            const bool pressed = ImGui::InvisibleButton("", {std::max(1.0f, ImGui::GetContentRegionAvail().x), height});
            ImGui::PopID();
            if (ImGui::IsItemHovered())
                ImGui::GetWindowDrawList()->AddRectFilled(at, ImGui::GetItemRectMax(), Rgb(0x2A261C));
            DrawRow(element, row, at, widths);
            if (!pressed) continue;
            float x = at.x;
            std::int32_t column = 0;
            for (; column + 1 < static_cast<std::int32_t>(widths.size()); ++column) {
                x += static_cast<float>(widths[static_cast<std::size_t>(column)]) * kScale;
                if (ImGui::GetIO().MousePos.x < x) break;
            }
            clicked.emplace(column, row);
        }
    }
    clipper.End();
    const auto scroll = static_cast<std::int32_t>(std::lround(ImGui::GetScrollY() / height));
    if (drawn != scrolls_.end() && drawn->second == list.scroll_position() && scroll != drawn->second)
        list.PutScrollPosition(scroll);
    scrolls_[element.name] = list.scroll_position();
    ImGui::EndChild();
    ImGui::PopID();
    ImGui::PopStyleVar();
    ImGui::GetWindowDrawList()->AddRect(low, high, Rgb(kBorder));
    if (clicked) Do(element, "Change", {{"column", clicked->first}, {"row", clicked->second}});
}

void OptionsView::DrawProgress(const Element& element, ImVec2 low, ImVec2 high) {
    const auto& progress = As<sim::SimProgress>(element);
    const float share = static_cast<float>(progress.value()) / static_cast<float>(std::max(1, progress.maximum()));
    ImDrawList& draw = *ImGui::GetWindowDrawList();
    draw.AddRectFilled(low, high, FromBgr(element.Number("facecolor")));
    draw.AddRectFilled(low, {low.x + (high.x - low.x) * std::clamp(share, 0.0f, 1.0f), high.y},
                       FromBgr(element.Number("fillcolor", 0xFF0000)));
    if (element.Number("border") > 0) draw.AddRect(low, high, Rgb(kBorder));
    if (!element.Flag("drawtext")) return;
    const std::string text =
        std::string(element.Text("pretext")) + std::to_string(progress.value()) + std::string(element.Text("posttext"));
    Text(FontOf(element), low, high, text, ColorOf(element, Rgb(0xFFFFFF)), element.Text("align"));
}

void OptionsView::DrawSlider(const Element& element, ImVec2 low, ImVec2 high) {
    auto& slider = As<sim::SimSlider>(element);
    Button(element, low, high);
    const float margin = 6;
    const float span = std::max(1.0f, static_cast<float>(slider.maximum() - slider.minimum()));
    const float width = high.x - low.x - 2 * margin;
    if (ImGui::IsItemActive()) {
        const float share =
            std::clamp((ImGui::GetIO().MousePos.x - low.x - margin) / std::max(1.0f, width), 0.0f, 1.0f);
        const std::int32_t position = slider.minimum() + static_cast<std::int32_t>(std::lround(share * span));
        if (position != slider.position()) Do(element, "Change", {{"position", position}});
    }
    const float y = std::floor((low.y + high.y) / 2);
    Box({low.x + margin, y - 2}, {high.x - margin, y + 2}, Rgb(kListBack), Rgb(kBorder));
    const float x = low.x + margin + width * static_cast<float>(slider.position() - slider.minimum()) / span;
    Box({x - 5, y - 9}, {x + 5, y + 9}, Rgb(ImGui::IsItemHovered() ? 0xDCCEA2 : kButton), Rgb(0x6B5D36));
}

}  // namespace ombrel::workbench
