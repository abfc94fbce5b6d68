#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "addin/shared/AddinState.h"
#include "materials/records/RenderStyleRow.h"
#include "ui/Form.h"

namespace host {
class Document;
class RenderStyle;
}  // namespace host

namespace materials {

// "Import Color(s)": the render styles of the working document, applied to a part,
// imported from a part or assembly file, and purged when unused.
class frmGetColor : public ui::Form {
public:
    explicit frmGetColor(addin::AddinState& state);

protected:
    void Build() override;
    void Form_Load() override;
    void Form_Unload() override;

private:
    void cmdBrowse_Click();
    void cmdImportMaterials_Click();
    void Command1_Click();
    void cmdPurgeColor_Click();
    void CommandButton1_Click();
    void CommandButton2_Click();

    void RefreshTargetColors();
    void ApplySelectedColor();
    void LoadSourceColors(const std::string& path);
    void ImportColor(const std::string& name);
    void CopyStyleFromSource(const std::string& name);
    void CloseToHost();

    addin::AddinState& state_;
    std::shared_ptr<host::Document> document_;
    std::vector<RenderStyleRow> sourceStyleTable_;
    std::shared_ptr<host::RenderStyle> currentStyle_;
    std::intptr_t previousOwner_ = 0;
};

}  // namespace materials
