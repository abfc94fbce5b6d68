#pragma once
#include <memory>

#include "addin/shared/AddinState.h"
#include "ui/Form.h"

namespace host {
class Document;
}

namespace properties {

// "Edit Part Properties": the twelve property lines of one part or assembly, edited by
// double-click. The document is fixed when the dialog loads: the active part, or the
// assembly being edited at top level.
class frmPartProps : public ui::Form {
public:
    explicit frmPartProps(addin::AddinState& state);

protected:
    void Build() override;
    void Form_Load() override;
    void Form_QueryUnload(bool& cancel) override;

private:
    void Refresh();
    void ListBox1_DblClick();
    void ListBox1_MouseUp(int button);
    void SaveCopy();
    void OpenNestedDialog(ui::Form& dialog);
    void cmdOpenIDW_Click();
    void cmdCancel_Click();
    void mnuExplore_Click();
    void BringHostToFront();

    addin::AddinState& state_;
    std::shared_ptr<host::Document> target_;
    addin::VbBool assemblyContext_ = addin::kVbFalse;
    std::intptr_t previousOwner_ = 0;
    bool placed_ = false;  // a load refused before placing the dialog must not save its place
};

}  // namespace properties
