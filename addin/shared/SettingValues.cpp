#include "addin/shared/SettingValues.h"

#include <cmath>

#include "addin/shared/AddinState.h"
#include "support/Error.h"
#include "support/Text.h"
#include "support/Variant.h"

namespace addin {

int ReadWholeSetting(AddinState& state, const std::string& section, const std::string& key, int defaultValue,
                     int min, int max) {
    auto number = support::ParseNumber(state.GetSetting(section, key, std::to_string(defaultValue)));
    if (!number) return defaultValue;
    double rounded = std::nearbyint(*number);
    if (!(rounded >= min && rounded <= max)) return defaultValue;
    return static_cast<int>(rounded);
}

bool ReadBoolSetting(AddinState& state, const std::string& section, const std::string& key,
                     bool defaultValue) {
    try {
        return support::Variant(state.GetSetting(section, key, BoolToSetting(defaultValue))).ToBool();
    } catch (const support::Error&) {
        return defaultValue;
    }
}

std::string BoolToSetting(bool value) {
    return value ? "True" : "False";
}

}  // namespace addin
