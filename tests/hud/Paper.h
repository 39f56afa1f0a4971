// A screen that keeps what is drawn on it as text, a line a stroke:
//
//     new 5,100,205,300      remove      at 5,100,25,118      on      off
//     begin      clear 0,0,200,14      fill 0,0,200,14 80000000      end
//     font Arial 14 700      left 3,16,20,33 FFFFFFFF 12:05      centre ...      image 4600 3,18,19,34      end text
#pragma once

#include <fmt/format.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/RenderService.h"

namespace ombrel::test {

class Paper final : public host::RenderService {
public:
    std::unique_ptr<host::HudView> CreateHUD(const host::Rect& rect) override {
        strokes.push_back("new " + Corners(rect));
        return std::make_unique<View>(*this);
    }
    void RemoveHUD(host::HudView&) override { strokes.emplace_back("remove"); }

    // The strokes so far, which are forgotten; all, or those that begin with one of the words.
    std::vector<std::string> Take() { return std::exchange(strokes, {}); }
    std::vector<std::string> Take(std::initializer_list<std::string_view> words) {
        std::vector<std::string> found;
        for (const std::string& stroke : std::exchange(strokes, {}))
            for (const std::string_view word : words)
                if (stroke.starts_with(word)) found.push_back(stroke);
        return found;
    }
    // The texts of lines and titles.
    std::vector<std::string> TakeTexts() {
        std::vector<std::string> texts = Take({"left ", "centre "});
        for (std::string& text : texts) text = text.substr(text.find(' ', text.find(',')) + 10);
        return texts;
    }

    std::vector<std::string> strokes;

private:
    static std::string Corners(const host::Rect& rect) {
        return fmt::format("{},{},{},{}", rect.left, rect.top, rect.right, rect.bottom);
    }

    class View final : public host::HudView {
    public:
        explicit View(Paper& paper) : strokes_(paper.strokes) {}

        void BeginRender(bool filter) override { strokes_.emplace_back(filter ? "begin with filter" : "begin"); }
        void Clear(const host::Rect& rect) override { strokes_.push_back("clear " + Corners(rect)); }
        void Fill(const host::Rect& rect, std::int32_t color) override {
            strokes_.push_back(fmt::format("fill {} {:08X}", Corners(rect), static_cast<std::uint32_t>(color)));
        }
        void BeginText(std::string_view face, std::int32_t height, std::int32_t weight, bool italic) override {
            strokes_.push_back(fmt::format("font {} {} {}{}", face, height, weight, italic ? " italic" : ""));
        }
        void DrawText(const host::Rect& rect, std::int32_t color, std::int32_t format, std::string_view text) override {
            strokes_.push_back(fmt::format("{} {} {:08X} {}", format == 1 ? "centre" : "left", Corners(rect),
                                           static_cast<std::uint32_t>(color), text));
        }
        void DrawPortalImage(std::int32_t image, const host::Rect& rect) override {
            strokes_.push_back(fmt::format("image {} {}", image - 0x6000000, Corners(rect)));
        }
        void EndText() override { strokes_.emplace_back("end text"); }
        void EndRender() override { strokes_.emplace_back("end"); }
        void SetRegion(const host::Rect& rect) override { strokes_.push_back("at " + Corners(rect)); }
        void SetEnabled(bool enabled) override { strokes_.emplace_back(enabled ? "on" : "off"); }

    private:
        std::vector<std::string>& strokes_;
    };
};

}  // namespace ombrel::test
