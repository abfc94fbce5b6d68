#pragma once
#include <memory>

#include "win/com/DispatchObject.h"
#include "win/server/AddIn.h"
#include "win/server/HostInterfaces.h"

namespace win::server {

// The object the host creates by the add-in's CLSID and activates. It answers the add-in
// server interface through its vtable and through IDispatch, and forwards each call to the
// add-in; an error the add-in raises reaches the host as its error information.
class AddInServer : public com::DispatchObject<IRxApplicationAddInServer> {
public:
    explicit AddInServer(std::unique_ptr<AddIn> addIn) : addIn_(std::move(addIn)) {}

    HRESULT STDMETHODCALLTYPE Activate(IDispatch* addInSiteObject, VARIANT_BOOL firstTime) override;
    HRESULT STDMETHODCALLTYPE Deactivate() override;
    HRESULT STDMETHODCALLTYPE ExecuteCommand(LONG commandId) override;
    // The add-in offers no automation object of its own.
    HRESULT STDMETHODCALLTYPE get_Automation(IDispatch** automation) override;

protected:
    std::span<const com::Member> Members() const override;
    support::Variant Call(DISPID id, WORD flags, const com::InvokeArgs& args) override;
    bool Answers(REFIID iid) const override;

private:
    // Runs a vtable member: an error becomes the thread's error information and an HRESULT.
    template <class F>
    HRESULT Guard(F&& member);
    std::unique_ptr<AddIn> addIn_;
};

}  // namespace win::server
