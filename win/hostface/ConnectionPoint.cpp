#include "win/hostface/ConnectionPoint.h"

#include "support/Error.h"
#include "win/com/DispatchObject.h"

namespace win::hostface {

void ConnectionPoint::Raise(DISPID id, const com::Arguments& args) {
    std::vector<com::ComPtr<IDispatch>> sinks;
    for (const auto& advised : sinks_) sinks.push_back(advised.second);
    for (const auto& sink : sinks) {
        try {
            com::Dispatch(sink).Invoke(id, DISPATCH_METHOD, args);
        } catch (const support::Error&) {
        }
    }
}

HRESULT ConnectionPoint::QueryInterface(REFIID iid, void** out) {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, IID_IConnectionPoint)) return E_NOINTERFACE;
    *out = static_cast<IConnectionPoint*>(this);
    AddRef();
    return S_OK;
}

HRESULT ConnectionPoint::GetConnectionInterface(IID* iid) {
    if (!iid) return E_POINTER;
    *iid = iid_;
    return S_OK;
}

HRESULT ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** out) {
    if (!out) return E_POINTER;
    *out = &owner_;
    owner_.AddRef();
    return S_OK;
}

HRESULT ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) {
    if (!sink || !cookie) return E_POINTER;
    *cookie = 0;
    // A sink is reached through the event interface it implements, a dispinterface.
    com::ComPtr<IDispatch> dispatch;
    if (FAILED(sink->QueryInterface(iid_, reinterpret_cast<void**>(dispatch.Receive()))))
        return CONNECT_E_CANNOTCONNECT;
    *cookie = nextCookie_++;
    sinks_.emplace_back(*cookie, std::move(dispatch));
    return S_OK;
}

HRESULT ConnectionPoint::Unadvise(DWORD cookie) {
    for (auto it = sinks_.begin(); it != sinks_.end(); ++it) {
        if (it->first != cookie) continue;
        // Released after it left the list: its release may call back into this point.
        com::ComPtr<IDispatch> leaving = std::move(it->second);
        sinks_.erase(it);
        return S_OK;
    }
    return CONNECT_E_NOCONNECTION;
}

HRESULT ConnectionPoint::EnumConnections(IEnumConnections** out) {
    if (out) *out = nullptr;
    return E_NOTIMPL;
}

ConnectionPointEnum::ConnectionPointEnum(std::vector<com::ComPtr<IConnectionPoint>> points,
                                         std::size_t position)
    : points_(std::move(points)), position_(position) {
    com::detail::CountObject(+1);
}

ConnectionPointEnum::~ConnectionPointEnum() {
    com::detail::CountObject(-1);
}

com::ComPtr<IEnumConnectionPoints> ConnectionPointEnum::Make(
    std::vector<com::ComPtr<IConnectionPoint>> points, std::size_t position) {
    return com::ComPtr<IEnumConnectionPoints>::Adopt(new ConnectionPointEnum(std::move(points), position));
}

HRESULT ConnectionPointEnum::QueryInterface(REFIID iid, void** out) {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, IID_IEnumConnectionPoints)) return E_NOINTERFACE;
    *out = static_cast<IEnumConnectionPoints*>(this);
    AddRef();
    return S_OK;
}

ULONG ConnectionPointEnum::Release() {
    LONG left = InterlockedDecrement(&refs_);
    if (left == 0) delete this;
    return left;
}

HRESULT ConnectionPointEnum::Next(ULONG count, IConnectionPoint** out, ULONG* fetched) {
    if (!out) return E_POINTER;
    ULONG given = 0;
    while (given < count && position_ < points_.size())
        out[given++] = com::ComPtr(points_[position_++]).Detach();
    if (fetched) *fetched = given;
    return given == count ? S_OK : S_FALSE;
}

HRESULT ConnectionPointEnum::Skip(ULONG count) {
    position_ += count;
    if (position_ <= points_.size()) return S_OK;
    position_ = points_.size();
    return S_FALSE;
}

HRESULT ConnectionPointEnum::Reset() {
    position_ = 0;
    return S_OK;
}

HRESULT ConnectionPointEnum::Clone(IEnumConnectionPoints** out) {
    if (!out) return E_POINTER;
    *out = Make(points_, position_).Detach();
    return S_OK;
}

}  // namespace win::hostface
