#include "simhost/FormatPosition.h"

#include <cctype>
#include <optional>
#include <vector>

#include "support/Utf16.h"

namespace simhost::format {

namespace {

// Walks text already known to be valid JSON.
class Scanner {
public:
    explicit Scanner(std::string_view text) : text_(text) {}

    std::size_t At() const { return at_; }
    void Seek(std::size_t at) { at_ = at; }
    char Peek() const { return at_ < text_.size() ? text_[at_] : '\0'; }
    void SkipSpace() {
        while (at_ < text_.size() && std::isspace(static_cast<unsigned char>(text_[at_]))) ++at_;
    }
    void Expect(char c) {
        SkipSpace();
        if (Peek() == c) ++at_;
    }

    // A string at the cursor, its escapes undone.
    std::string String() {
        std::string out;
        ++at_;  // the opening quote
        while (at_ < text_.size() && text_[at_] != '"') {
            char c = text_[at_++];
            if (c != '\\' || at_ >= text_.size()) {
                out += c;
                continue;
            }
            char e = text_[at_++];
            switch (e) {
                case 'b':
                    out += '\b';
                    break;
                case 'f':
                    out += '\f';
                    break;
                case 'n':
                    out += '\n';
                    break;
                case 'r':
                    out += '\r';
                    break;
                case 't':
                    out += '\t';
                    break;
                case 'u':
                    out += Unicode();
                    break;
                default:
                    out += e;
            }
        }
        ++at_;  // the closing quote
        return out;
    }

    void SkipValue() {
        SkipSpace();
        char c = Peek();
        if (c == '"') {
            String();
        } else if (c == '{' || c == '[') {
            int depth = 0;
            do {
                char d = Peek();
                if (d == '"') {
                    String();
                    continue;
                }
                if (d == '{' || d == '[') ++depth;
                if (d == '}' || d == ']') --depth;
                ++at_;
            } while (depth > 0 && at_ < text_.size());
        } else {
            while (at_ < text_.size() && !std::isspace(static_cast<unsigned char>(text_[at_])) &&
                   text_[at_] != ',' && text_[at_] != '}' && text_[at_] != ']')
                ++at_;
        }
    }

private:
    // \uXXXX, with a second one when the first is half of a surrogate pair.
    std::string Unicode() {
        auto hex = [&]() -> unsigned {
            unsigned v = 0;
            for (int i = 0; i < 4 && at_ < text_.size(); ++i, ++at_) {
                char h = text_[at_];
                v = v * 16 + static_cast<unsigned>(std::isdigit(static_cast<unsigned char>(h))
                                                       ? h - '0'
                                                       : std::tolower(h) - 'a' + 10);
            }
            return v;
        };
        std::wstring units(1, static_cast<wchar_t>(hex()));
        if (units[0] >= 0xD800 && units[0] < 0xDC00 && text_.substr(at_, 2) == "\\u") {
            at_ += 2;
            units += static_cast<wchar_t>(hex());
        }
        return support::Utf16ToUtf8(units);
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

// The key of `keys` that `where` begins with, ended by its end, "/" or " " (an element's
// number follows); the longest, since a key may hold a "/" or a space of its own.
std::optional<std::size_t> Step(std::string_view where, const std::vector<std::string>& keys) {
    std::optional<std::size_t> best;
    for (std::size_t k = 0; k < keys.size(); ++k) {
        const std::string& key = keys[k];
        if (!where.starts_with(key)) continue;
        if (where.size() > key.size() && where[key.size()] != '/' && where[key.size()] != ' ') continue;
        if (!best || key.size() > keys[*best].size()) best = k;
    }
    return best;
}

}  // namespace

std::size_t LocateValue(std::string_view text, std::string_view where) {
    Scanner s(text);
    s.SkipSpace();
    std::size_t found = s.At();
    while (!where.empty()) {
        if (where.front() == '/') where.remove_prefix(1);
        s.SkipSpace();
        if (s.Peek() == '{') {
            // Each member's key and where its value begins.
            std::vector<std::string> keys;
            std::vector<std::size_t> starts;
            s.Expect('{');
            s.SkipSpace();
            while (s.Peek() == '"') {
                keys.push_back(s.String());
                s.Expect(':');
                s.SkipSpace();
                starts.push_back(s.At());
                s.SkipValue();
                s.Expect(',');
                s.SkipSpace();
            }
            auto step = Step(where, keys);
            if (!step) break;
            where.remove_prefix(keys[*step].size());
            found = starts[*step];
            s.Seek(found);
        } else if (s.Peek() == '[' && !where.empty() && where.front() == ' ') {
            std::size_t digits = 1, number = 0;
            while (digits < where.size() && std::isdigit(static_cast<unsigned char>(where[digits])))
                number = number * 10 + static_cast<std::size_t>(where[digits++] - '0');
            if (digits == 1 || number == 0) break;
            where.remove_prefix(digits);
            s.Expect('[');
            for (std::size_t i = 1; i < number; ++i) {
                s.SkipValue();
                s.Expect(',');
            }
            s.SkipSpace();
            if (s.Peek() == ']') break;
            found = s.At();
        } else {
            break;
        }
    }
    return found;
}

std::string LineAndColumn(std::string_view text, std::size_t offset) {
    std::size_t line = 1, column = 1;
    for (std::size_t i = 0; i < offset && i < text.size(); ++i) {
        if (text[i] == '\n') {
            ++line;
            column = 1;
        } else {
            ++column;
        }
    }
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

}  // namespace simhost::format
