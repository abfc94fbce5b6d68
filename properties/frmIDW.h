#pragma once
#include "addin/shared/AddinState.h"
#include "ui/Form.h"

namespace properties {

// Not built yet: the command opens an empty form with the dialog's caption.
class frmIDW : public ui::Form {
public:
    explicit frmIDW(addin::AddinState& state) : ui::Form(state.platform, "frmIDW", "IDW Settings") {}

protected:
    void Build() override {}
};

}  // namespace properties
