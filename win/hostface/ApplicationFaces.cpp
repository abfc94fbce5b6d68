// The application and what hangs from it directly: the site, views, transactions, files.
#include "win/com/HostEvents.h"
#include "win/hostface/Faces.h"
#include "win/hostface/HostFace.h"

namespace win::hostface {

TW_FACE_TABLE(host::AddInSite) {
    static const FaceMember<host::AddInSite> table[] = {
        {L"Application", TW_GET(Face(o.Application())), nullptr, com::kDispidSiteApplication},
        // InternalName, Classification, DisplayName, Description, ToolTipText, [StandardIcon]
        {L"CreateButtonDefinition",
         TW_GET(Face(o.CreateButtonDefinition(Text(a, 0), Long(a, 1), Text(a, 2), Text(a, 3), Text(a, 4),
                                              GivenObject(a, 5))))},
    };
    return table;
}

TW_FACE_TABLE(host::Application) {
    static const FaceMember<host::Application> table[] = {
        {L"Type", TW_GET(o.Type())},
        {L"ActiveDocument", TW_GET(Face(o.ActiveDocument()))},
        {L"Documents", TW_GET(Face(o.Documents()))},
        {L"ActiveEditObject", TW_GET(Face(o.ActiveEditObject()))},
        {L"ActiveView", TW_GET(Face(o.ActiveView()))},
        {L"CommandManager", TW_GET(Face(o.CommandManager()))},
        {L"UserInterfaceManager", TW_GET(Face(o.UserInterfaceManager()))},
        {L"TransactionManager", TW_GET(Face(o.TransactionManager()))},
        {L"FileManager", TW_GET(Face(o.FileManager()))},
        {L"FileLocations", TW_GET(Face(o.FileLocations()))},
        {L"FileOptions", TW_GET(Face(std::make_shared<FileOptionsView>(FileOptionsView{o.FileLocations()})))},
        {L"TransientGeometry", TW_GET(Face(std::make_shared<TransientGeometryView>()))},
        {L"StatusBarText", TW_GET(o.StatusBarText()), TW_PUT(o.SetStatusBarText(v.ToText()))},
        {L"SilentOperation", TW_GET(o.SilentOperation()), TW_PUT(o.SetSilentOperation(v.ToBool()))},
        {L"MainFrameHWND", TW_GET(static_cast<std::int32_t>(o.MainFrameHWND()))},
        {L"Caption", TW_GET(o.Caption())},
        {L"SoftwareVersion",
         TW_GET(Face(std::make_shared<SoftwareVersionView>(SoftwareVersionView{o.SoftwareVersionMajor()})))},
    };
    return table;
}

TW_FACE_TABLE(SoftwareVersionView) {
    static const FaceMember<SoftwareVersionView> table[] = {{L"Major", TW_GET(o.major)}};
    return table;
}

TW_FACE_TABLE(host::View) {
    static const FaceMember<host::View> table[] = {
        {L"HWND", TW_GET(static_cast<std::int32_t>(o.HWND()))},
        {L"Camera", TW_GET(Face(o.Camera()))},
    };
    return table;
}

TW_FACE_TABLE(host::Camera) {
    static const FaceMember<host::Camera> table[] = {
        {L"ViewOrientationType", TW_GET(o.ViewOrientationType()), TW_PUT(o.SetViewOrientationType(Long(v)))},
        {L"Apply", TW_DO(o.Apply())},
    };
    return table;
}

TW_FACE_TABLE(host::TransactionManager) {
    static const FaceMember<host::TransactionManager> table[] = {
        {L"StartTransaction", TW_GET(Face(o.StartTransaction(TargetOf<host::Document>(a, 0), Text(a, 1))))},
    };
    return table;
}

TW_FACE_TABLE(host::Transaction) {
    static const FaceMember<host::Transaction> table[] = {{L"End", TW_DO(o.End())},
                                                          {L"Abort", TW_DO(o.Abort())}};
    return table;
}

TW_FACE_TABLE(host::FileManager) {
    static const FaceMember<host::FileManager> table[] = {
        // Source, Destination, [Option]
        {L"CopyFile", TW_DO(o.CopyFile(Text(a, 0), Text(a, 1), Given(a, 2) ? Long(a, 2) : 0))},
    };
    return table;
}

TW_FACE_TABLE(host::FileLocations) {
    static const FaceMember<host::FileLocations> table[] = {
        {L"Workspace", TW_GET(o.Workspace())},
        {L"FindDrawing", TW_GET(o.FindDrawing(Text(a, 0), Text(a, 1)))},
    };
    return table;
}

TW_FACE_TABLE(FileOptionsView) {
    static const FaceMember<FileOptionsView> table[] = {
        {L"TemplatesPath", TW_GET(o.locations->TemplatesPath())}};
    return table;
}

TW_FACE_TABLE(TransientGeometryView) {
    static const FaceMember<TransientGeometryView> table[] = {
        {L"CreateMatrix", TW_GET(Face(std::make_shared<host::Matrix>()))},
    };
    return table;
}

// A placement, its cells by row and column from 1, as the host's Matrix.Cell.
TW_FACE_TABLE(host::Matrix) {
    static const FaceMember<host::Matrix> table[] = {
        {L"Cell", TW_GET(o.cell[Long(a, 0) - 1][Long(a, 1) - 1]),
         TW_PUT(o.cell[Long(a, 0) - 1][Long(a, 1) - 1] = v.ToDouble())},
    };
    return table;
}

TW_FACE(host::AddInSite)
TW_FACE(host::Application)
TW_FACE(SoftwareVersionView)
TW_FACE(host::View)
TW_FACE(host::Camera)
TW_FACE(host::TransactionManager)
TW_FACE(host::Transaction)
TW_FACE(host::FileManager)
TW_FACE(host::FileLocations)
TW_FACE(FileOptionsView)
TW_FACE(TransientGeometryView)
TW_FACE(host::Matrix)

com::ComPtr<IDispatch> SiteFace(std::shared_ptr<host::AddInSite> site) {
    auto face = Face(std::move(site)).ToObject();
    return static_cast<const com::ComObject&>(*face).Dispatch();
}

}  // namespace win::hostface
