#include "addin/shared/DialogPosition.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "addin/shared/AddinState.h"
#include "addin/shared/SettingValues.h"
#include "support/Text.h"
#include "ui/Form.h"

namespace addin {

void RestorePosition(addin::AddinState& state, ui::Form& form, const std::string& section) {
    constexpr int kMin = std::numeric_limits<std::int16_t>::min(),
                  kMax = std::numeric_limits<std::int16_t>::max();
    form.Top = ReadWholeSetting(state, section, "DialogTop", 0, kMin, kMax);
    form.Left = ReadWholeSetting(state, section, "DialogLeft", 0, kMin, kMax);
}

void SavePosition(addin::AddinState& state, const ui::Form& form, const std::string& section) {
    state.SaveSetting(section, "DialogTop", support::NumberToText(form.Top));
    state.SaveSetting(section, "DialogLeft", support::NumberToText(form.Left));
}

}  // namespace addin
