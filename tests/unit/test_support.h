#pragma once
// What every unit suite shares: a fresh scratch folder per test, and the error a call raised.
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <random>
#include <string>

#include "support/Error.h"

namespace test_support {

// A folder of its own for the running test, removed with the object. Its name carries
// the suite, the test and a random number: several test programs may run at once on
// one machine, and a test that failed half-way must not hand its files to the next run.
class ScratchFolder {
public:
    explicit ScratchFolder(const std::string& stem) {
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        std::random_device random;
        path_ =
            std::filesystem::temp_directory_path() / ("tarnwell-" + stem + "-" + info->test_suite_name() +
                                                      "-" + info->name() + "-" + std::to_string(random()));
        std::filesystem::create_directories(path_);
    }
    ~ScratchFolder() {
        // Tests make files read-only; the removal must still get through.
        std::error_code ec;
        for (auto& entry : std::filesystem::recursive_directory_iterator(path_, ec))
            std::filesystem::permissions(entry.path(), std::filesystem::perms::owner_write,
                                         std::filesystem::perm_options::add, ec);
        std::filesystem::remove_all(path_, ec);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(const std::string& relative) const { return path_ / relative; }

private:
    std::filesystem::path path_;
};

// The error a call raised, for checks on its number and text; a call that raised none
// fails the test.
template <class F>
support::Error ErrorOf(F f) {
    try {
        f();
    } catch (const support::Error& e) {
        return e;
    }
    ADD_FAILURE() << "expected a support::Error";
    return support::Error(0, "");
}

template <class F>
std::int32_t ErrorNumber(F f) {
    return ErrorOf(f).Number();
}

}  // namespace test_support
