#pragma once
#include <cstdint>

#include "support/Error.h"
#include "win/com/Ole.h"

// Failures crossing the COM boundary, in both directions, as support::Error.
//
// Numbers: the add-in's own errors carry the platform's small numbers (91, 13, 5...). They
// travel through COM as HRESULTs of the control facility (0x800A0000 | number), as the
// add-in's original platform sent them, and come back as the small number; every other
// HRESULT is its own number (0x8000FFFF stays 0x8000FFFF).
namespace win::com {

std::int32_t ErrorNumberFromHresult(HRESULT hr);
HRESULT HresultFromErrorNumber(std::int32_t number);

// A failed HRESULT as the caller's platform reports it. The late-binding failures become the
// platform's own errors (438 "Object doesn't support this property or method", 450 wrong
// number of arguments, 13 type mismatch...). When object supports error information for
// iid, its description is taken; else the system's message for the HRESULT.
support::Error ErrorFromHresult(HRESULT hr, IUnknown* object = nullptr, REFIID iid = IID_NULL);
// The exception an Invoke reported; fills a deferred description first.
support::Error ErrorFromExcepInfo(EXCEPINFO& info);
// Throws ErrorFromHresult when hr failed.
void Check(HRESULT hr, IUnknown* object = nullptr, REFIID iid = IID_NULL);

// Our side: an error escaping one of our objects' members, handed to the COM caller.
// With an EXCEPINFO, fills it and returns DISP_E_EXCEPTION; without, returns the HRESULT.
HRESULT ToExcepInfo(const support::Error& error, EXCEPINFO* info);
// For a vtable member: the thread's error information, and the HRESULT to return.
HRESULT ToErrorInfo(const support::Error& error, REFIID iid);

}  // namespace win::com
