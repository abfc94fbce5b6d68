// The add-in the DLL serves: clsAppCmd, reaching the host through the adapter over its
// automation interface, the user through the Win32 desktop, its settings in the registry and
// its files on the disk. The one place that says which add-in the DLL serves.
#include "addin/clsAppCmd.h"
#include "support/Utf16.h"
#include "ui/win32/DesktopPlatform.h"
#include "win/adapter/HostAdapter.h"
#include "win/files/Win32FileSystem.h"
#include "win/server/AddIn.h"
#include "win/server/AddInClsid.h"
#include "win/settings/RegistryStore.h"

namespace win::server {

namespace {
class HostAddIn : public AddIn {
public:
    HostAddIn() : addIn_(addin::Environment{platform_, settings_, files_}) {}

    void Activate(const com::ComPtr<IDispatch>& addInSiteObject, bool firstTime) override {
        site_ = adapter::AdaptSite(addInSiteObject, support::Utf16ToUtf8(kAddInClsidText));
        addIn_.Activate(*site_, firstTime);
    }
    // The add-in lets go of what activation took; what it keeps on purpose (the drawing
    // command's button) keeps its own reference to the host.
    void Deactivate() override {
        addIn_.Deactivate();
        site_.reset();
    }
    void ExecuteCommand(std::int32_t commandId) override { addIn_.ExecuteCommand(commandId); }

private:
    ui::win32::DesktopPlatform platform_;
    win::settings::RegistryStore settings_;
    files::Win32FileSystem files_;
    std::shared_ptr<host::AddInSite> site_;
    addin::clsAppCmd addIn_;  // declared last: gone before what it was given
};
}  // namespace

std::unique_ptr<AddIn> MakeAddIn() {
    return std::make_unique<HostAddIn>();
}

}  // namespace win::server
