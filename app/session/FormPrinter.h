#pragma once
#include <string>

namespace ui {
class Form;
class Control;
}  // namespace ui

namespace session {

// A form as the user sees it, one line for the form, one for each control and menu
// item, and one for each row of a list; the format is in docs/session.md.
std::string DescribeForm(const ui::Form& form);
// One control in the same format, without its form: a test about one control prints it
// alone, so that a control added to the form elsewhere does not change that test.
std::string DescribeControl(const ui::Form& form, const ui::Control& control);

}  // namespace session
