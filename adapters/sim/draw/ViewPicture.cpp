#include "adapters/sim/draw/ViewPicture.h"

#include <algorithm>

#include "adapters/sim/draw/Canvas.h"
#include "adapters/sim/draw/Icons.h"

namespace ombrel::sim {
namespace {

using host::Rect;

constexpr Rgb kPanel = 0x23211C, kBorder = 0x8A7A4E, kField = 0xE8E0C8, kInk = 0x201C10;
constexpr Rgb kListBack = 0x12110E, kListLine = 0x2C2A24, kButton = 0xC9B98A, kTab = 0x3A362C, kTabOpen = 0x5E5436;
constexpr Rgb kWhite = 0xFFFFFF, kMark = 0x7FD07F;
constexpr std::int32_t kTitleHeight = 20;

Rgb FromBgr(std::int32_t color) {
    const auto bgr = static_cast<std::uint32_t>(color);
    return (bgr & 0xFF) << 16 | (bgr & 0xFF00) | (bgr >> 16 & 0xFF);
}

Rect Inner(const Rect& rect, std::int32_t by) {
    return {rect.left + by, rect.top + by, rect.right - by, rect.bottom - by};
}

Rect Within(const Rect& rect, std::int32_t left, std::int32_t top) {
    return {rect.left + left, rect.top + top, rect.right + left, rect.bottom + top};
}

Align AlignOf(std::string_view text) {
    if (text == "right") return Align::kRight;
    return text == "center" ? Align::kCenter : Align::kLeft;
}

TextStyle StyleOf(const Element& element, Rgb color) {
    TextStyle style;
    style.size = element.Number("fontsize", 14);
    style.bold = element.Text("fontstyle").find("bold") != std::string_view::npos;
    style.italic = element.Text("fontstyle").find("italic") != std::string_view::npos;
    style.align = AlignOf(element.Text("justify"));
    style.color = element.attributes.contains("textcolor") ? FromBgr(element.Number("textcolor")) : color;
    return style;
}

template <class Kind>
const Kind& As(const Element& element) {
    return static_cast<const Kind&>(*element.control);
}

class Painter {
public:
    explicit Painter(Canvas& canvas) : canvas_(canvas) {}

    void Draw(const Element& element, std::int32_t left, std::int32_t top);

private:
    void DrawNotebook(const Element& element, const Rect& rect);
    void DrawCheckbox(const Element& element, const Rect& rect);
    void DrawChoice(const Element& element, const Rect& rect);
    void DrawList(const Element& element, const Rect& rect);
    void DrawSlider(const Element& element, const Rect& rect);
    void DrawProgress(const Element& element, const Rect& rect);
    void DrawButton(const Element& element, const Rect& rect);
    void DrawEdit(const Element& element, const Rect& rect);
    void DrawCell(const Element& element, std::size_t column, std::int32_t row, const Rect& rect);
    void DrawCheck(const Rect& box, bool checked);
    void DrawIcon(const Rect& rect, std::int32_t library, std::int32_t number);

    Canvas& canvas_;
};

void Painter::Draw(const Element& element, std::int32_t left, std::int32_t top) {
    const Rect rect = Within(element.rect, left, top);
    switch (element.kind) {
        case ElementKind::kLayout:
            for (const auto& child : element.children) Draw(*child, rect.left, rect.top);
            break;
        case ElementKind::kNotebook:
            DrawNotebook(element, rect);
            break;
        case ElementKind::kStaticText:
            canvas_.Text(rect, As<SimStaticText>(element).text(), StyleOf(element, kWhite));
            break;
        case ElementKind::kPushButton:
            DrawButton(element, rect);
            break;
        case ElementKind::kCheckbox:
            DrawCheckbox(element, rect);
            break;
        case ElementKind::kEdit:
            DrawEdit(element, rect);
            break;
        case ElementKind::kChoice:
            DrawChoice(element, rect);
            break;
        case ElementKind::kList:
            DrawList(element, rect);
            break;
        case ElementKind::kProgress:
            DrawProgress(element, rect);
            break;
        case ElementKind::kSlider:
            DrawSlider(element, rect);
            break;
    }
}

void Painter::DrawNotebook(const Element& element, const Rect& rect) {
    const std::int32_t active = As<SimNotebook>(element).active();
    TextStyle style;
    style.align = Align::kCenter;
    std::int32_t x = rect.left;
    for (std::size_t page = 0; page < element.pages.size(); ++page) {
        const bool open = static_cast<std::int32_t>(page) == active;
        const std::string& label = element.pages[page].label;
        const auto width = static_cast<std::int32_t>(canvas_.Width(label, style)) + kTabPadding;
        const Rect tab{x, rect.top + (open ? 0 : 2), x + width, rect.top + kTabHeight};
        canvas_.Fill(tab, open ? kTabOpen : kTab);
        canvas_.Frame(tab, kBorder);
        style.color = open ? 0xFFF4C8 : 0xBDB596;
        canvas_.Text(tab, label, style);
        x += width;
    }
    canvas_.Line(rect.left, rect.top + kTabHeight - 0.5, rect.right, rect.top + kTabHeight - 0.5, 1, kBorder);
    if (active < static_cast<std::int32_t>(element.pages.size()) && element.pages[active].content)
        Draw(*element.pages[active].content, rect.left, rect.top + kTabHeight);
}

void Painter::DrawButton(const Element& element, const Rect& rect) {
    canvas_.Fill(rect, kButton);
    canvas_.Frame(rect, 0x6B5D36);
    TextStyle style = StyleOf(element, kInk);
    style.align = Align::kCenter;
    canvas_.Text(Inner(rect, 1), As<SimPushButton>(element).text(), style);
}

void Painter::DrawCheck(const Rect& box, bool checked) {
    canvas_.Fill(box, kListBack);
    canvas_.Frame(box, kBorder);
    if (!checked) return;
    const double x = box.left, y = box.top;
    canvas_.Line(x + 2.5, y + 6, x + 5.5, y + 9.5, 2, kMark);
    canvas_.Line(x + 5, y + 9.5, x + 10, y + 2.5, 2, kMark);
}

void Painter::DrawCheckbox(const Element& element, const Rect& rect) {
    const std::int32_t middle = (rect.top + rect.bottom) / 2;
    DrawCheck({rect.left, middle - 6, rect.left + 12, middle + 6}, As<SimCheckbox>(element).checked());
    canvas_.Text({rect.left + kCheckWidth, rect.top, rect.right, rect.bottom}, element.Text("text"),
                 StyleOf(element, kWhite));
}

void Painter::DrawEdit(const Element& element, const Rect& rect) {
    canvas_.Fill(rect, kField);
    canvas_.Frame(rect, kBorder);
    const std::int32_t margin = element.Number("marginx");
    canvas_.Text({rect.left + margin, rect.top, rect.right - 1, rect.bottom}, As<SimEdit>(element).text(),
                 StyleOf(element, kInk));
}

void Painter::DrawChoice(const Element& element, const Rect& rect) {
    canvas_.Fill(rect, kField);
    canvas_.Frame(rect, kBorder);
    const Rect button{rect.right - kChoiceButton, rect.top, rect.right, rect.bottom};
    canvas_.Fill(button, kButton);
    canvas_.Frame(button, kBorder);
    const std::int32_t x = (button.left + button.right) / 2, y = (button.top + button.bottom) / 2;
    canvas_.Triangle({x - 4, y - 2, x + 4, y + 3}, false, kInk);
    const auto& choice = As<SimChoice>(element);
    if (choice.selected() < 0) return;
    TextStyle style;
    style.color = kInk;
    canvas_.Text({rect.left + 3, rect.top, button.left, rect.bottom}, choice.entries()[choice.selected()].text, style);
}

void Painter::DrawIcon(const Rect& rect, std::int32_t library, std::int32_t number) {
    if (number == 0) return;
    const std::int32_t x = (rect.left + rect.right) / 2, y = (rect.top + rect.bottom) / 2;
    const Rect box{x - 6, y - 6, x + 6, y + 6};
    const Icon icon = IconOf(library, number);
    switch (icon.shape) {
        case IconShape::kUp:
        case IconShape::kDown:
            canvas_.Triangle({x - 5, y - 4, x + 5, y + 4}, icon.shape == IconShape::kUp, icon.color);
            break;
        case IconShape::kDelete:
            canvas_.Line(x - 4, y - 4, x + 4, y + 4, 2.5, icon.color);
            canvas_.Line(x - 4, y + 4, x + 4, y - 4, 2.5, icon.color);
            break;
        case IconShape::kNoColor:
            canvas_.Frame(box, kBorder);
            canvas_.Line(box.left + 1, box.bottom - 1, box.right - 1, box.top + 1, 1, kBorder);
            break;
        case IconShape::kColor:
            canvas_.Fill(box, icon.color);
            canvas_.Frame(box, kBorder);
            break;
    }
}

void Painter::DrawCell(const Element& element, std::size_t column, std::int32_t row, const Rect& rect) {
    const auto& list = As<SimList>(element);
    const auto number = static_cast<std::int32_t>(column);
    switch (list.columns()[column]) {
        case SimList::ColumnKind::kText: {
            Element look;
            look.attributes = element.columns[column];
            TextStyle style = StyleOf(look, kWhite);
            style.color = FromBgr(list.color(number, row).value_or(SimList::kOwnColor));
            canvas_.Text({rect.left + 1, rect.top, rect.right - 1, rect.bottom},
                         std::get<std::string>(list.cell(number, row)), style);
            break;
        }
        case SimList::ColumnKind::kCheck: {
            const std::int32_t x = (rect.left + rect.right) / 2, y = (rect.top + rect.bottom) / 2;
            DrawCheck({x - 6, y - 6, x + 6, y + 6}, std::get<bool>(list.cell(number, row)));
            break;
        }
        case SimList::ColumnKind::kIcon:
            DrawIcon(rect, std::get<std::int32_t>(list.cell(number, row, 0)),
                     std::get<std::int32_t>(list.cell(number, row, 1)));
            break;
    }
}

void Painter::DrawList(const Element& element, const Rect& rect) {
    canvas_.Fill(rect, kListBack);
    const auto& list = As<SimList>(element);
    const std::vector<std::int32_t> widths = ColumnWidths(element);
    const std::int32_t height = element.Number("rowheight", 20);
    canvas_.Clip({rect.left, rect.top, rect.right - kScrollBar, rect.bottom});
    std::int32_t y = rect.top;
    for (std::int32_t row = std::max(0, list.scroll_position()); row < list.rows() && y < rect.bottom; ++row) {
        std::int32_t x = rect.left;
        for (std::size_t column = 0; column < widths.size(); ++column) {
            DrawCell(element, column, row, {x, y, x + widths[column], y + height});
            x += widths[column];
        }
        y += height;
        canvas_.Line(rect.left, y - 0.5, rect.right, y - 0.5, 1, kListLine);
    }
    canvas_.Unclip();
    const Rect bar{rect.right - kScrollBar, rect.top, rect.right, rect.bottom};
    canvas_.Fill(bar, kTab);
    canvas_.Triangle({bar.left + 4, bar.top + 5, bar.right - 4, bar.top + 11}, true, kButton);
    canvas_.Triangle({bar.left + 4, bar.bottom - 11, bar.right - 4, bar.bottom - 5}, false, kButton);
    canvas_.Frame(bar, kBorder);
    canvas_.Frame(rect, kBorder);
}

void Painter::DrawSlider(const Element& element, const Rect& rect) {
    const auto& slider = As<SimSlider>(element);
    const std::int32_t y = (rect.top + rect.bottom) / 2;
    canvas_.Fill({rect.left + 5, y - 2, rect.right - 5, y + 2}, kListBack);
    canvas_.Frame({rect.left + 5, y - 2, rect.right - 5, y + 2}, kBorder);
    const std::int32_t span = std::max(1, slider.maximum() - slider.minimum());
    const std::int32_t x =
        rect.left + 5 + (rect.right - rect.left - 10) * (slider.position() - slider.minimum()) / span;
    canvas_.Fill({x - 4, y - 7, x + 4, y + 7}, kButton);
    canvas_.Frame({x - 4, y - 7, x + 4, y + 7}, 0x6B5D36);
}

void Painter::DrawProgress(const Element& element, const Rect& rect) {
    const auto& progress = As<SimProgress>(element);
    const std::int32_t most = std::max(1, progress.maximum());
    const std::int32_t width = (rect.right - rect.left) * std::clamp(progress.value(), 0, most) / most;
    canvas_.Fill(rect, FromBgr(element.Number("facecolor")));
    canvas_.Fill({rect.left, rect.top, rect.left + width, rect.bottom}, FromBgr(element.Number("fillcolor", 0xFF0000)));
    if (element.Number("border") > 0) canvas_.Frame(rect, kBorder);
    if (!element.Flag("drawtext")) return;
    TextStyle style = StyleOf(element, kWhite);
    style.align = AlignOf(element.Text("align"));
    const std::string text = std::to_string(progress.value());
    canvas_.Text(rect, std::string(element.Text("pretext")) + text + std::string(element.Text("posttext")), style);
}

void WriteTabs(SimView& view, const Element& element, const std::string& name, const std::string& folder, double scale,
               std::vector<std::string>& written);

// The pictures of what a page holds: of its own tabs, or nothing when it has none.
bool WriteNested(SimView& view, const Element& element, const std::string& name, const std::string& folder,
                 double scale, std::vector<std::string>& written) {
    if (element.kind == ElementKind::kNotebook) {
        WriteTabs(view, element, name, folder, scale, written);
        return true;
    }
    bool nested = false;
    for (const auto& child : element.children) nested |= WriteNested(view, *child, name, folder, scale, written);
    return nested;
}

void WriteTabs(SimView& view, const Element& element, const std::string& name, const std::string& folder, double scale,
               std::vector<std::string>& written) {
    auto& notebook = static_cast<SimNotebook&>(*element.control);
    for (std::size_t page = 0; page < element.pages.size(); ++page) {
        notebook.PutActive(static_cast<std::int32_t>(page));
        const std::string path = name.empty() ? element.pages[page].label : name + "-" + element.pages[page].label;
        const Element* content = element.pages[page].content.get();
        if (content && WriteNested(view, *content, path, folder, scale, written)) continue;
        WriteViewPicture(view, folder + "/" + path + ".png", scale);
        written.push_back(path + ".png");
    }
    notebook.PutActive(0);
}

}  // namespace

void WriteViewPicture(const SimView& view, const std::string& path, double scale) {
    const std::int32_t width = view.position().right - view.position().left + 2;
    const std::int32_t height = view.position().bottom - view.position().top + kTitleHeight + 1;
    Canvas canvas(width, height, scale);
    canvas.Fill({0, 0, width, height}, kPanel);
    canvas.Fill({0, 0, width, kTitleHeight}, 0x4A3F22);
    canvas.Text({8, 0, width, kTitleHeight}, view.title(), {.size = 13, .bold = true, .color = 0xFFF4C8});
    if (view.root()) Painter(canvas).Draw(*view.root(), 1, kTitleHeight);
    canvas.Frame({0, 0, width, height}, kBorder);
    canvas.Write(path);
}

std::vector<std::string> WriteTabPictures(SimView& view, const std::string& folder, double scale) {
    std::vector<std::string> written;
    if (view.root()) WriteNested(view, *view.root(), "", folder, scale, written);
    return written;
}

}  // namespace ombrel::sim
