// Materials, render styles and units of measure.
#include "host/RenderStyleMembers.h"
#include "win/hostface/Faces.h"

namespace win::hostface {

namespace {
// The render style's DISPIDs, by the names host::RenderStyle gives its members.
DISPID RenderStyleId(std::string_view name) {
    for (const auto& member : host::kRenderStyleMembers)
        if (name == member.name) return member.dispatchId;
    throw "no render style member of that name";  // a typo in the table below: fails at start
}

// A colour comes out through three Byte arguments by reference and goes in as three values.
support::Variant ColorOut(const InvokeArgs& args, host::Rgb color) {
    args.SetOut(0, std::int16_t(color.red));
    args.SetOut(1, std::int16_t(color.green));
    args.SetOut(2, std::int16_t(color.blue));
    return {};
}
host::Rgb ColorIn(const InvokeArgs& args) {
    auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(Long(args, i)); };
    return {byte(0), byte(1), byte(2)};
}
}  // namespace

TW_FACE_TABLE(host::Materials) {
    static const FaceMember<host::Materials> table[] = {
        {L"Count", TW_GET(o.Count())},
        {L"Item", TW_GET(Face(ByName(a) ? o.Item(Text(a, 0)) : o.Item(Long(a, 0))))},
        {L"Add", TW_GET(Face(o.Add(Text(a, 0), Real(a, 1))))},  // Name, Density
    };
    return table;
}

TW_FACE_TABLE(host::Material) {
    static const FaceMember<host::Material> table[] = {
        {L"Name", TW_GET(o.Name())},
        {L"InUse", TW_GET(o.InUse())},
        {L"StyleLocation", TW_GET(o.StyleLocation())},
        {L"Delete", TW_DO(o.Delete())},
        {L"Density", TW_GET(o.Density()), TW_PUT(o.SetDensity(v.ToDouble()))},
        {L"LinearExpansion", TW_GET(o.LinearExpansion()), TW_PUT(o.SetLinearExpansion(v.ToDouble()))},
        {L"PoissonsRatio", TW_GET(o.PoissonsRatio()), TW_PUT(o.SetPoissonsRatio(v.ToDouble()))},
        {L"SpecificHeat", TW_GET(o.SpecificHeat()), TW_PUT(o.SetSpecificHeat(v.ToDouble()))},
        {L"ThermalConductivity", TW_GET(o.ThermalConductivity()),
         TW_PUT(o.SetThermalConductivity(v.ToDouble()))},
        {L"UltimateTensileStrength", TW_GET(o.UltimateTensileStrength()),
         TW_PUT(o.SetUltimateTensileStrength(v.ToDouble()))},
        {L"YieldStrength", TW_GET(o.YieldStrength()), TW_PUT(o.SetYieldStrength(v.ToDouble()))},
        {L"YoungsModulus", TW_GET(o.YoungsModulus()), TW_PUT(o.SetYoungsModulus(v.ToDouble()))},
        {L"RenderStyle", TW_GET(Face(o.RenderStyle())),
         TW_PUT(o.SetRenderStyle(TargetOf<host::RenderStyle>(a, a.Count() - 1)))},
    };
    return table;
}

TW_FACE_TABLE(host::RenderStyles) {
    static const FaceMember<host::RenderStyles> table[] = {
        {L"Count", TW_GET(o.Count())},
        {L"Item", TW_GET(Face(ByName(a) ? o.Item(Text(a, 0)) : o.Item(Long(a, 0))))},
        {L"Add", TW_GET(Face(o.Add(Text(a, 0))))},
    };
    return table;
}

TW_FACE_TABLE(host::RenderStyle) {
    static const FaceMember<host::RenderStyle> table[] = {
        {L"InUse", TW_GET(o.InUse())},
        {L"StyleLocation", TW_GET(o.StyleLocation())},
        {L"Delete", TW_DO(o.Delete())},
        {L"Name", TW_GET(o.Name()), nullptr, RenderStyleId("Name")},
        {L"Opacity", TW_GET(o.Opacity()), TW_PUT(o.SetOpacity(v.ToDouble())), RenderStyleId("Opacity")},
        {L"Shininess", TW_GET(o.Shininess()), TW_PUT(o.SetShininess(v.ToDouble())),
         RenderStyleId("Shininess")},
        {L"TextureFilename", TW_GET(o.TextureFilename()), TW_PUT(o.SetTextureFilename(v.ToText())),
         RenderStyleId("TextureFilename")},
        {L"TextureScale", TW_GET(o.TextureScale()), TW_PUT(o.SetTextureScale(v.ToDouble())),
         RenderStyleId("TextureScale")},
        {L"TextureRotation", TW_GET(o.TextureRotation()), TW_PUT(o.SetTextureRotation(v.ToDouble())),
         RenderStyleId("TextureRotation")},
        {L"GetAmbientColor", TW_GET(ColorOut(a, o.GetAmbientColor())), nullptr,
         RenderStyleId("GetAmbientColor")},
        {L"SetAmbientColor", TW_DO(o.SetAmbientColor(ColorIn(a))), nullptr, RenderStyleId("SetAmbientColor")},
        {L"GetDiffuseColor", TW_GET(ColorOut(a, o.GetDiffuseColor())), nullptr,
         RenderStyleId("GetDiffuseColor")},
        {L"SetDiffuseColor", TW_DO(o.SetDiffuseColor(ColorIn(a))), nullptr, RenderStyleId("SetDiffuseColor")},
        {L"GetSpecularColor", TW_GET(ColorOut(a, o.GetSpecularColor())), nullptr,
         RenderStyleId("GetSpecularColor")},
        {L"SetSpecularColor", TW_DO(o.SetSpecularColor(ColorIn(a))), nullptr,
         RenderStyleId("SetSpecularColor")},
        {L"GetEmissiveColor", TW_GET(ColorOut(a, o.GetEmissiveColor())), nullptr,
         RenderStyleId("GetEmissiveColor")},
        {L"SetEmissiveColor", TW_DO(o.SetEmissiveColor(ColorIn(a))), nullptr,
         RenderStyleId("SetEmissiveColor")},
    };
    return table;
}

TW_FACE_TABLE(host::UnitsOfMeasure) {
    static const FaceMember<host::UnitsOfMeasure> table[] = {
        // Value, UnitsSpecifier: a UnitsTypeEnum value or the units as text
        {L"GetStringFromValue", TW_GET(a.At(1).Type() == support::VariantType::String
                                           ? o.GetStringFromValue(Real(a, 0), Text(a, 1))
                                           : o.GetStringFromValue(Real(a, 0), Long(a, 1)))},
        {L"GetValueFromExpression", TW_GET(o.GetValueFromExpression(Text(a, 0), Long(a, 1)))},
        {L"GetStringFromType", TW_GET(o.GetStringFromType(Long(a, 0)))},
        {L"MassUnits", TW_GET(o.MassUnits()), TW_PUT(o.SetMassUnits(Long(v)))},
        {L"LengthUnits", TW_GET(o.LengthUnits())},
    };
    return table;
}

TW_FACE(host::Materials)
TW_FACE(host::Material)
TW_FACE(host::RenderStyles)
TW_FACE(host::RenderStyle)
TW_FACE(host::UnitsOfMeasure)

}  // namespace win::hostface
