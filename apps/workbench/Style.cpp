#include "apps/workbench/Style.h"

#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <string>

#include "adapters/sim/ChatColors.h"

namespace ombrel::workbench {
namespace {

struct FontRow {
    float size;  // in pixels
    Weight weight;
    ImFont* font = nullptr;
};

// The first serves where nobody asks for another.
std::array fonts = {
    FontRow{15, Weight::kRegular}, FontRow{15, Weight::kBold},    FontRow{10, Weight::kRegular},
    FontRow{14, Weight::kRegular}, FontRow{14, Weight::kBold},    FontRow{16, Weight::kRegular},
    FontRow{16, Weight::kBold},    FontRow{18, Weight::kRegular},
};

// The file of a font that fits; empty when the system has none.
std::string FontFile(const char* pattern) {
    const std::unique_ptr<FcPattern, void (*)(FcPattern*)> wanted(
        FcNameParse(reinterpret_cast<const FcChar8*>(pattern)), FcPatternDestroy);
    FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    const std::unique_ptr<FcPattern, void (*)(FcPattern*)> found(FcFontMatch(nullptr, wanted.get(), &result),
                                                                 FcPatternDestroy);
    FcChar8* file = nullptr;
    if (!found || FcPatternGetString(found.get(), FC_FILE, 0, &file) != FcResultMatch) return {};
    return reinterpret_cast<const char*>(file);
}

ImFont* LoadFont(const char* pattern, float size) {
    static constexpr std::array<ImWchar, 7> kLetters = {0x20, 0x17F, 0x2010, 0x2122, 0x25A0, 0x25FF, 0};
    ImFontAtlas& atlas = *ImGui::GetIO().Fonts;
    const std::string file = FontFile(pattern);
    return file.empty() ? atlas.AddFontDefault()
                        : atlas.AddFontFromFileTTF(file.c_str(), size, nullptr, kLetters.data());
}

void Color(ImGuiCol place, std::uint32_t rgb, std::uint32_t alpha = 255) {
    ImGui::GetStyle().Colors[place] = ImGui::ColorConvertU32ToFloat4(Rgb(rgb, alpha));
}

}  // namespace

ImFont* FontFor(float size, Weight weight) {
    const auto distance = [=](const FontRow& row) {
        return std::abs(row.size - size) + (row.weight == weight ? 0.0f : 100.0f);
    };
    return std::ranges::min_element(fonts, {}, distance)->font;
}

ImFont* BoldFont() { return FontFor(15, Weight::kBold); }

ImU32 ChatColor(std::int32_t type) {
    const bool known = type >= 0 && static_cast<std::size_t>(type) < sim::kChatColors.size();
    return Rgb(known ? sim::kChatColors[static_cast<std::size_t>(type)] : 0xFFFFFF);
}

void ApplyStyle() {
    for (FontRow& row : fonts)
        row.font = LoadFont(row.weight == Weight::kBold ? "Liberation Sans:bold" : "Liberation Sans", row.size);
    // Pixels are not mixed when they are drawn, see Window::Draw.
    ImGui::GetIO().Fonts->Flags |= ImFontAtlasFlags_NoBakedLines;

    ImGui::StyleColorsDark();
    ImGuiStyle& style = ImGui::GetStyle();
    style.WindowRounding = 0;
    style.FrameRounding = 3;
    style.GrabRounding = 3;
    style.TabRounding = 3;
    style.ScrollbarRounding = 3;
    style.WindowBorderSize = 1;
    style.FramePadding = {8, 4};
    style.ItemSpacing = {6, 5};
    style.WindowPadding = {8, 8};
    Color(ImGuiCol_WindowBg, kPanel);
    Color(ImGuiCol_ChildBg, kListBack);
    Color(ImGuiCol_PopupBg, 0x2A2720);
    Color(ImGuiCol_Border, 0x4A4330);
    Color(ImGuiCol_Text, 0xE8E4D8);
    Color(ImGuiCol_TextDisabled, kDim);
    Color(ImGuiCol_TitleBg, 0x2E2919);
    Color(ImGuiCol_TitleBgActive, 0x4A3F22);
    Color(ImGuiCol_MenuBarBg, 0x2A2720);
    Color(ImGuiCol_FrameBg, 0x2C2A24);
    Color(ImGuiCol_FrameBgHovered, 0x3A362C);
    Color(ImGuiCol_FrameBgActive, 0x4A4330);
    Color(ImGuiCol_Button, 0x4A4330);
    Color(ImGuiCol_ButtonHovered, 0x6B5D36);
    Color(ImGuiCol_ButtonActive, 0x8A7A4E);
    Color(ImGuiCol_Header, 0x4A4330);
    Color(ImGuiCol_HeaderHovered, 0x6B5D36);
    Color(ImGuiCol_HeaderActive, 0x8A7A4E);
    Color(ImGuiCol_Tab, kTab);
    Color(ImGuiCol_TabHovered, 0x6B5D36);
    Color(ImGuiCol_TabActive, kTabOpen);
    Color(ImGuiCol_TabUnfocused, kTab);
    Color(ImGuiCol_TabUnfocusedActive, kTabOpen);
    Color(ImGuiCol_CheckMark, kMark);
    Color(ImGuiCol_SliderGrab, kBorder);
    Color(ImGuiCol_SliderGrabActive, kButton);
    Color(ImGuiCol_ScrollbarBg, kListBack);
    Color(ImGuiCol_ScrollbarGrab, 0x4A4330);
    Color(ImGuiCol_Separator, 0x4A4330);
    Color(ImGuiCol_TextSelectedBg, 0x7A6A36);
    Color(ImGuiCol_PlotHistogram, 0x6B5D36);
}

}  // namespace ombrel::workbench
