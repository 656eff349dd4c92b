// The library's process-wide entry point: current locale, translation files and
// their translators.
#pragma once

#include "KxCoreUnitsUI/KxCoreUnitsUIExport.h"

namespace kxnorth::platform::core::units {

class UnitsManagerImp;

// Create the Qt application object first, then call Initialize(). The one instance
// is created by the first GetInstance() and starts in the user's locale with the
// "KxUICore" translations installed; Uninitialize() destroys it, and must run while
// the application object exists for the translators to be removed from it.
//
// Threads: GetInstance() may be called first from any thread, and from several at
// once; they all get the one instance. The getters and setters may run while other
// threads create formatters, format and parse; each setter is applied as a whole, so
// a concurrent reader sees the state before or after it. Call the setters from the
// thread that owns the application object: they install translators, and Qt sends
// its language-change event on the calling thread. Initialize() and Uninitialize()
// run while no other thread uses the library.
class KXCOREUNITSUI_EXPORT UnitsManager {
public:
    // Marks the library initialised. False, changing nothing, when it already is.
    static bool Initialize();
    // Destroys the instance and clears the initialised mark. Always true.
    static bool Uninitialize();
    static UnitsManager* GetInstance();

    // Locale name such as "en-US" (case is ignored when compared with the current
    // one). Empty or null selects the user's locale. Also becomes Qt's default locale;
    // a name Qt does not know, other than "C", is a programming error and asserts.
    // Names outside the locale table take the user's LCID and "eng".
    bool SetCurrentLocale(wchar_t const* locale);
    // Copies the current locale name into `buffer` of `size` characters, terminator
    // included, and returns the number of characters copied (at most size - 1); a
    // null buffer returns the name's length. See StringUtil::QStringToWchar.
    int GetCurrentLocale(wchar_t* buffer, int size) const;
    // Three-letter language name of the current locale ("deu", "csy"); "eng" for locales
    // outside the locale table. Points at static data.
    char const* GetCurrentLocaleThreeLetterISOLanguageName() const;

    // Folder holding the .qm files of the current language; empty (or null) searches
    // next to the application. Translations reload when it changes.
    bool SetTranslatorFilesPath(wchar_t const* path);
    int GetTranslatorFilesPath(wchar_t* buffer, int size) const;

    UnitsManager(UnitsManager const&) = delete;
    UnitsManager& operator=(UnitsManager const&) = delete;

private:
    // Only the implementation creates and destroys the one instance.
    friend class UnitsManagerImp;
    UnitsManager();
    ~UnitsManager();

    UnitsManagerImp* m_pImpObj;
};

}  // namespace kxnorth::platform::core::units
