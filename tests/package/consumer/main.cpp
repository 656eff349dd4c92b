// A program outside the project, built against an installed prefix.
#include <cstdio>
#include <QDir>
#include <QString>

#include "KxCoreUnits/UnitsConfig.h"
#include "KxCoreUnitsUI/StringUtil.h"

namespace units = kxnorth::platform::core::units;

int main() {
    units::UnitsConfig const* config = units::UnitsConfig::GetInstance();
    units::UnitConverter const* foot = config->FindConverter(0x2017);
    double base = 0;
    if (foot == nullptr || foot->ConvertToBase(&base, foot->GetDimTag(), 10.0) != 0) return 1;
    QString const name = units::StringUtil::GetUnitGlobalName(0x2017);
    if (name.isEmpty()) return 2;
    if (QDir(TRANSLATIONS_DIR).entryList(QDir::Dirs | QDir::NoDotAndDotDot).isEmpty()) return 3;
    std::printf("10 %s = %.4f m\n", name.toUtf8().constData(), base);
    return base == 3.048 ? 0 : 4;
}
