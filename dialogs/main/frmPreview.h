#pragma once
#include "addin/AddinState.h"
#include "ui/Form.h"

namespace dialogs {

// Not built yet: the command opens an empty form with the dialog's caption.
class frmPreview : public ui::Form {
public:
    explicit frmPreview(addin::AddinState& state) : ui::Form(state.platform, "frmPreview", "Edit Part and Assembly Properties") {}

protected:
    void Build() override {}
};

}  // namespace dialogs
