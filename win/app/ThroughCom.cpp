#include "win/app/ThroughCom.h"

#include "support/Utf16.h"
#include "win/adapter/HostAdapter.h"
#include "win/com/Ole.h"
#include "win/hostface/HostFace.h"
#include "win/server/AddInClsid.h"

namespace win::app {

ThroughCom::ThroughCom() {
    CoInitialize(nullptr);
}

void ThroughCom::Wire(session::Session& session) {
    session.SetSiteView([](std::shared_ptr<host::AddInSite> site) {
        return win::adapter::AdaptSite(win::hostface::SiteFace(std::move(site)),
                                       support::Utf16ToUtf8(win::server::kAddInClsidText));
    });
}

ThroughCom::~ThroughCom() {
    CoUninitialize();
}

}  // namespace win::app
