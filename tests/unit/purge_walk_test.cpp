// The purge walk where transcripts cannot reach: a chain of assemblies deeper than any
// call stack would take, and the sink's stop seen before the next document starts.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/Application.h"
#include "host/Document.h"
#include "purge/walk/PurgeWalk.h"
#include "simhost_fixture.h"

namespace {

class RecordingSink : public purge::PurgeSink {
public:
    std::vector<std::string> lines;
    std::size_t stopAfter = 0;  // 0: never
    void AddLine(const std::string& line) override { lines.push_back(line); }
    void Yield() override {}
    bool StopRequested() const override { return stopAfter && lines.size() >= stopAfter; }
};

class PurgeWalkTest : public simhost_test::SimHostTest {
protected:
    RecordingSink sink;
    purge::PurgeWalk Walk() {
        return purge::PurgeWalk({*host.Application(), host.FileSystem(), sink, false});
    }

    // Deep/L0.iam holds L1.iam, which holds L2.iam ... down to one part.
    void WriteChain(int depth) {
        for (int level = 0; level < depth; ++level)
            WriteFile("Deep/L" + std::to_string(level) + ".iam",
                      R"({"type": "assembly", "occurrences": [{"file": "C:\\Deep\\L)" +
                          std::to_string(level + 1) + R"(.iam"}, {"file": "C:\\Deep\\Leaf.ipt"}]})");
        WriteFile("Deep/L" + std::to_string(depth) + ".iam",
                  R"({"type": "assembly", "occurrences": [{"file": "C:\\Deep\\Leaf.ipt"}]})");
        WriteFile("Deep/Leaf.ipt", R"({"type": "part"})");
    }
};

TEST_F(PurgeWalkTest, AChainDeeperThanTheCallStackIsListedOnceInPreOrder) {
    constexpr int kDepth = 10000;
    WriteChain(kDepth);
    Walk().PurgeTree(host.Open("C:\\Deep\\L0.iam"));
    ASSERT_EQ(sink.lines.size(), static_cast<std::size_t>(kDepth + 2));  // every level and the leaf, once
    EXPECT_EQ(sink.lines[0], "Purged:\tC:\\Deep\\L0.iam");
    EXPECT_EQ(sink.lines[1], "Purged:\tC:\\Deep\\L1.iam");
    // The leaf sits under every level but is met first at the bottom, after the last level.
    EXPECT_EQ(sink.lines[kDepth], "Purged:\tC:\\Deep\\L" + std::to_string(kDepth) + ".iam");
    EXPECT_EQ(sink.lines[kDepth + 1], "Purged:\tC:\\Deep\\Leaf.ipt");
}

TEST_F(PurgeWalkTest, StopEndsTheWalkBeforeTheNextDocument) {
    WriteChain(5);
    sink.stopAfter = 2;
    Walk().PurgeTree(host.Open("C:\\Deep\\L0.iam"));
    EXPECT_EQ(sink.lines,
              (std::vector<std::string>{"Purged:\tC:\\Deep\\L0.iam", "Purged:\tC:\\Deep\\L1.iam"}));
}

}  // namespace
