<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>NumberFormat</name>
    <message>
        <source>Exponential</source>
        <translation>Exponentiell</translation>
    </message>
    <message>
        <source>exponential</source>
        <translation>exponentiell</translation>
    </message>
    <message>
        <source>Fixed Point</source>
        <translation>Festkomma</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>general</source>
        <translation>allgemein</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Bruch</translation>
    </message>
</context>
<context>
    <name>UnitGroup</name>
    <message>
        <source>Dimensionless</source>
        <translation>Dimensionslos</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masse</translation>
    </message>
    <message>
        <source>Linear Weight</source>
        <translation>Längenbezogene Masse</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>Stoffmenge</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>Raumwinkel</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>Flächenbezogene Masse</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Konzentration</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>Anteil (ppm, ppb)</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>Elektrische Stromstärke</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>Elektrische Ladung</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>Elektrische Kapazität</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichte</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>Wichte</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energie</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>Volumenstrom</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>Massenstrom</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>Fördermenge pro Hub</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Kraft</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>Streckenlast</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>Induktivität</translation>
    </message>
    <message>
        <source>Magnetic Flux Density</source>
        <translation>Magnetische Flussdichte</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>Magnetischer Fluss</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>Leistung pro Volumeneinheit</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>Leistung pro Masseneinheit</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>Leistung pro Flächeneinheit</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>Kraftmaßstab</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>Streckenlastmaßstab</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>Flächenlastmaßstab</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>Streckenmoment</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>Elektrischer Widerstand</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>Elektrischer Leitwert</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>Datenmenge</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>Temperaturänderungsrate</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>Drehmoment</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>Dynamische Viskosität</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>Kinematische Viskosität</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Beschleunigung</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Elektrische Spannung</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>Elektrisches Potenzial</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>Lichtstärke</translation>
    </message>
    <message>
        <source>Illuminance</source>
        <translation>Beleuchtungsstärke</translation>
    </message>
    <message>
        <source>Luminous Energy</source>
        <translation>Lichtmenge</translation>
    </message>
    <message>
        <source>Luminous Flux</source>
        <translation>Lichtstrom</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Leuchtdichte</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>Spezifische Lichtausstrahlung</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>Lichtausbeute</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Reibungsdruckgefälle</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>Drehfedersteifigkeit (punktförmig)</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>Drehfedersteifigkeit (linienförmig)</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>Wärmeübergangskoeffizient</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>Luftstromdichte</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>Luftstrom pro Volumen</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>Luftstrom pro Leistung</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>Fläche pro Leistung</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>Momentenmaßstab</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>Wärmeausdehnungskoeffizient</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>Magnetische Feldstärke</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>Wärmeleitfähigkeit</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>Spezifische Wärmekapazität</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>Dampfdurchlässigkeit</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>Spezifischer elektrischer Widerstand</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>Spezifische Verdampfungswärme</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>Einheitenlos</translation>
    </message>
    <message>
        <source>meter</source>
        <translatorcomment>CLDR: Meter</translatorcomment>
        <translation>Meter</translation>
    </message>
    <message>
        <source>yottameter</source>
        <translatorcomment>CLDR: Yottameter</translatorcomment>
        <translation>Yottameter</translation>
    </message>
    <message>
        <source>zettameter</source>
        <translatorcomment>CLDR: Zettameter</translatorcomment>
        <translation>Zettameter</translation>
    </message>
    <message>
        <source>exameter</source>
        <translatorcomment>CLDR: Exameter</translatorcomment>
        <translation>Exameter</translation>
    </message>
    <message>
        <source>petameter</source>
        <translatorcomment>CLDR: Petameter</translatorcomment>
        <translation>Petameter</translation>
    </message>
    <message>
        <source>terameter</source>
        <translatorcomment>CLDR: Terameter</translatorcomment>
        <translation>Terameter</translation>
    </message>
    <message>
        <source>gigameter</source>
        <translatorcomment>CLDR: Gigameter</translatorcomment>
        <translation>Gigameter</translation>
    </message>
    <message>
        <source>megameter</source>
        <translatorcomment>CLDR: Megameter</translatorcomment>
        <translation>Megameter</translation>
    </message>
    <message>
        <source>kilometer</source>
        <translatorcomment>CLDR: Kilometer</translatorcomment>
        <translation>Kilometer</translation>
    </message>
    <message>
        <source>hectometer</source>
        <translatorcomment>CLDR: Hektometer</translatorcomment>
        <translation>Hektometer</translation>
    </message>
    <message>
        <source>decameter</source>
        <translatorcomment>CLDR: Dekameter</translatorcomment>
        <translation>Dekameter</translation>
    </message>
    <message>
        <source>decimeter</source>
        <translatorcomment>CLDR: Dezimeter</translatorcomment>
        <translation>Dezimeter</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translatorcomment>CLDR: Zentimeter</translatorcomment>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>millimeter</source>
        <translatorcomment>CLDR: Millimeter</translatorcomment>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>micrometer</source>
        <translatorcomment>CLDR: Mikrometer</translatorcomment>
        <translation>Mikrometer</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translatorcomment>CLDR: Nanometer</translatorcomment>
        <translation>Nanometer</translation>
    </message>
    <message>
        <source>picometer</source>
        <translatorcomment>CLDR: Pikometer</translatorcomment>
        <translation>Pikometer</translation>
    </message>
    <message>
        <source>femtometer</source>
        <translatorcomment>CLDR: Femtometer</translatorcomment>
        <translation>Femtometer</translation>
    </message>
    <message>
        <source>attometer</source>
        <translatorcomment>CLDR: Attometer</translatorcomment>
        <translation>Attometer</translation>
    </message>
    <message>
        <source>zeptometer</source>
        <translatorcomment>CLDR: Zeptometer</translatorcomment>
        <translation>Zeptometer</translation>
    </message>
    <message>
        <source>yoctometer</source>
        <translatorcomment>CLDR: Yoktometer</translatorcomment>
        <translation>Yoktometer</translation>
    </message>
    <message>
        <source>inch</source>
        <translatorcomment>CLDR: Zoll</translatorcomment>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>foot</source>
        <translatorcomment>CLDR: Fuß</translatorcomment>
        <translation>Fuß</translation>
    </message>
    <message>
        <source>foot (Benoit)</source>
        <translation>Fuß (Benoit)</translation>
    </message>
    <message>
        <source>foot (Clarke&apos;s; Cape)</source>
        <translation>Fuß (Clarke; Kap)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>Fuß (indisch)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>Fuß (Sears)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>Fuß (US-Vermessung)</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: Yard</translatorcomment>
        <translation>Yard</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>Chain</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>Chain (Ramsden; Ingenieur)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: Furlong</translatorcomment>
        <translation>Furlong</translation>
    </message>
    <message>
        <source>mile</source>
        <translatorcomment>CLDR: Meile</translatorcomment>
        <translation>Meile</translation>
    </message>
    <message>
        <source>geographical mile</source>
        <translation>Geographische Meile</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>Meile (US-Vermessung)</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: Seemeile</translatorcomment>
        <translation>Seemeile</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>Landmeile</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>Seemeile (Admiralität)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>Mikron</translation>
    </message>
    <message>
        <source>microinch</source>
        <translatorcomment>CLDR: Mikrozoll</translatorcomment>
        <translation>Mikrozoll</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>Ångström</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: Astronomische Einheit</translatorcomment>
        <translation>Astronomische Einheit</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>Kabellänge</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>Elle</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: Faden</translatorcomment>
        <translation>Faden</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>Hand</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: Lichtjahr</translatorcomment>
        <translation>Lichtjahr</translation>
    </message>
    <message>
        <source>span</source>
        <translation>Spanne</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>Spanne (Tuchmaß)</translation>
    </message>
    <message>
        <source>parsec</source>
        <translatorcomment>CLDR: Parsec</translatorcomment>
        <translation>Parsec</translation>
    </message>
    <message>
        <source>nautical league</source>
        <translation>League (nautisch)</translation>
    </message>
    <message>
        <source>league</source>
        <translation>League</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>Mil</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>Skandinavische Meile (Schweden und Norwegen)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>Link (Ramsden; Ingenieur)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>Handbreite</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>Rute</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>Rope</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>Skein</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>Kaliber</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>Zoll (US-Vermessung)</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>Yard (US-Vermessung)</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>Rute (US-Vermessung)</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>Bolt</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: Quadratmeter</translatorcomment>
        <translation>Quadratmeter</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: Quadratzoll</translatorcomment>
        <translation>Quadratzoll</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: Quadratfuß</translatorcomment>
        <translation>Quadratfuß</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: Quadratyard</translatorcomment>
        <translation>Quadratyard</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: Acre</translatorcomment>
        <translation>Acre</translation>
    </message>
    <message>
        <source>section</source>
        <translation>Section</translation>
    </message>
    <message>
        <source>township</source>
        <translation>Township</translation>
    </message>
    <message>
        <source>hectare</source>
        <translatorcomment>CLDR: Hektar</translatorcomment>
        <translation>Hektar</translation>
    </message>
    <message>
        <source>square kilometer</source>
        <translatorcomment>CLDR: Quadratkilometer</translatorcomment>
        <translation>Quadratkilometer</translation>
    </message>
    <message>
        <source>square mile</source>
        <translatorcomment>CLDR: Quadratmeile</translatorcomment>
        <translation>Quadratmeile</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translatorcomment>CLDR: Quadratzentimeter</translatorcomment>
        <translation>Quadratzentimeter</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translatorcomment>CLDR: Quadratmillimeter</translatorcomment>
        <translation>Quadratmillimeter</translation>
    </message>
    <message>
        <source>circular mil</source>
        <translation>Circular Mil</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>Kilo-Circular-Mil</translation>
    </message>
    <message>
        <source>are</source>
        <translation>Ar</translation>
    </message>
    <message>
        <source>barn</source>
        <translation>Barn</translation>
    </message>
    <message>
        <source>centare</source>
        <translation>Zentiar</translation>
    </message>
    <message>
        <source>square angstrom</source>
        <translation>Quadrat-Ångström</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>Quadrat-Bolt</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>Quadrat-Kabellänge</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>Quadratkaliber</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>Quadratelle</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translatorcomment>CLDR: Quadratdezimeter</translatorcomment>
        <translation>Quadratdezimeter</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translatorcomment>CLDR: Quadratfaden</translatorcomment>
        <translation>Quadratfaden</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translatorcomment>CLDR: Quadratfurlong</translatorcomment>
        <translation>Quadratfurlong</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translatorcomment>CLDR: Quadratgigameter</translatorcomment>
        <translation>Quadratgigameter</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>Quadrathand</translation>
    </message>
    <message>
        <source>square nautical league</source>
        <translation>Quadrat-League (nautisch)</translation>
    </message>
    <message>
        <source>square league (statute)</source>
        <translation>Quadrat-League (Landmaß)</translation>
    </message>
    <message>
        <source>square light-year</source>
        <translatorcomment>CLDR: Quadratlichtjahr</translatorcomment>
        <translation>Quadratlichtjahr</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>Quadrat-Link</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>Quadratmikron</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>Quadratseemeile (britisch)</translation>
    </message>
    <message>
        <source>square mile (statute)</source>
        <translation>Quadratlandmeile</translation>
    </message>
    <message>
        <source>square millimicron</source>
        <translation>Quadratmillimikron</translation>
    </message>
    <message>
        <source>square pace</source>
        <translation>Quadratschritt</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>Quadrathandbreite</translation>
    </message>
    <message>
        <source>square parsec</source>
        <translatorcomment>CLDR: Quadratparsec</translatorcomment>
        <translation>Quadratparsec</translation>
    </message>
    <message>
        <source>square perch</source>
        <translation>Quadrat-Perch</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>Quadrat-Rope</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>Quadrat-Skein</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>Quadratspanne</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>Quadratfuß (US-Vermessung)</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>Quadrat-Chain</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>Quadrat-Mil</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translation>Astronomische Einheit zum Quadrat</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>Acre (US-Vermessung)</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>Quadratyard (US-Vermessung)</translation>
    </message>
    <message>
        <source>board</source>
        <translation>Board</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>Cord</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>Quadratmikrozoll</translation>
    </message>
    <message>
        <source>square micrometer</source>
        <translatorcomment>CLDR: Quadratmikrometer</translatorcomment>
        <translation>Quadratmikrometer</translation>
    </message>
    <message>
        <source>liter</source>
        <translatorcomment>CLDR: Liter</translatorcomment>
        <translation>Liter</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translatorcomment>CLDR: Kubikzentimeter</translatorcomment>
        <translation>Kubikzentimeter</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translatorcomment>CLDR: Esslöffel</translatorcomment>
        <translation>Esslöffel</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>Esslöffel (kanadisch)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>Esslöffel (US)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>Flüssigunze (britisch)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>Flüssigunze (US)</translation>
    </message>
    <message>
        <source>cup</source>
        <translation>Tasse</translation>
    </message>
    <message>
        <source>cup (Canadian)</source>
        <translation>Tasse (kanadisch)</translation>
    </message>
    <message>
        <source>cup (U.S.)</source>
        <translation>Tasse (US)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>Quart (britisch)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>Quart (US, flüssig)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>Quart (US, trocken)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>Gallone (britisch)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>Gallone (US, flüssig; Wein)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>Gallone (US, trocken)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>Biergallone</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>Bushel (britisch)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>Bushel (US, trocken, gestrichen)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>Bushel (US, trocken, gehäuft)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: Zentiliter</translatorcomment>
        <translation>Zentiliter</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: Kubikfuß</translatorcomment>
        <translation>Kubikfuß</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: Kubikzoll</translatorcomment>
        <translation>Kubikzoll</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: Kubikmeter</translatorcomment>
        <translation>Kubikmeter</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: Kubikyard</translatorcomment>
        <translation>Kubikyard</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>Flüssigdrachme</translation>
    </message>
    <message>
        <source>microliter</source>
        <translatorcomment>CLDR: Mikroliter</translatorcomment>
        <translation>Mikroliter</translation>
    </message>
    <message>
        <source>milliliter</source>
        <translatorcomment>CLDR: Milliliter</translatorcomment>
        <translation>Milliliter</translation>
    </message>
    <message>
        <source>pint (imperial)</source>
        <translation>Pint (britisch)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>Pint (US, flüssig)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>Pint (US, trocken)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: Teelöffel</translatorcomment>
        <translation>Teelöffel</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>Teelöffel (kanadisch)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>Teelöffel (US)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>Teelöffel (britisch)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translatorcomment>CLDR: Kubikmillimeter</translatorcomment>
        <translation>Kubikmillimeter</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>Barrel (britisch)</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>Barrel (Erdöl)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>Barrel (US, trocken)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>Barrel (US, flüssig)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>Brettfuß</translation>
    </message>
    <message>
        <source>decistere</source>
        <translation>Dezister</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translatorcomment>CLDR: Dekaliter</translatorcomment>
        <translation>Dekaliter</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>Dekaster</translation>
    </message>
    <message>
        <source>dram</source>
        <translatorcomment>CLDR: Dram</translatorcomment>
        <translation>Dram</translation>
    </message>
    <message>
        <source>firkin</source>
        <translation>Firkin</translation>
    </message>
    <message>
        <source>cubic angstrom</source>
        <translation>Kubik-Ångström</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translation>Astronomische Einheit hoch drei</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>Kubik-Bolt</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>Kubik-Kabellänge</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>Kubikkaliber</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>Kubik-Chain</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>Kubikelle</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translatorcomment>CLDR: Kubikfaden</translatorcomment>
        <translation>Kubikfaden</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translatorcomment>CLDR: Kubikfurlong</translatorcomment>
        <translation>Kubikfurlong</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translatorcomment>CLDR: Kubikgigameter</translatorcomment>
        <translation>Kubikgigameter</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>Kubikhand</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translatorcomment>CLDR: Kubikhektometer</translatorcomment>
        <translation>Kubikhektometer</translation>
    </message>
    <message>
        <source>cubic nautical league</source>
        <translation>Kubik-League (nautisch)</translation>
    </message>
    <message>
        <source>cubic league (statute)</source>
        <translation>Kubik-League (Landmaß)</translation>
    </message>
    <message>
        <source>cubic light-year</source>
        <translatorcomment>CLDR: Kubiklichtjahr</translatorcomment>
        <translation>Kubiklichtjahr</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>Kubik-Link</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>Kubik-Mil</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>Kubikseemeile (britisch)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: Kubikmeile</translatorcomment>
        <translation>Kubikmeile</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translatorcomment>CLDR: Kubikseemeile</translatorcomment>
        <translation>Kubikseemeile</translation>
    </message>
    <message>
        <source>cubic mile (statute)</source>
        <translation>Kubiklandmeile</translation>
    </message>
    <message>
        <source>cubic millimicron</source>
        <translation>Kubikmillimikron</translation>
    </message>
    <message>
        <source>cubic pace</source>
        <translation>Kubikschritt</translation>
    </message>
    <message>
        <source>cubic palm</source>
        <translation>Kubikhandbreite</translation>
    </message>
    <message>
        <source>cubic parsec</source>
        <translatorcomment>CLDR: Kubikparsec</translatorcomment>
        <translation>Kubikparsec</translation>
    </message>
    <message>
        <source>cubic perch</source>
        <translation>Kubik-Perch</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>Kubik-Rope</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>Kubik-Skein</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>Kubikspanne</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>Kubikfuß (US-Vermessung)</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translatorcomment>CLDR: Kubikdezimeter</translatorcomment>
        <translation>Kubikdezimeter</translation>
    </message>
    <message>
        <source>tun</source>
        <translation>Tun</translation>
    </message>
    <message>
        <source>peck</source>
        <translation>Peck</translation>
    </message>
    <message>
        <source>peck (U.S. dry)</source>
        <translation>Peck (US, trocken)</translation>
    </message>
    <message>
        <source>peck (imperial)</source>
        <translation>Peck (britisch)</translation>
    </message>
    <message>
        <source>minim (imperial)</source>
        <translation>Minim (britisch)</translation>
    </message>
    <message>
        <source>minim (U.S.)</source>
        <translation>Minim (US)</translation>
    </message>
    <message>
        <source>kiloliter</source>
        <translatorcomment>CLDR: Kiloliter</translatorcomment>
        <translation>Kiloliter</translation>
    </message>
    <message>
        <source>hogshead (U.S.)</source>
        <translation>Hogshead (US)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>Hogshead (britisch)</translation>
    </message>
    <message>
        <source>gill (imperial)</source>
        <translation>Gill (britisch)</translation>
    </message>
    <message>
        <source>gill (U.S.)</source>
        <translation>Gill (US)</translation>
    </message>
    <message>
        <source>cubic survey yard</source>
        <translation>Kubikyard (US-Vermessung)</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>Cord-Foot</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>Cord (Brennholz)</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>Registertonne</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: Acre-Foot</translatorcomment>
        <translation>Acre-Foot</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>Acre-Inch</translation>
    </message>
    <message>
        <source>cubic microinch</source>
        <translation>Kubikmikrozoll</translation>
    </message>
    <message>
        <source>cubic micrometer</source>
        <translatorcomment>CLDR: Kubikmikrometer</translatorcomment>
        <translation>Kubikmikrometer</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translatorcomment>CLDR: Kubikkilometer</translatorcomment>
        <translation>Kubikkilometer</translation>
    </message>
    <message>
        <source>kilogram</source>
        <translatorcomment>CLDR: Kilogramm</translatorcomment>
        <translation>Kilogramm</translation>
    </message>
    <message>
        <source>gram</source>
        <translatorcomment>CLDR: Gramm</translatorcomment>
        <translation>Gramm</translation>
    </message>
    <message>
        <source>yottagram</source>
        <translatorcomment>CLDR: Yottagramm</translatorcomment>
        <translation>Yottagramm</translation>
    </message>
    <message>
        <source>zettagram</source>
        <translatorcomment>CLDR: Zettagramm</translatorcomment>
        <translation>Zettagramm</translation>
    </message>
    <message>
        <source>exagram</source>
        <translatorcomment>CLDR: Exagramm</translatorcomment>
        <translation>Exagramm</translation>
    </message>
    <message>
        <source>petagram</source>
        <translatorcomment>CLDR: Petagramm</translatorcomment>
        <translation>Petagramm</translation>
    </message>
    <message>
        <source>teragram</source>
        <translatorcomment>CLDR: Teragramm</translatorcomment>
        <translation>Teragramm</translation>
    </message>
    <message>
        <source>gigagram</source>
        <translatorcomment>CLDR: Gigagramm</translatorcomment>
        <translation>Gigagramm</translation>
    </message>
    <message>
        <source>megagram</source>
        <translatorcomment>CLDR: Megagramm</translatorcomment>
        <translation>Megagramm</translation>
    </message>
    <message>
        <source>hectogram</source>
        <translatorcomment>CLDR: Hektogramm</translatorcomment>
        <translation>Hektogramm</translation>
    </message>
    <message>
        <source>decagram</source>
        <translatorcomment>CLDR: Dekagramm</translatorcomment>
        <translation>Dekagramm</translation>
    </message>
    <message>
        <source>decigram</source>
        <translatorcomment>CLDR: Dezigramm</translatorcomment>
        <translation>Dezigramm</translation>
    </message>
    <message>
        <source>centigram</source>
        <translatorcomment>CLDR: Zentigramm</translatorcomment>
        <translation>Zentigramm</translation>
    </message>
    <message>
        <source>milligram</source>
        <translatorcomment>CLDR: Milligramm</translatorcomment>
        <translation>Milligramm</translation>
    </message>
    <message>
        <source>microgram</source>
        <translatorcomment>CLDR: Mikrogramm</translatorcomment>
        <translation>Mikrogramm</translation>
    </message>
    <message>
        <source>nanogram</source>
        <translatorcomment>CLDR: Nanogramm</translatorcomment>
        <translation>Nanogramm</translation>
    </message>
    <message>
        <source>picogram</source>
        <translatorcomment>CLDR: Pikogramm</translatorcomment>
        <translation>Pikogramm</translation>
    </message>
    <message>
        <source>femtogram</source>
        <translatorcomment>CLDR: Femtogramm</translatorcomment>
        <translation>Femtogramm</translation>
    </message>
    <message>
        <source>attogram</source>
        <translatorcomment>CLDR: Attogramm</translatorcomment>
        <translation>Attogramm</translation>
    </message>
    <message>
        <source>zeptogram</source>
        <translatorcomment>CLDR: Zeptogramm</translatorcomment>
        <translation>Zeptogramm</translation>
    </message>
    <message>
        <source>yoctogram</source>
        <translatorcomment>CLDR: Yoktogramm</translatorcomment>
        <translation>Yoktogramm</translation>
    </message>
    <message>
        <source>pound (meter)</source>
        <translation>Pfund (metrisch)</translation>
    </message>
    <message>
        <source>pound</source>
        <translatorcomment>CLDR: Pfund</translatorcomment>
        <translation>Pfund</translation>
    </message>
    <message>
        <source>pound (troy)</source>
        <translation>Pfund (Troy)</translation>
    </message>
    <message>
        <source>ounce (avoirdupois)</source>
        <translation>Unze (Avoirdupois)</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>Unze (Apotheker; Troy)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: Stone</translatorcomment>
        <translation>Stone</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>Short Ton</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>Long Ton</translation>
    </message>
    <message>
        <source>carat</source>
        <translatorcomment>CLDR: Karat</translatorcomment>
        <translation>Karat</translation>
    </message>
    <message>
        <source>carat (metric)</source>
        <translation>Karat (metrisch)</translation>
    </message>
    <message>
        <source>dram (avoirdupois)</source>
        <translation>Drachme (Avoirdupois)</translation>
    </message>
    <message>
        <source>dram (apothecary; troy)</source>
        <translation>Drachme (Apotheker; Troy)</translation>
    </message>
    <message>
        <source>pennyweight</source>
        <translation>Pennyweight</translation>
    </message>
    <message>
        <source>tael</source>
        <translation>Tael</translation>
    </message>
    <message>
        <source>tola</source>
        <translation>Tola</translation>
    </message>
    <message>
        <source>long hundredweight</source>
        <translation>Long Hundredweight</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>Short Hundredweight</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: Gran</translatorcomment>
        <translation>Gran</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>Grain (Perlen)</translation>
    </message>
    <message>
        <source>dalton</source>
        <translatorcomment>CLDR: Dalton</translatorcomment>
        <translation>Dalton</translation>
    </message>
    <message>
        <source>kilodalton</source>
        <translatorcomment>CLDR: Kilodalton</translatorcomment>
        <translation>Kilodalton</translation>
    </message>
    <message>
        <source>slug</source>
        <translation>Slug</translation>
    </message>
    <message>
        <source>kilogram per meter</source>
        <translatorcomment>CLDR: Kilogramm pro Meter</translatorcomment>
        <translation>Kilogramm pro Meter</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: Pfund pro Fuß</translatorcomment>
        <translation>Pfund pro Fuß</translation>
    </message>
    <message>
        <source>mole</source>
        <translatorcomment>CLDR: Mol</translatorcomment>
        <translation>Mol</translation>
    </message>
    <message>
        <source>yottamole</source>
        <translatorcomment>CLDR: Yottamol</translatorcomment>
        <translation>Yottamol</translation>
    </message>
    <message>
        <source>zettamole</source>
        <translatorcomment>CLDR: Zettamol</translatorcomment>
        <translation>Zettamol</translation>
    </message>
    <message>
        <source>examole</source>
        <translatorcomment>CLDR: Examol</translatorcomment>
        <translation>Examol</translation>
    </message>
    <message>
        <source>petamole</source>
        <translatorcomment>CLDR: Petamol</translatorcomment>
        <translation>Petamol</translation>
    </message>
    <message>
        <source>teramole</source>
        <translatorcomment>CLDR: Teramol</translatorcomment>
        <translation>Teramol</translation>
    </message>
    <message>
        <source>gigamole</source>
        <translatorcomment>CLDR: Gigamol</translatorcomment>
        <translation>Gigamol</translation>
    </message>
    <message>
        <source>megamole</source>
        <translatorcomment>CLDR: Megamol</translatorcomment>
        <translation>Megamol</translation>
    </message>
    <message>
        <source>kilomole</source>
        <translatorcomment>CLDR: Kilomol</translatorcomment>
        <translation>Kilomol</translation>
    </message>
    <message>
        <source>hectomole</source>
        <translatorcomment>CLDR: Hektomol</translatorcomment>
        <translation>Hektomol</translation>
    </message>
    <message>
        <source>decamole</source>
        <translatorcomment>CLDR: Dekamol</translatorcomment>
        <translation>Dekamol</translation>
    </message>
    <message>
        <source>decimole</source>
        <translatorcomment>CLDR: Dezimol</translatorcomment>
        <translation>Dezimol</translation>
    </message>
    <message>
        <source>centimole</source>
        <translatorcomment>CLDR: Zentimol</translatorcomment>
        <translation>Zentimol</translation>
    </message>
    <message>
        <source>millimole</source>
        <translatorcomment>CLDR: Millimol</translatorcomment>
        <translation>Millimol</translation>
    </message>
    <message>
        <source>micromole</source>
        <translatorcomment>CLDR: Mikromol</translatorcomment>
        <translation>Mikromol</translation>
    </message>
    <message>
        <source>nanomole</source>
        <translatorcomment>CLDR: Nanomol</translatorcomment>
        <translation>Nanomol</translation>
    </message>
    <message>
        <source>picomole</source>
        <translatorcomment>CLDR: Pikomol</translatorcomment>
        <translation>Pikomol</translation>
    </message>
    <message>
        <source>femtomole</source>
        <translatorcomment>CLDR: Femtomol</translatorcomment>
        <translation>Femtomol</translation>
    </message>
    <message>
        <source>attomole</source>
        <translatorcomment>CLDR: Attomol</translatorcomment>
        <translation>Attomol</translation>
    </message>
    <message>
        <source>zeptomole</source>
        <translatorcomment>CLDR: Zeptomol</translatorcomment>
        <translation>Zeptomol</translation>
    </message>
    <message>
        <source>yoctomole</source>
        <translatorcomment>CLDR: Yoktomol</translatorcomment>
        <translation>Yoktomol</translation>
    </message>
    <message>
        <source>radian</source>
        <translatorcomment>CLDR: Radiant</translatorcomment>
        <translation>Radiant</translation>
    </message>
    <message>
        <source>degree</source>
        <translatorcomment>CLDR: Grad</translatorcomment>
        <translation>Grad</translation>
    </message>
    <message>
        <source>milliradian</source>
        <translatorcomment>CLDR: Milliradiant</translatorcomment>
        <translation>Milliradiant</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>Gon</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>Strich (NATO)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>Strich (Schweden)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>Strich (UdSSR)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translatorcomment>CLDR: Winkelminute</translatorcomment>
        <translation>Winkelminute</translation>
    </message>
    <message>
        <source>angle second</source>
        <translatorcomment>CLDR: Winkelsekunde</translatorcomment>
        <translation>Winkelsekunde</translation>
    </message>
    <message>
        <source>milliarc second</source>
        <translation>Millibogensekunde</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>Steradiant</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: Gramm pro Quadratmeter</translatorcomment>
        <translation>Gramm pro Quadratmeter</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: Gramm pro Quadratzoll</translatorcomment>
        <translation>Gramm pro Quadratzoll</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translatorcomment>CLDR: Nanogramm pro Liter</translatorcomment>
        <translation>Nanogramm pro Liter</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translatorcomment>CLDR: Nanogramm pro Deziliter</translatorcomment>
        <translation>Nanogramm pro Deziliter</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translatorcomment>CLDR: Nanogramm pro Milliliter</translatorcomment>
        <translation>Nanogramm pro Milliliter</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translatorcomment>CLDR: Nanogramm pro Mikroliter</translatorcomment>
        <translation>Nanogramm pro Mikroliter</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: Millionstel</translatorcomment>
        <translation>Millionstel</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>Teile pro Milliarde</translation>
    </message>
    <message>
        <source>ampere</source>
        <translatorcomment>CLDR: Ampere</translatorcomment>
        <translation>Ampere</translation>
    </message>
    <message>
        <source>yottaampere</source>
        <translatorcomment>CLDR: Yottaampere</translatorcomment>
        <translation>Yottaampere</translation>
    </message>
    <message>
        <source>zettaampere</source>
        <translatorcomment>CLDR: Zettaampere</translatorcomment>
        <translation>Zettaampere</translation>
    </message>
    <message>
        <source>exaampere</source>
        <translatorcomment>CLDR: Exaampere</translatorcomment>
        <translation>Exaampere</translation>
    </message>
    <message>
        <source>petaampere</source>
        <translatorcomment>CLDR: Petaampere</translatorcomment>
        <translation>Petaampere</translation>
    </message>
    <message>
        <source>teraampere</source>
        <translatorcomment>CLDR: Teraampere</translatorcomment>
        <translation>Teraampere</translation>
    </message>
    <message>
        <source>gigaampere</source>
        <translatorcomment>CLDR: Gigaampere</translatorcomment>
        <translation>Gigaampere</translation>
    </message>
    <message>
        <source>megaampere</source>
        <translatorcomment>CLDR: Megaampere</translatorcomment>
        <translation>Megaampere</translation>
    </message>
    <message>
        <source>kiloampere</source>
        <translatorcomment>CLDR: Kiloampere</translatorcomment>
        <translation>Kiloampere</translation>
    </message>
    <message>
        <source>hectoampere</source>
        <translatorcomment>CLDR: Hektoampere</translatorcomment>
        <translation>Hektoampere</translation>
    </message>
    <message>
        <source>decaampere</source>
        <translatorcomment>CLDR: Dekaampere</translatorcomment>
        <translation>Dekaampere</translation>
    </message>
    <message>
        <source>deciampere</source>
        <translatorcomment>CLDR: Deziampere</translatorcomment>
        <translation>Deziampere</translation>
    </message>
    <message>
        <source>centiampere</source>
        <translatorcomment>CLDR: Zentiampere</translatorcomment>
        <translation>Zentiampere</translation>
    </message>
    <message>
        <source>milliampere</source>
        <translatorcomment>CLDR: Milliampere</translatorcomment>
        <translation>Milliampere</translation>
    </message>
    <message>
        <source>microampere</source>
        <translatorcomment>CLDR: Mikroampere</translatorcomment>
        <translation>Mikroampere</translation>
    </message>
    <message>
        <source>nanoampere</source>
        <translatorcomment>CLDR: Nanoampere</translatorcomment>
        <translation>Nanoampere</translation>
    </message>
    <message>
        <source>picoampere</source>
        <translatorcomment>CLDR: Pikoampere</translatorcomment>
        <translation>Pikoampere</translation>
    </message>
    <message>
        <source>femtoampere</source>
        <translatorcomment>CLDR: Femtoampere</translatorcomment>
        <translation>Femtoampere</translation>
    </message>
    <message>
        <source>attoampere</source>
        <translatorcomment>CLDR: Attoampere</translatorcomment>
        <translation>Attoampere</translation>
    </message>
    <message>
        <source>zeptoampere</source>
        <translatorcomment>CLDR: Zeptoampere</translatorcomment>
        <translation>Zeptoampere</translation>
    </message>
    <message>
        <source>yoctoampere</source>
        <translatorcomment>CLDR: Yoktoampere</translatorcomment>
        <translation>Yoktoampere</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>Coulomb</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translation>Amperestunde</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translation>Milliamperestunde</translation>
    </message>
    <message>
        <source>faraday</source>
        <translation>Faraday</translation>
    </message>
    <message>
        <source>farad</source>
        <translation>Farad</translation>
    </message>
    <message>
        <source>yottafarad</source>
        <translation>Yottafarad</translation>
    </message>
    <message>
        <source>zettafarad</source>
        <translation>Zettafarad</translation>
    </message>
    <message>
        <source>exafarad</source>
        <translation>Exafarad</translation>
    </message>
    <message>
        <source>petafarad</source>
        <translation>Petafarad</translation>
    </message>
    <message>
        <source>terafarad</source>
        <translation>Terafarad</translation>
    </message>
    <message>
        <source>gigafarad</source>
        <translation>Gigafarad</translation>
    </message>
    <message>
        <source>megafarad</source>
        <translation>Megafarad</translation>
    </message>
    <message>
        <source>kilofarad</source>
        <translation>Kilofarad</translation>
    </message>
    <message>
        <source>hectofarad</source>
        <translation>Hektofarad</translation>
    </message>
    <message>
        <source>decafarad</source>
        <translation>Dekafarad</translation>
    </message>
    <message>
        <source>decifarad</source>
        <translation>Dezifarad</translation>
    </message>
    <message>
        <source>centifarad</source>
        <translation>Zentifarad</translation>
    </message>
    <message>
        <source>millifarad</source>
        <translation>Millifarad</translation>
    </message>
    <message>
        <source>microfarad</source>
        <translation>Mikrofarad</translation>
    </message>
    <message>
        <source>nanofarad</source>
        <translation>Nanofarad</translation>
    </message>
    <message>
        <source>picofarad</source>
        <translation>Pikofarad</translation>
    </message>
    <message>
        <source>femtofarad</source>
        <translation>Femtofarad</translation>
    </message>
    <message>
        <source>attofarad</source>
        <translation>Attofarad</translation>
    </message>
    <message>
        <source>zeptofarad</source>
        <translation>Zeptofarad</translation>
    </message>
    <message>
        <source>yoctofarad</source>
        <translation>Yoktofarad</translation>
    </message>
    <message>
        <source>kilopicofarad</source>
        <translation>Kilopikofarad</translation>
    </message>
    <message>
        <source>baud</source>
        <translation>Baud</translation>
    </message>
    <message>
        <source>bit per second</source>
        <translatorcomment>CLDR: Bit pro Sekunde</translatorcomment>
        <translation>Bit pro Sekunde</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: Byte pro Sekunde</translatorcomment>
        <translation>Byte pro Sekunde</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>Kilobaud</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: Kilobit pro Sekunde</translatorcomment>
        <translation>Kilobit pro Sekunde</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: Kilobyte pro Sekunde</translatorcomment>
        <translation>Kilobyte pro Sekunde</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>Megabaud</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: Megabit pro Sekunde</translatorcomment>
        <translation>Megabit pro Sekunde</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: Megabyte pro Sekunde</translatorcomment>
        <translation>Megabyte pro Sekunde</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: Kilogramm pro Kubikmeter</translatorcomment>
        <translation>Kilogramm pro Kubikmeter</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translatorcomment>CLDR: Kilogramm pro Liter</translatorcomment>
        <translation>Kilogramm pro Liter</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translatorcomment>CLDR: Gramm pro Liter</translatorcomment>
        <translation>Gramm pro Liter</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translatorcomment>CLDR: Mikrogramm pro Milliliter</translatorcomment>
        <translation>Mikrogramm pro Milliliter</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: Milligramm pro Milliliter</translatorcomment>
        <translation>Milligramm pro Milliliter</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: Pfund pro Gallone</translatorcomment>
        <translation>Pfund pro Gallone</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: Unze pro Gallone</translatorcomment>
        <translation>Unze pro Gallone</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: Pfund pro Kubikfuß</translatorcomment>
        <translation>Pfund pro Kubikfuß</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: Pfund pro Kubikzoll</translatorcomment>
        <translation>Pfund pro Kubikzoll</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: Gramm pro Kubikzentimeter</translatorcomment>
        <translation>Gramm pro Kubikzentimeter</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>Newton mal Quadratsekunde pro Millimeter hoch vier</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: Newton pro Kubikmeter</translatorcomment>
        <translation>Newton pro Kubikmeter</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: Kilonewton pro Kubikmeter</translatorcomment>
        <translation>Kilonewton pro Kubikmeter</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>Pfundkraft pro Kubikfuß</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>Kip pro Kubikzoll</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>Kip pro Kubikfuß</translation>
    </message>
    <message>
        <source>joule</source>
        <translatorcomment>CLDR: Joule</translatorcomment>
        <translation>Joule</translation>
    </message>
    <message>
        <source>calorie</source>
        <translatorcomment>CLDR: Kalorie</translatorcomment>
        <translation>Kalorie</translation>
    </message>
    <message>
        <source>kilocalorie</source>
        <translatorcomment>CLDR: Kilokalorie</translatorcomment>
        <translation>Kilokalorie</translation>
    </message>
    <message>
        <source>British thermal unit (thermochemical)</source>
        <translation>British Thermal Unit (thermochemisch)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>British Thermal Unit (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>British Thermal Unit (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>British Thermal Unit (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>British Thermal Unit (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>British Thermal Unit (internationale Tafel)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>British Thermal Unit (Mittelwert)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>British Thermal Unit (39 °F)</translation>
    </message>
    <message>
        <source>kiloelectronvolt</source>
        <translatorcomment>CLDR: Kiloelektronenvolt</translatorcomment>
        <translation>Kiloelektronenvolt</translation>
    </message>
    <message>
        <source>megaelectronvolt</source>
        <translatorcomment>CLDR: Megaelektronenvolt</translatorcomment>
        <translation>Megaelektronenvolt</translation>
    </message>
    <message>
        <source>electronvolt</source>
        <translatorcomment>CLDR: Elektronenvolt</translatorcomment>
        <translation>Elektronenvolt</translation>
    </message>
    <message>
        <source>erg</source>
        <translation>Erg</translation>
    </message>
    <message>
        <source>kilowatt hour</source>
        <translatorcomment>CLDR: Kilowattstunde</translatorcomment>
        <translation>Kilowattstunde</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translation>Kilowattminute</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translation>Kilowattsekunde</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>Therm (US)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: Newtonmeter</translatorcomment>
        <translation>Newtonmeter</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translatorcomment>CLDR: Dekanewtonmeter</translatorcomment>
        <translation>Dekanewtonmeter</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translatorcomment>CLDR: Kilonewtonmeter</translatorcomment>
        <translation>Kilonewtonmeter</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translatorcomment>CLDR: Meganewtonmeter</translatorcomment>
        <translation>Meganewtonmeter</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>Kilopondmeter</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>Kilopond-Fuß</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>Tonnenkraft-Fuß</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>Tonnenkraftmeter</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>Fuß-Kilopfund</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>Fuß-Pfundkraft</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>Kalorie (20 °C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>Kalorie (thermochemisch)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>Kalorie (15 °C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>Kalorie (Mittelwert)</translation>
    </message>
    <message>
        <source>calorie (3.98 degree C)</source>
        <translation>Kalorie (3,98 °C)</translation>
    </message>
    <message>
        <source>Therm (EC)</source>
        <translation>Therm (EG)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: Kubikmeter pro Sekunde</translatorcomment>
        <translation>Kubikmeter pro Sekunde</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: Liter pro Sekunde</translatorcomment>
        <translation>Liter pro Sekunde</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: Liter pro Minute</translatorcomment>
        <translation>Liter pro Minute</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: Liter pro Stunde</translatorcomment>
        <translation>Liter pro Stunde</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translatorcomment>CLDR: Gallone pro Sekunde</translatorcomment>
        <translation>Gallone pro Sekunde</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: Gallone pro Minute</translatorcomment>
        <translation>Gallone pro Minute</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: Gallone pro Stunde</translatorcomment>
        <translation>Gallone pro Stunde</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: Gallone pro Tag</translatorcomment>
        <translation>Gallone pro Tag</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: Milliliter pro Minute</translatorcomment>
        <translation>Milliliter pro Minute</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: Kubikzentimeter pro Minute</translatorcomment>
        <translation>Kubikzentimeter pro Minute</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: Kubikfuß pro Stunde</translatorcomment>
        <translation>Kubikfuß pro Stunde</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: Kubikfuß pro Minute</translatorcomment>
        <translation>Kubikfuß pro Minute</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: Kubikfuß pro Sekunde</translatorcomment>
        <translation>Kubikfuß pro Sekunde</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: Kubikzoll pro Minute</translatorcomment>
        <translation>Kubikzoll pro Minute</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: Kubikmeter pro Stunde</translatorcomment>
        <translation>Kubikmeter pro Stunde</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: Kubikmeter pro Minute</translatorcomment>
        <translation>Kubikmeter pro Minute</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: Kubikzentimeter pro Sekunde</translatorcomment>
        <translation>Kubikzentimeter pro Sekunde</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: Kubikzentimeter pro Stunde</translatorcomment>
        <translation>Kubikzentimeter pro Stunde</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>US-Gallone pro Stunde</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>US-Gallone pro Sekunde</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>Britische Gallone pro Tag</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>Britische Gallone pro Stunde</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>Britische Gallone pro Minute</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>Britische Gallone pro Sekunde</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>Millionen britische Gallonen pro Tag</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: Liter pro Tag</translatorcomment>
        <translation>Liter pro Tag</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>Millionen Liter pro Tag</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>US-Gallone pro Tag</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>Millionen US-Gallonen pro Tag</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: Kubikfuß pro Tag</translatorcomment>
        <translation>Kubikfuß pro Tag</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: Kubikmeter pro Tag</translatorcomment>
        <translation>Kubikmeter pro Tag</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: Kubikyard pro Minute</translatorcomment>
        <translation>Kubikyard pro Minute</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: Acre-Foot pro Tag</translatorcomment>
        <translation>Acre-Foot pro Tag</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: Acre-Foot pro Stunde</translatorcomment>
        <translation>Acre-Foot pro Stunde</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: Acre-Foot pro Minute</translatorcomment>
        <translation>Acre-Foot pro Minute</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>Acre-Inch pro Stunde</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>Acre-Inch pro Minute</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>Kubikfuß (US-Vermessung) pro Sekunde</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: Kilogramm pro Sekunde</translatorcomment>
        <translation>Kilogramm pro Sekunde</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: Kilogramm pro Minute</translatorcomment>
        <translation>Kilogramm pro Minute</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: Kilogramm pro Stunde</translatorcomment>
        <translation>Kilogramm pro Stunde</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: Gramm pro Sekunde</translatorcomment>
        <translation>Gramm pro Sekunde</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: Gramm pro Minute</translatorcomment>
        <translation>Gramm pro Minute</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: Gramm pro Stunde</translatorcomment>
        <translation>Gramm pro Stunde</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: Pfund pro Sekunde</translatorcomment>
        <translation>Pfund pro Sekunde</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: Pfund pro Minute</translatorcomment>
        <translation>Pfund pro Minute</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: Pfund pro Stunde</translatorcomment>
        <translation>Pfund pro Stunde</translation>
    </message>
    <message>
        <source>pint per stroke</source>
        <translation>Pint pro Hub</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>Quart pro Hub</translation>
    </message>
    <message>
        <source>newton</source>
        <translatorcomment>CLDR: Newton</translatorcomment>
        <translation>Newton</translation>
    </message>
    <message>
        <source>yottanewton</source>
        <translatorcomment>CLDR: Yottanewton</translatorcomment>
        <translation>Yottanewton</translation>
    </message>
    <message>
        <source>zettanewton</source>
        <translatorcomment>CLDR: Zettanewton</translatorcomment>
        <translation>Zettanewton</translation>
    </message>
    <message>
        <source>exanewton</source>
        <translatorcomment>CLDR: Exanewton</translatorcomment>
        <translation>Exanewton</translation>
    </message>
    <message>
        <source>petanewton</source>
        <translatorcomment>CLDR: Petanewton</translatorcomment>
        <translation>Petanewton</translation>
    </message>
    <message>
        <source>teranewton</source>
        <translatorcomment>CLDR: Teranewton</translatorcomment>
        <translation>Teranewton</translation>
    </message>
    <message>
        <source>giganewton</source>
        <translatorcomment>CLDR: Giganewton</translatorcomment>
        <translation>Giganewton</translation>
    </message>
    <message>
        <source>meganewton</source>
        <translatorcomment>CLDR: Meganewton</translatorcomment>
        <translation>Meganewton</translation>
    </message>
    <message>
        <source>kilonewton</source>
        <translatorcomment>CLDR: Kilonewton</translatorcomment>
        <translation>Kilonewton</translation>
    </message>
    <message>
        <source>hectonewton</source>
        <translatorcomment>CLDR: Hektonewton</translatorcomment>
        <translation>Hektonewton</translation>
    </message>
    <message>
        <source>decanewton</source>
        <translatorcomment>CLDR: Dekanewton</translatorcomment>
        <translation>Dekanewton</translation>
    </message>
    <message>
        <source>decinewton</source>
        <translatorcomment>CLDR: Dezinewton</translatorcomment>
        <translation>Dezinewton</translation>
    </message>
    <message>
        <source>centinewton</source>
        <translatorcomment>CLDR: Zentinewton</translatorcomment>
        <translation>Zentinewton</translation>
    </message>
    <message>
        <source>millinewton</source>
        <translatorcomment>CLDR: Millinewton</translatorcomment>
        <translation>Millinewton</translation>
    </message>
    <message>
        <source>micronewton</source>
        <translatorcomment>CLDR: Mikronewton</translatorcomment>
        <translation>Mikronewton</translation>
    </message>
    <message>
        <source>nanonewton</source>
        <translatorcomment>CLDR: Nanonewton</translatorcomment>
        <translation>Nanonewton</translation>
    </message>
    <message>
        <source>piconewton</source>
        <translatorcomment>CLDR: Pikonewton</translatorcomment>
        <translation>Pikonewton</translation>
    </message>
    <message>
        <source>femtonewton</source>
        <translatorcomment>CLDR: Femtonewton</translatorcomment>
        <translation>Femtonewton</translation>
    </message>
    <message>
        <source>attonewton</source>
        <translatorcomment>CLDR: Attonewton</translatorcomment>
        <translation>Attonewton</translation>
    </message>
    <message>
        <source>zeptonewton</source>
        <translatorcomment>CLDR: Zeptonewton</translatorcomment>
        <translation>Zeptonewton</translation>
    </message>
    <message>
        <source>yoctonewton</source>
        <translatorcomment>CLDR: Yoktonewton</translatorcomment>
        <translation>Yoktonewton</translation>
    </message>
    <message>
        <source>kilopound</source>
        <translation>Kilopfund</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>Kilopond</translation>
    </message>
    <message>
        <source>pound force</source>
        <translation>Pfundkraft</translation>
    </message>
    <message>
        <source>kip</source>
        <translation>Kip</translation>
    </message>
    <message>
        <source>ton force</source>
        <translation>Tonnenkraft</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>Dyn</translation>
    </message>
    <message>
        <source>lbforce</source>
        <translation>Pfundkraft (lbforce)</translation>
    </message>
    <message>
        <source>ounce force</source>
        <translation>Unzenkraft</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: Newton pro Meter</translatorcomment>
        <translation>Newton pro Meter</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>Kilopfund pro Fuß</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>Kilopond pro Meter</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>Tonnenkraft pro Meter</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>Pfundkraft pro Fuß</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: Dekanewton pro Meter</translatorcomment>
        <translation>Dekanewton pro Meter</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translatorcomment>CLDR: Kilonewton pro Meter</translatorcomment>
        <translation>Kilonewton pro Meter</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translatorcomment>CLDR: Meganewton pro Meter</translatorcomment>
        <translation>Meganewton pro Meter</translation>
    </message>
    <message>
        <source>kip per foot</source>
        <translation>Kip pro Fuß</translation>
    </message>
    <message>
        <source>kip per inch</source>
        <translation>Kip pro Zoll</translation>
    </message>
    <message>
        <source>hertz</source>
        <translatorcomment>CLDR: Hertz</translatorcomment>
        <translation>Hertz</translation>
    </message>
    <message>
        <source>kilohertz</source>
        <translatorcomment>CLDR: Kilohertz</translatorcomment>
        <translation>Kilohertz</translation>
    </message>
    <message>
        <source>megahertz</source>
        <translatorcomment>CLDR: Megahertz</translatorcomment>
        <translation>Megahertz</translation>
    </message>
    <message>
        <source>gigahertz</source>
        <translatorcomment>CLDR: Gigahertz</translatorcomment>
        <translation>Gigahertz</translation>
    </message>
    <message>
        <source>terahertz</source>
        <translatorcomment>CLDR: Terahertz</translatorcomment>
        <translation>Terahertz</translation>
    </message>
    <message>
        <source>cycle per second</source>
        <translation>Schwingung pro Sekunde</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: Umdrehung pro Minute</translatorcomment>
        <translation>Umdrehung pro Minute</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>Blitz pro Sekunde</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>Blitz pro Minute</translation>
    </message>
    <message>
        <source>henry</source>
        <translation>Henry</translation>
    </message>
    <message>
        <source>nanohenry</source>
        <translation>Nanohenry</translation>
    </message>
    <message>
        <source>microhenry</source>
        <translation>Mikrohenry</translation>
    </message>
    <message>
        <source>millihenry</source>
        <translation>Millihenry</translation>
    </message>
    <message>
        <source>gauss</source>
        <translation>Gauß</translation>
    </message>
    <message>
        <source>milligauss</source>
        <translation>Milligauß</translation>
    </message>
    <message>
        <source>tesla</source>
        <translation>Tesla</translation>
    </message>
    <message>
        <source>gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>weber</source>
        <translation>Weber</translation>
    </message>
    <message>
        <source>maxwell</source>
        <translation>Maxwell</translation>
    </message>
    <message>
        <source>watt</source>
        <translatorcomment>CLDR: Watt</translatorcomment>
        <translation>Watt</translation>
    </message>
    <message>
        <source>horsepower (metric)</source>
        <translation>Pferdestärke (metrisch)</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>Horsepower (europäisch, elektrisch)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>Horsepower (britisch, mechanisch)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>Horsepower (britisch, elektrisch)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: Kilokalorie pro Stunde</translatorcomment>
        <translation>Kilokalorie pro Stunde</translation>
    </message>
    <message>
        <source>kilowatt</source>
        <translatorcomment>CLDR: Kilowatt</translatorcomment>
        <translation>Kilowatt</translation>
    </message>
    <message>
        <source>megawatt</source>
        <translatorcomment>CLDR: Megawatt</translatorcomment>
        <translation>Megawatt</translation>
    </message>
    <message>
        <source>microwatt</source>
        <translatorcomment>CLDR: Mikrowatt</translatorcomment>
        <translation>Mikrowatt</translation>
    </message>
    <message>
        <source>volt ampere</source>
        <translation>Voltampere</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translation>Millivoltampere</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translation>Kilovoltampere</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translation>Megavoltampere</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: Milliwatt</translatorcomment>
        <translation>Milliwatt</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>Kilopondmeter pro Sekunde</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>Fuß-Pfundkraft pro Sekunde</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: Kalorie pro Sekunde</translatorcomment>
        <translation>Kalorie pro Sekunde</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: Kilokalorie pro Sekunde</translatorcomment>
        <translation>Kilokalorie pro Sekunde</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>British Thermal Unit (internationale Tafel) pro Sekunde</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>British Thermal Unit (internationale Tafel) pro Stunde</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>Millionen British Thermal Units (internationale Tafel) pro Stunde</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>Tausend British Thermal Units (internationale Tafel) pro Stunde</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>Kältetonne</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: Watt pro Kubikmeter</translatorcomment>
        <translation>Watt pro Kubikmeter</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: Watt pro Kubikfuß</translatorcomment>
        <translation>Watt pro Kubikfuß</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>British Thermal Unit pro Stunde und Kubikfuß</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: Watt pro Kilogramm</translatorcomment>
        <translation>Watt pro Kilogramm</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: Watt pro Quadratmeter</translatorcomment>
        <translation>Watt pro Quadratmeter</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: Kilowatt pro Quadratmeter</translatorcomment>
        <translation>Kilowatt pro Quadratmeter</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: Kilowatt pro Quadratfuß</translatorcomment>
        <translation>Kilowatt pro Quadratfuß</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: Watt pro Quadratfuß</translatorcomment>
        <translation>Watt pro Quadratfuß</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>British Thermal Unit pro Stunde und Quadratfuß</translation>
    </message>
    <message>
        <source>bar</source>
        <translatorcomment>CLDR: Bar</translatorcomment>
        <translation>Bar</translation>
    </message>
    <message>
        <source>bar absolute</source>
        <translation>Bar (absolut)</translation>
    </message>
    <message>
        <source>bar gauge</source>
        <translation>Bar (Überdruck)</translation>
    </message>
    <message>
        <source>inch of mercury</source>
        <translatorcomment>CLDR: Zoll Quecksilbersäule</translatorcomment>
        <translation>Zoll Quecksilbersäule</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>Zoll Wassersäule</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translatorcomment>CLDR: Kilobar</translatorcomment>
        <translation>Kilobar</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: Kilogramm pro Quadratzentimeter</translatorcomment>
        <translation>Kilogramm pro Quadratzentimeter</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: Kilopascal</translatorcomment>
        <translation>Kilopascal</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: Kilopfund pro Quadratzoll</translatorcomment>
        <translation>Kilopfund pro Quadratzoll</translation>
    </message>
    <message>
        <source>mega pascal</source>
        <translatorcomment>CLDR: Megapascal</translatorcomment>
        <translation>Megapascal</translation>
    </message>
    <message>
        <source>millibar</source>
        <translatorcomment>CLDR: Millibar</translatorcomment>
        <translation>Millibar</translation>
    </message>
    <message>
        <source>millimeter of mercury</source>
        <translatorcomment>CLDR: Millimeter Quecksilbersäule</translatorcomment>
        <translation>Millimeter Quecksilbersäule</translation>
    </message>
    <message>
        <source>milli pascal</source>
        <translatorcomment>CLDR: Millipascal</translatorcomment>
        <translation>Millipascal</translation>
    </message>
    <message>
        <source>pascal</source>
        <translatorcomment>CLDR: Pascal</translatorcomment>
        <translation>Pascal</translation>
    </message>
    <message>
        <source>pound per square inch (atmosphere)</source>
        <translation>Pfund pro Quadratzoll (absolut)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>Pfund pro Quadratzoll (Überdruck)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: Pfund pro Quadratfuß</translatorcomment>
        <translation>Pfund pro Quadratfuß</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: Pfund pro Quadratzoll</translatorcomment>
        <translation>Pfund pro Quadratzoll</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>Atmosphäre (physikalisch)</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>Atmosphäre (technisch)</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>Torr</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translatorcomment>CLDR: Newton pro Quadratmillimeter</translatorcomment>
        <translation>Newton pro Quadratmillimeter</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: Newton pro Quadratmeter</translatorcomment>
        <translation>Newton pro Quadratmeter</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translatorcomment>CLDR: Dekanewton pro Quadratmillimeter</translatorcomment>
        <translation>Dekanewton pro Quadratmillimeter</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: Dekanewton pro Quadratmeter</translatorcomment>
        <translation>Dekanewton pro Quadratmeter</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: Kilonewton pro Quadratmeter</translatorcomment>
        <translation>Kilonewton pro Quadratmeter</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: Meganewton pro Quadratmeter</translatorcomment>
        <translation>Meganewton pro Quadratmeter</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translatorcomment>CLDR: Kilopfund pro Quadratfuß</translatorcomment>
        <translation>Kilopfund pro Quadratfuß</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>Kilopond pro Quadratmillimeter</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>Kilopond pro Quadratzentimeter</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>Kilopond pro Quadratmeter</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>Tonnenkraft pro Quadratzentimeter</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>Tonnenkraft pro Quadratmeter</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>Tonnenkraft pro Quadratfuß</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translation>Pfundkraft pro Quadratzoll</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>Fuß Wassersäule</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>Kip pro Quadratzoll</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>Kip pro Quadratfuß</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>Pfundkraft pro Quadratfuß</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: Gigapascal</translatorcomment>
        <translation>Gigapascal</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>Dyn pro Quadratzentimeter</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translatorcomment>CLDR: Newton pro Quadratmikrometer</translatorcomment>
        <translation>Newton pro Quadratmikrometer</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: Meter pro Newton</translatorcomment>
        <translation>Meter pro Newton</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translatorcomment>CLDR: Meter pro Kilonewton</translatorcomment>
        <translation>Meter pro Kilonewton</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>Fuß pro Kip</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: Quadratmeter pro Newton</translatorcomment>
        <translation>Quadratmeter pro Newton</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: Quadratmeter pro Kilonewton</translatorcomment>
        <translation>Quadratmeter pro Kilonewton</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>Quadratfuß pro Kip</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: Kubikmeter pro Newton</translatorcomment>
        <translation>Kubikmeter pro Newton</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: Kubikmeter pro Kilonewton</translatorcomment>
        <translation>Kubikmeter pro Kilonewton</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>Kubikfuß pro Kip</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: Newtonmeter pro Meter</translatorcomment>
        <translation>Newtonmeter pro Meter</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: Dekanewtonmeter pro Meter</translatorcomment>
        <translation>Dekanewtonmeter pro Meter</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: Kilonewtonmeter pro Meter</translatorcomment>
        <translation>Kilonewtonmeter pro Meter</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: Meganewtonmeter pro Meter</translatorcomment>
        <translation>Meganewtonmeter pro Meter</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>Kip-Fuß pro Fuß</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>Kilopondmeter pro Meter</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>Tonnenkraftmeter pro Meter</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translation>Pfundkraft-Fuß pro Fuß</translation>
    </message>
    <message>
        <source>ohm</source>
        <translatorcomment>CLDR: Ohm</translatorcomment>
        <translation>Ohm</translation>
    </message>
    <message>
        <source>kilohm</source>
        <translatorcomment>CLDR: Kiloohm</translatorcomment>
        <translation>Kiloohm</translation>
    </message>
    <message>
        <source>gigaohm</source>
        <translatorcomment>CLDR: Gigaohm</translatorcomment>
        <translation>Gigaohm</translation>
    </message>
    <message>
        <source>megohm</source>
        <translatorcomment>CLDR: Megaohm</translatorcomment>
        <translation>Megaohm</translation>
    </message>
    <message>
        <source>microohm</source>
        <translatorcomment>CLDR: Mikroohm</translatorcomment>
        <translation>Mikroohm</translation>
    </message>
    <message>
        <source>milliohm</source>
        <translatorcomment>CLDR: Milliohm</translatorcomment>
        <translation>Milliohm</translation>
    </message>
    <message>
        <source>siemens</source>
        <translation>Siemens</translation>
    </message>
    <message>
        <source>mho</source>
        <translation>Mho</translation>
    </message>
    <message>
        <source>meter per second</source>
        <translatorcomment>CLDR: Meter pro Sekunde</translatorcomment>
        <translation>Meter pro Sekunde</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: Millimeter pro Sekunde</translatorcomment>
        <translation>Millimeter pro Sekunde</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: Zentimeter pro Sekunde</translatorcomment>
        <translation>Zentimeter pro Sekunde</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: Meter pro Minute</translatorcomment>
        <translation>Meter pro Minute</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: Zoll pro Sekunde</translatorcomment>
        <translation>Zoll pro Sekunde</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: Fuß pro Sekunde</translatorcomment>
        <translation>Fuß pro Sekunde</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: Zoll pro Minute</translatorcomment>
        <translation>Zoll pro Minute</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: Fuß pro Minute</translatorcomment>
        <translation>Fuß pro Minute</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: Kilometer pro Stunde</translatorcomment>
        <translation>Kilometer pro Stunde</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: Meile pro Stunde</translatorcomment>
        <translation>Meile pro Stunde</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: Zentimeter pro Minute</translatorcomment>
        <translation>Zentimeter pro Minute</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: Fuß pro Stunde</translatorcomment>
        <translation>Fuß pro Stunde</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: Zoll pro Stunde</translatorcomment>
        <translation>Zoll pro Stunde</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: Kilometer pro Minute</translatorcomment>
        <translation>Kilometer pro Minute</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: Kilometer pro Sekunde</translatorcomment>
        <translation>Kilometer pro Sekunde</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: Knoten</translatorcomment>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>Knoten (britisch)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: Meter pro Stunde</translatorcomment>
        <translation>Meter pro Stunde</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: Meile pro Minute</translatorcomment>
        <translation>Meile pro Minute</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: Meile pro Sekunde</translatorcomment>
        <translation>Meile pro Sekunde</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>Meile (US-Vermessung) pro Stunde</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>Fuß (US-Vermessung) pro Sekunde</translation>
    </message>
    <message>
        <source>byte</source>
        <translatorcomment>CLDR: Byte</translatorcomment>
        <translation>Byte</translation>
    </message>
    <message>
        <source>bit</source>
        <translatorcomment>CLDR: Bit</translatorcomment>
        <translation>Bit</translation>
    </message>
    <message>
        <source>kilobyte</source>
        <translatorcomment>CLDR: Kilobyte</translatorcomment>
        <translation>Kilobyte</translation>
    </message>
    <message>
        <source>megabyte</source>
        <translatorcomment>CLDR: Megabyte</translatorcomment>
        <translation>Megabyte</translation>
    </message>
    <message>
        <source>gigabyte</source>
        <translatorcomment>CLDR: Gigabyte</translatorcomment>
        <translation>Gigabyte</translation>
    </message>
    <message>
        <source>terabyte</source>
        <translatorcomment>CLDR: Terabyte</translatorcomment>
        <translation>Terabyte</translation>
    </message>
    <message>
        <source>kibibyte</source>
        <translatorcomment>CLDR: Kibibyte</translatorcomment>
        <translation>Kibibyte</translation>
    </message>
    <message>
        <source>mebibyte</source>
        <translatorcomment>CLDR: Mebibyte</translatorcomment>
        <translation>Mebibyte</translation>
    </message>
    <message>
        <source>gibibyte</source>
        <translatorcomment>CLDR: Gibibyte</translatorcomment>
        <translation>Gibibyte</translation>
    </message>
    <message>
        <source>tebibyte</source>
        <translatorcomment>CLDR: Tebibyte</translatorcomment>
        <translation>Tebibyte</translation>
    </message>
    <message>
        <source>kilobit</source>
        <translatorcomment>CLDR: Kilobit</translatorcomment>
        <translation>Kilobit</translation>
    </message>
    <message>
        <source>megabit</source>
        <translatorcomment>CLDR: Megabit</translatorcomment>
        <translation>Megabit</translation>
    </message>
    <message>
        <source>gigabit</source>
        <translatorcomment>CLDR: Gigabit</translatorcomment>
        <translation>Gigabit</translation>
    </message>
    <message>
        <source>petabyte</source>
        <translatorcomment>CLDR: Petabyte</translatorcomment>
        <translation>Petabyte</translation>
    </message>
    <message>
        <source>pebibyte</source>
        <translatorcomment>CLDR: Pebibyte</translatorcomment>
        <translation>Pebibyte</translation>
    </message>
    <message>
        <source>exabyte</source>
        <translatorcomment>CLDR: Exabyte</translatorcomment>
        <translation>Exabyte</translation>
    </message>
    <message>
        <source>exbibyte</source>
        <translatorcomment>CLDR: Exbibyte</translatorcomment>
        <translation>Exbibyte</translation>
    </message>
    <message>
        <source>zettabyte</source>
        <translatorcomment>CLDR: Zettabyte</translatorcomment>
        <translation>Zettabyte</translation>
    </message>
    <message>
        <source>zebibyte</source>
        <translatorcomment>CLDR: Zebibyte</translatorcomment>
        <translation>Zebibyte</translation>
    </message>
    <message>
        <source>yottabyte</source>
        <translatorcomment>CLDR: Yottabyte</translatorcomment>
        <translation>Yottabyte</translation>
    </message>
    <message>
        <source>yobibyte</source>
        <translatorcomment>CLDR: Yobibyte</translatorcomment>
        <translation>Yobibyte</translation>
    </message>
    <message>
        <source>kelvin</source>
        <translatorcomment>CLDR: Kelvin</translatorcomment>
        <translation>Kelvin</translation>
    </message>
    <message>
        <source>degree Celsius</source>
        <translatorcomment>CLDR: Grad Celsius</translatorcomment>
        <translation>Grad Celsius</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: Grad Fahrenheit</translatorcomment>
        <translation>Grad Fahrenheit</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>Grad Rankine</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: Grad Celsius pro Minute</translatorcomment>
        <translation>Grad Celsius pro Minute</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: Grad Fahrenheit pro Minute</translatorcomment>
        <translation>Grad Fahrenheit pro Minute</translation>
    </message>
    <message>
        <source>second</source>
        <translatorcomment>CLDR: Sekunde</translatorcomment>
        <translation>Sekunde</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translatorcomment>CLDR: Yottasekunde</translatorcomment>
        <translation>Yottasekunde</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translatorcomment>CLDR: Zettasekunde</translatorcomment>
        <translation>Zettasekunde</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translatorcomment>CLDR: Exasekunde</translatorcomment>
        <translation>Exasekunde</translation>
    </message>
    <message>
        <source>petasecond</source>
        <translatorcomment>CLDR: Petasekunde</translatorcomment>
        <translation>Petasekunde</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translatorcomment>CLDR: Terasekunde</translatorcomment>
        <translation>Terasekunde</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translatorcomment>CLDR: Gigasekunde</translatorcomment>
        <translation>Gigasekunde</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translatorcomment>CLDR: Megasekunde</translatorcomment>
        <translation>Megasekunde</translation>
    </message>
    <message>
        <source>kilosecond</source>
        <translatorcomment>CLDR: Kilosekunde</translatorcomment>
        <translation>Kilosekunde</translation>
    </message>
    <message>
        <source>hectosecond</source>
        <translatorcomment>CLDR: Hektosekunde</translatorcomment>
        <translation>Hektosekunde</translation>
    </message>
    <message>
        <source>decasecond</source>
        <translatorcomment>CLDR: Dekasekunde</translatorcomment>
        <translation>Dekasekunde</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translatorcomment>CLDR: Dezisekunde</translatorcomment>
        <translation>Dezisekunde</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translatorcomment>CLDR: Zentisekunde</translatorcomment>
        <translation>Zentisekunde</translation>
    </message>
    <message>
        <source>millisecond</source>
        <translatorcomment>CLDR: Millisekunde</translatorcomment>
        <translation>Millisekunde</translation>
    </message>
    <message>
        <source>microsecond</source>
        <translatorcomment>CLDR: Mikrosekunde</translatorcomment>
        <translation>Mikrosekunde</translation>
    </message>
    <message>
        <source>nanosecond</source>
        <translatorcomment>CLDR: Nanosekunde</translatorcomment>
        <translation>Nanosekunde</translation>
    </message>
    <message>
        <source>picosecond</source>
        <translatorcomment>CLDR: Pikosekunde</translatorcomment>
        <translation>Pikosekunde</translation>
    </message>
    <message>
        <source>femtosecond</source>
        <translatorcomment>CLDR: Femtosekunde</translatorcomment>
        <translation>Femtosekunde</translation>
    </message>
    <message>
        <source>attosecond</source>
        <translatorcomment>CLDR: Attosekunde</translatorcomment>
        <translation>Attosekunde</translation>
    </message>
    <message>
        <source>zeptosecond</source>
        <translatorcomment>CLDR: Zeptosekunde</translatorcomment>
        <translation>Zeptosekunde</translation>
    </message>
    <message>
        <source>yoctosecond</source>
        <translatorcomment>CLDR: Yoktosekunde</translatorcomment>
        <translation>Yoktosekunde</translation>
    </message>
    <message>
        <source>minute</source>
        <translatorcomment>CLDR: Minute</translatorcomment>
        <translation>Minute</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: Stunde</translatorcomment>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>day</source>
        <translatorcomment>CLDR: Tag</translatorcomment>
        <translation>Tag</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: Woche</translatorcomment>
        <translation>Woche</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>Vierzehn Tage</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: Monat</translatorcomment>
        <translation>Monat</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>Monat (hohl, 29 Tage)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>Monat (voll, 30 Tage)</translation>
    </message>
    <message>
        <source>year</source>
        <translatorcomment>CLDR: Jahr</translatorcomment>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>Jahr (gregorianisch)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>Jahr (julianisch)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>Siderisches Jahr</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>Tropisches Jahr</translation>
    </message>
    <message>
        <source>annum</source>
        <translation>Annum</translation>
    </message>
    <message>
        <source>decade</source>
        <translatorcomment>CLDR: Jahrzehnt</translatorcomment>
        <translation>Jahrzehnt</translation>
    </message>
    <message>
        <source>century</source>
        <translatorcomment>CLDR: Jahrhundert</translatorcomment>
        <translation>Jahrhundert</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>Jahrhundert (julianisch)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>Jahrtausend</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>Jahrtausend (gregorianisch)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>Jahrtausend (julianisch)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>Newtonmeter (Drehmoment)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>Newtonzentimeter (Drehmoment)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>Newtondekameter (Drehmoment)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>Fuß-Pfund (Drehmoment)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>Zoll-Pfund (Drehmoment)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>Meterkilogramm (Drehmoment)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>Zentimeterkilogramm (Drehmoment)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>Zoll-Unze (Drehmoment)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>Grammzentimeter (Drehmoment)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>Dekanewtonmeter (Drehmoment)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>Kilonewtonmeter (Drehmoment)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>Meganewtonmeter (Drehmoment)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>Kip-Fuß (Drehmoment)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>Kilopondmeter (Drehmoment)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>Tonnenkraftmeter (Drehmoment)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>Pfundkraft-Fuß (Drehmoment)</translation>
    </message>
    <message>
        <source>poise</source>
        <translation>Poise</translation>
    </message>
    <message>
        <source>centipoise</source>
        <translation>Zentipoise</translation>
    </message>
    <message>
        <source>pascal second</source>
        <translation>Pascalsekunde</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>Pfund (Masse) pro Fuß und Sekunde</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>Pfund (Masse) pro Fuß und Stunde</translation>
    </message>
    <message>
        <source>stoke</source>
        <translation>Stokes</translation>
    </message>
    <message>
        <source>centistoke</source>
        <translation>Zentistokes</translation>
    </message>
    <message>
        <source>meter per second squared</source>
        <translatorcomment>CLDR: Meter pro Quadratsekunde</translatorcomment>
        <translation>Meter pro Quadratsekunde</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>Fuß pro Quadratsekunde</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>Fuß (US-Vermessung) pro Quadratsekunde</translation>
    </message>
    <message>
        <source>volt</source>
        <translatorcomment>CLDR: Volt</translatorcomment>
        <translation>Volt</translation>
    </message>
    <message>
        <source>kilovolt</source>
        <translatorcomment>CLDR: Kilovolt</translatorcomment>
        <translation>Kilovolt</translation>
    </message>
    <message>
        <source>microvolt</source>
        <translatorcomment>CLDR: Mikrovolt</translatorcomment>
        <translation>Mikrovolt</translation>
    </message>
    <message>
        <source>millivolt</source>
        <translatorcomment>CLDR: Millivolt</translatorcomment>
        <translation>Millivolt</translation>
    </message>
    <message>
        <source>volt (electrical potential)</source>
        <translation>Volt (elektrisches Potenzial)</translation>
    </message>
    <message>
        <source>abvolt</source>
        <translation>Abvolt</translation>
    </message>
    <message>
        <source>statvolt</source>
        <translation>Statvolt</translation>
    </message>
    <message>
        <source>candela</source>
        <translatorcomment>CLDR: Candela</translatorcomment>
        <translation>Candela</translation>
    </message>
    <message>
        <source>lumen per steradian</source>
        <translation>Lumen pro Steradiant</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>Candlepower</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>Lux (Beleuchtungsstärke)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>Footcandle</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translation>Lumensekunde</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>Talbot</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>Lichtleistung</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: Lumen</translatorcomment>
        <translation>Lumen</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: Candela pro Quadratmeter</translatorcomment>
        <translation>Candela pro Quadratmeter</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>Footlambert</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: Candela pro Quadratfuß</translatorcomment>
        <translation>Candela pro Quadratfuß</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>Lux (spezifische Lichtausstrahlung)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: Lumen pro Watt</translatorcomment>
        <translation>Lumen pro Watt</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: Pascal pro Meter</translatorcomment>
        <translation>Pascal pro Meter</translation>
    </message>
    <message>
        <source>inch of water per 100foot</source>
        <translation>Zoll Wassersäule pro 100 Fuß</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>Fuß Wassersäule pro 100 Fuß</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>Zoll Quecksilbersäule pro 100 Fuß</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>Millimeter Quecksilbersäule pro 100 Fuß</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: Newtonmeter pro Grad</translatorcomment>
        <translation>Newtonmeter pro Grad</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>Kip-Fuß pro Grad</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: Kilonewtonmeter pro Grad</translatorcomment>
        <translation>Kilonewtonmeter pro Grad</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>Newtonmeter pro Grad und Meter</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>Kip-Fuß pro Grad und Fuß</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>Kilonewtonmeter pro Grad und Meter</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>Watt pro Quadratmeter und Kelvin</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>British Thermal Unit pro Stunde, Quadratfuß und Grad Fahrenheit</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>Kubikmeter pro Sekunde und Quadratmeter</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>Kubikfuß pro Minute und Quadratfuß</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>Liter pro Sekunde und Quadratmeter</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>Kubikmeter pro Sekunde und Kubikmeter</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>Kubikfuß pro Minute und Kubikfuß</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>Liter pro Sekunde und Kubikmeter</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>Kubikmeter pro Sekunde und Watt</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>Kubikfuß pro Minute und Kältetonne</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>Liter pro Sekunde und Kilowatt</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: Quadratmeter pro Watt</translatorcomment>
        <translation>Quadratmeter pro Watt</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>Quadratfuß pro Kältetonne</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: Quadratmeter pro Kilowatt</translatorcomment>
        <translation>Quadratmeter pro Kilowatt</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>Quadratfuß pro tausend British Thermal Units pro Stunde</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>Quadratsekunde pro Meter und Kilogramm</translation>
    </message>
    <message>
        <source>inverse kilonewton</source>
        <translation>Pro Kilonewton</translation>
    </message>
    <message>
        <source>inverse kip</source>
        <translation>Pro Kip</translation>
    </message>
    <message>
        <source>inverse fahrenheit</source>
        <translation>Pro Grad Fahrenheit</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>Pro Grad Celsius</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>Mikrometer pro Meter und Grad Celsius</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>Mikrozoll pro Zoll und Grad Fahrenheit</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>Oersted</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: Ampere pro Meter</translatorcomment>
        <translation>Ampere pro Meter</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>Watt pro Meter und Kelvin</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>Watt pro Meter und Grad Celsius</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>Newton pro Sekunde und Grad Celsius</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>Dyn pro Sekunde und Grad Celsius</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>BTU-Zoll pro Quadratfuß, Stunde und Grad Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>BTU pro Zoll, Sekunde und Grad Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>BTU pro Fuß, Sekunde und Grad Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>BTU pro Fuß, Stunde und Grad Fahrenheit</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>Joule pro Gramm und Grad Celsius</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>Joule pro Kilogramm und Grad Celsius</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>Quadratmillimeter pro Quadratsekunde und Grad Celsius</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>Erg pro Gramm und Grad Celsius</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>Quadratmikrometer pro Quadratsekunde und Grad Celsius</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>BTU pro Pfund und Grad Fahrenheit</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>Nanogramm pro Pascal, Sekunde und Quadratmeter</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>Grain pro Quadratfuß, Stunde und Zoll Quecksilbersäule</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translation>Ohmmeter</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translatorcomment>CLDR: Joule pro Gramm</translatorcomment>
        <translation>Joule pro Gramm</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translatorcomment>CLDR: Joule pro Kilogramm</translatorcomment>
        <translation>Joule pro Kilogramm</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>BTU pro Pfund</translation>
    </message>
</context>
</TS>
