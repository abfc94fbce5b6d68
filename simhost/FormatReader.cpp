#include <initializer_list>
#include <limits>
#include <nlohmann/json.hpp>
#include <set>
#include <stdexcept>
#include <unordered_map>
#include <utility>

#include "simhost/HostNames.h"
#include "simhost/PropertyCatalog.h"
#include "simhost/SimFormat.h"
#include "support/Error.h"

namespace simhost::format {

namespace {

// The library's ordered map finds a key by searching its list, so reading an object of n
// keys (a part's thousands of properties) costs n*n/2 comparisons. This one keeps the
// order and finds a key through a hash index. It hides every look-up of the base; the
// index is rebuilt whenever the list changed size behind its back.
template <class Key, class T, class Less = std::less<Key>,
          class Allocator = std::allocator<std::pair<const Key, T>>>
class IndexedMap : public nlohmann::ordered_map<Key, T, Less, Allocator> {
    using Base = nlohmann::ordered_map<Key, T, Less, Allocator>;

public:
    using Base::Base;
    using typename Base::const_iterator;
    using typename Base::iterator;
    using typename Base::size_type;

    std::pair<iterator, bool> emplace(const Key& key, T&& value) {
        if (auto found = find(key); found != this->end()) return {found, false};
        if (this->size() >= kListedUpTo) index_.emplace(key, this->size());
        this->emplace_back(key, std::move(value));
        return {std::prev(this->end()), true};
    }
    // The parser asks for a key's slot each time the key is written, so a second asking
    // while a document is read is a key given twice in one object.
    T& operator[](const Key& key) {
        auto [slot, fresh] = emplace(key, T{});
        if (!fresh && firstRepeatedKey && firstRepeatedKey->empty()) *firstRepeatedKey = key;
        return slot->second;
    }
    static inline thread_local std::string* firstRepeatedKey = nullptr;
    iterator find(const Key& key) { return this->begin() + Position(key); }
    const_iterator find(const Key& key) const { return this->begin() + Position(key); }
    size_type count(const Key& key) const { return Position(key) < this->size() ? 1 : 0; }
    T& at(const Key& key) { return const_cast<T&>(std::as_const(*this).at(key)); }
    const T& at(const Key& key) const {
        std::size_t position = Position(key);
        if (position == this->size()) throw std::out_of_range("no such key");
        return (this->begin() + position)->second;
    }

private:
    // The key's place in the list, or the list's size when absent.
    std::size_t Position(const Key& key) const {
        if (this->size() <= kListedUpTo) {  // a few keys: a search costs less than an index
            for (std::size_t i = 0; i < this->size(); ++i)
                if ((this->begin() + i)->first == key) return i;
            return this->size();
        }
        if (index_.size() != this->size()) {
            index_.clear();
            for (std::size_t i = 0; i < this->size(); ++i) index_.emplace((this->begin() + i)->first, i);
        }
        auto it = index_.find(key);
        return it == index_.end() ? this->size() : it->second;
    }
    static constexpr std::size_t kListedUpTo = 16;
    mutable std::unordered_map<Key, std::size_t> index_;
};

using Json = nlohmann::basic_json<IndexedMap>;

// Reads one file; every refusal names the file and where in it the fault lies.
class Reader {
public:
    explicit Reader(const std::string& file) : file_(file) {}

    DocData Document(std::string_view text);

private:
    [[noreturn]] void Fail(const std::string& where, const std::string& what) const {
        std::string at = where.empty() ? "" : where + ": ";
        throw support::Error(support::errors::kFail, file_ + ": " + at + what);
    }
    void OnlyFields(const Json& obj, const std::string& where,
                    std::initializer_list<const char*> allowed) const;
    const Json& AnObject(const Json& v, const std::string& where) const;
    const Json& AnArray(const Json& v, const std::string& where) const;
    std::string AString(const Json& v, const std::string& where) const;
    bool ABool(const Json& v, const std::string& where) const;
    double ANumber(const Json& v, const std::string& where) const;
    std::int32_t AnInteger(const Json& v, const std::string& where) const;
    support::Variant Value(const Json& v, const std::string& where) const;
    support::Variant ValueOfKind(const Json& v, catalog::ValueKind kind, const std::string& where) const;

    void Properties(const Json& v, DocData& data) const;
    void CustomSets(const Json& v, DocData& data) const;
    void Attributes(const Json& v, DocData& data) const;
    void Materials(const Json& v, DocData& data) const;
    void RenderStyles(const Json& v, DocData& data) const;
    void Occurrences(const Json& v, DocData& data) const;
    void TitleBlocks(const Json& v, DocData& data) const;
    host::Matrix Transform(const Json& v, const std::string& where) const;

    std::string file_;
};

std::string Quoted(std::string_view s) {
    return "\"" + std::string(s) + "\"";
}

void Reader::OnlyFields(const Json& obj, const std::string& where,
                        std::initializer_list<const char*> allowed) const {
    for (const auto& [key, value] : obj.items()) {
        bool known = false;
        for (const char* a : allowed) known = known || key == a;
        if (!known) Fail(where, "unknown field " + Quoted(key));
    }
}

const Json& Reader::AnObject(const Json& v, const std::string& where) const {
    if (!v.is_object()) Fail(where, "must be an object");
    return v;
}

const Json& Reader::AnArray(const Json& v, const std::string& where) const {
    if (!v.is_array()) Fail(where, "must be an array");
    return v;
}

std::string Reader::AString(const Json& v, const std::string& where) const {
    if (!v.is_string()) Fail(where, "must be text");
    return v.get<std::string>();
}

bool Reader::ABool(const Json& v, const std::string& where) const {
    if (!v.is_boolean()) Fail(where, "must be true or false");
    return v.get<bool>();
}

double Reader::ANumber(const Json& v, const std::string& where) const {
    if (!v.is_number()) Fail(where, "must be a number");
    return v.get<double>();
}

std::int32_t Reader::AnInteger(const Json& v, const std::string& where) const {
    if (!v.is_number_integer()) Fail(where, "must be a whole number");
    auto n = v.get<std::int64_t>();
    if (n < std::numeric_limits<std::int32_t>::min() || n > std::numeric_limits<std::int32_t>::max())
        Fail(where, "is out of range");
    return static_cast<std::int32_t>(n);
}

support::Variant Reader::Value(const Json& v, const std::string& where) const {
    if (v.is_string()) return v.get<std::string>();
    if (v.is_boolean()) return v.get<bool>();
    if (v.is_number_integer()) {
        auto n = v.get<std::int64_t>();
        if (n >= std::numeric_limits<std::int32_t>::min() && n <= std::numeric_limits<std::int32_t>::max())
            return static_cast<std::int32_t>(n);
        return static_cast<double>(n);
    }
    if (v.is_number()) return v.get<double>();
    if (v.is_object() && v.size() == 1 && v.contains("currency")) {
        double amount = ANumber(v["currency"], where);
        try {
            return support::Currency::FromDouble(amount);
        } catch (const support::Error&) {
            Fail(where, "currency out of range");
        }
    }
    if (v.is_object() && v.size() == 1 && v.contains("date")) {
        auto serial = names::ParseIsoDate(AString(v["date"], where));
        if (!serial) Fail(where, "a date is written \"YYYY-MM-DD\" or \"YYYY-MM-DD HH:MM:SS\"");
        return support::Date{*serial};
    }
    Fail(where, "a value is text, a number, true or false, {\"currency\": n} or {\"date\": \"YYYY-MM-DD\"}");
}

support::Variant Reader::ValueOfKind(const Json& v, catalog::ValueKind kind, const std::string& where) const {
    support::Variant value = Value(v, where);
    using T = support::VariantType;
    T t = value.Type();
    bool ok = false;
    switch (kind) {
        case catalog::ValueKind::Text:
            ok = t == T::String;
            break;
        case catalog::ValueKind::Number:
            ok = t == T::Long || t == T::Double;
            break;
        case catalog::ValueKind::Currency:
            // A plain number is taken as an amount, as the host takes one for a currency.
            if (t == T::Long || t == T::Double) {
                try {
                    value = support::Variant(support::Currency::FromDouble(value.ToDouble()));
                } catch (const support::Error&) {
                    Fail(where, "currency out of range");
                }
                t = T::Currency;
            }
            ok = t == T::Currency;
            break;
        case catalog::ValueKind::Date:
            ok = t == T::Date;
            break;
        case catalog::ValueKind::Boolean:
            ok = t == T::Boolean;
            break;
    }
    if (!ok) Fail(where, std::string("must be a ") + catalog::KindName(kind) + " value");
    return value;
}

void Reader::Properties(const Json& v, DocData& data) const {
    for (const auto& [setName, props] : AnObject(v, "properties").items()) {
        std::string where = "properties/" + setName;
        int index = catalog::FindStandardSet(setName);
        if (index < 0 || setName != catalog::StandardSets()[index].displayName)
            Fail("properties",
                 "unknown property set " + Quoted(setName) + " (custom sets go in customPropertySets)");
        const catalog::SetDef& def = catalog::StandardSets()[index];
        StoredSet& set = data.propertySets[index];
        std::int32_t nextId = catalog::kFirstCustomId;
        for (const auto& [name, value] : AnObject(props, where).items()) {
            std::string at = where + "/" + name;
            if (index == catalog::kUserDefinedSet) {
                set.properties.push_back({name, nextId++, Value(value, at)});
                continue;
            }
            const catalog::PropertyDef* p = catalog::FindByName(def, name);
            if (!p) Fail(where, "unknown property " + Quoted(name));
            if (data.kind == DocKind::Part && p->id == catalog::kMaterialId)
                Fail(at, "a part's material is given by the field \"material\"");
            set.properties.push_back({name, p->id, ValueOfKind(value, p->kind, at)});
        }
    }
}

void Reader::CustomSets(const Json& v, DocData& data) const {
    std::set<std::string> seen;
    int n = 0;
    for (const auto& entry : AnArray(v, "customPropertySets")) {
        std::string where = "customPropertySets " + std::to_string(++n);
        OnlyFields(AnObject(entry, where), where, {"name", "formatId", "properties"});
        if (!entry.contains("name") || !entry.contains("formatId"))
            Fail(where, "needs \"name\" and \"formatId\"");
        StoredSet set{
            AString(entry["name"], where + "/name"), AString(entry["formatId"], where + "/formatId"), {}};
        if (set.formatId.size() != 38 || set.formatId.front() != '{' || set.formatId.back() != '}')
            Fail(where, "formatId must be a GUID in braces");
        if (catalog::FindStandardSet(set.name) >= 0 || catalog::FindStandardSet(set.formatId) >= 0 ||
            !seen.insert(set.name).second || !seen.insert(set.formatId).second)
            Fail(where, "name or formatId already used by another set");
        std::int32_t nextId = catalog::kFirstCustomId;
        if (entry.contains("properties"))
            for (const auto& [name, value] : AnObject(entry["properties"], where + "/properties").items())
                set.properties.push_back({name, nextId++, Value(value, where + "/" + name)});
        data.propertySets.push_back(std::move(set));
    }
}

void Reader::Attributes(const Json& v, DocData& data) const {
    for (const auto& [setName, attrs] : AnObject(v, "attributes").items()) {
        StoredAttributeSet set{setName, {}};
        for (const auto& [name, value] : AnObject(attrs, "attributes/" + setName).items())
            set.attributes.push_back({name, Value(value, "attributes/" + setName + "/" + name)});
        data.attributeSets.push_back(std::move(set));
    }
}

void Reader::Materials(const Json& v, DocData& data) const {
    std::set<std::string> seen;
    int n = 0;
    for (const auto& entry : AnArray(v, "materials")) {
        std::string where = "material " + std::to_string(++n);
        OnlyFields(
            AnObject(entry, where), where,
            {"name", "density", "renderStyle", "location", "linearExpansion", "poissonsRatio", "specificHeat",
             "thermalConductivity", "ultimateTensileStrength", "yieldStrength", "youngsModulus"});
        if (!entry.contains("name") || !entry.contains("density"))
            Fail(where, "needs \"name\" and \"density\"");
        MaterialData m;
        m.name = AString(entry["name"], where + "/name");
        m.density = ANumber(entry["density"], where + "/density");
        if (m.density < 0) Fail(where, "density must not be negative");
        if (entry.contains("renderStyle"))
            m.renderStyle = AString(entry["renderStyle"], where + "/renderStyle");
        if (entry.contains("location")) {
            auto code = names::StyleLocationCode(AString(entry["location"], where + "/location"));
            if (!code) Fail(where, "location is \"local\", \"library\" or \"both\"");
            m.location = *code;
        }
        auto value = [&](const char* key, double& out) {
            if (entry.contains(key)) out = ANumber(entry[key], where + "/" + key);
        };
        value("linearExpansion", m.values.linearExpansion);
        value("poissonsRatio", m.values.poissonsRatio);
        value("specificHeat", m.values.specificHeat);
        value("thermalConductivity", m.values.thermalConductivity);
        value("ultimateTensileStrength", m.values.ultimateTensileStrength);
        value("yieldStrength", m.values.yieldStrength);
        value("youngsModulus", m.values.youngsModulus);
        if (!seen.insert(m.name).second) Fail(where, "a second material named " + Quoted(m.name));
        data.materials.push_back(std::move(m));
    }
}

void Reader::TitleBlocks(const Json& v, DocData& data) const {
    int n = 0;
    for (const auto& entry : AnArray(v, "titleBlocks")) {
        std::string where = "title block " + std::to_string(++n);
        OnlyFields(AnObject(entry, where), where, {"name", "textBoxes"});
        if (!entry.contains("name")) Fail(where, "needs \"name\"");
        TitleBlockData block;
        block.name = AString(entry["name"], where + "/name");
        if (entry.contains("textBoxes"))
            for (const auto& text : AnArray(entry["textBoxes"], where + "/textBoxes"))
                block.textBoxes.push_back(AString(text, where + "/textBoxes"));
        data.titleBlocks.push_back(std::move(block));
    }
}

void Reader::RenderStyles(const Json& v, DocData& data) const {
    std::set<std::string> seen;
    int n = 0;
    for (const auto& entry : AnArray(v, "renderStyles")) {
        std::string where = "render style " + std::to_string(++n);
        OnlyFields(AnObject(entry, where), where,
                   {"name", "location", "opacity", "shininess", "texture", "textureScale", "textureRotation",
                    "ambient", "diffuse", "specular", "emissive"});
        if (!entry.contains("name")) Fail(where, "needs \"name\"");
        RenderStyleData r;
        r.name = AString(entry["name"], where + "/name");
        if (entry.contains("location")) {
            auto code = names::StyleLocationCode(AString(entry["location"], where + "/location"));
            if (!code) Fail(where, "location is \"local\", \"library\" or \"both\"");
            r.location = *code;
        }
        if (entry.contains("opacity")) r.opacity = ANumber(entry["opacity"], where + "/opacity");
        if (entry.contains("shininess")) r.shininess = ANumber(entry["shininess"], where + "/shininess");
        if (entry.contains("texture")) r.texture = AString(entry["texture"], where + "/texture");
        if (entry.contains("textureScale"))
            r.textureScale = ANumber(entry["textureScale"], where + "/textureScale");
        if (entry.contains("textureRotation"))
            r.textureRotation = ANumber(entry["textureRotation"], where + "/textureRotation");
        auto color = [&](const char* key, host::Rgb& out) {
            if (!entry.contains(key)) return;
            const auto& list = AnArray(entry[key], where + "/" + key);
            if (list.size() != 3) Fail(where, std::string(key) + " is [red, green, blue]");
            std::uint8_t bytes[3];
            for (int c = 0; c < 3; ++c) {
                std::int32_t b = AnInteger(list[c], where + "/" + key);
                if (b < 0 || b > 255) Fail(where, std::string(key) + " takes values from 0 to 255");
                bytes[c] = static_cast<std::uint8_t>(b);
            }
            out = {bytes[0], bytes[1], bytes[2]};
        };
        color("ambient", r.ambient);
        color("diffuse", r.diffuse);
        color("specular", r.specular);
        color("emissive", r.emissive);
        if (!seen.insert(r.name).second) Fail(where, "a second render style named " + Quoted(r.name));
        data.renderStyles.push_back(std::move(r));
    }
}

host::Matrix Reader::Transform(const Json& v, const std::string& where) const {
    AnArray(v, where);
    host::Matrix m;
    if (v.size() == 3) {
        for (int r = 0; r < 3; ++r) m.cell[r][3] = ANumber(v[r], where);
    } else if (v.size() == 16) {
        for (int i = 0; i < 16; ++i) m.cell[i / 4][i % 4] = ANumber(v[i], where);
    } else {
        Fail(where, "is [x, y, z] or 16 numbers, row by row");
    }
    return m;
}

void Reader::Occurrences(const Json& v, DocData& data) const {
    std::set<std::string> names;
    int n = 0;
    for (const auto& entry : AnArray(v, "occurrences")) {
        std::string where = "occurrence " + std::to_string(++n);
        OnlyFields(AnObject(entry, where), where, {"name", "file", "visible", "grounded", "transform"});
        if (!entry.contains("file")) Fail(where, "needs \"file\"");
        OccurrenceData occ;
        occ.uid = data.nextUid++;
        occ.ref.file = AString(entry["file"], where + "/file");
        if (entry.contains("name")) {
            occ.name = AString(entry["name"], where + "/name");
            if (occ.name.empty()) Fail(where, "an occurrence name must not be empty");
            if (!names.insert(occ.name).second) Fail(where, "a second occurrence named " + Quoted(occ.name));
        }
        if (entry.contains("visible")) occ.visible = ABool(entry["visible"], where + "/visible");
        if (entry.contains("grounded")) occ.grounded = ABool(entry["grounded"], where + "/grounded");
        if (entry.contains("transform")) occ.transform = Transform(entry["transform"], where + "/transform");
        data.occurrences.push_back(std::move(occ));
    }
}

// Where a byte of the text lies, as a person counts: line and column from 1.
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

DocData Reader::Document(std::string_view text) {
    // A key given twice in one object would silently keep the last value: refused instead.
    std::string duplicate;
    struct Watch {
        explicit Watch(std::string& sink) { Json::object_t::firstRepeatedKey = &sink; }
        ~Watch() { Json::object_t::firstRepeatedKey = nullptr; }
    };
    Json doc;
    try {
        Watch watch(duplicate);
        doc = Json::parse(text);
    } catch (const Json::parse_error& e) {
        // The byte the parser stopped at is one past the fault.
        Fail("", "not a valid JSON document: " + LineAndColumn(text, e.byte > 0 ? e.byte - 1 : 0));
    } catch (const Json::exception&) {  // a number beyond a double: the parser stops on it
        Fail("", "not a valid JSON document: a number is too large");
    }
    if (!duplicate.empty()) Fail("", "the key " + Quoted(duplicate) + " is given twice in one object");
    AnObject(doc, "");
    if (!doc.contains("type")) Fail("", "no document type (field \"type\")");
    std::string type = AString(doc["type"], "type");
    DocKind kind;
    if (type == "part")
        kind = DocKind::Part;
    else if (type == "assembly")
        kind = DocKind::Assembly;
    else if (type == "drawing")
        kind = DocKind::Drawing;
    else if (type == "presentation")
        kind = DocKind::Presentation;
    else
        Fail("", "unknown document type " + Quoted(type));

    switch (kind) {
        case DocKind::Part:
            OnlyFields(doc, "",
                       {"type", "savedBy", "thumbnail", "displayName", "reservedBy", "modifiable",
                        "disabledCommandTypes", "massUnits", "properties", "customPropertySets", "attributes",
                        "material", "volume", "renderStyle", "materials", "renderStyles", "iPartFactory"});
            break;
        case DocKind::Assembly:
            OnlyFields(doc, "",
                       {"type", "savedBy", "thumbnail", "displayName", "reservedBy", "modifiable",
                        "disabledCommandTypes", "massUnits", "properties", "customPropertySets", "attributes",
                        "occurrences", "renderStyles"});
            break;
        case DocKind::Drawing:
            OnlyFields(doc, "",
                       {"type", "savedBy", "thumbnail", "displayName", "reservedBy", "modifiable",
                        "disabledCommandTypes", "properties", "customPropertySets", "models", "deferUpdates",
                        "titleBlocks"});
            break;
        default:
            OnlyFields(doc, "",
                       {"type", "savedBy", "thumbnail", "displayName", "reservedBy", "modifiable",
                        "disabledCommandTypes", "properties", "customPropertySets", "models"});
    }

    DocData data = EmptyDocData(kind);
    if (doc.contains("savedBy")) data.savedBy = AnInteger(doc["savedBy"], "savedBy");
    if (doc.contains("thumbnail")) {
        data.thumbnail = AnInteger(doc["thumbnail"], "thumbnail");
        if (!names::Orientation(data.thumbnail)) Fail("thumbnail", "is not a view orientation code");
    }
    if (doc.contains("displayName")) data.displayName = AString(doc["displayName"], "displayName");
    if (doc.contains("reservedBy")) data.reservedBy = AString(doc["reservedBy"], "reservedBy");
    if (doc.contains("modifiable")) data.modifiable = ABool(doc["modifiable"], "modifiable");
    if (doc.contains("disabledCommandTypes"))
        data.disabledCommandTypes = AnInteger(doc["disabledCommandTypes"], "disabledCommandTypes");
    if (doc.contains("massUnits")) {
        auto code = names::MassUnitCode(AString(doc["massUnits"], "massUnits"));
        if (!code) Fail("massUnits", "is \"kg\", \"g\", \"lbmass\" or \"slug\"");
        data.massUnits = *code;
    }
    if (doc.contains("properties")) Properties(doc["properties"], data);
    if (doc.contains("customPropertySets")) CustomSets(doc["customPropertySets"], data);
    if (doc.contains("attributes")) Attributes(doc["attributes"], data);
    if (doc.contains("material")) data.material = AString(doc["material"], "material");
    if (doc.contains("volume")) {
        data.volume = ANumber(doc["volume"], "volume");
        if (data.volume < 0) Fail("volume", "must not be negative");
    }
    if (doc.contains("renderStyle")) data.renderStyle = AString(doc["renderStyle"], "renderStyle");
    if (doc.contains("materials")) Materials(doc["materials"], data);
    if (doc.contains("renderStyles")) RenderStyles(doc["renderStyles"], data);
    if (doc.contains("iPartFactory")) data.iPartFactory = AString(doc["iPartFactory"], "iPartFactory");
    if (doc.contains("occurrences")) Occurrences(doc["occurrences"], data);
    if (doc.contains("models"))
        for (const auto& m : AnArray(doc["models"], "models"))
            data.models.push_back({AString(m, "models"), nullptr});
    if (doc.contains("deferUpdates")) data.deferUpdates = ABool(doc["deferUpdates"], "deferUpdates");
    if (doc.contains("titleBlocks")) TitleBlocks(doc["titleBlocks"], data);
    return data;
}

}  // namespace

DocData Read(std::string_view text, const std::string& fileName) {
    return Reader(fileName).Document(text);
}

}  // namespace simhost::format
