<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE">
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
        <translation>Fast decimal</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allmän</translation>
    </message>
    <message>
        <source>general</source>
        <translation>allmän</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Tal</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Bråk</translation>
    </message>
</context>
<context>
    <name>UnitGroup</name>
    <message>
        <source>Dimensionless</source>
        <translation>Dimensionslös</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Längd</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Area</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volym</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Massa</translation>
    </message>
    <message>
        <source>Linear Weight</source>
        <translation>Längdmassa</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>Substansmängd</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Vinkel</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>Rymdvinkel</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>Ytdensitet</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Koncentration</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>Delar per (ppm, ppb)</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>Elektrisk ström</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>Elektrisk laddning</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>Kapacitans</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Bithastighet</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Densitet</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>Tunghet</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energi</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>Volymflöde</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>Massflöde</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>Flöde per slag</translation>
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
        <translation>Magnetisk flödestäthet</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>Magnetiskt flöde</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Effekt</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>Effekt per volymenhet</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>Effekt per massenhet</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>Effekt per areaenhet</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Tryck</translation>
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
        <translation>Ytlastskala</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>Linjemoment</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>Elektrisk resistans</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>Elektrisk konduktans</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Hastighet</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>Datamängd</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>Temperaturändringshastighet</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>Vridmoment</translation>
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
        <translation>Elektrisk spänning</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>Elektrisk potential</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>Ljusstyrka</translation>
    </message>
    <message>
        <source>Illuminance</source>
        <translation>Belysningsstyrka</translation>
    </message>
    <message>
        <source>Luminous Energy</source>
        <translation>Ljusmängd</translation>
    </message>
    <message>
        <source>Luminous Flux</source>
        <translation>Ljusflöde</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminans</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>Ljusemittans</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>Ljusutbyte</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Friktionstryckfall</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>Rotationsfjäderstyvhet (punkt)</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>Rotationsfjäderstyvhet (linje)</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>Värmeövergångskoefficient</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>Luftflödestäthet</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>Luftflöde per volym</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>Luftflöde per effekt</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>Area per effekt</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>Momentskala</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>Längdutvidgningskoefficient</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>Magnetisk fältstyrka</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>Värmeledningsförmåga</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>Specifik värmekapacitet</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>Ånggenomsläpplighet</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>Resistivitet</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>Specifikt ångbildningsvärme</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>enhetslös</translation>
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
        <translatorcomment>CLDR: yoktometer</translatorcomment>
        <translation>yoktometer</translation>
    </message>
    <message>
        <source>inch</source>
        <translatorcomment>CLDR: tum</translatorcomment>
        <translation>tum</translation>
    </message>
    <message>
        <source>foot</source>
        <translatorcomment>CLDR: fot</translatorcomment>
        <translation>fot</translation>
    </message>
    <message>
        <source>foot (Benoit)</source>
        <translation>fot (Benoit)</translation>
    </message>
    <message>
        <source>foot (Clarke&apos;s; Cape)</source>
        <translation>fot (Clarke; Kapstaden)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>fot (Indien)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>fot (Sears)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>lantmäterifot (USA)</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: engelsk yard</translatorcomment>
        <translation>engelsk yard</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>kedja (chain)</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>kedja (Ramsden; ingenjörs)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: engelsk plogfårelängd</translatorcomment>
        <translation>engelsk plogfårelängd</translation>
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
        <translation>lantmäterimile (USA)</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: nautisk mil</translatorcomment>
        <translation>nautisk mil</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>engelsk mil (lantmil)</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>nautisk mil (amiralitetet)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>mikron</translation>
    </message>
    <message>
        <source>microinch</source>
        <translatorcomment>CLDR: mikrotum</translatorcomment>
        <translation>mikrotum</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>ångström</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: astronomisk enhet</translatorcomment>
        <translation>astronomisk enhet</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>kabellängd</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>aln (cubit)</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: famn</translatorcomment>
        <translation>famn</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>hand (4 tum)</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: ljusår</translatorcomment>
        <translation>ljusår</translation>
    </message>
    <message>
        <source>span</source>
        <translation>spann</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>spann (textil)</translation>
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
        <translation>mil (tusendels tum)</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>mil (Sverige och Norge)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>länk (link)</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>länk (Ramsden; ingenjörs)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>steg</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>handflata (3 tum)</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>stång (rod)</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>rope (20 fot)</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>härva</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>kaliber</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>lantmäteritum</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>lantmäteriyard</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>lantmäteristång</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>bolt (tygrulle)</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: kvadratmeter</translatorcomment>
        <translation>kvadratmeter</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: kvadrattum</translatorcomment>
        <translation>kvadrattum</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: kvadratfot</translatorcomment>
        <translation>kvadratfot</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: engelsk kvadratyard</translatorcomment>
        <translation>engelsk kvadratyard</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: engelskt tunnland</translatorcomment>
        <translation>engelskt tunnland</translation>
    </message>
    <message>
        <source>section</source>
        <translation>section (kvadratmil)</translation>
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
        <translatorcomment>CLDR: engelsk kvadratmil</translatorcomment>
        <translation>engelsk kvadratmil</translation>
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
        <translation>cirkulär mil</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>kilo-cirkulär mil</translation>
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
        <translation>kvadratångström</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>kvadratbolt</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>kvadratkabellängd</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>kvadratkaliber</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>kvadrataln</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translatorcomment>CLDR: kvadratdecimeter</translatorcomment>
        <translation>kvadratdecimeter</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translatorcomment>CLDR: kvadratfamn</translatorcomment>
        <translation>kvadratfamn</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translation>kvadratfurlong</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translatorcomment>CLDR: kvadratgigameter</translatorcomment>
        <translation>kvadratgigameter</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>kvadrathand</translation>
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
        <translatorcomment>CLDR: kvadratljusår</translatorcomment>
        <translation>kvadratljusår</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>kvadratlänk</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>kvadratmikron</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>kvadratmil (brittisk nautisk)</translation>
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
        <translation>kvadratsteg</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>kvadrathandflata</translation>
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
        <translation>kvadrathärva</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>kvadratspann</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>kvadratlantmäterifot</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>kvadratkedja</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>kvadratmil (tusendels tum)</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translation>astronomisk enhet i kvadrat</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>lantmäteriacre</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>kvadratlantmäteriyard</translation>
    </message>
    <message>
        <source>board</source>
        <translation>board (planka)</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>cord (yta)</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>kvadratmikrotum</translation>
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
        <translatorcomment>CLDR: matsked</translatorcomment>
        <translation>matsked</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>matsked (Kanada)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>matsked (USA)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>vätskeuns (imperial)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>vätskeuns (USA)</translation>
    </message>
    <message>
        <source>cup</source>
        <translation>kopp</translation>
    </message>
    <message>
        <source>cup (Canadian)</source>
        <translation>kopp (Kanada)</translation>
    </message>
    <message>
        <source>cup (U.S.)</source>
        <translation>kopp (USA)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>quart (imperial)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>quart (USA, våt)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>quart (USA, torr)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>gallon (imperial)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>gallon (USA, våt; vin)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>gallon (USA, torr)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>ölgallon</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>bushel (imperial)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>bushel (USA, struken)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>bushel (USA, topprågad)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: centiliter</translatorcomment>
        <translation>centiliter</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: kubikfot</translatorcomment>
        <translation>kubikfot</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: kubiktum</translatorcomment>
        <translation>kubiktum</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: kubikmeter</translatorcomment>
        <translation>kubikmeter</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: engelsk kubikyard</translatorcomment>
        <translation>engelsk kubikyard</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>vätskedram</translation>
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
        <translation>pint (USA, våt)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>pint (USA, torr)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: tesked</translatorcomment>
        <translation>tesked</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>tesked (Kanada)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>tesked (USA)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>tesked (imperial)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translatorcomment>CLDR: kubikmillimeter</translatorcomment>
        <translation>kubikmillimeter</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>fat (imperial)</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>fat (olja)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>fat (USA, torr)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>fat (USA, våt)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>board-fot</translation>
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
        <translatorcomment>CLDR: brittisk dram</translatorcomment>
        <translation>brittisk dram</translation>
    </message>
    <message>
        <source>firkin</source>
        <translation>firkin</translation>
    </message>
    <message>
        <source>cubic angstrom</source>
        <translation>kubikångström</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translation>astronomisk enhet i kubik</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>kubikbolt</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>kubikkabellängd</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>kubikkaliber</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>kubikkedja</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>kubikaln</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translatorcomment>CLDR: kubikfamn</translatorcomment>
        <translation>kubikfamn</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translation>kubikfurlong</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translatorcomment>CLDR: kubikgigameter</translatorcomment>
        <translation>kubikgigameter</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>kubikhand</translation>
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
        <translatorcomment>CLDR: kubikljusår</translatorcomment>
        <translation>kubikljusår</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>kubiklänk</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>kubikmil (tusendels tum)</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>kubikmil (brittisk nautisk)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: engelsk kubikmil</translatorcomment>
        <translation>engelsk kubikmil</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translation>nautisk kubikmil</translation>
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
        <translation>kubiksteg</translation>
    </message>
    <message>
        <source>cubic palm</source>
        <translation>kubikhandflata</translation>
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
        <translation>kubikhärva</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>kubikspann</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>kubiklantmäterifot</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translatorcomment>CLDR: kubikdecimeter</translatorcomment>
        <translation>kubikdecimeter</translation>
    </message>
    <message>
        <source>tun</source>
        <translation>tunna (tun)</translation>
    </message>
    <message>
        <source>peck</source>
        <translation>peck</translation>
    </message>
    <message>
        <source>peck (U.S. dry)</source>
        <translation>peck (USA, torr)</translation>
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
        <translation>oxhuvud (USA)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>oxhuvud (imperial)</translation>
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
        <translation>kubiklantmäteriyard</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>cord-fot</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>cord (ved)</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>registerton</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: engelskt tunnland gånger fot</translatorcomment>
        <translation>engelskt tunnland gånger fot</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>acre-tum</translation>
    </message>
    <message>
        <source>cubic microinch</source>
        <translation>kubikmikrotum</translation>
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
        <translatorcomment>CLDR: picogram</translatorcomment>
        <translation>picogram</translation>
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
        <translatorcomment>CLDR: yoktogram</translatorcomment>
        <translation>yoktogram</translation>
    </message>
    <message>
        <source>pound (meter)</source>
        <translation>metriskt pund</translation>
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
        <translation>uns (avoirdupois)</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>uns (apotekar; troy)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: engelsk sten</translatorcomment>
        <translation>engelsk sten</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>kort ton</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>lång ton</translation>
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
        <translation>dram (apotekar; troy)</translation>
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
        <translation>lång hundredweight</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>kort hundredweight</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: grain</translatorcomment>
        <translation>grain</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>pärlgrain</translation>
    </message>
    <message>
        <source>dalton</source>
        <translatorcomment>CLDR: dalton</translatorcomment>
        <translation>dalton</translation>
    </message>
    <message>
        <source>kilodalton</source>
        <translatorcomment>CLDR: kilodalton</translatorcomment>
        <translation>kilodalton</translation>
    </message>
    <message>
        <source>slug</source>
        <translation>slug</translation>
    </message>
    <message>
        <source>kilogram per meter</source>
        <translatorcomment>CLDR: kilogram per meter</translatorcomment>
        <translation>kilogram per meter</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: pund per fot</translatorcomment>
        <translation>pund per fot</translation>
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
        <translatorcomment>CLDR: picomol</translatorcomment>
        <translation>picomol</translation>
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
        <translatorcomment>CLDR: yoktomol</translatorcomment>
        <translation>yoktomol</translation>
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
        <translation>streck (Nato)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>streck (Sverige)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>streck (Sovjetunionen)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translatorcomment>CLDR: bågminut</translatorcomment>
        <translation>bågminut</translation>
    </message>
    <message>
        <source>angle second</source>
        <translatorcomment>CLDR: bågsekund</translatorcomment>
        <translation>bågsekund</translation>
    </message>
    <message>
        <source>milliarc second</source>
        <translation>millibågsekund</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>steradian</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: gram per kvadratmeter</translatorcomment>
        <translation>gram per kvadratmeter</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: gram per kvadrattum</translatorcomment>
        <translation>gram per kvadrattum</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translatorcomment>CLDR: nanogram per liter</translatorcomment>
        <translation>nanogram per liter</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translatorcomment>CLDR: nanogram per deciliter</translatorcomment>
        <translation>nanogram per deciliter</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translatorcomment>CLDR: nanogram per milliliter</translatorcomment>
        <translation>nanogram per milliliter</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translatorcomment>CLDR: nanogram per mikroliter</translatorcomment>
        <translation>nanogram per mikroliter</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: miljondel</translatorcomment>
        <translation>miljondel</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>miljarddel</translation>
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
        <translatorcomment>CLDR: picoampere</translatorcomment>
        <translation>picoampere</translation>
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
        <translatorcomment>CLDR: yoktoampere</translatorcomment>
        <translation>yoktoampere</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>coulomb</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translatorcomment>CLDR: ampere-timme</translatorcomment>
        <translation>ampere-timme</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translatorcomment>CLDR: milliampere-timme</translatorcomment>
        <translation>milliampere-timme</translation>
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
        <translation>pikofarad</translation>
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
        <translation>yoktofarad</translation>
    </message>
    <message>
        <source>kilopicofarad</source>
        <translation>kilopikofarad</translation>
    </message>
    <message>
        <source>baud</source>
        <translation>baud</translation>
    </message>
    <message>
        <source>bit per second</source>
        <translatorcomment>CLDR: bit per sekund</translatorcomment>
        <translation>bit per sekund</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: byte per sekund</translatorcomment>
        <translation>byte per sekund</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>kilobaud</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: kilobit per sekund</translatorcomment>
        <translation>kilobit per sekund</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: kilobyte per sekund</translatorcomment>
        <translation>kilobyte per sekund</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>megabaud</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: megabit per sekund</translatorcomment>
        <translation>megabit per sekund</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: megabyte per sekund</translatorcomment>
        <translation>megabyte per sekund</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: kilogram per kubikmeter</translatorcomment>
        <translation>kilogram per kubikmeter</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translatorcomment>CLDR: kilogram per liter</translatorcomment>
        <translation>kilogram per liter</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translatorcomment>CLDR: gram per liter</translatorcomment>
        <translation>gram per liter</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translatorcomment>CLDR: mikrogram per milliliter</translatorcomment>
        <translation>mikrogram per milliliter</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: milligram per milliliter</translatorcomment>
        <translation>milligram per milliliter</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: pund per gallon</translatorcomment>
        <translation>pund per gallon</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: uns per gallon</translatorcomment>
        <translation>uns per gallon</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: pund per kubikfot</translatorcomment>
        <translation>pund per kubikfot</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: pund per kubiktum</translatorcomment>
        <translation>pund per kubiktum</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: gram per kubikcentimeter</translatorcomment>
        <translation>gram per kubikcentimeter</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>newton kvadratsekund per millimeter upphöjt till fyra</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: newton per kubikmeter</translatorcomment>
        <translation>newton per kubikmeter</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: kilonewton per kubikmeter</translatorcomment>
        <translation>kilonewton per kubikmeter</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>pundkraft per kubikfot</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>kip per kubiktum</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>kip per kubikfot</translation>
    </message>
    <message>
        <source>joule</source>
        <translatorcomment>CLDR: joule</translatorcomment>
        <translation>joule</translation>
    </message>
    <message>
        <source>calorie</source>
        <translatorcomment>CLDR: kalori</translatorcomment>
        <translation>kalori</translation>
    </message>
    <message>
        <source>kilocalorie</source>
        <translatorcomment>CLDR: kilokalori</translatorcomment>
        <translation>kilokalori</translation>
    </message>
    <message>
        <source>British thermal unit (thermochemical)</source>
        <translation>brittisk termisk enhet (termokemisk)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>brittisk termisk enhet (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>brittisk termisk enhet (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>brittisk termisk enhet (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>brittisk termisk enhet (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>brittisk termisk enhet (internationella tabellen)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>brittisk termisk enhet (medel)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>brittisk termisk enhet (39 °F)</translation>
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
        <translatorcomment>CLDR: kilowattimme</translatorcomment>
        <translation>kilowattimme</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translatorcomment>CLDR: kilowatt-minut</translatorcomment>
        <translation>kilowatt-minut</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translatorcomment>CLDR: kilowatt-sekund</translatorcomment>
        <translation>kilowatt-sekund</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>therm (USA)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: newton-meter</translatorcomment>
        <translation>newton-meter</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translatorcomment>CLDR: dekanewton-meter</translatorcomment>
        <translation>dekanewton-meter</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translatorcomment>CLDR: kilonewton-meter</translatorcomment>
        <translation>kilonewton-meter</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translatorcomment>CLDR: meganewton-meter</translatorcomment>
        <translation>meganewton-meter</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>kilopondmeter</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>kilopondfot</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>tonkraftfot</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>tonkraftmeter</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>fot-kilopund</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>fot-pundkraft</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>kalori (20 °C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>kalori (termokemisk)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>kalori (15 °C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>kalori (medel)</translation>
    </message>
    <message>
        <source>calorie (3.98 degree C)</source>
        <translation>kalori (3,98 °C)</translation>
    </message>
    <message>
        <source>Therm (EC)</source>
        <translation>therm (EG)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: kubikmeter per sekund</translatorcomment>
        <translation>kubikmeter per sekund</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: liter per sekund</translatorcomment>
        <translation>liter per sekund</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: liter per minut</translatorcomment>
        <translation>liter per minut</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: liter per timme</translatorcomment>
        <translation>liter per timme</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translatorcomment>CLDR: gallon per sekund</translatorcomment>
        <translation>gallon per sekund</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: gallon per minut</translatorcomment>
        <translation>gallon per minut</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: gallon per timme</translatorcomment>
        <translation>gallon per timme</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: gallon per dygn</translatorcomment>
        <translation>gallon per dygn</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: milliliter per minut</translatorcomment>
        <translation>milliliter per minut</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: kubikcentimeter per minut</translatorcomment>
        <translation>kubikcentimeter per minut</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: kubikfot per timme</translatorcomment>
        <translation>kubikfot per timme</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: kubikfot per minut</translatorcomment>
        <translation>kubikfot per minut</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: kubikfot per sekund</translatorcomment>
        <translation>kubikfot per sekund</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: kubiktum per minut</translatorcomment>
        <translation>kubiktum per minut</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: kubikmeter per timme</translatorcomment>
        <translation>kubikmeter per timme</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: kubikmeter per minut</translatorcomment>
        <translation>kubikmeter per minut</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: kubikcentimeter per sekund</translatorcomment>
        <translation>kubikcentimeter per sekund</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: kubikcentimeter per timme</translatorcomment>
        <translation>kubikcentimeter per timme</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>amerikansk gallon per timme</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>amerikansk gallon per sekund</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>imperial gallon per dygn</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>imperial gallon per timme</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>imperial gallon per minut</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>imperial gallon per sekund</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>miljon imperial gallon per dygn</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: liter per dygn</translatorcomment>
        <translation>liter per dygn</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>miljon liter per dygn</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>amerikansk gallon per dygn</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>miljon amerikanska gallon per dygn</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: kubikfot per dygn</translatorcomment>
        <translation>kubikfot per dygn</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: kubikmeter per dygn</translatorcomment>
        <translation>kubikmeter per dygn</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: engelsk kubikyard per minut</translatorcomment>
        <translation>engelsk kubikyard per minut</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: engelskt tunnland gånger fot per dygn</translatorcomment>
        <translation>engelskt tunnland gånger fot per dygn</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: engelskt tunnland gånger fot per timme</translatorcomment>
        <translation>engelskt tunnland gånger fot per timme</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: engelskt tunnland gånger fot per minut</translatorcomment>
        <translation>engelskt tunnland gånger fot per minut</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>acre-tum per timme</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>acre-tum per minut</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>kubiklantmäterifot per sekund</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: kilogram per sekund</translatorcomment>
        <translation>kilogram per sekund</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: kilogram per minut</translatorcomment>
        <translation>kilogram per minut</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: kilogram per timme</translatorcomment>
        <translation>kilogram per timme</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: gram per sekund</translatorcomment>
        <translation>gram per sekund</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: gram per minut</translatorcomment>
        <translation>gram per minut</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: gram per timme</translatorcomment>
        <translation>gram per timme</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: pund per sekund</translatorcomment>
        <translation>pund per sekund</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: pund per minut</translatorcomment>
        <translation>pund per minut</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: pund per timme</translatorcomment>
        <translation>pund per timme</translation>
    </message>
    <message>
        <source>pint per stroke</source>
        <translation>pint per slag</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>quart per slag</translation>
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
        <translatorcomment>CLDR: piconewton</translatorcomment>
        <translation>piconewton</translation>
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
        <translatorcomment>CLDR: yoktonewton</translatorcomment>
        <translation>yoktonewton</translation>
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
        <translatorcomment>CLDR: pound of force</translatorcomment>
        <translation>pound of force</translation>
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
        <translation>unskraft</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: newton per meter</translatorcomment>
        <translation>newton per meter</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>kilopund per fot</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>kilopond per meter</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>tonkraft per meter</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>pundkraft per fot</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: dekanewton per meter</translatorcomment>
        <translation>dekanewton per meter</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translatorcomment>CLDR: kilonewton per meter</translatorcomment>
        <translation>kilonewton per meter</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translatorcomment>CLDR: meganewton per meter</translatorcomment>
        <translation>meganewton per meter</translation>
    </message>
    <message>
        <source>kip per foot</source>
        <translation>kip per fot</translation>
    </message>
    <message>
        <source>kip per inch</source>
        <translation>kip per tum</translation>
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
        <translation>cykel per sekund</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: varv per minut</translatorcomment>
        <translation>varv per minut</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>blixt per sekund</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>blixt per minut</translation>
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
        <translation>hästkraft (metrisk)</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>hästkraft (europeisk elektrisk)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>hästkraft (imperial mekanisk)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>hästkraft (imperial elektrisk)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: kilokalori per timme</translatorcomment>
        <translation>kilokalori per timme</translation>
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
        <translatorcomment>CLDR: volt-ampere</translatorcomment>
        <translation>volt-ampere</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translatorcomment>CLDR: millivolt-ampere</translatorcomment>
        <translation>millivolt-ampere</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translatorcomment>CLDR: kilovolt-ampere</translatorcomment>
        <translation>kilovolt-ampere</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translatorcomment>CLDR: megavolt-ampere</translatorcomment>
        <translation>megavolt-ampere</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: milliwatt</translatorcomment>
        <translation>milliwatt</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>kilopondmeter per sekund</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>fot-pundkraft per sekund</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: kalori per sekund</translatorcomment>
        <translation>kalori per sekund</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: kilokalori per sekund</translatorcomment>
        <translation>kilokalori per sekund</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>brittisk termisk enhet (internationella tabellen) per sekund</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>brittisk termisk enhet (internationella tabellen) per timme</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>miljon brittiska termiska enheter (internationella tabellen) per timme</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>tusen brittiska termiska enheter (internationella tabellen) per timme</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>kylton</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: watt per kubikmeter</translatorcomment>
        <translation>watt per kubikmeter</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: watt per kubikfot</translatorcomment>
        <translation>watt per kubikfot</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>brittisk termisk enhet per timme och kubikfot</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: watt per kilogram</translatorcomment>
        <translation>watt per kilogram</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: watt per kvadratmeter</translatorcomment>
        <translation>watt per kvadratmeter</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: kilowatt per kvadratmeter</translatorcomment>
        <translation>kilowatt per kvadratmeter</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: kilowatt per kvadratfot</translatorcomment>
        <translation>kilowatt per kvadratfot</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: watt per kvadratfot</translatorcomment>
        <translation>watt per kvadratfot</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>brittisk termisk enhet per timme och kvadratfot</translation>
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
        <translation>bar övertryck</translation>
    </message>
    <message>
        <source>inch of mercury</source>
        <translatorcomment>CLDR: tum kvicksilver</translatorcomment>
        <translation>tum kvicksilver</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>tum vattenpelare</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translatorcomment>CLDR: kilobar</translatorcomment>
        <translation>kilobar</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: kilogram per kvadratcentimeter</translatorcomment>
        <translation>kilogram per kvadratcentimeter</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: kilopascal</translatorcomment>
        <translation>kilopascal</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: kilopund per kvadrattum</translatorcomment>
        <translation>kilopund per kvadrattum</translation>
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
        <translatorcomment>CLDR: millimeter kvicksilver</translatorcomment>
        <translation>millimeter kvicksilver</translation>
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
        <translation>pund per kvadrattum (absolut)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>pund per kvadrattum (övertryck)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: pund per kvadratfot</translatorcomment>
        <translation>pund per kvadratfot</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: pund per kvadrattum</translatorcomment>
        <translation>pund per kvadrattum</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>atmosfär (normal)</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>teknisk atmosfär</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>torr</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translatorcomment>CLDR: newton per kvadratmillimeter</translatorcomment>
        <translation>newton per kvadratmillimeter</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: newton per kvadratmeter</translatorcomment>
        <translation>newton per kvadratmeter</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translatorcomment>CLDR: dekanewton per kvadratmillimeter</translatorcomment>
        <translation>dekanewton per kvadratmillimeter</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: dekanewton per kvadratmeter</translatorcomment>
        <translation>dekanewton per kvadratmeter</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: kilonewton per kvadratmeter</translatorcomment>
        <translation>kilonewton per kvadratmeter</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: meganewton per kvadratmeter</translatorcomment>
        <translation>meganewton per kvadratmeter</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translatorcomment>CLDR: kilopund per kvadratfot</translatorcomment>
        <translation>kilopund per kvadratfot</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>kilopond per kvadratmillimeter</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>kilopond per kvadratcentimeter</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>kilopond per kvadratmeter</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>tonkraft per kvadratcentimeter</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>tonkraft per kvadratmeter</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>tonkraft per kvadratfot</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translation>pundkraft per kvadrattum</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>fot vattenpelare</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>kip per kvadrattum</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>kip per kvadratfot</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>pundkraft per kvadratfot</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: gigapascal</translatorcomment>
        <translation>gigapascal</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>dyn per kvadratcentimeter</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translatorcomment>CLDR: newton per kvadratmikrometer</translatorcomment>
        <translation>newton per kvadratmikrometer</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: meter per newton</translatorcomment>
        <translation>meter per newton</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translatorcomment>CLDR: meter per kilonewton</translatorcomment>
        <translation>meter per kilonewton</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>fot per kip</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: kvadratmeter per newton</translatorcomment>
        <translation>kvadratmeter per newton</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: kvadratmeter per kilonewton</translatorcomment>
        <translation>kvadratmeter per kilonewton</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>kvadratfot per kip</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: kubikmeter per newton</translatorcomment>
        <translation>kubikmeter per newton</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: kubikmeter per kilonewton</translatorcomment>
        <translation>kubikmeter per kilonewton</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>kubikfot per kip</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: newton-meter per meter</translatorcomment>
        <translation>newton-meter per meter</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: dekanewton-meter per meter</translatorcomment>
        <translation>dekanewton-meter per meter</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: kilonewton-meter per meter</translatorcomment>
        <translation>kilonewton-meter per meter</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: meganewton-meter per meter</translatorcomment>
        <translation>meganewton-meter per meter</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>kip-fot per fot</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>kilopondmeter per meter</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>tonkraftmeter per meter</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translatorcomment>CLDR: pound-force-foot per fot</translatorcomment>
        <translation>pound-force-foot per fot</translation>
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
        <translatorcomment>CLDR: meter per sekund</translatorcomment>
        <translation>meter per sekund</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: millimeter per sekund</translatorcomment>
        <translation>millimeter per sekund</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: centimeter per sekund</translatorcomment>
        <translation>centimeter per sekund</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: meter per minut</translatorcomment>
        <translation>meter per minut</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: tum per sekund</translatorcomment>
        <translation>tum per sekund</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: fot per sekund</translatorcomment>
        <translation>fot per sekund</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: tum per minut</translatorcomment>
        <translation>tum per minut</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: fot per minut</translatorcomment>
        <translation>fot per minut</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: kilometer per timme</translatorcomment>
        <translation>kilometer per timme</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: engelsk mil per timme</translatorcomment>
        <translation>engelsk mil per timme</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: centimeter per minut</translatorcomment>
        <translation>centimeter per minut</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: fot per timme</translatorcomment>
        <translation>fot per timme</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: tum per timme</translatorcomment>
        <translation>tum per timme</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: kilometer per minut</translatorcomment>
        <translation>kilometer per minut</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: kilometer per sekund</translatorcomment>
        <translation>kilometer per sekund</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: knop</translatorcomment>
        <translation>knop</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>knop (Storbritannien)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: meter per timme</translatorcomment>
        <translation>meter per timme</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: engelsk mil per minut</translatorcomment>
        <translation>engelsk mil per minut</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: engelsk mil per sekund</translatorcomment>
        <translation>engelsk mil per sekund</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>lantmäterimile per timme</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>lantmäterifot per sekund</translation>
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
        <translatorcomment>CLDR: yobebyte</translatorcomment>
        <translation>yobebyte</translation>
    </message>
    <message>
        <source>kelvin</source>
        <translatorcomment>CLDR: kelvin</translatorcomment>
        <translation>kelvin</translation>
    </message>
    <message>
        <source>degree Celsius</source>
        <translatorcomment>CLDR: grad Celsius</translatorcomment>
        <translation>grad Celsius</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: grad Fahrenheit</translatorcomment>
        <translation>grad Fahrenheit</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>grad Rankine</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: grad Celsius per minut</translatorcomment>
        <translation>grad Celsius per minut</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: grad Fahrenheit per minut</translatorcomment>
        <translation>grad Fahrenheit per minut</translation>
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
        <translatorcomment>CLDR: picosekund</translatorcomment>
        <translation>picosekund</translation>
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
        <translatorcomment>CLDR: yoktosekund</translatorcomment>
        <translation>yoktosekund</translation>
    </message>
    <message>
        <source>minute</source>
        <translatorcomment>CLDR: minut</translatorcomment>
        <translation>minut</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: timme</translatorcomment>
        <translation>timme</translation>
    </message>
    <message>
        <source>day</source>
        <translatorcomment>CLDR: dygn</translatorcomment>
        <translation>dygn</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: vecka</translatorcomment>
        <translation>vecka</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>fjorton dagar</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: månad</translatorcomment>
        <translation>månad</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>månad (kort, 29 dagar)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>månad (full, 30 dagar)</translation>
    </message>
    <message>
        <source>year</source>
        <translatorcomment>CLDR: år</translatorcomment>
        <translation>år</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>år (gregorianskt)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>år (julianskt)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>sideriskt år</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>tropiskt år</translation>
    </message>
    <message>
        <source>annum</source>
        <translation>annum</translation>
    </message>
    <message>
        <source>decade</source>
        <translatorcomment>CLDR: årtionde</translatorcomment>
        <translation>årtionde</translation>
    </message>
    <message>
        <source>century</source>
        <translatorcomment>CLDR: århundrade</translatorcomment>
        <translation>århundrade</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>sekel (julianskt)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>millennium</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>millennium (gregorianskt)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>millennium (julianskt)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>newtonmeter (vridmoment)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>newtoncentimeter (vridmoment)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>newtondekameter (vridmoment)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>fot-pund (vridmoment)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>tum-pund (vridmoment)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>meterkilogram (vridmoment)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>centimeterkilogram (vridmoment)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>tum-uns (vridmoment)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>gramcentimeter (vridmoment)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>dekanewtonmeter (vridmoment)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>kilonewtonmeter (vridmoment)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>meganewtonmeter (vridmoment)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>kip-fot (vridmoment)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>kilopondmeter (vridmoment)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>tonkraftmeter (vridmoment)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>pundkraftfot (vridmoment)</translation>
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
        <translatorcomment>CLDR: pascal-sekund</translatorcomment>
        <translation>pascal-sekund</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>pundmassa per fot och sekund</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>pundmassa per fot och timme</translation>
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
        <translatorcomment>CLDR: meter per kvadratsekund</translatorcomment>
        <translation>meter per kvadratsekund</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>fot per sekundkvadrat</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>lantmäterifot per sekundkvadrat</translation>
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
        <translation>lumen per steradian</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>normalljus (candlepower)</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>lux (belysningsstyrka)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>fotcandela</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translatorcomment>CLDR: lumen-sekund</translatorcomment>
        <translation>lumen-sekund</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>talbot</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>ljuseffekt</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: lumen</translatorcomment>
        <translation>lumen</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: candela per kvadratmeter</translatorcomment>
        <translation>candela per kvadratmeter</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>fotlambert</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: candela per kvadratfot</translatorcomment>
        <translation>candela per kvadratfot</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>lux (emittans)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: lumen per watt</translatorcomment>
        <translation>lumen per watt</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: pascal per meter</translatorcomment>
        <translation>pascal per meter</translation>
    </message>
    <message>
        <source>inch of water per 100foot</source>
        <translation>tum vattenpelare per 100 fot</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>fot vattenpelare per 100 fot</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>tum kvicksilver per 100 fot</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>millimeter kvicksilver per 100 fot</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: newton-meter per grad</translatorcomment>
        <translation>newton-meter per grad</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>kip-fot per grad</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: kilonewton-meter per grad</translatorcomment>
        <translation>kilonewton-meter per grad</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>newtonmeter per grad och meter</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>kip-fot per grad och fot</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>kilonewtonmeter per grad och meter</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>watt per kvadratmeter och kelvin</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>brittisk termisk enhet per timme, kvadratfot och grad Fahrenheit</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>kubikmeter per sekund och kvadratmeter</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>kubikfot per minut och kvadratfot</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>liter per sekund och kvadratmeter</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>kubikmeter per sekund och kubikmeter</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>kubikfot per minut och kubikfot</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>liter per sekund och kubikmeter</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>kubikmeter per sekund och watt</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>kubikfot per minut och kylton</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>liter per sekund och kilowatt</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: kvadratmeter per watt</translatorcomment>
        <translation>kvadratmeter per watt</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>kvadratfot per kylton</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: kvadratmeter per kilowatt</translatorcomment>
        <translation>kvadratmeter per kilowatt</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>kvadratfot per tusen brittiska termiska enheter per timme</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>kvadratsekund per meter och kilogram</translation>
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
        <translation>mikrometer per meter och grad Celsius</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>mikrotum per tum och grad Fahrenheit</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>oersted</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: ampere per meter</translatorcomment>
        <translation>ampere per meter</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>watt per meter och kelvin</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>watt per meter och grad Celsius</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>newton per sekund och grad Celsius</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>dyn per sekund och grad Celsius</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>BTU-tum per kvadratfot, timme och grad Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>BTU per tum, sekund och grad Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>BTU per fot, sekund och grad Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>BTU per fot, timme och grad Fahrenheit</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>joule per gram och grad Celsius</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>joule per kilogram och grad Celsius</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>kvadratmillimeter per kvadratsekund och grad Celsius</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>erg per gram och grad Celsius</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>kvadratmikrometer per kvadratsekund och grad Celsius</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>BTU per pund och grad Fahrenheit</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>nanogram per pascal, sekund och kvadratmeter</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>grain per kvadratfot, timme och tum kvicksilver</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translatorcomment>CLDR: ohm-meter</translatorcomment>
        <translation>ohm-meter</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translatorcomment>CLDR: joule per gram</translatorcomment>
        <translation>joule per gram</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translatorcomment>CLDR: joule per kilogram</translatorcomment>
        <translation>joule per kilogram</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>BTU per pund</translation>
    </message>
</context>
</TS>
