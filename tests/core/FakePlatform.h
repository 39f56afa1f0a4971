// A system for tests of the common services: a clock that stands still and folders of its own.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "core/Hub.h"
#include "core/Vars.h"
#include "core/files.h"
#include "host/Platform.h"

namespace ombrel {

class FakePlatform : public host::Platform {
public:
    std::int64_t Now() const override { return now; }
    host::TimeZone GetTimeZoneInformation() const override { return zone; }
    host::Folder SHGetFolderPath(std::int32_t id) const override {
        return id == host::folder::kDocuments ? documents : data;
    }
    std::string ProgramPath() const override { return program; }
    void FlushFile(const std::string& path) override { flushed.push_back(path); }
    void sndPlaySound(std::string_view path, std::int32_t flags) override {
        calls.push_back({std::string(path), flags});
    }
    std::unique_ptr<host::SoundDevice> DirectSoundCreate() override { return nullptr; }
    std::int16_t GetAsyncKeyState(std::int32_t) const override { return 0; }
    std::int16_t GetKeyState(std::int32_t) const override { return 0; }
    std::int32_t MapVirtualKey(std::int32_t, std::int32_t) const override { return 0; }
    std::int16_t VkKeyScan(char) const override { return 0; }
    void keybd_event(std::int32_t, std::int32_t, std::int32_t) override {}
    host::Point GetCursorPos() const override { return cursor; }
    void SetCursorPos(std::int32_t x, std::int32_t y) override { cursor = {x, y}; }
    host::Point ScreenToClient(host::Point point) const override { return {point.x - 100, point.y - 200}; }
    host::Point ClientToScreen(host::Point point) const override { return {point.x + 100, point.y + 200}; }
    void mouse_event(std::int32_t flags) override { clicks.push_back({cursor, flags}); }
    void DoEvents() override {}

    std::int64_t now = 0;
    host::TimeZone zone;
    host::Folder documents;
    host::Folder data;
    std::string program;
    host::Point cursor;
    std::vector<std::string> flushed;
    std::vector<std::pair<std::string, std::int32_t>> calls;
    std::vector<std::pair<host::Point, std::int32_t>> clicks;
};

// Each test has the fake system and an empty folder.
class ServicesTest : public testing::Test {
protected:
    ServicesTest() {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        folder_ = std::filesystem::temp_directory_path() / (std::string("ombrel-") + test->test_suite_name() + "-" +
                                                            test->name() + "-" + std::to_string(getpid()));
        std::filesystem::create_directories(folder_);
        platform_.documents.path = folder_.string();
        platform_.data.path = folder_.string();
        platform_.program = folder_.string();
        platform_.now = std::int64_t{1720098309} * 1000;  // 4 July 2024, 13:05:09
        Vars::Platform = &platform_;
        ErrorLogBusy = false;
        DebugLogBusy = false;
    }

    ~ServicesTest() override {
        Vars::Platform = {};
        Vars::DebugMode = false;
        Vars::DebugSilent = false;
        ErrorLogBusy = false;
        DebugLogBusy = false;
        std::error_code ignored;
        std::filesystem::permissions(folder_, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(folder_, ignored);
    }

    std::string Path(std::string_view name) const { return folder_.string() + "\\" + std::string(name); }

    FakePlatform platform_;
    std::filesystem::path folder_;
};

}  // namespace ombrel
