#include "adapters/sim/JsonMessage.h"

#include "core/failure.h"
#include "tests/support/Matchers.h"

namespace ombrel::sim {
namespace {

template <class Body>
std::int32_t NumberOf(Body body) {
    try {
        body();
    } catch (const Failure& failure) {
        return failure.number();
    }
    return 0;
}

TEST(JsonMessage, ReadsFieldsOfEveryShape) {
    const Json json = Json::parse(
        R"({"Type": 63408, "key": 4294967297, "effect": 1.5, "text": "You split it!", "count": "12", "success": true,
        "value": [64, 66, 15, 0, 0, 0, 0, 0], "properties": {"qwords": [{"key": 1}, {"key": 2}]}})");
    Calls calls;
    const JsonMessage message(json, calls);

    EXPECT_EQ(message.Type(), 63408);
    EXPECT_EQ(message.Long("KEY"), 1);  // the low 32 bits; names compare without case
    EXPECT_EQ(message.Double("effect"), 1.5);
    EXPECT_EQ(message.Text("Text"), "You split it!");
    EXPECT_EQ(message.Long("count"), 12);
    EXPECT_EQ(message.Long("success"), 1);
    EXPECT_EQ(message.Bytes("value"), (std::vector<std::uint8_t>{64, 66, 15, 0, 0, 0, 0, 0}));
    EXPECT_EQ(message.Struct("properties")->Struct("qwords")->Item(1)->Long("key"), 2);
}

TEST(JsonMessage, FailsWhereAFieldIsMissingOrOfAnotherKind) {
    const Json json = Json::parse(R"({"Type": 1, "text": "x", "list": [1, 300]})");
    Calls calls;
    const JsonMessage message(json, calls);

    EXPECT_EQ(NumberOf([&] { message.Long("nothing"); }), failure::kInvalidCall);
    EXPECT_EQ(NumberOf([&] { message.Long("list"); }), failure::kTypeMismatch);
    EXPECT_EQ(NumberOf([&] { message.Bytes("list"); }), failure::kTypeMismatch);
    EXPECT_EQ(NumberOf([&] { message.Struct("text"); }), failure::kTypeMismatch);
    EXPECT_EQ(NumberOf([&] { message.Item(0); }), failure::kTypeMismatch);
    EXPECT_EQ(NumberOf([&] { message.Struct("list")->Item(2); }), failure::kSubscript);
    EXPECT_EQ(NumberOf([&] { message.Struct("list")->Item(0)->Long("x"); }), failure::kInvalidCall);

    calls.Fail(*FindOperation("Message.Type"), 1, 57, "lost");
    EXPECT_EQ(NumberOf([&] { message.Type(); }), 57);
}

}  // namespace
}  // namespace ombrel::sim
