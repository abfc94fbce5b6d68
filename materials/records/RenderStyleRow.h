#pragma once
#include <string>
#include <vector>

#include "host/Styles.h"

namespace materials {

// A render style as the dialogs move it: its name, five values with the texture's file
// name among them, and four colours. Written back colours first, then the values.
struct RenderStyleRow {
    std::string name;
    double opacity = 0;
    double shininess = 0;
    std::string textureFilename;
    double textureScale = 0;
    double textureRotation = 0;
    host::Rgb emissive, ambient, specular, diffuse;  // in the order they are written
};

RenderStyleRow ReadRenderStyleRow(host::RenderStyle& style);
void CopyRowToStyle(const RenderStyleRow& row, host::RenderStyle& style);

// The first row of that name; null when none has it.
const RenderStyleRow* FindStyleRow(const std::vector<RenderStyleRow>& table, const std::string& name);

}  // namespace materials
