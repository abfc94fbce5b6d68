#pragma once
#include <memory>
#include <string>

#include "host/Application.h"
#include "win/com/ComPtr.h"
#include "win/com/Ole.h"

namespace win::adapter {

// The host as the add-in sees it, over the host's automation interface: the site object the
// host activates the add-in with, adapted to host::AddInSite. Every host/ interface reached
// from it calls the host by late binding, with the member names and DISPIDs the host
// documents (docs/host-calls.md), and its events come through connection points.
// clientId is the add-in's class identifier in braces, which the later button factory takes.
std::shared_ptr<::host::AddInSite> AdaptSite(com::ComPtr<IDispatch> site, std::string clientId);

}  // namespace win::adapter
