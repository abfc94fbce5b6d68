#pragma once
#include "win/com/Guid.h"
#include "win/com/HostEvents.h"
#include "win/com/Ole.h"

// The host's add-in server interface and the members of its site that the server uses.
namespace win::server {

// ApplicationAddInServer is answered both as a dispinterface and as the dual vtable
// interface IRxApplicationAddInServer, whose members follow IDispatch's.
inline constexpr IID kIIDApplicationAddInServer = com::ParseGuid(L"{E3571293-DB40-11D2-B783-0060B0F159EF}");
inline constexpr IID kIIDIRxApplicationAddInServer =
    com::ParseGuid(L"{E3571292-DB40-11D2-B783-0060B0F159EF}");

inline constexpr DISPID kDispidActivate = 0x03001201;
inline constexpr DISPID kDispidDeactivate = 0x03001202;
inline constexpr DISPID kDispidExecuteCommand = 0x03001203;
inline constexpr DISPID kDispidAutomation = 0x03001204;
using com::kDispidSiteApplication;  // ApplicationAddInSite.Application

// The category the host of releases 7 to 9 looks for: a versioned add-in.
inline constexpr wchar_t kVersionedAddInCategory[] = L"{39AD2B5C-7A29-11D6-8E0A-0010B541CAA8}";

struct IRxApplicationAddInServer : public IDispatch {
    virtual HRESULT STDMETHODCALLTYPE Activate(IDispatch* addInSiteObject, VARIANT_BOOL firstTime) = 0;
    virtual HRESULT STDMETHODCALLTYPE Deactivate() = 0;
    virtual HRESULT STDMETHODCALLTYPE ExecuteCommand(LONG commandId) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Automation(IDispatch** automation) = 0;
};

}  // namespace win::server
