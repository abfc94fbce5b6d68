#pragma once
#include <memory>
#include <string>

#include "addin/shared/AddinState.h"
#include "ui/Form.h"

namespace host {
class Document;
class PropertySet;
}  // namespace host

namespace properties {

// "Update eMatrix Properties": the data the eMatrix PDM system reads from the working
// document (description, revision, part number, commodity, unique file name, library),
// committed at once with "OK - Commit".
class frmUpdateMatrix : public ui::Form {
public:
    explicit frmUpdateMatrix(addin::AddinState& state);

protected:
    void Build() override;
    void Form_Load() override;

private:
    void cboComCode_Click();
    void cboLibrary_Click();
    void OKButton_Click();
    void CancelButton_Click();

    void LoadCommodityList();
    // The document's "eMatrix" set, repaired first when the user agrees; null when none.
    std::shared_ptr<host::PropertySet> FindEMatrixSet();
    void ShowLibrary(const std::string& library, bool stored);
    void SelectLibrary(const std::string& library);
    void Commit();

    addin::AddinState& state_;
    std::shared_ptr<host::Document> document_;
    bool setFound_ = false;
    std::string storedLibrary_;
    std::string commodity_;  // the whole commodity entry
};

}  // namespace properties
