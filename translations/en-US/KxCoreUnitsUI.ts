<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
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
        <translation>meter</translation>
    </message>
    <message>
        <source>yottameter</source>
        <translation>yottameter</translation>
    </message>
    <message>
        <source>zettameter</source>
        <translation>zettameter</translation>
    </message>
    <message>
        <source>exameter</source>
        <translation>exameter</translation>
    </message>
    <message>
        <source>petameter</source>
        <translation>petameter</translation>
    </message>
    <message>
        <source>terameter</source>
        <translation>terameter</translation>
    </message>
    <message>
        <source>gigameter</source>
        <translation>gigameter</translation>
    </message>
    <message>
        <source>megameter</source>
        <translation>megameter</translation>
    </message>
    <message>
        <source>kilometer</source>
        <translation>kilometer</translation>
    </message>
    <message>
        <source>hectometer</source>
        <translation>hectometer</translation>
    </message>
    <message>
        <source>decameter</source>
        <translation>decameter</translation>
    </message>
    <message>
        <source>decimeter</source>
        <translation>decimeter</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translation>centimeter</translation>
    </message>
    <message>
        <source>millimeter</source>
        <translation>millimeter</translation>
    </message>
    <message>
        <source>micrometer</source>
        <translation>micrometer</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translation>nanometer</translation>
    </message>
    <message>
        <source>picometer</source>
        <translation>picometer</translation>
    </message>
    <message>
        <source>femtometer</source>
        <translation>femtometer</translation>
    </message>
    <message>
        <source>attometer</source>
        <translation>attometer</translation>
    </message>
    <message>
        <source>zeptometer</source>
        <translation>zeptometer</translation>
    </message>
    <message>
        <source>yoctometer</source>
        <translation>yoctometer</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>inch</translation>
    </message>
    <message>
        <source>foot</source>
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
        <translation>foot (U.S. Survey)</translation>
    </message>
    <message>
        <source>yard</source>
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
        <translation>furlong</translation>
    </message>
    <message>
        <source>mile</source>
        <translation>mile</translation>
    </message>
    <message>
        <source>geographical mile</source>
        <translation>geographical mile</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>mile (U.S. Survey)</translation>
    </message>
    <message>
        <source>nautical mile</source>
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
        <translation>microinch</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>angstrom</translation>
    </message>
    <message>
        <source>astronomical unit</source>
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
        <translation>fathom</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>hand</translation>
    </message>
    <message>
        <source>light-year</source>
        <translation>light-year</translation>
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
        <translation>caliber</translation>
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
        <translation>square meter</translation>
    </message>
    <message>
        <source>square inch</source>
        <translation>square inch</translation>
    </message>
    <message>
        <source>square foot</source>
        <translation>square foot</translation>
    </message>
    <message>
        <source>square yard</source>
        <translation>square yard</translation>
    </message>
    <message>
        <source>acre</source>
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
        <translation>hectare</translation>
    </message>
    <message>
        <source>square kilometer</source>
        <translation>square kilometer</translation>
    </message>
    <message>
        <source>square mile</source>
        <translation>square mile</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translation>square centimeter</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translation>square millimeter</translation>
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
        <translation>square caliber</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>square cubit</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translation>square decimeter</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translation>square fathom</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translation>square furlong</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translation>square gigameter</translation>
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
        <translation>square light-year</translation>
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
        <translation>square micrometer</translation>
    </message>
    <message>
        <source>liter</source>
        <translation>liter</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translation>cubic centimeter</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translation>tablespoon</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>tablespoon (Canadian)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>tablespoon (U.S.)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>fluid ounce (imperial)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>fluid ounce (U.S.)</translation>
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
        <translation>cup (U.S.)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>quart (imperial)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>quart (U.S. fluid)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>quart (U.S. dry)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>gallon (imperial)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>gallon (U.S. fluid; Wine)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>gallon (U.S. dry)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>beer gallon</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>bushel (imperial)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>bushel (U.S. dry level)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>bushel (U.S. dry heaped)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translation>centiliter</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translation>cubic foot</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translation>cubic inch</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translation>cubic meter</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translation>cubic yard</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>fluid dram</translation>
    </message>
    <message>
        <source>microliter</source>
        <translation>microliter</translation>
    </message>
    <message>
        <source>milliliter</source>
        <translation>milliliter</translation>
    </message>
    <message>
        <source>pint (imperial)</source>
        <translation>pint (imperial)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>pint (U.S. fluid)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>pint (U.S. dry)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translation>teaspoon</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>teaspoon (Canadian)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>teaspoon (U.S.)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>teaspoon (imperial)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translation>cubic millimeter</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>barrel (imperial)</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>barrel (petroleum)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>barrel (U.S. dry)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>barrel (U.S. fluid)</translation>
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
        <translation>dekaliter</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>dekastere</translation>
    </message>
    <message>
        <source>dram</source>
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
        <translation>cubic caliber</translation>
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
        <translation>cubic fathom</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translation>cubic furlong</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translation>cubic gigameter</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>cubic hand</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translation>cubic hectometer</translation>
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
        <translation>cubic light-year</translation>
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
        <translation>cubic mile</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
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
        <translation>cubic decimeter</translation>
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
        <translation>peck (U.S. dry)</translation>
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
        <translation>minim (U.S.)</translation>
    </message>
    <message>
        <source>kiloliter</source>
        <translation>kiloliter</translation>
    </message>
    <message>
        <source>hogshead (U.S.)</source>
        <translation>hogshead (U.S.)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>hogshead (imperial)</translation>
    </message>
    <message>
        <source>gill (imperial)</source>
        <translation>gill (imperial)</translation>
    </message>
    <message>
        <source>gill (U.S.)</source>
        <translation>gill (U.S.)</translation>
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
        <translation>cubic micrometer</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translation>cubic kilometer</translation>
    </message>
    <message>
        <source>kilogram</source>
        <translation>kilogram</translation>
    </message>
    <message>
        <source>gram</source>
        <translation>gram</translation>
    </message>
    <message>
        <source>yottagram</source>
        <translation>yottagram</translation>
    </message>
    <message>
        <source>zettagram</source>
        <translation>zettagram</translation>
    </message>
    <message>
        <source>exagram</source>
        <translation>exagram</translation>
    </message>
    <message>
        <source>petagram</source>
        <translation>petagram</translation>
    </message>
    <message>
        <source>teragram</source>
        <translation>teragram</translation>
    </message>
    <message>
        <source>gigagram</source>
        <translation>gigagram</translation>
    </message>
    <message>
        <source>megagram</source>
        <translation>megagram</translation>
    </message>
    <message>
        <source>hectogram</source>
        <translation>hectogram</translation>
    </message>
    <message>
        <source>decagram</source>
        <translation>decagram</translation>
    </message>
    <message>
        <source>decigram</source>
        <translation>decigram</translation>
    </message>
    <message>
        <source>centigram</source>
        <translation>centigram</translation>
    </message>
    <message>
        <source>milligram</source>
        <translation>milligram</translation>
    </message>
    <message>
        <source>microgram</source>
        <translation>microgram</translation>
    </message>
    <message>
        <source>nanogram</source>
        <translation>nanogram</translation>
    </message>
    <message>
        <source>picogram</source>
        <translation>picogram</translation>
    </message>
    <message>
        <source>femtogram</source>
        <translation>femtogram</translation>
    </message>
    <message>
        <source>attogram</source>
        <translation>attogram</translation>
    </message>
    <message>
        <source>zeptogram</source>
        <translation>zeptogram</translation>
    </message>
    <message>
        <source>yoctogram</source>
        <translation>yoctogram</translation>
    </message>
    <message>
        <source>pound (meter)</source>
        <translation>pound (meter)</translation>
    </message>
    <message>
        <source>pound</source>
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
        <translation>grain</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>pearl grain</translation>
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
        <translation>kilogram per meter</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translation>pound per foot</translation>
    </message>
    <message>
        <source>mole</source>
        <translation>mole</translation>
    </message>
    <message>
        <source>yottamole</source>
        <translation>yottamole</translation>
    </message>
    <message>
        <source>zettamole</source>
        <translation>zettamole</translation>
    </message>
    <message>
        <source>examole</source>
        <translation>examole</translation>
    </message>
    <message>
        <source>petamole</source>
        <translation>petamole</translation>
    </message>
    <message>
        <source>teramole</source>
        <translation>teramole</translation>
    </message>
    <message>
        <source>gigamole</source>
        <translation>gigamole</translation>
    </message>
    <message>
        <source>megamole</source>
        <translation>megamole</translation>
    </message>
    <message>
        <source>kilomole</source>
        <translation>kilomole</translation>
    </message>
    <message>
        <source>hectomole</source>
        <translation>hectomole</translation>
    </message>
    <message>
        <source>decamole</source>
        <translation>decamole</translation>
    </message>
    <message>
        <source>decimole</source>
        <translation>decimole</translation>
    </message>
    <message>
        <source>centimole</source>
        <translation>centimole</translation>
    </message>
    <message>
        <source>millimole</source>
        <translation>millimole</translation>
    </message>
    <message>
        <source>micromole</source>
        <translation>micromole</translation>
    </message>
    <message>
        <source>nanomole</source>
        <translation>nanomole</translation>
    </message>
    <message>
        <source>picomole</source>
        <translation>picomole</translation>
    </message>
    <message>
        <source>femtomole</source>
        <translation>femtomole</translation>
    </message>
    <message>
        <source>attomole</source>
        <translation>attomole</translation>
    </message>
    <message>
        <source>zeptomole</source>
        <translation>zeptomole</translation>
    </message>
    <message>
        <source>yoctomole</source>
        <translation>yoctomole</translation>
    </message>
    <message>
        <source>radian</source>
        <translation>radian</translation>
    </message>
    <message>
        <source>degree</source>
        <translation>degree</translation>
    </message>
    <message>
        <source>milliradian</source>
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
        <translation>angle minute</translation>
    </message>
    <message>
        <source>angle second</source>
        <translation>angle second</translation>
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
        <translation>gram per square meter</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translation>gram per square inch</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translation>nanogram per liter</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translation>nanogram per deciliter</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translation>nanogram per milliliter</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translation>nanogram per microliter</translation>
    </message>
    <message>
        <source>part per million</source>
        <translation>part per million</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>part per billion</translation>
    </message>
    <message>
        <source>ampere</source>
        <translation>ampere</translation>
    </message>
    <message>
        <source>yottaampere</source>
        <translation>yottaampere</translation>
    </message>
    <message>
        <source>zettaampere</source>
        <translation>zettaampere</translation>
    </message>
    <message>
        <source>exaampere</source>
        <translation>exaampere</translation>
    </message>
    <message>
        <source>petaampere</source>
        <translation>petaampere</translation>
    </message>
    <message>
        <source>teraampere</source>
        <translation>teraampere</translation>
    </message>
    <message>
        <source>gigaampere</source>
        <translation>gigaampere</translation>
    </message>
    <message>
        <source>megaampere</source>
        <translation>megaampere</translation>
    </message>
    <message>
        <source>kiloampere</source>
        <translation>kiloampere</translation>
    </message>
    <message>
        <source>hectoampere</source>
        <translation>hectoampere</translation>
    </message>
    <message>
        <source>decaampere</source>
        <translation>decaampere</translation>
    </message>
    <message>
        <source>deciampere</source>
        <translation>deciampere</translation>
    </message>
    <message>
        <source>centiampere</source>
        <translation>centiampere</translation>
    </message>
    <message>
        <source>milliampere</source>
        <translation>milliampere</translation>
    </message>
    <message>
        <source>microampere</source>
        <translation>microampere</translation>
    </message>
    <message>
        <source>nanoampere</source>
        <translation>nanoampere</translation>
    </message>
    <message>
        <source>picoampere</source>
        <translation>picoampere</translation>
    </message>
    <message>
        <source>femtoampere</source>
        <translation>femtoampere</translation>
    </message>
    <message>
        <source>attoampere</source>
        <translation>attoampere</translation>
    </message>
    <message>
        <source>zeptoampere</source>
        <translation>zeptoampere</translation>
    </message>
    <message>
        <source>yoctoampere</source>
        <translation>yoctoampere</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>coulomb</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translation>ampere hour</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translation>milliampere hour</translation>
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
        <translation>bit per second</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translation>byte per second</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>kilobaud</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translation>kilobit per second</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translation>kilobyte per second</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>megabaud</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translation>megabit per second</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translation>megabyte per second</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translation>kilogram per cubic meter</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translation>kilogram per liter</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translation>gram per liter</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translation>microgram per milliliter</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translation>milligram per milliliter</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translation>pound per gallon</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translation>ounce per gallon</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translation>pound per cubic foot</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translation>pound per cubic inch</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translation>gram per cubic centimeter</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>newton square second per quartic millimeter</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translation>newton per cubic meter</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translation>kilonewton per cubic meter</translation>
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
        <translation>joule</translation>
    </message>
    <message>
        <source>calorie</source>
        <translation>calorie</translation>
    </message>
    <message>
        <source>kilocalorie</source>
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
        <translation>kiloelectronvolt</translation>
    </message>
    <message>
        <source>megaelectronvolt</source>
        <translation>megaelectronvolt</translation>
    </message>
    <message>
        <source>electronvolt</source>
        <translation>electronvolt</translation>
    </message>
    <message>
        <source>erg</source>
        <translation>erg</translation>
    </message>
    <message>
        <source>kilowatt hour</source>
        <translation>kilowatt hour</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translation>kilowatt minute</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translation>kilowatt second</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>therm (U.S.)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translation>newton meter</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translation>decanewton meter</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translation>kilonewton meter</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translation>meganewton meter</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>kilogram force meter</translation>
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
        <translation>ton force meter</translation>
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
        <translation>cubic meter per second</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translation>liter per second</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translation>liter per minute</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translation>liter per hour</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translation>gallon per second</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translation>gallon per minute</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translation>gallon per hour</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translation>gallon per day</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translation>milliliter per minute</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translation>cubic centimeter per minute</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translation>cubic foot per hour</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translation>cubic foot per minute</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translation>cubic foot per second</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translation>cubic inch per minute</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translation>cubic meter per hour</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translation>cubic meter per minute</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translation>cubic centimeter per second</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translation>cubic centimeter per hour</translation>
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
        <translation>liter per day</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>million liter per day</translation>
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
        <translation>cubic foot per day</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translation>cubic meter per day</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translation>cubic yard per minute</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translation>acre foot per day</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translation>acre foot per hour</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translation>acre foot per minute</translation>
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
        <translation>kilogram per second</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translation>kilogram per minute</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translation>kilogram per hour</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translation>gram per second</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translation>gram per minute</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translation>gram per hour</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translation>pound per second</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translation>pound per minute</translation>
    </message>
    <message>
        <source>pound per hour</source>
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
        <translation>newton</translation>
    </message>
    <message>
        <source>yottanewton</source>
        <translation>yottanewton</translation>
    </message>
    <message>
        <source>zettanewton</source>
        <translation>zettanewton</translation>
    </message>
    <message>
        <source>exanewton</source>
        <translation>exanewton</translation>
    </message>
    <message>
        <source>petanewton</source>
        <translation>petanewton</translation>
    </message>
    <message>
        <source>teranewton</source>
        <translation>teranewton</translation>
    </message>
    <message>
        <source>giganewton</source>
        <translation>giganewton</translation>
    </message>
    <message>
        <source>meganewton</source>
        <translation>meganewton</translation>
    </message>
    <message>
        <source>kilonewton</source>
        <translation>kilonewton</translation>
    </message>
    <message>
        <source>hectonewton</source>
        <translation>hectonewton</translation>
    </message>
    <message>
        <source>decanewton</source>
        <translation>decanewton</translation>
    </message>
    <message>
        <source>decinewton</source>
        <translation>decinewton</translation>
    </message>
    <message>
        <source>centinewton</source>
        <translation>centinewton</translation>
    </message>
    <message>
        <source>millinewton</source>
        <translation>millinewton</translation>
    </message>
    <message>
        <source>micronewton</source>
        <translation>micronewton</translation>
    </message>
    <message>
        <source>nanonewton</source>
        <translation>nanonewton</translation>
    </message>
    <message>
        <source>piconewton</source>
        <translation>piconewton</translation>
    </message>
    <message>
        <source>femtonewton</source>
        <translation>femtonewton</translation>
    </message>
    <message>
        <source>attonewton</source>
        <translation>attonewton</translation>
    </message>
    <message>
        <source>zeptonewton</source>
        <translation>zeptonewton</translation>
    </message>
    <message>
        <source>yoctonewton</source>
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
        <translation>pound force</translation>
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
        <translation>newton per meter</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>kilopound per foot</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>kilogram force per meter</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>ton force per meter</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>pound-force per foot</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translation>decanewton per meter</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translation>kilonewton per meter</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translation>meganewton per meter</translation>
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
        <translation>hertz</translation>
    </message>
    <message>
        <source>kilohertz</source>
        <translation>kilohertz</translation>
    </message>
    <message>
        <source>megahertz</source>
        <translation>megahertz</translation>
    </message>
    <message>
        <source>gigahertz</source>
        <translation>gigahertz</translation>
    </message>
    <message>
        <source>terahertz</source>
        <translation>terahertz</translation>
    </message>
    <message>
        <source>cycle per second</source>
        <translation>cycle per second</translation>
    </message>
    <message>
        <source>revolution per minute</source>
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
        <translation>kilocalorie per hour</translation>
    </message>
    <message>
        <source>kilowatt</source>
        <translation>kilowatt</translation>
    </message>
    <message>
        <source>megawatt</source>
        <translation>megawatt</translation>
    </message>
    <message>
        <source>microwatt</source>
        <translation>microwatt</translation>
    </message>
    <message>
        <source>volt ampere</source>
        <translation>volt ampere</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translation>millivolt ampere</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translation>kilovolt ampere</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translation>megavolt ampere</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translation>milliwatt</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>kilogram force meter per second</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>foot pound-force per second</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translation>calorie per second</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
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
        <translation>watt per cubic meter</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translation>watt per cubic foot</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>British thermal unit per hour cubic foot</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translation>watt per kilogram</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translation>watt per square meter</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translation>kilowatt per square meter</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translation>kilowatt per square foot</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translation>watt per square foot</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>British thermal unit per hour square foot</translation>
    </message>
    <message>
        <source>bar</source>
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
        <translation>inch of mercury</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>inch of water</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translation>kilobar</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translation>kilogram per square centimeter</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translation>kilopascal</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translation>kilopound per square inch</translation>
    </message>
    <message>
        <source>mega pascal</source>
        <translation>mega pascal</translation>
    </message>
    <message>
        <source>millibar</source>
        <translation>millibar</translation>
    </message>
    <message>
        <source>millimeter of mercury</source>
        <translation>millimeter of mercury</translation>
    </message>
    <message>
        <source>milli pascal</source>
        <translation>milli pascal</translation>
    </message>
    <message>
        <source>pascal</source>
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
        <translation>pound per square foot</translation>
    </message>
    <message>
        <source>pound per square inch</source>
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
        <translation>newton per square millimeter</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translation>newton per square meter</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translation>decanewton per square millimeter</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translation>decanewton per square meter</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translation>kilonewton per square meter</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translation>meganewton per square meter</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translation>kilopound per square foot</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>kilogram force per square millimeter</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>kilogram force per square centimeter</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>kilogram force per square meter</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>ton force per square centimeter</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>ton force per square meter</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>ton force per square foot</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translation>pound force per square inch</translation>
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
        <translation>gigapascal</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>dyne per square centimeter</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translation>newton per square micrometer</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translation>meter per newton</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translation>meter per kilonewton</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>foot per kip</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translation>square meter per newton</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translation>square meter per kilonewton</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>square foot per kip</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translation>cubic meter per newton</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translation>cubic meter per kilonewton</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>cubic foot per kip</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translation>newton-meter per meter</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translation>decanewton-meter per meter</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translation>kilonewton-meter per meter</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translation>meganewton-meter per meter</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>kip-foot per foot</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>kilogram force-meter per meter</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>ton force-meter per meter</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translation>pound-force foot per foot</translation>
    </message>
    <message>
        <source>ohm</source>
        <translation>ohm</translation>
    </message>
    <message>
        <source>kilohm</source>
        <translation>kilohm</translation>
    </message>
    <message>
        <source>gigaohm</source>
        <translation>gigaohm</translation>
    </message>
    <message>
        <source>megohm</source>
        <translation>megohm</translation>
    </message>
    <message>
        <source>microohm</source>
        <translation>microohm</translation>
    </message>
    <message>
        <source>milliohm</source>
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
        <translation>meter per second</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translation>millimeter per second</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translation>centimeter per second</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translation>meter per minute</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translation>inch per second</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translation>foot per second</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translation>inch per minute</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translation>foot per minute</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translation>kilometer per hour</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translation>mile per hour</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translation>centimeter per minute</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translation>foot per hour</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translation>inch per hour</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translation>kilometer per minute</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translation>kilometer per second</translation>
    </message>
    <message>
        <source>knot</source>
        <translation>knot</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>knot (UK)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translation>meter per hour</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translation>mile per minute</translation>
    </message>
    <message>
        <source>mile per second</source>
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
        <translation>byte</translation>
    </message>
    <message>
        <source>bit</source>
        <translation>bit</translation>
    </message>
    <message>
        <source>kilobyte</source>
        <translation>kilobyte</translation>
    </message>
    <message>
        <source>megabyte</source>
        <translation>megabyte</translation>
    </message>
    <message>
        <source>gigabyte</source>
        <translation>gigabyte</translation>
    </message>
    <message>
        <source>terabyte</source>
        <translation>terabyte</translation>
    </message>
    <message>
        <source>kibibyte</source>
        <translation>kibibyte</translation>
    </message>
    <message>
        <source>mebibyte</source>
        <translation>mebibyte</translation>
    </message>
    <message>
        <source>gibibyte</source>
        <translation>gibibyte</translation>
    </message>
    <message>
        <source>tebibyte</source>
        <translation>tebibyte</translation>
    </message>
    <message>
        <source>kilobit</source>
        <translation>kilobit</translation>
    </message>
    <message>
        <source>megabit</source>
        <translation>megabit</translation>
    </message>
    <message>
        <source>gigabit</source>
        <translation>gigabit</translation>
    </message>
    <message>
        <source>petabyte</source>
        <translation>petabyte</translation>
    </message>
    <message>
        <source>pebibyte</source>
        <translation>pebibyte</translation>
    </message>
    <message>
        <source>exabyte</source>
        <translation>exabyte</translation>
    </message>
    <message>
        <source>exbibyte</source>
        <translation>exbibyte</translation>
    </message>
    <message>
        <source>zettabyte</source>
        <translation>zettabyte</translation>
    </message>
    <message>
        <source>zebibyte</source>
        <translation>zebibyte</translation>
    </message>
    <message>
        <source>yottabyte</source>
        <translation>yottabyte</translation>
    </message>
    <message>
        <source>yobibyte</source>
        <translation>yobibyte</translation>
    </message>
    <message>
        <source>kelvin</source>
        <translation>kelvin</translation>
    </message>
    <message>
        <source>degree Celsius</source>
        <translation>degree Celsius</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translation>degree Fahrenheit</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>degree Rankine</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translation>celsius per minute</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translation>fahrenheit per minute</translation>
    </message>
    <message>
        <source>second</source>
        <translation>second</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translation>yottasecond</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translation>zettasecond</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translation>exasecond</translation>
    </message>
    <message>
        <source>petasecond</source>
        <translation>petasecond</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translation>terasecond</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translation>gigasecond</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translation>megasecond</translation>
    </message>
    <message>
        <source>kilosecond</source>
        <translation>kilosecond</translation>
    </message>
    <message>
        <source>hectosecond</source>
        <translation>hectosecond</translation>
    </message>
    <message>
        <source>decasecond</source>
        <translation>decasecond</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translation>decisecond</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translation>centisecond</translation>
    </message>
    <message>
        <source>millisecond</source>
        <translation>millisecond</translation>
    </message>
    <message>
        <source>microsecond</source>
        <translation>microsecond</translation>
    </message>
    <message>
        <source>nanosecond</source>
        <translation>nanosecond</translation>
    </message>
    <message>
        <source>picosecond</source>
        <translation>picosecond</translation>
    </message>
    <message>
        <source>femtosecond</source>
        <translation>femtosecond</translation>
    </message>
    <message>
        <source>attosecond</source>
        <translation>attosecond</translation>
    </message>
    <message>
        <source>zeptosecond</source>
        <translation>zeptosecond</translation>
    </message>
    <message>
        <source>yoctosecond</source>
        <translation>yoctosecond</translation>
    </message>
    <message>
        <source>minute</source>
        <translation>minute</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>hour</translation>
    </message>
    <message>
        <source>day</source>
        <translation>day</translation>
    </message>
    <message>
        <source>week</source>
        <translation>week</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>fortnight</translation>
    </message>
    <message>
        <source>month</source>
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
        <translation>decade</translation>
    </message>
    <message>
        <source>century</source>
        <translation>century</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>century (Julian)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>millenium</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>millenium (Gregorian)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>millenium (Julian)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>newton meter (torque)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>newton centimeter (torque)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>newton decameter (torque)</translation>
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
        <translation>meter kilogram (torque)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>centimeter kilogram (torque)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>inch ounce (torque)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>gram centimeter (torque)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>decanewton meter (torque)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>kilonewton meter (torque)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>meganewton meter (torque)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>kip foot (torque)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>kilogram force meter (torque)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>ton force meter (torque)</translation>
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
        <translation>pascal second</translation>
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
        <translation>meter per second squared</translation>
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
        <translation>volt</translation>
    </message>
    <message>
        <source>kilovolt</source>
        <translation>kilovolt</translation>
    </message>
    <message>
        <source>microvolt</source>
        <translation>microvolt</translation>
    </message>
    <message>
        <source>millivolt</source>
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
        <translation>candela</translation>
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
        <translation>Lux (Illuminance)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>footcandle</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translation>lumen second</translation>
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
        <translation>lumen</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translation>candela per square meter</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>foot lambert</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translation>candela per square foot</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>lux (emittance)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translation>lumen per watt</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translation>pascal per meter</translation>
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
        <translation>millimeter of mercury per 100foot</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translation>newton meter per degree</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>kip foot per degree</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translation>kilonewton meter per degree</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>newton meter per degree per meter</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>kip foot per degree per foot</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>kilonewton meter per degree per meter</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>watt per square meter kelvin</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>british thermal unit per hour square foot fahrenheit</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>cubic meter per second square meter</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>cubic foot per minute square foot</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>liter per second square meter</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>cubic meter per second cubic meter</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>cubic foot per minute cubic foot</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>liter per second cubic meter</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>cubic meter per second watt</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>cubic foot per minute ton of refrigeration</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>liter per second kilowatt</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translation>square meter per watt</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>square foot per ton of refrigeration</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translation>square meter per kilowatt</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>square foot per thousand british thermal unit per hour</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>square second per meter kilogram</translation>
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
        <translation>inverse fahrenheit</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>inverse celsius</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>micrometer per meter celsius</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>microinch per inch fahrenheit</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>oersted</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translation>Ampere per meter</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>watt per meter kelvin</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>watt per meter celsius</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>newton per second celsius</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>dyne per second celsius</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>BTU inch per square foot hour fahrenheit</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>BTU per inch second fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>BTU per foot second fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>BTU per foot hour fahrenheit</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>joule per gram celsius</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>joule per kilogram celsius</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>square millimeter per square second celsius</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>erg per gram celsius</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>square micrometer per square second celsius</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>BTU per pound fahrenheit</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>nanogram per pascal second square meter</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>grain per square foot hour inches mercury</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translation>ohm meter</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translation>joule per gram</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translation>joule per kilogram</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>BTU per pound</translation>
    </message>
</context>
</TS>
