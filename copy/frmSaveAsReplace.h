#pragma once
#include <memory>

#include "addin/shared/AddinState.h"
#include "addin/shared/clsSelect.h"
#include "ui/Form.h"

namespace host {
class ComponentOccurrence;
class Document;
}  // namespace host

namespace copy {

// "Save Copy and Replace": saves one picked component's file under a new name and
// points the picked occurrence (or every occurrence of that file in its parent) at the
// copy. It does not descend into sub-assemblies.
class frmSaveAsReplace : public ui::Form {
public:
    explicit frmSaveAsReplace(addin::AddinState& state);

protected:
    void Build() override;
    void Form_Load() override;
    void Form_Unload() override;

private:
    void cmdSelect_Click();
    void cmdBrowse_Click();
    void MakeIndependent_Click();
    void CommandButton1_Click();

    addin::AddinState& state_;
    addin::clsSelect select_;
    std::shared_ptr<host::ComponentOccurrence> occurrence_;
    std::shared_ptr<host::Document> document_;
};

}  // namespace copy
