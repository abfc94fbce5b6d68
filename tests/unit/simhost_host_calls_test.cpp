#include <algorithm>

#include "host/Component.h"
#include "host/Document.h"
#include "simhost/HostCalls.h"
#include "simhost_fixture.h"

namespace simhost_test {
namespace {

using HostCallsTest = SimHostTest;
using simhost::HostCalls;

std::uint64_t CountOf(const std::string& member) {
    auto counts = HostCalls::Counts();
    auto it = std::find_if(counts.begin(), counts.end(), [&](const auto& c) { return c.first == member; });
    return it == counts.end() ? 0 : it->second;
}

TEST_F(HostCallsTest, OnlyTheOutermostCallOfAMemberCounts) {
    auto housing = host.Open("C:\\Work\\Housing.iam");
    HostCalls::Start();
    auto list = housing->ComponentDefinition()->Occurrences();
    for (int i = 1; i <= list->Count(); ++i) list->Item(i)->Name();
    // Replace loads the new file and renames the occurrence inside the stand-in: one call.
    list->Item(3)->Replace("C:\\Work\\Input Shaft.ipt", false);
    HostCalls::Stop();

    EXPECT_EQ(CountOf("Document.ComponentDefinition"), 1u);
    EXPECT_EQ(CountOf("ComponentOccurrences.Count"), 7u);  // six occurrences, one test past the end
    EXPECT_EQ(CountOf("ComponentOccurrences.Item"), 7u);
    EXPECT_EQ(CountOf("ComponentOccurrence.Name"), 6u);
    EXPECT_EQ(CountOf("ComponentOccurrence.Replace"), 1u);
    EXPECT_EQ(CountOf("Documents.Open"), 0u);
    EXPECT_EQ(HostCalls::Total(), 1u + 1 + 7 + 7 + 6 + 1);
}

TEST_F(HostCallsTest, NothingCountsWhenStoppedOrUncountedAndStartZeroes) {
    auto housing = host.Open("C:\\Work\\Housing.iam");
    HostCalls::Start();
    housing->FullFileName();
    {
        HostCalls::Uncounted session;
        housing->FullFileName();
    }
    EXPECT_EQ(CountOf("Document.FullFileName"), 1u);
    HostCalls::Stop();
    housing->FullFileName();
    EXPECT_EQ(CountOf("Document.FullFileName"), 1u);
    HostCalls::Start();
    EXPECT_EQ(HostCalls::Total(), 0u);
    HostCalls::Stop();
}

}  // namespace
}  // namespace simhost_test
