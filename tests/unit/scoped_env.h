#pragma once
#include <cstdlib>
#include <optional>
#include <string>

namespace test_support {

// Sets an environment variable for one scope and puts the previous state back after it.
// Windows has no setenv: its runtime removes a variable set to the empty text.
class ScopedEnv {
public:
    ScopedEnv(std::string name, const std::string& value) : name_(std::move(name)) {
        if (const char* old = std::getenv(name_.c_str())) old_ = old;
        Set(value.c_str());
    }
    ~ScopedEnv() { old_ ? Set(old_->c_str()) : Unset(); }
    ScopedEnv(const ScopedEnv&) = delete;
    ScopedEnv& operator=(const ScopedEnv&) = delete;

private:
#ifdef _WIN32
    void Set(const char* value) {
        _putenv_s(name_.c_str(), value);
    }
    void Unset() {
        _putenv_s(name_.c_str(), "");
    }
#else
    void Set(const char* value) {
        setenv(name_.c_str(), value, 1);
    }
    void Unset() {
        unsetenv(name_.c_str());
    }
#endif
    std::string name_;
    std::optional<std::string> old_;
};

}  // namespace test_support
