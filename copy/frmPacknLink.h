#pragma once
#include "copy/BaseAssemblyForm.h"

namespace copy {

// Pack-N-Link: copies an assembly and every file it references, names unchanged, into
// one target folder and relinks the copies, from memory (unsaved edits included) or
// disk to disk. Its choices persist in "PackNLink".
class frmPacknLink : public BaseAssemblyForm {
public:
    explicit frmPacknLink(addin::AddinState& state);

protected:
    void Build() override;
    void Form_Activate() override;
    void Form_Unload() override;

private:
    void cmdClone_Click();

    // Set when the walk refused the target folder; each pack starts with it cleared, and
    // the walk starts nothing while it is set.
    bool packStop_ = false;
};

}  // namespace copy
