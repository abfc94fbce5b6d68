#pragma once
#include <cstddef>
#include <string>
#include <string_view>

namespace simhost::format {

// Where in a document file's text (valid JSON) the value a reader's message names lies:
// `where` runs from the top through object keys joined by "/", an array element being its
// array's key and its number from 1 ("occurrences 3/file"). Followed as far as the text
// has it: the offset of the deepest value found, 0 for the document itself.
std::size_t LocateValue(std::string_view text, std::string_view where);

// "line L, column C" of an offset, as a person counts: both from 1.
std::string LineAndColumn(std::string_view text, std::size_t offset);

}  // namespace simhost::format
