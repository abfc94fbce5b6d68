#pragma once
#include "win/com/Guid.h"

namespace win::server {

// The add-in's class identifier: generated once, never to change, since the host and every
// installed copy know the add-in by it. The build reads it from here for the .addin manifest.
inline constexpr wchar_t kAddInClsidText[] = L"{594045D9-B3A6-4572-B786-5A888B9C5C6F}";
inline constexpr CLSID kAddInClsid = com::ParseGuid(kAddInClsidText);

inline constexpr wchar_t kAddInName[] = L"Tarnwell";
inline constexpr wchar_t kAddInDescription[] =
    L"Tarnwell: properties, copy, material and purge tools for assemblies, parts and drawings";

}  // namespace win::server
