#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <stdexcept>

#include "win/adapter/HostMembers.h"

namespace win::adapter {
namespace {

// docs/host-calls.md is the adapter's list as it stands; after a change of the list, write
// the page anew with build-windows/wine build-windows/tarnwell-host-calls.exe > docs/host-calls.md.
TEST(HostCalls, ThePageShowsTheAdaptersOwnList) {
    std::ifstream in(std::string(TARNWELL_SOURCE_DIR) + "/docs/host-calls.md", std::ios::binary);
    ASSERT_TRUE(in) << "docs/host-calls.md is missing";
    std::stringstream page;
    page << in.rdbuf();
    EXPECT_EQ(page.str(), HostMembersMarkdown());
}

TEST(HostCalls, TheAdapterCallsOnlyListedMembers) {
    EXPECT_NO_THROW(RequireListed("Document", "SaveAs"));
    EXPECT_NO_THROW(RequireListed("RenderStyle", "Opacity"));  // listed with its DISPID
    EXPECT_THROW(RequireListed("Document", "PrintOut"), std::logic_error);
    EXPECT_THROW(RequireListed("Documents", "SaveAs"), std::logic_error) << "a member of another object";
}

}  // namespace
}  // namespace win::adapter
