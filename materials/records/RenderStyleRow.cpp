#include "materials/records/RenderStyleRow.h"

namespace materials {

RenderStyleRow ReadRenderStyleRow(host::RenderStyle& style) {
    RenderStyleRow row;
    row.name = style.Name();
    row.opacity = style.Opacity();
    row.shininess = style.Shininess();
    row.textureFilename = style.TextureFilename();
    row.textureScale = style.TextureScale();
    row.textureRotation = style.TextureRotation();
    row.emissive = style.GetEmissiveColor();
    row.ambient = style.GetAmbientColor();
    row.specular = style.GetSpecularColor();
    row.diffuse = style.GetDiffuseColor();
    return row;
}

void CopyRowToStyle(const RenderStyleRow& row, host::RenderStyle& style) {
    style.SetEmissiveColor(row.emissive);
    style.SetAmbientColor(row.ambient);
    style.SetSpecularColor(row.specular);
    style.SetDiffuseColor(row.diffuse);
    style.SetOpacity(row.opacity);
    style.SetShininess(row.shininess);
    style.SetTextureFilename(row.textureFilename);
    style.SetTextureScale(row.textureScale);
    style.SetTextureRotation(row.textureRotation);
}

const RenderStyleRow* FindStyleRow(const std::vector<RenderStyleRow>& table, const std::string& name) {
    for (const auto& row : table)
        if (row.name == name) return &row;
    return nullptr;
}

}  // namespace materials
