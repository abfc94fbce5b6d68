#pragma once
#include <cstdint>
#include <memory>

#include "addin/shared/AddinState.h"
#include "properties/clsTprop.h"
#include "ui/Form.h"

namespace host {
class Document;
class Property;
}  // namespace host

namespace properties {

// "IDW Settings": the properties a drawing's title blocks show, edited by double-click;
// the drawing's design status and deferred updates; the link from each model back to the
// drawing; and the merge of custom properties and the eMatrix attributes.
class frmIDW : public ui::Form {
public:
    explicit frmIDW(addin::AddinState& state);

protected:
    void Build() override;
    void Form_Load() override;
    void Form_QueryUnload(bool& cancel) override;

private:
    void cmdGetCustomProperties_Click();
    void cmdEmatrix_Click();
    void cmdLinkModels_Click();
    void lstProps_DblClick();
    void lstProps_MouseUp(int button);
    void chkDefer_Click();
    void cbxDesignState_Click();
    void cmdTBSwap_Click();
    void cmdCancel_Click();
    void mnuExplore_Click();

    void CollectTitleBlockProperties();
    void RefreshList();
    // Writes the answer to the record's property, or says why it could not.
    void WriteAnswer(const clsTprop& record, const std::string& answer);
    void FocusHost();

    addin::AddinState& state_;
    std::shared_ptr<host::Document> drawing_;
    std::shared_ptr<host::Property> designStatus_;
    TitleBlockProperties titleBlockProperties_;
    std::intptr_t previousOwner_ = 0;
    bool placed_ = false;
};

}  // namespace properties
