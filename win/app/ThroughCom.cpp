#include "win/app/ThroughCom.h"

#include "win/adapter/HostAdapter.h"
#include "win/com/Ole.h"
#include "win/hostface/HostFace.h"

namespace win::app {

ThroughCom::ThroughCom() {
    CoInitialize(nullptr);
}

void ThroughCom::Wire(session::Session& session) {
    session.SetSiteView([](std::shared_ptr<host::AddInSite> site) {
        return win::adapter::AdaptSite(win::hostface::SiteFace(std::move(site)));
    });
}

ThroughCom::~ThroughCom() {
    CoUninitialize();
}

}  // namespace win::app
