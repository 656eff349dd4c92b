// A Qt Widgets program outside the project: one quantity field, read and stepped.
#include <QApplication>
#include <cstdio>
#include <string>

#include "KxCoreUnitsUI/UnitsManager.h"
#include "KxCoreUnitsWidgets/QuantitySpinBox.h"

namespace units = kxnorth::platform::core::units;

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    units::UnitsManager::Initialize();
    std::wstring const folder = QStringLiteral(TRANSLATIONS_DIR "/en-US").toStdWString();
    units::UnitsManager::GetInstance()->SetTranslatorFilesPath(folder.c_str());
    int status = 0;
    {
        units::QuantitySpinBox field;
        field.setLocaleName(QStringLiteral("en-US"));
        field.setUnit(0x2017);                // foot
        field.setDisplaySymbol(0x802016);     // feet and fractional inches
        field.formatter().SetNumberDecimalPrecision(4);
        field.setValue(5.5);
        field.stepBy(8);                      // eight sixteenths of an inch
        std::printf("%s\n", field.text().toUtf8().constData());
        if (field.text() != QStringLiteral("5'-6-1/2\"")) status = 1;
    }
    units::UnitsManager::Uninitialize();
    return status;
}
