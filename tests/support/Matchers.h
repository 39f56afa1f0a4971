// GoogleTest, and the words that all tests speak in.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ombrel {

using testing::AllOf, testing::Not, testing::Pair;
using testing::Contains, testing::Each, testing::IsSupersetOf, testing::SizeIs;
using testing::ElementsAre, testing::ElementsAreArray, testing::IsEmpty, testing::UnorderedElementsAre;
using testing::EndsWith, testing::HasSubstr, testing::MatchesRegex, testing::StartsWith;

}  // namespace ombrel
