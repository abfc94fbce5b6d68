// The delete-invisible sweep on hand-made occurrences, for what the stand-in host cannot
// make happen: visibility reads that fail.
#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <sstream>

#include "dialogs/main/frmDeleteInvisible.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "ui/headless/HeadlessPlatform.h"

namespace {

class FakeOccurrences;

// Each read of Visible takes the next scripted answer; nullopt fails the read.
class FakeOccurrence : public host::ComponentOccurrence {
public:
    FakeOccurrence(std::string name, std::deque<std::optional<bool>> reads);
    mutable std::deque<std::optional<bool>> reads;  // the last answer repeats
    std::shared_ptr<FakeOccurrences> children;
    std::vector<std::string>* deletions = nullptr;

    std::int32_t Type() const override { return host::kComponentOccurrenceObject; }
    std::string Name() const override { return name_; }
    void SetName(const std::string&) override {}
    bool Visible() const override {
        auto answer = reads.front();
        if (reads.size() > 1) reads.pop_front();
        if (!answer) throw support::Error(support::errors::kFail, "visibility unavailable");
        return *answer;
    }
    void SetVisible(bool) override {}
    bool Grounded() const override { return false; }
    void SetGrounded(bool) override {}
    host::Matrix Transformation() const override { return {}; }
    std::shared_ptr<host::ComponentDefinition> Definition() override { return nullptr; }
    std::shared_ptr<host::ComponentOccurrences> SubOccurrences() override;
    void Delete() override { deletions->push_back(name_); }
    void Replace(const std::string&, bool) override {}

private:
    std::string name_;
};

class FakeOccurrences : public host::ComponentOccurrences {
public:
    std::vector<std::shared_ptr<FakeOccurrence>> items;
    std::int32_t Count() const override { return static_cast<std::int32_t>(items.size()); }
    std::shared_ptr<host::ComponentOccurrence> Item(std::int32_t index) override {
        return items.at(index - 1);
    }
    std::shared_ptr<host::ComponentOccurrence> Add(const std::string&, const host::Matrix&) override {
        return nullptr;
    }
};

FakeOccurrence::FakeOccurrence(std::string name, std::deque<std::optional<bool>> reads)
    : reads(std::move(reads)), children(std::make_shared<FakeOccurrences>()), name_(std::move(name)) {}

std::shared_ptr<host::ComponentOccurrences> FakeOccurrence::SubOccurrences() {
    return children;
}

class SweepTest : public ::testing::Test {
protected:
    std::ostringstream out;
    ui::headless::Transcript transcript{out};
    ui::headless::HeadlessPlatform platform{transcript};
    FakeOccurrences top;
    std::vector<std::string> deleted;

    FakeOccurrence& Add(FakeOccurrences& parent, std::string name, std::deque<std::optional<bool>> reads) {
        parent.items.push_back(std::make_shared<FakeOccurrence>(std::move(name), std::move(reads)));
        parent.items.back()->deletions = &deleted;
        return *parent.items.back();
    }
};

TEST_F(SweepTest, AFailedReadIsRetriedOnce) {
    Add(top, "Hidden", {std::nullopt, false});
    Add(top, "Shown", {std::nullopt, true});
    EXPECT_FALSE(dialogs::SweepInvisible(top, true, platform));
    EXPECT_EQ(deleted, std::vector<std::string>{"Hidden"});
}

TEST_F(SweepTest, TwoFailedReadsTakeThePreviousOccurrencesAnswer) {
    // Swept last to first: Unreadable follows Shown, so it counts as visible and stays.
    Add(top, "Unreadable", {std::nullopt});
    Add(top, "Shown", {true});
    EXPECT_FALSE(dialogs::SweepInvisible(top, true, platform));
    EXPECT_TRUE(deleted.empty());

    // The first occurrence of a collection has no previous answer: it counts as invisible.
    FakeOccurrences alone;
    Add(alone, "Unreadable", {std::nullopt});
    EXPECT_TRUE(dialogs::SweepInvisible(alone, true, platform));
    EXPECT_EQ(deleted, std::vector<std::string>{"Unreadable"});
}

TEST_F(SweepTest, AnInvisibleSubAssemblyStaysWhileItHoldsAVisibleComponent) {
    auto& sub = Add(top, "Sub", {false});
    Add(*sub.children, "Bolt", {false});
    Add(*sub.children, "Plate", {true});
    auto& empty = Add(top, "Empty", {false});
    Add(*empty.children, "Pin", {false});
    EXPECT_TRUE(dialogs::SweepInvisible(top, true, platform));
    EXPECT_EQ(deleted, (std::vector<std::string>{"Pin", "Empty", "Bolt"}));
}

}  // namespace
