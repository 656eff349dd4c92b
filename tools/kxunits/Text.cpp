#include "Text.h"

#include <cmath>

namespace kxunits {

QString NumberText(double value) {
    if (value == 0) return QStringLiteral("0");  // also for -0, which reads the same
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.15g", value);
    return QString::fromLatin1(buffer);
}

}  // namespace kxunits
