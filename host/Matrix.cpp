#include "host/Object.h"

namespace host {

Matrix Matrix::Translation(double x, double y, double z) {
    Matrix m;
    m.cell[0][3] = x;
    m.cell[1][3] = y;
    m.cell[2][3] = z;
    return m;
}

// Column vectors: (A * B) v = A (B v), so rhs acts first.
Matrix Matrix::operator*(const Matrix& rhs) const {
    Matrix out;
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 4; ++c) {
            double sum = 0;
            for (int k = 0; k < 4; ++k) sum += cell[r][k] * rhs.cell[k][c];
            out.cell[r][c] = sum;
        }
    }
    return out;
}

// Exact: a tolerance, where one is wanted, is the caller's choice.
bool operator==(const Matrix& a, const Matrix& b) {
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            if (a.cell[r][c] != b.cell[r][c]) return false;
    return true;
}

}  // namespace host
