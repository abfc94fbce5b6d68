// Documents: the collection, each document and a drawing's own objects.
#include "win/hostface/Faces.h"

namespace win::hostface {

TW_FACE_TABLE(host::Documents) {
    static const FaceMember<host::Documents> table[] = {
        {L"Count", TW_GET(o.Count())},
        {L"Item", TW_GET(Face(o.Item(Long(a, 0))))},
        // FullDocumentName, [OpenVisible = True]
        {L"Open", TW_GET(Face(o.Open(Text(a, 0), Given(a, 1) ? Flag(a, 1) : true)))},
        // DocumentType, [TemplateFileName], [CreateVisible = True]
        {L"Add",
         TW_GET(Face(o.Add(Long(a, 0), Given(a, 1) ? Text(a, 1) : "", Given(a, 2) ? Flag(a, 2) : true)))},
    };
    return table;
}

TW_FACE_TABLE(host::Document) {
    static const FaceMember<host::Document> table[] = {
        {L"Type", TW_GET(o.Type())},
        {L"FullFileName", TW_GET(o.FullFileName())},
        {L"DisplayName", TW_GET(o.DisplayName()), TW_PUT(o.SetDisplayName(v.ToText()))},
        {L"DocumentType", TW_GET(o.DocumentType())},
        {L"SaveAs", TW_DO(o.SaveAs(Text(a, 0), Flag(a, 1)))},
        {L"Save", TW_DO(o.Save())},
        {L"Close", TW_DO(o.Close(Given(a, 0) && Flag(a, 0)))},  // [SkipSave = False]
        {L"Dirty", TW_GET(o.Dirty()), TW_PUT(o.SetDirty(v.ToBool()))},
        {L"IsModifiable", TW_GET(o.IsModifiable())},
        {L"ReservedForWrite", TW_GET(o.ReservedForWrite())},
        {L"ReservedForWriteName", TW_GET(o.ReservedForWriteName())},
        {L"DisabledCommandTypes", TW_GET(o.DisabledCommandTypes()),
         TW_PUT(o.SetDisabledCommandTypes(Long(v)))},
        {L"SoftwareVersionSaved",
         TW_GET(Face(std::make_shared<SoftwareVersionView>(SoftwareVersionView{o.SoftwareVersionSaved()})))},
        {L"NeedsMigrating", TW_GET(o.NeedsMigrating())},
        {L"PropertySets", TW_GET(Face(o.PropertySets()))},
        {L"UnitsOfMeasure", TW_GET(Face(o.UnitsOfMeasure()))},
        {L"ComponentDefinition", TW_GET(Face(o.ComponentDefinition()))},
        {L"ReferencedDocuments", TW_GET(Face(std::make_shared<DocumentList>(o.ReferencedDocuments())))},
        {L"Thumbnail", TW_GET(o.Thumbnail())},
        {L"Materials", TW_GET(Face(o.Materials()))},
        {L"RenderStyles", TW_GET(Face(o.RenderStyles()))},
        {L"ActiveMaterial", TW_GET(Face(o.ActiveMaterial()))},
        {L"ActiveRenderStyle", TW_GET(Face(o.ActiveRenderStyle())),
         TW_PUT(o.SetActiveRenderStyle(TargetOf<host::RenderStyle>(a, a.Count() - 1)))},
        {L"DrawingSettings", TW_GET(Face(o.DrawingSettings()))},
        {L"TitleBlockDefinitions", TW_GET(Face(o.TitleBlockDefinitions()))},
    };
    return table;
}

// ReferencedDocuments: a DocumentsEnumerator.
TW_FACE_TABLE(DocumentList) {
    static const FaceMember<DocumentList> table[] = {
        {L"Count", TW_GET(static_cast<std::int32_t>(o.size()))},
        {L"Item", TW_GET(Face(o.at(static_cast<std::size_t>(Long(a, 0) - 1))))},
    };
    return table;
}

TW_FACE_TABLE(host::DrawingSettings) {
    static const FaceMember<host::DrawingSettings> table[] = {
        {L"DeferUpdates", TW_GET(o.DeferUpdates()), TW_PUT(o.SetDeferUpdates(v.ToBool()))},
    };
    return table;
}

TW_FACE_TABLE(host::Collection<host::TitleBlockDefinition>) {
    static const FaceMember<host::Collection<host::TitleBlockDefinition>> table[] = {
        {L"Count", TW_GET(o.Count())},
        {L"Item", TW_GET(Face(o.Item(Long(a, 0))))},
    };
    return table;
}

TW_FACE_TABLE(host::TitleBlockDefinition) {
    static const FaceMember<host::TitleBlockDefinition> table[] = {
        {L"Name", TW_GET(o.Name())},
        {L"Sketch", TW_GET(Face(o.Sketch()))},
    };
    return table;
}

TW_FACE_TABLE(host::DrawingSketch) {
    static const FaceMember<host::DrawingSketch> table[] = {{L"TextBoxes", TW_GET(Face(o.TextBoxes()))}};
    return table;
}

TW_FACE_TABLE(host::Collection<host::TextBox>) {
    static const FaceMember<host::Collection<host::TextBox>> table[] = {
        {L"Count", TW_GET(o.Count())},
        {L"Item", TW_GET(Face(o.Item(Long(a, 0))))},
    };
    return table;
}

TW_FACE_TABLE(host::TextBox) {
    static const FaceMember<host::TextBox> table[] = {{L"FormattedText", TW_GET(o.FormattedText())}};
    return table;
}

TW_FACE(host::Documents)
TW_FACE(host::Document)
TW_FACE(DocumentList)
TW_FACE(host::DrawingSettings)
TW_FACE(host::Collection<host::TitleBlockDefinition>)
TW_FACE(host::TitleBlockDefinition)
TW_FACE(host::DrawingSketch)
TW_FACE(host::Collection<host::TextBox>)
TW_FACE(host::TextBox)

}  // namespace win::hostface
