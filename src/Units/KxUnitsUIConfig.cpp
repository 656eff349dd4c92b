#include "KxUnitsUIConfig.h"

#include <memory>

#include "KxCoreUnits/UnitsConfig.h"
#include "KxCoreUnitsUI/StringUtil.h"
#include "KxUnitsDisplayNames.h"
#include "KxUnitsSymbols.h"
#include "KxUnitsSymbols2.h"

namespace kxnorth::platform::core::units {

std::list<std::wstring> UnitsUIConfig::s_altSymbolCache;
std::unordered_map<std::wstring, std::wstring const*> UnitsUIConfig::s_firstCopy;

namespace {

constexpr int kKelvin = 0x2A001;
constexpr int kRankine = 0x2A004;
constexpr int kUnitless = 0x1001;

int GroupNumber(int id) { return (id & kGroupMask) >> 12; }
int UnitIndex(int id) { return id & kUnitIndexMask; }
int SymbolIndex(int id) { return (id >> kSymbolIndexShift) & 0xFF; }

}  // namespace

SymbolInfo::SymbolInfo(ISymbol* s)
    : symbol(s), format(dynamic_cast<IFormatSymbol const*>(s)), parse(dynamic_cast<IParseSymbol*>(s)) {}
SymbolInfo::~SymbolInfo() { delete symbol; }

UnitsUIConfig::UnitsUIConfig() {
    // Runs inside the initialisation of GetInstance's static: no other thread sees
    // this object before the fixed symbols are published.
    InitParseSymTbl();
    PublishParseDict();
    m_tableIndexVersions.push_back(std::make_unique<TableIndex const>());
    m_tableIndex.store(m_tableIndexVersions.back().get(), std::memory_order_release);
}

UnitsUIConfig::~UnitsUIConfig() = default;

UnitsUIConfig* UnitsUIConfig::GetInstance() {
    // A function-local static is built once even when threads race for it.
    static UnitsUIConfig instance;
    return &instance;
}

std::wstring UnitsUIConfig::ConvertString(QString const& text) { return text.toStdWString(); }

namespace {

// The two-call protocol of the catalogue's enumerations, into a new array the caller frees.
int EnumerateInto(std::size_t (UnitsConfig::*get)(int, int*) const, int owner, int*& out) {
    UnitsConfig const* config = UnitsConfig::GetInstance();
    if (config == nullptr) return 0;
    std::size_t const n = (config->*get)(owner, nullptr);
    out = new int[n];
    (config->*get)(owner, out);
    return static_cast<int>(n);
}

}  // namespace

int UnitsUIConfig::GetUnitTypesArray(kxp::IDesignPropertyUnits::teGroup group, int*& out) {
    return EnumerateInto(&UnitsConfig::GetUnitTypes, group, out);
}

int UnitsUIConfig::GetUnitSymbolsArray(kxp::IDesignPropertyUnits::teType unit, int*& out) {
    return EnumerateInto(&UnitsConfig::GetUnitSymbols, unit, out);
}

// --- Parse dictionary ------------------------------------------------------------

void UnitsUIConfig::AddFixed(IParseSymbol* symbol, std::initializer_list<wchar_t> characters) {
    m_ownedParseSymbols.emplace_back(symbol);
    for (wchar_t c : characters) {
        wchar_t const text[2] = {c, L'\0'};
        AddToParseDict(QString::fromWCharArray(text, 1), symbol);
    }
}

int UnitsUIConfig::InitParseSymTbl() {
    AddFixed(new DivisionSymbol(), {L'/'});
    AddFixed(new SpaceSymbol(), {L' '});
    AddFixed(new MultiplicationSymbol(), {0x00B7});
    AddFixed(new SquareSymbol(), {0x00B2});
    AddFixed(new CubicSymbol(), {0x00B3});
    AddFixed(new LeftParenthesisSymbol(), {L'(', 0xFF08});
    AddFixed(new RightParenthesisSymbol(), {L')', 0xFF09});
    AddFixed(new PrimeSymbol(), {0x2032, 0x0027, 0x02B9, 0x2019, 0x02BC, 0x2018});
    AddFixed(new DoublePrimeSymbol(), {0x2033, 0x0022, 0x02BA, 0x201D, 0x201C});
    AddFixed(new DashSymbol(), {0x2010, 0x2012, 0x2013, 0x2014, 0x2015, 0x002D, 0x2043});
    AddFixed(new CaretSymbol(), {L'^'});
    AddFixed(new DegreeSymbol(), {0x00B0});
    AddFixed(new NorthSymbol(), {L'N'});
    AddFixed(new EastSymbol(), {L'E'});
    AddFixed(new SouthSymbol(), {L'S'});
    AddFixed(new WestSymbol(), {L'W'});
    AddFixed(new DSymbol(), {L'd'});
    AddFixed(new GSymbol(), {L'g'});
    return 0;
}

void UnitsUIConfig::AddToParseDict(QString const& text, IParseSymbol* symbol) {
    if (symbol == nullptr) return;
    s_altSymbolCache.push_back(ConvertString(text));
    // The first stored copy of a text is the one the dictionary refers to.
    auto const [it, inserted] = s_firstCopy.emplace(s_altSymbolCache.back(), &s_altSymbolCache.back());
    m_pendingParseEntries.emplace_back(it->second, symbol);
}

void UnitsUIConfig::PublishParseDict() {
    ParseDict const* current = m_parseDict.load(std::memory_order_relaxed);
    std::unique_ptr<ParseDict> next;
    for (auto const& entry : m_pendingParseEntries) {
        if (next == nullptr) {
            // A text already in the dictionary keeps its first symbol, so a locale
            // that brings nothing new publishes nothing and copies nothing.
            if (current != nullptr) {
                ParseDict::Match const m = current->Find(entry.first->c_str());
                if (m.value != nullptr && m.length == entry.first->size()) continue;
            }
            next = std::make_unique<ParseDict>();
            for (auto const& known : m_parseEntries) next->Add(known.first->c_str(), known.second, false, false);
        }
        if (next->Add(entry.first->c_str(), entry.second, false, false) == 0) m_parseEntries.push_back(entry);
    }
    m_pendingParseEntries.clear();
    if (next == nullptr) return;
    m_parseDictVersions.push_back(std::move(next));
    m_parseDict.store(m_parseDictVersions.back().get(), std::memory_order_release);
}

std::size_t UnitsUIConfig::ParseDictVersionCount() const {
    std::lock_guard<std::mutex> const lock(m_buildMutex);
    return m_parseDictVersions.size();
}

void UnitsUIConfig::AddAlternatesToSymbolDict(UnitSymbol symbol, UnitsDisplayNames const& names,
                                              SymbolTable const& table) {
    QStringList const& alternates = names.symbolAlternateNames(symbol);
    if (alternates.isEmpty()) return;
    std::unique_ptr<SymbolInfo> const& info =
        table[GroupNumber(symbol) - 1][UnitIndex(symbol) - 1][SymbolIndex(symbol) - 1];
    IParseSymbol* parse = info ? info->parse : nullptr;
    for (QString const& text : alternates) AddToParseDict(text, parse);
}

IParseSymbol const* UnitsUIConfig::FindSymbol(wchar_t const* text, unsigned long* length) const {
    if (text == nullptr) return nullptr;
    // Acquire pairs with the release in PublishParseDict: the whole version is seen.
    ParseDict const* dict = m_parseDict.load(std::memory_order_acquire);
    ParseDict::Match const m = dict->Find(text);
    if (m.value == nullptr || m.length == 0) return nullptr;
    if (length != nullptr) *length = static_cast<unsigned long>(m.length);
    return m.value;
}

// --- Symbol tables ---------------------------------------------------------------

// The symbol object of one catalogue symbol. `parsable` says whether its display
// name goes into the parse dictionary.
ISymbol* UnitsUIConfig::CreateSymbol(int id, QString const& name, bool& parsable) const {
    parsable = true;
    int const unit = id & kUnitMask;
    switch (id) {
        // Marks written right after the number.
        case 0x208002: case 0x308004: case 0x308009: case 0x408001: case 0x508008:
        case 0x302017: case 0x302018: case 0x302019: case 0x30201A: case 0x30201B: case 0x30201C:
        case 0x402016: case 0x22A004: case 0x32A004: case 0x22B001: case 0x22B002:
        case 0x32C016: case 0x42C001:
            return new GenericSymbol2(name, unit, 1);
        // Degrees, minutes and seconds; bearings.
        case 0x408002: parsable = false; return new DegreePrimeDoublePrimeSymbol2(name, false, true);
        case 0x508002: parsable = false; return new DegreePrimeDoublePrimeSymbol2(name, true, true);
        case 0x608002: parsable = false; return new DegreePrimeDoublePrimeSymbol2(name, false, false);
        // Feet and inches, and minutes and seconds of time.
        case 0x502016: parsable = false; return new PrimeDoublePrimeSymbol2(name, id, true, false, false);
        case 0x602016: parsable = false; return new PrimeDoublePrimeSymbol2(name, id, true, false, true);
        case 0x702016: parsable = false; return new PrimeDoublePrimeSymbol2(name, id, true, true, false);
        case 0x802016: parsable = false; return new PrimeDoublePrimeSymbol2(name, id, true, true, true);
        case 0x902016: parsable = false; return new PrimeDoublePrimeSymbol2(name, id, false, true, false);
        case 0xA02016: parsable = false; return new PrimeDoublePrimeSymbol2(name, id, false, true, true);
        case 0x52C001: parsable = false; return new PrimeDoublePrimeSymbol2(name, id, true, false, false);
        // Temperatures convert with their offsets; as operands they are differences.
        case 0x12A002: case 0x32A002: return new LinearSymbol2(name, unit, kKelvin, 0);
        case 0x22A002: case 0x42A002: return new LinearSymbol2(name, unit, kKelvin, 1);
        case 0x12A003: case 0x32A003: return new LinearSymbol2(name, unit, kRankine, 0);
        case 0x22A003: case 0x42A003: return new LinearSymbol2(name, unit, kRankine, 1);
        // The unitless default symbol writes the unit's name right after the number
        // ("2.5unitless") and reads it back; "ul" is the spaced second symbol.
        case 0x101001: return new GenericSymbolEx2(name, kUnitless, 1, &name);
        default:
            return new GenericSymbol2(name, unit, 0);
    }
}

UnitsUIConfig::SymbolTable const* UnitsUIConfig::LoadSymbols(QString const& locale, UnitsDisplayNames const& names) {
    return InitSymbolTable(locale, names);
}

UnitsUIConfig::SymbolTable const* UnitsUIConfig::InitSymbolTable(QString const& locale,
                                                                 UnitsDisplayNames const& names) {
    std::lock_guard<std::mutex> const lock(m_buildMutex);
    TableIndex const* index = m_tableIndex.load(std::memory_order_relaxed);
    auto const found = index->find(locale);
    if (found != index->end()) return found->second;

    auto built = std::make_unique<SymbolTable>();
    SymbolTable& table = *built;
    if (UnitsConfig const* config = UnitsConfig::GetInstance()) BuildSymbolTable(table, config, names);

    // The dictionary first: a formatter that finds the table also finds its texts.
    PublishParseDict();
    auto nextIndex = std::make_unique<TableIndex>(*index);
    nextIndex->emplace(locale, built.get());
    m_ownedTables.push_back(std::move(built));
    m_tableIndexVersions.push_back(std::move(nextIndex));
    m_tableIndex.store(m_tableIndexVersions.back().get(), std::memory_order_release);
    return m_ownedTables.back().get();
}

void UnitsUIConfig::BuildSymbolTable(SymbolTable& table, UnitsConfig const* config, UnitsDisplayNames const& names) {
    std::vector<int> groups(config->GetUnitGroups(nullptr));
    config->GetUnitGroups(groups.data());
    for (int group : groups) {
        std::vector<int> unitIds(config->GetUnitTypes(group, nullptr));
        config->GetUnitTypes(group, unitIds.data());
        if (table.size() < static_cast<std::size_t>(GroupNumber(group))) table.resize(GroupNumber(group));
        auto& groupTable = table[GroupNumber(group) - 1];
        for (int unit : unitIds) {
            std::vector<int> symbols(config->GetUnitSymbols(unit, nullptr));
            config->GetUnitSymbols(unit, symbols.data());
            if (groupTable.size() < static_cast<std::size_t>(UnitIndex(unit))) groupTable.resize(UnitIndex(unit));
            auto& unitTable = groupTable[UnitIndex(unit) - 1];
            for (int symbol : symbols) {
                if (unitTable.size() < static_cast<std::size_t>(SymbolIndex(symbol))) {
                    unitTable.resize(SymbolIndex(symbol));
                }
                QString const name = names.symbolName(static_cast<UnitSymbol>(symbol));
                bool parsable = true;
                auto info = std::make_unique<SymbolInfo>(CreateSymbol(symbol, name, parsable));
                if (parsable) AddToParseDict(name, info->parse);
                unitTable[SymbolIndex(symbol) - 1] = std::move(info);
                AddAlternatesToSymbolDict(static_cast<UnitSymbol>(symbol), names, table);
            }
        }
    }
}

void UnitsUIConfig::InitSymbolTable(QString const& locale) const {
    TableIndex const* index = m_tableIndex.load(std::memory_order_acquire);
    if (index->count(locale) != 0) return;
    // Building display names for the locale builds its table (or the table of the
    // locale it falls back to).
    UnitsDisplayNames const names(locale);
}

ISymbol* UnitsUIConfig::FindSymbol(int id, QString const& locale) const {
    SymbolInfo const* info = FindSymbolInfo(id, locale);
    return info != nullptr ? info->symbol : nullptr;
}

IFormatSymbol const* UnitsUIConfig::FindFormatSymbol(int id, UnitsDisplayNames const& names) const {
    SymbolInfo const* info = FindSymbolInfo(id, names);
    return info != nullptr ? info->format : nullptr;
}

IParseSymbol const* UnitsUIConfig::FindParseSymbol(int id, UnitsDisplayNames const& names) const {
    SymbolInfo const* info = FindSymbolInfo(id, names);
    return info != nullptr ? info->parse : nullptr;
}

SymbolInfo const* UnitsUIConfig::FindSymbolInfo(int id, UnitsDisplayNames const& names) const {
    if ((id & kUnitIndexMask) != 0 && (id & 0xFF00000) == 0) id |= kDefaultSymbolBit;
    // Display names remember their table when they are made; only names whose
    // locale has no table fall back to the lookup by name.
    SymbolTable const* table = names.m_symbolTable != nullptr ? names.m_symbolTable : FindTable(names.locale());
    return table != nullptr ? FindInTable(*table, id) : nullptr;
}

UnitsUIConfig::SymbolTable const* UnitsUIConfig::FindTable(QString const& locale) const {
    TableIndex const* index = m_tableIndex.load(std::memory_order_acquire);
    auto it = index->find(locale);
    if (it == index->end()) {
        InitSymbolTable(locale);
        index = m_tableIndex.load(std::memory_order_acquire);
        it = index->find(locale);
        if (it == index->end()) return nullptr;
    }
    return it->second;
}

SymbolInfo const* UnitsUIConfig::FindSymbolInfo(int id, QString const& locale) const {
    SymbolTable const* table = FindTable(locale);
    return table != nullptr ? FindInTable(*table, id) : nullptr;
}

SymbolInfo const* UnitsUIConfig::FindInTable(SymbolTable const& table, int id) {
    int const group = GroupNumber(id), unit = UnitIndex(id), index = SymbolIndex(id);
    if (group < 1 || static_cast<std::size_t>(group) > table.size()) return nullptr;
    if (unit < 1 || static_cast<std::size_t>(unit) > table[group - 1].size()) return nullptr;
    auto const& symbols = table[group - 1][unit - 1];
    if (index < 1 || static_cast<std::size_t>(index) > symbols.size()) return nullptr;
    return symbols[index - 1].get();
}

ISymbol* UnitsUIConfig::FindSymbol(int id, UnitsDisplayNames const& names) const {
    SymbolInfo const* info = FindSymbolInfo(id, names);
    return info != nullptr ? info->symbol : nullptr;
}

int UnitsUIConfig::GetDisplayNameLength(int id, unsigned long& length, QString const& locale) const {
    if ((id & kGroupMask) != 0 && (id & 0xFF00FFF) == 0) return 1;
    SymbolInfo const* info = FindSymbolInfo(id, locale);
    IFormatSymbol const* symbol = info != nullptr ? info->format : nullptr;
    if (symbol == nullptr) return 1;
    length = static_cast<unsigned long>(std::wcslen(symbol->GetSymbolName())) + 1;
    return 0;
}

int UnitsUIConfig::GetDisplayName(int id, wchar_t* buffer, unsigned long size, QString const& locale) const {
    if (buffer == nullptr || size == 0) return 1;
    if ((id & kGroupMask) != 0 && (id & 0xFF00FFF) == 0) return 1;
    SymbolInfo const* info = FindSymbolInfo(id, locale);
    IFormatSymbol const* symbol = info != nullptr ? info->format : nullptr;
    if (symbol == nullptr) return 1;
    std::wstring const name = symbol->GetSymbolName();
    std::size_t const n = std::min<std::size_t>(name.size(), size - 1);
    std::wmemcpy(buffer, name.data(), n);
    buffer[n] = L'\0';
    return 0;
}

}  // namespace kxnorth::platform::core::units
