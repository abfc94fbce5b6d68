#pragma once
#include <memory>

#include "addin/AddinState.h"
#include "ui/Form.h"

namespace host {
class ComponentOccurrences;
}

namespace dialogs {

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
    // Deletes the invisible occurrences of one collection, backwards; true when the
    // collection holds no visible occurrence.
    bool Sweep(host::ComponentOccurrences& occurrences);

    addin::AddinState& state_;
    std::intptr_t previousOwner_ = 0;
};

}  // namespace dialogs
