#define KX_SOURCE_PATH "src/Common/KxUnitsManagerImp"

#include "KxUnitsManagerImp.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <utility>

#include "KxAssert.h"
#include "KxCoreUnitsUI/LocaleUtil.h"
#include "KxCoreUnitsUI/UnitsManager.h"

namespace kxnorth::platform::core::units {

using locale::LocaleUtil;

// ---------------------------------------------------------------------------
// Translator

Translator::Translator(QString const& moduleName, QString const& fileBaseName)
    : QTranslator(nullptr), m_strModuleName(moduleName), m_strFileBaseName(fileBaseName) {}

Translator::~Translator() = default;

void Translator::Install() {
    KX_ASSERT(qApp != NULL);
    UnitsManagerImp* pMgr = UnitsManagerImp::GetImpInstance();
    KX_ASSERT(pMgr != NULL);

    QString const path = pMgr->GetTranslatorFilesPath();
    QString const locale = pMgr->GetCurrentLocale();
    QString file = LocaleUtil::ResolveTranslatorFile(m_strModuleName, m_strFileBaseName, locale, path);
    // A locale without a file keeps the translations of the previous one.
    if (!QFile::exists(file)) return;

    file = QDir::cleanPath(file);
    if (m_bLoaded && m_strLoadedFile.compare(file, Qt::CaseInsensitive) == 0) return;

    bool const bLoaded = load(file, QString(), QString(), QString());
    KX_ASSERT(bLoaded);
    // Removing first keeps the translator in the application's list once, and puts
    // it back at the front of the search order.
    QCoreApplication::removeTranslator(this);
    QCoreApplication::installTranslator(this);
    m_strLoadedFile = file;
    m_bLoaded = true;
}

// ---------------------------------------------------------------------------
// UnitsManagerImp

bool UnitsManagerImp::m_bInitialized = false;
UnitsManager* UnitsManagerImp::mpUnitsManager = nullptr;

UnitsManagerImp::UnitsManagerImp() : m_lcid(LocaleUtil::GetUserDefaultLocaleLCIDForMac()) {}

UnitsManagerImp::~UnitsManagerImp() {
    QList<Translator*> const translators = m_translators.values();
    for (Translator* translator : translators) {
        // After the application object is gone there is nothing to remove it from.
        if (QCoreApplication::instance() != nullptr) QCoreApplication::removeTranslator(translator);
        delete translator;
    }
    m_translators.clear();
}

bool UnitsManagerImp::Initialize() {
    if (m_bInitialized) return false;
    m_bInitialized = true;
    KX_ASSERT(qApp != NULL);
    return true;
}

bool UnitsManagerImp::Uninitialize() {
    delete mpUnitsManager;
    mpUnitsManager = nullptr;
    m_bInitialized = false;
    return true;
}

UnitsManager* UnitsManagerImp::GetInstance() {
    if (mpUnitsManager != nullptr) return mpUnitsManager;

    // Stored before InitializeInstance() so that translators installed while it runs
    // find this instance instead of creating a second one.
    mpUnitsManager = new UnitsManager();
    UnitsManager* pObj = mpUnitsManager;
    KX_ASSERT(pObj == NULL || pObj->m_pImpObj != NULL);
    pObj->m_pImpObj->InitializeInstance();
    return pObj;
}

UnitsManagerImp* UnitsManagerImp::GetImpInstance() { return GetImpObj(GetInstance()); }

UnitsManagerImp* UnitsManagerImp::GetImpObj(UnitsManager* pObj) {
    return GetImpObj(static_cast<UnitsManager const*>(pObj));
}

UnitsManagerImp* UnitsManagerImp::GetImpObj(UnitsManager const* pObj) {
    if (pObj == nullptr) return nullptr;
    KX_ASSERT(pObj == NULL || pObj->m_pImpObj != NULL);
    return pObj->m_pImpObj;
}

void UnitsManagerImp::SetImpObj(UnitsManager* pObj, UnitsManagerImp* pImpObj) {
    if (pObj != nullptr) pObj->m_pImpObj = pImpObj;
}

void UnitsManagerImp::InitializeInstance() {
    SetCurrentLocale(QString());
    InstallTranslator(QStringLiteral("KxUICore"));
}

bool UnitsManagerImp::SetCurrentLocale(QString const& localeName) {
    // Compared with the stored name: after an empty name was replaced by the system
    // locale, another empty name runs the whole procedure again.
    if (m_bLocaleSet && localeName.compare(m_strLocale, Qt::CaseInsensitive) == 0) return true;

    m_strLocale = localeName;
    if (m_strLocale.isEmpty()) m_strLocale = LocaleUtil::GetCurrentSystemLocale();
    m_lcid = LocaleUtil::LocaleNameToLCID(m_strLocale);
    m_pThreeLetterISOLanguageName = LocaleUtil::LocaleNameToThreeLetterISOLanguageName(m_strLocale);

    QString const strLocale = LocaleUtil::LocaleNameToQtLocaleName(m_strLocale);
    if (!strLocale.isEmpty()) {
        // A name Qt does not know yields the C locale; only "C" itself may.
        QLocale const locale(strLocale);
        KX_ASSERT(locale != QLocale::c() || strLocale.compare("C", Qt::CaseInsensitive) == 0);
        QLocale::setDefault(locale);
    } else {
        QLocale::setDefault(QLocale(QLocale::C));
    }
    m_bLocaleSet = true;

    ReinstallTranslators();
    return true;
}

QString UnitsManagerImp::GetCurrentLocale() const { return m_strLocale; }

unsigned long UnitsManagerImp::GetCurrentLocaleLCID() { return m_lcid; }

char const* UnitsManagerImp::GetCurrentLocaleThreeLetterISOLanguageName() const {
    return m_pThreeLetterISOLanguageName;
}

bool UnitsManagerImp::InstallTranslator(QString const& module) {
    QString const key = module.toLower();
    if (m_translators.value(key) != nullptr) return true;

    Translator* translator = new Translator(module, module);
    m_translators.insert(key, translator);
    translator->Install();
    return true;
}

void UnitsManagerImp::ReinstallTranslators() {
    // QMap iterates in ascending key order.
    for (Translator* translator : std::as_const(m_translators)) translator->Install();
}

bool UnitsManagerImp::SetTranslatorFilesPath(QString const& path) {
    if (path.compare(m_strTranslatorFilesPath, Qt::CaseInsensitive) == 0) return true;
    KX_ASSERT(qApp != NULL);
    m_strTranslatorFilesPath = path;
    ReinstallTranslators();
    return true;
}

QString UnitsManagerImp::GetTranslatorFilesPath() const { return m_strTranslatorFilesPath; }

}  // namespace kxnorth::platform::core::units
