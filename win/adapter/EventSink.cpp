#include "win/adapter/EventSink.h"

#include "support/Error.h"
#include "win/com/ComError.h"

namespace win::adapter {

support::Variant EventSink::Call(DISPID id, WORD, const com::InvokeArgs& args) {
    // A copy: the handler may release the object that owns this sink, which detaches it.
    Handler handler = handler_;
    if (handler) handler(id, args);
    return {};
}

namespace {
com::ComPtr<IConnectionPointContainer> Container(const com::ComPtr<IDispatch>& source) {
    auto container = source.As<IConnectionPointContainer>(IID_IConnectionPointContainer);
    if (!container)
        throw support::Error(static_cast<std::int32_t>(E_NOINTERFACE), "The object raises no events");
    return container;
}
}  // namespace

Advised::Advised(const com::ComPtr<IDispatch>& source, const IID& iid, std::vector<com::Member> events,
                 EventSink::Handler handler) {
    com::Check(Container(source)->FindConnectionPoint(iid, point_.Receive()));
    sink_ = com::DispatchObject<>::Make<EventSink>(iid, std::move(events), std::move(handler));
    HRESULT hr = point_->Advise(static_cast<IDispatch*>(sink_.Get()), &cookie_);
    if (FAILED(hr)) {
        sink_->Detach();
        com::Check(hr);
    }
}

IID Advised::OnlyOutgoingInterface(const com::ComPtr<IDispatch>& source) {
    com::ComPtr<IEnumConnectionPoints> points;
    com::Check(Container(source)->EnumConnectionPoints(points.Receive()));
    com::ComPtr<IConnectionPoint> point;
    ULONG fetched = 0;
    if (points->Next(1, point.Receive(), &fetched) != S_OK || fetched != 1)
        throw support::Error(static_cast<std::int32_t>(E_NOINTERFACE), "The object has no connection point");
    IID iid;
    com::Check(point->GetConnectionInterface(&iid));
    return iid;
}

Advised::~Advised() {
    if (!sink_) return;
    sink_->Detach();
    point_->Unadvise(cookie_);  // the host's answer changes nothing: this sink is cut off
}

}  // namespace win::adapter
