#pragma once
#include <initializer_list>
#include <memory>
#include <vector>

#include "support/Event.h"
#include "win/hostface/ConnectionPoint.h"
#include "win/hostface/FaceObject.h"

namespace win::hostface {

// A face whose object raises events: one connection point for each outgoing interface,
// raised from the stand-in's own events, which the face subscribes to while it lives.
template <class T>
class EventFace : public FaceObject<T>, public IConnectionPointContainer {
public:
    EventFace(std::shared_ptr<T> target, std::initializer_list<IID> outgoing)
        : FaceObject<T>(std::move(target)) {
        for (const IID& iid : outgoing) points_.push_back(std::make_unique<ConnectionPoint>(*this, iid));
    }
    ConnectionPoint& Point(std::size_t index) { return *points_.at(index); }
    void Keep(support::Connection subscription) { subscriptions_.push_back(std::move(subscription)); }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
        if (out && IsEqualIID(iid, IID_IConnectionPointContainer)) {
            *out = static_cast<IConnectionPointContainer*>(this);
            AddRef();
            return S_OK;
        }
        return FaceObject<T>::QueryInterface(iid, out);
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return FaceObject<T>::AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return FaceObject<T>::Release(); }

    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** out) override {
        if (!out) return E_POINTER;
        std::vector<com::ComPtr<IConnectionPoint>> points;
        for (auto& point : points_) points.emplace_back(point.get());
        *out = ConnectionPointEnum::Make(std::move(points)).Detach();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** out) override {
        if (!out) return E_POINTER;
        *out = nullptr;
        for (auto& point : points_) {
            IID pointIid;
            point->GetConnectionInterface(&pointIid);
            if (!IsEqualIID(pointIid, iid)) continue;
            *out = point.get();
            point->AddRef();
            return S_OK;
        }
        return CONNECT_E_NOCONNECTION;
    }

private:
    std::vector<std::unique_ptr<ConnectionPoint>> points_;
    std::vector<support::Connection> subscriptions_;  // dropped first: no event reaches a gone point
};

}  // namespace win::hostface
