// Objects reached without their kind being known (the active edit object, what the user
// selects) and the ObjectsEnumerator that carries a selection.
#include "win/hostface/Faces.h"

namespace win::hostface {

TW_FACE_TABLE(host::Object) {
    static const FaceMember<host::Object> table[] = {{L"Type", TW_GET(o.Type())}};
    return table;
}

TW_FACE_TABLE(host::ObjectList) {
    static const FaceMember<host::ObjectList> table[] = {
        {L"Count", TW_GET(static_cast<std::int32_t>(o.size()))},
        {L"Item", TW_GET(Face(o.at(static_cast<std::size_t>(Long(a, 0) - 1))))},
    };
    return table;
}

support::Variant Face(host::ObjectPtr target) {
    if (auto document = std::dynamic_pointer_cast<host::Document>(target)) return Face(document);
    if (auto occurrence = std::dynamic_pointer_cast<host::ComponentOccurrence>(target))
        return Face(occurrence);
    if (auto definition = std::dynamic_pointer_cast<host::ComponentDefinition>(target))
        return Face(definition);
    if (auto bar = std::dynamic_pointer_cast<host::CommandBar>(target)) return Face(bar);
    if (auto application = std::dynamic_pointer_cast<host::Application>(target)) return Face(application);
    return MakeFace(std::move(target));
}

TW_FACE(host::ObjectList)

}  // namespace win::hostface
