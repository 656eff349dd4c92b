#include "KxCoreUnitsUI/UnitsManager.h"

#include <QString>

#include "KxCoreUnitsUI/StringUtil.h"
#include "KxUnitsManagerImp.h"

namespace kxnorth::platform::core::units {

namespace {

// wchar_t is UCS-4 on every platform this library builds for. A null text is read
// as an empty one, which selects the user's locale or the search next to the
// application.
QString FromWide(wchar_t const* text) {
    static_assert(sizeof(wchar_t) == sizeof(char32_t), "wide strings are UCS-4");
    if (text == nullptr) return QString();
    return QString::fromUcs4(reinterpret_cast<char32_t const*>(text), -1);
}

}  // namespace

UnitsManager::UnitsManager() : m_pImpObj(new UnitsManagerImp()) {}

UnitsManager::~UnitsManager() { delete m_pImpObj; }

bool UnitsManager::Initialize() { return UnitsManagerImp::Initialize(); }

bool UnitsManager::Uninitialize() { return UnitsManagerImp::Uninitialize(); }

UnitsManager* UnitsManager::GetInstance() { return UnitsManagerImp::GetInstance(); }

bool UnitsManager::SetCurrentLocale(wchar_t const* locale) {
    return UnitsManagerImp::GetImpObj(this)->SetCurrentLocale(FromWide(locale));
}

int UnitsManager::GetCurrentLocale(wchar_t* buffer, int size) const {
    return StringUtil::QStringToWchar(UnitsManagerImp::GetImpObj(this)->GetCurrentLocale(), buffer, size);
}

char const* UnitsManager::GetCurrentLocaleThreeLetterISOLanguageName() const {
    return UnitsManagerImp::GetImpObj(this)->GetCurrentLocaleThreeLetterISOLanguageName();
}

bool UnitsManager::SetTranslatorFilesPath(wchar_t const* path) {
    return UnitsManagerImp::GetImpObj(this)->SetTranslatorFilesPath(FromWide(path));
}

int UnitsManager::GetTranslatorFilesPath(wchar_t* buffer, int size) const {
    return StringUtil::QStringToWchar(UnitsManagerImp::GetImpObj(this)->GetTranslatorFilesPath(), buffer, size);
}

}  // namespace kxnorth::platform::core::units
