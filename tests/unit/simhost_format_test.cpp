#include <nlohmann/json.hpp>

#include "host/Codes.h"
#include "host/Properties.h"
#include "simhost/FormatPosition.h"
#include "simhost/SimFormat.h"
#include "simhost_fixture.h"

namespace simhost_test {
namespace {

using simhost::format::Read;
using simhost::format::Write;

const char* const kSampleFiles[] = {
    "Work/Gearbox.iam",         "Work/Housing.iam",       "Work/Shaft Assembly.iam",
    "Work/Housing Casting.ipt", "Work/Cover Plate.ipt",   "Work/Hex Bolt M8x20.ipt",
    "Work/Input Shaft.ipt",     "Work/Bearing 6204.ipt",  "Work/Spur Gear.ipt",
    "Work/Motor Bracket.ipt",   "Work/Gearbox.idw",       "Work/Motor Bracket.idw",
    "Templates/Standard.ipt",   "Templates/Standard.iam",
};

using FormatTest = SimHostTest;

// The sample files are in canonical form: read and written back they come out byte for byte.
TEST_F(FormatTest, SampleFilesRoundTripExactly) {
    for (const char* file : kSampleFiles) {
        std::string text = ReadFile(file);
        EXPECT_EQ(Write(Read(text, file)), text) << file;
    }
}

// A document the host loads and saves writes the same JSON, references included.
TEST_F(FormatTest, LoadThenSaveGivesTheSameJson) {
    for (const char* name :
         {"C:\\Work\\Gearbox.iam", "C:\\Work\\Motor Bracket.ipt", "C:\\Work\\Gearbox.idw"}) {
        auto doc = host.Open(name, false);
        std::string relative = std::string(name).substr(3);
        std::replace(relative.begin(), relative.end(), '\\', '/');
        auto before = nlohmann::json::parse(ReadFile(relative));
        doc->SetDirty(true);
        doc->Save();
        EXPECT_EQ(nlohmann::json::parse(ReadFile(relative)), before) << name;
    }
}

// Whoever writes a fixture from the format's documentation gets files the host reads.
TEST(FormatDocumentation, EveryExampleDocumentReads) {
    std::ifstream in(fs::path(TARNWELL_SOURCE_DIR) / "docs" / "sim-format.md");
    std::string line, block;
    bool inBlock = false;
    int documents = 0;
    while (std::getline(in, line)) {
        if (line == "```json") {
            inBlock = true;
            block.clear();
        } else if (inBlock && line == "```") {
            inBlock = false;
            if (block.find("\"type\"") == std::string::npos) continue;  // a fragment, not a document
            EXPECT_NO_THROW(Read(block, "C:\\Doc.ipt")) << block;
            ++documents;
        } else if (inBlock) {
            block += line + "\n";
        }
    }
    EXPECT_EQ(documents, 4);
}

TEST(FormatValues, TypedValuesKeepTheirKind) {
    const std::string text = R"({
  "type": "part",
  "savedBy": 9,
  "properties": {
    "Design Tracking Properties": {
      "Cost": {"currency": 12.3456},
      "Creation Time": {"date": "2024-02-29 13:05:09"},
      "Design Status": 2,
      "Defer Updates": true
    },
    "User Defined Properties": {"Ratio": 2.5, "Count": 7, "Note": "x", "Due": {"date": "1999-12-31"}}
  }
})";
    simhost::DocData data = Read(text, "C:\\T.ipt");
    const auto& design = data.propertySets[2].properties;
    ASSERT_EQ(design.size(), 4u);
    EXPECT_EQ(design[0].value, support::Variant(support::Currency{123456}));
    EXPECT_EQ(design[0].id, 36);
    EXPECT_EQ(design[1].value.Type(), support::VariantType::Date);
    EXPECT_EQ(design[2].value, support::Variant(std::int32_t{2}));
    EXPECT_EQ(design[3].value, support::Variant(true));
    const auto& user = data.propertySets[3].properties;
    ASSERT_EQ(user.size(), 4u);
    EXPECT_EQ(user[0].value, support::Variant(2.5));
    EXPECT_EQ(user[1].value, support::Variant(std::int32_t{7}));
    EXPECT_EQ(user[1].id, 3);  // ids follow the file's order from 2
    // Written back, every value has its kind and the date its time.
    auto again = nlohmann::json::parse(Write(data));
    EXPECT_EQ(again["properties"]["Design Tracking Properties"]["Creation Time"]["date"],
              "2024-02-29 13:05:09");
    EXPECT_EQ(again["properties"]["User Defined Properties"]["Due"]["date"], "1999-12-31");
    EXPECT_EQ(again["properties"]["Design Tracking Properties"]["Cost"]["currency"], 12.3456);
    EXPECT_EQ(again["properties"]["User Defined Properties"]["Ratio"], 2.5);
    // A plain number for a currency property is an amount.
    auto plain = Read(R"({"type": "part", "properties": {"Design Tracking Properties": {"Cost": 12.5}}})",
                      "C:\\T.ipt");
    EXPECT_EQ(plain.propertySets[2].properties[0].value, support::Variant(support::Currency{125000}));
    // 1899-12-30 is day 0 of the host's dates; 2024-02-29 13:05:09 is day 45351 and a fraction.
    EXPECT_NEAR(design[1].value.As<support::Date>()->serial, 45351 + (13 * 3600 + 5 * 60 + 9) / 86400.0,
                1e-9);
}

TEST(FormatValues, OccurrenceDefaultsAreLeftOutAndTransformsKeepTheirForm) {
    const std::string text = R"({"type": "assembly", "occurrences": [
        {"name": "A:1", "file": "C:\\A.ipt"},
        {"name": "A:2", "file": "C:\\A.ipt", "visible": false, "grounded": true, "transform": [1, 2, 3]},
        {"name": "A:3", "file": "C:\\A.ipt", "transform": [0,-1,0,4, 1,0,0,0, 0,0,1,6, 0,0,0,1]}]})";
    auto data = Read(text, "C:\\T.iam");
    EXPECT_EQ(data.savedBy, 9);  // not given: the default release
    EXPECT_EQ(data.occurrences[1].transform, host::Matrix::Translation(1, 2, 3));
    EXPECT_EQ(data.occurrences[2].transform.cell[0][1], -1);
    auto written = nlohmann::json::parse(Write(data));
    auto occurrences = written["occurrences"];
    EXPECT_EQ(occurrences[0], (nlohmann::json{{"name", "A:1"}, {"file", "C:\\A.ipt"}}));
    EXPECT_EQ(occurrences[1]["transform"], (nlohmann::json{1.0, 2.0, 3.0}));
    EXPECT_EQ(occurrences[1]["visible"], false);
    EXPECT_EQ(occurrences[2]["transform"].size(), 16u);
    EXPECT_EQ(written["savedBy"], 9);
}

// Every refusal names the file and says what is wrong.
TEST(FormatRefusals, BadFilesAreRefusedNamingTheFile) {
    struct Case {
        const char* text;
        const char* says;
    };
    const Case cases[] = {
        {R"({"type": "part", "colour": "red"})", "unknown field \"colour\""},
        {R"({"type": "part", "volume": "12"})", "volume: must be a number"},
        {R"({"type": "part",)", "not a valid JSON document"},
        {R"([1, 2])", "must be an object"},
        {R"({"type": "sheet"})", "unknown document type \"sheet\""},
        {R"({"savedBy": 9})", "no document type"},
        {R"({"type": "drawing", "occurrences": []})", "unknown field \"occurrences\""},
        {R"({"type": "assembly", "occurrences": [{"name": "A:1", "file": "C:\\A.ipt", "hidden": true}]})",
         "line 1, column 38: occurrences 1: unknown field \"hidden\""},
        {R"({"type": "assembly", "occurrences": [{"name": "A:1", "file": "C:\\A.ipt"}, {"name": "A:1", "file": "C:\\B.ipt"}]})",
         "a second occurrence named \"A:1\""},
        {R"({"type": "part", "properties": {"Design Tracking Properties": {"Cost": "12.50"}}})",
         "line 1, column 72: properties/Design Tracking Properties/Cost: must be a currency value"},
        {R"({"type": "part", "properties": {"Design Tracking Properties": {"Colour": "red"}}})",
         "unknown property \"Colour\""},
        {R"({"type": "part", "properties": {"Design Tracking Properties": {"Material": "Steel"}}})",
         "given by the field \"material\""},
        {R"({"type": "part", "properties": {"Project Info": {}}})", "unknown property set \"Project Info\""},
        {R"({"type": "part", "properties": {"User Defined Properties": {"Due": {"date": "2023-02-30"}}}})",
         "a date is written"},
        {R"({"type": "part", "materials": [{"name": "Steel"}]})", "needs \"name\" and \"density\""},
        {R"({"type": "part", "massUnits": "stone"})", "massUnits"},
        {R"({"type": "part", "thumbnail": 12})", "not a view orientation code"},
        {R"({"type": "part", "customPropertySets": [{"name": "eMatrix", "formatId": "nope"}]})", "GUID"},
        {"{\"type\": \"part\",\n \"volume\": 3,\n}", "not a valid JSON document: line 3, column 1"},
        {R"({"type": "part", "volume": 3, "volume": 4})", "the key \"volume\" is given twice"},
        {R"({"type": "part", "volume": 1e999})", "a number is too large"},  // found by fuzzing
        {R"({"type": "part", "properties": {"Summary Information": {"Title": "a", "Title": "b"}}})",
         "the key \"Title\" is given twice"},
    };
    for (const auto& c : cases) {
        support::Error e = ErrorOf([&] { Read(c.text, "C:\\Work\\Bad.ipt"); });
        EXPECT_EQ(e.Description().rfind("C:\\Work\\Bad.ipt: ", 0), 0u) << e.Description();
        EXPECT_NE(e.Description().find(c.says), std::string::npos) << c.text << " gave: " << e.Description();
    }
}

using FormatLoadTest = SimHostTest;

TEST_F(FormatLoadTest, OpeningABadFileFailsNamingItAndLeavesNothingLoaded) {
    WriteFile("Work/Broken.ipt", R"({"type": "part", "volum": 3})");
    WriteFile("Work/Uses Broken.iam", R"({"type": "assembly", "occurrences": [
        {"file": "C:\\Work\\Cover Plate.ipt"}, {"file": "C:\\Work\\Broken.ipt"}]})");
    auto e = ErrorOf([&] { host.Open("C:\\Work\\Uses Broken.iam"); });
    EXPECT_NE(e.Description().find("C:\\Work\\Broken.ipt: unknown field \"volum\""), std::string::npos);
    EXPECT_EQ(host.Application()->Documents()->Count(), 0);

    WriteFile("Work/Missing Ref.iam",
              R"({"type": "assembly", "occurrences": [{"file": "C:\\Work\\Nowhere.ipt"}]})");
    e = ErrorOf([&] { host.Open("C:\\Work\\Missing Ref.iam"); });
    EXPECT_EQ(e.Number(), support::errors::kFileNotFound);
    EXPECT_NE(e.Description().find("Missing Ref.iam: cannot find the referenced file C:\\Work\\Nowhere.ipt"),
              std::string::npos);

    WriteFile("Work/Wrong.ipt", R"({"type": "assembly"})");
    e = ErrorOf([&] { host.Open("C:\\Work\\Wrong.ipt"); });
    EXPECT_NE(e.Description().find("C:\\Work\\Wrong.ipt: the file holds a assembly"), std::string::npos);

    WriteFile("Work/Loop.iam", R"({"type": "assembly", "occurrences": [{"file": "C:\\Work\\Loop.iam"}]})");
    e = ErrorOf([&] { host.Open("C:\\Work\\Loop.iam"); });
    EXPECT_NE(e.Description().find("cycle: C:\\Work\\Loop.iam -> C:\\Work\\Loop.iam"), std::string::npos)
        << e.Description();
    // A longer cycle names every file of it, from where it closes.
    WriteFile("Work/A.iam", R"({"type": "assembly", "occurrences": [{"file": "C:\\Work\\B.iam"}]})");
    WriteFile("Work/B.iam", R"({"type": "assembly", "occurrences": [{"file": "C:\\Work\\C.iam"}]})");
    WriteFile("Work/C.iam", R"({"type": "assembly", "occurrences": [{"file": "C:\\Work\\B.iam"}]})");
    e = ErrorOf([&] { host.Open("C:\\Work\\A.iam"); });
    EXPECT_NE(e.Description().find("cycle: C:\\Work\\B.iam -> C:\\Work\\C.iam -> C:\\Work\\B.iam"),
              std::string::npos)
        << e.Description();
    EXPECT_EQ(host.Application()->Documents()->Count(), 0);
}

TEST_F(FormatLoadTest, UnnamedOccurrencesGetDefaultNamesAndMissingPropertiesReadEmpty) {
    WriteFile("Work/Plain.iam", R"({"type": "assembly", "occurrences": [
        {"name": "Spur Gear:2", "file": "C:\\Work\\Spur Gear.ipt"},
        {"file": "C:\\Work\\Spur Gear.ipt"}, {"file": "C:\\Work\\Spur Gear.ipt"}]})");
    auto doc = host.Open("C:\\Work\\Plain.iam");
    auto occurrences = doc->ComponentDefinition()->Occurrences();
    EXPECT_EQ(occurrences->Item(2)->Name(), "Spur Gear:1");
    EXPECT_EQ(occurrences->Item(3)->Name(), "Spur Gear:3");
    EXPECT_EQ(ErrorOf([&] { host.FindOccurrence(""); }).Number(), support::errors::kFail);
    auto design = doc->PropertySets()->Item(3);
    EXPECT_EQ(design->Item(14)->Value(), support::Variant(""));
    EXPECT_EQ(design->Item(21)->Value(), support::Variant(support::Currency{}));
    EXPECT_EQ(doc->PropertySets()->Item(1)->ItemByPropId(2)->Value(), support::Variant(""));
}

}  // namespace
}  // namespace simhost_test

namespace simhost_test {
namespace {

// A refusal points at the value it is about: keys with spaces, slashes and escapes, array
// elements by number, and as deep as the text goes when the rest is missing.
TEST(FormatPositions, AMessageLeadsToItsValue) {
    using simhost::format::LineAndColumn;
    using simhost::format::LocateValue;
    const std::string text =
        "{\n"
        "  \"type\": \"assembly\",\n"
        "  \"properties\": {\"User Defined Properties\": {\"Size 2\": 1, \"A/B\": 2, \"Caf\\u00e9\": 3}},\n"
        "  \"occurrences\": [\n"
        "    {\"file\": \"C:\\\\x.ipt\"},\n"
        "    {\"name\": \"[a]\", \"file\": 7}\n"
        "  ]\n"
        "}\n";
    auto at = [&](const char* where) { return LineAndColumn(text, LocateValue(text, where)); };
    EXPECT_EQ(at("type"), "line 2, column 11");
    EXPECT_EQ(at("properties/User Defined Properties/Size 2"), "line 3, column 56");
    EXPECT_EQ(at("properties/User Defined Properties/A/B"), "line 3, column 66");
    EXPECT_EQ(at("properties/User Defined Properties/Caf\xc3\xa9"), "line 3, column 82");
    EXPECT_EQ(at("occurrences 2/file"), "line 6, column 29");
    EXPECT_EQ(at("occurrences 2"), "line 6, column 5");
    EXPECT_EQ(at("occurrences 9/file"), "line 4, column 18");  // no ninth: the array
    EXPECT_EQ(at("materials 1"), "line 1, column 1");          // nothing of it: the document
    EXPECT_EQ(LineAndColumn(text, text.size() + 5), "line 9, column 1");
}

}  // namespace
}  // namespace simhost_test
