#pragma once
#include "app/session/Session.h"

namespace win::app {

// Plays a session with every call between the add-in and the stand-in crossing COM: the
// stand-in's face (IDispatch objects, connection points) on one side, the adapter the
// add-in uses in the real host on the other. Made before the session and gone after it:
// it holds the thread's COM apartment.
class ThroughCom {
public:
    ThroughCom();
    void Wire(session::Session& session);
    ~ThroughCom();
    ThroughCom(const ThroughCom&) = delete;
    ThroughCom& operator=(const ThroughCom&) = delete;
};

}  // namespace win::app
