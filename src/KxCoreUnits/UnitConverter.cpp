#include "KxCoreUnits/UnitConverter.h"

#include <algorithm>
#include <limits>

namespace kxnorth::platform::core::units {

namespace {

// Callers often pass a converter its own dimensions back.
bool SameDims(int const (&a)[kDimensionCount], int const (&b)[kDimensionCount]) {
    if (&a == &b) return true;
    for (int i = 0; i < kDimensionCount; ++i) {
        if (a[i] != b[i]) return false;
    }
    return true;
}

// Exponents saturate instead of overflowing: typed text can square a unit thirty
// times over, and such a quantity must stay defined, matching no unit, not wrap round.
int Saturate(long long exponent) {
    return static_cast<int>(
        std::clamp<long long>(exponent, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

}  // namespace

UnitConverter::UnitConverter() : m_dims{} {}

UnitConverter::UnitConverter(int const (&dims)[kDimensionCount]) {
    std::copy(dims, dims + kDimensionCount, m_dims);
}

GenericConverter::GenericConverter() : m_factor(1.0) {}

GenericConverter::GenericConverter(double factor, int const (&dims)[kDimensionCount])
    : UnitConverter(dims), m_factor(factor) {}

GenericConverter::~GenericConverter() = default;

int GenericConverter::ConvertFromBase(int const (&dims)[kDimensionCount], double& out,
                                      double valueInBase) const {
    if (!SameDims(dims, m_dims) || m_factor == 0.0) return 1;
    out = valueInBase / m_factor;
    return 0;
}

int GenericConverter::ConvertToBase(double* out, int const (&dims)[kDimensionCount],
                                    double value) const {
    if (out == nullptr || !SameDims(dims, m_dims)) return 1;
    *out = value * m_factor;
    return 0;
}

bool GenericConverter::IsCompatible(int const (&dims)[kDimensionCount]) const {
    return SameDims(dims, m_dims);
}

GenericConverter operator*(GenericConverter const& a, GenericConverter const& b) {
    int dims[kDimensionCount];
    for (int i = 0; i < kDimensionCount; ++i) dims[i] = Saturate(static_cast<long long>(a.GetDimTag()[i]) + b.GetDimTag()[i]);
    return GenericConverter(a.GetFactor() * b.GetFactor(), dims);
}

GenericConverter operator/(GenericConverter const& a, GenericConverter const& b) {
    int dims[kDimensionCount];
    for (int i = 0; i < kDimensionCount; ++i) dims[i] = Saturate(static_cast<long long>(a.GetDimTag()[i]) - b.GetDimTag()[i]);
    return GenericConverter(a.GetFactor() / b.GetFactor(), dims);
}

}  // namespace kxnorth::platform::core::units
