#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "addin/shared/AddinState.h"
#include "materials/records/MaterialRow.h"
#include "materials/records/RenderStyleRow.h"
#include "ui/Form.h"

namespace host {
class Document;
class Material;
class RenderStyle;
}  // namespace host

namespace materials {

// The address the "Internet" button opens: a public database of engineering materials.
inline constexpr const char* kMaterialsWebPage = "https://www.matweb.com/";

// "Import Material(s)": the materials of the working part, with their values; materials
// (and the render styles they use) imported from a template part file; a new material
// typed in and saved to the part, or to the template as well; and the purge of unused
// materials and colours.
class frmGetMaterial : public ui::Form {
public:
    explicit frmGetMaterial(addin::AddinState& state);

    static constexpr int kCollapsedWidth = 6585;
    static constexpr int kExpandedWidth = 10980;

protected:
    void Build() override;
    void Form_Load() override;
    void Form_Unload() override;

private:
    void cmdBrowse_Click();
    void cmdImportMaterials_Click();
    void Command1_Click();
    void ListBox1_Click();
    void ListBox1_DblClick();
    void CommandButton1_Click();
    void CommandButton2_Click();
    void cmdPurgeMat_Click();
    void cmdExpandDialog_Click();
    void cmdSaveMaterial_Click();
    void cmdInternet_Click();
    void txtMaterialName_LostFocus();
    void txtDensity_LostFocus();
    void txtLinear_LostFocus();
    void txtPoissons_LostFocus();
    void txtSpecificHeat_LostFocus();
    void txtThermal_LostFocus();
    void txtTensile_LostFocus();
    void txtYeild_LostFocus();
    void txtModulus_LostFocus();

    void RefreshTargetMaterials();
    void ShowMaterialProperties();
    void ApplySelectedMaterial();
    void LoadSourceTemplate(const std::string& path);
    // The material made or overwritten from the row of `table` named `name`; null when
    // the user declined the overwrite or the row could not be used (said to the user).
    std::shared_ptr<host::Material> CreateMaterial(const std::string& name,
                                                   const std::vector<MaterialRow>& table);
    void ResolveRenderStyle(const std::string& styleName, host::Document& document);
    void WriteMaterialToTemplate(const std::string& path, host::Material& material);

    void CheckField(const char* control, bool mustBeNumber);
    std::string SelectedText(ui::Control& list);
    void CloseToHost();

    addin::AddinState& state_;
    std::shared_ptr<host::Document> document_;
    std::vector<MaterialRow> targetMaterialTable_;
    std::vector<MaterialRow> sourceMaterialTable_;
    std::vector<RenderStyleRow> sourceStyleTable_;
    bool sourceLoaded_ = false;
    MaterialRow newMaterialRow_;
    std::shared_ptr<host::RenderStyle> currentStyle_;
    bool expanded_ = false;
    std::intptr_t previousOwner_ = 0;
};

}  // namespace materials
