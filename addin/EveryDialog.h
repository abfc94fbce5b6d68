#pragma once
#include <vector>

#include "addin/shared/AddinState.h"

namespace addin {

// Every dialog the add-in has, each the process-wide instance of its state, in the order a
// designer meets them: the three the commands open, then those they lead to. For views of
// them all (layout checks, screenshots); a new dialog belongs here too.
std::vector<ui::Form*> EveryDialog(AddinState& state);

}  // namespace addin
