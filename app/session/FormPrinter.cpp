#include "app/session/FormPrinter.h"

#include "ui/Form.h"
#include "ui/headless/Transcript.h"

namespace session {

using ui::ControlKind;
using ui::headless::Quote;

namespace {

bool HasList(ControlKind kind) {
    return kind == ControlKind::ListBox || kind == ControlKind::ComboBox;
}

}  // namespace

std::string DescribeControl(const ui::Form& form, const ui::Control& c) {
    std::string line = std::string(ui::KindName(c.Kind())) + " " + c.Name();
    if (c.Kind() != ControlKind::ListBox && c.Kind() != ControlKind::Picture)
        line += " " + Quote(c.Caption());
    if (c.Kind() == ControlKind::CheckBox || c.Kind() == ControlKind::OptionButton)
        line += " value " + std::to_string(c.Value());
    if (c.Kind() == ControlKind::Picture && !c.Picture.empty()) line += " picture " + Quote(c.Picture);
    if (!c.Enabled) line += " disabled";
    if (!c.Visible) line += " hidden";
    if (c.Locked) line += " locked";
    if (form.FocusedControl() == c.Name()) line += " focus";
    if (!c.ToolTipText.empty()) line += " tooltip " + Quote(c.ToolTipText);
    if (HasList(c.Kind())) {
        line += " rows " + std::to_string(c.Items.size());
        for (std::size_t i = 0; i < c.Items.size(); ++i)
            line += "\n    [" + std::to_string(i) + "] " + Quote(c.Items[i]) +
                    (c.Selected(static_cast<int>(i)) ? " selected" : "");
    }
    return line;
}

namespace {

std::string DescribeMenu(const ui::MenuItem& m) {
    std::string line = "menu " + m.Name;
    if (m.Index >= 0) line += "(" + std::to_string(m.Index) + ")";
    line += " " + Quote(m.Caption);
    if (!m.Parent.empty()) line += " in " + m.Parent;
    if (m.Checked) line += " checked";
    if (!m.Enabled) line += " disabled";
    if (!m.Visible) line += " hidden";
    return line;
}

}  // namespace

std::string DescribeForm(const ui::Form& form) {
    std::string text = "form " + form.Name() + " " + Quote(form.Caption());
    text += !form.Visible() ? " hidden" : form.Modal() ? " modal" : " modeless";
    text += " left " + std::to_string(form.Left) + " top " + std::to_string(form.Top);
    for (const auto& control : form.Controls()) text += "\n  " + DescribeControl(form, *control);
    for (const auto& menu : form.Menus()) text += "\n  " + DescribeMenu(menu);
    return text;
}

}  // namespace session
