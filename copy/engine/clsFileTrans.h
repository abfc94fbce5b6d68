#pragma once
#include <string>

#include "host/Object.h"

namespace copy {

// One visible part occurrence to place in a built assembly: its file and where it sits,
// in the coordinates of the top assembly.
struct clsFileTrans {
    std::string FullFileName;
    host::Matrix Transformation;
};

}  // namespace copy
