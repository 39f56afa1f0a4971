#include "adapters/sim/draw/Landscape.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <initializer_list>
#include <memory>
#include <numbers>

namespace ombrel::sim {
namespace {

// Everything is laid out in a unit square, so that it fits an area of any shape.

struct Color {
    double red, green, blue, alpha = 1;
};

struct Stop {
    double at;
    Color color;
};

using Pattern = std::unique_ptr<cairo_pattern_t, decltype(&cairo_pattern_destroy)>;

void SetPattern(cairo_t* pen, cairo_pattern_t* pattern, std::initializer_list<Stop> stops) {
    const Pattern owner(pattern, cairo_pattern_destroy);
    for (const auto& [at, color] : stops)
        cairo_pattern_add_color_stop_rgba(pattern, at, color.red, color.green, color.blue, color.alpha);
    cairo_set_source(pen, pattern);
}

// Always the same numbers between 0 and 1, in no order that an eye would find.
double Chance(std::uint32_t seed) {
    std::uint32_t x = seed * 2654435769u + 0x9E3779B9u;
    x = (x ^ (x >> 16)) * 0x85EBCA6Bu;
    x = (x ^ (x >> 13)) * 0xC2B2AE35u;
    x ^= x >> 16;
    return x / 4294967295.0;
}

// A soft line through chances, one for each whole number.
double Roll(double x, std::uint32_t seed) {
    const double whole = std::floor(x), part = x - whole;
    const auto at = static_cast<std::uint32_t>(static_cast<std::int32_t>(whole)) * 31u + seed;
    const double smooth = part * part * (3 - 2 * part);
    return Chance(at) * (1 - smooth) + Chance(at + 31u) * smooth;
}

// A ridge with as much detail as its roughness lets through.
double Ridge(double x, std::uint32_t seed, double roughness) {
    double height = 0, scale = 1, size = 1;
    for (std::uint32_t i = 0; i < 6; ++i) {
        height += (Roll(x * scale, seed + i * 101u) - 0.5) * size;
        scale *= 2.1;
        size *= roughness;
    }
    return height;
}

using Line = std::function<double(double x)>;

void TraceDown(cairo_t* pen, const Line& top, double from, double to, double bottom) {
    constexpr int kSteps = 400;
    cairo_move_to(pen, from, bottom);
    for (int i = 0; i <= kSteps; ++i) {
        const double x = from + (to - from) * i / kSteps;
        cairo_line_to(pen, x, top(x));
    }
    cairo_line_to(pen, to, bottom);
    cairo_close_path(pen);
}

void Layer(cairo_t* pen, const Line& top, double bottom, double crest, Color above, Color below) {
    TraceDown(pen, top, 0, 1, bottom);
    SetPattern(pen, cairo_pattern_create_linear(0, crest, 0, bottom), {{0, above}, {1, below}});
    cairo_fill(pen);
}

constexpr double kHorizon = 0.58;
constexpr double kSunX = 0.66, kSunY = 0.47;

void Glow(cairo_t* pen, double x, double y, double radius, double aspect, std::initializer_list<Stop> stops) {
    cairo_save(pen);
    cairo_translate(pen, x, y);
    cairo_scale(pen, 1 / aspect, 1);
    SetPattern(pen, cairo_pattern_create_radial(0, 0, 0, 0, 0, radius), stops);
    cairo_arc(pen, 0, 0, radius, 0, 2 * std::numbers::pi);
    cairo_fill(pen);
    cairo_restore(pen);
}

void Cloud(cairo_t* pen, double x, double y, double size, std::uint32_t seed, double aspect) {
    for (std::uint32_t puff = 0; puff < 14; ++puff) {
        const double across = (Chance(seed + puff * 7u) - 0.5) * size * 2.6;
        const double near_middle = 1 - std::abs(across) / (size * 1.5);
        const double up = Chance(seed + puff * 7u + 1u) * size * 0.16 * near_middle;
        const double radius = size * (0.10 + 0.15 * Chance(seed + puff * 7u + 2u)) * (0.5 + 0.5 * near_middle);
        cairo_save(pen);
        cairo_translate(pen, x + across / aspect, y - up);
        cairo_scale(pen, 1, 0.36);
        Glow(pen, 0, 0, radius * 1.5, aspect,
             {{0, {1, 0.93, 0.86, 0.30}}, {0.6, {1, 0.86, 0.78, 0.13}}, {1, {1, 0.84, 0.76, 0}}});
        cairo_restore(pen);
    }
}

void Sky(cairo_t* pen, double aspect) {
    cairo_rectangle(pen, 0, 0, 1, 1);
    SetPattern(
        pen, cairo_pattern_create_linear(0, 0, 0, kHorizon),
        {{0, {0.19, 0.33, 0.56}}, {0.45, {0.42, 0.57, 0.74}}, {0.75, {0.83, 0.76, 0.70}}, {1, {0.98, 0.80, 0.56}}});
    cairo_fill(pen);
    Glow(pen, kSunX, kSunY, 0.55, aspect,
         {{0, {1, 0.93, 0.70, 0.75}}, {0.25, {1, 0.85, 0.58, 0.32}}, {1, {1, 0.8, 0.5, 0}}});
    Glow(pen, kSunX, kSunY, 0.042, aspect, {{0, {1, 1, 0.93}}, {0.85, {1, 0.97, 0.82}}, {1, {1, 0.92, 0.7, 0}}});
    struct Place {
        double x, y, size;
    };
    std::uint32_t seed = 11;
    for (const auto& [x, y, size] : {Place{0.16, 0.17, 0.20}, Place{0.46, 0.27, 0.13}, Place{0.83, 0.13, 0.22},
                                     Place{0.30, 0.38, 0.10}, Place{0.93, 0.34, 0.11}}) {
        Cloud(pen, x, y, size, seed, aspect);
        seed += 1000;
    }
}

void Mountains(cairo_t* pen) {
    Layer(pen, [](double x) { return 0.475 - 0.20 * Ridge(x * 4.2 + 3, 5, 0.5); }, kHorizon + 0.03, 0.36,
          {0.52, 0.56, 0.70}, {0.90, 0.76, 0.66});
    Layer(pen, [](double x) { return 0.525 - 0.13 * Ridge(x * 3.4 + 9, 23, 0.48); }, kHorizon + 0.05, 0.45,
          {0.37, 0.44, 0.58}, {0.68, 0.62, 0.60});
    Layer(pen, [](double x) { return 0.57 - 0.08 * Ridge(x * 3.0 + 17, 41, 0.42); }, kHorizon + 0.06, 0.52,
          {0.27, 0.38, 0.42}, {0.40, 0.48, 0.44});
}

// The lake lies to the right and mirrors the sky, with the sun's path on it.
void Lake(cairo_t* pen, double aspect) {
    constexpr double kShore = 0.655, kEnd = 0.93;
    cairo_rectangle(pen, 0, kShore, 1, kEnd - kShore);
    SetPattern(pen, cairo_pattern_create_linear(0, kShore, 0, kEnd),
               {{0, {0.93, 0.77, 0.60}}, {0.35, {0.62, 0.65, 0.70}}, {1, {0.24, 0.38, 0.55}}});
    cairo_fill(pen);
    for (std::uint32_t i = 0; i < 120; ++i) {
        const double deep = Chance(i * 3u + 700u);
        const double y = kShore + 0.004 + deep * (kEnd - kShore - 0.02);
        const double spread = (Chance(i * 3u + 701u) - 0.5) * (0.05 + 0.16 * deep);
        const double length = (0.010 + 0.035 * Chance(i * 3u + 702u)) * (0.4 + deep);
        SetPattern(pen, cairo_pattern_create_linear(kSunX + spread - length, 0, kSunX + spread + length, 0),
                   {{0, {1, 0.93, 0.72, 0}}, {0.5, {1, 0.95, 0.78, 0.55}}, {1, {1, 0.93, 0.72, 0}}});
        cairo_rectangle(pen, kSunX + spread - length, y, 2 * length, 0.0016 * aspect);
        cairo_fill(pen);
    }
}

double FarBank(double x) { return 0.615 - 0.035 * Ridge(x * 2.6 + 31, 61, 0.45); }
double Meadow(double x) {
    const double slope = 0.73 + 0.16 * std::clamp((x - 0.12) / 0.6, 0.0, 1.0) - 0.05 * std::clamp(1 - x * 3, 0.0, 1.0);
    return slope - 0.025 * Ridge(x * 3 + 51, 83, 0.35);
}

void Pine(cairo_t* pen, double x, double foot, double height, double aspect, Color color) {
    const double half = height * 0.23 / aspect;
    cairo_rectangle(pen, x - half * 0.13, foot - height * 0.12, half * 0.26, height * 0.14);
    cairo_set_source_rgb(pen, 0.20, 0.14, 0.10);
    cairo_fill(pen);
    for (int tier = 0; tier < 4; ++tier) {
        const double bottom = foot - height * (0.10 + 0.21 * tier), wide = half * (1 - 0.21 * tier);
        const double lit = 0.05 * tier;
        cairo_move_to(pen, x - wide, bottom);
        cairo_line_to(pen, x, bottom - height * 0.34);
        cairo_line_to(pen, x + wide, bottom);
        cairo_curve_to(pen, x + wide * 0.4, bottom + height * 0.03, x - wide * 0.4, bottom + height * 0.03, x - wide,
                       bottom);
        SetPattern(pen, cairo_pattern_create_linear(x - wide, 0, x + wide, 0),
                   {{0, {color.red + lit, color.green + lit, color.blue + lit}},
                    {1, {color.red + lit + 0.10, color.green + lit + 0.11, color.blue + lit + 0.02}}});
        cairo_fill(pen);
    }
}

void FarWood(cairo_t* pen, double aspect) {
    Layer(pen, FarBank, 0.66, 0.60, {0.22, 0.34, 0.29}, {0.30, 0.40, 0.30});
    for (std::uint32_t i = 0; i < 90; ++i) {
        const double x = Chance(i * 5u + 300u) * 1.04 - 0.02;
        if (std::abs(x - kSunX) < 0.06) continue;
        Pine(pen, x, FarBank(x) + 0.012 + 0.02 * Chance(i * 5u + 301u), 0.022 + 0.03 * Chance(i * 5u + 302u), aspect,
             {0.14, 0.25, 0.22});
    }
}

void Grass(cairo_t* pen) {
    for (std::uint32_t i = 0; i < 900; ++i) {
        const double x = Chance(i * 4u + 5000u);
        const double depth = std::pow(Chance(i * 4u + 5001u), 0.7);
        const double foot = Meadow(x) + 0.01 + depth * (1.02 - Meadow(x));
        const double blade = (0.006 + 0.020 * depth) * (0.6 + 0.8 * Chance(i * 4u + 5002u));
        const double lean = (Chance(i * 4u + 5003u) - 0.35) * blade * 0.5;
        const double warm = 0.10 * (1 - depth);
        cairo_move_to(pen, x - blade * 0.05, foot);
        cairo_line_to(pen, x + lean, foot - blade);
        cairo_line_to(pen, x + blade * 0.05, foot);
        cairo_set_source_rgba(pen, 0.36 + warm, 0.50 + warm, 0.20, 0.55);
        cairo_fill(pen);
    }
}

// Where the dead come back: a blue crystal that floats over its base.
void Lifestone(cairo_t* pen, double x, double foot, double size, double aspect) {
    const double half = size * 0.26 / aspect;
    Glow(pen, x, foot - size * 0.55, size * 0.95, aspect,
         {{0, {0.55, 0.80, 1, 0.50}}, {0.5, {0.45, 0.70, 1, 0.16}}, {1, {0.4, 0.6, 1, 0}}});
    Glow(pen, x, foot, size * 0.30, aspect, {{0, {0.05, 0.07, 0.05, 0.5}}, {1, {0.05, 0.07, 0.05, 0}}});
    struct Facet {
        double x1, y1, x2, y2, x3, y3;
        Color color;
    };
    const double top = foot - size * 1.12, middle = foot - size * 0.66, low = foot - size * 0.08;
    for (const Facet& facet : {Facet{0, top, -1, middle, -0.15, middle + size * 0.07, {0.35, 0.62, 0.95}},
                               Facet{0, top, -0.15, middle + size * 0.07, 1, middle, {0.72, 0.90, 1.0}},
                               Facet{0, low, -1, middle, -0.15, middle + size * 0.07, {0.16, 0.36, 0.72}},
                               Facet{0, low, -0.15, middle + size * 0.07, 1, middle, {0.38, 0.62, 0.92}}}) {
        cairo_move_to(pen, x + facet.x1 * half, facet.y1);
        cairo_line_to(pen, x + facet.x2 * half, facet.y2);
        cairo_line_to(pen, x + facet.x3 * half, facet.y3);
        cairo_close_path(pen);
        cairo_set_source_rgba(pen, facet.color.red, facet.color.green, facet.color.blue, 0.94);
        cairo_fill(pen);
    }
}

}  // namespace

void PaintLandscape(cairo_t* pen, std::int32_t width, std::int32_t height) {
    const double aspect = static_cast<double>(width) / height;
    cairo_save(pen);
    cairo_scale(pen, width, height);
    Sky(pen, aspect);
    Mountains(pen);
    Lake(pen, aspect);
    FarWood(pen, aspect);
    Layer(pen, Meadow, 1, 0.70, {0.47, 0.55, 0.27}, {0.17, 0.28, 0.12});
    Grass(pen);
    for (const auto& [x, tall] : {std::pair{0.055, 0.34}, std::pair{0.135, 0.24}, std::pair{0.925, 0.20}})
        Pine(pen, x, Meadow(x) + 0.05, tall, aspect, {0.12, 0.23, 0.14});
    Lifestone(pen, 0.34, Meadow(0.34) + 0.08, 0.15, aspect);
    cairo_restore(pen);
}

}  // namespace ombrel::sim
