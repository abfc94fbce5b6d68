// Property sets and properties; attribute sets and attributes.
#include "win/hostface/Faces.h"

namespace win::hostface {

namespace {}  // namespace

TW_FACE_TABLE(host::PropertySets) {
    static const FaceMember<host::PropertySets> table[] = {
        {L"Count", TW_GET(o.Count())},
        {L"Item", TW_GET(Face(ByName(a) ? o.Item(Text(a, 0)) : o.Item(Long(a, 0))))},
        {L"Add", TW_GET(Face(o.Add(Text(a, 0), Given(a, 1) ? Text(a, 1) : "")))},  // Name, [InternalName]
        {L"PropertySetExists", TW_GET(o.PropertySetExists(Text(a, 0)))},
    };
    return table;
}

TW_FACE_TABLE(host::PropertySet) {
    static const FaceMember<host::PropertySet> table[] = {
        {L"Name", TW_GET(o.Name())},
        {L"DisplayName", TW_GET(o.DisplayName())},
        {L"InternalName", TW_GET(o.InternalName())},
        {L"Count", TW_GET(o.Count())},
        {L"Item", TW_GET(Face(ByName(a) ? o.Item(Text(a, 0)) : o.Item(Long(a, 0))))},
        {L"ItemByPropId", TW_GET(Face(o.ItemByPropId(Long(a, 0))))},
        // PropValue, [Name], [PropId]
        {L"Add", TW_GET(Face(o.Add(a.At(0), Given(a, 1) ? Text(a, 1) : "", Given(a, 2) ? Long(a, 2) : 0)))},
        {L"Delete", TW_DO(o.Delete())},
    };
    return table;
}

TW_FACE_TABLE(host::Property) {
    static const FaceMember<host::Property> table[] = {
        {L"Name", TW_GET(o.Name())},     {L"DisplayName", TW_GET(o.DisplayName())},
        {L"PropId", TW_GET(o.PropId())}, {L"Value", TW_GET(o.Value()), TW_PUT(o.SetValue(v))},
        {L"Delete", TW_DO(o.Delete())},
    };
    return table;
}

TW_FACE_TABLE(host::AttributeSets) {
    static const FaceMember<host::AttributeSets> table[] = {
        {L"NameIsUsed", TW_GET(o.NameIsUsed(Text(a, 0)))},
        {L"Item", TW_GET(Face(o.Item(Text(a, 0))))},
        {L"Add", TW_GET(Face(o.Add(Text(a, 0))))},
    };
    return table;
}

TW_FACE_TABLE(host::AttributeSet) {
    static const FaceMember<host::AttributeSet> table[] = {
        {L"Name", TW_GET(o.Name())},
        {L"NameIsUsed", TW_GET(o.NameIsUsed(Text(a, 0)))},
        {L"Item", TW_GET(Face(o.Item(Text(a, 0))))},
        {L"Add", TW_GET(Face(o.Add(Text(a, 0), Long(a, 1), a.At(2))))},  // AttributeName, ValueType, Value
    };
    return table;
}

TW_FACE_TABLE(host::Attribute) {
    static const FaceMember<host::Attribute> table[] = {
        {L"Name", TW_GET(o.Name())},
        {L"Value", TW_GET(o.Value()), TW_PUT(o.SetValue(v))},
    };
    return table;
}

TW_FACE(host::PropertySets)
TW_FACE(host::PropertySet)
TW_FACE(host::Property)
TW_FACE(host::AttributeSets)
TW_FACE(host::AttributeSet)
TW_FACE(host::Attribute)

}  // namespace win::hostface
