#pragma once
#include <cstdint>
#include <functional>
#include <memory>

#include "addin/shared/AddinState.h"
#include "host/Object.h"
#include "support/Event.h"

namespace host {
class InteractionEvents;
class SelectEvents;
}  // namespace host

namespace addin {

// A non-blocking pick: starts an interaction that stays subscribed, and raises
// OnPicked each time the user selects something; oObjectSelected is set only while
// OnPicked runs.
class clsPickOccur {
public:
    explicit clsPickOccur(AddinState& state) : state_(state) {}
    ~clsPickOccur();
    clsPickOccur(const clsPickOccur&) = delete;
    clsPickOccur& operator=(const clsPickOccur&) = delete;

    void StartPick(std::int32_t filter);
    void StopPick();
    bool Selecting() const { return selecting_ != kVbFalse; }

    host::ObjectPtr oObjectSelected;
    support::Event<> OnPicked;

private:
    void OnSelect(const host::ObjectList& justSelected);
    AddinState& state_;
    VbBool selecting_ = kVbFalse;
    std::shared_ptr<host::InteractionEvents> interaction_;
    std::shared_ptr<host::SelectEvents> selection_;
    support::Connection onTerminate_, onSelect_, onPreSelect_;
};

}  // namespace addin
