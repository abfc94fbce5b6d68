#include "win/server/AddInServer.h"

#include <array>

#include "support/Error.h"
#include "win/com/ComError.h"

namespace win::server {

namespace {
constexpr std::array<com::Member, 4> kMembers{{
    {kDispidActivate, L"Activate"},
    {kDispidDeactivate, L"Deactivate"},
    {kDispidExecuteCommand, L"ExecuteCommand"},
    {kDispidAutomation, L"Automation"},
}};
}  // namespace

template <class F>
HRESULT AddInServer::Guard(F&& member) {
    try {
        member();
        return S_OK;
    } catch (const support::Error& e) {
        return com::ToErrorInfo(e, kIIDIRxApplicationAddInServer);
    } catch (const std::exception& e) {
        return com::ToErrorInfo(support::Error(support::errors::kFail, e.what()),
                                kIIDIRxApplicationAddInServer);
    } catch (...) {
        return E_UNEXPECTED;
    }
}

HRESULT AddInServer::Activate(IDispatch* addInSiteObject, VARIANT_BOOL firstTime) {
    return Guard(
        [&] { addIn_->Activate(com::ComPtr<IDispatch>(addInSiteObject), firstTime != VARIANT_FALSE); });
}

HRESULT AddInServer::Deactivate() {
    return Guard([&] { addIn_->Deactivate(); });
}

HRESULT AddInServer::ExecuteCommand(LONG commandId) {
    return Guard([&] { addIn_->ExecuteCommand(commandId); });
}

HRESULT AddInServer::get_Automation(IDispatch** automation) {
    if (!automation) return E_POINTER;
    *automation = nullptr;
    return S_OK;
}

std::span<const com::Member> AddInServer::Members() const {
    return kMembers;
}

bool AddInServer::Answers(REFIID iid) const {
    return IsEqualIID(iid, kIIDApplicationAddInServer) || IsEqualIID(iid, kIIDIRxApplicationAddInServer);
}

support::Variant AddInServer::Call(DISPID id, WORD, const com::InvokeArgs& args) {
    switch (id) {
        case kDispidActivate:
            args.Require(2);
            addIn_->Activate(args.ObjectAt(0), args.At(1).ToBool());
            return {};
        case kDispidDeactivate:
            args.Require(0);
            addIn_->Deactivate();
            return {};
        case kDispidExecuteCommand:
            args.Require(1);
            addIn_->ExecuteCommand(static_cast<std::int32_t>(args.At(0).ToDouble()));
            return {};
        default:  // Automation: no object
            args.Require(0);
            return support::Variant(std::shared_ptr<support::Object>());
    }
}

}  // namespace win::server
