#pragma once
#include <functional>
#include <vector>

#include "win/com/ComPtr.h"
#include "win/com/DispatchObject.h"

namespace win::adapter {

// The add-in's sink for one of the host's event interfaces: answers that interface's IID
// and hands each event it knows, by DISPID, to a handler. The handler can be cut off
// (the adapted object that owns it went away) even while the host still holds the sink.
class EventSink : public com::DispatchObject<> {
public:
    using Handler = std::function<void(DISPID event, const com::InvokeArgs& args)>;
    EventSink(const IID& iid, std::vector<com::Member> events, Handler handler)
        : iid_(iid), events_(std::move(events)), handler_(std::move(handler)) {}
    void Detach() { handler_ = nullptr; }

protected:
    std::span<const com::Member> Members() const override { return events_; }
    bool Answers(REFIID iid) const override { return IsEqualIID(iid, iid_); }
    support::Variant Call(DISPID id, WORD flags, const com::InvokeArgs& args) override;

private:
    IID iid_;
    std::vector<com::Member> events_;
    Handler handler_;
};

// A sink advised on a host object's connection point for as long as this lives.
class Advised {
public:
    // Finds the point for iid and advises a sink answering iid.
    Advised(const com::ComPtr<IDispatch>& source, const IID& iid, std::vector<com::Member> events,
            EventSink::Handler handler);
    // The IID of the object's only outgoing interface, asked of the object itself: for
    // event interfaces whose IID the add-in does not know beforehand.
    static IID OnlyOutgoingInterface(const com::ComPtr<IDispatch>& source);
    ~Advised();
    Advised(const Advised&) = delete;
    Advised& operator=(const Advised&) = delete;

private:
    com::ComPtr<IConnectionPoint> point_;
    com::ComPtr<EventSink> sink_;
    DWORD cookie_ = 0;
};

}  // namespace win::adapter
