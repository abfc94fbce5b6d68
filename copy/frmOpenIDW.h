#pragma once
#include <memory>

#include "addin/shared/AddinState.h"
#include "ui/Form.h"

namespace host {
class Document;
}

namespace copy {

// "Link Matching IDW": opens the drawing of the working document (a part or an
// assembly) and keeps the link in the model itself, as the attributes "IDWFile" and
// "IDWPath" of its set "Tarnwell", so that the drawing is found at once next time.
class frmOpenIDW : public ui::Form {
public:
    explicit frmOpenIDW(addin::AddinState& state);

protected:
    void Build() override;
    void Form_Load() override;

private:
    void cmdBrowse_Click();
    void cmdOpenIDW_Click();
    void cmdCancel_Click();
    // "Open IDW" is enabled only while the shown drawing exists on disk.
    void txtDrawingFile_Change();
    void txtDrawingPath_Change();
    void UpdateOpenButton();
    std::string DrawingFullFileName();

    addin::AddinState& state_;
    std::shared_ptr<host::Document> model_;
};

}  // namespace copy
