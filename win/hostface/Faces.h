#pragma once
// What every face file shares: the face of each kind of host object, reading arguments,
// and the shorthand the member tables are written in.
#include <cmath>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/Application.h"
#include "host/Codes.h"
#include "host/Commands.h"
#include "host/Component.h"
#include "host/Document.h"
#include "host/Properties.h"
#include "host/Styles.h"
#include "win/com/ComObject.h"
#include "win/hostface/FaceObject.h"

namespace win::hostface {

// Objects the host has that host/ folds into another: each is a view of what it shows.
struct FileOptionsView {
    std::shared_ptr<host::FileLocations> locations;  // the templates folder lives in the options
};
struct SoftwareVersionView {
    std::int32_t major;
};
struct TransientGeometryView {};
struct ButtonHandlerView {  // what the site's button factory returns: it raises OnClick
    std::shared_ptr<host::ButtonDefinition> button;
};
struct ControlDefinitionView {  // the button definition a handler places on a bar
    std::shared_ptr<host::ButtonDefinition> button;
};
using DocumentList = std::vector<host::DocumentPtr>;

// The face of each kind of object, as the value a member returns: Nothing for null.
support::Variant Face(std::shared_ptr<host::Application> target);
support::Variant Face(std::shared_ptr<host::AddInSite> target);
support::Variant Face(std::shared_ptr<host::View> target);
support::Variant Face(std::shared_ptr<host::Camera> target);
support::Variant Face(std::shared_ptr<host::TransactionManager> target);
support::Variant Face(std::shared_ptr<host::Transaction> target);
support::Variant Face(std::shared_ptr<host::FileManager> target);
support::Variant Face(std::shared_ptr<host::FileLocations> target);
support::Variant Face(std::shared_ptr<FileOptionsView> target);
support::Variant Face(std::shared_ptr<SoftwareVersionView> target);
support::Variant Face(std::shared_ptr<TransientGeometryView> target);
support::Variant Face(std::shared_ptr<host::Matrix> target);
support::Variant Face(std::shared_ptr<host::Documents> target);
support::Variant Face(std::shared_ptr<host::Document> target);
support::Variant Face(std::shared_ptr<DocumentList> target);
support::Variant Face(std::shared_ptr<host::DrawingSettings> target);
support::Variant Face(std::shared_ptr<host::Collection<host::TitleBlockDefinition>> target);
support::Variant Face(std::shared_ptr<host::TitleBlockDefinition> target);
support::Variant Face(std::shared_ptr<host::DrawingSketch> target);
support::Variant Face(std::shared_ptr<host::Collection<host::TextBox>> target);
support::Variant Face(std::shared_ptr<host::TextBox> target);
support::Variant Face(std::shared_ptr<host::PropertySets> target);
support::Variant Face(std::shared_ptr<host::PropertySet> target);
support::Variant Face(std::shared_ptr<host::Property> target);
support::Variant Face(std::shared_ptr<host::AttributeSets> target);
support::Variant Face(std::shared_ptr<host::AttributeSet> target);
support::Variant Face(std::shared_ptr<host::Attribute> target);
support::Variant Face(std::shared_ptr<host::ComponentOccurrences> target);
support::Variant Face(std::shared_ptr<host::ComponentOccurrence> target);
support::Variant Face(std::shared_ptr<host::ComponentDefinition> target);
support::Variant Face(std::shared_ptr<host::MassProperties> target);
support::Variant Face(std::shared_ptr<host::Materials> target);
support::Variant Face(std::shared_ptr<host::Material> target);
support::Variant Face(std::shared_ptr<host::RenderStyles> target);
support::Variant Face(std::shared_ptr<host::RenderStyle> target);
support::Variant Face(std::shared_ptr<host::UnitsOfMeasure> target);
support::Variant Face(std::shared_ptr<host::ButtonDefinition> target);  // as its handler
support::Variant Face(std::shared_ptr<ControlDefinitionView> target);
support::Variant Face(std::shared_ptr<host::UserInterfaceManager> target);
support::Variant Face(std::shared_ptr<host::CommandBars> target);
support::Variant Face(std::shared_ptr<host::CommandBar> target);
support::Variant Face(std::shared_ptr<host::CommandBarControls> target);
support::Variant Face(std::shared_ptr<host::CommandBarControl> target);
support::Variant Face(std::shared_ptr<host::CommandManager> target);
support::Variant Face(std::shared_ptr<host::InteractionEvents> target);
support::Variant Face(std::shared_ptr<host::SelectEvents> target);
support::Variant Face(std::shared_ptr<host::UserInputEvents> target);
// Any object: the face of what it is (a document, an occurrence...), else one that only
// says its Type.
support::Variant Face(host::ObjectPtr target);
support::Variant Face(std::shared_ptr<host::ObjectList> target);  // an ObjectsEnumerator

// The face's own object behind an argument; null for Nothing. Another component's object
// cannot stand for one of the host's: a type mismatch, as the host answers.
template <class T>
std::shared_ptr<T> TargetOf(const InvokeArgs& args, std::size_t index) {
    com::ComPtr<IDispatch> object = args.ObjectAt(index);
    if (!object) return nullptr;
    if (auto* face = dynamic_cast<FaceObject<T>*>(object.Get())) return face->Target();
    throw com::InvokeError{DISP_E_TYPEMISMATCH, static_cast<UINT>(args.Count() - 1 - index)};
}

// Arguments as the host reads them.
inline std::string Text(const InvokeArgs& args, std::size_t i) {
    return args.At(i).ToText();
}
inline double Real(const InvokeArgs& args, std::size_t i) {
    return args.At(i).ToDouble();
}
inline std::int32_t Long(const support::Variant& value) {
    return static_cast<std::int32_t>(std::lround(value.ToDouble()));
}
inline std::int32_t Long(const InvokeArgs& args, std::size_t i) {
    return Long(args.At(i));
}
inline bool Flag(const InvokeArgs& args, std::size_t i) {
    return args.At(i).ToBool();
}
// An optional argument: left out (or Empty) takes the host's default.
inline bool Given(const InvokeArgs& args, std::size_t i) {
    return i < args.Count() && !args.At(i).IsEmpty();
}

// An Item argument: a name (text) rather than a position from 1.
inline bool ByName(const InvokeArgs& args) {
    return args.At(0).Type() == support::VariantType::String;
}

// An object argument that is not Nothing, such as a picture.
inline bool GivenObject(const InvokeArgs& args, std::size_t i) {
    return Given(args, i) && args.At(i).Type() == support::VariantType::Object && args.At(i).ToObject();
}

// Makes the face of an object of kind T with T's member table.
template <class T>
support::Variant MakeFace(std::shared_ptr<T> target) {
    if (!target) return support::Variant(std::shared_ptr<support::Object>());
    com::ComPtr<IDispatch> face = FaceObject<T>::Existing(target);
    if (!face) face = com::DispatchObject<>::Make<FaceObject<T>>(std::move(target));
    return support::Variant(std::make_shared<com::ComObject>(std::move(face)));
}

// A reference to the face object itself, for an event face that keeps its points.
inline support::Variant AsValue(com::ComPtr<IDispatch> face) {
    return support::Variant(std::make_shared<com::ComObject>(std::move(face)));
}

}  // namespace win::hostface

// Shorthand of the member tables: o is the object shown, a the call's arguments, v the
// value assigned.
#define TW_GET(expr)                                                          \
    [](auto& o, const ::win::hostface::InvokeArgs& a) -> ::support::Variant { \
        (void)o;                                                              \
        (void)a;                                                              \
        return expr;                                                          \
    }
#define TW_DO(statement)                                                      \
    [](auto& o, const ::win::hostface::InvokeArgs& a) -> ::support::Variant { \
        (void)a;                                                              \
        statement;                                                            \
        return {};                                                            \
    }
#define TW_PUT(statement)                                                            \
    [](auto& o, const ::support::Variant& v, const ::win::hostface::InvokeArgs& a) { \
        (void)a;                                                                     \
        statement;                                                                   \
    }

// Each kind's member table is defined with its face; the kinds other files take as
// arguments are declared here.
#define TW_FACE_TABLE(Type) \
    template <>             \
    std::span<const ::win::hostface::FaceMember<Type>> win::hostface::FaceObject<Type>::Table()
TW_FACE_TABLE(host::Document);
TW_FACE_TABLE(host::Material);
TW_FACE_TABLE(host::RenderStyle);
TW_FACE_TABLE(host::Matrix);
TW_FACE_TABLE(win::hostface::ControlDefinitionView);

// Defines the face of a kind of object with its member table.
#define TW_FACE(Type)                                        \
    support::Variant Face(std::shared_ptr<Type> target) {    \
        return ::win::hostface::MakeFace(std::move(target)); \
    }
