// How `print form` shows a form: what a person sees, and only the unusual flags.
#include <gtest/gtest.h>

#include <sstream>

#include "app/session/FormPrinter.h"
#include "ui/Form.h"
#include "ui/headless/HeadlessPlatform.h"

namespace {

using ui::ControlKind;

class Sample : public ui::Form {
public:
    explicit Sample(ui::Platform& platform) : Form(platform, "frmSample", "Clone \"All\"") {}

protected:
    void Build() override {
        Add("Label1", ControlKind::Label, "Prefix");
        Add("txtPrefix", ControlKind::TextBox, "!New-").Locked = true;
        Add("chkTop", ControlKind::CheckBox, "Top Level").SetValue(1);
        auto& option = Add("Option2", ControlKind::OptionButton, "Sub");
        option.Enabled = false;
        option.Visible = false;
        Add("cmdClone", ControlKind::Button, "Clone").ToolTipText = "Copy\rthe tree";
        auto& list = Add("lstResults", ControlKind::ListBox);
        list.AddItem(R"(C:\Temp\a.ipt)");
        list.AddItem("b");
        list.ListIndex = 1;
        Add("cboEmpty", ControlKind::ComboBox, "typed");
        Add("Picture1", ControlKind::Picture).Picture = "iso";
        AddMenu("mnuOptions", "Options");
        AddMenu("mnoOrient", "Top", "mnuOptions", 6).Checked = true;
        AddMenu("mnuHelp", "Help").Enabled = false;
    }
};

TEST(SessionFormPrinter, ShowsEveryControlAndMenuWithItsState) {
    std::ostringstream out;
    ui::headless::Transcript transcript(out);
    ui::headless::HeadlessPlatform platform(transcript);
    Sample form(platform);
    form.Show();
    form.Left = 1200;
    form["txtPrefix"].SetFocus();
    EXPECT_EQ(session::DescribeForm(form),
              "form frmSample e\"Clone \\\"All\\\"\" modeless left 1200 top 0\n"
              "  label Label1 \"Prefix\"\n"
              "  text txtPrefix \"!New-\" locked focus\n"
              "  check chkTop \"Top Level\" value 1\n"
              "  option Option2 \"Sub\" value 0 disabled hidden\n"
              "  button cmdClone \"Clone\" tooltip e\"Copy\\rthe tree\"\n"
              "  list lstResults rows 2\n"
              "    [0] \"C:\\Temp\\a.ipt\"\n"
              "    [1] \"b\" selected\n"
              "  combo cboEmpty \"typed\" rows 0\n"
              "  picture Picture1 picture \"iso\"\n"
              "  menu mnuOptions \"Options\"\n"
              "  menu mnoOrient(6) \"Top\" in mnuOptions checked\n"
              "  menu mnuHelp \"Help\" disabled");
    form.Hide();
    auto text = session::DescribeForm(form);
    EXPECT_EQ(text.substr(0, text.find('\n')),
              "form frmSample e\"Clone \\\"All\\\"\" hidden left 1200 top 0");
}

}  // namespace
