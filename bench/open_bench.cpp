// Times the stand-in's open of large documents: assemblies of 5,000, 10,000 and 20,000
// default-named occurrences of one part, and parts of 10,000 and 40,000 custom properties.
// An open should cost the same per item at every size; each line prints the time per item
// and its ratio to the smallest size, and the run ends with the peak memory.
//
//   tarnwell_open_bench [SCRATCH_FOLDER]
#include <sys/resource.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "host/Application.h"
#include "host/Document.h"
#include "host/Properties.h"
#include "simhost/SimHost.h"

namespace fs = std::filesystem;

namespace {

void WriteFile(const fs::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

// Occurrences without names take the part's default name, "Bolt:1" onwards, on open.
std::string Assembly(int occurrences) {
    std::string text = "{\"type\": \"assembly\", \"occurrences\": [\n";
    for (int i = 0; i < occurrences; ++i)
        text += std::string(i ? ",\n" : "") + "  {\"file\": \"C:\\\\Bolt.ipt\", \"transform\": [" +
                std::to_string(i % 100) + ", " + std::to_string(i / 100) + ", 0]}";
    return text + "\n]}\n";
}

std::string PartWithProperties(int properties) {
    std::string text = "{\"type\": \"part\", \"properties\": {\"User Defined Properties\": {\n";
    for (int i = 0; i < properties; ++i)
        text += std::string(i ? ",\n" : "") + "  \"Prop" + std::to_string(i) + "\": \"value " +
                std::to_string(i) + "\"";
    return text + "\n}}}\n";
}

double SecondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Seconds to open the file in a fresh host, as a designer's File Open does.
double OpenSeconds(const fs::path& root, const std::string& name) {
    simhost::SimHost host;
    host.MapDrive('C', root);
    auto start = std::chrono::steady_clock::now();
    host.Application()->Documents()->Open("C:\\" + name, true);
    double seconds = SecondsSince(start);
    host.CloseAll();
    return seconds;
}

// Seconds to read every custom property of the part by name, then by identifier.
double ReadPropertiesSeconds(const fs::path& root, const std::string& name, int properties) {
    simhost::SimHost host;
    host.MapDrive('C', root);
    auto document = host.Application()->Documents()->Open("C:\\" + name, true);
    auto set = document->PropertySets()->Item("Inventor User Defined Properties");
    auto start = std::chrono::steady_clock::now();
    std::vector<std::int32_t> ids;
    for (int i = 0; i < properties; ++i) {
        auto property = set->Item("Prop" + std::to_string(i));
        property->Value();
        ids.push_back(property->PropId());
    }
    for (std::int32_t id : ids) set->ItemByPropId(id)->Value();
    double seconds = SecondsSince(start);
    host.CloseAll();
    return seconds;
}

void Series(const fs::path& root, const char* what, const char* stem, const char* extension,
            std::initializer_list<int> sizes, std::string (*make)(int)) {
    double firstPerItem = 0;
    for (int size : sizes) {
        std::string name = stem + std::to_string(size) + extension;
        WriteFile(root / name, make(size));
        double seconds = OpenSeconds(root, name);
        double perItem = seconds / size;
        if (firstPerItem == 0) firstPerItem = perItem;
        std::printf("open %-22s %6d: %8.3f s  %7.2f us each  %5.2f x the first size\n", what, size, seconds,
                    perItem * 1e6, perItem / firstPerItem);
    }
}

void Run(const fs::path& root) {
    WriteFile(root / "Bolt.ipt", "{\"type\": \"part\", \"volume\": 2}\n");
    Series(root, "assembly, occurrences", "Assy", ".iam", {5000, 10000, 20000}, Assembly);
    Series(root, "part, properties", "Props", ".ipt", {10000, 40000}, PartWithProperties);
    double small = ReadPropertiesSeconds(root, "Props10000.ipt", 10000) / 10000;
    double large = ReadPropertiesSeconds(root, "Props40000.ipt", 40000) / 40000;
    std::printf(
        "read each property by name and by identifier: %.2f us a property of 10,000, %.2f of 40,000: %.2f "
        "x\n",
        small * 1e6, large * 1e6, large / small);
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("peak memory: %.1f MB\n", usage.ru_maxrss / 1024.0);
}

}  // namespace

int main(int argc, char** argv) {
    const char* tmp = std::getenv("TMPDIR");
    fs::path scratch = argc > 1 ? fs::path(argv[1]) : fs::path(tmp ? tmp : "/tmp");
    fs::path root = scratch / ("tarnwell-open-bench-" + std::to_string(getpid()));
    fs::create_directories(root);
    int rc = 0;
    try {
        Run(root);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "tarnwell_open_bench: %s\n", e.what());
        rc = 1;
    }
    fs::remove_all(root);
    return rc;
}
