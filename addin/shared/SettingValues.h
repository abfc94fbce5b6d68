#pragma once
#include <string>

namespace addin {

class AddinState;

// Numbers and booleans kept as settings, read the same way in every dialog: a stored
// value that the key cannot take (no number, out of range, a word that is no boolean)
// reads as the key's default, never as a wrapped or clamped value.

// A whole number from min to max, rounded half to even as the platform converts.
int ReadWholeSetting(AddinState& state, const std::string& section, const std::string& key, int defaultValue,
                     int min, int max);

// "True"/"False" as the platform writes them, and numbers (0 is false) as older or
// hand-written files have them.
bool ReadBoolSetting(AddinState& state, const std::string& section, const std::string& key,
                     bool defaultValue);
std::string BoolToSetting(bool value);

}  // namespace addin
