// An evening that does not end, and rules that feed themselves.
#include <fmt/format.h>
#include <malloc.h>
#include <pthread.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <functional>

#include "chat/LogHandler.h"
#include "tests/chat/ChatTest.h"

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kInstrumented = true;
#else
constexpr bool kInstrumented = false;
#endif

namespace ombrel::test {
namespace {

class LongChat : public ChatTest {
protected:
    void SetUp() override {
        ChatTest::SetUp();
        client.chat_listener = nullptr;  // which would keep every line
        client.calls.listener = nullptr;
    }

    // All lines reach the file, without a date.
    static void LogAllTo(std::string_view file) {
        host::List& classes = *options().ChatLogOptions;
        for (std::int32_t row = 0; row < classes.Count(); ++row) classes.SetData(4, row, true);
        options().ChatLogTimestamp->SetChecked(false);
        Vars::LogHandler->SetLogfile(file);
        Vars::LogHandler->SetFileLogging(true);
    }
};

// Bytes that the program has taken and not given back.
std::size_t Taken() { return mallinfo2().uordblks; }

TEST_F(LongChat, AHundredThousandLinesAreLoggedInOrderAndLeaveNothingBehind) {
    if (!std::getenv("OMBREL_LONG")) GTEST_SKIP() << "waits for OMBREL_LONG=1: it takes long";
    LogAllTo("long");
    CustomRule("*number 7*", "M", "All", "Red", "[]Sevens are lucky.");
    FilterWord("darn", "Whole", "Replace");
    ColorRule("Your Melee Combat", "1", "Yellow");
    OwnLinesGoTo({0});

    constexpr int kLines = 100'000;
    constexpr std::array<std::int32_t, 5> kTypes = {2, 22, 7, 0, 19};
    std::string expected;
    expected.reserve(kLines * std::size_t{50});
    std::size_t taken = 0;
    for (int i = 0; i < kLines; ++i) {
        const std::string text = fmt::format("darn, number {} of many", i);
        Shown(text, kTypes[static_cast<std::size_t>(i) % kTypes.size()]);
        if (text.starts_with("darn, number 7")) expected += "Sevens are lucky.\r\n";
        expected += fmt::format("####, number {} of many\r\n", i);
        if (i % 50 == 49) Advance(1s);
        if (i == kLines / 10) taken = Taken();
    }
    Advance(1s);
    // The sanitizer's own allocator does not count this way.
    if (!kInstrumented) {
        EXPECT_LT(Taken(), taken + 100'000);
    }
    EXPECT_TRUE(documents.Read("Asheron's Call/Logs/long.txt") == expected) << "lines are lost, or out of order";
}

// How much stack a procedure takes, by the bytes that it leaves changed in a stack of its own.
std::size_t StackOf(const std::function<void()>& run) {
    constexpr std::size_t kSize = 8 << 20;
    std::vector<std::byte> stack(kSize, std::byte{0xA5});
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstack(&attributes, stack.data(), stack.size());
    pthread_t thread;
    const auto start = [](void* argument) -> void* {
        (*static_cast<const std::function<void()>*>(argument))();
        return nullptr;
    };
    EXPECT_EQ(pthread_create(&thread, &attributes, start, const_cast<std::function<void()>*>(&run)), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
    const auto touched = std::ranges::find_if(stack, [](std::byte byte) { return byte != std::byte{0xA5}; });
    return static_cast<std::size_t>(stack.end() - touched);
}

TEST_F(LongChat, ARuleThatFeedsItselfStaysFarFromTheEndOfTheStack) {
    if (kInstrumented) GTEST_SKIP() << "waits for a build without sanitizers, whose frames are many times as large";
    options().ChatLogEnable->SetChecked(true);
    LogAllTo("deep");
    const auto sixty_four = [] {
        volatile char buffer[64 << 10];
        buffer[0] = 1;
        EXPECT_EQ(buffer[0], 1);
    };
    ASSERT_THAT(StackOf(sixty_four), AllOf(testing::Gt(64U << 10), testing::Lt(80U << 10))) << "measures it";

    const std::string line = "Again and again and again.";
    const std::size_t once = StackOf([&] { Shown(line, 2); });
    CustomRule("*Again*", "M", "All", "Red", "[2]" + line);
    const std::size_t deep = StackOf([&] { Shown(line, 2); });
    EXPECT_THAT(TakeReports(), ElementsAre(HasSubstr("'IncomingText' of class 'ChatTextHandler'")));
    RecordProperty("one pass", static_cast<int>(once));
    RecordProperty("24 passes", static_cast<int>(deep));
    fmt::print("stack of one pass {} bytes, of 24 within one another {}\n", once, deep);
    EXPECT_LT(deep, std::size_t{256} << 10) << "a quarter of the client's stack";

    Alias("ab", "cd ab");
    Alias("/x", "/m y");
    Alias("/m", "/m /m");
    const std::size_t typed = StackOf([&] { Passes("/m /x ab"); });
    EXPECT_LT(typed, std::size_t{256} << 10);
    TakeReports();
}

}  // namespace
}  // namespace ombrel::test
