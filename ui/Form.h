#pragma once
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include "ui/Platform.h"

namespace ui {

enum class ControlKind { Button, CheckBox, OptionButton, TextBox, Label, ListBox, ComboBox, Picture, Frame };
const char* KindName(ControlKind kind);

// A MouseUp handler receives the mouse button (1 left, 2 right) where others get the index.
enum class EventKind { Click, DblClick, Change, LostFocus, MouseUp };
inline constexpr int kRightButton = 2;
const char* EventName(EventKind kind);

class Form;

// A control as the user sees it. The renderer mirrors this state; no logic lives here.
class Control {
public:
    Control(Form& owner, std::string name, ControlKind kind, std::string caption);

    const std::string& Name() const { return name_; }
    ControlKind Kind() const { return kind_; }

    // Caption of buttons, labels, frames, check and option buttons; text of text boxes
    // and combo boxes. Writing a label's caption is reported to the platform.
    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption);
    const std::string& Text() const { return caption_; }
    void SetText(const std::string& text);  // raises Change when the text differs

    // Check box 0/1 (2 grey); option button 0/-1. Setting an option button clears its
    // siblings in the same group.
    int Value() const { return value_; }
    void SetValue(int value);

    bool Enabled = true;
    bool Visible = true;
    bool Locked = false;
    std::string ToolTipText;
    std::string Group;                             // option buttons of one group exclude each other
    std::string Picture;                           // what a picture box shows
    int Left = 0, Top = 0, Width = 0, Height = 0;  // twips, from the inside top-left of the form
    // Where the control comes in the keyboard's Tab order: its place among the form's
    // declarations, unless the form declares another.
    int TabIndex = 0;

    // List and combo boxes. ListIndex is the row with the focus; in a list that takes
    // several rows (MultiSelect) each row is selected or not on its own, otherwise the
    // selected row is the ListIndex.
    std::vector<std::string> Items;
    int ListIndex = -1;
    bool MultiSelect = false;
    void Clear() {
        Items.clear();
        ListIndex = -1;
        selected_.clear();
    }
    void AddItem(const std::string& item) { Items.push_back(item); }
    bool Selected(int row) const;
    void SetSelected(int row, bool selected);
    int SelectedCount() const;

    bool HasFocus() const;
    void SetFocus();

private:
    Form& owner_;
    std::string name_;
    ControlKind kind_;
    std::string caption_;
    int value_ = 0;
    std::vector<bool> selected_;  // MultiSelect lists only
};

// Where a control sits on its form, in twips: one line of a form's layout table.
struct Placement {
    const char* control;
    int left, top, width, height;
};

// A menu item, or one element of a menu item array (Index >= 0).
struct MenuItem {
    std::string Name;
    int Index = -1;
    std::string Caption;
    std::string Parent;  // name of the menu it sits in; "" for the menu bar
    bool Checked = false;
    bool Enabled = true;
    bool Visible = true;
};

// A dialog. A subclass declares its controls and menus in Build(), which runs on each
// load (an unloaded form comes back as designed), and binds its handlers once, all in
// its constructor, with TW_ON and TW_ON_MENU: a handler is always the method named after
// control and event (cmdClone_Click), so that a search for the name finds the code.
class Form {
public:
    Form(Platform& platform, std::string name, std::string caption);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& Name() const { return name_; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption) { caption_ = caption; }
    Platform& platform() { return platform_; }

    bool Loaded() const { return loaded_; }
    bool Visible() const { return visible_; }
    bool Modal() const { return modal_; }

    void Load();  // builds and raises Form_Load once until unloaded
    // Declares the controls as designed, without loading the form or asking its host for
    // anything: what a view of the design (a layout check, a screenshot) renders.
    void BuildDesign();
    void Show(bool modal = false);  // loads if needed; a modal show returns when the form closes
    void Hide();
    // Asks Form_QueryUnload, then unloads; false when the form refused.
    bool Unload();
    // The form became the active window (shown, or brought back by the user).
    void Activate();

    int Left = 0, Top = 0, Width = 6000, Height = 4000;  // twips, the whole window with its frame

    Control& operator[](const std::string& name);  // throws when the form has no such control
    Control* Find(const std::string& name);
    const std::vector<std::unique_ptr<Control>>& Controls() const { return controls_; }
    MenuItem& Menu(const std::string& name, int index = -1);
    const std::vector<MenuItem>& Menus() const { return menus_; }
    std::vector<MenuItem*> MenuArray(const std::string& name);

    // The user's doing: raise an event on a control or menu item. Errors that no handler
    // caught go to the platform's error report.
    void Raise(const std::string& control, EventKind kind, int index = -1);
    void ClickMenu(const std::string& menu, int index = -1);

    const std::string& FocusedControl() const { return focus_; }
    void SetFocusTo(const std::string& control) { focus_ = control; }

protected:
    // Declares the controls and menus; runs on each load.
    virtual void Build() = 0;
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    // Set cancel to true to refuse closing.
    virtual void Form_QueryUnload(bool& cancel) { (void)cancel; }
    virtual void Form_Unload() {}

    Control& Add(const std::string& name, ControlKind kind, const std::string& caption = "");
    MenuItem& AddMenu(const std::string& name, const std::string& caption, const std::string& parent = "",
                      int index = -1);
    // Sizes the form and places every control from its layout tables, the last step of
    // Build(). The tables must place each declared control once and nothing else, so a
    // control added without a place fails the form's load rather than showing at 0,0.
    void Arrange(int width, int height, std::initializer_list<std::span<const Placement>> layout);
    // Puts these controls first in the Tab order, in this order; the others follow in
    // declaration order.
    void TabOrder(std::initializer_list<const char*> first);

    // Use TW_ON / TW_ON_MENU rather than these: the macros tie the handler's name to the
    // control's. A handler takes nothing, or the index (MouseUp: the mouse button).
    template <class F, class... Index>
    void Bind(const char* control, EventKind kind, void (F::*handler)(Index...)) {
        Register(control, EventName(kind), false, MakeHandler(handler));
    }
    template <class F, class... Index>
    void BindMenu(const char* menu, void (F::*handler)(Index...)) {
        Register(menu, "Click", true, MakeHandler(handler));
    }

private:
    friend class Control;
    using Handler = std::function<void(int index)>;
    struct Binding {
        std::string target;  // control or menu name
        bool menu;
    };

    template <class F, class... Index>
    Handler MakeHandler(void (F::*handler)(Index...)) {
        static_assert(sizeof...(Index) <= 1, "a handler takes nothing or the index");
        auto* self = static_cast<F*>(this);
        return [self, handler](int index) {
            if constexpr (sizeof...(Index) == 0)
                (self->*handler)();
            else
                (self->*handler)(index);
        };
    }
    void Register(const std::string& target, const char* event, bool menu, Handler handler);
    // Every binding must name a control or menu item the form declares.
    void CheckBindings() const;
    void Dispatch(const std::string& key, int index);
    Platform& platform_;
    std::string name_;
    std::string designCaption_;
    std::string caption_;
    bool loaded_ = false;
    bool visible_ = false;
    bool modal_ = false;
    std::string focus_;
    std::vector<std::unique_ptr<Control>> controls_;
    std::vector<MenuItem> menus_;
    std::map<std::string, Handler> handlers_;
    std::vector<Binding> bindings_;
};

}  // namespace ui

// Binds the form's method control_Event to that control's event: a missing method fails
// the compile, a control the form does not declare fails the form's load.
#define TW_ON(control, event) \
    Bind(#control, ::ui::EventKind::event, &std::remove_pointer_t<decltype(this)>::control##_##event)
#define TW_ON_MENU(menu) BindMenu(#menu, &std::remove_pointer_t<decltype(this)>::menu##_Click)
