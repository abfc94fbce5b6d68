#pragma once
// The copy engines' test bench: tests/fixtures/copy as drive C:, an empty drive D: for the
// copies, the headless platform writing its transcript into a string, and an add-in state
// over the stand-in host.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>
#include <string>

#include "addin/AddinState.h"
#include "host/Application.h"
#include "host/Component.h"
#include "host/Document.h"
#include "settings/Settings.h"
#include "simhost/SimHost.h"
#include "ui/headless/HeadlessPlatform.h"

namespace copy_test {

namespace fs = std::filesystem;

class CopyTest : public ::testing::Test {
protected:
    fs::path root;
    std::ostringstream out;
    ui::headless::Transcript transcript{out};
    ui::headless::HeadlessPlatform platform{transcript};
    simhost::SimHost host;
    std::unique_ptr<settings::IniFileStore> settings;
    std::unique_ptr<addin::AddinState> state;

    void SetUp() override {
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        root = fs::temp_directory_path() /
               ("tarnwell-copy-" + std::string(info->test_suite_name()) + "-" + info->name());
        fs::remove_all(root);
        fs::create_directories(root / "D");
        fs::copy(fs::path(TARNWELL_SOURCE_DIR) / "tests" / "fixtures" / "copy", root / "C",
                 fs::copy_options::recursive);
        host.MapDrive('C', root / "C");
        host.MapDrive('D', root / "D");
        host.SetTemplatesPath("C:\\Templates\\");
        settings = std::make_unique<settings::IniFileStore>(root / "settings.ini");
        state =
            std::make_unique<addin::AddinState>(addin::Environment{platform, *settings, host.FileSystem()});
        state->app = host.Application();
    }
    void TearDown() override {
        state.reset();
        host.CloseAll();
        fs::remove_all(root);
    }

    host::Application& App() { return *state->app; }
    host::DocumentPtr Open(const std::string& path, bool visible = true) {
        return App().Documents()->Open(path, visible);
    }

    // Every file under a drive's folder with its bytes, by path relative to the drive.
    std::map<std::string, std::string> Snapshot(char drive) const {
        std::map<std::string, std::string> files;
        fs::path base = root / std::string(1, drive);
        for (const auto& entry : fs::recursive_directory_iterator(base)) {
            if (!entry.is_regular_file()) continue;
            std::ifstream in(entry.path(), std::ios::binary);
            std::ostringstream bytes;
            bytes << in.rdbuf();
            files[fs::relative(entry.path(), base).string()] = bytes.str();
        }
        return files;
    }

    // How many transcript lines are exactly this one.
    int Lines(const std::string& line) const {
        std::istringstream in(out.str());
        int count = 0;
        for (std::string l; std::getline(in, l);) count += l == line;
        return count;
    }
};

// The full file names a tree references, read back from disk by a fresh host, so that
// what counts is what the files say and not what an open document holds.
inline std::vector<std::string> ReferencesOnDisk(const fs::path& root, const std::string& top) {
    simhost::SimHost fresh;
    fresh.MapDrive('C', root / "C");
    fresh.MapDrive('D', root / "D");
    std::vector<std::string> names;
    auto walk = [&](auto& self, host::Document& doc) -> void {
        auto occurrences = doc.ComponentDefinition()->Occurrences();
        for (std::int32_t i = 1; i <= occurrences->Count(); ++i) {
            auto child = occurrences->Item(i)->Definition()->Document();
            names.push_back(child->FullFileName());
            self(self, *child);
        }
    };
    walk(walk, *fresh.Open(top, false));
    fresh.CloseAll();
    return names;
}

}  // namespace copy_test
