#pragma once
#include <string>

namespace ui {
class Form;
}

namespace session {

// A form as the user sees it, one line for the form, one for each control and menu
// item, and one for each row of a list; the format is in docs/session.md.
std::string DescribeForm(const ui::Form& form);

}  // namespace session
