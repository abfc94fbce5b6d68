// The add-in behind the server until the host adapter exists: the one place that says
// which add-in the DLL serves.
//
// Not wired yet: clsAppCmd takes the host as host:: interfaces, and the adapter that
// implements them over the host's automation interface is still to come. Until then the
// DLL keeps the host application from the site, as activation does first, and defines no
// commands, places no buttons and opens no dialogs.
#include "win/com/Dispatch.h"
#include "win/server/AddIn.h"
#include "win/server/HostInterfaces.h"

namespace win::server {

namespace {
class UnwiredAddIn : public AddIn {
public:
    void Activate(const com::ComPtr<IDispatch>& addInSiteObject, bool) override {
        application_ = com::Dispatch(addInSiteObject)
                           .Invoke(kDispidSiteApplication, DISPATCH_PROPERTYGET, {}, {}, "Application");
    }
    void Deactivate() override { application_ = {}; }
    void ExecuteCommand(std::int32_t) override {}  // the add-in's own answer: nothing to do

private:
    support::Variant application_;
};
}  // namespace

std::unique_ptr<AddIn> MakeAddIn() {
    return std::make_unique<UnwiredAddIn>();
}

}  // namespace win::server
