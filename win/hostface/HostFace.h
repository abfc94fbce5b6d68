#pragma once
#include <memory>

#include "host/Application.h"
#include "win/com/ComPtr.h"
#include "win/com/Ole.h"

namespace win::hostface {

// The stand-in host seen through the host's automation interface: the site object an
// add-in is activated with, an IDispatch object from which every other host object is
// reached by the host's member names, raising the host's events through connection points.
com::ComPtr<IDispatch> SiteFace(std::shared_ptr<host::AddInSite> site);

}  // namespace win::hostface
