// Assembly structure: occurrences, component definitions, mass properties.
#include "win/hostface/Faces.h"

namespace win::hostface {

namespace {
host::Matrix Position(const InvokeArgs& args, std::size_t i) {
    auto matrix = TargetOf<host::Matrix>(args, i);
    if (!matrix) throw com::InvokeError{DISP_E_TYPEMISMATCH, static_cast<UINT>(args.Count() - 1 - i)};
    return *matrix;
}
}  // namespace

TW_FACE_TABLE(host::ComponentOccurrences) {
    static const FaceMember<host::ComponentOccurrences> table[] = {
        {L"Count", TW_GET(o.Count())},
        {L"Item", TW_GET(Face(o.Item(Long(a, 0))))},
        // FullDocumentName, Position (a Matrix)
        {L"Add", TW_GET(Face(o.Add(Text(a, 0), Position(a, 1))))},
    };
    return table;
}

TW_FACE_TABLE(host::ComponentOccurrence) {
    static const FaceMember<host::ComponentOccurrence> table[] = {
        {L"Type", TW_GET(o.Type())},
        {L"Name", TW_GET(o.Name()), TW_PUT(o.SetName(v.ToText()))},
        {L"Visible", TW_GET(o.Visible()), TW_PUT(o.SetVisible(v.ToBool()))},
        {L"Grounded", TW_GET(o.Grounded()), TW_PUT(o.SetGrounded(v.ToBool()))},
        {L"Transformation", TW_GET(Face(std::make_shared<host::Matrix>(o.Transformation())))},
        {L"Definition", TW_GET(Face(o.Definition()))},
        {L"SubOccurrences", TW_GET(Face(o.SubOccurrences()))},
        {L"Delete", TW_DO(o.Delete())},
        {L"Replace", TW_DO(o.Replace(Text(a, 0), Flag(a, 1)))},  // FileName, ReplaceAll
    };
    return table;
}

TW_FACE_TABLE(host::ComponentDefinition) {
    static const FaceMember<host::ComponentDefinition> table[] = {
        {L"Type", TW_GET(o.Type())},
        {L"Document", TW_GET(Face(o.Document()))},
        {L"Occurrences", TW_GET(Face(o.Occurrences()))},
        {L"MassProperties", TW_GET(Face(o.MassProperties()))},
        {L"Material", TW_GET(Face(o.Material())),
         TW_PUT(o.SetMaterial(TargetOf<host::Material>(a, a.Count() - 1)))},
        {L"AttributeSets", TW_GET(Face(o.AttributeSets()))},
        {L"IsiPartMember", TW_GET(o.IsiPartMember())},
        {L"BreakLinkToFactory", TW_DO(o.BreakLinkToFactory())},
    };
    return table;
}

TW_FACE_TABLE(host::MassProperties) {
    static const FaceMember<host::MassProperties> table[] = {
        {L"Mass", TW_GET(o.Mass())},
        {L"Volume", TW_GET(o.Volume())},
    };
    return table;
}

TW_FACE(host::ComponentOccurrences)
TW_FACE(host::ComponentOccurrence)
TW_FACE(host::ComponentDefinition)
TW_FACE(host::MassProperties)

}  // namespace win::hostface
