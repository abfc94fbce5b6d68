#pragma once
#include "addin/AddinState.h"
#include "ui/Form.h"

namespace properties {

// Not built yet: the command opens an empty form with the dialog's caption.
class frmPartProps : public ui::Form {
public:
    explicit frmPartProps(addin::AddinState& state) : ui::Form(state.platform, "frmPartProps", "Edit Part Properties") {}

protected:
    void Build() override {}
};

}  // namespace properties
