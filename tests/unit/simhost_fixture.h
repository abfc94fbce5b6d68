#pragma once
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "simhost/SimHost.h"
#include "support/Error.h"
#include "test_support.h"

namespace simhost_test {

namespace fs = std::filesystem;

// What the host reported, one line an event.
class RecordingObserver : public simhost::Observer {
public:
    std::vector<std::string> lines;
    void FileWritten(const std::string& path) override { lines.push_back("written " + path); }
    void FileCopied(const std::string& from, const std::string& to) override {
        lines.push_back("copied " + from + " -> " + to);
    }
    void FileDeleted(const std::string& path) override { lines.push_back("deleted " + path); }
    void StatusBarText(const std::string& text) override { lines.push_back("status " + text); }
    void DocumentOpened(const std::string& path, bool visible) override {
        lines.push_back(std::string(visible ? "opened " : "opened invisibly ") + path);
    }
    void DocumentClosed(const std::string& path) override { lines.push_back("closed " + path); }
};

// A copy of the sample workspace in a fresh folder, mapped as drive C:.
class SimHostTest : public ::testing::Test {
protected:
    test_support::ScratchFolder scratch{"simhost"};
    fs::path root = scratch.Path();
    simhost::SimHost host;
    RecordingObserver observer;

    void SetUp() override {
        fs::copy(fs::path(TARNWELL_SOURCE_DIR) / "examples" / "workspace", root, fs::copy_options::recursive);
        host.MapDrive('C', root);
        host.SetObserver(&observer);
    }
    void TearDown() override { host.CloseAll(); }

    fs::path OnDisk(const std::string& relative) const { return root / relative; }
    std::string ReadFile(const std::string& relative) const {
        std::ifstream in(OnDisk(relative), std::ios::binary);
        std::ostringstream s;
        s << in.rdbuf();
        return s.str();
    }
    void WriteFile(const std::string& relative, const std::string& text) const {
        fs::create_directories(OnDisk(relative).parent_path());
        std::ofstream(OnDisk(relative), std::ios::binary) << text;
    }
};

using test_support::ErrorOf;

}  // namespace simhost_test
