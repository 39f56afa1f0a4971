#include "adapters/sim/draw/HudText.h"

#include <cairo.h>
#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>

#include "adapters/sim/FontMetrics.h"
#include "core/text.h"

namespace ombrel::sim {
namespace {

// Which of our own families stands in for a face of the game's machine.
std::string_view StandIn(std::string_view face) {
    if (IsMonospaced(face)) return "Liberation Mono";
    const std::string name = ToLower(face);
    for (const std::string_view serif : {"times", "palatino", "georgia", "garamond", "book antiqua"})
        if (name.starts_with(serif)) return "Liberation Serif";
    return "Liberation Sans";
}

// The installed family that fits best: the face itself, one of the same measures, or its stand-in.
std::string FindFamily(const std::string& face) {
    const std::string stand_in(StandIn(face));
    const std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)> wanted(FcPatternCreate(), FcPatternDestroy);
    for (const std::string& family : {face, stand_in})
        FcPatternAddString(wanted.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family.c_str()));
    FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    const std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)> found(FcFontMatch(nullptr, wanted.get(), &result),
                                                                        FcPatternDestroy);
    FcChar8* family = nullptr;
    if (!found || FcPatternGetString(found.get(), FC_FAMILY, 0, &family) != FcResultMatch) return stand_in;
    return reinterpret_cast<const char*>(family);
}

const std::string& Family(const std::string& face) {
    static std::map<std::string, std::string> families;
    const auto [found, unknown] = families.try_emplace(face);
    if (unknown) found->second = FindFamily(face);
    return found->second;
}

// What the game can show of a text: its own characters, none of which is a control.
std::string Printable(std::string_view text) {
    std::string characters = ToWindows1252(text);
    std::erase_if(characters, [](char character) { return static_cast<unsigned char>(character) < ' '; });
    return FromWindows1252(characters);
}

void SelectFont(cairo_t* pen, const HudFont& font) {
    const std::unique_ptr<cairo_font_options_t, decltype(&cairo_font_options_destroy)> options(
        cairo_font_options_create(), cairo_font_options_destroy);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_SLIGHT);
    cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
    cairo_set_font_options(pen, options.get());
    cairo_select_font_face(pen, Family(font.face).c_str(),
                           font.italic ? CAIRO_FONT_SLANT_ITALIC : CAIRO_FONT_SLANT_NORMAL,
                           font.bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(pen, EmSize(font.height));
}

}  // namespace

void DrawHudText(cairo_t* pen, const host::Rect& rect, std::string_view text, const HudFont& font, HudAlign align,
                 std::uint32_t color) {
    constexpr double kTallest = 512;  // no display is larger, and no library has to bear it
    const std::string shown = Printable(text);
    if (shown.empty() || font.height <= 0 || font.height > kTallest) return;

    cairo_save(pen);
    cairo_rectangle(pen, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
    cairo_clip(pen);
    SelectFont(pen, font);

    const double width = TextWidth(text, font.face, font.height, font.bold);
    cairo_text_extents_t drawn;
    cairo_text_extents(pen, shown.c_str(), &drawn);
    cairo_font_extents_t line;
    cairo_font_extents(pen, &line);
    const double stretch = drawn.x_advance > 0 && std::abs(drawn.x_advance - width) > 1 ? width / drawn.x_advance : 1;
    const double left = align == HudAlign::kCentred ? std::floor((rect.left + rect.right - width) / 2) : rect.left;
    // The line's height is shared out as the font has it, so that other families stand on the same ground.
    const double base = rect.top + std::round(font.height * line.ascent / std::max(line.ascent + line.descent, 1.0));

    cairo_translate(pen, left, base);
    cairo_scale(pen, stretch, 1);
    cairo_set_source_rgba(pen, (color >> 16 & 0xFF) / 255.0, (color >> 8 & 0xFF) / 255.0, (color & 0xFF) / 255.0,
                          (color >> 24) / 255.0);
    cairo_move_to(pen, 0, 0);
    cairo_show_text(pen, shown.c_str());
    cairo_restore(pen);
}

}  // namespace ombrel::sim
