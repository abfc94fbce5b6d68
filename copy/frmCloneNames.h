#pragma once
#include <string>

#include "copy/BaseAssemblyForm.h"

namespace copy {

// "Clone Assemblies to New Names": copies the top document or a picked sub-assembly
// with its whole tree under new names (prefix and/or suffix) into a target folder and
// points every reference at the copies. Its choices persist in "PreSufxClone".
class frmCloneNames : public BaseAssemblyForm {
public:
    explicit frmCloneNames(addin::AddinState& state);

protected:
    void Build() override;
    void Form_Activate() override;
    void Form_Unload() override;

private:
    void cmdClone_Click();
    // The checks of Execute Clone, in their order; false after showing the first failure.
    bool CheckChoices();
    void LoadSettings();
    void SaveSettings();
};

}  // namespace copy
