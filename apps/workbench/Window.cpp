#include "apps/workbench/Window.h"

#include <SDL_opengl.h>
#include <backends/imgui_impl_opengl3.h>
#include <backends/imgui_impl_sdl.h>
#include <cairo.h>
#include <imgui.h>

#include <algorithm>
#include <cfloat>
#include <stdexcept>
#include <vector>

namespace ombrel::workbench {
namespace {

constexpr const char* kShaders = "#version 130";

[[noreturn]] void Refuse(const char* what) { throw std::runtime_error(std::string(what) + ": " + SDL_GetError()); }

// How pixels of the texture at work become pixels of the window.
void Filter(GLint filter) {
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, filter);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, filter);
}

}  // namespace

Texture::~Texture() {
    if (name_ != 0) glDeleteTextures(1, &name_);
}

void Texture::Put(const unsigned char* pixels, int width, int height, int stride, bool scaled) {
    if (name_ == 0) glGenTextures(1, &name_);
    glBindTexture(GL_TEXTURE_2D, name_);
    Filter(scaled ? GL_LINEAR : GL_NEAREST);
    glPixelStorei(GL_UNPACK_ROW_LENGTH, stride / 4);
    if (width == width_ && height == height_)
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, width, height, GL_BGRA, GL_UNSIGNED_BYTE, pixels);
    else
        glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, width, height, 0, GL_BGRA, GL_UNSIGNED_BYTE, pixels);
    glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
    width_ = width;
    height_ = height;
}

void* Texture::id() const { return reinterpret_cast<void*>(static_cast<std::uintptr_t>(name_)); }

Window::Window(const std::string& title, int width, int height) {
    SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
    if (SDL_Init(SDL_INIT_VIDEO) != 0) Refuse("No display");
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_MAJOR_VERSION, 3);
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_MINOR_VERSION, 0);
    SDL_Rect room{0, 0, width, height};
    SDL_GetDisplayUsableBounds(0, &room);
    window_.reset(SDL_CreateWindow(title.c_str(), SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                                   std::min(width, room.w), std::min(height, room.h),
                                   SDL_WINDOW_OPENGL | SDL_WINDOW_RESIZABLE));
    if (!window_) Refuse("No window");
    SDL_SetWindowMinimumSize(window_.get(), 960, 640);
    context_ = SDL_GL_CreateContext(window_.get());
    if (!context_) Refuse("No OpenGL");
    SDL_GL_SetSwapInterval(1);

    IMGUI_CHECKVERSION();
    ImGui::CreateContext();
    ImGui::GetIO().IniFilename = nullptr;
    ImGui::GetIO().ConfigInputTextCursorBlink = false;  // nothing is drawn for it
    ImGui_ImplSDL2_InitForOpenGL(window_.get(), context_);
    ImGui_ImplOpenGL3_Init(kShaders);
}

Window::~Window() {
    ImGui_ImplOpenGL3_Shutdown();
    ImGui_ImplSDL2_Shutdown();
    ImGui::DestroyContext();
    SDL_GL_DeleteContext(context_);
    window_.reset();
    SDL_Quit();
}

bool Window::Events(std::chrono::milliseconds wait) {
    SDL_Event event;
    if (stirred_ > 0) {
        --stirred_;
        wait = std::chrono::milliseconds(0);
    }
    bool any = wait.count() > 0 ? SDL_WaitEventTimeout(&event, static_cast<int>(wait.count())) == 1
                                : SDL_PollEvent(&event) == 1;
    while (any) {
        ImGui_ImplSDL2_ProcessEvent(&event);
        if (event.type == SDL_QUIT) open_ = false;
        Stir();
        // ImGui looks at keys and buttons once a frame: each change of one needs a frame of its own.
        const bool key = event.type == SDL_KEYDOWN || event.type == SDL_KEYUP;
        if (FollowMouse(event) || key) break;
        any = SDL_PollEvent(&event) == 1;
    }
    return open_;
}

// The mouse as the events tell it, since the system only knows where it is by now. True when a button changed.
bool Window::FollowMouse(const SDL_Event& event) {
    if (event.type == SDL_MOUSEMOTION) mouse_ = {event.motion.x, event.motion.y};
    const bool left = event.type == SDL_WINDOWEVENT && event.window.event == SDL_WINDOWEVENT_LEAVE;
    if (left && std::ranges::find(buttons_, true) == buttons_.end()) mouse_.reset();
    if (event.type != SDL_MOUSEBUTTONDOWN && event.type != SDL_MOUSEBUTTONUP) return false;
    mouse_ = {event.button.x, event.button.y};
    const bool down = event.type == SDL_MOUSEBUTTONDOWN;
    if (event.button.button == SDL_BUTTON_LEFT) buttons_[ImGuiMouseButton_Left] = down;
    if (event.button.button == SDL_BUTTON_RIGHT) buttons_[ImGuiMouseButton_Right] = down;
    if (event.button.button == SDL_BUTTON_MIDDLE) buttons_[ImGuiMouseButton_Middle] = down;
    return true;
}

void Window::Draw(const std::function<void()>& content) {
    ImGui_ImplOpenGL3_NewFrame();
    // Letters come in the size that they are drawn in. Mixing pixels costs a renderer without a graphics card a lot.
    glBindTexture(GL_TEXTURE_2D, static_cast<GLuint>(reinterpret_cast<std::uintptr_t>(ImGui::GetIO().Fonts->TexID)));
    Filter(GL_NEAREST);
    ImGui_ImplSDL2_NewFrame();
    ImGuiIO& io = ImGui::GetIO();
    io.MousePos =
        mouse_ ? ImVec2(static_cast<float>(mouse_->x), static_cast<float>(mouse_->y)) : ImVec2(-FLT_MAX, -FLT_MAX);
    std::ranges::copy(buttons_, io.MouseDown);
    ImGui::NewFrame();
    content();
    ImGui::Render();
    Render();
    SDL_GL_SwapWindow(window_.get());
}

void Window::Render() const {
    const ImGuiIO& io = ImGui::GetIO();
    glViewport(0, 0, static_cast<int>(io.DisplaySize.x), static_cast<int>(io.DisplaySize.y));
    glClearColor(0.07f, 0.065f, 0.055f, 1.0f);
    glClear(GL_COLOR_BUFFER_BIT);
    ImGui_ImplOpenGL3_RenderDrawData(ImGui::GetDrawData());
}

void Window::WritePicture(const std::string& path) const {
    const ImGuiIO& io = ImGui::GetIO();
    const int width = static_cast<int>(io.DisplaySize.x), height = static_cast<int>(io.DisplaySize.y);
    std::vector<unsigned char> pixels(static_cast<std::size_t>(width) * height * 4), turned(pixels.size());
    Render();  // what was shown last, into the buffer behind
    glReadBuffer(GL_BACK);
    glReadPixels(0, 0, width, height, GL_BGRA, GL_UNSIGNED_BYTE, pixels.data());
    const std::size_t row = static_cast<std::size_t>(width) * 4;
    for (int y = 0; y < height; ++y)
        std::copy_n(pixels.begin() + static_cast<std::ptrdiff_t>(row * (height - 1 - y)), row,
                    turned.begin() + static_cast<std::ptrdiff_t>(row * y));
    cairo_surface_t* surface =
        cairo_image_surface_create_for_data(turned.data(), CAIRO_FORMAT_RGB24, width, height, static_cast<int>(row));
    const cairo_status_t status = cairo_surface_write_to_png(surface, path.c_str());
    cairo_surface_destroy(surface);
    if (status != CAIRO_STATUS_SUCCESS) throw std::runtime_error(path + " can't be written");
}

}  // namespace ombrel::workbench
