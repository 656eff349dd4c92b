// Quantities as people type them: runs, sums and differences, quantities in
// parentheses and dash-joined fractions (see KxUnitsTypedInput.h for the grammar).
//
// The text is cut into tokens that remember where they stand, the tokens are grouped
// into quantities, and each quantity is evaluated on its own by the ordinary
// evaluation of the parse list; the readings here only decide where one quantity ends
// and the next begins, and which signs are operators.
#include "KxUnitsTypedInput.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <iterator>
#include <new>

#include "KxUnitsFormatterImp.h"
#include "KxUnitsSymbols.h"
#include "KxUnitsSymbols2.h"
#include "KxUnitsUIConfig.h"

namespace kxnorth::platform::core::units {

namespace {

using Reason = ParseFailureReason;

enum class TokenKind : unsigned char {
    eNumber,          // a number without its leading sign
    eNegativeSign,    // the formatter's negative sign, read in front of a number
    ePositiveSign,    // the formatter's positive sign, read in front of a number
    ePlus,            // a plus that is not the positive sign
    eSpace,
    eDash,            // a dash symbol: joiner, product or subtraction by position
    eLeftParenthesis,
    eRightParenthesis,
    eDivision,
    eCaret,
    eProduct,         // a binary operator other than the two above
    ePostfix,         // a power written after its unit: ², ³
    eUnit,            // a unit operand or any other symbol read after numbers: marks, °C, ...
};

struct Token {
    TokenKind kind;
    bool dropped;  // a joining dash or separator sign: left out of its quantity
    int offset;
    int length;
    IParseSymbol const* symbol;  // the dictionary's, for symbol kinds
    double number;               // eNumber: the magnitude read
    int flags;                   // eNumber: the reader's flags without the sign bits
};

// Asked once per symbol of a text the evaluation refused: the common kinds are
// answered by the symbols' own records, and only the rarer ones need a cast.
TokenKind KindOf(IParseSymbol const* symbol) {
    if (ParseCast<OperandSymbol>(symbol) != nullptr) return TokenKind::eUnit;
    if (ParseCast<SpaceSymbol>(symbol) != nullptr) return TokenKind::eSpace;
    if (OperatorSymbol const* op = ParseCast<OperatorSymbol>(symbol)) {
        if (ParseCast<LeftParenthesisSymbol>(symbol) != nullptr) return TokenKind::eLeftParenthesis;
        if (ParseCast<RightParenthesisSymbol>(symbol) != nullptr) return TokenKind::eRightParenthesis;
        if (ParseCast<DivisionSymbol>(symbol) != nullptr) return TokenKind::eDivision;
        if ((op->GetKind() & 3) != OperatorSymbol::eImmediate) return TokenKind::eProduct;
        return dynamic_cast<CaretSymbol const*>(symbol) != nullptr ? TokenKind::eCaret : TokenKind::ePostfix;
    }
    if (dynamic_cast<DashSymbol const*>(symbol) != nullptr) return TokenKind::eDash;
    return TokenKind::eUnit;
}

// Units with an offset are no operands: their value depends on where they stand.
bool IsOffsetUnit(IParseSymbol const* symbol) {
    if (ParseCast<OperandSymbol>(symbol) != nullptr) return false;
    return dynamic_cast<BasicLinearSymbol<SimpleFormatSymbol> const*>(symbol) != nullptr ||
           dynamic_cast<BasicLinearSymbol<SimpleFormatSymbol2> const*>(symbol) != nullptr;
}

bool SameDimensions(DimensionVector const& a, DimensionVector const& b) {
    return std::equal(std::begin(a), std::end(a), std::begin(b));
}

// A run of tokens that the evaluation reads as one quantity, with the sign of its term.
struct Quantity {
    int first;  // token index
    int last;   // one past the last token
    int sign;   // +1 or -1
    int term;   // quantities of one term stand side by side
    bool hasUnit;
};

// Marks of a run go from the larger unit to the next smaller: `45°30'15"`, `5'6"`.
// Anything else is far likelier a slip than a sum (`5'6'` meant `5'6"`).
int MarkRank(IParseSymbol const* symbol) {
    if (ParseCast<OperandSymbol>(symbol) != nullptr) return -1;
    if (dynamic_cast<DegreeSymbol const*>(symbol) != nullptr) return 0;
    if (ParseCast<PrimeSymbol>(symbol) != nullptr) return 1;
    if (ParseCast<DoublePrimeSymbol>(symbol) != nullptr) return 2;
    return -1;
}

class TypedInputReader {
public:
    TypedInputReader(UnitsFormatterImp const& formatter, wchar_t const* text, DimensionVector const& dims,
                     TypedInputFailure* failure)
        : m_formatter(formatter), m_text(text), m_dims(dims), m_failure(failure) {}

    bool Read(double& baseValue) {
        int const length = static_cast<int>(std::wcslen(m_text));
        // A sign and its number share at least two characters: never more tokens than
        // characters, plus one.
        m_tokens = static_cast<Token*>(m_arena.Allocate(sizeof(Token) * (length + 1), alignof(Token)));
        if (!Tokenize(length)) return false;
        if (ReadParenthesisedQuantities(baseValue)) return true;
        if (!CheckParentheses()) return false;
        m_quantities = static_cast<Quantity*>(m_arena.Allocate(sizeof(Quantity) * (m_count + 1), alignof(Quantity)));
        if (!SplitIntoQuantities()) return false;
        return Evaluate(baseValue);
    }

private:
    bool Fail(int offset, Reason reason) {
        if (m_failure != nullptr) {
            m_failure->offset = offset;
            m_failure->reason = reason;
        }
        return false;
    }

    bool Tokenize(int length) {
        UnitsUIConfig const* config = UnitsUIConfig::GetInstance();
        for (int pos = 0; pos < length;) {
            double number = 0;
            int flags = 0;
            int n = m_formatter.MayStartNumberWith(m_text[pos])
                        ? m_formatter.ParseNumber(m_text + pos, &number, &flags, nullptr)
                        : 0;
            if (n > 0) {
                // The sign becomes a token of its own: whether it is a sign, an operator
                // or a joining dash depends on what stands around it.
                int const sign = flags & (ePNLeadingPositiveSign | ePNLeadingNegativeSign);
                if (sign != 0) {
                    int const signLength =
                        static_cast<int>(m_formatter.NumberTokens().Find(m_text + pos).length);
                    if (signLength <= 0 || signLength >= n) return Fail(pos, Reason::eUnknownWord);
                    TokenKind const kind =
                        sign == ePNLeadingNegativeSign ? TokenKind::eNegativeSign : TokenKind::ePositiveSign;
                    Push({kind, false, pos, signLength, nullptr, 0.0, 0});
                    pos += signLength;
                    n -= signLength;
                }
                Push({TokenKind::eNumber, false, pos, n, nullptr, std::fabs(number), flags & ~sign});
                pos += n;
                continue;
            }
            if (m_text[pos] == L'+') {
                Push({TokenKind::ePlus, false, pos, 1, nullptr, 0.0, 0});
                ++pos;
                continue;
            }
            unsigned long matched = 0;
            IParseSymbol const* symbol = config->FindSymbol(m_text + pos, &matched);
            if (symbol == nullptr) return Fail(pos, Reason::eUnknownWord);
            int const n2 = matched > 0 ? static_cast<int>(matched) : 1;
            TokenKind const kind = KindOf(symbol);
            m_hasParenthesis = m_hasParenthesis || kind == TokenKind::eLeftParenthesis ||
                               kind == TokenKind::eRightParenthesis;
            // Marks and offset units are the units that are no operands.
            m_hasUnitsBesideOperands = m_hasUnitsBesideOperands ||
                                       (kind == TokenKind::eUnit && ParseCast<OperandSymbol>(symbol) == nullptr);
            if (kind == TokenKind::eSpace && m_count > 0 && m_tokens[m_count - 1].kind == TokenKind::eSpace) {
                m_tokens[m_count - 1].length += n2;  // a run of spaces separates as one space does
            } else {
                Push({kind, false, pos, n2, symbol, 0.0, 0});
            }
            pos += n2;
        }
        // Spaces run together into one token: an empty text has at most one.
        if (m_count == 0 || (m_count == 1 && m_tokens[0].kind == TokenKind::eSpace)) {
            return Fail(0, Reason::eEmptyText);
        }
        return true;
    }

    void Push(Token const& token) { ::new (&m_tokens[m_count++]) Token(token); }

    bool Is(int i, TokenKind kind) const { return i >= 0 && i < m_count && m_tokens[i].kind == kind; }
    int NextNonSpace(int i) const {
        while (i < m_count && m_tokens[i].kind == TokenKind::eSpace) ++i;
        return i;
    }
    // The token at `i` follows the one before it with no space between.
    bool Attached(int i) const {
        return i > 0 && m_tokens[i - 1].kind != TokenKind::eSpace &&
               m_tokens[i - 1].offset + m_tokens[i - 1].length == m_tokens[i].offset;
    }
    // A fraction `n/d` starts at token `i`.
    bool FractionAt(int i) const { return Is(i, TokenKind::eNumber) && Is(i + 1, TokenKind::eDivision); }

    // A number's symbol, with its sign back when `negative`.
    UnitsOwnPtr<IParseSymbol const> NumberOf(ParseList const& list, Token const& t, bool negative) const {
        return MakeParseSymbol<NumberSymbol>(list, negative ? -t.number : t.number,
                                             negative ? (t.flags | eNSNegativeSign) : t.flags);
    }

    // Quantities in parentheses, "(2 ft)·(3 ft)": each "(number unit)" becomes one
    // operand of its value, and a leading 1 carries the result. The tokens are read
    // back as the evaluation's own tokenizer gives them, signs on their numbers.
    bool ReadParenthesisedQuantities(double& baseValue) {
        if (!m_hasParenthesis) return false;
        ParseList list{ParseList::allocator_type(&m_arena)};
        for (int i = 0; i < m_count; ++i) {
            Token const& t = m_tokens[i];
            switch (t.kind) {
                case TokenKind::ePlus:
                case TokenKind::ePositiveSign:
                    return false;
                case TokenKind::eNegativeSign:
                    break;  // read with its number
                case TokenKind::eNumber:
                    list.push_back(NumberOf(list, t, Is(i - 1, TokenKind::eNegativeSign)));
                    break;
                default:
                    list.emplace_back(t.symbol, false);
                    break;
            }
        }
        bool found = false;
        for (auto it = list.begin(); it != list.end(); ++it) {
            if (ParseCast<LeftParenthesisSymbol>(it->Get()) == nullptr) continue;
            auto number = std::next(it);
            if (number == list.end() || ParseCast<NumberSymbol>(number->Get()) == nullptr) continue;
            auto unit = std::next(number);
            if (unit != list.end() && ParseCast<SpaceSymbol>(unit->Get()) != nullptr) ++unit;
            if (unit == list.end() || ParseCast<OperandSymbol>(unit->Get()) == nullptr) continue;
            auto closing = std::next(unit);
            if (closing == list.end() || ParseCast<RightParenthesisSymbol>(closing->Get()) == nullptr) continue;
            UnitConverter const& converter = ParseCast<OperandSymbol>(unit->Get())->GetConverter();
            double base = 0;
            if (converter.ConvertToBase(&base, converter.GetDimTag(),
                                        ParseCast<NumberSymbol>(number->Get())->GetNumber()) != 0) {
                return false;
            }
            *number = MakeParseSymbol<GenericOperand>(list, GenericConverter(base, converter.GetDimTag()));
            list.erase(std::next(number), std::next(unit));
            found = true;
        }
        if (!found) return false;
        list.push_front(MakeParseSymbol<NumberSymbol>(list, 1.0, 0));
        if (IParseSymbol::Calculate(list, m_dims) != 0) return false;
        return ResultInDimensions(list, 0, baseValue);
    }

    // Every parenthesis has its partner; else the first one without.
    bool CheckParentheses() {
        if (!m_hasParenthesis) return true;
        int depth = 0;
        for (int i = 0; i < m_count; ++i) {
            if (m_tokens[i].kind == TokenKind::eLeftParenthesis) ++depth;
            if (m_tokens[i].kind == TokenKind::eRightParenthesis && --depth < 0) {
                return Fail(m_tokens[i].offset, Reason::eUnmatchedParenthesis);
            }
        }
        if (depth == 0) return true;
        // Walking back, an opening parenthesis no closing one answers is unmatched; the
        // last such one met is the first in the text.
        int unmatched = -1;
        depth = 0;
        for (int i = m_count - 1; i >= 0; --i) {
            if (m_tokens[i].kind == TokenKind::eRightParenthesis) ++depth;
            if (m_tokens[i].kind == TokenKind::eLeftParenthesis) {
                if (depth == 0) {
                    unmatched = i;
                } else {
                    --depth;
                }
            }
        }
        return Fail(m_tokens[unmatched].offset, Reason::eUnmatchedParenthesis);
    }

    void StartQuantity(int first, int sign) {
        ::new (&m_quantities[m_quantityCount++]) Quantity{first, first, sign, m_terms, false};
    }
    Quantity& Current() { return m_quantities[m_quantityCount - 1]; }
    int CurrentOffset() { return m_tokens[Current().first].offset; }

    // Groups the tokens into quantities with the signs of their terms.
    bool SplitIntoQuantities() {
        enum class State { eTermStart, eNumberPart, eUnitPart };
        State state = State::eTermStart;
        int sign = 1;
        bool hasLeadingSign = false;  // the term has its leading sign
        int pending = -1;             // the operator or sign waiting for its term
        int waiting = -1;             // in a unit expression: the operator waiting for its right side
        int depth = 0;
        for (int i = 0; i < m_count; ++i) {
            Token& t = m_tokens[i];
            if (t.kind == TokenKind::eSpace) continue;
            switch (state) {
                case State::eTermStart:
                    switch (t.kind) {
                        case TokenKind::eNegativeSign:
                        case TokenKind::ePositiveSign:
                            if (hasLeadingSign) return Fail(t.offset, Reason::eOperatorWithoutOperands);
                            if (t.kind == TokenKind::eNegativeSign) sign = -sign;
                            hasLeadingSign = true;
                            pending = i;
                            continue;
                        case TokenKind::eNumber:
                            StartQuantity(i, sign);
                            state = State::eNumberPart;
                            continue;
                        case TokenKind::eUnit:
                            return Fail(t.offset, Reason::eUnitWithoutNumber);
                        case TokenKind::eLeftParenthesis:
                            return Fail(t.offset, Reason::eCannotEvaluate);
                        default:
                            return Fail(t.offset, Reason::eOperatorWithoutOperands);
                    }
                case State::eNumberPart:
                    switch (t.kind) {
                        case TokenKind::eNumber:
                        case TokenKind::eDivision:
                            continue;
                        case TokenKind::eNegativeSign:
                            // `6-1/2"`: the hyphen the fraction writers put between whole
                            // and fraction, which the number reader took for a sign.
                            if (Attached(i) && Is(i - 1, TokenKind::eNumber) && FractionAt(i + 1)) {
                                t.dropped = true;
                                continue;
                            }
                            return Fail(CurrentOffset(), Reason::eNumberWithoutUnit);
                        case TokenKind::eDash:
                            // `6 - 1/2"`: a dash between whole inches and their fraction.
                            if (FractionAt(NextNonSpace(i + 1))) {
                                t.dropped = true;
                                continue;
                            }
                            return Fail(CurrentOffset(), Reason::eNumberWithoutUnit);
                        case TokenKind::eUnit:
                        case TokenKind::eLeftParenthesis:
                            Current().hasUnit = true;
                            state = State::eUnitPart;
                            waiting = -1;
                            if (t.kind == TokenKind::eLeftParenthesis) {
                                ++depth;
                                waiting = i;
                            }
                            continue;
                        case TokenKind::eRightParenthesis:
                            return Fail(t.offset, Reason::eUnmatchedParenthesis);
                        case TokenKind::ePlus:
                        case TokenKind::ePositiveSign:
                            return Fail(CurrentOffset(), Reason::eNumberWithoutUnit);
                        default:
                            // Operators combine units, never plain numbers: `2*3 ft`.
                            return Fail(t.offset, Reason::eOperatorWithoutOperands);
                    }
                case State::eUnitPart:
                    switch (t.kind) {
                        case TokenKind::eUnit:
                            waiting = -1;
                            continue;
                        case TokenKind::eNumber:
                            // A power or a number inside parentheses belongs to the unit;
                            // any other number starts the next quantity of the run.
                            if (waiting >= 0 || depth > 0) {
                                waiting = -1;
                                continue;
                            }
                            Current().last = i;
                            StartQuantity(i, sign);
                            state = State::eNumberPart;
                            continue;
                        case TokenKind::eDivision:
                        case TokenKind::eCaret:
                        case TokenKind::eProduct:
                            if (waiting >= 0 && !Is(waiting, TokenKind::eLeftParenthesis)) {
                                return Fail(m_tokens[waiting].offset, Reason::eOperatorWithoutOperands);
                            }
                            waiting = i;
                            continue;
                        case TokenKind::ePostfix:
                            if (waiting >= 0) return Fail(t.offset, Reason::eOperatorWithoutOperands);
                            continue;
                        case TokenKind::eLeftParenthesis:
                            ++depth;
                            waiting = i;
                            continue;
                        case TokenKind::eRightParenthesis:
                            if (depth == 0) return Fail(t.offset, Reason::eUnmatchedParenthesis);
                            if (waiting >= 0) return Fail(m_tokens[waiting].offset, Reason::eOperatorWithoutOperands);
                            --depth;
                            continue;
                        case TokenKind::eNegativeSign:
                        case TokenKind::eDash: {
                            if (waiting >= 0) return Fail(m_tokens[waiting].offset, Reason::eOperatorWithoutOperands);
                            if (depth > 0) return Fail(t.offset, Reason::eOperatorWithoutOperands);
                            int const next = NextNonSpace(i + 1);
                            if (t.kind == TokenKind::eDash && Is(next, TokenKind::eUnit)) {
                                waiting = i;  // `ft-lbf`: a product, as the evaluation reads it
                                continue;
                            }
                            if (Attached(i)) {
                                // `5ft-6in`, `5'-6 in`: written straight after the unit, the
                                // hyphen joins the run, as in `5'-6"`.
                                if (!Is(next, TokenKind::eNumber)) {
                                    return Fail(t.offset, Reason::eOperatorWithoutOperands);
                                }
                                t.dropped = true;
                                Current().last = i;
                                StartQuantity(next, sign);
                                state = State::eNumberPart;
                                i = next;
                                continue;
                            }
                            Current().last = i;  // a subtraction
                            sign = -1;
                            m_sum = true;
                            ++m_terms;
                            hasLeadingSign = false;
                            pending = i;
                            state = State::eTermStart;
                            continue;
                        }
                        case TokenKind::ePlus:
                        case TokenKind::ePositiveSign:
                            if (waiting >= 0) return Fail(m_tokens[waiting].offset, Reason::eOperatorWithoutOperands);
                            if (depth > 0) return Fail(t.offset, Reason::eOperatorWithoutOperands);
                            Current().last = i;
                            sign = 1;
                            hasLeadingSign = false;
                            pending = i;
                            state = State::eTermStart;
                            m_sum = true;
                            ++m_terms;
                            continue;
                        case TokenKind::eSpace:
                            continue;
                    }
                    continue;
            }
        }
        switch (state) {
            case State::eTermStart:
                return Fail(pending >= 0 ? m_tokens[pending].offset : 0,
                            pending >= 0 ? Reason::eOperatorWithoutOperands : Reason::eEmptyText);
            case State::eNumberPart:
                Current().last = m_count;
                // A lone number part (`6-1/2`) is read as the evaluation reads numbers;
                // in a run or a sum every quantity needs its unit.
                if (m_quantityCount > 1 || m_sum) {
                    return Fail(CurrentOffset(), Reason::eNumberWithoutUnit);
                }
                return true;
            case State::eUnitPart:
                if (waiting >= 0) return Fail(m_tokens[waiting].offset, Reason::eOperatorWithoutOperands);
                Current().last = m_count;
                return true;
        }
        return true;
    }

    // The result leading `list` in base units of the dimensions asked for.
    bool ResultInDimensions(ParseList const& list, int offset, double& baseValue) {
        auto const* result = ParseCast<ResultSymbol>(list.front().Get());
        if (result == nullptr) return Fail(offset, Reason::eCannotEvaluate);
        return InDimensions(result->GetConverter(), 1.0, offset, baseValue);
    }

    // `value` in the unit of `converter`, in base units of the dimensions asked for.
    bool InDimensions(UnitConverter const& converter, double value, int offset, double& baseValue) {
        if (!SameDimensions(converter.GetDimTag(), m_dims)) {
            if (m_failure != nullptr) std::copy(std::begin(converter.GetDimTag()), std::end(converter.GetDimTag()),
                                                std::begin(m_failure->dimensions));
            return Fail(offset, Reason::eWrongQuantity);
        }
        double base = 0;
        if (converter.ConvertToBase(&base, m_dims, value) != 0) return Fail(offset, Reason::eCannotEvaluate);
        baseValue = base;
        return true;
    }

    // The unit of quantity [first, last) when it is a number, spaces and one unit
    // operand (`5 ft`), the commonest quantity of a run; else null.
    OperandSymbol const* LoneUnitAfterNumber(int first, int last) const {
        if (last - first < 2 || !Is(first, TokenKind::eNumber) || !Is(last - 1, TokenKind::eUnit)) return nullptr;
        for (int i = first + 1; i < last - 1; ++i) {
            if (!Is(i, TokenKind::eSpace)) return nullptr;
        }
        return ParseCast<OperandSymbol>(m_tokens[last - 1].symbol);
    }

    // Why the evaluation refused quantity `q`, as near to the cause as can be told.
    bool FailQuantity(Quantity const& q) {
        for (int i = q.first; i < q.last; ++i) {
            Token const& t = m_tokens[i];
            int const next = NextNonSpace(i + 1);
            if (next >= q.last || !Is(next, TokenKind::eNumber)) continue;
            Token const& n = m_tokens[next];
            if (t.kind == TokenKind::eDivision && i > q.first && n.number == 0.0) {
                return Fail(n.offset, Reason::eZeroDenominator);
            }
            if (t.kind == TokenKind::eCaret &&
                ((n.flags & eNSDecimals) != 0 || Is(next - 1, TokenKind::eNegativeSign) || !(n.number >= 1.0))) {
                return Fail(n.offset, Reason::eInvalidPower);
            }
        }
        return Fail(m_tokens[q.first].offset, Reason::eCannotEvaluate);
    }

    bool Evaluate(double& baseValue) {
        if (m_hasUnitsBesideOperands && (m_quantityCount > 1 || m_sum)) {
            // A temperature with its offset has no sum: 20 °C + 10 °C is not 30 °C.
            for (int k = 0; k < m_quantityCount; ++k) {
                for (int i = m_quantities[k].first; i < m_quantities[k].last; ++i) {
                    if (Is(i, TokenKind::eUnit) && IsOffsetUnit(m_tokens[i].symbol)) {
                        return Fail(m_tokens[i].offset, Reason::eOffsetUnitInSum);
                    }
                }
            }
        }
        int previousRank = -1;
        for (int k = 0; m_hasUnitsBesideOperands && k < m_quantityCount; ++k) {
            Quantity const& q = m_quantities[k];
            int rank = -1;
            int at = -1;
            for (int i = q.last - 1; i >= q.first && at < 0; --i) {
                if (Is(i, TokenKind::eUnit)) at = i;
            }
            if (at >= 0) rank = MarkRank(m_tokens[at].symbol);
            bool const sameTerm = k > 0 && m_quantities[k - 1].term == q.term;
            if (sameTerm && rank >= 0 && previousRank >= 0 && rank != previousRank + 1) {
                return Fail(m_tokens[at].offset, Reason::eMarkOutOfOrder);
            }
            previousRank = rank;
        }
        double sum = 0;
        for (int k = 0; k < m_quantityCount; ++k) {
            Quantity const& q = m_quantities[k];
            int first = q.first;
            int last = q.last;
            while (first < last && Is(first, TokenKind::eSpace)) ++first;
            while (last > first && Is(last - 1, TokenKind::eSpace)) --last;
            double base = 0;
            if (OperandSymbol const* unit = LoneUnitAfterNumber(first, last)) {
                // Converted straight, as the evaluation converts a number before a unit,
                // without building a list for it.
                if (!InDimensions(unit->GetConverter(), m_tokens[first].number, m_tokens[q.first].offset, base)) {
                    return false;
                }
                sum += q.sign < 0 ? -base : base;
                continue;
            }
            ParseList list{ParseList::allocator_type(&m_arena)};
            for (int i = first; i < last; ++i) {
                Token const& t = m_tokens[i];
                if (t.dropped) continue;
                if (t.kind == TokenKind::eNumber) {
                    list.push_back(NumberOf(list, t, false));
                } else if (t.symbol != nullptr) {
                    list.emplace_back(t.symbol, false);
                } else {
                    return Fail(t.offset, Reason::eOperatorWithoutOperands);
                }
            }
            if (IParseSymbol::Calculate(list, m_dims) != 0) return FailQuantity(q);
            if (!ResultInDimensions(list, m_tokens[q.first].offset, base)) return false;
            sum += q.sign < 0 ? -base : base;
        }
        baseValue = sum;
        return true;
    }

    UnitsFormatterImp const& m_formatter;
    wchar_t const* m_text;
    DimensionVector const& m_dims;
    TypedInputFailure* m_failure;
    ParseArena m_arena;
    Token* m_tokens = nullptr;
    int m_count = 0;
    Quantity* m_quantities = nullptr;
    int m_quantityCount = 0;
    bool m_sum = false;  // a plus or minus between terms
    bool m_hasParenthesis = false;
    bool m_hasUnitsBesideOperands = false;
    int m_terms = 0;
};

}  // namespace

bool ReadTypedInput(UnitsFormatterImp const& formatter, wchar_t const* text, DimensionVector const& dims,
                    double& baseValue, TypedInputFailure* failure) {
    if (text == nullptr) {
        if (failure != nullptr) *failure = TypedInputFailure{0, ParseFailureReason::eNoText, {}};
        return false;
    }
    TypedInputReader reader(formatter, text, dims, failure);
    return reader.Read(baseValue);
}

int FindMisplacedGroupSeparator(UnitsFormatterImp const& formatter, wchar_t const* text) {
    if (text == nullptr) return -1;
    std::vector<int> const& sizes = formatter.Numbers().groupSizes;
    if (sizes.empty()) return -1;
    UnitsStringDict<int const> const& tokens = formatter.NumberTokens();
    int const length = static_cast<int>(std::wcslen(text));
    for (int pos = 0; pos < length;) {
        double number = 0;
        int flags = 0;
        int const n = formatter.ParseNumber(text + pos, &number, &flags, nullptr);
        if (n <= 0) {
            ++pos;
            continue;
        }
        if ((flags & ePNGroupSeparator) != 0) {
            // The whole digits' groups, left to right, with the separator after each.
            constexpr int kMostGroups = 64;
            int groupDigits[kMostGroups] = {};
            int separatorAfter[kMostGroups] = {};
            int groups = 1;
            for (int k = pos; k < pos + n && groups < kMostGroups;) {
                UnitsStringDict<int const>::Match const m = tokens.Find(text + k);
                if (m.value == nullptr || m.length == 0) break;
                int const kind = *m.value - 1;
                if (kind == eNTDecimalSeparator || kind == eNTExponentMark) break;
                if (kind >= eNTDigit0 && kind <= eNTDigit0 + 9) ++groupDigits[groups - 1];
                if (kind == eNTGroupSeparator) separatorAfter[groups++ - 1] = k;
                k += static_cast<int>(m.length);
            }
            // From the right: the group before the decimal separator has the first size,
            // the next the second, and the last size repeats (0: no more groups). Only
            // the leftmost group may be shorter.
            int misplaced = -1;
            for (int g = groups - 1, fromRight = 0; g >= 0; --g, ++fromRight) {
                int const size = sizes[std::min<std::size_t>(fromRight, sizes.size() - 1)];
                bool const leftmost = g == 0;
                bool const fits = size > 0 && (leftmost ? groupDigits[g] >= 1 && groupDigits[g] <= size
                                                        : groupDigits[g] == size);
                if (!fits) misplaced = leftmost ? separatorAfter[g] : separatorAfter[g - 1];
            }
            if (misplaced >= 0) return misplaced;
        }
        pos += n;
    }
    return -1;
}

}  // namespace kxnorth::platform::core::units
