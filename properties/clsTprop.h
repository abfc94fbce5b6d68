#pragma once
#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

namespace properties {

// One property a drawing's title blocks show.
struct clsTprop {
    std::string FormatID;         // the property set's format identifier
    std::int16_t PropertyID = 0;  // the property's identifier in the set
    std::string Name;
    std::string Value;  // as text, read again on every refresh of the list
};

// The title block properties of a drawing, in the order their fields were met, one
// record a property: the key is the format identifier followed by the identifier in
// decimal, and a second field for a property finds its key taken and adds nothing.
class TitleBlockProperties {
public:
    bool Add(clsTprop record) {
        if (!keys_.insert(record.FormatID + std::to_string(record.PropertyID)).second) return false;
        records_.push_back(std::move(record));
        return true;
    }
    void Clear() {
        records_.clear();
        keys_.clear();
    }
    std::vector<clsTprop>& Records() { return records_; }

private:
    std::vector<clsTprop> records_;
    std::unordered_set<std::string> keys_;
};

}  // namespace properties
