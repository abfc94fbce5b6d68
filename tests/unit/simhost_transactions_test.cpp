#include <nlohmann/json.hpp>

#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "host/Properties.h"
#include "simhost_fixture.h"

namespace simhost_test {
namespace {

using TransactionsTest = SimHostTest;
namespace errors = support::errors;

// A browser rename touches several documents; one undo puts all of them back.
TEST_F(TransactionsTest, OneUndoRevertsAWholeTransaction) {
    auto top = host.Open("C:\\Work\\Gearbox.iam");
    auto tx = host.Application()->TransactionManager()->StartTransaction(top, "Browser Rename");
    top->SetDisplayName("GB-1000");
    auto gear = host.FindOccurrence("Shaft Assembly:1/Spur Gear:1");
    gear->SetName("Spur gear, module 2:1");
    top->ComponentDefinition()->Occurrences()->Item(5)->Delete();
    top->ComponentDefinition()->Occurrences()->Item(1)->Replace("C:\\Work\\Cover Plate.ipt", false);
    tx->End();
    EXPECT_EQ(top->DisplayName(), "GB-1000");
    EXPECT_EQ(top->ComponentDefinition()->Occurrences()->Count(), 4);

    host.Undo();
    EXPECT_EQ(top->DisplayName(), "Gearbox.iam");
    EXPECT_FALSE(top->Dirty());
    auto list = top->ComponentDefinition()->Occurrences();
    EXPECT_EQ(list->Count(), 5);
    EXPECT_EQ(list->Item(1)->Name(), "Housing:1");
    EXPECT_EQ(list->Item(1)->Definition()->Document()->FullFileName(), "C:\\Work\\Housing.iam");
    EXPECT_EQ(gear->Name(), "Spur Gear:1");  // the handle held across the undo still works
    EXPECT_FALSE(gear->Definition()->Document()->Dirty());
    EXPECT_EQ(host.FindOccurrence("Hex Bolt M8x20:2")->Visible(), false);
    EXPECT_EQ(ErrorOf([&] { host.Undo(); }).Description(), "Nothing to undo");
}

TEST_F(TransactionsTest, AbortRevertsAtOnceAndNestedTransactionsFoldIntoTheOuter) {
    auto top = host.Open("C:\\Work\\Gearbox.iam");
    auto manager = host.Application()->TransactionManager();
    auto title = top->PropertySets()->Item(1)->ItemByPropId(2);
    auto outer = manager->StartTransaction(top, "Outer");
    title->SetValue("Changed");
    auto inner = manager->StartTransaction(top, "Inner");
    top->SetDisabledCommandTypes(1);
    auto e = ErrorOf([&] { outer->End(); });
    EXPECT_EQ(e.Number(), errors::kFail);
    inner->Abort();
    EXPECT_EQ(top->DisabledCommandTypes(), 0);
    EXPECT_EQ(title->Value(), support::Variant("Changed"));
    auto second = manager->StartTransaction(top, "Inner 2");
    host.FindOccurrence("Housing:1")->SetName("Casing");
    second->End();
    outer->End();
    host.Undo();
    EXPECT_EQ(title->Value(), support::Variant("Gearbox GB-1000"));
    EXPECT_EQ(host.FindOccurrence("Housing:1")->Name(), "Housing:1");
    EXPECT_EQ(ErrorOf([&] { second->End(); }).Number(), errors::kFail);
}

// Undoing a replace brings back a document that had been dropped when nobody used it.
TEST_F(TransactionsTest, UndoReloadsDocumentsTheTransactionDropped) {
    auto housing = host.Open("C:\\Work\\Housing.iam");
    auto tx = host.Application()->TransactionManager()->StartTransaction(housing, "Swap");
    housing->ComponentDefinition()->Occurrences()->Item(2)->Replace("C:\\Work\\Spur Gear.ipt", true);
    tx->End();
    auto docs = host.Application()->Documents();
    auto loaded = [&](const std::string& name) {
        for (int i = 1; i <= docs->Count(); ++i)
            if (docs->Item(i)->FullFileName() == name) return true;
        return false;
    };
    EXPECT_FALSE(loaded("C:\\Work\\Cover Plate.ipt"));
    host.Undo();
    EXPECT_TRUE(loaded("C:\\Work\\Cover Plate.ipt"));
    EXPECT_FALSE(loaded("C:\\Work\\Spur Gear.ipt"));
    housing->SetDirty(true);
    housing->Save();
    EXPECT_EQ(nlohmann::json::parse(ReadFile("Work/Housing.iam"))["occurrences"][1]["file"],
              "C:\\Work\\Cover Plate.ipt");
}

}  // namespace
}  // namespace simhost_test
