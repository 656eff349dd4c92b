<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB">
<context>
    <name>NumberFormat</name>
    <message>
        <source>Exponential</source>
        <translation>Exponential</translation>
    </message>
    <message>
        <source>exponential</source>
        <translation>exponential</translation>
    </message>
    <message>
        <source>Fixed Point</source>
        <translation>Fixed Point</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>general</source>
        <translation>general</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Fraction</translation>
    </message>
</context>
<context>
    <name>UnitGroup</name>
    <message>
        <source>Dimensionless</source>
        <translation>Dimensionless</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Length</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Area</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Mass</translation>
    </message>
    <message>
        <source>Linear Weight</source>
        <translation>Linear Weight</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>Amount of Substance</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>Solid Angle</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>Area Density</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Concentration</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>Parts-per</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>Electric Current</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>Electric Charge</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>Capacitance</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Bit Rate</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Density</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>Unit Weight</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energy</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>Volumetric Flow Rate</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>Mass Flow Rate</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>Flow Rate per Stroke</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Force</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>Linear Force</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>Inductance</translation>
    </message>
    <message>
        <source>Magnetic Flux Density</source>
        <translation>Magnetic Flux Density</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>Magnetic Flux</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Power</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>Power per Unit of Volume</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>Power per Unit of Mass</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>Power per Unit of Area</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pressure</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>Force Scale</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>Linear Force Scale</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>Area Force Scale</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>Linear Moment</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>Electrical Resistance</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>Electric Conductance</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Velocity</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>Computer Storage</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>Temperature Rate</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>Torque</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>Dynamic Viscosity</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>Kinematic Viscosity</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Acceleration</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Voltage</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>Electric Potential</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>Luminous Intensity</translation>
    </message>
    <message>
        <source>Illuminance</source>
        <translation>Illuminance</translation>
    </message>
    <message>
        <source>Luminous Energy</source>
        <translation>Luminous Energy</translation>
    </message>
    <message>
        <source>Luminous Flux</source>
        <translation>Luminous Flux</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminance</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>Luminous Emittance</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>Luminous Efficacy</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Friction</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>Rotational Point Spring Coefficient</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>Rotational Line Spring Coefficient</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>Heat Transfer Coefficient</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>Airflow Density</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>Airflow Divided by Volume</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>Airflow Divided by Power</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>Area Divided by Power</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>Moment Scale</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>Coefficient of Thermal Expansion</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>Magnetic Field Intensity</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>Thermal Conductivity</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>Specific Heat</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>Permeability</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>Electrical Resistivity</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>Specific Heat of Vaporization</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>unitless</translation>
    </message>
    <message>
        <source>meter</source>
        <translatorcomment>CLDR: metre</translatorcomment>
        <translation>metre</translation>
    </message>
    <message>
        <source>yottameter</source>
        <translatorcomment>CLDR: yottametre</translatorcomment>
        <translation>yottametre</translation>
    </message>
    <message>
        <source>zettameter</source>
        <translatorcomment>CLDR: zettametre</translatorcomment>
        <translation>zettametre</translation>
    </message>
    <message>
        <source>exameter</source>
        <translatorcomment>CLDR: exametre</translatorcomment>
        <translation>exametre</translation>
    </message>
    <message>
        <source>petameter</source>
        <translatorcomment>CLDR: petametre</translatorcomment>
        <translation>petametre</translation>
    </message>
    <message>
        <source>terameter</source>
        <translatorcomment>CLDR: terametre</translatorcomment>
        <translation>terametre</translation>
    </message>
    <message>
        <source>gigameter</source>
        <translatorcomment>CLDR: gigametre</translatorcomment>
        <translation>gigametre</translation>
    </message>
    <message>
        <source>megameter</source>
        <translatorcomment>CLDR: megametre</translatorcomment>
        <translation>megametre</translation>
    </message>
    <message>
        <source>kilometer</source>
        <translatorcomment>CLDR: kilometre</translatorcomment>
        <translation>kilometre</translation>
    </message>
    <message>
        <source>hectometer</source>
        <translatorcomment>CLDR: hectometre</translatorcomment>
        <translation>hectometre</translation>
    </message>
    <message>
        <source>decameter</source>
        <translatorcomment>CLDR: decametre</translatorcomment>
        <translation>decametre</translation>
    </message>
    <message>
        <source>decimeter</source>
        <translatorcomment>CLDR: decimetre</translatorcomment>
        <translation>decimetre</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translatorcomment>CLDR: centimetre</translatorcomment>
        <translation>centimetre</translation>
    </message>
    <message>
        <source>millimeter</source>
        <translatorcomment>CLDR: millimetre</translatorcomment>
        <translation>millimetre</translation>
    </message>
    <message>
        <source>micrometer</source>
        <translatorcomment>CLDR: micrometre</translatorcomment>
        <translation>micrometre</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translatorcomment>CLDR: nanometre</translatorcomment>
        <translation>nanometre</translation>
    </message>
    <message>
        <source>picometer</source>
        <translatorcomment>CLDR: picometre</translatorcomment>
        <translation>picometre</translation>
    </message>
    <message>
        <source>femtometer</source>
        <translatorcomment>CLDR: femtometre</translatorcomment>
        <translation>femtometre</translation>
    </message>
    <message>
        <source>attometer</source>
        <translatorcomment>CLDR: attometre</translatorcomment>
        <translation>attometre</translation>
    </message>
    <message>
        <source>zeptometer</source>
        <translatorcomment>CLDR: zeptometre</translatorcomment>
        <translation>zeptometre</translation>
    </message>
    <message>
        <source>yoctometer</source>
        <translatorcomment>CLDR: yoctometre</translatorcomment>
        <translation>yoctometre</translation>
    </message>
    <message>
        <source>inch</source>
        <translatorcomment>CLDR: inch</translatorcomment>
        <translation>inch</translation>
    </message>
    <message>
        <source>foot</source>
        <translatorcomment>CLDR: foot</translatorcomment>
        <translation>foot</translation>
    </message>
    <message>
        <source>foot (Benoit)</source>
        <translation>foot (Benoit)</translation>
    </message>
    <message>
        <source>foot (Clarke&apos;s; Cape)</source>
        <translation>foot (Clarke&apos;s; Cape)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>foot (Indian)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>foot (Sear&apos;s)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>US survey foot</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: yard</translatorcomment>
        <translation>yard</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>chain</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>chain (Ramsden&apos;s; Engineer&apos;s)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: furlong</translatorcomment>
        <translation>furlong</translation>
    </message>
    <message>
        <source>mile</source>
        <translatorcomment>CLDR: mile</translatorcomment>
        <translation>mile</translation>
    </message>
    <message>
        <source>geographical mile</source>
        <translation>geographical mile</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>US survey mile</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: nautical mile</translatorcomment>
        <translation>nautical mile</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>statute mile</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>nautical mile (admiralty)</translation>
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
        <translation>angstrom</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: astronomical unit</translatorcomment>
        <translation>astronomical unit</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>cable</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>cubit</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: fathom</translatorcomment>
        <translation>fathom</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>hand</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: light year</translatorcomment>
        <translation>light year</translation>
    </message>
    <message>
        <source>span</source>
        <translation>span</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>span (cloth)</translation>
    </message>
    <message>
        <source>parsec</source>
        <translatorcomment>CLDR: parsec</translatorcomment>
        <translation>parsec</translation>
    </message>
    <message>
        <source>nautical league</source>
        <translation>nautical league</translation>
    </message>
    <message>
        <source>league</source>
        <translation>league</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>mil</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>mil (Sweden and Norway)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>link</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>link (Ramsden&apos;s; Engineer&apos;s)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>pace</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>palm</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>rod</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>rope</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>skein</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>calibre</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>survey inch</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>survey yard</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>survey rod</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>bolt</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: square metre</translatorcomment>
        <translation>square metre</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: square inch</translatorcomment>
        <translation>square inch</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: square foot</translatorcomment>
        <translation>square foot</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: square yard</translatorcomment>
        <translation>square yard</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: acre</translatorcomment>
        <translation>acre</translation>
    </message>
    <message>
        <source>section</source>
        <translation>section</translation>
    </message>
    <message>
        <source>township</source>
        <translation>township</translation>
    </message>
    <message>
        <source>hectare</source>
        <translatorcomment>CLDR: hectare</translatorcomment>
        <translation>hectare</translation>
    </message>
    <message>
        <source>square kilometer</source>
        <translatorcomment>CLDR: square kilometre</translatorcomment>
        <translation>square kilometre</translation>
    </message>
    <message>
        <source>square mile</source>
        <translatorcomment>CLDR: square mile</translatorcomment>
        <translation>square mile</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translatorcomment>CLDR: square centimetre</translatorcomment>
        <translation>square centimetre</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translatorcomment>CLDR: square millimetre</translatorcomment>
        <translation>square millimetre</translation>
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
        <translation>centare</translation>
    </message>
    <message>
        <source>square angstrom</source>
        <translation>square angstrom</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>square bolt</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>square cable</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>square calibre</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>square cubit</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translatorcomment>CLDR: square decimetre</translatorcomment>
        <translation>square decimetre</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translatorcomment>CLDR: square fathom</translatorcomment>
        <translation>square fathom</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translatorcomment>CLDR: square furlong</translatorcomment>
        <translation>square furlong</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translatorcomment>CLDR: square gigametre</translatorcomment>
        <translation>square gigametre</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>square hand</translation>
    </message>
    <message>
        <source>square nautical league</source>
        <translation>square nautical league</translation>
    </message>
    <message>
        <source>square league (statute)</source>
        <translation>square league (statute)</translation>
    </message>
    <message>
        <source>square light-year</source>
        <translatorcomment>CLDR: square light year</translatorcomment>
        <translation>square light year</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>square link</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>square micron</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>square mile (UK nautical)</translation>
    </message>
    <message>
        <source>square mile (statute)</source>
        <translation>square mile (statute)</translation>
    </message>
    <message>
        <source>square millimicron</source>
        <translation>square millimicron</translation>
    </message>
    <message>
        <source>square pace</source>
        <translation>square pace</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>square palm</translation>
    </message>
    <message>
        <source>square parsec</source>
        <translatorcomment>CLDR: square parsec</translatorcomment>
        <translation>square parsec</translation>
    </message>
    <message>
        <source>square perch</source>
        <translation>square perch</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>square rope</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>square skein</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>square span</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>square survey foot</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>square chain</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>square mil</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translatorcomment>CLDR: square astronomical unit</translatorcomment>
        <translation>square astronomical unit</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>survey acre</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>square survey yard</translation>
    </message>
    <message>
        <source>board</source>
        <translation>board</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>cord</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>square microinch</translation>
    </message>
    <message>
        <source>square micrometer</source>
        <translatorcomment>CLDR: square micrometre</translatorcomment>
        <translation>square micrometre</translation>
    </message>
    <message>
        <source>liter</source>
        <translatorcomment>CLDR: litre</translatorcomment>
        <translation>litre</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translatorcomment>CLDR: cubic centimetre</translatorcomment>
        <translation>cubic centimetre</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translatorcomment>CLDR: tablespoon</translatorcomment>
        <translation>tablespoon</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>tablespoon (Canadian)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>US tablespoon</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>imperial fluid ounce</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>US fluid ounce</translation>
    </message>
    <message>
        <source>cup</source>
        <translation>cup</translation>
    </message>
    <message>
        <source>cup (Canadian)</source>
        <translation>cup (Canadian)</translation>
    </message>
    <message>
        <source>cup (U.S.)</source>
        <translation>US cup</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>imperial quart</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>US quart (fluid)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>US quart (dry)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>imperial gallon</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>US gallon (fluid; wine)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>US gallon (dry)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>beer gallon</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>imperial bushel</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>US bushel (dry level)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>US bushel (dry heaped)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: centilitre</translatorcomment>
        <translation>centilitre</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: cubic foot</translatorcomment>
        <translation>cubic foot</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: cubic inch</translatorcomment>
        <translation>cubic inch</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: cubic metre</translatorcomment>
        <translation>cubic metre</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: cubic yard</translatorcomment>
        <translation>cubic yard</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>fluid dram</translation>
    </message>
    <message>
        <source>microliter</source>
        <translatorcomment>CLDR: microlitre</translatorcomment>
        <translation>microlitre</translation>
    </message>
    <message>
        <source>milliliter</source>
        <translatorcomment>CLDR: millilitre</translatorcomment>
        <translation>millilitre</translation>
    </message>
    <message>
        <source>pint (imperial)</source>
        <translation>imperial pint</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>US pint (fluid)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>US pint (dry)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: teaspoon</translatorcomment>
        <translation>teaspoon</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>teaspoon (Canadian)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>US teaspoon</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>imperial teaspoon</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translatorcomment>CLDR: cubic millimetre</translatorcomment>
        <translation>cubic millimetre</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>imperial barrel</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>barrel (petroleum)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>US barrel (dry)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>US barrel (fluid)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>board-foot</translation>
    </message>
    <message>
        <source>decistere</source>
        <translation>decistere</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translatorcomment>CLDR: decalitre</translatorcomment>
        <translation>decalitre</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>decastere</translation>
    </message>
    <message>
        <source>dram</source>
        <translatorcomment>CLDR: dram</translatorcomment>
        <translation>dram</translation>
    </message>
    <message>
        <source>firkin</source>
        <translation>firkin</translation>
    </message>
    <message>
        <source>cubic angstrom</source>
        <translation>cubic angstrom</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translatorcomment>CLDR: cubic astronomical unit</translatorcomment>
        <translation>cubic astronomical unit</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>cubic bolt</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>cubic cable</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>cubic calibre</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>cubic chain</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>cubic cubit</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translatorcomment>CLDR: cubic fathom</translatorcomment>
        <translation>cubic fathom</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translatorcomment>CLDR: cubic furlong</translatorcomment>
        <translation>cubic furlong</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translatorcomment>CLDR: cubic gigametre</translatorcomment>
        <translation>cubic gigametre</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>cubic hand</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translatorcomment>CLDR: cubic hectometre</translatorcomment>
        <translation>cubic hectometre</translation>
    </message>
    <message>
        <source>cubic nautical league</source>
        <translation>cubic nautical league</translation>
    </message>
    <message>
        <source>cubic league (statute)</source>
        <translation>cubic league (statute)</translation>
    </message>
    <message>
        <source>cubic light-year</source>
        <translatorcomment>CLDR: cubic light year</translatorcomment>
        <translation>cubic light year</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>cubic link</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>cubic mil</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>cubic mile (UK nautical)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: cubic mile</translatorcomment>
        <translation>cubic mile</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translatorcomment>CLDR: cubic nautical mile</translatorcomment>
        <translation>cubic nautical mile</translation>
    </message>
    <message>
        <source>cubic mile (statute)</source>
        <translation>cubic mile (statute)</translation>
    </message>
    <message>
        <source>cubic millimicron</source>
        <translation>cubic millimicron</translation>
    </message>
    <message>
        <source>cubic pace</source>
        <translation>cubic pace</translation>
    </message>
    <message>
        <source>cubic palm</source>
        <translation>cubic palm</translation>
    </message>
    <message>
        <source>cubic parsec</source>
        <translatorcomment>CLDR: cubic parsec</translatorcomment>
        <translation>cubic parsec</translation>
    </message>
    <message>
        <source>cubic perch</source>
        <translation>cubic perch</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>cubic rope</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>cubic skein</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>cubic span</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>cubic survey foot</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translatorcomment>CLDR: cubic decimetre</translatorcomment>
        <translation>cubic decimetre</translation>
    </message>
    <message>
        <source>tun</source>
        <translation>tun</translation>
    </message>
    <message>
        <source>peck</source>
        <translation>peck</translation>
    </message>
    <message>
        <source>peck (U.S. dry)</source>
        <translation>US peck (dry)</translation>
    </message>
    <message>
        <source>peck (imperial)</source>
        <translation>imperial peck</translation>
    </message>
    <message>
        <source>minim (imperial)</source>
        <translation>imperial minim</translation>
    </message>
    <message>
        <source>minim (U.S.)</source>
        <translation>US minim</translation>
    </message>
    <message>
        <source>kiloliter</source>
        <translatorcomment>CLDR: kilolitre</translatorcomment>
        <translation>kilolitre</translation>
    </message>
    <message>
        <source>hogshead (U.S.)</source>
        <translation>US hogshead</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>imperial hogshead</translation>
    </message>
    <message>
        <source>gill (imperial)</source>
        <translation>imperial gill</translation>
    </message>
    <message>
        <source>gill (U.S.)</source>
        <translation>US gill</translation>
    </message>
    <message>
        <source>cubic survey yard</source>
        <translation>cubic survey yard</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>cord-foot</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>cord (firewood)</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>register ton</translation>
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
        <translation>cubic microinch</translation>
    </message>
    <message>
        <source>cubic micrometer</source>
        <translatorcomment>CLDR: cubic micrometre</translatorcomment>
        <translation>cubic micrometre</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translatorcomment>CLDR: cubic kilometre</translatorcomment>
        <translation>cubic kilometre</translation>
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
        <translation>pound (metre)</translation>
    </message>
    <message>
        <source>pound</source>
        <translatorcomment>CLDR: pound</translatorcomment>
        <translation>pound</translation>
    </message>
    <message>
        <source>pound (troy)</source>
        <translation>pound (troy)</translation>
    </message>
    <message>
        <source>ounce (avoirdupois)</source>
        <translation>ounce (avoirdupois)</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>ounce (apothecary; troy)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: stone</translatorcomment>
        <translation>stone</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>short ton</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>long ton</translation>
    </message>
    <message>
        <source>carat</source>
        <translatorcomment>CLDR: carat</translatorcomment>
        <translation>carat</translation>
    </message>
    <message>
        <source>carat (metric)</source>
        <translation>carat (metric)</translation>
    </message>
    <message>
        <source>dram (avoirdupois)</source>
        <translation>dram (avoirdupois)</translation>
    </message>
    <message>
        <source>dram (apothecary; troy)</source>
        <translation>dram (apothecary; troy)</translation>
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
        <translation>long hundredweight</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>short hundredweight</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: grain</translatorcomment>
        <translation>grain</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>pearl grain</translation>
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
        <translatorcomment>CLDR: kilogram per metre</translatorcomment>
        <translation>kilogram per metre</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: pound per foot</translatorcomment>
        <translation>pound per foot</translation>
    </message>
    <message>
        <source>mole</source>
        <translatorcomment>CLDR: mole</translatorcomment>
        <translation>mole</translation>
    </message>
    <message>
        <source>yottamole</source>
        <translatorcomment>CLDR: yottamole</translatorcomment>
        <translation>yottamole</translation>
    </message>
    <message>
        <source>zettamole</source>
        <translatorcomment>CLDR: zettamole</translatorcomment>
        <translation>zettamole</translation>
    </message>
    <message>
        <source>examole</source>
        <translatorcomment>CLDR: examole</translatorcomment>
        <translation>examole</translation>
    </message>
    <message>
        <source>petamole</source>
        <translatorcomment>CLDR: petamole</translatorcomment>
        <translation>petamole</translation>
    </message>
    <message>
        <source>teramole</source>
        <translatorcomment>CLDR: teramole</translatorcomment>
        <translation>teramole</translation>
    </message>
    <message>
        <source>gigamole</source>
        <translatorcomment>CLDR: gigamole</translatorcomment>
        <translation>gigamole</translation>
    </message>
    <message>
        <source>megamole</source>
        <translatorcomment>CLDR: megamole</translatorcomment>
        <translation>megamole</translation>
    </message>
    <message>
        <source>kilomole</source>
        <translatorcomment>CLDR: kilomole</translatorcomment>
        <translation>kilomole</translation>
    </message>
    <message>
        <source>hectomole</source>
        <translatorcomment>CLDR: hectomole</translatorcomment>
        <translation>hectomole</translation>
    </message>
    <message>
        <source>decamole</source>
        <translatorcomment>CLDR: decamole</translatorcomment>
        <translation>decamole</translation>
    </message>
    <message>
        <source>decimole</source>
        <translatorcomment>CLDR: decimole</translatorcomment>
        <translation>decimole</translation>
    </message>
    <message>
        <source>centimole</source>
        <translatorcomment>CLDR: centimole</translatorcomment>
        <translation>centimole</translation>
    </message>
    <message>
        <source>millimole</source>
        <translatorcomment>CLDR: millimole</translatorcomment>
        <translation>millimole</translation>
    </message>
    <message>
        <source>micromole</source>
        <translatorcomment>CLDR: micromole</translatorcomment>
        <translation>micromole</translation>
    </message>
    <message>
        <source>nanomole</source>
        <translatorcomment>CLDR: nanomole</translatorcomment>
        <translation>nanomole</translation>
    </message>
    <message>
        <source>picomole</source>
        <translatorcomment>CLDR: picomole</translatorcomment>
        <translation>picomole</translation>
    </message>
    <message>
        <source>femtomole</source>
        <translatorcomment>CLDR: femtomole</translatorcomment>
        <translation>femtomole</translation>
    </message>
    <message>
        <source>attomole</source>
        <translatorcomment>CLDR: attomole</translatorcomment>
        <translation>attomole</translation>
    </message>
    <message>
        <source>zeptomole</source>
        <translatorcomment>CLDR: zeptomole</translatorcomment>
        <translation>zeptomole</translation>
    </message>
    <message>
        <source>yoctomole</source>
        <translatorcomment>CLDR: yoctomole</translatorcomment>
        <translation>yoctomole</translation>
    </message>
    <message>
        <source>radian</source>
        <translatorcomment>CLDR: radian</translatorcomment>
        <translation>radian</translation>
    </message>
    <message>
        <source>degree</source>
        <translatorcomment>CLDR: degree</translatorcomment>
        <translation>degree</translation>
    </message>
    <message>
        <source>milliradian</source>
        <translatorcomment>CLDR: milliradian</translatorcomment>
        <translation>milliradian</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>grad</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>angular mil (NATO)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>angular mil (Sweden)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>angular mil (USSR)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translatorcomment>CLDR: arcminute</translatorcomment>
        <translation>arcminute</translation>
    </message>
    <message>
        <source>angle second</source>
        <translatorcomment>CLDR: arcsecond</translatorcomment>
        <translation>arcsecond</translation>
    </message>
    <message>
        <source>milliarc second</source>
        <translation>milliarc second</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>steradian</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: gram per square metre</translatorcomment>
        <translation>gram per square metre</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: gram per square inch</translatorcomment>
        <translation>gram per square inch</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translatorcomment>CLDR: nanogram per litre</translatorcomment>
        <translation>nanogram per litre</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translatorcomment>CLDR: nanogram per decilitre</translatorcomment>
        <translation>nanogram per decilitre</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translatorcomment>CLDR: nanogram per millilitre</translatorcomment>
        <translation>nanogram per millilitre</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translatorcomment>CLDR: nanogram per microlitre</translatorcomment>
        <translation>nanogram per microlitre</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: part per million</translatorcomment>
        <translation>part per million</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>part per billion</translation>
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
        <translatorcomment>CLDR: hectoampere</translatorcomment>
        <translation>hectoampere</translation>
    </message>
    <message>
        <source>decaampere</source>
        <translatorcomment>CLDR: decaampere</translatorcomment>
        <translation>decaampere</translation>
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
        <translatorcomment>CLDR: microampere</translatorcomment>
        <translation>microampere</translation>
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
        <translatorcomment>CLDR: yoctoampere</translatorcomment>
        <translation>yoctoampere</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>coulomb</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translatorcomment>CLDR: ampere-hour</translatorcomment>
        <translation>ampere-hour</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translatorcomment>CLDR: milliampere-hour</translatorcomment>
        <translation>milliampere-hour</translation>
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
        <translatorcomment>CLDR: bit per second</translatorcomment>
        <translation>bit per second</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: byte per second</translatorcomment>
        <translation>byte per second</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>kilobaud</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: kilobit per second</translatorcomment>
        <translation>kilobit per second</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: kilobyte per second</translatorcomment>
        <translation>kilobyte per second</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>megabaud</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: megabit per second</translatorcomment>
        <translation>megabit per second</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: megabyte per second</translatorcomment>
        <translation>megabyte per second</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: kilogram per cubic metre</translatorcomment>
        <translation>kilogram per cubic metre</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translatorcomment>CLDR: kilogram per litre</translatorcomment>
        <translation>kilogram per litre</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translatorcomment>CLDR: gram per litre</translatorcomment>
        <translation>gram per litre</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translatorcomment>CLDR: microgram per millilitre</translatorcomment>
        <translation>microgram per millilitre</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: milligram per millilitre</translatorcomment>
        <translation>milligram per millilitre</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: pound per US gallon</translatorcomment>
        <translation>pound per US gallon</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: ounce per US gallon</translatorcomment>
        <translation>ounce per US gallon</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: pound per cubic foot</translatorcomment>
        <translation>pound per cubic foot</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: pound per cubic inch</translatorcomment>
        <translation>pound per cubic inch</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: gram per cubic centimetre</translatorcomment>
        <translation>gram per cubic centimetre</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>newton square second per quartic millimetre</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: newton per cubic metre</translatorcomment>
        <translation>newton per cubic metre</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: kilonewton per cubic metre</translatorcomment>
        <translation>kilonewton per cubic metre</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>pound force per cubic foot</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>kip per cubic inch</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>kip per cubic foot</translation>
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
        <translation>British thermal unit (thermochemical)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>British thermal unit (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>British thermal unit (63 degree F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>British thermal unit (60 degree F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>British thermal unit (59 degree F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>British thermal unit (International Table)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>British thermal unit (mean)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>British thermal unit (39 degree F)</translation>
    </message>
    <message>
        <source>kiloelectronvolt</source>
        <translatorcomment>CLDR: kiloelectronvolt</translatorcomment>
        <translation>kiloelectronvolt</translation>
    </message>
    <message>
        <source>megaelectronvolt</source>
        <translatorcomment>CLDR: megaelectronvolt</translatorcomment>
        <translation>megaelectronvolt</translation>
    </message>
    <message>
        <source>electronvolt</source>
        <translatorcomment>CLDR: electronvolt</translatorcomment>
        <translation>electronvolt</translation>
    </message>
    <message>
        <source>erg</source>
        <translation>erg</translation>
    </message>
    <message>
        <source>kilowatt hour</source>
        <translatorcomment>CLDR: kilowatt-hour</translatorcomment>
        <translation>kilowatt-hour</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translatorcomment>CLDR: kilowatt-minute</translatorcomment>
        <translation>kilowatt-minute</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translatorcomment>CLDR: kilowatt-second</translatorcomment>
        <translation>kilowatt-second</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>US therm</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: newton metre</translatorcomment>
        <translation>newton metre</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translatorcomment>CLDR: decanewton metre</translatorcomment>
        <translation>decanewton metre</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translatorcomment>CLDR: kilonewton metre</translatorcomment>
        <translation>kilonewton metre</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translatorcomment>CLDR: meganewton metre</translatorcomment>
        <translation>meganewton metre</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>kilogram force metre</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>kilogram force foot</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>ton force foot</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>ton force metre</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>foot kilopound</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>foot pound force</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>calorie (20 degree C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>calorie (thermochemical)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>calorie (15 degree C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>calorie (mean)</translation>
    </message>
    <message>
        <source>calorie (3.98 degree C)</source>
        <translation>calorie (3.98 degree C)</translation>
    </message>
    <message>
        <source>Therm (EC)</source>
        <translation>Therm (EC)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: cubic metre per second</translatorcomment>
        <translation>cubic metre per second</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: litre per second</translatorcomment>
        <translation>litre per second</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: litre per minute</translatorcomment>
        <translation>litre per minute</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: litre per hour</translatorcomment>
        <translation>litre per hour</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translation>US fluid gallon per second</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: US gallon per minute</translatorcomment>
        <translation>US gallon per minute</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translation>US fluid gallon per hour</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translation>US fluid gallon per day</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: millilitre per minute</translatorcomment>
        <translation>millilitre per minute</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: cubic centimetre per minute</translatorcomment>
        <translation>cubic centimetre per minute</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: cubic foot per hour</translatorcomment>
        <translation>cubic foot per hour</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: cubic foot per minute</translatorcomment>
        <translation>cubic foot per minute</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: cubic foot per second</translatorcomment>
        <translation>cubic foot per second</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: cubic inch per minute</translatorcomment>
        <translation>cubic inch per minute</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: cubic metre per hour</translatorcomment>
        <translation>cubic metre per hour</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: cubic metre per minute</translatorcomment>
        <translation>cubic metre per minute</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: cubic centimetre per second</translatorcomment>
        <translation>cubic centimetre per second</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: cubic centimetre per hour</translatorcomment>
        <translation>cubic centimetre per hour</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>US gallon per hour</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>US gallon per second</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>Imp gallon per day</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>Imp gallon per hour</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>Imp gallon per minute</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>Imp gallon per second</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>Imp million gallon per day</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: litre per day</translatorcomment>
        <translation>litre per day</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>million litre per day</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>US gallon per day</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>US million gallon per day</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: cubic foot per day</translatorcomment>
        <translation>cubic foot per day</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: cubic metre per day</translatorcomment>
        <translation>cubic metre per day</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: cubic yard per minute</translatorcomment>
        <translation>cubic yard per minute</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: acre-foot per day</translatorcomment>
        <translation>acre-foot per day</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: acre-foot per hour</translatorcomment>
        <translation>acre-foot per hour</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: acre-foot per minute</translatorcomment>
        <translation>acre-foot per minute</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>acre inch per hour</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>acre inch per minute</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>cubic survey foot per second</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: kilogram per second</translatorcomment>
        <translation>kilogram per second</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: kilogram per minute</translatorcomment>
        <translation>kilogram per minute</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: kilogram per hour</translatorcomment>
        <translation>kilogram per hour</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: gram per second</translatorcomment>
        <translation>gram per second</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: gram per minute</translatorcomment>
        <translation>gram per minute</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: gram per hour</translatorcomment>
        <translation>gram per hour</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: pound per second</translatorcomment>
        <translation>pound per second</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: pound per minute</translatorcomment>
        <translation>pound per minute</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: pound per hour</translatorcomment>
        <translation>pound per hour</translation>
    </message>
    <message>
        <source>pint per stroke</source>
        <translation>pint per stroke</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>quart per stroke</translation>
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
        <translation>kilopound</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>kilogram-force</translation>
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
        <translation>ton force</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>dyne</translation>
    </message>
    <message>
        <source>lbforce</source>
        <translation>lbforce</translation>
    </message>
    <message>
        <source>ounce force</source>
        <translation>ounce force</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: newton per metre</translatorcomment>
        <translation>newton per metre</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>kilopound per foot</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>kilogram force per metre</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>ton force per metre</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>pound-force per foot</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: decanewton per metre</translatorcomment>
        <translation>decanewton per metre</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translatorcomment>CLDR: kilonewton per metre</translatorcomment>
        <translation>kilonewton per metre</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translatorcomment>CLDR: meganewton per metre</translatorcomment>
        <translation>meganewton per metre</translation>
    </message>
    <message>
        <source>kip per foot</source>
        <translation>kip per foot</translation>
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
        <translation>cycle per second</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: revolution per minute</translatorcomment>
        <translation>revolution per minute</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>flash per second</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>flash per minute</translation>
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
        <translation>horsepower (metric)</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>horsepower (European electrical)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>horsepower (Imperial mechanical)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>horsepower (Imperial electrical)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: kilocalorie per hour</translatorcomment>
        <translation>kilocalorie per hour</translation>
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
        <translation>kilogram force metre per second</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>foot pound-force per second</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: calorie per second</translatorcomment>
        <translation>calorie per second</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: kilocalorie per second</translatorcomment>
        <translation>kilocalorie per second</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>British thermal unit (International Table) per second</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>British thermal unit (International Table) per hour</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>million British thermal unit (International Table) per hour</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>thousand British thermal unit (International Table) per hour</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>ton of refrigeration</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: watt per cubic metre</translatorcomment>
        <translation>watt per cubic metre</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: watt per cubic foot</translatorcomment>
        <translation>watt per cubic foot</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>British thermal unit per hour cubic foot</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: watt per kilogram</translatorcomment>
        <translation>watt per kilogram</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: watt per square metre</translatorcomment>
        <translation>watt per square metre</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: kilowatt per square metre</translatorcomment>
        <translation>kilowatt per square metre</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: kilowatt per square foot</translatorcomment>
        <translation>kilowatt per square foot</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: watt per square foot</translatorcomment>
        <translation>watt per square foot</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>British thermal unit per hour square foot</translation>
    </message>
    <message>
        <source>bar</source>
        <translatorcomment>CLDR: bar</translatorcomment>
        <translation>bar</translation>
    </message>
    <message>
        <source>bar absolute</source>
        <translation>bar absolute</translation>
    </message>
    <message>
        <source>bar gauge</source>
        <translation>bar gauge</translation>
    </message>
    <message>
        <source>inch of mercury</source>
        <translatorcomment>CLDR: inch of mercury</translatorcomment>
        <translation>inch of mercury</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>inch of water</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translatorcomment>CLDR: kilobar</translatorcomment>
        <translation>kilobar</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: kilogram per square centimetre</translatorcomment>
        <translation>kilogram per square centimetre</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: kilopascal</translatorcomment>
        <translation>kilopascal</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: kilopound per square inch</translatorcomment>
        <translation>kilopound per square inch</translation>
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
        <translatorcomment>CLDR: millimetre of mercury</translatorcomment>
        <translation>millimetre of mercury</translation>
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
        <translation>pound per square inch (atmosphere)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>pound per square inch (gauge)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: pound per square foot</translatorcomment>
        <translation>pound per square foot</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: pound per square inch</translatorcomment>
        <translation>pound per square inch</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>atmosphere (standard)</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>atmosphere (metric)</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>torr</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translatorcomment>CLDR: newton per square millimetre</translatorcomment>
        <translation>newton per square millimetre</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: newton per square metre</translatorcomment>
        <translation>newton per square metre</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translatorcomment>CLDR: decanewton per square millimetre</translatorcomment>
        <translation>decanewton per square millimetre</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: decanewton per square metre</translatorcomment>
        <translation>decanewton per square metre</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: kilonewton per square metre</translatorcomment>
        <translation>kilonewton per square metre</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: meganewton per square metre</translatorcomment>
        <translation>meganewton per square metre</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translatorcomment>CLDR: kilopound per square foot</translatorcomment>
        <translation>kilopound per square foot</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>kilogram force per square millimetre</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>kilogram force per square centimetre</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>kilogram force per square metre</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>ton force per square centimetre</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>ton force per square metre</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>ton force per square foot</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translatorcomment>CLDR: pound-force per square inch</translatorcomment>
        <translation>pound-force per square inch</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>foot of water</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>kip per square inch</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>kip per square foot</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>pound force per square foot</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: gigapascal</translatorcomment>
        <translation>gigapascal</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>dyne per square centimetre</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translatorcomment>CLDR: newton per square micrometre</translatorcomment>
        <translation>newton per square micrometre</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: metre per newton</translatorcomment>
        <translation>metre per newton</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translatorcomment>CLDR: metre per kilonewton</translatorcomment>
        <translation>metre per kilonewton</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>foot per kip</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: square metre per newton</translatorcomment>
        <translation>square metre per newton</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: square metre per kilonewton</translatorcomment>
        <translation>square metre per kilonewton</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>square foot per kip</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: cubic metre per newton</translatorcomment>
        <translation>cubic metre per newton</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: cubic metre per kilonewton</translatorcomment>
        <translation>cubic metre per kilonewton</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>cubic foot per kip</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: newton metre per metre</translatorcomment>
        <translation>newton metre per metre</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: decanewton metre per metre</translatorcomment>
        <translation>decanewton metre per metre</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: kilonewton metre per metre</translatorcomment>
        <translation>kilonewton metre per metre</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: meganewton metre per metre</translatorcomment>
        <translation>meganewton metre per metre</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>kip-foot per foot</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>kilogram force-metre per metre</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>ton force-metre per metre</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translatorcomment>CLDR: pound-force-foot per foot</translatorcomment>
        <translation>pound-force-foot per foot</translation>
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
        <translatorcomment>CLDR: metre per second</translatorcomment>
        <translation>metre per second</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: millimetre per second</translatorcomment>
        <translation>millimetre per second</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: centimetre per second</translatorcomment>
        <translation>centimetre per second</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: metre per minute</translatorcomment>
        <translation>metre per minute</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: inch per second</translatorcomment>
        <translation>inch per second</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: foot per second</translatorcomment>
        <translation>foot per second</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: inch per minute</translatorcomment>
        <translation>inch per minute</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: foot per minute</translatorcomment>
        <translation>foot per minute</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: kilometre per hour</translatorcomment>
        <translation>kilometre per hour</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: mile per hour</translatorcomment>
        <translation>mile per hour</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: centimetre per minute</translatorcomment>
        <translation>centimetre per minute</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: foot per hour</translatorcomment>
        <translation>foot per hour</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: inch per hour</translatorcomment>
        <translation>inch per hour</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: kilometre per minute</translatorcomment>
        <translation>kilometre per minute</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: kilometre per second</translatorcomment>
        <translation>kilometre per second</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: knot</translatorcomment>
        <translation>knot</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>knot (UK)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: metre per hour</translatorcomment>
        <translation>metre per hour</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: mile per minute</translatorcomment>
        <translation>mile per minute</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: mile per second</translatorcomment>
        <translation>mile per second</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>survey mile per hour</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>survey foot per second</translation>
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
        <translatorcomment>CLDR: degree Celsius</translatorcomment>
        <translation>degree Celsius</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: degree Fahrenheit</translatorcomment>
        <translation>degree Fahrenheit</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>degree Rankine</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: degree Celsius per minute</translatorcomment>
        <translation>degree Celsius per minute</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: degree Fahrenheit per minute</translatorcomment>
        <translation>degree Fahrenheit per minute</translation>
    </message>
    <message>
        <source>second</source>
        <translatorcomment>CLDR: second</translatorcomment>
        <translation>second</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translatorcomment>CLDR: yottasecond</translatorcomment>
        <translation>yottasecond</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translatorcomment>CLDR: zettasecond</translatorcomment>
        <translation>zettasecond</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translatorcomment>CLDR: exasecond</translatorcomment>
        <translation>exasecond</translation>
    </message>
    <message>
        <source>petasecond</source>
        <translatorcomment>CLDR: petasecond</translatorcomment>
        <translation>petasecond</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translatorcomment>CLDR: terasecond</translatorcomment>
        <translation>terasecond</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translatorcomment>CLDR: gigasecond</translatorcomment>
        <translation>gigasecond</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translatorcomment>CLDR: megasecond</translatorcomment>
        <translation>megasecond</translation>
    </message>
    <message>
        <source>kilosecond</source>
        <translatorcomment>CLDR: kilosecond</translatorcomment>
        <translation>kilosecond</translation>
    </message>
    <message>
        <source>hectosecond</source>
        <translatorcomment>CLDR: hectosecond</translatorcomment>
        <translation>hectosecond</translation>
    </message>
    <message>
        <source>decasecond</source>
        <translatorcomment>CLDR: decasecond</translatorcomment>
        <translation>decasecond</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translatorcomment>CLDR: decisecond</translatorcomment>
        <translation>decisecond</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translatorcomment>CLDR: centisecond</translatorcomment>
        <translation>centisecond</translation>
    </message>
    <message>
        <source>millisecond</source>
        <translatorcomment>CLDR: millisecond</translatorcomment>
        <translation>millisecond</translation>
    </message>
    <message>
        <source>microsecond</source>
        <translatorcomment>CLDR: microsecond</translatorcomment>
        <translation>microsecond</translation>
    </message>
    <message>
        <source>nanosecond</source>
        <translatorcomment>CLDR: nanosecond</translatorcomment>
        <translation>nanosecond</translation>
    </message>
    <message>
        <source>picosecond</source>
        <translatorcomment>CLDR: picosecond</translatorcomment>
        <translation>picosecond</translation>
    </message>
    <message>
        <source>femtosecond</source>
        <translatorcomment>CLDR: femtosecond</translatorcomment>
        <translation>femtosecond</translation>
    </message>
    <message>
        <source>attosecond</source>
        <translatorcomment>CLDR: attosecond</translatorcomment>
        <translation>attosecond</translation>
    </message>
    <message>
        <source>zeptosecond</source>
        <translatorcomment>CLDR: zeptosecond</translatorcomment>
        <translation>zeptosecond</translation>
    </message>
    <message>
        <source>yoctosecond</source>
        <translatorcomment>CLDR: yoctosecond</translatorcomment>
        <translation>yoctosecond</translation>
    </message>
    <message>
        <source>minute</source>
        <translatorcomment>CLDR: minute</translatorcomment>
        <translation>minute</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: hour</translatorcomment>
        <translation>hour</translation>
    </message>
    <message>
        <source>day</source>
        <translatorcomment>CLDR: day</translatorcomment>
        <translation>day</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: week</translatorcomment>
        <translation>week</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>fortnight</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: month</translatorcomment>
        <translation>month</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>month (hollow)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>month (full)</translation>
    </message>
    <message>
        <source>year</source>
        <translatorcomment>CLDR: year</translatorcomment>
        <translation>year</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>year (Gregorian)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>year (Julian)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>sidereal year</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>tropical year</translation>
    </message>
    <message>
        <source>annum</source>
        <translation>annum</translation>
    </message>
    <message>
        <source>decade</source>
        <translatorcomment>CLDR: decade</translatorcomment>
        <translation>decade</translation>
    </message>
    <message>
        <source>century</source>
        <translatorcomment>CLDR: century</translatorcomment>
        <translation>century</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>century (Julian)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>millennium</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>millennium (Gregorian)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>millennium (Julian)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>newton metre (torque)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>newton centimetre (torque)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>newton decametre (torque)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>foot pound (torque)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>inch pound (torque)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>metre kilogram (torque)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>centimetre kilogram (torque)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>inch ounce (torque)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>gram centimetre (torque)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>decanewton metre (torque)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>kilonewton metre (torque)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>meganewton metre (torque)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>kip foot (torque)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>kilogram force metre (torque)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>ton force metre (torque)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>pound force foot (torque)</translation>
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
        <translatorcomment>CLDR: pascal-second</translatorcomment>
        <translation>pascal-second</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>pound mass per foot second</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>pound mass per foot hour</translation>
    </message>
    <message>
        <source>stoke</source>
        <translation>stoke</translation>
    </message>
    <message>
        <source>centistoke</source>
        <translation>centistoke</translation>
    </message>
    <message>
        <source>meter per second squared</source>
        <translatorcomment>CLDR: metre per second squared</translatorcomment>
        <translation>metre per second squared</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>foot per second squared</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>survey foot per second squared</translation>
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
        <translation>volt (electrical potential)</translation>
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
        <translatorcomment>CLDR: candelas</translatorcomment>
        <translation>candelas</translation>
    </message>
    <message>
        <source>lumen per steradian</source>
        <translation>lumen per steradian</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>candlepower</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>lux (illuminance)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>footcandle</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translatorcomment>CLDR: lumens-second</translatorcomment>
        <translation>lumens-second</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>talbots</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>luminous power</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: lumens</translatorcomment>
        <translation>lumens</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: candelas per square metre</translatorcomment>
        <translation>candelas per square metre</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>foot lambert</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: candelas per square foot</translatorcomment>
        <translation>candelas per square foot</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>lux (emittance)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: lumens per watt</translatorcomment>
        <translation>lumens per watt</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: pascal per metre</translatorcomment>
        <translation>pascal per metre</translation>
    </message>
    <message>
        <source>inch of water per 100foot</source>
        <translation>inch of water per 100foot</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>foot of water per 100foot</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>inch of mercury per 100foot</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>millimetre of mercury per 100foot</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: newton metre per degree</translatorcomment>
        <translation>newton metre per degree</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>kip foot per degree</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: kilonewton metre per degree</translatorcomment>
        <translation>kilonewton metre per degree</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>newton metre per degree per metre</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>kip foot per degree per foot</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>kilonewton metre per degree per metre</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>watt per square metre kelvin</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>british thermal unit per hour square foot Fahrenheit</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>cubic metre per second square metre</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>cubic foot per minute square foot</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>litre per second square metre</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>cubic metre per second cubic metre</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>cubic foot per minute cubic foot</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>litre per second cubic metre</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>cubic metre per second watt</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>cubic foot per minute ton of refrigeration</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>litre per second kilowatt</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: square metre per watt</translatorcomment>
        <translation>square metre per watt</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>square foot per ton of refrigeration</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: square metre per kilowatt</translatorcomment>
        <translation>square metre per kilowatt</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>square foot per thousand british thermal unit per hour</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>square second per metre kilogram</translation>
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
        <translation>inverse Fahrenheit</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>inverse Celsius</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>micrometre per metre Celsius</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>microinch per inch Fahrenheit</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>oersted</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: ampere per metre</translatorcomment>
        <translation>ampere per metre</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>watt per metre kelvin</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>watt per metre Celsius</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>newton per second Celsius</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>dyne per second Celsius</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>BTU inch per square foot hour Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>BTU per inch second Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>BTU per foot second Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>BTU per foot hour Fahrenheit</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>joule per gram Celsius</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>joule per kilogram Celsius</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>square millimetre per square second Celsius</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>erg per gram Celsius</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>square micrometre per square second Celsius</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>BTU per pound Fahrenheit</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>nanogram per pascal second square metre</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>grain per square foot hour inches mercury</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translatorcomment>CLDR: ohm-metre</translatorcomment>
        <translation>ohm-metre</translation>
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
