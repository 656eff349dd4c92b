<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB">
<context>
    <name>UnitSymbol_Acceleration</name>
    <message>
        <source>eSmPers2_Alternate1</source>
        <translation>m/s^2</translation>
    </message>
    <message>
        <source>eSftPers2_Alternate1</source>
        <translation>ft/s^2</translation>
    </message>
    <message>
        <source>eSMeterPerSecondSquared_Alternate1</source>
        <translation>meters per second squared</translation>
    </message>
    <message>
        <source>eSMeterPerSecondSquared_Alternate2</source>
        <translation>metre per second squared</translation>
    </message>
    <message>
        <source>eSMeterPerSecondSquared_Alternate3</source>
        <translation>metres per second squared</translation>
    </message>
    <message>
        <source>eSMeterPerSecondSquared_Alternate4</source>
        <translation>m/s2</translation>
    </message>
    <message>
        <source>eSMeterPerSecondSquared_Alternate5</source>
        <translation>m/sec2</translation>
    </message>
    <message>
        <source>eSMeterPerSecondSquared_Alternate6</source>
        <translation>m/s/s</translation>
    </message>
    <message>
        <source>eSFootPerSecondSquared_Alternate1</source>
        <translation>feet per second squared</translation>
    </message>
    <message>
        <source>eSFootPerSecondSquared_Alternate2</source>
        <translation>ft/s2</translation>
    </message>
    <message>
        <source>eSFootPerSecondSquared_Alternate3</source>
        <translation>ft/sec2</translation>
    </message>
    <message>
        <source>eSFootPerSecondSquared_Alternate4</source>
        <translation>ft/s/s</translation>
    </message>
    <message>
        <source>eSSurveyFootPerSecondSquared_Alternate1</source>
        <translation>survey feet per second squared</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_AirflowDensity</name>
    <message>
        <source>eSm3Persm2_Alternate1</source>
        <translation>m^3/(s·m^2)</translation>
    </message>
    <message>
        <source>eSft3Perminft2_Alternate1</source>
        <translation>ft^3/(min·ft^2)</translation>
    </message>
    <message>
        <source>eSLPersm2_Alternate1</source>
        <translation>L/(s·m^2)</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondSquareMeter_Alternate1</source>
        <translation>cubic meters per second square meter</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondSquareMeter_Alternate2</source>
        <translation>cubic metre per second square metre</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondSquareMeter_Alternate3</source>
        <translation>cubic metres per second square metre</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondSquareMeter_Alternate4</source>
        <translation>m3/s/m2</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondSquareMeter_Alternate5</source>
        <translation>m3/s-m2</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteSquareFoot_Alternate1</source>
        <translation>cubic feet per minute square foot</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteSquareFoot_Alternate2</source>
        <translation>cfm/ft2</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteSquareFoot_Alternate3</source>
        <translation>CFM/ft2</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteSquareFoot_Alternate4</source>
        <translation>cfm/sq ft</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteSquareFoot_Alternate5</source>
        <translation>CFM/sq ft</translation>
    </message>
    <message>
        <source>eSLiterPerSecondSquareMeter_Alternate1</source>
        <translation>liters per second square meter</translation>
    </message>
    <message>
        <source>eSLiterPerSecondSquareMeter_Alternate2</source>
        <translation>litre per second square metre</translation>
    </message>
    <message>
        <source>eSLiterPerSecondSquareMeter_Alternate3</source>
        <translation>litres per second square metre</translation>
    </message>
    <message>
        <source>eSLiterPerSecondSquareMeter_Alternate4</source>
        <translation>l/s/m2</translation>
    </message>
    <message>
        <source>eSLiterPerSecondSquareMeter_Alternate5</source>
        <translation>L/s/m2</translation>
    </message>
    <message>
        <source>eSLiterPerSecondSquareMeter_Alternate6</source>
        <translation>l/s-m2</translation>
    </message>
    <message>
        <source>eSLiterPerSecondSquareMeter_Alternate7</source>
        <translation>L/s-m2</translation>
    </message>
    <message>
        <source>eSLiterPerSecondSquareMeter_Alternate8</source>
        <translation>l/s m2</translation>
    </message>
    <message>
        <source>eSLiterPerSecondSquareMeter_Alternate9</source>
        <translation>L/s m2</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_AirflowDividedByPower</name>
    <message>
        <source>eSm3PersW_Alternate1</source>
        <translation>m^3/(s·W)</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondWatt_Alternate1</source>
        <translation>cubic meters per second watt</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondWatt_Alternate2</source>
        <translation>cubic metre per second watt</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondWatt_Alternate3</source>
        <translation>cubic metres per second watt</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondWatt_Alternate4</source>
        <translation>m3/s/W</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondWatt_Alternate5</source>
        <translation>m3/s-W</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteTonOfRefrigeration_Alternate1</source>
        <translation>cubic feet per minute ton of refrigeration</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteTonOfRefrigeration_Alternate2</source>
        <translation>CFM/ton</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteTonOfRefrigeration_Alternate3</source>
        <translation>CFM/TR</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteTonOfRefrigeration_Alternate4</source>
        <translation>cfm/TR</translation>
    </message>
    <message>
        <source>eSLiterPerSecondKilowatt_Alternate1</source>
        <translation>liters per second kilowatt</translation>
    </message>
    <message>
        <source>eSLiterPerSecondKilowatt_Alternate2</source>
        <translation>litre per second kilowatt</translation>
    </message>
    <message>
        <source>eSLiterPerSecondKilowatt_Alternate3</source>
        <translation>litres per second kilowatt</translation>
    </message>
    <message>
        <source>eSLiterPerSecondKilowatt_Alternate4</source>
        <translation>l/s/kW</translation>
    </message>
    <message>
        <source>eSLiterPerSecondKilowatt_Alternate5</source>
        <translation>L/s/kW</translation>
    </message>
    <message>
        <source>eSLiterPerSecondKilowatt_Alternate6</source>
        <translation>l/s-kW</translation>
    </message>
    <message>
        <source>eSLiterPerSecondKilowatt_Alternate7</source>
        <translation>L/s-kW</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_AirflowDividedByVolume</name>
    <message>
        <source>eSm3Persm3_Alternate1</source>
        <translation>m^3/(s·m^3)</translation>
    </message>
    <message>
        <source>eSft3Perminft3_Alternate1</source>
        <translation>ft^3/(min·ft^3)</translation>
    </message>
    <message>
        <source>eScfmPerft3_Alternate1</source>
        <translation>cfm/ft^3</translation>
    </message>
    <message>
        <source>eSLPersm3_Alternate1</source>
        <translation>L/(s·m^3)</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondCubicMeter_Alternate1</source>
        <translation>cubic meters per second cubic meter</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondCubicMeter_Alternate2</source>
        <translation>cubic metre per second cubic metre</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondCubicMeter_Alternate3</source>
        <translation>cubic metres per second cubic metre</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondCubicMeter_Alternate4</source>
        <translation>m3/s/m3</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteCubicFoot_Alternate1</source>
        <translation>cubic feet per minute cubic foot</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteCubicFoot_Alternate2</source>
        <translation>cfm/ft3</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteCubicFoot_Alternate3</source>
        <translation>CFM/ft3</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteCubicFoot_Alternate4</source>
        <translation>cfm/cu ft</translation>
    </message>
    <message>
        <source>eSLiterPerSecondCubicMeter_Alternate1</source>
        <translation>liters per second cubic meter</translation>
    </message>
    <message>
        <source>eSLiterPerSecondCubicMeter_Alternate2</source>
        <translation>litre per second cubic metre</translation>
    </message>
    <message>
        <source>eSLiterPerSecondCubicMeter_Alternate3</source>
        <translation>litres per second cubic metre</translation>
    </message>
    <message>
        <source>eSLiterPerSecondCubicMeter_Alternate4</source>
        <translation>l/s/m3</translation>
    </message>
    <message>
        <source>eSLiterPerSecondCubicMeter_Alternate5</source>
        <translation>L/s/m3</translation>
    </message>
    <message>
        <source>eSLiterPerSecondCubicMeter_Alternate6</source>
        <translation>l/s-m3</translation>
    </message>
    <message>
        <source>eSLiterPerSecondCubicMeter_Alternate7</source>
        <translation>L/s-m3</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_AmountOfSubstance</name>
    <message>
        <source>eSMole_Alternate1</source>
        <translation>moles</translation>
    </message>
    <message>
        <source>eSMole_Alternate2</source>
        <translation>mols</translation>
    </message>
    <message>
        <source>eSYottamole_Alternate1</source>
        <translation>yottamoles</translation>
    </message>
    <message>
        <source>eSZettamole_Alternate1</source>
        <translation>zettamoles</translation>
    </message>
    <message>
        <source>eSExamole_Alternate1</source>
        <translation>examoles</translation>
    </message>
    <message>
        <source>eSPetamole_Alternate1</source>
        <translation>petamoles</translation>
    </message>
    <message>
        <source>eSTeramole_Alternate1</source>
        <translation>teramoles</translation>
    </message>
    <message>
        <source>eSGigamole_Alternate1</source>
        <translation>gigamoles</translation>
    </message>
    <message>
        <source>eSMegamole_Alternate1</source>
        <translation>megamoles</translation>
    </message>
    <message>
        <source>eSKilomole_Alternate1</source>
        <translation>kilomoles</translation>
    </message>
    <message>
        <source>eSHectomole_Alternate1</source>
        <translation>hectomoles</translation>
    </message>
    <message>
        <source>eSDecamole_Alternate1</source>
        <translation>decamoles</translation>
    </message>
    <message>
        <source>eSDecamole_Alternate2</source>
        <translation>dekamole</translation>
    </message>
    <message>
        <source>eSDecamole_Alternate3</source>
        <translation>dekamoles</translation>
    </message>
    <message>
        <source>eSDecimole_Alternate1</source>
        <translation>decimoles</translation>
    </message>
    <message>
        <source>eSCentimole_Alternate1</source>
        <translation>centimoles</translation>
    </message>
    <message>
        <source>eSMillimole_Alternate1</source>
        <translation>millimoles</translation>
    </message>
    <message>
        <source>eSMicromole_Alternate1</source>
        <translation>micromoles</translation>
    </message>
    <message>
        <source>eSMicromole_Alternate2</source>
        <translation>μmol</translation>
    </message>
    <message>
        <source>eSNanomole_Alternate1</source>
        <translation>nanomoles</translation>
    </message>
    <message>
        <source>eSPicomole_Alternate1</source>
        <translation>picomoles</translation>
    </message>
    <message>
        <source>eSFemtomole_Alternate1</source>
        <translation>femtomoles</translation>
    </message>
    <message>
        <source>eSAttomole_Alternate1</source>
        <translation>attomoles</translation>
    </message>
    <message>
        <source>eSZeptomole_Alternate1</source>
        <translation>zeptomoles</translation>
    </message>
    <message>
        <source>eSYoctomole_Alternate1</source>
        <translation>yoctomoles</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Angle</name>
    <message>
        <source>eSRadian_Alternate1</source>
        <translation>radians</translation>
    </message>
    <message>
        <source>eSRadian_Alternate2</source>
        <translation>rads</translation>
    </message>
    <message>
        <source>eSDegree_Alternate1</source>
        <translation>degrees</translation>
    </message>
    <message>
        <source>eSDegree_Alternate2</source>
        <translation>degs</translation>
    </message>
    <message>
        <source>eSDegree_Alternate3</source>
        <translation>deg.</translation>
    </message>
    <message>
        <source>eSMilliradian_Alternate1</source>
        <translation>milliradians</translation>
    </message>
    <message>
        <source>eSGrad_Alternate1</source>
        <translation>grads</translation>
    </message>
    <message>
        <source>eSGrad_Alternate2</source>
        <translation>gradian</translation>
    </message>
    <message>
        <source>eSGrad_Alternate3</source>
        <translation>gradians</translation>
    </message>
    <message>
        <source>eSGrad_Alternate4</source>
        <translation>gon</translation>
    </message>
    <message>
        <source>eSGrad_Alternate5</source>
        <translation>gons</translation>
    </message>
    <message>
        <source>eSAngularMilNATO_Alternate1</source>
        <translation>angular mil</translation>
    </message>
    <message>
        <source>eSAngularMilNATO_Alternate2</source>
        <translation>angular mils</translation>
    </message>
    <message>
        <source>eSAngularMilNATO_Alternate3</source>
        <translation>NATO mil</translation>
    </message>
    <message>
        <source>eSAngularMilNATO_Alternate4</source>
        <translation>NATO mils</translation>
    </message>
    <message>
        <source>eSAngleMinute_Alternate1</source>
        <translation>angle minutes</translation>
    </message>
    <message>
        <source>eSAngleMinute_Alternate2</source>
        <translation>arcminute</translation>
    </message>
    <message>
        <source>eSAngleMinute_Alternate3</source>
        <translation>arcminutes</translation>
    </message>
    <message>
        <source>eSAngleMinute_Alternate4</source>
        <translation>arc minute</translation>
    </message>
    <message>
        <source>eSAngleMinute_Alternate5</source>
        <translation>arc minutes</translation>
    </message>
    <message>
        <source>eSAngleMinute_Alternate6</source>
        <translation>arc-minute</translation>
    </message>
    <message>
        <source>eSAngleMinute_Alternate7</source>
        <translation>arc-minutes</translation>
    </message>
    <message>
        <source>eSAngleMinute_Alternate8</source>
        <translation>minute of arc</translation>
    </message>
    <message>
        <source>eSAngleMinute_Alternate9</source>
        <translation>minutes of arc</translation>
    </message>
    <message>
        <source>eSAngleSecond_Alternate1</source>
        <translation>angle seconds</translation>
    </message>
    <message>
        <source>eSAngleSecond_Alternate2</source>
        <translation>arcsecond</translation>
    </message>
    <message>
        <source>eSAngleSecond_Alternate3</source>
        <translation>arcseconds</translation>
    </message>
    <message>
        <source>eSAngleSecond_Alternate4</source>
        <translation>arc second</translation>
    </message>
    <message>
        <source>eSAngleSecond_Alternate5</source>
        <translation>arc seconds</translation>
    </message>
    <message>
        <source>eSAngleSecond_Alternate6</source>
        <translation>arc-second</translation>
    </message>
    <message>
        <source>eSAngleSecond_Alternate7</source>
        <translation>arc-seconds</translation>
    </message>
    <message>
        <source>eSAngleSecond_Alternate8</source>
        <translation>second of arc</translation>
    </message>
    <message>
        <source>eSAngleSecond_Alternate9</source>
        <translation>seconds of arc</translation>
    </message>
    <message>
        <source>eSMilliarcSecond_Alternate1</source>
        <translation>milliarc seconds</translation>
    </message>
    <message>
        <source>eSMilliarcSecond_Alternate2</source>
        <translation>milliarcsecond</translation>
    </message>
    <message>
        <source>eSMilliarcSecond_Alternate3</source>
        <translation>milliarcseconds</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Area</name>
    <message>
        <source>eSSquareMeter_Alternate1</source>
        <translation>square meters</translation>
    </message>
    <message>
        <source>eSSquareMeter_Alternate2</source>
        <translation>square metre</translation>
    </message>
    <message>
        <source>eSSquareMeter_Alternate3</source>
        <translation>square metres</translation>
    </message>
    <message>
        <source>eSSquareMeter_Alternate4</source>
        <translation>m2</translation>
    </message>
    <message>
        <source>eSSquareMeter_Alternate5</source>
        <translation>sqm</translation>
    </message>
    <message>
        <source>eSSquareMeter_Alternate6</source>
        <translation>sq. m</translation>
    </message>
    <message>
        <source>eSSquareMeter_Alternate7</source>
        <translation>sq meter</translation>
    </message>
    <message>
        <source>eSSquareMeter_Alternate8</source>
        <translation>sq meters</translation>
    </message>
    <message>
        <source>eSSquareMeter_Alternate9</source>
        <translation>sq metre</translation>
    </message>
    <message>
        <source>eSSquareMeter_Alternate10</source>
        <translation>sq metres</translation>
    </message>
    <message>
        <source>eSSquareInch_Alternate1</source>
        <translation>square inches</translation>
    </message>
    <message>
        <source>eSSquareInch_Alternate2</source>
        <translation>in2</translation>
    </message>
    <message>
        <source>eSSquareInch_Alternate3</source>
        <translation>sqin</translation>
    </message>
    <message>
        <source>eSSquareInch_Alternate4</source>
        <translation>sq. in.</translation>
    </message>
    <message>
        <source>eSSquareInch_Alternate5</source>
        <translation>sq in.</translation>
    </message>
    <message>
        <source>eSSquareInch_Alternate6</source>
        <translation>sq inch</translation>
    </message>
    <message>
        <source>eSSquareInch_Alternate7</source>
        <translation>sq inches</translation>
    </message>
    <message>
        <source>eSSquareFoot_Alternate1</source>
        <translation>square feet</translation>
    </message>
    <message>
        <source>eSSquareFoot_Alternate2</source>
        <translation>ft2</translation>
    </message>
    <message>
        <source>eSSquareFoot_Alternate3</source>
        <translation>sqft</translation>
    </message>
    <message>
        <source>eSSquareFoot_Alternate4</source>
        <translation>sq. ft.</translation>
    </message>
    <message>
        <source>eSSquareFoot_Alternate5</source>
        <translation>sq. ft</translation>
    </message>
    <message>
        <source>eSSquareFoot_Alternate6</source>
        <translation>sq feet</translation>
    </message>
    <message>
        <source>eSSquareFoot_Alternate7</source>
        <translation>sq foot</translation>
    </message>
    <message>
        <source>eSSquareFoot_Alternate8</source>
        <translation>sq.ft.</translation>
    </message>
    <message>
        <source>eSSquareYard_Alternate1</source>
        <translation>square yards</translation>
    </message>
    <message>
        <source>eSSquareYard_Alternate2</source>
        <translation>yd2</translation>
    </message>
    <message>
        <source>eSSquareYard_Alternate3</source>
        <translation>sqyd</translation>
    </message>
    <message>
        <source>eSSquareYard_Alternate4</source>
        <translation>sq. yd.</translation>
    </message>
    <message>
        <source>eSSquareYard_Alternate5</source>
        <translation>sq yds</translation>
    </message>
    <message>
        <source>eSSquareYard_Alternate6</source>
        <translation>sq yards</translation>
    </message>
    <message>
        <source>eSAcre_Alternate1</source>
        <translation>acres</translation>
    </message>
    <message>
        <source>eSSection_Alternate1</source>
        <translation>sections</translation>
    </message>
    <message>
        <source>eSTownship_Alternate1</source>
        <translation>townships</translation>
    </message>
    <message>
        <source>eSHectare_Alternate1</source>
        <translation>hectares</translation>
    </message>
    <message>
        <source>eSSquareKilometer_Alternate1</source>
        <translation>square kilometers</translation>
    </message>
    <message>
        <source>eSSquareKilometer_Alternate2</source>
        <translation>square kilometre</translation>
    </message>
    <message>
        <source>eSSquareKilometer_Alternate3</source>
        <translation>square kilometres</translation>
    </message>
    <message>
        <source>eSSquareKilometer_Alternate4</source>
        <translation>km2</translation>
    </message>
    <message>
        <source>eSSquareKilometer_Alternate5</source>
        <translation>sqkm</translation>
    </message>
    <message>
        <source>eSSquareMile_Alternate1</source>
        <translation>square miles</translation>
    </message>
    <message>
        <source>eSSquareMile_Alternate2</source>
        <translation>mi2</translation>
    </message>
    <message>
        <source>eSSquareMile_Alternate3</source>
        <translation>sqmi</translation>
    </message>
    <message>
        <source>eSSquareMile_Alternate4</source>
        <translation>sq. mi.</translation>
    </message>
    <message>
        <source>eSSquareMile_Alternate5</source>
        <translation>sq miles</translation>
    </message>
    <message>
        <source>eSSquareCentimeter_Alternate1</source>
        <translation>square centimeters</translation>
    </message>
    <message>
        <source>eSSquareCentimeter_Alternate2</source>
        <translation>square centimetre</translation>
    </message>
    <message>
        <source>eSSquareCentimeter_Alternate3</source>
        <translation>square centimetres</translation>
    </message>
    <message>
        <source>eSSquareCentimeter_Alternate4</source>
        <translation>cm2</translation>
    </message>
    <message>
        <source>eSSquareCentimeter_Alternate5</source>
        <translation>sqcm</translation>
    </message>
    <message>
        <source>eSSquareMillimeter_Alternate1</source>
        <translation>square millimeters</translation>
    </message>
    <message>
        <source>eSSquareMillimeter_Alternate2</source>
        <translation>square millimetre</translation>
    </message>
    <message>
        <source>eSSquareMillimeter_Alternate3</source>
        <translation>square millimetres</translation>
    </message>
    <message>
        <source>eSSquareMillimeter_Alternate4</source>
        <translation>mm2</translation>
    </message>
    <message>
        <source>eSSquareMillimeter_Alternate5</source>
        <translation>sqmm</translation>
    </message>
    <message>
        <source>eSCircularMil_Alternate1</source>
        <translation>circular mils</translation>
    </message>
    <message>
        <source>eSKiloCircularMil_Alternate1</source>
        <translation>kilo-circular mils</translation>
    </message>
    <message>
        <source>eSKiloCircularMil_Alternate2</source>
        <translation>MCM</translation>
    </message>
    <message>
        <source>eSKiloCircularMil_Alternate3</source>
        <translation>thousand circular mils</translation>
    </message>
    <message>
        <source>eSAre_Alternate1</source>
        <translation>ares</translation>
    </message>
    <message>
        <source>eSBarn_Alternate1</source>
        <translation>barns</translation>
    </message>
    <message>
        <source>eSCentare_Alternate1</source>
        <translation>centares</translation>
    </message>
    <message>
        <source>eSSquareAngstrom_Alternate1</source>
        <translation>square angstroms</translation>
    </message>
    <message>
        <source>eSSquareBolt_Alternate1</source>
        <translation>square bolts</translation>
    </message>
    <message>
        <source>eSSquareCable_Alternate1</source>
        <translation>square cables</translation>
    </message>
    <message>
        <source>eSSquareCaliber_Alternate1</source>
        <translation>square calibers</translation>
    </message>
    <message>
        <source>eSSquareCaliber_Alternate2</source>
        <translation>square calibre</translation>
    </message>
    <message>
        <source>eSSquareCaliber_Alternate3</source>
        <translation>square calibres</translation>
    </message>
    <message>
        <source>eSSquareCubit_Alternate1</source>
        <translation>square cubits</translation>
    </message>
    <message>
        <source>eSSquareDecimeter_Alternate1</source>
        <translation>square decimeters</translation>
    </message>
    <message>
        <source>eSSquareDecimeter_Alternate2</source>
        <translation>square decimetre</translation>
    </message>
    <message>
        <source>eSSquareDecimeter_Alternate3</source>
        <translation>square decimetres</translation>
    </message>
    <message>
        <source>eSSquareDecimeter_Alternate4</source>
        <translation>dm2</translation>
    </message>
    <message>
        <source>eSSquareFathom_Alternate1</source>
        <translation>square fathoms</translation>
    </message>
    <message>
        <source>eSSquareFurlong_Alternate1</source>
        <translation>square furlongs</translation>
    </message>
    <message>
        <source>eSSquareGigameter_Alternate1</source>
        <translation>square gigameters</translation>
    </message>
    <message>
        <source>eSSquareGigameter_Alternate2</source>
        <translation>square gigametre</translation>
    </message>
    <message>
        <source>eSSquareGigameter_Alternate3</source>
        <translation>square gigametres</translation>
    </message>
    <message>
        <source>eSSquareHand_Alternate1</source>
        <translation>square hands</translation>
    </message>
    <message>
        <source>eSSquareNauticalLeague_Alternate1</source>
        <translation>square nautical leagues</translation>
    </message>
    <message>
        <source>eSSquareLightYear_Alternate1</source>
        <translation>square light-years</translation>
    </message>
    <message>
        <source>eSSquareLink_Alternate1</source>
        <translation>square links</translation>
    </message>
    <message>
        <source>eSSquareMicron_Alternate1</source>
        <translation>square microns</translation>
    </message>
    <message>
        <source>eSSquareMillimicron_Alternate1</source>
        <translation>square millimicrons</translation>
    </message>
    <message>
        <source>eSSquarePace_Alternate1</source>
        <translation>square paces</translation>
    </message>
    <message>
        <source>eSSquarePalm_Alternate1</source>
        <translation>square palms</translation>
    </message>
    <message>
        <source>eSSquareParsec_Alternate1</source>
        <translation>square parsecs</translation>
    </message>
    <message>
        <source>eSSquarePerch_Alternate1</source>
        <translation>square perches</translation>
    </message>
    <message>
        <source>eSSquareRope_Alternate1</source>
        <translation>square ropes</translation>
    </message>
    <message>
        <source>eSSquareSkein_Alternate1</source>
        <translation>square skeins</translation>
    </message>
    <message>
        <source>eSSquareSpan_Alternate1</source>
        <translation>square spans</translation>
    </message>
    <message>
        <source>eSSquareSurveyFoot_Alternate1</source>
        <translation>square survey feet</translation>
    </message>
    <message>
        <source>eSSquareChain_Alternate1</source>
        <translation>square chains</translation>
    </message>
    <message>
        <source>eSSquareMil_Alternate1</source>
        <translation>square mils</translation>
    </message>
    <message>
        <source>eSSquareAstronomicalUnit_Alternate1</source>
        <translation>square astronomical units</translation>
    </message>
    <message>
        <source>eSSurveyAcre_Alternate1</source>
        <translation>survey acres</translation>
    </message>
    <message>
        <source>eSSquareSurveyYard_Alternate1</source>
        <translation>square survey yards</translation>
    </message>
    <message>
        <source>eSBoard_Alternate1</source>
        <translation>boards</translation>
    </message>
    <message>
        <source>eSCord_Alternate1</source>
        <translation>cords</translation>
    </message>
    <message>
        <source>eSSquareMicroinch_Alternate1</source>
        <translation>square microinches</translation>
    </message>
    <message>
        <source>eSSquareMicroinch_Alternate2</source>
        <translation>uin2</translation>
    </message>
    <message>
        <source>eSSquareMicroinch_Alternate3</source>
        <translation>µin2</translation>
    </message>
    <message>
        <source>eSSquareMicroinch_Alternate4</source>
        <translation>μin2</translation>
    </message>
    <message>
        <source>eSSquareMicrometer_Alternate1</source>
        <translation>square micrometers</translation>
    </message>
    <message>
        <source>eSSquareMicrometer_Alternate2</source>
        <translation>square micrometre</translation>
    </message>
    <message>
        <source>eSSquareMicrometer_Alternate3</source>
        <translation>square micrometres</translation>
    </message>
    <message>
        <source>eSSquareMicrometer_Alternate4</source>
        <translation>µm2</translation>
    </message>
    <message>
        <source>eSSquareMicrometer_Alternate5</source>
        <translation>μm2</translation>
    </message>
    <message>
        <source>eSSquareMicrometer_Alternate6</source>
        <translation>um2</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_AreaDensity</name>
    <message>
        <source>eSgPerm2_Alternate1</source>
        <translation>g/m^2</translation>
    </message>
    <message>
        <source>eSgPerin2_Alternate1</source>
        <translation>g/in^2</translation>
    </message>
    <message>
        <source>eSGramPerSquareMeter_Alternate1</source>
        <translation>grams per square meter</translation>
    </message>
    <message>
        <source>eSGramPerSquareMeter_Alternate2</source>
        <translation>gram per square metre</translation>
    </message>
    <message>
        <source>eSGramPerSquareMeter_Alternate3</source>
        <translation>grams per square metre</translation>
    </message>
    <message>
        <source>eSGramPerSquareMeter_Alternate4</source>
        <translation>gsm</translation>
    </message>
    <message>
        <source>eSGramPerSquareMeter_Alternate5</source>
        <translation>g/m2</translation>
    </message>
    <message>
        <source>eSGramPerSquareInch_Alternate1</source>
        <translation>grams per square inch</translation>
    </message>
    <message>
        <source>eSGramPerSquareInch_Alternate2</source>
        <translation>g/in2</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_AreaDividedByPower</name>
    <message>
        <source>eSm2PerW_Alternate1</source>
        <translation>m^2/W</translation>
    </message>
    <message>
        <source>eSm2PerkW_Alternate1</source>
        <translation>m^2/kW</translation>
    </message>
    <message>
        <source>eSft2PerkBTUPerh_Alternate1</source>
        <translation>ft^2/(kBTU/h)</translation>
    </message>
    <message>
        <source>eSft2PerkBTUPerhr_Alternate1</source>
        <translation>ft^2/(kBTU/hr)</translation>
    </message>
    <message>
        <source>eSft2PerkBtuPerh_Alternate1</source>
        <translation>ft^2/(kBtu/h)</translation>
    </message>
    <message>
        <source>eSft2PerkBtuPerhr_Alternate1</source>
        <translation>ft^2/(kBtu/hr)</translation>
    </message>
    <message>
        <source>eSSquareMeterPerWatt_Alternate1</source>
        <translation>square meters per watt</translation>
    </message>
    <message>
        <source>eSSquareMeterPerWatt_Alternate2</source>
        <translation>square metre per watt</translation>
    </message>
    <message>
        <source>eSSquareMeterPerWatt_Alternate3</source>
        <translation>square metres per watt</translation>
    </message>
    <message>
        <source>eSSquareMeterPerWatt_Alternate4</source>
        <translation>m2/W</translation>
    </message>
    <message>
        <source>eSSquareFootPerTonOfRefrigeration_Alternate1</source>
        <translation>square feet per ton of refrigeration</translation>
    </message>
    <message>
        <source>eSSquareFootPerTonOfRefrigeration_Alternate2</source>
        <translation>ft2/ton</translation>
    </message>
    <message>
        <source>eSSquareFootPerTonOfRefrigeration_Alternate3</source>
        <translation>sq ft/ton</translation>
    </message>
    <message>
        <source>eSSquareFootPerTonOfRefrigeration_Alternate4</source>
        <translation>SF/ton</translation>
    </message>
    <message>
        <source>eSSquareFootPerTonOfRefrigeration_Alternate5</source>
        <translation>ft2/TR</translation>
    </message>
    <message>
        <source>eSSquareMeterPerKilowatt_Alternate1</source>
        <translation>square meters per kilowatt</translation>
    </message>
    <message>
        <source>eSSquareMeterPerKilowatt_Alternate2</source>
        <translation>square metre per kilowatt</translation>
    </message>
    <message>
        <source>eSSquareMeterPerKilowatt_Alternate3</source>
        <translation>square metres per kilowatt</translation>
    </message>
    <message>
        <source>eSSquareMeterPerKilowatt_Alternate4</source>
        <translation>m2/kW</translation>
    </message>
    <message>
        <source>eSSquareFootPerThousandBritishThermalUnitPerHour_Alternate1</source>
        <translation>square feet per thousand british thermal unit per hour</translation>
    </message>
    <message>
        <source>eSSquareFootPerThousandBritishThermalUnitPerHour_Alternate2</source>
        <translation>ft2/MBH</translation>
    </message>
    <message>
        <source>eSSquareFootPerThousandBritishThermalUnitPerHour_Alternate3</source>
        <translation>sq ft/MBH</translation>
    </message>
    <message>
        <source>eSSquareFootPerThousandBritishThermalUnitPerHour_Alternate4</source>
        <translation>sf/MBH</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_AreaForceScale</name>
    <message>
        <source>eSm3PerN_Alternate1</source>
        <translation>m^3/N</translation>
    </message>
    <message>
        <source>eSm3PerkN_Alternate1</source>
        <translation>m^3/kN</translation>
    </message>
    <message>
        <source>eSft3Perkip_Alternate1</source>
        <translation>ft^3/kip</translation>
    </message>
    <message>
        <source>eSft3Perkipf_Alternate1</source>
        <translation>ft^3/kipf</translation>
    </message>
    <message>
        <source>eSft3Perlbf_Alternate1</source>
        <translation>ft^3/klbf</translation>
    </message>
    <message>
        <source>eSft3Perklb_Alternate1</source>
        <translation>ft^3/klb</translation>
    </message>
    <message>
        <source>eSCubicMeterPerNewton_Alternate1</source>
        <translation>cubic meters per newton</translation>
    </message>
    <message>
        <source>eSCubicMeterPerNewton_Alternate2</source>
        <translation>cubic metre per newton</translation>
    </message>
    <message>
        <source>eSCubicMeterPerNewton_Alternate3</source>
        <translation>cubic metres per newton</translation>
    </message>
    <message>
        <source>eSCubicMeterPerNewton_Alternate4</source>
        <translation>m3/N</translation>
    </message>
    <message>
        <source>eSCubicMeterPerKilonewton_Alternate1</source>
        <translation>cubic meters per kilonewton</translation>
    </message>
    <message>
        <source>eSCubicMeterPerKilonewton_Alternate2</source>
        <translation>cubic metre per kilonewton</translation>
    </message>
    <message>
        <source>eSCubicMeterPerKilonewton_Alternate3</source>
        <translation>cubic metres per kilonewton</translation>
    </message>
    <message>
        <source>eSCubicMeterPerKilonewton_Alternate4</source>
        <translation>m3/kN</translation>
    </message>
    <message>
        <source>eSCubicFootPerKip_Alternate1</source>
        <translation>cubic feet per kip</translation>
    </message>
    <message>
        <source>eSCubicFootPerKip_Alternate2</source>
        <translation>ft3/kip</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_BitRate</name>
    <message>
        <source>eSBitPerSecond_Alternate1</source>
        <translation>bits per second</translation>
    </message>
    <message>
        <source>eSBitPerSecond_Alternate2</source>
        <translation>b/s</translation>
    </message>
    <message>
        <source>eSBytePerSecond_Alternate1</source>
        <translation>bytes per second</translation>
    </message>
    <message>
        <source>eSBytePerSecond_Alternate2</source>
        <translation>byte/s</translation>
    </message>
    <message>
        <source>eSKilobitPerSecond_Alternate1</source>
        <translation>kilobits per second</translation>
    </message>
    <message>
        <source>eSKilobitPerSecond_Alternate2</source>
        <translation>kb/s</translation>
    </message>
    <message>
        <source>eSKilobitPerSecond_Alternate3</source>
        <translation>Kbps</translation>
    </message>
    <message>
        <source>eSKilobytePerSecond_Alternate1</source>
        <translation>kilobytes per second</translation>
    </message>
    <message>
        <source>eSKilobytePerSecond_Alternate2</source>
        <translation>KB/s</translation>
    </message>
    <message>
        <source>eSMegabitPerSecond_Alternate1</source>
        <translation>megabits per second</translation>
    </message>
    <message>
        <source>eSMegabitPerSecond_Alternate2</source>
        <translation>Mb/s</translation>
    </message>
    <message>
        <source>eSMegabytePerSecond_Alternate1</source>
        <translation>megabytes per second</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Capacitance</name>
    <message>
        <source>eSFarad_Alternate1</source>
        <translation>farads</translation>
    </message>
    <message>
        <source>eSYottafarad_Alternate1</source>
        <translation>yottafarads</translation>
    </message>
    <message>
        <source>eSZettafarad_Alternate1</source>
        <translation>zettafarads</translation>
    </message>
    <message>
        <source>eSExafarad_Alternate1</source>
        <translation>exafarads</translation>
    </message>
    <message>
        <source>eSPetafarad_Alternate1</source>
        <translation>petafarads</translation>
    </message>
    <message>
        <source>eSTerafarad_Alternate1</source>
        <translation>terafarads</translation>
    </message>
    <message>
        <source>eSGigafarad_Alternate1</source>
        <translation>gigafarads</translation>
    </message>
    <message>
        <source>eSMegafarad_Alternate1</source>
        <translation>megafarads</translation>
    </message>
    <message>
        <source>eSKilofarad_Alternate1</source>
        <translation>kilofarads</translation>
    </message>
    <message>
        <source>eSHectofarad_Alternate1</source>
        <translation>hectofarads</translation>
    </message>
    <message>
        <source>eSDecafarad_Alternate1</source>
        <translation>decafarads</translation>
    </message>
    <message>
        <source>eSDecafarad_Alternate2</source>
        <translation>dekafarad</translation>
    </message>
    <message>
        <source>eSDecafarad_Alternate3</source>
        <translation>dekafarads</translation>
    </message>
    <message>
        <source>eSDecifarad_Alternate1</source>
        <translation>decifarads</translation>
    </message>
    <message>
        <source>eSCentifarad_Alternate1</source>
        <translation>centifarads</translation>
    </message>
    <message>
        <source>eSMillifarad_Alternate1</source>
        <translation>millifarads</translation>
    </message>
    <message>
        <source>eSMicrofarad_Alternate1</source>
        <translation>microfarads</translation>
    </message>
    <message>
        <source>eSMicrofarad_Alternate2</source>
        <translation>mfd</translation>
    </message>
    <message>
        <source>eSMicrofarad_Alternate3</source>
        <translation>μF</translation>
    </message>
    <message>
        <source>eSNanofarad_Alternate1</source>
        <translation>nanofarads</translation>
    </message>
    <message>
        <source>eSPicofarad_Alternate1</source>
        <translation>picofarads</translation>
    </message>
    <message>
        <source>eSFemtofarad_Alternate1</source>
        <translation>femtofarads</translation>
    </message>
    <message>
        <source>eSAttofarad_Alternate1</source>
        <translation>attofarads</translation>
    </message>
    <message>
        <source>eSZeptofarad_Alternate1</source>
        <translation>zeptofarads</translation>
    </message>
    <message>
        <source>eSYoctofarad_Alternate1</source>
        <translation>yoctofarads</translation>
    </message>
    <message>
        <source>eSKilopicofarad_Alternate1</source>
        <translation>kilopicofarads</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_CoefficientOfThermalExpansion</name>
    <message>
        <source>eSInverseFahrenheit_Alternate1</source>
        <translation>per °F</translation>
    </message>
    <message>
        <source>eSInverseFahrenheit_Alternate2</source>
        <translation>per degree F</translation>
    </message>
    <message>
        <source>eSInverseFahrenheit_Alternate3</source>
        <translation>per degree Fahrenheit</translation>
    </message>
    <message>
        <source>eSInverseFahrenheit_Alternate4</source>
        <translation>°F^-1</translation>
    </message>
    <message>
        <source>eSInverseFahrenheit_Alternate5</source>
        <translation>degF^-1</translation>
    </message>
    <message>
        <source>eSInverseCelsius_Alternate1</source>
        <translation>per °C</translation>
    </message>
    <message>
        <source>eSInverseCelsius_Alternate2</source>
        <translation>per degree C</translation>
    </message>
    <message>
        <source>eSInverseCelsius_Alternate3</source>
        <translation>per degree Celsius</translation>
    </message>
    <message>
        <source>eSInverseCelsius_Alternate4</source>
        <translation>°C^-1</translation>
    </message>
    <message>
        <source>eSInverseCelsius_Alternate5</source>
        <translation>degC^-1</translation>
    </message>
    <message>
        <source>eSMicrometerPerMeterCelsius_Alternate1</source>
        <translation>micrometers per meter celsius</translation>
    </message>
    <message>
        <source>eSMicrometerPerMeterCelsius_Alternate2</source>
        <translation>micrometre per metre celsius</translation>
    </message>
    <message>
        <source>eSMicrometerPerMeterCelsius_Alternate3</source>
        <translation>micrometres per metre celsius</translation>
    </message>
    <message>
        <source>eSMicrometerPerMeterCelsius_Alternate4</source>
        <translation>um/m/C</translation>
    </message>
    <message>
        <source>eSMicrometerPerMeterCelsius_Alternate5</source>
        <translation>um/m-C</translation>
    </message>
    <message>
        <source>eSMicrometerPerMeterCelsius_Alternate6</source>
        <translation>µm/m/°C</translation>
    </message>
    <message>
        <source>eSMicrometerPerMeterCelsius_Alternate7</source>
        <translation>µm/m·°C</translation>
    </message>
    <message>
        <source>eSMicrometerPerMeterCelsius_Alternate8</source>
        <translation>ppm/°C</translation>
    </message>
    <message>
        <source>eSMicrometerPerMeterCelsius_Alternate9</source>
        <translation>ppm/C</translation>
    </message>
    <message>
        <source>eSMicrometerPerMeterCelsius_Alternate10</source>
        <translation>ppm/degC</translation>
    </message>
    <message>
        <source>eSMicroinchPerInchFahrenheit_Alternate1</source>
        <translation>microinches per inch fahrenheit</translation>
    </message>
    <message>
        <source>eSMicroinchPerInchFahrenheit_Alternate2</source>
        <translation>uin/in/F</translation>
    </message>
    <message>
        <source>eSMicroinchPerInchFahrenheit_Alternate3</source>
        <translation>uin/in-F</translation>
    </message>
    <message>
        <source>eSMicroinchPerInchFahrenheit_Alternate4</source>
        <translation>µin/in/°F</translation>
    </message>
    <message>
        <source>eSMicroinchPerInchFahrenheit_Alternate5</source>
        <translation>µin/in·°F</translation>
    </message>
    <message>
        <source>eSMicroinchPerInchFahrenheit_Alternate6</source>
        <translation>ppm/°F</translation>
    </message>
    <message>
        <source>eSMicroinchPerInchFahrenheit_Alternate7</source>
        <translation>ppm/F</translation>
    </message>
    <message>
        <source>eSMicroinchPerInchFahrenheit_Alternate8</source>
        <translation>ppm/degF</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_ComputerStorage</name>
    <message>
        <source>eSByte_Alternate1</source>
        <translation>bytes</translation>
    </message>
    <message>
        <source>eSBit_Alternate1</source>
        <translation>bits</translation>
    </message>
    <message>
        <source>eSKilobyte_Alternate1</source>
        <translation>kilobytes</translation>
    </message>
    <message>
        <source>eSKilobyte_Alternate2</source>
        <translation>kbyte</translation>
    </message>
    <message>
        <source>eSKilobyte_Alternate3</source>
        <translation>kbytes</translation>
    </message>
    <message>
        <source>eSKilobyte_Alternate4</source>
        <translation>kByte</translation>
    </message>
    <message>
        <source>eSKilobyte_Alternate5</source>
        <translation>kBytes</translation>
    </message>
    <message>
        <source>eSMegabyte_Alternate1</source>
        <translation>megabytes</translation>
    </message>
    <message>
        <source>eSMegabyte_Alternate2</source>
        <translation>Mbyte</translation>
    </message>
    <message>
        <source>eSMegabyte_Alternate3</source>
        <translation>Mbytes</translation>
    </message>
    <message>
        <source>eSMegabyte_Alternate4</source>
        <translation>MByte</translation>
    </message>
    <message>
        <source>eSMegabyte_Alternate5</source>
        <translation>MBytes</translation>
    </message>
    <message>
        <source>eSGigabyte_Alternate1</source>
        <translation>gigabytes</translation>
    </message>
    <message>
        <source>eSGigabyte_Alternate2</source>
        <translation>Gbyte</translation>
    </message>
    <message>
        <source>eSGigabyte_Alternate3</source>
        <translation>Gbytes</translation>
    </message>
    <message>
        <source>eSGigabyte_Alternate4</source>
        <translation>GByte</translation>
    </message>
    <message>
        <source>eSGigabyte_Alternate5</source>
        <translation>GBytes</translation>
    </message>
    <message>
        <source>eSTerabyte_Alternate1</source>
        <translation>terabytes</translation>
    </message>
    <message>
        <source>eSTerabyte_Alternate2</source>
        <translation>Tbyte</translation>
    </message>
    <message>
        <source>eSTerabyte_Alternate3</source>
        <translation>Tbytes</translation>
    </message>
    <message>
        <source>eSTerabyte_Alternate4</source>
        <translation>TByte</translation>
    </message>
    <message>
        <source>eSTerabyte_Alternate5</source>
        <translation>TBytes</translation>
    </message>
    <message>
        <source>eSKibibyte_Alternate1</source>
        <translation>kibibytes</translation>
    </message>
    <message>
        <source>eSMebibyte_Alternate1</source>
        <translation>mebibytes</translation>
    </message>
    <message>
        <source>eSGibibyte_Alternate1</source>
        <translation>gibibytes</translation>
    </message>
    <message>
        <source>eSTebibyte_Alternate1</source>
        <translation>tebibytes</translation>
    </message>
    <message>
        <source>eSKilobit_Alternate1</source>
        <translation>kilobits</translation>
    </message>
    <message>
        <source>eSKilobit_Alternate2</source>
        <translation>Kbit</translation>
    </message>
    <message>
        <source>eSMegabit_Alternate1</source>
        <translation>megabits</translation>
    </message>
    <message>
        <source>eSGigabit_Alternate1</source>
        <translation>gigabits</translation>
    </message>
    <message>
        <source>eSPetabyte_Alternate1</source>
        <translation>petabytes</translation>
    </message>
    <message>
        <source>eSPebibyte_Alternate1</source>
        <translation>pebibytes</translation>
    </message>
    <message>
        <source>eSExabyte_Alternate1</source>
        <translation>exabytes</translation>
    </message>
    <message>
        <source>eSExbibyte_Alternate1</source>
        <translation>exbibytes</translation>
    </message>
    <message>
        <source>eSZettabyte_Alternate1</source>
        <translation>zettabytes</translation>
    </message>
    <message>
        <source>eSZebibyte_Alternate1</source>
        <translation>zebibytes</translation>
    </message>
    <message>
        <source>eSYottabyte_Alternate1</source>
        <translation>yottabytes</translation>
    </message>
    <message>
        <source>eSYobibyte_Alternate1</source>
        <translation>yobibytes</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Concentration</name>
    <message>
        <source>eSNanogramPerLiter_Alternate1</source>
        <translation>nanograms per liter</translation>
    </message>
    <message>
        <source>eSNanogramPerLiter_Alternate2</source>
        <translation>nanogram per litre</translation>
    </message>
    <message>
        <source>eSNanogramPerLiter_Alternate3</source>
        <translation>nanograms per litre</translation>
    </message>
    <message>
        <source>eSNanogramPerLiter_Alternate4</source>
        <translation>ng/l</translation>
    </message>
    <message>
        <source>eSNanogramPerDeciliter_Alternate1</source>
        <translation>nanograms per deciliter</translation>
    </message>
    <message>
        <source>eSNanogramPerDeciliter_Alternate2</source>
        <translation>nanogram per decilitre</translation>
    </message>
    <message>
        <source>eSNanogramPerDeciliter_Alternate3</source>
        <translation>nanograms per decilitre</translation>
    </message>
    <message>
        <source>eSNanogramPerDeciliter_Alternate4</source>
        <translation>ng/dl</translation>
    </message>
    <message>
        <source>eSNanogramPerMilliliter_Alternate1</source>
        <translation>nanograms per milliliter</translation>
    </message>
    <message>
        <source>eSNanogramPerMilliliter_Alternate2</source>
        <translation>nanogram per millilitre</translation>
    </message>
    <message>
        <source>eSNanogramPerMilliliter_Alternate3</source>
        <translation>nanograms per millilitre</translation>
    </message>
    <message>
        <source>eSNanogramPerMilliliter_Alternate4</source>
        <translation>ng/ml</translation>
    </message>
    <message>
        <source>eSNanogramPerMicroliter_Alternate1</source>
        <translation>nanograms per microliter</translation>
    </message>
    <message>
        <source>eSNanogramPerMicroliter_Alternate2</source>
        <translation>nanogram per microlitre</translation>
    </message>
    <message>
        <source>eSNanogramPerMicroliter_Alternate3</source>
        <translation>nanograms per microlitre</translation>
    </message>
    <message>
        <source>eSNanogramPerMicroliter_Alternate4</source>
        <translation>ng/ul</translation>
    </message>
    <message>
        <source>eSNanogramPerMicroliter_Alternate5</source>
        <translation>ng/μL</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Density</name>
    <message>
        <source>eSkmPerm3_Alternate1</source>
        <translation>kg/m^3</translation>
    </message>
    <message>
        <source>eSgPerCM3_Alternate1</source>
        <translation>g/cm^3</translation>
    </message>
    <message>
        <source>eSNS2PerMM4_Alternate1</source>
        <translation>N·s^2/mm⁴</translation>
    </message>
    <message>
        <source>eSKilogramPerCubicMeter_Alternate1</source>
        <translation>kilograms per cubic meter</translation>
    </message>
    <message>
        <source>eSKilogramPerCubicMeter_Alternate2</source>
        <translation>kilogram per cubic metre</translation>
    </message>
    <message>
        <source>eSKilogramPerCubicMeter_Alternate3</source>
        <translation>kilograms per cubic metre</translation>
    </message>
    <message>
        <source>eSKilogramPerCubicMeter_Alternate4</source>
        <translation>kg/m3</translation>
    </message>
    <message>
        <source>eSKilogramPerLiter_Alternate1</source>
        <translation>kilograms per liter</translation>
    </message>
    <message>
        <source>eSKilogramPerLiter_Alternate2</source>
        <translation>kilogram per litre</translation>
    </message>
    <message>
        <source>eSKilogramPerLiter_Alternate3</source>
        <translation>kilograms per litre</translation>
    </message>
    <message>
        <source>eSKilogramPerLiter_Alternate4</source>
        <translation>kg/l</translation>
    </message>
    <message>
        <source>eSGramPerLiter_Alternate1</source>
        <translation>grams per liter</translation>
    </message>
    <message>
        <source>eSGramPerLiter_Alternate2</source>
        <translation>gram per litre</translation>
    </message>
    <message>
        <source>eSGramPerLiter_Alternate3</source>
        <translation>grams per litre</translation>
    </message>
    <message>
        <source>eSGramPerLiter_Alternate4</source>
        <translation>g/l</translation>
    </message>
    <message>
        <source>eSMicrogramPerMilliliter_Alternate1</source>
        <translation>micrograms per milliliter</translation>
    </message>
    <message>
        <source>eSMicrogramPerMilliliter_Alternate2</source>
        <translation>microgram per millilitre</translation>
    </message>
    <message>
        <source>eSMicrogramPerMilliliter_Alternate3</source>
        <translation>micrograms per millilitre</translation>
    </message>
    <message>
        <source>eSMicrogramPerMilliliter_Alternate4</source>
        <translation>ug/ml</translation>
    </message>
    <message>
        <source>eSMicrogramPerMilliliter_Alternate5</source>
        <translation>μg/ml</translation>
    </message>
    <message>
        <source>eSMicrogramPerMilliliter_Alternate6</source>
        <translation>mcg/ml</translation>
    </message>
    <message>
        <source>eSMilligramPerMilliliter_Alternate1</source>
        <translation>milligrams per milliliter</translation>
    </message>
    <message>
        <source>eSMilligramPerMilliliter_Alternate2</source>
        <translation>milligram per millilitre</translation>
    </message>
    <message>
        <source>eSMilligramPerMilliliter_Alternate3</source>
        <translation>milligrams per millilitre</translation>
    </message>
    <message>
        <source>eSMilligramPerMilliliter_Alternate4</source>
        <translation>mg/ml</translation>
    </message>
    <message>
        <source>eSPoundPerGallon_Alternate1</source>
        <translation>pounds per gallon</translation>
    </message>
    <message>
        <source>eSPoundPerGallon_Alternate2</source>
        <translation>ppg</translation>
    </message>
    <message>
        <source>eSPoundPerGallon_Alternate3</source>
        <translation>lb/gal</translation>
    </message>
    <message>
        <source>eSPoundPerGallon_Alternate4</source>
        <translation>lbs/gal</translation>
    </message>
    <message>
        <source>eSOuncePerGallon_Alternate1</source>
        <translation>ounces per gallon</translation>
    </message>
    <message>
        <source>eSOuncePerGallon_Alternate2</source>
        <translation>oz/gal</translation>
    </message>
    <message>
        <source>eSPoundPerCubicFoot_Alternate1</source>
        <translation>pounds per cubic foot</translation>
    </message>
    <message>
        <source>eSPoundPerCubicFoot_Alternate2</source>
        <translation>lb/ft3</translation>
    </message>
    <message>
        <source>eSPoundPerCubicFoot_Alternate3</source>
        <translation>lb/cu ft</translation>
    </message>
    <message>
        <source>eSPoundPerCubicFoot_Alternate4</source>
        <translation>lbs/ft3</translation>
    </message>
    <message>
        <source>eSPoundPerCubicFoot_Alternate5</source>
        <translation>lbm/ft3</translation>
    </message>
    <message>
        <source>eSPoundPerCubicInch_Alternate1</source>
        <translation>pounds per cubic inch</translation>
    </message>
    <message>
        <source>eSPoundPerCubicInch_Alternate2</source>
        <translation>lb/in3</translation>
    </message>
    <message>
        <source>eSPoundPerCubicInch_Alternate3</source>
        <translation>lb/cu in</translation>
    </message>
    <message>
        <source>eSPoundPerCubicInch_Alternate4</source>
        <translation>lbs/in3</translation>
    </message>
    <message>
        <source>eSPoundPerCubicInch_Alternate5</source>
        <translation>pci</translation>
    </message>
    <message>
        <source>eSGramPerCubicCentimeter_Alternate1</source>
        <translation>grams per cubic centimeter</translation>
    </message>
    <message>
        <source>eSGramPerCubicCentimeter_Alternate2</source>
        <translation>gram per cubic centimetre</translation>
    </message>
    <message>
        <source>eSGramPerCubicCentimeter_Alternate3</source>
        <translation>grams per cubic centimetre</translation>
    </message>
    <message>
        <source>eSGramPerCubicCentimeter_Alternate4</source>
        <translation>g/cm3</translation>
    </message>
    <message>
        <source>eSGramPerCubicCentimeter_Alternate5</source>
        <translation>g/cc</translation>
    </message>
    <message>
        <source>eSGramPerCubicCentimeter_Alternate6</source>
        <translation>g/cu cm</translation>
    </message>
    <message>
        <source>eSNewtonSquareSecondPerQuarticMillimeter_Alternate1</source>
        <translation>newton square second per quartic millimetre</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_DynamicViscosity</name>
    <message>
        <source>eSPoise_Alternate1</source>
        <translation>poises</translation>
    </message>
    <message>
        <source>eSCentipoise_Alternate1</source>
        <translation>centipoises</translation>
    </message>
    <message>
        <source>eSCentipoise_Alternate2</source>
        <translation>mPa·s</translation>
    </message>
    <message>
        <source>eSCentipoise_Alternate3</source>
        <translation>mPa-s</translation>
    </message>
    <message>
        <source>eSCentipoise_Alternate4</source>
        <translation>mPas</translation>
    </message>
    <message>
        <source>eSCentipoise_Alternate5</source>
        <translation>mPa.s</translation>
    </message>
    <message>
        <source>eSPascalSecond_Alternate1</source>
        <translation>pascal seconds</translation>
    </message>
    <message>
        <source>eSPascalSecond_Alternate2</source>
        <translation>Pa-s</translation>
    </message>
    <message>
        <source>eSPascalSecond_Alternate3</source>
        <translation>Pa.s</translation>
    </message>
    <message>
        <source>eSPascalSecond_Alternate4</source>
        <translation>pascal-second</translation>
    </message>
    <message>
        <source>eSPascalSecond_Alternate5</source>
        <translation>pascal-seconds</translation>
    </message>
    <message>
        <source>eSPoundMassPerFootSecond_Alternate1</source>
        <translation>pounds force per foot second</translation>
    </message>
    <message>
        <source>eSPoundMassPerFootHour_Alternate1</source>
        <translation>pounds force per foot hour</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_ElectricCharge</name>
    <message>
        <source>eSCoulomb_Alternate1</source>
        <translation>coulombs</translation>
    </message>
    <message>
        <source>eSAmpereHour_Alternate1</source>
        <translation>ampere hours</translation>
    </message>
    <message>
        <source>eSAmpereHour_Alternate2</source>
        <translation>Ah</translation>
    </message>
    <message>
        <source>eSAmpereHour_Alternate3</source>
        <translation>A-h</translation>
    </message>
    <message>
        <source>eSAmpereHour_Alternate4</source>
        <translation>amp hour</translation>
    </message>
    <message>
        <source>eSAmpereHour_Alternate5</source>
        <translation>amp hours</translation>
    </message>
    <message>
        <source>eSAmpereHour_Alternate6</source>
        <translation>amp-hour</translation>
    </message>
    <message>
        <source>eSAmpereHour_Alternate7</source>
        <translation>amp-hours</translation>
    </message>
    <message>
        <source>eSAmpereHour_Alternate8</source>
        <translation>ampere-hour</translation>
    </message>
    <message>
        <source>eSAmpereHour_Alternate9</source>
        <translation>ampere-hours</translation>
    </message>
    <message>
        <source>eSMilliampereHour_Alternate1</source>
        <translation>milliampere hours</translation>
    </message>
    <message>
        <source>eSMilliampereHour_Alternate2</source>
        <translation>mAh</translation>
    </message>
    <message>
        <source>eSMilliampereHour_Alternate3</source>
        <translation>mA-h</translation>
    </message>
    <message>
        <source>eSMilliampereHour_Alternate4</source>
        <translation>milliamp hour</translation>
    </message>
    <message>
        <source>eSMilliampereHour_Alternate5</source>
        <translation>milliamp hours</translation>
    </message>
    <message>
        <source>eSMilliampereHour_Alternate6</source>
        <translation>milliampere-hour</translation>
    </message>
    <message>
        <source>eSMilliampereHour_Alternate7</source>
        <translation>milliampere-hours</translation>
    </message>
    <message>
        <source>eSFaraday_Alternate1</source>
        <translation>faradays</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_ElectricConductance</name>
    <message>
        <source>eSMho_Alternate1</source>
        <translation>mhos</translation>
    </message>
    <message>
        <source>eSMho_Alternate2</source>
        <translation>℧</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_ElectricCurrent</name>
    <message>
        <source>eSAmpere_Alternate1</source>
        <translation>amperes</translation>
    </message>
    <message>
        <source>eSAmpere_Alternate2</source>
        <translation>amps</translation>
    </message>
    <message>
        <source>eSAmpere_Alternate3</source>
        <translation>amp</translation>
    </message>
    <message>
        <source>eSAmpere_Alternate4</source>
        <translation>Amp</translation>
    </message>
    <message>
        <source>eSAmpere_Alternate5</source>
        <translation>Amps</translation>
    </message>
    <message>
        <source>eSYottaampere_Alternate1</source>
        <translation>yottaamperes</translation>
    </message>
    <message>
        <source>eSZettaampere_Alternate1</source>
        <translation>zettaamperes</translation>
    </message>
    <message>
        <source>eSExaampere_Alternate1</source>
        <translation>exaamperes</translation>
    </message>
    <message>
        <source>eSPetaampere_Alternate1</source>
        <translation>petaamperes</translation>
    </message>
    <message>
        <source>eSTeraampere_Alternate1</source>
        <translation>teraamperes</translation>
    </message>
    <message>
        <source>eSGigaampere_Alternate1</source>
        <translation>gigaamperes</translation>
    </message>
    <message>
        <source>eSMegaampere_Alternate1</source>
        <translation>megaamperes</translation>
    </message>
    <message>
        <source>eSKiloampere_Alternate1</source>
        <translation>kiloamperes</translation>
    </message>
    <message>
        <source>eSKiloampere_Alternate2</source>
        <translation>kiloamp</translation>
    </message>
    <message>
        <source>eSKiloampere_Alternate3</source>
        <translation>kiloamps</translation>
    </message>
    <message>
        <source>eSHectoampere_Alternate1</source>
        <translation>hectoamperes</translation>
    </message>
    <message>
        <source>eSDecaampere_Alternate1</source>
        <translation>decaamperes</translation>
    </message>
    <message>
        <source>eSDecaampere_Alternate2</source>
        <translation>dekaampere</translation>
    </message>
    <message>
        <source>eSDecaampere_Alternate3</source>
        <translation>dekaamperes</translation>
    </message>
    <message>
        <source>eSDeciampere_Alternate1</source>
        <translation>deciamperes</translation>
    </message>
    <message>
        <source>eSCentiampere_Alternate1</source>
        <translation>centiamperes</translation>
    </message>
    <message>
        <source>eSMilliampere_Alternate1</source>
        <translation>milliamperes</translation>
    </message>
    <message>
        <source>eSMilliampere_Alternate2</source>
        <translation>milliamp</translation>
    </message>
    <message>
        <source>eSMilliampere_Alternate3</source>
        <translation>milliamps</translation>
    </message>
    <message>
        <source>eSMicroampere_Alternate1</source>
        <translation>microamperes</translation>
    </message>
    <message>
        <source>eSMicroampere_Alternate2</source>
        <translation>microamp</translation>
    </message>
    <message>
        <source>eSMicroampere_Alternate3</source>
        <translation>microamps</translation>
    </message>
    <message>
        <source>eSMicroampere_Alternate4</source>
        <translation>μA</translation>
    </message>
    <message>
        <source>eSNanoampere_Alternate1</source>
        <translation>nanoamperes</translation>
    </message>
    <message>
        <source>eSPicoampere_Alternate1</source>
        <translation>picoamperes</translation>
    </message>
    <message>
        <source>eSFemtoampere_Alternate1</source>
        <translation>femtoamperes</translation>
    </message>
    <message>
        <source>eSAttoampere_Alternate1</source>
        <translation>attoamperes</translation>
    </message>
    <message>
        <source>eSZeptoampere_Alternate1</source>
        <translation>zeptoamperes</translation>
    </message>
    <message>
        <source>eSYoctoampere_Alternate1</source>
        <translation>yoctoamperes</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_ElectricPotential</name>
    <message>
        <source>eSAbvolt_Alternate1</source>
        <translation>abvolts</translation>
    </message>
    <message>
        <source>eSStatvolt_Alternate1</source>
        <translation>statvolts</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_ElectricalResistance</name>
    <message>
        <source>eSOhm_Alternate1</source>
        <translation>ohms</translation>
    </message>
    <message>
        <source>eSOhm_Alternate2</source>
        <translation>Ω</translation>
    </message>
    <message>
        <source>eSOhm_Alternate3</source>
        <translation>Ohm</translation>
    </message>
    <message>
        <source>eSOhm_Alternate4</source>
        <translation>Ohms</translation>
    </message>
    <message>
        <source>eSKilohm_Alternate1</source>
        <translation>kilohms</translation>
    </message>
    <message>
        <source>eSKilohm_Alternate2</source>
        <translation>kΩ</translation>
    </message>
    <message>
        <source>eSKilohm_Alternate3</source>
        <translation>kohm</translation>
    </message>
    <message>
        <source>eSKilohm_Alternate4</source>
        <translation>kohms</translation>
    </message>
    <message>
        <source>eSKilohm_Alternate5</source>
        <translation>kiloohm</translation>
    </message>
    <message>
        <source>eSKilohm_Alternate6</source>
        <translation>kiloohms</translation>
    </message>
    <message>
        <source>eSKilohm_Alternate7</source>
        <translation>kOhm</translation>
    </message>
    <message>
        <source>eSGigaohm_Alternate1</source>
        <translation>gigaohms</translation>
    </message>
    <message>
        <source>eSGigaohm_Alternate2</source>
        <translation>GΩ</translation>
    </message>
    <message>
        <source>eSGigaohm_Alternate3</source>
        <translation>Gohm</translation>
    </message>
    <message>
        <source>eSMegohm_Alternate1</source>
        <translation>megohms</translation>
    </message>
    <message>
        <source>eSMegohm_Alternate2</source>
        <translation>MΩ</translation>
    </message>
    <message>
        <source>eSMegohm_Alternate3</source>
        <translation>Mohm</translation>
    </message>
    <message>
        <source>eSMegohm_Alternate4</source>
        <translation>Mohms</translation>
    </message>
    <message>
        <source>eSMegohm_Alternate5</source>
        <translation>megaohm</translation>
    </message>
    <message>
        <source>eSMegohm_Alternate6</source>
        <translation>megaohms</translation>
    </message>
    <message>
        <source>eSMegohm_Alternate7</source>
        <translation>MOhm</translation>
    </message>
    <message>
        <source>eSMicroohm_Alternate1</source>
        <translation>microohms</translation>
    </message>
    <message>
        <source>eSMicroohm_Alternate2</source>
        <translation>µΩ</translation>
    </message>
    <message>
        <source>eSMicroohm_Alternate3</source>
        <translation>μΩ</translation>
    </message>
    <message>
        <source>eSMicroohm_Alternate4</source>
        <translation>uohm</translation>
    </message>
    <message>
        <source>eSMicroohm_Alternate5</source>
        <translation>micro-ohm</translation>
    </message>
    <message>
        <source>eSMicroohm_Alternate6</source>
        <translation>micro-ohms</translation>
    </message>
    <message>
        <source>eSMilliohm_Alternate1</source>
        <translation>milliohms</translation>
    </message>
    <message>
        <source>eSMilliohm_Alternate2</source>
        <translation>mΩ</translation>
    </message>
    <message>
        <source>eSMilliohm_Alternate3</source>
        <translation>mOhm</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_ElectricalResistivity</name>
    <message>
        <source>eSOhmMeter_Alternate1</source>
        <translation>ohm meters</translation>
    </message>
    <message>
        <source>eSOhmMeter_Alternate2</source>
        <translation>ohm metre</translation>
    </message>
    <message>
        <source>eSOhmMeter_Alternate3</source>
        <translation>ohm metres</translation>
    </message>
    <message>
        <source>eSOhmMeter_Alternate4</source>
        <translation>ohm-m</translation>
    </message>
    <message>
        <source>eSOhmMeter_Alternate5</source>
        <translation>ohm·m</translation>
    </message>
    <message>
        <source>eSOhmMeter_Alternate6</source>
        <translation>Ωm</translation>
    </message>
    <message>
        <source>eSOhmMeter_Alternate7</source>
        <translation>Ω·m</translation>
    </message>
    <message>
        <source>eSOhmMeter_Alternate8</source>
        <translation>Ωm</translation>
    </message>
    <message>
        <source>eSOhmMeter_Alternate9</source>
        <translation>ohm-meter</translation>
    </message>
    <message>
        <source>eSOhmMeter_Alternate10</source>
        <translation>ohm-meters</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Energy</name>
    <message>
        <source>eSJoule_Alternate1</source>
        <translation>joules</translation>
    </message>
    <message>
        <source>eSCalorie_Alternate1</source>
        <translation>calories</translation>
    </message>
    <message>
        <source>eSKilocalorie_Alternate1</source>
        <translation>kilocalories</translation>
    </message>
    <message>
        <source>eSKilocalorie_Alternate2</source>
        <translation>Cal</translation>
    </message>
    <message>
        <source>eSKilocalorie_Alternate3</source>
        <translation>Calorie</translation>
    </message>
    <message>
        <source>eSKilocalorie_Alternate4</source>
        <translation>Calories</translation>
    </message>
    <message>
        <source>eSKilocalorie_Alternate5</source>
        <translation>food calorie</translation>
    </message>
    <message>
        <source>eSKilocalorie_Alternate6</source>
        <translation>food calories</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitInternationalTable_Alternate1</source>
        <translation>Btu</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitInternationalTable_Alternate2</source>
        <translation>btu</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitInternationalTable_Alternate3</source>
        <translation>BTUs</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitInternationalTable_Alternate4</source>
        <translation>Btus</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitInternationalTable_Alternate5</source>
        <translation>British thermal unit</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitInternationalTable_Alternate6</source>
        <translation>British thermal units</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitInternationalTable_Alternate7</source>
        <translation>British Thermal Unit</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitInternationalTable_Alternate8</source>
        <translation>British Thermal Units</translation>
    </message>
    <message>
        <source>eSKiloelectronvolt_Alternate1</source>
        <translation>kiloelectronvolts</translation>
    </message>
    <message>
        <source>eSMegaelectronvolt_Alternate1</source>
        <translation>megaelectronvolts</translation>
    </message>
    <message>
        <source>eSElectronvolt_Alternate1</source>
        <translation>electronvolts</translation>
    </message>
    <message>
        <source>eSElectronvolt_Alternate2</source>
        <translation>electron volt</translation>
    </message>
    <message>
        <source>eSElectronvolt_Alternate3</source>
        <translation>electron volts</translation>
    </message>
    <message>
        <source>eSElectronvolt_Alternate4</source>
        <translation>electron-volt</translation>
    </message>
    <message>
        <source>eSElectronvolt_Alternate5</source>
        <translation>electron-volts</translation>
    </message>
    <message>
        <source>eSErg_Alternate1</source>
        <translation>ergs</translation>
    </message>
    <message>
        <source>eSKilowattHour_Alternate1</source>
        <translation>kilowatt hours</translation>
    </message>
    <message>
        <source>eSKilowattHour_Alternate2</source>
        <translation>kilowatt-hour</translation>
    </message>
    <message>
        <source>eSKilowattHour_Alternate3</source>
        <translation>kilowatt-hours</translation>
    </message>
    <message>
        <source>eSKilowattHour_Alternate4</source>
        <translation>kwh</translation>
    </message>
    <message>
        <source>eSKilowattHour_Alternate5</source>
        <translation>KWH</translation>
    </message>
    <message>
        <source>eSKilowattHour_Alternate6</source>
        <translation>kW-h</translation>
    </message>
    <message>
        <source>eSKilowattHour_Alternate7</source>
        <translation>kW.h</translation>
    </message>
    <message>
        <source>eSKilowattMinute_Alternate1</source>
        <translation>kilowatt minutes</translation>
    </message>
    <message>
        <source>eSKilowattMinute_Alternate2</source>
        <translation>kilowatt-minute</translation>
    </message>
    <message>
        <source>eSKilowattMinute_Alternate3</source>
        <translation>kilowatt-minutes</translation>
    </message>
    <message>
        <source>eSKilowattSecond_Alternate1</source>
        <translation>kilowatt seconds</translation>
    </message>
    <message>
        <source>eSKilowattSecond_Alternate2</source>
        <translation>kilowatt-second</translation>
    </message>
    <message>
        <source>eSKilowattSecond_Alternate3</source>
        <translation>kilowatt-seconds</translation>
    </message>
    <message>
        <source>eSThermUS_Alternate1</source>
        <translation>therm</translation>
    </message>
    <message>
        <source>eSThermUS_Alternate2</source>
        <translation>therms</translation>
    </message>
    <message>
        <source>eSThermUS_Alternate3</source>
        <translation>US therm</translation>
    </message>
    <message>
        <source>eSThermUS_Alternate4</source>
        <translation>US therms</translation>
    </message>
    <message>
        <source>eSNewtonMeter_Alternate1</source>
        <translation>newton meters</translation>
    </message>
    <message>
        <source>eSNewtonMeter_Alternate2</source>
        <translation>newton metre</translation>
    </message>
    <message>
        <source>eSNewtonMeter_Alternate3</source>
        <translation>newton metres</translation>
    </message>
    <message>
        <source>eSNewtonMeter_Alternate4</source>
        <translation>N-m</translation>
    </message>
    <message>
        <source>eSNewtonMeter_Alternate5</source>
        <translation>newton-meter</translation>
    </message>
    <message>
        <source>eSNewtonMeter_Alternate6</source>
        <translation>newton-meters</translation>
    </message>
    <message>
        <source>eSNewtonMeter_Alternate7</source>
        <translation>newton-metre</translation>
    </message>
    <message>
        <source>eSNewtonMeter_Alternate8</source>
        <translation>newton-metres</translation>
    </message>
    <message>
        <source>eSDecanewtonMeter_Alternate1</source>
        <translation>decanewton meters</translation>
    </message>
    <message>
        <source>eSDecanewtonMeter_Alternate2</source>
        <translation>decanewton metre</translation>
    </message>
    <message>
        <source>eSDecanewtonMeter_Alternate3</source>
        <translation>decanewton metres</translation>
    </message>
    <message>
        <source>eSDecanewtonMeter_Alternate4</source>
        <translation>dekanewton meter</translation>
    </message>
    <message>
        <source>eSDecanewtonMeter_Alternate5</source>
        <translation>dekanewton meters</translation>
    </message>
    <message>
        <source>eSDecanewtonMeter_Alternate6</source>
        <translation>dekanewton metre</translation>
    </message>
    <message>
        <source>eSDecanewtonMeter_Alternate7</source>
        <translation>dekanewton metres</translation>
    </message>
    <message>
        <source>eSKilonewtonMeter_Alternate1</source>
        <translation>kilonewton meters</translation>
    </message>
    <message>
        <source>eSKilonewtonMeter_Alternate2</source>
        <translation>kilonewton metre</translation>
    </message>
    <message>
        <source>eSKilonewtonMeter_Alternate3</source>
        <translation>kilonewton metres</translation>
    </message>
    <message>
        <source>eSKilonewtonMeter_Alternate4</source>
        <translation>kilonewton-meter</translation>
    </message>
    <message>
        <source>eSKilonewtonMeter_Alternate5</source>
        <translation>kilonewton-meters</translation>
    </message>
    <message>
        <source>eSMeganewtonMeter_Alternate1</source>
        <translation>meganewton meters</translation>
    </message>
    <message>
        <source>eSMeganewtonMeter_Alternate2</source>
        <translation>meganewton metre</translation>
    </message>
    <message>
        <source>eSMeganewtonMeter_Alternate3</source>
        <translation>meganewton metres</translation>
    </message>
    <message>
        <source>eSKilogramForceMeter_Alternate1</source>
        <translation>kilogram force meters</translation>
    </message>
    <message>
        <source>eSKilogramForceMeter_Alternate2</source>
        <translation>kilogram force metre</translation>
    </message>
    <message>
        <source>eSKilogramForceMeter_Alternate3</source>
        <translation>kilogram force metres</translation>
    </message>
    <message>
        <source>eSKilogramForceMeter_Alternate4</source>
        <translation>kgf-m</translation>
    </message>
    <message>
        <source>eSKilogramForceMeter_Alternate5</source>
        <translation>kgf·m</translation>
    </message>
    <message>
        <source>eSKilogramForceMeter_Alternate6</source>
        <translation>kilogram-force meter</translation>
    </message>
    <message>
        <source>eSKilogramForceMeter_Alternate7</source>
        <translation>kilogram-force meters</translation>
    </message>
    <message>
        <source>eSKilogramForceFoot_Alternate1</source>
        <translation>kilogram force feet</translation>
    </message>
    <message>
        <source>eSTonForceFoot_Alternate1</source>
        <translation>ton force feet</translation>
    </message>
    <message>
        <source>eSTonForceMeter_Alternate1</source>
        <translation>ton force meters</translation>
    </message>
    <message>
        <source>eSTonForceMeter_Alternate2</source>
        <translation>ton force metre</translation>
    </message>
    <message>
        <source>eSTonForceMeter_Alternate3</source>
        <translation>ton force metres</translation>
    </message>
    <message>
        <source>eSFootKilopound_Alternate1</source>
        <translation>foot kilopounds</translation>
    </message>
    <message>
        <source>eSFootPoundForce_Alternate1</source>
        <translation>foot pounds force</translation>
    </message>
    <message>
        <source>eSFootPoundForce_Alternate2</source>
        <translation>ft-lbf</translation>
    </message>
    <message>
        <source>eSFootPoundForce_Alternate3</source>
        <translation>ft·lbf</translation>
    </message>
    <message>
        <source>eSFootPoundForce_Alternate4</source>
        <translation>foot-pound</translation>
    </message>
    <message>
        <source>eSFootPoundForce_Alternate5</source>
        <translation>foot-pounds</translation>
    </message>
    <message>
        <source>eSFootPoundForce_Alternate6</source>
        <translation>foot pound</translation>
    </message>
    <message>
        <source>eSFootPoundForce_Alternate7</source>
        <translation>foot pounds</translation>
    </message>
    <message>
        <source>eSFootPoundForce_Alternate8</source>
        <translation>foot-pound force</translation>
    </message>
    <message>
        <source>eSCalorieThermochemical_Alternate1</source>
        <translation>thermochemical calorie</translation>
    </message>
    <message>
        <source>eSCalorieThermochemical_Alternate2</source>
        <translation>thermochemical calories</translation>
    </message>
    <message>
        <source>eSThermEC_Alternate1</source>
        <translation>EC therm</translation>
    </message>
    <message>
        <source>eSThermEC_Alternate2</source>
        <translation>EC therms</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_FlowRatePerStroke</name>
    <message>
        <source>eSPintPerStroke_Alternate1</source>
        <translation>pints per stroke</translation>
    </message>
    <message>
        <source>eSQuartPerStroke_Alternate1</source>
        <translation>quarts per stroke</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Force</name>
    <message>
        <source>eSNewton_Alternate1</source>
        <translation>newtons</translation>
    </message>
    <message>
        <source>eSYottanewton_Alternate1</source>
        <translation>yottanewtons</translation>
    </message>
    <message>
        <source>eSZettanewton_Alternate1</source>
        <translation>zettanewtons</translation>
    </message>
    <message>
        <source>eSExanewton_Alternate1</source>
        <translation>exanewtons</translation>
    </message>
    <message>
        <source>eSPetanewton_Alternate1</source>
        <translation>petanewtons</translation>
    </message>
    <message>
        <source>eSTeranewton_Alternate1</source>
        <translation>teranewtons</translation>
    </message>
    <message>
        <source>eSGiganewton_Alternate1</source>
        <translation>giganewtons</translation>
    </message>
    <message>
        <source>eSMeganewton_Alternate1</source>
        <translation>meganewtons</translation>
    </message>
    <message>
        <source>eSKilonewton_Alternate1</source>
        <translation>kilonewtons</translation>
    </message>
    <message>
        <source>eSHectonewton_Alternate1</source>
        <translation>hectonewtons</translation>
    </message>
    <message>
        <source>eSDecanewton_Alternate1</source>
        <translation>decanewtons</translation>
    </message>
    <message>
        <source>eSDecanewton_Alternate2</source>
        <translation>dekanewton</translation>
    </message>
    <message>
        <source>eSDecanewton_Alternate3</source>
        <translation>dekanewtons</translation>
    </message>
    <message>
        <source>eSDecinewton_Alternate1</source>
        <translation>decinewtons</translation>
    </message>
    <message>
        <source>eSCentinewton_Alternate1</source>
        <translation>centinewtons</translation>
    </message>
    <message>
        <source>eSMillinewton_Alternate1</source>
        <translation>millinewtons</translation>
    </message>
    <message>
        <source>eSMicronewton_Alternate1</source>
        <translation>micronewtons</translation>
    </message>
    <message>
        <source>eSNanonewton_Alternate1</source>
        <translation>nanonewtons</translation>
    </message>
    <message>
        <source>eSPiconewton_Alternate1</source>
        <translation>piconewtons</translation>
    </message>
    <message>
        <source>eSFemtonewton_Alternate1</source>
        <translation>femtonewtons</translation>
    </message>
    <message>
        <source>eSAttonewton_Alternate1</source>
        <translation>attonewtons</translation>
    </message>
    <message>
        <source>eSZeptonewton_Alternate1</source>
        <translation>zeptonewtons</translation>
    </message>
    <message>
        <source>eSYoctonewton_Alternate1</source>
        <translation>yoctonewtons</translation>
    </message>
    <message>
        <source>eSKilopound_Alternate1</source>
        <translation>kilopounds</translation>
    </message>
    <message>
        <source>eSKilogramForce_Alternate1</source>
        <translation>kilograms-force</translation>
    </message>
    <message>
        <source>eSKilogramForce_Alternate2</source>
        <translation>kilogram force</translation>
    </message>
    <message>
        <source>eSKilogramForce_Alternate3</source>
        <translation>kilograms force</translation>
    </message>
    <message>
        <source>eSKilogramForce_Alternate4</source>
        <translation>kilopond</translation>
    </message>
    <message>
        <source>eSKilogramForce_Alternate5</source>
        <translation>kiloponds</translation>
    </message>
    <message>
        <source>eSPoundForce_Alternate1</source>
        <translation>pounds force</translation>
    </message>
    <message>
        <source>eSPoundForce_Alternate2</source>
        <translation>pound-force</translation>
    </message>
    <message>
        <source>eSPoundForce_Alternate3</source>
        <translation>pounds-force</translation>
    </message>
    <message>
        <source>eSPoundForce_Alternate4</source>
        <translation>lbs force</translation>
    </message>
    <message>
        <source>eSPoundForce_Alternate5</source>
        <translation>lb force</translation>
    </message>
    <message>
        <source>eSKip_Alternate1</source>
        <translation>kips</translation>
    </message>
    <message>
        <source>eSKip_Alternate2</source>
        <translation>kilopound-force</translation>
    </message>
    <message>
        <source>eSKip_Alternate3</source>
        <translation>kilopounds-force</translation>
    </message>
    <message>
        <source>eSTonForce_Alternate1</source>
        <translation>tons force</translation>
    </message>
    <message>
        <source>eSTonForce_Alternate2</source>
        <translation>ton-force</translation>
    </message>
    <message>
        <source>eSTonForce_Alternate3</source>
        <translation>tons-force</translation>
    </message>
    <message>
        <source>eSDyne_Alternate1</source>
        <translation>dynes</translation>
    </message>
    <message>
        <source>eSOunceForce_Alternate1</source>
        <translation>ounces force</translation>
    </message>
    <message>
        <source>eSOunceForce_Alternate2</source>
        <translation>ounce-force</translation>
    </message>
    <message>
        <source>eSOunceForce_Alternate3</source>
        <translation>ounces-force</translation>
    </message>
    <message>
        <source>eSOunceForce_Alternate4</source>
        <translation>oz force</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_ForceScale</name>
    <message>
        <source>eSMeterPerNewton_Alternate1</source>
        <translation>meters per newton</translation>
    </message>
    <message>
        <source>eSMeterPerNewton_Alternate2</source>
        <translation>metre per newton</translation>
    </message>
    <message>
        <source>eSMeterPerNewton_Alternate3</source>
        <translation>metres per newton</translation>
    </message>
    <message>
        <source>eSMeterPerKilonewton_Alternate1</source>
        <translation>meters per kilonewton</translation>
    </message>
    <message>
        <source>eSMeterPerKilonewton_Alternate2</source>
        <translation>metre per kilonewton</translation>
    </message>
    <message>
        <source>eSMeterPerKilonewton_Alternate3</source>
        <translation>metres per kilonewton</translation>
    </message>
    <message>
        <source>eSFootPerKip_Alternate1</source>
        <translation>feet per kip</translation>
    </message>
    <message>
        <source>eSFootPerKip_Alternate2</source>
        <translation>ft/k</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Frequency</name>
    <message>
        <source>eSCyclePerSecond_Alternate1</source>
        <translation>cycles per second</translation>
    </message>
    <message>
        <source>eSCyclePerSecond_Alternate2</source>
        <translation>c/s</translation>
    </message>
    <message>
        <source>eSRevolutionPerMinute_Alternate1</source>
        <translation>revolutions per minute</translation>
    </message>
    <message>
        <source>eSRevolutionPerMinute_Alternate2</source>
        <translation>rpm</translation>
    </message>
    <message>
        <source>eSRevolutionPerMinute_Alternate3</source>
        <translation>RPM</translation>
    </message>
    <message>
        <source>eSRevolutionPerMinute_Alternate4</source>
        <translation>r/min</translation>
    </message>
    <message>
        <source>eSRevolutionPerMinute_Alternate5</source>
        <translation>rev/min</translation>
    </message>
    <message>
        <source>eSRevolutionPerMinute_Alternate6</source>
        <translation>revs per minute</translation>
    </message>
    <message>
        <source>eSRevolutionPerMinute_Alternate7</source>
        <translation>rev per minute</translation>
    </message>
    <message>
        <source>eSRevolutionPerMinute_Alternate8</source>
        <translation>rpms</translation>
    </message>
    <message>
        <source>eSFlashPerSecond_Alternate1</source>
        <translation>flashes per second</translation>
    </message>
    <message>
        <source>eSFlashPerMinute_Alternate1</source>
        <translation>flashes per minute</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Friction</name>
    <message>
        <source>eSPascalPerMeter_Alternate1</source>
        <translation>pascals per meter</translation>
    </message>
    <message>
        <source>eSPascalPerMeter_Alternate2</source>
        <translation>pascal per metre</translation>
    </message>
    <message>
        <source>eSPascalPerMeter_Alternate3</source>
        <translation>pascals per metre</translation>
    </message>
    <message>
        <source>eSInchOfWaterPer100foot_Alternate1</source>
        <translation>in. wc/100 ft</translation>
    </message>
    <message>
        <source>eSInchOfWaterPer100foot_Alternate2</source>
        <translation>in wc/100 ft</translation>
    </message>
    <message>
        <source>eSInchOfWaterPer100foot_Alternate3</source>
        <translation>inH2O/100ft</translation>
    </message>
    <message>
        <source>eSInchOfWaterPer100foot_Alternate4</source>
        <translation>in H2O/100 ft</translation>
    </message>
    <message>
        <source>eSFootOfWaterPer100foot_Alternate1</source>
        <translation>ft wc/100 ft</translation>
    </message>
    <message>
        <source>eSFootOfWaterPer100foot_Alternate2</source>
        <translation>ftH2O/100ft</translation>
    </message>
    <message>
        <source>eSFootOfWaterPer100foot_Alternate3</source>
        <translation>ft H2O/100 ft</translation>
    </message>
    <message>
        <source>eSInchOfMercuryPer100foot_Alternate1</source>
        <translation>inHg/100ft</translation>
    </message>
    <message>
        <source>eSInchOfMercuryPer100foot_Alternate2</source>
        <translation>in Hg/100 ft</translation>
    </message>
    <message>
        <source>eSMillimeterOfMercuryPer100foot_Alternate1</source>
        <translation>millimetre of mercury per 100foot</translation>
    </message>
    <message>
        <source>eSMillimeterOfMercuryPer100foot_Alternate2</source>
        <translation>mmHg/100ft</translation>
    </message>
    <message>
        <source>eSMillimeterOfMercuryPer100foot_Alternate3</source>
        <translation>mm Hg/100 ft</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_HeatTransferCoefficient</name>
    <message>
        <source>eSWPerm2K_Alternate1</source>
        <translation>W/(m^2·K)</translation>
    </message>
    <message>
        <source>eSBTUPerhft2DegreeF_Alternate1</source>
        <translation>BTU/(h·ft^2·°F)</translation>
    </message>
    <message>
        <source>eSBTUPerhrft2DegreeF_Alternate1</source>
        <translation>BTU/(hr·ft^2·°F)</translation>
    </message>
    <message>
        <source>eSBtuPerhft2DegreeF_Alternate1</source>
        <translation>Btu/(h·ft^2·°F)</translation>
    </message>
    <message>
        <source>eSBtuPerhrft2DegreeF_Alternate1</source>
        <translation>Btu/(hr·ft^2·°F)</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeterKelvin_Alternate1</source>
        <translation>watts per square meter kelvin</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeterKelvin_Alternate2</source>
        <translation>watt per square metre kelvin</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeterKelvin_Alternate3</source>
        <translation>watts per square metre kelvin</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeterKelvin_Alternate4</source>
        <translation>W/m2K</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeterKelvin_Alternate5</source>
        <translation>W/m2-K</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeterKelvin_Alternate6</source>
        <translation>W/m2·K</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeterKelvin_Alternate7</source>
        <translation>W/(m2 K)</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeterKelvin_Alternate8</source>
        <translation>W/(m2·K)</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeterKelvin_Alternate9</source>
        <translation>W/m²K</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFootFahrenheit_Alternate1</source>
        <translation>british thermal units per hour square foot fahrenheit</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFootFahrenheit_Alternate2</source>
        <translation>Btu/hr-ft2-F</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFootFahrenheit_Alternate3</source>
        <translation>BTU/hr-ft2-F</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFootFahrenheit_Alternate4</source>
        <translation>Btu/h-ft2-F</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFootFahrenheit_Alternate5</source>
        <translation>Btu/(h ft2 F)</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFootFahrenheit_Alternate6</source>
        <translation>Btuh/ft2F</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFootFahrenheit_Alternate7</source>
        <translation>Btu/hr-ft2-°F</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFootFahrenheit_Alternate8</source>
        <translation>Btu/(hr·ft2·°F)</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Illuminance</name>
    <message>
        <source>eSlmPerft2_Alternate1</source>
        <translation>lm/ft^2</translation>
    </message>
    <message>
        <source>eSLuxIlluminance_Alternate1</source>
        <translation>lux</translation>
    </message>
    <message>
        <source>eSLuxIlluminance_Alternate2</source>
        <translation>Lux</translation>
    </message>
    <message>
        <source>eSLuxIlluminance_Alternate3</source>
        <translation>lumens per square meter</translation>
    </message>
    <message>
        <source>eSLuxIlluminance_Alternate4</source>
        <translation>lm/m2</translation>
    </message>
    <message>
        <source>eSFootcandle_Alternate1</source>
        <translation>footcandles</translation>
    </message>
    <message>
        <source>eSFootcandle_Alternate2</source>
        <translation>foot-candle</translation>
    </message>
    <message>
        <source>eSFootcandle_Alternate3</source>
        <translation>foot-candles</translation>
    </message>
    <message>
        <source>eSFootcandle_Alternate4</source>
        <translation>foot candle</translation>
    </message>
    <message>
        <source>eSFootcandle_Alternate5</source>
        <translation>foot candles</translation>
    </message>
    <message>
        <source>eSFootcandle_Alternate6</source>
        <translation>ft-c</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Inductance</name>
    <message>
        <source>eSHenry_Alternate1</source>
        <translation>henries</translation>
    </message>
    <message>
        <source>eSHenry_Alternate2</source>
        <translation>henrys</translation>
    </message>
    <message>
        <source>eSNanohenry_Alternate1</source>
        <translation>nanohenries</translation>
    </message>
    <message>
        <source>eSMicrohenry_Alternate1</source>
        <translation>microhenries</translation>
    </message>
    <message>
        <source>eSMicrohenry_Alternate2</source>
        <translation>μH</translation>
    </message>
    <message>
        <source>eSMillihenry_Alternate1</source>
        <translation>millihenries</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_KinematicViscosity</name>
    <message>
        <source>eSStoke_Alternate1</source>
        <translation>stokes</translation>
    </message>
    <message>
        <source>eSStoke_Alternate2</source>
        <translation>cm2/s</translation>
    </message>
    <message>
        <source>eSCentistoke_Alternate1</source>
        <translation>centistokes</translation>
    </message>
    <message>
        <source>eSCentistoke_Alternate2</source>
        <translation>mm2/s</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Length</name>
    <message>
        <source>eSMeter_Alternate1</source>
        <translation>meters</translation>
    </message>
    <message>
        <source>eSMeter_Alternate2</source>
        <translation>metre</translation>
    </message>
    <message>
        <source>eSMeter_Alternate3</source>
        <translation>metres</translation>
    </message>
    <message>
        <source>eSYottameter_Alternate1</source>
        <translation>yottameters</translation>
    </message>
    <message>
        <source>eSYottameter_Alternate2</source>
        <translation>yottametre</translation>
    </message>
    <message>
        <source>eSYottameter_Alternate3</source>
        <translation>yottametres</translation>
    </message>
    <message>
        <source>eSZettameter_Alternate1</source>
        <translation>zettameters</translation>
    </message>
    <message>
        <source>eSZettameter_Alternate2</source>
        <translation>zettametre</translation>
    </message>
    <message>
        <source>eSZettameter_Alternate3</source>
        <translation>zettametres</translation>
    </message>
    <message>
        <source>eSExameter_Alternate1</source>
        <translation>exameters</translation>
    </message>
    <message>
        <source>eSExameter_Alternate2</source>
        <translation>exametre</translation>
    </message>
    <message>
        <source>eSExameter_Alternate3</source>
        <translation>exametres</translation>
    </message>
    <message>
        <source>eSPetameter_Alternate1</source>
        <translation>petameters</translation>
    </message>
    <message>
        <source>eSPetameter_Alternate2</source>
        <translation>petametre</translation>
    </message>
    <message>
        <source>eSPetameter_Alternate3</source>
        <translation>petametres</translation>
    </message>
    <message>
        <source>eSTerameter_Alternate1</source>
        <translation>terameters</translation>
    </message>
    <message>
        <source>eSTerameter_Alternate2</source>
        <translation>terametre</translation>
    </message>
    <message>
        <source>eSTerameter_Alternate3</source>
        <translation>terametres</translation>
    </message>
    <message>
        <source>eSGigameter_Alternate1</source>
        <translation>gigameters</translation>
    </message>
    <message>
        <source>eSGigameter_Alternate2</source>
        <translation>gigametre</translation>
    </message>
    <message>
        <source>eSGigameter_Alternate3</source>
        <translation>gigametres</translation>
    </message>
    <message>
        <source>eSMegameter_Alternate1</source>
        <translation>megameters</translation>
    </message>
    <message>
        <source>eSMegameter_Alternate2</source>
        <translation>megametre</translation>
    </message>
    <message>
        <source>eSMegameter_Alternate3</source>
        <translation>megametres</translation>
    </message>
    <message>
        <source>eSKilometer_Alternate1</source>
        <translation>kilometers</translation>
    </message>
    <message>
        <source>eSKilometer_Alternate2</source>
        <translation>kilometre</translation>
    </message>
    <message>
        <source>eSKilometer_Alternate3</source>
        <translation>kilometres</translation>
    </message>
    <message>
        <source>eSKilometer_Alternate4</source>
        <translation>kms</translation>
    </message>
    <message>
        <source>eSHectometer_Alternate1</source>
        <translation>hectometers</translation>
    </message>
    <message>
        <source>eSHectometer_Alternate2</source>
        <translation>hectometre</translation>
    </message>
    <message>
        <source>eSHectometer_Alternate3</source>
        <translation>hectometres</translation>
    </message>
    <message>
        <source>eSDecameter_Alternate1</source>
        <translation>decameters</translation>
    </message>
    <message>
        <source>eSDecameter_Alternate2</source>
        <translation>decametre</translation>
    </message>
    <message>
        <source>eSDecameter_Alternate3</source>
        <translation>decametres</translation>
    </message>
    <message>
        <source>eSDecameter_Alternate4</source>
        <translation>dekameter</translation>
    </message>
    <message>
        <source>eSDecameter_Alternate5</source>
        <translation>dekameters</translation>
    </message>
    <message>
        <source>eSDecameter_Alternate6</source>
        <translation>dekametre</translation>
    </message>
    <message>
        <source>eSDecameter_Alternate7</source>
        <translation>dekametres</translation>
    </message>
    <message>
        <source>eSDecimeter_Alternate1</source>
        <translation>decimeters</translation>
    </message>
    <message>
        <source>eSDecimeter_Alternate2</source>
        <translation>decimetre</translation>
    </message>
    <message>
        <source>eSDecimeter_Alternate3</source>
        <translation>decimetres</translation>
    </message>
    <message>
        <source>eSCentimeter_Alternate1</source>
        <translation>centimeters</translation>
    </message>
    <message>
        <source>eSCentimeter_Alternate2</source>
        <translation>centimetre</translation>
    </message>
    <message>
        <source>eSCentimeter_Alternate3</source>
        <translation>centimetres</translation>
    </message>
    <message>
        <source>eSMillimeter_Alternate1</source>
        <translation>millimeters</translation>
    </message>
    <message>
        <source>eSMillimeter_Alternate2</source>
        <translation>millimetre</translation>
    </message>
    <message>
        <source>eSMillimeter_Alternate3</source>
        <translation>millimetres</translation>
    </message>
    <message>
        <source>eSMicrometer_Alternate1</source>
        <translation>micrometers</translation>
    </message>
    <message>
        <source>eSMicrometer_Alternate2</source>
        <translation>micrometre</translation>
    </message>
    <message>
        <source>eSMicrometer_Alternate3</source>
        <translation>micrometres</translation>
    </message>
    <message>
        <source>eSMicrometer_Alternate4</source>
        <translation>μm</translation>
    </message>
    <message>
        <source>eSNanometer_Alternate1</source>
        <translation>nanometers</translation>
    </message>
    <message>
        <source>eSNanometer_Alternate2</source>
        <translation>nanometre</translation>
    </message>
    <message>
        <source>eSNanometer_Alternate3</source>
        <translation>nanometres</translation>
    </message>
    <message>
        <source>eSPicometer_Alternate1</source>
        <translation>picometers</translation>
    </message>
    <message>
        <source>eSPicometer_Alternate2</source>
        <translation>picometre</translation>
    </message>
    <message>
        <source>eSPicometer_Alternate3</source>
        <translation>picometres</translation>
    </message>
    <message>
        <source>eSFemtometer_Alternate1</source>
        <translation>femtometers</translation>
    </message>
    <message>
        <source>eSFemtometer_Alternate2</source>
        <translation>femtometre</translation>
    </message>
    <message>
        <source>eSFemtometer_Alternate3</source>
        <translation>femtometres</translation>
    </message>
    <message>
        <source>eSAttometer_Alternate1</source>
        <translation>attometers</translation>
    </message>
    <message>
        <source>eSAttometer_Alternate2</source>
        <translation>attometre</translation>
    </message>
    <message>
        <source>eSAttometer_Alternate3</source>
        <translation>attometres</translation>
    </message>
    <message>
        <source>eSZeptometer_Alternate1</source>
        <translation>zeptometers</translation>
    </message>
    <message>
        <source>eSZeptometer_Alternate2</source>
        <translation>zeptometre</translation>
    </message>
    <message>
        <source>eSZeptometer_Alternate3</source>
        <translation>zeptometres</translation>
    </message>
    <message>
        <source>eSYoctometer_Alternate1</source>
        <translation>yoctometers</translation>
    </message>
    <message>
        <source>eSYoctometer_Alternate2</source>
        <translation>yoctometre</translation>
    </message>
    <message>
        <source>eSYoctometer_Alternate3</source>
        <translation>yoctometres</translation>
    </message>
    <message>
        <source>eSInch_Alternate1</source>
        <translation>inches</translation>
    </message>
    <message>
        <source>eSInch_Alternate2</source>
        <translation>in.</translation>
    </message>
    <message>
        <source>eSFoot_Alternate1</source>
        <translation>feet</translation>
    </message>
    <message>
        <source>eSFoot_Alternate2</source>
        <translation>ft.</translation>
    </message>
    <message>
        <source>eSFootUSSurvey_Alternate1</source>
        <translation>US survey foot</translation>
    </message>
    <message>
        <source>eSFootUSSurvey_Alternate2</source>
        <translation>US survey feet</translation>
    </message>
    <message>
        <source>eSFootUSSurvey_Alternate3</source>
        <translation>U.S. survey foot</translation>
    </message>
    <message>
        <source>eSFootUSSurvey_Alternate4</source>
        <translation>U.S. survey feet</translation>
    </message>
    <message>
        <source>eSFootUSSurvey_Alternate5</source>
        <translation>survey foot</translation>
    </message>
    <message>
        <source>eSFootUSSurvey_Alternate6</source>
        <translation>survey feet</translation>
    </message>
    <message>
        <source>eSFootUSSurvey_Alternate7</source>
        <translation>ftUS</translation>
    </message>
    <message>
        <source>eSFootUSSurvey_Alternate8</source>
        <translation>US ft</translation>
    </message>
    <message>
        <source>eSYard_Alternate1</source>
        <translation>yards</translation>
    </message>
    <message>
        <source>eSYard_Alternate2</source>
        <translation>yds</translation>
    </message>
    <message>
        <source>eSYard_Alternate3</source>
        <translation>yd.</translation>
    </message>
    <message>
        <source>eSChain_Alternate1</source>
        <translation>chains</translation>
    </message>
    <message>
        <source>eSFurlong_Alternate1</source>
        <translation>furlongs</translation>
    </message>
    <message>
        <source>eSMile_Alternate1</source>
        <translation>miles</translation>
    </message>
    <message>
        <source>eSMile_Alternate2</source>
        <translation>mi.</translation>
    </message>
    <message>
        <source>eSGeographicalMile_Alternate1</source>
        <translation>geographical miles</translation>
    </message>
    <message>
        <source>eSMileUSSurvey_Alternate1</source>
        <translation>US survey mile</translation>
    </message>
    <message>
        <source>eSMileUSSurvey_Alternate2</source>
        <translation>US survey miles</translation>
    </message>
    <message>
        <source>eSMileUSSurvey_Alternate3</source>
        <translation>survey mile</translation>
    </message>
    <message>
        <source>eSMileUSSurvey_Alternate4</source>
        <translation>survey miles</translation>
    </message>
    <message>
        <source>eSNauticalMile_Alternate1</source>
        <translation>nautical miles</translation>
    </message>
    <message>
        <source>eSNauticalMile_Alternate2</source>
        <translation>nautical mi</translation>
    </message>
    <message>
        <source>eSStatuteMile_Alternate1</source>
        <translation>statute miles</translation>
    </message>
    <message>
        <source>eSNauticalMileAdmiralty_Alternate1</source>
        <translation>admiralty mile</translation>
    </message>
    <message>
        <source>eSNauticalMileAdmiralty_Alternate2</source>
        <translation>admiralty miles</translation>
    </message>
    <message>
        <source>eSNauticalMileAdmiralty_Alternate3</source>
        <translation>admiralty nautical mile</translation>
    </message>
    <message>
        <source>eSNauticalMileAdmiralty_Alternate4</source>
        <translation>admiralty nautical miles</translation>
    </message>
    <message>
        <source>eSMicron_Alternate1</source>
        <translation>microns</translation>
    </message>
    <message>
        <source>eSMicroinch_Alternate1</source>
        <translation>microinches</translation>
    </message>
    <message>
        <source>eSMicroinch_Alternate2</source>
        <translation>μin</translation>
    </message>
    <message>
        <source>eSAngstrom_Alternate1</source>
        <translation>angstroms</translation>
    </message>
    <message>
        <source>eSAngstrom_Alternate2</source>
        <translation>Å</translation>
    </message>
    <message>
        <source>eSAngstrom_Alternate3</source>
        <translation>Angstrom</translation>
    </message>
    <message>
        <source>eSAngstrom_Alternate4</source>
        <translation>Angstroms</translation>
    </message>
    <message>
        <source>eSAngstrom_Alternate5</source>
        <translation>ångström</translation>
    </message>
    <message>
        <source>eSAngstrom_Alternate6</source>
        <translation>Ångström</translation>
    </message>
    <message>
        <source>eSAngstrom_Alternate7</source>
        <translation>Ångströms</translation>
    </message>
    <message>
        <source>eSAstronomicalUnit_Alternate1</source>
        <translation>astronomical units</translation>
    </message>
    <message>
        <source>eSAstronomicalUnit_Alternate2</source>
        <translation>au</translation>
    </message>
    <message>
        <source>eSCable_Alternate1</source>
        <translation>cables</translation>
    </message>
    <message>
        <source>eSCubit_Alternate1</source>
        <translation>cubits</translation>
    </message>
    <message>
        <source>eSFathom_Alternate1</source>
        <translation>fathoms</translation>
    </message>
    <message>
        <source>eSFathom_Alternate2</source>
        <translation>ftm</translation>
    </message>
    <message>
        <source>eSHand_Alternate1</source>
        <translation>hands</translation>
    </message>
    <message>
        <source>eSLightYear_Alternate1</source>
        <translation>light-years</translation>
    </message>
    <message>
        <source>eSLightYear_Alternate2</source>
        <translation>light year</translation>
    </message>
    <message>
        <source>eSLightYear_Alternate3</source>
        <translation>light years</translation>
    </message>
    <message>
        <source>eSLightYear_Alternate4</source>
        <translation>lightyear</translation>
    </message>
    <message>
        <source>eSLightYear_Alternate5</source>
        <translation>lightyears</translation>
    </message>
    <message>
        <source>eSSpan_Alternate1</source>
        <translation>spans</translation>
    </message>
    <message>
        <source>eSParsec_Alternate1</source>
        <translation>parsecs</translation>
    </message>
    <message>
        <source>eSNauticalLeague_Alternate1</source>
        <translation>nautical leagues</translation>
    </message>
    <message>
        <source>eSLeague_Alternate1</source>
        <translation>leagues</translation>
    </message>
    <message>
        <source>eSMil_Alternate1</source>
        <translation>mils</translation>
    </message>
    <message>
        <source>eSLink_Alternate1</source>
        <translation>links</translation>
    </message>
    <message>
        <source>eSPace_Alternate1</source>
        <translation>paces</translation>
    </message>
    <message>
        <source>eSPalm_Alternate1</source>
        <translation>palms</translation>
    </message>
    <message>
        <source>eSRod_Alternate1</source>
        <translation>rods</translation>
    </message>
    <message>
        <source>eSRod_Alternate2</source>
        <translation>poles</translation>
    </message>
    <message>
        <source>eSRod_Alternate3</source>
        <translation>perches</translation>
    </message>
    <message>
        <source>eSRope_Alternate1</source>
        <translation>ropes</translation>
    </message>
    <message>
        <source>eSSkein_Alternate1</source>
        <translation>skeins</translation>
    </message>
    <message>
        <source>eSCaliber_Alternate1</source>
        <translation>calibers</translation>
    </message>
    <message>
        <source>eSCaliber_Alternate2</source>
        <translation>calibre</translation>
    </message>
    <message>
        <source>eSCaliber_Alternate3</source>
        <translation>calibres</translation>
    </message>
    <message>
        <source>eSSurveyInch_Alternate1</source>
        <translation>survey inches</translation>
    </message>
    <message>
        <source>eSSurveyYard_Alternate1</source>
        <translation>survey yards</translation>
    </message>
    <message>
        <source>eSSurveyRod_Alternate1</source>
        <translation>survey rods</translation>
    </message>
    <message>
        <source>eSBolt_Alternate1</source>
        <translation>bolts</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_LinearForce</name>
    <message>
        <source>eSNewtonPerMeter_Alternate1</source>
        <translation>newtons per meter</translation>
    </message>
    <message>
        <source>eSNewtonPerMeter_Alternate2</source>
        <translation>newton per metre</translation>
    </message>
    <message>
        <source>eSNewtonPerMeter_Alternate3</source>
        <translation>newtons per metre</translation>
    </message>
    <message>
        <source>eSKilopoundPerFoot_Alternate1</source>
        <translation>kilopounds per foot</translation>
    </message>
    <message>
        <source>eSKilogramForcePerMeter_Alternate1</source>
        <translation>kilograms force per meter</translation>
    </message>
    <message>
        <source>eSKilogramForcePerMeter_Alternate2</source>
        <translation>kilogram force per metre</translation>
    </message>
    <message>
        <source>eSKilogramForcePerMeter_Alternate3</source>
        <translation>kilograms force per metre</translation>
    </message>
    <message>
        <source>eSKilogramForcePerMeter_Alternate4</source>
        <translation>kilograms-force per meter</translation>
    </message>
    <message>
        <source>eSTonForcePerMeter_Alternate1</source>
        <translation>tons force per meter</translation>
    </message>
    <message>
        <source>eSTonForcePerMeter_Alternate2</source>
        <translation>ton force per metre</translation>
    </message>
    <message>
        <source>eSTonForcePerMeter_Alternate3</source>
        <translation>tons force per metre</translation>
    </message>
    <message>
        <source>eSPoundForcePerFoot_Alternate1</source>
        <translation>pounds-force per foot</translation>
    </message>
    <message>
        <source>eSPoundForcePerFoot_Alternate2</source>
        <translation>plf</translation>
    </message>
    <message>
        <source>eSPoundForcePerFoot_Alternate3</source>
        <translation>PLF</translation>
    </message>
    <message>
        <source>eSPoundForcePerFoot_Alternate4</source>
        <translation>pounds per linear foot</translation>
    </message>
    <message>
        <source>eSDecanewtonPerMeter_Alternate1</source>
        <translation>decanewtons per meter</translation>
    </message>
    <message>
        <source>eSDecanewtonPerMeter_Alternate2</source>
        <translation>decanewton per metre</translation>
    </message>
    <message>
        <source>eSDecanewtonPerMeter_Alternate3</source>
        <translation>decanewtons per metre</translation>
    </message>
    <message>
        <source>eSDecanewtonPerMeter_Alternate4</source>
        <translation>dekanewton per meter</translation>
    </message>
    <message>
        <source>eSDecanewtonPerMeter_Alternate5</source>
        <translation>dekanewtons per meter</translation>
    </message>
    <message>
        <source>eSDecanewtonPerMeter_Alternate6</source>
        <translation>dekanewton per metre</translation>
    </message>
    <message>
        <source>eSDecanewtonPerMeter_Alternate7</source>
        <translation>dekanewtons per metre</translation>
    </message>
    <message>
        <source>eSKilonewtonPerMeter_Alternate1</source>
        <translation>kilonewtons per meter</translation>
    </message>
    <message>
        <source>eSKilonewtonPerMeter_Alternate2</source>
        <translation>kilonewton per metre</translation>
    </message>
    <message>
        <source>eSKilonewtonPerMeter_Alternate3</source>
        <translation>kilonewtons per metre</translation>
    </message>
    <message>
        <source>eSMeganewtonPerMeter_Alternate1</source>
        <translation>meganewtons per meter</translation>
    </message>
    <message>
        <source>eSMeganewtonPerMeter_Alternate2</source>
        <translation>meganewton per metre</translation>
    </message>
    <message>
        <source>eSMeganewtonPerMeter_Alternate3</source>
        <translation>meganewtons per metre</translation>
    </message>
    <message>
        <source>eSKipPerFoot_Alternate1</source>
        <translation>kips per foot</translation>
    </message>
    <message>
        <source>eSKipPerFoot_Alternate2</source>
        <translation>klf</translation>
    </message>
    <message>
        <source>eSKipPerFoot_Alternate3</source>
        <translation>KLF</translation>
    </message>
    <message>
        <source>eSKipPerFoot_Alternate4</source>
        <translation>k/ft</translation>
    </message>
    <message>
        <source>eSKipPerFoot_Alternate5</source>
        <translation>kips per linear foot</translation>
    </message>
    <message>
        <source>eSKipPerInch_Alternate1</source>
        <translation>kips per inch</translation>
    </message>
    <message>
        <source>eSKipPerInch_Alternate2</source>
        <translation>kli</translation>
    </message>
    <message>
        <source>eSKipPerInch_Alternate3</source>
        <translation>KLI</translation>
    </message>
    <message>
        <source>eSKipPerInch_Alternate4</source>
        <translation>k/in</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_LinearForceScale</name>
    <message>
        <source>eSm2PerN_Alternate1</source>
        <translation>m^2/N</translation>
    </message>
    <message>
        <source>eSm2PerkN_Alternate1</source>
        <translation>m^2/kN</translation>
    </message>
    <message>
        <source>eSft2Perkip_Alternate1</source>
        <translation>ft^2/kip</translation>
    </message>
    <message>
        <source>eSft2Perkipf_Alternate1</source>
        <translation>ft^2/kipf</translation>
    </message>
    <message>
        <source>eSft2Perklbf_Alternate1</source>
        <translation>ft^2/klbf</translation>
    </message>
    <message>
        <source>eSft2Perklb_Alternate1</source>
        <translation>ft^2/klb</translation>
    </message>
    <message>
        <source>eSSquareMeterPerNewton_Alternate1</source>
        <translation>square meters per newton</translation>
    </message>
    <message>
        <source>eSSquareMeterPerNewton_Alternate2</source>
        <translation>square metre per newton</translation>
    </message>
    <message>
        <source>eSSquareMeterPerNewton_Alternate3</source>
        <translation>square metres per newton</translation>
    </message>
    <message>
        <source>eSSquareMeterPerNewton_Alternate4</source>
        <translation>m2/N</translation>
    </message>
    <message>
        <source>eSSquareMeterPerKilonewton_Alternate1</source>
        <translation>square meters per kilonewton</translation>
    </message>
    <message>
        <source>eSSquareMeterPerKilonewton_Alternate2</source>
        <translation>square metre per kilonewton</translation>
    </message>
    <message>
        <source>eSSquareMeterPerKilonewton_Alternate3</source>
        <translation>square metres per kilonewton</translation>
    </message>
    <message>
        <source>eSSquareMeterPerKilonewton_Alternate4</source>
        <translation>m2/kN</translation>
    </message>
    <message>
        <source>eSSquareFootPerKip_Alternate1</source>
        <translation>square feet per kip</translation>
    </message>
    <message>
        <source>eSSquareFootPerKip_Alternate2</source>
        <translation>ft2/kip</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_LinearMoment</name>
    <message>
        <source>eSNewtonMeterPerMeter_Alternate1</source>
        <translation>newton-meters per meter</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerMeter_Alternate2</source>
        <translation>newton-metre per metre</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerMeter_Alternate3</source>
        <translation>newton-metres per metre</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerMeter_Alternate4</source>
        <translation>N-m/m</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerMeter_Alternate5</source>
        <translation>Nm/m</translation>
    </message>
    <message>
        <source>eSDecanewtonMeterPerMeter_Alternate1</source>
        <translation>decanewton-meters per meter</translation>
    </message>
    <message>
        <source>eSDecanewtonMeterPerMeter_Alternate2</source>
        <translation>decanewton-metre per metre</translation>
    </message>
    <message>
        <source>eSDecanewtonMeterPerMeter_Alternate3</source>
        <translation>decanewton-metres per metre</translation>
    </message>
    <message>
        <source>eSDecanewtonMeterPerMeter_Alternate4</source>
        <translation>dekanewton-meter per meter</translation>
    </message>
    <message>
        <source>eSDecanewtonMeterPerMeter_Alternate5</source>
        <translation>dekanewton-meters per meter</translation>
    </message>
    <message>
        <source>eSDecanewtonMeterPerMeter_Alternate6</source>
        <translation>dekanewton-metre per metre</translation>
    </message>
    <message>
        <source>eSDecanewtonMeterPerMeter_Alternate7</source>
        <translation>dekanewton-metres per metre</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerMeter_Alternate1</source>
        <translation>kilonewton-meters per meter</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerMeter_Alternate2</source>
        <translation>kilonewton-metre per metre</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerMeter_Alternate3</source>
        <translation>kilonewton-metres per metre</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerMeter_Alternate4</source>
        <translation>kN-m/m</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerMeter_Alternate5</source>
        <translation>kNm/m</translation>
    </message>
    <message>
        <source>eSMeganewtonMeterPerMeter_Alternate1</source>
        <translation>meganewton-meters per meter</translation>
    </message>
    <message>
        <source>eSMeganewtonMeterPerMeter_Alternate2</source>
        <translation>meganewton-metre per metre</translation>
    </message>
    <message>
        <source>eSMeganewtonMeterPerMeter_Alternate3</source>
        <translation>meganewton-metres per metre</translation>
    </message>
    <message>
        <source>eSKipFootPerFoot_Alternate1</source>
        <translation>kip-feet per foot</translation>
    </message>
    <message>
        <source>eSKipFootPerFoot_Alternate2</source>
        <translation>kip-ft/ft</translation>
    </message>
    <message>
        <source>eSKipFootPerFoot_Alternate3</source>
        <translation>k-ft/ft</translation>
    </message>
    <message>
        <source>eSKilogramForceMeterPerMeter_Alternate1</source>
        <translation>kilogram force-meters per meter</translation>
    </message>
    <message>
        <source>eSKilogramForceMeterPerMeter_Alternate2</source>
        <translation>kilogram force-metre per metre</translation>
    </message>
    <message>
        <source>eSKilogramForceMeterPerMeter_Alternate3</source>
        <translation>kilogram force-metres per metre</translation>
    </message>
    <message>
        <source>eSTonForceMeterPerMeter_Alternate1</source>
        <translation>ton force-meters per meter</translation>
    </message>
    <message>
        <source>eSTonForceMeterPerMeter_Alternate2</source>
        <translation>ton force-metre per metre</translation>
    </message>
    <message>
        <source>eSTonForceMeterPerMeter_Alternate3</source>
        <translation>ton force-metres per metre</translation>
    </message>
    <message>
        <source>eSPoundForceFootPerFoot_Alternate1</source>
        <translation>pound-force feet per foot</translation>
    </message>
    <message>
        <source>eSPoundForceFootPerFoot_Alternate2</source>
        <translation>lbf-ft/ft</translation>
    </message>
    <message>
        <source>eSPoundForceFootPerFoot_Alternate3</source>
        <translation>lb-ft/ft</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_LinearWeight</name>
    <message>
        <source>eSKilogramPerMeter_Alternate1</source>
        <translation>kilograms per meter</translation>
    </message>
    <message>
        <source>eSKilogramPerMeter_Alternate2</source>
        <translation>kilogram per metre</translation>
    </message>
    <message>
        <source>eSKilogramPerMeter_Alternate3</source>
        <translation>kilograms per metre</translation>
    </message>
    <message>
        <source>eSPoundPerFoot_Alternate1</source>
        <translation>pounds per foot</translation>
    </message>
    <message>
        <source>eSPoundPerFoot_Alternate2</source>
        <translation>lbs/ft</translation>
    </message>
    <message>
        <source>eSPoundPerFoot_Alternate3</source>
        <translation>pounds per ft</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Luminance</name>
    <message>
        <source>eScdPerm2_Alternate1</source>
        <translation>cd/m^2</translation>
    </message>
    <message>
        <source>eScdPerft2_Alternate1</source>
        <translation>cd/ft^2</translation>
    </message>
    <message>
        <source>eSCandelaPerSquareMeter_Alternate1</source>
        <translation>candelas per square meter</translation>
    </message>
    <message>
        <source>eSCandelaPerSquareMeter_Alternate2</source>
        <translation>candela per square metre</translation>
    </message>
    <message>
        <source>eSCandelaPerSquareMeter_Alternate3</source>
        <translation>candelas per square metre</translation>
    </message>
    <message>
        <source>eSCandelaPerSquareMeter_Alternate4</source>
        <translation>cd/m2</translation>
    </message>
    <message>
        <source>eSCandelaPerSquareMeter_Alternate5</source>
        <translation>nit</translation>
    </message>
    <message>
        <source>eSCandelaPerSquareMeter_Alternate6</source>
        <translation>nits</translation>
    </message>
    <message>
        <source>eSFootLambert_Alternate1</source>
        <translation>foot lamberts</translation>
    </message>
    <message>
        <source>eSFootLambert_Alternate2</source>
        <translation>foot-lambert</translation>
    </message>
    <message>
        <source>eSFootLambert_Alternate3</source>
        <translation>foot-lamberts</translation>
    </message>
    <message>
        <source>eSFootLambert_Alternate4</source>
        <translation>ft-L</translation>
    </message>
    <message>
        <source>eSCandelaPerSquareFoot_Alternate1</source>
        <translation>candelas per square foot</translation>
    </message>
    <message>
        <source>eSCandelaPerSquareFoot_Alternate2</source>
        <translation>cd/ft2</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_LuminousEfficacy</name>
    <message>
        <source>eSLumenPerWatt_Alternate1</source>
        <translation>lumens per watt</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_LuminousEnergy</name>
    <message>
        <source>eSLumenSecond_Alternate1</source>
        <translation>lumen seconds</translation>
    </message>
    <message>
        <source>eSTalbots_Alternate1</source>
        <translation>talbot</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_LuminousFlux</name>
    <message>
        <source>eSLumen_Alternate1</source>
        <translation>lumens</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_LuminousIntensity</name>
    <message>
        <source>eSCandela_Alternate1</source>
        <translation>candelas</translation>
    </message>
    <message>
        <source>eSLumenPerSteradian_Alternate1</source>
        <translation>lumens per steradian</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_MagneticFieldIntensity</name>
    <message>
        <source>eSOersted_Alternate1</source>
        <translation>oersteds</translation>
    </message>
    <message>
        <source>eSOersted_Alternate2</source>
        <translation>Oe</translation>
    </message>
    <message>
        <source>eSAmperePerMeter_Alternate1</source>
        <translation>ampere per meter</translation>
    </message>
    <message>
        <source>eSAmperePerMeter_Alternate2</source>
        <translation>amperes per meter</translation>
    </message>
    <message>
        <source>eSAmperePerMeter_Alternate3</source>
        <translation>ampere per metre</translation>
    </message>
    <message>
        <source>eSAmperePerMeter_Alternate4</source>
        <translation>amperes per metre</translation>
    </message>
    <message>
        <source>eSAmperePerMeter_Alternate5</source>
        <translation>amps per meter</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_MagneticFlux</name>
    <message>
        <source>eSWeber_Alternate1</source>
        <translation>webers</translation>
    </message>
    <message>
        <source>eSMaxwell_Alternate1</source>
        <translation>maxwells</translation>
    </message>
    <message>
        <source>eSMaxwell_Alternate2</source>
        <translation>Mx</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_MagneticFluxDensity</name>
    <message>
        <source>eSTesla_Alternate1</source>
        <translation>teslas</translation>
    </message>
    <message>
        <source>eSGamma_Alternate1</source>
        <translation>gammas</translation>
    </message>
    <message>
        <source>eSGamma_Alternate2</source>
        <translation>γ</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Mass</name>
    <message>
        <source>eSKilogram_Alternate1</source>
        <translation>kilograms</translation>
    </message>
    <message>
        <source>eSKilogram_Alternate2</source>
        <translation>kilogramme</translation>
    </message>
    <message>
        <source>eSKilogram_Alternate3</source>
        <translation>kilogrammes</translation>
    </message>
    <message>
        <source>eSKilogram_Alternate4</source>
        <translation>kilo</translation>
    </message>
    <message>
        <source>eSKilogram_Alternate5</source>
        <translation>kilos</translation>
    </message>
    <message>
        <source>eSKilogram_Alternate6</source>
        <translation>kgs</translation>
    </message>
    <message>
        <source>eSGram_Alternate1</source>
        <translation>grams</translation>
    </message>
    <message>
        <source>eSGram_Alternate2</source>
        <translation>gramme</translation>
    </message>
    <message>
        <source>eSGram_Alternate3</source>
        <translation>grammes</translation>
    </message>
    <message>
        <source>eSGram_Alternate4</source>
        <translation>gm</translation>
    </message>
    <message>
        <source>eSGram_Alternate5</source>
        <translation>gms</translation>
    </message>
    <message>
        <source>eSYottagram_Alternate1</source>
        <translation>yottagrams</translation>
    </message>
    <message>
        <source>eSZettagram_Alternate1</source>
        <translation>zettagrams</translation>
    </message>
    <message>
        <source>eSExagram_Alternate1</source>
        <translation>exagrams</translation>
    </message>
    <message>
        <source>eSPetagram_Alternate1</source>
        <translation>petagrams</translation>
    </message>
    <message>
        <source>eSTeragram_Alternate1</source>
        <translation>teragrams</translation>
    </message>
    <message>
        <source>eSGigagram_Alternate1</source>
        <translation>gigagrams</translation>
    </message>
    <message>
        <source>eSMegagram_Alternate1</source>
        <translation>megagrams</translation>
    </message>
    <message>
        <source>eSMegagram_Alternate2</source>
        <translation>t</translation>
    </message>
    <message>
        <source>eSMegagram_Alternate3</source>
        <translation>tonne</translation>
    </message>
    <message>
        <source>eSMegagram_Alternate4</source>
        <translation>tonnes</translation>
    </message>
    <message>
        <source>eSMegagram_Alternate5</source>
        <translation>metric ton</translation>
    </message>
    <message>
        <source>eSMegagram_Alternate6</source>
        <translation>metric tons</translation>
    </message>
    <message>
        <source>eSHectogram_Alternate1</source>
        <translation>hectograms</translation>
    </message>
    <message>
        <source>eSDecagram_Alternate1</source>
        <translation>decagrams</translation>
    </message>
    <message>
        <source>eSDecagram_Alternate2</source>
        <translation>dekagram</translation>
    </message>
    <message>
        <source>eSDecagram_Alternate3</source>
        <translation>dekagrams</translation>
    </message>
    <message>
        <source>eSDecigram_Alternate1</source>
        <translation>decigrams</translation>
    </message>
    <message>
        <source>eSCentigram_Alternate1</source>
        <translation>centigrams</translation>
    </message>
    <message>
        <source>eSMilligram_Alternate1</source>
        <translation>milligrams</translation>
    </message>
    <message>
        <source>eSMicrogram_Alternate1</source>
        <translation>micrograms</translation>
    </message>
    <message>
        <source>eSMicrogram_Alternate2</source>
        <translation>mcg</translation>
    </message>
    <message>
        <source>eSMicrogram_Alternate3</source>
        <translation>μg</translation>
    </message>
    <message>
        <source>eSNanogram_Alternate1</source>
        <translation>nanograms</translation>
    </message>
    <message>
        <source>eSPicogram_Alternate1</source>
        <translation>picograms</translation>
    </message>
    <message>
        <source>eSFemtogram_Alternate1</source>
        <translation>femtograms</translation>
    </message>
    <message>
        <source>eSAttogram_Alternate1</source>
        <translation>attograms</translation>
    </message>
    <message>
        <source>eSZeptogram_Alternate1</source>
        <translation>zeptograms</translation>
    </message>
    <message>
        <source>eSYoctogram_Alternate1</source>
        <translation>yoctograms</translation>
    </message>
    <message>
        <source>eSPound_Alternate1</source>
        <translation>pounds</translation>
    </message>
    <message>
        <source>eSPound_Alternate2</source>
        <translation>lbs</translation>
    </message>
    <message>
        <source>eSPound_Alternate3</source>
        <translation>lb.</translation>
    </message>
    <message>
        <source>eSPound_Alternate4</source>
        <translation>lbs.</translation>
    </message>
    <message>
        <source>eSPound_Alternate5</source>
        <translation>lbm</translation>
    </message>
    <message>
        <source>eSPound_Alternate6</source>
        <translation>pound mass</translation>
    </message>
    <message>
        <source>eSPound_Alternate7</source>
        <translation>pounds mass</translation>
    </message>
    <message>
        <source>eSPound_Alternate8</source>
        <translation>avoirdupois pound</translation>
    </message>
    <message>
        <source>eSPoundTroy_Alternate1</source>
        <translation>troy pound</translation>
    </message>
    <message>
        <source>eSPoundTroy_Alternate2</source>
        <translation>troy pounds</translation>
    </message>
    <message>
        <source>eSOunceAvoirdupois_Alternate1</source>
        <translation>ounce</translation>
    </message>
    <message>
        <source>eSOunceAvoirdupois_Alternate2</source>
        <translation>ounces</translation>
    </message>
    <message>
        <source>eSOunceAvoirdupois_Alternate3</source>
        <translation>oz.</translation>
    </message>
    <message>
        <source>eSOunceAvoirdupois_Alternate4</source>
        <translation>avoirdupois ounce</translation>
    </message>
    <message>
        <source>eSOunceApothecaryTroy_Alternate1</source>
        <translation>troy ounce</translation>
    </message>
    <message>
        <source>eSOunceApothecaryTroy_Alternate2</source>
        <translation>troy ounces</translation>
    </message>
    <message>
        <source>eSStone_Alternate1</source>
        <translation>stones</translation>
    </message>
    <message>
        <source>eSShortTon_Alternate1</source>
        <translation>short tons</translation>
    </message>
    <message>
        <source>eSShortTon_Alternate2</source>
        <translation>ton</translation>
    </message>
    <message>
        <source>eSShortTon_Alternate3</source>
        <translation>tons</translation>
    </message>
    <message>
        <source>eSShortTon_Alternate4</source>
        <translation>US ton</translation>
    </message>
    <message>
        <source>eSShortTon_Alternate5</source>
        <translation>US tons</translation>
    </message>
    <message>
        <source>eSShortTon_Alternate6</source>
        <translation>net ton</translation>
    </message>
    <message>
        <source>eSShortTon_Alternate7</source>
        <translation>net tons</translation>
    </message>
    <message>
        <source>eSLongTon_Alternate1</source>
        <translation>long tons</translation>
    </message>
    <message>
        <source>eSLongTon_Alternate2</source>
        <translation>imperial ton</translation>
    </message>
    <message>
        <source>eSLongTon_Alternate3</source>
        <translation>imperial tons</translation>
    </message>
    <message>
        <source>eSLongTon_Alternate4</source>
        <translation>UK ton</translation>
    </message>
    <message>
        <source>eSLongTon_Alternate5</source>
        <translation>UK tons</translation>
    </message>
    <message>
        <source>eSLongTon_Alternate6</source>
        <translation>gross ton</translation>
    </message>
    <message>
        <source>eSLongTon_Alternate7</source>
        <translation>gross tons</translation>
    </message>
    <message>
        <source>eSCarat_Alternate1</source>
        <translation>carats</translation>
    </message>
    <message>
        <source>eSPennyweight_Alternate1</source>
        <translation>pennyweights</translation>
    </message>
    <message>
        <source>eSTael_Alternate1</source>
        <translation>taels</translation>
    </message>
    <message>
        <source>eSTola_Alternate1</source>
        <translation>tolas</translation>
    </message>
    <message>
        <source>eSLongHundredweight_Alternate1</source>
        <translation>long hundredweights</translation>
    </message>
    <message>
        <source>eSLongHundredweight_Alternate2</source>
        <translation>imperial hundredweight</translation>
    </message>
    <message>
        <source>eSLongHundredweight_Alternate3</source>
        <translation>UK hundredweight</translation>
    </message>
    <message>
        <source>eSShortHundredweight_Alternate1</source>
        <translation>short hundredweights</translation>
    </message>
    <message>
        <source>eSShortHundredweight_Alternate2</source>
        <translation>hundredweight</translation>
    </message>
    <message>
        <source>eSShortHundredweight_Alternate3</source>
        <translation>hundredweights</translation>
    </message>
    <message>
        <source>eSShortHundredweight_Alternate4</source>
        <translation>US hundredweight</translation>
    </message>
    <message>
        <source>eSGrain_Alternate1</source>
        <translation>grains</translation>
    </message>
    <message>
        <source>eSPearlGrain_Alternate1</source>
        <translation>pearl grains</translation>
    </message>
    <message>
        <source>eSDalton_Alternate1</source>
        <translation>daltons</translation>
    </message>
    <message>
        <source>eSDalton_Alternate2</source>
        <translation>amu</translation>
    </message>
    <message>
        <source>eSDalton_Alternate3</source>
        <translation>atomic mass unit</translation>
    </message>
    <message>
        <source>eSDalton_Alternate4</source>
        <translation>atomic mass units</translation>
    </message>
    <message>
        <source>eSKilodalton_Alternate1</source>
        <translation>kilodaltons</translation>
    </message>
    <message>
        <source>eSSlug_Alternate1</source>
        <translation>slugs</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_MassFlowRate</name>
    <message>
        <source>eSKilogramPerSecond_Alternate1</source>
        <translation>kilograms per second</translation>
    </message>
    <message>
        <source>eSKilogramPerSecond_Alternate2</source>
        <translation>kg/sec</translation>
    </message>
    <message>
        <source>eSKilogramPerMinute_Alternate1</source>
        <translation>kilograms per minute</translation>
    </message>
    <message>
        <source>eSKilogramPerHour_Alternate1</source>
        <translation>kilograms per hour</translation>
    </message>
    <message>
        <source>eSGramPerSecond_Alternate1</source>
        <translation>grams per second</translation>
    </message>
    <message>
        <source>eSGramPerSecond_Alternate2</source>
        <translation>g/sec</translation>
    </message>
    <message>
        <source>eSGramPerMinute_Alternate1</source>
        <translation>grams per minute</translation>
    </message>
    <message>
        <source>eSGramPerHour_Alternate1</source>
        <translation>grams per hour</translation>
    </message>
    <message>
        <source>eSPoundPerSecond_Alternate1</source>
        <translation>pounds per second</translation>
    </message>
    <message>
        <source>eSPoundPerSecond_Alternate2</source>
        <translation>lb/s</translation>
    </message>
    <message>
        <source>eSPoundPerSecond_Alternate3</source>
        <translation>lb/sec</translation>
    </message>
    <message>
        <source>eSPoundPerSecond_Alternate4</source>
        <translation>lbs/s</translation>
    </message>
    <message>
        <source>eSPoundPerSecond_Alternate5</source>
        <translation>lbs/sec</translation>
    </message>
    <message>
        <source>eSPoundPerMinute_Alternate1</source>
        <translation>pounds per minute</translation>
    </message>
    <message>
        <source>eSPoundPerMinute_Alternate2</source>
        <translation>lb/min</translation>
    </message>
    <message>
        <source>eSPoundPerMinute_Alternate3</source>
        <translation>lbs/min</translation>
    </message>
    <message>
        <source>eSPoundPerHour_Alternate1</source>
        <translation>pounds per hour</translation>
    </message>
    <message>
        <source>eSPoundPerHour_Alternate2</source>
        <translation>lb/h</translation>
    </message>
    <message>
        <source>eSPoundPerHour_Alternate3</source>
        <translation>lb/hr</translation>
    </message>
    <message>
        <source>eSPoundPerHour_Alternate4</source>
        <translation>lbs/h</translation>
    </message>
    <message>
        <source>eSPoundPerHour_Alternate5</source>
        <translation>lbs/hr</translation>
    </message>
    <message>
        <source>eSPoundPerHour_Alternate6</source>
        <translation>pph</translation>
    </message>
    <message>
        <source>eSPoundPerHour_Alternate7</source>
        <translation>PPH</translation>
    </message>
    <message>
        <source>eSPoundPerHour_Alternate8</source>
        <translation>lbm/h</translation>
    </message>
    <message>
        <source>eSPoundPerHour_Alternate9</source>
        <translation>lbm/hr</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_MomentScale</name>
    <message>
        <source>eSs2Permkg_Alternate1</source>
        <translation>s^2/(m·kg)</translation>
    </message>
    <message>
        <source>eSSquareSecondPerMeterKilogram_Alternate1</source>
        <translation>square seconds per meter kilogram</translation>
    </message>
    <message>
        <source>eSSquareSecondPerMeterKilogram_Alternate2</source>
        <translation>square second per metre kilogram</translation>
    </message>
    <message>
        <source>eSSquareSecondPerMeterKilogram_Alternate3</source>
        <translation>square seconds per metre kilogram</translation>
    </message>
    <message>
        <source>eSInverseKilonewton_Alternate1</source>
        <translation>per kN</translation>
    </message>
    <message>
        <source>eSInverseKilonewton_Alternate2</source>
        <translation>per kilonewton</translation>
    </message>
    <message>
        <source>eSInverseKilonewton_Alternate3</source>
        <translation>kN^-1</translation>
    </message>
    <message>
        <source>eSInverseKip_Alternate1</source>
        <translation>per kip</translation>
    </message>
    <message>
        <source>eSInverseKip_Alternate2</source>
        <translation>kip^-1</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_PartsPer</name>
    <message>
        <source>eSPartPerMillion_Alternate1</source>
        <translation>parts per million</translation>
    </message>
    <message>
        <source>eSPartPerBillion_Alternate1</source>
        <translation>parts per billion</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Permeability</name>
    <message>
        <source>eSNanogramPerPaSM2_Alternate1</source>
        <translation>ng/(Pa·s·m^2)</translation>
    </message>
    <message>
        <source>eSGrainPerFt2HrInHg_Alternate1</source>
        <translation>gr/(ft^2·h·inHg)</translation>
    </message>
    <message>
        <source>eSNanogramPerPascalSecondSquareMeter_Alternate1</source>
        <translation>nanograms per pascal second square meter</translation>
    </message>
    <message>
        <source>eSNanogramPerPascalSecondSquareMeter_Alternate2</source>
        <translation>nanogram per pascal second square metre</translation>
    </message>
    <message>
        <source>eSNanogramPerPascalSecondSquareMeter_Alternate3</source>
        <translation>nanograms per pascal second square metre</translation>
    </message>
    <message>
        <source>eSGrainPerSquareFootHourInchesMercury_Alternate1</source>
        <translation>grains per square foot hour inches mercury</translation>
    </message>
    <message>
        <source>eSGrainPerSquareFootHourInchesMercury_Alternate2</source>
        <translation>perm</translation>
    </message>
    <message>
        <source>eSGrainPerSquareFootHourInchesMercury_Alternate3</source>
        <translation>perms</translation>
    </message>
    <message>
        <source>eSGrainPerSquareFootHourInchesMercury_Alternate4</source>
        <translation>US perm</translation>
    </message>
    <message>
        <source>eSGrainPerSquareFootHourInchesMercury_Alternate5</source>
        <translation>US perms</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Power</name>
    <message>
        <source>eSWatt_Alternate1</source>
        <translation>watts</translation>
    </message>
    <message>
        <source>eSHorsepowerMetric_Alternate1</source>
        <translation>PS</translation>
    </message>
    <message>
        <source>eSHorsepowerMetric_Alternate2</source>
        <translation>metric horsepower</translation>
    </message>
    <message>
        <source>eSHorsepowerMetric_Alternate3</source>
        <translation>CV</translation>
    </message>
    <message>
        <source>eSHorsepowerEuropeanElectrical_Alternate1</source>
        <translation>electrical horsepower</translation>
    </message>
    <message>
        <source>eSHorsepowerEuropeanElectrical_Alternate2</source>
        <translation>electric horsepower</translation>
    </message>
    <message>
        <source>eSHorsepowerImperialMechanical_Alternate1</source>
        <translation>HP</translation>
    </message>
    <message>
        <source>eSHorsepowerImperialMechanical_Alternate2</source>
        <translation>horsepower</translation>
    </message>
    <message>
        <source>eSHorsepowerImperialMechanical_Alternate3</source>
        <translation>bhp</translation>
    </message>
    <message>
        <source>eSHorsepowerImperialMechanical_Alternate4</source>
        <translation>BHP</translation>
    </message>
    <message>
        <source>eSHorsepowerImperialMechanical_Alternate5</source>
        <translation>mechanical horsepower</translation>
    </message>
    <message>
        <source>eSHorsepowerImperialMechanical_Alternate6</source>
        <translation>imperial horsepower</translation>
    </message>
    <message>
        <source>eSKilocaloriePerHour_Alternate1</source>
        <translation>kilocalories per hour</translation>
    </message>
    <message>
        <source>eSKilowatt_Alternate1</source>
        <translation>kilowatts</translation>
    </message>
    <message>
        <source>eSMegawatt_Alternate1</source>
        <translation>megawatts</translation>
    </message>
    <message>
        <source>eSMicrowatt_Alternate1</source>
        <translation>microwatts</translation>
    </message>
    <message>
        <source>eSMicrowatt_Alternate2</source>
        <translation>μW</translation>
    </message>
    <message>
        <source>eSVoltAmpere_Alternate1</source>
        <translation>volt amperes</translation>
    </message>
    <message>
        <source>eSVoltAmpere_Alternate2</source>
        <translation>volt-ampere</translation>
    </message>
    <message>
        <source>eSVoltAmpere_Alternate3</source>
        <translation>volt-amperes</translation>
    </message>
    <message>
        <source>eSMillivoltAmpere_Alternate1</source>
        <translation>millivolt amperes</translation>
    </message>
    <message>
        <source>eSMillivoltAmpere_Alternate2</source>
        <translation>millivolt-ampere</translation>
    </message>
    <message>
        <source>eSMillivoltAmpere_Alternate3</source>
        <translation>millivolt-amperes</translation>
    </message>
    <message>
        <source>eSKilovoltAmpere_Alternate1</source>
        <translation>kilovolt amperes</translation>
    </message>
    <message>
        <source>eSKilovoltAmpere_Alternate2</source>
        <translation>kilovolt-ampere</translation>
    </message>
    <message>
        <source>eSKilovoltAmpere_Alternate3</source>
        <translation>kilovolt-amperes</translation>
    </message>
    <message>
        <source>eSKilovoltAmpere_Alternate4</source>
        <translation>kva</translation>
    </message>
    <message>
        <source>eSKilovoltAmpere_Alternate5</source>
        <translation>KVA</translation>
    </message>
    <message>
        <source>eSMegavoltAmpere_Alternate1</source>
        <translation>megavolt amperes</translation>
    </message>
    <message>
        <source>eSMegavoltAmpere_Alternate2</source>
        <translation>megavolt-ampere</translation>
    </message>
    <message>
        <source>eSMegavoltAmpere_Alternate3</source>
        <translation>megavolt-amperes</translation>
    </message>
    <message>
        <source>eSMilliwatt_Alternate1</source>
        <translation>milliwatts</translation>
    </message>
    <message>
        <source>eSKilogramForceMeterPerSecond_Alternate1</source>
        <translation>kilogram force meters per second</translation>
    </message>
    <message>
        <source>eSKilogramForceMeterPerSecond_Alternate2</source>
        <translation>kilogram force metre per second</translation>
    </message>
    <message>
        <source>eSKilogramForceMeterPerSecond_Alternate3</source>
        <translation>kilogram force metres per second</translation>
    </message>
    <message>
        <source>eSFootPoundForcePerSecond_Alternate1</source>
        <translation>foot pounds-force per second</translation>
    </message>
    <message>
        <source>eSFootPoundForcePerSecond_Alternate2</source>
        <translation>ft-lbf/s</translation>
    </message>
    <message>
        <source>eSFootPoundForcePerSecond_Alternate3</source>
        <translation>ft lbf/s</translation>
    </message>
    <message>
        <source>eSFootPoundForcePerSecond_Alternate4</source>
        <translation>foot-pounds per second</translation>
    </message>
    <message>
        <source>eSFootPoundForcePerSecond_Alternate5</source>
        <translation>ft-lb/s</translation>
    </message>
    <message>
        <source>eSFootPoundForcePerSecond_Alternate6</source>
        <translation>ft-lb/sec</translation>
    </message>
    <message>
        <source>eSCaloriePerSecond_Alternate1</source>
        <translation>calories per second</translation>
    </message>
    <message>
        <source>eSCaloriePerSecond_Alternate2</source>
        <translation>cal/sec</translation>
    </message>
    <message>
        <source>eSKilocaloriePerSecond_Alternate1</source>
        <translation>kilocalories per second</translation>
    </message>
    <message>
        <source>eSKilocaloriePerSecond_Alternate2</source>
        <translation>kcal/sec</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitInternationalTablePerSecond_Alternate1</source>
        <translation>BTU/sec</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitInternationalTablePerSecond_Alternate2</source>
        <translation>Btu/sec</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitInternationalTablePerSecond_Alternate3</source>
        <translation>BTUs per second</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitInternationalTablePerHour_Alternate1</source>
        <translation>BTUH</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitInternationalTablePerHour_Alternate2</source>
        <translation>Btuh</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitInternationalTablePerHour_Alternate3</source>
        <translation>btuh</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitInternationalTablePerHour_Alternate4</source>
        <translation>BTU per hour</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitInternationalTablePerHour_Alternate5</source>
        <translation>Btu per hour</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitInternationalTablePerHour_Alternate6</source>
        <translation>BTUs per hour</translation>
    </message>
    <message>
        <source>eSMillionBritishThermalUnitInternationalTablePerHour_Alternate1</source>
        <translation>MMBH</translation>
    </message>
    <message>
        <source>eSMillionBritishThermalUnitInternationalTablePerHour_Alternate2</source>
        <translation>MMBtuh</translation>
    </message>
    <message>
        <source>eSThousandBritishThermalUnitInternationalTablePerHour_Alternate1</source>
        <translation>MBH</translation>
    </message>
    <message>
        <source>eSThousandBritishThermalUnitInternationalTablePerHour_Alternate2</source>
        <translation>MBh</translation>
    </message>
    <message>
        <source>eSThousandBritishThermalUnitInternationalTablePerHour_Alternate3</source>
        <translation>kBtuh</translation>
    </message>
    <message>
        <source>eSThousandBritishThermalUnitInternationalTablePerHour_Alternate4</source>
        <translation>kBTUH</translation>
    </message>
    <message>
        <source>eSTonOfRefrigeration_Alternate1</source>
        <translation>tons of refrigeration</translation>
    </message>
    <message>
        <source>eSTonOfRefrigeration_Alternate2</source>
        <translation>refrigeration ton</translation>
    </message>
    <message>
        <source>eSTonOfRefrigeration_Alternate3</source>
        <translation>refrigeration tons</translation>
    </message>
    <message>
        <source>eSTonOfRefrigeration_Alternate4</source>
        <translation>RT</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_PowerPerUnitOfArea</name>
    <message>
        <source>eSWPerm2_Alternate1</source>
        <translation>W/m^2</translation>
    </message>
    <message>
        <source>eSkWPerm2_Alternate1</source>
        <translation>kW/m^2</translation>
    </message>
    <message>
        <source>eSkWPerft2_Alternate1</source>
        <translation>kW/ft^2</translation>
    </message>
    <message>
        <source>eSWPerft2_Alternate1</source>
        <translation>W/ft^2</translation>
    </message>
    <message>
        <source>eSBTUPerhPerft2_Alternate1</source>
        <translation>BTU/h/ft^2</translation>
    </message>
    <message>
        <source>eSBTUPerhrPerft2_Alternate1</source>
        <translation>BTU/hr/ft^2</translation>
    </message>
    <message>
        <source>eSBtuPerhPerft2_Alternate1</source>
        <translation>Btu/h/ft^2</translation>
    </message>
    <message>
        <source>eSBtuPerhrPerft2_Alternate1</source>
        <translation>Btu/hr/ft^2</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeter_Alternate1</source>
        <translation>watts per square meter</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeter_Alternate2</source>
        <translation>watt per square metre</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeter_Alternate3</source>
        <translation>watts per square metre</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeter_Alternate4</source>
        <translation>W/m2</translation>
    </message>
    <message>
        <source>eSKilowattPerSquareMeter_Alternate1</source>
        <translation>kilowatts per square meter</translation>
    </message>
    <message>
        <source>eSKilowattPerSquareMeter_Alternate2</source>
        <translation>kilowatt per square metre</translation>
    </message>
    <message>
        <source>eSKilowattPerSquareMeter_Alternate3</source>
        <translation>kilowatts per square metre</translation>
    </message>
    <message>
        <source>eSKilowattPerSquareMeter_Alternate4</source>
        <translation>kW/m2</translation>
    </message>
    <message>
        <source>eSKilowattPerSquareFoot_Alternate1</source>
        <translation>kilowatts per square foot</translation>
    </message>
    <message>
        <source>eSKilowattPerSquareFoot_Alternate2</source>
        <translation>kW/ft2</translation>
    </message>
    <message>
        <source>eSWattPerSquareFoot_Alternate1</source>
        <translation>watts per square foot</translation>
    </message>
    <message>
        <source>eSWattPerSquareFoot_Alternate2</source>
        <translation>W/ft2</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFoot_Alternate1</source>
        <translation>British thermal units per hour square foot</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFoot_Alternate2</source>
        <translation>Btu/hr-ft2</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFoot_Alternate3</source>
        <translation>BTU/hr-ft2</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFoot_Alternate4</source>
        <translation>Btuh/ft2</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFoot_Alternate5</source>
        <translation>BTUH/ft2</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFoot_Alternate6</source>
        <translation>Btuh/sq ft</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_PowerPerUnitOfMass</name>
    <message>
        <source>eSWattPerKilogram_Alternate1</source>
        <translation>watts per kilogram</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_PowerPerUnitOfVolume</name>
    <message>
        <source>eSWPerm3_Alternate1</source>
        <translation>W/m^3</translation>
    </message>
    <message>
        <source>eSWPerft3_Alternate1</source>
        <translation>W/ft^3</translation>
    </message>
    <message>
        <source>eSBTUPerhft3_Alternate1</source>
        <translation>BTU/(h·ft^3)</translation>
    </message>
    <message>
        <source>eSBTUPerhrft3_Alternate1</source>
        <translation>BTU/(hr·ft^3)</translation>
    </message>
    <message>
        <source>eSBtuPerhft3_Alternate1</source>
        <translation>Btu/(h·ft^3)</translation>
    </message>
    <message>
        <source>eSBtuPerhrft3_Alternate1</source>
        <translation>Btu/(hr·ft^3)</translation>
    </message>
    <message>
        <source>eSWattPerCubicMeter_Alternate1</source>
        <translation>watts per cubic meter</translation>
    </message>
    <message>
        <source>eSWattPerCubicMeter_Alternate2</source>
        <translation>watt per cubic metre</translation>
    </message>
    <message>
        <source>eSWattPerCubicMeter_Alternate3</source>
        <translation>watts per cubic metre</translation>
    </message>
    <message>
        <source>eSWattPerCubicMeter_Alternate4</source>
        <translation>W/m3</translation>
    </message>
    <message>
        <source>eSWattPerCubicFoot_Alternate1</source>
        <translation>watts per cubic foot</translation>
    </message>
    <message>
        <source>eSWattPerCubicFoot_Alternate2</source>
        <translation>W/ft3</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourCubicFoot_Alternate1</source>
        <translation>British thermal units per hour cubic foot</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourCubicFoot_Alternate2</source>
        <translation>Btu/hr-ft3</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourCubicFoot_Alternate3</source>
        <translation>BTU/hr-ft3</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourCubicFoot_Alternate4</source>
        <translation>Btuh/ft3</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourCubicFoot_Alternate5</source>
        <translation>BTUH/ft3</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Pressure</name>
    <message>
        <source>eSkgPercm2_Alternate1</source>
        <translation>kg/cm^2</translation>
    </message>
    <message>
        <source>eSlbfPerin2_Alternate1</source>
        <translation>lbf/in^2</translation>
    </message>
    <message>
        <source>eSNPermm2_Alternate1</source>
        <translation>N/mm^2</translation>
    </message>
    <message>
        <source>eSNPerm2_Alternate1</source>
        <translation>N/m^2</translation>
    </message>
    <message>
        <source>eSdaNPermm2_Alternate1</source>
        <translation>daN/mm^2</translation>
    </message>
    <message>
        <source>eSdaNPerm2_Alternate1</source>
        <translation>daN/m^2</translation>
    </message>
    <message>
        <source>eSkNPerm2_Alternate1</source>
        <translation>kN/m^2</translation>
    </message>
    <message>
        <source>eSMNPerm2_Alternate1</source>
        <translation>MN/m^2</translation>
    </message>
    <message>
        <source>eSDynePerCM2_Alternate1</source>
        <translation>dyn/cm^2</translation>
    </message>
    <message>
        <source>eSNPerMicrometer2_Alternate1</source>
        <translation>N/µm^2</translation>
    </message>
    <message>
        <source>eSBar_Alternate1</source>
        <translation>bars</translation>
    </message>
    <message>
        <source>eSBarAbsolute_Alternate1</source>
        <translation>bar absolutes</translation>
    </message>
    <message>
        <source>eSBarAbsolute_Alternate2</source>
        <translation>bar(a)</translation>
    </message>
    <message>
        <source>eSBarAbsolute_Alternate3</source>
        <translation>bar a</translation>
    </message>
    <message>
        <source>eSBarGauge_Alternate1</source>
        <translation>bar gauges</translation>
    </message>
    <message>
        <source>eSBarGauge_Alternate2</source>
        <translation>bar(g)</translation>
    </message>
    <message>
        <source>eSBarGauge_Alternate3</source>
        <translation>bar gage</translation>
    </message>
    <message>
        <source>eSInchOfMercury_Alternate1</source>
        <translation>inches of mercury</translation>
    </message>
    <message>
        <source>eSInchOfMercury_Alternate2</source>
        <translation>in Hg</translation>
    </message>
    <message>
        <source>eSInchOfMercury_Alternate3</source>
        <translation>in. Hg</translation>
    </message>
    <message>
        <source>eSInchOfMercury_Alternate4</source>
        <translation>inches Hg</translation>
    </message>
    <message>
        <source>eSInchOfMercury_Alternate5</source>
        <translation>inch Hg</translation>
    </message>
    <message>
        <source>eSInchOfWater_Alternate1</source>
        <translation>inches of water</translation>
    </message>
    <message>
        <source>eSInchOfWater_Alternate2</source>
        <translation>in H2O</translation>
    </message>
    <message>
        <source>eSInchOfWater_Alternate3</source>
        <translation>in. H2O</translation>
    </message>
    <message>
        <source>eSInchOfWater_Alternate4</source>
        <translation>in wc</translation>
    </message>
    <message>
        <source>eSInchOfWater_Alternate5</source>
        <translation>in. w.c.</translation>
    </message>
    <message>
        <source>eSInchOfWater_Alternate6</source>
        <translation>inWC</translation>
    </message>
    <message>
        <source>eSInchOfWater_Alternate7</source>
        <translation>in w.c.</translation>
    </message>
    <message>
        <source>eSInchOfWater_Alternate8</source>
        <translation>in WC</translation>
    </message>
    <message>
        <source>eSInchOfWater_Alternate9</source>
        <translation>in w.g.</translation>
    </message>
    <message>
        <source>eSInchOfWater_Alternate10</source>
        <translation>iwc</translation>
    </message>
    <message>
        <source>eSKilobar_Alternate1</source>
        <translation>kilobars</translation>
    </message>
    <message>
        <source>eSKilogramPerSquareCentimeter_Alternate1</source>
        <translation>kilograms per square centimeter</translation>
    </message>
    <message>
        <source>eSKilogramPerSquareCentimeter_Alternate2</source>
        <translation>kilogram per square centimetre</translation>
    </message>
    <message>
        <source>eSKilogramPerSquareCentimeter_Alternate3</source>
        <translation>kilograms per square centimetre</translation>
    </message>
    <message>
        <source>eSKilogramPerSquareCentimeter_Alternate4</source>
        <translation>kg/cm2</translation>
    </message>
    <message>
        <source>eSKilogramPerSquareCentimeter_Alternate5</source>
        <translation>ksc</translation>
    </message>
    <message>
        <source>eSKilopascal_Alternate1</source>
        <translation>kilopascals</translation>
    </message>
    <message>
        <source>eSKilopascal_Alternate2</source>
        <translation>kpa</translation>
    </message>
    <message>
        <source>eSKilopascal_Alternate3</source>
        <translation>KPa</translation>
    </message>
    <message>
        <source>eSKilopoundPerSquareInch_Alternate1</source>
        <translation>kilopounds per square inch</translation>
    </message>
    <message>
        <source>eSMegaPascal_Alternate1</source>
        <translation>mega pascals</translation>
    </message>
    <message>
        <source>eSMegaPascal_Alternate2</source>
        <translation>megapascal</translation>
    </message>
    <message>
        <source>eSMegaPascal_Alternate3</source>
        <translation>megapascals</translation>
    </message>
    <message>
        <source>eSMegaPascal_Alternate4</source>
        <translation>Mpa</translation>
    </message>
    <message>
        <source>eSMillibar_Alternate1</source>
        <translation>millibars</translation>
    </message>
    <message>
        <source>eSMillimeterOfMercury_Alternate1</source>
        <translation>millimeters of mercury</translation>
    </message>
    <message>
        <source>eSMillimeterOfMercury_Alternate2</source>
        <translation>millimetre of mercury</translation>
    </message>
    <message>
        <source>eSMillimeterOfMercury_Alternate3</source>
        <translation>millimetres of mercury</translation>
    </message>
    <message>
        <source>eSMillimeterOfMercury_Alternate4</source>
        <translation>mm Hg</translation>
    </message>
    <message>
        <source>eSMilliPascal_Alternate1</source>
        <translation>milli pascals</translation>
    </message>
    <message>
        <source>eSMilliPascal_Alternate2</source>
        <translation>millipascal</translation>
    </message>
    <message>
        <source>eSMilliPascal_Alternate3</source>
        <translation>millipascals</translation>
    </message>
    <message>
        <source>eSPascal_Alternate1</source>
        <translation>pascals</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInchAtmosphere_Alternate1</source>
        <translation>PSIA</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInchAtmosphere_Alternate2</source>
        <translation>psi(a)</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInchAtmosphere_Alternate3</source>
        <translation>psi a</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInchAtmosphere_Alternate4</source>
        <translation>psi abs</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInchGauge_Alternate1</source>
        <translation>PSIG</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInchGauge_Alternate2</source>
        <translation>psi(g)</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInchGauge_Alternate3</source>
        <translation>psi g</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInchGauge_Alternate4</source>
        <translation>psi gauge</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInchGauge_Alternate5</source>
        <translation>psi gage</translation>
    </message>
    <message>
        <source>eSPoundPerSquareFoot_Alternate1</source>
        <translation>pounds per square foot</translation>
    </message>
    <message>
        <source>eSPoundPerSquareFoot_Alternate2</source>
        <translation>PSF</translation>
    </message>
    <message>
        <source>eSPoundPerSquareFoot_Alternate3</source>
        <translation>lb/ft2</translation>
    </message>
    <message>
        <source>eSPoundPerSquareFoot_Alternate4</source>
        <translation>lb/sq ft</translation>
    </message>
    <message>
        <source>eSPoundPerSquareFoot_Alternate5</source>
        <translation>lbs/ft2</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInch_Alternate1</source>
        <translation>pounds per square inch</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInch_Alternate2</source>
        <translation>PSI</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInch_Alternate3</source>
        <translation>lb/in2</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInch_Alternate4</source>
        <translation>lb/sq in</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInch_Alternate5</source>
        <translation>lbs/in2</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInch_Alternate6</source>
        <translation>lbs/sq in</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInch_Alternate7</source>
        <translation>lbf/in2</translation>
    </message>
    <message>
        <source>eSAtmosphereStandard_Alternate1</source>
        <translation>atmosphere</translation>
    </message>
    <message>
        <source>eSAtmosphereStandard_Alternate2</source>
        <translation>atmospheres</translation>
    </message>
    <message>
        <source>eSAtmosphereStandard_Alternate3</source>
        <translation>standard atmosphere</translation>
    </message>
    <message>
        <source>eSAtmosphereStandard_Alternate4</source>
        <translation>standard atmospheres</translation>
    </message>
    <message>
        <source>eSAtmosphereStandard_Alternate5</source>
        <translation>atm.</translation>
    </message>
    <message>
        <source>eSAtmosphereStandard_Alternate6</source>
        <translation>atms</translation>
    </message>
    <message>
        <source>eSAtmosphereMetric_Alternate1</source>
        <translation>technical atmosphere</translation>
    </message>
    <message>
        <source>eSAtmosphereMetric_Alternate2</source>
        <translation>technical atmospheres</translation>
    </message>
    <message>
        <source>eSAtmosphereMetric_Alternate3</source>
        <translation>metric atmosphere</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMillimeter_Alternate1</source>
        <translation>newtons per square millimeter</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMillimeter_Alternate2</source>
        <translation>newton per square millimetre</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMillimeter_Alternate3</source>
        <translation>newtons per square millimetre</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMillimeter_Alternate4</source>
        <translation>N/mm2</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMeter_Alternate1</source>
        <translation>newtons per square meter</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMeter_Alternate2</source>
        <translation>newton per square metre</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMeter_Alternate3</source>
        <translation>newtons per square metre</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMeter_Alternate4</source>
        <translation>N/m2</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMillimeter_Alternate1</source>
        <translation>decanewtons per square millimeter</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMillimeter_Alternate2</source>
        <translation>decanewton per square millimetre</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMillimeter_Alternate3</source>
        <translation>decanewtons per square millimetre</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMillimeter_Alternate4</source>
        <translation>dekanewton per square millimeter</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMillimeter_Alternate5</source>
        <translation>dekanewtons per square millimeter</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMillimeter_Alternate6</source>
        <translation>dekanewton per square millimetre</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMillimeter_Alternate7</source>
        <translation>dekanewtons per square millimetre</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMillimeter_Alternate8</source>
        <translation>daN/mm2</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMeter_Alternate1</source>
        <translation>decanewtons per square meter</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMeter_Alternate2</source>
        <translation>decanewton per square metre</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMeter_Alternate3</source>
        <translation>decanewtons per square metre</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMeter_Alternate4</source>
        <translation>dekanewton per square meter</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMeter_Alternate5</source>
        <translation>dekanewtons per square meter</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMeter_Alternate6</source>
        <translation>dekanewton per square metre</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMeter_Alternate7</source>
        <translation>dekanewtons per square metre</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMeter_Alternate8</source>
        <translation>daN/m2</translation>
    </message>
    <message>
        <source>eSKilonewtonPerSquareMeter_Alternate1</source>
        <translation>kilonewtons per square meter</translation>
    </message>
    <message>
        <source>eSKilonewtonPerSquareMeter_Alternate2</source>
        <translation>kilonewton per square metre</translation>
    </message>
    <message>
        <source>eSKilonewtonPerSquareMeter_Alternate3</source>
        <translation>kilonewtons per square metre</translation>
    </message>
    <message>
        <source>eSKilonewtonPerSquareMeter_Alternate4</source>
        <translation>kN/m2</translation>
    </message>
    <message>
        <source>eSMeganewtonPerSquareMeter_Alternate1</source>
        <translation>meganewtons per square meter</translation>
    </message>
    <message>
        <source>eSMeganewtonPerSquareMeter_Alternate2</source>
        <translation>meganewton per square metre</translation>
    </message>
    <message>
        <source>eSMeganewtonPerSquareMeter_Alternate3</source>
        <translation>meganewtons per square metre</translation>
    </message>
    <message>
        <source>eSMeganewtonPerSquareMeter_Alternate4</source>
        <translation>MN/m2</translation>
    </message>
    <message>
        <source>eSKilopoundPerSquareFoot_Alternate1</source>
        <translation>kilopounds per square foot</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareMillimeter_Alternate1</source>
        <translation>kilograms force per square millimeter</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareMillimeter_Alternate2</source>
        <translation>kilogram force per square millimetre</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareMillimeter_Alternate3</source>
        <translation>kilograms force per square millimetre</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareMillimeter_Alternate4</source>
        <translation>kgf/mm2</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareCentimeter_Alternate1</source>
        <translation>kilograms force per square centimeter</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareCentimeter_Alternate2</source>
        <translation>kilogram force per square centimetre</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareCentimeter_Alternate3</source>
        <translation>kilograms force per square centimetre</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareCentimeter_Alternate4</source>
        <translation>kgf/cm2</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareCentimeter_Alternate5</source>
        <translation>kgf/sq cm</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareMeter_Alternate1</source>
        <translation>kilograms force per square meter</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareMeter_Alternate2</source>
        <translation>kilogram force per square metre</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareMeter_Alternate3</source>
        <translation>kilograms force per square metre</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareMeter_Alternate4</source>
        <translation>kgf/m2</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareMeter_Alternate5</source>
        <translation>kgf/sq m</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareCentimeter_Alternate1</source>
        <translation>tons force per square centimeter</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareCentimeter_Alternate2</source>
        <translation>ton force per square centimetre</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareCentimeter_Alternate3</source>
        <translation>tons force per square centimetre</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareMeter_Alternate1</source>
        <translation>tons force per square meter</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareMeter_Alternate2</source>
        <translation>ton force per square metre</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareMeter_Alternate3</source>
        <translation>tons force per square metre</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareFoot_Alternate1</source>
        <translation>tons force per square foot</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareFoot_Alternate2</source>
        <translation>tsf</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareFoot_Alternate3</source>
        <translation>TSF</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareFoot_Alternate4</source>
        <translation>tons per square foot</translation>
    </message>
    <message>
        <source>eSPoundForcePerSquareInch_Alternate1</source>
        <translation>pounds force per square inch</translation>
    </message>
    <message>
        <source>eSFootOfWater_Alternate1</source>
        <translation>feet of water</translation>
    </message>
    <message>
        <source>eSFootOfWater_Alternate2</source>
        <translation>ft H2O</translation>
    </message>
    <message>
        <source>eSFootOfWater_Alternate3</source>
        <translation>ft wc</translation>
    </message>
    <message>
        <source>eSFootOfWater_Alternate4</source>
        <translation>ftWC</translation>
    </message>
    <message>
        <source>eSFootOfWater_Alternate5</source>
        <translation>ft w.c.</translation>
    </message>
    <message>
        <source>eSFootOfWater_Alternate6</source>
        <translation>ft of water</translation>
    </message>
    <message>
        <source>eSFootOfWater_Alternate7</source>
        <translation>feet of head</translation>
    </message>
    <message>
        <source>eSKipPerSquareInch_Alternate1</source>
        <translation>kips per square inch</translation>
    </message>
    <message>
        <source>eSKipPerSquareInch_Alternate2</source>
        <translation>KSI</translation>
    </message>
    <message>
        <source>eSKipPerSquareInch_Alternate3</source>
        <translation>kip/in2</translation>
    </message>
    <message>
        <source>eSKipPerSquareInch_Alternate4</source>
        <translation>kip/sq in</translation>
    </message>
    <message>
        <source>eSKipPerSquareInch_Alternate5</source>
        <translation>kips/in2</translation>
    </message>
    <message>
        <source>eSKipPerSquareFoot_Alternate1</source>
        <translation>kips per square foot</translation>
    </message>
    <message>
        <source>eSKipPerSquareFoot_Alternate2</source>
        <translation>KSF</translation>
    </message>
    <message>
        <source>eSKipPerSquareFoot_Alternate3</source>
        <translation>kip/ft2</translation>
    </message>
    <message>
        <source>eSKipPerSquareFoot_Alternate4</source>
        <translation>kip/sq ft</translation>
    </message>
    <message>
        <source>eSKipPerSquareFoot_Alternate5</source>
        <translation>kips/ft2</translation>
    </message>
    <message>
        <source>eSPoundForcePerSquareFoot_Alternate1</source>
        <translation>pounds force per square foot</translation>
    </message>
    <message>
        <source>eSGigapascal_Alternate1</source>
        <translation>gigapascals</translation>
    </message>
    <message>
        <source>eSDynePerSquareCentimeter_Alternate1</source>
        <translation>dynes per square centimeter</translation>
    </message>
    <message>
        <source>eSDynePerSquareCentimeter_Alternate2</source>
        <translation>dyne per square centimetre</translation>
    </message>
    <message>
        <source>eSDynePerSquareCentimeter_Alternate3</source>
        <translation>dynes per square centimetre</translation>
    </message>
    <message>
        <source>eSDynePerSquareCentimeter_Alternate4</source>
        <translation>dyn/cm2</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMicrometer_Alternate1</source>
        <translation>newtons per square micrometer</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMicrometer_Alternate2</source>
        <translation>newton per square micrometre</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMicrometer_Alternate3</source>
        <translation>newtons per square micrometre</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMicrometer_Alternate4</source>
        <translation>N/um2</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMicrometer_Alternate5</source>
        <translation>N/µm2</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_RotationalLineSpringCoefficient</name>
    <message>
        <source>eSNewtonMeterPerDegreePerMeter_Alternate1</source>
        <translation>newton meters per degree per meter</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerDegreePerMeter_Alternate2</source>
        <translation>newton metre per degree per metre</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerDegreePerMeter_Alternate3</source>
        <translation>newton metres per degree per metre</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerDegreePerMeter_Alternate4</source>
        <translation>N-m/deg/m</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerDegreePerMeter_Alternate5</source>
        <translation>Nm/deg/m</translation>
    </message>
    <message>
        <source>eSKipFootPerDegreePerFoot_Alternate1</source>
        <translation>kip feet per degree per foot</translation>
    </message>
    <message>
        <source>eSKipFootPerDegreePerFoot_Alternate2</source>
        <translation>kip-ft/deg/ft</translation>
    </message>
    <message>
        <source>eSKipFootPerDegreePerFoot_Alternate3</source>
        <translation>k-ft/deg/ft</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerDegreePerMeter_Alternate1</source>
        <translation>kilonewton meters per degree per meter</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerDegreePerMeter_Alternate2</source>
        <translation>kilonewton metre per degree per metre</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerDegreePerMeter_Alternate3</source>
        <translation>kilonewton metres per degree per metre</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerDegreePerMeter_Alternate4</source>
        <translation>kN-m/deg/m</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerDegreePerMeter_Alternate5</source>
        <translation>kNm/deg/m</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_RotationalPointSpringCoefficient</name>
    <message>
        <source>eSNewtonMeterPerDegree_Alternate1</source>
        <translation>newton meters per degree</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerDegree_Alternate2</source>
        <translation>newton metre per degree</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerDegree_Alternate3</source>
        <translation>newton metres per degree</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerDegree_Alternate4</source>
        <translation>N-m/deg</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerDegree_Alternate5</source>
        <translation>Nm/deg</translation>
    </message>
    <message>
        <source>eSKipFootPerDegree_Alternate1</source>
        <translation>kip feet per degree</translation>
    </message>
    <message>
        <source>eSKipFootPerDegree_Alternate2</source>
        <translation>kip-ft/deg</translation>
    </message>
    <message>
        <source>eSKipFootPerDegree_Alternate3</source>
        <translation>k-ft/deg</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerDegree_Alternate1</source>
        <translation>kilonewton meters per degree</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerDegree_Alternate2</source>
        <translation>kilonewton metre per degree</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerDegree_Alternate3</source>
        <translation>kilonewton metres per degree</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerDegree_Alternate4</source>
        <translation>kN-m/deg</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerDegree_Alternate5</source>
        <translation>kNm/deg</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_SolidAngle</name>
    <message>
        <source>eSSteradian_Alternate1</source>
        <translation>steradians</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_SpecificHeat</name>
    <message>
        <source>eSMM2PerSec2DegreeC_Alternate1</source>
        <translation>mm^2/(s^2·°C)</translation>
    </message>
    <message>
        <source>eSMicrometer2PerS2DegreeC_Alternate1</source>
        <translation>µm^2/(s^2·°C)</translation>
    </message>
    <message>
        <source>eSJoulePerGramCelsius_Alternate1</source>
        <translation>joules per gram celsius</translation>
    </message>
    <message>
        <source>eSJoulePerGramCelsius_Alternate2</source>
        <translation>J/g-C</translation>
    </message>
    <message>
        <source>eSJoulePerGramCelsius_Alternate3</source>
        <translation>J/g·°C</translation>
    </message>
    <message>
        <source>eSJoulePerGramCelsius_Alternate4</source>
        <translation>J/gC</translation>
    </message>
    <message>
        <source>eSJoulePerGramCelsius_Alternate5</source>
        <translation>J/g-K</translation>
    </message>
    <message>
        <source>eSJoulePerGramCelsius_Alternate6</source>
        <translation>J/(g·K)</translation>
    </message>
    <message>
        <source>eSJoulePerGramCelsius_Alternate7</source>
        <translation>J/gK</translation>
    </message>
    <message>
        <source>eSJoulePerKilogramCelsius_Alternate1</source>
        <translation>joules per kilogram celsius</translation>
    </message>
    <message>
        <source>eSJoulePerKilogramCelsius_Alternate2</source>
        <translation>J/kg-C</translation>
    </message>
    <message>
        <source>eSJoulePerKilogramCelsius_Alternate3</source>
        <translation>J/kg·°C</translation>
    </message>
    <message>
        <source>eSJoulePerKilogramCelsius_Alternate4</source>
        <translation>J/kgC</translation>
    </message>
    <message>
        <source>eSJoulePerKilogramCelsius_Alternate5</source>
        <translation>J/kg-K</translation>
    </message>
    <message>
        <source>eSJoulePerKilogramCelsius_Alternate6</source>
        <translation>J/(kg·K)</translation>
    </message>
    <message>
        <source>eSJoulePerKilogramCelsius_Alternate7</source>
        <translation>J/kgK</translation>
    </message>
    <message>
        <source>eSJoulePerKilogramCelsius_Alternate8</source>
        <translation>J/(kg K)</translation>
    </message>
    <message>
        <source>eSSquareMillimeterPerSquareSecondCelsius_Alternate1</source>
        <translation>square millimeters per square second celsius</translation>
    </message>
    <message>
        <source>eSSquareMillimeterPerSquareSecondCelsius_Alternate2</source>
        <translation>square millimetre per square second celsius</translation>
    </message>
    <message>
        <source>eSSquareMillimeterPerSquareSecondCelsius_Alternate3</source>
        <translation>square millimetres per square second celsius</translation>
    </message>
    <message>
        <source>eSErgPerGramCelsius_Alternate1</source>
        <translation>ergs per gram celsius</translation>
    </message>
    <message>
        <source>eSSquareMicrometerPerSquareSecondCelsius_Alternate1</source>
        <translation>square micrometers per square second celsius</translation>
    </message>
    <message>
        <source>eSSquareMicrometerPerSquareSecondCelsius_Alternate2</source>
        <translation>square micrometre per square second celsius</translation>
    </message>
    <message>
        <source>eSSquareMicrometerPerSquareSecondCelsius_Alternate3</source>
        <translation>square micrometres per square second celsius</translation>
    </message>
    <message>
        <source>eSBTUPerPoundFahrenheit_Alternate1</source>
        <translation>Btu/lb-F</translation>
    </message>
    <message>
        <source>eSBTUPerPoundFahrenheit_Alternate2</source>
        <translation>BTU/lb-F</translation>
    </message>
    <message>
        <source>eSBTUPerPoundFahrenheit_Alternate3</source>
        <translation>Btu/lb·°F</translation>
    </message>
    <message>
        <source>eSBTUPerPoundFahrenheit_Alternate4</source>
        <translation>Btu/(lb·°F)</translation>
    </message>
    <message>
        <source>eSBTUPerPoundFahrenheit_Alternate5</source>
        <translation>Btu/lbF</translation>
    </message>
    <message>
        <source>eSBTUPerPoundFahrenheit_Alternate6</source>
        <translation>BTU/lbF</translation>
    </message>
    <message>
        <source>eSBTUPerPoundFahrenheit_Alternate7</source>
        <translation>Btu/lb-°F</translation>
    </message>
    <message>
        <source>eSBTUPerPoundFahrenheit_Alternate8</source>
        <translation>Btu/lbm-F</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_SpecificHeatOfVaporization</name>
    <message>
        <source>eSJoulePerGram_Alternate1</source>
        <translation>joules per gram</translation>
    </message>
    <message>
        <source>eSJoulePerGram_Alternate2</source>
        <translation>kJ/kg</translation>
    </message>
    <message>
        <source>eSJoulePerGram_Alternate3</source>
        <translation>kilojoule per kilogram</translation>
    </message>
    <message>
        <source>eSJoulePerGram_Alternate4</source>
        <translation>kilojoules per kilogram</translation>
    </message>
    <message>
        <source>eSJoulePerKilogram_Alternate1</source>
        <translation>joules per kilogram</translation>
    </message>
    <message>
        <source>eSBTUPerPound_Alternate1</source>
        <translation>Btu/lb</translation>
    </message>
    <message>
        <source>eSBTUPerPound_Alternate2</source>
        <translation>Btu/lbm</translation>
    </message>
    <message>
        <source>eSBTUPerPound_Alternate3</source>
        <translation>BTU/lbm</translation>
    </message>
    <message>
        <source>eSBTUPerPound_Alternate4</source>
        <translation>BTUs per pound</translation>
    </message>
    <message>
        <source>eSBTUPerPound_Alternate5</source>
        <translation>Btu per pound</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Temperature</name>
    <message>
        <source>eSKelvin_Alternate1</source>
        <translation>kelvins</translation>
    </message>
    <message>
        <source>eSKelvin_Alternate2</source>
        <translation>deg K</translation>
    </message>
    <message>
        <source>eSKelvin_Alternate3</source>
        <translation>degrees K</translation>
    </message>
    <message>
        <source>eSKelvin_Alternate4</source>
        <translation>degrees Kelvin</translation>
    </message>
    <message>
        <source>eSKelvin_Alternate5</source>
        <translation>degree Kelvin</translation>
    </message>
    <message>
        <source>eSKelvin_Alternate6</source>
        <translation>ºK</translation>
    </message>
    <message>
        <source>eSKelvin_Alternate7</source>
        <translation>K</translation>
    </message>
    <message>
        <source>eSDegreeCelsius_Alternate1</source>
        <translation>celsius</translation>
    </message>
    <message>
        <source>eSDegreeCelsius_Alternate2</source>
        <translation>Celsius</translation>
    </message>
    <message>
        <source>eSDegreeCelsius_Alternate3</source>
        <translation>centigrade</translation>
    </message>
    <message>
        <source>eSDegreeCelsius_Alternate4</source>
        <translation>degree C</translation>
    </message>
    <message>
        <source>eSDegreeCelsius_Alternate5</source>
        <translation>degrees C</translation>
    </message>
    <message>
        <source>eSDegreeCelsius_Alternate6</source>
        <translation>deg C</translation>
    </message>
    <message>
        <source>eSDegreeCelsius_Alternate7</source>
        <translation>degrees Celsius</translation>
    </message>
    <message>
        <source>eSDegreeCelsius_Alternate8</source>
        <translation>degrees celsius</translation>
    </message>
    <message>
        <source>eSDegreeCelsius_Alternate9</source>
        <translation>degree celsius</translation>
    </message>
    <message>
        <source>eSDegreeCelsius_Alternate10</source>
        <translation>ºC</translation>
    </message>
    <message>
        <source>eSdegC_Alternate1</source>
        <translation>degree centigrade</translation>
    </message>
    <message>
        <source>eSdegC_Alternate2</source>
        <translation>degrees centigrade</translation>
    </message>
    <message>
        <source>eSdegC_Alternate3</source>
        <translation>deg. C</translation>
    </message>
    <message>
        <source>eSdegC_Alternate4</source>
        <translation>degc</translation>
    </message>
    <message>
        <source>eSdegC_Alternate5</source>
        <translation>Centigrade</translation>
    </message>
    <message>
        <source>eSDegreeFahrenheit_Alternate1</source>
        <translation>fahrenheit</translation>
    </message>
    <message>
        <source>eSDegreeFahrenheit_Alternate2</source>
        <translation>Fahrenheit</translation>
    </message>
    <message>
        <source>eSDegreeFahrenheit_Alternate3</source>
        <translation>degree F</translation>
    </message>
    <message>
        <source>eSDegreeFahrenheit_Alternate4</source>
        <translation>degrees F</translation>
    </message>
    <message>
        <source>eSDegreeFahrenheit_Alternate5</source>
        <translation>deg F</translation>
    </message>
    <message>
        <source>eSDegreeFahrenheit_Alternate6</source>
        <translation>degrees Fahrenheit</translation>
    </message>
    <message>
        <source>eSDegreeFahrenheit_Alternate7</source>
        <translation>degrees fahrenheit</translation>
    </message>
    <message>
        <source>eSDegreeFahrenheit_Alternate8</source>
        <translation>degree fahrenheit</translation>
    </message>
    <message>
        <source>eSDegreeFahrenheit_Alternate9</source>
        <translation>ºF</translation>
    </message>
    <message>
        <source>eSDegF_Alternate1</source>
        <translation>deg. F</translation>
    </message>
    <message>
        <source>eSDegF_Alternate2</source>
        <translation>degf</translation>
    </message>
    <message>
        <source>eSDegreeRankine_Alternate1</source>
        <translation>rankine</translation>
    </message>
    <message>
        <source>eSDegreeRankine_Alternate2</source>
        <translation>Rankine</translation>
    </message>
    <message>
        <source>eSDegreeRankine_Alternate3</source>
        <translation>deg R</translation>
    </message>
    <message>
        <source>eSDegreeRankine_Alternate4</source>
        <translation>degree R</translation>
    </message>
    <message>
        <source>eSDegreeRankine_Alternate5</source>
        <translation>degrees R</translation>
    </message>
    <message>
        <source>eSDegreeRankine_Alternate6</source>
        <translation>degrees Rankine</translation>
    </message>
    <message>
        <source>eSDegreeRankine_Alternate7</source>
        <translation>ºR</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_TemperatureRate</name>
    <message>
        <source>eSCelsiusPerMinute_Alternate1</source>
        <translation>deg C/min</translation>
    </message>
    <message>
        <source>eSCelsiusPerMinute_Alternate2</source>
        <translation>C/min</translation>
    </message>
    <message>
        <source>eSFahrenheitPerMinute_Alternate1</source>
        <translation>deg F/min</translation>
    </message>
    <message>
        <source>eSFahrenheitPerMinute_Alternate2</source>
        <translation>F/min</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_ThermalConductivity</name>
    <message>
        <source>eSbtuInchPerFt2hrDegreeF_Alternate1</source>
        <translation>BTU·in/(ft^2·hr·°F)</translation>
    </message>
    <message>
        <source>eSWattPerMeterKelvin_Alternate1</source>
        <translation>watts per meter kelvin</translation>
    </message>
    <message>
        <source>eSWattPerMeterKelvin_Alternate2</source>
        <translation>watt per metre kelvin</translation>
    </message>
    <message>
        <source>eSWattPerMeterKelvin_Alternate3</source>
        <translation>watts per metre kelvin</translation>
    </message>
    <message>
        <source>eSWattPerMeterKelvin_Alternate4</source>
        <translation>W/mK</translation>
    </message>
    <message>
        <source>eSWattPerMeterKelvin_Alternate5</source>
        <translation>W/m-K</translation>
    </message>
    <message>
        <source>eSWattPerMeterKelvin_Alternate6</source>
        <translation>W/m·K</translation>
    </message>
    <message>
        <source>eSWattPerMeterKelvin_Alternate7</source>
        <translation>W/(m K)</translation>
    </message>
    <message>
        <source>eSWattPerMeterCelsius_Alternate1</source>
        <translation>watts per meter celsius</translation>
    </message>
    <message>
        <source>eSWattPerMeterCelsius_Alternate2</source>
        <translation>watt per metre celsius</translation>
    </message>
    <message>
        <source>eSWattPerMeterCelsius_Alternate3</source>
        <translation>watts per metre celsius</translation>
    </message>
    <message>
        <source>eSWattPerMeterCelsius_Alternate4</source>
        <translation>W/m-C</translation>
    </message>
    <message>
        <source>eSWattPerMeterCelsius_Alternate5</source>
        <translation>W/m·°C</translation>
    </message>
    <message>
        <source>eSWattPerMeterCelsius_Alternate6</source>
        <translation>W/mC</translation>
    </message>
    <message>
        <source>eSNewtonPerSecondCelsius_Alternate1</source>
        <translation>newtons per second celsius</translation>
    </message>
    <message>
        <source>eSDynePerSecondCelsius_Alternate1</source>
        <translation>dynes per second celsius</translation>
    </message>
    <message>
        <source>eSBTUInchPerSquareFootHourFahrenheit_Alternate1</source>
        <translation>Btu-in/h-ft2-F</translation>
    </message>
    <message>
        <source>eSBTUInchPerSquareFootHourFahrenheit_Alternate2</source>
        <translation>Btu-in/hr-ft2-F</translation>
    </message>
    <message>
        <source>eSBTUInchPerSquareFootHourFahrenheit_Alternate3</source>
        <translation>BTU-in/hr-ft2-F</translation>
    </message>
    <message>
        <source>eSBTUInchPerSquareFootHourFahrenheit_Alternate4</source>
        <translation>Btu in/(h ft2 F)</translation>
    </message>
    <message>
        <source>eSBTUInchPerSquareFootHourFahrenheit_Alternate5</source>
        <translation>Btu·in/(h·ft2·°F)</translation>
    </message>
    <message>
        <source>eSBTUPerFootHourFahrenheit_Alternate1</source>
        <translation>Btu/h-ft-F</translation>
    </message>
    <message>
        <source>eSBTUPerFootHourFahrenheit_Alternate2</source>
        <translation>Btu/hr-ft-F</translation>
    </message>
    <message>
        <source>eSBTUPerFootHourFahrenheit_Alternate3</source>
        <translation>BTU/hr-ft-F</translation>
    </message>
    <message>
        <source>eSBTUPerFootHourFahrenheit_Alternate4</source>
        <translation>Btu/(h ft F)</translation>
    </message>
    <message>
        <source>eSBTUPerFootHourFahrenheit_Alternate5</source>
        <translation>Btu/(h·ft·°F)</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Time</name>
    <message>
        <source>eSSecond_Alternate1</source>
        <translation>seconds</translation>
    </message>
    <message>
        <source>eSSecond_Alternate2</source>
        <translation>secs</translation>
    </message>
    <message>
        <source>eSSecond_Alternate3</source>
        <translation>sec.</translation>
    </message>
    <message>
        <source>eSYottasecond_Alternate1</source>
        <translation>yottaseconds</translation>
    </message>
    <message>
        <source>eSZettasecond_Alternate1</source>
        <translation>zettaseconds</translation>
    </message>
    <message>
        <source>eSExasecond_Alternate1</source>
        <translation>exaseconds</translation>
    </message>
    <message>
        <source>eSPetasecond_Alternate1</source>
        <translation>petaseconds</translation>
    </message>
    <message>
        <source>eSTerasecond_Alternate1</source>
        <translation>teraseconds</translation>
    </message>
    <message>
        <source>eSGigasecond_Alternate1</source>
        <translation>gigaseconds</translation>
    </message>
    <message>
        <source>eSMegasecond_Alternate1</source>
        <translation>megaseconds</translation>
    </message>
    <message>
        <source>eSKilosecond_Alternate1</source>
        <translation>kiloseconds</translation>
    </message>
    <message>
        <source>eSHectosecond_Alternate1</source>
        <translation>hectoseconds</translation>
    </message>
    <message>
        <source>eSDecasecond_Alternate1</source>
        <translation>decaseconds</translation>
    </message>
    <message>
        <source>eSDecasecond_Alternate2</source>
        <translation>dekasecond</translation>
    </message>
    <message>
        <source>eSDecasecond_Alternate3</source>
        <translation>dekaseconds</translation>
    </message>
    <message>
        <source>eSDecisecond_Alternate1</source>
        <translation>deciseconds</translation>
    </message>
    <message>
        <source>eSCentisecond_Alternate1</source>
        <translation>centiseconds</translation>
    </message>
    <message>
        <source>eSMillisecond_Alternate1</source>
        <translation>milliseconds</translation>
    </message>
    <message>
        <source>eSMillisecond_Alternate2</source>
        <translation>msec</translation>
    </message>
    <message>
        <source>eSMillisecond_Alternate3</source>
        <translation>msecs</translation>
    </message>
    <message>
        <source>eSMillisecond_Alternate4</source>
        <translation>millisec</translation>
    </message>
    <message>
        <source>eSMicrosecond_Alternate1</source>
        <translation>microseconds</translation>
    </message>
    <message>
        <source>eSMicrosecond_Alternate2</source>
        <translation>usec</translation>
    </message>
    <message>
        <source>eSMicrosecond_Alternate3</source>
        <translation>usecs</translation>
    </message>
    <message>
        <source>eSMicrosecond_Alternate4</source>
        <translation>μs</translation>
    </message>
    <message>
        <source>eSMicrosecond_Alternate5</source>
        <translation>µsec</translation>
    </message>
    <message>
        <source>eSNanosecond_Alternate1</source>
        <translation>nanoseconds</translation>
    </message>
    <message>
        <source>eSNanosecond_Alternate2</source>
        <translation>nsec</translation>
    </message>
    <message>
        <source>eSNanosecond_Alternate3</source>
        <translation>nsecs</translation>
    </message>
    <message>
        <source>eSPicosecond_Alternate1</source>
        <translation>picoseconds</translation>
    </message>
    <message>
        <source>eSPicosecond_Alternate2</source>
        <translation>psec</translation>
    </message>
    <message>
        <source>eSFemtosecond_Alternate1</source>
        <translation>femtoseconds</translation>
    </message>
    <message>
        <source>eSAttosecond_Alternate1</source>
        <translation>attoseconds</translation>
    </message>
    <message>
        <source>eSZeptosecond_Alternate1</source>
        <translation>zeptoseconds</translation>
    </message>
    <message>
        <source>eSYoctosecond_Alternate1</source>
        <translation>yoctoseconds</translation>
    </message>
    <message>
        <source>eSMinute_Alternate1</source>
        <translation>minutes</translation>
    </message>
    <message>
        <source>eSMinute_Alternate2</source>
        <translation>mins</translation>
    </message>
    <message>
        <source>eSMinute_Alternate3</source>
        <translation>min.</translation>
    </message>
    <message>
        <source>eSHour_Alternate1</source>
        <translation>hours</translation>
    </message>
    <message>
        <source>eSHour_Alternate2</source>
        <translation>hrs</translation>
    </message>
    <message>
        <source>eSHour_Alternate3</source>
        <translation>hr.</translation>
    </message>
    <message>
        <source>eSHour_Alternate4</source>
        <translation>hrs.</translation>
    </message>
    <message>
        <source>eSDay_Alternate1</source>
        <translation>days</translation>
    </message>
    <message>
        <source>eSWeek_Alternate1</source>
        <translation>weeks</translation>
    </message>
    <message>
        <source>eSWeek_Alternate2</source>
        <translation>wks</translation>
    </message>
    <message>
        <source>eSFortnight_Alternate1</source>
        <translation>fortnights</translation>
    </message>
    <message>
        <source>eSMonth_Alternate1</source>
        <translation>months</translation>
    </message>
    <message>
        <source>eSYear_Alternate1</source>
        <translation>years</translation>
    </message>
    <message>
        <source>eSYear_Alternate2</source>
        <translation>yrs</translation>
    </message>
    <message>
        <source>eSYear_Alternate3</source>
        <translation>yr.</translation>
    </message>
    <message>
        <source>eSYearGregorian_Alternate1</source>
        <translation>Gregorian year</translation>
    </message>
    <message>
        <source>eSYearGregorian_Alternate2</source>
        <translation>Gregorian years</translation>
    </message>
    <message>
        <source>eSYearJulian_Alternate1</source>
        <translation>Julian year</translation>
    </message>
    <message>
        <source>eSYearJulian_Alternate2</source>
        <translation>Julian years</translation>
    </message>
    <message>
        <source>eSSiderealYear_Alternate1</source>
        <translation>sidereal years</translation>
    </message>
    <message>
        <source>eSTropicalYear_Alternate1</source>
        <translation>tropical years</translation>
    </message>
    <message>
        <source>eSDecade_Alternate1</source>
        <translation>decades</translation>
    </message>
    <message>
        <source>eSCentury_Alternate1</source>
        <translation>centuries</translation>
    </message>
    <message>
        <source>eSMillenium_Alternate1</source>
        <translation>millenia</translation>
    </message>
    <message>
        <source>eSMillenium_Alternate2</source>
        <translation>millennium</translation>
    </message>
    <message>
        <source>eSMillenium_Alternate3</source>
        <translation>millennia</translation>
    </message>
    <message>
        <source>eSMillenium_Alternate4</source>
        <translation>millenniums</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Torque</name>
    <message>
        <source>eSNewtonCentimeterTorque_Alternate1</source>
        <translation>N-cm</translation>
    </message>
    <message>
        <source>eSNewtonCentimeterTorque_Alternate2</source>
        <translation>N·cm</translation>
    </message>
    <message>
        <source>eSNewtonCentimeterTorque_Alternate3</source>
        <translation>Ncm</translation>
    </message>
    <message>
        <source>eSNewtonCentimeterTorque_Alternate4</source>
        <translation>newton centimeter</translation>
    </message>
    <message>
        <source>eSNewtonCentimeterTorque_Alternate5</source>
        <translation>newton centimeters</translation>
    </message>
    <message>
        <source>eSNewtonCentimeterTorque_Alternate6</source>
        <translation>newton-centimeter</translation>
    </message>
    <message>
        <source>eSFootPoundTorque_Alternate1</source>
        <translation>ft-lb</translation>
    </message>
    <message>
        <source>eSFootPoundTorque_Alternate2</source>
        <translation>ft-lbs</translation>
    </message>
    <message>
        <source>eSFootPoundTorque_Alternate3</source>
        <translation>ft·lb</translation>
    </message>
    <message>
        <source>eSFootPoundTorque_Alternate4</source>
        <translation>ftlb</translation>
    </message>
    <message>
        <source>eSFootPoundTorque_Alternate5</source>
        <translation>foot-pound torque</translation>
    </message>
    <message>
        <source>eSInchPoundTorque_Alternate1</source>
        <translation>in-lb</translation>
    </message>
    <message>
        <source>eSInchPoundTorque_Alternate2</source>
        <translation>in-lbs</translation>
    </message>
    <message>
        <source>eSInchPoundTorque_Alternate3</source>
        <translation>in·lb</translation>
    </message>
    <message>
        <source>eSInchPoundTorque_Alternate4</source>
        <translation>in-lbf</translation>
    </message>
    <message>
        <source>eSInchPoundTorque_Alternate5</source>
        <translation>in·lbf</translation>
    </message>
    <message>
        <source>eSInchPoundTorque_Alternate6</source>
        <translation>inch-pound</translation>
    </message>
    <message>
        <source>eSInchPoundTorque_Alternate7</source>
        <translation>inch-pounds</translation>
    </message>
    <message>
        <source>eSMeterKilogramTorque_Alternate1</source>
        <translation>m-kg</translation>
    </message>
    <message>
        <source>eSMeterKilogramTorque_Alternate2</source>
        <translation>m·kg</translation>
    </message>
    <message>
        <source>eSMeterKilogramTorque_Alternate3</source>
        <translation>kg-m</translation>
    </message>
    <message>
        <source>eSMeterKilogramTorque_Alternate4</source>
        <translation>kg·m</translation>
    </message>
    <message>
        <source>eSMeterKilogramTorque_Alternate5</source>
        <translation>meter-kilogram</translation>
    </message>
    <message>
        <source>eSMeterKilogramTorque_Alternate6</source>
        <translation>kilogram-meter</translation>
    </message>
    <message>
        <source>eSCentimeterKilogramTorque_Alternate1</source>
        <translation>cm-kg</translation>
    </message>
    <message>
        <source>eSCentimeterKilogramTorque_Alternate2</source>
        <translation>kg-cm</translation>
    </message>
    <message>
        <source>eSCentimeterKilogramTorque_Alternate3</source>
        <translation>kg·cm</translation>
    </message>
    <message>
        <source>eSCentimeterKilogramTorque_Alternate4</source>
        <translation>kgf-cm</translation>
    </message>
    <message>
        <source>eSCentimeterKilogramTorque_Alternate5</source>
        <translation>kgf·cm</translation>
    </message>
    <message>
        <source>eSCentimeterKilogramTorque_Alternate6</source>
        <translation>kilogram-centimeter</translation>
    </message>
    <message>
        <source>eSInchOunceTorque_Alternate1</source>
        <translation>in-oz</translation>
    </message>
    <message>
        <source>eSInchOunceTorque_Alternate2</source>
        <translation>in·oz</translation>
    </message>
    <message>
        <source>eSInchOunceTorque_Alternate3</source>
        <translation>oz-in</translation>
    </message>
    <message>
        <source>eSInchOunceTorque_Alternate4</source>
        <translation>oz·in</translation>
    </message>
    <message>
        <source>eSInchOunceTorque_Alternate5</source>
        <translation>ozf-in</translation>
    </message>
    <message>
        <source>eSInchOunceTorque_Alternate6</source>
        <translation>inch-ounce</translation>
    </message>
    <message>
        <source>eSInchOunceTorque_Alternate7</source>
        <translation>inch-ounces</translation>
    </message>
    <message>
        <source>eSInchOunceTorque_Alternate8</source>
        <translation>ounce-inch</translation>
    </message>
    <message>
        <source>eSGramCentimeterTorque_Alternate1</source>
        <translation>g-cm</translation>
    </message>
    <message>
        <source>eSGramCentimeterTorque_Alternate2</source>
        <translation>g·cm</translation>
    </message>
    <message>
        <source>eSGramCentimeterTorque_Alternate3</source>
        <translation>gf-cm</translation>
    </message>
    <message>
        <source>eSGramCentimeterTorque_Alternate4</source>
        <translation>gf·cm</translation>
    </message>
    <message>
        <source>eSGramCentimeterTorque_Alternate5</source>
        <translation>gram-centimeter</translation>
    </message>
    <message>
        <source>eSDecanewtonMeterTorque_Alternate1</source>
        <translation>daN-m</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterTorque_Alternate1</source>
        <translation>kN-m</translation>
    </message>
    <message>
        <source>eSMeganewtonMeterTorque_Alternate1</source>
        <translation>MN-m</translation>
    </message>
    <message>
        <source>eSKipFootTorque_Alternate1</source>
        <translation>kip-ft</translation>
    </message>
    <message>
        <source>eSKipFootTorque_Alternate2</source>
        <translation>kip·ft</translation>
    </message>
    <message>
        <source>eSKipFootTorque_Alternate3</source>
        <translation>k-ft</translation>
    </message>
    <message>
        <source>eSKipFootTorque_Alternate4</source>
        <translation>kipft</translation>
    </message>
    <message>
        <source>eSKipFootTorque_Alternate5</source>
        <translation>ft-kip</translation>
    </message>
    <message>
        <source>eSKipFootTorque_Alternate6</source>
        <translation>ft-kips</translation>
    </message>
    <message>
        <source>eSKipFootTorque_Alternate7</source>
        <translation>kip-feet</translation>
    </message>
    <message>
        <source>eSKipFootTorque_Alternate8</source>
        <translation>kip-foot</translation>
    </message>
    <message>
        <source>eSKipFootTorque_Alternate9</source>
        <translation>kips-ft</translation>
    </message>
    <message>
        <source>eSPoundForceFootTorque_Alternate1</source>
        <translation>lb-ft</translation>
    </message>
    <message>
        <source>eSPoundForceFootTorque_Alternate2</source>
        <translation>lbf-ft</translation>
    </message>
    <message>
        <source>eSPoundForceFootTorque_Alternate3</source>
        <translation>lb·ft</translation>
    </message>
    <message>
        <source>eSPoundForceFootTorque_Alternate4</source>
        <translation>lbf·ft</translation>
    </message>
    <message>
        <source>eSPoundForceFootTorque_Alternate5</source>
        <translation>lbs-ft</translation>
    </message>
    <message>
        <source>eSPoundForceFootTorque_Alternate6</source>
        <translation>pound-foot</translation>
    </message>
    <message>
        <source>eSPoundForceFootTorque_Alternate7</source>
        <translation>pound-feet</translation>
    </message>
    <message>
        <source>eSPoundForceFootTorque_Alternate8</source>
        <translation>pound feet</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_UnitWeight</name>
    <message>
        <source>eSNPerm3_Alternate1</source>
        <translation>N/m^3</translation>
    </message>
    <message>
        <source>eSkNPerm3_Alternate1</source>
        <translation>kN/m^3</translation>
    </message>
    <message>
        <source>eSNewtonPerCubicMeter_Alternate1</source>
        <translation>newtons per cubic meter</translation>
    </message>
    <message>
        <source>eSNewtonPerCubicMeter_Alternate2</source>
        <translation>newton per cubic metre</translation>
    </message>
    <message>
        <source>eSNewtonPerCubicMeter_Alternate3</source>
        <translation>newtons per cubic metre</translation>
    </message>
    <message>
        <source>eSNewtonPerCubicMeter_Alternate4</source>
        <translation>N/m3</translation>
    </message>
    <message>
        <source>eSKilonewtonPerCubicMeter_Alternate1</source>
        <translation>kilonewtons per cubic meter</translation>
    </message>
    <message>
        <source>eSKilonewtonPerCubicMeter_Alternate2</source>
        <translation>kilonewton per cubic metre</translation>
    </message>
    <message>
        <source>eSKilonewtonPerCubicMeter_Alternate3</source>
        <translation>kilonewtons per cubic metre</translation>
    </message>
    <message>
        <source>eSKilonewtonPerCubicMeter_Alternate4</source>
        <translation>kN/m3</translation>
    </message>
    <message>
        <source>eSPoundForcePerCubicFoot_Alternate1</source>
        <translation>pounds force per cubic foot</translation>
    </message>
    <message>
        <source>eSPoundForcePerCubicFoot_Alternate2</source>
        <translation>pcf</translation>
    </message>
    <message>
        <source>eSPoundForcePerCubicFoot_Alternate3</source>
        <translation>lbf/ft3</translation>
    </message>
    <message>
        <source>eSPoundForcePerCubicFoot_Alternate4</source>
        <translation>lbf/cu ft</translation>
    </message>
    <message>
        <source>eSKipPerCubicInch_Alternate1</source>
        <translation>kips per cubic inch</translation>
    </message>
    <message>
        <source>eSKipPerCubicInch_Alternate2</source>
        <translation>kci</translation>
    </message>
    <message>
        <source>eSKipPerCubicInch_Alternate3</source>
        <translation>kip/in3</translation>
    </message>
    <message>
        <source>eSKipPerCubicFoot_Alternate1</source>
        <translation>kips per cubic foot</translation>
    </message>
    <message>
        <source>eSKipPerCubicFoot_Alternate2</source>
        <translation>kcf</translation>
    </message>
    <message>
        <source>eSKipPerCubicFoot_Alternate3</source>
        <translation>kip/ft3</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Velocity</name>
    <message>
        <source>eSMeterPerSecond_Alternate1</source>
        <translation>meters per second</translation>
    </message>
    <message>
        <source>eSMeterPerSecond_Alternate2</source>
        <translation>metre per second</translation>
    </message>
    <message>
        <source>eSMeterPerSecond_Alternate3</source>
        <translation>metres per second</translation>
    </message>
    <message>
        <source>eSMeterPerSecond_Alternate4</source>
        <translation>m/sec</translation>
    </message>
    <message>
        <source>eSMeterPerSecond_Alternate5</source>
        <translation>mps</translation>
    </message>
    <message>
        <source>eSMeterPerSecond_Alternate6</source>
        <translation>meters/second</translation>
    </message>
    <message>
        <source>eSMillimeterPerSecond_Alternate1</source>
        <translation>millimeters per second</translation>
    </message>
    <message>
        <source>eSMillimeterPerSecond_Alternate2</source>
        <translation>millimetre per second</translation>
    </message>
    <message>
        <source>eSMillimeterPerSecond_Alternate3</source>
        <translation>millimetres per second</translation>
    </message>
    <message>
        <source>eSMillimeterPerSecond_Alternate4</source>
        <translation>mm/sec</translation>
    </message>
    <message>
        <source>eSCentimeterPerSecond_Alternate1</source>
        <translation>centimeters per second</translation>
    </message>
    <message>
        <source>eSCentimeterPerSecond_Alternate2</source>
        <translation>centimetre per second</translation>
    </message>
    <message>
        <source>eSCentimeterPerSecond_Alternate3</source>
        <translation>centimetres per second</translation>
    </message>
    <message>
        <source>eSCentimeterPerSecond_Alternate4</source>
        <translation>cm/sec</translation>
    </message>
    <message>
        <source>eSMeterPerMinute_Alternate1</source>
        <translation>meters per minute</translation>
    </message>
    <message>
        <source>eSMeterPerMinute_Alternate2</source>
        <translation>metre per minute</translation>
    </message>
    <message>
        <source>eSMeterPerMinute_Alternate3</source>
        <translation>metres per minute</translation>
    </message>
    <message>
        <source>eSMeterPerMinute_Alternate4</source>
        <translation>mpm</translation>
    </message>
    <message>
        <source>eSInchPerSecond_Alternate1</source>
        <translation>inches per second</translation>
    </message>
    <message>
        <source>eSInchPerSecond_Alternate2</source>
        <translation>in/sec</translation>
    </message>
    <message>
        <source>eSInchPerSecond_Alternate3</source>
        <translation>ips</translation>
    </message>
    <message>
        <source>eSInchPerSecond_Alternate4</source>
        <translation>IPS</translation>
    </message>
    <message>
        <source>eSFootPerSecond_Alternate1</source>
        <translation>feet per second</translation>
    </message>
    <message>
        <source>eSFootPerSecond_Alternate2</source>
        <translation>ft/sec</translation>
    </message>
    <message>
        <source>eSFootPerSecond_Alternate3</source>
        <translation>FPS</translation>
    </message>
    <message>
        <source>eSFootPerSecond_Alternate4</source>
        <translation>feet/second</translation>
    </message>
    <message>
        <source>eSInchPerMinute_Alternate1</source>
        <translation>inches per minute</translation>
    </message>
    <message>
        <source>eSInchPerMinute_Alternate2</source>
        <translation>ipm</translation>
    </message>
    <message>
        <source>eSInchPerMinute_Alternate3</source>
        <translation>IPM</translation>
    </message>
    <message>
        <source>eSFootPerMinute_Alternate1</source>
        <translation>feet per minute</translation>
    </message>
    <message>
        <source>eSFootPerMinute_Alternate2</source>
        <translation>FPM</translation>
    </message>
    <message>
        <source>eSFootPerMinute_Alternate3</source>
        <translation>feet/minute</translation>
    </message>
    <message>
        <source>eSKilometerPerHour_Alternate1</source>
        <translation>kilometers per hour</translation>
    </message>
    <message>
        <source>eSKilometerPerHour_Alternate2</source>
        <translation>kilometre per hour</translation>
    </message>
    <message>
        <source>eSKilometerPerHour_Alternate3</source>
        <translation>kilometres per hour</translation>
    </message>
    <message>
        <source>eSKilometerPerHour_Alternate4</source>
        <translation>km/hr</translation>
    </message>
    <message>
        <source>eSKilometerPerHour_Alternate5</source>
        <translation>kmh</translation>
    </message>
    <message>
        <source>eSKilometerPerHour_Alternate6</source>
        <translation>KPH</translation>
    </message>
    <message>
        <source>eSMilePerHour_Alternate1</source>
        <translation>miles per hour</translation>
    </message>
    <message>
        <source>eSMilePerHour_Alternate2</source>
        <translation>mi/hr</translation>
    </message>
    <message>
        <source>eSMilePerHour_Alternate3</source>
        <translation>miles/hour</translation>
    </message>
    <message>
        <source>eSCentimeterPerMinute_Alternate1</source>
        <translation>centimeters per minute</translation>
    </message>
    <message>
        <source>eSCentimeterPerMinute_Alternate2</source>
        <translation>centimetre per minute</translation>
    </message>
    <message>
        <source>eSCentimeterPerMinute_Alternate3</source>
        <translation>centimetres per minute</translation>
    </message>
    <message>
        <source>eSFootPerHour_Alternate1</source>
        <translation>feet per hour</translation>
    </message>
    <message>
        <source>eSFootPerHour_Alternate2</source>
        <translation>ft/hr</translation>
    </message>
    <message>
        <source>eSInchPerHour_Alternate1</source>
        <translation>inches per hour</translation>
    </message>
    <message>
        <source>eSInchPerHour_Alternate2</source>
        <translation>in/hr</translation>
    </message>
    <message>
        <source>eSKilometerPerMinute_Alternate1</source>
        <translation>kilometers per minute</translation>
    </message>
    <message>
        <source>eSKilometerPerMinute_Alternate2</source>
        <translation>kilometre per minute</translation>
    </message>
    <message>
        <source>eSKilometerPerMinute_Alternate3</source>
        <translation>kilometres per minute</translation>
    </message>
    <message>
        <source>eSKilometerPerSecond_Alternate1</source>
        <translation>kilometers per second</translation>
    </message>
    <message>
        <source>eSKilometerPerSecond_Alternate2</source>
        <translation>kilometre per second</translation>
    </message>
    <message>
        <source>eSKilometerPerSecond_Alternate3</source>
        <translation>kilometres per second</translation>
    </message>
    <message>
        <source>eSKilometerPerSecond_Alternate4</source>
        <translation>km/sec</translation>
    </message>
    <message>
        <source>eSKnot_Alternate1</source>
        <translation>knots</translation>
    </message>
    <message>
        <source>eSKnot_Alternate2</source>
        <translation>kts</translation>
    </message>
    <message>
        <source>eSKnot_Alternate3</source>
        <translation>KTS</translation>
    </message>
    <message>
        <source>eSMeterPerHour_Alternate1</source>
        <translation>meters per hour</translation>
    </message>
    <message>
        <source>eSMeterPerHour_Alternate2</source>
        <translation>metre per hour</translation>
    </message>
    <message>
        <source>eSMeterPerHour_Alternate3</source>
        <translation>metres per hour</translation>
    </message>
    <message>
        <source>eSMeterPerHour_Alternate4</source>
        <translation>m/hr</translation>
    </message>
    <message>
        <source>eSMilePerMinute_Alternate1</source>
        <translation>miles per minute</translation>
    </message>
    <message>
        <source>eSMilePerSecond_Alternate1</source>
        <translation>miles per second</translation>
    </message>
    <message>
        <source>eSMilePerSecond_Alternate2</source>
        <translation>mi/sec</translation>
    </message>
    <message>
        <source>eSSurveyMilePerHour_Alternate1</source>
        <translation>survey miles per hour</translation>
    </message>
    <message>
        <source>eSSurveyFootPerSecond_Alternate1</source>
        <translation>survey feet per second</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Voltage</name>
    <message>
        <source>eSVolt_Alternate1</source>
        <translation>volts</translation>
    </message>
    <message>
        <source>eSKilovolt_Alternate1</source>
        <translation>kilovolts</translation>
    </message>
    <message>
        <source>eSMicrovolt_Alternate1</source>
        <translation>microvolts</translation>
    </message>
    <message>
        <source>eSMicrovolt_Alternate2</source>
        <translation>μV</translation>
    </message>
    <message>
        <source>eSMillivolt_Alternate1</source>
        <translation>millivolts</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Volume</name>
    <message>
        <source>eSLiter_Alternate1</source>
        <translation>liters</translation>
    </message>
    <message>
        <source>eSLiter_Alternate2</source>
        <translation>litre</translation>
    </message>
    <message>
        <source>eSLiter_Alternate3</source>
        <translation>litres</translation>
    </message>
    <message>
        <source>eSLiter_Alternate4</source>
        <translation>l</translation>
    </message>
    <message>
        <source>eSLiter_Alternate5</source>
        <translation>ℓ</translation>
    </message>
    <message>
        <source>eSLiter_Alternate6</source>
        <translation>ltr</translation>
    </message>
    <message>
        <source>eSCubicCentimeter_Alternate1</source>
        <translation>cubic centimeters</translation>
    </message>
    <message>
        <source>eSCubicCentimeter_Alternate2</source>
        <translation>cubic centimetre</translation>
    </message>
    <message>
        <source>eSCubicCentimeter_Alternate3</source>
        <translation>cubic centimetres</translation>
    </message>
    <message>
        <source>eSCubicCentimeter_Alternate4</source>
        <translation>cm3</translation>
    </message>
    <message>
        <source>eSCubicCentimeter_Alternate5</source>
        <translation>ccm</translation>
    </message>
    <message>
        <source>eSTablespoon_Alternate1</source>
        <translation>tablespoons</translation>
    </message>
    <message>
        <source>eSTablespoon_Alternate2</source>
        <translation>tbs</translation>
    </message>
    <message>
        <source>eSTablespoon_Alternate3</source>
        <translation>Tbsp</translation>
    </message>
    <message>
        <source>eSTablespoon_Alternate4</source>
        <translation>Tbs</translation>
    </message>
    <message>
        <source>eSTablespoon_Alternate5</source>
        <translation>tbsp.</translation>
    </message>
    <message>
        <source>eSFluidOunceImperial_Alternate1</source>
        <translation>imperial fluid ounce</translation>
    </message>
    <message>
        <source>eSFluidOunceImperial_Alternate2</source>
        <translation>imperial fluid ounces</translation>
    </message>
    <message>
        <source>eSFluidOunceImperial_Alternate3</source>
        <translation>imp fl oz</translation>
    </message>
    <message>
        <source>eSFluidOunceImperial_Alternate4</source>
        <translation>UK fluid ounce</translation>
    </message>
    <message>
        <source>eSFluidOunceImperial_Alternate5</source>
        <translation>UK fluid ounces</translation>
    </message>
    <message>
        <source>eSFluidOunceUS_Alternate4</source>
        <translation>fl. oz.</translation>
    </message>
    <message>
        <source>eSFluidOunceUS_Alternate5</source>
        <translation>fl.oz.</translation>
    </message>
    <message>
        <source>eSFluidOunceUS_Alternate6</source>
        <translation>US fluid ounce</translation>
    </message>
    <message>
        <source>eSFluidOunceUS_Alternate7</source>
        <translation>US fluid ounces</translation>
    </message>
    <message>
        <source>eSFluidOunceUS_Alternate8</source>
        <translation>US fl oz</translation>
    </message>
    <message>
        <source>eSCup_Alternate1</source>
        <translation>cups</translation>
    </message>
    <message>
        <source>eSCupUS_Alternate1</source>
        <translation>US cup</translation>
    </message>
    <message>
        <source>eSCupUS_Alternate2</source>
        <translation>US cups</translation>
    </message>
    <message>
        <source>eSQuartImperial_Alternate1</source>
        <translation>imperial quart</translation>
    </message>
    <message>
        <source>eSQuartImperial_Alternate2</source>
        <translation>imperial quarts</translation>
    </message>
    <message>
        <source>eSQuartImperial_Alternate3</source>
        <translation>imp qt</translation>
    </message>
    <message>
        <source>eSQuartImperial_Alternate4</source>
        <translation>UK quart</translation>
    </message>
    <message>
        <source>eSQuartImperial_Alternate5</source>
        <translation>UK quarts</translation>
    </message>
    <message>
        <source>eSQuartUSFluid_Alternate1</source>
        <translation>qt</translation>
    </message>
    <message>
        <source>eSQuartUSFluid_Alternate2</source>
        <translation>qts</translation>
    </message>
    <message>
        <source>eSQuartUSFluid_Alternate5</source>
        <translation>US quart</translation>
    </message>
    <message>
        <source>eSQuartUSFluid_Alternate6</source>
        <translation>US quarts</translation>
    </message>
    <message>
        <source>eSQuartUSFluid_Alternate7</source>
        <translation>qt.</translation>
    </message>
    <message>
        <source>eSQuartUSDry_Alternate1</source>
        <translation>US dry quart</translation>
    </message>
    <message>
        <source>eSQuartUSDry_Alternate2</source>
        <translation>US dry quarts</translation>
    </message>
    <message>
        <source>eSQuartUSDry_Alternate3</source>
        <translation>dry quart</translation>
    </message>
    <message>
        <source>eSQuartUSDry_Alternate4</source>
        <translation>dry quarts</translation>
    </message>
    <message>
        <source>eSGallonImperial_Alternate1</source>
        <translation>imperial gallon</translation>
    </message>
    <message>
        <source>eSGallonImperial_Alternate2</source>
        <translation>imperial gallons</translation>
    </message>
    <message>
        <source>eSGallonImperial_Alternate3</source>
        <translation>imp gal</translation>
    </message>
    <message>
        <source>eSGallonImperial_Alternate4</source>
        <translation>UK gallon</translation>
    </message>
    <message>
        <source>eSGallonImperial_Alternate5</source>
        <translation>UK gallons</translation>
    </message>
    <message>
        <source>eSGallonImperial_Alternate6</source>
        <translation>Imp gal</translation>
    </message>
    <message>
        <source>eSGallonUSFluidWine_Alternate1</source>
        <translation>gal</translation>
    </message>
    <message>
        <source>eSGallonUSFluidWine_Alternate2</source>
        <translation>gals</translation>
    </message>
    <message>
        <source>eSGallonUSFluidWine_Alternate5</source>
        <translation>US gallon</translation>
    </message>
    <message>
        <source>eSGallonUSFluidWine_Alternate6</source>
        <translation>US gallons</translation>
    </message>
    <message>
        <source>eSGallonUSFluidWine_Alternate7</source>
        <translation>US gal</translation>
    </message>
    <message>
        <source>eSGallonUSFluidWine_Alternate8</source>
        <translation>gal.</translation>
    </message>
    <message>
        <source>eSGallonUSFluidWine_Alternate9</source>
        <translation>USG</translation>
    </message>
    <message>
        <source>eSGallonUSFluidWine_Alternate10</source>
        <translation>wine gallon</translation>
    </message>
    <message>
        <source>eSgal_US_fluid_Alternate1</source>
        <translation>wine gallons</translation>
    </message>
    <message>
        <source>eSGallonUSDry_Alternate1</source>
        <translation>US dry gallon</translation>
    </message>
    <message>
        <source>eSGallonUSDry_Alternate2</source>
        <translation>US dry gallons</translation>
    </message>
    <message>
        <source>eSGallonUSDry_Alternate3</source>
        <translation>dry gallon</translation>
    </message>
    <message>
        <source>eSGallonUSDry_Alternate4</source>
        <translation>dry gallons</translation>
    </message>
    <message>
        <source>eSBeerGallon_Alternate1</source>
        <translation>beer gallons</translation>
    </message>
    <message>
        <source>eSBushelImperial_Alternate1</source>
        <translation>imperial bushel</translation>
    </message>
    <message>
        <source>eSBushelImperial_Alternate2</source>
        <translation>imperial bushels</translation>
    </message>
    <message>
        <source>eSBushelImperial_Alternate3</source>
        <translation>UK bushel</translation>
    </message>
    <message>
        <source>eSBushelImperial_Alternate4</source>
        <translation>UK bushels</translation>
    </message>
    <message>
        <source>eSBushelUSDryLevel_Alternate1</source>
        <translation>bu</translation>
    </message>
    <message>
        <source>eSBushelUSDryLevel_Alternate2</source>
        <translation>bushel</translation>
    </message>
    <message>
        <source>eSBushelUSDryLevel_Alternate3</source>
        <translation>bushels</translation>
    </message>
    <message>
        <source>eSBushelUSDryLevel_Alternate4</source>
        <translation>US bushel</translation>
    </message>
    <message>
        <source>eSBushelUSDryLevel_Alternate5</source>
        <translation>US bushels</translation>
    </message>
    <message>
        <source>eSCentiliter_Alternate1</source>
        <translation>centiliters</translation>
    </message>
    <message>
        <source>eSCentiliter_Alternate2</source>
        <translation>centilitre</translation>
    </message>
    <message>
        <source>eSCentiliter_Alternate3</source>
        <translation>centilitres</translation>
    </message>
    <message>
        <source>eSCentiliter_Alternate4</source>
        <translation>cl</translation>
    </message>
    <message>
        <source>eSCubicFoot_Alternate1</source>
        <translation>cubic feet</translation>
    </message>
    <message>
        <source>eSCubicFoot_Alternate2</source>
        <translation>ft3</translation>
    </message>
    <message>
        <source>eSCubicFoot_Alternate3</source>
        <translation>cuft</translation>
    </message>
    <message>
        <source>eSCubicFoot_Alternate4</source>
        <translation>cu. ft.</translation>
    </message>
    <message>
        <source>eSCubicFoot_Alternate5</source>
        <translation>cu. ft</translation>
    </message>
    <message>
        <source>eSCubicFoot_Alternate6</source>
        <translation>cu feet</translation>
    </message>
    <message>
        <source>eSCubicFoot_Alternate7</source>
        <translation>cu foot</translation>
    </message>
    <message>
        <source>eSCubicFoot_Alternate8</source>
        <translation>cu.ft.</translation>
    </message>
    <message>
        <source>eSCubicInch_Alternate1</source>
        <translation>cubic inches</translation>
    </message>
    <message>
        <source>eSCubicInch_Alternate2</source>
        <translation>in3</translation>
    </message>
    <message>
        <source>eSCubicInch_Alternate3</source>
        <translation>cuin</translation>
    </message>
    <message>
        <source>eSCubicInch_Alternate4</source>
        <translation>cu. in.</translation>
    </message>
    <message>
        <source>eSCubicInch_Alternate5</source>
        <translation>cu inch</translation>
    </message>
    <message>
        <source>eSCubicInch_Alternate6</source>
        <translation>cu inches</translation>
    </message>
    <message>
        <source>eSCubicMeter_Alternate1</source>
        <translation>cubic meters</translation>
    </message>
    <message>
        <source>eSCubicMeter_Alternate2</source>
        <translation>cubic metre</translation>
    </message>
    <message>
        <source>eSCubicMeter_Alternate3</source>
        <translation>cubic metres</translation>
    </message>
    <message>
        <source>eSCubicMeter_Alternate4</source>
        <translation>m3</translation>
    </message>
    <message>
        <source>eSCubicMeter_Alternate5</source>
        <translation>cu. m</translation>
    </message>
    <message>
        <source>eSCubicMeter_Alternate6</source>
        <translation>stere</translation>
    </message>
    <message>
        <source>eSCubicMeter_Alternate7</source>
        <translation>steres</translation>
    </message>
    <message>
        <source>eSCubicMeter_Alternate8</source>
        <translation>cu meter</translation>
    </message>
    <message>
        <source>eSCubicMeter_Alternate9</source>
        <translation>cu meters</translation>
    </message>
    <message>
        <source>eSCubicYard_Alternate1</source>
        <translation>cubic yards</translation>
    </message>
    <message>
        <source>eSCubicYard_Alternate2</source>
        <translation>yd3</translation>
    </message>
    <message>
        <source>eSCubicYard_Alternate3</source>
        <translation>cuyd</translation>
    </message>
    <message>
        <source>eSCubicYard_Alternate4</source>
        <translation>cu. yd.</translation>
    </message>
    <message>
        <source>eSCubicYard_Alternate5</source>
        <translation>cu yds</translation>
    </message>
    <message>
        <source>eSCubicYard_Alternate6</source>
        <translation>cu yards</translation>
    </message>
    <message>
        <source>eSFluidDram_Alternate1</source>
        <translation>fluid drams</translation>
    </message>
    <message>
        <source>eSMicroliter_Alternate1</source>
        <translation>microliters</translation>
    </message>
    <message>
        <source>eSMicroliter_Alternate2</source>
        <translation>microlitre</translation>
    </message>
    <message>
        <source>eSMicroliter_Alternate3</source>
        <translation>microlitres</translation>
    </message>
    <message>
        <source>eSMicroliter_Alternate4</source>
        <translation>µl</translation>
    </message>
    <message>
        <source>eSMicroliter_Alternate5</source>
        <translation>μl</translation>
    </message>
    <message>
        <source>eSMicroliter_Alternate6</source>
        <translation>μL</translation>
    </message>
    <message>
        <source>eSMilliliter_Alternate1</source>
        <translation>milliliters</translation>
    </message>
    <message>
        <source>eSMilliliter_Alternate2</source>
        <translation>millilitre</translation>
    </message>
    <message>
        <source>eSMilliliter_Alternate3</source>
        <translation>millilitres</translation>
    </message>
    <message>
        <source>eSMilliliter_Alternate4</source>
        <translation>ml</translation>
    </message>
    <message>
        <source>eSPintImperial_Alternate1</source>
        <translation>imperial pint</translation>
    </message>
    <message>
        <source>eSPintImperial_Alternate2</source>
        <translation>imperial pints</translation>
    </message>
    <message>
        <source>eSPintImperial_Alternate3</source>
        <translation>imp pt</translation>
    </message>
    <message>
        <source>eSPintImperial_Alternate4</source>
        <translation>UK pint</translation>
    </message>
    <message>
        <source>eSPintImperial_Alternate5</source>
        <translation>UK pints</translation>
    </message>
    <message>
        <source>eSPintUSFluid_Alternate1</source>
        <translation>pt</translation>
    </message>
    <message>
        <source>eSPintUSFluid_Alternate2</source>
        <translation>pts</translation>
    </message>
    <message>
        <source>eSPintUSFluid_Alternate5</source>
        <translation>US pint</translation>
    </message>
    <message>
        <source>eSPintUSFluid_Alternate6</source>
        <translation>US pints</translation>
    </message>
    <message>
        <source>eSPintUSFluid_Alternate7</source>
        <translation>pt.</translation>
    </message>
    <message>
        <source>eSPintUSDry_Alternate1</source>
        <translation>US dry pint</translation>
    </message>
    <message>
        <source>eSPintUSDry_Alternate2</source>
        <translation>US dry pints</translation>
    </message>
    <message>
        <source>eSPintUSDry_Alternate3</source>
        <translation>dry pint</translation>
    </message>
    <message>
        <source>eSPintUSDry_Alternate4</source>
        <translation>dry pints</translation>
    </message>
    <message>
        <source>eSTeaspoon_Alternate1</source>
        <translation>teaspoons</translation>
    </message>
    <message>
        <source>eSTeaspoon_Alternate2</source>
        <translation>tsp.</translation>
    </message>
    <message>
        <source>eSCubicMillimeter_Alternate1</source>
        <translation>cubic millimeters</translation>
    </message>
    <message>
        <source>eSCubicMillimeter_Alternate2</source>
        <translation>cubic millimetre</translation>
    </message>
    <message>
        <source>eSCubicMillimeter_Alternate3</source>
        <translation>cubic millimetres</translation>
    </message>
    <message>
        <source>eSCubicMillimeter_Alternate4</source>
        <translation>mm3</translation>
    </message>
    <message>
        <source>eSBarrelImperial_Alternate1</source>
        <translation>imperial barrel</translation>
    </message>
    <message>
        <source>eSBarrelImperial_Alternate2</source>
        <translation>imperial barrels</translation>
    </message>
    <message>
        <source>eSBarrelPetroleum_Alternate1</source>
        <translation>barrel</translation>
    </message>
    <message>
        <source>eSBarrelPetroleum_Alternate2</source>
        <translation>barrels</translation>
    </message>
    <message>
        <source>eSBarrelPetroleum_Alternate3</source>
        <translation>bbls</translation>
    </message>
    <message>
        <source>eSBarrelPetroleum_Alternate4</source>
        <translation>oil barrel</translation>
    </message>
    <message>
        <source>eSBarrelPetroleum_Alternate5</source>
        <translation>oil barrels</translation>
    </message>
    <message>
        <source>eSBoardFoot_Alternate1</source>
        <translation>board-feet</translation>
    </message>
    <message>
        <source>eSBoardFoot_Alternate2</source>
        <translation>board foot</translation>
    </message>
    <message>
        <source>eSBoardFoot_Alternate3</source>
        <translation>board feet</translation>
    </message>
    <message>
        <source>eSBoardFoot_Alternate4</source>
        <translation>bd. ft.</translation>
    </message>
    <message>
        <source>eSBoardFoot_Alternate5</source>
        <translation>FBM</translation>
    </message>
    <message>
        <source>eSDecistere_Alternate1</source>
        <translation>decisteres</translation>
    </message>
    <message>
        <source>eSDekaliter_Alternate1</source>
        <translation>dekaliters</translation>
    </message>
    <message>
        <source>eSDekaliter_Alternate2</source>
        <translation>dekalitre</translation>
    </message>
    <message>
        <source>eSDekaliter_Alternate3</source>
        <translation>dekalitres</translation>
    </message>
    <message>
        <source>eSDekaliter_Alternate4</source>
        <translation>decaliter</translation>
    </message>
    <message>
        <source>eSDekaliter_Alternate5</source>
        <translation>decaliters</translation>
    </message>
    <message>
        <source>eSDekaliter_Alternate6</source>
        <translation>decalitre</translation>
    </message>
    <message>
        <source>eSDekaliter_Alternate7</source>
        <translation>decalitres</translation>
    </message>
    <message>
        <source>eSDekaliter_Alternate8</source>
        <translation>dal</translation>
    </message>
    <message>
        <source>eSDekastere_Alternate1</source>
        <translation>dekasteres</translation>
    </message>
    <message>
        <source>eSDekastere_Alternate2</source>
        <translation>decastere</translation>
    </message>
    <message>
        <source>eSDekastere_Alternate3</source>
        <translation>decasteres</translation>
    </message>
    <message>
        <source>eSDram_Alternate1</source>
        <translation>drams</translation>
    </message>
    <message>
        <source>eSFirkin_Alternate1</source>
        <translation>firkins</translation>
    </message>
    <message>
        <source>eSCubicAngstrom_Alternate1</source>
        <translation>cubic angstroms</translation>
    </message>
    <message>
        <source>eSCubicAstronomicalUnit_Alternate1</source>
        <translation>cubic astronomical units</translation>
    </message>
    <message>
        <source>eSCubicBolt_Alternate1</source>
        <translation>cubic bolts</translation>
    </message>
    <message>
        <source>eSCubicCable_Alternate1</source>
        <translation>cubic cables</translation>
    </message>
    <message>
        <source>eSCubicCaliber_Alternate1</source>
        <translation>cubic calibers</translation>
    </message>
    <message>
        <source>eSCubicCaliber_Alternate2</source>
        <translation>cubic calibre</translation>
    </message>
    <message>
        <source>eSCubicCaliber_Alternate3</source>
        <translation>cubic calibres</translation>
    </message>
    <message>
        <source>eSCubicChain_Alternate1</source>
        <translation>cubic chains</translation>
    </message>
    <message>
        <source>eSCubicCubit_Alternate1</source>
        <translation>cubic cubits</translation>
    </message>
    <message>
        <source>eSCubicFathom_Alternate1</source>
        <translation>cubic fathoms</translation>
    </message>
    <message>
        <source>eSCubicFurlong_Alternate1</source>
        <translation>cubic furlongs</translation>
    </message>
    <message>
        <source>eSCubicGigameter_Alternate1</source>
        <translation>cubic gigameters</translation>
    </message>
    <message>
        <source>eSCubicGigameter_Alternate2</source>
        <translation>cubic gigametre</translation>
    </message>
    <message>
        <source>eSCubicGigameter_Alternate3</source>
        <translation>cubic gigametres</translation>
    </message>
    <message>
        <source>eSCubicHand_Alternate1</source>
        <translation>cubic hands</translation>
    </message>
    <message>
        <source>eSCubicHectometer_Alternate1</source>
        <translation>cubic hectometers</translation>
    </message>
    <message>
        <source>eSCubicHectometer_Alternate2</source>
        <translation>cubic hectometre</translation>
    </message>
    <message>
        <source>eSCubicHectometer_Alternate3</source>
        <translation>cubic hectometres</translation>
    </message>
    <message>
        <source>eSCubicNauticalLeague_Alternate1</source>
        <translation>cubic nautical leagues</translation>
    </message>
    <message>
        <source>eSCubicLightYear_Alternate1</source>
        <translation>cubic light-years</translation>
    </message>
    <message>
        <source>eSCubicLink_Alternate1</source>
        <translation>cubic links</translation>
    </message>
    <message>
        <source>eSCubicMil_Alternate1</source>
        <translation>cubic mils</translation>
    </message>
    <message>
        <source>eSCubicMile_Alternate1</source>
        <translation>cubic miles</translation>
    </message>
    <message>
        <source>eSCubicNauticalMile_Alternate1</source>
        <translation>cubic nautical miles</translation>
    </message>
    <message>
        <source>eSCubicMillimicron_Alternate1</source>
        <translation>cubic millimicrons</translation>
    </message>
    <message>
        <source>eSCubicPace_Alternate1</source>
        <translation>cubic paces</translation>
    </message>
    <message>
        <source>eSCubicPalm_Alternate1</source>
        <translation>cubic palms</translation>
    </message>
    <message>
        <source>eSCubicParsec_Alternate1</source>
        <translation>cubic parsecs</translation>
    </message>
    <message>
        <source>eSCubicPerch_Alternate1</source>
        <translation>cubic perches</translation>
    </message>
    <message>
        <source>eSCubicRope_Alternate1</source>
        <translation>cubic ropes</translation>
    </message>
    <message>
        <source>eSCubicSkein_Alternate1</source>
        <translation>cubic skeins</translation>
    </message>
    <message>
        <source>eSCubicSpan_Alternate1</source>
        <translation>cubic spans</translation>
    </message>
    <message>
        <source>eSCubicSurveyFoot_Alternate1</source>
        <translation>cubic survey feet</translation>
    </message>
    <message>
        <source>eSCubicDecimeter_Alternate1</source>
        <translation>cubic decimeters</translation>
    </message>
    <message>
        <source>eSCubicDecimeter_Alternate2</source>
        <translation>cubic decimetre</translation>
    </message>
    <message>
        <source>eSCubicDecimeter_Alternate3</source>
        <translation>cubic decimetres</translation>
    </message>
    <message>
        <source>eSCubicDecimeter_Alternate4</source>
        <translation>dm3</translation>
    </message>
    <message>
        <source>eSTun_Alternate1</source>
        <translation>tuns</translation>
    </message>
    <message>
        <source>eSPeck_Alternate1</source>
        <translation>pecks</translation>
    </message>
    <message>
        <source>eSMinimImperial_Alternate1</source>
        <translation>imperial minim</translation>
    </message>
    <message>
        <source>eSMinimImperial_Alternate2</source>
        <translation>imperial minims</translation>
    </message>
    <message>
        <source>eSMinimUS_Alternate1</source>
        <translation>minim</translation>
    </message>
    <message>
        <source>eSMinimUS_Alternate2</source>
        <translation>minims</translation>
    </message>
    <message>
        <source>eSKiloliter_Alternate1</source>
        <translation>kiloliters</translation>
    </message>
    <message>
        <source>eSKiloliter_Alternate2</source>
        <translation>kilolitre</translation>
    </message>
    <message>
        <source>eSKiloliter_Alternate3</source>
        <translation>kilolitres</translation>
    </message>
    <message>
        <source>eSKiloliter_Alternate4</source>
        <translation>kl</translation>
    </message>
    <message>
        <source>eSHogsheadUS_Alternate1</source>
        <translation>hhd</translation>
    </message>
    <message>
        <source>eSHogsheadUS_Alternate2</source>
        <translation>hogshead</translation>
    </message>
    <message>
        <source>eSHogsheadUS_Alternate3</source>
        <translation>hogsheads</translation>
    </message>
    <message>
        <source>eSGillImperial_Alternate1</source>
        <translation>imperial gill</translation>
    </message>
    <message>
        <source>eSGillImperial_Alternate2</source>
        <translation>imperial gills</translation>
    </message>
    <message>
        <source>eSGillUS_Alternate1</source>
        <translation>gi</translation>
    </message>
    <message>
        <source>eSGillUS_Alternate2</source>
        <translation>gill</translation>
    </message>
    <message>
        <source>eSGillUS_Alternate3</source>
        <translation>gills</translation>
    </message>
    <message>
        <source>eSCubicSurveyYard_Alternate1</source>
        <translation>cubic survey yards</translation>
    </message>
    <message>
        <source>eSCordFoot_Alternate1</source>
        <translation>cord-feet</translation>
    </message>
    <message>
        <source>eSRegisterTon_Alternate1</source>
        <translation>register tons</translation>
    </message>
    <message>
        <source>eSAcreFoot_Alternate1</source>
        <translation>acre-feet</translation>
    </message>
    <message>
        <source>eSAcreFoot_Alternate2</source>
        <translation>acre foot</translation>
    </message>
    <message>
        <source>eSAcreFoot_Alternate3</source>
        <translation>acre feet</translation>
    </message>
    <message>
        <source>eSAcreFoot_Alternate4</source>
        <translation>ac-ft</translation>
    </message>
    <message>
        <source>eSAcreFoot_Alternate5</source>
        <translation>ac.ft.</translation>
    </message>
    <message>
        <source>eSAcreInch_Alternate1</source>
        <translation>acre-inches</translation>
    </message>
    <message>
        <source>eSAcreInch_Alternate2</source>
        <translation>acre inch</translation>
    </message>
    <message>
        <source>eSAcreInch_Alternate3</source>
        <translation>acre inches</translation>
    </message>
    <message>
        <source>eSAcreInch_Alternate4</source>
        <translation>ac-in</translation>
    </message>
    <message>
        <source>eSCubicMicroinch_Alternate1</source>
        <translation>cubic microinches</translation>
    </message>
    <message>
        <source>eSCubicMicroinch_Alternate2</source>
        <translation>uin3</translation>
    </message>
    <message>
        <source>eSCubicMicrometer_Alternate1</source>
        <translation>cubic micrometers</translation>
    </message>
    <message>
        <source>eSCubicMicrometer_Alternate2</source>
        <translation>cubic micrometre</translation>
    </message>
    <message>
        <source>eSCubicMicrometer_Alternate3</source>
        <translation>cubic micrometres</translation>
    </message>
    <message>
        <source>eSCubicMicrometer_Alternate4</source>
        <translation>um3</translation>
    </message>
    <message>
        <source>eSCubicMicrometer_Alternate5</source>
        <translation>µm3</translation>
    </message>
    <message>
        <source>eSCubicMicrometer_Alternate6</source>
        <translation>μm3</translation>
    </message>
    <message>
        <source>eSCubicKilometer_Alternate1</source>
        <translation>cubic kilometers</translation>
    </message>
    <message>
        <source>eSCubicKilometer_Alternate2</source>
        <translation>cubic kilometre</translation>
    </message>
    <message>
        <source>eSCubicKilometer_Alternate3</source>
        <translation>cubic kilometres</translation>
    </message>
    <message>
        <source>eSCubicKilometer_Alternate4</source>
        <translation>km3</translation>
    </message>
    <message>
        <source>eSCubicKilometer_Alternate5</source>
        <translation>cu km</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_VolumetricFlowRate</name>
    <message>
        <source>eSm3Pers_Alternate1</source>
        <translation>m^3/s</translation>
    </message>
    <message>
        <source>eScm3Permin_Alternate1</source>
        <translation>cm^3/min</translation>
    </message>
    <message>
        <source>eSft3Perh_Alternate1</source>
        <translation>ft^3/h</translation>
    </message>
    <message>
        <source>eSft3Perhr_Alternate1</source>
        <translation>ft^3/hr</translation>
    </message>
    <message>
        <source>eSft3Permin_Alternate1</source>
        <translation>ft^3/min</translation>
    </message>
    <message>
        <source>eSft3Pers_Alternate1</source>
        <translation>ft^3/s</translation>
    </message>
    <message>
        <source>eSin3Permin_Alternate1</source>
        <translation>in^3/min</translation>
    </message>
    <message>
        <source>eSm3Perh_Alternate1</source>
        <translation>m^3/h</translation>
    </message>
    <message>
        <source>eSm3Perhr_Alternate1</source>
        <translation>m^3/hr</translation>
    </message>
    <message>
        <source>eSm3Permin_Alternate1</source>
        <translation>m^3/min</translation>
    </message>
    <message>
        <source>eScm3Pers_Alternate1</source>
        <translation>cm^3/s</translation>
    </message>
    <message>
        <source>eScm3Perh_Alternate1</source>
        <translation>cm^3/h</translation>
    </message>
    <message>
        <source>eScm3Perhr_Alternate1</source>
        <translation>cm^3/hr</translation>
    </message>
    <message>
        <source>eSft3Perd_Alternate1</source>
        <translation>ft^3/d</translation>
    </message>
    <message>
        <source>eSm3Perd_Alternate1</source>
        <translation>m^3/d</translation>
    </message>
    <message>
        <source>eSyd3Permin_Alternate1</source>
        <translation>yd^3/min</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecond_Alternate1</source>
        <translation>cubic meters per second</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecond_Alternate2</source>
        <translation>cubic metre per second</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecond_Alternate3</source>
        <translation>cubic metres per second</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecond_Alternate4</source>
        <translation>m3/s</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecond_Alternate5</source>
        <translation>cumec</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecond_Alternate6</source>
        <translation>m3/sec</translation>
    </message>
    <message>
        <source>eSLiterPerSecond_Alternate1</source>
        <translation>liters per second</translation>
    </message>
    <message>
        <source>eSLiterPerSecond_Alternate2</source>
        <translation>litre per second</translation>
    </message>
    <message>
        <source>eSLiterPerSecond_Alternate3</source>
        <translation>litres per second</translation>
    </message>
    <message>
        <source>eSLiterPerSecond_Alternate4</source>
        <translation>l/s</translation>
    </message>
    <message>
        <source>eSLiterPerSecond_Alternate5</source>
        <translation>lps</translation>
    </message>
    <message>
        <source>eSLiterPerSecond_Alternate6</source>
        <translation>LPS</translation>
    </message>
    <message>
        <source>eSLiterPerSecond_Alternate7</source>
        <translation>l/sec</translation>
    </message>
    <message>
        <source>eSLiterPerMinute_Alternate1</source>
        <translation>liters per minute</translation>
    </message>
    <message>
        <source>eSLiterPerMinute_Alternate2</source>
        <translation>litre per minute</translation>
    </message>
    <message>
        <source>eSLiterPerMinute_Alternate3</source>
        <translation>litres per minute</translation>
    </message>
    <message>
        <source>eSLiterPerMinute_Alternate4</source>
        <translation>l/min</translation>
    </message>
    <message>
        <source>eSLiterPerMinute_Alternate5</source>
        <translation>lpm</translation>
    </message>
    <message>
        <source>eSLiterPerMinute_Alternate6</source>
        <translation>LPM</translation>
    </message>
    <message>
        <source>eSLiterPerHour_Alternate1</source>
        <translation>liters per hour</translation>
    </message>
    <message>
        <source>eSLiterPerHour_Alternate2</source>
        <translation>litre per hour</translation>
    </message>
    <message>
        <source>eSLiterPerHour_Alternate3</source>
        <translation>litres per hour</translation>
    </message>
    <message>
        <source>eSLiterPerHour_Alternate4</source>
        <translation>l/h</translation>
    </message>
    <message>
        <source>eSLiterPerHour_Alternate5</source>
        <translation>l/hr</translation>
    </message>
    <message>
        <source>eSLiterPerHour_Alternate6</source>
        <translation>lph</translation>
    </message>
    <message>
        <source>eSLiterPerHour_Alternate7</source>
        <translation>LPH</translation>
    </message>
    <message>
        <source>eSGallonPerSecond_Alternate1</source>
        <translation>gallons per second</translation>
    </message>
    <message>
        <source>eSGallonPerSecond_Alternate2</source>
        <translation>gps</translation>
    </message>
    <message>
        <source>eSGallonPerSecond_Alternate3</source>
        <translation>gal/sec</translation>
    </message>
    <message>
        <source>eSGallonPerMinute_Alternate1</source>
        <translation>gallons per minute</translation>
    </message>
    <message>
        <source>eSGallonPerMinute_Alternate2</source>
        <translation>GPM</translation>
    </message>
    <message>
        <source>eSGallonPerMinute_Alternate3</source>
        <translation>USgpm</translation>
    </message>
    <message>
        <source>eSGallonPerMinute_Alternate4</source>
        <translation>US gpm</translation>
    </message>
    <message>
        <source>eSGallonPerHour_Alternate1</source>
        <translation>gallons per hour</translation>
    </message>
    <message>
        <source>eSGallonPerHour_Alternate2</source>
        <translation>GPH</translation>
    </message>
    <message>
        <source>eSGallonPerDay_Alternate1</source>
        <translation>gallons per day</translation>
    </message>
    <message>
        <source>eSGallonPerDay_Alternate2</source>
        <translation>GPD</translation>
    </message>
    <message>
        <source>eSGallonPerDay_Alternate3</source>
        <translation>gal/day</translation>
    </message>
    <message>
        <source>eSMilliliterPerMinute_Alternate1</source>
        <translation>milliliters per minute</translation>
    </message>
    <message>
        <source>eSMilliliterPerMinute_Alternate2</source>
        <translation>millilitre per minute</translation>
    </message>
    <message>
        <source>eSMilliliterPerMinute_Alternate3</source>
        <translation>millilitres per minute</translation>
    </message>
    <message>
        <source>eSMilliliterPerMinute_Alternate4</source>
        <translation>ml/min</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerMinute_Alternate1</source>
        <translation>cubic centimeters per minute</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerMinute_Alternate2</source>
        <translation>cubic centimetre per minute</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerMinute_Alternate3</source>
        <translation>cubic centimetres per minute</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerMinute_Alternate4</source>
        <translation>cm3/min</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerMinute_Alternate5</source>
        <translation>cc/min</translation>
    </message>
    <message>
        <source>eSCubicFootPerHour_Alternate1</source>
        <translation>cubic feet per hour</translation>
    </message>
    <message>
        <source>eSCubicFootPerHour_Alternate2</source>
        <translation>cfh</translation>
    </message>
    <message>
        <source>eSCubicFootPerHour_Alternate3</source>
        <translation>CFH</translation>
    </message>
    <message>
        <source>eSCubicFootPerHour_Alternate4</source>
        <translation>ft3/h</translation>
    </message>
    <message>
        <source>eSCubicFootPerHour_Alternate5</source>
        <translation>ft3/hr</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinute_Alternate1</source>
        <translation>cubic feet per minute</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinute_Alternate2</source>
        <translation>CFM</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinute_Alternate3</source>
        <translation>ft3/min</translation>
    </message>
    <message>
        <source>eSCubicFootPerSecond_Alternate1</source>
        <translation>cubic feet per second</translation>
    </message>
    <message>
        <source>eSCubicFootPerSecond_Alternate2</source>
        <translation>CFS</translation>
    </message>
    <message>
        <source>eSCubicFootPerSecond_Alternate3</source>
        <translation>ft3/s</translation>
    </message>
    <message>
        <source>eSCubicFootPerSecond_Alternate4</source>
        <translation>ft3/sec</translation>
    </message>
    <message>
        <source>eSCubicFootPerSecond_Alternate5</source>
        <translation>cusecs</translation>
    </message>
    <message>
        <source>eSCubicInchPerMinute_Alternate1</source>
        <translation>cubic inches per minute</translation>
    </message>
    <message>
        <source>eSCubicInchPerMinute_Alternate2</source>
        <translation>in3/min</translation>
    </message>
    <message>
        <source>eSCubicMeterPerHour_Alternate1</source>
        <translation>cubic meters per hour</translation>
    </message>
    <message>
        <source>eSCubicMeterPerHour_Alternate2</source>
        <translation>cubic metre per hour</translation>
    </message>
    <message>
        <source>eSCubicMeterPerHour_Alternate3</source>
        <translation>cubic metres per hour</translation>
    </message>
    <message>
        <source>eSCubicMeterPerHour_Alternate4</source>
        <translation>m3/h</translation>
    </message>
    <message>
        <source>eSCubicMeterPerHour_Alternate5</source>
        <translation>m3/hr</translation>
    </message>
    <message>
        <source>eSCubicMeterPerHour_Alternate6</source>
        <translation>CMH</translation>
    </message>
    <message>
        <source>eSCubicMeterPerMinute_Alternate1</source>
        <translation>cubic meters per minute</translation>
    </message>
    <message>
        <source>eSCubicMeterPerMinute_Alternate2</source>
        <translation>cubic metre per minute</translation>
    </message>
    <message>
        <source>eSCubicMeterPerMinute_Alternate3</source>
        <translation>cubic metres per minute</translation>
    </message>
    <message>
        <source>eSCubicMeterPerMinute_Alternate4</source>
        <translation>m3/min</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerSecond_Alternate1</source>
        <translation>cubic centimeters per second</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerSecond_Alternate2</source>
        <translation>cubic centimetre per second</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerSecond_Alternate3</source>
        <translation>cubic centimetres per second</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerSecond_Alternate4</source>
        <translation>cm3/s</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerSecond_Alternate5</source>
        <translation>cc/s</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerSecond_Alternate6</source>
        <translation>cc/sec</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerHour_Alternate1</source>
        <translation>cubic centimeters per hour</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerHour_Alternate2</source>
        <translation>cubic centimetre per hour</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerHour_Alternate3</source>
        <translation>cubic centimetres per hour</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerHour_Alternate4</source>
        <translation>cm3/h</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerHour_Alternate5</source>
        <translation>cm3/hr</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerHour_Alternate6</source>
        <translation>cc/h</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerHour_Alternate7</source>
        <translation>cc/hr</translation>
    </message>
    <message>
        <source>eSImpGallonPerDay_Alternate1</source>
        <translation>imperial gallons per day</translation>
    </message>
    <message>
        <source>eSImpGallonPerDay_Alternate2</source>
        <translation>igpd</translation>
    </message>
    <message>
        <source>eSImpGallonPerDay_Alternate3</source>
        <translation>IGPD</translation>
    </message>
    <message>
        <source>eSImpGallonPerHour_Alternate1</source>
        <translation>imperial gallons per hour</translation>
    </message>
    <message>
        <source>eSImpGallonPerHour_Alternate2</source>
        <translation>igph</translation>
    </message>
    <message>
        <source>eSImpGallonPerHour_Alternate3</source>
        <translation>IGPH</translation>
    </message>
    <message>
        <source>eSImpGallonPerMinute_Alternate1</source>
        <translation>imperial gallons per minute</translation>
    </message>
    <message>
        <source>eSImpGallonPerMinute_Alternate2</source>
        <translation>igpm</translation>
    </message>
    <message>
        <source>eSImpGallonPerMinute_Alternate3</source>
        <translation>IGPM</translation>
    </message>
    <message>
        <source>eSImpGallonPerMinute_Alternate4</source>
        <translation>Imp gpm</translation>
    </message>
    <message>
        <source>eSImpMillionGallonPerDay_Alternate1</source>
        <translation>MIGD</translation>
    </message>
    <message>
        <source>eSImpMillionGallonPerDay_Alternate2</source>
        <translation>imperial million gallons per day</translation>
    </message>
    <message>
        <source>eSLiterPerDay_Alternate1</source>
        <translation>liters per day</translation>
    </message>
    <message>
        <source>eSLiterPerDay_Alternate2</source>
        <translation>litre per day</translation>
    </message>
    <message>
        <source>eSLiterPerDay_Alternate3</source>
        <translation>litres per day</translation>
    </message>
    <message>
        <source>eSLiterPerDay_Alternate4</source>
        <translation>l/d</translation>
    </message>
    <message>
        <source>eSLiterPerDay_Alternate5</source>
        <translation>l/day</translation>
    </message>
    <message>
        <source>eSMillionLiterPerDay_Alternate1</source>
        <translation>million liters per day</translation>
    </message>
    <message>
        <source>eSMillionLiterPerDay_Alternate2</source>
        <translation>million litre per day</translation>
    </message>
    <message>
        <source>eSMillionLiterPerDay_Alternate3</source>
        <translation>million litres per day</translation>
    </message>
    <message>
        <source>eSMillionLiterPerDay_Alternate4</source>
        <translation>MLD</translation>
    </message>
    <message>
        <source>eSUSMillionGallonPerDay_Alternate1</source>
        <translation>MGD</translation>
    </message>
    <message>
        <source>eSUSMillionGallonPerDay_Alternate2</source>
        <translation>mgd</translation>
    </message>
    <message>
        <source>eSUSMillionGallonPerDay_Alternate3</source>
        <translation>million gallons per day</translation>
    </message>
    <message>
        <source>eSCubicFootPerDay_Alternate1</source>
        <translation>cubic feet per day</translation>
    </message>
    <message>
        <source>eSCubicFootPerDay_Alternate2</source>
        <translation>ft3/d</translation>
    </message>
    <message>
        <source>eSCubicFootPerDay_Alternate3</source>
        <translation>ft3/day</translation>
    </message>
    <message>
        <source>eSCubicFootPerDay_Alternate4</source>
        <translation>cfd</translation>
    </message>
    <message>
        <source>eSCubicFootPerDay_Alternate5</source>
        <translation>CFD</translation>
    </message>
    <message>
        <source>eSCubicMeterPerDay_Alternate1</source>
        <translation>cubic meters per day</translation>
    </message>
    <message>
        <source>eSCubicMeterPerDay_Alternate2</source>
        <translation>cubic metre per day</translation>
    </message>
    <message>
        <source>eSCubicMeterPerDay_Alternate3</source>
        <translation>cubic metres per day</translation>
    </message>
    <message>
        <source>eSCubicMeterPerDay_Alternate4</source>
        <translation>m3/d</translation>
    </message>
    <message>
        <source>eSCubicMeterPerDay_Alternate5</source>
        <translation>m3/day</translation>
    </message>
    <message>
        <source>eSCubicYardPerMinute_Alternate1</source>
        <translation>cubic yards per minute</translation>
    </message>
    <message>
        <source>eSCubicYardPerMinute_Alternate2</source>
        <translation>yd3/min</translation>
    </message>
    <message>
        <source>eSAcreFootPerDay_Alternate1</source>
        <translation>acre feet per day</translation>
    </message>
    <message>
        <source>eSAcreFootPerDay_Alternate2</source>
        <translation>acre-feet per day</translation>
    </message>
    <message>
        <source>eSAcreFootPerDay_Alternate3</source>
        <translation>ac-ft/day</translation>
    </message>
    <message>
        <source>eSAcreFootPerDay_Alternate4</source>
        <translation>AFD</translation>
    </message>
    <message>
        <source>eSAcreFootPerHour_Alternate1</source>
        <translation>acre feet per hour</translation>
    </message>
    <message>
        <source>eSAcreFootPerHour_Alternate2</source>
        <translation>acre-feet per hour</translation>
    </message>
    <message>
        <source>eSAcreFootPerMinute_Alternate1</source>
        <translation>acre feet per minute</translation>
    </message>
    <message>
        <source>eSAcreFootPerMinute_Alternate2</source>
        <translation>acre-feet per minute</translation>
    </message>
    <message>
        <source>eSAcreInchPerHour_Alternate1</source>
        <translation>acre inches per hour</translation>
    </message>
    <message>
        <source>eSAcreInchPerHour_Alternate2</source>
        <translation>acre-inches per hour</translation>
    </message>
    <message>
        <source>eSAcreInchPerMinute_Alternate1</source>
        <translation>acre inches per minute</translation>
    </message>
    <message>
        <source>eSAcreInchPerMinute_Alternate2</source>
        <translation>acre-inches per minute</translation>
    </message>
    <message>
        <source>eSCubicSurveyFootPerSecond_Alternate1</source>
        <translation>cubic survey feet per second</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_LuminousEmittance</name>
    <message>
        <source>eSlx_LE_Alternate1</source>
        <translation>lm/m^2</translation>
    </message>
</context>
</TS>
