#include "core/files.h"

#include <gmock/gmock.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <cstdlib>
#include <functional>
#include <random>

#include "core/failure.h"
#include "tests/core/FakePlatform.h"

namespace ombrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::int32_t NumberOf(const std::function<void()>& procedure) {
    try {
        procedure();
    } catch (const Failure& thrown) {
        return thrown.number();
    }
    return 0;
}

class Files : public ServicesTest {
protected:
    std::vector<std::string> Names() const { return ListFiles(folder_.string(), ""); }
};

TEST_F(Files, BackslashesAreSeparators) {
    EXPECT_EQ(NativePath("/a\\b\\c.xml"), std::filesystem::path("/a/b/c.xml"));
    SaveFile(Path("Settings\\One.xml"), "x", Durability::kProcess);
    EXPECT_TRUE(std::filesystem::exists(folder_ / "Settings" / "One.xml"));
    SaveFile(Path("Caf\u00e9.txt"), "x", Durability::kProcess);
    EXPECT_TRUE(std::filesystem::exists(folder_ / u8"Caf\u00e9.txt"));
}

TEST_F(Files, WhatIsSavedIsReadBackByteForByte) {
    std::string content = "first\r\nsecond\n";
    for (int byte = 0; byte < 256; ++byte) content += static_cast<char>(byte);
    for (const auto& text : {content, std::string(), std::string(3'000'000, 'x')}) {
        SaveFile(Path("a\\b\\file"), text, Durability::kProcess);
        EXPECT_EQ(ReadFile(Path("a\\b\\file")), text);
    }
    EXPECT_THAT(ListFiles(Path("a\\b"), ""), ElementsAre("file"));
}

TEST_F(Files, AFolderTextWithoutARootIsRefusedBeforeAnythingIsMade) {
    for (const char* path : {"Folder Does Not Exist\\Ombrel\\x.xml", "x.xml", ""}) {
        EXPECT_EQ(NumberOf([&] { SaveFile(path, "x", Durability::kProcess); }), failure::kPathNotFound);
        EXPECT_EQ(NumberOf([&] { AppendFile(path, "x"); }), failure::kPathNotFound);
        EXPECT_EQ(NumberOf([&] { ReadFile(path); }), failure::kPathNotFound);
        EXPECT_EQ(NumberOf([&] { MakeFolders(path); }), failure::kPathNotFound);
        EXPECT_FALSE(FileExists(path));
        EXPECT_THAT(ListFiles(path, ".wav"), IsEmpty());
    }
    EXPECT_FALSE(std::filesystem::exists("Folder Does Not Exist"));
}

TEST_F(Files, FailuresSayWhatIsWrong) {
    SaveFile(Path("file"), "x", Durability::kProcess);
    EXPECT_EQ(NumberOf([&] { ReadFile(Path("none")); }), failure::kFileNotFound);
    EXPECT_EQ(NumberOf([&] { ReadFile(Path("none\\none")); }), failure::kPathNotFound);
    EXPECT_EQ(NumberOf([&] { ReadFile(folder_.string()); }), failure::kFileAccess);
    EXPECT_EQ(NumberOf([&] { SaveFile(Path("file\\x"), "x", Durability::kProcess); }), failure::kPathNotFound);
    std::filesystem::create_directories(folder_ / "taken" / "inside");
    EXPECT_EQ(NumberOf([&] { SaveFile(Path("taken"), "x", Durability::kProcess); }), failure::kFileAccess);
    EXPECT_THAT(Names(), ElementsAre("file"));
}

TEST_F(Files, OnlyASaveForAPowerCutIsFlushedAndThatBeforeItIsInPlace) {
    SaveFile(Path("quick"), "x", Durability::kProcess);
    EXPECT_THAT(platform_.flushed, IsEmpty());
    SaveFile(Path("sure"), "x", Durability::kPower);
    EXPECT_THAT(platform_.flushed, ElementsAre((folder_ / "sure.new").string()));
}

TEST_F(Files, AppendingMakesTheFileAndHeadsOnlyAnEmptyOne) {
    AppendFile(Path("new\\log"), "a\n", "---\n");
    AppendFile(Path("new\\log"), "b\n", "---\n");
    AppendFile(Path("new\\log"), "c\n");
    EXPECT_EQ(ReadFile(Path("new\\log")), "---\na\nb\nc\n");
    SaveFile(Path("empty"), "", Durability::kProcess);
    AppendFile(Path("empty"), "a", "-");
    EXPECT_EQ(ReadFile(Path("empty")), "-a");
}

TEST_F(Files, ACopyIsKeptUnderATellingNameAndNeverOverAnother) {
    const auto path = Path("Settings.xml");
    EXPECT_EQ(KeepCopy(path, "unreadable"), "");
    SaveFile(path, "one", Durability::kProcess);
    const auto first = KeepCopy(path, "unreadable");
    EXPECT_EQ(first, (folder_ / "Settings (unreadable 2024-07-04).xml").string());
    EXPECT_EQ(KeepCopy(path, "unreadable"), first);  // the same content once
    SaveFile(path, "two", Durability::kProcess);
    EXPECT_EQ(KeepCopy(path, "unreadable"), (folder_ / "Settings (unreadable 2024-07-04 2).xml").string());
    EXPECT_EQ(ReadFile(first), "one");
    EXPECT_EQ(ReadFile(path), "two");
}

TEST_F(Files, ListsTheFilesOfAnExtensionInOrder) {
    for (const char* name : {"b.wav", "A.WAV", "c.txt", "wav", "_.wav"}) SaveFile(Path(name), "", Durability::kProcess);
    MakeFolders(Path("folder.wav"));
    EXPECT_THAT(ListFiles(folder_.string(), ".wav"), ElementsAre("_.wav", "A.WAV", "b.wav"));
    EXPECT_THAT(ListFiles(Path("none"), ".wav"), IsEmpty());
}

// While it lives, no file of the process can grow beyond a few thousand bytes: a disk that is full.
class FullDisk {
public:
    FullDisk() : before_handler_(signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit tight = {4096, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &tight);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        signal(SIGXFSZ, before_handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*before_handler_)(int);
    rlimit before_{};
};

TEST_F(Files, AFullDiskLeavesTheOldFileAndNothingBeside) {
    SaveFile(Path("file"), "old", Durability::kProcess);
    {
        const FullDisk full;
        EXPECT_EQ(NumberOf([&] { SaveFile(Path("file"), std::string(100'000, 'x'), Durability::kProcess); }),
                  failure::kDiskFull);
        EXPECT_EQ(NumberOf([&] { AppendFile(Path("log"), std::string(100'000, 'x')); }), failure::kDiskFull);
    }
    EXPECT_EQ(ReadFile(Path("file")), "old");
    EXPECT_THAT(Names(), ElementsAre("file", "log"));
}

TEST_F(Files, AKillAtAnyMomentLeavesTheOldFileOrTheNewOne) {
    const char* wanted = std::getenv("OMBREL_KILLS");
    const int kills = wanted ? std::atoi(wanted) : 30;
    const std::string contents[] = {std::string(200'000, 'a'), std::string(150'000, 'b')};
    const auto path = Path("file");
    SaveFile(path, contents[0], Durability::kProcess);

    std::mt19937 random(std::random_device{}());
    for (int kill_number = 0; kill_number < kills; ++kill_number) {
        const auto child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (int i = 1;; ++i) SaveFile(path, contents[i % 2], Durability::kProcess);
        }
        usleep(static_cast<useconds_t>(random() % 6000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const auto found = ReadFile(path);
        ASSERT_TRUE(found == contents[0] || found == contents[1]) << found.size() << " bytes";
    }
    SaveFile(path, "after", Durability::kProcess);
    EXPECT_EQ(ReadFile(path), "after");
    EXPECT_THAT(Names(), ElementsAre("file"));
}

}  // namespace
}  // namespace ombrel
