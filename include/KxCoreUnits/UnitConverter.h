// Converters between a unit and coherent SI base units.
#pragma once

#include "KxCoreUnits/UnitsEnums.h"
#include "KxCoreUnits/UnitsExport.h"

namespace kxnorth::platform::core::units {

using DimensionVector = int[kDimensionCount];

// The converter of one unit type: its dimension vector and the conversion of
// values to and from base units. Both conversions return 0 on success.
class KXCOREUNITS_EXPORT UnitConverter {
public:
    virtual ~UnitConverter() {}

    // Converts `valueInBase`, a value in base units of `dims`, into this unit.
    virtual int ConvertFromBase(int const (&dims)[kDimensionCount], double& out,
                                double valueInBase) const = 0;
    // Converts `value`, in this unit, into base units of `dims`.
    virtual int ConvertToBase(double* out, int const (&dims)[kDimensionCount],
                              double value) const = 0;
    // The unit's size in base units (for offset units, the size of one step).
    virtual double GetFactor() const = 0;
    // The base value of this unit's zero (non-zero only for degrees Celsius and Fahrenheit).
    virtual double GetOffset() const = 0;
    // Whether `dims` are this unit's dimensions.
    virtual bool IsCompatible(int const (&dims)[kDimensionCount]) const = 0;

    int const (&GetDimTag() const)[kDimensionCount] { return m_dims; }

protected:
    UnitConverter();
    explicit UnitConverter(int const (&dims)[kDimensionCount]);
    UnitConverter(UnitConverter const&) = default;
    UnitConverter& operator=(UnitConverter const&) = default;

    int m_dims[kDimensionCount];
};

// A quantity: a number of base units with its dimensions. It is also the
// converter of a unit without offset, whose factor is its size.
class KXCOREUNITS_EXPORT GenericConverter : public UnitConverter {
public:
    GenericConverter();
    GenericConverter(double factor, int const (&dims)[kDimensionCount]);
    GenericConverter(GenericConverter const&) = default;
    GenericConverter& operator=(GenericConverter const&) = default;
    ~GenericConverter() override;

    int ConvertFromBase(int const (&dims)[kDimensionCount], double& out,
                        double valueInBase) const override;
    int ConvertToBase(double* out, int const (&dims)[kDimensionCount],
                      double value) const override;
    double GetFactor() const override { return m_factor; }
    double GetOffset() const override { return 0.0; }
    bool IsCompatible(int const (&dims)[kDimensionCount]) const override;

private:
    double m_factor;
};

// Product: factors multiplied, exponents added.
KXCOREUNITS_EXPORT GenericConverter operator*(GenericConverter const& a, GenericConverter const& b);
// Quotient: factors divided, exponents subtracted.
KXCOREUNITS_EXPORT GenericConverter operator/(GenericConverter const& a, GenericConverter const& b);

}  // namespace kxnorth::platform::core::units
