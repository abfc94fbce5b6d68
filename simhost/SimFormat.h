#pragma once
#include <string>
#include <string_view>

#include "simhost/DocData.h"

// The stand-in's file format: one JSON document per file (docs/sim-format.md).
namespace simhost::format {

// Reads a document file. References come back as names only (FileRef::file) and
// occurrences without a name get an empty one, for the loader to give a default name.
// Anything the format does not allow (bad JSON, an unknown field or type, a value of the
// wrong kind) is refused with an error whose text begins with the file's name.
DocData Read(std::string_view text, const std::string& fileName);

// Writes a document in the canonical form: fields in a fixed order, values at their
// defaults left out, so that reading and writing a canonical file gives it back unchanged.
std::string Write(const DocData& data);

}  // namespace simhost::format
