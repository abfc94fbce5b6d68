#pragma once
#include <memory>
#include <string>

#include "addin/shared/AddinState.h"
#include "ui/Form.h"

namespace host {
class Document;
}

namespace materials {

// The material that carries a part's overridden weight.
inline constexpr const char* kOverrideMaterial = "Override";

// "Override Weight": makes the working part weigh a target mass by solving the density of
// its material from the part's volume; the density is carried by the "Override" material.
class frmOverrideWeight : public ui::Form {
public:
    explicit frmOverrideWeight(addin::AddinState& state);

protected:
    void Build() override;
    void Form_Load() override;
    void Form_Unload() override;

private:
    void cboMassUnits_Click();
    void tbxTargetWeight_Change();
    void Command1_Click();
    void Command2_Click();

    void RefreshWeightDisplay();
    bool AssignMaterialByName(const std::string& name);
    void CreateOverrideMaterial(const std::string& name, double density);

    addin::AddinState& state_;
    std::shared_ptr<host::Document> document_;
    double volume_ = 0;  // cm^3, as the host last gave it
};

}  // namespace materials
