#pragma once
#include <cstdint>
#include <memory>
#include <vector>

#include "support/Variant.h"

namespace host {

// Every host object says what it is through Type (an ObjectTypeEnum value).
class Object : public support::Object {
public:
    virtual std::int32_t Type() const = 0;
};

using ObjectPtr = std::shared_ptr<Object>;
using ObjectList = std::vector<ObjectPtr>;

// A 4x4 placement matrix, row-major, translation in the last column (cm).
struct Matrix {
    double cell[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
    static Matrix Translation(double x, double y, double z);
    Matrix operator*(const Matrix& rhs) const;  // this placement applied after rhs
    friend bool operator==(const Matrix& a, const Matrix& b);
};

}  // namespace host
