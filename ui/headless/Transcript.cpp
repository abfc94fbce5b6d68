#include "ui/headless/Transcript.h"

#include <cstdio>

namespace ui::headless {

void Transcript::Write(std::string_view text) {
    const std::string indent(static_cast<std::size_t>(depth_) * 2, ' ');
    std::size_t start = 0;
    for (;;) {
        auto end = text.find('\n', start);
        out_ << indent << text.substr(start, end == std::string_view::npos ? end : end - start) << '\n';
        if (end == std::string_view::npos || end + 1 == text.size()) break;
        start = end + 1;
    }
    out_.flush();  // the shell shows each effect as it happens
}

namespace {

bool IsControl(unsigned char c) {
    return c < 0x20 || c == 0x7F;
}

// Appends c, writing a control character as its escape.
void AppendControlEscaped(std::string& out, unsigned char c) {
    switch (c) {
        case '\r':
            out += "\\r";
            return;
        case '\n':
            out += "\\n";
            return;
        case '\t':
            out += "\\t";
            return;
        default:
            if (IsControl(c)) {
                char hex[8];
                std::snprintf(hex, sizeof hex, "\\x%02X", c);
                out += hex;
            } else {
                out += static_cast<char>(c);
            }
    }
}

}  // namespace

std::string Quote(std::string_view text) {
    bool plain = true;
    for (unsigned char c : text)
        if (IsControl(c) || c == '"') plain = false;
    if (plain) return "\"" + std::string(text) + "\"";
    std::string out = "e\"";
    for (unsigned char c : text) {
        if (c == '\\' || c == '"') out += '\\';
        AppendControlEscaped(out, c);
    }
    return out + "\"";
}

std::string Escape(std::string_view text) {
    std::string out;
    for (unsigned char c : text) AppendControlEscaped(out, c);
    return out;
}

std::string HexNumber(std::int32_t number) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%08X", static_cast<std::uint32_t>(number));
    return text;
}

}  // namespace ui::headless
