<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>UnitSymbol_Acceleration</name>
    <message>
        <source>eSmPers2_Alternate2</source>
        <translation>m/s^2</translation>
    </message>
    <message>
        <source>eSftPers2_Alternate3</source>
        <translation>pi/s^2</translation>
    </message>
    <message>
        <source>eSMeterPerSecondSquared_Alternate1</source>
        <translation>mètres par seconde carrée</translation>
    </message>
    <message>
        <source>eSMeterPerSecondSquared_Alternate2</source>
        <translation>metre par seconde carree</translation>
    </message>
    <message>
        <source>eSMeterPerSecondSquared_Alternate3</source>
        <translation>metres par seconde carree</translation>
    </message>
    <message>
        <source>eSmPers2_Alternate1</source>
        <translation>m.s-2</translation>
    </message>
    <message>
        <source>eSFootPerSecondSquared_Alternate1</source>
        <translation>pieds par seconde carrée</translation>
    </message>
    <message>
        <source>eSFootPerSecondSquared_Alternate2</source>
        <translation>pied par seconde carree</translation>
    </message>
    <message>
        <source>eSFootPerSecondSquared_Alternate3</source>
        <translation>pieds par seconde carree</translation>
    </message>
    <message>
        <source>eSftPers2_Alternate1</source>
        <translation>ft/s²</translation>
    </message>
    <message>
        <source>eSftPers2_Alternate2</source>
        <translation>ft/s2</translation>
    </message>
    <message>
        <source>eSSurveyFootPerSecondSquared_Alternate1</source>
        <translation>pieds d&apos;arpentage par seconde carrée</translation>
    </message>
    <message>
        <source>eSSurveyFootPerSecondSquared_Alternate2</source>
        <translation>pied d&apos;arpentage par seconde carree</translation>
    </message>
    <message>
        <source>eSSurveyFootPerSecondSquared_Alternate3</source>
        <translation>pieds d&apos;arpentage par seconde carree</translation>
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
        <translation>pi^3/(min·pi^2)</translation>
    </message>
    <message>
        <source>eSLPersm2_Alternate1</source>
        <translation>L/(s·m^2)</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondSquareMeter_Alternate1</source>
        <translation>mètres cubes par seconde-mètre carré</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondSquareMeter_Alternate2</source>
        <translation>metre cube par seconde-metre carre</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondSquareMeter_Alternate3</source>
        <translation>metres cubes par seconde-metre carre</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteSquareFoot_Alternate1</source>
        <translation>pieds cubes par minute-pied carré</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteSquareFoot_Alternate2</source>
        <translation>pied cube par minute-pied carre</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteSquareFoot_Alternate3</source>
        <translation>pieds cubes par minute-pied carre</translation>
    </message>
    <message>
        <source>eSLiterPerSecondSquareMeter_Alternate1</source>
        <translation>litres par seconde-mètre carré</translation>
    </message>
    <message>
        <source>eSLiterPerSecondSquareMeter_Alternate2</source>
        <translation>litre par seconde-metre carre</translation>
    </message>
    <message>
        <source>eSLiterPerSecondSquareMeter_Alternate3</source>
        <translation>litres par seconde-metre carre</translation>
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
        <translation>mètres cubes par seconde-watt</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondWatt_Alternate2</source>
        <translation>metre cube par seconde-watt</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondWatt_Alternate3</source>
        <translation>metres cubes par seconde-watt</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteTonOfRefrigeration_Alternate1</source>
        <translation>pieds cubes par minute-tonne de réfrigération</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteTonOfRefrigeration_Alternate2</source>
        <translation>pied cube par minute-tonne de refrigeration</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteTonOfRefrigeration_Alternate3</source>
        <translation>pieds cubes par minute-tonne de refrigeration</translation>
    </message>
    <message>
        <source>eSLiterPerSecondKilowatt_Alternate1</source>
        <translation>litres par seconde-kilowatt</translation>
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
        <translation>pi^3/(min·pi^3)</translation>
    </message>
    <message>
        <source>eScfmPerft3_Alternate1</source>
        <translation>pcm/pi^3</translation>
    </message>
    <message>
        <source>eSLPersm3_Alternate1</source>
        <translation>L/(s·m^3)</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondCubicMeter_Alternate1</source>
        <translation>mètres cubes par seconde-mètre cube</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondCubicMeter_Alternate2</source>
        <translation>metre cube par seconde-metre cube</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecondCubicMeter_Alternate3</source>
        <translation>metres cubes par seconde-metre cube</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinuteCubicFoot_Alternate1</source>
        <translation>pieds cubes par minute-pied cube</translation>
    </message>
    <message>
        <source>eSLiterPerSecondCubicMeter_Alternate1</source>
        <translation>litres par seconde-mètre cube</translation>
    </message>
    <message>
        <source>eSLiterPerSecondCubicMeter_Alternate2</source>
        <translation>litre par seconde-metre cube</translation>
    </message>
    <message>
        <source>eSLiterPerSecondCubicMeter_Alternate3</source>
        <translation>litres par seconde-metre cube</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_AmountOfSubstance</name>
    <message>
        <source>eSMole_Alternate1</source>
        <translation>moles</translation>
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
        <translation>pétamoles</translation>
    </message>
    <message>
        <source>eSPetamole_Alternate2</source>
        <translation>petamole</translation>
    </message>
    <message>
        <source>eSPetamole_Alternate3</source>
        <translation>petamoles</translation>
    </message>
    <message>
        <source>eSTeramole_Alternate1</source>
        <translation>téramoles</translation>
    </message>
    <message>
        <source>eSTeramole_Alternate2</source>
        <translation>teramole</translation>
    </message>
    <message>
        <source>eSTeramole_Alternate3</source>
        <translation>teramoles</translation>
    </message>
    <message>
        <source>eSGigamole_Alternate1</source>
        <translation>gigamoles</translation>
    </message>
    <message>
        <source>eSMegamole_Alternate1</source>
        <translation>mégamoles</translation>
    </message>
    <message>
        <source>eSMegamole_Alternate2</source>
        <translation>megamole</translation>
    </message>
    <message>
        <source>eSMegamole_Alternate3</source>
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
        <translation>décamoles</translation>
    </message>
    <message>
        <source>eSDecamole_Alternate2</source>
        <translation>decamole</translation>
    </message>
    <message>
        <source>eSDecamole_Alternate3</source>
        <translation>decamoles</translation>
    </message>
    <message>
        <source>eSDecimole_Alternate1</source>
        <translation>décimoles</translation>
    </message>
    <message>
        <source>eSDecimole_Alternate2</source>
        <translation>decimole</translation>
    </message>
    <message>
        <source>eSDecimole_Alternate3</source>
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
        <source>eSmumol_Alternate1</source>
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
        <source>eSDegree_Alternate1</source>
        <translation>degrés</translation>
    </message>
    <message>
        <source>eSDegree_Alternate2</source>
        <translation>degre</translation>
    </message>
    <message>
        <source>eSDegree_Alternate3</source>
        <translation>degres</translation>
    </message>
    <message>
        <source>eSDegree_Alternate4</source>
        <translation>deg.</translation>
    </message>
    <message>
        <source>eSdegree_OneChar_Alternate1</source>
        <translation>º</translation>
    </message>
    <message>
        <source>eSdegree_OneChar_Alternate2</source>
        <translation>˚</translation>
    </message>
    <message>
        <source>eSMilliradian_Alternate1</source>
        <translation>milliradians</translation>
    </message>
    <message>
        <source>eSGrad_Alternate1</source>
        <translation>grades</translation>
    </message>
    <message>
        <source>eSgrad_Alternate1</source>
        <translation>gon.</translation>
    </message>
    <message>
        <source>eSgrad_Alternate2</source>
        <translation>grad</translation>
    </message>
    <message>
        <source>eSAngleMinute_Alternate1</source>
        <translation>minutes d&apos;angle</translation>
    </message>
    <message>
        <source>eSarcmin_Alternate1</source>
        <translation>minute d&apos;arc</translation>
    </message>
    <message>
        <source>eSarcmin_Alternate2</source>
        <translation>minutes d&apos;arc</translation>
    </message>
    <message>
        <source>eSAngleSecond_Alternate1</source>
        <translation>secondes d&apos;angle</translation>
    </message>
    <message>
        <source>eSarcsec_Alternate1</source>
        <translation>seconde d&apos;arc</translation>
    </message>
    <message>
        <source>eSarcsec_Alternate2</source>
        <translation>secondes d&apos;arc</translation>
    </message>
    <message>
        <source>eSMilliarcSecond_Alternate1</source>
        <translation>millisecondes d&apos;arc</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Area</name>
    <message>
        <source>eSSquareMeter_Alternate1</source>
        <translation>mètres carrés</translation>
    </message>
    <message>
        <source>eSSquareMeter_Alternate2</source>
        <translation>metre carre</translation>
    </message>
    <message>
        <source>eSSquareMeter_Alternate3</source>
        <translation>metres carres</translation>
    </message>
    <message>
        <source>eSm2_Alternate1</source>
        <translation>m.c.</translation>
    </message>
    <message>
        <source>eSSquareInch_Alternate1</source>
        <translation>pouces carrés</translation>
    </message>
    <message>
        <source>eSSquareInch_Alternate2</source>
        <translation>pouce carre</translation>
    </message>
    <message>
        <source>eSSquareInch_Alternate3</source>
        <translation>pouces carres</translation>
    </message>
    <message>
        <source>eSin2_Alternate1</source>
        <translation>in²</translation>
    </message>
    <message>
        <source>eSin2_Alternate2</source>
        <translation>in2</translation>
    </message>
    <message>
        <source>eSin2_Alternate3</source>
        <translation>sq in</translation>
    </message>
    <message>
        <source>eSin2_Alternate4</source>
        <translation>po ca</translation>
    </message>
    <message>
        <source>eSSquareFoot_Alternate1</source>
        <translation>pieds carrés</translation>
    </message>
    <message>
        <source>eSSquareFoot_Alternate2</source>
        <translation>pied carre</translation>
    </message>
    <message>
        <source>eSSquareFoot_Alternate3</source>
        <translation>pieds carres</translation>
    </message>
    <message>
        <source>eSft2_Alternate1</source>
        <translation>ft²</translation>
    </message>
    <message>
        <source>eSft2_Alternate2</source>
        <translation>ft2</translation>
    </message>
    <message>
        <source>eSft2_Alternate3</source>
        <translation>sq ft</translation>
    </message>
    <message>
        <source>eSft2_Alternate4</source>
        <translation>pi. ca.</translation>
    </message>
    <message>
        <source>eSSquareYard_Alternate1</source>
        <translation>yards carrés</translation>
    </message>
    <message>
        <source>eSSquareYard_Alternate2</source>
        <translation>yard carre</translation>
    </message>
    <message>
        <source>eSSquareYard_Alternate3</source>
        <translation>yards carres</translation>
    </message>
    <message>
        <source>eSyd2_Alternate1</source>
        <translation>sq yd</translation>
    </message>
    <message>
        <source>eSyd2_Alternate2</source>
        <translation>vg²</translation>
    </message>
    <message>
        <source>eSyd2_Alternate3</source>
        <translation>vg2</translation>
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
        <translation>kilomètres carrés</translation>
    </message>
    <message>
        <source>eSSquareKilometer_Alternate2</source>
        <translation>kilometre carre</translation>
    </message>
    <message>
        <source>eSSquareKilometer_Alternate3</source>
        <translation>kilometres carres</translation>
    </message>
    <message>
        <source>eSSquareMile_Alternate1</source>
        <translation>miles carrés</translation>
    </message>
    <message>
        <source>eSSquareMile_Alternate2</source>
        <translation>mile carre</translation>
    </message>
    <message>
        <source>eSSquareMile_Alternate3</source>
        <translation>miles carres</translation>
    </message>
    <message>
        <source>eSmi2_Alternate1</source>
        <translation>sq mi</translation>
    </message>
    <message>
        <source>eSmi2_Alternate2</source>
        <translation>mi ca</translation>
    </message>
    <message>
        <source>eSSquareCentimeter_Alternate1</source>
        <translation>centimètres carrés</translation>
    </message>
    <message>
        <source>eSSquareCentimeter_Alternate2</source>
        <translation>centimetre carre</translation>
    </message>
    <message>
        <source>eSSquareCentimeter_Alternate3</source>
        <translation>centimetres carres</translation>
    </message>
    <message>
        <source>eSSquareMillimeter_Alternate1</source>
        <translation>millimètres carrés</translation>
    </message>
    <message>
        <source>eSSquareMillimeter_Alternate2</source>
        <translation>millimetre carre</translation>
    </message>
    <message>
        <source>eSSquareMillimeter_Alternate3</source>
        <translation>millimetres carres</translation>
    </message>
    <message>
        <source>eSCircularMil_Alternate1</source>
        <translation>mils circulaires</translation>
    </message>
    <message>
        <source>eSKiloCircularMil_Alternate1</source>
        <translation>kilo-mils circulaires</translation>
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
        <translation>centiares</translation>
    </message>
    <message>
        <source>eSSquareAngstrom_Alternate1</source>
        <translation>ångströms carrés</translation>
    </message>
    <message>
        <source>eSSquareAngstrom_Alternate2</source>
        <translation>angstrom carre</translation>
    </message>
    <message>
        <source>eSSquareAngstrom_Alternate3</source>
        <translation>angstroms carres</translation>
    </message>
    <message>
        <source>eSSquareBolt_Alternate1</source>
        <translation>bolts carrés</translation>
    </message>
    <message>
        <source>eSSquareBolt_Alternate2</source>
        <translation>bolt carre</translation>
    </message>
    <message>
        <source>eSSquareBolt_Alternate3</source>
        <translation>bolts carres</translation>
    </message>
    <message>
        <source>eSSquareCable_Alternate1</source>
        <translation>encablures carrées</translation>
    </message>
    <message>
        <source>eSSquareCable_Alternate2</source>
        <translation>encablure carree</translation>
    </message>
    <message>
        <source>eSSquareCable_Alternate3</source>
        <translation>encablures carrees</translation>
    </message>
    <message>
        <source>eSSquareCaliber_Alternate1</source>
        <translation>calibres carrés</translation>
    </message>
    <message>
        <source>eSSquareCaliber_Alternate2</source>
        <translation>calibre carre</translation>
    </message>
    <message>
        <source>eSSquareCaliber_Alternate3</source>
        <translation>calibres carres</translation>
    </message>
    <message>
        <source>eSSquareCubit_Alternate1</source>
        <translation>coudées carrées</translation>
    </message>
    <message>
        <source>eSSquareCubit_Alternate2</source>
        <translation>coudee carree</translation>
    </message>
    <message>
        <source>eSSquareCubit_Alternate3</source>
        <translation>coudees carrees</translation>
    </message>
    <message>
        <source>eSSquareDecimeter_Alternate1</source>
        <translation>décimètres carrés</translation>
    </message>
    <message>
        <source>eSSquareDecimeter_Alternate2</source>
        <translation>decimetre carre</translation>
    </message>
    <message>
        <source>eSSquareDecimeter_Alternate3</source>
        <translation>decimetres carres</translation>
    </message>
    <message>
        <source>eSSquareFathom_Alternate1</source>
        <translation>brasses carrées</translation>
    </message>
    <message>
        <source>eSSquareFathom_Alternate2</source>
        <translation>brasse carree</translation>
    </message>
    <message>
        <source>eSSquareFathom_Alternate3</source>
        <translation>brasses carrees</translation>
    </message>
    <message>
        <source>eSSquareFurlong_Alternate1</source>
        <translation>furlongs carrés</translation>
    </message>
    <message>
        <source>eSSquareFurlong_Alternate2</source>
        <translation>furlong carre</translation>
    </message>
    <message>
        <source>eSSquareFurlong_Alternate3</source>
        <translation>furlongs carres</translation>
    </message>
    <message>
        <source>eSSquareGigameter_Alternate1</source>
        <translation>gigamètres carrés</translation>
    </message>
    <message>
        <source>eSSquareGigameter_Alternate2</source>
        <translation>gigametre carre</translation>
    </message>
    <message>
        <source>eSSquareGigameter_Alternate3</source>
        <translation>gigametres carres</translation>
    </message>
    <message>
        <source>eSSquareHand_Alternate1</source>
        <translation>mains carrées</translation>
    </message>
    <message>
        <source>eSSquareHand_Alternate2</source>
        <translation>main carree</translation>
    </message>
    <message>
        <source>eSSquareHand_Alternate3</source>
        <translation>mains carrees</translation>
    </message>
    <message>
        <source>eSSquareNauticalLeague_Alternate1</source>
        <translation>lieues marines carrées</translation>
    </message>
    <message>
        <source>eSSquareNauticalLeague_Alternate2</source>
        <translation>lieue marine carree</translation>
    </message>
    <message>
        <source>eSSquareNauticalLeague_Alternate3</source>
        <translation>lieues marines carrees</translation>
    </message>
    <message>
        <source>eSSquareLightYear_Alternate1</source>
        <translation>années-lumière carrées</translation>
    </message>
    <message>
        <source>eSSquareLightYear_Alternate2</source>
        <translation>annee-lumiere carree</translation>
    </message>
    <message>
        <source>eSSquareLightYear_Alternate3</source>
        <translation>annees-lumiere carrees</translation>
    </message>
    <message>
        <source>eSSquareLink_Alternate1</source>
        <translation>chaînons carrés</translation>
    </message>
    <message>
        <source>eSSquareLink_Alternate2</source>
        <translation>chainon carre</translation>
    </message>
    <message>
        <source>eSSquareLink_Alternate3</source>
        <translation>chainons carres</translation>
    </message>
    <message>
        <source>eSSquareMicron_Alternate1</source>
        <translation>microns carrés</translation>
    </message>
    <message>
        <source>eSSquareMicron_Alternate2</source>
        <translation>micron carre</translation>
    </message>
    <message>
        <source>eSSquareMicron_Alternate3</source>
        <translation>microns carres</translation>
    </message>
    <message>
        <source>eSSquareMillimicron_Alternate1</source>
        <translation>millimicrons carrés</translation>
    </message>
    <message>
        <source>eSSquareMillimicron_Alternate2</source>
        <translation>millimicron carre</translation>
    </message>
    <message>
        <source>eSSquareMillimicron_Alternate3</source>
        <translation>millimicrons carres</translation>
    </message>
    <message>
        <source>eSSquarePace_Alternate1</source>
        <translation>pas carrés</translation>
    </message>
    <message>
        <source>eSSquarePace_Alternate2</source>
        <translation>pas carre</translation>
    </message>
    <message>
        <source>eSSquarePace_Alternate3</source>
        <translation>pas carres</translation>
    </message>
    <message>
        <source>eSSquarePalm_Alternate1</source>
        <translation>palmes carrées</translation>
    </message>
    <message>
        <source>eSSquarePalm_Alternate2</source>
        <translation>palme carree</translation>
    </message>
    <message>
        <source>eSSquarePalm_Alternate3</source>
        <translation>palmes carrees</translation>
    </message>
    <message>
        <source>eSSquareParsec_Alternate1</source>
        <translation>parsecs carrés</translation>
    </message>
    <message>
        <source>eSSquareParsec_Alternate2</source>
        <translation>parsec carre</translation>
    </message>
    <message>
        <source>eSSquareParsec_Alternate3</source>
        <translation>parsecs carres</translation>
    </message>
    <message>
        <source>eSSquarePerch_Alternate1</source>
        <translation>perches carrées</translation>
    </message>
    <message>
        <source>eSSquarePerch_Alternate2</source>
        <translation>perche carree</translation>
    </message>
    <message>
        <source>eSSquarePerch_Alternate3</source>
        <translation>perches carrees</translation>
    </message>
    <message>
        <source>eSSquareRope_Alternate1</source>
        <translation>ropes carrés</translation>
    </message>
    <message>
        <source>eSSquareRope_Alternate2</source>
        <translation>rope carre</translation>
    </message>
    <message>
        <source>eSSquareRope_Alternate3</source>
        <translation>ropes carres</translation>
    </message>
    <message>
        <source>eSSquareSkein_Alternate1</source>
        <translation>écheveaux carrés</translation>
    </message>
    <message>
        <source>eSSquareSkein_Alternate2</source>
        <translation>echeveau carre</translation>
    </message>
    <message>
        <source>eSSquareSkein_Alternate3</source>
        <translation>echeveaux carres</translation>
    </message>
    <message>
        <source>eSSquareSpan_Alternate1</source>
        <translation>empans carrés</translation>
    </message>
    <message>
        <source>eSSquareSpan_Alternate2</source>
        <translation>empan carre</translation>
    </message>
    <message>
        <source>eSSquareSpan_Alternate3</source>
        <translation>empans carres</translation>
    </message>
    <message>
        <source>eSSquareSurveyFoot_Alternate1</source>
        <translation>pieds carrés d&apos;arpentage</translation>
    </message>
    <message>
        <source>eSSquareSurveyFoot_Alternate2</source>
        <translation>pied carre d&apos;arpentage</translation>
    </message>
    <message>
        <source>eSSquareSurveyFoot_Alternate3</source>
        <translation>pieds carres d&apos;arpentage</translation>
    </message>
    <message>
        <source>eSSquareChain_Alternate1</source>
        <translation>chaînes carrées</translation>
    </message>
    <message>
        <source>eSSquareChain_Alternate2</source>
        <translation>chaine carree</translation>
    </message>
    <message>
        <source>eSSquareChain_Alternate3</source>
        <translation>chaines carrees</translation>
    </message>
    <message>
        <source>eSSquareMil_Alternate1</source>
        <translation>mils carrés</translation>
    </message>
    <message>
        <source>eSSquareMil_Alternate2</source>
        <translation>mil carre</translation>
    </message>
    <message>
        <source>eSSquareMil_Alternate3</source>
        <translation>mils carres</translation>
    </message>
    <message>
        <source>eSSquareAstronomicalUnit_Alternate1</source>
        <translation>unités astronomiques carrées</translation>
    </message>
    <message>
        <source>eSSquareAstronomicalUnit_Alternate2</source>
        <translation>unite astronomique carree</translation>
    </message>
    <message>
        <source>eSSquareAstronomicalUnit_Alternate3</source>
        <translation>unites astronomiques carrees</translation>
    </message>
    <message>
        <source>eSSurveyAcre_Alternate1</source>
        <translation>acres d&apos;arpentage</translation>
    </message>
    <message>
        <source>eSSquareSurveyYard_Alternate1</source>
        <translation>yards carrés d&apos;arpentage</translation>
    </message>
    <message>
        <source>eSSquareSurveyYard_Alternate2</source>
        <translation>yard carre d&apos;arpentage</translation>
    </message>
    <message>
        <source>eSSquareSurveyYard_Alternate3</source>
        <translation>yards carres d&apos;arpentage</translation>
    </message>
    <message>
        <source>eSBoard_Alternate1</source>
        <translation>boards</translation>
    </message>
    <message>
        <source>eSSquareMicroinch_Alternate1</source>
        <translation>micropouces carrés</translation>
    </message>
    <message>
        <source>eSSquareMicroinch_Alternate2</source>
        <translation>micropouce carre</translation>
    </message>
    <message>
        <source>eSSquareMicroinch_Alternate3</source>
        <translation>micropouces carres</translation>
    </message>
    <message>
        <source>eSSquareMicrometer_Alternate1</source>
        <translation>micromètres carrés</translation>
    </message>
    <message>
        <source>eSSquareMicrometer_Alternate2</source>
        <translation>micrometre carre</translation>
    </message>
    <message>
        <source>eSSquareMicrometer_Alternate3</source>
        <translation>micrometres carres</translation>
    </message>
    <message>
        <source>eSum2_Alternate1</source>
        <translation>μm²</translation>
    </message>
    <message>
        <source>eSum2_Alternate2</source>
        <translation>um²</translation>
    </message>
    <message>
        <source>eSum2_Alternate3</source>
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
        <translation>g/po^2</translation>
    </message>
    <message>
        <source>eSGramPerSquareMeter_Alternate1</source>
        <translation>grammes par mètre carré</translation>
    </message>
    <message>
        <source>eSGramPerSquareMeter_Alternate2</source>
        <translation>gramme par metre carre</translation>
    </message>
    <message>
        <source>eSGramPerSquareMeter_Alternate3</source>
        <translation>grammes par metre carre</translation>
    </message>
    <message>
        <source>eSGramPerSquareInch_Alternate1</source>
        <translation>grammes par pouce carré</translation>
    </message>
    <message>
        <source>eSGramPerSquareInch_Alternate2</source>
        <translation>gramme par pouce carre</translation>
    </message>
    <message>
        <source>eSGramPerSquareInch_Alternate3</source>
        <translation>grammes par pouce carre</translation>
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
        <translation>pi^2/(kBTU/h)</translation>
    </message>
    <message>
        <source>eSft2PerkBtuPerh_Alternate1</source>
        <translation>pi^2/(kBtu/h)</translation>
    </message>
    <message>
        <source>eSSquareMeterPerWatt_Alternate1</source>
        <translation>mètres carrés par watt</translation>
    </message>
    <message>
        <source>eSSquareMeterPerWatt_Alternate2</source>
        <translation>metre carre par watt</translation>
    </message>
    <message>
        <source>eSSquareMeterPerWatt_Alternate3</source>
        <translation>metres carres par watt</translation>
    </message>
    <message>
        <source>eSSquareFootPerTonOfRefrigeration_Alternate1</source>
        <translation>pieds carrés par tonne de réfrigération</translation>
    </message>
    <message>
        <source>eSSquareFootPerTonOfRefrigeration_Alternate2</source>
        <translation>pied carre par tonne de refrigeration</translation>
    </message>
    <message>
        <source>eSSquareFootPerTonOfRefrigeration_Alternate3</source>
        <translation>pieds carres par tonne de refrigeration</translation>
    </message>
    <message>
        <source>eSSquareMeterPerKilowatt_Alternate1</source>
        <translation>mètres carrés par kilowatt</translation>
    </message>
    <message>
        <source>eSSquareMeterPerKilowatt_Alternate2</source>
        <translation>metre carre par kilowatt</translation>
    </message>
    <message>
        <source>eSSquareMeterPerKilowatt_Alternate3</source>
        <translation>metres carres par kilowatt</translation>
    </message>
    <message>
        <source>eSSquareFootPerThousandBritishThermalUnitPerHour_Alternate1</source>
        <translation>pieds carrés par millier d&apos;unités thermiques britanniques par heure</translation>
    </message>
    <message>
        <source>eSSquareFootPerThousandBritishThermalUnitPerHour_Alternate2</source>
        <translation>pied carre par millier d&apos;unites thermiques britanniques par heure</translation>
    </message>
    <message>
        <source>eSSquareFootPerThousandBritishThermalUnitPerHour_Alternate3</source>
        <translation>pieds carres par millier d&apos;unites thermiques britanniques par heure</translation>
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
        <translation>pi^3/kip</translation>
    </message>
    <message>
        <source>eSft3Perkipf_Alternate1</source>
        <translation>pi^3/kipf</translation>
    </message>
    <message>
        <source>eSft3Perlbf_Alternate1</source>
        <translation>pi^3/klbf</translation>
    </message>
    <message>
        <source>eSft3Perklb_Alternate1</source>
        <translation>pi^3/klb</translation>
    </message>
    <message>
        <source>eSCubicMeterPerNewton_Alternate1</source>
        <translation>mètres cubes par newton</translation>
    </message>
    <message>
        <source>eSCubicMeterPerNewton_Alternate2</source>
        <translation>metre cube par newton</translation>
    </message>
    <message>
        <source>eSCubicMeterPerNewton_Alternate3</source>
        <translation>metres cubes par newton</translation>
    </message>
    <message>
        <source>eSCubicMeterPerKilonewton_Alternate1</source>
        <translation>mètres cubes par kilonewton</translation>
    </message>
    <message>
        <source>eSCubicMeterPerKilonewton_Alternate2</source>
        <translation>metre cube par kilonewton</translation>
    </message>
    <message>
        <source>eSCubicMeterPerKilonewton_Alternate3</source>
        <translation>metres cubes par kilonewton</translation>
    </message>
    <message>
        <source>eSCubicFootPerKip_Alternate1</source>
        <translation>pieds cubes par kip</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_BitRate</name>
    <message>
        <source>eSBaud_Alternate1</source>
        <translation>bauds</translation>
    </message>
    <message>
        <source>eSBitPerSecond_Alternate1</source>
        <translation>bits par seconde</translation>
    </message>
    <message>
        <source>eSbps_Alternate1</source>
        <translation>bps</translation>
    </message>
    <message>
        <source>eSBytePerSecond_Alternate1</source>
        <translation>octets par seconde</translation>
    </message>
    <message>
        <source>eSKilobaud_Alternate1</source>
        <translation>kilobauds</translation>
    </message>
    <message>
        <source>eSKilobitPerSecond_Alternate1</source>
        <translation>kilobits par seconde</translation>
    </message>
    <message>
        <source>eSkbps_Alternate1</source>
        <translation>kbps</translation>
    </message>
    <message>
        <source>eSKilobytePerSecond_Alternate1</source>
        <translation>kilooctets par seconde</translation>
    </message>
    <message>
        <source>eSMegabaud_Alternate1</source>
        <translation>mégabauds</translation>
    </message>
    <message>
        <source>eSMegabaud_Alternate2</source>
        <translation>megabaud</translation>
    </message>
    <message>
        <source>eSMegabaud_Alternate3</source>
        <translation>megabauds</translation>
    </message>
    <message>
        <source>eSMegabitPerSecond_Alternate1</source>
        <translation>mégabits par seconde</translation>
    </message>
    <message>
        <source>eSMegabitPerSecond_Alternate2</source>
        <translation>megabit par seconde</translation>
    </message>
    <message>
        <source>eSMegabitPerSecond_Alternate3</source>
        <translation>megabits par seconde</translation>
    </message>
    <message>
        <source>eSMbps_Alternate1</source>
        <translation>Mbps</translation>
    </message>
    <message>
        <source>eSMegabytePerSecond_Alternate1</source>
        <translation>mégaoctets par seconde</translation>
    </message>
    <message>
        <source>eSMegabytePerSecond_Alternate2</source>
        <translation>megaoctet par seconde</translation>
    </message>
    <message>
        <source>eSMegabytePerSecond_Alternate3</source>
        <translation>megaoctets par seconde</translation>
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
        <translation>pétafarads</translation>
    </message>
    <message>
        <source>eSPetafarad_Alternate2</source>
        <translation>petafarad</translation>
    </message>
    <message>
        <source>eSPetafarad_Alternate3</source>
        <translation>petafarads</translation>
    </message>
    <message>
        <source>eSTerafarad_Alternate1</source>
        <translation>térafarads</translation>
    </message>
    <message>
        <source>eSTerafarad_Alternate2</source>
        <translation>terafarad</translation>
    </message>
    <message>
        <source>eSTerafarad_Alternate3</source>
        <translation>terafarads</translation>
    </message>
    <message>
        <source>eSGigafarad_Alternate1</source>
        <translation>gigafarads</translation>
    </message>
    <message>
        <source>eSMegafarad_Alternate1</source>
        <translation>mégafarads</translation>
    </message>
    <message>
        <source>eSMegafarad_Alternate2</source>
        <translation>megafarad</translation>
    </message>
    <message>
        <source>eSMegafarad_Alternate3</source>
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
        <translation>décafarads</translation>
    </message>
    <message>
        <source>eSDecafarad_Alternate2</source>
        <translation>decafarad</translation>
    </message>
    <message>
        <source>eSDecafarad_Alternate3</source>
        <translation>decafarads</translation>
    </message>
    <message>
        <source>eSDecifarad_Alternate1</source>
        <translation>décifarads</translation>
    </message>
    <message>
        <source>eSDecifarad_Alternate2</source>
        <translation>decifarad</translation>
    </message>
    <message>
        <source>eSDecifarad_Alternate3</source>
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
        <source>eSmuF_Alternate1</source>
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
        <translation>inverse du degre Fahrenheit</translation>
    </message>
    <message>
        <source>eSInverseCelsius_Alternate1</source>
        <translation>inverse du degre Celsius</translation>
    </message>
    <message>
        <source>eSMicrometerPerMeterCelsius_Alternate1</source>
        <translation>micromètres par mètre-degré Celsius</translation>
    </message>
    <message>
        <source>eSMicrometerPerMeterCelsius_Alternate2</source>
        <translation>micrometre par metre-degre Celsius</translation>
    </message>
    <message>
        <source>eSMicrometerPerMeterCelsius_Alternate3</source>
        <translation>micrometres par metre-degre Celsius</translation>
    </message>
    <message>
        <source>eSMicroinchPerInchFahrenheit_Alternate1</source>
        <translation>micropouces par pouce-degré Fahrenheit</translation>
    </message>
    <message>
        <source>eSMicroinchPerInchFahrenheit_Alternate2</source>
        <translation>micropouce par pouce-degre Fahrenheit</translation>
    </message>
    <message>
        <source>eSMicroinchPerInchFahrenheit_Alternate3</source>
        <translation>micropouces par pouce-degre Fahrenheit</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_ComputerStorage</name>
    <message>
        <source>eSByte_Alternate1</source>
        <translation>octets</translation>
    </message>
    <message>
        <source>eSB_Alternate1</source>
        <translation>byte</translation>
    </message>
    <message>
        <source>eSB_Alternate2</source>
        <translation>bytes</translation>
    </message>
    <message>
        <source>eSBit_Alternate1</source>
        <translation>bits</translation>
    </message>
    <message>
        <source>eSKilobyte_Alternate1</source>
        <translation>kilooctets</translation>
    </message>
    <message>
        <source>eSkB_Alternate1</source>
        <translation>kB</translation>
    </message>
    <message>
        <source>eSkB_Alternate2</source>
        <translation>kilo-octet</translation>
    </message>
    <message>
        <source>eSkB_Alternate3</source>
        <translation>kilo-octets</translation>
    </message>
    <message>
        <source>eSMegabyte_Alternate1</source>
        <translation>mégaoctets</translation>
    </message>
    <message>
        <source>eSMegabyte_Alternate2</source>
        <translation>megaoctet</translation>
    </message>
    <message>
        <source>eSMegabyte_Alternate3</source>
        <translation>megaoctets</translation>
    </message>
    <message>
        <source>eSMB_Alternate1</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>eSMB_Alternate2</source>
        <translation>méga-octet</translation>
    </message>
    <message>
        <source>eSMB_Alternate3</source>
        <translation>méga-octets</translation>
    </message>
    <message>
        <source>eSGigabyte_Alternate1</source>
        <translation>gigaoctets</translation>
    </message>
    <message>
        <source>eSGB_Alternate1</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>eSGB_Alternate2</source>
        <translation>giga-octet</translation>
    </message>
    <message>
        <source>eSGB_Alternate3</source>
        <translation>giga-octets</translation>
    </message>
    <message>
        <source>eSTerabyte_Alternate1</source>
        <translation>téraoctets</translation>
    </message>
    <message>
        <source>eSTerabyte_Alternate2</source>
        <translation>teraoctet</translation>
    </message>
    <message>
        <source>eSTerabyte_Alternate3</source>
        <translation>teraoctets</translation>
    </message>
    <message>
        <source>eSTB_Alternate1</source>
        <translation>TB</translation>
    </message>
    <message>
        <source>eSTB_Alternate2</source>
        <translation>téra-octet</translation>
    </message>
    <message>
        <source>eSTB_Alternate3</source>
        <translation>téra-octets</translation>
    </message>
    <message>
        <source>eSKibibyte_Alternate1</source>
        <translation>kibioctets</translation>
    </message>
    <message>
        <source>eSkiB_Alternate1</source>
        <translation>KiB</translation>
    </message>
    <message>
        <source>eSkiB_Alternate2</source>
        <translation>kiB</translation>
    </message>
    <message>
        <source>eSMebibyte_Alternate1</source>
        <translation>mébioctets</translation>
    </message>
    <message>
        <source>eSMebibyte_Alternate2</source>
        <translation>mebioctet</translation>
    </message>
    <message>
        <source>eSMebibyte_Alternate3</source>
        <translation>mebioctets</translation>
    </message>
    <message>
        <source>eSMiB_Alternate1</source>
        <translation>MiB</translation>
    </message>
    <message>
        <source>eSGibibyte_Alternate1</source>
        <translation>gibioctets</translation>
    </message>
    <message>
        <source>eSGiB_Alternate1</source>
        <translation>GiB</translation>
    </message>
    <message>
        <source>eSTebibyte_Alternate1</source>
        <translation>tébioctets</translation>
    </message>
    <message>
        <source>eSTebibyte_Alternate2</source>
        <translation>tebioctet</translation>
    </message>
    <message>
        <source>eSTebibyte_Alternate3</source>
        <translation>tebioctets</translation>
    </message>
    <message>
        <source>eSTiB_Alternate1</source>
        <translation>TiB</translation>
    </message>
    <message>
        <source>eSKilobit_Alternate1</source>
        <translation>kilobits</translation>
    </message>
    <message>
        <source>eSMegabit_Alternate1</source>
        <translation>mégabits</translation>
    </message>
    <message>
        <source>eSMegabit_Alternate2</source>
        <translation>megabit</translation>
    </message>
    <message>
        <source>eSMegabit_Alternate3</source>
        <translation>megabits</translation>
    </message>
    <message>
        <source>eSGigabit_Alternate1</source>
        <translation>gigabits</translation>
    </message>
    <message>
        <source>eSPetabyte_Alternate1</source>
        <translation>pétaoctets</translation>
    </message>
    <message>
        <source>eSPetabyte_Alternate2</source>
        <translation>petaoctet</translation>
    </message>
    <message>
        <source>eSPetabyte_Alternate3</source>
        <translation>petaoctets</translation>
    </message>
    <message>
        <source>eSPebibyte_Alternate1</source>
        <translation>pébioctets</translation>
    </message>
    <message>
        <source>eSPebibyte_Alternate2</source>
        <translation>pebioctet</translation>
    </message>
    <message>
        <source>eSPebibyte_Alternate3</source>
        <translation>pebioctets</translation>
    </message>
    <message>
        <source>eSExabyte_Alternate1</source>
        <translation>exaoctets</translation>
    </message>
    <message>
        <source>eSExbibyte_Alternate1</source>
        <translation>exbioctets</translation>
    </message>
    <message>
        <source>eSZettabyte_Alternate1</source>
        <translation>zettaoctets</translation>
    </message>
    <message>
        <source>eSZebibyte_Alternate1</source>
        <translation>zébioctets</translation>
    </message>
    <message>
        <source>eSZebibyte_Alternate2</source>
        <translation>zebioctet</translation>
    </message>
    <message>
        <source>eSZebibyte_Alternate3</source>
        <translation>zebioctets</translation>
    </message>
    <message>
        <source>eSYottabyte_Alternate1</source>
        <translation>yottaoctets</translation>
    </message>
    <message>
        <source>eSYobibyte_Alternate1</source>
        <translation>yobioctets</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Concentration</name>
    <message>
        <source>eSNanogramPerLiter_Alternate1</source>
        <translation>nanogrammes par litre</translation>
    </message>
    <message>
        <source>eSNanogramPerDeciliter_Alternate1</source>
        <translation>nanogrammes par décilitre</translation>
    </message>
    <message>
        <source>eSNanogramPerDeciliter_Alternate2</source>
        <translation>nanogramme par decilitre</translation>
    </message>
    <message>
        <source>eSNanogramPerDeciliter_Alternate3</source>
        <translation>nanogrammes par decilitre</translation>
    </message>
    <message>
        <source>eSNanogramPerMilliliter_Alternate1</source>
        <translation>nanogrammes par millilitre</translation>
    </message>
    <message>
        <source>eSNanogramPerMicroliter_Alternate1</source>
        <translation>nanogrammes par microlitre</translation>
    </message>
    <message>
        <source>eSngPermuL_Alternate1</source>
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
        <translation>kilogrammes par mètre cube</translation>
    </message>
    <message>
        <source>eSKilogramPerCubicMeter_Alternate2</source>
        <translation>kilogramme par metre cube</translation>
    </message>
    <message>
        <source>eSKilogramPerCubicMeter_Alternate3</source>
        <translation>kilogrammes par metre cube</translation>
    </message>
    <message>
        <source>eSKilogramPerLiter_Alternate1</source>
        <translation>kilogrammes par litre</translation>
    </message>
    <message>
        <source>eSGramPerLiter_Alternate1</source>
        <translation>grammes par litre</translation>
    </message>
    <message>
        <source>eSMicrogramPerMilliliter_Alternate1</source>
        <translation>microgrammes par millilitre</translation>
    </message>
    <message>
        <source>eSmugPermL_Alternate1</source>
        <translation>μg/mL</translation>
    </message>
    <message>
        <source>eSmugPermL_Alternate2</source>
        <translation>µg/ml</translation>
    </message>
    <message>
        <source>eSMilligramPerMilliliter_Alternate1</source>
        <translation>milligrammes par millilitre</translation>
    </message>
    <message>
        <source>eSPoundPerGallon_Alternate1</source>
        <translation>livres par gallon</translation>
    </message>
    <message>
        <source>eSOuncePerGallon_Alternate1</source>
        <translation>onces par gallon</translation>
    </message>
    <message>
        <source>eSPoundPerCubicFoot_Alternate1</source>
        <translation>livres par pied cube</translation>
    </message>
    <message>
        <source>eSPoundPerCubicInch_Alternate1</source>
        <translation>livres par pouce cube</translation>
    </message>
    <message>
        <source>eSGramPerCubicCentimeter_Alternate1</source>
        <translation>grammes par centimètre cube</translation>
    </message>
    <message>
        <source>eSGramPerCubicCentimeter_Alternate2</source>
        <translation>gramme par centimetre cube</translation>
    </message>
    <message>
        <source>eSGramPerCubicCentimeter_Alternate3</source>
        <translation>grammes par centimetre cube</translation>
    </message>
    <message>
        <source>eSNewtonSquareSecondPerQuarticMillimeter_Alternate1</source>
        <translation>newtons-secondes carrées par millimètre à la puissance quatre</translation>
    </message>
    <message>
        <source>eSNewtonSquareSecondPerQuarticMillimeter_Alternate2</source>
        <translation>newton-seconde carree par millimetre a la puissance quatre</translation>
    </message>
    <message>
        <source>eSNewtonSquareSecondPerQuarticMillimeter_Alternate3</source>
        <translation>newtons-secondes carrees par millimetre a la puissance quatre</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Dimensionless</name>
    <message>
        <source>eSUnitless_Alternate1</source>
        <translation>sans unite</translation>
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
        <source>eScP_Alternate1</source>
        <translation>cp</translation>
    </message>
    <message>
        <source>eSPascalSecond_Alternate1</source>
        <translation>pascals-secondes</translation>
    </message>
    <message>
        <source>eSPas_Alternate1</source>
        <translation>Pa.s</translation>
    </message>
    <message>
        <source>eSPas_Alternate2</source>
        <translation>Pa s</translation>
    </message>
    <message>
        <source>eSPoundMassPerFootSecond_Alternate1</source>
        <translation>livres par pied-seconde</translation>
    </message>
    <message>
        <source>eSPoundMassPerFootHour_Alternate1</source>
        <translation>livres par pied-heure</translation>
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
        <translation>ampères-heures</translation>
    </message>
    <message>
        <source>eSAmpereHour_Alternate2</source>
        <translation>ampere-heure</translation>
    </message>
    <message>
        <source>eSAmpereHour_Alternate3</source>
        <translation>amperes-heures</translation>
    </message>
    <message>
        <source>eSAhr_Alternate1</source>
        <translation>A·h</translation>
    </message>
    <message>
        <source>eSAhr_Alternate2</source>
        <translation>A.h</translation>
    </message>
    <message>
        <source>eSAhr_Alternate3</source>
        <translation>A h</translation>
    </message>
    <message>
        <source>eSMilliampereHour_Alternate1</source>
        <translation>milliampères-heures</translation>
    </message>
    <message>
        <source>eSMilliampereHour_Alternate2</source>
        <translation>milliampere-heure</translation>
    </message>
    <message>
        <source>eSMilliampereHour_Alternate3</source>
        <translation>milliamperes-heures</translation>
    </message>
    <message>
        <source>eSmAhr_Alternate1</source>
        <translation>mA·h</translation>
    </message>
    <message>
        <source>eSmAhr_Alternate2</source>
        <translation>mA.h</translation>
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
</context>
<context>
    <name>UnitSymbol_ElectricCurrent</name>
    <message>
        <source>eSAmpere_Alternate1</source>
        <translation>ampères</translation>
    </message>
    <message>
        <source>eSAmpere_Alternate2</source>
        <translation>ampere</translation>
    </message>
    <message>
        <source>eSAmpere_Alternate3</source>
        <translation>amperes</translation>
    </message>
    <message>
        <source>eSA_Alternate1</source>
        <translation>amp</translation>
    </message>
    <message>
        <source>eSA_Alternate2</source>
        <translation>amps</translation>
    </message>
    <message>
        <source>eSYottaampere_Alternate1</source>
        <translation>yottaampères</translation>
    </message>
    <message>
        <source>eSYottaampere_Alternate2</source>
        <translation>yottaampere</translation>
    </message>
    <message>
        <source>eSYottaampere_Alternate3</source>
        <translation>yottaamperes</translation>
    </message>
    <message>
        <source>eSZettaampere_Alternate1</source>
        <translation>zettaampères</translation>
    </message>
    <message>
        <source>eSZettaampere_Alternate2</source>
        <translation>zettaampere</translation>
    </message>
    <message>
        <source>eSZettaampere_Alternate3</source>
        <translation>zettaamperes</translation>
    </message>
    <message>
        <source>eSExaampere_Alternate1</source>
        <translation>exaampères</translation>
    </message>
    <message>
        <source>eSExaampere_Alternate2</source>
        <translation>exaampere</translation>
    </message>
    <message>
        <source>eSExaampere_Alternate3</source>
        <translation>exaamperes</translation>
    </message>
    <message>
        <source>eSPetaampere_Alternate1</source>
        <translation>pétaampères</translation>
    </message>
    <message>
        <source>eSPetaampere_Alternate2</source>
        <translation>petaampere</translation>
    </message>
    <message>
        <source>eSPetaampere_Alternate3</source>
        <translation>petaamperes</translation>
    </message>
    <message>
        <source>eSTeraampere_Alternate1</source>
        <translation>téraampères</translation>
    </message>
    <message>
        <source>eSTeraampere_Alternate2</source>
        <translation>teraampere</translation>
    </message>
    <message>
        <source>eSTeraampere_Alternate3</source>
        <translation>teraamperes</translation>
    </message>
    <message>
        <source>eSGigaampere_Alternate1</source>
        <translation>gigaampères</translation>
    </message>
    <message>
        <source>eSGigaampere_Alternate2</source>
        <translation>gigaampere</translation>
    </message>
    <message>
        <source>eSGigaampere_Alternate3</source>
        <translation>gigaamperes</translation>
    </message>
    <message>
        <source>eSMegaampere_Alternate1</source>
        <translation>mégaampères</translation>
    </message>
    <message>
        <source>eSMegaampere_Alternate2</source>
        <translation>megaampere</translation>
    </message>
    <message>
        <source>eSMegaampere_Alternate3</source>
        <translation>megaamperes</translation>
    </message>
    <message>
        <source>eSKiloampere_Alternate1</source>
        <translation>kiloampères</translation>
    </message>
    <message>
        <source>eSKiloampere_Alternate2</source>
        <translation>kiloampere</translation>
    </message>
    <message>
        <source>eSKiloampere_Alternate3</source>
        <translation>kiloamperes</translation>
    </message>
    <message>
        <source>eSHectoampere_Alternate1</source>
        <translation>hectoampères</translation>
    </message>
    <message>
        <source>eSHectoampere_Alternate2</source>
        <translation>hectoampere</translation>
    </message>
    <message>
        <source>eSHectoampere_Alternate3</source>
        <translation>hectoamperes</translation>
    </message>
    <message>
        <source>eSDecaampere_Alternate1</source>
        <translation>décaampères</translation>
    </message>
    <message>
        <source>eSDecaampere_Alternate2</source>
        <translation>decaampere</translation>
    </message>
    <message>
        <source>eSDecaampere_Alternate3</source>
        <translation>decaamperes</translation>
    </message>
    <message>
        <source>eSDeciampere_Alternate1</source>
        <translation>déciampères</translation>
    </message>
    <message>
        <source>eSDeciampere_Alternate2</source>
        <translation>deciampere</translation>
    </message>
    <message>
        <source>eSDeciampere_Alternate3</source>
        <translation>deciamperes</translation>
    </message>
    <message>
        <source>eSCentiampere_Alternate1</source>
        <translation>centiampères</translation>
    </message>
    <message>
        <source>eSCentiampere_Alternate2</source>
        <translation>centiampere</translation>
    </message>
    <message>
        <source>eSCentiampere_Alternate3</source>
        <translation>centiamperes</translation>
    </message>
    <message>
        <source>eSMilliampere_Alternate1</source>
        <translation>milliampères</translation>
    </message>
    <message>
        <source>eSMilliampere_Alternate2</source>
        <translation>milliampere</translation>
    </message>
    <message>
        <source>eSMilliampere_Alternate3</source>
        <translation>milliamperes</translation>
    </message>
    <message>
        <source>eSMicroampere_Alternate1</source>
        <translation>microampères</translation>
    </message>
    <message>
        <source>eSMicroampere_Alternate2</source>
        <translation>microampere</translation>
    </message>
    <message>
        <source>eSMicroampere_Alternate3</source>
        <translation>microamperes</translation>
    </message>
    <message>
        <source>eSmuA_Alternate1</source>
        <translation>μA</translation>
    </message>
    <message>
        <source>eSNanoampere_Alternate1</source>
        <translation>nanoampères</translation>
    </message>
    <message>
        <source>eSNanoampere_Alternate2</source>
        <translation>nanoampere</translation>
    </message>
    <message>
        <source>eSNanoampere_Alternate3</source>
        <translation>nanoamperes</translation>
    </message>
    <message>
        <source>eSPicoampere_Alternate1</source>
        <translation>picoampères</translation>
    </message>
    <message>
        <source>eSPicoampere_Alternate2</source>
        <translation>picoampere</translation>
    </message>
    <message>
        <source>eSPicoampere_Alternate3</source>
        <translation>picoamperes</translation>
    </message>
    <message>
        <source>eSFemtoampere_Alternate1</source>
        <translation>femtoampères</translation>
    </message>
    <message>
        <source>eSFemtoampere_Alternate2</source>
        <translation>femtoampere</translation>
    </message>
    <message>
        <source>eSFemtoampere_Alternate3</source>
        <translation>femtoamperes</translation>
    </message>
    <message>
        <source>eSAttoampere_Alternate1</source>
        <translation>attoampères</translation>
    </message>
    <message>
        <source>eSAttoampere_Alternate2</source>
        <translation>attoampere</translation>
    </message>
    <message>
        <source>eSAttoampere_Alternate3</source>
        <translation>attoamperes</translation>
    </message>
    <message>
        <source>eSZeptoampere_Alternate1</source>
        <translation>zeptoampères</translation>
    </message>
    <message>
        <source>eSZeptoampere_Alternate2</source>
        <translation>zeptoampere</translation>
    </message>
    <message>
        <source>eSZeptoampere_Alternate3</source>
        <translation>zeptoamperes</translation>
    </message>
    <message>
        <source>eSYoctoampere_Alternate1</source>
        <translation>yoctoampères</translation>
    </message>
    <message>
        <source>eSYoctoampere_Alternate2</source>
        <translation>yoctoampere</translation>
    </message>
    <message>
        <source>eSYoctoampere_Alternate3</source>
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
        <source>eSOmega_Alternate1</source>
        <translation>Ω</translation>
    </message>
    <message>
        <source>eSOmega_Alternate2</source>
        <translation>Ohm</translation>
    </message>
    <message>
        <source>eSKilohm_Alternate1</source>
        <translation>kilohms</translation>
    </message>
    <message>
        <source>eSkOmega_Alternate1</source>
        <translation>kΩ</translation>
    </message>
    <message>
        <source>eSkOmega_Alternate2</source>
        <translation>kohm</translation>
    </message>
    <message>
        <source>eSkOmega_Alternate3</source>
        <translation>kohms</translation>
    </message>
    <message>
        <source>eSGigaohm_Alternate1</source>
        <translation>gigaohms</translation>
    </message>
    <message>
        <source>eSMegohm_Alternate1</source>
        <translation>mégohms</translation>
    </message>
    <message>
        <source>eSMegohm_Alternate2</source>
        <translation>megohm</translation>
    </message>
    <message>
        <source>eSMegohm_Alternate3</source>
        <translation>megohms</translation>
    </message>
    <message>
        <source>eSMOmega_Alternate1</source>
        <translation>MΩ</translation>
    </message>
    <message>
        <source>eSMOmega_Alternate2</source>
        <translation>Mohm</translation>
    </message>
    <message>
        <source>eSMOmega_Alternate3</source>
        <translation>Mohms</translation>
    </message>
    <message>
        <source>eSMOmega_Alternate4</source>
        <translation>mégaohm</translation>
    </message>
    <message>
        <source>eSMicroohm_Alternate1</source>
        <translation>micro-ohms</translation>
    </message>
    <message>
        <source>eSmuOmega_Alternate1</source>
        <translation>μΩ</translation>
    </message>
    <message>
        <source>eSMilliohm_Alternate1</source>
        <translation>milliohms</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_ElectricalResistivity</name>
    <message>
        <source>eSOhmMeter_Alternate1</source>
        <translation>ohms-mètres</translation>
    </message>
    <message>
        <source>eSOhmMeter_Alternate2</source>
        <translation>ohm-metre</translation>
    </message>
    <message>
        <source>eSOhmMeter_Alternate3</source>
        <translation>ohms-metres</translation>
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
        <source>eSkcal_Alternate1</source>
        <translation>Cal</translation>
    </message>
    <message>
        <source>eSBTUIT_Alternate1</source>
        <translation>BTU</translation>
    </message>
    <message>
        <source>eSBTUIT_Alternate2</source>
        <translation>Btu</translation>
    </message>
    <message>
        <source>eSBTUIT_Alternate3</source>
        <translation>btu</translation>
    </message>
    <message>
        <source>eSKiloelectronvolt_Alternate1</source>
        <translation>kiloélectronvolts</translation>
    </message>
    <message>
        <source>eSKiloelectronvolt_Alternate2</source>
        <translation>kiloelectronvolt</translation>
    </message>
    <message>
        <source>eSKiloelectronvolt_Alternate3</source>
        <translation>kiloelectronvolts</translation>
    </message>
    <message>
        <source>eSMegaelectronvolt_Alternate1</source>
        <translation>mégaélectronvolts</translation>
    </message>
    <message>
        <source>eSMegaelectronvolt_Alternate2</source>
        <translation>megaelectronvolt</translation>
    </message>
    <message>
        <source>eSMegaelectronvolt_Alternate3</source>
        <translation>megaelectronvolts</translation>
    </message>
    <message>
        <source>eSElectronvolt_Alternate1</source>
        <translation>électronvolts</translation>
    </message>
    <message>
        <source>eSElectronvolt_Alternate2</source>
        <translation>electronvolt</translation>
    </message>
    <message>
        <source>eSElectronvolt_Alternate3</source>
        <translation>electronvolts</translation>
    </message>
    <message>
        <source>eSErg_Alternate1</source>
        <translation>ergs</translation>
    </message>
    <message>
        <source>eSKilowattHour_Alternate1</source>
        <translation>kilowattheures</translation>
    </message>
    <message>
        <source>eSkWh_Alternate1</source>
        <translation>kW.h</translation>
    </message>
    <message>
        <source>eSkWh_Alternate2</source>
        <translation>kW h</translation>
    </message>
    <message>
        <source>eSKilowattMinute_Alternate1</source>
        <translation>kilowatts-minutes</translation>
    </message>
    <message>
        <source>eSKilowattSecond_Alternate1</source>
        <translation>kilowatts-secondes</translation>
    </message>
    <message>
        <source>eSNewtonMeter_Alternate1</source>
        <translation>newtons-mètres</translation>
    </message>
    <message>
        <source>eSNewtonMeter_Alternate2</source>
        <translation>newton-metre</translation>
    </message>
    <message>
        <source>eSNewtonMeter_Alternate3</source>
        <translation>newtons-metres</translation>
    </message>
    <message>
        <source>eSNm_Alternate1</source>
        <translation>N.m</translation>
    </message>
    <message>
        <source>eSNm_Alternate2</source>
        <translation>Nm</translation>
    </message>
    <message>
        <source>eSNm_Alternate3</source>
        <translation>N m</translation>
    </message>
    <message>
        <source>eSDecanewtonMeter_Alternate1</source>
        <translation>décanewtons-mètres</translation>
    </message>
    <message>
        <source>eSDecanewtonMeter_Alternate2</source>
        <translation>decanewton-metre</translation>
    </message>
    <message>
        <source>eSDecanewtonMeter_Alternate3</source>
        <translation>decanewtons-metres</translation>
    </message>
    <message>
        <source>eSdaNm_Alternate1</source>
        <translation>daN.m</translation>
    </message>
    <message>
        <source>eSdaNm_Alternate2</source>
        <translation>daNm</translation>
    </message>
    <message>
        <source>eSKilonewtonMeter_Alternate1</source>
        <translation>kilonewtons-mètres</translation>
    </message>
    <message>
        <source>eSKilonewtonMeter_Alternate2</source>
        <translation>kilonewton-metre</translation>
    </message>
    <message>
        <source>eSKilonewtonMeter_Alternate3</source>
        <translation>kilonewtons-metres</translation>
    </message>
    <message>
        <source>eSkNm_Alternate1</source>
        <translation>kN.m</translation>
    </message>
    <message>
        <source>eSkNm_Alternate2</source>
        <translation>kNm</translation>
    </message>
    <message>
        <source>eSMeganewtonMeter_Alternate1</source>
        <translation>méganewtons-mètres</translation>
    </message>
    <message>
        <source>eSMeganewtonMeter_Alternate2</source>
        <translation>meganewton-metre</translation>
    </message>
    <message>
        <source>eSMeganewtonMeter_Alternate3</source>
        <translation>meganewtons-metres</translation>
    </message>
    <message>
        <source>eSKilogramForceMeter_Alternate1</source>
        <translation>kilogrammes-force-mètres</translation>
    </message>
    <message>
        <source>eSKilogramForceMeter_Alternate2</source>
        <translation>kilogramme-force-metre</translation>
    </message>
    <message>
        <source>eSKilogramForceMeter_Alternate3</source>
        <translation>kilogrammes-force-metres</translation>
    </message>
    <message>
        <source>eSKilogramForceFoot_Alternate1</source>
        <translation>kilogrammes-force-pieds</translation>
    </message>
    <message>
        <source>eSTonForceFoot_Alternate1</source>
        <translation>tonnes-force-pieds</translation>
    </message>
    <message>
        <source>eSTonForceMeter_Alternate1</source>
        <translation>tonnes-force-mètres</translation>
    </message>
    <message>
        <source>eSTonForceMeter_Alternate2</source>
        <translation>tonne-force-metre</translation>
    </message>
    <message>
        <source>eSTonForceMeter_Alternate3</source>
        <translation>tonnes-force-metres</translation>
    </message>
    <message>
        <source>eSFootKilopound_Alternate1</source>
        <translation>pieds-kilolivres</translation>
    </message>
    <message>
        <source>eSFootPoundForce_Alternate1</source>
        <translation>pieds-livres-force</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_FlowRatePerStroke</name>
    <message>
        <source>eSPintPerStroke_Alternate1</source>
        <translation>pintes par course</translation>
    </message>
    <message>
        <source>eSQuartPerStroke_Alternate1</source>
        <translation>quarts par course</translation>
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
        <translation>pétanewtons</translation>
    </message>
    <message>
        <source>eSPetanewton_Alternate2</source>
        <translation>petanewton</translation>
    </message>
    <message>
        <source>eSPetanewton_Alternate3</source>
        <translation>petanewtons</translation>
    </message>
    <message>
        <source>eSTeranewton_Alternate1</source>
        <translation>téranewtons</translation>
    </message>
    <message>
        <source>eSTeranewton_Alternate2</source>
        <translation>teranewton</translation>
    </message>
    <message>
        <source>eSTeranewton_Alternate3</source>
        <translation>teranewtons</translation>
    </message>
    <message>
        <source>eSGiganewton_Alternate1</source>
        <translation>giganewtons</translation>
    </message>
    <message>
        <source>eSMeganewton_Alternate1</source>
        <translation>méganewtons</translation>
    </message>
    <message>
        <source>eSMeganewton_Alternate2</source>
        <translation>meganewton</translation>
    </message>
    <message>
        <source>eSMeganewton_Alternate3</source>
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
        <translation>décanewtons</translation>
    </message>
    <message>
        <source>eSDecanewton_Alternate2</source>
        <translation>decanewton</translation>
    </message>
    <message>
        <source>eSDecanewton_Alternate3</source>
        <translation>decanewtons</translation>
    </message>
    <message>
        <source>eSDecinewton_Alternate1</source>
        <translation>décinewtons</translation>
    </message>
    <message>
        <source>eSDecinewton_Alternate2</source>
        <translation>decinewton</translation>
    </message>
    <message>
        <source>eSDecinewton_Alternate3</source>
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
        <source>eSmuN_Alternate1</source>
        <translation>μN</translation>
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
        <translation>kilolivres</translation>
    </message>
    <message>
        <source>eSKilogramForce_Alternate1</source>
        <translation>kilogrammes-force</translation>
    </message>
    <message>
        <source>eSPoundForce_Alternate1</source>
        <translation>livres-force</translation>
    </message>
    <message>
        <source>eSKip_Alternate1</source>
        <translation>kips</translation>
    </message>
    <message>
        <source>eSTonForce_Alternate1</source>
        <translation>tonnes-force</translation>
    </message>
    <message>
        <source>eSDyne_Alternate1</source>
        <translation>dynes</translation>
    </message>
    <message>
        <source>eSOunceForce_Alternate1</source>
        <translation>onces-force</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_ForceScale</name>
    <message>
        <source>eSMeterPerNewton_Alternate1</source>
        <translation>mètres par newton</translation>
    </message>
    <message>
        <source>eSMeterPerNewton_Alternate2</source>
        <translation>metre par newton</translation>
    </message>
    <message>
        <source>eSMeterPerNewton_Alternate3</source>
        <translation>metres par newton</translation>
    </message>
    <message>
        <source>eSMeterPerKilonewton_Alternate1</source>
        <translation>mètres par kilonewton</translation>
    </message>
    <message>
        <source>eSMeterPerKilonewton_Alternate2</source>
        <translation>metre par kilonewton</translation>
    </message>
    <message>
        <source>eSMeterPerKilonewton_Alternate3</source>
        <translation>metres par kilonewton</translation>
    </message>
    <message>
        <source>eSFootPerKip_Alternate1</source>
        <translation>pieds par kip</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Frequency</name>
    <message>
        <source>eSHz_Alternate1</source>
        <translation>hz</translation>
    </message>
    <message>
        <source>eSHz_Alternate2</source>
        <translation>Hertz</translation>
    </message>
    <message>
        <source>eSMegahertz_Alternate1</source>
        <translation>megahertz</translation>
    </message>
    <message>
        <source>eSTerahertz_Alternate1</source>
        <translation>terahertz</translation>
    </message>
    <message>
        <source>eSCyclePerSecond_Alternate1</source>
        <translation>cycles par seconde</translation>
    </message>
    <message>
        <source>eScps_Alternate1</source>
        <translation>cps</translation>
    </message>
    <message>
        <source>eSRevolutionPerMinute_Alternate1</source>
        <translation>tours par minute</translation>
    </message>
    <message>
        <source>eSRevolutionPerMinute_Alternate2</source>
        <translation>tr/min</translation>
    </message>
    <message>
        <source>eSRevolutionPerMinute_Alternate3</source>
        <translation>tr/mn</translation>
    </message>
    <message>
        <source>eSRevolutionPerMinute_Alternate4</source>
        <translation>tpm</translation>
    </message>
    <message>
        <source>eSRevolutionPerMinute_Alternate5</source>
        <translation>rpm</translation>
    </message>
    <message>
        <source>eSFlashPerSecond_Alternate1</source>
        <translation>flashs par seconde</translation>
    </message>
    <message>
        <source>eSFlashPerMinute_Alternate1</source>
        <translation>flashs par minute</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Friction</name>
    <message>
        <source>eSPascalPerMeter_Alternate1</source>
        <translation>pascals par mètre</translation>
    </message>
    <message>
        <source>eSPascalPerMeter_Alternate2</source>
        <translation>pascal par metre</translation>
    </message>
    <message>
        <source>eSPascalPerMeter_Alternate3</source>
        <translation>pascals par metre</translation>
    </message>
    <message>
        <source>eSInchOfWaterPer100foot_Alternate1</source>
        <translation>pouces d&apos;eau par 100 pieds</translation>
    </message>
    <message>
        <source>eSFootOfWaterPer100foot_Alternate1</source>
        <translation>pieds d&apos;eau par 100 pieds</translation>
    </message>
    <message>
        <source>eSInchOfMercuryPer100foot_Alternate1</source>
        <translation>pouces de mercure par 100 pieds</translation>
    </message>
    <message>
        <source>eSMillimeterOfMercuryPer100foot_Alternate1</source>
        <translation>millimètres de mercure par 100 pieds</translation>
    </message>
    <message>
        <source>eSMillimeterOfMercuryPer100foot_Alternate2</source>
        <translation>millimetre de mercure par 100 pieds</translation>
    </message>
    <message>
        <source>eSMillimeterOfMercuryPer100foot_Alternate3</source>
        <translation>millimetres de mercure par 100 pieds</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_HeatTransferCoefficient</name>
    <message>
        <source>eSWPerm2K_Alternate5</source>
        <translation>W/(m^2·K)</translation>
    </message>
    <message>
        <source>eSBTUPerhft2DegreeF_Alternate1</source>
        <translation>BTU/(h·pi^2·°F)</translation>
    </message>
    <message>
        <source>eSBtuPerhft2DegreeF_Alternate1</source>
        <translation>Btu/(h·pi^2·°F)</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeterKelvin_Alternate1</source>
        <translation>watts par mètre carré-kelvin</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeterKelvin_Alternate2</source>
        <translation>watt par metre carre-kelvin</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeterKelvin_Alternate3</source>
        <translation>watts par metre carre-kelvin</translation>
    </message>
    <message>
        <source>eSWPerm2K_Alternate1</source>
        <translation>W/m²K</translation>
    </message>
    <message>
        <source>eSWPerm2K_Alternate2</source>
        <translation>W/m2K</translation>
    </message>
    <message>
        <source>eSWPerm2K_Alternate3</source>
        <translation>W/m².K</translation>
    </message>
    <message>
        <source>eSWPerm2K_Alternate4</source>
        <translation>W/m2.K</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFootFahrenheit_Alternate1</source>
        <translation>unités thermiques britanniques par heure-pied carré-degré Fahrenheit</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFootFahrenheit_Alternate2</source>
        <translation>unite thermique britannique par heure-pied carre-degre Fahrenheit</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFootFahrenheit_Alternate3</source>
        <translation>unites thermiques britanniques par heure-pied carre-degre Fahrenheit</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Illuminance</name>
    <message>
        <source>eSlmPerft2_Alternate1</source>
        <translation>lm/pi^2</translation>
    </message>
    <message>
        <source>eSlx_I_Alternate1</source>
        <translation>lux</translation>
    </message>
    <message>
        <source>eSFootcandle_Alternate1</source>
        <translation>pieds-bougies</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Inductance</name>
    <message>
        <source>eSHenry_Alternate1</source>
        <translation>henrys</translation>
    </message>
    <message>
        <source>eSNanohenry_Alternate1</source>
        <translation>nanohenrys</translation>
    </message>
    <message>
        <source>eSMicrohenry_Alternate1</source>
        <translation>microhenrys</translation>
    </message>
    <message>
        <source>eSmuH_Alternate1</source>
        <translation>μH</translation>
    </message>
    <message>
        <source>eSMillihenry_Alternate1</source>
        <translation>millihenrys</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Length</name>
    <message>
        <source>eSMeter_Alternate1</source>
        <translation>mètres</translation>
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
        <source>eSMeter_Alternate4</source>
        <translation>mtr</translation>
    </message>
    <message>
        <source>eSYottameter_Alternate1</source>
        <translation>yottamètres</translation>
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
        <translation>zettamètres</translation>
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
        <translation>examètres</translation>
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
        <translation>pétamètres</translation>
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
        <translation>téramètres</translation>
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
        <translation>gigamètres</translation>
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
        <translation>mégamètres</translation>
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
        <translation>kilomètres</translation>
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
        <source>eSHectometer_Alternate1</source>
        <translation>hectomètres</translation>
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
        <translation>décamètres</translation>
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
        <source>eSDecimeter_Alternate1</source>
        <translation>décimètres</translation>
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
        <translation>centimètres</translation>
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
        <translation>millimètres</translation>
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
        <translation>micromètres</translation>
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
        <source>eSmum_Alternate1</source>
        <translation>μm</translation>
    </message>
    <message>
        <source>eSNanometer_Alternate1</source>
        <translation>nanomètres</translation>
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
        <translation>picomètres</translation>
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
        <translation>femtomètres</translation>
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
        <translation>attomètres</translation>
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
        <translation>zeptomètres</translation>
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
        <translation>yoctomètres</translation>
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
        <translation>pouces</translation>
    </message>
    <message>
        <source>eSInch_Alternate2</source>
        <translation>inch</translation>
    </message>
    <message>
        <source>eSInch_Alternate3</source>
        <translation>inches</translation>
    </message>
    <message>
        <source>eSin_Alternate1</source>
        <translation>in</translation>
    </message>
    <message>
        <source>eSin_Alternate2</source>
        <translation>po.</translation>
    </message>
    <message>
        <source>eSFoot_Alternate1</source>
        <translation>pieds</translation>
    </message>
    <message>
        <source>eSFoot_Alternate2</source>
        <translation>feet</translation>
    </message>
    <message>
        <source>eSFoot_Alternate3</source>
        <translation>foot</translation>
    </message>
    <message>
        <source>eSft_Alternate1</source>
        <translation>ft</translation>
    </message>
    <message>
        <source>eSft_Alternate2</source>
        <translation>pi.</translation>
    </message>
    <message>
        <source>eSft_US_Survey_Alternate1</source>
        <translation>ft (US)</translation>
    </message>
    <message>
        <source>eSft_US_Survey_Alternate2</source>
        <translation>pi US</translation>
    </message>
    <message>
        <source>eSft_US_Survey_Alternate3</source>
        <translation>ft US</translation>
    </message>
    <message>
        <source>eSYard_Alternate1</source>
        <translation>yards</translation>
    </message>
    <message>
        <source>eSYard_Alternate2</source>
        <translation>verge</translation>
    </message>
    <message>
        <source>eSYard_Alternate3</source>
        <translation>verges</translation>
    </message>
    <message>
        <source>eSyd_Alternate1</source>
        <translation>yds</translation>
    </message>
    <message>
        <source>eSChain_Alternate1</source>
        <translation>chaînes</translation>
    </message>
    <message>
        <source>eSChain_Alternate2</source>
        <translation>chaine</translation>
    </message>
    <message>
        <source>eSChain_Alternate3</source>
        <translation>chaines</translation>
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
        <source>eSmi_Alternate1</source>
        <translation>mi.</translation>
    </message>
    <message>
        <source>eSGeographicalMile_Alternate1</source>
        <translation>milles géographiques</translation>
    </message>
    <message>
        <source>eSGeographicalMile_Alternate2</source>
        <translation>mille geographique</translation>
    </message>
    <message>
        <source>eSGeographicalMile_Alternate3</source>
        <translation>milles geographiques</translation>
    </message>
    <message>
        <source>eSNauticalMile_Alternate1</source>
        <translation>milles marins</translation>
    </message>
    <message>
        <source>eSNM_Alternate1</source>
        <translation>NM</translation>
    </message>
    <message>
        <source>eSNM_Alternate2</source>
        <translation>nq</translation>
    </message>
    <message>
        <source>eSNM_Alternate3</source>
        <translation>mille nautique</translation>
    </message>
    <message>
        <source>eSNM_Alternate4</source>
        <translation>milles nautiques</translation>
    </message>
    <message>
        <source>eSStatuteMile_Alternate1</source>
        <translation>miles terrestres</translation>
    </message>
    <message>
        <source>eSMicron_Alternate1</source>
        <translation>microns</translation>
    </message>
    <message>
        <source>eSmu_Alternate1</source>
        <translation>μ</translation>
    </message>
    <message>
        <source>eSMicroinch_Alternate1</source>
        <translation>micropouces</translation>
    </message>
    <message>
        <source>eSmuin_Alternate1</source>
        <translation>μpo</translation>
    </message>
    <message>
        <source>eSmuin_Alternate2</source>
        <translation>µin</translation>
    </message>
    <message>
        <source>eSmuin_Alternate3</source>
        <translation>μin</translation>
    </message>
    <message>
        <source>eSAngstrom_Alternate1</source>
        <translation>ångströms</translation>
    </message>
    <message>
        <source>eSAngstrom_Alternate2</source>
        <translation>angstrom</translation>
    </message>
    <message>
        <source>eSAngstrom_Alternate3</source>
        <translation>angstroms</translation>
    </message>
    <message>
        <source>eSAngstrom_Alternate4</source>
        <translation>angström</translation>
    </message>
    <message>
        <source>eSAngstrom_Alternate5</source>
        <translation>angströms</translation>
    </message>
    <message>
        <source>eSAWithRingAbove_Alternate1</source>
        <translation>Å</translation>
    </message>
    <message>
        <source>eSAstronomicalUnit_Alternate1</source>
        <translation>unités astronomiques</translation>
    </message>
    <message>
        <source>eSAstronomicalUnit_Alternate2</source>
        <translation>unite astronomique</translation>
    </message>
    <message>
        <source>eSAstronomicalUnit_Alternate3</source>
        <translation>unites astronomiques</translation>
    </message>
    <message>
        <source>eSAU_Alternate1</source>
        <translation>au</translation>
    </message>
    <message>
        <source>eSAU_Alternate2</source>
        <translation>UA</translation>
    </message>
    <message>
        <source>eSCable_Alternate1</source>
        <translation>encablures</translation>
    </message>
    <message>
        <source>eSCubit_Alternate1</source>
        <translation>coudées</translation>
    </message>
    <message>
        <source>eSCubit_Alternate2</source>
        <translation>coudee</translation>
    </message>
    <message>
        <source>eSCubit_Alternate3</source>
        <translation>coudees</translation>
    </message>
    <message>
        <source>eSFathom_Alternate1</source>
        <translation>brasses</translation>
    </message>
    <message>
        <source>eSHand_Alternate1</source>
        <translation>mains</translation>
    </message>
    <message>
        <source>eSLightYear_Alternate1</source>
        <translation>années-lumière</translation>
    </message>
    <message>
        <source>eSLightYear_Alternate2</source>
        <translation>annee-lumiere</translation>
    </message>
    <message>
        <source>eSLightYear_Alternate3</source>
        <translation>annees-lumiere</translation>
    </message>
    <message>
        <source>eSLightYear_Alternate4</source>
        <translation>années lumière</translation>
    </message>
    <message>
        <source>eSLightYear_Alternate5</source>
        <translation>année lumière</translation>
    </message>
    <message>
        <source>eSly_Alternate1</source>
        <translation>ly</translation>
    </message>
    <message>
        <source>eSly_Alternate2</source>
        <translation>al.</translation>
    </message>
    <message>
        <source>eSSpan_Alternate1</source>
        <translation>empans</translation>
    </message>
    <message>
        <source>eSParsec_Alternate1</source>
        <translation>parsecs</translation>
    </message>
    <message>
        <source>eSNauticalLeague_Alternate1</source>
        <translation>lieues marines</translation>
    </message>
    <message>
        <source>eSLeague_Alternate1</source>
        <translation>lieues</translation>
    </message>
    <message>
        <source>eSMil_Alternate1</source>
        <translation>mils</translation>
    </message>
    <message>
        <source>eSthou_Alternate1</source>
        <translation>millième de pouce</translation>
    </message>
    <message>
        <source>eSthou_Alternate2</source>
        <translation>millièmes de pouce</translation>
    </message>
    <message>
        <source>eSLink_Alternate1</source>
        <translation>chaînons</translation>
    </message>
    <message>
        <source>eSLink_Alternate2</source>
        <translation>chainon</translation>
    </message>
    <message>
        <source>eSLink_Alternate3</source>
        <translation>chainons</translation>
    </message>
    <message>
        <source>eSPalm_Alternate1</source>
        <translation>palmes</translation>
    </message>
    <message>
        <source>eSRod_Alternate1</source>
        <translation>perches</translation>
    </message>
    <message>
        <source>eSRope_Alternate1</source>
        <translation>ropes</translation>
    </message>
    <message>
        <source>eSSkein_Alternate1</source>
        <translation>écheveaux</translation>
    </message>
    <message>
        <source>eSSkein_Alternate2</source>
        <translation>echeveau</translation>
    </message>
    <message>
        <source>eSSkein_Alternate3</source>
        <translation>echeveaux</translation>
    </message>
    <message>
        <source>eSCaliber_Alternate1</source>
        <translation>calibres</translation>
    </message>
    <message>
        <source>eSSurveyInch_Alternate1</source>
        <translation>pouces d&apos;arpentage</translation>
    </message>
    <message>
        <source>eSSurveyYard_Alternate1</source>
        <translation>yards d&apos;arpentage</translation>
    </message>
    <message>
        <source>eSSurveyRod_Alternate1</source>
        <translation>perches d&apos;arpentage</translation>
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
        <translation>newtons par mètre</translation>
    </message>
    <message>
        <source>eSNewtonPerMeter_Alternate2</source>
        <translation>newton par metre</translation>
    </message>
    <message>
        <source>eSNewtonPerMeter_Alternate3</source>
        <translation>newtons par metre</translation>
    </message>
    <message>
        <source>eSKilopoundPerFoot_Alternate1</source>
        <translation>kilolivres par pied</translation>
    </message>
    <message>
        <source>eSKilogramForcePerMeter_Alternate1</source>
        <translation>kilogrammes-force par mètre</translation>
    </message>
    <message>
        <source>eSKilogramForcePerMeter_Alternate2</source>
        <translation>kilogramme-force par metre</translation>
    </message>
    <message>
        <source>eSKilogramForcePerMeter_Alternate3</source>
        <translation>kilogrammes-force par metre</translation>
    </message>
    <message>
        <source>eSTonForcePerMeter_Alternate1</source>
        <translation>tonnes-force par mètre</translation>
    </message>
    <message>
        <source>eSTonForcePerMeter_Alternate2</source>
        <translation>tonne-force par metre</translation>
    </message>
    <message>
        <source>eSTonForcePerMeter_Alternate3</source>
        <translation>tonnes-force par metre</translation>
    </message>
    <message>
        <source>eSPoundForcePerFoot_Alternate1</source>
        <translation>livres-force par pied</translation>
    </message>
    <message>
        <source>eSDecanewtonPerMeter_Alternate1</source>
        <translation>décanewtons par mètre</translation>
    </message>
    <message>
        <source>eSDecanewtonPerMeter_Alternate2</source>
        <translation>decanewton par metre</translation>
    </message>
    <message>
        <source>eSDecanewtonPerMeter_Alternate3</source>
        <translation>decanewtons par metre</translation>
    </message>
    <message>
        <source>eSKilonewtonPerMeter_Alternate1</source>
        <translation>kilonewtons par mètre</translation>
    </message>
    <message>
        <source>eSKilonewtonPerMeter_Alternate2</source>
        <translation>kilonewton par metre</translation>
    </message>
    <message>
        <source>eSKilonewtonPerMeter_Alternate3</source>
        <translation>kilonewtons par metre</translation>
    </message>
    <message>
        <source>eSMeganewtonPerMeter_Alternate1</source>
        <translation>méganewtons par mètre</translation>
    </message>
    <message>
        <source>eSMeganewtonPerMeter_Alternate2</source>
        <translation>meganewton par metre</translation>
    </message>
    <message>
        <source>eSMeganewtonPerMeter_Alternate3</source>
        <translation>meganewtons par metre</translation>
    </message>
    <message>
        <source>eSKipPerFoot_Alternate1</source>
        <translation>kips par pied</translation>
    </message>
    <message>
        <source>eSKipPerInch_Alternate1</source>
        <translation>kips par pouce</translation>
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
        <translation>pi^2/kip</translation>
    </message>
    <message>
        <source>eSft2Perkipf_Alternate1</source>
        <translation>pi^2/kipf</translation>
    </message>
    <message>
        <source>eSft2Perklbf_Alternate1</source>
        <translation>pi^2/klbf</translation>
    </message>
    <message>
        <source>eSft2Perklb_Alternate1</source>
        <translation>pi^2/klb</translation>
    </message>
    <message>
        <source>eSSquareMeterPerNewton_Alternate1</source>
        <translation>mètres carrés par newton</translation>
    </message>
    <message>
        <source>eSSquareMeterPerNewton_Alternate2</source>
        <translation>metre carre par newton</translation>
    </message>
    <message>
        <source>eSSquareMeterPerNewton_Alternate3</source>
        <translation>metres carres par newton</translation>
    </message>
    <message>
        <source>eSSquareMeterPerKilonewton_Alternate1</source>
        <translation>mètres carrés par kilonewton</translation>
    </message>
    <message>
        <source>eSSquareMeterPerKilonewton_Alternate2</source>
        <translation>metre carre par kilonewton</translation>
    </message>
    <message>
        <source>eSSquareMeterPerKilonewton_Alternate3</source>
        <translation>metres carres par kilonewton</translation>
    </message>
    <message>
        <source>eSSquareFootPerKip_Alternate1</source>
        <translation>pieds carrés par kip</translation>
    </message>
    <message>
        <source>eSSquareFootPerKip_Alternate2</source>
        <translation>pied carre par kip</translation>
    </message>
    <message>
        <source>eSSquareFootPerKip_Alternate3</source>
        <translation>pieds carres par kip</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_LinearMoment</name>
    <message>
        <source>eSNewtonMeterPerMeter_Alternate1</source>
        <translation>newtons-mètres par mètre</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerMeter_Alternate2</source>
        <translation>newton-metre par metre</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerMeter_Alternate3</source>
        <translation>newtons-metres par metre</translation>
    </message>
    <message>
        <source>eSDecanewtonMeterPerMeter_Alternate1</source>
        <translation>décanewtons-mètres par mètre</translation>
    </message>
    <message>
        <source>eSDecanewtonMeterPerMeter_Alternate2</source>
        <translation>decanewton-metre par metre</translation>
    </message>
    <message>
        <source>eSDecanewtonMeterPerMeter_Alternate3</source>
        <translation>decanewtons-metres par metre</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerMeter_Alternate1</source>
        <translation>kilonewtons-mètres par mètre</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerMeter_Alternate2</source>
        <translation>kilonewton-metre par metre</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerMeter_Alternate3</source>
        <translation>kilonewtons-metres par metre</translation>
    </message>
    <message>
        <source>eSMeganewtonMeterPerMeter_Alternate1</source>
        <translation>méganewtons-mètres par mètre</translation>
    </message>
    <message>
        <source>eSMeganewtonMeterPerMeter_Alternate2</source>
        <translation>meganewton-metre par metre</translation>
    </message>
    <message>
        <source>eSMeganewtonMeterPerMeter_Alternate3</source>
        <translation>meganewtons-metres par metre</translation>
    </message>
    <message>
        <source>eSKipFootPerFoot_Alternate1</source>
        <translation>kips-pieds par pied</translation>
    </message>
    <message>
        <source>eSKilogramForceMeterPerMeter_Alternate1</source>
        <translation>kilogrammes-force-mètres par mètre</translation>
    </message>
    <message>
        <source>eSKilogramForceMeterPerMeter_Alternate2</source>
        <translation>kilogramme-force-metre par metre</translation>
    </message>
    <message>
        <source>eSKilogramForceMeterPerMeter_Alternate3</source>
        <translation>kilogrammes-force-metres par metre</translation>
    </message>
    <message>
        <source>eSTonForceMeterPerMeter_Alternate1</source>
        <translation>tonnes-force-mètres par mètre</translation>
    </message>
    <message>
        <source>eSTonForceMeterPerMeter_Alternate2</source>
        <translation>tonne-force-metre par metre</translation>
    </message>
    <message>
        <source>eSTonForceMeterPerMeter_Alternate3</source>
        <translation>tonnes-force-metres par metre</translation>
    </message>
    <message>
        <source>eSPoundForceFootPerFoot_Alternate1</source>
        <translation>livres-force-pieds par pied</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_LinearWeight</name>
    <message>
        <source>eSKilogramPerMeter_Alternate1</source>
        <translation>kilogrammes par mètre</translation>
    </message>
    <message>
        <source>eSKilogramPerMeter_Alternate2</source>
        <translation>kilogramme par metre</translation>
    </message>
    <message>
        <source>eSKilogramPerMeter_Alternate3</source>
        <translation>kilogrammes par metre</translation>
    </message>
    <message>
        <source>eSPoundPerFoot_Alternate1</source>
        <translation>livres par pied</translation>
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
        <translation>cd/pi^2</translation>
    </message>
    <message>
        <source>eSCandelaPerSquareMeter_Alternate1</source>
        <translation>candelas par mètre carré</translation>
    </message>
    <message>
        <source>eSCandelaPerSquareMeter_Alternate2</source>
        <translation>candela par metre carre</translation>
    </message>
    <message>
        <source>eSCandelaPerSquareMeter_Alternate3</source>
        <translation>candelas par metre carre</translation>
    </message>
    <message>
        <source>eSFootLambert_Alternate1</source>
        <translation>pieds-lamberts</translation>
    </message>
    <message>
        <source>eSCandelaPerSquareFoot_Alternate1</source>
        <translation>candelas par pied carré</translation>
    </message>
    <message>
        <source>eSCandelaPerSquareFoot_Alternate2</source>
        <translation>candela par pied carre</translation>
    </message>
    <message>
        <source>eSCandelaPerSquareFoot_Alternate3</source>
        <translation>candelas par pied carre</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_LuminousEfficacy</name>
    <message>
        <source>eSLumenPerWatt_Alternate1</source>
        <translation>lumens par watt</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_LuminousEnergy</name>
    <message>
        <source>eSLumenSecond_Alternate1</source>
        <translation>lumens-secondes</translation>
    </message>
    <message>
        <source>eSTalbots_Alternate1</source>
        <translation>talbots</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_LuminousFlux</name>
    <message>
        <source>eSLuminousPower_Alternate1</source>
        <translation>puissances lumineuses</translation>
    </message>
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
        <translation>lumens par stéradian</translation>
    </message>
    <message>
        <source>eSLumenPerSteradian_Alternate2</source>
        <translation>lumen par steradian</translation>
    </message>
    <message>
        <source>eSLumenPerSteradian_Alternate3</source>
        <translation>lumens par steradian</translation>
    </message>
    <message>
        <source>eSCandlepower_Alternate1</source>
        <translation>bougies</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_MagneticFieldIntensity</name>
    <message>
        <source>eSOersted_Alternate1</source>
        <translation>œrsteds</translation>
    </message>
    <message>
        <source>eSOersted_Alternate2</source>
        <translation>oersted</translation>
    </message>
    <message>
        <source>eSOersted_Alternate3</source>
        <translation>oersteds</translation>
    </message>
    <message>
        <source>eSAmperePerMeter_Alternate1</source>
        <translation>ampères par mètre</translation>
    </message>
    <message>
        <source>eSAmperePerMeter_Alternate2</source>
        <translation>ampere par metre</translation>
    </message>
    <message>
        <source>eSAmperePerMeter_Alternate3</source>
        <translation>amperes par metre</translation>
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
</context>
<context>
    <name>UnitSymbol_Mass</name>
    <message>
        <source>eSKilogram_Alternate1</source>
        <translation>kilogrammes</translation>
    </message>
    <message>
        <source>eSKilogram_Alternate2</source>
        <translation>kilo</translation>
    </message>
    <message>
        <source>eSKilogram_Alternate3</source>
        <translation>kilos</translation>
    </message>
    <message>
        <source>eSKilogram_Alternate4</source>
        <translation>kgs</translation>
    </message>
    <message>
        <source>eSGram_Alternate1</source>
        <translation>grammes</translation>
    </message>
    <message>
        <source>eSYottagram_Alternate1</source>
        <translation>yottagrammes</translation>
    </message>
    <message>
        <source>eSZettagram_Alternate1</source>
        <translation>zettagrammes</translation>
    </message>
    <message>
        <source>eSExagram_Alternate1</source>
        <translation>exagrammes</translation>
    </message>
    <message>
        <source>eSPetagram_Alternate1</source>
        <translation>pétagrammes</translation>
    </message>
    <message>
        <source>eSPetagram_Alternate2</source>
        <translation>petagramme</translation>
    </message>
    <message>
        <source>eSPetagram_Alternate3</source>
        <translation>petagrammes</translation>
    </message>
    <message>
        <source>eSTeragram_Alternate1</source>
        <translation>téragrammes</translation>
    </message>
    <message>
        <source>eSTeragram_Alternate2</source>
        <translation>teragramme</translation>
    </message>
    <message>
        <source>eSTeragram_Alternate3</source>
        <translation>teragrammes</translation>
    </message>
    <message>
        <source>eSGigagram_Alternate1</source>
        <translation>gigagrammes</translation>
    </message>
    <message>
        <source>eSMegagram_Alternate1</source>
        <translation>mégagrammes</translation>
    </message>
    <message>
        <source>eSMegagram_Alternate2</source>
        <translation>megagramme</translation>
    </message>
    <message>
        <source>eSMegagram_Alternate3</source>
        <translation>megagrammes</translation>
    </message>
    <message>
        <source>eSMegagram_Alternate4</source>
        <translation>t</translation>
    </message>
    <message>
        <source>eSMegagram_Alternate5</source>
        <translation>tonne</translation>
    </message>
    <message>
        <source>eSMegagram_Alternate6</source>
        <translation>tonnes</translation>
    </message>
    <message>
        <source>eSMegagram_Alternate7</source>
        <translation>tonne métrique</translation>
    </message>
    <message>
        <source>eSMegagram_Alternate8</source>
        <translation>tonnes métriques</translation>
    </message>
    <message>
        <source>eSHectogram_Alternate1</source>
        <translation>hectogrammes</translation>
    </message>
    <message>
        <source>eSDecagram_Alternate1</source>
        <translation>décagrammes</translation>
    </message>
    <message>
        <source>eSDecagram_Alternate2</source>
        <translation>decagramme</translation>
    </message>
    <message>
        <source>eSDecagram_Alternate3</source>
        <translation>decagrammes</translation>
    </message>
    <message>
        <source>eSDecigram_Alternate1</source>
        <translation>décigrammes</translation>
    </message>
    <message>
        <source>eSDecigram_Alternate2</source>
        <translation>decigramme</translation>
    </message>
    <message>
        <source>eSDecigram_Alternate3</source>
        <translation>decigrammes</translation>
    </message>
    <message>
        <source>eSCentigram_Alternate1</source>
        <translation>centigrammes</translation>
    </message>
    <message>
        <source>eSMilligram_Alternate1</source>
        <translation>milligrammes</translation>
    </message>
    <message>
        <source>eSMicrogram_Alternate1</source>
        <translation>microgrammes</translation>
    </message>
    <message>
        <source>eSmug_Alternate1</source>
        <translation>μg</translation>
    </message>
    <message>
        <source>eSmug_Alternate2</source>
        <translation>mcg</translation>
    </message>
    <message>
        <source>eSNanogram_Alternate1</source>
        <translation>nanogrammes</translation>
    </message>
    <message>
        <source>eSPicogram_Alternate1</source>
        <translation>picogrammes</translation>
    </message>
    <message>
        <source>eSFemtogram_Alternate1</source>
        <translation>femtogrammes</translation>
    </message>
    <message>
        <source>eSAttogram_Alternate1</source>
        <translation>attogrammes</translation>
    </message>
    <message>
        <source>eSZeptogram_Alternate1</source>
        <translation>zeptogrammes</translation>
    </message>
    <message>
        <source>eSYoctogram_Alternate1</source>
        <translation>yoctogrammes</translation>
    </message>
    <message>
        <source>eSPound_Alternate1</source>
        <translation>livres</translation>
    </message>
    <message>
        <source>eSlbav_Alternate1</source>
        <translation>lbs</translation>
    </message>
    <message>
        <source>eSlbav_Alternate2</source>
        <translation>lb.</translation>
    </message>
    <message>
        <source>eSozav_Alternate1</source>
        <translation>once</translation>
    </message>
    <message>
        <source>eSozav_Alternate2</source>
        <translation>onces</translation>
    </message>
    <message>
        <source>eSozav_Alternate3</source>
        <translation>oz.</translation>
    </message>
    <message>
        <source>eSozt_Alternate1</source>
        <translation>once troy</translation>
    </message>
    <message>
        <source>eSozt_Alternate2</source>
        <translation>onces troy</translation>
    </message>
    <message>
        <source>eSozt_Alternate3</source>
        <translation>ozt</translation>
    </message>
    <message>
        <source>eSStone_Alternate1</source>
        <translation>stones</translation>
    </message>
    <message>
        <source>eSShortTon_Alternate1</source>
        <translation>tonnes courtes</translation>
    </message>
    <message>
        <source>eSshtn_Alternate1</source>
        <translation>short ton</translation>
    </message>
    <message>
        <source>eSshtn_Alternate2</source>
        <translation>sh tn</translation>
    </message>
    <message>
        <source>eSLongTon_Alternate1</source>
        <translation>tonnes longues</translation>
    </message>
    <message>
        <source>eSlongtn_Alternate1</source>
        <translation>long ton</translation>
    </message>
    <message>
        <source>eSlongtn_Alternate2</source>
        <translation>long tn</translation>
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
        <translation>quintaux longs</translation>
    </message>
    <message>
        <source>eSShortHundredweight_Alternate1</source>
        <translation>quintaux courts</translation>
    </message>
    <message>
        <source>eSGrain_Alternate1</source>
        <translation>grains</translation>
    </message>
    <message>
        <source>eSPearlGrain_Alternate1</source>
        <translation>grains de perle</translation>
    </message>
    <message>
        <source>eSDalton_Alternate1</source>
        <translation>daltons</translation>
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
        <translation>kilogrammes par seconde</translation>
    </message>
    <message>
        <source>eSKilogramPerMinute_Alternate1</source>
        <translation>kilogrammes par minute</translation>
    </message>
    <message>
        <source>eSKilogramPerHour_Alternate1</source>
        <translation>kilogrammes par heure</translation>
    </message>
    <message>
        <source>eSGramPerSecond_Alternate1</source>
        <translation>grammes par seconde</translation>
    </message>
    <message>
        <source>eSGramPerMinute_Alternate1</source>
        <translation>grammes par minute</translation>
    </message>
    <message>
        <source>eSGramPerHour_Alternate1</source>
        <translation>grammes par heure</translation>
    </message>
    <message>
        <source>eSPoundPerSecond_Alternate1</source>
        <translation>livres par seconde</translation>
    </message>
    <message>
        <source>eSPoundPerMinute_Alternate1</source>
        <translation>livres par minute</translation>
    </message>
    <message>
        <source>eSPoundPerHour_Alternate1</source>
        <translation>livres par heure</translation>
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
        <translation>secondes carrées par mètre-kilogramme</translation>
    </message>
    <message>
        <source>eSSquareSecondPerMeterKilogram_Alternate2</source>
        <translation>seconde carree par metre-kilogramme</translation>
    </message>
    <message>
        <source>eSSquareSecondPerMeterKilogram_Alternate3</source>
        <translation>secondes carrees par metre-kilogramme</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_PartsPer</name>
    <message>
        <source>eSPartPerMillion_Alternate1</source>
        <translation>parties par million</translation>
    </message>
    <message>
        <source>eSppm_Alternate1</source>
        <translation>PPM</translation>
    </message>
    <message>
        <source>eSppm_Alternate2</source>
        <translation>ppmv</translation>
    </message>
    <message>
        <source>eSPartPerBillion_Alternate1</source>
        <translation>parties par milliard</translation>
    </message>
    <message>
        <source>eSppb_Alternate1</source>
        <translation>PPB</translation>
    </message>
    <message>
        <source>eSppb_Alternate2</source>
        <translation>ppmd</translation>
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
        <translation>gr/(pi^2·h·po Hg)</translation>
    </message>
    <message>
        <source>eSNanogramPerPascalSecondSquareMeter_Alternate1</source>
        <translation>nanogrammes par pascal-seconde-mètre carré</translation>
    </message>
    <message>
        <source>eSNanogramPerPascalSecondSquareMeter_Alternate2</source>
        <translation>nanogramme par pascal-seconde-metre carre</translation>
    </message>
    <message>
        <source>eSNanogramPerPascalSecondSquareMeter_Alternate3</source>
        <translation>nanogrammes par pascal-seconde-metre carre</translation>
    </message>
    <message>
        <source>eSGrainPerSquareFootHourInchesMercury_Alternate1</source>
        <translation>grains par pied carré-heure-pouce de mercure</translation>
    </message>
    <message>
        <source>eSGrainPerSquareFootHourInchesMercury_Alternate2</source>
        <translation>grain par pied carre-heure-pouce de mercure</translation>
    </message>
    <message>
        <source>eSGrainPerSquareFootHourInchesMercury_Alternate3</source>
        <translation>grains par pied carre-heure-pouce de mercure</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Power</name>
    <message>
        <source>eSWatt_Alternate1</source>
        <translation>watts</translation>
    </message>
    <message>
        <source>eShp_Metric_Alternate1</source>
        <translation>CV</translation>
    </message>
    <message>
        <source>eShp_Metric_Alternate2</source>
        <translation>cv</translation>
    </message>
    <message>
        <source>eShp_Metric_Alternate3</source>
        <translation>cheval-vapeur</translation>
    </message>
    <message>
        <source>eShp_Metric_Alternate4</source>
        <translation>chevaux-vapeur</translation>
    </message>
    <message>
        <source>eShp_Metric_Alternate5</source>
        <translation>chevaux</translation>
    </message>
    <message>
        <source>eShp_Imperial_Mechanical_Alternate1</source>
        <translation>HP</translation>
    </message>
    <message>
        <source>eShp_Imperial_Mechanical_Alternate2</source>
        <translation>bhp</translation>
    </message>
    <message>
        <source>eSKilocaloriePerHour_Alternate1</source>
        <translation>kilocalories par heure</translation>
    </message>
    <message>
        <source>eSKilowatt_Alternate1</source>
        <translation>kilowatts</translation>
    </message>
    <message>
        <source>eSMegawatt_Alternate1</source>
        <translation>mégawatts</translation>
    </message>
    <message>
        <source>eSMegawatt_Alternate2</source>
        <translation>megawatt</translation>
    </message>
    <message>
        <source>eSMegawatt_Alternate3</source>
        <translation>megawatts</translation>
    </message>
    <message>
        <source>eSMicrowatt_Alternate1</source>
        <translation>microwatts</translation>
    </message>
    <message>
        <source>eSmuW_Alternate1</source>
        <translation>μW</translation>
    </message>
    <message>
        <source>eSVoltAmpere_Alternate1</source>
        <translation>voltampères</translation>
    </message>
    <message>
        <source>eSVoltAmpere_Alternate2</source>
        <translation>voltampere</translation>
    </message>
    <message>
        <source>eSVoltAmpere_Alternate3</source>
        <translation>voltamperes</translation>
    </message>
    <message>
        <source>eSVA_Alternate1</source>
        <translation>V·A</translation>
    </message>
    <message>
        <source>eSVA_Alternate2</source>
        <translation>V.A</translation>
    </message>
    <message>
        <source>eSMillivoltAmpere_Alternate1</source>
        <translation>millivoltampères</translation>
    </message>
    <message>
        <source>eSMillivoltAmpere_Alternate2</source>
        <translation>millivoltampere</translation>
    </message>
    <message>
        <source>eSMillivoltAmpere_Alternate3</source>
        <translation>millivoltamperes</translation>
    </message>
    <message>
        <source>eSKilovoltAmpere_Alternate1</source>
        <translation>kilovoltampères</translation>
    </message>
    <message>
        <source>eSKilovoltAmpere_Alternate2</source>
        <translation>kilovoltampere</translation>
    </message>
    <message>
        <source>eSKilovoltAmpere_Alternate3</source>
        <translation>kilovoltamperes</translation>
    </message>
    <message>
        <source>eSkVA_Alternate1</source>
        <translation>kV·A</translation>
    </message>
    <message>
        <source>eSkVA_Alternate2</source>
        <translation>kV.A</translation>
    </message>
    <message>
        <source>eSMegavoltAmpere_Alternate1</source>
        <translation>mégavoltampères</translation>
    </message>
    <message>
        <source>eSMegavoltAmpere_Alternate2</source>
        <translation>megavoltampere</translation>
    </message>
    <message>
        <source>eSMegavoltAmpere_Alternate3</source>
        <translation>megavoltamperes</translation>
    </message>
    <message>
        <source>eSMilliwatt_Alternate1</source>
        <translation>milliwatts</translation>
    </message>
    <message>
        <source>eSKilogramForceMeterPerSecond_Alternate1</source>
        <translation>kilogrammes-force-mètres par seconde</translation>
    </message>
    <message>
        <source>eSKilogramForceMeterPerSecond_Alternate2</source>
        <translation>kilogramme-force-metre par seconde</translation>
    </message>
    <message>
        <source>eSKilogramForceMeterPerSecond_Alternate3</source>
        <translation>kilogrammes-force-metres par seconde</translation>
    </message>
    <message>
        <source>eSFootPoundForcePerSecond_Alternate1</source>
        <translation>pieds-livres-force par seconde</translation>
    </message>
    <message>
        <source>eSCaloriePerSecond_Alternate1</source>
        <translation>calories par seconde</translation>
    </message>
    <message>
        <source>eSKilocaloriePerSecond_Alternate1</source>
        <translation>kilocalories par seconde</translation>
    </message>
    <message>
        <source>eSBTUPerh_Alternate1</source>
        <translation>BTU/hr</translation>
    </message>
    <message>
        <source>eSBTUPerh_Alternate2</source>
        <translation>Btu/hr</translation>
    </message>
    <message>
        <source>eSkBTUPerh_Alternate1</source>
        <translation>kBTU/hr</translation>
    </message>
    <message>
        <source>eSkBTUPerh_Alternate2</source>
        <translation>MBH</translation>
    </message>
    <message>
        <source>eSTonOfRefrigeration_Alternate1</source>
        <translation>tonnes de réfrigération</translation>
    </message>
    <message>
        <source>eSTonOfRefrigeration_Alternate2</source>
        <translation>tonne de refrigeration</translation>
    </message>
    <message>
        <source>eSTonOfRefrigeration_Alternate3</source>
        <translation>tonnes de refrigeration</translation>
    </message>
    <message>
        <source>eSton_Alternate1</source>
        <translation>tonne frigorifique</translation>
    </message>
    <message>
        <source>eSton_Alternate2</source>
        <translation>tonnes frigorifiques</translation>
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
        <translation>kW/pi^2</translation>
    </message>
    <message>
        <source>eSWPerft2_Alternate1</source>
        <translation>W/pi^2</translation>
    </message>
    <message>
        <source>eSBTUPerhPerft2_Alternate1</source>
        <translation>BTU/(h·pi^2)</translation>
    </message>
    <message>
        <source>eSBtuPerhPerft2_Alternate1</source>
        <translation>Btu/(h·pi^2)</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeter_Alternate1</source>
        <translation>watts par mètre carré</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeter_Alternate2</source>
        <translation>watt par metre carre</translation>
    </message>
    <message>
        <source>eSWattPerSquareMeter_Alternate3</source>
        <translation>watts par metre carre</translation>
    </message>
    <message>
        <source>eSKilowattPerSquareMeter_Alternate1</source>
        <translation>kilowatts par mètre carré</translation>
    </message>
    <message>
        <source>eSKilowattPerSquareMeter_Alternate2</source>
        <translation>kilowatt par metre carre</translation>
    </message>
    <message>
        <source>eSKilowattPerSquareMeter_Alternate3</source>
        <translation>kilowatts par metre carre</translation>
    </message>
    <message>
        <source>eSKilowattPerSquareFoot_Alternate1</source>
        <translation>kilowatts par pied carré</translation>
    </message>
    <message>
        <source>eSKilowattPerSquareFoot_Alternate2</source>
        <translation>kilowatt par pied carre</translation>
    </message>
    <message>
        <source>eSKilowattPerSquareFoot_Alternate3</source>
        <translation>kilowatts par pied carre</translation>
    </message>
    <message>
        <source>eSWattPerSquareFoot_Alternate1</source>
        <translation>watts par pied carré</translation>
    </message>
    <message>
        <source>eSWattPerSquareFoot_Alternate2</source>
        <translation>watt par pied carre</translation>
    </message>
    <message>
        <source>eSWattPerSquareFoot_Alternate3</source>
        <translation>watts par pied carre</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFoot_Alternate1</source>
        <translation>unités thermiques britanniques par heure-pied carré</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFoot_Alternate2</source>
        <translation>unite thermique britannique par heure-pied carre</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourSquareFoot_Alternate3</source>
        <translation>unites thermiques britanniques par heure-pied carre</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_PowerPerUnitOfMass</name>
    <message>
        <source>eSWattPerKilogram_Alternate1</source>
        <translation>watts par kilogramme</translation>
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
        <translation>W/pi^3</translation>
    </message>
    <message>
        <source>eSBTUPerhft3_Alternate1</source>
        <translation>BTU/(h·pi^3)</translation>
    </message>
    <message>
        <source>eSBtuPerhft3_Alternate1</source>
        <translation>Btu/(h·pi^3)</translation>
    </message>
    <message>
        <source>eSWattPerCubicMeter_Alternate1</source>
        <translation>watts par mètre cube</translation>
    </message>
    <message>
        <source>eSWattPerCubicMeter_Alternate2</source>
        <translation>watt par metre cube</translation>
    </message>
    <message>
        <source>eSWattPerCubicMeter_Alternate3</source>
        <translation>watts par metre cube</translation>
    </message>
    <message>
        <source>eSWattPerCubicFoot_Alternate1</source>
        <translation>watts par pied cube</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourCubicFoot_Alternate1</source>
        <translation>unités thermiques britanniques par heure-pied cube</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourCubicFoot_Alternate2</source>
        <translation>unite thermique britannique par heure-pied cube</translation>
    </message>
    <message>
        <source>eSBritishThermalUnitPerHourCubicFoot_Alternate3</source>
        <translation>unites thermiques britanniques par heure-pied cube</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Pressure</name>
    <message>
        <source>eSkgPercm2_Alternate1</source>
        <translation>kg/cm^2</translation>
    </message>
    <message>
        <source>eSmksi_Alternate1</source>
        <translation>klb/po^2</translation>
    </message>
    <message>
        <source>eSlbfPerSquarein_Alternate1</source>
        <translation>lb/po^2</translation>
    </message>
    <message>
        <source>eSlbfPerin2_Alternate1</source>
        <translation>lbf/po^2</translation>
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
        <translation>bars absolus</translation>
    </message>
    <message>
        <source>eSBarGauge_Alternate1</source>
        <translation>bars relatifs</translation>
    </message>
    <message>
        <source>eSInchOfMercury_Alternate1</source>
        <translation>pouces de mercure</translation>
    </message>
    <message>
        <source>eSinHg_Alternate1</source>
        <translation>inHg</translation>
    </message>
    <message>
        <source>eSinHg_Alternate2</source>
        <translation>poHg</translation>
    </message>
    <message>
        <source>eSinHg_Alternate3</source>
        <translation>po de Hg</translation>
    </message>
    <message>
        <source>eSInchOfWater_Alternate1</source>
        <translation>pouces d&apos;eau</translation>
    </message>
    <message>
        <source>eSinH2O_Alternate1</source>
        <translation>inH2O</translation>
    </message>
    <message>
        <source>eSinH2O_Alternate2</source>
        <translation>po H2O</translation>
    </message>
    <message>
        <source>eSinH2O_Alternate3</source>
        <translation>po d&apos;eau</translation>
    </message>
    <message>
        <source>eSKilobar_Alternate1</source>
        <translation>kilobars</translation>
    </message>
    <message>
        <source>eSKilogramPerSquareCentimeter_Alternate1</source>
        <translation>kilogrammes par centimètre carré</translation>
    </message>
    <message>
        <source>eSKilogramPerSquareCentimeter_Alternate2</source>
        <translation>kilogramme par centimetre carre</translation>
    </message>
    <message>
        <source>eSKilogramPerSquareCentimeter_Alternate3</source>
        <translation>kilogrammes par centimetre carre</translation>
    </message>
    <message>
        <source>eSKilopascal_Alternate1</source>
        <translation>kilopascals</translation>
    </message>
    <message>
        <source>eSkPa_Alternate1</source>
        <translation>kpa</translation>
    </message>
    <message>
        <source>eSkPa_Alternate2</source>
        <translation>KPa</translation>
    </message>
    <message>
        <source>eSKilopoundPerSquareInch_Alternate1</source>
        <translation>kilolivres par pouce carré</translation>
    </message>
    <message>
        <source>eSKilopoundPerSquareInch_Alternate2</source>
        <translation>kilolivre par pouce carre</translation>
    </message>
    <message>
        <source>eSKilopoundPerSquareInch_Alternate3</source>
        <translation>kilolivres par pouce carre</translation>
    </message>
    <message>
        <source>eSMegaPascal_Alternate1</source>
        <translation>mégapascals</translation>
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
        <source>eSMPa_Alternate1</source>
        <translation>Mpa</translation>
    </message>
    <message>
        <source>eSMillibar_Alternate1</source>
        <translation>millibars</translation>
    </message>
    <message>
        <source>eSmbar_Alternate1</source>
        <translation>mb</translation>
    </message>
    <message>
        <source>eSMillimeterOfMercury_Alternate1</source>
        <translation>millimètres de mercure</translation>
    </message>
    <message>
        <source>eSMillimeterOfMercury_Alternate2</source>
        <translation>millimetre de mercure</translation>
    </message>
    <message>
        <source>eSMillimeterOfMercury_Alternate3</source>
        <translation>millimetres de mercure</translation>
    </message>
    <message>
        <source>eSmmHg_Alternate1</source>
        <translation>mm Hg</translation>
    </message>
    <message>
        <source>eSmmHg_Alternate2</source>
        <translation>mm de mercure</translation>
    </message>
    <message>
        <source>eSMilliPascal_Alternate1</source>
        <translation>millipascals</translation>
    </message>
    <message>
        <source>eSPascal_Alternate1</source>
        <translation>pascals</translation>
    </message>
    <message>
        <source>eSPoundPerSquareFoot_Alternate1</source>
        <translation>livres par pied carré</translation>
    </message>
    <message>
        <source>eSPoundPerSquareFoot_Alternate2</source>
        <translation>livre par pied carre</translation>
    </message>
    <message>
        <source>eSPoundPerSquareFoot_Alternate3</source>
        <translation>livres par pied carre</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInch_Alternate1</source>
        <translation>livres par pouce carré</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInch_Alternate2</source>
        <translation>livre par pouce carre</translation>
    </message>
    <message>
        <source>eSPoundPerSquareInch_Alternate3</source>
        <translation>livres par pouce carre</translation>
    </message>
    <message>
        <source>eSpsi_Alternate1</source>
        <translation>lb/in²</translation>
    </message>
    <message>
        <source>eSpsi_Alternate2</source>
        <translation>lb/in2</translation>
    </message>
    <message>
        <source>eSpsi_Alternate3</source>
        <translation>lb/po2</translation>
    </message>
    <message>
        <source>eSpsi_Alternate4</source>
        <translation>lbf/in²</translation>
    </message>
    <message>
        <source>eSpsi_Alternate5</source>
        <translation>PSI</translation>
    </message>
    <message>
        <source>eSatm_Alternate1</source>
        <translation>atmosphère</translation>
    </message>
    <message>
        <source>eSatm_Alternate2</source>
        <translation>atmosphères</translation>
    </message>
    <message>
        <source>eSTorrUnit_Alternate1</source>
        <translation>torrs</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMillimeter_Alternate1</source>
        <translation>newtons par millimètre carré</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMillimeter_Alternate2</source>
        <translation>newton par millimetre carre</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMillimeter_Alternate3</source>
        <translation>newtons par millimetre carre</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMeter_Alternate1</source>
        <translation>newtons par mètre carré</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMeter_Alternate2</source>
        <translation>newton par metre carre</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMeter_Alternate3</source>
        <translation>newtons par metre carre</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMillimeter_Alternate1</source>
        <translation>décanewtons par millimètre carré</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMillimeter_Alternate2</source>
        <translation>decanewton par millimetre carre</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMillimeter_Alternate3</source>
        <translation>decanewtons par millimetre carre</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMeter_Alternate1</source>
        <translation>décanewtons par mètre carré</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMeter_Alternate2</source>
        <translation>decanewton par metre carre</translation>
    </message>
    <message>
        <source>eSDecanewtonPerSquareMeter_Alternate3</source>
        <translation>decanewtons par metre carre</translation>
    </message>
    <message>
        <source>eSKilonewtonPerSquareMeter_Alternate1</source>
        <translation>kilonewtons par mètre carré</translation>
    </message>
    <message>
        <source>eSKilonewtonPerSquareMeter_Alternate2</source>
        <translation>kilonewton par metre carre</translation>
    </message>
    <message>
        <source>eSKilonewtonPerSquareMeter_Alternate3</source>
        <translation>kilonewtons par metre carre</translation>
    </message>
    <message>
        <source>eSMeganewtonPerSquareMeter_Alternate1</source>
        <translation>méganewtons par mètre carré</translation>
    </message>
    <message>
        <source>eSMeganewtonPerSquareMeter_Alternate2</source>
        <translation>meganewton par metre carre</translation>
    </message>
    <message>
        <source>eSMeganewtonPerSquareMeter_Alternate3</source>
        <translation>meganewtons par metre carre</translation>
    </message>
    <message>
        <source>eSKilopoundPerSquareFoot_Alternate1</source>
        <translation>kilolivres par pied carré</translation>
    </message>
    <message>
        <source>eSKilopoundPerSquareFoot_Alternate2</source>
        <translation>kilolivre par pied carre</translation>
    </message>
    <message>
        <source>eSKilopoundPerSquareFoot_Alternate3</source>
        <translation>kilolivres par pied carre</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareMillimeter_Alternate1</source>
        <translation>kilogrammes-force par millimètre carré</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareMillimeter_Alternate2</source>
        <translation>kilogramme-force par millimetre carre</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareMillimeter_Alternate3</source>
        <translation>kilogrammes-force par millimetre carre</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareCentimeter_Alternate1</source>
        <translation>kilogrammes-force par centimètre carré</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareCentimeter_Alternate2</source>
        <translation>kilogramme-force par centimetre carre</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareCentimeter_Alternate3</source>
        <translation>kilogrammes-force par centimetre carre</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareCentimeter_Alternate4</source>
        <translation>kgf/cm²</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareCentimeter_Alternate5</source>
        <translation>kgf/cm2</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareMeter_Alternate1</source>
        <translation>kilogrammes-force par mètre carré</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareMeter_Alternate2</source>
        <translation>kilogramme-force par metre carre</translation>
    </message>
    <message>
        <source>eSKilogramForcePerSquareMeter_Alternate3</source>
        <translation>kilogrammes-force par metre carre</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareCentimeter_Alternate1</source>
        <translation>tonnes-force par centimètre carré</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareCentimeter_Alternate2</source>
        <translation>tonne-force par centimetre carre</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareCentimeter_Alternate3</source>
        <translation>tonnes-force par centimetre carre</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareMeter_Alternate1</source>
        <translation>tonnes-force par mètre carré</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareMeter_Alternate2</source>
        <translation>tonne-force par metre carre</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareMeter_Alternate3</source>
        <translation>tonnes-force par metre carre</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareFoot_Alternate1</source>
        <translation>tonnes-force par pied carré</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareFoot_Alternate2</source>
        <translation>tonne-force par pied carre</translation>
    </message>
    <message>
        <source>eSTonForcePerSquareFoot_Alternate3</source>
        <translation>tonnes-force par pied carre</translation>
    </message>
    <message>
        <source>eSPoundForcePerSquareInch_Alternate1</source>
        <translation>livres-force par pouce carré</translation>
    </message>
    <message>
        <source>eSPoundForcePerSquareInch_Alternate2</source>
        <translation>livre-force par pouce carre</translation>
    </message>
    <message>
        <source>eSPoundForcePerSquareInch_Alternate3</source>
        <translation>livres-force par pouce carre</translation>
    </message>
    <message>
        <source>eSFootOfWater_Alternate1</source>
        <translation>pieds d&apos;eau</translation>
    </message>
    <message>
        <source>eSftH2O_Alternate1</source>
        <translation>ftH2O</translation>
    </message>
    <message>
        <source>eSftH2O_Alternate2</source>
        <translation>pi H2O</translation>
    </message>
    <message>
        <source>eSftH2O_Alternate3</source>
        <translation>pi d&apos;eau</translation>
    </message>
    <message>
        <source>eSKipPerSquareInch_Alternate1</source>
        <translation>kips par pouce carré</translation>
    </message>
    <message>
        <source>eSKipPerSquareInch_Alternate2</source>
        <translation>kip par pouce carre</translation>
    </message>
    <message>
        <source>eSKipPerSquareInch_Alternate3</source>
        <translation>kips par pouce carre</translation>
    </message>
    <message>
        <source>eSKipPerSquareFoot_Alternate1</source>
        <translation>kips par pied carré</translation>
    </message>
    <message>
        <source>eSKipPerSquareFoot_Alternate2</source>
        <translation>kip par pied carre</translation>
    </message>
    <message>
        <source>eSKipPerSquareFoot_Alternate3</source>
        <translation>kips par pied carre</translation>
    </message>
    <message>
        <source>eSPoundForcePerSquareFoot_Alternate1</source>
        <translation>livres-force par pied carré</translation>
    </message>
    <message>
        <source>eSPoundForcePerSquareFoot_Alternate2</source>
        <translation>livre-force par pied carre</translation>
    </message>
    <message>
        <source>eSPoundForcePerSquareFoot_Alternate3</source>
        <translation>livres-force par pied carre</translation>
    </message>
    <message>
        <source>eSGigapascal_Alternate1</source>
        <translation>gigapascals</translation>
    </message>
    <message>
        <source>eSDynePerSquareCentimeter_Alternate1</source>
        <translation>dynes par centimètre carré</translation>
    </message>
    <message>
        <source>eSDynePerSquareCentimeter_Alternate2</source>
        <translation>dyne par centimetre carre</translation>
    </message>
    <message>
        <source>eSDynePerSquareCentimeter_Alternate3</source>
        <translation>dynes par centimetre carre</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMicrometer_Alternate1</source>
        <translation>newtons par micromètre carré</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMicrometer_Alternate2</source>
        <translation>newton par micrometre carre</translation>
    </message>
    <message>
        <source>eSNewtonPerSquareMicrometer_Alternate3</source>
        <translation>newtons par micrometre carre</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_RotationalLineSpringCoefficient</name>
    <message>
        <source>eSNewtonMeterPerDegreePerMeter_Alternate1</source>
        <translation>newtons-mètres par degré par mètre</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerDegreePerMeter_Alternate2</source>
        <translation>newton-metre par degre par metre</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerDegreePerMeter_Alternate3</source>
        <translation>newtons-metres par degre par metre</translation>
    </message>
    <message>
        <source>eSKipFootPerDegreePerFoot_Alternate1</source>
        <translation>kips-pieds par degré par pied</translation>
    </message>
    <message>
        <source>eSKipFootPerDegreePerFoot_Alternate2</source>
        <translation>kip-pied par degre par pied</translation>
    </message>
    <message>
        <source>eSKipFootPerDegreePerFoot_Alternate3</source>
        <translation>kips-pieds par degre par pied</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerDegreePerMeter_Alternate1</source>
        <translation>kilonewtons-mètres par degré par mètre</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerDegreePerMeter_Alternate2</source>
        <translation>kilonewton-metre par degre par metre</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerDegreePerMeter_Alternate3</source>
        <translation>kilonewtons-metres par degre par metre</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_RotationalPointSpringCoefficient</name>
    <message>
        <source>eSNewtonMeterPerDegree_Alternate1</source>
        <translation>newtons-mètres par degré</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerDegree_Alternate2</source>
        <translation>newton-metre par degre</translation>
    </message>
    <message>
        <source>eSNewtonMeterPerDegree_Alternate3</source>
        <translation>newtons-metres par degre</translation>
    </message>
    <message>
        <source>eSKipFootPerDegree_Alternate1</source>
        <translation>kips-pieds par degré</translation>
    </message>
    <message>
        <source>eSKipFootPerDegree_Alternate2</source>
        <translation>kip-pied par degre</translation>
    </message>
    <message>
        <source>eSKipFootPerDegree_Alternate3</source>
        <translation>kips-pieds par degre</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerDegree_Alternate1</source>
        <translation>kilonewtons-mètres par degré</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerDegree_Alternate2</source>
        <translation>kilonewton-metre par degre</translation>
    </message>
    <message>
        <source>eSKilonewtonMeterPerDegree_Alternate3</source>
        <translation>kilonewtons-metres par degre</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_SolidAngle</name>
    <message>
        <source>eSSteradian_Alternate1</source>
        <translation>stéradians</translation>
    </message>
    <message>
        <source>eSSteradian_Alternate2</source>
        <translation>steradian</translation>
    </message>
    <message>
        <source>eSSteradian_Alternate3</source>
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
        <translation>joules par gramme-degré Celsius</translation>
    </message>
    <message>
        <source>eSJoulePerGramCelsius_Alternate2</source>
        <translation>joule par gramme-degre Celsius</translation>
    </message>
    <message>
        <source>eSJoulePerGramCelsius_Alternate3</source>
        <translation>joules par gramme-degre Celsius</translation>
    </message>
    <message>
        <source>eSJoulePerKilogramCelsius_Alternate1</source>
        <translation>joules par kilogramme-degré Celsius</translation>
    </message>
    <message>
        <source>eSJoulePerKilogramCelsius_Alternate2</source>
        <translation>joule par kilogramme-degre Celsius</translation>
    </message>
    <message>
        <source>eSJoulePerKilogramCelsius_Alternate3</source>
        <translation>joules par kilogramme-degre Celsius</translation>
    </message>
    <message>
        <source>eSJPerKgDegreeC_Alternate1</source>
        <translation>J/kg°C</translation>
    </message>
    <message>
        <source>eSJPerKgDegreeC_Alternate2</source>
        <translation>J/kg.°C</translation>
    </message>
    <message>
        <source>eSSquareMillimeterPerSquareSecondCelsius_Alternate1</source>
        <translation>millimètres carrés par seconde carrée-degré Celsius</translation>
    </message>
    <message>
        <source>eSSquareMillimeterPerSquareSecondCelsius_Alternate2</source>
        <translation>millimetre carre par seconde carree-degre Celsius</translation>
    </message>
    <message>
        <source>eSSquareMillimeterPerSquareSecondCelsius_Alternate3</source>
        <translation>millimetres carres par seconde carree-degre Celsius</translation>
    </message>
    <message>
        <source>eSErgPerGramCelsius_Alternate1</source>
        <translation>ergs par gramme-degré Celsius</translation>
    </message>
    <message>
        <source>eSErgPerGramCelsius_Alternate2</source>
        <translation>erg par gramme-degre Celsius</translation>
    </message>
    <message>
        <source>eSErgPerGramCelsius_Alternate3</source>
        <translation>ergs par gramme-degre Celsius</translation>
    </message>
    <message>
        <source>eSSquareMicrometerPerSquareSecondCelsius_Alternate1</source>
        <translation>micromètres carrés par seconde carrée-degré Celsius</translation>
    </message>
    <message>
        <source>eSSquareMicrometerPerSquareSecondCelsius_Alternate2</source>
        <translation>micrometre carre par seconde carree-degre Celsius</translation>
    </message>
    <message>
        <source>eSSquareMicrometerPerSquareSecondCelsius_Alternate3</source>
        <translation>micrometres carres par seconde carree-degre Celsius</translation>
    </message>
    <message>
        <source>eSBTUPerPoundFahrenheit_Alternate1</source>
        <translation>BTU par livre-degre Fahrenheit</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_SpecificHeatOfVaporization</name>
    <message>
        <source>eSJoulePerGram_Alternate1</source>
        <translation>joules par gramme</translation>
    </message>
    <message>
        <source>eSJoulePerKilogram_Alternate1</source>
        <translation>joules par kilogramme</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Temperature</name>
    <message>
        <source>eSKelvin_Alternate1</source>
        <translation>kelvins</translation>
    </message>
    <message>
        <source>eSDegreeCelsius_Alternate1</source>
        <translation>degrés Celsius</translation>
    </message>
    <message>
        <source>eSDegreeCelsius_Alternate2</source>
        <translation>degre Celsius</translation>
    </message>
    <message>
        <source>eSDegreeCelsius_Alternate3</source>
        <translation>degres Celsius</translation>
    </message>
    <message>
        <source>eSdegreeC_Alternate1</source>
        <translation>°c</translation>
    </message>
    <message>
        <source>eSdegreeC_Alternate2</source>
        <translation>degC</translation>
    </message>
    <message>
        <source>eSdegreeC_Alternate3</source>
        <translation>deg C</translation>
    </message>
    <message>
        <source>eSdegreeC_Alternate4</source>
        <translation>ºC</translation>
    </message>
    <message>
        <source>eSdegreeC_Alternate5</source>
        <translation>˚C</translation>
    </message>
    <message>
        <source>eSdegreeC_Alternate6</source>
        <translation>degré C</translation>
    </message>
    <message>
        <source>eSdegreeC_Alternate7</source>
        <translation>degrés C</translation>
    </message>
    <message>
        <source>eSDegreeFahrenheit_Alternate1</source>
        <translation>degrés Fahrenheit</translation>
    </message>
    <message>
        <source>eSDegreeFahrenheit_Alternate2</source>
        <translation>degre Fahrenheit</translation>
    </message>
    <message>
        <source>eSDegreeFahrenheit_Alternate3</source>
        <translation>degres Fahrenheit</translation>
    </message>
    <message>
        <source>eSdegreeF_Alternate1</source>
        <translation>°f</translation>
    </message>
    <message>
        <source>eSdegreeF_Alternate2</source>
        <translation>degF</translation>
    </message>
    <message>
        <source>eSdegreeF_Alternate3</source>
        <translation>deg F</translation>
    </message>
    <message>
        <source>eSdegreeF_Alternate4</source>
        <translation>ºF</translation>
    </message>
    <message>
        <source>eSdegreeF_Alternate5</source>
        <translation>˚F</translation>
    </message>
    <message>
        <source>eSDegreeRankine_Alternate1</source>
        <translation>degrés Rankine</translation>
    </message>
    <message>
        <source>eSDegreeRankine_Alternate2</source>
        <translation>degre Rankine</translation>
    </message>
    <message>
        <source>eSDegreeRankine_Alternate3</source>
        <translation>degres Rankine</translation>
    </message>
    <message>
        <source>eSdegreeR_Alternate1</source>
        <translation>degR</translation>
    </message>
    <message>
        <source>eSdegreeR_Alternate2</source>
        <translation>ºR</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_TemperatureRate</name>
    <message>
        <source>eSCelsiusPerMinute_Alternate1</source>
        <translation>degrés Celsius par minute</translation>
    </message>
    <message>
        <source>eSCelsiusPerMinute_Alternate2</source>
        <translation>degre Celsius par minute</translation>
    </message>
    <message>
        <source>eSCelsiusPerMinute_Alternate3</source>
        <translation>degres Celsius par minute</translation>
    </message>
    <message>
        <source>eSFahrenheitPerMinute_Alternate1</source>
        <translation>degrés Fahrenheit par minute</translation>
    </message>
    <message>
        <source>eSFahrenheitPerMinute_Alternate2</source>
        <translation>degre Fahrenheit par minute</translation>
    </message>
    <message>
        <source>eSFahrenheitPerMinute_Alternate3</source>
        <translation>degres Fahrenheit par minute</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_ThermalConductivity</name>
    <message>
        <source>eSbtuInchPerFt2hrDegreeF_Alternate1</source>
        <translation>BTU·po/(pi^2·h·°F)</translation>
    </message>
    <message>
        <source>eSWattPerMeterKelvin_Alternate1</source>
        <translation>watts par mètre-kelvin</translation>
    </message>
    <message>
        <source>eSWattPerMeterKelvin_Alternate2</source>
        <translation>watt par metre-kelvin</translation>
    </message>
    <message>
        <source>eSWattPerMeterKelvin_Alternate3</source>
        <translation>watts par metre-kelvin</translation>
    </message>
    <message>
        <source>eSWPerMDegreeK_Alternate1</source>
        <translation>W/mK</translation>
    </message>
    <message>
        <source>eSWPerMDegreeK_Alternate2</source>
        <translation>W/m.K</translation>
    </message>
    <message>
        <source>eSWattPerMeterCelsius_Alternate1</source>
        <translation>watts par mètre-degré Celsius</translation>
    </message>
    <message>
        <source>eSWattPerMeterCelsius_Alternate2</source>
        <translation>watt par metre-degre Celsius</translation>
    </message>
    <message>
        <source>eSWattPerMeterCelsius_Alternate3</source>
        <translation>watts par metre-degre Celsius</translation>
    </message>
    <message>
        <source>eSNewtonPerSecondCelsius_Alternate1</source>
        <translation>newtons par seconde-degré Celsius</translation>
    </message>
    <message>
        <source>eSNewtonPerSecondCelsius_Alternate2</source>
        <translation>newton par seconde-degre Celsius</translation>
    </message>
    <message>
        <source>eSNewtonPerSecondCelsius_Alternate3</source>
        <translation>newtons par seconde-degre Celsius</translation>
    </message>
    <message>
        <source>eSDynePerSecondCelsius_Alternate1</source>
        <translation>dynes par seconde-degré Celsius</translation>
    </message>
    <message>
        <source>eSDynePerSecondCelsius_Alternate2</source>
        <translation>dyne par seconde-degre Celsius</translation>
    </message>
    <message>
        <source>eSDynePerSecondCelsius_Alternate3</source>
        <translation>dynes par seconde-degre Celsius</translation>
    </message>
    <message>
        <source>eSBTUInchPerSquareFootHourFahrenheit_Alternate1</source>
        <translation>BTU-pouces par pied carré-heure-degré Fahrenheit</translation>
    </message>
    <message>
        <source>eSBTUInchPerSquareFootHourFahrenheit_Alternate2</source>
        <translation>BTU-pouce par pied carre-heure-degre Fahrenheit</translation>
    </message>
    <message>
        <source>eSBTUInchPerSquareFootHourFahrenheit_Alternate3</source>
        <translation>BTU-pouces par pied carre-heure-degre Fahrenheit</translation>
    </message>
    <message>
        <source>eSBTUPerInchSecondFahrenheit_Alternate1</source>
        <translation>BTU par pouce-seconde-degre Fahrenheit</translation>
    </message>
    <message>
        <source>eSBTUPerFootSecondFahrenheit_Alternate1</source>
        <translation>BTU par pied-seconde-degre Fahrenheit</translation>
    </message>
    <message>
        <source>eSBTUPerFootHourFahrenheit_Alternate1</source>
        <translation>BTU par pied-heure-degre Fahrenheit</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Time</name>
    <message>
        <source>eSSecond_Alternate1</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>eSs_Alternate1</source>
        <translation>sec.</translation>
    </message>
    <message>
        <source>eSYottasecond_Alternate1</source>
        <translation>yottasecondes</translation>
    </message>
    <message>
        <source>eSZettasecond_Alternate1</source>
        <translation>zettasecondes</translation>
    </message>
    <message>
        <source>eSExasecond_Alternate1</source>
        <translation>exasecondes</translation>
    </message>
    <message>
        <source>eSPetasecond_Alternate1</source>
        <translation>pétasecondes</translation>
    </message>
    <message>
        <source>eSPetasecond_Alternate2</source>
        <translation>petaseconde</translation>
    </message>
    <message>
        <source>eSPetasecond_Alternate3</source>
        <translation>petasecondes</translation>
    </message>
    <message>
        <source>eSTerasecond_Alternate1</source>
        <translation>térasecondes</translation>
    </message>
    <message>
        <source>eSTerasecond_Alternate2</source>
        <translation>teraseconde</translation>
    </message>
    <message>
        <source>eSTerasecond_Alternate3</source>
        <translation>terasecondes</translation>
    </message>
    <message>
        <source>eSGigasecond_Alternate1</source>
        <translation>gigasecondes</translation>
    </message>
    <message>
        <source>eSMegasecond_Alternate1</source>
        <translation>mégasecondes</translation>
    </message>
    <message>
        <source>eSMegasecond_Alternate2</source>
        <translation>megaseconde</translation>
    </message>
    <message>
        <source>eSMegasecond_Alternate3</source>
        <translation>megasecondes</translation>
    </message>
    <message>
        <source>eSKilosecond_Alternate1</source>
        <translation>kilosecondes</translation>
    </message>
    <message>
        <source>eSHectosecond_Alternate1</source>
        <translation>hectosecondes</translation>
    </message>
    <message>
        <source>eSDecasecond_Alternate1</source>
        <translation>décasecondes</translation>
    </message>
    <message>
        <source>eSDecasecond_Alternate2</source>
        <translation>decaseconde</translation>
    </message>
    <message>
        <source>eSDecasecond_Alternate3</source>
        <translation>decasecondes</translation>
    </message>
    <message>
        <source>eSDecisecond_Alternate1</source>
        <translation>décisecondes</translation>
    </message>
    <message>
        <source>eSDecisecond_Alternate2</source>
        <translation>deciseconde</translation>
    </message>
    <message>
        <source>eSDecisecond_Alternate3</source>
        <translation>decisecondes</translation>
    </message>
    <message>
        <source>eSCentisecond_Alternate1</source>
        <translation>centisecondes</translation>
    </message>
    <message>
        <source>eSMillisecond_Alternate1</source>
        <translation>millisecondes</translation>
    </message>
    <message>
        <source>eSms_Alternate1</source>
        <translation>msec</translation>
    </message>
    <message>
        <source>eSMicrosecond_Alternate1</source>
        <translation>microsecondes</translation>
    </message>
    <message>
        <source>eSmus_Alternate1</source>
        <translation>μs</translation>
    </message>
    <message>
        <source>eSNanosecond_Alternate1</source>
        <translation>nanosecondes</translation>
    </message>
    <message>
        <source>eSPicosecond_Alternate1</source>
        <translation>picosecondes</translation>
    </message>
    <message>
        <source>eSFemtosecond_Alternate1</source>
        <translation>femtosecondes</translation>
    </message>
    <message>
        <source>eSAttosecond_Alternate1</source>
        <translation>attosecondes</translation>
    </message>
    <message>
        <source>eSZeptosecond_Alternate1</source>
        <translation>zeptosecondes</translation>
    </message>
    <message>
        <source>eSYoctosecond_Alternate1</source>
        <translation>yoctosecondes</translation>
    </message>
    <message>
        <source>eSMinute_Alternate1</source>
        <translation>minutes</translation>
    </message>
    <message>
        <source>eSmin_Alternate1</source>
        <translation>mn</translation>
    </message>
    <message>
        <source>eSmin_Alternate2</source>
        <translation>min.</translation>
    </message>
    <message>
        <source>eSHour_Alternate1</source>
        <translation>heures</translation>
    </message>
    <message>
        <source>eSh_Alternate1</source>
        <translation>hr</translation>
    </message>
    <message>
        <source>eSh_Alternate2</source>
        <translation>hrs</translation>
    </message>
    <message>
        <source>eSDay_Alternate1</source>
        <translation>jours</translation>
    </message>
    <message>
        <source>eSd_Alternate1</source>
        <translation>jr</translation>
    </message>
    <message>
        <source>eSd_Alternate2</source>
        <translation>jrs</translation>
    </message>
    <message>
        <source>eSWeek_Alternate1</source>
        <translation>semaines</translation>
    </message>
    <message>
        <source>eSwk_Alternate1</source>
        <translation>sem</translation>
    </message>
    <message>
        <source>eSFortnight_Alternate1</source>
        <translation>quinzaines</translation>
    </message>
    <message>
        <source>eSYear_Alternate1</source>
        <translation>années</translation>
    </message>
    <message>
        <source>eSYear_Alternate2</source>
        <translation>annee</translation>
    </message>
    <message>
        <source>eSYear_Alternate3</source>
        <translation>annees</translation>
    </message>
    <message>
        <source>eSyr_Alternate1</source>
        <translation>ans</translation>
    </message>
    <message>
        <source>eSSiderealYear_Alternate1</source>
        <translation>années sidérales</translation>
    </message>
    <message>
        <source>eSSiderealYear_Alternate2</source>
        <translation>annee siderale</translation>
    </message>
    <message>
        <source>eSSiderealYear_Alternate3</source>
        <translation>annees siderales</translation>
    </message>
    <message>
        <source>eSTropicalYear_Alternate1</source>
        <translation>années tropiques</translation>
    </message>
    <message>
        <source>eSTropicalYear_Alternate2</source>
        <translation>annee tropique</translation>
    </message>
    <message>
        <source>eSTropicalYear_Alternate3</source>
        <translation>annees tropiques</translation>
    </message>
    <message>
        <source>eSDecade_Alternate1</source>
        <translation>décennies</translation>
    </message>
    <message>
        <source>eSDecade_Alternate2</source>
        <translation>decennie</translation>
    </message>
    <message>
        <source>eSDecade_Alternate3</source>
        <translation>decennies</translation>
    </message>
    <message>
        <source>eSCentury_Alternate1</source>
        <translation>siècles</translation>
    </message>
    <message>
        <source>eSCentury_Alternate2</source>
        <translation>siecle</translation>
    </message>
    <message>
        <source>eSCentury_Alternate3</source>
        <translation>siecles</translation>
    </message>
    <message>
        <source>eSMillenium_Alternate1</source>
        <translation>millénaires</translation>
    </message>
    <message>
        <source>eSMillenium_Alternate2</source>
        <translation>millenaire</translation>
    </message>
    <message>
        <source>eSMillenium_Alternate3</source>
        <translation>millenaires</translation>
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
        <translation>newtons par mètre cube</translation>
    </message>
    <message>
        <source>eSNewtonPerCubicMeter_Alternate2</source>
        <translation>newton par metre cube</translation>
    </message>
    <message>
        <source>eSNewtonPerCubicMeter_Alternate3</source>
        <translation>newtons par metre cube</translation>
    </message>
    <message>
        <source>eSKilonewtonPerCubicMeter_Alternate1</source>
        <translation>kilonewtons par mètre cube</translation>
    </message>
    <message>
        <source>eSKilonewtonPerCubicMeter_Alternate2</source>
        <translation>kilonewton par metre cube</translation>
    </message>
    <message>
        <source>eSKilonewtonPerCubicMeter_Alternate3</source>
        <translation>kilonewtons par metre cube</translation>
    </message>
    <message>
        <source>eSPoundForcePerCubicFoot_Alternate1</source>
        <translation>livres-force par pied cube</translation>
    </message>
    <message>
        <source>eSKipPerCubicInch_Alternate1</source>
        <translation>kips par pouce cube</translation>
    </message>
    <message>
        <source>eSKipPerCubicFoot_Alternate1</source>
        <translation>kips par pied cube</translation>
    </message>
</context>
<context>
    <name>UnitSymbol_Velocity</name>
    <message>
        <source>eSMeterPerSecond_Alternate1</source>
        <translation>mètres par seconde</translation>
    </message>
    <message>
        <source>eSMeterPerSecond_Alternate2</source>
        <translation>metre par seconde</translation>
    </message>
    <message>
        <source>eSMeterPerSecond_Alternate3</source>
        <translation>metres par seconde</translation>
    </message>
    <message>
        <source>eSmPers_Alternate1</source>
        <translation>m.s-1</translation>
    </message>
    <message>
        <source>eSMillimeterPerSecond_Alternate1</source>
        <translation>millimètres par seconde</translation>
    </message>
    <message>
        <source>eSMillimeterPerSecond_Alternate2</source>
        <translation>millimetre par seconde</translation>
    </message>
    <message>
        <source>eSMillimeterPerSecond_Alternate3</source>
        <translation>millimetres par seconde</translation>
    </message>
    <message>
        <source>eSCentimeterPerSecond_Alternate1</source>
        <translation>centimètres par seconde</translation>
    </message>
    <message>
        <source>eSCentimeterPerSecond_Alternate2</source>
        <translation>centimetre par seconde</translation>
    </message>
    <message>
        <source>eSCentimeterPerSecond_Alternate3</source>
        <translation>centimetres par seconde</translation>
    </message>
    <message>
        <source>eSMeterPerMinute_Alternate1</source>
        <translation>mètres par minute</translation>
    </message>
    <message>
        <source>eSMeterPerMinute_Alternate2</source>
        <translation>metre par minute</translation>
    </message>
    <message>
        <source>eSMeterPerMinute_Alternate3</source>
        <translation>metres par minute</translation>
    </message>
    <message>
        <source>eSInchPerSecond_Alternate1</source>
        <translation>pouces par seconde</translation>
    </message>
    <message>
        <source>eSinPers_Alternate1</source>
        <translation>in/s</translation>
    </message>
    <message>
        <source>eSFootPerSecond_Alternate1</source>
        <translation>pieds par seconde</translation>
    </message>
    <message>
        <source>eSftPers_Alternate1</source>
        <translation>ft/s</translation>
    </message>
    <message>
        <source>eSftPers_Alternate2</source>
        <translation>fps</translation>
    </message>
    <message>
        <source>eSInchPerMinute_Alternate1</source>
        <translation>pouces par minute</translation>
    </message>
    <message>
        <source>eSFootPerMinute_Alternate1</source>
        <translation>pieds par minute</translation>
    </message>
    <message>
        <source>eSftPermin_Alternate1</source>
        <translation>ft/min</translation>
    </message>
    <message>
        <source>eSftPermin_Alternate2</source>
        <translation>fpm</translation>
    </message>
    <message>
        <source>eSKilometerPerHour_Alternate1</source>
        <translation>kilomètres par heure</translation>
    </message>
    <message>
        <source>eSKilometerPerHour_Alternate2</source>
        <translation>kilometre par heure</translation>
    </message>
    <message>
        <source>eSKilometerPerHour_Alternate3</source>
        <translation>kilometres par heure</translation>
    </message>
    <message>
        <source>eSkmPerhr_Alternate1</source>
        <translation>km/hr</translation>
    </message>
    <message>
        <source>eSkmPerhr_Alternate2</source>
        <translation>km.h-1</translation>
    </message>
    <message>
        <source>eSkmPerhr_Alternate3</source>
        <translation>kilomètre-heure</translation>
    </message>
    <message>
        <source>eSkmPerhr_Alternate4</source>
        <translation>kilomètres-heure</translation>
    </message>
    <message>
        <source>eSkph_Alternate1</source>
        <translation>kph</translation>
    </message>
    <message>
        <source>eSMilePerHour_Alternate1</source>
        <translation>miles par heure</translation>
    </message>
    <message>
        <source>eSCentimeterPerMinute_Alternate1</source>
        <translation>centimètres par minute</translation>
    </message>
    <message>
        <source>eSCentimeterPerMinute_Alternate2</source>
        <translation>centimetre par minute</translation>
    </message>
    <message>
        <source>eSCentimeterPerMinute_Alternate3</source>
        <translation>centimetres par minute</translation>
    </message>
    <message>
        <source>eSFootPerHour_Alternate1</source>
        <translation>pieds par heure</translation>
    </message>
    <message>
        <source>eSInchPerHour_Alternate1</source>
        <translation>pouces par heure</translation>
    </message>
    <message>
        <source>eSKilometerPerMinute_Alternate1</source>
        <translation>kilomètres par minute</translation>
    </message>
    <message>
        <source>eSKilometerPerMinute_Alternate2</source>
        <translation>kilometre par minute</translation>
    </message>
    <message>
        <source>eSKilometerPerMinute_Alternate3</source>
        <translation>kilometres par minute</translation>
    </message>
    <message>
        <source>eSKilometerPerSecond_Alternate1</source>
        <translation>kilomètres par seconde</translation>
    </message>
    <message>
        <source>eSKilometerPerSecond_Alternate2</source>
        <translation>kilometre par seconde</translation>
    </message>
    <message>
        <source>eSKilometerPerSecond_Alternate3</source>
        <translation>kilometres par seconde</translation>
    </message>
    <message>
        <source>eSKnot_Alternate1</source>
        <translation>nœuds</translation>
    </message>
    <message>
        <source>eSKnot_Alternate2</source>
        <translation>noeud</translation>
    </message>
    <message>
        <source>eSKnot_Alternate3</source>
        <translation>noeuds</translation>
    </message>
    <message>
        <source>eSkn_Alternate1</source>
        <translation>kn</translation>
    </message>
    <message>
        <source>eSMeterPerHour_Alternate1</source>
        <translation>mètres par heure</translation>
    </message>
    <message>
        <source>eSMeterPerHour_Alternate2</source>
        <translation>metre par heure</translation>
    </message>
    <message>
        <source>eSMeterPerHour_Alternate3</source>
        <translation>metres par heure</translation>
    </message>
    <message>
        <source>eSMilePerMinute_Alternate1</source>
        <translation>miles par minute</translation>
    </message>
    <message>
        <source>eSMilePerSecond_Alternate1</source>
        <translation>miles par seconde</translation>
    </message>
    <message>
        <source>eSSurveyMilePerHour_Alternate1</source>
        <translation>miles d&apos;arpentage par heure</translation>
    </message>
    <message>
        <source>eSSurveyFootPerSecond_Alternate1</source>
        <translation>pieds d&apos;arpentage par seconde</translation>
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
        <source>eSmuV_Alternate1</source>
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
        <translation>litres</translation>
    </message>
    <message>
        <source>eSLiter_Alternate2</source>
        <translation>liter</translation>
    </message>
    <message>
        <source>eSLiter_Alternate3</source>
        <translation>liters</translation>
    </message>
    <message>
        <source>eSL_Alternate1</source>
        <translation>l</translation>
    </message>
    <message>
        <source>eSL_Alternate2</source>
        <translation>lt</translation>
    </message>
    <message>
        <source>eSCubicCentimeter_Alternate1</source>
        <translation>centimètres cubes</translation>
    </message>
    <message>
        <source>eSCubicCentimeter_Alternate2</source>
        <translation>centimetre cube</translation>
    </message>
    <message>
        <source>eSCubicCentimeter_Alternate3</source>
        <translation>centimetres cubes</translation>
    </message>
    <message>
        <source>eSTablespoon_Alternate1</source>
        <translation>cuillères à soupe</translation>
    </message>
    <message>
        <source>eSTablespoon_Alternate2</source>
        <translation>cuillere a soupe</translation>
    </message>
    <message>
        <source>eSTablespoon_Alternate3</source>
        <translation>cuilleres a soupe</translation>
    </message>
    <message>
        <source>eStbsp_Alternate1</source>
        <translation>c.à.s.</translation>
    </message>
    <message>
        <source>eStbsp_Alternate2</source>
        <translation>càs</translation>
    </message>
    <message>
        <source>eStbsp_Alternate3</source>
        <translation>cuillerée à soupe</translation>
    </message>
    <message>
        <source>eStbsp_Alternate4</source>
        <translation>cuillerées à soupe</translation>
    </message>
    <message>
        <source>eSfloz_US_Alternate1</source>
        <translation>fl oz</translation>
    </message>
    <message>
        <source>eSfloz_US_Alternate2</source>
        <translation>oz liq</translation>
    </message>
    <message>
        <source>eSfloz_US_Alternate3</source>
        <translation>once liquide</translation>
    </message>
    <message>
        <source>eSfloz_US_Alternate4</source>
        <translation>onces liquides</translation>
    </message>
    <message>
        <source>eSCup_Alternate1</source>
        <translation>tasses</translation>
    </message>
    <message>
        <source>eSgal_Imp_Alternate1</source>
        <translation>gal imp</translation>
    </message>
    <message>
        <source>eSgal_Imp_Alternate2</source>
        <translation>gal imp.</translation>
    </message>
    <message>
        <source>eSgal_Imp_Alternate3</source>
        <translation>gallon impérial</translation>
    </message>
    <message>
        <source>eSgal_Imp_Alternate4</source>
        <translation>gallons impériaux</translation>
    </message>
    <message>
        <source>eSgal_US_fluid_Alternate1</source>
        <translation>gal</translation>
    </message>
    <message>
        <source>eSgal_US_fluid_Alternate2</source>
        <translation>gallon</translation>
    </message>
    <message>
        <source>eSgal_US_fluid_Alternate3</source>
        <translation>gallons</translation>
    </message>
    <message>
        <source>eSgal_US_fluid_Alternate4</source>
        <translation>gal US</translation>
    </message>
    <message>
        <source>eSBeerGallon_Alternate1</source>
        <translation>gallons à bière</translation>
    </message>
    <message>
        <source>eSBeerGallon_Alternate2</source>
        <translation>gallon a biere</translation>
    </message>
    <message>
        <source>eSBeerGallon_Alternate3</source>
        <translation>gallons a biere</translation>
    </message>
    <message>
        <source>eSCentiliter_Alternate1</source>
        <translation>centilitres</translation>
    </message>
    <message>
        <source>eScL_Alternate1</source>
        <translation>cl</translation>
    </message>
    <message>
        <source>eSCubicFoot_Alternate1</source>
        <translation>pieds cubes</translation>
    </message>
    <message>
        <source>eSft3_Alternate1</source>
        <translation>ft³</translation>
    </message>
    <message>
        <source>eSft3_Alternate2</source>
        <translation>ft3</translation>
    </message>
    <message>
        <source>eSft3_Alternate3</source>
        <translation>cu ft</translation>
    </message>
    <message>
        <source>eSft3_Alternate4</source>
        <translation>pi. cu.</translation>
    </message>
    <message>
        <source>eSCubicInch_Alternate1</source>
        <translation>pouces cubes</translation>
    </message>
    <message>
        <source>eSin3_Alternate1</source>
        <translation>in³</translation>
    </message>
    <message>
        <source>eSin3_Alternate2</source>
        <translation>in3</translation>
    </message>
    <message>
        <source>eSin3_Alternate3</source>
        <translation>cu in</translation>
    </message>
    <message>
        <source>eSCubicMeter_Alternate1</source>
        <translation>mètres cubes</translation>
    </message>
    <message>
        <source>eSCubicMeter_Alternate2</source>
        <translation>metre cube</translation>
    </message>
    <message>
        <source>eSCubicMeter_Alternate3</source>
        <translation>metres cubes</translation>
    </message>
    <message>
        <source>eSCubicYard_Alternate1</source>
        <translation>yards cubes</translation>
    </message>
    <message>
        <source>eSyd3_Alternate1</source>
        <translation>cu yd</translation>
    </message>
    <message>
        <source>eSyd3_Alternate2</source>
        <translation>vg³</translation>
    </message>
    <message>
        <source>eSyd3_Alternate3</source>
        <translation>vg3</translation>
    </message>
    <message>
        <source>eSFluidDram_Alternate1</source>
        <translation>drachmes liquides</translation>
    </message>
    <message>
        <source>eSMicroliter_Alternate1</source>
        <translation>microlitres</translation>
    </message>
    <message>
        <source>eSmuL_Alternate1</source>
        <translation>μL</translation>
    </message>
    <message>
        <source>eSmuL_Alternate2</source>
        <translation>µl</translation>
    </message>
    <message>
        <source>eSmuL_Alternate3</source>
        <translation>μl</translation>
    </message>
    <message>
        <source>eSMilliliter_Alternate1</source>
        <translation>millilitres</translation>
    </message>
    <message>
        <source>eSmL_Alternate1</source>
        <translation>ml</translation>
    </message>
    <message>
        <source>eSTeaspoon_Alternate1</source>
        <translation>cuillères à café</translation>
    </message>
    <message>
        <source>eSTeaspoon_Alternate2</source>
        <translation>cuillere a cafe</translation>
    </message>
    <message>
        <source>eSTeaspoon_Alternate3</source>
        <translation>cuilleres a cafe</translation>
    </message>
    <message>
        <source>eStsp_Alternate1</source>
        <translation>c.à.c.</translation>
    </message>
    <message>
        <source>eStsp_Alternate2</source>
        <translation>càc</translation>
    </message>
    <message>
        <source>eStsp_Alternate3</source>
        <translation>cuillerée à café</translation>
    </message>
    <message>
        <source>eStsp_Alternate4</source>
        <translation>cuillerées à café</translation>
    </message>
    <message>
        <source>eSCubicMillimeter_Alternate1</source>
        <translation>millimètres cubes</translation>
    </message>
    <message>
        <source>eSCubicMillimeter_Alternate2</source>
        <translation>millimetre cube</translation>
    </message>
    <message>
        <source>eSCubicMillimeter_Alternate3</source>
        <translation>millimetres cubes</translation>
    </message>
    <message>
        <source>eSbbl_Alternate1</source>
        <translation>baril</translation>
    </message>
    <message>
        <source>eSbbl_Alternate2</source>
        <translation>barils</translation>
    </message>
    <message>
        <source>eSBoardFoot_Alternate1</source>
        <translation>pieds-planche</translation>
    </message>
    <message>
        <source>eSDecistere_Alternate1</source>
        <translation>décistères</translation>
    </message>
    <message>
        <source>eSDecistere_Alternate2</source>
        <translation>decistere</translation>
    </message>
    <message>
        <source>eSDecistere_Alternate3</source>
        <translation>decisteres</translation>
    </message>
    <message>
        <source>eSDekaliter_Alternate1</source>
        <translation>décalitres</translation>
    </message>
    <message>
        <source>eSDekaliter_Alternate2</source>
        <translation>decalitre</translation>
    </message>
    <message>
        <source>eSDekaliter_Alternate3</source>
        <translation>decalitres</translation>
    </message>
    <message>
        <source>eSdaL_Alternate1</source>
        <translation>dal</translation>
    </message>
    <message>
        <source>eSDekastere_Alternate1</source>
        <translation>décastères</translation>
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
        <translation>drachmes</translation>
    </message>
    <message>
        <source>eSFirkin_Alternate1</source>
        <translation>firkins</translation>
    </message>
    <message>
        <source>eSCubicAngstrom_Alternate1</source>
        <translation>ångströms cubes</translation>
    </message>
    <message>
        <source>eSCubicAngstrom_Alternate2</source>
        <translation>angstrom cube</translation>
    </message>
    <message>
        <source>eSCubicAngstrom_Alternate3</source>
        <translation>angstroms cubes</translation>
    </message>
    <message>
        <source>eSCubicAstronomicalUnit_Alternate1</source>
        <translation>unités astronomiques cubes</translation>
    </message>
    <message>
        <source>eSCubicAstronomicalUnit_Alternate2</source>
        <translation>unite astronomique cube</translation>
    </message>
    <message>
        <source>eSCubicAstronomicalUnit_Alternate3</source>
        <translation>unites astronomiques cubes</translation>
    </message>
    <message>
        <source>eSCubicBolt_Alternate1</source>
        <translation>bolts cubes</translation>
    </message>
    <message>
        <source>eSCubicCable_Alternate1</source>
        <translation>encablures cubes</translation>
    </message>
    <message>
        <source>eSCubicCaliber_Alternate1</source>
        <translation>calibres cubes</translation>
    </message>
    <message>
        <source>eSCubicChain_Alternate1</source>
        <translation>chaînes cubes</translation>
    </message>
    <message>
        <source>eSCubicChain_Alternate2</source>
        <translation>chaine cube</translation>
    </message>
    <message>
        <source>eSCubicChain_Alternate3</source>
        <translation>chaines cubes</translation>
    </message>
    <message>
        <source>eSCubicCubit_Alternate1</source>
        <translation>coudées cubes</translation>
    </message>
    <message>
        <source>eSCubicCubit_Alternate2</source>
        <translation>coudee cube</translation>
    </message>
    <message>
        <source>eSCubicCubit_Alternate3</source>
        <translation>coudees cubes</translation>
    </message>
    <message>
        <source>eSCubicFathom_Alternate1</source>
        <translation>brasses cubes</translation>
    </message>
    <message>
        <source>eSCubicFurlong_Alternate1</source>
        <translation>furlongs cubes</translation>
    </message>
    <message>
        <source>eSCubicGigameter_Alternate1</source>
        <translation>gigamètres cubes</translation>
    </message>
    <message>
        <source>eSCubicGigameter_Alternate2</source>
        <translation>gigametre cube</translation>
    </message>
    <message>
        <source>eSCubicGigameter_Alternate3</source>
        <translation>gigametres cubes</translation>
    </message>
    <message>
        <source>eSCubicHand_Alternate1</source>
        <translation>mains cubes</translation>
    </message>
    <message>
        <source>eSCubicHectometer_Alternate1</source>
        <translation>hectomètres cubes</translation>
    </message>
    <message>
        <source>eSCubicHectometer_Alternate2</source>
        <translation>hectometre cube</translation>
    </message>
    <message>
        <source>eSCubicHectometer_Alternate3</source>
        <translation>hectometres cubes</translation>
    </message>
    <message>
        <source>eSCubicNauticalLeague_Alternate1</source>
        <translation>lieues marines cubes</translation>
    </message>
    <message>
        <source>eSCubicLightYear_Alternate1</source>
        <translation>années-lumière cubes</translation>
    </message>
    <message>
        <source>eSCubicLightYear_Alternate2</source>
        <translation>annee-lumiere cube</translation>
    </message>
    <message>
        <source>eSCubicLightYear_Alternate3</source>
        <translation>annees-lumiere cubes</translation>
    </message>
    <message>
        <source>eSCubicLink_Alternate1</source>
        <translation>chaînons cubes</translation>
    </message>
    <message>
        <source>eSCubicLink_Alternate2</source>
        <translation>chainon cube</translation>
    </message>
    <message>
        <source>eSCubicLink_Alternate3</source>
        <translation>chainons cubes</translation>
    </message>
    <message>
        <source>eSCubicMil_Alternate1</source>
        <translation>mils cubes</translation>
    </message>
    <message>
        <source>eSCubicMile_Alternate1</source>
        <translation>miles cubes</translation>
    </message>
    <message>
        <source>eSCubicNauticalMile_Alternate1</source>
        <translation>milles marins cubes</translation>
    </message>
    <message>
        <source>eSCubicMillimicron_Alternate1</source>
        <translation>millimicrons cubes</translation>
    </message>
    <message>
        <source>eSCubicPace_Alternate1</source>
        <translation>pas cubes</translation>
    </message>
    <message>
        <source>eSCubicPalm_Alternate1</source>
        <translation>palmes cubes</translation>
    </message>
    <message>
        <source>eSCubicParsec_Alternate1</source>
        <translation>parsecs cubes</translation>
    </message>
    <message>
        <source>eSCubicPerch_Alternate1</source>
        <translation>perches cubes</translation>
    </message>
    <message>
        <source>eSCubicRope_Alternate1</source>
        <translation>ropes cubes</translation>
    </message>
    <message>
        <source>eSCubicSkein_Alternate1</source>
        <translation>écheveaux cubes</translation>
    </message>
    <message>
        <source>eSCubicSkein_Alternate2</source>
        <translation>echeveau cube</translation>
    </message>
    <message>
        <source>eSCubicSkein_Alternate3</source>
        <translation>echeveaux cubes</translation>
    </message>
    <message>
        <source>eSCubicSpan_Alternate1</source>
        <translation>empans cubes</translation>
    </message>
    <message>
        <source>eSCubicSurveyFoot_Alternate1</source>
        <translation>pieds cubes d&apos;arpentage</translation>
    </message>
    <message>
        <source>eSCubicDecimeter_Alternate1</source>
        <translation>décimètres cubes</translation>
    </message>
    <message>
        <source>eSCubicDecimeter_Alternate2</source>
        <translation>decimetre cube</translation>
    </message>
    <message>
        <source>eSCubicDecimeter_Alternate3</source>
        <translation>decimetres cubes</translation>
    </message>
    <message>
        <source>eSTun_Alternate1</source>
        <translation>tonneaux</translation>
    </message>
    <message>
        <source>eSPeck_Alternate1</source>
        <translation>pecks</translation>
    </message>
    <message>
        <source>eSKiloliter_Alternate1</source>
        <translation>kilolitres</translation>
    </message>
    <message>
        <source>eSkL_Alternate1</source>
        <translation>kl</translation>
    </message>
    <message>
        <source>eSCubicSurveyYard_Alternate1</source>
        <translation>yards cubes d&apos;arpentage</translation>
    </message>
    <message>
        <source>eSCordFoot_Alternate1</source>
        <translation>pieds de corde</translation>
    </message>
    <message>
        <source>eSRegisterTon_Alternate1</source>
        <translation>tonneaux de jauge</translation>
    </message>
    <message>
        <source>eSAcreFoot_Alternate1</source>
        <translation>acres-pieds</translation>
    </message>
    <message>
        <source>eSAcreInch_Alternate1</source>
        <translation>acres-pouces</translation>
    </message>
    <message>
        <source>eSCubicMicroinch_Alternate1</source>
        <translation>micropouces cubes</translation>
    </message>
    <message>
        <source>eSCubicMicrometer_Alternate1</source>
        <translation>micromètres cubes</translation>
    </message>
    <message>
        <source>eSCubicMicrometer_Alternate2</source>
        <translation>micrometre cube</translation>
    </message>
    <message>
        <source>eSCubicMicrometer_Alternate3</source>
        <translation>micrometres cubes</translation>
    </message>
    <message>
        <source>eSCubicKilometer_Alternate1</source>
        <translation>kilomètres cubes</translation>
    </message>
    <message>
        <source>eSCubicKilometer_Alternate2</source>
        <translation>kilometre cube</translation>
    </message>
    <message>
        <source>eSCubicKilometer_Alternate3</source>
        <translation>kilometres cubes</translation>
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
        <translation>pi^3/h</translation>
    </message>
    <message>
        <source>eSft3Permin_Alternate1</source>
        <translation>pi^3/min</translation>
    </message>
    <message>
        <source>eSft3Pers_Alternate1</source>
        <translation>pi^3/s</translation>
    </message>
    <message>
        <source>eSin3Permin_Alternate1</source>
        <translation>po^3/min</translation>
    </message>
    <message>
        <source>eSm3Perh_Alternate1</source>
        <translation>m^3/h</translation>
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
        <source>eSft3Perd_Alternate1</source>
        <translation>pi^3/j</translation>
    </message>
    <message>
        <source>eSm3Perd_Alternate1</source>
        <translation>m^3/j</translation>
    </message>
    <message>
        <source>eSyd3Permin_Alternate1</source>
        <translation>yd^3/min</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecond_Alternate1</source>
        <translation>mètres cubes par seconde</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecond_Alternate2</source>
        <translation>metre cube par seconde</translation>
    </message>
    <message>
        <source>eSCubicMeterPerSecond_Alternate3</source>
        <translation>metres cubes par seconde</translation>
    </message>
    <message>
        <source>eSLiterPerSecond_Alternate1</source>
        <translation>litres par seconde</translation>
    </message>
    <message>
        <source>eSLiterPerMinute_Alternate1</source>
        <translation>litres par minute</translation>
    </message>
    <message>
        <source>eSLiterPerHour_Alternate1</source>
        <translation>litres par heure</translation>
    </message>
    <message>
        <source>eSGallonPerSecond_Alternate1</source>
        <translation>gallons par seconde</translation>
    </message>
    <message>
        <source>eSGallonPerMinute_Alternate1</source>
        <translation>gallons par minute</translation>
    </message>
    <message>
        <source>eSGallonPerHour_Alternate1</source>
        <translation>gallons par heure</translation>
    </message>
    <message>
        <source>eSGallonPerDay_Alternate1</source>
        <translation>gallons par jour</translation>
    </message>
    <message>
        <source>eSMilliliterPerMinute_Alternate1</source>
        <translation>millilitres par minute</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerMinute_Alternate1</source>
        <translation>centimètres cubes par minute</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerMinute_Alternate2</source>
        <translation>centimetre cube par minute</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerMinute_Alternate3</source>
        <translation>centimetres cubes par minute</translation>
    </message>
    <message>
        <source>eSCubicFootPerHour_Alternate1</source>
        <translation>pieds cubes par heure</translation>
    </message>
    <message>
        <source>eSCubicFootPerMinute_Alternate1</source>
        <translation>pieds cubes par minute</translation>
    </message>
    <message>
        <source>eSCubicFootPerSecond_Alternate1</source>
        <translation>pieds cubes par seconde</translation>
    </message>
    <message>
        <source>eSCubicInchPerMinute_Alternate1</source>
        <translation>pouces cubes par minute</translation>
    </message>
    <message>
        <source>eSCubicMeterPerHour_Alternate1</source>
        <translation>mètres cubes par heure</translation>
    </message>
    <message>
        <source>eSCubicMeterPerHour_Alternate2</source>
        <translation>metre cube par heure</translation>
    </message>
    <message>
        <source>eSCubicMeterPerHour_Alternate3</source>
        <translation>metres cubes par heure</translation>
    </message>
    <message>
        <source>eSCubicMeterPerMinute_Alternate1</source>
        <translation>mètres cubes par minute</translation>
    </message>
    <message>
        <source>eSCubicMeterPerMinute_Alternate2</source>
        <translation>metre cube par minute</translation>
    </message>
    <message>
        <source>eSCubicMeterPerMinute_Alternate3</source>
        <translation>metres cubes par minute</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerSecond_Alternate1</source>
        <translation>centimètres cubes par seconde</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerSecond_Alternate2</source>
        <translation>centimetre cube par seconde</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerSecond_Alternate3</source>
        <translation>centimetres cubes par seconde</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerHour_Alternate1</source>
        <translation>centimètres cubes par heure</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerHour_Alternate2</source>
        <translation>centimetre cube par heure</translation>
    </message>
    <message>
        <source>eSCubicCentimeterPerHour_Alternate3</source>
        <translation>centimetres cubes par heure</translation>
    </message>
    <message>
        <source>eSUSGallonPerHour_Alternate1</source>
        <translation>gallons US par heure</translation>
    </message>
    <message>
        <source>eSUSGallonPerSecond_Alternate1</source>
        <translation>gallons US par seconde</translation>
    </message>
    <message>
        <source>eSImpGallonPerDay_Alternate1</source>
        <translation>gallons impériaux par jour</translation>
    </message>
    <message>
        <source>eSImpGallonPerDay_Alternate2</source>
        <translation>gallon imperial par jour</translation>
    </message>
    <message>
        <source>eSImpGallonPerDay_Alternate3</source>
        <translation>gallons imperiaux par jour</translation>
    </message>
    <message>
        <source>eSImpGallonPerHour_Alternate1</source>
        <translation>gallons impériaux par heure</translation>
    </message>
    <message>
        <source>eSImpGallonPerHour_Alternate2</source>
        <translation>gallon imperial par heure</translation>
    </message>
    <message>
        <source>eSImpGallonPerHour_Alternate3</source>
        <translation>gallons imperiaux par heure</translation>
    </message>
    <message>
        <source>eSImpGallonPerMinute_Alternate1</source>
        <translation>gallons impériaux par minute</translation>
    </message>
    <message>
        <source>eSImpGallonPerMinute_Alternate2</source>
        <translation>gallon imperial par minute</translation>
    </message>
    <message>
        <source>eSImpGallonPerMinute_Alternate3</source>
        <translation>gallons imperiaux par minute</translation>
    </message>
    <message>
        <source>eSImpGallonPerSecond_Alternate1</source>
        <translation>gallons impériaux par seconde</translation>
    </message>
    <message>
        <source>eSImpGallonPerSecond_Alternate2</source>
        <translation>gallon imperial par seconde</translation>
    </message>
    <message>
        <source>eSImpGallonPerSecond_Alternate3</source>
        <translation>gallons imperiaux par seconde</translation>
    </message>
    <message>
        <source>eSImpMillionGallonPerDay_Alternate1</source>
        <translation>millions de gallons impériaux par jour</translation>
    </message>
    <message>
        <source>eSImpMillionGallonPerDay_Alternate2</source>
        <translation>million de gallons imperiaux par jour</translation>
    </message>
    <message>
        <source>eSImpMillionGallonPerDay_Alternate3</source>
        <translation>millions de gallons imperiaux par jour</translation>
    </message>
    <message>
        <source>eSLiterPerDay_Alternate1</source>
        <translation>litres par jour</translation>
    </message>
    <message>
        <source>eSMillionLiterPerDay_Alternate1</source>
        <translation>millions de litres par jour</translation>
    </message>
    <message>
        <source>eSUSGallonPerDay_Alternate1</source>
        <translation>gallons US par jour</translation>
    </message>
    <message>
        <source>eSUSMillionGallonPerDay_Alternate1</source>
        <translation>millions de gallons US par jour</translation>
    </message>
    <message>
        <source>eSCubicFootPerDay_Alternate1</source>
        <translation>pieds cubes par jour</translation>
    </message>
    <message>
        <source>eSCubicMeterPerDay_Alternate1</source>
        <translation>mètres cubes par jour</translation>
    </message>
    <message>
        <source>eSCubicMeterPerDay_Alternate2</source>
        <translation>metre cube par jour</translation>
    </message>
    <message>
        <source>eSCubicMeterPerDay_Alternate3</source>
        <translation>metres cubes par jour</translation>
    </message>
    <message>
        <source>eSCubicYardPerMinute_Alternate1</source>
        <translation>yards cubes par minute</translation>
    </message>
    <message>
        <source>eSAcreFootPerDay_Alternate1</source>
        <translation>acres-pieds par jour</translation>
    </message>
    <message>
        <source>eSAcreFootPerHour_Alternate1</source>
        <translation>acres-pieds par heure</translation>
    </message>
    <message>
        <source>eSAcreFootPerMinute_Alternate1</source>
        <translation>acres-pieds par minute</translation>
    </message>
    <message>
        <source>eSAcreInchPerHour_Alternate1</source>
        <translation>acres-pouces par heure</translation>
    </message>
    <message>
        <source>eSAcreInchPerMinute_Alternate1</source>
        <translation>acres-pouces par minute</translation>
    </message>
    <message>
        <source>eSCubicSurveyFootPerSecond_Alternate1</source>
        <translation>pieds cubes d&apos;arpentage par seconde</translation>
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
