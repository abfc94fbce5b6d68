#include <nlohmann/json.hpp>

#include "host/Application.h"
#include "host/Codes.h"
#include "host/Commands.h"
#include "host/Component.h"
#include "host/Document.h"
#include "host/Properties.h"
#include "host/Styles.h"
#include "simhost_fixture.h"

namespace simhost_test {
namespace {

using ApplicationTest = SimHostTest;
namespace errors = support::errors;

TEST_F(ApplicationTest, BarsButtonsAndIcons) {
    auto site = host.Site();
    auto bars = site->Application()->UserInterfaceManager()->CommandBars();
    auto button = site->CreateButtonDefinition("TarnwellCmd1", host::kFileOperationsCmdType, "Tarnwell",
                                               "Tarnwell", "Tarnwell", true);
    EXPECT_TRUE(button->HasIcon());
    bars->Item("AMxAssemblyPanelCmdBar")->Controls()->Add(host::kBarControlButton, button);
    bars->Add("Tarnwell");
    EXPECT_EQ(ErrorOf([&] { bars->Item("NoSuchBar"); }).Number(), errors::kInvalidArg);
    EXPECT_EQ(ErrorOf([&] { bars->Add("Tarnwell"); }).Number(), errors::kInvalidArg);
    EXPECT_EQ(host.DescribeBars(),
              "DLxDrawingAnnotationPanelCmdBar: DLxGeneralDimensionCmd, DLxBalloonCmd, DLxTextCmd\n"
              "DLxDrawingViewsPanelCmdBar: DLxBaseViewCmd, DLxProjectedViewCmd, DLxSectionViewCmd\n"
              "AMxAssemblyPanelCmdBar: AMxPlaceComponentCmd, AMxCreateComponentCmd, AMxReplaceComponentCmd, "
              "TarnwellCmd1\n"
              "AMxWeldmentCmdBar: AMxWeldPreparationCmd, AMxWeldBeadCmd\n"
              "PMxPartFeatureCmdBar: PMxExtrudeCmd, PMxRevolveCmd, PMxHoleCmd\n"
              "MBxSheetMetalFeatureCmdBar: MBxFaceCmd, MBxFlangeCmd\n"
              "Tarnwell:\n");
    int clicks = 0;
    auto subscription = button->OnExecute().Subscribe([&] { ++clicks; });
    host.ClickButton("TarnwellCmd1");
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(ErrorOf([&] { host.ClickButton("TarnwellCmd2"); }).Number(), errors::kInvalidArg);

    int menus = 0;
    auto menu = site->Application()->CommandManager()->UserInputEvents()->OnContextMenu().Subscribe(
        [&](std::int32_t, host::ObjectPtr, std::shared_ptr<host::CommandBar> bar) {
            menus += bar != nullptr;
        });
    host.ContextMenu();
    EXPECT_EQ(menus, 1);

    host.SetRefuseIcons(true);
    auto e = ErrorOf([&] { site->CreateButtonDefinition("TarnwellCmd2", 4, "PartProps", "", "", true); });
    EXPECT_EQ(e.Number(), errors::kUnexpected);
    EXPECT_FALSE(site->CreateButtonDefinition("TarnwellCmd2", 4, "PartProps", "", "", false)->HasIcon());
}

TEST_F(ApplicationTest, PicksGoToTheRunningInteraction) {
    host.Open("C:\\Work\\Gearbox.iam");
    auto commands = host.Application()->CommandManager();
    EXPECT_EQ(ErrorOf([&] { host.Pick({"Housing:1"}); }).Description(),
              "Nothing can be picked: no interaction is running");

    auto first = commands->CreateInteractionEvents();
    int firstEnded = 0;
    auto c1 = first->OnTerminate().Subscribe([&] { ++firstEnded; });
    first->SetSelectionEnabled(true);
    first->SelectEvents()->AddSelectionFilter(host::kAssemblyLeafOccurrenceFilter);
    first->Start();
    host::ObjectList got;
    auto c2 =
        first->SelectEvents()->OnSelect().Subscribe([&](const host::ObjectList& picked) { got = picked; });
    host.Pick({"Shaft Assembly:1/Spur Gear:1", "Housing:1"});
    ASSERT_EQ(got.size(), 2u);
    EXPECT_EQ(got[0],
              host.FindOccurrence("Shaft Assembly:1/Spur Gear:1"));  // the same object as any other route
    EXPECT_EQ(first->SelectEvents()->SelectedEntities(), got);
    EXPECT_EQ(ErrorOf([&] { host.Pick({"Housing:1/Nothing:9"}); }).Number(), errors::kFail);

    // Starting another interaction ends the first, which hears of it.
    auto second = commands->CreateInteractionEvents();
    second->SelectEvents()->AddSelectionFilter(host::kAssemblyOccurrenceFilter);
    second->Start();
    EXPECT_EQ(firstEnded, 1);
    EXPECT_NE(ErrorOf([&] { host.Pick({"Housing:1"}); }).Description().find("does not select occurrences"),
              std::string::npos);  // selection was never enabled
    int secondEnded = 0;
    auto c3 = second->OnTerminate().Subscribe([&] { ++secondEnded; });
    host.Escape();
    EXPECT_EQ(secondEnded, 1);
    EXPECT_FALSE(host.InteractionRunning());
    first->Start();
    first->Stop();  // stopping is quiet
    EXPECT_EQ(firstEnded, 1);
    EXPECT_FALSE(host.InteractionRunning());
    EXPECT_EQ(host.InteractionsCreated(), 2);
}

TEST_F(ApplicationTest, ActiveEditObjectTellsWhatIsBeingEdited) {
    auto app = host.Application();
    EXPECT_EQ(app->ActiveEditObject(), nullptr);
    auto top = host.Open("C:\\Work\\Gearbox.iam");
    EXPECT_EQ(app->ActiveEditObject(), top);
    EXPECT_EQ(app->ActiveEditObject()->Type(), host::kAssemblyDocumentObjectType);
    host.SetEditMode(simhost::EditMode::Sketch);
    EXPECT_EQ(app->ActiveEditObject()->Type(), host::kPlanarSketchObject);
    host.SetEditMode(simhost::EditMode::InPlace, "Housing:1");
    EXPECT_NE(app->ActiveEditObject()->Type(), host::kAssemblyDocumentObjectType);
    EXPECT_EQ(ErrorOf([&] { host.SetEditMode(simhost::EditMode::InPlace, "Nope:1"); }).Number(),
              errors::kFail);
    host.Open("C:\\Work\\Gearbox.iam");  // the document already in front: the edit goes on
    EXPECT_NE(app->ActiveEditObject()->Type(), host::kAssemblyDocumentObjectType);
    auto part = host.Open("C:\\Work\\Spur Gear.ipt");  // showing another document ends the edit
    EXPECT_EQ(app->ActiveEditObject(), part);
    host.Activate("C:\\Work\\Gearbox.iam");
    EXPECT_EQ(app->ActiveDocument(), top);
}

TEST_F(ApplicationTest, TheCameraStartsInTheSavedViewAndTheActiveDocumentSavesItsView) {
    auto gear = host.Open("C:\\Work\\Spur Gear.ipt");
    EXPECT_EQ(gear->Thumbnail(), "Iso Top Right");
    auto camera = host.Application()->ActiveView()->Camera();
    EXPECT_EQ(camera->ViewOrientationType(), host::kIsoTopRightViewOrientation);
    camera->SetViewOrientationType(host::kTopViewOrientation);
    camera->Apply();
    EXPECT_EQ(host.Application()->ActiveView()->Camera()->ViewOrientationType(), host::kTopViewOrientation);
    gear->SetDirty(true);
    gear->Save();
    EXPECT_EQ(gear->Thumbnail(), "Top");
    EXPECT_EQ(nlohmann::json::parse(ReadFile("Work/Spur Gear.ipt"))["thumbnail"], host::kTopViewOrientation);
    // Saving a document that is not shown keeps its thumbnail.
    auto bolt = host.Open("C:\\Work\\Hex Bolt M8x20.ipt", false);
    bolt->SetDirty(true);
    bolt->Save();
    EXPECT_EQ(bolt->Thumbnail(), "Front");
    EXPECT_EQ(ErrorOf([&] { camera->SetViewOrientationType(10763); }).Number(), errors::kInvalidArg);
    host.CloseAll();
    EXPECT_EQ(host.Application()->ActiveView(), nullptr);
}

TEST_F(ApplicationTest, StatusBarLocationsAndVersion) {
    auto app = host.Application();
    app->SetStatusBarText("Setting to: Bracket:1");
    EXPECT_EQ(host.StatusBar(), "Setting to: Bracket:1");
    EXPECT_EQ(observer.lines.back(), "status Setting to: Bracket:1");
    EXPECT_EQ(app->Caption(), "Autodesk Inventor");
    EXPECT_EQ(app->SoftwareVersionMajor(), 9);
    host.SetSoftwareVersion(7);
    EXPECT_EQ(app->SoftwareVersionMajor(), 7);
    host.SetTemplatesPath("C:\\Templates");
    EXPECT_EQ(app->FileLocations()->TemplatesPath(), "C:\\Templates\\");
    EXPECT_EQ(app->FileLocations()->FindDrawing("c:\\work\\gearbox.iam", "iparts"), "C:\\Work\\Gearbox.idw");
    EXPECT_EQ(app->FileLocations()->FindDrawing("C:\\Work\\Spur Gear.ipt", "iparts"), "");
}

TEST_F(ApplicationTest, PropertiesAreTypedAndAddressedByPositionIdOrName) {
    auto bracket = host.Open("C:\\Work\\Motor Bracket.ipt");
    auto sets = bracket->PropertySets();
    ASSERT_EQ(sets->Count(), 5);
    EXPECT_EQ(sets->Item(1)->InternalName(), host::kSummaryInformationSet);
    EXPECT_EQ(sets->Item(3)->Name(), "Design Tracking Properties");
    EXPECT_EQ(sets->Item(5)->Name(), "eMatrix");
    EXPECT_EQ(sets->Item("{ba8abde7-f753-11d6-aa4d-0002551a5af4}")->Item("Library")->Value(),
              support::Variant("No"));
    auto design = sets->Item(host::kDesignTrackingSet);
    EXPECT_EQ(design->Item(2)->Name(), "Part Number");
    EXPECT_EQ(design->Item(10)->Value(), support::Variant("Steel, Mild"));
    EXPECT_EQ(design->Item(14)->PropId(), 29);
    EXPECT_EQ(design->ItemByPropId(29)->Name(), "Description");
    EXPECT_EQ(design->Item(15)->Name(), "Vendor");
    EXPECT_EQ(design->Item(21)->Value(), support::Variant(support::Currency{385000}));

    auto cost = design->Item(21);
    auto e = ErrorOf([&] { cost->SetValue("abc"); });
    EXPECT_EQ(e.Number(), errors::kTypeMismatch);
    cost->SetValue(support::Currency{125000});
    EXPECT_EQ(cost->Value(), support::Variant(support::Currency{125000}));
    EXPECT_EQ(ErrorOf([&] { design->Item(2)->SetValue(12.5); }).Number(), errors::kTypeMismatch);
    design->Item(2)->SetValue("");  // an emptied text is no longer stored
    EXPECT_EQ(ErrorOf([&] { design->Item(10)->SetValue("Granite"); }).Number(), errors::kInvalidArg);
    EXPECT_EQ(ErrorOf([&] { design->Add("x", "Extra"); }).Number(), errors::kFail);

    auto user = sets->Item(4);
    EXPECT_EQ(user->Count(), 4);
    EXPECT_EQ(user->Item(1)->Name(), "Finish");
    user->Add(std::int32_t{3}, "Revision Count");
    EXPECT_EQ(ErrorOf([&] { user->Add("x", "Finish"); }).Number(), errors::kInvalidArg);
    user->Item("Heat Treatment")->Delete();
    auto custom = sets->Add("Costing", "");
    custom->Add(support::Currency{10000}, "Setup");
    EXPECT_TRUE(sets->PropertySetExists("Costing"));
    EXPECT_EQ(ErrorOf([&] { sets->Item(1)->Delete(); }).Number(), errors::kFail);
    bracket->Save();
    auto file = nlohmann::json::parse(ReadFile("Work/Motor Bracket.ipt"));
    EXPECT_EQ(file["properties"]["Design Tracking Properties"]["Cost"]["currency"], 12.5);
    EXPECT_FALSE(file["properties"]["Design Tracking Properties"].contains("Part Number"));
    EXPECT_EQ(file["properties"]["User Defined Properties"],
              (nlohmann::json{{"Finish", "Powder coat RAL 2004"},
                              {"Weld Inspection", true},
                              {"Batch Size", 25},
                              {"Revision Count", 3}}));
    EXPECT_EQ(file["customPropertySets"][1]["name"], "Costing");
    EXPECT_EQ(file["customPropertySets"][1]["properties"]["Setup"]["currency"], 1.0);
}

// Look-ups by name and identifier stay right however the list changes: a property removed
// and another added (the same length), identifiers taken after the largest, an undo.
TEST_F(ApplicationTest, PropertyLookUpsFollowEveryChangeOfTheList) {
    auto bracket = host.Open("C:\\Work\\Motor Bracket.ipt");
    auto user = bracket->PropertySets()->Item("Inventor User Defined Properties");
    std::int32_t finish = user->Item("Finish")->PropId();
    auto tx = host.Application()->TransactionManager()->StartTransaction(bracket, "Edit");
    user->Item("Finish")->Delete();
    auto added = user->Add("Anodised", "Coating");
    EXPECT_EQ(user->Count(), 4);
    EXPECT_EQ(ErrorOf([&] { user->Item("Finish"); }).Number(), errors::kInvalidArg);
    EXPECT_EQ(ErrorOf([&] { user->ItemByPropId(finish); }).Number(), errors::kInvalidArg);
    EXPECT_EQ(user->Item("Coating")->Value(), support::Variant("Anodised"));
    EXPECT_EQ(user->ItemByPropId(added->PropId())->Name(), "Coating");
    EXPECT_GT(user->Add(std::int32_t{1}, "Next")->PropId(), added->PropId());
    EXPECT_EQ(ErrorOf([&] { user->Add("x", "x", added->PropId()); }).Number(), errors::kInvalidArg);

    auto design = bracket->PropertySets()->Item(host::kDesignTrackingSet);
    design->ItemByPropId(29)->SetValue("");  // Description: no longer stored
    design->Item("Vendor")->SetValue("Acme");
    EXPECT_EQ(design->ItemByPropId(29)->Value(), support::Variant(""));
    EXPECT_EQ(design->Item("Vendor")->Value(), support::Variant("Acme"));
    tx->End();
    host.Undo();
    EXPECT_EQ(user->Item("Finish")->PropId(), finish);
    EXPECT_EQ(ErrorOf([&] { user->Item("Coating"); }).Number(), errors::kInvalidArg);
}

TEST_F(ApplicationTest, AttributesPersistInTheModel) {
    auto gear = host.Open("C:\\Work\\Spur Gear.ipt");
    auto sets = gear->ComponentDefinition()->AttributeSets();
    EXPECT_FALSE(sets->NameIsUsed("Tarnwell"));
    EXPECT_EQ(ErrorOf([&] { sets->Item("Tarnwell"); }).Number(), errors::kInvalidArg);
    auto set = sets->Add("Tarnwell");
    set->Add("IDWFile", host::kStringType, "Spur Gear.idw");
    EXPECT_EQ(ErrorOf([&] { set->Add("IDWPath", host::kStringType, 3.0); }).Number(), errors::kTypeMismatch);
    set->Add("IDWPath", host::kStringType, "C:\\Work\\");
    set->Item("IDWFile")->SetValue("Gear.idw");
    gear->Save();
    EXPECT_EQ(nlohmann::json::parse(ReadFile("Work/Spur Gear.ipt"))["attributes"],
              (nlohmann::json{{"Tarnwell", {{"IDWFile", "Gear.idw"}, {"IDWPath", "C:\\Work\\"}}}}));
}

TEST_F(ApplicationTest, StylesInUseCannotBeDeleted) {
    auto plate = host.Open("C:\\Templates\\Standard.ipt");
    auto materials = plate->Materials();
    ASSERT_EQ(materials->Count(), 10);
    auto active = plate->ActiveMaterial();
    EXPECT_EQ(active->Name(), "Default");
    EXPECT_TRUE(active->InUse());
    EXPECT_EQ(active->StyleLocation(), host::kBothStyleLocation);
    EXPECT_EQ(plate->ActiveRenderStyle()->Name(), "Default");
    EXPECT_EQ(ErrorOf([&] { active->Delete(); }).Number(), errors::kFail);
    EXPECT_EQ(ErrorOf([&] { plate->RenderStyles()->Item("Default")->Delete(); }).Number(), errors::kFail);
    auto brass = materials->Item("Brass, Soft Yellow");
    EXPECT_DOUBLE_EQ(brass->Density(), 0.00847);  // the file keeps g/cm^3, the host speaks kg/cm^3
    EXPECT_EQ(brass->RenderStyle()->Name(), "Brass");
    EXPECT_FALSE(brass->InUse());
    brass->Delete();
    EXPECT_EQ(materials->Count(), 9);
    EXPECT_EQ(ErrorOf([&] { brass->Density(); }).Number(), errors::kFail);
    plate->RenderStyles()->Item("Green")->Delete();
    EXPECT_EQ(plate->RenderStyles()->Count(), 11);
    auto bracket = host.Open("C:\\Work\\Motor Bracket.ipt");
    EXPECT_EQ(bracket->ActiveRenderStyle()->Name(), "Safety Orange");  // the colour override
    EXPECT_TRUE(bracket->RenderStyles()->Item("Steel")->InUse());      // the material's own style
    auto top = host.Open("C:\\Work\\Gearbox.iam");
    EXPECT_EQ(ErrorOf([&] { top->Materials(); }).Number(), errors::kFail);
}

}  // namespace
}  // namespace simhost_test
