// What most tests say: the usual matchers and spans of time, without their long names.
#pragma once

#include <gmock/gmock.h>

#include <chrono>

namespace quillon::test {

using namespace std::chrono_literals;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;
using testing::UnorderedElementsAre;

} // namespace quillon::test
