<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>NumberFormat</name>
    <message>
        <source>Exponential</source>
        <translation>Exponencial</translation>
    </message>
    <message>
        <source>exponential</source>
        <translation>exponencial</translation>
    </message>
    <message>
        <source>Fixed Point</source>
        <translation>Coma fija</translation>
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
        <translation>Número</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Fracción</translation>
    </message>
</context>
<context>
    <name>UnitGroup</name>
    <message>
        <source>Dimensionless</source>
        <translation>Adimensional</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Superficie</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masa</translation>
    </message>
    <message>
        <source>Linear Weight</source>
        <translation>Masa lineal</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>Cantidad de sustancia</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ángulo</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>Ángulo sólido</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>Densidad superficial</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Concentración</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>Partes por (ppm, ppb)</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>Intensidad de corriente eléctrica</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>Carga eléctrica</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>Capacidad eléctrica</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Tasa de bits</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Densidad</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>Peso específico</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energía</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>Caudal volumétrico</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>Caudal másico</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>Caudal por embolada</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Fuerza</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>Carga lineal</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>Inductancia</translation>
    </message>
    <message>
        <source>Magnetic Flux Density</source>
        <translation>Densidad de flujo magnético</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>Flujo magnético</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Potencia</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>Potencia por unidad de volumen</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>Potencia por unidad de masa</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>Potencia por unidad de superficie</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Presión</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>Escala de fuerza</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>Escala de carga lineal</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>Escala de carga superficial</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>Momento lineal</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>Resistencia eléctrica</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>Conductancia eléctrica</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>Almacenamiento informático</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>Velocidad de cambio de temperatura</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>Par de torsión</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>Viscosidad dinámica</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>Viscosidad cinemática</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Aceleración</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tensión eléctrica</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>Potencial eléctrico</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>Intensidad luminosa</translation>
    </message>
    <message>
        <source>Illuminance</source>
        <translation>Iluminancia</translation>
    </message>
    <message>
        <source>Luminous Energy</source>
        <translation>Energía luminosa</translation>
    </message>
    <message>
        <source>Luminous Flux</source>
        <translation>Flujo luminoso</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminancia</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>Emitancia luminosa</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>Eficacia luminosa</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Pérdida de carga por fricción</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>Rigidez rotacional puntual</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>Rigidez rotacional lineal</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>Coeficiente de transmisión de calor</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>Densidad de caudal de aire</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>Caudal de aire por volumen</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>Caudal de aire por potencia</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>Superficie por potencia</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>Escala de momento</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>Coeficiente de dilatación térmica</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>Intensidad de campo magnético</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>Conductividad térmica</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>Calor específico</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>Permeabilidad al vapor</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>Resistividad eléctrica</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>Calor específico de vaporización</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>sin unidad</translation>
    </message>
    <message>
        <source>meter</source>
        <translatorcomment>CLDR: metro</translatorcomment>
        <translation>metro</translation>
    </message>
    <message>
        <source>yottameter</source>
        <translatorcomment>CLDR: yottametro</translatorcomment>
        <translation>yottametro</translation>
    </message>
    <message>
        <source>zettameter</source>
        <translatorcomment>CLDR: zettametro</translatorcomment>
        <translation>zettametro</translation>
    </message>
    <message>
        <source>exameter</source>
        <translatorcomment>CLDR: exametro</translatorcomment>
        <translation>exametro</translation>
    </message>
    <message>
        <source>petameter</source>
        <translatorcomment>CLDR: petametro</translatorcomment>
        <translation>petametro</translation>
    </message>
    <message>
        <source>terameter</source>
        <translatorcomment>CLDR: terametro</translatorcomment>
        <translation>terametro</translation>
    </message>
    <message>
        <source>gigameter</source>
        <translatorcomment>CLDR: gigametro</translatorcomment>
        <translation>gigametro</translation>
    </message>
    <message>
        <source>megameter</source>
        <translatorcomment>CLDR: megametro</translatorcomment>
        <translation>megametro</translation>
    </message>
    <message>
        <source>kilometer</source>
        <translatorcomment>CLDR: kilómetro</translatorcomment>
        <translation>kilómetro</translation>
    </message>
    <message>
        <source>hectometer</source>
        <translatorcomment>CLDR: hectometro</translatorcomment>
        <translation>hectometro</translation>
    </message>
    <message>
        <source>decameter</source>
        <translatorcomment>CLDR: decametro</translatorcomment>
        <translation>decametro</translation>
    </message>
    <message>
        <source>decimeter</source>
        <translatorcomment>CLDR: decímetro</translatorcomment>
        <translation>decímetro</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translatorcomment>CLDR: centímetro</translatorcomment>
        <translation>centímetro</translation>
    </message>
    <message>
        <source>millimeter</source>
        <translatorcomment>CLDR: milímetro</translatorcomment>
        <translation>milímetro</translation>
    </message>
    <message>
        <source>micrometer</source>
        <translatorcomment>CLDR: micrómetro</translatorcomment>
        <translation>micrómetro</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translatorcomment>CLDR: nanómetro</translatorcomment>
        <translation>nanómetro</translation>
    </message>
    <message>
        <source>picometer</source>
        <translatorcomment>CLDR: picómetro</translatorcomment>
        <translation>picómetro</translation>
    </message>
    <message>
        <source>femtometer</source>
        <translatorcomment>CLDR: femtometro</translatorcomment>
        <translation>femtometro</translation>
    </message>
    <message>
        <source>attometer</source>
        <translatorcomment>CLDR: attometro</translatorcomment>
        <translation>attometro</translation>
    </message>
    <message>
        <source>zeptometer</source>
        <translatorcomment>CLDR: zeptometro</translatorcomment>
        <translation>zeptometro</translation>
    </message>
    <message>
        <source>yoctometer</source>
        <translatorcomment>CLDR: yoctometro</translatorcomment>
        <translation>yoctometro</translation>
    </message>
    <message>
        <source>inch</source>
        <translatorcomment>CLDR: pulgada</translatorcomment>
        <translation>pulgada</translation>
    </message>
    <message>
        <source>foot</source>
        <translatorcomment>CLDR: pie</translatorcomment>
        <translation>pie</translation>
    </message>
    <message>
        <source>foot (Benoit)</source>
        <translation>pie (Benoit)</translation>
    </message>
    <message>
        <source>foot (Clarke&apos;s; Cape)</source>
        <translation>pie (Clarke; El Cabo)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>pie (India)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>pie (Sears)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>pie topográfico (EE. UU.)</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: yarda</translatorcomment>
        <translation>yarda</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>cadena</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>cadena (Ramsden; de ingeniero)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: furlong</translatorcomment>
        <translation>furlong</translation>
    </message>
    <message>
        <source>mile</source>
        <translatorcomment>CLDR: milla</translatorcomment>
        <translation>milla</translation>
    </message>
    <message>
        <source>geographical mile</source>
        <translation>milla geográfica</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>milla topográfica (EE. UU.)</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: milla náutica</translatorcomment>
        <translation>milla náutica</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>milla terrestre</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>milla náutica (Almirantazgo)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>micra</translation>
    </message>
    <message>
        <source>microinch</source>
        <translatorcomment>CLDR: micropulgada</translatorcomment>
        <translation>micropulgada</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>ángstrom</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: unidad astronómica</translatorcomment>
        <translation>unidad astronómica</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>cable</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>codo</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: braza</translatorcomment>
        <translation>braza</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>palmo menor (hand)</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: año luz</translatorcomment>
        <translation>año luz</translation>
    </message>
    <message>
        <source>span</source>
        <translation>palmo</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>palmo (textil)</translation>
    </message>
    <message>
        <source>parsec</source>
        <translatorcomment>CLDR: parsec</translatorcomment>
        <translation>parsec</translation>
    </message>
    <message>
        <source>nautical league</source>
        <translation>legua náutica</translation>
    </message>
    <message>
        <source>league</source>
        <translation>legua</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>milésima de pulgada</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>milla escandinava (Suecia y Noruega)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>eslabón</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>eslabón (Ramsden; de ingeniero)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>paso</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>palma</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>vara (rod)</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>cuerda (rope)</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>madeja</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>calibre</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>pulgada topográfica</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>yarda topográfica</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>vara topográfica</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>rollo (bolt)</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: metro cuadrado</translatorcomment>
        <translation>metro cuadrado</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: pulgada cuadrada</translatorcomment>
        <translation>pulgada cuadrada</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: pie cuadrado</translatorcomment>
        <translation>pie cuadrado</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: yarda cuadrada</translatorcomment>
        <translation>yarda cuadrada</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: acre</translatorcomment>
        <translation>acre</translation>
    </message>
    <message>
        <source>section</source>
        <translation>sección</translation>
    </message>
    <message>
        <source>township</source>
        <translation>municipio topográfico (township)</translation>
    </message>
    <message>
        <source>hectare</source>
        <translatorcomment>CLDR: hectárea</translatorcomment>
        <translation>hectárea</translation>
    </message>
    <message>
        <source>square kilometer</source>
        <translatorcomment>CLDR: kilómetro cuadrado</translatorcomment>
        <translation>kilómetro cuadrado</translation>
    </message>
    <message>
        <source>square mile</source>
        <translatorcomment>CLDR: milla cuadrada</translatorcomment>
        <translation>milla cuadrada</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translatorcomment>CLDR: centímetro cuadrado</translatorcomment>
        <translation>centímetro cuadrado</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translatorcomment>CLDR: milímetro cuadrado</translatorcomment>
        <translation>milímetro cuadrado</translation>
    </message>
    <message>
        <source>circular mil</source>
        <translation>mil circular</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>kilo mil circular</translation>
    </message>
    <message>
        <source>are</source>
        <translation>área</translation>
    </message>
    <message>
        <source>barn</source>
        <translation>barn</translation>
    </message>
    <message>
        <source>centare</source>
        <translation>centiárea</translation>
    </message>
    <message>
        <source>square angstrom</source>
        <translation>ángstrom cuadrado</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>rollo cuadrado</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>cable cuadrado</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>calibre cuadrado</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>codo cuadrado</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translatorcomment>CLDR: decímetro cuadrado</translatorcomment>
        <translation>decímetro cuadrado</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translation>braza cuadrada</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translatorcomment>CLDR: furlong cuadrado</translatorcomment>
        <translation>furlong cuadrado</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translatorcomment>CLDR: gigametro cuadrado</translatorcomment>
        <translation>gigametro cuadrado</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>palmo menor cuadrado</translation>
    </message>
    <message>
        <source>square nautical league</source>
        <translation>legua náutica cuadrada</translation>
    </message>
    <message>
        <source>square league (statute)</source>
        <translation>legua cuadrada (terrestre)</translation>
    </message>
    <message>
        <source>square light-year</source>
        <translatorcomment>CLDR: año luz cuadrado</translatorcomment>
        <translation>año luz cuadrado</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>eslabón cuadrado</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>micra cuadrada</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>milla cuadrada (náutica británica)</translation>
    </message>
    <message>
        <source>square mile (statute)</source>
        <translation>milla cuadrada (terrestre)</translation>
    </message>
    <message>
        <source>square millimicron</source>
        <translation>milimicra cuadrada</translation>
    </message>
    <message>
        <source>square pace</source>
        <translation>paso cuadrado</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>palma cuadrada</translation>
    </message>
    <message>
        <source>square parsec</source>
        <translatorcomment>CLDR: parsec cuadrado</translatorcomment>
        <translation>parsec cuadrado</translation>
    </message>
    <message>
        <source>square perch</source>
        <translation>pértica cuadrada</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>cuerda cuadrada</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>madeja cuadrada</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>palmo cuadrado</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>pie topográfico cuadrado</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>cadena cuadrada</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>milésima de pulgada cuadrada</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translation>unidad astronómica cuadrada</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>acre topográfico</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>yarda topográfica cuadrada</translation>
    </message>
    <message>
        <source>board</source>
        <translation>tabla (board)</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>cuerda de leña (superficie)</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>micropulgada cuadrada</translation>
    </message>
    <message>
        <source>square micrometer</source>
        <translatorcomment>CLDR: micrómetro cuadrado</translatorcomment>
        <translation>micrómetro cuadrado</translation>
    </message>
    <message>
        <source>liter</source>
        <translatorcomment>CLDR: litro</translatorcomment>
        <translation>litro</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translatorcomment>CLDR: centímetro cúbico</translatorcomment>
        <translation>centímetro cúbico</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translatorcomment>CLDR: cucharada</translatorcomment>
        <translation>cucharada</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>cucharada (Canadá)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>cucharada (EE. UU.)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>onza líquida (imperial)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>onza líquida (EE. UU.)</translation>
    </message>
    <message>
        <source>cup</source>
        <translation>taza</translation>
    </message>
    <message>
        <source>cup (Canadian)</source>
        <translation>taza (Canadá)</translation>
    </message>
    <message>
        <source>cup (U.S.)</source>
        <translation>taza (EE. UU.)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>cuarto de galón (imperial)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>cuarto de galón (EE. UU., líquidos)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>cuarto de galón (EE. UU., áridos)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>galón (imperial)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>galón (EE. UU., líquidos; vino)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>galón (EE. UU., áridos)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>galón de cerveza</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>bushel (imperial)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>bushel (EE. UU., raso)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>bushel (EE. UU., colmado)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: centilitro</translatorcomment>
        <translation>centilitro</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: pie cúbico</translatorcomment>
        <translation>pie cúbico</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: pulgada cúbica</translatorcomment>
        <translation>pulgada cúbica</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: metro cúbico</translatorcomment>
        <translation>metro cúbico</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: yarda cúbica</translatorcomment>
        <translation>yarda cúbica</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>dracma fluida</translation>
    </message>
    <message>
        <source>microliter</source>
        <translatorcomment>CLDR: microlitro</translatorcomment>
        <translation>microlitro</translation>
    </message>
    <message>
        <source>milliliter</source>
        <translatorcomment>CLDR: mililitro</translatorcomment>
        <translation>mililitro</translation>
    </message>
    <message>
        <source>pint (imperial)</source>
        <translation>pinta (imperial)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>pinta (EE. UU., líquidos)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>pinta (EE. UU., áridos)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: cucharadita</translatorcomment>
        <translation>cucharadita</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>cucharadita (Canadá)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>cucharadita (EE. UU.)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>cucharadita (imperial)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translatorcomment>CLDR: milímetro cúbico</translatorcomment>
        <translation>milímetro cúbico</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>barril (imperial)</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>barril (petróleo)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>barril (EE. UU., áridos)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>barril (EE. UU., líquidos)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>pie tablar</translation>
    </message>
    <message>
        <source>decistere</source>
        <translation>decistéreo</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translatorcomment>CLDR: decalitro</translatorcomment>
        <translation>decalitro</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>decastéreo</translation>
    </message>
    <message>
        <source>dram</source>
        <translatorcomment>CLDR: dracma líquida</translatorcomment>
        <translation>dracma líquida</translation>
    </message>
    <message>
        <source>firkin</source>
        <translation>firkin</translation>
    </message>
    <message>
        <source>cubic angstrom</source>
        <translation>ángstrom cúbico</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translation>unidad astronómica cúbica</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>rollo cúbico</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>cable cúbico</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>calibre cúbico</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>cadena cúbica</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>codo cúbico</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translation>braza cúbica</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translatorcomment>CLDR: furlong cúbico</translatorcomment>
        <translation>furlong cúbico</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translatorcomment>CLDR: gigametro cúbico</translatorcomment>
        <translation>gigametro cúbico</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>palmo menor cúbico</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translatorcomment>CLDR: hectometro cúbico</translatorcomment>
        <translation>hectometro cúbico</translation>
    </message>
    <message>
        <source>cubic nautical league</source>
        <translation>legua náutica cúbica</translation>
    </message>
    <message>
        <source>cubic league (statute)</source>
        <translation>legua cúbica (terrestre)</translation>
    </message>
    <message>
        <source>cubic light-year</source>
        <translatorcomment>CLDR: año luz cúbico</translatorcomment>
        <translation>año luz cúbico</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>eslabón cúbico</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>milésima de pulgada cúbica</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>milla cúbica (náutica británica)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: milla cúbica</translatorcomment>
        <translation>milla cúbica</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translation>milla náutica cúbica</translation>
    </message>
    <message>
        <source>cubic mile (statute)</source>
        <translation>milla cúbica (terrestre)</translation>
    </message>
    <message>
        <source>cubic millimicron</source>
        <translation>milimicra cúbica</translation>
    </message>
    <message>
        <source>cubic pace</source>
        <translation>paso cúbico</translation>
    </message>
    <message>
        <source>cubic palm</source>
        <translation>palma cúbica</translation>
    </message>
    <message>
        <source>cubic parsec</source>
        <translatorcomment>CLDR: parsec cúbico</translatorcomment>
        <translation>parsec cúbico</translation>
    </message>
    <message>
        <source>cubic perch</source>
        <translation>pértica cúbica</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>cuerda cúbica</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>madeja cúbica</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>palmo cúbico</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>pie topográfico cúbico</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translatorcomment>CLDR: decímetro cúbico</translatorcomment>
        <translation>decímetro cúbico</translation>
    </message>
    <message>
        <source>tun</source>
        <translation>tonel</translation>
    </message>
    <message>
        <source>peck</source>
        <translation>peck</translation>
    </message>
    <message>
        <source>peck (U.S. dry)</source>
        <translation>peck (EE. UU., áridos)</translation>
    </message>
    <message>
        <source>peck (imperial)</source>
        <translation>peck (imperial)</translation>
    </message>
    <message>
        <source>minim (imperial)</source>
        <translation>mínima (imperial)</translation>
    </message>
    <message>
        <source>minim (U.S.)</source>
        <translation>mínima (EE. UU.)</translation>
    </message>
    <message>
        <source>kiloliter</source>
        <translatorcomment>CLDR: kilolitro</translatorcomment>
        <translation>kilolitro</translation>
    </message>
    <message>
        <source>hogshead (U.S.)</source>
        <translation>bocoy (EE. UU.)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>bocoy (imperial)</translation>
    </message>
    <message>
        <source>gill (imperial)</source>
        <translation>gill (imperial)</translation>
    </message>
    <message>
        <source>gill (U.S.)</source>
        <translation>gill (EE. UU.)</translation>
    </message>
    <message>
        <source>cubic survey yard</source>
        <translation>yarda topográfica cúbica</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>pie de cuerda de leña</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>cuerda de leña</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>tonelada de registro</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: acre-pie</translatorcomment>
        <translation>acre-pie</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>acre-pulgada</translation>
    </message>
    <message>
        <source>cubic microinch</source>
        <translation>micropulgada cúbica</translation>
    </message>
    <message>
        <source>cubic micrometer</source>
        <translatorcomment>CLDR: micrómetro cúbico</translatorcomment>
        <translation>micrómetro cúbico</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translatorcomment>CLDR: kilómetro cúbico</translatorcomment>
        <translation>kilómetro cúbico</translation>
    </message>
    <message>
        <source>kilogram</source>
        <translatorcomment>CLDR: kilogramo</translatorcomment>
        <translation>kilogramo</translation>
    </message>
    <message>
        <source>gram</source>
        <translatorcomment>CLDR: gramo</translatorcomment>
        <translation>gramo</translation>
    </message>
    <message>
        <source>yottagram</source>
        <translatorcomment>CLDR: yottagramo</translatorcomment>
        <translation>yottagramo</translation>
    </message>
    <message>
        <source>zettagram</source>
        <translatorcomment>CLDR: zettagramo</translatorcomment>
        <translation>zettagramo</translation>
    </message>
    <message>
        <source>exagram</source>
        <translatorcomment>CLDR: exagramo</translatorcomment>
        <translation>exagramo</translation>
    </message>
    <message>
        <source>petagram</source>
        <translatorcomment>CLDR: petagramo</translatorcomment>
        <translation>petagramo</translation>
    </message>
    <message>
        <source>teragram</source>
        <translatorcomment>CLDR: teragramo</translatorcomment>
        <translation>teragramo</translation>
    </message>
    <message>
        <source>gigagram</source>
        <translatorcomment>CLDR: gigagramo</translatorcomment>
        <translation>gigagramo</translation>
    </message>
    <message>
        <source>megagram</source>
        <translatorcomment>CLDR: megagramo</translatorcomment>
        <translation>megagramo</translation>
    </message>
    <message>
        <source>hectogram</source>
        <translatorcomment>CLDR: hectogramo</translatorcomment>
        <translation>hectogramo</translation>
    </message>
    <message>
        <source>decagram</source>
        <translatorcomment>CLDR: decagramo</translatorcomment>
        <translation>decagramo</translation>
    </message>
    <message>
        <source>decigram</source>
        <translatorcomment>CLDR: decigramo</translatorcomment>
        <translation>decigramo</translation>
    </message>
    <message>
        <source>centigram</source>
        <translatorcomment>CLDR: centigramo</translatorcomment>
        <translation>centigramo</translation>
    </message>
    <message>
        <source>milligram</source>
        <translatorcomment>CLDR: miligramo</translatorcomment>
        <translation>miligramo</translation>
    </message>
    <message>
        <source>microgram</source>
        <translatorcomment>CLDR: microgramo</translatorcomment>
        <translation>microgramo</translation>
    </message>
    <message>
        <source>nanogram</source>
        <translatorcomment>CLDR: nanogramo</translatorcomment>
        <translation>nanogramo</translation>
    </message>
    <message>
        <source>picogram</source>
        <translatorcomment>CLDR: picogramo</translatorcomment>
        <translation>picogramo</translation>
    </message>
    <message>
        <source>femtogram</source>
        <translatorcomment>CLDR: femtogramo</translatorcomment>
        <translation>femtogramo</translation>
    </message>
    <message>
        <source>attogram</source>
        <translatorcomment>CLDR: attogramo</translatorcomment>
        <translation>attogramo</translation>
    </message>
    <message>
        <source>zeptogram</source>
        <translatorcomment>CLDR: zeptogramo</translatorcomment>
        <translation>zeptogramo</translation>
    </message>
    <message>
        <source>yoctogram</source>
        <translatorcomment>CLDR: yoctogramo</translatorcomment>
        <translation>yoctogramo</translation>
    </message>
    <message>
        <source>pound (meter)</source>
        <translation>libra métrica</translation>
    </message>
    <message>
        <source>pound</source>
        <translatorcomment>CLDR: libra</translatorcomment>
        <translation>libra</translation>
    </message>
    <message>
        <source>pound (troy)</source>
        <translation>libra troy</translation>
    </message>
    <message>
        <source>ounce (avoirdupois)</source>
        <translation>onza (avoirdupois)</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>onza (de boticario; troy)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: stone</translatorcomment>
        <translation>stone</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>tonelada corta</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>tonelada larga</translation>
    </message>
    <message>
        <source>carat</source>
        <translatorcomment>CLDR: quilate</translatorcomment>
        <translation>quilate</translation>
    </message>
    <message>
        <source>carat (metric)</source>
        <translation>quilate (métrico)</translation>
    </message>
    <message>
        <source>dram (avoirdupois)</source>
        <translation>dracma (avoirdupois)</translation>
    </message>
    <message>
        <source>dram (apothecary; troy)</source>
        <translation>dracma (de boticario; troy)</translation>
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
        <translation>quintal largo</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>quintal corto</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: grano</translatorcomment>
        <translation>grano</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>grano de perla</translation>
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
        <translatorcomment>CLDR: kilogramo por metro</translatorcomment>
        <translation>kilogramo por metro</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: libra por pie</translatorcomment>
        <translation>libra por pie</translation>
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
        <translatorcomment>CLDR: hectomol</translatorcomment>
        <translation>hectomol</translation>
    </message>
    <message>
        <source>decamole</source>
        <translatorcomment>CLDR: decamol</translatorcomment>
        <translation>decamol</translation>
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
        <translatorcomment>CLDR: milimol</translatorcomment>
        <translation>milimol</translation>
    </message>
    <message>
        <source>micromole</source>
        <translatorcomment>CLDR: micromol</translatorcomment>
        <translation>micromol</translation>
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
        <translatorcomment>CLDR: yoctomol</translatorcomment>
        <translation>yoctomol</translation>
    </message>
    <message>
        <source>radian</source>
        <translatorcomment>CLDR: radián</translatorcomment>
        <translation>radián</translation>
    </message>
    <message>
        <source>degree</source>
        <translatorcomment>CLDR: grado</translatorcomment>
        <translation>grado</translation>
    </message>
    <message>
        <source>milliradian</source>
        <translatorcomment>CLDR: miliradián</translatorcomment>
        <translation>miliradián</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>gradián</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>milésima angular (OTAN)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>milésima angular (Suecia)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>milésima angular (URSS)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translatorcomment>CLDR: minuto de arco</translatorcomment>
        <translation>minuto de arco</translation>
    </message>
    <message>
        <source>angle second</source>
        <translatorcomment>CLDR: segundo de arco</translatorcomment>
        <translation>segundo de arco</translation>
    </message>
    <message>
        <source>milliarc second</source>
        <translation>milisegundo de arco</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>estereorradián</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: gramo por metro cuadrado</translatorcomment>
        <translation>gramo por metro cuadrado</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: gramo por pulgada cuadrada</translatorcomment>
        <translation>gramo por pulgada cuadrada</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translatorcomment>CLDR: nanogramo por litro</translatorcomment>
        <translation>nanogramo por litro</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translatorcomment>CLDR: nanogramo por decilitro</translatorcomment>
        <translation>nanogramo por decilitro</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translatorcomment>CLDR: nanogramo por mililitro</translatorcomment>
        <translation>nanogramo por mililitro</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translatorcomment>CLDR: nanogramo por microlitro</translatorcomment>
        <translation>nanogramo por microlitro</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: parte por millón</translatorcomment>
        <translation>parte por millón</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>parte por mil millones</translation>
    </message>
    <message>
        <source>ampere</source>
        <translatorcomment>CLDR: amperio</translatorcomment>
        <translation>amperio</translation>
    </message>
    <message>
        <source>yottaampere</source>
        <translatorcomment>CLDR: yottaamperio</translatorcomment>
        <translation>yottaamperio</translation>
    </message>
    <message>
        <source>zettaampere</source>
        <translatorcomment>CLDR: zettaamperio</translatorcomment>
        <translation>zettaamperio</translation>
    </message>
    <message>
        <source>exaampere</source>
        <translatorcomment>CLDR: exaamperio</translatorcomment>
        <translation>exaamperio</translation>
    </message>
    <message>
        <source>petaampere</source>
        <translatorcomment>CLDR: petaamperio</translatorcomment>
        <translation>petaamperio</translation>
    </message>
    <message>
        <source>teraampere</source>
        <translatorcomment>CLDR: teraamperio</translatorcomment>
        <translation>teraamperio</translation>
    </message>
    <message>
        <source>gigaampere</source>
        <translatorcomment>CLDR: gigaamperio</translatorcomment>
        <translation>gigaamperio</translation>
    </message>
    <message>
        <source>megaampere</source>
        <translatorcomment>CLDR: megaamperio</translatorcomment>
        <translation>megaamperio</translation>
    </message>
    <message>
        <source>kiloampere</source>
        <translatorcomment>CLDR: kiloamperio</translatorcomment>
        <translation>kiloamperio</translation>
    </message>
    <message>
        <source>hectoampere</source>
        <translatorcomment>CLDR: hectoamperio</translatorcomment>
        <translation>hectoamperio</translation>
    </message>
    <message>
        <source>decaampere</source>
        <translatorcomment>CLDR: decaamperio</translatorcomment>
        <translation>decaamperio</translation>
    </message>
    <message>
        <source>deciampere</source>
        <translatorcomment>CLDR: deciamperio</translatorcomment>
        <translation>deciamperio</translation>
    </message>
    <message>
        <source>centiampere</source>
        <translatorcomment>CLDR: centiamperio</translatorcomment>
        <translation>centiamperio</translation>
    </message>
    <message>
        <source>milliampere</source>
        <translatorcomment>CLDR: miliamperio</translatorcomment>
        <translation>miliamperio</translation>
    </message>
    <message>
        <source>microampere</source>
        <translatorcomment>CLDR: microamperio</translatorcomment>
        <translation>microamperio</translation>
    </message>
    <message>
        <source>nanoampere</source>
        <translatorcomment>CLDR: nanoamperio</translatorcomment>
        <translation>nanoamperio</translation>
    </message>
    <message>
        <source>picoampere</source>
        <translatorcomment>CLDR: picoamperio</translatorcomment>
        <translation>picoamperio</translation>
    </message>
    <message>
        <source>femtoampere</source>
        <translatorcomment>CLDR: femtoamperio</translatorcomment>
        <translation>femtoamperio</translation>
    </message>
    <message>
        <source>attoampere</source>
        <translatorcomment>CLDR: attoamperio</translatorcomment>
        <translation>attoamperio</translation>
    </message>
    <message>
        <source>zeptoampere</source>
        <translatorcomment>CLDR: zeptoamperio</translatorcomment>
        <translation>zeptoamperio</translation>
    </message>
    <message>
        <source>yoctoampere</source>
        <translatorcomment>CLDR: yoctoamperio</translatorcomment>
        <translation>yoctoamperio</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>culombio</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translatorcomment>CLDR: amperio-hora</translatorcomment>
        <translation>amperio-hora</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translatorcomment>CLDR: miliamperio-hora</translatorcomment>
        <translation>miliamperio-hora</translation>
    </message>
    <message>
        <source>faraday</source>
        <translation>faraday</translation>
    </message>
    <message>
        <source>farad</source>
        <translation>faradio</translation>
    </message>
    <message>
        <source>yottafarad</source>
        <translation>yottafaradio</translation>
    </message>
    <message>
        <source>zettafarad</source>
        <translation>zettafaradio</translation>
    </message>
    <message>
        <source>exafarad</source>
        <translation>exafaradio</translation>
    </message>
    <message>
        <source>petafarad</source>
        <translation>petafaradio</translation>
    </message>
    <message>
        <source>terafarad</source>
        <translation>terafaradio</translation>
    </message>
    <message>
        <source>gigafarad</source>
        <translation>gigafaradio</translation>
    </message>
    <message>
        <source>megafarad</source>
        <translation>megafaradio</translation>
    </message>
    <message>
        <source>kilofarad</source>
        <translation>kilofaradio</translation>
    </message>
    <message>
        <source>hectofarad</source>
        <translation>hectofaradio</translation>
    </message>
    <message>
        <source>decafarad</source>
        <translation>decafaradio</translation>
    </message>
    <message>
        <source>decifarad</source>
        <translation>decifaradio</translation>
    </message>
    <message>
        <source>centifarad</source>
        <translation>centifaradio</translation>
    </message>
    <message>
        <source>millifarad</source>
        <translation>milifaradio</translation>
    </message>
    <message>
        <source>microfarad</source>
        <translation>microfaradio</translation>
    </message>
    <message>
        <source>nanofarad</source>
        <translation>nanofaradio</translation>
    </message>
    <message>
        <source>picofarad</source>
        <translation>picofaradio</translation>
    </message>
    <message>
        <source>femtofarad</source>
        <translation>femtofaradio</translation>
    </message>
    <message>
        <source>attofarad</source>
        <translation>attofaradio</translation>
    </message>
    <message>
        <source>zeptofarad</source>
        <translation>zeptofaradio</translation>
    </message>
    <message>
        <source>yoctofarad</source>
        <translation>yoctofaradio</translation>
    </message>
    <message>
        <source>kilopicofarad</source>
        <translation>kilopicofaradio</translation>
    </message>
    <message>
        <source>baud</source>
        <translation>baudio</translation>
    </message>
    <message>
        <source>bit per second</source>
        <translatorcomment>CLDR: bit por segundo</translatorcomment>
        <translation>bit por segundo</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: byte por segundo</translatorcomment>
        <translation>byte por segundo</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>kilobaudio</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: kilobit por segundo</translatorcomment>
        <translation>kilobit por segundo</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: kilobyte por segundo</translatorcomment>
        <translation>kilobyte por segundo</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>megabaudio</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: megabit por segundo</translatorcomment>
        <translation>megabit por segundo</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: megabyte por segundo</translatorcomment>
        <translation>megabyte por segundo</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: kilogramo por metro cúbico</translatorcomment>
        <translation>kilogramo por metro cúbico</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translatorcomment>CLDR: kilogramo por litro</translatorcomment>
        <translation>kilogramo por litro</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translatorcomment>CLDR: gramo por litro</translatorcomment>
        <translation>gramo por litro</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translatorcomment>CLDR: microgramo por mililitro</translatorcomment>
        <translation>microgramo por mililitro</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: miligramo por mililitro</translatorcomment>
        <translation>miligramo por mililitro</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: libra por galón</translatorcomment>
        <translation>libra por galón</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: onza por galón</translatorcomment>
        <translation>onza por galón</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: libra por pie cúbico</translatorcomment>
        <translation>libra por pie cúbico</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: libra por pulgada cúbica</translatorcomment>
        <translation>libra por pulgada cúbica</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: gramo por centímetro cúbico</translatorcomment>
        <translation>gramo por centímetro cúbico</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>newton segundo cuadrado por milímetro a la cuarta</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: newton por metro cúbico</translatorcomment>
        <translation>newton por metro cúbico</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: kilonewton por metro cúbico</translatorcomment>
        <translation>kilonewton por metro cúbico</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>libra-fuerza por pie cúbico</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>kip por pulgada cúbica</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>kip por pie cúbico</translation>
    </message>
    <message>
        <source>joule</source>
        <translatorcomment>CLDR: julio</translatorcomment>
        <translation>julio</translation>
    </message>
    <message>
        <source>calorie</source>
        <translatorcomment>CLDR: caloría</translatorcomment>
        <translation>caloría</translation>
    </message>
    <message>
        <source>kilocalorie</source>
        <translatorcomment>CLDR: kilocaloría</translatorcomment>
        <translation>kilocaloría</translation>
    </message>
    <message>
        <source>British thermal unit (thermochemical)</source>
        <translation>unidad térmica británica (termoquímica)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>unidad térmica británica (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>unidad térmica británica (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>unidad térmica británica (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>unidad térmica británica (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>unidad térmica británica (tabla internacional)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>unidad térmica británica (media)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>unidad térmica británica (39 °F)</translation>
    </message>
    <message>
        <source>kiloelectronvolt</source>
        <translatorcomment>CLDR: kiloelectronvoltio</translatorcomment>
        <translation>kiloelectronvoltio</translation>
    </message>
    <message>
        <source>megaelectronvolt</source>
        <translatorcomment>CLDR: megaelectronvoltio</translatorcomment>
        <translation>megaelectronvoltio</translation>
    </message>
    <message>
        <source>electronvolt</source>
        <translatorcomment>CLDR: electronvoltio</translatorcomment>
        <translation>electronvoltio</translation>
    </message>
    <message>
        <source>erg</source>
        <translation>ergio</translation>
    </message>
    <message>
        <source>kilowatt hour</source>
        <translatorcomment>CLDR: kilovatio hora</translatorcomment>
        <translation>kilovatio hora</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translatorcomment>CLDR: kilovatio-minuto</translatorcomment>
        <translation>kilovatio-minuto</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translatorcomment>CLDR: kilovatio-segundo</translatorcomment>
        <translation>kilovatio-segundo</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>termia (EE. UU.)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: newton metro</translatorcomment>
        <translation>newton metro</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translatorcomment>CLDR: decanewton metro</translatorcomment>
        <translation>decanewton metro</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translatorcomment>CLDR: kilonewton metro</translatorcomment>
        <translation>kilonewton metro</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translatorcomment>CLDR: meganewton metro</translatorcomment>
        <translation>meganewton metro</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>kilogramo-fuerza metro</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>kilogramo-fuerza pie</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>tonelada-fuerza pie</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>tonelada-fuerza metro</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>pie kilolibra</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>pie libra-fuerza</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>caloría (20 °C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>caloría (termoquímica)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>caloría (15 °C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>caloría (media)</translation>
    </message>
    <message>
        <source>calorie (3.98 degree C)</source>
        <translation>caloría (3,98 °C)</translation>
    </message>
    <message>
        <source>Therm (EC)</source>
        <translation>termia (CE)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: metro cúbico por segundo</translatorcomment>
        <translation>metro cúbico por segundo</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: litro por segundo</translatorcomment>
        <translation>litro por segundo</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: litro por minuto</translatorcomment>
        <translation>litro por minuto</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: litro por hora</translatorcomment>
        <translation>litro por hora</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translatorcomment>CLDR: galón por segundo</translatorcomment>
        <translation>galón por segundo</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: galón por minuto</translatorcomment>
        <translation>galón por minuto</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: galón por hora</translatorcomment>
        <translation>galón por hora</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: galón por día</translatorcomment>
        <translation>galón por día</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: mililitro por minuto</translatorcomment>
        <translation>mililitro por minuto</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: centímetro cúbico por minuto</translatorcomment>
        <translation>centímetro cúbico por minuto</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: pie cúbico por hora</translatorcomment>
        <translation>pie cúbico por hora</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: pie cúbico por minuto</translatorcomment>
        <translation>pie cúbico por minuto</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: pie cúbico por segundo</translatorcomment>
        <translation>pie cúbico por segundo</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: pulgada cúbica por minuto</translatorcomment>
        <translation>pulgada cúbica por minuto</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: metro cúbico por hora</translatorcomment>
        <translation>metro cúbico por hora</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: metro cúbico por minuto</translatorcomment>
        <translation>metro cúbico por minuto</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: centímetro cúbico por segundo</translatorcomment>
        <translation>centímetro cúbico por segundo</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: centímetro cúbico por hora</translatorcomment>
        <translation>centímetro cúbico por hora</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>galón estadounidense por hora</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>galón estadounidense por segundo</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>galón imperial por día</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>galón imperial por hora</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>galón imperial por minuto</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>galón imperial por segundo</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>millón de galones imperiales por día</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: litro por día</translatorcomment>
        <translation>litro por día</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>millón de litros por día</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>galón estadounidense por día</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>millón de galones estadounidenses por día</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: pie cúbico por día</translatorcomment>
        <translation>pie cúbico por día</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: metro cúbico por día</translatorcomment>
        <translation>metro cúbico por día</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: yarda cúbica por minuto</translatorcomment>
        <translation>yarda cúbica por minuto</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: acre-pie por día</translatorcomment>
        <translation>acre-pie por día</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: acre-pie por hora</translatorcomment>
        <translation>acre-pie por hora</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: acre-pie por minuto</translatorcomment>
        <translation>acre-pie por minuto</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>acre-pulgada por hora</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>acre-pulgada por minuto</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>pie topográfico cúbico por segundo</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: kilogramo por segundo</translatorcomment>
        <translation>kilogramo por segundo</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: kilogramo por minuto</translatorcomment>
        <translation>kilogramo por minuto</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: kilogramo por hora</translatorcomment>
        <translation>kilogramo por hora</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: gramo por segundo</translatorcomment>
        <translation>gramo por segundo</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: gramo por minuto</translatorcomment>
        <translation>gramo por minuto</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: gramo por hora</translatorcomment>
        <translation>gramo por hora</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: libra por segundo</translatorcomment>
        <translation>libra por segundo</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: libra por minuto</translatorcomment>
        <translation>libra por minuto</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: libra por hora</translatorcomment>
        <translation>libra por hora</translation>
    </message>
    <message>
        <source>pint per stroke</source>
        <translation>pinta por embolada</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>cuarto de galón por embolada</translation>
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
        <translatorcomment>CLDR: milinewton</translatorcomment>
        <translation>milinewton</translation>
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
        <translation>kilolibra</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>kilogramo-fuerza</translation>
    </message>
    <message>
        <source>pound force</source>
        <translatorcomment>CLDR: libra de fuerza</translatorcomment>
        <translation>libra de fuerza</translation>
    </message>
    <message>
        <source>kip</source>
        <translation>kip</translation>
    </message>
    <message>
        <source>ton force</source>
        <translation>tonelada-fuerza</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>dina</translation>
    </message>
    <message>
        <source>lbforce</source>
        <translation>lbf (libra-fuerza)</translation>
    </message>
    <message>
        <source>ounce force</source>
        <translation>onza-fuerza</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: newton por metro</translatorcomment>
        <translation>newton por metro</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>kilolibra por pie</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>kilogramo-fuerza por metro</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>tonelada-fuerza por metro</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>libra-fuerza por pie</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: decanewton por metro</translatorcomment>
        <translation>decanewton por metro</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translatorcomment>CLDR: kilonewton por metro</translatorcomment>
        <translation>kilonewton por metro</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translatorcomment>CLDR: meganewton por metro</translatorcomment>
        <translation>meganewton por metro</translation>
    </message>
    <message>
        <source>kip per foot</source>
        <translation>kip por pie</translation>
    </message>
    <message>
        <source>kip per inch</source>
        <translation>kip por pulgada</translation>
    </message>
    <message>
        <source>hertz</source>
        <translatorcomment>CLDR: hercio</translatorcomment>
        <translation>hercio</translation>
    </message>
    <message>
        <source>kilohertz</source>
        <translatorcomment>CLDR: kilohercio</translatorcomment>
        <translation>kilohercio</translation>
    </message>
    <message>
        <source>megahertz</source>
        <translatorcomment>CLDR: megahercio</translatorcomment>
        <translation>megahercio</translation>
    </message>
    <message>
        <source>gigahertz</source>
        <translatorcomment>CLDR: gigahercio</translatorcomment>
        <translation>gigahercio</translation>
    </message>
    <message>
        <source>terahertz</source>
        <translatorcomment>CLDR: terahercio</translatorcomment>
        <translation>terahercio</translation>
    </message>
    <message>
        <source>cycle per second</source>
        <translation>ciclo por segundo</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: revolución por minuto</translatorcomment>
        <translation>revolución por minuto</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>destello por segundo</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>destello por minuto</translation>
    </message>
    <message>
        <source>henry</source>
        <translation>henrio</translation>
    </message>
    <message>
        <source>nanohenry</source>
        <translation>nanohenrio</translation>
    </message>
    <message>
        <source>microhenry</source>
        <translation>microhenrio</translation>
    </message>
    <message>
        <source>millihenry</source>
        <translation>milihenrio</translation>
    </message>
    <message>
        <source>gauss</source>
        <translation>gauss</translation>
    </message>
    <message>
        <source>milligauss</source>
        <translation>miligauss</translation>
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
        <translatorcomment>CLDR: vatio</translatorcomment>
        <translation>vatio</translation>
    </message>
    <message>
        <source>horsepower (metric)</source>
        <translation>caballo de vapor (métrico)</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>caballo de potencia (eléctrico europeo)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>caballo de potencia (mecánico imperial)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>caballo de potencia (eléctrico imperial)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: kilocaloría por hora</translatorcomment>
        <translation>kilocaloría por hora</translation>
    </message>
    <message>
        <source>kilowatt</source>
        <translatorcomment>CLDR: kilovatio</translatorcomment>
        <translation>kilovatio</translation>
    </message>
    <message>
        <source>megawatt</source>
        <translatorcomment>CLDR: megavatio</translatorcomment>
        <translation>megavatio</translation>
    </message>
    <message>
        <source>microwatt</source>
        <translatorcomment>CLDR: microvatio</translatorcomment>
        <translation>microvatio</translation>
    </message>
    <message>
        <source>volt ampere</source>
        <translatorcomment>CLDR: voltio-amperio</translatorcomment>
        <translation>voltio-amperio</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translatorcomment>CLDR: milivoltio-amperio</translatorcomment>
        <translation>milivoltio-amperio</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translatorcomment>CLDR: kilovoltio-amperio</translatorcomment>
        <translation>kilovoltio-amperio</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translatorcomment>CLDR: megavoltio-amperio</translatorcomment>
        <translation>megavoltio-amperio</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: milivatio</translatorcomment>
        <translation>milivatio</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>kilogramo-fuerza metro por segundo</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>pie libra-fuerza por segundo</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: caloría por segundo</translatorcomment>
        <translation>caloría por segundo</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: kilocaloría por segundo</translatorcomment>
        <translation>kilocaloría por segundo</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>unidad térmica británica (tabla internacional) por segundo</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>unidad térmica británica (tabla internacional) por hora</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>millón de unidades térmicas británicas (tabla internacional) por hora</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>mil unidades térmicas británicas (tabla internacional) por hora</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>tonelada de refrigeración</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: vatio por metro cúbico</translatorcomment>
        <translation>vatio por metro cúbico</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: vatio por pie cúbico</translatorcomment>
        <translation>vatio por pie cúbico</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>unidad térmica británica por hora y pie cúbico</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: vatio por kilogramo</translatorcomment>
        <translation>vatio por kilogramo</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: vatio por metro cuadrado</translatorcomment>
        <translation>vatio por metro cuadrado</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: kilovatio por metro cuadrado</translatorcomment>
        <translation>kilovatio por metro cuadrado</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: kilovatio por pie cuadrado</translatorcomment>
        <translation>kilovatio por pie cuadrado</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: vatio por pie cuadrado</translatorcomment>
        <translation>vatio por pie cuadrado</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>unidad térmica británica por hora y pie cuadrado</translation>
    </message>
    <message>
        <source>bar</source>
        <translatorcomment>CLDR: bar</translatorcomment>
        <translation>bar</translation>
    </message>
    <message>
        <source>bar absolute</source>
        <translation>bar absoluto</translation>
    </message>
    <message>
        <source>bar gauge</source>
        <translation>bar manométrico</translation>
    </message>
    <message>
        <source>inch of mercury</source>
        <translatorcomment>CLDR: pulgada de mercurio</translatorcomment>
        <translation>pulgada de mercurio</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>pulgada de agua</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translatorcomment>CLDR: kilobar</translatorcomment>
        <translation>kilobar</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: kilogramo por centímetro cuadrado</translatorcomment>
        <translation>kilogramo por centímetro cuadrado</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: kilopascal</translatorcomment>
        <translation>kilopascal</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: kilolibra por pulgada cuadrada</translatorcomment>
        <translation>kilolibra por pulgada cuadrada</translation>
    </message>
    <message>
        <source>mega pascal</source>
        <translatorcomment>CLDR: megapascal</translatorcomment>
        <translation>megapascal</translation>
    </message>
    <message>
        <source>millibar</source>
        <translatorcomment>CLDR: milibar</translatorcomment>
        <translation>milibar</translation>
    </message>
    <message>
        <source>millimeter of mercury</source>
        <translatorcomment>CLDR: milímetro de mercurio</translatorcomment>
        <translation>milímetro de mercurio</translation>
    </message>
    <message>
        <source>milli pascal</source>
        <translatorcomment>CLDR: milipascal</translatorcomment>
        <translation>milipascal</translation>
    </message>
    <message>
        <source>pascal</source>
        <translatorcomment>CLDR: pascal</translatorcomment>
        <translation>pascal</translation>
    </message>
    <message>
        <source>pound per square inch (atmosphere)</source>
        <translation>libra por pulgada cuadrada (absoluta)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>libra por pulgada cuadrada (manométrica)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: libra por pie cuadrado</translatorcomment>
        <translation>libra por pie cuadrado</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: libra por pulgada cuadrada</translatorcomment>
        <translation>libra por pulgada cuadrada</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>atmósfera (estándar)</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>atmósfera (técnica)</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>torr</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translatorcomment>CLDR: newton por milímetro cuadrado</translatorcomment>
        <translation>newton por milímetro cuadrado</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: newton por metro cuadrado</translatorcomment>
        <translation>newton por metro cuadrado</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translatorcomment>CLDR: decanewton por milímetro cuadrado</translatorcomment>
        <translation>decanewton por milímetro cuadrado</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: decanewton por metro cuadrado</translatorcomment>
        <translation>decanewton por metro cuadrado</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: kilonewton por metro cuadrado</translatorcomment>
        <translation>kilonewton por metro cuadrado</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: meganewton por metro cuadrado</translatorcomment>
        <translation>meganewton por metro cuadrado</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translatorcomment>CLDR: kilolibra por pie cuadrado</translatorcomment>
        <translation>kilolibra por pie cuadrado</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>kilogramo-fuerza por milímetro cuadrado</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>kilogramo-fuerza por centímetro cuadrado</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>kilogramo-fuerza por metro cuadrado</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>tonelada-fuerza por centímetro cuadrado</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>tonelada-fuerza por metro cuadrado</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>tonelada-fuerza por pie cuadrado</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translation>libra-fuerza por pulgada cuadrada</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>pie de agua</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>kip por pulgada cuadrada</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>kip por pie cuadrado</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>libra-fuerza por pie cuadrado</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: gigapascal</translatorcomment>
        <translation>gigapascal</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>dina por centímetro cuadrado</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translatorcomment>CLDR: newton por micrómetro cuadrado</translatorcomment>
        <translation>newton por micrómetro cuadrado</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: metro por newton</translatorcomment>
        <translation>metro por newton</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translatorcomment>CLDR: metro por kilonewton</translatorcomment>
        <translation>metro por kilonewton</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>pie por kip</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: metro cuadrado por newton</translatorcomment>
        <translation>metro cuadrado por newton</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: metro cuadrado por kilonewton</translatorcomment>
        <translation>metro cuadrado por kilonewton</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>pie cuadrado por kip</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: metro cúbico por newton</translatorcomment>
        <translation>metro cúbico por newton</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: metro cúbico por kilonewton</translatorcomment>
        <translation>metro cúbico por kilonewton</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>pie cúbico por kip</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: newton metro por metro</translatorcomment>
        <translation>newton metro por metro</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: decanewton metro por metro</translatorcomment>
        <translation>decanewton metro por metro</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: kilonewton metro por metro</translatorcomment>
        <translation>kilonewton metro por metro</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: meganewton metro por metro</translatorcomment>
        <translation>meganewton metro por metro</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>kip-pie por pie</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>kilogramo-fuerza metro por metro</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>tonelada-fuerza metro por metro</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translatorcomment>CLDR: libra pie por pie</translatorcomment>
        <translation>libra pie por pie</translation>
    </message>
    <message>
        <source>ohm</source>
        <translatorcomment>CLDR: ohmio</translatorcomment>
        <translation>ohmio</translation>
    </message>
    <message>
        <source>kilohm</source>
        <translatorcomment>CLDR: kiloohmio</translatorcomment>
        <translation>kiloohmio</translation>
    </message>
    <message>
        <source>gigaohm</source>
        <translatorcomment>CLDR: gigaohmio</translatorcomment>
        <translation>gigaohmio</translation>
    </message>
    <message>
        <source>megohm</source>
        <translatorcomment>CLDR: megaohmio</translatorcomment>
        <translation>megaohmio</translation>
    </message>
    <message>
        <source>microohm</source>
        <translatorcomment>CLDR: microohmio</translatorcomment>
        <translation>microohmio</translation>
    </message>
    <message>
        <source>milliohm</source>
        <translatorcomment>CLDR: miliohmio</translatorcomment>
        <translation>miliohmio</translation>
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
        <translatorcomment>CLDR: metro por segundo</translatorcomment>
        <translation>metro por segundo</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: milímetro por segundo</translatorcomment>
        <translation>milímetro por segundo</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: centímetro por segundo</translatorcomment>
        <translation>centímetro por segundo</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: metro por minuto</translatorcomment>
        <translation>metro por minuto</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: pulgada por segundo</translatorcomment>
        <translation>pulgada por segundo</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: pie por segundo</translatorcomment>
        <translation>pie por segundo</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: pulgada por minuto</translatorcomment>
        <translation>pulgada por minuto</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: pie por minuto</translatorcomment>
        <translation>pie por minuto</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: kilómetro por hora</translatorcomment>
        <translation>kilómetro por hora</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: milla por hora</translatorcomment>
        <translation>milla por hora</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: centímetro por minuto</translatorcomment>
        <translation>centímetro por minuto</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: pie por hora</translatorcomment>
        <translation>pie por hora</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: pulgada por hora</translatorcomment>
        <translation>pulgada por hora</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: kilómetro por minuto</translatorcomment>
        <translation>kilómetro por minuto</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: kilómetro por segundo</translatorcomment>
        <translation>kilómetro por segundo</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: nudo</translatorcomment>
        <translation>nudo</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>nudo (Reino Unido)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: metro por hora</translatorcomment>
        <translation>metro por hora</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: milla por minuto</translatorcomment>
        <translation>milla por minuto</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: milla por segundo</translatorcomment>
        <translation>milla por segundo</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>milla topográfica por hora</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>pie topográfico por segundo</translation>
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
        <translatorcomment>CLDR: grado Celsius</translatorcomment>
        <translation>grado Celsius</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: grado Fahrenheit</translatorcomment>
        <translation>grado Fahrenheit</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>grado Rankine</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: grado Celsius por minuto</translatorcomment>
        <translation>grado Celsius por minuto</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: grado Fahrenheit por minuto</translatorcomment>
        <translation>grado Fahrenheit por minuto</translation>
    </message>
    <message>
        <source>second</source>
        <translatorcomment>CLDR: segundo</translatorcomment>
        <translation>segundo</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translatorcomment>CLDR: yottasegundo</translatorcomment>
        <translation>yottasegundo</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translatorcomment>CLDR: zettasegundo</translatorcomment>
        <translation>zettasegundo</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translatorcomment>CLDR: exasegundo</translatorcomment>
        <translation>exasegundo</translation>
    </message>
    <message>
        <source>petasecond</source>
        <translatorcomment>CLDR: petasegundo</translatorcomment>
        <translation>petasegundo</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translatorcomment>CLDR: terasegundo</translatorcomment>
        <translation>terasegundo</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translatorcomment>CLDR: gigasegundo</translatorcomment>
        <translation>gigasegundo</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translatorcomment>CLDR: megasegundo</translatorcomment>
        <translation>megasegundo</translation>
    </message>
    <message>
        <source>kilosecond</source>
        <translatorcomment>CLDR: kilosegundo</translatorcomment>
        <translation>kilosegundo</translation>
    </message>
    <message>
        <source>hectosecond</source>
        <translatorcomment>CLDR: hectosegundo</translatorcomment>
        <translation>hectosegundo</translation>
    </message>
    <message>
        <source>decasecond</source>
        <translatorcomment>CLDR: decasegundo</translatorcomment>
        <translation>decasegundo</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translatorcomment>CLDR: decisegundo</translatorcomment>
        <translation>decisegundo</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translatorcomment>CLDR: centisegundo</translatorcomment>
        <translation>centisegundo</translation>
    </message>
    <message>
        <source>millisecond</source>
        <translatorcomment>CLDR: milisegundo</translatorcomment>
        <translation>milisegundo</translation>
    </message>
    <message>
        <source>microsecond</source>
        <translatorcomment>CLDR: microsegundo</translatorcomment>
        <translation>microsegundo</translation>
    </message>
    <message>
        <source>nanosecond</source>
        <translatorcomment>CLDR: nanosegundo</translatorcomment>
        <translation>nanosegundo</translation>
    </message>
    <message>
        <source>picosecond</source>
        <translatorcomment>CLDR: picosegundo</translatorcomment>
        <translation>picosegundo</translation>
    </message>
    <message>
        <source>femtosecond</source>
        <translatorcomment>CLDR: femtosegundo</translatorcomment>
        <translation>femtosegundo</translation>
    </message>
    <message>
        <source>attosecond</source>
        <translatorcomment>CLDR: attosegundo</translatorcomment>
        <translation>attosegundo</translation>
    </message>
    <message>
        <source>zeptosecond</source>
        <translatorcomment>CLDR: zeptosegundo</translatorcomment>
        <translation>zeptosegundo</translation>
    </message>
    <message>
        <source>yoctosecond</source>
        <translatorcomment>CLDR: yoctosegundo</translatorcomment>
        <translation>yoctosegundo</translation>
    </message>
    <message>
        <source>minute</source>
        <translatorcomment>CLDR: minuto</translatorcomment>
        <translation>minuto</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: hora</translatorcomment>
        <translation>hora</translation>
    </message>
    <message>
        <source>day</source>
        <translatorcomment>CLDR: día</translatorcomment>
        <translation>día</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: semana</translatorcomment>
        <translation>semana</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>quincena</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: mes</translatorcomment>
        <translation>mes</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>mes (hueco, 29 días)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>mes (lleno, 30 días)</translation>
    </message>
    <message>
        <source>year</source>
        <translatorcomment>CLDR: año</translatorcomment>
        <translation>año</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>año (gregoriano)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>año (juliano)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>año sideral</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>año trópico</translation>
    </message>
    <message>
        <source>annum</source>
        <translation>annum</translation>
    </message>
    <message>
        <source>decade</source>
        <translatorcomment>CLDR: década</translatorcomment>
        <translation>década</translation>
    </message>
    <message>
        <source>century</source>
        <translatorcomment>CLDR: siglo</translatorcomment>
        <translation>siglo</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>siglo (juliano)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>milenio</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>milenio (gregoriano)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>milenio (juliano)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>newton metro (par)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>newton centímetro (par)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>newton decámetro (par)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>pie libra (par)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>pulgada libra (par)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>metro kilogramo (par)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>centímetro kilogramo (par)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>pulgada onza (par)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>gramo centímetro (par)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>decanewton metro (par)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>kilonewton metro (par)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>meganewton metro (par)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>kip pie (par)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>kilogramo-fuerza metro (par)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>tonelada-fuerza metro (par)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>libra-fuerza pie (par)</translation>
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
        <translatorcomment>CLDR: pascal-segundo</translatorcomment>
        <translation>pascal-segundo</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>libra masa por pie y segundo</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>libra masa por pie y hora</translation>
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
        <translatorcomment>CLDR: metro por segundo al cuadrado</translatorcomment>
        <translation>metro por segundo al cuadrado</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>pie por segundo al cuadrado</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>pie topográfico por segundo al cuadrado</translation>
    </message>
    <message>
        <source>volt</source>
        <translatorcomment>CLDR: voltio</translatorcomment>
        <translation>voltio</translation>
    </message>
    <message>
        <source>kilovolt</source>
        <translatorcomment>CLDR: kilovoltio</translatorcomment>
        <translation>kilovoltio</translation>
    </message>
    <message>
        <source>microvolt</source>
        <translatorcomment>CLDR: microvoltio</translatorcomment>
        <translation>microvoltio</translation>
    </message>
    <message>
        <source>millivolt</source>
        <translatorcomment>CLDR: milivoltio</translatorcomment>
        <translation>milivoltio</translation>
    </message>
    <message>
        <source>volt (electrical potential)</source>
        <translation>voltio (potencial eléctrico)</translation>
    </message>
    <message>
        <source>abvolt</source>
        <translation>abvoltio</translation>
    </message>
    <message>
        <source>statvolt</source>
        <translation>estatvoltio</translation>
    </message>
    <message>
        <source>candela</source>
        <translatorcomment>CLDR: candela</translatorcomment>
        <translation>candela</translation>
    </message>
    <message>
        <source>lumen per steradian</source>
        <translation>lumen por estereorradián</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>bujía</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>lux (iluminancia)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>pie-candela</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translatorcomment>CLDR: lumen-segundo</translatorcomment>
        <translation>lumen-segundo</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>talbot</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>potencia luminosa</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: lumen</translatorcomment>
        <translation>lumen</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: candela por metro cuadrado</translatorcomment>
        <translation>candela por metro cuadrado</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>pie-lambert</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: candela por pie cuadrado</translatorcomment>
        <translation>candela por pie cuadrado</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>lux (emitancia)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: lumen por vatio</translatorcomment>
        <translation>lumen por vatio</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: pascal por metro</translatorcomment>
        <translation>pascal por metro</translation>
    </message>
    <message>
        <source>inch of water per 100foot</source>
        <translation>pulgada de agua por 100 pies</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>pie de agua por 100 pies</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>pulgada de mercurio por 100 pies</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>milímetro de mercurio por 100 pies</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: newton metro por grado</translatorcomment>
        <translation>newton metro por grado</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>kip pie por grado</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: kilonewton metro por grado</translatorcomment>
        <translation>kilonewton metro por grado</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>newton metro por grado y metro</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>kip pie por grado y pie</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>kilonewton metro por grado y metro</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>vatio por metro cuadrado y kelvin</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>unidad térmica británica por hora, pie cuadrado y grado Fahrenheit</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>metro cúbico por segundo y metro cuadrado</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>pie cúbico por minuto y pie cuadrado</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>litro por segundo y metro cuadrado</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>metro cúbico por segundo y metro cúbico</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>pie cúbico por minuto y pie cúbico</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>litro por segundo y metro cúbico</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>metro cúbico por segundo y vatio</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>pie cúbico por minuto y tonelada de refrigeración</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>litro por segundo y kilovatio</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: metro cuadrado por vatio</translatorcomment>
        <translation>metro cuadrado por vatio</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>pie cuadrado por tonelada de refrigeración</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: metro cuadrado por kilovatio</translatorcomment>
        <translation>metro cuadrado por kilovatio</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>pie cuadrado por mil unidades térmicas británicas por hora</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>segundo cuadrado por metro y kilogramo</translation>
    </message>
    <message>
        <source>inverse kilonewton</source>
        <translation>kilonewton inverso</translation>
    </message>
    <message>
        <source>inverse kip</source>
        <translation>kip inverso</translation>
    </message>
    <message>
        <source>inverse fahrenheit</source>
        <translation>grado Fahrenheit inverso</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>grado Celsius inverso</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>micrómetro por metro y grado Celsius</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>micropulgada por pulgada y grado Fahrenheit</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>oersted</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: amperio por metro</translatorcomment>
        <translation>amperio por metro</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>vatio por metro y kelvin</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>vatio por metro y grado Celsius</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>newton por segundo y grado Celsius</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>dina por segundo y grado Celsius</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>BTU pulgada por pie cuadrado, hora y grado Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>BTU por pulgada, segundo y grado Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>BTU por pie, segundo y grado Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>BTU por pie, hora y grado Fahrenheit</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>julio por gramo y grado Celsius</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>julio por kilogramo y grado Celsius</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>milímetro cuadrado por segundo cuadrado y grado Celsius</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>ergio por gramo y grado Celsius</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>micrómetro cuadrado por segundo cuadrado y grado Celsius</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>BTU por libra y grado Fahrenheit</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>nanogramo por pascal, segundo y metro cuadrado</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>grano por pie cuadrado, hora y pulgada de mercurio</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translatorcomment>CLDR: ohmio-metro</translatorcomment>
        <translation>ohmio-metro</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translatorcomment>CLDR: julio por gramo</translatorcomment>
        <translation>julio por gramo</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translatorcomment>CLDR: julio por kilogramo</translatorcomment>
        <translation>julio por kilogramo</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>BTU por libra</translation>
    </message>
</context>
</TS>
