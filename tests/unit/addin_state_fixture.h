#pragma once
// An add-in state over the stand-in host (the sample workspace as drive C:), the headless
// platform writing into a string, and settings kept in memory: what a dialog needs to run
// without the session driver.
#include <map>
#include <sstream>
#include <string>

#include "addin/shared/AddinState.h"
#include "settings/Settings.h"
#include "simhost_fixture.h"
#include "ui/headless/HeadlessPlatform.h"

namespace addin_test {

class MemorySettings : public settings::Store {
public:
    std::map<std::string, std::string> values;  // "Section/Key"
    std::string GetSetting(const std::string&, const std::string& section, const std::string& key,
                           const std::string& defaultValue) const override {
        auto it = values.find(section + "/" + key);
        return it == values.end() ? defaultValue : it->second;
    }
    void SaveSetting(const std::string&, const std::string& section, const std::string& key,
                     const std::string& value) override {
        values[section + "/" + key] = value;
    }
};

class AddinStateTest : public simhost_test::SimHostTest {
protected:
    std::ostringstream out;
    ui::headless::Transcript transcript{out};
    ui::headless::HeadlessPlatform platform{transcript};
    MemorySettings settings;
    std::unique_ptr<addin::AddinState> state;

    void SetUp() override {
        SimHostTest::SetUp();
        state =
            std::make_unique<addin::AddinState>(addin::Environment{platform, settings, host.FileSystem()});
        state->app = host.Application();
    }
    void TearDown() override {
        state.reset();
        SimHostTest::TearDown();
    }
    void Answer(ui::headless::Prompt prompt, std::string text) {
        platform.QueueAnswer(prompt, ui::headless::Answer{std::move(text), 0});
    }
};

}  // namespace addin_test
