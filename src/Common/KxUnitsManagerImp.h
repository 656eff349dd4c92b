// The units manager's implementation and the per-module translators it owns.
#pragma once

#include <QMap>
#include <QString>
#include <QTranslator>
#include <atomic>
#include <mutex>

namespace kxnorth::platform::core::units {

class UnitsManager;

// One Qt translator for one module's translation file. Install() (re)loads the file
// for the manager's current locale and translator files path; when no file exists
// for them, whatever was loaded before stays loaded and installed.
class Translator : public QTranslator {
public:
    Translator(QString const& moduleName, QString const& fileBaseName);
    // Does not remove itself from the application: the manager does that first.
    ~Translator() override;

    void Install();

private:
    bool m_bLoaded = false;       // a file is loaded and the translator installed
    QString m_strModuleName;
    QString m_strFileBaseName;
    QString m_strLoadedFile;      // cleaned path of the loaded file
};

// The one instance is created under s_mutex and then published, so any thread may
// make the first GetInstance() call. Its state (locale, path, translators) is read
// and changed under the same lock; a setter holds it for its whole run, so a
// reader sees the state before or after a change, never half of it. The lock is
// recursive because installing a translator reads the state back through the
// instance, and Qt's language-change event may call into the manager again.
class UnitsManagerImp {
public:
    UnitsManagerImp();
    ~UnitsManagerImp();
    UnitsManagerImp(UnitsManagerImp const&) = delete;
    UnitsManagerImp& operator=(UnitsManagerImp const&) = delete;

    static bool Initialize();
    static bool Uninitialize();
    // The one instance, created (in the user's locale, "KxUICore" installed) on the
    // first call.
    static UnitsManager* GetInstance();
    static UnitsManagerImp* GetImpInstance();
    static UnitsManagerImp* GetImpObj(UnitsManager* pObj);
    static UnitsManagerImp* GetImpObj(UnitsManager const* pObj);
    static void SetImpObj(UnitsManager* pObj, UnitsManagerImp* pImpObj);

    void InitializeInstance();

    bool SetCurrentLocale(QString const& localeName);
    QString GetCurrentLocale() const;
    unsigned long GetCurrentLocaleLCID();
    char const* GetCurrentLocaleThreeLetterISOLanguageName() const;

    // Creates and installs the module's translator unless it already has one; the
    // module name is matched ignoring case.
    bool InstallTranslator(QString const& module);
    void ReinstallTranslators();

    bool SetTranslatorFilesPath(QString const& path);
    QString GetTranslatorFilesPath() const;

private:
    QString m_strLocale;          // as given to SetCurrentLocale, or the system locale
    bool m_bLocaleSet = false;
    // Points into the locale table or at "eng"; never owned.
    char const* m_pThreeLetterISOLanguageName = "eng";
    QMap<QString, Translator*> m_translators;  // owned; keyed by lower-case module name
    QString m_strTranslatorFilesPath;
    unsigned long m_lcid;

    static std::atomic<bool> m_bInitialized;
    static std::atomic<UnitsManager*> mpUnitsManager;
    // The instance while InitializeInstance() runs, for that thread's own calls.
    static UnitsManager* s_pCreating;
    static std::recursive_mutex s_mutex;
};

}  // namespace kxnorth::platform::core::units
