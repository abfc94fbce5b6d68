#include "addin/EveryDialog.h"

#include "copy/frmCloneNames.h"
#include "copy/frmOpenIDW.h"
#include "copy/frmPacknLink.h"
#include "copy/frmSaveAsReplace.h"
#include "dialogs/main/frmDeleteInvisible.h"
#include "dialogs/main/frmPreview.h"
#include "materials/frmGetColor.h"
#include "materials/frmGetMaterial.h"
#include "materials/frmOverrideWeight.h"
#include "properties/frmIDW.h"
#include "properties/frmMergeCustomProperties.h"
#include "properties/frmPartProps.h"
#include "properties/frmUpdateMatrix.h"
#include "purge/frmPurge.h"

namespace addin {

std::vector<ui::Form*> EveryDialog(AddinState& state) {
    return {&state.Dialog<dialogs::frmPreview>(),
            &state.Dialog<properties::frmPartProps>(),
            &state.Dialog<properties::frmIDW>(),
            &state.Dialog<dialogs::frmDeleteInvisible>(),
            &state.Dialog<copy::frmCloneNames>(),
            &state.Dialog<copy::frmPacknLink>(),
            &state.Dialog<copy::frmSaveAsReplace>(),
            &state.Dialog<copy::frmOpenIDW>(),
            &state.Dialog<materials::frmGetMaterial>(),
            &state.Dialog<materials::frmGetColor>(),
            &state.Dialog<materials::frmOverrideWeight>(),
            &state.Dialog<properties::frmUpdateMatrix>(),
            &state.Dialog<properties::frmMergeCustomProperties>(),
            &state.Dialog<purge::frmPurge>()};
}

}  // namespace addin
