#pragma once
#include <cstdint>
#include <memory>

#include "addin/shared/AddinState.h"
#include "host/Object.h"
#include "support/Event.h"

namespace host {
class InteractionEvents;
class SelectEvents;
}  // namespace host

namespace addin {

// A blocking pick: the caller waits, while the message loop keeps running, until the
// user picks one entity or ends the interaction.
class clsSelect {
public:
    explicit clsSelect(AddinState& state) : state_(state) {}
    // The first entity the user selected, or null when the interaction ended without one.
    // Asked again while a pick waits (the user clicked "Select" once more), it keeps that
    // pick waiting and answers null at once: two picks would share one set of events.
    host::ObjectPtr Pick(std::int32_t filter);
    // A pick waits for the user.
    bool Waiting() const { return waiting_; }
    VbBool bStillSelecting = kVbFalse;

private:
    void Release();
    AddinState& state_;
    bool waiting_ = false;
    std::shared_ptr<host::InteractionEvents> interaction_;
    std::shared_ptr<host::SelectEvents> selection_;
    support::Connection onTerminate_, onSelect_;
};

}  // namespace addin
