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

    // Removing first keeps the translator in the application's list once, puts it
    // back at the front of the search order, and keeps other threads' translations
    // away from it while it loads the new file.
    QCoreApplication::removeTranslator(this);
    bool const bLoaded = load(file, QString(), QString(), QString());
    KX_ASSERT(bLoaded);
    QCoreApplication::installTranslator(this);
    m_strLoadedFile = file;
    m_bLoaded = true;
}

// ---------------------------------------------------------------------------
// UnitsManagerImp

std::atomic<bool> UnitsManagerImp::m_bInitialized{false};
std::atomic<UnitsManager*> UnitsManagerImp::mpUnitsManager{nullptr};
UnitsManager* UnitsManagerImp::s_pCreating = nullptr;
std::recursive_mutex UnitsManagerImp::s_mutex;

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
    if (m_bInitialized.exchange(true)) return false;
    KX_ASSERT(qApp != NULL);
    return true;
}

bool UnitsManagerImp::Uninitialize() {
    std::lock_guard<std::recursive_mutex> const lock(s_mutex);
    delete mpUnitsManager.exchange(nullptr, std::memory_order_acq_rel);
    m_bInitialized = false;
    return true;
}

UnitsManager* UnitsManagerImp::GetInstance() {
    // Acquire pairs with the release below: a published instance is fully set up.
    if (UnitsManager* pObj = mpUnitsManager.load(std::memory_order_acquire)) return pObj;

    std::lock_guard<std::recursive_mutex> const lock(s_mutex);
    if (UnitsManager* pObj = mpUnitsManager.load(std::memory_order_relaxed)) return pObj;
    // Translators installed while InitializeInstance() runs come back here on this
    // thread and find the instance in the making instead of creating a second one.
    if (s_pCreating != nullptr) return s_pCreating;

    UnitsManager* pObj = new UnitsManager();
    KX_ASSERT(pObj == NULL || pObj->m_pImpObj != NULL);
    s_pCreating = pObj;
    pObj->m_pImpObj->InitializeInstance();
    s_pCreating = nullptr;
    mpUnitsManager.store(pObj, std::memory_order_release);
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
    // Qt caches the application's folder on the first call, without a lock; the
    // translator search of every later formatter, on any thread, only reads it.
    if (QCoreApplication::instance() != nullptr) QCoreApplication::applicationDirPath();
    SetCurrentLocale(QString());
    InstallTranslator(QStringLiteral("KxUICore"));
}

bool UnitsManagerImp::SetCurrentLocale(QString const& localeName) {
    std::lock_guard<std::recursive_mutex> const lock(s_mutex);
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

namespace {

// A copy that shares no data with the original. The manager's strings are replaced
// by setters on other threads; Qt releases the old data through a reference count
// that a ThreadSanitizer build cannot see inside Qt, so readers take copies of their own.
QString OwnCopy(QString const& text) { return QString(text.constData(), text.size()); }

}  // namespace

QString UnitsManagerImp::GetCurrentLocale() const {
    std::lock_guard<std::recursive_mutex> const lock(s_mutex);
    return OwnCopy(m_strLocale);
}

unsigned long UnitsManagerImp::GetCurrentLocaleLCID() {
    std::lock_guard<std::recursive_mutex> const lock(s_mutex);
    return m_lcid;
}

char const* UnitsManagerImp::GetCurrentLocaleThreeLetterISOLanguageName() const {
    std::lock_guard<std::recursive_mutex> const lock(s_mutex);
    return m_pThreeLetterISOLanguageName;
}

bool UnitsManagerImp::InstallTranslator(QString const& module) {
    std::lock_guard<std::recursive_mutex> const lock(s_mutex);
    QString const key = module.toLower();
    if (m_translators.value(key) != nullptr) return true;

    Translator* translator = new Translator(module, module);
    m_translators.insert(key, translator);
    translator->Install();
    return true;
}

void UnitsManagerImp::ReinstallTranslators() {
    std::lock_guard<std::recursive_mutex> const lock(s_mutex);
    // QMap iterates in ascending key order.
    for (Translator* translator : std::as_const(m_translators)) translator->Install();
}

bool UnitsManagerImp::SetTranslatorFilesPath(QString const& path) {
    std::lock_guard<std::recursive_mutex> const lock(s_mutex);
    if (path.compare(m_strTranslatorFilesPath, Qt::CaseInsensitive) == 0) return true;
    KX_ASSERT(qApp != NULL);
    m_strTranslatorFilesPath = path;
    ReinstallTranslators();
    return true;
}

QString UnitsManagerImp::GetTranslatorFilesPath() const {
    std::lock_guard<std::recursive_mutex> const lock(s_mutex);
    return OwnCopy(m_strTranslatorFilesPath);
}

}  // namespace kxnorth::platform::core::units
