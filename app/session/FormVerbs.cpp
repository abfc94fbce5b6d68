// Verbs that act on the add-in's forms as the user does: by form.control names.
#include <algorithm>
#include <charconv>

#include "app/session/FormPrinter.h"
#include "app/session/Session.h"
#include "app/session/Verb.h"
#include "support/Error.h"
#include "support/Suggest.h"
#include "ui/Form.h"
#include "ui/headless/ScriptError.h"

namespace session {

using ui::ControlKind;
using ui::EventKind;
using ui::headless::Quote;
using ui::headless::ScriptError;

namespace {

// FORM.CONTROL or FORM.CONTROL(INDEX); the index is for menu and control arrays.
struct Target {
    std::string form;
    std::string member;
    int index = -1;
};

Target ParseTarget(const Args& args, std::size_t i) {
    const std::string& text = args.Text(i);
    auto dot = text.find('.');
    Target target;
    if (dot == std::string::npos || dot == 0 || dot + 1 == text.size()) args.Fail("expected FORM.CONTROL");
    target.form = text.substr(0, dot);
    target.member = text.substr(dot + 1);
    if (auto open = target.member.find('('); open != std::string::npos) {
        const std::string number = target.member.substr(open + 1);
        bool ok = number.size() >= 2 && number.back() == ')' &&
                  std::all_of(number.begin(), number.end() - 1, [](char c) { return c >= '0' && c <= '9'; });
        if (!ok || open == 0) args.Fail("expected FORM.CONTROL(INDEX)");
        auto parsed = std::from_chars(number.data(), number.data() + number.size() - 1, target.index);
        if (parsed.ec != std::errc())
            args.Fail("the index " + number.substr(0, number.size() - 1) + " is too large");
        target.member.resize(open);
    }
    return target;
}

void CheckTarget(const Args& args) {
    ParseTarget(args, 0);
}

// While a modal form is open the user reaches that form alone: the others wait behind it.
void RequireNotBehindModal(Session& s, const ui::Form& form) {
    const ui::Form* modal = s.Platform().TopModalForm();
    if (modal && modal != &form)
        throw support::Error(support::errors::kInvalidCall,
                             "Form " + form.Name() + " is behind the modal form " + modal->Name());
}

// The user reaches a control only on a form that shows, when the control is visible and
// enabled; otherwise the action fails as the form would refuse it.
[[noreturn]] void NoControl(const ui::Form& form, const std::string& name) {
    std::vector<std::string> names;
    for (const auto& control : form.Controls()) names.push_back(control->Name());
    throw ScriptError("form " + form.Name() + " has no control " + name + support::DidYouMean(name, names));
}

ui::Control& Reach(Session& s, ui::Form& form, const std::string& name) {
    auto* control = form.Find(name);
    if (!control) NoControl(form, name);
    if (!form.Visible())
        throw support::Error(support::errors::kInvalidCall, "Form " + form.Name() + " is not visible");
    RequireNotBehindModal(s, form);
    if (!control->Enabled || !control->Visible)
        throw support::Error(support::errors::kInvalidCall,
                             "Control " + form.Name() + "." + name + " is not enabled or not visible");
    return *control;
}

void RequireKind(const ui::Form& form, const ui::Control& control, std::initializer_list<ControlKind> kinds,
                 const char* what) {
    if (std::find(kinds.begin(), kinds.end(), control.Kind()) == kinds.end())
        throw ScriptError(form.Name() + "." + control.Name() + " is a " + ui::KindName(control.Kind()) +
                          ", not " + what);
}

// A row of a list or combo box by index (from 0), by text (the first equal item), or by
// both, in which case the item at the index must have that text.
int Row(const Args& args, std::size_t i, const ui::Control& control) {
    const auto& items = control.Items;
    int row = -1;
    if (!args[i].quoted) {
        row = args.Int(i);
        if (row < 0 || row >= static_cast<int>(items.size()))
            throw ScriptError(control.Name() + " has no row " + std::to_string(row) + " (it has " +
                              std::to_string(items.size()) + ")");
        ++i;
    }
    if (i < args.Count()) {
        const std::string& text = args.Text(i);
        if (row >= 0 && items[static_cast<std::size_t>(row)] != text)
            throw ScriptError("row " + std::to_string(row) + " of " + control.Name() + " is " +
                              Quote(items[static_cast<std::size_t>(row)]) + ", not " + Quote(text));
        if (row < 0) {
            auto found = std::find(items.begin(), items.end(), text);
            if (found == items.end()) throw ScriptError(control.Name() + " has no row " + Quote(text));
            row = static_cast<int>(found - items.begin());
        }
    }
    return row;
}

void CheckRow(const Args& args, std::size_t i) {
    if (i < args.Count() && !args[i].quoted) {
        const std::string& text = args.Text(i);
        if (text.find_first_not_of("-0123456789") != std::string::npos)
            args.Fail("a row is a number from 0 or a quoted text");
        if (args.Int(i) < 0) args.Fail("rows count from 0");
        ++i;
    }
    if (i < args.Count() && !args[i].quoted) args.Fail("a row's text is quoted");
    if (i + 1 < args.Count()) args.Fail("too many words");
}

void Click(Session& s, const Args& args) {
    auto target = ParseTarget(args, 0);
    auto& form = s.LoadedForm(target.form);
    Reach(s, form, target.member);
    form.Raise(target.member, EventKind::Click, target.index);
}

void DoubleClick(Session& s, const Args& args) {
    auto target = ParseTarget(args, 0);
    auto& form = s.LoadedForm(target.form);
    auto& control = Reach(s, form, target.member);
    if (args.Count() > 1) {
        // The first click of the two selects the row.
        RequireKind(form, control, {ControlKind::ListBox, ControlKind::ComboBox}, "a list");
        int row = Row(args, 1, control);
        // In a list of several selected rows, the click selects this row alone.
        if (control.MultiSelect)
            for (int other = 0; other < static_cast<int>(control.Items.size()); ++other)
                control.SetSelected(other, other == row);
        control.ListIndex = row;
        form.Raise(target.member, EventKind::Click, target.index);
    }
    form.Raise(target.member, EventKind::DblClick, target.index);
}

// The right button released over a control: the form decides what pops up.
void RightClick(Session& s, const Args& args) {
    auto target = ParseTarget(args, 0);
    auto& form = s.LoadedForm(target.form);
    Reach(s, form, target.member);
    form.Raise(target.member, EventKind::MouseUp, ui::kRightButton);
}

void Choose(Session& s, const Args& args) {
    auto target = ParseTarget(args, 0);
    auto& form = s.LoadedForm(target.form);
    auto& control = Reach(s, form, target.member);
    RequireKind(form, control, {ControlKind::ListBox, ControlKind::ComboBox}, "a list or combo box");
    int row = Row(args, 1, control);
    // In a list of several selected rows, choosing toggles the row, as a Ctrl+click does.
    if (control.MultiSelect) control.SetSelected(row, !control.Selected(row));
    control.ListIndex = row;
    // Choosing from a combo box's list sets its text without a Change event.
    if (control.Kind() == ControlKind::ComboBox)
        control.SetCaption(control.Items[static_cast<std::size_t>(row)]);
    form.Raise(target.member, EventKind::Click, target.index);
}

void Type(Session& s, const Args& args) {
    auto target = ParseTarget(args, 0);
    auto& form = s.LoadedForm(target.form);
    auto& control = Reach(s, form, target.member);
    RequireKind(form, control, {ControlKind::TextBox, ControlKind::ComboBox}, "a text or combo box");
    if (control.Locked)
        throw support::Error(support::errors::kInvalidCall,
                             "Control " + form.Name() + "." + target.member + " is locked");
    control.SetFocus();
    ui::ReportingErrors(s.Platform(), [&] { control.SetText(args.Text(1)); });
}

void SetCheck(Session& s, const Args& args, bool checked) {
    auto target = ParseTarget(args, 0);
    auto& form = s.LoadedForm(target.form);
    auto& control = Reach(s, form, target.member);
    RequireKind(form, control, {ControlKind::CheckBox, ControlKind::OptionButton},
                "a check box or option button");
    if (control.Kind() == ControlKind::OptionButton && !checked)
        throw ScriptError("an option button is cleared by checking another one of its group");
    control.SetFocus();
    ui::ReportingErrors(s.Platform(), [&] {
        control.SetValue(checked ? (control.Kind() == ControlKind::CheckBox ? 1 : -1) : 0);
    });
}

void Leave(Session& s, const Args& args) {
    auto target = ParseTarget(args, 0);
    auto& form = s.LoadedForm(target.form);
    auto& control = Reach(s, form, target.member);
    form.Raise(target.member, EventKind::LostFocus, target.index);
    // The focus moves on, unless the handler kept it somewhere.
    if (control.HasFocus()) form.SetFocusTo("");
}

void Close(Session& s, const Args& args) {
    auto& form = s.LoadedForm(args.Text(0));
    RequireNotBehindModal(s, form);
    bool closed = true;
    ui::ReportingErrors(s.Platform(), [&] { closed = form.Unload(); });
    if (!closed) s.Transcript().Write("form " + form.Name() + " stays loaded: QueryUnload cancelled");
}

void ClickMenu(Session& s, const Args& args) {
    auto target = ParseTarget(args, 0);
    auto& form = s.LoadedForm(target.form);
    const auto& menus = form.Menus();
    auto item = std::find_if(menus.begin(), menus.end(), [&](const ui::MenuItem& m) {
        return m.Name == target.member && m.Index == target.index;
    });
    if (item == menus.end()) {
        std::vector<std::string> names;
        for (const auto& menu : menus) names.push_back(menu.Name);
        throw ScriptError("form " + form.Name() + " has no menu " + target.member +
                          (target.index >= 0 ? "(" + std::to_string(target.index) + ")" : "") +
                          support::DidYouMean(target.member, names));
    }
    if (!form.Visible())
        throw support::Error(support::errors::kInvalidCall, "Form " + form.Name() + " is not visible");
    RequireNotBehindModal(s, form);
    if (!item->Visible)
        throw support::Error(support::errors::kInvalidCall, "Menu " + args.Text(0) + " is not visible");
    form.ClickMenu(target.member, target.index);
}

void PrintControl(Session& s, const Args& args) {
    Target target = ParseTarget(args, 0);
    auto& form = s.LoadedForm(target.form);
    auto* control = form.Find(target.member);
    if (!control) NoControl(form, target.member);
    s.Transcript().Write(DescribeControl(form, *control));
}

void Move(Session& s, const Args& args) {
    auto& form = s.LoadedForm(args.Text(0));
    form.Left = args.Int(1);
    form.Top = args.Int(2);
}

}  // namespace

void AddFormVerbs(std::vector<Verb>& verbs) {
    const std::size_t first = verbs.size();
    verbs.push_back({"click", "click FORM.CONTROL[(INDEX)]", 1, 1, Click, CheckTarget});
    verbs.push_back(
        {"dblclick", "dblclick FORM.CONTROL [ROW] [\"ROW TEXT\"]", 1, 3, DoubleClick, [](const Args& a) {
             CheckTarget(a);
             CheckRow(a, 1);
         }});
    verbs.push_back({"rightclick", "rightclick FORM.CONTROL", 1, 1, RightClick, CheckTarget});
    verbs.push_back(
        {"choose", "choose FORM.LIST ROW | choose FORM.LIST \"ROW TEXT\" | choose FORM.LIST ROW \"ROW TEXT\"",
         2, 3, Choose, [](const Args& a) {
             CheckTarget(a);
             CheckRow(a, 1);
         }});
    verbs.push_back({"type", "type FORM.CONTROL TEXT", 2, 2, Type, CheckTarget});
    verbs.push_back({"check", "check FORM.CONTROL", 1, 1,
                     [](Session& s, const Args& a) { SetCheck(s, a, true); }, CheckTarget});
    verbs.push_back({"uncheck", "uncheck FORM.CONTROL", 1, 1,
                     [](Session& s, const Args& a) { SetCheck(s, a, false); }, CheckTarget});
    verbs.push_back({"leave", "leave FORM.CONTROL", 1, 1, Leave, CheckTarget});
    verbs.push_back({"close", "close FORM", 1, 1, Close});
    verbs.push_back({"menu", "menu FORM.MENU[(INDEX)]", 1, 1, ClickMenu, CheckTarget});
    verbs.push_back({"print control", "print control FORM.CONTROL", 1, 1, PrintControl, CheckTarget});
    verbs.push_back({"move", "move FORM LEFT TOP", 3, 3, Move, [](const Args& a) {
                         a.Int(1);
                         a.Int(2);
                     }});
    // Every form belongs to the add-in: acting on one runs its code.
    for (std::size_t i = first; i < verbs.size(); ++i)
        verbs[i].reachesAddin = verbs[i].name != "print control";
}

}  // namespace session
