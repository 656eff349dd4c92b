// Unit symbols: the objects that write a value with its unit's marks and that take
// part in reading typed text.
//
// Reading works on a parse list: the driver cuts typed text into numbers, unit
// symbols, operators, parentheses, spaces and marks, and IParseSymbol::Calculate
// reduces that list in place, in two passes, to one ResultSymbol holding the value in
// base units with its dimensions. The first pass (asOperand true) decides the role of
// symbols that can be a unit after a number or an operand of an operator; the second
// applies numbers, fractions, marks and operators by priority.
//
// Every symbol class whose text is given exists twice: the classes here take
// `wchar_t const*`, their twins ending in 2 (KxUnitsSymbols2.h) take a QString. Both
// are instantiations of one template per kind (BasicGenericSymbol, ...), so the two
// families run the same code and differ only in their constructors.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <new>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "KxCoreUnits/UnitConverter.h"
#include "KxCoreUnits/UnitsEnums.h"
#include "KxCoreUnitsUI/KxCoreUnitsUIExport.h"

namespace kxnorth::platform::core::units {

class UnitsFormatterImp;
class IParseSymbol;
class CustomSymbol;

// The memory of one reading: the parse list's nodes and the symbols that tokenizing
// and evaluation make are cut from a buffer inside the arena (on the reader's stack),
// then from heap blocks when a long text needs more, and all freed at once when the
// arena goes. Nothing is given back before that.
class KXCOREUNITSUI_EXPORT ParseArena {
public:
    ParseArena() = default;
    ParseArena(ParseArena const&) = delete;
    ParseArena& operator=(ParseArena const&) = delete;
    ~ParseArena() {
        if (m_blocks != nullptr) FreeBlocks();
    }

    // `alignment` is a power of two.
    void* Allocate(std::size_t bytes, std::size_t alignment) {
        std::uintptr_t const start = (m_next + alignment - 1) & ~static_cast<std::uintptr_t>(alignment - 1);
        if (start < m_next || start > m_end || bytes > m_end - start) return AllocateInNewBlock(bytes, alignment);
        m_next = start + bytes;
        return reinterpret_cast<void*>(start);
    }

private:
    struct Block;

    void* AllocateInNewBlock(std::size_t bytes, std::size_t alignment);
    void FreeBlocks();

    // `5'-6 1/2"` takes about 500 bytes (nodes of 32, numbers of 24, a result of 64).
    static constexpr std::size_t kBufferBytes = 2048;

    alignas(std::max_align_t) std::byte m_buffer[kBufferBytes];
    std::uintptr_t m_next = reinterpret_cast<std::uintptr_t>(m_buffer);
    std::uintptr_t m_end = m_next + kBufferBytes;
    std::size_t m_lastBlockBytes = kBufferBytes;
    Block* m_blocks = nullptr;  // the heap blocks, newest first
};

// The allocator of a parse list: from an arena, or from the heap when it has none (a
// list made with no arguments).
template <typename T>
class ParseAllocator {
public:
    using value_type = T;

    ParseAllocator() noexcept = default;
    explicit ParseAllocator(ParseArena* arena) noexcept : m_arena(arena) {}
    template <typename U>
    ParseAllocator(ParseAllocator<U> const& other) noexcept : m_arena(other.Arena()) {}

    T* allocate(std::size_t n) {
        if (m_arena == nullptr) return std::allocator<T>().allocate(n);
        if (n > SIZE_MAX / sizeof(T)) throw std::bad_array_new_length();
        return static_cast<T*>(m_arena->Allocate(n * sizeof(T), alignof(T)));
    }
    void deallocate(T* p, std::size_t n) noexcept {
        if (m_arena == nullptr) std::allocator<T>().deallocate(p, n);
    }

    ParseArena* Arena() const noexcept { return m_arena; }

    friend bool operator==(ParseAllocator const& a, ParseAllocator const& b) noexcept {
        return a.m_arena == b.m_arena;
    }
    friend bool operator!=(ParseAllocator const& a, ParseAllocator const& b) noexcept { return !(a == b); }

private:
    ParseArena* m_arena = nullptr;
};

// How a slot of the parse list holds its object.
enum class SymbolOwnership : unsigned char {
    eBorrowed,  // a dictionary's long-lived symbol: left alone
    eOwned,     // made with new: deleted with the slot
    eInArena,   // made in a parse arena: destroyed with the slot, its memory freed with the arena
};

// A pointer that owns its object only when told so: the parse list holds the
// dictionary's long-lived symbols without ownership and the symbols that evaluation
// creates with it.
template <typename T>
class UnitsOwnPtr {
public:
    UnitsOwnPtr() = default;
    UnitsOwnPtr(T* pointer, bool owned)
        : m_pointer(pointer), m_ownership(owned ? SymbolOwnership::eOwned : SymbolOwnership::eBorrowed) {}
    UnitsOwnPtr(T* pointer, SymbolOwnership ownership) : m_pointer(pointer), m_ownership(ownership) {}
    UnitsOwnPtr(UnitsOwnPtr&& other) noexcept
        : m_pointer(std::exchange(other.m_pointer, nullptr)),
          m_ownership(std::exchange(other.m_ownership, SymbolOwnership::eBorrowed)) {}
    UnitsOwnPtr& operator=(UnitsOwnPtr&& other) noexcept {
        if (this != &other) {
            Reset(other.m_pointer, other.m_ownership);
            other.m_pointer = nullptr;
            other.m_ownership = SymbolOwnership::eBorrowed;
        }
        return *this;
    }
    UnitsOwnPtr(UnitsOwnPtr const&) = delete;
    UnitsOwnPtr& operator=(UnitsOwnPtr const&) = delete;
    ~UnitsOwnPtr() { Release(); }

    // Puts `pointer` in the slot; the previous object goes when it was owned (deleted,
    // or destroyed in its arena). A symbol that replaces its own slot must not touch
    // its members afterwards.
    void Reset(T* pointer, bool owned) {
        Reset(pointer, owned ? SymbolOwnership::eOwned : SymbolOwnership::eBorrowed);
    }
    void Reset(T* pointer, SymbolOwnership ownership) {
        if (pointer != m_pointer) Release();
        m_pointer = pointer;
        m_ownership = ownership;
    }

    T* Get() const { return m_pointer; }
    T* operator->() const { return m_pointer; }
    T& operator*() const { return *m_pointer; }
    explicit operator bool() const { return m_pointer != nullptr; }
    bool IsOwned() const { return m_ownership != SymbolOwnership::eBorrowed; }

private:
    void Release() {
        if (m_ownership == SymbolOwnership::eOwned) {
            delete m_pointer;
        } else if (m_ownership == SymbolOwnership::eInArena) {
            m_pointer->~T();
        }
        m_pointer = nullptr;
        m_ownership = SymbolOwnership::eBorrowed;
    }

    T* m_pointer = nullptr;
    SymbolOwnership m_ownership = SymbolOwnership::eBorrowed;
};

// A parse puts its list, and the symbols evaluation makes, in a ParseArena (see
// UnitsFormatterImp::Parse); a list made with no arguments uses the heap.
using ParseList = std::list<UnitsOwnPtr<IParseSymbol const>, ParseAllocator<UnitsOwnPtr<IParseSymbol const>>>;
using ParseIterator = ParseList::iterator;

// Symbol classes whose objects hold nothing but numbers (no heap memory, no handles):
// in an arena they are abandoned with its memory instead of destroyed one by one, which
// spares a virtual destructor call per token. A class listed here must stay that way.
template <typename T>
struct HoldsOnlyNumbers : std::false_type {};

// A new symbol of class T for a slot of `list`: in the list's arena, or made with new
// when the list has none. A slot made in an arena must not outlive it.
template <typename T, typename... Args>
UnitsOwnPtr<IParseSymbol const> MakeParseSymbol(ParseList const& list, Args&&... args) {
    ParseArena* arena = list.get_allocator().Arena();
    if (arena == nullptr) return UnitsOwnPtr<IParseSymbol const>(new T(std::forward<Args>(args)...), true);
    void* memory = arena->Allocate(sizeof(T), alignof(T));
    return UnitsOwnPtr<IParseSymbol const>(::new (memory) T(std::forward<Args>(args)...),
                                           HoldsOnlyNumbers<T>::value ? SymbolOwnership::eBorrowed
                                                                      : SymbolOwnership::eInArena);
}

// ---------------------------------------------------------------------------------
// Interfaces

class KXCOREUNITSUI_EXPORT ISymbol {
public:
    virtual ~ISymbol();

protected:
    ISymbol() = default;
};

// Results: a count of characters or 0 on success, -1 when the symbol cannot write (no
// buffer, no room, no such component), or a failed conversion's code negated.
class KXCOREUNITSUI_EXPORT IFormatSymbol : public virtual ISymbol {
public:
    ~IFormatSymbol() override;

    // Writes `value` (in base units of `dims`) with the symbol's marks.
    virtual int Format(double value, DimensionVector const& dims, wchar_t* buffer, unsigned long size,
                       UnitsFormatterImp const& formatter) const = 0;
    // Writes only number component `index` of the value, without marks.
    virtual int FormatNumber(int index, double value, DimensionVector const& dims, wchar_t* buffer,
                             unsigned long size, UnitsFormatterImp const& formatter) const = 0;
    // Reads the numbers leading `list` as the components of form `form` and puts the
    // value in base units, as a ResultSymbol, into the first element. 0 done, 1 not.
    virtual int ParseNumber(ParseList& list, int form) const = 0;
    // The highest component index of form `form`, or a negative value when the
    // symbol has no such form.
    virtual int GetMaxIndex(int form) const = 0;
    // Builds the custom symbols of `pieces` and `indices` (Custom symbol strings) over
    // this symbol; the caller owns what is appended to `out`. 0 done.
    virtual int GenerateCustomSymbols(std::vector<CustomSymbol*>& out, std::vector<std::wstring> const& pieces,
                                      std::vector<int> const& indices) const = 0;
    virtual wchar_t const* GetSymbolName() const = 0;

protected:
    IFormatSymbol() = default;
};

// The parse symbol classes evaluation asks about. A downcast through the symbols'
// virtual bases costs more than reading a number, so each class answers for itself.
enum class ParseKind : int {
    eNumber, eOperand, eOperator, eResult, eDivision, ePrime, eDoublePrime,
    eEast, eWest, eLeftParenthesis, eRightParenthesis, eSpace,
};

class KXCOREUNITSUI_EXPORT IParseSymbol : public virtual ISymbol {
public:
    ~IParseSymbol() override;

    // This object as the class of `kind` (cast to void), or null when it is not one.
    virtual void const* Self(ParseKind) const { return nullptr; }

    // Reduces `list` to one ResultSymbol: 0 done, 1 the list does not evaluate (it is
    // then left partly reduced). `dims` are those of the quantity being read; a bare
    // number or fraction stands in its base unit.
    [[nodiscard]] static int Calculate(ParseList& list, DimensionVector const& dims);

    // Called for the element at `it`; leaves `it` on the next element to visit.
    // 0 goes on, anything else aborts the evaluation.
    virtual int Calculate(ParseList& list, ParseIterator& it, bool asOperand,
                          DimensionVector const& dims) const = 0;

    // This object as the class of `kind`, answered without a call when the object
    // recorded that kind (see Record) and else through Self.
    void const* AsKind(ParseKind kind) const {
        if (static_cast<int>(kind) == m_ownKind) return m_own;
        return (m_kinds & KindBit(kind)) != 0 ? Self(kind) : nullptr;
    }

protected:
    IParseSymbol() = default;
    // A copy answers its own kinds through Self: the recorded pointer is the original's.
    IParseSymbol(IParseSymbol const& other) : ISymbol(other), m_kinds(other.m_kinds) {}
    IParseSymbol& operator=(IParseSymbol const&) { return *this; }

    // Each class that answers Self for a kind records the kind and itself in its
    // constructors; constructors run from the bases down, so the last one recorded is
    // the most derived class's.
    void Record(ParseKind kind, void const* self) {
        m_kinds |= KindBit(kind);
        m_ownKind = static_cast<int>(kind);
        m_own = self;
    }

private:
    static constexpr unsigned KindBit(ParseKind kind) { return 1u << static_cast<unsigned>(kind); }
    unsigned m_kinds = 0;  // every kind Self answers for
    int m_ownKind = -1;
    void const* m_own = nullptr;
};

// A unit that operators combine: `2 ft m`, `m/s`, `in²`.
class KXCOREUNITSUI_EXPORT OperandSymbol : public virtual IParseSymbol {
public:
    void const* Self(ParseKind kind) const override {
        return kind == ParseKind::eOperand ? static_cast<OperandSymbol const*>(this) : IParseSymbol::Self(kind);
    }
    ~OperandSymbol() override;

    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;
    // The unit of the operand.
    virtual UnitConverter const& GetConverter() const = 0;
    // The fraction or mixed number that ends just before the operand at `it`, read in
    // the operand's unit, becomes the result.
    int DoCalc(ParseList& list, ParseIterator& it) const;

protected:
    OperandSymbol() { Record(ParseKind::eOperand, this); }
};

// An operand that evaluation made: a product, quotient or power of units, or a copy
// of a unit's converter.
class KXCOREUNITSUI_EXPORT GenericOperand : public virtual OperandSymbol {
public:
    explicit GenericOperand(GenericConverter const& converter);
    ~GenericOperand() override;

    UnitConverter const& GetConverter() const override { return m_converter; }

private:
    GenericConverter m_converter;
};

// The value read: its converter's factor is the value in base units.
class KXCOREUNITSUI_EXPORT ResultSymbol : public virtual GenericOperand {
public:
    void const* Self(ParseKind kind) const override {
        return kind == ParseKind::eResult ? static_cast<ResultSymbol const*>(this) : GenericOperand::Self(kind);
    }
    explicit ResultSymbol(GenericConverter const& converter);
    ~ResultSymbol() override;

    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;
};

// Flags of a number, as the number reader reports them, plus the evaluation's own.
enum NumberSymbolFlags : int {
    eNSNegativeSign = 2,    // written with a leading minus sign
    eNSDecimals = 32,       // written with a decimal separator: never a power
    eNSCarried = 0x10000,   // made by a mark from the parts before it, in the next smaller
                            // unit (inches, seconds); its sign governs what follows it
};

class KXCOREUNITSUI_EXPORT NumberSymbol : public virtual IParseSymbol {
public:
    void const* Self(ParseKind kind) const override {
        return kind == ParseKind::eNumber ? static_cast<NumberSymbol const*>(this) : IParseSymbol::Self(kind);
    }
    NumberSymbol(double value, int flags);
    ~NumberSymbol() override;

    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;
    // The fraction or mixed number that ends with the number at `it`, in base units of
    // `dims`, becomes the result.
    int DoCalc(ParseList& list, ParseIterator& it, DimensionVector const& dims) const;

    double GetNumber() const { return m_value; }
    int GetFlags() const { return m_flags; }
    // The minus sign counts even on a zero: "-0'-6"" is negative.
    bool IsNegative() const { return (m_flags & eNSNegativeSign) != 0 || std::signbit(m_value); }

private:
    double m_value;
    int m_flags;
};

// Numbers, unit factors and dimensions: nothing to release.
template <>
struct HoldsOnlyNumbers<NumberSymbol> : std::true_type {};
template <>
struct HoldsOnlyNumbers<GenericOperand> : std::true_type {};
template <>
struct HoldsOnlyNumbers<ResultSymbol> : std::true_type {};

class KXCOREUNITSUI_EXPORT OperatorSymbol : public virtual IParseSymbol {
public:
    void const* Self(ParseKind kind) const override {
        return kind == ParseKind::eOperator ? static_cast<OperatorSymbol const*>(this) : IParseSymbol::Self(kind);
    }
    // Kinds: only the low two bits are read; 2 applies the operator at once, without
    // first evaluating operators of higher priority to its right.
    enum Kind : int { eBinary = 1, eImmediate = 2, eOpening = 3 };

    OperatorSymbol(int priority, int kind);
    ~OperatorSymbol() override;

    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;
    // Applies the operator at `it` to its neighbours; leaves `it` on the result.
    virtual int DoCalc(ParseList& list, ParseIterator& it) const = 0;

    int GetPriority() const { return m_priority; }
    int GetKind() const { return m_kind; }

private:
    int m_priority;
    int m_kind;
};

// Between two units a space multiplies (`2 ft m`); anywhere else it only separates,
// so that `5 1/2` stays a mixed number.
class KXCOREUNITSUI_EXPORT SpaceSymbol : public virtual IParseSymbol {
public:
    void const* Self(ParseKind kind) const override {
        return kind == ParseKind::eSpace ? static_cast<SpaceSymbol const*>(this) : IParseSymbol::Self(kind);
    }
    SpaceSymbol() { Record(ParseKind::eSpace, this); }
    ~SpaceSymbol() override;
    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;
};

class KXCOREUNITSUI_EXPORT MultiplicationSymbol : public virtual OperatorSymbol {
public:
    MultiplicationSymbol();
    ~MultiplicationSymbol() override;
    int DoCalc(ParseList& list, ParseIterator& it) const override;
};

class KXCOREUNITSUI_EXPORT DivisionSymbol : public virtual OperatorSymbol {
public:
    void const* Self(ParseKind kind) const override {
        return kind == ParseKind::eDivision ? static_cast<DivisionSymbol const*>(this) : OperatorSymbol::Self(kind);
    }
    DivisionSymbol();
    ~DivisionSymbol() override;
    int DoCalc(ParseList& list, ParseIterator& it) const override;
};

class KXCOREUNITSUI_EXPORT SquareSymbol : public virtual OperatorSymbol {
public:
    SquareSymbol();
    ~SquareSymbol() override;
    int DoCalc(ParseList& list, ParseIterator& it) const override;
};

class KXCOREUNITSUI_EXPORT CubicSymbol : public virtual OperatorSymbol {
public:
    CubicSymbol();
    ~CubicSymbol() override;
    int DoCalc(ParseList& list, ParseIterator& it) const override;
};

// `unit ^ n` for a whole n of at least 1.
class KXCOREUNITSUI_EXPORT CaretSymbol : public virtual OperatorSymbol {
public:
    CaretSymbol();
    ~CaretSymbol() override;
    int DoCalc(ParseList& list, ParseIterator& it) const override;
};

class KXCOREUNITSUI_EXPORT LeftParenthesisSymbol : public virtual OperatorSymbol {
public:
    void const* Self(ParseKind kind) const override {
        return kind == ParseKind::eLeftParenthesis ? static_cast<LeftParenthesisSymbol const*>(this) : OperatorSymbol::Self(kind);
    }
    LeftParenthesisSymbol();
    ~LeftParenthesisSymbol() override;
    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;
    int DoCalc(ParseList& list, ParseIterator& it) const override;
};

class KXCOREUNITSUI_EXPORT RightParenthesisSymbol : public virtual OperatorSymbol {
public:
    void const* Self(ParseKind kind) const override {
        return kind == ParseKind::eRightParenthesis ? static_cast<RightParenthesisSymbol const*>(this) : OperatorSymbol::Self(kind);
    }
    RightParenthesisSymbol();
    ~RightParenthesisSymbol() override;
    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;
    int DoCalc(ParseList& list, ParseIterator& it) const override;
};

// ---------------------------------------------------------------------------------
// Symbols of ordinary units: a number followed by the unit's text.

// Holds the symbol text and the flags; formats only the text. Bit 0 of the flags
// leaves out the space between the number and the text (`5'`, `45°`).
class KXCOREUNITSUI_EXPORT SimpleFormatSymbolBase : public virtual IFormatSymbol {
public:
    enum Flags : int { eNoSpace = 1 };

    ~SimpleFormatSymbolBase() override;

    // Writes the text (after a space unless eNoSpace); returns the characters written
    // including the terminator.
    int Format(double value, DimensionVector const& dims, wchar_t* buffer, unsigned long size,
               UnitsFormatterImp const& formatter) const override;
    int FormatNumber(int index, double value, DimensionVector const& dims, wchar_t* buffer, unsigned long size,
                     UnitsFormatterImp const& formatter) const override;
    int ParseNumber(ParseList& list, int form) const override;
    int GetMaxIndex(int form) const override;
    int GenerateCustomSymbols(std::vector<CustomSymbol*>& out, std::vector<std::wstring> const& pieces,
                              std::vector<int> const& indices) const override;
    wchar_t const* GetSymbolName() const override { return m_text.c_str(); }

    std::wstring const& GetText() const { return m_text; }
    int GetFlags() const { return m_flags; }

protected:
    SimpleFormatSymbolBase(std::wstring text, int flags);

    // Writes the optional space, the text and its terminator at `buffer`; the count
    // written including the terminator, or -1 when `size` is too small.
    int AppendText(wchar_t* buffer, unsigned long size) const;
    // The text after a number a FormatNumber call wrote into `buffer` (its result is
    // `written`), from the number's terminator on. The count returned is that of the
    // space, text and terminator only, as callers measure the terminated string; a
    // failed number's result is passed on.
    int AppendTextAfterNumber(int written, wchar_t* buffer, unsigned long size) const;

private:
    std::wstring m_text;
    int m_flags;
};

class KXCOREUNITSUI_EXPORT SimpleFormatSymbol : public SimpleFormatSymbolBase {
public:
    SimpleFormatSymbol(wchar_t const* text, int flags);
    ~SimpleFormatSymbol() override;

protected:
    SimpleFormatSymbol(std::wstring text, int flags);
};

// A unit symbol: writes `2.50 m`, reads a number followed by its text, and is an
// operand of products and quotients. `TextBase` is SimpleFormatSymbol or
// SimpleFormatSymbol2.
template <typename TextBase>
class KXCOREUNITSUI_EXPORT BasicGenericSymbol : public OperandSymbol, public TextBase {
public:
    ~BasicGenericSymbol() override;

    int Format(double value, DimensionVector const& dims, wchar_t* buffer, unsigned long size,
               UnitsFormatterImp const& formatter) const override;
    int FormatNumber(int index, double value, DimensionVector const& dims, wchar_t* buffer, unsigned long size,
                     UnitsFormatterImp const& formatter) const override;
    int ParseNumber(ParseList& list, int form) const override;
    UnitConverter const& GetConverter() const override;

    int GetUnitSymbol() const { return m_unitSymbol; }

protected:
    BasicGenericSymbol(std::wstring text, int unitSymbol, int flags);

private:
    int m_unitSymbol;
    UnitConverter const* m_converter;
};

class KXCOREUNITSUI_EXPORT GenericSymbol : public BasicGenericSymbol<SimpleFormatSymbol> {
public:
    GenericSymbol(wchar_t const* text, int unitSymbol, int flags);
    ~GenericSymbol() override;

protected:
    GenericSymbol(std::wstring text, int unitSymbol, int flags);
};

// A unit symbol with a name of its own, apart from the text it writes.
template <typename GenericBase>
class KXCOREUNITSUI_EXPORT BasicGenericSymbolEx : public GenericBase {
public:
    ~BasicGenericSymbolEx() override;
    // The name when there is one, else the symbol text.
    wchar_t const* GetSymbolName() const override;

protected:
    BasicGenericSymbolEx(std::wstring text, int unitSymbol, int flags, bool hasName, std::wstring name);

private:
    std::wstring m_name;
    bool m_hasName;
};

class KXCOREUNITSUI_EXPORT GenericSymbolEx : public BasicGenericSymbolEx<GenericSymbol> {
public:
    // `name` may be null.
    GenericSymbolEx(wchar_t const* text, int unitSymbol, int flags, wchar_t const* name);
    ~GenericSymbolEx() override;
};

// A unit whose zero is offset (temperatures). After a number it converts with the
// offset (`20 °C`); as an operand of an operator it stands for its difference unit
// (`5 °C/min` is five kelvin per minute).
template <typename TextBase>
class KXCOREUNITSUI_EXPORT BasicLinearSymbol : public virtual IParseSymbol, public TextBase {
public:
    ~BasicLinearSymbol() override;

    int Format(double value, DimensionVector const& dims, wchar_t* buffer, unsigned long size,
               UnitsFormatterImp const& formatter) const override;
    int FormatNumber(int index, double value, DimensionVector const& dims, wchar_t* buffer, unsigned long size,
                     UnitsFormatterImp const& formatter) const override;
    int ParseNumber(ParseList& list, int form) const override;
    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;

    int GetUnitSymbol() const { return m_unitSymbol; }
    int GetOperandUnitSymbol() const { return m_operandUnitSymbol; }

protected:
    BasicLinearSymbol(std::wstring text, int unitSymbol, int operandUnitSymbol, int flags);

private:
    UnitConverter const& GetConverter() const;

    int m_unitSymbol;
    int m_operandUnitSymbol;
    UnitConverter const* m_converter;  // the catalogue's, found once; null when unknown
};

class KXCOREUNITSUI_EXPORT LinearSymbol : public BasicLinearSymbol<SimpleFormatSymbol> {
public:
    LinearSymbol(wchar_t const* text, int unitSymbol, int operandUnitSymbol, int flags);
    ~LinearSymbol() override;
};

// ---------------------------------------------------------------------------------
// Custom symbols: a base symbol's numbers with literal pieces around them.

class KXCOREUNITSUI_EXPORT CustomSymbol : public virtual IParseSymbol, public virtual IFormatSymbol {
public:
    // `pieces[k]` stands before number position k, and a last extra piece after the
    // last number; `indices[k]` is the base symbol's component written at position k.
    CustomSymbol(IFormatSymbol const* base, std::vector<std::wstring> const& pieces,
                 std::vector<int> const& indices, int form);
    ~CustomSymbol() override;

    // Drops the base symbol and both lists unless: one index per component of the
    // base symbol's form, the indices a permutation, and as many pieces as indices or
    // one more.
    void Check();
    bool IsValid() const { return m_base != nullptr; }
    std::vector<std::wstring> const& GetStrings() const { return m_pieces; }
    std::vector<int> const& GetIndices() const { return m_indices; }
    int GetForm() const { return m_form; }

    int Format(double value, DimensionVector const& dims, wchar_t* buffer, unsigned long size,
               UnitsFormatterImp const& formatter) const override;
    int FormatNumber(int index, double value, DimensionVector const& dims, wchar_t* buffer, unsigned long size,
                     UnitsFormatterImp const& formatter) const override;
    int ParseNumber(ParseList& list, int form) const override;
    int GetMaxIndex(int form) const override;
    int GenerateCustomSymbols(std::vector<CustomSymbol*>& out, std::vector<std::wstring> const& pieces,
                              std::vector<int> const& indices) const override;
    wchar_t const* GetSymbolName() const override;
    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;

private:
    std::vector<int> m_indices;
    std::vector<std::wstring> m_pieces;
    IFormatSymbol const* m_base;
    int m_form;
};

// ---------------------------------------------------------------------------------
// Angles: degrees, minutes and seconds, and surveyor's bearings.

// Writes an angle as degrees, minutes and seconds; how many of the three, and the
// seconds' decimals, follow the formatter's precision P: 0 degrees, 1-2 minutes, 3-4
// whole seconds, 5 and more seconds with P - 4 decimals. A bearing is written from
// north or south toward east or west (`N 60°0' E`).
template <typename GenericBase>
class KXCOREUNITSUI_EXPORT BasicDegreePrimeDoublePrimeSymbol : public GenericBase {
public:
    ~BasicDegreePrimeDoublePrimeSymbol() override;

    int Format(double value, DimensionVector const& dims, wchar_t* buffer, unsigned long size,
               UnitsFormatterImp const& formatter) const override;
    // Index 0 degrees, 1 minutes, 2 seconds, as Format writes them (0 for parts the
    // precision leaves out); for a bearing, of the angle between the letters.
    int FormatNumber(int index, double value, DimensionVector const& dims, wchar_t* buffer, unsigned long size,
                     UnitsFormatterImp const& formatter) const override;
    int ParseNumber(ParseList& list, int form) const override;
    int GetMaxIndex(int form) const override;

    bool IsBearing() const { return m_bearing; }
    bool HasDegreeSign() const { return m_degreeSign; }

protected:
    BasicDegreePrimeDoublePrimeSymbol(std::wstring text, bool bearing, bool degreeSign);

private:
    bool m_bearing;
    bool m_degreeSign;
};

class KXCOREUNITSUI_EXPORT DegreePrimeDoublePrimeSymbol : public BasicDegreePrimeDoublePrimeSymbol<GenericSymbol> {
public:
    DegreePrimeDoublePrimeSymbol(wchar_t const* text, bool bearing);
    ~DegreePrimeDoublePrimeSymbol() override;
};

// The marks typed after numbers. Their meaning depends on the quantity being read:
// in an angle (or a plain number: all dimensions 0) degrees, minutes and seconds; in a
// length the prime is the foot and the double prime the inch; in a time minutes and
// seconds. Each mark turns the numbers before it into one number in the next smaller
// unit (flagged eNSCarried) for the next mark, or into the result when it is last.
class KXCOREUNITSUI_EXPORT DegreeSymbol : public virtual IParseSymbol {
public:
    DegreeSymbol() = default;
    ~DegreeSymbol() override;
    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;
};

class KXCOREUNITSUI_EXPORT PrimeSymbol : public virtual IParseSymbol {
public:
    void const* Self(ParseKind kind) const override {
        return kind == ParseKind::ePrime ? static_cast<PrimeSymbol const*>(this) : IParseSymbol::Self(kind);
    }
    PrimeSymbol() { Record(ParseKind::ePrime, this); }
    ~PrimeSymbol() override;
    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;
};

class KXCOREUNITSUI_EXPORT DoublePrimeSymbol : public virtual IParseSymbol {
public:
    void const* Self(ParseKind kind) const override {
        return kind == ParseKind::eDoublePrime ? static_cast<DoublePrimeSymbol const*>(this) : IParseSymbol::Self(kind);
    }
    DoublePrimeSymbol() { Record(ParseKind::eDoublePrime, this); }
    ~DoublePrimeSymbol() override;
    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;
};

// "d": the degree mark in an angle or a plain number, the day elsewhere.
class KXCOREUNITSUI_EXPORT DSymbol : public virtual IParseSymbol {
public:
    DSymbol() = default;
    ~DSymbol() override;
    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;
};

// "g": the grad in an angle or a plain number, the gram elsewhere.
class KXCOREUNITSUI_EXPORT GSymbol : public virtual IParseSymbol {
public:
    GSymbol() = default;
    ~GSymbol() override;
    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;
};

// The compass letters. In an angle they read a bearing (`N 45°30'15" E`) as an angle
// counter-clockwise from east, or stand alone for a cardinal direction; elsewhere N,
// S and W are the newton, the siemens and the watt.
class KXCOREUNITSUI_EXPORT NorthSymbol : public virtual IParseSymbol {
public:
    NorthSymbol() = default;
    ~NorthSymbol() override;
    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;
};

class KXCOREUNITSUI_EXPORT SouthSymbol : public virtual IParseSymbol {
public:
    SouthSymbol() = default;
    ~SouthSymbol() override;
    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;
};

// Which letter opened the bearing that an E or W closes. The dictionary's E and W
// have none; the opening N or S puts a new letter carrying it in their place, so the
// shared symbols never change.
enum class BearingReference { eNone, eFromNorth, eFromSouth };

class KXCOREUNITSUI_EXPORT EastSymbol : public virtual IParseSymbol {
public:
    void const* Self(ParseKind kind) const override {
        return kind == ParseKind::eEast ? static_cast<EastSymbol const*>(this) : IParseSymbol::Self(kind);
    }
    explicit EastSymbol(BearingReference reference = BearingReference::eNone);
    ~EastSymbol() override;
    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;
    BearingReference GetReference() const { return m_reference; }

private:
    BearingReference m_reference;
};

class KXCOREUNITSUI_EXPORT WestSymbol : public virtual IParseSymbol {
public:
    void const* Self(ParseKind kind) const override {
        return kind == ParseKind::eWest ? static_cast<WestSymbol const*>(this) : IParseSymbol::Self(kind);
    }
    explicit WestSymbol(BearingReference reference = BearingReference::eNone);
    ~WestSymbol() override;
    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;
    BearingReference GetReference() const { return m_reference; }

private:
    BearingReference m_reference;
};

// ---------------------------------------------------------------------------------
// Lengths as feet and inches.

// Feet and inches (`5'-6 1/2"`), decimal or fractional inches, or inches alone with a
// fraction. The value is rounded once in inches, to the display precision, before it
// is split, so a rounding that reaches twelve inches carries into the feet.
template <typename GenericBase>
class KXCOREUNITSUI_EXPORT BasicPrimeDoublePrimeSymbol : public GenericBase {
public:
    ~BasicPrimeDoublePrimeSymbol() override;

    // Returns the length written, without the terminator.
    int Format(double value, DimensionVector const& dims, wchar_t* buffer, unsigned long size,
               UnitsFormatterImp const& formatter) const override;
    // Index 0 is the feet when there are feet; any other index the inches.
    int FormatNumber(int index, double value, DimensionVector const& dims, wchar_t* buffer, unsigned long size,
                     UnitsFormatterImp const& formatter) const override;
    int ParseNumber(ParseList& list, int form) const override;
    int GetMaxIndex(int form) const override;
    int GenerateCustomSymbols(std::vector<CustomSymbol*>& out, std::vector<std::wstring> const& pieces,
                              std::vector<int> const& indices) const override;

    int GetSymbol() const { return m_symbol; }
    bool ShowsFeet() const { return m_showFeet; }
    bool IsFraction() const { return m_fraction; }
    bool HasDash() const { return m_dash; }

protected:
    BasicPrimeDoublePrimeSymbol(std::wstring text, int symbol, bool showFeet, bool fraction, bool dash);

private:
    int m_unit;
    bool m_showFeet;
    bool m_fraction;
    bool m_dash;
    int m_symbol;
};

class KXCOREUNITSUI_EXPORT PrimeDoublePrimeSymbol : public BasicPrimeDoublePrimeSymbol<GenericSymbol> {
public:
    PrimeDoublePrimeSymbol(wchar_t const* text, int symbol, bool showFeet, bool fraction, bool dash);
    ~PrimeDoublePrimeSymbol() override;
};

// A dash between feet and inches (`5' - 6"`), between whole inches and a fraction, or
// between two units (`ft-lbf`, a product).
class KXCOREUNITSUI_EXPORT DashSymbol : public virtual IParseSymbol {
public:
    DashSymbol() = default;
    ~DashSymbol() override;
    int Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const override;
};

// The templates are instantiated once, in the library, for each family.
extern template class BasicGenericSymbol<SimpleFormatSymbol>;
extern template class BasicGenericSymbolEx<GenericSymbol>;
extern template class BasicLinearSymbol<SimpleFormatSymbol>;
extern template class BasicDegreePrimeDoublePrimeSymbol<GenericSymbol>;
extern template class BasicPrimeDoublePrimeSymbol<GenericSymbol>;


// ---------------------------------------------------------------------------------
// Asking a parse symbol what it is.

template <typename T>
struct ParseKindOf;
template <>
struct ParseKindOf<NumberSymbol> {
    static constexpr ParseKind value = ParseKind::eNumber;
};
template <>
struct ParseKindOf<OperandSymbol> {
    static constexpr ParseKind value = ParseKind::eOperand;
};
template <>
struct ParseKindOf<OperatorSymbol> {
    static constexpr ParseKind value = ParseKind::eOperator;
};
template <>
struct ParseKindOf<ResultSymbol> {
    static constexpr ParseKind value = ParseKind::eResult;
};
template <>
struct ParseKindOf<DivisionSymbol> {
    static constexpr ParseKind value = ParseKind::eDivision;
};
template <>
struct ParseKindOf<PrimeSymbol> {
    static constexpr ParseKind value = ParseKind::ePrime;
};
template <>
struct ParseKindOf<DoublePrimeSymbol> {
    static constexpr ParseKind value = ParseKind::eDoublePrime;
};
template <>
struct ParseKindOf<EastSymbol> {
    static constexpr ParseKind value = ParseKind::eEast;
};
template <>
struct ParseKindOf<WestSymbol> {
    static constexpr ParseKind value = ParseKind::eWest;
};
template <>
struct ParseKindOf<LeftParenthesisSymbol> {
    static constexpr ParseKind value = ParseKind::eLeftParenthesis;
};
template <>
struct ParseKindOf<RightParenthesisSymbol> {
    static constexpr ParseKind value = ParseKind::eRightParenthesis;
};
template <>
struct ParseKindOf<SpaceSymbol> {
    static constexpr ParseKind value = ParseKind::eSpace;
};

// The symbol as a T, or null when it is none (or the slot is empty).
template <typename T>
T const* ParseCast(IParseSymbol const* symbol) {
    return symbol == nullptr ? nullptr : static_cast<T const*>(symbol->AsKind(ParseKindOf<T>::value));
}

}  // namespace kxnorth::platform::core::units
