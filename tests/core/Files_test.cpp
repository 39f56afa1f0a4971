#include "core/files.h"

#include <functional>

#include "core/failure.h"
#include "tests/core/ServicesTest.h"
#include "tests/support/Mishaps.h"

namespace ombrel {
namespace {

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
    std::vector<std::string> Names() const { return ListFiles(documents.path().string(), ""); }
};

TEST_F(Files, BackslashesAreSeparators) {
    EXPECT_EQ(NativePath("/a\\b\\c.xml"), std::filesystem::path("/a/b/c.xml"));
    SaveFile(Path("Settings\\One.xml"), "x", Durability::kProcess);
    EXPECT_TRUE(std::filesystem::exists(documents.path() / "Settings" / "One.xml"));
    SaveFile(Path("Caf\u00e9.txt"), "x", Durability::kProcess);
    EXPECT_TRUE(std::filesystem::exists(documents.path() / u8"Caf\u00e9.txt"));
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
    EXPECT_EQ(NumberOf([&] { ReadFile(documents.path().string()); }), failure::kFileAccess);
    EXPECT_EQ(NumberOf([&] { SaveFile(Path("file\\x"), "x", Durability::kProcess); }), failure::kPathNotFound);
    std::filesystem::create_directories(documents.path() / "taken" / "inside");
    EXPECT_EQ(NumberOf([&] { SaveFile(Path("taken"), "x", Durability::kProcess); }), failure::kFileAccess);
    EXPECT_THAT(Names(), ElementsAre("file"));
}

TEST_F(Files, OnlyASaveForAPowerCutIsFlushedAndThatBeforeItIsInPlace) {
    client.calls.Fail(*sim::FindOperation("Platform.FlushFile"), 9, 5, "");
    SaveFile(Path("file"), "quick", Durability::kProcess);
    EXPECT_EQ(NumberOf([&] { SaveFile(Path("file"), "sure", Durability::kPower); }), 5);
    EXPECT_EQ(ReadFile(Path("file")), "quick");
    client.calls.ClearFailures();
    SaveFile(Path("file"), "sure", Durability::kPower);
    EXPECT_EQ(ReadFile(Path("file")), "sure");
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
    EXPECT_EQ(first, (documents.path() / "Settings (unreadable 2024-07-04).xml").string());
    EXPECT_EQ(KeepCopy(path, "unreadable"), first);  // the same content once
    SaveFile(path, "two", Durability::kProcess);
    EXPECT_EQ(KeepCopy(path, "unreadable"), (documents.path() / "Settings (unreadable 2024-07-04 2).xml").string());
    EXPECT_EQ(ReadFile(first), "one");
    EXPECT_EQ(ReadFile(path), "two");
}

TEST_F(Files, ListsTheFilesOfAnExtensionInOrder) {
    for (const char* name : {"b.wav", "A.WAV", "c.txt", "wav", "_.wav"}) SaveFile(Path(name), "", Durability::kProcess);
    MakeFolders(Path("folder.wav"));
    EXPECT_THAT(ListFiles(documents.path().string(), ".wav"), ElementsAre("_.wav", "A.WAV", "b.wav"));
    EXPECT_THAT(ListFiles(Path("none"), ".wav"), IsEmpty());
}

TEST_F(Files, AFullDiskLeavesTheOldFileAndNothingBeside) {
    SaveFile(Path("file"), "old", Durability::kProcess);
    {
        const test::FullDisk full;
        EXPECT_EQ(NumberOf([&] { SaveFile(Path("file"), std::string(100'000, 'x'), Durability::kProcess); }),
                  failure::kDiskFull);
        EXPECT_EQ(NumberOf([&] { AppendFile(Path("log"), std::string(100'000, 'x')); }), failure::kDiskFull);
    }
    EXPECT_EQ(ReadFile(Path("file")), "old");
    EXPECT_THAT(Names(), ElementsAre("file", "log"));
}

TEST_F(Files, AKillAtAnyMomentLeavesTheOldFileOrTheNewOne) {
    const std::string contents[] = {std::string(200'000, 'a'), std::string(150'000, 'b')};
    const auto path = Path("file");
    SaveFile(path, contents[0], Durability::kProcess);
    for (int kill = 0; kill < test::Kills(); ++kill) {
        test::KillWhileDoing([&](int i) { SaveFile(path, contents[i % 2], Durability::kProcess); });
        const auto found = ReadFile(path);
        ASSERT_TRUE(found == contents[0] || found == contents[1]) << found.size() << " bytes";
    }
    SaveFile(path, "after", Durability::kProcess);
    EXPECT_EQ(ReadFile(path), "after");
    EXPECT_THAT(Names(), ElementsAre("file"));
}

}  // namespace
}  // namespace ombrel
