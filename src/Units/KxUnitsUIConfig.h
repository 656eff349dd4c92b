// The process-wide symbol configuration: per locale, the symbol object of every
// catalogue symbol, and the one parse dictionary that typed text is cut with.
//
// Any thread may ask for a locale's table or look text up in the parse dictionary at
// any time. Everything a reader can reach is frozen: a new locale's table is built
// aside, its texts go into a new version of the parse dictionary, and both are then
// published with one atomic store each. Readers take no lock; builders take
// m_buildMutex, one locale at a time. Superseded versions stay alive until the
// configuration is destroyed, because a reader may still be walking one.
#pragma once

#include <QString>
#include <atomic>
#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "KxCoreUnits/UnitsEnums.h"
#include "KxCoreUnitsUI/KxCoreUnitsUIExport.h"
#include "KxUnitsStringDict.h"

namespace kxnorth::platform::core::units {

class ISymbol;
class IParseSymbol;
class UnitsDisplayNames;
class UnitsConfig;

class IFormatSymbol;

// One entry of a locale's table; owns its symbol object. The object's two faces are
// found once here: a cross-cast through the symbols' virtual bases costs more than
// formatting a number.
struct SymbolInfo {
    explicit SymbolInfo(ISymbol* symbol);
    ~SymbolInfo();
    SymbolInfo(SymbolInfo const&) = delete;
    SymbolInfo& operator=(SymbolInfo const&) = delete;
    ISymbol* symbol;
    IFormatSymbol const* format;  // null when the symbol cannot write
    IParseSymbol* parse;          // null when the symbol cannot be typed
};

class KXCOREUNITSUI_EXPORT UnitsUIConfig {
public:
    // table[group - 1][unit - 1][symbol index - 1]
    using SymbolTable = std::vector<std::vector<std::vector<std::unique_ptr<SymbolInfo>>>>;

    static UnitsUIConfig* GetInstance();

    // Builds the locale's table on its first request (later requests wait for it);
    // returns the table, which stays valid and unchanged for the life of the process.
    SymbolTable const* LoadSymbols(QString const& locale, UnitsDisplayNames const& names);
    SymbolTable const* InitSymbolTable(QString const& locale, UnitsDisplayNames const& names);
    // Makes sure the locale's table exists, creating its display names when needed.
    void InitSymbolTable(QString const& locale) const;

    ISymbol* FindSymbol(int id, QString const& locale) const;
    SymbolInfo const* FindSymbolInfo(int id, QString const& locale) const;
    // As above; a unit identifier stands for its default symbol.
    SymbolInfo const* FindSymbolInfo(int id, UnitsDisplayNames const& names) const;
    // The symbol's writing and typing faces, without a cast per call.
    IFormatSymbol const* FindFormatSymbol(int id, UnitsDisplayNames const& names) const;
    IParseSymbol const* FindParseSymbol(int id, UnitsDisplayNames const& names) const;
    // A unit identifier stands for its default symbol.
    ISymbol* FindSymbol(int id, UnitsDisplayNames const& names) const;
    // The longest parse symbol at the start of `text`; `length` gets the characters
    // matched. Null, with `length` untouched, when nothing matches.
    IParseSymbol const* FindSymbol(wchar_t const* text, unsigned long* length) const;

    int GetDisplayNameLength(int id, unsigned long& length, QString const& locale) const;
    int GetDisplayName(int id, wchar_t* buffer, unsigned long size, QString const& locale) const;

    static int GetUnitTypesArray(kxp::IDesignPropertyUnits::teGroup group, int*& out);
    static int GetUnitSymbolsArray(kxp::IDesignPropertyUnits::teType unit, int*& out);

    static std::wstring ConvertString(QString const& text);

    UnitsUIConfig(UnitsUIConfig const&) = delete;
    UnitsUIConfig& operator=(UnitsUIConfig const&) = delete;

    // How many versions of the parse dictionary have been published so far: one for
    // the fixed symbols, then one per locale that brought texts not yet known.
    std::size_t ParseDictVersionCount() const;

private:
    using ParseDict = UnitsStringDict<IParseSymbol const>;
    using TableIndex = std::map<QString, SymbolTable const*>;

    UnitsUIConfig();
    ~UnitsUIConfig();

    int InitParseSymTbl();
    // Queues one text for the next version of the parse dictionary; the caller holds
    // m_buildMutex. PublishParseDict() makes the queued texts visible.
    void AddToParseDict(QString const& text, IParseSymbol* symbol);
    void PublishParseDict();
    void AddAlternatesToSymbolDict(UnitSymbol symbol, UnitsDisplayNames const& names, SymbolTable const& table);
    void AddFixed(IParseSymbol* symbol, std::initializer_list<wchar_t> characters);
    ISymbol* CreateSymbol(int symbol, QString const& name, bool& parsable) const;
    // Fills `table` and queues its texts for the parse dictionary (m_buildMutex held).
    void BuildSymbolTable(SymbolTable& table, UnitsConfig const* config, UnitsDisplayNames const& names);
    SymbolTable const* FindTable(QString const& locale) const;
    static SymbolInfo const* FindInTable(SymbolTable const& table, int id);

    // Published state, read without a lock.
    std::atomic<TableIndex const*> m_tableIndex{nullptr};
    std::atomic<ParseDict const*> m_parseDict{nullptr};

    // Builder state: touched only with m_buildMutex held (or by the constructor).
    mutable std::mutex m_buildMutex;
    std::vector<std::unique_ptr<SymbolTable const>> m_ownedTables;
    std::vector<std::unique_ptr<TableIndex const>> m_tableIndexVersions;
    std::vector<std::unique_ptr<ParseDict const>> m_parseDictVersions;
    // Every text the dictionary holds, with its symbol, in the order it was stored:
    // the next version is built by adding them again, so it answers as the previous
    // one did for every text they share.
    std::vector<std::pair<std::wstring const*, IParseSymbol const*>> m_parseEntries;
    std::vector<std::pair<std::wstring const*, IParseSymbol const*>> m_pendingParseEntries;
    std::vector<std::unique_ptr<IParseSymbol>> m_ownedParseSymbols;

    // Storage of every text added to the parse dictionary; the dictionary refers to
    // the first stored copy of each text. One entry is appended per call, also for a
    // text already stored.
    static std::list<std::wstring> s_altSymbolCache;
    static std::unordered_map<std::wstring, std::wstring const*> s_firstCopy;
};

}  // namespace kxnorth::platform::core::units
