#define KX_SOURCE_PATH "src/Common/LocaleUtil"

#include "KxCoreUnitsUI/LocaleUtil.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLatin1String>
#include <QLocale>
#include <QStringList>
#include <QTranslator>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "KxAssert.h"
#include "KxUnitsManagerImp.h"

namespace kxnorth::platform::core::locale {

namespace {

struct LocaleInfo {
    char name[16];
    char threeLetterName[4];
    std::uint32_t lcid;
};

constexpr LocaleInfo gLocales[] = {
#include "LocaleUtil_Locales.inc"
};
static_assert(std::size(gLocales) == 234, "the locale table has 234 rows");

constexpr std::uint32_t kFallbackLCID = 0x0409;
constexpr char kFallbackLocaleName[] = "en-US";
constexpr char kFallbackThreeLetterName[] = "eng";

// First row whose name equals `name` ignoring case, or null. Compares against the
// Latin-1 row text directly, without a temporary string per row.
LocaleInfo const* FindByName(QString const& name) {
    for (LocaleInfo const& row : gLocales) {
        if (QLatin1String(row.name).compare(name, Qt::CaseInsensitive) == 0) return &row;
    }
    return nullptr;
}

LocaleInfo const* FindByLCID(unsigned long lcid) {
    for (LocaleInfo const& row : gLocales) {
        if (row.lcid == lcid) return &row;
    }
    return nullptr;
}

// The user's locale identifier with "_" turned into "-", the form of table names.
QString UserDefaultLocaleAsTableName() {
    return QString::fromUtf8(LocaleUtil::GetUserDefaultLocaleForMac()).replace(QLatin1Char('_'), QLatin1Char('-'));
}

}  // namespace

unsigned long LocaleUtil::LocaleNameToLCID(QString const& name) {
    if (name.isEmpty() || name.compare(QLatin1String("C"), Qt::CaseInsensitive) == 0) {
        return GetUserDefaultLocaleLCIDForMac();
    }
    LocaleInfo const* row = FindByName(name);
    return row != nullptr ? row->lcid : GetUserDefaultLocaleLCIDForMac();
}

char const* LocaleUtil::LCIDToLocaleName(unsigned long lcid) {
    LocaleInfo const* row = FindByLCID(lcid);
    return row != nullptr ? row->name : kFallbackLocaleName;
}

char const* LocaleUtil::LCIDToThreeLetterISOLanguageName(unsigned long lcid) {
    LocaleInfo const* row = FindByLCID(lcid);
    return row != nullptr ? row->threeLetterName : kFallbackThreeLetterName;
}

char const* LocaleUtil::LocaleNameToThreeLetterISOLanguageName(QString const& name) {
    LocaleInfo const* row = FindByName(name);
    return row != nullptr ? row->threeLetterName : kFallbackThreeLetterName;
}

QString LocaleUtil::LocaleNameToQtLocaleName(QString const& name) {
    QString qtName = name;
    qtName.replace(QLatin1Char('-'), QLatin1Char('_'));
    // Qt names a language in its main country by the language alone: "de-DE" is "de".
    QStringList const parts = qtName.split(QLatin1Char('_'), Qt::KeepEmptyParts);
    if (parts.size() >= 2 && parts[0].toUpper() == parts[1].toUpper()) return parts[0];
    return qtName;
}

char const* LocaleUtil::GetUserDefaultLocaleForMac() {
    // Whatever the platform in its name, the user's locale here comes from the POSIX
    // locale environment, the message category deciding: LC_ALL, then LC_MESSAGES,
    // then LANG, the first one set and not empty. "de_DE.UTF-8@euro" is read as
    // "de_DE". With none set the result is empty; "C" and "POSIX" are returned as
    // they are. Neither matches a table row, so both end in the "en-US" fallbacks.
    //
    // cLocale holds identifiers of up to 63 bytes. A longer one is not truncated,
    // since a cut identifier would name a different locale; cLocale is left empty
    // instead, which falls back like an unset locale. Table names have at most 10
    // characters, so no identifier that could match is lost.
    // One buffer per thread: callers on different threads never share the text.
    static thread_local char cLocale[64];

    char const* identifier = "";
    for (char const* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        char const* value = std::getenv(variable);
        if (value != nullptr && value[0] != '\0') {
            identifier = value;
            break;
        }
    }
    std::size_t const length = std::strcspn(identifier, ".@");
    if (length >= sizeof cLocale) {
        cLocale[0] = '\0';
    } else {
        std::memcpy(cLocale, identifier, length);
        cLocale[length] = '\0';
    }
    return cLocale;
}

unsigned long LocaleUtil::GetUserDefaultLocaleLCIDForMac() {
    LocaleInfo const* row = FindByName(UserDefaultLocaleAsTableName());
    return row != nullptr ? row->lcid : kFallbackLCID;
}

QString LocaleUtil::GetCurrentSystemLocale() {
    // A locale the table has but Qt does not know ("ns-ZA", "quz-PE" on Qt 6.4) would
    // stop the manager on its start-up assertion; the user's environment must not be
    // able to do that, so it falls back like an unknown locale.
    QString const name = UserDefaultLocaleAsTableName();
    if (FindByName(name) == nullptr || QLocale(LocaleNameToQtLocaleName(name)) == QLocale::c()) {
        return QString::fromLatin1(kFallbackLocaleName);
    }
    return name;
}

QString LocaleUtil::ResolveTranslatorFile(QString const& moduleName, QString const& fileBaseName,
                                          QString const& locale, QString const& path) {
    KX_ASSERT(!moduleName.isEmpty());
    if (QCoreApplication::instance() == nullptr) return QString();

    QString fileName;
    if (fileBaseName.isEmpty()) {
        // No caller passes an empty base name; the module name stands in, its own
        // extension replaced by ".qm".
        fileName = moduleName;
        qsizetype const dot = fileName.lastIndexOf(QLatin1Char('.'));
        if (dot >= 0) fileName.truncate(dot);
        fileName += QLatin1String(".qm");
    } else if (fileBaseName.contains(QLatin1Char('.'))) {
        fileName = fileBaseName;
    } else {
        fileName = fileBaseName + QLatin1String(".qm");
    }

    QString candidate;
    if (!path.isEmpty()) {
        // An explicit folder already is the folder of the wanted language.
        candidate = path + QLatin1Char('/') + fileName;
    } else {
        // Language folders may sit next to the executable or one or two levels up
        // (on a macOS bundle: the executable folder, Contents, the bundle itself).
        QString const app = QCoreApplication::applicationDirPath();
        QDir dir(app);
        dir.cdUp();
        QString const up1 = QDir::cleanPath(dir.path());
        dir.cdUp();
        QString const up2 = QDir::cleanPath(dir.path());

        QString const candidates[] = {
            app + QLatin1Char('/') + fileName,
            app + QLatin1Char('/') + locale + QLatin1Char('/') + fileName,
            up1 + QLatin1Char('/') + fileName,
            up1 + QLatin1Char('/') + locale + QLatin1Char('/') + fileName,
            up2 + QLatin1Char('/') + fileName,
        };
        candidate = up2 + QLatin1Char('/') + locale + QLatin1Char('/') + fileName;
        for (QString const& c : candidates) {
            if (QFile::exists(c)) {
                candidate = c;
                break;
            }
        }
    }
    return QFile::exists(candidate) ? candidate : QString();
}

QString LocaleUtil::GetSymbolicLinkTarget(QString const& path) { return path; }

bool LocaleUtil::InstallTranslator(QString const& moduleName) {
    units::UnitsManagerImp* pManagerImp = units::UnitsManagerImp::GetImpInstance();
    KX_ASSERT(pManagerImp != NULL);
    return pManagerImp->InstallTranslator(moduleName);
}

QString LocaleUtil::Translate(QTranslator const& translator, QString const& context, QString const& sourceText) {
    QByteArray const contextUtf8 = context.toUtf8();
    QByteArray const sourceUtf8 = sourceText.toUtf8();
    QString const translated =
        translator.isEmpty()
            ? QCoreApplication::translate(contextUtf8.constData(), sourceUtf8.constData(), nullptr, -1)
            : translator.translate(contextUtf8.constData(), sourceUtf8.constData(), nullptr, -1);
    return translated.isEmpty() ? sourceText : translated;
}

}  // namespace kxnorth::platform::core::locale
