// The program's window: SDL and OpenGL below, Dear ImGui on it.
#pragma once

#include <SDL.h>

#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace ombrel::workbench {

// A picture in the window's memory, as ImGui draws it.
class Texture {
public:
    Texture() = default;
    ~Texture();
    Texture(const Texture&) = delete;
    Texture& operator=(const Texture&) = delete;

    // Rows of 32-bit pixels, blue first, alpha multiplied in. `scaled`: it will be shown in another size.
    void Put(const unsigned char* pixels, int width, int height, int stride, bool scaled);

    void* id() const;  // ImTextureID; nothing before the first picture
    int width() const { return width_; }
    int height() const { return height_; }

private:
    unsigned name_ = 0;
    int width_ = 0, height_ = 0;
};

class Window {
public:
    // Throws std::runtime_error with the reason when there is no display.
    Window(const std::string& title, int width, int height);
    ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    // Takes what the player did since. Waits for it, but not longer than `wait`. False once the window is closed.
    bool Events(std::chrono::milliseconds wait);

    // The player did something, or a window moved: the next frames may differ.
    bool stirred() const { return stirred_ > 0; }
    void Stir() { stirred_ = kSettling; }

    void Draw(const std::function<void()>& content);

    // The picture that was drawn last, as a PNG file.
    void WritePicture(const std::string& path) const;

private:
    bool FollowMouse(const SDL_Event& event);
    void Render() const;

    static constexpr int kSettling = 3;  // frames until ImGui has settled

    struct Destroy {
        void operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }
    };
    std::unique_ptr<SDL_Window, Destroy> window_;
    SDL_GLContext context_ = nullptr;
    std::optional<SDL_Point> mouse_;  // while it is over the window
    std::array<bool, 3> buttons_{};   // held, in ImGui's order
    int stirred_ = kSettling;
    bool open_ = true;
};

}  // namespace ombrel::workbench
