#include <gtest/gtest.h>

#include <array>

#include "support/Error.h"
#include "tests/unit/test_support.h"
#include "win/com/ComObject.h"
#include "win/com/Dispatch.h"
#include "win/com/DispatchObject.h"

namespace win::com {
namespace {

using support::Variant;
using test_support::ErrorNumber;

// One of our objects, reached only through IDispatch, as the host reaches ours.
class Adder : public DispatchObject<> {
public:
    static constexpr std::array<Member, 4> kMembers{
        {{1, L"Add"}, {2, L"Fail"}, {3, L"Describe"}, {4, L"Highlight"}}};
    std::span<const Member> Members() const override { return kMembers; }
    bool Answers(REFIID) const override { return false; }
    Variant Call(DISPID id, WORD, const InvokeArgs& args) override {
        switch (id) {
            case 1:
                args.Require(2);
                return args.At(0).ToDouble() + args.At(1).ToDouble();
            case 2:
                throw support::Error(args.At(0).ToDouble(), args.At(1).ToText());
            case 3:  // an optional argument left out arrives as Empty
                return args.Count() == 0 ? "none" : args.At(0).IsEmpty() ? "missing" : args.At(0).Describe();
            default:  // an [out] argument, as the host's pre-select event passes one
                args.SetOut(0, false);
                return {};
        }
    }
};

class DispatchTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(SUCCEEDED(CoInitialize(nullptr))); }
    void TearDown() override {
        CoUninitialize();
        EXPECT_EQ(LiveObjectCount(), 0) << "an object was leaked";
    }
};

TEST_F(DispatchTest, CallsByNameInAnyCaseAndByDispid) {
    Dispatch adder(DispatchObject<>::Make<Adder>());
    EXPECT_EQ(adder.Call("Add", {2, 3.5}), Variant(5.5));
    EXPECT_EQ(adder.Call("aDD", {1, 1}), Variant(2.0));
    EXPECT_EQ(adder.Invoke(1, DISPATCH_METHOD, {std::int16_t(4), "5"}), Variant(9.0));
    EXPECT_EQ(adder.IdOf("describe"), 3);
    EXPECT_EQ(adder.Call("Describe"), Variant("none"));
    EXPECT_EQ(adder.Call("Describe", {Argument::Missing()}), Variant("missing"));
    EXPECT_EQ(adder.Call("Describe", {"x"}), Variant("text \"x\""));
}

TEST_F(DispatchTest, OurErrorsReachTheCallerWithTheirNumberAndText) {
    Dispatch adder(DispatchObject<>::Make<Adder>());
    try {
        adder.Call("Fail", {std::int32_t(53), "File not found"});
        FAIL() << "no error";
    } catch (const support::Error& e) {
        EXPECT_EQ(e.Number(), support::errors::kFileNotFound);
        EXPECT_EQ(e.Description(), "File not found") << "the text as the member wrote it";
    }
    // An error the member raises with the host's HRESULT keeps it.
    EXPECT_EQ(ErrorNumber([&] {
                  adder.Call("Fail", {support::errors::kUnexpected, "no icon"});
              }),
              support::errors::kUnexpected);
    // Calls the member cannot take fail as the platform's late-binding errors.
    EXPECT_EQ(ErrorNumber([&] { adder.Call("Subtract"); }), 438);
    EXPECT_EQ(ErrorNumber([&] { adder.Call("Add", {1}); }), 450);
    EXPECT_EQ(ErrorNumber([&] { adder.Call("Add", {1, "one"}); }), support::errors::kTypeMismatch);
    EXPECT_EQ(ErrorNumber([&] { adder.Call("Add", {1}, {{"Right", 2}}); }), 438);
    EXPECT_EQ(ErrorNumber([&] { Dispatch(nullptr).Call("Add"); }), support::errors::kObjectNotSet);
}

TEST_F(DispatchTest, OutArgumentsAreWrittenThroughTheCallersReference) {
    ComPtr<Adder> adder = DispatchObject<>::Make<Adder>();
    VARIANT_BOOL highlight = VARIANT_TRUE;
    VARIANT arg;
    V_VT(&arg) = VT_BOOL | VT_BYREF;
    V_BOOLREF(&arg) = &highlight;
    DISPPARAMS params{&arg, nullptr, 1, 0};
    EXPECT_EQ(adder->Invoke(4, IID_NULL, 0, DISPATCH_METHOD, &params, nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(highlight, VARIANT_FALSE);
    // A value passed by value cannot carry an answer back.
    VARIANT byValue;
    V_VT(&byValue) = VT_BOOL;
    V_BOOL(&byValue) = VARIANT_TRUE;
    params.rgvarg = &byValue;
    EXPECT_EQ(adder->Invoke(4, IID_NULL, 0, DISPATCH_METHOD, &params, nullptr, nullptr, nullptr),
              DISP_E_TYPEMISMATCH);
}

// Another component's automation object: Wine's Scripting.Dictionary, written by others,
// answers late-bound calls with named arguments and raises its own errors.
TEST_F(DispatchTest, CallsAnotherComponentsObjectWithNamedArguments) {
    CLSID clsid;
    ASSERT_TRUE(SUCCEEDED(CLSIDFromProgID(L"Scripting.Dictionary", &clsid)));
    ComPtr<IDispatch> object;
    ASSERT_TRUE(SUCCEEDED(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                           reinterpret_cast<void**>(object.Receive()))));
    Dispatch dictionary(object);
    dictionary.Call("Add", {"Frame", 1});
    dictionary.Call("Add", {},
                    {{"Item", 2.5},
                     {"Key",
                      "Br\xC3\xBC"
                      "cke"}});
    EXPECT_EQ(dictionary.Get("Count"), Variant(std::int32_t(2)));
    EXPECT_EQ(dictionary.Get("Item", {"Br\xC3\xBC"
                                      "cke"}),
              Variant(2.5));
    support::Error duplicate(0, "");
    try {
        dictionary.Call("Add", {"Frame", 3});
    } catch (const support::Error& e) {
        duplicate = e;
    }
    EXPECT_EQ(duplicate.Number(), 457) << "the dictionary's own 'key already exists'";
    EXPECT_EQ(ErrorNumber([&] { dictionary.Call("NoSuchMember"); }), 438);
}

}  // namespace
}  // namespace win::com
