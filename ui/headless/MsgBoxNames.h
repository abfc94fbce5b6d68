#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/Platform.h"

namespace ui::headless {

// The buttons a message box style shows, in the order the box shows them.
std::vector<MsgBoxResult> ButtonsOf(int style);
// "OK", "Cancel", "Abort", "Retry", "Ignore", "Yes", "No".
const char* ResultName(MsgBoxResult result);
// The result a button name stands for, any case; nullopt for a name no box has.
std::optional<MsgBoxResult> ParseResult(std::string_view name);
// What a style shows besides the text: "[Yes No] question default No".
std::string DescribeStyle(int style);

}  // namespace ui::headless
