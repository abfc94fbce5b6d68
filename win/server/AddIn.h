#pragma once
#include <cstdint>
#include <memory>

#include "win/com/ComPtr.h"

namespace win::server {

// What the add-in server forwards the host's calls to: the add-in itself. The server knows
// COM; the add-in behind this seam knows the host only through the site it is given.
class AddIn {
public:
    virtual ~AddIn() = default;
    virtual void Activate(const com::ComPtr<IDispatch>& addInSiteObject, bool firstTime) = 0;
    virtual void Deactivate() = 0;
    virtual void ExecuteCommand(std::int32_t commandId) = 0;
};

// The add-in the DLL serves, made once for each server object the host creates.
std::unique_ptr<AddIn> MakeAddIn();

}  // namespace win::server
