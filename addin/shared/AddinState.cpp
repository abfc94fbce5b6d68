#include "addin/shared/AddinState.h"

#include "host/Application.h"
#include "host/Component.h"
#include "host/Document.h"
#include "settings/Settings.h"
#include "support/Error.h"

namespace addin {

AddinState::AddinState(Environment env)
    : platform(env.platform), settings(env.settings), fileSystem(env.fileSystem) {}

AddinState::~AddinState() = default;

host::Application& AddinState::App() {
    return *support::Required(app, "host application");
}

std::string AddinState::GetSetting(const std::string& section, const std::string& key,
                                   const std::string& defaultValue) const {
    return settings.GetSetting(kSettingsApp, section, key, defaultValue);
}

void AddinState::SaveSetting(const std::string& section, const std::string& key, const std::string& value) {
    settings.SaveSetting(kSettingsApp, section, key, value);
}

}  // namespace addin
