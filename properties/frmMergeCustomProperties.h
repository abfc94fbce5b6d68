#pragma once
#include "addin/shared/AddinState.h"
#include "ui/Form.h"

namespace properties {

// "Retreive and Merge Custom iProperties from IDW File": copies into the active document
// every custom property of a template drawing whose identifier it does not use yet. The
// template's name is kept in "MergeIDWProperties".
class frmMergeCustomProperties : public ui::Form {
public:
    explicit frmMergeCustomProperties(addin::AddinState& state);

protected:
    void Build() override;
    void Form_Load() override;

private:
    void cmdBrowse_Click();
    void cmdMerge_Click();
    void cmdCancel_Click();
    void Merge(const std::string& templateFile);

    addin::AddinState& state_;
};

}  // namespace properties
