#include "ui/headless/MsgBoxNames.h"

#include <cctype>

namespace ui::headless {

namespace {
constexpr MsgBoxResult kAllResults[] = {vbOK, vbCancel, vbAbort, vbRetry, vbIgnore, vbYes, vbNo};
constexpr int kButtonsMask = 0x7;
constexpr int kIconMask = 0x70;
constexpr int kDefaultButtonMask = 0x300;

bool SameLetters(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i])))
            return false;
    return true;
}

const char* IconName(int style) {
    switch (style & kIconMask) {
        case 16:
            return "critical";
        case vbQuestion:
            return "question";
        case vbExclamation:
            return "exclamation";
        case vbInformation:
            return "information";
        default:
            return nullptr;
    }
}
}  // namespace

std::vector<MsgBoxResult> ButtonsOf(int style) {
    switch (style & kButtonsMask) {
        case vbOKCancel:
            return {vbOK, vbCancel};
        case vbAbortRetryIgnore:
            return {vbAbort, vbRetry, vbIgnore};
        case vbYesNoCancel:
            return {vbYes, vbNo, vbCancel};
        case vbYesNo:
            return {vbYes, vbNo};
        case vbRetryCancel:
            return {vbRetry, vbCancel};
        default:
            return {vbOK};
    }
}

const char* ResultName(MsgBoxResult result) {
    switch (result) {
        case vbOK:
            return "OK";
        case vbCancel:
            return "Cancel";
        case vbAbort:
            return "Abort";
        case vbRetry:
            return "Retry";
        case vbIgnore:
            return "Ignore";
        case vbYes:
            return "Yes";
        case vbNo:
            return "No";
    }
    return "?";
}

std::optional<MsgBoxResult> ParseResult(std::string_view name) {
    for (auto result : kAllResults)
        if (SameLetters(name, ResultName(result))) return result;
    return std::nullopt;
}

std::string DescribeStyle(int style) {
    auto buttons = ButtonsOf(style);
    std::string text = "[";
    for (std::size_t i = 0; i < buttons.size(); ++i)
        text += (i ? " " : "") + std::string(ResultName(buttons[i]));
    text += "]";
    if (const char* icon = IconName(style)) text += std::string(" ") + icon;
    auto defaultIndex = static_cast<std::size_t>((style & kDefaultButtonMask) >> 8);
    if (defaultIndex > 0 && defaultIndex < buttons.size())
        text += std::string(" default ") + ResultName(buttons[defaultIndex]);
    return text;
}

}  // namespace ui::headless
