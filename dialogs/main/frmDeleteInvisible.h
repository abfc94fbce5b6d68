#pragma once
#include <memory>

#include "addin/shared/AddinState.h"
#include "ui/Form.h"

namespace host {
class ComponentOccurrences;
}

namespace dialogs {

// Deletes the invisible occurrences of one collection, last to first; true when the
// collection holds no visible occurrence. With allLevels each occurrence's own
// components are swept first, and an invisible occurrence goes only when nothing visible
// was found below it; without it nothing is deleted. A visibility that cannot be read
// is read once more, and when that fails too the previous occurrence's answer counts.
bool SweepInvisible(host::ComponentOccurrences& occurrences, bool allLevels, ui::Platform& platform);

// "Delelet Invisible Components": deletes the components of the active assembly that
// are not visible, after two confirmations.
class frmDeleteInvisible : public ui::Form {
public:
    explicit frmDeleteInvisible(addin::AddinState& state);

    // The warning shown in the dialog, in its ten lines.
    static const char* const kWarning;

protected:
    void Build() override;
    void Form_Load() override;

private:
    void cmdDelete_Click();
    void cmdCancel_Click();

    addin::AddinState& state_;
    std::intptr_t previousOwner_ = 0;
};

}  // namespace dialogs
