// Every member the adapter lists is one the stand-in's face answers, by the same name and,
// where the list gives one, the same DISPID: the sessions call only some of them, and a
// name that differs between the two would otherwise wait for the first session that calls it.
#include <gtest/gtest.h>

#include <map>

#include "host/Codes.h"
#include "tests/unit/simhost_fixture.h"
#include "win/adapter/HostMembers.h"
#include "win/com/ComObject.h"
#include "win/com/Dispatch.h"
#include "win/com/DispatchObject.h"
#include "win/hostface/HostFace.h"

namespace win::adapter {
namespace {

using support::Variant;

class FaceAnswersListTest : public simhost_test::SimHostTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(SUCCEEDED(CoInitialize(nullptr)));
        SimHostTest::SetUp();
    }
    void TearDown() override {
        samples.clear();
        SimHostTest::TearDown();
        EXPECT_EQ(com::LiveObjectCount(), 0);
        CoUninitialize();
    }
    static com::Dispatch Object(const Variant& value) {
        return com::Dispatch(static_cast<const com::ComObject&>(*value.ToObject()).Dispatch());
    }
    // One object of each kind, reached through the face as the adapter reaches it.
    void Reach() {
        auto& s = samples;
        s.emplace("ApplicationAddInSite", com::Dispatch(hostface::SiteFace(host.Site())));
        s.emplace("Application",
                  Object(s.at("ApplicationAddInSite").Invoke(0x03001401, DISPATCH_PROPERTYGET)));
        auto app = s.at("Application");
        auto reach = [&](const char* kind, const com::Dispatch& from, const char* member,
                         com::Arguments args = {}) { s.emplace(kind, Object(from.Call(member, args))); };
        reach("SoftwareVersion", app, "SoftwareVersion");
        reach("CommandManager", app, "CommandManager");
        reach("TransactionManager", app, "TransactionManager");
        reach("FileManager", app, "FileManager");
        reach("FileLocations", app, "FileLocations");
        reach("FileOptions", app, "FileOptions");
        reach("TransientGeometry", app, "TransientGeometry");
        reach("Matrix", s.at("TransientGeometry"), "CreateMatrix");
        reach("Documents", app, "Documents");
        reach("UserInterfaceManager", app, "UserInterfaceManager");
        reach("CommandBars", s.at("UserInterfaceManager"), "CommandBars");
        reach("CommandBar", s.at("CommandBars"), "Item", {"AMxAssemblyPanelCmdBar"});
        reach("CommandBarControls", s.at("CommandBar"), "Controls");
        reach("CommandBarControl", s.at("CommandBarControls"), "Item", {1});
        reach("ButtonDefinitionHandler", s.at("ApplicationAddInSite"), "CreateButtonDefinition",
              {"TarnwellCmd1", 4, "Tarnwell", "", ""});
        reach("ButtonDefinition", s.at("ButtonDefinitionHandler"), "ControlDefinition");
        reach("UserInputEvents", s.at("CommandManager"), "UserInputEvents");
        reach("InteractionEvents", s.at("CommandManager"), "CreateInteractionEvents");
        reach("SelectEvents", s.at("InteractionEvents"), "SelectEvents");
        reach("ObjectsEnumerator", s.at("SelectEvents"), "SelectedEntities");

        reach("Document", s.at("Documents"), "Open", {"C:\\Work\\Spur Gear.ipt"});
        reach("View", app, "ActiveView");
        reach("Camera", s.at("View"), "Camera");
        reach("Transaction", s.at("TransactionManager"), "StartTransaction",
              {Variant(std::make_shared<com::ComObject>(s.at("Document").Object())), "Look"});
        reach("UnitsOfMeasure", s.at("Document"), "UnitsOfMeasure");
        reach("PropertySets", s.at("Document"), "PropertySets");
        reach("PropertySet", s.at("PropertySets"), "Item", {1});
        reach("Property", s.at("PropertySet"), "Item", {1});
        reach("ComponentDefinition", s.at("Document"), "ComponentDefinition");
        reach("MassProperties", s.at("ComponentDefinition"), "MassProperties");
        reach("AttributeSets", s.at("ComponentDefinition"), "AttributeSets");
        reach("AttributeSet", s.at("AttributeSets"), "Add", {"Look"});
        reach("Attribute", s.at("AttributeSet"), "Add", {"Seen", host::kStringType, "yes"});
        reach("Materials", s.at("Document"), "Materials");
        reach("Material", s.at("Materials"), "Item", {1});
        reach("RenderStyles", s.at("Document"), "RenderStyles");
        reach("RenderStyle", s.at("RenderStyles"), "Item", {1});

        reach("Object", s.at("Documents"), "Open", {"C:\\Work\\Gearbox.iam"});
        reach("DocumentsEnumerator", s.at("Object"), "ReferencedDocuments");
        reach("ComponentOccurrences", Object(s.at("Object").Get("ComponentDefinition")), "Occurrences");
        reach("ComponentOccurrence", s.at("ComponentOccurrences"), "Item", {1});

        com::Dispatch drawing = Object(s.at("Documents").Call("Open", {"C:\\Work\\Gearbox.idw"}));
        reach("DrawingSettings", drawing, "DrawingSettings");
        reach("TitleBlockDefinitions", drawing, "TitleBlockDefinitions");
        reach("TitleBlockDefinition", s.at("TitleBlockDefinitions"), "Item", {1});
        reach("DrawingSketch", s.at("TitleBlockDefinition"), "Sketch");
        reach("TextBoxes", s.at("DrawingSketch"), "TextBoxes");
        reach("TextBox", s.at("TextBoxes"), "Item", {1});
    }
    std::map<std::string, com::Dispatch> samples;
};

// "Opacity", "get/put (0x3006C09)": the DISPID the list gives, from either field.
std::optional<DISPID> ListedId(const HostMember& m) {
    for (std::string_view field : {std::string_view(m.member), std::string_view(m.access)}) {
        auto at = field.find("(0x");
        if (at != std::string_view::npos)
            return static_cast<DISPID>(std::stoul(std::string(field.substr(at + 1)), nullptr, 16));
    }
    return std::nullopt;
}

TEST_F(FaceAnswersListTest, EveryListedMemberIsAnsweredByTheSameNameAndNumber) {
    Reach();
    // The later button factory is no part of a host of releases 7 to 9.
    const std::vector<std::string> later = {"CommandManager.ControlDefinitions",
                                            "ControlDefinitions.AddButtonDefinition"};
    for (const HostMember& m : HostMembers()) {
        std::string name(m.member);
        name = name.substr(0, name.find(' '));
        std::string qualified = std::string(m.object) + "." + name;
        if (std::string_view(m.access) == "event" ||
            std::find(later.begin(), later.end(), qualified) != later.end())
            continue;
        auto sample = samples.find(m.object);
        ASSERT_NE(sample, samples.end()) << "no sample of " << m.object;
        DISPID id = DISPID_UNKNOWN;
        EXPECT_NO_THROW(id = sample->second.IdOf(name)) << qualified;
        if (auto listed = ListedId(m)) EXPECT_EQ(id, *listed) << qualified;
    }
}

}  // namespace
}  // namespace win::adapter
