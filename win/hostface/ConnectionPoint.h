#pragma once
#include <utility>
#include <vector>

#include "win/com/ComPtr.h"
#include "win/com/Dispatch.h"
#include "win/com/Ole.h"

namespace win::hostface {

// One outgoing interface of an object that raises events: clients Advise their sinks for
// its IID and the object raises each event as a call by DISPID on every sink. It is part of
// its container and shares the container's reference count, so a client holding only the
// point keeps the container alive.
class ConnectionPoint : public IConnectionPoint {
public:
    ConnectionPoint(IConnectionPointContainer& owner, const IID& iid) : owner_(owner), iid_(iid) {}
    ConnectionPoint(const ConnectionPoint&) = delete;
    ConnectionPoint& operator=(const ConnectionPoint&) = delete;
    virtual ~ConnectionPoint() = default;

    // Calls every sink advised when the event starts. A sink that unadvises during the event
    // (its own or another's) is kept alive until its call returns; a sink's failure is its
    // own affair, as the host ignores what its sinks return.
    void Raise(DISPID id, const com::Arguments& args);

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return owner_.AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return owner_.Release(); }
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) override;
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** out) override;
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** out) override;

private:
    IConnectionPointContainer& owner_;
    IID iid_;
    std::vector<std::pair<DWORD, com::ComPtr<IDispatch>>> sinks_;
    DWORD nextCookie_ = 1;
};

// The connection points of a container, as IConnectionPointContainer hands them out.
class ConnectionPointEnum : public IEnumConnectionPoints {
public:
    static com::ComPtr<IEnumConnectionPoints> Make(std::vector<com::ComPtr<IConnectionPoint>> points,
                                                   std::size_t position = 0);

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return InterlockedIncrement(&refs_); }
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE Next(ULONG count, IConnectionPoint** out, ULONG* fetched) override;
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override;
    HRESULT STDMETHODCALLTYPE Reset() override;
    HRESULT STDMETHODCALLTYPE Clone(IEnumConnectionPoints** out) override;

private:
    ConnectionPointEnum(std::vector<com::ComPtr<IConnectionPoint>> points, std::size_t position);
    virtual ~ConnectionPointEnum();
    std::vector<com::ComPtr<IConnectionPoint>> points_;
    std::size_t position_;
    LONG refs_ = 1;
};

}  // namespace win::hostface
