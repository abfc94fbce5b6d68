#pragma once
#include <cstdint>
#include <stdexcept>
#include <string>

namespace support {

// A failure carrying a number, as the host and the platform report them.
// Numbers are kept as the 32-bit values the host uses (0x8000FFFF and the like).
class Error : public std::runtime_error {
public:
    Error(std::int32_t number, const std::string& description)
        : std::runtime_error(description), number_(number) {}
    std::int32_t Number() const { return number_; }
    std::string Description() const { return what(); }

private:
    std::int32_t number_;
};

// Error numbers the add-in tests for or raises itself.
namespace errors {
inline constexpr std::int32_t kUnexpected = static_cast<std::int32_t>(0x8000FFFF);  // E_UNEXPECTED
inline constexpr std::int32_t kFail = static_cast<std::int32_t>(0x80004005);        // E_FAIL
inline constexpr std::int32_t kInvalidArg = static_cast<std::int32_t>(0x80070057);  // E_INVALIDARG
inline constexpr std::int32_t kObjectNotSet = 91;  // "Object variable not set"
inline constexpr std::int32_t kTypeMismatch = 13;
inline constexpr std::int32_t kOverflow = 6;
inline constexpr std::int32_t kInvalidCall = 5;  // "Invalid procedure call or argument"
inline constexpr std::int32_t kFileNotFound = 53;
inline constexpr std::int32_t kPathNotFound = 76;
inline constexpr std::int32_t kPermissionDenied = 70;
inline constexpr std::int32_t kFileAlreadyExists = 58;
}  // namespace errors

// Throws the "object variable not set" error when a reference is null; the host
// does the same when a member is called on nothing.
template <class Ptr>
Ptr& Required(Ptr& p, const char* what) {
    if (!p) throw Error(errors::kObjectNotSet, std::string("Object variable not set (") + what + ")");
    return p;
}

}  // namespace support
