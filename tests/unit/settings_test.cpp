#include "settings/Settings.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "scoped_env.h"
#include "test_support.h"

namespace {

class SettingsTest : public ::testing::Test {
protected:
    test_support::ScratchFolder scratch{"settings"};
    std::filesystem::path dir = scratch.Path();
    std::filesystem::path file = dir / "nested" / "settings.ini";
};

TEST_F(SettingsTest, DefaultsUntilSavedThenPersistsAcrossStores) {
    {
        settings::IniFileStore store(file);
        EXPECT_EQ(store.GetSetting("Tarnwell", "PreSufxClone", "Prefix", "!New-"), "!New-");
        store.SaveSetting("Tarnwell", "PreSufxClone", "Prefix", "");
        store.SaveSetting("Tarnwell", "PreSufxClone", "TargetDir", "C:\\Temp\\Out = here");
        store.SaveSetting("Tarnwell", "Preview", "DialogTop", "1200");
    }
    settings::IniFileStore reread(file);
    // An empty saved value is a value, not a missing key.
    EXPECT_EQ(reread.GetSetting("Tarnwell", "PreSufxClone", "Prefix", "!New-"), "");
    EXPECT_EQ(reread.GetSetting("Tarnwell", "PreSufxClone", "TargetDir"), "C:\\Temp\\Out = here");
    EXPECT_EQ(reread.GetSetting("Tarnwell", "Preview", "DialogTop"), "1200");
    // Sections and applications do not leak into each other.
    EXPECT_EQ(reread.GetSetting("Tarnwell", "PartProps", "DialogTop", "0"), "0");
    EXPECT_EQ(reread.GetSetting("Other", "Preview", "DialogTop", "x"), "x");
    EXPECT_FALSE(std::filesystem::exists(file.string() + ".tmp"));
}

TEST_F(SettingsTest, RefusesLineBreaksAndKeepsTheFileWhole) {
    settings::IniFileStore store(file);
    store.SaveSetting("Tarnwell", "GetColors", "ColorsTemplate", "C:\\T.ipt");
    EXPECT_THROW(store.SaveSetting("Tarnwell", "GetColors", "ColorsTemplate", "a\nb"), std::exception);
    EXPECT_THROW(store.SaveSetting("Tarnwell", "GetColors", "K=ey", "v"), std::exception);
    EXPECT_THROW(store.SaveSetting("Tarnwell", "Get]Colors", "Key", "v"), std::exception);
    EXPECT_EQ(settings::IniFileStore(file).GetSetting("Tarnwell", "GetColors", "ColorsTemplate"),
              "C:\\T.ipt");
}

TEST_F(SettingsTest, DefaultPathFollowsTheEnvironment) {
    {
        test_support::ScopedEnv settingsFile("TARNWELL_SETTINGS", (dir / "x.ini").string());
        EXPECT_EQ(settings::IniFileStore::DefaultPath(), dir / "x.ini");
    }
    test_support::ScopedEnv noSettingsFile("TARNWELL_SETTINGS", "");
    test_support::ScopedEnv configHome("XDG_CONFIG_HOME", dir.string());
    EXPECT_EQ(settings::IniFileStore::DefaultPath(), dir / "tarnwell" / "settings.ini");
}

// Two sessions on one file, and a file the user wrote by hand: a save changes its one key
// in the file as it is then, and nothing else.
TEST_F(SettingsTest, ASaveChangesOneKeyAndKeepsEveryOtherLineAndSession) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary)
        << "; my notes\n[Tarnwell\\Preview]\nDialogTop=10\nsomething odd\n\n[Other\\Tool]\nX=1\n";
    settings::IniFileStore first(file), second(file);
    first.SaveSetting("Tarnwell", "Preview", "DialogLeft", "20");
    second.SaveSetting("Tarnwell", "PackNLink", "TargetDir", "D:\\Out");
    first.SaveSetting("Tarnwell", "Preview", "DialogTop", "30");
    EXPECT_EQ(second.GetSetting("Tarnwell", "Preview", "DialogLeft", ""), "20");
    EXPECT_EQ(first.GetSetting("Tarnwell", "PackNLink", "TargetDir", ""), "D:\\Out");
    std::string text;
    {
        // Closed before the file is replaced below: Windows keeps an open file from being replaced.
        std::ifstream in(file, std::ios::binary);
        text.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
    EXPECT_EQ(
        text,
        "; my notes\n[Tarnwell\\Preview]\nDialogTop=30\nsomething odd\nDialogLeft=20\n\n[Other\\Tool]\nX=1\n"
        "[Tarnwell\\PackNLink]\nTargetDir=D:\\Out\n");
    for (const auto& entry : std::filesystem::directory_iterator(file.parent_path()))
        EXPECT_EQ(entry.path().filename(), file.filename()) << "no temporary file is left behind";

    // A key a person wrote twice: read and saved as one, the first (found by fuzzing).
    std::ofstream(file, std::ios::binary) << "[Tarnwell\\Preview]\nDialogTop=10\nDialogTop=20\n";
    EXPECT_EQ(first.GetSetting("Tarnwell", "Preview", "DialogTop", ""), "10");
    first.SaveSetting("Tarnwell", "Preview", "DialogTop", "30");
    EXPECT_EQ(first.GetSetting("Tarnwell", "Preview", "DialogTop", ""), "30");
}

}  // namespace
