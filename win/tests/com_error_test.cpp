#include <gtest/gtest.h>

#include "support/Error.h"
#include "win/com/Bstr.h"
#include "win/com/ComError.h"

namespace win::com {
namespace {

TEST(ErrorNumbers, PlatformNumbersTravelInTheControlFacilityAndComeBack) {
    EXPECT_EQ(HresultFromErrorNumber(support::errors::kObjectNotSet), static_cast<HRESULT>(0x800A005B));
    EXPECT_EQ(ErrorNumberFromHresult(static_cast<HRESULT>(0x800A005B)), support::errors::kObjectNotSet);
    EXPECT_EQ(ErrorNumberFromHresult(HresultFromErrorNumber(support::errors::kFileNotFound)),
              support::errors::kFileNotFound);
    // The host's own HRESULTs are their own numbers: the icon refusal stays 0x8000FFFF.
    EXPECT_EQ(HresultFromErrorNumber(support::errors::kUnexpected), E_UNEXPECTED);
    EXPECT_EQ(ErrorNumberFromHresult(E_UNEXPECTED), support::errors::kUnexpected);
    // A number COM cannot carry is still a failure.
    EXPECT_TRUE(FAILED(HresultFromErrorNumber(0)));
    EXPECT_TRUE(FAILED(HresultFromErrorNumber(0x10000)));
}

TEST(ErrorFromHresult, LateBindingFailuresAreThePlatformsErrors) {
    EXPECT_EQ(ErrorFromHresult(DISP_E_UNKNOWNNAME).Number(), 438);
    EXPECT_EQ(ErrorFromHresult(DISP_E_MEMBERNOTFOUND).Number(), 438);
    EXPECT_EQ(ErrorFromHresult(DISP_E_BADPARAMCOUNT).Number(), 450);
    EXPECT_EQ(ErrorFromHresult(DISP_E_TYPEMISMATCH).Number(), support::errors::kTypeMismatch);
    support::Error other = ErrorFromHresult(E_ACCESSDENIED);
    EXPECT_EQ(other.Number(), static_cast<std::int32_t>(E_ACCESSDENIED));
    EXPECT_FALSE(other.Description().empty()) << "the system's message names the failure";
}

TEST(ErrorFromExcepInfo, TakesTheServersNumberAndTextAndFreesThem) {
    EXCEPINFO info{};
    info.scode = E_UNEXPECTED;
    info.bstrDescription = Bstr("The icon was refused").Detach();
    info.bstrSource = Bstr("Host").Detach();
    support::Error e = ErrorFromExcepInfo(info);
    EXPECT_EQ(e.Number(), support::errors::kUnexpected);
    EXPECT_EQ(e.Description(), "The icon was refused");
    EXPECT_EQ(info.bstrDescription, nullptr);
    EXPECT_EQ(info.bstrSource, nullptr);

    EXCEPINFO coded{};
    coded.wCode = 1004;  // a server's own small code
    EXPECT_EQ(ErrorFromExcepInfo(coded).Number(), 1004);

    // A server may leave the text to a deferred fill-in.
    EXCEPINFO deferred{};
    deferred.pfnDeferredFillIn = [](EXCEPINFO* e) -> HRESULT {
        e->scode = HresultFromErrorNumber(support::errors::kPathNotFound);
        e->bstrDescription = Bstr("Path not found").Detach();
        return S_OK;
    };
    support::Error filled = ErrorFromExcepInfo(deferred);
    EXPECT_EQ(filled.Number(), support::errors::kPathNotFound);
    EXPECT_EQ(filled.Description(), "Path not found");
}

TEST(ToExcepInfo, HandsOurErrorsToTheCallerWithNumberAndText) {
    EXCEPINFO info{};
    support::Error error(support::errors::kFileNotFound, "File not found: C:\\W\xC3\xB6rk\\a.ipt");
    EXPECT_EQ(ToExcepInfo(error, &info), DISP_E_EXCEPTION);
    EXPECT_EQ(info.scode, HresultFromErrorNumber(support::errors::kFileNotFound));
    support::Error back = ErrorFromExcepInfo(info);
    EXPECT_EQ(back.Number(), error.Number());
    EXPECT_EQ(back.Description(), error.Description());
    // Without an EXCEPINFO the HRESULT alone carries the number.
    EXPECT_EQ(ToExcepInfo(error, nullptr), HresultFromErrorNumber(support::errors::kFileNotFound));
}

}  // namespace
}  // namespace win::com
