<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da_DK">
<context>
    <name>NumberFormat</name>
    <message>
        <source>Exponential</source>
        <translation>Eksponentiel</translation>
    </message>
    <message>
        <source>exponential</source>
        <translation>eksponentiel</translation>
    </message>
    <message>
        <source>Fixed Point</source>
        <translation>Fast decimal</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generel</translation>
    </message>
    <message>
        <source>general</source>
        <translation>generel</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Tal</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Brøk</translation>
    </message>
</context>
<context>
    <name>UnitGroup</name>
    <message>
        <source>Dimensionless</source>
        <translation>Dimensionsløs</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Længde</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Areal</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Rumfang</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masse</translation>
    </message>
    <message>
        <source>Linear Weight</source>
        <translation>Masse pr. længde</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>Stofmængde</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Vinkel</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>Rumvinkel</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>Masse pr. areal</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Koncentration</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>Dele pr. (ppm, ppb)</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>Elektrisk strøm</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>Elektrisk ladning</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>Kapacitans</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Bithastighed</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Densitet</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>Rumvægt</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energi</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>Volumenstrøm</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>Massestrøm</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>Flow pr. slag</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Kraft</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>Linjelast</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frekvens</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>Induktans</translation>
    </message>
    <message>
        <source>Magnetic Flux Density</source>
        <translation>Magnetisk fluxtæthed</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>Magnetisk flux</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Effekt</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>Effekt pr. volumenenhed</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>Effekt pr. masseenhed</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>Effekt pr. arealenhed</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Tryk</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>Kraftskala</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>Linjelastskala</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>Fladelastskala</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>Linjemoment</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>Elektrisk modstand</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>Elektrisk konduktans</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Hastighed</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>Datamængde</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>Temperaturændring pr. tid</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>Drejningsmoment</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>Dynamisk viskositet</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>Kinematisk viskositet</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Acceleration</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Elektrisk spænding</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>Elektrisk potential</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>Lysstyrke</translation>
    </message>
    <message>
        <source>Illuminance</source>
        <translation>Belysningsstyrke</translation>
    </message>
    <message>
        <source>Luminous Energy</source>
        <translation>Lysmængde</translation>
    </message>
    <message>
        <source>Luminous Flux</source>
        <translation>Lysstrøm</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminans</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>Lysudstråling</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>Lysudbytte</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Friktionstryktab</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>Rotationsfjederstivhed (punkt)</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>Rotationsfjederstivhed (linje)</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>Varmeovergangstal</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>Luftstrømstæthed</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>Luftstrøm pr. volumen</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>Luftstrøm pr. effekt</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>Areal pr. effekt</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>Momentskala</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>Længdeudvidelseskoefficient</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>Magnetisk feltstyrke</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>Varmeledningsevne</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>Specifik varmekapacitet</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>Damppermeabilitet</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>Resistivitet</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>Specifik fordampningsvarme</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>enhedsløs</translation>
    </message>
    <message>
        <source>meter</source>
        <translatorcomment>CLDR: meter</translatorcomment>
        <translation>meter</translation>
    </message>
    <message>
        <source>yottameter</source>
        <translatorcomment>CLDR: yottameter</translatorcomment>
        <translation>yottameter</translation>
    </message>
    <message>
        <source>zettameter</source>
        <translatorcomment>CLDR: zettameter</translatorcomment>
        <translation>zettameter</translation>
    </message>
    <message>
        <source>exameter</source>
        <translatorcomment>CLDR: exameter</translatorcomment>
        <translation>exameter</translation>
    </message>
    <message>
        <source>petameter</source>
        <translatorcomment>CLDR: petameter</translatorcomment>
        <translation>petameter</translation>
    </message>
    <message>
        <source>terameter</source>
        <translatorcomment>CLDR: terameter</translatorcomment>
        <translation>terameter</translation>
    </message>
    <message>
        <source>gigameter</source>
        <translatorcomment>CLDR: gigameter</translatorcomment>
        <translation>gigameter</translation>
    </message>
    <message>
        <source>megameter</source>
        <translatorcomment>CLDR: megameter</translatorcomment>
        <translation>megameter</translation>
    </message>
    <message>
        <source>kilometer</source>
        <translatorcomment>CLDR: kilometer</translatorcomment>
        <translation>kilometer</translation>
    </message>
    <message>
        <source>hectometer</source>
        <translatorcomment>CLDR: hektometer</translatorcomment>
        <translation>hektometer</translation>
    </message>
    <message>
        <source>decameter</source>
        <translatorcomment>CLDR: dekameter</translatorcomment>
        <translation>dekameter</translation>
    </message>
    <message>
        <source>decimeter</source>
        <translatorcomment>CLDR: decimeter</translatorcomment>
        <translation>decimeter</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translatorcomment>CLDR: centimeter</translatorcomment>
        <translation>centimeter</translation>
    </message>
    <message>
        <source>millimeter</source>
        <translatorcomment>CLDR: millimeter</translatorcomment>
        <translation>millimeter</translation>
    </message>
    <message>
        <source>micrometer</source>
        <translatorcomment>CLDR: mikrometer</translatorcomment>
        <translation>mikrometer</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translatorcomment>CLDR: nanometer</translatorcomment>
        <translation>nanometer</translation>
    </message>
    <message>
        <source>picometer</source>
        <translatorcomment>CLDR: pikometer</translatorcomment>
        <translation>pikometer</translation>
    </message>
    <message>
        <source>femtometer</source>
        <translatorcomment>CLDR: femtometer</translatorcomment>
        <translation>femtometer</translation>
    </message>
    <message>
        <source>attometer</source>
        <translatorcomment>CLDR: attometer</translatorcomment>
        <translation>attometer</translation>
    </message>
    <message>
        <source>zeptometer</source>
        <translatorcomment>CLDR: zeptometer</translatorcomment>
        <translation>zeptometer</translation>
    </message>
    <message>
        <source>yoctometer</source>
        <translatorcomment>CLDR: yoctometer</translatorcomment>
        <translation>yoctometer</translation>
    </message>
    <message>
        <source>inch</source>
        <translatorcomment>CLDR: tomme</translatorcomment>
        <translation>tomme</translation>
    </message>
    <message>
        <source>foot</source>
        <translatorcomment>CLDR: fod</translatorcomment>
        <translation>fod</translation>
    </message>
    <message>
        <source>foot (Benoit)</source>
        <translation>fod (Benoit)</translation>
    </message>
    <message>
        <source>foot (Clarke&apos;s; Cape)</source>
        <translation>fod (Clarke; Kapstaden)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>fod (Indien)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>fod (Sears)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>landmålerfod (USA)</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: engelsk yard</translatorcomment>
        <translation>engelsk yard</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>kæde (chain)</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>kæde (Ramsden; ingeniør)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: furlong</translatorcomment>
        <translation>furlong</translation>
    </message>
    <message>
        <source>mile</source>
        <translatorcomment>CLDR: engelsk mil</translatorcomment>
        <translation>engelsk mil</translation>
    </message>
    <message>
        <source>geographical mile</source>
        <translation>geografisk mil</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>landmålermile (USA)</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: sømil</translatorcomment>
        <translation>sømil</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>engelsk landmil</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>sømil (admiralitetet)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>mikron</translation>
    </message>
    <message>
        <source>microinch</source>
        <translatorcomment>CLDR: mikrotomme</translatorcomment>
        <translation>mikrotomme</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>ångstrøm</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: astronomisk enhed</translatorcomment>
        <translation>astronomisk enhed</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>kabellængde</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>alen (cubit)</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: favn</translatorcomment>
        <translation>favn</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>hånd (4 tommer)</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: lysår</translatorcomment>
        <translation>lysår</translation>
    </message>
    <message>
        <source>span</source>
        <translation>spand (span)</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>spand (tekstil)</translation>
    </message>
    <message>
        <source>parsec</source>
        <translatorcomment>CLDR: parsec</translatorcomment>
        <translation>parsec</translation>
    </message>
    <message>
        <source>nautical league</source>
        <translation>nautisk league</translation>
    </message>
    <message>
        <source>league</source>
        <translation>league (engelsk)</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>mil (tusindedel tomme)</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>mil (Sverige og Norge)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>led (link)</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>led (Ramsden; ingeniør)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>skridt</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>håndflade (3 tommer)</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>stang (rod)</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>rope (20 fod)</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>fed (skein)</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>kaliber</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>landmålertomme</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>landmåleryard</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>landmålerstang</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>bolt (stofrulle)</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: kvadratmeter</translatorcomment>
        <translation>kvadratmeter</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: kvadrattomme</translatorcomment>
        <translation>kvadrattomme</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: kvadratfod</translatorcomment>
        <translation>kvadratfod</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: kvadrat-engelsk yard</translatorcomment>
        <translation>kvadrat-engelsk yard</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: acre</translatorcomment>
        <translation>acre</translation>
    </message>
    <message>
        <source>section</source>
        <translation>section (kvadratmile)</translation>
    </message>
    <message>
        <source>township</source>
        <translation>township (36 kvadratmiles)</translation>
    </message>
    <message>
        <source>hectare</source>
        <translatorcomment>CLDR: hektar</translatorcomment>
        <translation>hektar</translation>
    </message>
    <message>
        <source>square kilometer</source>
        <translatorcomment>CLDR: kvadratkilometer</translatorcomment>
        <translation>kvadratkilometer</translation>
    </message>
    <message>
        <source>square mile</source>
        <translatorcomment>CLDR: kvadrat-engelsk mil</translatorcomment>
        <translation>kvadrat-engelsk mil</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translatorcomment>CLDR: kvadratcentimeter</translatorcomment>
        <translation>kvadratcentimeter</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translatorcomment>CLDR: kvadratmillimeter</translatorcomment>
        <translation>kvadratmillimeter</translation>
    </message>
    <message>
        <source>circular mil</source>
        <translation>cirkulær mil</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>kilo-cirkulær mil</translation>
    </message>
    <message>
        <source>are</source>
        <translation>ar</translation>
    </message>
    <message>
        <source>barn</source>
        <translation>barn</translation>
    </message>
    <message>
        <source>centare</source>
        <translation>centiar</translation>
    </message>
    <message>
        <source>square angstrom</source>
        <translation>kvadratångstrøm</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>kvadratbolt</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>kvadratkabellængde</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>kvadratkaliber</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>kvadratalen</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translatorcomment>CLDR: kvadratdecimeter</translatorcomment>
        <translation>kvadratdecimeter</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translatorcomment>CLDR: kvadratfavn</translatorcomment>
        <translation>kvadratfavn</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translatorcomment>CLDR: kvadratfurlong</translatorcomment>
        <translation>kvadratfurlong</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translatorcomment>CLDR: kvadratgigameter</translatorcomment>
        <translation>kvadratgigameter</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>kvadrathånd</translation>
    </message>
    <message>
        <source>square nautical league</source>
        <translation>nautisk kvadratleague</translation>
    </message>
    <message>
        <source>square league (statute)</source>
        <translation>kvadratleague (land)</translation>
    </message>
    <message>
        <source>square light-year</source>
        <translatorcomment>CLDR: kvadratlysår</translatorcomment>
        <translation>kvadratlysår</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>kvadratled</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>kvadratmikron</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>kvadratmil (britisk sømil)</translation>
    </message>
    <message>
        <source>square mile (statute)</source>
        <translation>engelsk kvadratmil (land)</translation>
    </message>
    <message>
        <source>square millimicron</source>
        <translation>kvadratmillimikron</translation>
    </message>
    <message>
        <source>square pace</source>
        <translation>kvadratskridt</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>kvadrathåndflade</translation>
    </message>
    <message>
        <source>square parsec</source>
        <translatorcomment>CLDR: kvadratparsec</translatorcomment>
        <translation>kvadratparsec</translation>
    </message>
    <message>
        <source>square perch</source>
        <translation>kvadratperch</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>kvadratrope</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>kvadratfed</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>kvadratspand</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>kvadratlandmålerfod</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>kvadratkæde</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>kvadratmil (tusindedel tomme)</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translation>astronomisk enhed i kvadrat</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>landmåleracre</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>kvadratlandmåleryard</translation>
    </message>
    <message>
        <source>board</source>
        <translation>board (planke)</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>cord (areal)</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>kvadratmikrotomme</translation>
    </message>
    <message>
        <source>square micrometer</source>
        <translatorcomment>CLDR: kvadratmikrometer</translatorcomment>
        <translation>kvadratmikrometer</translation>
    </message>
    <message>
        <source>liter</source>
        <translatorcomment>CLDR: liter</translatorcomment>
        <translation>liter</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translatorcomment>CLDR: kubikcentimeter</translatorcomment>
        <translation>kubikcentimeter</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translatorcomment>CLDR: spiseske</translatorcomment>
        <translation>spiseske</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>spiseske (Canada)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>spiseske (USA)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>væskeounce (imperial)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>væskeounce (USA)</translation>
    </message>
    <message>
        <source>cup</source>
        <translation>kop</translation>
    </message>
    <message>
        <source>cup (Canadian)</source>
        <translation>kop (Canada)</translation>
    </message>
    <message>
        <source>cup (U.S.)</source>
        <translation>kop (USA)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>quart (imperial)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>quart (USA, våd)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>quart (USA, tør)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>gallon (imperial)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>gallon (USA, våd; vin)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>gallon (USA, tør)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>ølgallon</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>bushel (imperial)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>bushel (USA, struget)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>bushel (USA, topfyldt)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: centiliter</translatorcomment>
        <translation>centiliter</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: kubikfod</translatorcomment>
        <translation>kubikfod</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: kubiktomme</translatorcomment>
        <translation>kubiktomme</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: kubikmeter</translatorcomment>
        <translation>kubikmeter</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: kubik-engelske yard</translatorcomment>
        <translation>kubik-engelske yard</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>væskedram</translation>
    </message>
    <message>
        <source>microliter</source>
        <translatorcomment>CLDR: mikroliter</translatorcomment>
        <translation>mikroliter</translation>
    </message>
    <message>
        <source>milliliter</source>
        <translatorcomment>CLDR: milliliter</translatorcomment>
        <translation>milliliter</translation>
    </message>
    <message>
        <source>pint (imperial)</source>
        <translation>pint (imperial)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>pint (USA, våd)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>pint (USA, tør)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: teske</translatorcomment>
        <translation>teske</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>teske (Canada)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>teske (USA)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>teske (imperial)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translatorcomment>CLDR: kubikmillimeter</translatorcomment>
        <translation>kubikmillimeter</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>tønde (imperial)</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>tønde (olie)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>tønde (USA, tør)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>tønde (USA, våd)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>board-fod</translation>
    </message>
    <message>
        <source>decistere</source>
        <translation>decister</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translatorcomment>CLDR: dekaliter</translatorcomment>
        <translation>dekaliter</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>dekaster</translation>
    </message>
    <message>
        <source>dram</source>
        <translatorcomment>CLDR: britisk flydende dram</translatorcomment>
        <translation>britisk flydende dram</translation>
    </message>
    <message>
        <source>firkin</source>
        <translation>firkin</translation>
    </message>
    <message>
        <source>cubic angstrom</source>
        <translation>kubikångstrøm</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translation>astronomisk enhed i kubik</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>kubikbolt</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>kubikkabellængde</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>kubikkaliber</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>kubikkæde</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>kubikalen</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translatorcomment>CLDR: kubikfavn</translatorcomment>
        <translation>kubikfavn</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translatorcomment>CLDR: kubikfurlong</translatorcomment>
        <translation>kubikfurlong</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translatorcomment>CLDR: kubikgigameter</translatorcomment>
        <translation>kubikgigameter</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>kubikhånd</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translatorcomment>CLDR: kubikhektometer</translatorcomment>
        <translation>kubikhektometer</translation>
    </message>
    <message>
        <source>cubic nautical league</source>
        <translation>nautisk kubikleague</translation>
    </message>
    <message>
        <source>cubic league (statute)</source>
        <translation>kubikleague (land)</translation>
    </message>
    <message>
        <source>cubic light-year</source>
        <translatorcomment>CLDR: kubiklysår</translatorcomment>
        <translation>kubiklysår</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>kubikled</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>kubikmil (tusindedel tomme)</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>kubikmil (britisk sømil)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: kubik-engelsk mil</translatorcomment>
        <translation>kubik-engelsk mil</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translatorcomment>CLDR: kubiksømil</translatorcomment>
        <translation>kubiksømil</translation>
    </message>
    <message>
        <source>cubic mile (statute)</source>
        <translation>engelsk kubikmil (land)</translation>
    </message>
    <message>
        <source>cubic millimicron</source>
        <translation>kubikmillimikron</translation>
    </message>
    <message>
        <source>cubic pace</source>
        <translation>kubikskridt</translation>
    </message>
    <message>
        <source>cubic palm</source>
        <translation>kubikhåndflade</translation>
    </message>
    <message>
        <source>cubic parsec</source>
        <translatorcomment>CLDR: kubikparsec</translatorcomment>
        <translation>kubikparsec</translation>
    </message>
    <message>
        <source>cubic perch</source>
        <translation>kubikperch</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>kubikrope</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>kubikfed</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>kubikspand</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>kubiklandmålerfod</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translatorcomment>CLDR: kubikdecimeter</translatorcomment>
        <translation>kubikdecimeter</translation>
    </message>
    <message>
        <source>tun</source>
        <translation>tønde (tun)</translation>
    </message>
    <message>
        <source>peck</source>
        <translation>peck</translation>
    </message>
    <message>
        <source>peck (U.S. dry)</source>
        <translation>peck (USA, tør)</translation>
    </message>
    <message>
        <source>peck (imperial)</source>
        <translation>peck (imperial)</translation>
    </message>
    <message>
        <source>minim (imperial)</source>
        <translation>minim (imperial)</translation>
    </message>
    <message>
        <source>minim (U.S.)</source>
        <translation>minim (USA)</translation>
    </message>
    <message>
        <source>kiloliter</source>
        <translatorcomment>CLDR: kiloliter</translatorcomment>
        <translation>kiloliter</translation>
    </message>
    <message>
        <source>hogshead (U.S.)</source>
        <translation>oksehoved (USA)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>oksehoved (imperial)</translation>
    </message>
    <message>
        <source>gill (imperial)</source>
        <translation>gill (imperial)</translation>
    </message>
    <message>
        <source>gill (U.S.)</source>
        <translation>gill (USA)</translation>
    </message>
    <message>
        <source>cubic survey yard</source>
        <translation>kubiklandmåleryard</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>cord-fod</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>cord (brænde)</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>registerton</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: acre-fod</translatorcomment>
        <translation>acre-fod</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>acre-tomme</translation>
    </message>
    <message>
        <source>cubic microinch</source>
        <translation>kubikmikrotomme</translation>
    </message>
    <message>
        <source>cubic micrometer</source>
        <translatorcomment>CLDR: kubikmikrometer</translatorcomment>
        <translation>kubikmikrometer</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translatorcomment>CLDR: kubikkilometer</translatorcomment>
        <translation>kubikkilometer</translation>
    </message>
    <message>
        <source>kilogram</source>
        <translatorcomment>CLDR: kilogram</translatorcomment>
        <translation>kilogram</translation>
    </message>
    <message>
        <source>gram</source>
        <translatorcomment>CLDR: gram</translatorcomment>
        <translation>gram</translation>
    </message>
    <message>
        <source>yottagram</source>
        <translatorcomment>CLDR: yottagram</translatorcomment>
        <translation>yottagram</translation>
    </message>
    <message>
        <source>zettagram</source>
        <translatorcomment>CLDR: zettagram</translatorcomment>
        <translation>zettagram</translation>
    </message>
    <message>
        <source>exagram</source>
        <translatorcomment>CLDR: exagram</translatorcomment>
        <translation>exagram</translation>
    </message>
    <message>
        <source>petagram</source>
        <translatorcomment>CLDR: petagram</translatorcomment>
        <translation>petagram</translation>
    </message>
    <message>
        <source>teragram</source>
        <translatorcomment>CLDR: teragram</translatorcomment>
        <translation>teragram</translation>
    </message>
    <message>
        <source>gigagram</source>
        <translatorcomment>CLDR: gigagram</translatorcomment>
        <translation>gigagram</translation>
    </message>
    <message>
        <source>megagram</source>
        <translatorcomment>CLDR: megagram</translatorcomment>
        <translation>megagram</translation>
    </message>
    <message>
        <source>hectogram</source>
        <translatorcomment>CLDR: hektogram</translatorcomment>
        <translation>hektogram</translation>
    </message>
    <message>
        <source>decagram</source>
        <translatorcomment>CLDR: dekagram</translatorcomment>
        <translation>dekagram</translation>
    </message>
    <message>
        <source>decigram</source>
        <translatorcomment>CLDR: decigram</translatorcomment>
        <translation>decigram</translation>
    </message>
    <message>
        <source>centigram</source>
        <translatorcomment>CLDR: centigram</translatorcomment>
        <translation>centigram</translation>
    </message>
    <message>
        <source>milligram</source>
        <translatorcomment>CLDR: milligram</translatorcomment>
        <translation>milligram</translation>
    </message>
    <message>
        <source>microgram</source>
        <translatorcomment>CLDR: mikrogram</translatorcomment>
        <translation>mikrogram</translation>
    </message>
    <message>
        <source>nanogram</source>
        <translatorcomment>CLDR: nanogram</translatorcomment>
        <translation>nanogram</translation>
    </message>
    <message>
        <source>picogram</source>
        <translatorcomment>CLDR: pikogram</translatorcomment>
        <translation>pikogram</translation>
    </message>
    <message>
        <source>femtogram</source>
        <translatorcomment>CLDR: femtogram</translatorcomment>
        <translation>femtogram</translation>
    </message>
    <message>
        <source>attogram</source>
        <translatorcomment>CLDR: attogram</translatorcomment>
        <translation>attogram</translation>
    </message>
    <message>
        <source>zeptogram</source>
        <translatorcomment>CLDR: zeptogram</translatorcomment>
        <translation>zeptogram</translation>
    </message>
    <message>
        <source>yoctogram</source>
        <translatorcomment>CLDR: yoctogram</translatorcomment>
        <translation>yoctogram</translation>
    </message>
    <message>
        <source>pound (meter)</source>
        <translation>metrisk pund</translation>
    </message>
    <message>
        <source>pound</source>
        <translatorcomment>CLDR: pund</translatorcomment>
        <translation>pund</translation>
    </message>
    <message>
        <source>pound (troy)</source>
        <translation>troypund</translation>
    </message>
    <message>
        <source>ounce (avoirdupois)</source>
        <translation>ounce (avoirdupois)</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>ounce (apoteker; troy)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: stone</translatorcomment>
        <translation>stone</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>kort ton</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>lang ton</translation>
    </message>
    <message>
        <source>carat</source>
        <translatorcomment>CLDR: karat</translatorcomment>
        <translation>karat</translation>
    </message>
    <message>
        <source>carat (metric)</source>
        <translation>karat (metrisk)</translation>
    </message>
    <message>
        <source>dram (avoirdupois)</source>
        <translation>dram (avoirdupois)</translation>
    </message>
    <message>
        <source>dram (apothecary; troy)</source>
        <translation>dram (apoteker; troy)</translation>
    </message>
    <message>
        <source>pennyweight</source>
        <translation>pennyweight</translation>
    </message>
    <message>
        <source>tael</source>
        <translation>tael</translation>
    </message>
    <message>
        <source>tola</source>
        <translation>tola</translation>
    </message>
    <message>
        <source>long hundredweight</source>
        <translation>lang hundredweight</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>kort hundredweight</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: gran</translatorcomment>
        <translation>gran</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>perlegrain</translation>
    </message>
    <message>
        <source>dalton</source>
        <translation>dalton</translation>
    </message>
    <message>
        <source>kilodalton</source>
        <translation>kilodalton</translation>
    </message>
    <message>
        <source>slug</source>
        <translation>slug</translation>
    </message>
    <message>
        <source>kilogram per meter</source>
        <translatorcomment>CLDR: kilogram pr. meter</translatorcomment>
        <translation>kilogram pr. meter</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: pund pr. fod</translatorcomment>
        <translation>pund pr. fod</translation>
    </message>
    <message>
        <source>mole</source>
        <translatorcomment>CLDR: mol</translatorcomment>
        <translation>mol</translation>
    </message>
    <message>
        <source>yottamole</source>
        <translatorcomment>CLDR: yottamol</translatorcomment>
        <translation>yottamol</translation>
    </message>
    <message>
        <source>zettamole</source>
        <translatorcomment>CLDR: zettamol</translatorcomment>
        <translation>zettamol</translation>
    </message>
    <message>
        <source>examole</source>
        <translatorcomment>CLDR: examol</translatorcomment>
        <translation>examol</translation>
    </message>
    <message>
        <source>petamole</source>
        <translatorcomment>CLDR: petamol</translatorcomment>
        <translation>petamol</translation>
    </message>
    <message>
        <source>teramole</source>
        <translatorcomment>CLDR: teramol</translatorcomment>
        <translation>teramol</translation>
    </message>
    <message>
        <source>gigamole</source>
        <translatorcomment>CLDR: gigamol</translatorcomment>
        <translation>gigamol</translation>
    </message>
    <message>
        <source>megamole</source>
        <translatorcomment>CLDR: megamol</translatorcomment>
        <translation>megamol</translation>
    </message>
    <message>
        <source>kilomole</source>
        <translatorcomment>CLDR: kilomol</translatorcomment>
        <translation>kilomol</translation>
    </message>
    <message>
        <source>hectomole</source>
        <translatorcomment>CLDR: hektomol</translatorcomment>
        <translation>hektomol</translation>
    </message>
    <message>
        <source>decamole</source>
        <translatorcomment>CLDR: dekamol</translatorcomment>
        <translation>dekamol</translation>
    </message>
    <message>
        <source>decimole</source>
        <translatorcomment>CLDR: decimol</translatorcomment>
        <translation>decimol</translation>
    </message>
    <message>
        <source>centimole</source>
        <translatorcomment>CLDR: centimol</translatorcomment>
        <translation>centimol</translation>
    </message>
    <message>
        <source>millimole</source>
        <translatorcomment>CLDR: millimol</translatorcomment>
        <translation>millimol</translation>
    </message>
    <message>
        <source>micromole</source>
        <translatorcomment>CLDR: mikromol</translatorcomment>
        <translation>mikromol</translation>
    </message>
    <message>
        <source>nanomole</source>
        <translatorcomment>CLDR: nanomol</translatorcomment>
        <translation>nanomol</translation>
    </message>
    <message>
        <source>picomole</source>
        <translatorcomment>CLDR: pikomol</translatorcomment>
        <translation>pikomol</translation>
    </message>
    <message>
        <source>femtomole</source>
        <translatorcomment>CLDR: femtomol</translatorcomment>
        <translation>femtomol</translation>
    </message>
    <message>
        <source>attomole</source>
        <translatorcomment>CLDR: attomol</translatorcomment>
        <translation>attomol</translation>
    </message>
    <message>
        <source>zeptomole</source>
        <translatorcomment>CLDR: zeptomol</translatorcomment>
        <translation>zeptomol</translation>
    </message>
    <message>
        <source>yoctomole</source>
        <translatorcomment>CLDR: yoctomol</translatorcomment>
        <translation>yoctomol</translation>
    </message>
    <message>
        <source>radian</source>
        <translatorcomment>CLDR: radian</translatorcomment>
        <translation>radian</translation>
    </message>
    <message>
        <source>degree</source>
        <translation>vinkelgrad</translation>
    </message>
    <message>
        <source>milliradian</source>
        <translatorcomment>CLDR: milliradian</translatorcomment>
        <translation>milliradian</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>gon</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>streg (NATO)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>streg (Sverige)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>streg (USSR)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translatorcomment>CLDR: bueminut</translatorcomment>
        <translation>bueminut</translation>
    </message>
    <message>
        <source>angle second</source>
        <translatorcomment>CLDR: buesekund</translatorcomment>
        <translation>buesekund</translation>
    </message>
    <message>
        <source>milliarc second</source>
        <translation>millibuesekund</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>steradian</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: gram/m²</translatorcomment>
        <translation>gram/m²</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: gram pr. kvadrattomme</translatorcomment>
        <translation>gram pr. kvadrattomme</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translatorcomment>CLDR: nanogram/l</translatorcomment>
        <translation>nanogram/l</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translatorcomment>CLDR: nanogram pr. deciliter</translatorcomment>
        <translation>nanogram pr. deciliter</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translatorcomment>CLDR: nanogram pr. milliliter</translatorcomment>
        <translation>nanogram pr. milliliter</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translatorcomment>CLDR: nanogram pr. mikroliter</translatorcomment>
        <translation>nanogram pr. mikroliter</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: part per million</translatorcomment>
        <translation>part per million</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>milliardtedel</translation>
    </message>
    <message>
        <source>ampere</source>
        <translatorcomment>CLDR: ampere</translatorcomment>
        <translation>ampere</translation>
    </message>
    <message>
        <source>yottaampere</source>
        <translatorcomment>CLDR: yottaampere</translatorcomment>
        <translation>yottaampere</translation>
    </message>
    <message>
        <source>zettaampere</source>
        <translatorcomment>CLDR: zettaampere</translatorcomment>
        <translation>zettaampere</translation>
    </message>
    <message>
        <source>exaampere</source>
        <translatorcomment>CLDR: exaampere</translatorcomment>
        <translation>exaampere</translation>
    </message>
    <message>
        <source>petaampere</source>
        <translatorcomment>CLDR: petaampere</translatorcomment>
        <translation>petaampere</translation>
    </message>
    <message>
        <source>teraampere</source>
        <translatorcomment>CLDR: teraampere</translatorcomment>
        <translation>teraampere</translation>
    </message>
    <message>
        <source>gigaampere</source>
        <translatorcomment>CLDR: gigaampere</translatorcomment>
        <translation>gigaampere</translation>
    </message>
    <message>
        <source>megaampere</source>
        <translatorcomment>CLDR: megaampere</translatorcomment>
        <translation>megaampere</translation>
    </message>
    <message>
        <source>kiloampere</source>
        <translatorcomment>CLDR: kiloampere</translatorcomment>
        <translation>kiloampere</translation>
    </message>
    <message>
        <source>hectoampere</source>
        <translatorcomment>CLDR: hektoampere</translatorcomment>
        <translation>hektoampere</translation>
    </message>
    <message>
        <source>decaampere</source>
        <translatorcomment>CLDR: dekaampere</translatorcomment>
        <translation>dekaampere</translation>
    </message>
    <message>
        <source>deciampere</source>
        <translatorcomment>CLDR: deciampere</translatorcomment>
        <translation>deciampere</translation>
    </message>
    <message>
        <source>centiampere</source>
        <translatorcomment>CLDR: centiampere</translatorcomment>
        <translation>centiampere</translation>
    </message>
    <message>
        <source>milliampere</source>
        <translatorcomment>CLDR: milliampere</translatorcomment>
        <translation>milliampere</translation>
    </message>
    <message>
        <source>microampere</source>
        <translatorcomment>CLDR: mikroampere</translatorcomment>
        <translation>mikroampere</translation>
    </message>
    <message>
        <source>nanoampere</source>
        <translatorcomment>CLDR: nanoampere</translatorcomment>
        <translation>nanoampere</translation>
    </message>
    <message>
        <source>picoampere</source>
        <translatorcomment>CLDR: pikoampere</translatorcomment>
        <translation>pikoampere</translation>
    </message>
    <message>
        <source>femtoampere</source>
        <translatorcomment>CLDR: femtoampere</translatorcomment>
        <translation>femtoampere</translation>
    </message>
    <message>
        <source>attoampere</source>
        <translatorcomment>CLDR: attoampere</translatorcomment>
        <translation>attoampere</translation>
    </message>
    <message>
        <source>zeptoampere</source>
        <translatorcomment>CLDR: zeptoampere</translatorcomment>
        <translation>zeptoampere</translation>
    </message>
    <message>
        <source>yoctoampere</source>
        <translatorcomment>CLDR: yoctoampere</translatorcomment>
        <translation>yoctoampere</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>coulomb</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translatorcomment>CLDR: ampere gange time</translatorcomment>
        <translation>ampere gange time</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translatorcomment>CLDR: milliampere gange time</translatorcomment>
        <translation>milliampere gange time</translation>
    </message>
    <message>
        <source>faraday</source>
        <translation>faraday</translation>
    </message>
    <message>
        <source>farad</source>
        <translation>farad</translation>
    </message>
    <message>
        <source>yottafarad</source>
        <translation>yottafarad</translation>
    </message>
    <message>
        <source>zettafarad</source>
        <translation>zettafarad</translation>
    </message>
    <message>
        <source>exafarad</source>
        <translation>exafarad</translation>
    </message>
    <message>
        <source>petafarad</source>
        <translation>petafarad</translation>
    </message>
    <message>
        <source>terafarad</source>
        <translation>terafarad</translation>
    </message>
    <message>
        <source>gigafarad</source>
        <translation>gigafarad</translation>
    </message>
    <message>
        <source>megafarad</source>
        <translation>megafarad</translation>
    </message>
    <message>
        <source>kilofarad</source>
        <translation>kilofarad</translation>
    </message>
    <message>
        <source>hectofarad</source>
        <translation>hektofarad</translation>
    </message>
    <message>
        <source>decafarad</source>
        <translation>dekafarad</translation>
    </message>
    <message>
        <source>decifarad</source>
        <translation>decifarad</translation>
    </message>
    <message>
        <source>centifarad</source>
        <translation>centifarad</translation>
    </message>
    <message>
        <source>millifarad</source>
        <translation>millifarad</translation>
    </message>
    <message>
        <source>microfarad</source>
        <translation>mikrofarad</translation>
    </message>
    <message>
        <source>nanofarad</source>
        <translation>nanofarad</translation>
    </message>
    <message>
        <source>picofarad</source>
        <translation>picofarad</translation>
    </message>
    <message>
        <source>femtofarad</source>
        <translation>femtofarad</translation>
    </message>
    <message>
        <source>attofarad</source>
        <translation>attofarad</translation>
    </message>
    <message>
        <source>zeptofarad</source>
        <translation>zeptofarad</translation>
    </message>
    <message>
        <source>yoctofarad</source>
        <translation>yoctofarad</translation>
    </message>
    <message>
        <source>kilopicofarad</source>
        <translation>kilopicofarad</translation>
    </message>
    <message>
        <source>baud</source>
        <translation>baud</translation>
    </message>
    <message>
        <source>bit per second</source>
        <translatorcomment>CLDR: bit pr. sekund</translatorcomment>
        <translation>bit pr. sekund</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: byte pr. sekund</translatorcomment>
        <translation>byte pr. sekund</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>kilobaud</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: kilobit pr. sekund</translatorcomment>
        <translation>kilobit pr. sekund</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: kilobyte pr. sekund</translatorcomment>
        <translation>kilobyte pr. sekund</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>megabaud</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: megabit pr. sekund</translatorcomment>
        <translation>megabit pr. sekund</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: megabyte pr. sekund</translatorcomment>
        <translation>megabyte pr. sekund</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: kilogram/m³</translatorcomment>
        <translation>kilogram/m³</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translatorcomment>CLDR: kilogram/l</translatorcomment>
        <translation>kilogram/l</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translatorcomment>CLDR: gram/l</translatorcomment>
        <translation>gram/l</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translatorcomment>CLDR: mikrogram pr. milliliter</translatorcomment>
        <translation>mikrogram pr. milliliter</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: milligram pr. milliliter</translatorcomment>
        <translation>milligram pr. milliliter</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: pund/gal</translatorcomment>
        <translation>pund/gal</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: ounce/gal</translatorcomment>
        <translation>ounce/gal</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: pund pr. kubikfod</translatorcomment>
        <translation>pund pr. kubikfod</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: pund pr. kubiktomme</translatorcomment>
        <translation>pund pr. kubiktomme</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: gram/cm³</translatorcomment>
        <translation>gram/cm³</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>newton kvadratsekund pr. millimeter i fjerde</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: newton/m³</translatorcomment>
        <translation>newton/m³</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: kilonewton/m³</translatorcomment>
        <translation>kilonewton/m³</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>pundkraft pr. kubikfod</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>kip pr. kubiktomme</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>kip pr. kubikfod</translation>
    </message>
    <message>
        <source>joule</source>
        <translatorcomment>CLDR: joule</translatorcomment>
        <translation>joule</translation>
    </message>
    <message>
        <source>calorie</source>
        <translatorcomment>CLDR: kalorie</translatorcomment>
        <translation>kalorie</translation>
    </message>
    <message>
        <source>kilocalorie</source>
        <translatorcomment>CLDR: kilokalorie</translatorcomment>
        <translation>kilokalorie</translation>
    </message>
    <message>
        <source>British thermal unit (thermochemical)</source>
        <translation>britisk varmeenhed (termokemisk)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>britisk varmeenhed (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>britisk varmeenhed (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>britisk varmeenhed (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>britisk varmeenhed (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>britisk varmeenhed (international tabel)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>britisk varmeenhed (middel)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>britisk varmeenhed (39 °F)</translation>
    </message>
    <message>
        <source>kiloelectronvolt</source>
        <translatorcomment>CLDR: kiloelektronvolt</translatorcomment>
        <translation>kiloelektronvolt</translation>
    </message>
    <message>
        <source>megaelectronvolt</source>
        <translatorcomment>CLDR: megaelektronvolt</translatorcomment>
        <translation>megaelektronvolt</translation>
    </message>
    <message>
        <source>electronvolt</source>
        <translatorcomment>CLDR: elektronvolt</translatorcomment>
        <translation>elektronvolt</translation>
    </message>
    <message>
        <source>erg</source>
        <translation>erg</translation>
    </message>
    <message>
        <source>kilowatt hour</source>
        <translatorcomment>CLDR: kilowatt-time</translatorcomment>
        <translation>kilowatt-time</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translatorcomment>CLDR: kilowatt gange minut</translatorcomment>
        <translation>kilowatt gange minut</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translatorcomment>CLDR: kilowatt gange sekund</translatorcomment>
        <translation>kilowatt gange sekund</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>therm (USA)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: newtonmeter</translatorcomment>
        <translation>newtonmeter</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translatorcomment>CLDR: dekanewtonmeter</translatorcomment>
        <translation>dekanewtonmeter</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translatorcomment>CLDR: kilonewtonmeter</translatorcomment>
        <translation>kilonewtonmeter</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translatorcomment>CLDR: meganewtonmeter</translatorcomment>
        <translation>meganewtonmeter</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>kilopondmeter</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>kilopondfod</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>tonkraftfod</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>tonkraftmeter</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>fod-kilopund</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>fod-pundkraft</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>kalorie (20 °C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>kalorie (termokemisk)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>kalorie (15 °C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>kalorie (middel)</translation>
    </message>
    <message>
        <source>calorie (3.98 degree C)</source>
        <translation>kalorie (3,98 °C)</translation>
    </message>
    <message>
        <source>Therm (EC)</source>
        <translation>therm (EF)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: kubikmeter pr. sekund</translatorcomment>
        <translation>kubikmeter pr. sekund</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: liter pr. sekund</translatorcomment>
        <translation>liter pr. sekund</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: liter pr. min.</translatorcomment>
        <translation>liter pr. min.</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: liter pr. time</translatorcomment>
        <translation>liter pr. time</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translatorcomment>CLDR: gallon pr. sekund</translatorcomment>
        <translation>gallon pr. sekund</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: gallon pr. min.</translatorcomment>
        <translation>gallon pr. min.</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: gallon pr. time</translatorcomment>
        <translation>gallon pr. time</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: gallon pr. dag</translatorcomment>
        <translation>gallon pr. dag</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: milliliter pr. min.</translatorcomment>
        <translation>milliliter pr. min.</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: kubikcentimeter pr. min.</translatorcomment>
        <translation>kubikcentimeter pr. min.</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: kubikfod pr. time</translatorcomment>
        <translation>kubikfod pr. time</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: kubikfod pr. min.</translatorcomment>
        <translation>kubikfod pr. min.</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: kubikfod pr. sekund</translatorcomment>
        <translation>kubikfod pr. sekund</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: kubiktomme pr. min.</translatorcomment>
        <translation>kubiktomme pr. min.</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: kubikmeter pr. time</translatorcomment>
        <translation>kubikmeter pr. time</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: kubikmeter pr. min.</translatorcomment>
        <translation>kubikmeter pr. min.</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: kubikcentimeter pr. sekund</translatorcomment>
        <translation>kubikcentimeter pr. sekund</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: kubikcentimeter pr. time</translatorcomment>
        <translation>kubikcentimeter pr. time</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>amerikansk gallon pr. time</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>amerikansk gallon pr. sekund</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>imperial gallon pr. døgn</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>imperial gallon pr. time</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>imperial gallon pr. minut</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>imperial gallon pr. sekund</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>million imperial gallon pr. døgn</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: liter pr. dag</translatorcomment>
        <translation>liter pr. dag</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>million liter pr. døgn</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>amerikansk gallon pr. døgn</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>million amerikanske gallon pr. døgn</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: kubikfod pr. dag</translatorcomment>
        <translation>kubikfod pr. dag</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: kubikmeter pr. dag</translatorcomment>
        <translation>kubikmeter pr. dag</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: kubik-engelske yard pr. min.</translatorcomment>
        <translation>kubik-engelske yard pr. min.</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: acre-fod pr. dag</translatorcomment>
        <translation>acre-fod pr. dag</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: acre-fod pr. time</translatorcomment>
        <translation>acre-fod pr. time</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: acre-fod pr. min.</translatorcomment>
        <translation>acre-fod pr. min.</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>acre-tomme pr. time</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>acre-tomme pr. minut</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>kubiklandmålerfod pr. sekund</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: kilogram pr. sekund</translatorcomment>
        <translation>kilogram pr. sekund</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: kilogram pr. min.</translatorcomment>
        <translation>kilogram pr. min.</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: kilogram pr. time</translatorcomment>
        <translation>kilogram pr. time</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: gram pr. sekund</translatorcomment>
        <translation>gram pr. sekund</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: gram pr. min.</translatorcomment>
        <translation>gram pr. min.</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: gram pr. time</translatorcomment>
        <translation>gram pr. time</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: pund pr. sekund</translatorcomment>
        <translation>pund pr. sekund</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: pund pr. min.</translatorcomment>
        <translation>pund pr. min.</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: pund pr. time</translatorcomment>
        <translation>pund pr. time</translation>
    </message>
    <message>
        <source>pint per stroke</source>
        <translation>pint pr. slag</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>quart pr. slag</translation>
    </message>
    <message>
        <source>newton</source>
        <translatorcomment>CLDR: newton</translatorcomment>
        <translation>newton</translation>
    </message>
    <message>
        <source>yottanewton</source>
        <translatorcomment>CLDR: yottanewton</translatorcomment>
        <translation>yottanewton</translation>
    </message>
    <message>
        <source>zettanewton</source>
        <translatorcomment>CLDR: zettanewton</translatorcomment>
        <translation>zettanewton</translation>
    </message>
    <message>
        <source>exanewton</source>
        <translatorcomment>CLDR: exanewton</translatorcomment>
        <translation>exanewton</translation>
    </message>
    <message>
        <source>petanewton</source>
        <translatorcomment>CLDR: petanewton</translatorcomment>
        <translation>petanewton</translation>
    </message>
    <message>
        <source>teranewton</source>
        <translatorcomment>CLDR: teranewton</translatorcomment>
        <translation>teranewton</translation>
    </message>
    <message>
        <source>giganewton</source>
        <translatorcomment>CLDR: giganewton</translatorcomment>
        <translation>giganewton</translation>
    </message>
    <message>
        <source>meganewton</source>
        <translatorcomment>CLDR: meganewton</translatorcomment>
        <translation>meganewton</translation>
    </message>
    <message>
        <source>kilonewton</source>
        <translatorcomment>CLDR: kilonewton</translatorcomment>
        <translation>kilonewton</translation>
    </message>
    <message>
        <source>hectonewton</source>
        <translatorcomment>CLDR: hektonewton</translatorcomment>
        <translation>hektonewton</translation>
    </message>
    <message>
        <source>decanewton</source>
        <translatorcomment>CLDR: dekanewton</translatorcomment>
        <translation>dekanewton</translation>
    </message>
    <message>
        <source>decinewton</source>
        <translatorcomment>CLDR: decinewton</translatorcomment>
        <translation>decinewton</translation>
    </message>
    <message>
        <source>centinewton</source>
        <translatorcomment>CLDR: centinewton</translatorcomment>
        <translation>centinewton</translation>
    </message>
    <message>
        <source>millinewton</source>
        <translatorcomment>CLDR: millinewton</translatorcomment>
        <translation>millinewton</translation>
    </message>
    <message>
        <source>micronewton</source>
        <translatorcomment>CLDR: mikronewton</translatorcomment>
        <translation>mikronewton</translation>
    </message>
    <message>
        <source>nanonewton</source>
        <translatorcomment>CLDR: nanonewton</translatorcomment>
        <translation>nanonewton</translation>
    </message>
    <message>
        <source>piconewton</source>
        <translatorcomment>CLDR: pikonewton</translatorcomment>
        <translation>pikonewton</translation>
    </message>
    <message>
        <source>femtonewton</source>
        <translatorcomment>CLDR: femtonewton</translatorcomment>
        <translation>femtonewton</translation>
    </message>
    <message>
        <source>attonewton</source>
        <translatorcomment>CLDR: attonewton</translatorcomment>
        <translation>attonewton</translation>
    </message>
    <message>
        <source>zeptonewton</source>
        <translatorcomment>CLDR: zeptonewton</translatorcomment>
        <translation>zeptonewton</translation>
    </message>
    <message>
        <source>yoctonewton</source>
        <translatorcomment>CLDR: yoctonewton</translatorcomment>
        <translation>yoctonewton</translation>
    </message>
    <message>
        <source>kilopound</source>
        <translation>kilopund</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>kilopond</translation>
    </message>
    <message>
        <source>pound force</source>
        <translation>pundkraft</translation>
    </message>
    <message>
        <source>kip</source>
        <translation>kip</translation>
    </message>
    <message>
        <source>ton force</source>
        <translation>tonkraft</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>dyn</translation>
    </message>
    <message>
        <source>lbforce</source>
        <translation>lbf (pundkraft)</translation>
    </message>
    <message>
        <source>ounce force</source>
        <translation>ouncekraft</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: newton pr. meter</translatorcomment>
        <translation>newton pr. meter</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>kilopund pr. fod</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>kilopond pr. meter</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>tonkraft pr. meter</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>pundkraft pr. fod</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: dekanewton pr. meter</translatorcomment>
        <translation>dekanewton pr. meter</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translatorcomment>CLDR: kilonewton pr. meter</translatorcomment>
        <translation>kilonewton pr. meter</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translatorcomment>CLDR: meganewton pr. meter</translatorcomment>
        <translation>meganewton pr. meter</translation>
    </message>
    <message>
        <source>kip per foot</source>
        <translation>kip pr. fod</translation>
    </message>
    <message>
        <source>kip per inch</source>
        <translation>kip pr. tomme</translation>
    </message>
    <message>
        <source>hertz</source>
        <translatorcomment>CLDR: hertz</translatorcomment>
        <translation>hertz</translation>
    </message>
    <message>
        <source>kilohertz</source>
        <translatorcomment>CLDR: kilohertz</translatorcomment>
        <translation>kilohertz</translation>
    </message>
    <message>
        <source>megahertz</source>
        <translatorcomment>CLDR: megahertz</translatorcomment>
        <translation>megahertz</translation>
    </message>
    <message>
        <source>gigahertz</source>
        <translatorcomment>CLDR: gigahertz</translatorcomment>
        <translation>gigahertz</translation>
    </message>
    <message>
        <source>terahertz</source>
        <translatorcomment>CLDR: terahertz</translatorcomment>
        <translation>terahertz</translation>
    </message>
    <message>
        <source>cycle per second</source>
        <translation>periode pr. sekund</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: omdrejning pr. min.</translatorcomment>
        <translation>omdrejning pr. min.</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>blink pr. sekund</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>blink pr. minut</translation>
    </message>
    <message>
        <source>henry</source>
        <translation>henry</translation>
    </message>
    <message>
        <source>nanohenry</source>
        <translation>nanohenry</translation>
    </message>
    <message>
        <source>microhenry</source>
        <translation>mikrohenry</translation>
    </message>
    <message>
        <source>millihenry</source>
        <translation>millihenry</translation>
    </message>
    <message>
        <source>gauss</source>
        <translation>gauss</translation>
    </message>
    <message>
        <source>milligauss</source>
        <translation>milligauss</translation>
    </message>
    <message>
        <source>tesla</source>
        <translation>tesla</translation>
    </message>
    <message>
        <source>gamma</source>
        <translation>gamma</translation>
    </message>
    <message>
        <source>weber</source>
        <translation>weber</translation>
    </message>
    <message>
        <source>maxwell</source>
        <translation>maxwell</translation>
    </message>
    <message>
        <source>watt</source>
        <translatorcomment>CLDR: watt</translatorcomment>
        <translation>watt</translation>
    </message>
    <message>
        <source>horsepower (metric)</source>
        <translation>hestekraft (metrisk)</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>hestekraft (europæisk elektrisk)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>hestekraft (imperial mekanisk)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>hestekraft (imperial elektrisk)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: kilokalorie pr. time</translatorcomment>
        <translation>kilokalorie pr. time</translation>
    </message>
    <message>
        <source>kilowatt</source>
        <translatorcomment>CLDR: kilowatt</translatorcomment>
        <translation>kilowatt</translation>
    </message>
    <message>
        <source>megawatt</source>
        <translatorcomment>CLDR: megawatt</translatorcomment>
        <translation>megawatt</translation>
    </message>
    <message>
        <source>microwatt</source>
        <translatorcomment>CLDR: mikrowatt</translatorcomment>
        <translation>mikrowatt</translation>
    </message>
    <message>
        <source>volt ampere</source>
        <translatorcomment>CLDR: volt gange ampere</translatorcomment>
        <translation>volt gange ampere</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translatorcomment>CLDR: millivolt gange ampere</translatorcomment>
        <translation>millivolt gange ampere</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translatorcomment>CLDR: kilovolt gange ampere</translatorcomment>
        <translation>kilovolt gange ampere</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translatorcomment>CLDR: megavolt gange ampere</translatorcomment>
        <translation>megavolt gange ampere</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: milliwatt</translatorcomment>
        <translation>milliwatt</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>kilopondmeter pr. sekund</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>fod-pundkraft pr. sekund</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: kalorie pr. sekund</translatorcomment>
        <translation>kalorie pr. sekund</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: kilokalorie pr. sekund</translatorcomment>
        <translation>kilokalorie pr. sekund</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>britisk varmeenhed (international tabel) pr. sekund</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>britisk varmeenhed (international tabel) pr. time</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>million britiske varmeenheder (international tabel) pr. time</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>tusind britiske varmeenheder (international tabel) pr. time</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>køleton</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: watt/m³</translatorcomment>
        <translation>watt/m³</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: watt pr. kubikfod</translatorcomment>
        <translation>watt pr. kubikfod</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>britisk varmeenhed pr. time og kubikfod</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: watt pr. kg</translatorcomment>
        <translation>watt pr. kg</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: watt/m²</translatorcomment>
        <translation>watt/m²</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: kilowatt/m²</translatorcomment>
        <translation>kilowatt/m²</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: kilowatt pr. kvadratfod</translatorcomment>
        <translation>kilowatt pr. kvadratfod</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: watt pr. kvadratfod</translatorcomment>
        <translation>watt pr. kvadratfod</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>britisk varmeenhed pr. time og kvadratfod</translation>
    </message>
    <message>
        <source>bar</source>
        <translatorcomment>CLDR: bar</translatorcomment>
        <translation>bar</translation>
    </message>
    <message>
        <source>bar absolute</source>
        <translation>bar absolut</translation>
    </message>
    <message>
        <source>bar gauge</source>
        <translation>bar overtryk</translation>
    </message>
    <message>
        <source>inch of mercury</source>
        <translatorcomment>CLDR: tomme kviksølv</translatorcomment>
        <translation>tomme kviksølv</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>tomme vandsøjle</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translatorcomment>CLDR: kilobar</translatorcomment>
        <translation>kilobar</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: kilogram/cm²</translatorcomment>
        <translation>kilogram/cm²</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: kilopascal</translatorcomment>
        <translation>kilopascal</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: kilopund pr. kvadrattomme</translatorcomment>
        <translation>kilopund pr. kvadrattomme</translation>
    </message>
    <message>
        <source>mega pascal</source>
        <translatorcomment>CLDR: megapascal</translatorcomment>
        <translation>megapascal</translation>
    </message>
    <message>
        <source>millibar</source>
        <translatorcomment>CLDR: millibar</translatorcomment>
        <translation>millibar</translation>
    </message>
    <message>
        <source>millimeter of mercury</source>
        <translatorcomment>CLDR: millimeter kviksølv</translatorcomment>
        <translation>millimeter kviksølv</translation>
    </message>
    <message>
        <source>milli pascal</source>
        <translatorcomment>CLDR: millipascal</translatorcomment>
        <translation>millipascal</translation>
    </message>
    <message>
        <source>pascal</source>
        <translatorcomment>CLDR: pascal</translatorcomment>
        <translation>pascal</translation>
    </message>
    <message>
        <source>pound per square inch (atmosphere)</source>
        <translation>pund pr. kvadrattomme (absolut)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>pund pr. kvadrattomme (overtryk)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: pund pr. kvadratfod</translatorcomment>
        <translation>pund pr. kvadratfod</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: pund pr. kvadrattomme</translatorcomment>
        <translation>pund pr. kvadrattomme</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>atmosfære (normal)</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>teknisk atmosfære</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>torr</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translatorcomment>CLDR: newton pr. kvadratmillimeter</translatorcomment>
        <translation>newton pr. kvadratmillimeter</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: newton/m²</translatorcomment>
        <translation>newton/m²</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translatorcomment>CLDR: dekanewton pr. kvadratmillimeter</translatorcomment>
        <translation>dekanewton pr. kvadratmillimeter</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: dekanewton/m²</translatorcomment>
        <translation>dekanewton/m²</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: kilonewton/m²</translatorcomment>
        <translation>kilonewton/m²</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: meganewton/m²</translatorcomment>
        <translation>meganewton/m²</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translatorcomment>CLDR: kilopund pr. kvadratfod</translatorcomment>
        <translation>kilopund pr. kvadratfod</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>kilopond pr. kvadratmillimeter</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>kilopond pr. kvadratcentimeter</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>kilopond pr. kvadratmeter</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>tonkraft pr. kvadratcentimeter</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>tonkraft pr. kvadratmeter</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>tonkraft pr. kvadratfod</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translatorcomment>CLDR: pound pr. kvadrattomme</translatorcomment>
        <translation>pound pr. kvadrattomme</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>fod vandsøjle</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>kip pr. kvadrattomme</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>kip pr. kvadratfod</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>pundkraft pr. kvadratfod</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: gigapascal</translatorcomment>
        <translation>gigapascal</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>dyn pr. kvadratcentimeter</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translatorcomment>CLDR: newton pr. kvadratmikrometer</translatorcomment>
        <translation>newton pr. kvadratmikrometer</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: meter pr. newton</translatorcomment>
        <translation>meter pr. newton</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translatorcomment>CLDR: meter pr. kilonewton</translatorcomment>
        <translation>meter pr. kilonewton</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>fod pr. kip</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: kvadratmeter pr. newton</translatorcomment>
        <translation>kvadratmeter pr. newton</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: kvadratmeter pr. kilonewton</translatorcomment>
        <translation>kvadratmeter pr. kilonewton</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>kvadratfod pr. kip</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: kubikmeter pr. newton</translatorcomment>
        <translation>kubikmeter pr. newton</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: kubikmeter pr. kilonewton</translatorcomment>
        <translation>kubikmeter pr. kilonewton</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>kubikfod pr. kip</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: newtonmeter pr. meter</translatorcomment>
        <translation>newtonmeter pr. meter</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: dekanewtonmeter pr. meter</translatorcomment>
        <translation>dekanewtonmeter pr. meter</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: kilonewtonmeter pr. meter</translatorcomment>
        <translation>kilonewtonmeter pr. meter</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: meganewtonmeter pr. meter</translatorcomment>
        <translation>meganewtonmeter pr. meter</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>kip-fod pr. fod</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>kilopondmeter pr. meter</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>tonkraftmeter pr. meter</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translation>pundkraft-fod pr. fod</translation>
    </message>
    <message>
        <source>ohm</source>
        <translatorcomment>CLDR: ohm</translatorcomment>
        <translation>ohm</translation>
    </message>
    <message>
        <source>kilohm</source>
        <translatorcomment>CLDR: kiloohm</translatorcomment>
        <translation>kiloohm</translation>
    </message>
    <message>
        <source>gigaohm</source>
        <translatorcomment>CLDR: gigaohm</translatorcomment>
        <translation>gigaohm</translation>
    </message>
    <message>
        <source>megohm</source>
        <translatorcomment>CLDR: megaohm</translatorcomment>
        <translation>megaohm</translation>
    </message>
    <message>
        <source>microohm</source>
        <translatorcomment>CLDR: mikroohm</translatorcomment>
        <translation>mikroohm</translation>
    </message>
    <message>
        <source>milliohm</source>
        <translatorcomment>CLDR: milliohm</translatorcomment>
        <translation>milliohm</translation>
    </message>
    <message>
        <source>siemens</source>
        <translation>siemens</translation>
    </message>
    <message>
        <source>mho</source>
        <translation>mho</translation>
    </message>
    <message>
        <source>meter per second</source>
        <translatorcomment>CLDR: meter i sekundet</translatorcomment>
        <translation>meter i sekundet</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: millimeter pr. sekund</translatorcomment>
        <translation>millimeter pr. sekund</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: centimeter pr. sekund</translatorcomment>
        <translation>centimeter pr. sekund</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: meter pr. min.</translatorcomment>
        <translation>meter pr. min.</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: tomme pr. sekund</translatorcomment>
        <translation>tomme pr. sekund</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: fod pr. sekund</translatorcomment>
        <translation>fod pr. sekund</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: tomme pr. min.</translatorcomment>
        <translation>tomme pr. min.</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: fod pr. min.</translatorcomment>
        <translation>fod pr. min.</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: kilometer i timen</translatorcomment>
        <translation>kilometer i timen</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: engelsk mil i timen</translatorcomment>
        <translation>engelsk mil i timen</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: centimeter pr. min.</translatorcomment>
        <translation>centimeter pr. min.</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: fod pr. time</translatorcomment>
        <translation>fod pr. time</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: tomme pr. time</translatorcomment>
        <translation>tomme pr. time</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: kilometer pr. min.</translatorcomment>
        <translation>kilometer pr. min.</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: kilometer pr. sekund</translatorcomment>
        <translation>kilometer pr. sekund</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: knob</translatorcomment>
        <translation>knob</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>knob (Storbritannien)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: meter pr. time</translatorcomment>
        <translation>meter pr. time</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: engelsk mil pr. min.</translatorcomment>
        <translation>engelsk mil pr. min.</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: engelsk mil pr. sekund</translatorcomment>
        <translation>engelsk mil pr. sekund</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>landmålermile pr. time</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>landmålerfod pr. sekund</translation>
    </message>
    <message>
        <source>byte</source>
        <translatorcomment>CLDR: byte</translatorcomment>
        <translation>byte</translation>
    </message>
    <message>
        <source>bit</source>
        <translatorcomment>CLDR: bit</translatorcomment>
        <translation>bit</translation>
    </message>
    <message>
        <source>kilobyte</source>
        <translatorcomment>CLDR: kilobyte</translatorcomment>
        <translation>kilobyte</translation>
    </message>
    <message>
        <source>megabyte</source>
        <translatorcomment>CLDR: megabyte</translatorcomment>
        <translation>megabyte</translation>
    </message>
    <message>
        <source>gigabyte</source>
        <translatorcomment>CLDR: gigabyte</translatorcomment>
        <translation>gigabyte</translation>
    </message>
    <message>
        <source>terabyte</source>
        <translatorcomment>CLDR: terabyte</translatorcomment>
        <translation>terabyte</translation>
    </message>
    <message>
        <source>kibibyte</source>
        <translatorcomment>CLDR: kibibyte</translatorcomment>
        <translation>kibibyte</translation>
    </message>
    <message>
        <source>mebibyte</source>
        <translatorcomment>CLDR: mebibyte</translatorcomment>
        <translation>mebibyte</translation>
    </message>
    <message>
        <source>gibibyte</source>
        <translatorcomment>CLDR: gibibyte</translatorcomment>
        <translation>gibibyte</translation>
    </message>
    <message>
        <source>tebibyte</source>
        <translatorcomment>CLDR: tebibyte</translatorcomment>
        <translation>tebibyte</translation>
    </message>
    <message>
        <source>kilobit</source>
        <translatorcomment>CLDR: kilobit</translatorcomment>
        <translation>kilobit</translation>
    </message>
    <message>
        <source>megabit</source>
        <translatorcomment>CLDR: megabit</translatorcomment>
        <translation>megabit</translation>
    </message>
    <message>
        <source>gigabit</source>
        <translatorcomment>CLDR: gigabit</translatorcomment>
        <translation>gigabit</translation>
    </message>
    <message>
        <source>petabyte</source>
        <translatorcomment>CLDR: petabyte</translatorcomment>
        <translation>petabyte</translation>
    </message>
    <message>
        <source>pebibyte</source>
        <translatorcomment>CLDR: pebibyte</translatorcomment>
        <translation>pebibyte</translation>
    </message>
    <message>
        <source>exabyte</source>
        <translatorcomment>CLDR: exabyte</translatorcomment>
        <translation>exabyte</translation>
    </message>
    <message>
        <source>exbibyte</source>
        <translatorcomment>CLDR: exbibyte</translatorcomment>
        <translation>exbibyte</translation>
    </message>
    <message>
        <source>zettabyte</source>
        <translatorcomment>CLDR: zettabyte</translatorcomment>
        <translation>zettabyte</translation>
    </message>
    <message>
        <source>zebibyte</source>
        <translatorcomment>CLDR: zebibyte</translatorcomment>
        <translation>zebibyte</translation>
    </message>
    <message>
        <source>yottabyte</source>
        <translatorcomment>CLDR: yottabyte</translatorcomment>
        <translation>yottabyte</translation>
    </message>
    <message>
        <source>yobibyte</source>
        <translatorcomment>CLDR: yobibyte</translatorcomment>
        <translation>yobibyte</translation>
    </message>
    <message>
        <source>kelvin</source>
        <translatorcomment>CLDR: kelvin</translatorcomment>
        <translation>kelvin</translation>
    </message>
    <message>
        <source>degree Celsius</source>
        <translatorcomment>CLDR: grad celsius</translatorcomment>
        <translation>grad celsius</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: grad fahrenheit</translatorcomment>
        <translation>grad fahrenheit</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>grad Rankine</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: grad celsius pr. min.</translatorcomment>
        <translation>grad celsius pr. min.</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: grad fahrenheit pr. min.</translatorcomment>
        <translation>grad fahrenheit pr. min.</translation>
    </message>
    <message>
        <source>second</source>
        <translatorcomment>CLDR: sekund</translatorcomment>
        <translation>sekund</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translatorcomment>CLDR: yottasekund</translatorcomment>
        <translation>yottasekund</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translatorcomment>CLDR: zettasekund</translatorcomment>
        <translation>zettasekund</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translatorcomment>CLDR: exasekund</translatorcomment>
        <translation>exasekund</translation>
    </message>
    <message>
        <source>petasecond</source>
        <translatorcomment>CLDR: petasekund</translatorcomment>
        <translation>petasekund</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translatorcomment>CLDR: terasekund</translatorcomment>
        <translation>terasekund</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translatorcomment>CLDR: gigasekund</translatorcomment>
        <translation>gigasekund</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translatorcomment>CLDR: megasekund</translatorcomment>
        <translation>megasekund</translation>
    </message>
    <message>
        <source>kilosecond</source>
        <translatorcomment>CLDR: kilosekund</translatorcomment>
        <translation>kilosekund</translation>
    </message>
    <message>
        <source>hectosecond</source>
        <translatorcomment>CLDR: hektosekund</translatorcomment>
        <translation>hektosekund</translation>
    </message>
    <message>
        <source>decasecond</source>
        <translatorcomment>CLDR: dekasekund</translatorcomment>
        <translation>dekasekund</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translatorcomment>CLDR: decisekund</translatorcomment>
        <translation>decisekund</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translatorcomment>CLDR: centisekund</translatorcomment>
        <translation>centisekund</translation>
    </message>
    <message>
        <source>millisecond</source>
        <translatorcomment>CLDR: millisekund</translatorcomment>
        <translation>millisekund</translation>
    </message>
    <message>
        <source>microsecond</source>
        <translatorcomment>CLDR: mikrosekund</translatorcomment>
        <translation>mikrosekund</translation>
    </message>
    <message>
        <source>nanosecond</source>
        <translatorcomment>CLDR: nanosekund</translatorcomment>
        <translation>nanosekund</translation>
    </message>
    <message>
        <source>picosecond</source>
        <translatorcomment>CLDR: pikosekund</translatorcomment>
        <translation>pikosekund</translation>
    </message>
    <message>
        <source>femtosecond</source>
        <translatorcomment>CLDR: femtosekund</translatorcomment>
        <translation>femtosekund</translation>
    </message>
    <message>
        <source>attosecond</source>
        <translatorcomment>CLDR: attosekund</translatorcomment>
        <translation>attosekund</translation>
    </message>
    <message>
        <source>zeptosecond</source>
        <translatorcomment>CLDR: zeptosekund</translatorcomment>
        <translation>zeptosekund</translation>
    </message>
    <message>
        <source>yoctosecond</source>
        <translatorcomment>CLDR: yoctosekund</translatorcomment>
        <translation>yoctosekund</translation>
    </message>
    <message>
        <source>minute</source>
        <translatorcomment>CLDR: minut</translatorcomment>
        <translation>minut</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: time</translatorcomment>
        <translation>time</translation>
    </message>
    <message>
        <source>day</source>
        <translation>døgn</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: uge</translatorcomment>
        <translation>uge</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>fjorten dage</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: måned</translatorcomment>
        <translation>måned</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>måned (kort, 29 dage)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>måned (fuld, 30 dage)</translation>
    </message>
    <message>
        <source>year</source>
        <translatorcomment>CLDR: år</translatorcomment>
        <translation>år</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>år (gregoriansk)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>år (juliansk)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>siderisk år</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>tropisk år</translation>
    </message>
    <message>
        <source>annum</source>
        <translation>annum</translation>
    </message>
    <message>
        <source>decade</source>
        <translatorcomment>CLDR: årti</translatorcomment>
        <translation>årti</translation>
    </message>
    <message>
        <source>century</source>
        <translatorcomment>CLDR: århundrede</translatorcomment>
        <translation>århundrede</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>århundrede (juliansk)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>årtusinde</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>årtusinde (gregoriansk)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>årtusinde (juliansk)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>newtonmeter (moment)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>newtoncentimeter (moment)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>newtondekameter (moment)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>fod-pund (moment)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>tomme-pund (moment)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>meterkilogram (moment)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>centimeterkilogram (moment)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>tomme-ounce (moment)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>gramcentimeter (moment)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>dekanewtonmeter (moment)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>kilonewtonmeter (moment)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>meganewtonmeter (moment)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>kip-fod (moment)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>kilopondmeter (moment)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>tonkraftmeter (moment)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>pundkraftfod (moment)</translation>
    </message>
    <message>
        <source>poise</source>
        <translation>poise</translation>
    </message>
    <message>
        <source>centipoise</source>
        <translation>centipoise</translation>
    </message>
    <message>
        <source>pascal second</source>
        <translatorcomment>CLDR: pascal gange sekund</translatorcomment>
        <translation>pascal gange sekund</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>pundmasse pr. fod og sekund</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>pundmasse pr. fod og time</translation>
    </message>
    <message>
        <source>stoke</source>
        <translation>stokes</translation>
    </message>
    <message>
        <source>centistoke</source>
        <translation>centistokes</translation>
    </message>
    <message>
        <source>meter per second squared</source>
        <translatorcomment>CLDR: meter pr. sekund²</translatorcomment>
        <translation>meter pr. sekund²</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>fod pr. sekund i anden</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>landmålerfod pr. sekund i anden</translation>
    </message>
    <message>
        <source>volt</source>
        <translatorcomment>CLDR: volt</translatorcomment>
        <translation>volt</translation>
    </message>
    <message>
        <source>kilovolt</source>
        <translatorcomment>CLDR: kilovolt</translatorcomment>
        <translation>kilovolt</translation>
    </message>
    <message>
        <source>microvolt</source>
        <translatorcomment>CLDR: mikrovolt</translatorcomment>
        <translation>mikrovolt</translation>
    </message>
    <message>
        <source>millivolt</source>
        <translatorcomment>CLDR: millivolt</translatorcomment>
        <translation>millivolt</translation>
    </message>
    <message>
        <source>volt (electrical potential)</source>
        <translation>volt (elektrisk potential)</translation>
    </message>
    <message>
        <source>abvolt</source>
        <translation>abvolt</translation>
    </message>
    <message>
        <source>statvolt</source>
        <translation>statvolt</translation>
    </message>
    <message>
        <source>candela</source>
        <translatorcomment>CLDR: candela</translatorcomment>
        <translation>candela</translation>
    </message>
    <message>
        <source>lumen per steradian</source>
        <translation>lumen pr. steradian</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>normallys (candlepower)</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>lux (belysningsstyrke)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>fodcandela</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translatorcomment>CLDR: lumen gange sekund</translatorcomment>
        <translation>lumen gange sekund</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>talbot</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>lyseffekt</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: lumen</translatorcomment>
        <translation>lumen</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: candela/m²</translatorcomment>
        <translation>candela/m²</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>fodlambert</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: candela pr. kvadratfod</translatorcomment>
        <translation>candela pr. kvadratfod</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>lux (udstråling)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: lumen pr. watt</translatorcomment>
        <translation>lumen pr. watt</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: pascal pr. meter</translatorcomment>
        <translation>pascal pr. meter</translation>
    </message>
    <message>
        <source>inch of water per 100foot</source>
        <translation>tomme vandsøjle pr. 100 fod</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>fod vandsøjle pr. 100 fod</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>tomme kviksølv pr. 100 fod</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>millimeter kviksølv pr. 100 fod</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: newtonmeter pr. grad</translatorcomment>
        <translation>newtonmeter pr. grad</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>kip-fod pr. grad</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: kilonewtonmeter pr. grad</translatorcomment>
        <translation>kilonewtonmeter pr. grad</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>newtonmeter pr. grad og meter</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>kip-fod pr. grad og fod</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>kilonewtonmeter pr. grad og meter</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>watt pr. kvadratmeter og kelvin</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>britisk varmeenhed pr. time, kvadratfod og grad Fahrenheit</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>kubikmeter pr. sekund og kvadratmeter</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>kubikfod pr. minut og kvadratfod</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>liter pr. sekund og kvadratmeter</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>kubikmeter pr. sekund og kubikmeter</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>kubikfod pr. minut og kubikfod</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>liter pr. sekund og kubikmeter</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>kubikmeter pr. sekund og watt</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>kubikfod pr. minut og køleton</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>liter pr. sekund og kilowatt</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: kvadratmeter pr. watt</translatorcomment>
        <translation>kvadratmeter pr. watt</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>kvadratfod pr. køleton</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: kvadratmeter pr. kilowatt</translatorcomment>
        <translation>kvadratmeter pr. kilowatt</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>kvadratfod pr. tusind britiske varmeenheder pr. time</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>kvadratsekund pr. meter og kilogram</translation>
    </message>
    <message>
        <source>inverse kilonewton</source>
        <translation>invers kilonewton</translation>
    </message>
    <message>
        <source>inverse kip</source>
        <translation>invers kip</translation>
    </message>
    <message>
        <source>inverse fahrenheit</source>
        <translation>invers grad Fahrenheit</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>invers grad Celsius</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>mikrometer pr. meter og grad Celsius</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>mikrotomme pr. tomme og grad Fahrenheit</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>oersted</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: ampere pr. meter</translatorcomment>
        <translation>ampere pr. meter</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>watt pr. meter og kelvin</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>watt pr. meter og grad Celsius</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>newton pr. sekund og grad Celsius</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>dyn pr. sekund og grad Celsius</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>BTU-tomme pr. kvadratfod, time og grad Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>BTU pr. tomme, sekund og grad Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>BTU pr. fod, sekund og grad Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>BTU pr. fod, time og grad Fahrenheit</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>joule pr. gram og grad Celsius</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>joule pr. kilogram og grad Celsius</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>kvadratmillimeter pr. kvadratsekund og grad Celsius</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>erg pr. gram og grad Celsius</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>kvadratmikrometer pr. kvadratsekund og grad Celsius</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>BTU pr. pund og grad Fahrenheit</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>nanogram pr. pascal, sekund og kvadratmeter</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>grain pr. kvadratfod, time og tomme kviksølv</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translatorcomment>CLDR: ohm gange meter</translatorcomment>
        <translation>ohm gange meter</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translatorcomment>CLDR: joule pr. gram</translatorcomment>
        <translation>joule pr. gram</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translatorcomment>CLDR: joule pr. kg</translatorcomment>
        <translation>joule pr. kg</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>BTU pr. pund</translation>
    </message>
</context>
</TS>
