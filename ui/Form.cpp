#include "ui/Form.h"

#include <algorithm>

namespace ui {

const char* KindName(ControlKind kind) {
    switch (kind) {
        case ControlKind::Button:
            return "button";
        case ControlKind::CheckBox:
            return "check";
        case ControlKind::OptionButton:
            return "option";
        case ControlKind::TextBox:
            return "text";
        case ControlKind::Label:
            return "label";
        case ControlKind::ListBox:
            return "list";
        case ControlKind::ComboBox:
            return "combo";
        case ControlKind::Picture:
            return "picture";
        case ControlKind::Frame:
            return "frame";
    }
    return "control";
}

const char* EventName(EventKind kind) {
    switch (kind) {
        case EventKind::Click:
            return "Click";
        case EventKind::DblClick:
            return "DblClick";
        case EventKind::Change:
            return "Change";
        case EventKind::LostFocus:
            return "LostFocus";
        case EventKind::MouseUp:
            return "MouseUp";
    }
    return "Event";
}

namespace {
std::string HandlerKey(const std::string& control, EventKind kind) {
    return control + "_" + EventName(kind);
}
std::string MenuKey(const std::string& menu) {
    return menu + "_Click";
}
}  // namespace

Control::Control(Form& owner, std::string name, ControlKind kind, std::string caption)
    : owner_(owner), name_(std::move(name)), kind_(kind), caption_(std::move(caption)) {}

void Control::SetCaption(const std::string& caption) {
    caption_ = caption;
    if (kind_ == ControlKind::Label && owner_.Loaded())
        owner_.platform().LabelChanged(owner_, name_, caption_);
}

void Control::SetText(const std::string& text) {
    if (text == caption_) return;
    caption_ = text;
    if (kind_ == ControlKind::Label) {
        SetCaption(text);
        return;
    }
    owner_.Dispatch(HandlerKey(name_, EventKind::Change), -1);
}

// Check boxes and option buttons raise Click when their value changes, whether the
// user or the code changed it: handlers must expect both.
void Control::SetValue(int value) {
    if (kind_ == ControlKind::OptionButton) value = value ? -1 : 0;
    if (value == value_) return;
    value_ = value;
    if (kind_ == ControlKind::OptionButton) {
        if (!value_) return;
        for (auto& c : owner_.controls_)
            if (c.get() != this && c->kind_ == ControlKind::OptionButton && c->Group == Group) c->value_ = 0;
    }
    if (kind_ == ControlKind::CheckBox || kind_ == ControlKind::OptionButton)
        owner_.Dispatch(HandlerKey(name_, EventKind::Click), -1);
}

bool Control::Selected(int row) const {
    if (!MultiSelect) return row >= 0 && row == ListIndex;
    return row >= 0 && static_cast<std::size_t>(row) < selected_.size() &&
           selected_[static_cast<std::size_t>(row)] && static_cast<std::size_t>(row) < Items.size();
}

void Control::SetSelected(int row, bool selected) {
    if (row < 0 || static_cast<std::size_t>(row) >= Items.size()) return;
    if (!MultiSelect) {
        if (selected)
            ListIndex = row;
        else if (ListIndex == row)
            ListIndex = -1;
        return;
    }
    if (selected_.size() < Items.size()) selected_.resize(Items.size());
    selected_[static_cast<std::size_t>(row)] = selected;
}

int Control::SelectedCount() const {
    int count = 0;
    for (std::size_t row = 0; row < Items.size(); ++row) count += Selected(static_cast<int>(row));
    return count;
}

bool Control::HasFocus() const {
    return owner_.FocusedControl() == name_;
}
void Control::SetFocus() {
    owner_.SetFocusTo(name_);
}

Form::Form(Platform& platform, std::string name, std::string caption)
    : platform_(platform), name_(std::move(name)), designCaption_(caption), caption_(std::move(caption)) {}

Form::~Form() = default;

void Form::Load() {
    if (loaded_) return;
    BuildDesign();
    loaded_ = true;
    platform_.FormLoaded(*this);
    Form_Load();
}

void Form::BuildDesign() {
    if (loaded_) throw support::Error(support::errors::kInvalidCall, "Form " + name_ + " is loaded");
    controls_.clear();
    menus_.clear();
    caption_ = designCaption_;
    focus_.clear();
    Build();
    CheckBindings();
}

void Form::Show(bool modal) {
    Load();
    if (!loaded_) return;  // Form_Load unloaded it again
    bool wasVisible = visible_;
    visible_ = true;
    if (!wasVisible || modal) platform_.FormShown(*this, modal);
    Activate();
    if (modal && loaded_ && visible_) {
        modal_ = true;
        platform_.RunModal(*this);
        modal_ = false;
    }
}

void Form::Hide() {
    if (!visible_) return;
    visible_ = false;
    platform_.FormHidden(*this);
}

bool Form::Unload() {
    if (!loaded_) return true;
    bool cancel = false;
    Form_QueryUnload(cancel);
    if (cancel) return false;
    Form_Unload();
    loaded_ = false;
    visible_ = false;
    platform_.FormUnloaded(*this);
    return true;
}

void Form::Activate() {
    if (loaded_ && visible_) Form_Activate();
}

Control& Form::operator[](const std::string& name) {
    if (auto* c = Find(name)) return *c;
    throw support::Error(support::errors::kInvalidCall, "Form " + name_ + " has no control " + name);
}

Control* Form::Find(const std::string& name) {
    for (auto& c : controls_)
        if (c->Name() == name) return c.get();
    return nullptr;
}

MenuItem& Form::Menu(const std::string& name, int index) {
    for (auto& m : menus_)
        if (m.Name == name && m.Index == index) return m;
    throw support::Error(
        support::errors::kInvalidCall,
        "Form " + name_ + " has no menu " + name + (index >= 0 ? "(" + std::to_string(index) + ")" : ""));
}

std::vector<MenuItem*> Form::MenuArray(const std::string& name) {
    std::vector<MenuItem*> items;
    for (auto& m : menus_)
        if (m.Name == name && m.Index >= 0) items.push_back(&m);
    return items;
}

Control& Form::Add(const std::string& name, ControlKind kind, const std::string& caption) {
    controls_.push_back(std::make_unique<Control>(*this, name, kind, caption));
    controls_.back()->TabIndex = static_cast<int>(controls_.size()) - 1;
    return *controls_.back();
}

void Form::TabOrder(std::initializer_list<const char*> first) {
    int next = 0;
    for (const char* name : first) (*this)[name].TabIndex = next++;
    for (const auto& c : controls_)
        if (std::find(first.begin(), first.end(), c->Name()) == first.end()) c->TabIndex = next++;
}

void Form::Arrange(int width, int height, std::initializer_list<std::span<const Placement>> layout) {
    Width = width;
    Height = height;
    std::map<std::string, int> placed;
    for (std::span<const Placement> table : layout)
        for (const Placement& p : table) {
            Control& c = (*this)[p.control];
            if (placed[p.control]++)
                throw support::Error(support::errors::kInvalidCall,
                                     "Form " + name_ + " places " + p.control + " twice");
            c.Left = p.left, c.Top = p.top, c.Width = p.width, c.Height = p.height;
        }
    for (const auto& c : controls_)
        if (!placed.count(c->Name()))
            throw support::Error(support::errors::kInvalidCall,
                                 "Form " + name_ + " has no place for " + c->Name());
}

MenuItem& Form::AddMenu(const std::string& name, const std::string& caption, const std::string& parent,
                        int index) {
    menus_.push_back(MenuItem{name, index, caption, parent});
    return menus_.back();
}

void Form::Register(const std::string& target, const char* event, bool menu, Handler handler) {
    std::string key = target + "_" + event;
    if (handlers_.count(key))
        throw support::Error(support::errors::kInvalidCall, "Form " + name_ + " binds " + key + " twice");
    handlers_[key] = std::move(handler);
    bindings_.push_back({target, menu});
}

void Form::CheckBindings() const {
    for (const auto& b : bindings_) {
        bool found = false;
        if (b.menu) {
            for (const auto& m : menus_) found = found || m.Name == b.target;
        } else {
            for (const auto& c : controls_) found = found || c->Name() == b.target;
        }
        if (!found)
            throw support::Error(support::errors::kInvalidCall, "Form " + name_ + " binds a handler to " +
                                                                    (b.menu ? "menu " : "control ") +
                                                                    b.target + ", which it does not have");
    }
}

void Form::Dispatch(const std::string& key, int index) {
    auto h = handlers_.find(key);
    if (h != handlers_.end()) h->second(index);
}

void Form::Raise(const std::string& control, EventKind kind, int index) {
    auto& c = (*this)[control];
    if (!c.Enabled || !c.Visible)
        throw support::Error(support::errors::kInvalidCall,
                             "Control " + name_ + "." + control + " is not enabled or not visible");
    ReportingErrors(platform_, [&] {
        if (kind == EventKind::Click &&
            (c.Kind() == ControlKind::CheckBox || c.Kind() == ControlKind::OptionButton)) {
            // A click on a check box toggles it, on an option button selects it; both raise Click.
            int before = c.Value();
            c.SetValue(c.Kind() == ControlKind::CheckBox ? (before ? 0 : 1) : -1);
            if (c.Value() == before) Dispatch(HandlerKey(control, kind), index);
            return;
        }
        focus_ = control;
        Dispatch(HandlerKey(control, kind), index);
    });
}

void Form::ClickMenu(const std::string& menu, int index) {
    auto& m = Menu(menu, index);
    if (!m.Enabled)
        throw support::Error(support::errors::kInvalidCall, "Menu " + name_ + "." + menu + " is not enabled");
    ReportingErrors(platform_, [&] { Dispatch(MenuKey(menu), index); });
}

}  // namespace ui
