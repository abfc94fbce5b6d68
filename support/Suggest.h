#pragma once
#include <string>
#include <vector>

namespace support {

// The candidate a mistyped word most likely meant: the closest by edits (a letter
// inserted, removed, changed, or two swapped), ignoring case, and close enough to be a
// slip: at most one edit for a word of up to four letters, two up to eight, three beyond.
// "" when none is.
std::string ClosestMatch(const std::string& word, const std::vector<std::string>& candidates);

// " (did you mean X?)" for the closest match, or "".
std::string DidYouMean(const std::string& word, const std::vector<std::string>& candidates);

}  // namespace support
