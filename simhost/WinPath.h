#pragma once
#include <string>
#include <string_view>
#include <vector>

// Windows path text as the host sees it: "C:\Work\Frame.iam". Only the text is handled
// here; what a path names on disk is the virtual drive's business.
namespace simhost::winpath {

bool EqualNoCase(std::string_view a, std::string_view b);

struct Parsed {
    char drive = 0;                       // upper case
    std::vector<std::string> components;  // "." and ".." already applied
};
// Parses an absolute path with a drive letter; "\" and "/" both separate. Throws a
// path-not-found error naming the path when it is not one.
Parsed Parse(std::string_view path);
std::string Join(char drive, const std::vector<std::string>& components);

std::string FileNamePart(std::string_view path);  // after the last "\" (or the whole text)
std::string FolderPart(std::string_view path);    // up to and including the last "\"
std::string Extension(std::string_view path);     // ".ipt", lower case; "" without a dot
std::string BaseName(std::string_view path);      // file name without its extension

}  // namespace simhost::winpath
