#include <gtest/gtest.h>

#include <algorithm>

#include "support/Utf16.h"
#include "ui/win32/FileDialogs.h"
#include "ui/win32/FolderPicker.h"
#include "ui/win32/InputBox.h"
#include "ui/win32/MessageBox.h"
#include "win/tests/DialogDriver.h"

namespace ui::win32 {
namespace {

using tests::ChildTexts;
using tests::DialogDriver;
using tests::Press;

bool Has(const std::vector<std::wstring>& texts, const std::wstring& text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

TEST(MessageBoxDialog, ShowsButtonsOfTheStyleAndAnswersTheButtonPressed) {
    std::vector<std::wstring> buttons, statics;
    DialogDriver person(L"Tarnwell", [&](HWND box) {
        buttons = ChildTexts(box, L"Button");
        statics = ChildTexts(box, L"Static");
        Press(box, IDNO);
    });
    EXPECT_EQ(ShowMessageBox(nullptr, "Delete 3 invisible components?", vbYesNo + vbQuestion, ""), vbNo);
    ASSERT_TRUE(person.Acted()) << "no box titled with the application's name";
    EXPECT_TRUE(Has(statics, L"Delete 3 invisible components?"));
    EXPECT_EQ(buttons.size(), 2u);
    EXPECT_TRUE(Has(buttons, L"&Yes") && Has(buttons, L"&No"));
}

TEST(MessageBoxDialog, KeepsTheCallersTitleAndText) {
    std::vector<std::wstring> statics;
    DialogDriver person(L"Pr\u00FCfung", [&](HWND box) {
        statics = ChildTexts(box, L"Static");
        Press(box, IDOK);
    });
    EXPECT_EQ(ShowMessageBox(nullptr, "File not found\rC:\\W\xC3\xB6rk\\a.ipt", vbOKOnly,
                             "Pr\xC3\xBC"
                             "fung"),
              vbOK);
    ASSERT_TRUE(person.Acted());
    EXPECT_TRUE(Has(statics, L"File not found\rC:\\W\u00F6rk\\a.ipt"));
}

TEST(InputBoxDialog, ShowsPromptAndDefaultAndAnswersTheTextOrNothingOnCancel) {
    std::vector<std::wstring> statics;
    std::wstring shownDefault;
    DialogDriver person(L"Tarnwell", [&](HWND box) {
        statics = ChildTexts(box, L"Static");
        wchar_t text[256];
        GetDlgItemTextW(box, kInputBoxTextId, text, 256);
        shownDefault = text;
        SetDlgItemTextW(box, kInputBoxTextId, L"Bracket \u00E9");
        Press(box, IDOK);
    });
    EXPECT_EQ(ShowInputBox(nullptr, "Description", "", "Old text"), "Bracket \xC3\xA9");
    ASSERT_TRUE(person.Acted()) << "an empty title is the application's";
    EXPECT_TRUE(Has(statics, L"Description"));
    EXPECT_EQ(shownDefault, L"Old text");

    DialogDriver cancels(L"Part Number", [](HWND box) { Press(box, IDCANCEL); });
    EXPECT_EQ(ShowInputBox(nullptr, "New part number", "Part Number", "P-100"), "");
    EXPECT_TRUE(cancels.Acted());
}

// The file name field and the type list of the system's file dialogs.
constexpr int kFileNameField = 0x47C, kFileTypeList = 0x470, kFolderList = 0x471;

std::wstring Text(HWND dialog, int id) {
    wchar_t text[1024] = L"";
    GetWindowTextW(GetDlgItem(dialog, id), text, 1024);
    return text;
}

TEST(FileDialogs, StartWhereAskedAndAnswerTheFullName) {
    FileDialogRequest request{"Save Inventor File",
                              "Inventor Part Files (*.ipt)|*.ipt|Inventor Assembly Files (*.iam)|*.iam", 2,
                              "C:\\windows", "Frame.iam"};
    std::wstring folder, proposed, type;
    DialogDriver person(L"Save Inventor File", [&](HWND dialog) {
        folder = Text(dialog, kFolderList);
        proposed = Text(dialog, kFileNameField);
        type = Text(dialog, kFileTypeList);
        SetDlgItemTextW(dialog, kFileNameField, L"Bracket.iam");
        Press(dialog, IDOK);
    });
    EXPECT_EQ(ShowSaveFileDialog(nullptr, request), "C:\\windows\\Bracket.iam");
    ASSERT_TRUE(person.Acted());
    EXPECT_EQ(folder, L"windows");
    EXPECT_EQ(proposed, L"Frame.iam");
    EXPECT_EQ(type, L"Inventor Assembly Files (*.iam)");

    request.title = "Open Template Part File";
    DialogDriver opens(L"Open Template Part File", [](HWND dialog) {
        SetDlgItemTextW(dialog, kFileNameField, L"C:\\windows\\system32\\notepad.exe");
        Press(dialog, IDOK);
    });
    EXPECT_EQ(ShowOpenFileDialog(nullptr, request), "C:\\windows\\system32\\notepad.exe");

    DialogDriver cancels(L"Open Template Part File", [](HWND dialog) { Press(dialog, IDCANCEL); });
    EXPECT_EQ(ShowOpenFileDialog(nullptr, request), "");
    EXPECT_TRUE(cancels.Acted());
}

TEST(FolderPicker, ShowsThePromptStartsAtTheFolderAndAnswersIt) {
    ASSERT_TRUE(SUCCEEDED(CoInitialize(nullptr)));
    std::vector<std::wstring> statics;
    // The shell's own caption for the picker.
    DialogDriver person(L"Browse for Folder", [&](HWND picker) {
        statics = ChildTexts(picker, L"Static");
        Press(picker, IDOK);
    });
    EXPECT_EQ(ShowFolderPicker(nullptr, "Select the target folder", "C:\\windows\\system32"),
              "C:\\windows\\system32");
    ASSERT_TRUE(person.Acted());
    EXPECT_TRUE(Has(statics, L"Select the target folder"));

    DialogDriver cancels(L"Browse for Folder", [](HWND picker) { Press(picker, IDCANCEL); });
    EXPECT_EQ(ShowFolderPicker(nullptr, "Select the target folder", "C:\\windows"), "");
    CoUninitialize();
}

}  // namespace
}  // namespace ui::win32
