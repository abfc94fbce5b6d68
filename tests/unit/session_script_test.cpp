// The script reader: words, the two kinds of quoted text, comments, line numbers.
#include <gtest/gtest.h>

#include "app/session/Script.h"
#include "ui/headless/ScriptError.h"
#include "ui/headless/Transcript.h"

namespace {

using session::ParseLine;
using session::ParseScript;
using session::Tokenize;
using ui::headless::ScriptError;

std::vector<std::string> Words(std::string_view line) {
    std::vector<std::string> words;
    for (const auto& token : Tokenize(line)) words.push_back(token.text);
    return words;
}

std::string ErrorOf(std::string_view line) {
    try {
        Tokenize(line);
    } catch (const ScriptError& e) {
        return e.Message();
    }
    return "no error";
}

TEST(SessionScript, RawTextsKeepWindowsPathsAsWritten) {
    auto tokens = Tokenize(R"(answer save "C:\Temp\new folder\" C:\Work\rev.ipt)");
    ASSERT_EQ(tokens.size(), 4u);
    EXPECT_EQ(tokens[2].text, R"(C:\Temp\new folder\)");
    EXPECT_TRUE(tokens[2].quoted);
    EXPECT_EQ(tokens[3].text, R"(C:\Work\rev.ipt)");
    EXPECT_FALSE(tokens[3].quoted);
    EXPECT_EQ(Words(R"(type f.t "say ""hi""")"), (std::vector<std::string>{"type", "f.t", R"(say "hi")"}));
    EXPECT_EQ(Words(R"(answer input "")"), (std::vector<std::string>{"answer", "input", ""}));
}

TEST(SessionScript, EscapedTextsTakeCEscapes) {
    EXPECT_EQ(Words(R"(type f.t e"a\rb\n\tc\\d\"e\x41\x7f")"),
              (std::vector<std::string>{"type", "f.t", "a\rb\n\tc\\d\"eA\x7f"}));
    EXPECT_EQ(ErrorOf(R"(type f.t e"C:\Temp")"),
              "unknown escape \\T in an escaped text (use \\\\ \\\" \\r \\n \\t or \\xHH)");
    EXPECT_EQ(ErrorOf(R"(e"\x4")"), "\\x in an escaped text needs two hex digits");
    EXPECT_EQ(ErrorOf(R"(e"abc\")"), "an escaped text is not closed");
}

TEST(SessionScript, KeywordsNeverMatchQuotedTexts) {
    auto tokens = Tokenize(R"(answer input "cancel" cancel)");
    EXPECT_FALSE(tokens[2].Is("cancel"));
    EXPECT_TRUE(tokens[3].Is("cancel"));
}

TEST(SessionScript, CommentsBeginOnlyAtTheStartOfAWord) {
    EXPECT_EQ(Words("click frm.cmd # the Clone button"), (std::vector<std::string>{"click", "frm.cmd"}));
    EXPECT_EQ(Words(R"(echo a#b "c # d")"), (std::vector<std::string>{"echo", "a#b", "c # d"}));
    EXPECT_TRUE(Tokenize("## Show that a blank script plays").empty());
    EXPECT_TRUE(Tokenize("   \t").empty());
}

TEST(SessionScript, MalformedQuotesAreRefused) {
    EXPECT_EQ(ErrorOf(R"(open "C:\Work)"), "a quoted text is not closed");
    EXPECT_EQ(ErrorOf(R"(open C:\W"ork")"), "a double quote inside a word: quote the whole word");
    EXPECT_EQ(ErrorOf(R"(open "C:\Work"x)"), "a quoted text must be followed by a blank");
}

// What the transcript writes, a script can read back to the same text.
TEST(SessionScript, QuotedTranscriptTextsReadBackUnchanged) {
    const std::string texts[] = {"",
                                 R"(C:\Work\)",
                                 R"(C:\Temp\new.ipt)",
                                 "Cannot save\rC:\\Temp\\x.ipt",
                                 R"("C:\Program Files\Pellorin.exe" /CLSID={1})",
                                 "tab\there\x01",
                                 "trailing backslash \\"};
    for (const auto& text : texts) {
        auto tokens = Tokenize("echo " + ui::headless::Quote(text));
        ASSERT_EQ(tokens.size(), 2u) << text;
        EXPECT_EQ(tokens[1].text, text);
    }
    EXPECT_EQ(ui::headless::Quote(R"(C:\Work\)"), R"("C:\Work\")");
    EXPECT_EQ(ui::headless::Quote("a\rC:\\b"), R"(e"a\rC:\\b")");
}

TEST(SessionScript, ALineKeepsItsTextWithoutCommentAndBlanks) {
    auto line = ParseLine(7, "  at yield 3: click frmPurge.cmdStop   # stop mid-walk");
    ASSERT_TRUE(line);
    EXPECT_EQ(line->number, 7);
    EXPECT_EQ(line->text, "at yield 3: click frmPurge.cmdStop");
    EXPECT_EQ(line->TextFrom(3), "click frmPurge.cmdStop");
    EXPECT_EQ(line->TextFrom(9), "");
    EXPECT_FALSE(ParseLine(8, "# nothing"));
}

TEST(SessionScript, ScriptLinesAreNumberedAsInTheFile) {
    auto lines = ParseScript("## Show numbering\r\n\r\necho one\r\n# comment\necho \"two\"");
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].number, 3);
    EXPECT_EQ(lines[0].text, "echo one");
    EXPECT_EQ(lines[1].number, 5);
    try {
        ParseScript("echo ok\n\nopen \"C:\\x");
        FAIL() << "an unclosed quote must be refused";
    } catch (const ScriptError& e) {
        EXPECT_EQ(e.Describe(), "line 3: a quoted text is not closed");
    }
}

}  // namespace
