#include <nlohmann/json.hpp>

#include "simhost/HostNames.h"
#include "simhost/PropertyCatalog.h"
#include "simhost/SimFormat.h"
#include "support/Error.h"

namespace simhost::format {

namespace {

using Json = nlohmann::ordered_json;

Json Value(const support::Variant& v) {
    using T = support::VariantType;
    switch (v.Type()) {
        case T::String:
            return *v.As<std::string>();
        case T::Boolean:
            return *v.As<bool>();
        case T::Integer:
            return *v.As<std::int16_t>();
        case T::Long:
            return *v.As<std::int32_t>();
        case T::Double:
            return *v.As<double>();
        case T::Currency:
            return Json{{"currency", static_cast<double>(v.As<support::Currency>()->scaled) / 10000.0}};
        case T::Date:
            return Json{{"date", names::IsoDate(v.As<support::Date>()->serial)}};
        case T::Empty:
        case T::Object:
            break;
    }
    throw support::Error(support::errors::kTypeMismatch, "A property value of this type cannot be saved");
}

Json PropertiesOf(const std::vector<StoredProperty>& properties) {
    Json out = Json::object();
    for (const auto& p : properties) out[p.name] = Value(p.value);
    return out;
}

Json Transform(const host::Matrix& m) {
    bool translationOnly = true;
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 3; ++c) translationOnly = translationOnly && m.cell[r][c] == (r == c ? 1.0 : 0.0);
    translationOnly = translationOnly && m.cell[3][3] == 1.0;
    Json out = Json::array();
    if (translationOnly) {
        for (int r = 0; r < 3; ++r) out.push_back(m.cell[r][3]);
    } else {
        for (int i = 0; i < 16; ++i) out.push_back(m.cell[i / 4][i % 4]);
    }
    return out;
}

bool IsIdentity(const host::Matrix& m) {
    return m == host::Matrix{};
}

}  // namespace

std::string Write(const DocData& data) {
    Json doc;
    doc["type"] = KindName(data.kind);
    doc["savedBy"] = data.savedBy;
    if (data.thumbnail) doc["thumbnail"] = data.thumbnail;
    if (!data.displayName.empty()) doc["displayName"] = data.displayName;
    if (!data.reservedBy.empty()) doc["reservedBy"] = data.reservedBy;
    if (!data.modifiable) doc["modifiable"] = false;
    if (data.disabledCommandTypes) doc["disabledCommandTypes"] = data.disabledCommandTypes;
    bool modelDocument = data.kind == DocKind::Part || data.kind == DocKind::Assembly;
    if (modelDocument && data.massUnits != host::kKilogramMassUnits)
        doc["massUnits"] = names::MassUnit(data.massUnits);

    Json properties = Json::object();
    for (int i = 0; i < catalog::kStandardSetCount; ++i)
        if (!data.propertySets[i].properties.empty())
            properties[catalog::StandardSets()[i].displayName] =
                PropertiesOf(data.propertySets[i].properties);
    if (!properties.empty()) doc["properties"] = properties;
    if (data.propertySets.size() > catalog::kStandardSetCount) {
        Json sets = Json::array();
        for (std::size_t i = catalog::kStandardSetCount; i < data.propertySets.size(); ++i) {
            const StoredSet& s = data.propertySets[i];
            Json set = {{"name", s.name}, {"formatId", s.formatId}};
            if (!s.properties.empty()) set["properties"] = PropertiesOf(s.properties);
            sets.push_back(set);
        }
        doc["customPropertySets"] = sets;
    }
    if (modelDocument && !data.attributeSets.empty()) {
        Json attributes = Json::object();
        for (const auto& set : data.attributeSets) {
            Json values = Json::object();
            for (const auto& a : set.attributes) values[a.name] = Value(a.value);
            attributes[set.name] = values;
        }
        doc["attributes"] = attributes;
    }

    if (data.kind == DocKind::Part) {
        if (!data.material.empty()) doc["material"] = data.material;
        if (data.volume != 0) doc["volume"] = data.volume;
        if (!data.renderStyle.empty()) doc["renderStyle"] = data.renderStyle;
        if (!data.materials.empty()) {
            Json list = Json::array();
            for (const auto& m : data.materials) {
                Json entry = {{"name", m.name}, {"density", m.density}};
                if (!m.renderStyle.empty()) entry["renderStyle"] = m.renderStyle;
                if (m.location != host::kLocalStyleLocation)
                    entry["location"] = names::StyleLocation(m.location);
                auto value = [&](const char* key, double v) {
                    if (v != 0) entry[key] = v;
                };
                value("linearExpansion", m.values.linearExpansion);
                value("poissonsRatio", m.values.poissonsRatio);
                value("specificHeat", m.values.specificHeat);
                value("thermalConductivity", m.values.thermalConductivity);
                value("ultimateTensileStrength", m.values.ultimateTensileStrength);
                value("yieldStrength", m.values.yieldStrength);
                value("youngsModulus", m.values.youngsModulus);
                list.push_back(entry);
            }
            doc["materials"] = list;
        }
        if (!data.iPartFactory.empty()) doc["iPartFactory"] = data.iPartFactory;
    }

    if ((data.kind == DocKind::Part || data.kind == DocKind::Assembly) && !data.renderStyles.empty()) {
        Json list = Json::array();
        for (const auto& r : data.renderStyles) {
            Json entry = {{"name", r.name}};
            if (r.location != host::kLocalStyleLocation) entry["location"] = names::StyleLocation(r.location);
            auto value = [&](const char* key, double v) {
                if (v != 0) entry[key] = v;
            };
            value("opacity", r.opacity);
            value("shininess", r.shininess);
            if (!r.texture.empty()) entry["texture"] = r.texture;
            value("textureScale", r.textureScale);
            value("textureRotation", r.textureRotation);
            auto color = [&](const char* key, host::Rgb c) {
                if (c != host::Rgb{}) entry[key] = {c.red, c.green, c.blue};
            };
            color("ambient", r.ambient);
            color("diffuse", r.diffuse);
            color("specular", r.specular);
            color("emissive", r.emissive);
            list.push_back(entry);
        }
        doc["renderStyles"] = list;
    }
    if (data.kind == DocKind::Assembly && !data.occurrences.empty()) {
        Json list = Json::array();
        for (const auto& occ : data.occurrences) {
            Json entry = {{"name", occ.name}, {"file", occ.ref.Name()}};
            if (!occ.visible) entry["visible"] = false;
            if (occ.grounded) entry["grounded"] = true;
            if (!IsIdentity(occ.transform)) entry["transform"] = Transform(occ.transform);
            list.push_back(entry);
        }
        doc["occurrences"] = list;
    }
    if ((data.kind == DocKind::Drawing || data.kind == DocKind::Presentation) && !data.models.empty()) {
        Json list = Json::array();
        for (const auto& m : data.models) list.push_back(m.Name());
        doc["models"] = list;
    }
    if (data.kind == DocKind::Drawing) {
        if (data.deferUpdates) doc["deferUpdates"] = true;
        if (!data.titleBlocks.empty()) {
            Json list = Json::array();
            for (const auto& block : data.titleBlocks) {
                Json entry = {{"name", block.name}};
                if (!block.textBoxes.empty()) entry["textBoxes"] = block.textBoxes;
                list.push_back(entry);
            }
            doc["titleBlocks"] = list;
        }
    }
    return doc.dump(2) + "\n";
}

}  // namespace simhost::format
