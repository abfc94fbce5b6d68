// A clone and both packs with a write failing at every point in turn, as a failing save
// and as a disk that refuses it: each time the source files stay byte-identical and the
// user is told.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "app/session/LineSource.h"
#include "app/session/Script.h"
#include "app/session/Session.h"
#include "host/FileSystem.h"
#include "test_support.h"

namespace {

namespace fs = std::filesystem;

const fs::path kFixture = fs::path(TARNWELL_SOURCE_DIR) / "tests" / "fixtures" / "copy";

std::string ReadHostFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

struct FaultyRun {
    bool faultFired = false;
    std::string afterFault;  // the transcript from the faulty command on
};

class CopyFaultsTest : public ::testing::Test {
protected:
    test_support::ScratchFolder scratch{"faults"};

    // Plays `setup`, arms the fault, plays `command`; then checks every source file.
    FaultyRun Play(const std::string& setup, const std::string& command, int writesLeft, bool refused) {
        std::ostringstream out;
        session::Session s(out, scratch / ("settings" + std::to_string(writesLeft) + ".ini"));
        const std::string arm = "echo fault armed\nfail-write-after " + std::to_string(writesLeft) +
                                (refused ? " refused" : "") + "\n";
        session::ScriptSource source(session::ParseScript(setup + arm + command));
        EXPECT_EQ(s.Run(source), 0) << out.str();
        FaultyRun run{s.Host().WriteFaultFired(), out.str().substr(out.str().find("# fault armed"))};
        for (const auto& entry : fs::recursive_directory_iterator(kFixture)) {
            if (!entry.is_regular_file()) continue;
            std::string windowsPath = "C:\\" + fs::relative(entry.path(), kFixture).string();
            for (auto& c : windowsPath)
                if (c == '/') c = '\\';
            EXPECT_EQ(s.Host().FileSystem().ReadText(windowsPath), ReadHostFile(entry.path()))
                << windowsPath << " changed; fault after " << writesLeft << " writes";
        }
        return run;
    }

    // Every point of the command in turn, until a run goes through without the fault.
    // The user is told by a message box or by the platform's error report.
    void EveryPoint(const std::string& setup, const std::string& command) {
        for (bool refused : {false, true}) {
            int points = 0;
            for (int writesLeft = 0; writesLeft < 200; ++writesLeft) {
                FaultyRun run = Play(setup, command, writesLeft, refused);
                if (!run.faultFired) break;
                ++points;
                bool told = run.afterFault.find("\nmsgbox ") != std::string::npos ||
                            run.afterFault.find("\nerror ") != std::string::npos;
                EXPECT_TRUE(told) << "fault after " << writesLeft << " writes was not told:\n"
                                  << run.afterFault;
            }
            EXPECT_GT(points, 3) << "the command wrote too little to test";
            RecordProperty(refused ? "refused_points" : "failed_save_points", points);
        }
    }
};

const std::string kSetup = "drive C: " + kFixture.string() + "\ndrive D: empty\naddin activate\n";

TEST_F(CopyFaultsTest, ACloneKeepsItsSourcesAndSaysSo) {
    EveryPoint(kSetup +
                   "setting PreSufxClone TargetDir \"D:\"\nopen C:\\Work\\Frame.iam\nbutton TarnwellCmd1\n"
                   "click frmPreview.cmdClone\ncheck frmCloneNames.chkTop\n",
               "click frmCloneNames.cmdClone\n");
}

TEST_F(CopyFaultsTest, BothPacksKeepTheirSourcesAndSaySo) {
    const std::string setup = kSetup +
                              "setting PackNLink TargetDir \"D:\\\"\nopen C:\\Cart\\Cart.iam\n"
                              "button TarnwellCmd1\nclick frmPreview.cmdPackNLink\nescape\n"
                              "check frmPacknLink.chkTop\n";
    EveryPoint(setup, "click frmPacknLink.cmdClone\n");
    EveryPoint(setup + "click frmPacknLink.optFromDisk\n", "click frmPacknLink.cmdClone\n");
}

}  // namespace
