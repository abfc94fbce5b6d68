#include "app/session/Script.h"

#include <cctype>

#include "ui/headless/ScriptError.h"

namespace session {

using ui::headless::ScriptError;

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

int HexValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

// Reads a raw text "..." starting at the opening quote; `pos` ends after the closing one.
std::string ReadRaw(std::string_view line, std::size_t& pos) {
    std::string text;
    for (++pos; pos < line.size(); ++pos) {
        if (line[pos] != '"') {
            text += line[pos];
        } else if (pos + 1 < line.size() && line[pos + 1] == '"') {
            text += '"';
            ++pos;
        } else {
            ++pos;
            return text;
        }
    }
    throw ScriptError("a quoted text is not closed");
}

// Reads an escaped text e"..." starting at the opening quote.
std::string ReadEscaped(std::string_view line, std::size_t& pos) {
    std::string text;
    for (++pos; pos < line.size(); ++pos) {
        char c = line[pos];
        if (c == '"') {
            ++pos;
            return text;
        }
        if (c != '\\') {
            text += c;
            continue;
        }
        if (++pos == line.size()) break;
        switch (line[pos]) {
            case '\\':
                text += '\\';
                break;
            case '"':
                text += '"';
                break;
            case 'r':
                text += '\r';
                break;
            case 'n':
                text += '\n';
                break;
            case 't':
                text += '\t';
                break;
            case 'x': {
                int high = pos + 1 < line.size() ? HexValue(line[pos + 1]) : -1;
                int low = pos + 2 < line.size() ? HexValue(line[pos + 2]) : -1;
                if (high < 0 || low < 0) throw ScriptError("\\x in an escaped text needs two hex digits");
                text += static_cast<char>(high * 16 + low);
                pos += 2;
                break;
            }
            default:
                throw ScriptError(std::string("unknown escape \\") + line[pos] +
                                  " in an escaped text (use \\\\ \\\" \\r \\n \\t or \\xHH)");
        }
    }
    throw ScriptError("an escaped text is not closed");
}

}  // namespace

std::string ScriptLine::TextFrom(std::size_t index) const {
    return index < tokens.size() ? text.substr(tokens[index].offset) : "";
}

std::vector<Token> Tokenize(std::string_view line) {
    std::vector<Token> tokens;
    std::size_t pos = 0;
    while (pos < line.size()) {
        if (IsBlank(line[pos])) {
            ++pos;
            continue;
        }
        if (line[pos] == '#') break;
        Token token;
        token.offset = pos;
        if (line[pos] == '"') {
            token.text = ReadRaw(line, pos);
            token.quoted = true;
        } else if (line[pos] == 'e' && pos + 1 < line.size() && line[pos + 1] == '"') {
            ++pos;
            token.text = ReadEscaped(line, pos);
            token.quoted = true;
        } else {
            while (pos < line.size() && !IsBlank(line[pos])) {
                if (line[pos] == '"') throw ScriptError("a double quote inside a word: quote the whole word");
                token.text += line[pos++];
            }
        }
        if (pos < line.size() && !IsBlank(line[pos]))
            throw ScriptError("a quoted text must be followed by a blank");
        token.end = pos;
        tokens.push_back(std::move(token));
    }
    return tokens;
}

std::optional<ScriptLine> ParseLine(int number, std::string_view text) {
    ScriptLine line;
    line.number = number;
    try {
        line.tokens = Tokenize(text);
    } catch (ScriptError& e) {
        e.PlaceAt(number);
        throw;
    }
    if (line.tokens.empty()) return std::nullopt;
    // Keep the text from the first word to the end of the last, offsets relative to it.
    std::size_t begin = line.tokens.front().offset;
    line.text = std::string(text.substr(begin, line.tokens.back().end - begin));
    for (auto& token : line.tokens) {
        token.offset -= begin;
        token.end -= begin;
    }
    return line;
}

std::vector<ScriptLine> ParseScript(std::string_view text) {
    std::vector<ScriptLine> lines;
    int number = 0;
    std::size_t start = 0;
    while (start <= text.size()) {
        auto end = text.find('\n', start);
        if (end == std::string_view::npos) end = text.size();
        ++number;
        if (auto line = ParseLine(number, text.substr(start, end - start))) lines.push_back(std::move(*line));
        start = end + 1;
    }
    return lines;
}

}  // namespace session
