// Locale names ("en-US"), numeric locale identifiers (LCIDs) and three-letter
// language names; the user's locale; where translation files are found.
#pragma once

#include <QString>

#include "KxCoreUnitsUI/KxCoreUnitsUIExport.h"

class QTranslator;

namespace kxnorth::platform::core::locale {

// Name comparisons ignore case. Returned `char const*` texts are static and never
// freed. Every miss falls back to "en-US", LCID 1033 (0x0409) or "eng".
class KXCOREUNITSUI_EXPORT LocaleUtil {
public:
    // An empty name, "C" or a name outside the table gives the user's default LCID.
    static unsigned long LocaleNameToLCID(QString const& name);
    static char const* LCIDToLocaleName(unsigned long lcid);
    static char const* LCIDToThreeLetterISOLanguageName(unsigned long lcid);
    static char const* LocaleNameToThreeLetterISOLanguageName(QString const& name);
    // The form QLocale accepts: "de-DE" gives "de", "de-CH" gives "de_CH".
    static QString LocaleNameToQtLocaleName(QString const& name);

    // The user's locale identifier as the system spells it ("en_US"), in a buffer of
    // the calling thread that the same thread's next call overwrites.
    static char const* GetUserDefaultLocaleForMac();
    static unsigned long GetUserDefaultLocaleLCIDForMac();
    // The user's locale as a table name in the system's spelling ("en-US").
    static QString GetCurrentSystemLocale();

    // Full path of the existing translation file of a module, or empty. An empty
    // `path` searches next to the application, in a `locale` subfolder and one and
    // two folders up; otherwise only `path` itself is searched.
    static QString ResolveTranslatorFile(QString const& moduleName, QString const& fileBaseName,
                                         QString const& locale, QString const& path);
    static QString GetSymbolicLinkTarget(QString const& path);
    // Installs the module's translator through the units manager (once per module).
    static bool InstallTranslator(QString const& moduleName);
    // `sourceText` translated by `translator`, or by every installed translator when
    // `translator` is empty; the source text itself when nothing translates it.
    static QString Translate(QTranslator const& translator, QString const& context, QString const& sourceText);
};

}  // namespace kxnorth::platform::core::locale
