// Times the style purge's walk on generated trees of about 2,500 and 5,000 documents and
// prints the time per document at both sizes: a walk that stays linear costs the same
// per document at both. Half the parts are read-only and are purged ("Reset Read Only"),
// each with unused local materials and render styles to delete.
//
//   tarnwell_purge_bench [SCRATCH_FOLDER]
//
// The trees are written under SCRATCH_FOLDER (default $TMPDIR, else /tmp) and removed.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "host/Application.h"
#include "host/Document.h"
#include "purge/walk/PurgeWalk.h"
#include "simhost/HostCalls.h"
#include "simhost/SimHost.h"

namespace fs = std::filesystem;

namespace {

constexpr int kPartsPerSub = 49;

void WriteFile(const fs::path& path, const std::string& text) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

std::string Part() {
    return R"({"type": "part", "material": "Steel", "volume": 1,
  "materials": [{"name": "Steel", "density": 7.85, "renderStyle": "Steel"},
                {"name": "Brass", "density": 8.5, "renderStyle": "Gold"},
                {"name": "Copper", "density": 8.9, "location": "both"}],
  "renderStyles": [{"name": "Steel"}, {"name": "Gold"}, {"name": "Red"}, {"name": "Blue", "location": "library"}],
  "customPropertySets": [{"name": "eMatrix", "formatId": "{0C1D2E3F-0000-4000-8000-000000000001}",
                          "properties": {"Commodity Code": "FAB", "Library": "No"}}]})";
}

// top -> subs sub-assemblies -> kPartsPerSub parts each; returns the number of documents.
int GenerateTree(const fs::path& root, int subs) {
    std::string top = R"({"type": "assembly", "occurrences": [)";
    for (int s = 0; s < subs; ++s) {
        std::string sub = R"({"type": "assembly", "occurrences": [)";
        for (int p = 0; p < kPartsPerSub; ++p) {
            std::string name = "P" + std::to_string(s) + "_" + std::to_string(p) + ".ipt";
            WriteFile(root / "Parts" / name, Part());
            if (p % 2)
                fs::permissions(root / "Parts" / name, fs::perms::owner_write, fs::perm_options::remove);
            sub += std::string(p ? ", " : "") + R"({"file": "C:\\Parts\\)" + name + R"("})";
        }
        WriteFile(root / "Subs" / ("S" + std::to_string(s) + ".iam"), sub + "]}");
        top += std::string(s ? ", " : "") + R"({"file": "C:\\Subs\\S)" + std::to_string(s) + R"(.iam"})";
    }
    WriteFile(root / "Top.iam", top + "]}");
    return 1 + subs * (1 + kPartsPerSub);
}

struct CountingSink : purge::PurgeSink {
    int lines = 0;
    void AddLine(const std::string&) override { ++lines; }
    void Yield() override {}
    bool StopRequested() const override { return false; }
};

double Seconds(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

constexpr int kFirstSize = 50;

void Run(const fs::path& root, int subs) {
    int documents = GenerateTree(root, subs);
    simhost::SimHost host;
    host.MapDrive('C', root);
    auto start = std::chrono::steady_clock::now();
    auto top = host.Application()->Documents()->Open("C:\\Top.iam", true);
    double open = Seconds(start);
    CountingSink sink;
    start = std::chrono::steady_clock::now();
    simhost::HostCalls::Start();
    purge::PurgeWalk({*host.Application(), host.FileSystem(), sink, true}).PurgeTree(top);
    double walk = Seconds(start);
    simhost::HostCalls::Stop();
    std::printf(
        "%5d documents: open %.3f s, purge %.3f s = %.3f ms a document (%d lines), %.1f host calls a "
        "document\n",
        documents, open, walk, 1000 * walk / documents, sink.lines,
        static_cast<double>(simhost::HostCalls::Total()) / documents);
    if (subs == kFirstSize)  // the same at every size
        for (const auto& [member, count] : simhost::HostCalls::Counts())
            std::printf("    %-36s %6.2f a document\n", member.c_str(),
                        static_cast<double>(count) / documents);
    host.CloseAll();
    for (auto& entry : fs::recursive_directory_iterator(root))
        fs::permissions(entry.path(), fs::perms::owner_write, fs::perm_options::add);
    fs::remove_all(root);
}

}  // namespace

int main(int argc, char** argv) {
    const char* tmp = std::getenv("TMPDIR");
    fs::path scratch = argc > 1 ? fs::path(argv[1]) : fs::path(tmp ? tmp : "/tmp");
    for (int subs : {kFirstSize, 2 * kFirstSize})
        Run(scratch / ("tarnwell-purge-bench-" + std::to_string(subs)), subs);
}
