#include "addin/shared/DialogPosition.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "addin/shared/AddinState.h"
#include "support/Text.h"
#include "ui/Form.h"

namespace addin {

namespace {

// The platform's conversion to a 16-bit integer rounds half to even.
int ToPosition(const std::string& text, const std::string& fallback) {
    for (const auto& candidate : {text, fallback}) {
        auto number = support::ParseNumber(candidate);
        if (!number) continue;
        double rounded = std::nearbyint(*number);
        if (rounded >= std::numeric_limits<std::int16_t>::min() &&
            rounded <= std::numeric_limits<std::int16_t>::max())
            return static_cast<int>(rounded);
    }
    return 0;
}

}  // namespace

void RestorePosition(addin::AddinState& state, ui::Form& form, const std::string& section,
                     const std::string& defaultValue) {
    form.Top = ToPosition(state.GetSetting(section, "DialogTop", defaultValue), defaultValue);
    form.Left = ToPosition(state.GetSetting(section, "DialogLeft", defaultValue), defaultValue);
}

void SavePosition(addin::AddinState& state, const ui::Form& form, const std::string& section) {
    state.SaveSetting(section, "DialogTop", support::NumberToText(form.Top));
    state.SaveSetting(section, "DialogLeft", support::NumberToText(form.Left));
}

}  // namespace addin
