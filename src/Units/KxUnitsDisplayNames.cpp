#define KX_SOURCE_PATH "src/Units/KxUnitsDisplayNames"

#include "KxUnitsDisplayNames.h"

#include <QFile>
#include <array>
#include <mutex>
#include <string>
#include <vector>

#include "KxAssert.h"
#include "KxCoreUnits/UnitsConfig.h"
#include "KxCoreUnitsUI/LocaleUtil.h"
#include "KxCoreUnitsUI/StringUtil.h"
#include "KxCoreUnitsUI/UnitsManager.h"
#include "KxUnitsDisplayNames_Tables.h"
#include "KxUnitsManagerImp.h"
#include "KxUnitsUIConfig.h"

namespace kxnorth::platform::core::units {

using locale::LocaleUtil;

QMap<int, char const*> UnitsDisplayNames::s_groupMap;
QMap<int, char const*> UnitsDisplayNames::s_unitMap;
QMap<int, UnitsDisplayNames::SymbolData> UnitsDisplayNames::s_symbolMap;
QMap<int, char const*> UnitsDisplayNames::s_numberFormatMap;
std::map<QString, std::unique_ptr<QMap<int, QStringList> const>> UnitsDisplayNames::s_symbolAlternatesMap;
QStringList const UnitsDisplayNames::s_emptyStringList;

namespace {

constexpr char kUnitsModule[] = "KxCoreUnitsUI";
constexpr char kSymbolsModule[] = "KxCoreUnitsUI_units_symbols";
constexpr char kAlternatesModule[] = "KxCoreUnitsUI_units_parsing_alternate_symbols";
constexpr int kMaxAlternates = 10;

// Guards s_symbolAlternatesMap while a locale's alternates are added.
std::mutex s_alternatesMutex;

// The first row of an identifier wins; later duplicates are ignored.
void FillFrom(QMap<int, char const*>& map, detail::NameRow const* rows, bool negativeEnds) {
    if (!map.isEmpty()) return;
    for (detail::NameRow const* row = rows; negativeEnds ? row->id >= 0 : row->id != 0; ++row) {
        if (!map.contains(row->id)) map.insert(row->id, row->name);
    }
}

}  // namespace

UnitsDisplayNames::UnitsDisplayNames(wchar_t const* locale)
    : UnitsDisplayNames(locale == nullptr ? QString() : QString::fromWCharArray(locale)) {}

UnitsDisplayNames::UnitsDisplayNames(QString const& locale) : m_locale(locale) {
    if (m_locale.isEmpty()) UseSystemLocale();
    Initialize();
}

void UnitsDisplayNames::UseSystemLocale() {
    wchar_t buffer[10];
    UnitsManager const* manager = UnitsManager::GetInstance();
    int const length = manager == nullptr ? 0 : manager->GetCurrentLocale(buffer, 10);
    m_locale = length >= 1 ? QString::fromWCharArray(buffer, length) : QStringLiteral("en-US");
}

void UnitsDisplayNames::LoadTranslator(QTranslator& translator, QString const& module,
                                       QString const& translatorFilesPath) {
    QString const file = LocaleUtil::ResolveTranslatorFile(module, module, m_locale, translatorFilesPath);
    bool const bLoaded = translator.load(file);
    KX_ASSERT(bLoaded);
}

void UnitsDisplayNames::Initialize() {
    UnitsManagerImp* pMgr = UnitsManagerImp::GetImpInstance();
    KX_ASSERT(pMgr != NULL);
    // Read once: a path changed by another thread meanwhile applies to the next
    // object, not to half of this one's files.
    QString const translatorFilesPath = pMgr->GetTranslatorFilesPath();
    // A locale without translations of its own falls back to the system locale; the
    // symbol modules follow whatever locale stands after that.
    QString const unitsFile = LocaleUtil::ResolveTranslatorFile(
        QString::fromLatin1(kUnitsModule), QString::fromLatin1(kUnitsModule), m_locale, translatorFilesPath);
    if (!QFile::exists(unitsFile)) UseSystemLocale();
    LoadTranslator(m_unitsTranslator, QString::fromLatin1(kUnitsModule), translatorFilesPath);
    LoadTranslator(m_symbolsTranslator, QString::fromLatin1(kSymbolsModule), translatorFilesPath);
    LoadTranslator(m_alternatesTranslator, QString::fromLatin1(kAlternatesModule), translatorFilesPath);

    FillNameMaps();
    m_alternates = FillAlternates();
    m_symbolTable = UnitsUIConfig::GetInstance()->LoadSymbols(m_locale, *this);
}

void UnitsDisplayNames::FillNameMaps() {
    // Filled by the first object; call_once also makes the filled maps visible to
    // every thread that gets past it.
    static std::once_flag filled;
    std::call_once(filled, [] {
        FillFrom(s_groupMap, detail::GroupNames, false);
        FillFrom(s_unitMap, detail::unitNames, false);
        for (detail::SymbolNameRow const* row = detail::symbolNames; row->id != 0; ++row) {
            if (!s_symbolMap.contains(row->id)) s_symbolMap.insert(row->id, {row->name, row->kind});
        }
        FillFrom(s_numberFormatMap, detail::formatNames, true);
    });
}

QMap<int, QStringList> const* UnitsDisplayNames::FillAlternates() const {
    std::lock_guard<std::mutex> const lock(s_alternatesMutex);
    auto const known = s_symbolAlternatesMap.find(m_locale);
    if (known != s_symbolAlternatesMap.end()) return known->second.get();
    auto alternates = std::make_unique<QMap<int, QStringList>>();
    if (!m_alternatesTranslator.isEmpty()) {
        static char const* const kNumbers[kMaxAlternates] = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"};
        UnitsConfig const* config = UnitsConfig::GetInstance();
        QByteArray context;
        int contextGroup = -1;
        std::string key;  // "eS" + global name + "_Alternate" + number, in UTF-8
        for (auto it = s_symbolMap.constBegin(); it != s_symbolMap.constEnd(); ++it) {
            UnitSymbol const symbol = static_cast<UnitSymbol>(it.key());
            if ((symbol & kGroupMask) != contextGroup) {  // symbols come grouped
                contextGroup = symbol & kGroupMask;
                context = symbolContext(symbol).toUtf8();
            }
            QByteArray const name = QString::fromWCharArray(config->GetGlobalName(symbol)).toUtf8();
            key.assign("eS").append(name.constData(), static_cast<std::size_t>(name.size())).append("_Alternate");
            std::size_t const stem = key.size();
            QStringList list;
            // Every number is tried: a gap in the numbering does not end the list.
            for (char const* number : kNumbers) {
                key.resize(stem);
                key.append(number);
                QString const text = m_alternatesTranslator.translate(context.constData(), key.c_str(), nullptr, -1);
                if (!text.isEmpty()) list.append(text);
            }
            if (!list.isEmpty()) alternates->insert(symbol, list);
        }
    }
    QMap<int, QStringList> const* stored = alternates.get();
    s_symbolAlternatesMap.emplace(m_locale, std::move(alternates));
    return stored;
}

QString UnitsDisplayNames::unitName(teType unit) const {
    auto it = s_unitMap.constFind(unit & kIdentityMask);
    if (it == s_unitMap.constEnd()) return QString();
    return LocaleUtil::Translate(m_unitsTranslator, QStringLiteral("UnitType"), QString::fromUtf8(it.value()));
}

QString UnitsDisplayNames::GroupName(teGroup group) const {
    auto it = s_groupMap.constFind(group & kIdentityMask);
    if (it == s_groupMap.constEnd()) return QString();
    return LocaleUtil::Translate(m_unitsTranslator, QStringLiteral("UnitGroup"), QString::fromUtf8(it.value()));
}

QString UnitsDisplayNames::numberFormatName(NumberFormat format) const {
    auto it = s_numberFormatMap.constFind(format);
    if (it == s_numberFormatMap.constEnd()) return QString();
    return LocaleUtil::Translate(m_unitsTranslator, QStringLiteral("NumberFormat"), QString::fromUtf8(it.value()));
}

QString UnitsDisplayNames::symbolName(UnitSymbol symbol) const {
    auto it = s_symbolMap.constFind(symbol & kIdentityMask);
    if (it == s_symbolMap.constEnd()) return QString();
    switch (it->kind) {
        case eSKUnitName:
            return unitName(static_cast<teType>(symbol & kUnitMask));
        case eSKText:
            return QString::fromUtf8(it->name);
        default:
            return LocaleUtil::Translate(m_symbolsTranslator, symbolContext(symbol), QString::fromUtf8(it->name));
    }
}

QStringList const& UnitsDisplayNames::symbolAlternateNames(UnitSymbol symbol) const {
    if (m_alternates == nullptr) return s_emptyStringList;
    auto it = m_alternates->constFind(symbol & kIdentityMask);
    return it == m_alternates->constEnd() ? s_emptyStringList : it.value();
}

QString UnitsDisplayNames::translate(QString const& context, QString const& text) const {
    return LocaleUtil::Translate(m_unitsTranslator, context, text);
}

QString UnitsDisplayNames::symbolContext(UnitSymbol symbol) {
    // The contexts of the catalogue's groups (numbers 1 to 255), all made by the
    // first call and read-only after it.
    static std::array<QString, 256> const contexts = [] {
        std::array<QString, 256> made;
        UnitsConfig const* config = UnitsConfig::GetInstance();
        if (config == nullptr) return made;
        std::vector<int> groups(config->GetUnitGroups(nullptr));
        config->GetUnitGroups(groups.data());
        for (int group : groups) {
            made[static_cast<std::size_t>((group & kGroupMask) >> 12)] =
                QStringLiteral("UnitSymbol_") + StringUtil::GetUnitGlobalName(group & kGroupMask);
        }
        return made;
    }();
    int const group = symbol & kGroupMask;
    QString const& context = contexts[static_cast<std::size_t>(group >> 12)];
    // A group outside the catalogue is looked up as it comes, as any unknown name is.
    return context.isEmpty() ? QStringLiteral("UnitSymbol_") + StringUtil::GetUnitGlobalName(group) : context;
}

}  // namespace kxnorth::platform::core::units
