#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace simhost {

// Counts the calls the add-in makes through the host interfaces, by member. In the real
// host each such call crosses COM, so their number, not the stand-in's own time, is what
// predicts how long a walk takes there. Only the outermost call counts: a member that the
// stand-in uses to carry out another is its own business, not a call the add-in made.
// Counting is off until asked for; a member then pays an increment and a test.
class HostCalls {
public:
    // The member's counter, made on first use ("Document.SaveAs"); one per name.
    static std::size_t Register(const char* member);

    // Lives for the length of one member's call.
    class Scope {
    public:
        explicit Scope(std::size_t id) {
            if (depth_++ > 0) return;
            ++operation_;
            if (counting_) ++counts_[id];
        }
        ~Scope() { --depth_; }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;
    };
    // Calls made while one lives are not the add-in's (a session reading the host's state).
    class Uncounted {
    public:
        Uncounted() { ++depth_; }
        ~Uncounted() { --depth_; }
        Uncounted(const Uncounted&) = delete;
        Uncounted& operator=(const Uncounted&) = delete;
    };

    // The outermost call in progress, numbered from 1; 0 when none is. While one runs the
    // disk changes only through the stand-in, so what it learnt of the disk holds.
    static std::uint64_t Operation() { return depth_ > 0 ? operation_ : 0; }

    static void Start();  // zeroes the counters and starts counting
    static void Stop() { counting_ = false; }
    static bool Counting() { return counting_; }
    // Members called since Start, with their counts, by name.
    static std::vector<std::pair<std::string, std::uint64_t>> Counts();
    static std::uint64_t Total();

private:
    static constexpr std::size_t kMaxMembers = 512;
    static inline bool counting_ = false;
    static inline int depth_ = 0;
    static inline std::uint64_t operation_ = 0;
    static inline std::uint64_t counts_[kMaxMembers] = {};
};

}  // namespace simhost

// Counts one call of a host member; the first line of each member the stand-in implements.
#define SIM_HOST_CALL(member)                                                        \
    static const std::size_t simHostCallId = ::simhost::HostCalls::Register(member); \
    const ::simhost::HostCalls::Scope simHostCallScope(simHostCallId)
