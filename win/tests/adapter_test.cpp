// The adapter over the stand-in's automation face: what crosses COM arrives as it left.
#include <gtest/gtest.h>

#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "host/Properties.h"
#include "host/Styles.h"
#include "tests/unit/simhost_fixture.h"
#include "win/adapter/HostAdapter.h"
#include "win/com/ComObject.h"
#include "win/com/Dispatch.h"
#include "win/com/DispatchObject.h"
#include "win/com/VariantConversion.h"
#include "win/hostface/HostFace.h"

namespace win::adapter {
namespace {

using support::Variant;
using test_support::ErrorOf;

// The stand-in with the sample workspace, and the add-in's view of it across COM.
class AdapterTest : public simhost_test::SimHostTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(SUCCEEDED(CoInitialize(nullptr)));
        SimHostTest::SetUp();
        face = hostface::SiteFace(host.Site());
        site = AdaptSite(face, kClientId);
        app = site->Application();
    }
    void TearDown() override {
        app.reset();
        site.reset();
        face.Reset();
        SimHostTest::TearDown();
        EXPECT_EQ(com::LiveObjectCount(), 0) << "a COM object was leaked";
        CoUninitialize();
    }
    // The face of the stand-in's documents, called as another client would.
    com::Dispatch FaceDocuments() {
        com::Dispatch application(
            DispatchOf(com::Dispatch(face).Invoke(kApplicationId, DISPATCH_PROPERTYGET)));
        return com::Dispatch(DispatchOf(application.Get("Documents")));
    }
    static com::ComPtr<IDispatch> DispatchOf(const Variant& value) {
        return static_cast<const com::ComObject&>(*value.ToObject()).Dispatch();
    }
    static constexpr DISPID kApplicationId = 0x03001401;
    static constexpr const char* kClientId = "{00000000-0000-0000-0000-000000000001}";

    com::ComPtr<IDispatch> face;
    std::shared_ptr<host::AddInSite> site;
    std::shared_ptr<host::Application> app;
};

TEST_F(AdapterTest, OptionalArgumentsLeftOutOrEmptyTakeTheHostsDefaults) {
    com::Dispatch documents = FaceDocuments();
    documents.Call("Open", {"C:\\Work\\Cover Plate.ipt"});  // OpenVisible left out: visible
    EXPECT_EQ(host.Application()->ActiveDocument()->FullFileName(), "C:\\Work\\Cover Plate.ipt");
    documents.Call("Open", {"C:\\Work\\Spur Gear.ipt", com::Argument::Missing()});
    EXPECT_EQ(host.Application()->ActiveDocument()->FullFileName(), "C:\\Work\\Spur Gear.ipt");
    // An Empty template and CreateVisible: the standard template, visible.
    documents.Call("Add", {host::kPartDocumentObject, Variant(), com::Argument::Missing()});
    EXPECT_EQ(host.Application()->ActiveDocument()->DocumentType(), host::kPartDocumentObject);
    EXPECT_EQ(host.Application()->ActiveDocument()->FullFileName(), "");

    // Through the adapter an invisible open stays invisible.
    app->Documents()->Open("C:\\Work\\Housing.iam", false);
    EXPECT_EQ(host.Application()->ActiveDocument()->FullFileName(), "");
    EXPECT_EQ(observer.lines.back(), "opened invisibly C:\\Work\\Housing.iam");
}

TEST_F(AdapterTest, TextOutsideAsciiCrossesBothWays) {
    auto adapted = app->Documents()->Open("C:\\Work\\Spur Gear.ipt");
    auto direct = host.Application()->ActiveDocument();
    const std::string title =
        "Zahnrad \xC3\x98"
        "40 \xE2\x80\x93 \xE6\xAD\xAF\xE8\xBB\x8A \xF0\x9F\x94\xA7";
    adapted->PropertySets()->Item(host::kSummaryInformationSet)->ItemByPropId(2)->SetValue(title);
    EXPECT_EQ(direct->PropertySets()->Item(host::kSummaryInformationSet)->ItemByPropId(2)->Value(),
              Variant(title));

    direct->SetDisplayName(
        "Gr\xC3\xB6\xC3\x9F"
        "e");
    EXPECT_EQ(adapted->DisplayName(),
              "Gr\xC3\xB6\xC3\x9F"
              "e");
}

TEST_F(AdapterTest, DatesAndCurrencyKeepTheirType) {
    auto adapted = app->Documents()->Open("C:\\Work\\Spur Gear.ipt");
    auto custom = adapted->PropertySets()->Item(host::kUserDefinedSet);
    const support::Date due{46000.75};       // an afternoon in 2025
    const support::Currency price{1234567};  // 123.4567
    custom->Add(Variant(due), "Due");
    custom->Add(Variant(price), "Price");

    auto direct = host.Application()->ActiveDocument()->PropertySets()->Item(host::kUserDefinedSet);
    EXPECT_EQ(direct->Item("Due")->Value(), Variant(due));
    EXPECT_EQ(direct->Item("Price")->Value(), Variant(price));
    EXPECT_EQ(custom->Item("Due")->Value(), Variant(due));
    EXPECT_EQ(custom->Item("Price")->Value(), Variant(price));
}

TEST_F(AdapterTest, HostErrorsKeepNumberAndTextWithOrWithoutExcepInfo) {
    auto direct = ErrorOf([&] { host.Application()->Documents()->Open("C:\\Work\\Nothing.ipt"); });
    auto adapted = ErrorOf([&] { app->Documents()->Open("C:\\Work\\Nothing.ipt"); });
    EXPECT_EQ(adapted.Number(), direct.Number());
    EXPECT_EQ(adapted.Description(), direct.Description());

    // A caller that gives no EXCEPINFO gets the number as an HRESULT of the control facility.
    com::Dispatch documents = FaceDocuments();
    com::ComVariant name(Variant("C:\\Work\\Nothing.ipt"));
    DISPPARAMS params{&name.Get(), nullptr, 1, 0};
    HRESULT hr = documents.Object()->Invoke(documents.IdOf("Open"), IID_NULL, 0, DISPATCH_METHOD, &params,
                                            nullptr, nullptr, nullptr);
    EXPECT_EQ(hr, static_cast<HRESULT>(0x800A0000 | direct.Number()));

    // What the host's object model lacks is the platform's "doesn't support this property".
    EXPECT_EQ(ErrorOf([&] { documents.Call("Print"); }).Number(), 438);
}

TEST_F(AdapterTest, OneHostObjectIsOneObjectToTheAddIn) {
    app->Documents()->Open("C:\\Work\\Gearbox.iam");
    auto active = app->ActiveDocument();
    EXPECT_EQ(app->ActiveDocument(), active);
    auto documents = app->Documents();
    for (std::int32_t i = 1; i <= documents->Count(); ++i)
        if (documents->Item(i)->FullFileName() == active->FullFileName())
            EXPECT_EQ(documents->Item(i), active);
    auto edited = app->ActiveEditObject();
    EXPECT_EQ(edited, active) << "the same object, whatever route reached it";
    EXPECT_EQ(edited->Type(), host::kAssemblyDocumentObjectType);
    auto occurrence = active->ComponentDefinition()->Occurrences()->Item(1);
    EXPECT_EQ(occurrence->Definition()->Document()->FullFileName(), host.Application()
                                                                        ->ActiveDocument()
                                                                        ->ComponentDefinition()
                                                                        ->Occurrences()
                                                                        ->Item(1)
                                                                        ->Definition()
                                                                        ->Document()
                                                                        ->FullFileName());
    EXPECT_EQ(occurrence->Transformation(), host.Application()
                                                ->ActiveDocument()
                                                ->ComponentDefinition()
                                                ->Occurrences()
                                                ->Item(1)
                                                ->Transformation());
}

TEST_F(AdapterTest, ColoursComeBackThroughBytesByReference) {
    auto part = app->Documents()->Open("C:\\Work\\Spur Gear.ipt");
    auto style = part->RenderStyles()->Add("Signal Red");
    style->SetDiffuseColor({200, 16, 255});
    style->SetOpacity(0.25);
    auto direct = host.Application()->ActiveDocument()->RenderStyles()->Item("Signal Red");
    EXPECT_EQ(direct->GetDiffuseColor(), (host::Rgb{200, 16, 255}));
    direct->SetSpecularColor({1, 2, 3});
    EXPECT_EQ(style->GetSpecularColor(), (host::Rgb{1, 2, 3}));
    EXPECT_EQ(style->Opacity(), 0.25);
    EXPECT_EQ(style->Name(), "Signal Red");
}

// A placement crosses as the host's Matrix, cell by cell, both ways.
TEST_F(AdapterTest, PlacementsCrossAsTheHostsMatrix) {
    auto top = app->Documents()->Open("C:\\Work\\Gearbox.iam");
    host::Matrix where = host::Matrix::Translation(1.5, -2, 30.25);
    where.cell[0][0] = 0;
    where.cell[0][1] = -1;
    where.cell[1][0] = 1;
    where.cell[1][1] = 0;
    auto placed = top->ComponentDefinition()->Occurrences()->Add("C:\\Work\\Cover Plate.ipt", where);
    EXPECT_EQ(placed->Transformation(), where);
    auto direct = host.Application()->ActiveDocument()->ComponentDefinition()->Occurrences();
    EXPECT_EQ(direct->Item(direct->Count())->Transformation(), where);
    EXPECT_EQ(placed->Name(), direct->Item(direct->Count())->Name());
}

// What the add-in asks a kind it cannot know beforehand: an object it only asks for its Type.
TEST_F(AdapterTest, AnObjectOfNoKnownKindStillSaysWhatItIs) {
    host.Open("C:\\Work\\Gearbox.iam");
    host.SetEditMode(simhost::EditMode::Sketch);
    auto edited = app->ActiveEditObject();
    ASSERT_NE(edited, nullptr);
    EXPECT_EQ(edited->Type(), host::kPlanarSketchObject);
    EXPECT_EQ(std::dynamic_pointer_cast<host::Document>(edited), nullptr);
    host.SetEditMode(simhost::EditMode::InPlace, "Shaft Assembly:1");
    EXPECT_EQ(app->ActiveEditObject()->Type(), host.Application()->ActiveEditObject()->Type());
}

// Units given by enum or as text reach the same host member; one undo reverts what a
// transaction made through the adapter.
TEST_F(AdapterTest, UnitsEitherWayAndTransactionsUndoAsOne) {
    auto top = app->Documents()->Open("C:\\Work\\Gearbox.iam");
    auto units = top->UnitsOfMeasure();
    auto directUnits = host.Application()->ActiveDocument()->UnitsOfMeasure();
    EXPECT_EQ(units->GetStringFromValue(2.5, host::kKilogramMassUnits),
              directUnits->GetStringFromValue(2.5, host::kKilogramMassUnits));
    EXPECT_EQ(units->GetStringFromValue(12.0, "mm^3"), directUnits->GetStringFromValue(12.0, "mm^3"));
    EXPECT_EQ(units->GetValueFromExpression("4.4 lbmass", host::kKilogramMassUnits),
              directUnits->GetValueFromExpression("4.4 lbmass", host::kKilogramMassUnits));

    auto transaction = app->TransactionManager()->StartTransaction(top, "Rename");
    top->SetDisplayName("GB-1000");
    top->ComponentDefinition()->Occurrences()->Item(1)->SetName("First:1");
    transaction->End();
    host.Undo();
    EXPECT_EQ(top->DisplayName(), "Gearbox.iam");
    EXPECT_NE(top->ComponentDefinition()->Occurrences()->Item(1)->Name(), "First:1");
}

}  // namespace
}  // namespace win::adapter
