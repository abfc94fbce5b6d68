// Times the copy engines on generated trees of 2,000 and 4,000 files (about ten
// occurrences a file): a clone (renaming walk), a pack from memory and a pack disk to
// disk, each next to a plain recursive copy of the same files made in the same run, with
// the host calls each walk made. The larger tree should cost the same per file.
//
//   tarnwell_copy_bench [SCRATCH_FOLDER]
//
// The trees are written under SCRATCH_FOLDER (default $TMPDIR, else /tmp) and removed at
// the end. A RAM disk (/dev/shm) shows the stand-in's own cost; a disk adds the disk's.
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "copy/engine/PackingWalk.h"
#include "copy/engine/RenamingWalk.h"
#include "host/Application.h"
#include "host/Document.h"
#include "simhost/HostCalls.h"
#include "simhost/SimHost.h"
#include "ui/headless/HeadlessPlatform.h"

namespace fs = std::filesystem;

namespace {

// top -> kGroups groups -> subsPerGroup sub-assemblies each -> kSlotsPerSub part occurrences
// each; subsPerGroup grows with the tree, so the occurrences do too.
constexpr int kGroups = 10;
constexpr int kSlotsPerSub = 199;

struct Shape {
    explicit Shape(int files) : subs(kGroups * (files / 200)), parts(files - 1 - kGroups - subs) {}
    int subs, parts;
};

std::string PartName(int i) {
    char name[32];
    std::snprintf(name, sizeof name, "P%04d.ipt", i);
    return name;
}

std::string Numbered(const char* stem, int i, const char* extension) {
    char name[32];
    std::snprintf(name, sizeof name, "%s%03d%s", stem, i, extension);
    return name;
}

void WriteFile(const fs::path& path, const std::string& text) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

std::string Occurrence(const std::string& file, int x, int y) {
    std::string escaped;
    for (char c : file) escaped += c == '\\' ? std::string("\\\\") : std::string(1, c);
    return "{\"file\": \"" + escaped + "\", \"transform\": [" + std::to_string(x) + ", " + std::to_string(y) +
           ", 0]}";
}

std::string Assembly(const std::vector<std::string>& occurrences) {
    std::string text = "{\"type\": \"assembly\", \"occurrences\": [\n";
    for (std::size_t i = 0; i < occurrences.size(); ++i) text += (i ? ",\n  " : "  ") + occurrences[i];
    return text + "\n]}\n";
}

// Each sub-assembly places its own few parts many times over (so a file used many times
// is copied once); a part lies under one parent only, since the stand-in, like the host,
// refuses to save a copy over a file that is open, which a pack from memory would try.
int GenerateTree(const fs::path& root, const Shape& shape) {
    const int kParts = shape.parts, kSubs = shape.subs, kSubsPerGroup = kSubs / kGroups;
    int occurrences = 0;
    for (int p = 0; p < kParts; ++p)
        WriteFile(root / "Parts" / PartName(p),
                  "{\"type\": \"part\", \"volume\": " + std::to_string(1 + p % 50) + "}\n");
    for (int s = 0; s < kSubs; ++s) {
        int first = s * kParts / kSubs, count = (s + 1) * kParts / kSubs - first;
        std::vector<std::string> slots;
        for (int k = 0; k < kSlotsPerSub; ++k)
            slots.push_back(Occurrence("C:\\Src\\Parts\\" + PartName(first + k % count), k, s));
        occurrences += kSlotsPerSub;
        WriteFile(root / "Subs" / Numbered("Sub", s, ".iam"), Assembly(slots));
    }
    std::vector<std::string> groups;
    for (int g = 0; g < kGroups; ++g) {
        std::vector<std::string> subs;
        for (int k = 0; k < kSubsPerGroup; ++k)
            subs.push_back(
                Occurrence("C:\\Src\\Subs\\" + Numbered("Sub", g * kSubsPerGroup + k, ".iam"), 0, k));
        occurrences += kSubsPerGroup;
        WriteFile(root / "Groups" / Numbered("Group", g, ".iam"), Assembly(subs));
        groups.push_back(Occurrence("C:\\Src\\Groups\\" + Numbered("Group", g, ".iam"), g * 100, 0));
    }
    occurrences += kGroups;
    WriteFile(root / "Top.iam", Assembly(groups));
    return occurrences;
}

struct Folder {
    std::uintmax_t files = 0, bytes = 0;
};

Folder Measure(const fs::path& folder) {
    Folder f;
    if (!fs::exists(folder)) return f;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file()) ++f.files, f.bytes += entry.file_size();
    return f;
}

double Seconds(const std::function<void()>& work) {
    auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The walk's time against the plain copy, then the host calls it made: what predicts its
// time in the real host, where each one crosses COM.
void Report(const char* what, double seconds, double plain, const Folder& out, int occurrences) {
    simhost::HostCalls::Stop();
    auto calls = static_cast<double>(simhost::HostCalls::Total());
    std::printf("%-34s %9.3f s  %8.1f x plain   %5ju files   host calls: %.1f a file, %.2f an occurrence\n",
                what, seconds, seconds / plain, out.files, calls / out.files, calls / occurrences);
    for (const auto& [member, count] : simhost::HostCalls::Counts())
        if (count >= out.files / 2)
            std::printf("    %-36s %8.2f an occurrence\n", member.c_str(), count / double(occurrences));
}

// One stand-in host over the scratch tree, and the walks' surroundings as a dialog gives
// them: each progress line is followed by a yield.
struct Bench : copy::Progress {
    explicit Bench(const fs::path& root) : platform(transcript) {
        host.MapDrive('C', root);
        app = host.Application();
    }
    void ShowStatus(const std::string&) override { platform.DoEvents(); }
    copy::WalkContext Context() { return {*app, host.FileSystem(), platform, *this}; }

    std::ostringstream log;
    ui::headless::Transcript transcript{log};
    simhost::SimHost host;
    ui::headless::HeadlessPlatform platform;
    std::shared_ptr<host::Application> app;
};

// Seconds a file for each run, to compare the sizes.
struct PerFile {
    double plain = 0, clone = 0, packMemory = 0, packDisk = 0;
};

PerFile Run(const fs::path& root, int files) {
    PerFile perFile;
    int occurrences = GenerateTree(root / "Src", Shape(files));
    for (const char* target : {"Clone", "PackMemory", "PackDisk"}) fs::create_directories(root / target);
    Folder tree = Measure(root / "Src");
    std::printf("tree: %ju files, %d occurrences, %.1f MB in %s\n", tree.files, occurrences, tree.bytes / 1e6,
                root.string().c_str());

    // The plain copy is short and the machine's other work shows in it: the best of five.
    double plain = 1e9;
    for (int i = 0; i < 5; ++i) {
        fs::remove_all(root / "Plain");
        plain = std::min(
            plain, Seconds([&] { fs::copy(root / "Src", root / "Plain", fs::copy_options::recursive); }));
    }
    std::printf("%-34s %9.3f s\n", "plain copy (std::filesystem::copy)", plain);
    perFile.plain = plain / tree.files;

    {
        Bench b(root);
        simhost::HostCalls::Start();
        double s = Seconds([&] {
            // What Execute Clone does for a standalone copy of the top assembly.
            auto& app = *b.app;
            auto top = app.Documents()->Open("C:\\Src\\Top.iam", true);
            std::string target = "C:\\Clone";
            std::string newName = copy::FormCopyName(top->FullFileName(), "!New-", "-001", target);
            top->SaveAs(newName, true);
            app.SetSilentOperation(true);
            auto work = app.Documents()->Open(newName, false);
            copy::RecurseOccurrences(b.Context(), *work, "!New-", "-001", target);
            app.SetSilentOperation(false);
            work->Save();
            work->Close();
        });
        Report("clone (RecurseOccurrences)", s, plain, Measure(root / "Clone"), occurrences);
        perFile.clone = s / tree.files;
    }
    for (bool fromDisk : {false, true}) {
        Bench b(root);
        auto source = fromDisk ? copy::PackSource::Disk : copy::PackSource::Memory;
        bool stop = false;
        std::string folder = fromDisk ? "PackDisk" : "PackMemory";
        simhost::HostCalls::Start();
        double s = Seconds([&] {
            auto top = b.app->Documents()->Open("C:\\Src\\Top.iam", true);
            copy::PackDocument(b.Context(), *top, "C:\\" + folder, source, stop);
        });
        Report(fromDisk ? "pack disk to disk (PackDocument)" : "pack from memory (PackDocument)", s, plain,
               Measure(root / folder), occurrences);
        if (b.log.str().find("Stopping Pack N Link") != std::string::npos)
            std::printf("  the pack stopped early: \"Stopping Pack N Link\"\n");
        (fromDisk ? perFile.packDisk : perFile.packMemory) = s / tree.files;
    }
    return perFile;
}

void Compare(const char* what, double small, double large) {
    std::printf("  %-20s %7.1f us a file at 2,000, %7.1f at 4,000: %4.2f x\n", what, small * 1e6, large * 1e6,
                large / small);
}

}  // namespace

int main(int argc, char** argv) {
    const char* tmp = std::getenv("TMPDIR");
    fs::path scratch = argc > 1 ? fs::path(argv[1]) : fs::path(tmp ? tmp : "/tmp");
    int rc = 0;
    std::vector<PerFile> sizes;
    for (int files : {2000, 4000}) {
        fs::path root =
            scratch / ("tarnwell-copy-bench-" + std::to_string(getpid()) + "-" + std::to_string(files));
        fs::create_directories(root);
        try {
            sizes.push_back(Run(root, files));
        } catch (const std::exception& e) {
            std::fprintf(stderr, "tarnwell_copy_bench: %s\n", e.what());
            rc = 1;
        }
        fs::remove_all(root);
        std::printf("\n");
    }
    if (sizes.size() == 2) {
        std::printf("time a file, 4,000 files against 2,000:\n");
        Compare("plain copy", sizes[0].plain, sizes[1].plain);
        Compare("clone", sizes[0].clone, sizes[1].clone);
        Compare("pack from memory", sizes[0].packMemory, sizes[1].packMemory);
        Compare("pack disk to disk", sizes[0].packDisk, sizes[1].packDisk);
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("peak memory: %.1f MB\n", usage.ru_maxrss / 1024.0);
    return rc;
}
