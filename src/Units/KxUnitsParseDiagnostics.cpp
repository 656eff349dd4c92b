// Where and why typed text could not be read (ParseDiagnostics.h).
#include "KxCoreUnitsUI/ParseDiagnostics.h"

#include <algorithm>
#include <iterator>

#include "KxCoreUnits/UnitsConfig.h"
#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxUnitsFormatterImp.h"
#include "KxUnitsTypedInput.h"

namespace kxnorth::platform::core::units {

namespace {

// The exported formatter's header names no friend, and its layout is fixed; an
// explicit instantiation may name a private member (access is not checked there), which
// hands this file the pointer to the formatter's implementation.
struct FormatterImpMember {
    using Type = UnitsFormatterImp* UnitsFormatter::*;
    friend Type ImpMemberOf(FormatterImpMember);
};

template <typename Tag, typename Tag::Type Member>
struct ExposeMember {
    friend typename Tag::Type ImpMemberOf(Tag) { return Member; }
};

template struct ExposeMember<FormatterImpMember, &UnitsFormatter::m_pImpObj>;

UnitsFormatterImp const& ImpOf(UnitsFormatter const& formatter) {
    return *(formatter.*ImpMemberOf(FormatterImpMember{}));
}

}  // namespace

int DiagnoseParse(UnitsFormatter const& formatter, wchar_t const* text, double& value, int unit,
                  ParseDiagnostics& out) {
    out = ParseDiagnostics{};
    UnitsFormatterImp const& imp = ImpOf(formatter);
    int const result = imp.Parse(text, value, unit);
    int const warningAt = FindMisplacedGroupSeparator(imp, text);
    if (warningAt >= 0) {
        out.warnings |= eGroupSeparatorInsideGroup;
        out.warningOffset = warningAt;
    }
    if (result == 0) return 0;

    out.offset = 0;
    UnitConverter const* converter = UnitsConfig::GetInstance()->FindConverter(unit);
    if (text == nullptr) {
        out.reason = ParseFailureReason::eNoText;
    } else if (converter == nullptr) {
        out.reason = ParseFailureReason::eUnknownUnit;
    } else {
        TypedInputFailure failure;
        double base = 0;
        if (imp.Parse(text, base, converter->GetDimTag(), unit & kGroupMask) == 1) {
            out.reason = ParseFailureReason::eNoDefaultUnit;
        } else if (ReadTypedInput(imp, text, converter->GetDimTag(), base, &failure)) {
            // Read, but not convertible into the unit asked for.
            out.reason = ParseFailureReason::eCannotEvaluate;
        } else {
            out.offset = failure.offset;
            out.reason = failure.reason;
            std::copy(std::begin(failure.dimensions), std::end(failure.dimensions), std::begin(out.foundDimensions));
        }
    }
    return result;
}

char const* ParseFailureReasonText(ParseFailureReason reason) {
    switch (reason) {
        case ParseFailureReason::eNone: return "read";
        case ParseFailureReason::eNoText: return "no text";
        case ParseFailureReason::eEmptyText: return "empty text";
        case ParseFailureReason::eUnknownUnit: return "unknown unit";
        case ParseFailureReason::eUnknownWord: return "unknown word";
        case ParseFailureReason::eOperatorWithoutOperands: return "operator without operands";
        case ParseFailureReason::eUnmatchedParenthesis: return "unmatched parenthesis";
        case ParseFailureReason::eZeroDenominator: return "fraction with zero denominator";
        case ParseFailureReason::eInvalidPower: return "power is not a whole number of at least 1";
        case ParseFailureReason::eNumberWithoutUnit: return "number without a unit";
        case ParseFailureReason::eUnitWithoutNumber: return "unit without a number";
        case ParseFailureReason::eWrongQuantity: return "wrong quantity";
        case ParseFailureReason::eOffsetUnitInSum: return "a unit with an offset cannot be added";
        case ParseFailureReason::eMarkOutOfOrder: return "marks repeated or out of order";
        case ParseFailureReason::eNoDefaultUnit: return "no default unit for a bare number";
        case ParseFailureReason::eCannotEvaluate: return "cannot read this as a quantity";
    }
    return "cannot read this as a quantity";
}

char const* ParseWarningText(ParseWarning warning) {
    switch (warning) {
        case eGroupSeparatorInsideGroup: return "group separator inside a group";
        case eNoParseWarning: break;
    }
    return "";
}

}  // namespace kxnorth::platform::core::units
