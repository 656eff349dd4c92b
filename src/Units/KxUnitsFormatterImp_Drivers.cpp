// Format and Parse drivers, and custom symbol strings.
#include "KxUnitsFormatterImp.h"

#include <cstddef>
#include <cwchar>

#include "KxCoreUnits/UnitsConfig.h"
#include "KxUnitsDisplayNames.h"
#include "KxUnitsSymbols.h"
#include "KxUnitsTypedInput.h"
#include "KxUnitsUIConfig.h"

namespace kxnorth::platform::core::units {

namespace {

constexpr int kSymbolPartMask = 0xFF00000;

}  // namespace

UnitsFormatterImp::~UnitsFormatterImp() {
    for (auto* map : {&m_customFormattingStrings, &m_customParsingStrings}) {
        for (auto& entry : *map) {
            for (CustomSymbol* symbol : entry.second.symbols) delete symbol;
        }
    }
}

// --- Format ----------------------------------------------------------------------

int UnitsFormatterImp::Format(double value, int unit, wchar_t* buffer, unsigned long size, int symbol,
                              double* rest) const {
    UnitConverter const* converter = UnitsConfig::GetInstance()->FindConverter(unit);
    if (converter == nullptr) return 1;
    double base = 0;
    if (converter->ConvertToBase(&base, converter->GetDimTag(), value) != 0) return 1;
    return Format(base, converter->GetDimTag(), buffer, size, symbol != 0 ? symbol : unit, rest);
}

int UnitsFormatterImp::Format(double baseValue, int const (&dimensions)[kDimensionCount], wchar_t* buffer,
                              unsigned long size, int symbol, double* rest) const {
    int id = symbol != 0 ? symbol : UnitsConfig::GetInstance()->FindUnitGroup(dimensions);
    if ((id & kSymbolPartMask) == 0) id = MakeSymbol(id);

    IFormatSymbol const* formatter = nullptr;
    auto custom = m_customFormattingStrings.find(id);
    if (custom != m_customFormattingStrings.end()) {
        if (custom->second.symbols.empty()) return 1;
        formatter = custom->second.symbols.front();
    } else {
        formatter = UnitsUIConfig::GetInstance()->FindFormatSymbol(id, *m_displayNames);
    }
    if (formatter == nullptr) return 1;
    int const result = formatter->Format(baseValue, dimensions, buffer, size, *this);
    if (result < 0) return -result;
    if (result == 0) return 1;
    if (rest != nullptr) {
        UnitConverter const* converter = UnitsConfig::GetInstance()->FindConverter(id);
        double out = 0;
        if (converter != nullptr && converter->ConvertFromBase(dimensions, out, baseValue) == 0) *rest = out;
    }
    return 0;
}

// --- Parse -----------------------------------------------------------------------

int UnitsFormatterImp::Parse(wchar_t const* text, double& value, int unit) const {
    UnitConverter const* converter = UnitsConfig::GetInstance()->FindConverter(unit);
    if (converter == nullptr) return 2;
    double base = 0;
    if (Parse(text, base, converter->GetDimTag(), unit & kGroupMask) != 0) return 2;
    double out = 0;
    if (converter->ConvertFromBase(converter->GetDimTag(), out, base) != 0) return 2;
    value = out;
    return 0;
}

namespace {

// The base value of an evaluated list: its leading result applied to 1.0.
bool ResultValue(ParseList const& list, int const (&dimensions)[kDimensionCount], double& baseValue) {
    auto const* result = ParseCast<ResultSymbol>(list.front().Get());
    if (result == nullptr) return false;
    double base = 0;
    if (result->GetConverter().ConvertToBase(&base, dimensions, 1.0) != 0) return false;
    baseValue = base;
    return true;
}

}  // namespace

// Reads the text against the custom symbol strings: literal pieces and numbers in
// turn, piece first (possibly empty). True with the value when the whole text is one
// custom symbol's pieces around its numbers.
bool UnitsFormatterImp::ParseCustom(wchar_t const* text, double& baseValue,
                                    int const (&dimensions)[kDimensionCount]) const {
    ParseArena arena;
    ParseList list{ParseList::allocator_type(&arena)};
    CustomSymbolDict const* node = &m_customSymbols;
    std::size_t pos = 0;
    for (;;) {
        unsigned long length = 0;
        CustomSymbolDict const* next = node->Parse(text + pos, &length);
        if (next == nullptr) {
            next = node->EmptyPiece();
            length = 0;
        }
        if (next == nullptr) return false;
        node = next;
        pos += length;
        if (text[pos] == L'\0') break;
        double number = 0;
        int flags = 0;
        int const n = ParseNumber(text + pos, &number, &flags, nullptr);
        if (n <= 0) return false;
        list.push_back(MakeParseSymbol<NumberSymbol>(list, number, flags));
        pos += static_cast<std::size_t>(n);
        if (text[pos] == L'\0') break;  // the string may end with a number
    }
    if (node->Value() == nullptr) return false;
    list.emplace_back(static_cast<IParseSymbol const*>(node->Value()), false);
    if (IParseSymbol::Calculate(list, dimensions) != 0) return false;
    return ResultValue(list, dimensions, baseValue);
}

// Cuts `text` into numbers and the longest parse symbols; false at a character that
// starts neither.
bool UnitsFormatterImp::Tokenize(wchar_t const* text, ParseList& list) const {
    UnitsUIConfig const* config = UnitsUIConfig::GetInstance();
    for (std::size_t pos = 0; text[pos] != L'\0';) {
        double number = 0;
        int flags = 0;
        int const n = MayStartNumber(text[pos]) ? ParseNumber(text + pos, &number, &flags, nullptr) : 0;
        if (n > 0) {
            list.push_back(MakeParseSymbol<NumberSymbol>(list, number, flags));
            pos += static_cast<std::size_t>(n);
            continue;
        }
        unsigned long length = 0;
        IParseSymbol const* symbol = config->FindSymbol(text + pos, &length);
        if (symbol == nullptr) return false;
        list.emplace_back(symbol, false);
        pos += length > 0 ? length : 1;
    }
    return true;
}

int UnitsFormatterImp::Parse(wchar_t const* text, double& baseValue, int const (&dimensions)[kDimensionCount],
                             int group) const {
    if (text == nullptr) return 2;
    if (!m_customSymbols.Empty() && ParseCustom(text, baseValue, dimensions)) return 0;

    {
        ParseArena arena;
        ParseList list{ParseList::allocator_type(&arena)};
        if (Tokenize(text, list)) {
            if (IParseSymbol::Calculate(list, dimensions) == 0 && ResultValue(list, dimensions, baseValue)) return 0;
            if (list.size() == 1 && ParseCast<NumberSymbol>(list.front().Get()) != nullptr) {
                // A bare number is read in the default symbol of the quantity's group.
                int const g =
                    group != 0 ? (group & kGroupMask) : UnitsConfig::GetInstance()->FindUnitGroup(dimensions);
                IParseSymbol const* unitSymbol =
                    UnitsUIConfig::GetInstance()->FindParseSymbol(MakeSymbol(g), *m_displayNames);
                if (unitSymbol == nullptr) return 1;
                list.emplace_back(unitSymbol, false);
                if (IParseSymbol::Calculate(list, dimensions) != 0) return 2;
                return ResultValue(list, dimensions, baseValue) ? 0 : 2;
            }
        }
    }
    // What the evaluation refuses may still be a quantity as people type it: a run
    // such as `5 ft 6 in`, a sum, quantities in parentheses.
    return ReadTypedInput(*this, text, dimensions, baseValue, nullptr) ? 0 : 2;
}

// --- Custom symbol strings -------------------------------------------------------

UnitsFormatterImp::CustomSymbolDict::~CustomSymbolDict() {
    if (m_owned) delete m_value;
}

bool UnitsFormatterImp::CustomSymbolDict::Empty() const {
    return m_value == nullptr && m_children.Root().IsLeaf() && m_children.Root().value == nullptr;
}

int UnitsFormatterImp::CustomSymbolDict::Add(Piece first, Piece last, CustomSymbol* symbol, bool owned,
                                              bool replace) {
    if (first == last) {
        if (m_value != nullptr && !replace) return 1;
        if (m_owned && m_value != symbol) delete m_value;
        m_value = symbol;
        m_owned = owned;
        return 0;
    }
    UnitsStringDict<CustomSymbolDict>::Match const m = m_children.Find(first->c_str());
    CustomSymbolDict* child = m.value;
    if (child == nullptr || m.length != first->size()) {
        child = new CustomSymbolDict();
        m_children.Add(first->c_str(), child, true, true);
    }
    return child->Add(std::next(first), last, symbol, owned, replace);
}

int UnitsFormatterImp::CustomSymbolDict::Erase(Piece first, Piece last) {
    if (first == last) {
        if (m_value == nullptr) return 1;
        if (m_owned) delete m_value;
        m_value = nullptr;
        m_owned = false;
        return 0;
    }
    UnitsStringDict<CustomSymbolDict>::Match const m = m_children.Find(first->c_str());
    if (m.value == nullptr || m.length != first->size()) return 1;
    int const result = m.value->Erase(std::next(first), last);
    if (result == 0 && m.value->Empty()) m_children.Erase(first->c_str());
    return result;
}

UnitsFormatterImp::CustomSymbolDict const* UnitsFormatterImp::CustomSymbolDict::EmptyPiece() const {
    return m_children.Root().value;
}

UnitsFormatterImp::CustomSymbolDict const* UnitsFormatterImp::CustomSymbolDict::Parse(
    wchar_t const* text, unsigned long* length) const {
    UnitsStringDict<CustomSymbolDict>::Match const m = m_children.Find(text);
    if (m.value == nullptr || m.length == 0) return nullptr;
    if (length != nullptr) *length = static_cast<unsigned long>(m.length);
    return m.value;
}

int UnitsFormatterImp::ParseCustomString(wchar_t const* text, std::vector<std::wstring>& pieces,
                                         std::vector<int>& indices) {
    enum State { kLiteral, kAfterOpen, kInNumber, kAfterClose, kAfterPlaceholder };
    pieces.assign(1, std::wstring());
    indices.clear();
    if (text == nullptr) return 0;
    State state = kLiteral;
    int number = 0;
    for (wchar_t const* p = text; *p != L'\0'; ++p) {
        wchar_t const c = *p;
        bool const digit = c >= L'0' && c <= L'9';
        switch (state) {
            case kLiteral:
                if (c == L'{') state = kAfterOpen;
                else if (c == L'}') state = kAfterClose;
                else pieces.back() += c;
                break;
            case kAfterOpen:
                if (c == L'{') {
                    pieces.back() += c;
                    state = kLiteral;
                } else if (digit) {
                    number = c - L'0';
                    state = kInNumber;
                } else {
                    return 1;
                }
                break;
            case kInNumber:
                if (digit) {
                    if (number > 100000) return 1;  // no symbol has that many numbers
                    number = number * 10 + (c - L'0');
                } else if (c == L'}') {
                    indices.push_back(number);
                    state = kAfterPlaceholder;
                } else {
                    return 1;
                }
                break;
            case kAfterClose:
                if (c != L'}') return 1;
                pieces.back() += c;
                state = kLiteral;
                break;
            case kAfterPlaceholder:
                // Two placeholders need a literal between them.
                if (c == L'{' || c == L'}') return 1;
                pieces.emplace_back(1, c);
                state = kLiteral;
                break;
        }
    }
    return state == kLiteral || state == kAfterPlaceholder ? 0 : 1;
}

namespace {

int CopyCustomText(std::map<int, UnitsFormatterImp::CustomSymbolData> const& map, int symbol, wchar_t* buffer,
                   unsigned long size) {
    auto it = map.find(symbol);
    if (it == map.end()) return 3;
    std::wstring const& text = it->second.text;
    if (buffer == nullptr || text.size() + 1 > size) return 1;
    std::wmemcpy(buffer, text.c_str(), text.size() + 1);
    return 0;
}

}  // namespace

int UnitsFormatterImp::GetSymbolFormattingString(int symbol, wchar_t* buffer, unsigned long size) const {
    return CopyCustomText(m_customFormattingStrings, symbol, buffer, size);
}

int UnitsFormatterImp::GetSymbolParsingString(int symbol, wchar_t* buffer, unsigned long size) const {
    return CopyCustomText(m_customParsingStrings, symbol, buffer, size);
}

int UnitsFormatterImp::SetSymbolFormattingString(int symbol, wchar_t const* text) {
    return SetCustomSymbolString(symbol, text, eFormattingString);
}

int UnitsFormatterImp::SetSymbolParsingString(int symbol, wchar_t const* text) {
    return SetCustomSymbolString(symbol, text, eParsingString);
}

int UnitsFormatterImp::SetCustomSymbolString(int symbol, wchar_t const* text, CustomSymbolStringType type) {
    if (type != eFormattingString && type != eParsingString) return 1;
    auto& map = type == eFormattingString ? m_customFormattingStrings : m_customParsingStrings;
    auto existing = map.find(symbol);
    bool const empty = text == nullptr || *text == L'\0';
    auto eraseAll = [this](std::vector<CustomSymbol*> const& symbols) {
        for (CustomSymbol* s : symbols) m_customSymbols.Erase(s->GetStrings().begin(), s->GetStrings().end());
    };
    auto addAll = [this](std::vector<CustomSymbol*> const& symbols) {
        for (CustomSymbol* s : symbols) m_customSymbols.Add(s->GetStrings().begin(), s->GetStrings().end(), s, false, false);
    };
    if (existing != map.end()) {
        if (!empty && existing->second.text == text) return 0;
        if (empty) {
            eraseAll(existing->second.symbols);
            for (CustomSymbol* s : existing->second.symbols) delete s;
            map.erase(existing);
            return 0;
        }
    } else if (empty) {
        return 0;
    }

    IFormatSymbol const* base = UnitsUIConfig::GetInstance()->FindFormatSymbol(symbol, *m_displayNames);
    if (base == nullptr) return 1;
    std::vector<std::wstring> pieces;
    std::vector<int> indices;
    if (ParseCustomString(text, pieces, indices) != 0) return 1;
    std::vector<CustomSymbol*> created;
    if (base->GenerateCustomSymbols(created, pieces, indices) != 0) {
        for (CustomSymbol* s : created) delete s;
        return 1;
    }
    bool const replacing = existing != map.end();
    if (replacing) eraseAll(existing->second.symbols);
    for (std::size_t k = 0; k < created.size(); ++k) {
        CustomSymbol* s = created[k];
        if (m_customSymbols.Add(s->GetStrings().begin(), s->GetStrings().end(), s, false, false) != 0) {
            eraseAll(std::vector<CustomSymbol*>(created.begin(), created.begin() + static_cast<std::ptrdiff_t>(k)));
            for (CustomSymbol* d : created) delete d;
            if (replacing) addAll(existing->second.symbols);
            return 1;
        }
    }
    if (replacing) {
        for (CustomSymbol* s : existing->second.symbols) delete s;
        existing->second.text = text;
        existing->second.symbols = std::move(created);
    } else {
        map.emplace(symbol, CustomSymbolData{text, std::move(created)});
    }
    return 0;
}

}  // namespace kxnorth::platform::core::units
