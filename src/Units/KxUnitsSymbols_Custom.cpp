// Custom symbols: a base symbol's numbers in a chosen order with literal pieces
// around them, for writing and for reading.
#include <iterator>

#include "KxUnitsSymbols.h"
#include "KxUnitsSymbols_Internal.h"

namespace kxnorth::platform::core::units {

using namespace symbols_detail;

CustomSymbol::CustomSymbol(IFormatSymbol const* base, std::vector<std::wstring> const& pieces,
                           std::vector<int> const& indices, int form)
    : m_indices(indices), m_pieces(pieces), m_base(base), m_form(form) {
    Check();
}

CustomSymbol::~CustomSymbol() = default;

void CustomSymbol::Check() {
    bool valid = m_base != nullptr;
    if (valid) {
        long long const count = static_cast<long long>(m_base->GetMaxIndex(m_form)) + 1;
        valid = count >= 0 && static_cast<long long>(m_indices.size()) == count &&
                (static_cast<long long>(m_pieces.size()) == count ||
                 static_cast<long long>(m_pieces.size()) == count + 1);
        std::vector<bool> seen(valid ? m_indices.size() : 0, false);
        for (std::size_t k = 0; valid && k < m_indices.size(); ++k) {
            int const index = m_indices[k];
            valid = index >= 0 && static_cast<std::size_t>(index) < m_indices.size() && !seen[index];
            if (valid) seen[index] = true;
        }
    }
    if (!valid) {
        m_base = nullptr;
        m_indices.clear();
        m_pieces.clear();
    }
}

int CustomSymbol::Format(double value, DimensionVector const& dims, wchar_t* buffer, unsigned long size,
                         UnitsFormatterImp const& formatter) const {
    if (buffer == nullptr || m_base == nullptr) return -1;
    // Invariant: pos < size before each piece, so the final terminator always fits.
    unsigned long pos = 0;
    for (std::size_t k = 0; k < m_pieces.size(); ++k) {
        std::wstring const& piece = m_pieces[k];
        if (size - pos <= piece.size()) return -1;
        piece.copy(buffer + pos, piece.size());
        pos += static_cast<unsigned long>(piece.size());
        if (k < m_indices.size()) {
            int const n = FormatNumber(static_cast<int>(k), value, dims, buffer + pos, size - pos, formatter);
            if (n < 1) return -1;
            pos += static_cast<unsigned long>(n) - 1;
        }
    }
    if (pos >= size) return -1;
    buffer[pos] = L'\0';
    return static_cast<int>(pos) + 1;
}

int CustomSymbol::FormatNumber(int index, double value, DimensionVector const& dims, wchar_t* buffer,
                               unsigned long size, UnitsFormatterImp const& formatter) const {
    if (index < 0 || m_base == nullptr || static_cast<std::size_t>(index) >= m_indices.size()) return -1;
    return m_base->FormatNumber(m_indices[index], value, dims, buffer, size, formatter);
}

int CustomSymbol::ParseNumber(ParseList& list, int form) const {
    if (m_base == nullptr || form != m_form) return 1;
    std::size_t const count = m_indices.size();
    std::vector<ParseIterator> slots;
    slots.reserve(count);
    ParseIterator p = list.begin();
    for (std::size_t k = 0; k < count; ++k, ++p) {
        if (p == list.end() || As<NumberSymbol>(p) == nullptr) return 1;
        slots.push_back(p);
    }
    if (p != list.end() && As<NumberSymbol>(p) != nullptr) return 1;

    // The number typed at position k is component m_indices[k]: put the components in
    // their own order for the base symbol, and back when it refuses them.
    std::vector<UnitsOwnPtr<IParseSymbol const>> held(count);
    for (std::size_t k = 0; k < count; ++k) held[m_indices[k]] = std::move(*slots[k]);
    for (std::size_t c = 0; c < count; ++c) *slots[c] = std::move(held[c]);
    if (m_base->ParseNumber(list, form) == 0) return 0;
    for (std::size_t k = 0; k < count; ++k) held[k] = std::move(*slots[m_indices[k]]);
    for (std::size_t k = 0; k < count; ++k) *slots[k] = std::move(held[k]);
    return 1;
}

int CustomSymbol::Calculate(ParseList& list, ParseIterator& it, bool, DimensionVector const&) const {
    // The custom symbol stands for all its pieces, wherever the reader put it: the
    // numbers must lead the list, so the symbol's own element goes last first.
    ParseIterator const self = it;
    list.splice(list.end(), list, self);
    if (ParseNumber(list, m_form) != 0) return 1;
    list.erase(self);
    it = list.begin();
    return 0;
}

int CustomSymbol::GetMaxIndex(int form) const {
    if (m_base == nullptr) return -3;
    if (form != m_form) return -1;
    return m_base->GetMaxIndex(form);
}

int CustomSymbol::GenerateCustomSymbols(std::vector<CustomSymbol*>&, std::vector<std::wstring> const&,
                                        std::vector<int> const&) const {
    return 3;  // custom symbols do not nest
}

wchar_t const* CustomSymbol::GetSymbolName() const { return m_base != nullptr ? m_base->GetSymbolName() : nullptr; }

}  // namespace kxnorth::platform::core::units
