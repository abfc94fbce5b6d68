#include "win/com/ComError.h"

#include <cstdio>
#include <string>

#include "support/Utf16.h"
#include "win/com/Bstr.h"
#include "win/com/ComPtr.h"

namespace win::com {

namespace {
constexpr const char* kSource = "Tarnwell";

bool IsControlError(HRESULT hr) {
    return HRESULT_FACILITY(hr) == FACILITY_CONTROL && FAILED(hr);
}

// The errors a late-bound call raises on the add-in's original platform.
struct PlatformError {
    HRESULT hr;
    std::int32_t number;
    const char* text;
};
constexpr PlatformError kPlatformErrors[] = {
    {DISP_E_UNKNOWNNAME, 438, "Object doesn't support this property or method"},
    {DISP_E_MEMBERNOTFOUND, 438, "Object doesn't support this property or method"},
    {DISP_E_BADPARAMCOUNT, 450, "Wrong number of arguments or invalid property assignment"},
    {DISP_E_PARAMNOTOPTIONAL, 449, "Argument not optional"},
    {DISP_E_NONAMEDARGS, 446, "Object doesn't support named arguments"},
    {DISP_E_TYPEMISMATCH, support::errors::kTypeMismatch, "Type mismatch"},
    {DISP_E_OVERFLOW, support::errors::kOverflow, "Overflow"},
};

std::string SystemMessage(HRESULT hr) {
    wchar_t* buffer = nullptr;
    DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
        static_cast<DWORD>(hr), 0, reinterpret_cast<wchar_t*>(&buffer), 0, nullptr);
    std::string text = length ? support::Utf16ToUtf8(std::wstring_view(buffer, length)) : std::string();
    LocalFree(buffer);
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r' || text.back() == ' '))
        text.pop_back();
    if (!text.empty()) return text;
    char fallback[40];
    std::snprintf(fallback, sizeof fallback, "Automation error 0x%08lX", static_cast<unsigned long>(hr));
    return fallback;
}

std::string ErrorInfoDescription(IUnknown* object, REFIID iid) {
    if (!object) return "";
    ComPtr<ISupportErrorInfo> supports =
        ComPtr<IUnknown>(object).As<ISupportErrorInfo>(IID_ISupportErrorInfo);
    if (!supports || supports->InterfaceSupportsErrorInfo(iid) != S_OK) return "";
    ComPtr<IErrorInfo> info;
    if (GetErrorInfo(0, info.Receive()) != S_OK || !info) return "";
    Bstr description;
    info->GetDescription(description.Receive());
    return description.ToUtf8();
}
}  // namespace

std::int32_t ErrorNumberFromHresult(HRESULT hr) {
    if (IsControlError(hr)) return HRESULT_CODE(hr);
    return static_cast<std::int32_t>(hr);
}

HRESULT HresultFromErrorNumber(std::int32_t number) {
    if (number > 0 && number <= 0xFFFF) return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
    if (number < 0) return static_cast<HRESULT>(number);
    return E_FAIL;  // 0 and numbers COM cannot carry: still a failure
}

support::Error ErrorFromHresult(HRESULT hr, IUnknown* object, REFIID iid) {
    for (const PlatformError& e : kPlatformErrors)
        if (e.hr == hr) return support::Error(e.number, e.text);
    std::string description = ErrorInfoDescription(object, iid);
    if (description.empty()) description = SystemMessage(hr);
    return support::Error(ErrorNumberFromHresult(hr), description);
}

support::Error ErrorFromExcepInfo(EXCEPINFO& info) {
    if (info.pfnDeferredFillIn) info.pfnDeferredFillIn(&info);
    Bstr source = Bstr::Adopt(info.bstrSource), description = Bstr::Adopt(info.bstrDescription),
         help = Bstr::Adopt(info.bstrHelpFile);
    info.bstrSource = info.bstrDescription = info.bstrHelpFile = nullptr;
    // A server sets either its own small code or an HRESULT, never both.
    std::int32_t number = info.wCode   ? info.wCode
                          : info.scode ? ErrorNumberFromHresult(info.scode)
                                       : ErrorNumberFromHresult(DISP_E_EXCEPTION);
    std::string text = description.ToUtf8();
    if (text.empty()) text = SystemMessage(info.scode ? info.scode : DISP_E_EXCEPTION);
    return support::Error(number, text);
}

void Check(HRESULT hr, IUnknown* object, REFIID iid) {
    if (FAILED(hr)) throw ErrorFromHresult(hr, object, iid);
}

HRESULT ToExcepInfo(const support::Error& error, EXCEPINFO* info) {
    HRESULT hr = HresultFromErrorNumber(error.Number());
    if (!info) return hr;
    *info = EXCEPINFO{};
    info->scode = hr;
    try {
        info->bstrSource = Bstr(kSource).Detach();
        info->bstrDescription = Bstr(error.Description()).Detach();
    } catch (const support::Error&) {
        // No memory for the texts: the number alone still tells the caller what failed.
    }
    return DISP_E_EXCEPTION;
}

HRESULT ToErrorInfo(const support::Error& error, REFIID iid) {
    ComPtr<ICreateErrorInfo> create;
    if (SUCCEEDED(CreateErrorInfo(create.Receive()))) {
        create->SetGUID(iid);
        create->SetSource(const_cast<LPOLESTR>(L"Tarnwell"));
        std::wstring description = support::Utf8ToUtf16(error.Description());
        create->SetDescription(description.data());
        SetErrorInfo(0, create.As<IErrorInfo>(IID_IErrorInfo).Get());
    }
    return HresultFromErrorNumber(error.Number());
}

}  // namespace win::com
