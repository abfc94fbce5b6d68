#pragma once
#include <functional>
#include <memory>
#include <vector>

namespace support {

// A subscription to an Event. Destroying or resetting it unsubscribes, which is
// how the add-in "releases" an event source it held WithEvents.
class Connection {
public:
    Connection() = default;
    explicit Connection(std::shared_ptr<void> token) : token_(std::move(token)) {}
    void Reset() { token_.reset(); }

private:
    std::shared_ptr<void> token_;
};

// A multicast event raised by host objects. Handlers subscribed later run later.
template <class... Args>
class Event {
public:
    using Handler = std::function<void(Args...)>;

    [[nodiscard]] Connection Subscribe(Handler h) {
        auto slot = std::make_shared<Handler>(std::move(h));
        slots_.push_back(slot);
        return Connection(slot);
    }

    // Raise to every live subscriber; a handler may unsubscribe itself or others.
    void Raise(Args... args) {
        std::vector<std::shared_ptr<Handler>> live;
        for (auto& w : slots_)
            if (auto s = w.lock()) live.push_back(s);
        Prune();
        for (auto& s : live) (*s)(args...);
    }

private:
    void Prune() {
        std::erase_if(slots_, [](const auto& w) { return w.expired(); });
    }
    std::vector<std::weak_ptr<Handler>> slots_;
};

}  // namespace support
