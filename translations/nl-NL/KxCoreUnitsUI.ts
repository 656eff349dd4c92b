<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>NumberFormat</name>
    <message>
        <source>Exponential</source>
        <translation>Exponentieel</translation>
    </message>
    <message>
        <source>exponential</source>
        <translation>exponentieel</translation>
    </message>
    <message>
        <source>Fixed Point</source>
        <translation>Vaste komma</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>general</source>
        <translation>algemeen</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Getal</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Breuk</translation>
    </message>
</context>
<context>
    <name>UnitGroup</name>
    <message>
        <source>Dimensionless</source>
        <translation>Dimensieloos</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lengte</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Oppervlakte</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Massa</translation>
    </message>
    <message>
        <source>Linear Weight</source>
        <translation>Massa per lengte</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>Hoeveelheid stof</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Hoek</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>Ruimtehoek</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>Massa per oppervlakte</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Concentratie</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>Delen per (ppm, ppb)</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>Elektrische stroom</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>Elektrische lading</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>Capaciteit</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Bitsnelheid</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichtheid</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>Soortelijk gewicht</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energie</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>Volumedebiet</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>Massadebiet</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>Debiet per slag</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Kracht</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>Lijnbelasting</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequentie</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>Inductantie</translation>
    </message>
    <message>
        <source>Magnetic Flux Density</source>
        <translation>Magnetische fluxdichtheid</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>Magnetische flux</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Vermogen</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>Vermogen per volume-eenheid</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>Vermogen per massa-eenheid</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>Vermogen per oppervlakte-eenheid</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druk</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>Krachtschaal</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>Lijnbelastingschaal</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>Vlakbelastingschaal</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>Lijnmoment</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>Elektrische weerstand</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>Elektrische geleiding</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Snelheid</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>Gegevensopslag</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatuur</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>Temperatuurverandering per tijd</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>Koppel</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>Dynamische viscositeit</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>Kinematische viscositeit</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Versnelling</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Elektrische spanning</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>Elektrische potentiaal</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>Lichtsterkte</translation>
    </message>
    <message>
        <source>Illuminance</source>
        <translation>Verlichtingssterkte</translation>
    </message>
    <message>
        <source>Luminous Energy</source>
        <translation>Lichthoeveelheid</translation>
    </message>
    <message>
        <source>Luminous Flux</source>
        <translation>Lichtstroom</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminantie</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>Lichtemittantie</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>Lichtrendement</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Wrijvingsdrukverlies</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>Rotatieveerstijfheid (punt)</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>Rotatieveerstijfheid (lijn)</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>Warmteoverdrachtscoëfficiënt</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>Luchtdebietdichtheid</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>Luchtdebiet per volume</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>Luchtdebiet per vermogen</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>Oppervlakte per vermogen</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>Momentschaal</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>Uitzettingscoëfficiënt</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>Magnetische veldsterkte</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>Warmtegeleidingscoëfficiënt</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>Soortelijke warmte</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>Dampdoorlatendheid</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>Soortelijke weerstand</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>Soortelijke verdampingswarmte</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>zonder eenheid</translation>
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
        <translatorcomment>CLDR: hectometer</translatorcomment>
        <translation>hectometer</translation>
    </message>
    <message>
        <source>decameter</source>
        <translatorcomment>CLDR: decameter</translatorcomment>
        <translation>decameter</translation>
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
        <translatorcomment>CLDR: micrometer</translatorcomment>
        <translation>micrometer</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translatorcomment>CLDR: nanometer</translatorcomment>
        <translation>nanometer</translation>
    </message>
    <message>
        <source>picometer</source>
        <translatorcomment>CLDR: picometer</translatorcomment>
        <translation>picometer</translation>
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
        <translatorcomment>CLDR: inch</translatorcomment>
        <translation>inch</translation>
    </message>
    <message>
        <source>foot</source>
        <translatorcomment>CLDR: voet</translatorcomment>
        <translation>voet</translation>
    </message>
    <message>
        <source>foot (Benoit)</source>
        <translation>voet (Benoit)</translation>
    </message>
    <message>
        <source>foot (Clarke&apos;s; Cape)</source>
        <translation>voet (Clarke; Kaapstad)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>voet (India)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>voet (Sears)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>landmeetvoet (VS)</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: yard</translatorcomment>
        <translation>yard</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>chain (keten)</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>chain (Ramsden; ingenieurs)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: furlong</translatorcomment>
        <translation>furlong</translation>
    </message>
    <message>
        <source>mile</source>
        <translatorcomment>CLDR: mijl</translatorcomment>
        <translation>mijl</translation>
    </message>
    <message>
        <source>geographical mile</source>
        <translation>geografische mijl</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>landmeetmijl (VS)</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: zeemijl</translatorcomment>
        <translation>zeemijl</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>Engelse landmijl</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>zeemijl (Admiraliteit)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>micron</translation>
    </message>
    <message>
        <source>microinch</source>
        <translatorcomment>CLDR: microinch</translatorcomment>
        <translation>microinch</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>ångström</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: astronomische eenheid</translatorcomment>
        <translation>astronomische eenheid</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>kabellengte</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>el (cubit)</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: vadem</translatorcomment>
        <translation>vadem</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>hand (4 inch)</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: lichtjaar</translatorcomment>
        <translation>lichtjaar</translation>
    </message>
    <message>
        <source>span</source>
        <translation>span</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>span (textiel)</translation>
    </message>
    <message>
        <source>parsec</source>
        <translatorcomment>CLDR: parsec</translatorcomment>
        <translation>parsec</translation>
    </message>
    <message>
        <source>nautical league</source>
        <translation>zeeleague</translation>
    </message>
    <message>
        <source>league</source>
        <translation>league (mijlmaat)</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>mil (duizendste inch)</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>Scandinavische mijl (Zweden en Noorwegen)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>link (schakel)</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>link (Ramsden; ingenieurs)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>pas</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>palm (3 inch)</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>roede (rod)</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>rope (20 voet)</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>streng (skein)</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>kaliber</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>landmeetinch</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>landmeetyard</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>landmeetroede</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>bolt (rol stof)</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: vierkante meter</translatorcomment>
        <translation>vierkante meter</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: vierkante inch</translatorcomment>
        <translation>vierkante inch</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: vierkante voet</translatorcomment>
        <translation>vierkante voet</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: vierkante yard</translatorcomment>
        <translation>vierkante yard</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: acre</translatorcomment>
        <translation>acre</translation>
    </message>
    <message>
        <source>section</source>
        <translation>section (vierkante mijl)</translation>
    </message>
    <message>
        <source>township</source>
        <translation>township (36 vierkante mijl)</translation>
    </message>
    <message>
        <source>hectare</source>
        <translatorcomment>CLDR: hectare</translatorcomment>
        <translation>hectare</translation>
    </message>
    <message>
        <source>square kilometer</source>
        <translatorcomment>CLDR: vierkante kilometer</translatorcomment>
        <translation>vierkante kilometer</translation>
    </message>
    <message>
        <source>square mile</source>
        <translatorcomment>CLDR: vierkante mijl</translatorcomment>
        <translation>vierkante mijl</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translatorcomment>CLDR: vierkante centimeter</translatorcomment>
        <translation>vierkante centimeter</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translatorcomment>CLDR: vierkante millimeter</translatorcomment>
        <translation>vierkante millimeter</translation>
    </message>
    <message>
        <source>circular mil</source>
        <translation>circular mil</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>kilo-circular mil</translation>
    </message>
    <message>
        <source>are</source>
        <translation>are</translation>
    </message>
    <message>
        <source>barn</source>
        <translation>barn</translation>
    </message>
    <message>
        <source>centare</source>
        <translation>centiare</translation>
    </message>
    <message>
        <source>square angstrom</source>
        <translation>vierkante ångström</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>vierkante bolt</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>vierkante kabellengte</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>vierkant kaliber</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>vierkante el</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translatorcomment>CLDR: vierkante decimeter</translatorcomment>
        <translation>vierkante decimeter</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translatorcomment>CLDR: vierkante vadem</translatorcomment>
        <translation>vierkante vadem</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translatorcomment>CLDR: vierkante furlong</translatorcomment>
        <translation>vierkante furlong</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translatorcomment>CLDR: vierkante gigameter</translatorcomment>
        <translation>vierkante gigameter</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>vierkante hand</translation>
    </message>
    <message>
        <source>square nautical league</source>
        <translation>vierkante zeeleague</translation>
    </message>
    <message>
        <source>square league (statute)</source>
        <translation>vierkante league (land)</translation>
    </message>
    <message>
        <source>square light-year</source>
        <translation>vierkant lichtjaar</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>vierkante link</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>vierkante micron</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>vierkante mijl (Britse zeemijl)</translation>
    </message>
    <message>
        <source>square mile (statute)</source>
        <translation>vierkante mijl (land)</translation>
    </message>
    <message>
        <source>square millimicron</source>
        <translation>vierkante millimicron</translation>
    </message>
    <message>
        <source>square pace</source>
        <translation>vierkante pas</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>vierkante palm</translation>
    </message>
    <message>
        <source>square parsec</source>
        <translatorcomment>CLDR: vierkante parsec</translatorcomment>
        <translation>vierkante parsec</translation>
    </message>
    <message>
        <source>square perch</source>
        <translation>vierkante perch</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>vierkante rope</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>vierkante streng</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>vierkante span</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>vierkante landmeetvoet</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>vierkante chain</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>vierkante mil</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translatorcomment>CLDR: vierkante astronomische eenheid</translatorcomment>
        <translation>vierkante astronomische eenheid</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>landmeetacre</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>vierkante landmeetyard</translation>
    </message>
    <message>
        <source>board</source>
        <translation>board (plank)</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>cord (oppervlakte)</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>vierkante microinch</translation>
    </message>
    <message>
        <source>square micrometer</source>
        <translatorcomment>CLDR: vierkante micrometer</translatorcomment>
        <translation>vierkante micrometer</translation>
    </message>
    <message>
        <source>liter</source>
        <translatorcomment>CLDR: liter</translatorcomment>
        <translation>liter</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translatorcomment>CLDR: kubieke centimeter</translatorcomment>
        <translation>kubieke centimeter</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translatorcomment>CLDR: eetlepel</translatorcomment>
        <translation>eetlepel</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>eetlepel (Canada)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>eetlepel (VS)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>vloeibare ounce (imperiaal)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>vloeibare ounce (VS)</translation>
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
        <translation>kop (VS)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>quart (imperiaal)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>quart (VS, vloeibaar)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>quart (VS, droog)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>gallon (imperiaal)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>gallon (VS, vloeibaar; wijn)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>gallon (VS, droog)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>biergallon</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>bushel (imperiaal)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>bushel (VS, gestreken)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>bushel (VS, opgehoopt)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: centiliter</translatorcomment>
        <translation>centiliter</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: kubieke voet</translatorcomment>
        <translation>kubieke voet</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: kubieke inch</translatorcomment>
        <translation>kubieke inch</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: kubieke meter</translatorcomment>
        <translation>kubieke meter</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: kubieke yard</translatorcomment>
        <translation>kubieke yard</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>vloeibare drachme</translation>
    </message>
    <message>
        <source>microliter</source>
        <translatorcomment>CLDR: microliter</translatorcomment>
        <translation>microliter</translation>
    </message>
    <message>
        <source>milliliter</source>
        <translatorcomment>CLDR: milliliter</translatorcomment>
        <translation>milliliter</translation>
    </message>
    <message>
        <source>pint (imperial)</source>
        <translation>pint (imperiaal)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>pint (VS, vloeibaar)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>pint (VS, droog)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: theelepel</translatorcomment>
        <translation>theelepel</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>theelepel (Canada)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>theelepel (VS)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>theelepel (imperiaal)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translatorcomment>CLDR: kubieke millimeter</translatorcomment>
        <translation>kubieke millimeter</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>vat (imperiaal)</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>vat (aardolie)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>vat (VS, droog)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>vat (VS, vloeibaar)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>board-foot (plankvoet)</translation>
    </message>
    <message>
        <source>decistere</source>
        <translation>decistère</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translatorcomment>CLDR: decaliter</translatorcomment>
        <translation>decaliter</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>decastère</translation>
    </message>
    <message>
        <source>dram</source>
        <translatorcomment>CLDR: drachme</translatorcomment>
        <translation>drachme</translation>
    </message>
    <message>
        <source>firkin</source>
        <translation>firkin</translation>
    </message>
    <message>
        <source>cubic angstrom</source>
        <translation>kubieke ångström</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translatorcomment>CLDR: kubieke astronomische eenheid</translatorcomment>
        <translation>kubieke astronomische eenheid</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>kubieke bolt</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>kubieke kabellengte</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>kubiek kaliber</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>kubieke chain</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>kubieke el</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translatorcomment>CLDR: kubieke vadem</translatorcomment>
        <translation>kubieke vadem</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translatorcomment>CLDR: kubieke furlong</translatorcomment>
        <translation>kubieke furlong</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translatorcomment>CLDR: kubieke gigameter</translatorcomment>
        <translation>kubieke gigameter</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>kubieke hand</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translatorcomment>CLDR: kubieke hectometer</translatorcomment>
        <translation>kubieke hectometer</translation>
    </message>
    <message>
        <source>cubic nautical league</source>
        <translation>kubieke zeeleague</translation>
    </message>
    <message>
        <source>cubic league (statute)</source>
        <translation>kubieke league (land)</translation>
    </message>
    <message>
        <source>cubic light-year</source>
        <translation>kubiek lichtjaar</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>kubieke link</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>kubieke mil</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>kubieke mijl (Britse zeemijl)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: kubieke mijl</translatorcomment>
        <translation>kubieke mijl</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translatorcomment>CLDR: kubieke zeemijl</translatorcomment>
        <translation>kubieke zeemijl</translation>
    </message>
    <message>
        <source>cubic mile (statute)</source>
        <translation>kubieke mijl (land)</translation>
    </message>
    <message>
        <source>cubic millimicron</source>
        <translation>kubieke millimicron</translation>
    </message>
    <message>
        <source>cubic pace</source>
        <translation>kubieke pas</translation>
    </message>
    <message>
        <source>cubic palm</source>
        <translation>kubieke palm</translation>
    </message>
    <message>
        <source>cubic parsec</source>
        <translatorcomment>CLDR: kubieke parsec</translatorcomment>
        <translation>kubieke parsec</translation>
    </message>
    <message>
        <source>cubic perch</source>
        <translation>kubieke perch</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>kubieke rope</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>kubieke streng</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>kubieke span</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>kubieke landmeetvoet</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translatorcomment>CLDR: kubieke decimeter</translatorcomment>
        <translation>kubieke decimeter</translation>
    </message>
    <message>
        <source>tun</source>
        <translation>ton (vat)</translation>
    </message>
    <message>
        <source>peck</source>
        <translation>peck</translation>
    </message>
    <message>
        <source>peck (U.S. dry)</source>
        <translation>peck (VS, droog)</translation>
    </message>
    <message>
        <source>peck (imperial)</source>
        <translation>peck (imperiaal)</translation>
    </message>
    <message>
        <source>minim (imperial)</source>
        <translation>minim (imperiaal)</translation>
    </message>
    <message>
        <source>minim (U.S.)</source>
        <translation>minim (VS)</translation>
    </message>
    <message>
        <source>kiloliter</source>
        <translatorcomment>CLDR: kiloliter</translatorcomment>
        <translation>kiloliter</translation>
    </message>
    <message>
        <source>hogshead (U.S.)</source>
        <translation>okshoofd (VS)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>okshoofd (imperiaal)</translation>
    </message>
    <message>
        <source>gill (imperial)</source>
        <translation>gill (imperiaal)</translation>
    </message>
    <message>
        <source>gill (U.S.)</source>
        <translation>gill (VS)</translation>
    </message>
    <message>
        <source>cubic survey yard</source>
        <translation>kubieke landmeetyard</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>cord-foot</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>cord (brandhout)</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>registerton</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: acre-foot</translatorcomment>
        <translation>acre-foot</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>acre-inch</translation>
    </message>
    <message>
        <source>cubic microinch</source>
        <translation>kubieke microinch</translation>
    </message>
    <message>
        <source>cubic micrometer</source>
        <translatorcomment>CLDR: kubieke micrometer</translatorcomment>
        <translation>kubieke micrometer</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translatorcomment>CLDR: kubieke kilometer</translatorcomment>
        <translation>kubieke kilometer</translation>
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
        <translatorcomment>CLDR: hectogram</translatorcomment>
        <translation>hectogram</translation>
    </message>
    <message>
        <source>decagram</source>
        <translatorcomment>CLDR: decagram</translatorcomment>
        <translation>decagram</translation>
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
        <translatorcomment>CLDR: microgram</translatorcomment>
        <translation>microgram</translation>
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
        <translatorcomment>CLDR: yoctogram</translatorcomment>
        <translation>yoctogram</translation>
    </message>
    <message>
        <source>pound (meter)</source>
        <translation>metrisch pond</translation>
    </message>
    <message>
        <source>pound</source>
        <translatorcomment>CLDR: pound</translatorcomment>
        <translation>pound</translation>
    </message>
    <message>
        <source>pound (troy)</source>
        <translation>troypound</translation>
    </message>
    <message>
        <source>ounce (avoirdupois)</source>
        <translation>ounce (avoirdupois)</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>ounce (apothekers; troy)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: stone</translatorcomment>
        <translation>stone</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>korte ton</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>lange ton</translation>
    </message>
    <message>
        <source>carat</source>
        <translatorcomment>CLDR: karaat</translatorcomment>
        <translation>karaat</translation>
    </message>
    <message>
        <source>carat (metric)</source>
        <translation>karaat (metrisch)</translation>
    </message>
    <message>
        <source>dram (avoirdupois)</source>
        <translation>drachme (avoirdupois)</translation>
    </message>
    <message>
        <source>dram (apothecary; troy)</source>
        <translation>drachme (apothekers; troy)</translation>
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
        <translation>lange hundredweight</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>korte hundredweight</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: grein</translatorcomment>
        <translation>grein</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>parelgrein</translation>
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
        <translatorcomment>CLDR: pound per voet</translatorcomment>
        <translation>pound per voet</translation>
    </message>
    <message>
        <source>mole</source>
        <translation>mol</translation>
    </message>
    <message>
        <source>yottamole</source>
        <translation>yottamol</translation>
    </message>
    <message>
        <source>zettamole</source>
        <translation>zettamol</translation>
    </message>
    <message>
        <source>examole</source>
        <translation>examol</translation>
    </message>
    <message>
        <source>petamole</source>
        <translation>petamol</translation>
    </message>
    <message>
        <source>teramole</source>
        <translation>teramol</translation>
    </message>
    <message>
        <source>gigamole</source>
        <translation>gigamol</translation>
    </message>
    <message>
        <source>megamole</source>
        <translation>megamol</translation>
    </message>
    <message>
        <source>kilomole</source>
        <translation>kilomol</translation>
    </message>
    <message>
        <source>hectomole</source>
        <translation>hectomol</translation>
    </message>
    <message>
        <source>decamole</source>
        <translation>decamol</translation>
    </message>
    <message>
        <source>decimole</source>
        <translation>decimol</translation>
    </message>
    <message>
        <source>centimole</source>
        <translation>centimol</translation>
    </message>
    <message>
        <source>millimole</source>
        <translation>millimol</translation>
    </message>
    <message>
        <source>micromole</source>
        <translation>micromol</translation>
    </message>
    <message>
        <source>nanomole</source>
        <translation>nanomol</translation>
    </message>
    <message>
        <source>picomole</source>
        <translation>picomol</translation>
    </message>
    <message>
        <source>femtomole</source>
        <translation>femtomol</translation>
    </message>
    <message>
        <source>attomole</source>
        <translation>attomol</translation>
    </message>
    <message>
        <source>zeptomole</source>
        <translation>zeptomol</translation>
    </message>
    <message>
        <source>yoctomole</source>
        <translation>yoctomol</translation>
    </message>
    <message>
        <source>radian</source>
        <translatorcomment>CLDR: radiaal</translatorcomment>
        <translation>radiaal</translation>
    </message>
    <message>
        <source>degree</source>
        <translatorcomment>CLDR: booggraad</translatorcomment>
        <translation>booggraad</translation>
    </message>
    <message>
        <source>milliradian</source>
        <translatorcomment>CLDR: milliradiaal</translatorcomment>
        <translation>milliradiaal</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>gon</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>streep (NAVO)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>streep (Zweden)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>streep (USSR)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translatorcomment>CLDR: boogminuut</translatorcomment>
        <translation>boogminuut</translation>
    </message>
    <message>
        <source>angle second</source>
        <translatorcomment>CLDR: boogseconde</translatorcomment>
        <translation>boogseconde</translation>
    </message>
    <message>
        <source>milliarc second</source>
        <translation>milliboogseconde</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>steradiaal</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: gram per vierkante meter</translatorcomment>
        <translation>gram per vierkante meter</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: gram per vierkante inch</translatorcomment>
        <translation>gram per vierkante inch</translation>
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
        <translatorcomment>CLDR: nanogram per microliter</translatorcomment>
        <translation>nanogram per microliter</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: ppm</translatorcomment>
        <translation>ppm</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>deel per miljard</translation>
    </message>
    <message>
        <source>ampere</source>
        <translatorcomment>CLDR: ampère</translatorcomment>
        <translation>ampère</translation>
    </message>
    <message>
        <source>yottaampere</source>
        <translatorcomment>CLDR: yottaampère</translatorcomment>
        <translation>yottaampère</translation>
    </message>
    <message>
        <source>zettaampere</source>
        <translatorcomment>CLDR: zettaampère</translatorcomment>
        <translation>zettaampère</translation>
    </message>
    <message>
        <source>exaampere</source>
        <translatorcomment>CLDR: exaampère</translatorcomment>
        <translation>exaampère</translation>
    </message>
    <message>
        <source>petaampere</source>
        <translatorcomment>CLDR: petaampère</translatorcomment>
        <translation>petaampère</translation>
    </message>
    <message>
        <source>teraampere</source>
        <translatorcomment>CLDR: teraampère</translatorcomment>
        <translation>teraampère</translation>
    </message>
    <message>
        <source>gigaampere</source>
        <translatorcomment>CLDR: gigaampère</translatorcomment>
        <translation>gigaampère</translation>
    </message>
    <message>
        <source>megaampere</source>
        <translatorcomment>CLDR: megaampère</translatorcomment>
        <translation>megaampère</translation>
    </message>
    <message>
        <source>kiloampere</source>
        <translatorcomment>CLDR: kiloampère</translatorcomment>
        <translation>kiloampère</translation>
    </message>
    <message>
        <source>hectoampere</source>
        <translatorcomment>CLDR: hectoampère</translatorcomment>
        <translation>hectoampère</translation>
    </message>
    <message>
        <source>decaampere</source>
        <translatorcomment>CLDR: decaampère</translatorcomment>
        <translation>decaampère</translation>
    </message>
    <message>
        <source>deciampere</source>
        <translatorcomment>CLDR: deciampère</translatorcomment>
        <translation>deciampère</translation>
    </message>
    <message>
        <source>centiampere</source>
        <translatorcomment>CLDR: centiampère</translatorcomment>
        <translation>centiampère</translation>
    </message>
    <message>
        <source>milliampere</source>
        <translatorcomment>CLDR: milliampère</translatorcomment>
        <translation>milliampère</translation>
    </message>
    <message>
        <source>microampere</source>
        <translatorcomment>CLDR: microampère</translatorcomment>
        <translation>microampère</translation>
    </message>
    <message>
        <source>nanoampere</source>
        <translatorcomment>CLDR: nanoampère</translatorcomment>
        <translation>nanoampère</translation>
    </message>
    <message>
        <source>picoampere</source>
        <translatorcomment>CLDR: picoampère</translatorcomment>
        <translation>picoampère</translation>
    </message>
    <message>
        <source>femtoampere</source>
        <translatorcomment>CLDR: femtoampère</translatorcomment>
        <translation>femtoampère</translation>
    </message>
    <message>
        <source>attoampere</source>
        <translatorcomment>CLDR: attoampère</translatorcomment>
        <translation>attoampère</translation>
    </message>
    <message>
        <source>zeptoampere</source>
        <translatorcomment>CLDR: zeptoampère</translatorcomment>
        <translation>zeptoampère</translation>
    </message>
    <message>
        <source>yoctoampere</source>
        <translatorcomment>CLDR: yoctoampère</translatorcomment>
        <translation>yoctoampère</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>coulomb</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translatorcomment>CLDR: ampèreuur</translatorcomment>
        <translation>ampèreuur</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translatorcomment>CLDR: milliampèreuur</translatorcomment>
        <translation>milliampèreuur</translation>
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
        <translation>hectofarad</translation>
    </message>
    <message>
        <source>decafarad</source>
        <translation>decafarad</translation>
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
        <translation>microfarad</translation>
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
        <translatorcomment>CLDR: bit per seconde</translatorcomment>
        <translation>bit per seconde</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: byte per seconde</translatorcomment>
        <translation>byte per seconde</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>kilobaud</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: kilobit per seconde</translatorcomment>
        <translation>kilobit per seconde</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: kilobyte per seconde</translatorcomment>
        <translation>kilobyte per seconde</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>megabaud</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: megabit per seconde</translatorcomment>
        <translation>megabit per seconde</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: megabyte per seconde</translatorcomment>
        <translation>megabyte per seconde</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: kilogram per kubieke meter</translatorcomment>
        <translation>kilogram per kubieke meter</translation>
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
        <translatorcomment>CLDR: microgram per milliliter</translatorcomment>
        <translation>microgram per milliliter</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: milligram per milliliter</translatorcomment>
        <translation>milligram per milliliter</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: pound per gallon</translatorcomment>
        <translation>pound per gallon</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: ounce per gallon</translatorcomment>
        <translation>ounce per gallon</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: pound per kubieke voet</translatorcomment>
        <translation>pound per kubieke voet</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: pound per kubieke inch</translatorcomment>
        <translation>pound per kubieke inch</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: gram per kubieke centimeter</translatorcomment>
        <translation>gram per kubieke centimeter</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>newton kwadraatseconde per millimeter tot de vierde</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: newton per kubieke meter</translatorcomment>
        <translation>newton per kubieke meter</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: kilonewton per kubieke meter</translatorcomment>
        <translation>kilonewton per kubieke meter</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>pondkracht per kubieke voet</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>kip per kubieke inch</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>kip per kubieke voet</translation>
    </message>
    <message>
        <source>joule</source>
        <translatorcomment>CLDR: joule</translatorcomment>
        <translation>joule</translation>
    </message>
    <message>
        <source>calorie</source>
        <translatorcomment>CLDR: calorie</translatorcomment>
        <translation>calorie</translation>
    </message>
    <message>
        <source>kilocalorie</source>
        <translatorcomment>CLDR: kilocalorie</translatorcomment>
        <translation>kilocalorie</translation>
    </message>
    <message>
        <source>British thermal unit (thermochemical)</source>
        <translation>British thermal unit (thermochemisch)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>British thermal unit (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>British thermal unit (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>British thermal unit (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>British thermal unit (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>British thermal unit (internationale tabel)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>British thermal unit (gemiddeld)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>British thermal unit (39 °F)</translation>
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
        <translatorcomment>CLDR: kilowattuur</translatorcomment>
        <translation>kilowattuur</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translatorcomment>CLDR: kilowattminuut</translatorcomment>
        <translation>kilowattminuut</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translatorcomment>CLDR: kilowattseconde</translatorcomment>
        <translation>kilowattseconde</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>therm (VS)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: newtonmeter</translatorcomment>
        <translation>newtonmeter</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translatorcomment>CLDR: decanewtonmeter</translatorcomment>
        <translation>decanewtonmeter</translation>
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
        <translation>kilogramkrachtmeter</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>kilogramkrachtvoet</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>tonkrachtvoet</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>tonkrachtmeter</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>voet-kilopond</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>voet-pondkracht</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>calorie (20 °C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>calorie (thermochemisch)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>calorie (15 °C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>calorie (gemiddeld)</translation>
    </message>
    <message>
        <source>calorie (3.98 degree C)</source>
        <translation>calorie (3,98 °C)</translation>
    </message>
    <message>
        <source>Therm (EC)</source>
        <translation>therm (EG)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: kubieke meter per seconde</translatorcomment>
        <translation>kubieke meter per seconde</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: liter per seconde</translatorcomment>
        <translation>liter per seconde</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: liter per minuut</translatorcomment>
        <translation>liter per minuut</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: liter per uur</translatorcomment>
        <translation>liter per uur</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translatorcomment>CLDR: gallon per seconde</translatorcomment>
        <translation>gallon per seconde</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: gallon per minuut</translatorcomment>
        <translation>gallon per minuut</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: gallon per uur</translatorcomment>
        <translation>gallon per uur</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: gallon per dag</translatorcomment>
        <translation>gallon per dag</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: milliliter per minuut</translatorcomment>
        <translation>milliliter per minuut</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: kubieke centimeter per minuut</translatorcomment>
        <translation>kubieke centimeter per minuut</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: kubieke voet per uur</translatorcomment>
        <translation>kubieke voet per uur</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: kubieke voet per minuut</translatorcomment>
        <translation>kubieke voet per minuut</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: kubieke voet per seconde</translatorcomment>
        <translation>kubieke voet per seconde</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: kubieke inch per minuut</translatorcomment>
        <translation>kubieke inch per minuut</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: kubieke meter per uur</translatorcomment>
        <translation>kubieke meter per uur</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: kubieke meter per minuut</translatorcomment>
        <translation>kubieke meter per minuut</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: kubieke centimeter per seconde</translatorcomment>
        <translation>kubieke centimeter per seconde</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: kubieke centimeter per uur</translatorcomment>
        <translation>kubieke centimeter per uur</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>Amerikaanse gallon per uur</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>Amerikaanse gallon per seconde</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>imperiale gallon per dag</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>imperiale gallon per uur</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>imperiale gallon per minuut</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>imperiale gallon per seconde</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>miljoen imperiale gallon per dag</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: liter per dag</translatorcomment>
        <translation>liter per dag</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>miljoen liter per dag</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>Amerikaanse gallon per dag</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>miljoen Amerikaanse gallon per dag</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: kubieke voet per dag</translatorcomment>
        <translation>kubieke voet per dag</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: kubieke meter per dag</translatorcomment>
        <translation>kubieke meter per dag</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: kubieke yard per minuut</translatorcomment>
        <translation>kubieke yard per minuut</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: acre-foot per dag</translatorcomment>
        <translation>acre-foot per dag</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: acre-foot per uur</translatorcomment>
        <translation>acre-foot per uur</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: acre-foot per minuut</translatorcomment>
        <translation>acre-foot per minuut</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>acre-inch per uur</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>acre-inch per minuut</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>kubieke landmeetvoet per seconde</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: kilogram per seconde</translatorcomment>
        <translation>kilogram per seconde</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: kilogram per minuut</translatorcomment>
        <translation>kilogram per minuut</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: kilogram per uur</translatorcomment>
        <translation>kilogram per uur</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: gram per seconde</translatorcomment>
        <translation>gram per seconde</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: gram per minuut</translatorcomment>
        <translation>gram per minuut</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: gram per uur</translatorcomment>
        <translation>gram per uur</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: pound per seconde</translatorcomment>
        <translation>pound per seconde</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: pound per minuut</translatorcomment>
        <translation>pound per minuut</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: pound per uur</translatorcomment>
        <translation>pound per uur</translation>
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
        <translatorcomment>CLDR: hectonewton</translatorcomment>
        <translation>hectonewton</translation>
    </message>
    <message>
        <source>decanewton</source>
        <translatorcomment>CLDR: decanewton</translatorcomment>
        <translation>decanewton</translation>
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
        <translatorcomment>CLDR: micronewton</translatorcomment>
        <translation>micronewton</translation>
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
        <translatorcomment>CLDR: yoctonewton</translatorcomment>
        <translation>yoctonewton</translation>
    </message>
    <message>
        <source>kilopound</source>
        <translation>kilopond (kip)</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>kilogramkracht</translation>
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
        <translation>tonkracht</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>dyne</translation>
    </message>
    <message>
        <source>lbforce</source>
        <translation>lbf (pondkracht)</translation>
    </message>
    <message>
        <source>ounce force</source>
        <translation>ouncekracht</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: newton per meter</translatorcomment>
        <translation>newton per meter</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>kilopond per voet</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>kilogramkracht per meter</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>tonkracht per meter</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>pondkracht per voet</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: decanewton per meter</translatorcomment>
        <translation>decanewton per meter</translation>
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
        <translation>kip per voet</translation>
    </message>
    <message>
        <source>kip per inch</source>
        <translation>kip per inch</translation>
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
        <translation>cyclus per seconde</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: toer per minuut</translatorcomment>
        <translation>toer per minuut</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>flits per seconde</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>flits per minuut</translation>
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
        <translation>microhenry</translation>
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
        <translation>paardenkracht (metrisch)</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>paardenkracht (Europees elektrisch)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>horsepower (imperiaal mechanisch)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>horsepower (imperiaal elektrisch)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: kilocalorie per uur</translatorcomment>
        <translation>kilocalorie per uur</translation>
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
        <translatorcomment>CLDR: microwatt</translatorcomment>
        <translation>microwatt</translation>
    </message>
    <message>
        <source>volt ampere</source>
        <translatorcomment>CLDR: voltampère</translatorcomment>
        <translation>voltampère</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translatorcomment>CLDR: millivoltampère</translatorcomment>
        <translation>millivoltampère</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translatorcomment>CLDR: kilovoltampère</translatorcomment>
        <translation>kilovoltampère</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translatorcomment>CLDR: megavoltampère</translatorcomment>
        <translation>megavoltampère</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: milliwatt</translatorcomment>
        <translation>milliwatt</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>kilogramkrachtmeter per seconde</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>voet-pondkracht per seconde</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: calorie per seconde</translatorcomment>
        <translation>calorie per seconde</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: kilocalorie per seconde</translatorcomment>
        <translation>kilocalorie per seconde</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>British thermal unit (internationale tabel) per seconde</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>British thermal unit (internationale tabel) per uur</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>miljoen British thermal units (internationale tabel) per uur</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>duizend British thermal units (internationale tabel) per uur</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>koelton</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: watt per kubieke meter</translatorcomment>
        <translation>watt per kubieke meter</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: watt per kubieke voet</translatorcomment>
        <translation>watt per kubieke voet</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>British thermal unit per uur en kubieke voet</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: watt per kilogram</translatorcomment>
        <translation>watt per kilogram</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: watt per vierkante meter</translatorcomment>
        <translation>watt per vierkante meter</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: kilowatt per vierkante meter</translatorcomment>
        <translation>kilowatt per vierkante meter</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: kilowatt per vierkante voet</translatorcomment>
        <translation>kilowatt per vierkante voet</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: watt per vierkante voet</translatorcomment>
        <translation>watt per vierkante voet</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>British thermal unit per uur en vierkante voet</translation>
    </message>
    <message>
        <source>bar</source>
        <translatorcomment>CLDR: bar</translatorcomment>
        <translation>bar</translation>
    </message>
    <message>
        <source>bar absolute</source>
        <translation>bar absoluut</translation>
    </message>
    <message>
        <source>bar gauge</source>
        <translation>bar overdruk</translation>
    </message>
    <message>
        <source>inch of mercury</source>
        <translatorcomment>CLDR: inch-kwikdruk</translatorcomment>
        <translation>inch-kwikdruk</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>inch-waterkolom</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translatorcomment>CLDR: kilobar</translatorcomment>
        <translation>kilobar</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: kilogram per vierkante centimeter</translatorcomment>
        <translation>kilogram per vierkante centimeter</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: kilopascal</translatorcomment>
        <translation>kilopascal</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: kilopound per vierkante inch</translatorcomment>
        <translation>kilopound per vierkante inch</translation>
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
        <translatorcomment>CLDR: millimeter-kwikdruk</translatorcomment>
        <translation>millimeter-kwikdruk</translation>
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
        <translation>pound per vierkante inch (absoluut)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>pound per vierkante inch (overdruk)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: pound per vierkante voet</translatorcomment>
        <translation>pound per vierkante voet</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: pound per vierkante inch</translatorcomment>
        <translation>pound per vierkante inch</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>atmosfeer (standaard)</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>technische atmosfeer</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>torr</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translatorcomment>CLDR: newton per vierkante millimeter</translatorcomment>
        <translation>newton per vierkante millimeter</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: newton per vierkante meter</translatorcomment>
        <translation>newton per vierkante meter</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translatorcomment>CLDR: decanewton per vierkante millimeter</translatorcomment>
        <translation>decanewton per vierkante millimeter</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: decanewton per vierkante meter</translatorcomment>
        <translation>decanewton per vierkante meter</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: kilonewton per vierkante meter</translatorcomment>
        <translation>kilonewton per vierkante meter</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: meganewton per vierkante meter</translatorcomment>
        <translation>meganewton per vierkante meter</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translatorcomment>CLDR: kilopound per vierkante voet</translatorcomment>
        <translation>kilopound per vierkante voet</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>kilogramkracht per vierkante millimeter</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>kilogramkracht per vierkante centimeter</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>kilogramkracht per vierkante meter</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>tonkracht per vierkante centimeter</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>tonkracht per vierkante meter</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>tonkracht per vierkante voet</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translation>pondkracht per vierkante inch</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>voet-waterkolom</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>kip per vierkante inch</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>kip per vierkante voet</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>pondkracht per vierkante voet</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: gigapascal</translatorcomment>
        <translation>gigapascal</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>dyne per vierkante centimeter</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translatorcomment>CLDR: newton per vierkante micrometer</translatorcomment>
        <translation>newton per vierkante micrometer</translation>
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
        <translation>voet per kip</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: vierkante meter per newton</translatorcomment>
        <translation>vierkante meter per newton</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: vierkante meter per kilonewton</translatorcomment>
        <translation>vierkante meter per kilonewton</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>vierkante voet per kip</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: kubieke meter per newton</translatorcomment>
        <translation>kubieke meter per newton</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: kubieke meter per kilonewton</translatorcomment>
        <translation>kubieke meter per kilonewton</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>kubieke voet per kip</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: newtonmeter per meter</translatorcomment>
        <translation>newtonmeter per meter</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: decanewtonmeter per meter</translatorcomment>
        <translation>decanewtonmeter per meter</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: kilonewtonmeter per meter</translatorcomment>
        <translation>kilonewtonmeter per meter</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: meganewtonmeter per meter</translatorcomment>
        <translation>meganewtonmeter per meter</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>kip-voet per voet</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>kilogramkrachtmeter per meter</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>tonkrachtmeter per meter</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translatorcomment>CLDR: pound-force-foot per voet</translatorcomment>
        <translation>pound-force-foot per voet</translation>
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
        <translatorcomment>CLDR: microohm</translatorcomment>
        <translation>microohm</translation>
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
        <translatorcomment>CLDR: meter per seconde</translatorcomment>
        <translation>meter per seconde</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: millimeter per seconde</translatorcomment>
        <translation>millimeter per seconde</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: centimeter per seconde</translatorcomment>
        <translation>centimeter per seconde</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: meter per minuut</translatorcomment>
        <translation>meter per minuut</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: inch per seconde</translatorcomment>
        <translation>inch per seconde</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: voet per seconde</translatorcomment>
        <translation>voet per seconde</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: inch per minuut</translatorcomment>
        <translation>inch per minuut</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: voet per minuut</translatorcomment>
        <translation>voet per minuut</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: kilometer per uur</translatorcomment>
        <translation>kilometer per uur</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: mijl per uur</translatorcomment>
        <translation>mijl per uur</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: centimeter per minuut</translatorcomment>
        <translation>centimeter per minuut</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: voet per uur</translatorcomment>
        <translation>voet per uur</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: inch per uur</translatorcomment>
        <translation>inch per uur</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: kilometer per minuut</translatorcomment>
        <translation>kilometer per minuut</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: kilometer per seconde</translatorcomment>
        <translation>kilometer per seconde</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: knoop</translatorcomment>
        <translation>knoop</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>knoop (VK)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: meter per uur</translatorcomment>
        <translation>meter per uur</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: mijl per minuut</translatorcomment>
        <translation>mijl per minuut</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: mijl per seconde</translatorcomment>
        <translation>mijl per seconde</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>landmeetmijl per uur</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>landmeetvoet per seconde</translation>
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
        <translatorcomment>CLDR: graad Celsius</translatorcomment>
        <translation>graad Celsius</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: graad Fahrenheit</translatorcomment>
        <translation>graad Fahrenheit</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>graad Rankine</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: graad Celsius per minuut</translatorcomment>
        <translation>graad Celsius per minuut</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: graad Fahrenheit per minuut</translatorcomment>
        <translation>graad Fahrenheit per minuut</translation>
    </message>
    <message>
        <source>second</source>
        <translatorcomment>CLDR: seconde</translatorcomment>
        <translation>seconde</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translatorcomment>CLDR: yottaseconde</translatorcomment>
        <translation>yottaseconde</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translatorcomment>CLDR: zettaseconde</translatorcomment>
        <translation>zettaseconde</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translatorcomment>CLDR: exaseconde</translatorcomment>
        <translation>exaseconde</translation>
    </message>
    <message>
        <source>petasecond</source>
        <translatorcomment>CLDR: petaseconde</translatorcomment>
        <translation>petaseconde</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translatorcomment>CLDR: teraseconde</translatorcomment>
        <translation>teraseconde</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translatorcomment>CLDR: gigaseconde</translatorcomment>
        <translation>gigaseconde</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translatorcomment>CLDR: megaseconde</translatorcomment>
        <translation>megaseconde</translation>
    </message>
    <message>
        <source>kilosecond</source>
        <translatorcomment>CLDR: kiloseconde</translatorcomment>
        <translation>kiloseconde</translation>
    </message>
    <message>
        <source>hectosecond</source>
        <translatorcomment>CLDR: hectoseconde</translatorcomment>
        <translation>hectoseconde</translation>
    </message>
    <message>
        <source>decasecond</source>
        <translatorcomment>CLDR: decaseconde</translatorcomment>
        <translation>decaseconde</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translatorcomment>CLDR: deciseconde</translatorcomment>
        <translation>deciseconde</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translatorcomment>CLDR: centiseconde</translatorcomment>
        <translation>centiseconde</translation>
    </message>
    <message>
        <source>millisecond</source>
        <translatorcomment>CLDR: milliseconde</translatorcomment>
        <translation>milliseconde</translation>
    </message>
    <message>
        <source>microsecond</source>
        <translatorcomment>CLDR: microseconde</translatorcomment>
        <translation>microseconde</translation>
    </message>
    <message>
        <source>nanosecond</source>
        <translatorcomment>CLDR: nanoseconde</translatorcomment>
        <translation>nanoseconde</translation>
    </message>
    <message>
        <source>picosecond</source>
        <translatorcomment>CLDR: picoseconde</translatorcomment>
        <translation>picoseconde</translation>
    </message>
    <message>
        <source>femtosecond</source>
        <translatorcomment>CLDR: femtoseconde</translatorcomment>
        <translation>femtoseconde</translation>
    </message>
    <message>
        <source>attosecond</source>
        <translatorcomment>CLDR: attoseconde</translatorcomment>
        <translation>attoseconde</translation>
    </message>
    <message>
        <source>zeptosecond</source>
        <translatorcomment>CLDR: zeptoseconde</translatorcomment>
        <translation>zeptoseconde</translation>
    </message>
    <message>
        <source>yoctosecond</source>
        <translatorcomment>CLDR: yoctoseconde</translatorcomment>
        <translation>yoctoseconde</translation>
    </message>
    <message>
        <source>minute</source>
        <translatorcomment>CLDR: minuut</translatorcomment>
        <translation>minuut</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: uur</translatorcomment>
        <translation>uur</translation>
    </message>
    <message>
        <source>day</source>
        <translation>etmaal</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: week</translatorcomment>
        <translation>week</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>twee weken</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: maand</translatorcomment>
        <translation>maand</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>maand (hol, 29 dagen)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>maand (vol, 30 dagen)</translation>
    </message>
    <message>
        <source>year</source>
        <translatorcomment>CLDR: jaar</translatorcomment>
        <translation>jaar</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>jaar (gregoriaans)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>jaar (juliaans)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>siderisch jaar</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>tropisch jaar</translation>
    </message>
    <message>
        <source>annum</source>
        <translation>annum</translation>
    </message>
    <message>
        <source>decade</source>
        <translatorcomment>CLDR: decennium</translatorcomment>
        <translation>decennium</translation>
    </message>
    <message>
        <source>century</source>
        <translatorcomment>CLDR: eeuw</translatorcomment>
        <translation>eeuw</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>eeuw (juliaans)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>millennium</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>millennium (gregoriaans)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>millennium (juliaans)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>newtonmeter (koppel)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>newtoncentimeter (koppel)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>newtondecameter (koppel)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>voet-pond (koppel)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>inch-pond (koppel)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>meterkilogram (koppel)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>centimeterkilogram (koppel)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>inch-ounce (koppel)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>gramcentimeter (koppel)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>decanewtonmeter (koppel)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>kilonewtonmeter (koppel)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>meganewtonmeter (koppel)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>kip-voet (koppel)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>kilogramkrachtmeter (koppel)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>tonkrachtmeter (koppel)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>pondkrachtvoet (koppel)</translation>
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
        <translatorcomment>CLDR: pascalseconde</translatorcomment>
        <translation>pascalseconde</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>pondmassa per voet en seconde</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>pondmassa per voet en uur</translation>
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
        <translatorcomment>CLDR: meter per seconde kwadraat</translatorcomment>
        <translation>meter per seconde kwadraat</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>voet per seconde kwadraat</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>landmeetvoet per seconde kwadraat</translation>
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
        <translatorcomment>CLDR: microvolt</translatorcomment>
        <translation>microvolt</translation>
    </message>
    <message>
        <source>millivolt</source>
        <translatorcomment>CLDR: millivolt</translatorcomment>
        <translation>millivolt</translation>
    </message>
    <message>
        <source>volt (electrical potential)</source>
        <translation>volt (elektrische potentiaal)</translation>
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
        <translation>lumen per steradiaal</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>kaarsvermogen (candlepower)</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>lux (verlichtingssterkte)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>footcandle</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translatorcomment>CLDR: lumenseconde</translatorcomment>
        <translation>lumenseconde</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>talbot</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>lichtvermogen</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: lumen</translatorcomment>
        <translation>lumen</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: candela per vierkante meter</translatorcomment>
        <translation>candela per vierkante meter</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>footlambert</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: candela per vierkante voet</translatorcomment>
        <translation>candela per vierkante voet</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>lux (emittantie)</translation>
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
        <translation>inch-waterkolom per 100 voet</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>voet-waterkolom per 100 voet</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>inch-kwikdruk per 100 voet</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>millimeter-kwikdruk per 100 voet</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: newtonmeter per booggraad</translatorcomment>
        <translation>newtonmeter per booggraad</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>kip-voet per graad</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: kilonewtonmeter per booggraad</translatorcomment>
        <translation>kilonewtonmeter per booggraad</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>newtonmeter per graad per meter</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>kip-voet per graad per voet</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>kilonewtonmeter per graad per meter</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>watt per vierkante meter kelvin</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>British thermal unit per uur, vierkante voet en graad Fahrenheit</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>kubieke meter per seconde en vierkante meter</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>kubieke voet per minuut en vierkante voet</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>liter per seconde en vierkante meter</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>kubieke meter per seconde en kubieke meter</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>kubieke voet per minuut en kubieke voet</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>liter per seconde en kubieke meter</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>kubieke meter per seconde en watt</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>kubieke voet per minuut en koelton</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>liter per seconde en kilowatt</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: vierkante meter per watt</translatorcomment>
        <translation>vierkante meter per watt</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>vierkante voet per koelton</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: vierkante meter per kilowatt</translatorcomment>
        <translation>vierkante meter per kilowatt</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>vierkante voet per duizend British thermal units per uur</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>kwadraatseconde per meter en kilogram</translation>
    </message>
    <message>
        <source>inverse kilonewton</source>
        <translation>inverse kilonewton</translation>
    </message>
    <message>
        <source>inverse kip</source>
        <translation>inverse kip</translation>
    </message>
    <message>
        <source>inverse fahrenheit</source>
        <translation>inverse graad Fahrenheit</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>inverse graad Celsius</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>micrometer per meter en graad Celsius</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>microinch per inch en graad Fahrenheit</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>oersted</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: ampère per meter</translatorcomment>
        <translation>ampère per meter</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>watt per meter kelvin</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>watt per meter en graad Celsius</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>newton per seconde en graad Celsius</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>dyne per seconde en graad Celsius</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>BTU-inch per vierkante voet, uur en graad Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>BTU per inch, seconde en graad Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>BTU per voet, seconde en graad Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>BTU per voet, uur en graad Fahrenheit</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>joule per gram en graad Celsius</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>joule per kilogram en graad Celsius</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>vierkante millimeter per kwadraatseconde en graad Celsius</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>erg per gram en graad Celsius</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>vierkante micrometer per kwadraatseconde en graad Celsius</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>BTU per pound en graad Fahrenheit</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>nanogram per pascal, seconde en vierkante meter</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>grein per vierkante voet, uur en inch-kwikdruk</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translatorcomment>CLDR: ohmmeter</translatorcomment>
        <translation>ohmmeter</translation>
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
        <translation>BTU per pound</translation>
    </message>
</context>
</TS>
