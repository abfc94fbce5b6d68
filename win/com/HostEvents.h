#pragma once
#include "win/com/Guid.h"
#include "win/com/Ole.h"

// The host's event interfaces (what a sink answers, the DISPIDs of its events) and the
// site's application, fixed by number.
// The add-in's sinks and the stand-in's face read the same numbers.
namespace win::com {

inline constexpr IID kIIDButtonDefinitionSink = ParseGuid(L"{9B5D2EC6-A4BD-4B3A-8A34-069EE52B009D}");
inline constexpr IID kIIDUserInputEventsSink = ParseGuid(L"{711F30CD-A00B-4015-93A8-397EC8F5A284}");
inline constexpr IID kIIDInteractionEventsSink = ParseGuid(L"{F1C0EFF2-5035-4DDD-8086-060590676024}");
inline constexpr IID kIIDSelectEventsSink = ParseGuid(L"{2E19A8EE-1E70-4AE4-8C1E-06DAE3BBABB2}");
// ButtonDefinitionHandlerEventsSink's IID is not known here: a sink learns it from the
// button object's only connection point (see the adapter's button).

inline constexpr DISPID kDispidOnClick = 0x0300A680;    // ButtonDefinitionHandlerEventsSink
inline constexpr DISPID kDispidOnExecute = 0x03009C81;  // ButtonDefinitionSink (later releases)
inline constexpr DISPID kDispidOnContextMenuOld = 0x03002204;
inline constexpr DISPID kDispidOnContextMenu = 0x03002206;
inline constexpr DISPID kDispidOnTerminate = 0x03005482;
inline constexpr DISPID kDispidOnPreSelect = 0x03005581;
inline constexpr DISPID kDispidOnSelect = 0x03005584;

inline constexpr DISPID kDispidSiteApplication = 0x03001401;  // ApplicationAddInSite.Application

}  // namespace win::com
