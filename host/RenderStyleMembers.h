#pragma once
#include <cstdint>

namespace host {

// The render style's members as the host's automation interface knows them: by dispatch
// identifier. The names are the ones host::RenderStyle gives them.
struct RenderStyleMember {
    const char* name;
    std::int32_t dispatchId;
};

inline constexpr RenderStyleMember kRenderStyleMembers[] = {
    {"GetAmbientColor", 0x3006C01},  {"SetAmbientColor", 0x3006C02},
    {"GetDiffuseColor", 0x3006C03},  {"SetDiffuseColor", 0x3006C04},
    {"GetSpecularColor", 0x3006C05}, {"SetSpecularColor", 0x3006C06},
    {"GetEmissiveColor", 0x3006C07}, {"SetEmissiveColor", 0x3006C08},
    {"Opacity", 0x3006C09},          {"Shininess", 0x3006C0A},
    {"TextureFilename", 0x3006C0D},  {"TextureRotation", 0x3006C0E},
    {"TextureScale", 0x3006C0F},     {"Name", 0x3006C10},
};

}  // namespace host
