// The symbol interfaces and the evaluation of the parse list: numbers, fractions and
// mixed numbers, unit operands, operators by priority, parentheses and spaces.
#include "KxUnitsSymbols.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <new>

#include "KxUnitsSymbols_Internal.h"

namespace kxnorth::platform::core::units {

using namespace symbols_detail;

// ---------------------------------------------------------------------------------
// Parse arena

struct ParseArena::Block {
    Block* previous;
};

void* ParseArena::AllocateInNewBlock(std::size_t bytes, std::size_t alignment) {
    // The data follows the header at the alignment operator new gives; a larger
    // alignment is found inside the block, which has room for the request at any.
    constexpr std::size_t kAlign = alignof(std::max_align_t);
    constexpr std::size_t kHeaderBytes = (sizeof(Block) + kAlign - 1) / kAlign * kAlign;
    constexpr std::size_t kLargest = SIZE_MAX / 4;
    if (bytes > kLargest || alignment > kLargest) throw std::bad_alloc();
    // Each block at least doubles the last, so that a long text takes few of them.
    std::size_t const grown = m_lastBlockBytes <= kLargest ? 2 * m_lastBlockBytes : m_lastBlockBytes;
    std::size_t const dataBytes = std::max(grown, bytes + alignment);
    auto* block = static_cast<Block*>(::operator new(kHeaderBytes + dataBytes));
    block->previous = m_blocks;
    m_blocks = block;
    m_lastBlockBytes = dataBytes;
    m_next = reinterpret_cast<std::uintptr_t>(block) + kHeaderBytes;
    m_end = m_next + dataBytes;
    return Allocate(bytes, alignment);
}

void ParseArena::FreeBlocks() {
    while (m_blocks != nullptr) {
        Block* const previous = m_blocks->previous;
        ::operator delete(m_blocks);
        m_blocks = previous;
    }
}

// ---------------------------------------------------------------------------------
// Shared helpers

namespace symbols_detail {

double Pow10(int exponent) {
    static constexpr double kExact[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                        1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    if (exponent <= 0) return 1.0;
    if (exponent < static_cast<int>(std::size(kExact))) return kExact[exponent];
    return std::pow(10.0, exponent);
}

int ToBase(int unit, double value, DimensionVector const* dims, GenericConverter& result) {
    UnitConverter const* converter = UnitsConfig::GetInstance()->FindConverter(unit);
    if (converter == nullptr) return 1;
    double base = 0.0;
    if (converter->ConvertToBase(&base, dims != nullptr ? *dims : converter->GetDimTag(), value) != 0) return 1;
    result = GenericConverter(base, converter->GetDimTag());
    return 0;
}

int ReduceToResult(ParseList& list, int unit, double value, DimensionVector const* dims) {
    GenericConverter result;
    if (ToBase(unit, value, dims, result) != 0) return 1;
    list.front() = MakeParseSymbol<ResultSymbol>(list, result);
    list.erase(std::next(list.begin()), list.end());
    return 0;
}

bool ReadNumberRun(ParseIterator first, ParseIterator last, int shapes, RunValue& out) {
    // At most a carried number, a whole part, a numerator, the slash and a denominator.
    constexpr int kLongestRun = 5;
    IParseSymbol const* elements[kLongestRun];
    NumberSymbol const* numbers[kLongestRun];  // each element asked once: the question is a virtual call
    int count = 0;
    for (ParseIterator p = first; p != last; ++p) {
        if (count == kLongestRun) return false;
        elements[count] = p->Get();
        numbers[count] = ParseCast<NumberSymbol>(elements[count]);
        // Only the first element may be a carried number.
        if (count > 0 && numbers[count] != nullptr && (numbers[count]->GetFlags() & eNSCarried) != 0) return false;
        ++count;
    }
    auto numberAt = [&](int i) { return numbers[i]; };

    int start = 0;
    NumberSymbol const* carried = nullptr;
    if (count > 0 && numberAt(0) != nullptr && (numberAt(0)->GetFlags() & eNSCarried) != 0) {
        if ((shapes & eRunAfterCarried) == 0) return false;
        carried = numberAt(0);
        start = 1;
    }
    int const parts = count - start;
    NumberSymbol const* lead = nullptr;
    double magnitude = 0.0;
    if (parts == 1 && (shapes & eRunWhole) != 0) {
        lead = numberAt(start);
        if (lead == nullptr) return false;
        magnitude = std::fabs(lead->GetNumber());
    } else if ((parts == 3 && (shapes & eRunFraction) != 0) || (parts == 4 && (shapes & eRunMixed) != 0)) {
        NumberSymbol const* whole = parts == 4 ? numberAt(start) : nullptr;
        NumberSymbol const* numerator = numberAt(count - 3);
        NumberSymbol const* denominator = numberAt(count - 1);
        if ((parts == 4 && whole == nullptr) || numerator == nullptr || denominator == nullptr ||
            ParseCast<DivisionSymbol>(elements[count - 2]) == nullptr) {
            return false;
        }
        if (!(denominator->GetNumber() > 0.0)) return false;
        if (whole != nullptr && numerator->IsNegative()) return false;
        double const fraction = std::fabs(numerator->GetNumber()) / denominator->GetNumber();
        lead = whole != nullptr ? whole : numerator;
        magnitude = whole != nullptr ? std::fabs(whole->GetNumber()) + fraction : fraction;
    } else {
        return false;
    }
    bool negative = lead->IsNegative();
    if (carried != nullptr) {
        if (negative) return false;
        magnitude += std::fabs(carried->GetNumber());
        negative = carried->IsNegative();
    }
    out.value = negative ? -magnitude : magnitude;
    out.negative = negative;
    return true;
}

void ReplaceRunByCarried(ParseList& list, ParseIterator last, double value, bool negative) {
    int const flags = eNSCarried | (negative ? eNSNegativeSign : 0);
    list.front() = MakeParseSymbol<NumberSymbol>(list, value, flags);
    list.erase(std::next(list.begin()), last);
}

void DropSeparatorSign(ParseList& list, ParseIterator number) {
    NumberSymbol const* n = As<NumberSymbol>(number);
    if (n == nullptr || (n->GetFlags() & eNSNegativeSign) == 0) return;
    *number = MakeParseSymbol<NumberSymbol>(list, std::fabs(n->GetNumber()), n->GetFlags() & ~eNSNegativeSign);
}

}  // namespace symbols_detail

// ---------------------------------------------------------------------------------
// Interfaces

ISymbol::~ISymbol() = default;
IFormatSymbol::~IFormatSymbol() = default;
IParseSymbol::~IParseSymbol() = default;
OperandSymbol::~OperandSymbol() = default;

int IParseSymbol::Calculate(ParseList& list, DimensionVector const& dims) {
    if (list.empty()) return 1;
    for (bool const asOperand : {true, false}) {
        for (ParseIterator it = list.begin(); it != list.end();) {
            IParseSymbol const* symbol = it->Get();
            if (symbol == nullptr) return 1;
            if (symbol->Calculate(list, it, asOperand, dims) != 0) return 1;
        }
    }
    return !list.empty() && As<ResultSymbol>(list.begin()) != nullptr ? 0 : 1;
}

// ---------------------------------------------------------------------------------
// Operands and results

int OperandSymbol::Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const&) const {
    ParseIterator const self = it;
    ++it;
    if (asOperand || it != list.end() || self == list.begin()) return 0;
    // The last element: the numbers before it are read in this unit.
    if (std::next(list.begin()) == self) {
        NumberSymbol const* number = As<NumberSymbol>(list.begin());
        if (number != nullptr) {
            UnitConverter const& converter = GetConverter();
            double base = 0.0;
            if (converter.ConvertToBase(&base, converter.GetDimTag(), number->GetNumber()) != 0) return 1;
            list.front() = MakeParseSymbol<ResultSymbol>(list, GenericConverter(base, converter.GetDimTag()));
            list.erase(self);
            return 0;
        }
    }
    ParseIterator at = self;
    return DoCalc(list, at);
}

int OperandSymbol::DoCalc(ParseList& list, ParseIterator& it) const {
    RunValue amount;
    if (!ReadNumberRun(list.begin(), it, eRunFraction | eRunMixed, amount)) return 1;
    UnitConverter const& converter = GetConverter();
    double base = 0.0;
    if (converter.ConvertToBase(&base, converter.GetDimTag(), amount.value) != 0) return 1;
    GenericConverter const result(base, converter.GetDimTag());
    list.front() = MakeParseSymbol<ResultSymbol>(list, result);
    list.erase(std::next(list.begin()), list.end());
    it = list.end();
    return 0;
}

GenericOperand::GenericOperand(GenericConverter const& converter) : m_converter(converter) {}
GenericOperand::~GenericOperand() = default;

ResultSymbol::ResultSymbol(GenericConverter const& converter) : GenericOperand(converter) {
    Record(ParseKind::eResult, this);
}
ResultSymbol::~ResultSymbol() = default;

int ResultSymbol::Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const&) const {
    ParseIterator const self = it;
    ++it;
    // Anything left before a result is an error: `1/2 °C` converts only the 2.
    if (!asOperand && it == list.end() && self != list.begin()) return 1;
    return 0;
}

// ---------------------------------------------------------------------------------
// Numbers

NumberSymbol::NumberSymbol(double value, int flags) : m_value(value), m_flags(flags) {
    Record(ParseKind::eNumber, this);
}
NumberSymbol::~NumberSymbol() = default;

int NumberSymbol::Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const {
    ParseIterator const self = it;
    ++it;
    if (asOperand) return 0;
    if (it != list.end()) return 0;
    ParseIterator at = self;
    return DoCalc(list, at, dims);
}

int NumberSymbol::DoCalc(ParseList& list, ParseIterator& it, DimensionVector const& dims) const {
    RunValue amount;
    if (!ReadNumberRun(list.begin(), std::next(it), eRunFraction | eRunMixed, amount)) return 1;
    list.front() = MakeParseSymbol<ResultSymbol>(list, GenericConverter(amount.value, dims));
    list.erase(std::next(list.begin()), list.end());
    it = list.end();
    return 0;
}

// ---------------------------------------------------------------------------------
// Operators

OperatorSymbol::OperatorSymbol(int priority, int kind) : m_priority(priority), m_kind(kind) {
    Record(ParseKind::eOperator, this);
}
OperatorSymbol::~OperatorSymbol() = default;

int OperatorSymbol::Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const {
    if (asOperand) {
        ++it;
        return 0;
    }
    if ((m_kind & 3) != eImmediate) {
        // Operators of higher priority on the right bind first: in `a*b^2` the power
        // applies to b before the product. Equal priorities group from the left.
        ParseIterator next = std::next(it);
        if (next == list.end()) return 1;
        if (As<OperandSymbol>(next) != nullptr) ++next;
        while (next != list.end()) {
            OperatorSymbol const* right = As<OperatorSymbol>(next);
            if (right == nullptr) {
                it = next;  // this operator waits until its right side is reduced
                return 0;
            }
            if (m_priority >= right->GetPriority()) break;
            if (right->Calculate(list, next, false, dims) != 0) return 1;
            if (next != list.begin()) --next;
        }
    }
    return DoCalc(list, it) != 0 ? 1 : 0;
}

namespace {

// The operands on both sides of the binary operator at `it`, or false.
bool BinaryOperands(ParseList& list, ParseIterator it, OperandSymbol const*& left, OperandSymbol const*& right) {
    if (it == list.begin() || std::next(it) == list.end()) return false;
    left = As<OperandSymbol>(std::prev(it));
    right = As<OperandSymbol>(std::next(it));
    return left != nullptr && right != nullptr;
}

// The left operand's slot takes `result`; the operator node and `rightmost` nodes
// after it are erased; `it` is left on the result. The operator must not be used
// after this: it may have been deleted with its node.
void ReplaceLeft(ParseList& list, ParseIterator& it, GenericConverter const& result, int erasedAfter) {
    ParseIterator const left = std::prev(it);
    ParseIterator const self = it;
    ParseIterator const end = std::next(self, 1 + erasedAfter);
    *left = MakeParseSymbol<GenericOperand>(list, result);
    it = left;
    list.erase(self, end);
}

// Powers beyond this leave every factor at zero or infinity and only cost time.
constexpr double kLargestPower = 1024.0;

}  // namespace

MultiplicationSymbol::MultiplicationSymbol() : OperatorSymbol(10, eBinary) {}
MultiplicationSymbol::~MultiplicationSymbol() = default;

int MultiplicationSymbol::DoCalc(ParseList& list, ParseIterator& it) const {
    OperandSymbol const* left = nullptr;
    OperandSymbol const* right = nullptr;
    if (!BinaryOperands(list, it, left, right)) return 1;
    ReplaceLeft(list, it, CopyConverter(left->GetConverter()) * CopyConverter(right->GetConverter()), 1);
    return 0;
}

DivisionSymbol::DivisionSymbol() : OperatorSymbol(10, eBinary) { Record(ParseKind::eDivision, this); }
DivisionSymbol::~DivisionSymbol() = default;

int DivisionSymbol::DoCalc(ParseList& list, ParseIterator& it) const {
    OperandSymbol const* left = nullptr;
    OperandSymbol const* right = nullptr;
    if (!BinaryOperands(list, it, left, right)) return 1;
    ReplaceLeft(list, it, CopyConverter(left->GetConverter()) / CopyConverter(right->GetConverter()), 1);
    return 0;
}

SquareSymbol::SquareSymbol() : OperatorSymbol(20, eImmediate) {}
SquareSymbol::~SquareSymbol() = default;

int SquareSymbol::DoCalc(ParseList& list, ParseIterator& it) const {
    if (it == list.begin()) return 1;
    OperandSymbol const* left = As<OperandSymbol>(std::prev(it));
    if (left == nullptr) return 1;
    GenericConverter const unit = CopyConverter(left->GetConverter());
    ReplaceLeft(list, it, unit * unit, 0);
    return 0;
}

CubicSymbol::CubicSymbol() : OperatorSymbol(20, eImmediate) {}
CubicSymbol::~CubicSymbol() = default;

int CubicSymbol::DoCalc(ParseList& list, ParseIterator& it) const {
    if (it == list.begin()) return 1;
    OperandSymbol const* left = As<OperandSymbol>(std::prev(it));
    if (left == nullptr) return 1;
    GenericConverter const unit = CopyConverter(left->GetConverter());
    ReplaceLeft(list, it, unit * unit * unit, 0);
    return 0;
}

CaretSymbol::CaretSymbol() : OperatorSymbol(20, eImmediate) {}
CaretSymbol::~CaretSymbol() = default;

int CaretSymbol::DoCalc(ParseList& list, ParseIterator& it) const {
    if (it == list.begin() || std::next(it) == list.end()) return 1;
    OperandSymbol const* left = As<OperandSymbol>(std::prev(it));
    NumberSymbol const* exponent = As<NumberSymbol>(std::next(it));
    // A power is a whole number of at least 1 written without decimals.
    if (left == nullptr || exponent == nullptr || (exponent->GetFlags() & eNSDecimals) != 0) return 1;
    double const power = std::trunc(exponent->GetNumber());
    if (!(power >= 1.0) || power > kLargestPower) return 1;
    GenericConverter const unit = CopyConverter(left->GetConverter());
    for (int d : unit.GetDimTag()) {
        if (std::fabs(static_cast<double>(d) * power) > INT_MAX) return 1;
    }
    GenericConverter result = unit;
    for (int i = 1; i < static_cast<int>(power); ++i) result = result * unit;
    ReplaceLeft(list, it, result, 1);
    return 0;
}

LeftParenthesisSymbol::LeftParenthesisSymbol() : OperatorSymbol(50, eOpening) {
    Record(ParseKind::eLeftParenthesis, this);
}
LeftParenthesisSymbol::~LeftParenthesisSymbol() = default;

int LeftParenthesisSymbol::Calculate(ParseList& list, ParseIterator& it, bool asOperand,
                                     DimensionVector const& dims) const {
    ++it;
    if (asOperand) return 0;
    if (it == list.end() || it->Get() == nullptr) return 1;
    return it->Get()->Calculate(list, it, false, dims);
}

int LeftParenthesisSymbol::DoCalc(ParseList&, ParseIterator&) const { return 0; }

RightParenthesisSymbol::RightParenthesisSymbol() : OperatorSymbol(0, eImmediate) {
    Record(ParseKind::eRightParenthesis, this);
}
RightParenthesisSymbol::~RightParenthesisSymbol() = default;

int RightParenthesisSymbol::Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const&) const {
    if (asOperand) {
        ++it;
        return 0;
    }
    if (it == list.begin()) return 1;
    ParseIterator const self = it;
    ParseIterator opening = std::prev(self);
    while (As<LeftParenthesisSymbol>(opening) == nullptr) {
        if (opening == list.begin()) return 1;
        --opening;
    }
    list.erase(opening);
    ParseIterator const left = self == list.begin() ? list.end() : std::prev(self);
    list.erase(self);
    if (left == list.end()) {
        it = list.begin();
        return 0;
    }
    // One further back, so that an operator waiting before the parenthesis runs again.
    it = left;
    if (it != list.begin()) --it;
    return 0;
}

int RightParenthesisSymbol::DoCalc(ParseList&, ParseIterator&) const { return 0; }

// ---------------------------------------------------------------------------------
// Spaces

SpaceSymbol::~SpaceSymbol() = default;

int SpaceSymbol::Calculate(ParseList& list, ParseIterator& it, bool, DimensionVector const&) const {
    ParseIterator const self = it;
    ParseIterator const next = std::next(self);
    bool const operandOnLeft = self != list.begin() && As<OperandSymbol>(std::prev(self)) != nullptr;
    bool const operandOnRight = next != list.end() && As<OperandSymbol>(next) != nullptr;
    it = next;
    if ((self == list.begin() || operandOnLeft) && operandOnRight) {
        *self = MakeParseSymbol<MultiplicationSymbol>(list);
    } else {
        list.erase(self);
    }
    return 0;
}

}  // namespace kxnorth::platform::core::units
