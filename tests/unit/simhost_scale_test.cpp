#include <map>
#include <string>

#include "host/Application.h"
#include "host/Component.h"
#include "host/Document.h"
#include "simhost_fixture.h"

namespace simhost_test {
namespace {

using ScaleTest = SimHostTest;

// 1 top assembly, 99 sub-assemblies of 200 occurrences over 19 parts each: 1,981 files
// and 19,899 occurrences. Open, a clone (copy and replace every occurrence, as the
// renaming walk does), and the final save write each file a bounded number of times: a
// part once, an assembly once more when its replaced references are saved. How long it
// takes is bench/'s to say.
TEST_F(ScaleTest, ALargeTreeClonesWritingEachFileABoundedNumberOfTimes) {
    constexpr int kSubs = 99, kPartsPerSub = 19, kPlacementsPerPart = 10;
    std::string top = R"({"type": "assembly", "occurrences": [)";
    for (int s = 0; s < kSubs; ++s) {
        std::string sub = R"({"type": "assembly", "occurrences": [)";
        for (int p = 0; p < kPartsPerSub; ++p) {
            std::string part = "S" + std::to_string(s) + "P" + std::to_string(p);
            WriteFile("Big/" + part + ".ipt", R"({"type": "part", "material": "Steel", "volume": 1.0,
                "materials": [{"name": "Steel", "density": 7.85}]})");
            for (int i = 0; i < kPlacementsPerPart; ++i)
                sub += std::string(p || i ? "," : "") + R"({"file": "C:\\Big\\)" + part +
                       R"(.ipt", "transform": [)" + std::to_string(i) + ", 0, 0]}";
        }
        WriteFile("Big/Sub" + std::to_string(s) + ".iam", sub + "]}");
        top += std::string(s ? "," : "") + R"({"file": "C:\\Big\\Sub)" + std::to_string(s) + R"(.iam"})";
    }
    WriteFile("Big/Top.iam", top + "]}");
    host.FileSystem().CreateFolder("C:\\Clone");
    auto& files = host.FileSystem();

    auto doc = host.Open("C:\\Big\\Top.iam");
    EXPECT_EQ(host.Application()->Documents()->Count(), 1 + kSubs + kSubs * kPartsPerSub);

    auto copyName = [](const std::string& name) {
        return "C:\\Clone\\!New-" + name.substr(name.rfind('\\') + 1);
    };
    doc->SaveAs("C:\\Clone\\!New-Top.iam", true);
    auto copy = host.Open("C:\\Clone\\!New-Top.iam", false);
    int replaced = 0;
    auto walk = [&](auto& self, host::Document& assembly) -> void {
        auto list = assembly.ComponentDefinition()->Occurrences();
        for (int i = 1; i <= list->Count(); ++i) {
            auto occ = list->Item(i);
            auto source = occ->Definition()->Document();
            std::string target = copyName(source->FullFileName());
            if (!files.FileExists(target)) source->SaveAs(target, true);
            if (source->FullFileName() != target) {
                occ->Replace(target, false);
                occ->SetName("");
                ++replaced;
            }
            if (occ->Definition()->Occurrences()->Count() > 0) self(self, *occ->Definition()->Document());
        }
    };
    walk(walk, *copy);
    copy->Save();
    EXPECT_EQ(replaced, kSubs + kSubs * kPartsPerSub * kPlacementsPerPart);
    EXPECT_EQ(files.ListFiles("C:\\Clone").size(), 1u + kSubs + kSubs * kPartsPerSub);
    host.Activate("C:\\Clone\\!New-Top.iam");
    EXPECT_EQ(host.FindOccurrence("!New-Sub7:1/!New-S7P3:10")->Transformation(),
              host::Matrix::Translation(9, 0, 0));
    std::map<std::string, int> writes;
    for (const auto& line : observer.lines)
        if (line.rfind("written C:\\Clone\\", 0) == 0) ++writes[line.substr(8)];
    EXPECT_EQ(writes.size(), 1u + kSubs + kSubs * kPartsPerSub);
    for (const auto& [file, count] : writes) EXPECT_LE(count, file.ends_with(".ipt") ? 1 : 2) << file;
}

}  // namespace
}  // namespace simhost_test
