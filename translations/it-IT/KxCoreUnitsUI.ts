<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>NumberFormat</name>
    <message>
        <source>Exponential</source>
        <translation>Esponenziale</translation>
    </message>
    <message>
        <source>exponential</source>
        <translation>esponenziale</translation>
    </message>
    <message>
        <source>Fixed Point</source>
        <translation>Virgola fissa</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>general</source>
        <translation>generale</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Frazione</translation>
    </message>
</context>
<context>
    <name>UnitGroup</name>
    <message>
        <source>Dimensionless</source>
        <translation>Adimensionale</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lunghezza</translation>
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
        <translation>Massa</translation>
    </message>
    <message>
        <source>Linear Weight</source>
        <translation>Massa lineica</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>Quantità di sostanza</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angolo</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>Angolo solido</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>Densità superficiale</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Concentrazione</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>Parti per (ppm, ppb)</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>Corrente elettrica</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>Carica elettrica</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>Capacità elettrica</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Velocità di trasmissione</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Densità</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>Peso specifico</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energia</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>Portata volumetrica</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>Portata massica</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>Portata per corsa</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Forza</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>Carico lineare</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenza</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>Induttanza</translation>
    </message>
    <message>
        <source>Magnetic Flux Density</source>
        <translation>Densità di flusso magnetico</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>Flusso magnetico</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Potenza</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>Potenza per unità di volume</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>Potenza per unità di massa</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>Potenza per unità di superficie</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pressione</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>Scala delle forze</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>Scala dei carichi lineari</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>Scala dei carichi superficiali</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>Momento lineico</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>Resistenza elettrica</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>Conduttanza elettrica</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>Memoria informatica</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>Velocità di variazione della temperatura</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>Coppia</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>Viscosità dinamica</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>Viscosità cinematica</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Accelerazione</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tensione elettrica</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>Potenziale elettrico</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>Intensità luminosa</translation>
    </message>
    <message>
        <source>Illuminance</source>
        <translation>Illuminamento</translation>
    </message>
    <message>
        <source>Luminous Energy</source>
        <translation>Energia luminosa</translation>
    </message>
    <message>
        <source>Luminous Flux</source>
        <translation>Flusso luminoso</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminanza</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>Emittanza luminosa</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>Efficienza luminosa</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Perdita di carico per attrito</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>Rigidezza rotazionale puntuale</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>Rigidezza rotazionale lineare</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>Coefficiente di scambio termico</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>Densità del flusso d&apos;aria</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>Flusso d&apos;aria per volume</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>Flusso d&apos;aria per potenza</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>Superficie per potenza</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>Scala dei momenti</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>Coefficiente di dilatazione termica</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>Intensità del campo magnetico</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>Conducibilità termica</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>Calore specifico</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>Permeabilità al vapore</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>Resistività elettrica</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>Calore latente di vaporizzazione</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>adimensionale</translation>
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
        <translatorcomment>CLDR: chilometro</translatorcomment>
        <translation>chilometro</translation>
    </message>
    <message>
        <source>hectometer</source>
        <translatorcomment>CLDR: ettometro</translatorcomment>
        <translation>ettometro</translation>
    </message>
    <message>
        <source>decameter</source>
        <translatorcomment>CLDR: decametro</translatorcomment>
        <translation>decametro</translation>
    </message>
    <message>
        <source>decimeter</source>
        <translatorcomment>CLDR: decimetro</translatorcomment>
        <translation>decimetro</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translatorcomment>CLDR: centimetro</translatorcomment>
        <translation>centimetro</translation>
    </message>
    <message>
        <source>millimeter</source>
        <translatorcomment>CLDR: millimetro</translatorcomment>
        <translation>millimetro</translation>
    </message>
    <message>
        <source>micrometer</source>
        <translatorcomment>CLDR: micrometro</translatorcomment>
        <translation>micrometro</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translatorcomment>CLDR: nanometro</translatorcomment>
        <translation>nanometro</translation>
    </message>
    <message>
        <source>picometer</source>
        <translatorcomment>CLDR: picometro</translatorcomment>
        <translation>picometro</translation>
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
        <translatorcomment>CLDR: pollice</translatorcomment>
        <translation>pollice</translation>
    </message>
    <message>
        <source>foot</source>
        <translatorcomment>CLDR: piede</translatorcomment>
        <translation>piede</translation>
    </message>
    <message>
        <source>foot (Benoit)</source>
        <translation>piede (Benoit)</translation>
    </message>
    <message>
        <source>foot (Clarke&apos;s; Cape)</source>
        <translation>piede (Clarke; Città del Capo)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>piede (India)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>piede (Sears)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>piede topografico (USA)</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: iarda</translatorcomment>
        <translation>iarda</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>catena</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>catena (Ramsden; dell&apos;ingegnere)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: furlong</translatorcomment>
        <translation>furlong</translation>
    </message>
    <message>
        <source>mile</source>
        <translatorcomment>CLDR: miglio</translatorcomment>
        <translation>miglio</translation>
    </message>
    <message>
        <source>geographical mile</source>
        <translation>miglio geografico</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>miglio topografico (USA)</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: miglio nautico</translatorcomment>
        <translation>miglio nautico</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>miglio terrestre</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>miglio nautico (Ammiragliato)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>micron</translation>
    </message>
    <message>
        <source>microinch</source>
        <translatorcomment>CLDR: micropollice</translatorcomment>
        <translation>micropollice</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>ångström</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: unità astronomica</translatorcomment>
        <translation>unità astronomica</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>cavo (misura nautica)</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>cubito</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: braccio</translatorcomment>
        <translation>braccio</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>palmo (hand)</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: anno luce</translatorcomment>
        <translation>anno luce</translation>
    </message>
    <message>
        <source>span</source>
        <translation>spanna</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>spanna (tessile)</translation>
    </message>
    <message>
        <source>parsec</source>
        <translatorcomment>CLDR: parsec</translatorcomment>
        <translation>parsec</translation>
    </message>
    <message>
        <source>nautical league</source>
        <translation>lega nautica</translation>
    </message>
    <message>
        <source>league</source>
        <translation>lega</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>millesimo di pollice</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>miglio scandinavo (Svezia e Norvegia)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>maglia</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>maglia (Ramsden; dell&apos;ingegnere)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>passo</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>palmo inglese</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>pertica (rod)</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>corda (rope)</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>matassa</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>calibro</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>pollice topografico</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>iarda topografica</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>pertica topografica</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>pezza (bolt)</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: metro quadrato</translatorcomment>
        <translation>metro quadrato</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: pollice quadrato</translatorcomment>
        <translation>pollice quadrato</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: piede quadrato</translatorcomment>
        <translation>piede quadrato</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: iarda quadrata</translatorcomment>
        <translation>iarda quadrata</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: acro</translatorcomment>
        <translation>acro</translation>
    </message>
    <message>
        <source>section</source>
        <translation>sezione</translation>
    </message>
    <message>
        <source>township</source>
        <translation>township (6 miglia per lato)</translation>
    </message>
    <message>
        <source>hectare</source>
        <translatorcomment>CLDR: ettaro</translatorcomment>
        <translation>ettaro</translation>
    </message>
    <message>
        <source>square kilometer</source>
        <translatorcomment>CLDR: chilometro quadrato</translatorcomment>
        <translation>chilometro quadrato</translation>
    </message>
    <message>
        <source>square mile</source>
        <translatorcomment>CLDR: miglio quadrato</translatorcomment>
        <translation>miglio quadrato</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translatorcomment>CLDR: centimetro quadrato</translatorcomment>
        <translation>centimetro quadrato</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translatorcomment>CLDR: millimetro quadrato</translatorcomment>
        <translation>millimetro quadrato</translation>
    </message>
    <message>
        <source>circular mil</source>
        <translation>mil circolare</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>chilo-mil circolare</translation>
    </message>
    <message>
        <source>are</source>
        <translation>ara</translation>
    </message>
    <message>
        <source>barn</source>
        <translation>barn</translation>
    </message>
    <message>
        <source>centare</source>
        <translation>centiara</translation>
    </message>
    <message>
        <source>square angstrom</source>
        <translation>ångström quadrato</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>pezza quadrata</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>cavo quadrato</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>calibro quadrato</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>cubito quadrato</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translatorcomment>CLDR: decimetro quadrato</translatorcomment>
        <translation>decimetro quadrato</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translatorcomment>CLDR: braccio quadrato</translatorcomment>
        <translation>braccio quadrato</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translatorcomment>CLDR: furlong quadrato</translatorcomment>
        <translation>furlong quadrato</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translatorcomment>CLDR: gigametro quadrato</translatorcomment>
        <translation>gigametro quadrato</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>palmo (hand) quadrato</translation>
    </message>
    <message>
        <source>square nautical league</source>
        <translation>lega nautica quadrata</translation>
    </message>
    <message>
        <source>square league (statute)</source>
        <translation>lega quadrata (terrestre)</translation>
    </message>
    <message>
        <source>square light-year</source>
        <translatorcomment>CLDR: anno luce quadrato</translatorcomment>
        <translation>anno luce quadrato</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>maglia quadrata</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>micron quadrato</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>miglio quadrato (nautico britannico)</translation>
    </message>
    <message>
        <source>square mile (statute)</source>
        <translation>miglio quadrato (terrestre)</translation>
    </message>
    <message>
        <source>square millimicron</source>
        <translation>millimicron quadrato</translation>
    </message>
    <message>
        <source>square pace</source>
        <translation>passo quadrato</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>palmo inglese quadrato</translation>
    </message>
    <message>
        <source>square parsec</source>
        <translatorcomment>CLDR: parsec quadrato</translatorcomment>
        <translation>parsec quadrato</translation>
    </message>
    <message>
        <source>square perch</source>
        <translation>pertica quadrata</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>corda quadrata</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>matassa quadrata</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>spanna quadrata</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>piede topografico quadrato</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>catena quadrata</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>millesimo di pollice quadrato</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translation>unità astronomica quadrata</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>acro topografico</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>iarda topografica quadrata</translation>
    </message>
    <message>
        <source>board</source>
        <translation>tavola (board)</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>corda di legna (superficie)</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>micropollice quadrato</translation>
    </message>
    <message>
        <source>square micrometer</source>
        <translatorcomment>CLDR: micrometro quadrato</translatorcomment>
        <translation>micrometro quadrato</translation>
    </message>
    <message>
        <source>liter</source>
        <translatorcomment>CLDR: litro</translatorcomment>
        <translation>litro</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translatorcomment>CLDR: centimetro cubo</translatorcomment>
        <translation>centimetro cubo</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translatorcomment>CLDR: cucchiaio da tavola</translatorcomment>
        <translation>cucchiaio da tavola</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>cucchiaio (Canada)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>cucchiaio (USA)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>oncia liquida (imperiale)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>oncia liquida (USA)</translation>
    </message>
    <message>
        <source>cup</source>
        <translation>tazza</translation>
    </message>
    <message>
        <source>cup (Canadian)</source>
        <translation>tazza (Canada)</translation>
    </message>
    <message>
        <source>cup (U.S.)</source>
        <translation>tazza (USA)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>quarto di gallone (imperiale)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>quarto di gallone (USA, liquidi)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>quarto di gallone (USA, aridi)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>gallone (imperiale)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>gallone (USA, liquidi; vino)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>gallone (USA, aridi)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>gallone da birra</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>staio (imperiale)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>staio (USA, raso)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>staio (USA, colmo)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: centilitro</translatorcomment>
        <translation>centilitro</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: piede cubo</translatorcomment>
        <translation>piede cubo</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: pollice cubo</translatorcomment>
        <translation>pollice cubo</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: metro cubo</translatorcomment>
        <translation>metro cubo</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: iarda cubica</translatorcomment>
        <translation>iarda cubica</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>dramma fluida</translation>
    </message>
    <message>
        <source>microliter</source>
        <translatorcomment>CLDR: microlitro</translatorcomment>
        <translation>microlitro</translation>
    </message>
    <message>
        <source>milliliter</source>
        <translatorcomment>CLDR: millilitro</translatorcomment>
        <translation>millilitro</translation>
    </message>
    <message>
        <source>pint (imperial)</source>
        <translation>pinta (imperiale)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>pinta (USA, liquidi)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>pinta (USA, aridi)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: cucchiaio da tè</translatorcomment>
        <translation>cucchiaio da tè</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>cucchiaino (Canada)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>cucchiaino (USA)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>cucchiaino (imperiale)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translatorcomment>CLDR: millimetro cubo</translatorcomment>
        <translation>millimetro cubo</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>barile (imperiale)</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>barile (petrolio)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>barile (USA, aridi)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>barile (USA, liquidi)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>piede di tavola</translation>
    </message>
    <message>
        <source>decistere</source>
        <translation>decistero</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translatorcomment>CLDR: decalitro</translatorcomment>
        <translation>decalitro</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>decastero</translation>
    </message>
    <message>
        <source>dram</source>
        <translatorcomment>CLDR: dramma</translatorcomment>
        <translation>dramma</translation>
    </message>
    <message>
        <source>firkin</source>
        <translation>firkin</translation>
    </message>
    <message>
        <source>cubic angstrom</source>
        <translation>ångström cubo</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translation>unità astronomica cubica</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>pezza cubica</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>cavo cubo</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>calibro cubo</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>catena cubica</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>cubito cubo</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translatorcomment>CLDR: braccio cubo</translatorcomment>
        <translation>braccio cubo</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translatorcomment>CLDR: furlong cubo</translatorcomment>
        <translation>furlong cubo</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translatorcomment>CLDR: gigametro cubo</translatorcomment>
        <translation>gigametro cubo</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>palmo (hand) cubo</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translatorcomment>CLDR: ettometro cubo</translatorcomment>
        <translation>ettometro cubo</translation>
    </message>
    <message>
        <source>cubic nautical league</source>
        <translation>lega nautica cubica</translation>
    </message>
    <message>
        <source>cubic league (statute)</source>
        <translation>lega cubica (terrestre)</translation>
    </message>
    <message>
        <source>cubic light-year</source>
        <translatorcomment>CLDR: anno luce cubo</translatorcomment>
        <translation>anno luce cubo</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>maglia cubica</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>millesimo di pollice cubo</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>miglio cubo (nautico britannico)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: miglio cubo</translatorcomment>
        <translation>miglio cubo</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translatorcomment>CLDR: miglio nautico cubo</translatorcomment>
        <translation>miglio nautico cubo</translation>
    </message>
    <message>
        <source>cubic mile (statute)</source>
        <translation>miglio cubo (terrestre)</translation>
    </message>
    <message>
        <source>cubic millimicron</source>
        <translation>millimicron cubo</translation>
    </message>
    <message>
        <source>cubic pace</source>
        <translation>passo cubo</translation>
    </message>
    <message>
        <source>cubic palm</source>
        <translation>palmo inglese cubo</translation>
    </message>
    <message>
        <source>cubic parsec</source>
        <translatorcomment>CLDR: parsec cubo</translatorcomment>
        <translation>parsec cubo</translation>
    </message>
    <message>
        <source>cubic perch</source>
        <translation>pertica cubica</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>corda cubica</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>matassa cubica</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>spanna cubica</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>piede topografico cubo</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translatorcomment>CLDR: decimetro cubo</translatorcomment>
        <translation>decimetro cubo</translation>
    </message>
    <message>
        <source>tun</source>
        <translation>botte</translation>
    </message>
    <message>
        <source>peck</source>
        <translation>peck</translation>
    </message>
    <message>
        <source>peck (U.S. dry)</source>
        <translation>peck (USA, aridi)</translation>
    </message>
    <message>
        <source>peck (imperial)</source>
        <translation>peck (imperiale)</translation>
    </message>
    <message>
        <source>minim (imperial)</source>
        <translation>minima (imperiale)</translation>
    </message>
    <message>
        <source>minim (U.S.)</source>
        <translation>minima (USA)</translation>
    </message>
    <message>
        <source>kiloliter</source>
        <translatorcomment>CLDR: chilolitro</translatorcomment>
        <translation>chilolitro</translation>
    </message>
    <message>
        <source>hogshead (U.S.)</source>
        <translation>barrique (USA)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>barrique (imperiale)</translation>
    </message>
    <message>
        <source>gill (imperial)</source>
        <translation>gill (imperiale)</translation>
    </message>
    <message>
        <source>gill (U.S.)</source>
        <translation>gill (USA)</translation>
    </message>
    <message>
        <source>cubic survey yard</source>
        <translation>iarda topografica cubica</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>piede di corda di legna</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>corda di legna</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>tonnellata di stazza</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: piede acro</translatorcomment>
        <translation>piede acro</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>acro-pollice</translation>
    </message>
    <message>
        <source>cubic microinch</source>
        <translation>micropollice cubo</translation>
    </message>
    <message>
        <source>cubic micrometer</source>
        <translatorcomment>CLDR: micrometro cubo</translatorcomment>
        <translation>micrometro cubo</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translatorcomment>CLDR: chilometro cubo</translatorcomment>
        <translation>chilometro cubo</translation>
    </message>
    <message>
        <source>kilogram</source>
        <translatorcomment>CLDR: chilogrammo</translatorcomment>
        <translation>chilogrammo</translation>
    </message>
    <message>
        <source>gram</source>
        <translatorcomment>CLDR: grammo</translatorcomment>
        <translation>grammo</translation>
    </message>
    <message>
        <source>yottagram</source>
        <translatorcomment>CLDR: yottagrammo</translatorcomment>
        <translation>yottagrammo</translation>
    </message>
    <message>
        <source>zettagram</source>
        <translatorcomment>CLDR: zettagrammo</translatorcomment>
        <translation>zettagrammo</translation>
    </message>
    <message>
        <source>exagram</source>
        <translatorcomment>CLDR: exagrammo</translatorcomment>
        <translation>exagrammo</translation>
    </message>
    <message>
        <source>petagram</source>
        <translatorcomment>CLDR: petagrammo</translatorcomment>
        <translation>petagrammo</translation>
    </message>
    <message>
        <source>teragram</source>
        <translatorcomment>CLDR: teragrammo</translatorcomment>
        <translation>teragrammo</translation>
    </message>
    <message>
        <source>gigagram</source>
        <translatorcomment>CLDR: gigagrammo</translatorcomment>
        <translation>gigagrammo</translation>
    </message>
    <message>
        <source>megagram</source>
        <translatorcomment>CLDR: megagrammo</translatorcomment>
        <translation>megagrammo</translation>
    </message>
    <message>
        <source>hectogram</source>
        <translatorcomment>CLDR: ettogrammo</translatorcomment>
        <translation>ettogrammo</translation>
    </message>
    <message>
        <source>decagram</source>
        <translatorcomment>CLDR: decagrammo</translatorcomment>
        <translation>decagrammo</translation>
    </message>
    <message>
        <source>decigram</source>
        <translatorcomment>CLDR: decigrammo</translatorcomment>
        <translation>decigrammo</translation>
    </message>
    <message>
        <source>centigram</source>
        <translatorcomment>CLDR: centigrammo</translatorcomment>
        <translation>centigrammo</translation>
    </message>
    <message>
        <source>milligram</source>
        <translatorcomment>CLDR: milligrammo</translatorcomment>
        <translation>milligrammo</translation>
    </message>
    <message>
        <source>microgram</source>
        <translatorcomment>CLDR: microgrammo</translatorcomment>
        <translation>microgrammo</translation>
    </message>
    <message>
        <source>nanogram</source>
        <translatorcomment>CLDR: nanogrammo</translatorcomment>
        <translation>nanogrammo</translation>
    </message>
    <message>
        <source>picogram</source>
        <translatorcomment>CLDR: picogrammo</translatorcomment>
        <translation>picogrammo</translation>
    </message>
    <message>
        <source>femtogram</source>
        <translatorcomment>CLDR: femtogrammo</translatorcomment>
        <translation>femtogrammo</translation>
    </message>
    <message>
        <source>attogram</source>
        <translatorcomment>CLDR: attogrammo</translatorcomment>
        <translation>attogrammo</translation>
    </message>
    <message>
        <source>zeptogram</source>
        <translatorcomment>CLDR: zeptogrammo</translatorcomment>
        <translation>zeptogrammo</translation>
    </message>
    <message>
        <source>yoctogram</source>
        <translatorcomment>CLDR: yoctogrammo</translatorcomment>
        <translation>yoctogrammo</translation>
    </message>
    <message>
        <source>pound (meter)</source>
        <translation>libbra metrica</translation>
    </message>
    <message>
        <source>pound</source>
        <translatorcomment>CLDR: libbra</translatorcomment>
        <translation>libbra</translation>
    </message>
    <message>
        <source>pound (troy)</source>
        <translation>libbra troy</translation>
    </message>
    <message>
        <source>ounce (avoirdupois)</source>
        <translation>oncia (avoirdupois)</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>oncia (farmaceutica; troy)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: stone</translatorcomment>
        <translation>stone</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>tonnellata corta</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>tonnellata lunga</translation>
    </message>
    <message>
        <source>carat</source>
        <translatorcomment>CLDR: carato</translatorcomment>
        <translation>carato</translation>
    </message>
    <message>
        <source>carat (metric)</source>
        <translation>carato (metrico)</translation>
    </message>
    <message>
        <source>dram (avoirdupois)</source>
        <translation>dramma (avoirdupois)</translation>
    </message>
    <message>
        <source>dram (apothecary; troy)</source>
        <translation>dramma (farmaceutica; troy)</translation>
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
        <translation>quintale lungo (hundredweight)</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>quintale corto (hundredweight)</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: grano</translatorcomment>
        <translation>grano</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>grano di perla</translation>
    </message>
    <message>
        <source>dalton</source>
        <translatorcomment>CLDR: dalton</translatorcomment>
        <translation>dalton</translation>
    </message>
    <message>
        <source>kilodalton</source>
        <translatorcomment>CLDR: chilodalton</translatorcomment>
        <translation>chilodalton</translation>
    </message>
    <message>
        <source>slug</source>
        <translation>slug</translation>
    </message>
    <message>
        <source>kilogram per meter</source>
        <translatorcomment>CLDR: chilogrammo per metro</translatorcomment>
        <translation>chilogrammo per metro</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: libbra per piede</translatorcomment>
        <translation>libbra per piede</translation>
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
        <translatorcomment>CLDR: chilomole</translatorcomment>
        <translation>chilomole</translation>
    </message>
    <message>
        <source>hectomole</source>
        <translatorcomment>CLDR: ettomole</translatorcomment>
        <translation>ettomole</translation>
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
        <translatorcomment>CLDR: radiante</translatorcomment>
        <translation>radiante</translation>
    </message>
    <message>
        <source>degree</source>
        <translatorcomment>CLDR: grado</translatorcomment>
        <translation>grado</translation>
    </message>
    <message>
        <source>milliradian</source>
        <translatorcomment>CLDR: milliradiante</translatorcomment>
        <translation>milliradiante</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>gon</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>millesimo angolare (NATO)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>millesimo angolare (Svezia)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>millesimo angolare (URSS)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translatorcomment>CLDR: primo d’arco</translatorcomment>
        <translation>primo d’arco</translation>
    </message>
    <message>
        <source>angle second</source>
        <translatorcomment>CLDR: secondo d’arco</translatorcomment>
        <translation>secondo d’arco</translation>
    </message>
    <message>
        <source>milliarc second</source>
        <translation>millisecondo d&apos;arco</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>steradiante</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: grammo per metro quadrato</translatorcomment>
        <translation>grammo per metro quadrato</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: grammo per pollice quadrato</translatorcomment>
        <translation>grammo per pollice quadrato</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translatorcomment>CLDR: nanogrammo per litro</translatorcomment>
        <translation>nanogrammo per litro</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translatorcomment>CLDR: nanogrammo al decilitro</translatorcomment>
        <translation>nanogrammo al decilitro</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translatorcomment>CLDR: nanogrammo al millilitro</translatorcomment>
        <translation>nanogrammo al millilitro</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translatorcomment>CLDR: nanogrammo al microlitro</translatorcomment>
        <translation>nanogrammo al microlitro</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: parte per milione</translatorcomment>
        <translation>parte per milione</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>parte per miliardo</translation>
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
        <translatorcomment>CLDR: chiloampere</translatorcomment>
        <translation>chiloampere</translation>
    </message>
    <message>
        <source>hectoampere</source>
        <translatorcomment>CLDR: ettoampere</translatorcomment>
        <translation>ettoampere</translation>
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
        <translatorcomment>CLDR: ampere ora</translatorcomment>
        <translation>ampere ora</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translatorcomment>CLDR: milliampere ora</translatorcomment>
        <translation>milliampere ora</translation>
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
        <translation>chilofarad</translation>
    </message>
    <message>
        <source>hectofarad</source>
        <translation>ettofarad</translation>
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
        <translation>chilopicofarad</translation>
    </message>
    <message>
        <source>baud</source>
        <translation>baud</translation>
    </message>
    <message>
        <source>bit per second</source>
        <translatorcomment>CLDR: bit al secondo</translatorcomment>
        <translation>bit al secondo</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: byte al secondo</translatorcomment>
        <translation>byte al secondo</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>kilobaud</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: kilobit al secondo</translatorcomment>
        <translation>kilobit al secondo</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: kilobyte al secondo</translatorcomment>
        <translation>kilobyte al secondo</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>megabaud</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: megabit al secondo</translatorcomment>
        <translation>megabit al secondo</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: megabyte al secondo</translatorcomment>
        <translation>megabyte al secondo</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: chilogrammo per metro cubo</translatorcomment>
        <translation>chilogrammo per metro cubo</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translatorcomment>CLDR: chilogrammo per litro</translatorcomment>
        <translation>chilogrammo per litro</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translatorcomment>CLDR: grammo per litro</translatorcomment>
        <translation>grammo per litro</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translatorcomment>CLDR: microgrammo al millilitro</translatorcomment>
        <translation>microgrammo al millilitro</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: milligrammo al millilitro</translatorcomment>
        <translation>milligrammo al millilitro</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: libbra per gallone</translatorcomment>
        <translation>libbra per gallone</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: oncia per gallone</translatorcomment>
        <translation>oncia per gallone</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: libbra al piede cubo</translatorcomment>
        <translation>libbra al piede cubo</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: libbra al pollice cubo</translatorcomment>
        <translation>libbra al pollice cubo</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: grammo per centimetro cubo</translatorcomment>
        <translation>grammo per centimetro cubo</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>newton secondo quadrato per millimetro alla quarta</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: newton per metro cubo</translatorcomment>
        <translation>newton per metro cubo</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: chilonewton per metro cubo</translatorcomment>
        <translation>chilonewton per metro cubo</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>libbra-forza al piede cubo</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>kip al pollice cubo</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>kip al piede cubo</translation>
    </message>
    <message>
        <source>joule</source>
        <translatorcomment>CLDR: joule</translatorcomment>
        <translation>joule</translation>
    </message>
    <message>
        <source>calorie</source>
        <translatorcomment>CLDR: caloria</translatorcomment>
        <translation>caloria</translation>
    </message>
    <message>
        <source>kilocalorie</source>
        <translatorcomment>CLDR: chilocaloria</translatorcomment>
        <translation>chilocaloria</translation>
    </message>
    <message>
        <source>British thermal unit (thermochemical)</source>
        <translation>unità termica britannica (termochimica)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>unità termica britannica (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>unità termica britannica (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>unità termica britannica (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>unità termica britannica (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>unità termica britannica (tabella internazionale)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>unità termica britannica (media)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>unità termica britannica (39 °F)</translation>
    </message>
    <message>
        <source>kiloelectronvolt</source>
        <translatorcomment>CLDR: chiloelettronvolt</translatorcomment>
        <translation>chiloelettronvolt</translation>
    </message>
    <message>
        <source>megaelectronvolt</source>
        <translatorcomment>CLDR: megaelettronvolt</translatorcomment>
        <translation>megaelettronvolt</translation>
    </message>
    <message>
        <source>electronvolt</source>
        <translatorcomment>CLDR: elettronvolt</translatorcomment>
        <translation>elettronvolt</translation>
    </message>
    <message>
        <source>erg</source>
        <translation>erg</translation>
    </message>
    <message>
        <source>kilowatt hour</source>
        <translatorcomment>CLDR: chilowattora</translatorcomment>
        <translation>chilowattora</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translatorcomment>CLDR: kilowatt minuto</translatorcomment>
        <translation>kilowatt minuto</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translatorcomment>CLDR: kilowatt secondo</translatorcomment>
        <translation>kilowatt secondo</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>therm (USA)</translation>
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
        <translatorcomment>CLDR: chilonewton metro</translatorcomment>
        <translation>chilonewton metro</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translatorcomment>CLDR: meganewton metro</translatorcomment>
        <translation>meganewton metro</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>chilogrammo-forza metro</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>chilogrammo-forza piede</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>tonnellata-forza piede</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>tonnellata-forza metro</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>piede chilolibbra</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>piede libbra-forza</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>caloria (20 °C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>caloria (termochimica)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>caloria (15 °C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>caloria (media)</translation>
    </message>
    <message>
        <source>calorie (3.98 degree C)</source>
        <translation>caloria (3,98 °C)</translation>
    </message>
    <message>
        <source>Therm (EC)</source>
        <translation>therm (CE)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: metro cubo al secondo</translatorcomment>
        <translation>metro cubo al secondo</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: litro al secondo</translatorcomment>
        <translation>litro al secondo</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: litro al minuto</translatorcomment>
        <translation>litro al minuto</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: litro all’ora</translatorcomment>
        <translation>litro all’ora</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translatorcomment>CLDR: gallone al secondo</translatorcomment>
        <translation>gallone al secondo</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: gallone al minuto</translatorcomment>
        <translation>gallone al minuto</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: gallone all’ora</translatorcomment>
        <translation>gallone all’ora</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: gallone al giorno</translatorcomment>
        <translation>gallone al giorno</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: millilitro al minuto</translatorcomment>
        <translation>millilitro al minuto</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: centimetro cubo al minuto</translatorcomment>
        <translation>centimetro cubo al minuto</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: piede cubo all’ora</translatorcomment>
        <translation>piede cubo all’ora</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: piede cubo al minuto</translatorcomment>
        <translation>piede cubo al minuto</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: piede cubo al secondo</translatorcomment>
        <translation>piede cubo al secondo</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: pollice cubo al minuto</translatorcomment>
        <translation>pollice cubo al minuto</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: metro cubo all’ora</translatorcomment>
        <translation>metro cubo all’ora</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: metro cubo al minuto</translatorcomment>
        <translation>metro cubo al minuto</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: centimetro cubo al secondo</translatorcomment>
        <translation>centimetro cubo al secondo</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: centimetro cubo all’ora</translatorcomment>
        <translation>centimetro cubo all’ora</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>gallone USA all&apos;ora</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>gallone USA al secondo</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>gallone imperiale al giorno</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>gallone imperiale all&apos;ora</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>gallone imperiale al minuto</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>gallone imperiale al secondo</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>milione di galloni imperiali al giorno</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: litro al giorno</translatorcomment>
        <translation>litro al giorno</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>milione di litri al giorno</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>gallone USA al giorno</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>milione di galloni USA al giorno</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: piede cubo al giorno</translatorcomment>
        <translation>piede cubo al giorno</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: metro cubo al giorno</translatorcomment>
        <translation>metro cubo al giorno</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: iarda cubica al minuto</translatorcomment>
        <translation>iarda cubica al minuto</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: piede acro al giorno</translatorcomment>
        <translation>piede acro al giorno</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: piede acro all’ora</translatorcomment>
        <translation>piede acro all’ora</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: piede acro al minuto</translatorcomment>
        <translation>piede acro al minuto</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>acro-pollice all&apos;ora</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>acro-pollice al minuto</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>piede topografico cubo al secondo</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: chilogrammo al secondo</translatorcomment>
        <translation>chilogrammo al secondo</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: chilogrammo al minuto</translatorcomment>
        <translation>chilogrammo al minuto</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: chilogrammo all’ora</translatorcomment>
        <translation>chilogrammo all’ora</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: grammo al secondo</translatorcomment>
        <translation>grammo al secondo</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: grammo al minuto</translatorcomment>
        <translation>grammo al minuto</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: grammo all’ora</translatorcomment>
        <translation>grammo all’ora</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: libbra al secondo</translatorcomment>
        <translation>libbra al secondo</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: libbra al minuto</translatorcomment>
        <translation>libbra al minuto</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: libbra all’ora</translatorcomment>
        <translation>libbra all’ora</translation>
    </message>
    <message>
        <source>pint per stroke</source>
        <translation>pinta per corsa</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>quarto di gallone per corsa</translation>
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
        <translatorcomment>CLDR: chilonewton</translatorcomment>
        <translation>chilonewton</translation>
    </message>
    <message>
        <source>hectonewton</source>
        <translatorcomment>CLDR: ettonewton</translatorcomment>
        <translation>ettonewton</translation>
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
        <translation>chilolibbra</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>chilogrammo-forza</translation>
    </message>
    <message>
        <source>pound force</source>
        <translatorcomment>CLDR: libbra-forza</translatorcomment>
        <translation>libbra-forza</translation>
    </message>
    <message>
        <source>kip</source>
        <translation>kip</translation>
    </message>
    <message>
        <source>ton force</source>
        <translation>tonnellata-forza</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>dina</translation>
    </message>
    <message>
        <source>lbforce</source>
        <translation>lbf (libbra-forza)</translation>
    </message>
    <message>
        <source>ounce force</source>
        <translation>oncia-forza</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: newton per metro</translatorcomment>
        <translation>newton per metro</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>chilolibbra al piede</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>chilogrammo-forza al metro</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>tonnellata-forza al metro</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>libbra-forza al piede</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: decanewton per metro</translatorcomment>
        <translation>decanewton per metro</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translatorcomment>CLDR: chilonewton per metro</translatorcomment>
        <translation>chilonewton per metro</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translatorcomment>CLDR: meganewton per metro</translatorcomment>
        <translation>meganewton per metro</translation>
    </message>
    <message>
        <source>kip per foot</source>
        <translation>kip al piede</translation>
    </message>
    <message>
        <source>kip per inch</source>
        <translation>kip al pollice</translation>
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
        <translation>ciclo al secondo</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: rivoluzione al minuto</translatorcomment>
        <translation>rivoluzione al minuto</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>lampo al secondo</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>lampo al minuto</translation>
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
        <translation>cavallo vapore (metrico)</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>cavallo vapore (elettrico europeo)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>cavallo vapore (meccanico imperiale)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>cavallo vapore (elettrico imperiale)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: chilocaloria all’ora</translatorcomment>
        <translation>chilocaloria all’ora</translation>
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
        <translatorcomment>CLDR: volt ampere</translatorcomment>
        <translation>volt ampere</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translatorcomment>CLDR: millivolt ampere</translatorcomment>
        <translation>millivolt ampere</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translatorcomment>CLDR: chilovolt ampere</translatorcomment>
        <translation>chilovolt ampere</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translatorcomment>CLDR: megavolt ampere</translatorcomment>
        <translation>megavolt ampere</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: milliwatt</translatorcomment>
        <translation>milliwatt</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>chilogrammo-forza metro al secondo</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>piede libbra-forza al secondo</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: caloria al secondo</translatorcomment>
        <translation>caloria al secondo</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: chilocaloria al secondo</translatorcomment>
        <translation>chilocaloria al secondo</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>unità termica britannica (tabella internazionale) al secondo</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>unità termica britannica (tabella internazionale) all&apos;ora</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>milione di unità termiche britanniche (tabella internazionale) all&apos;ora</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>mille unità termiche britanniche (tabella internazionale) all&apos;ora</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>tonnellata di refrigerazione</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: watt per metro cubo</translatorcomment>
        <translation>watt per metro cubo</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: watt al piede cubo</translatorcomment>
        <translation>watt al piede cubo</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>unità termica britannica per ora e piede cubo</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: watt per chilogrammo</translatorcomment>
        <translation>watt per chilogrammo</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: watt per metro quadrato</translatorcomment>
        <translation>watt per metro quadrato</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: kilowatt per metro quadrato</translatorcomment>
        <translation>kilowatt per metro quadrato</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: kilowatt al piede quadrato</translatorcomment>
        <translation>kilowatt al piede quadrato</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: watt al piede quadrato</translatorcomment>
        <translation>watt al piede quadrato</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>unità termica britannica per ora e piede quadrato</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>bar</translation>
    </message>
    <message>
        <source>bar absolute</source>
        <translation>bar assoluto</translation>
    </message>
    <message>
        <source>bar gauge</source>
        <translation>bar relativo</translation>
    </message>
    <message>
        <source>inch of mercury</source>
        <translatorcomment>CLDR: pollice di mercurio</translatorcomment>
        <translation>pollice di mercurio</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>pollice d&apos;acqua</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translation>kilobar</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: chilogrammo per centimetro quadrato</translatorcomment>
        <translation>chilogrammo per centimetro quadrato</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: chilopascal</translatorcomment>
        <translation>chilopascal</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: chilolibbra per pollice quadrato</translatorcomment>
        <translation>chilolibbra per pollice quadrato</translation>
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
        <translatorcomment>CLDR: millimetro di mercurio</translatorcomment>
        <translation>millimetro di mercurio</translation>
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
        <translation>libbra al pollice quadrato (assoluta)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>libbra al pollice quadrato (relativa)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: libbra al piede quadrato</translatorcomment>
        <translation>libbra al piede quadrato</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: libbra per pollice quadrato</translatorcomment>
        <translation>libbra per pollice quadrato</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>atmosfera (standard)</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>atmosfera (tecnica)</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>torr</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translatorcomment>CLDR: newton al millimetro quadrato</translatorcomment>
        <translation>newton al millimetro quadrato</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: newton per metro quadrato</translatorcomment>
        <translation>newton per metro quadrato</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translatorcomment>CLDR: decanewton al millimetro quadrato</translatorcomment>
        <translation>decanewton al millimetro quadrato</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: decanewton per metro quadrato</translatorcomment>
        <translation>decanewton per metro quadrato</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: chilonewton per metro quadrato</translatorcomment>
        <translation>chilonewton per metro quadrato</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: meganewton per metro quadrato</translatorcomment>
        <translation>meganewton per metro quadrato</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translatorcomment>CLDR: chilolibbra al piede quadrato</translatorcomment>
        <translation>chilolibbra al piede quadrato</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>chilogrammo-forza al millimetro quadrato</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>chilogrammo-forza al centimetro quadrato</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>chilogrammo-forza al metro quadrato</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>tonnellata-forza al centimetro quadrato</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>tonnellata-forza al metro quadrato</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>tonnellata-forza al piede quadrato</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translation>libbra-forza per pollice quadrato</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>piede d&apos;acqua</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>kip al pollice quadrato</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>kip al piede quadrato</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>libbra-forza al piede quadrato</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: gigapascal</translatorcomment>
        <translation>gigapascal</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>dina al centimetro quadrato</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translatorcomment>CLDR: newton al micrometro quadrato</translatorcomment>
        <translation>newton al micrometro quadrato</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: metro al newton</translatorcomment>
        <translation>metro al newton</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translatorcomment>CLDR: metro al chilonewton</translatorcomment>
        <translation>metro al chilonewton</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>piede al kip</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: metro quadrato al newton</translatorcomment>
        <translation>metro quadrato al newton</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: metro quadrato al chilonewton</translatorcomment>
        <translation>metro quadrato al chilonewton</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>piede quadrato al kip</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: metro cubo al newton</translatorcomment>
        <translation>metro cubo al newton</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: metro cubo al chilonewton</translatorcomment>
        <translation>metro cubo al chilonewton</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>piede cubo al kip</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: newton metro per metro</translatorcomment>
        <translation>newton metro per metro</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: decanewton metro per metro</translatorcomment>
        <translation>decanewton metro per metro</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: chilonewton metro per metro</translatorcomment>
        <translation>chilonewton metro per metro</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: meganewton metro per metro</translatorcomment>
        <translation>meganewton metro per metro</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>kip-piede al piede</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>chilogrammo-forza metro al metro</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>tonnellata-forza metro al metro</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translatorcomment>CLDR: libbra-forza piede per piede</translatorcomment>
        <translation>libbra-forza piede per piede</translation>
    </message>
    <message>
        <source>ohm</source>
        <translatorcomment>CLDR: ohm</translatorcomment>
        <translation>ohm</translation>
    </message>
    <message>
        <source>kilohm</source>
        <translatorcomment>CLDR: chiloohm</translatorcomment>
        <translation>chiloohm</translation>
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
        <translatorcomment>CLDR: metro al secondo</translatorcomment>
        <translation>metro al secondo</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: millimetro al secondo</translatorcomment>
        <translation>millimetro al secondo</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: centimetro al secondo</translatorcomment>
        <translation>centimetro al secondo</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: metro al minuto</translatorcomment>
        <translation>metro al minuto</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: pollice al secondo</translatorcomment>
        <translation>pollice al secondo</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: piede al secondo</translatorcomment>
        <translation>piede al secondo</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: pollice al minuto</translatorcomment>
        <translation>pollice al minuto</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: piede al minuto</translatorcomment>
        <translation>piede al minuto</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: chilometro orario</translatorcomment>
        <translation>chilometro orario</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: miglio all’ora</translatorcomment>
        <translation>miglio all’ora</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: centimetro al minuto</translatorcomment>
        <translation>centimetro al minuto</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: piede all’ora</translatorcomment>
        <translation>piede all’ora</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: pollice all’ora</translatorcomment>
        <translation>pollice all’ora</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: chilometro al minuto</translatorcomment>
        <translation>chilometro al minuto</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: chilometro al secondo</translatorcomment>
        <translation>chilometro al secondo</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: nodo</translatorcomment>
        <translation>nodo</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>nodo (Regno Unito)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: metro all’ora</translatorcomment>
        <translation>metro all’ora</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: miglio al minuto</translatorcomment>
        <translation>miglio al minuto</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: miglio al secondo</translatorcomment>
        <translation>miglio al secondo</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>miglio topografico all&apos;ora</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>piede topografico al secondo</translation>
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
        <translatorcomment>CLDR: Kelvin</translatorcomment>
        <translation>Kelvin</translation>
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
        <translatorcomment>CLDR: grado Celsius al minuto</translatorcomment>
        <translation>grado Celsius al minuto</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: grado Fahrenheit al minuto</translatorcomment>
        <translation>grado Fahrenheit al minuto</translation>
    </message>
    <message>
        <source>second</source>
        <translatorcomment>CLDR: secondo</translatorcomment>
        <translation>secondo</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translatorcomment>CLDR: yottasecondo</translatorcomment>
        <translation>yottasecondo</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translatorcomment>CLDR: zettasecondo</translatorcomment>
        <translation>zettasecondo</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translatorcomment>CLDR: exasecondo</translatorcomment>
        <translation>exasecondo</translation>
    </message>
    <message>
        <source>petasecond</source>
        <translatorcomment>CLDR: petasecondo</translatorcomment>
        <translation>petasecondo</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translatorcomment>CLDR: terasecondo</translatorcomment>
        <translation>terasecondo</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translatorcomment>CLDR: gigasecondo</translatorcomment>
        <translation>gigasecondo</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translatorcomment>CLDR: megasecondo</translatorcomment>
        <translation>megasecondo</translation>
    </message>
    <message>
        <source>kilosecond</source>
        <translatorcomment>CLDR: chilosecondo</translatorcomment>
        <translation>chilosecondo</translation>
    </message>
    <message>
        <source>hectosecond</source>
        <translatorcomment>CLDR: ettosecondo</translatorcomment>
        <translation>ettosecondo</translation>
    </message>
    <message>
        <source>decasecond</source>
        <translatorcomment>CLDR: decasecondo</translatorcomment>
        <translation>decasecondo</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translatorcomment>CLDR: decisecondo</translatorcomment>
        <translation>decisecondo</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translatorcomment>CLDR: centisecondo</translatorcomment>
        <translation>centisecondo</translation>
    </message>
    <message>
        <source>millisecond</source>
        <translatorcomment>CLDR: millisecondo</translatorcomment>
        <translation>millisecondo</translation>
    </message>
    <message>
        <source>microsecond</source>
        <translatorcomment>CLDR: microsecondo</translatorcomment>
        <translation>microsecondo</translation>
    </message>
    <message>
        <source>nanosecond</source>
        <translatorcomment>CLDR: nanosecondo</translatorcomment>
        <translation>nanosecondo</translation>
    </message>
    <message>
        <source>picosecond</source>
        <translatorcomment>CLDR: picosecondo</translatorcomment>
        <translation>picosecondo</translation>
    </message>
    <message>
        <source>femtosecond</source>
        <translatorcomment>CLDR: femtosecondo</translatorcomment>
        <translation>femtosecondo</translation>
    </message>
    <message>
        <source>attosecond</source>
        <translatorcomment>CLDR: attosecondo</translatorcomment>
        <translation>attosecondo</translation>
    </message>
    <message>
        <source>zeptosecond</source>
        <translatorcomment>CLDR: zeptosecondo</translatorcomment>
        <translation>zeptosecondo</translation>
    </message>
    <message>
        <source>yoctosecond</source>
        <translatorcomment>CLDR: yoctosecondo</translatorcomment>
        <translation>yoctosecondo</translation>
    </message>
    <message>
        <source>minute</source>
        <translatorcomment>CLDR: minuto</translatorcomment>
        <translation>minuto</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: ora</translatorcomment>
        <translation>ora</translation>
    </message>
    <message>
        <source>day</source>
        <translatorcomment>CLDR: giorno</translatorcomment>
        <translation>giorno</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: settimana</translatorcomment>
        <translation>settimana</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>quindicina</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: mese</translatorcomment>
        <translation>mese</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>mese (cavo, 29 giorni)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>mese (pieno, 30 giorni)</translation>
    </message>
    <message>
        <source>year</source>
        <translatorcomment>CLDR: anno</translatorcomment>
        <translation>anno</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>anno (gregoriano)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>anno (giuliano)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>anno siderale</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>anno tropico</translation>
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
        <translatorcomment>CLDR: secolo</translatorcomment>
        <translation>secolo</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>secolo (giuliano)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>millennio</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>millennio (gregoriano)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>millennio (giuliano)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>newton metro (coppia)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>newton centimetro (coppia)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>newton decametro (coppia)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>piede libbra (coppia)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>pollice libbra (coppia)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>metro chilogrammo (coppia)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>centimetro chilogrammo (coppia)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>pollice oncia (coppia)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>grammo centimetro (coppia)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>decanewton metro (coppia)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>chilonewton metro (coppia)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>meganewton metro (coppia)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>kip piede (coppia)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>chilogrammo-forza metro (coppia)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>tonnellata-forza metro (coppia)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>libbra-forza piede (coppia)</translation>
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
        <translatorcomment>CLDR: pascal secondo</translatorcomment>
        <translation>pascal secondo</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>libbra massa per piede e secondo</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>libbra massa per piede e ora</translation>
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
        <translatorcomment>CLDR: metro al secondo quadrato</translatorcomment>
        <translation>metro al secondo quadrato</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>piede al secondo quadrato</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>piede topografico al secondo quadrato</translation>
    </message>
    <message>
        <source>volt</source>
        <translatorcomment>CLDR: volt</translatorcomment>
        <translation>volt</translation>
    </message>
    <message>
        <source>kilovolt</source>
        <translatorcomment>CLDR: chilovolt</translatorcomment>
        <translation>chilovolt</translation>
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
        <translation>volt (potenziale elettrico)</translation>
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
        <translation>lumen per steradiante</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>candela internazionale (candlepower)</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>lux (illuminamento)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>piede-candela</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translatorcomment>CLDR: lumen secondo</translatorcomment>
        <translation>lumen secondo</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>talbot</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>potenza luminosa</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: lumen</translatorcomment>
        <translation>lumen</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: candela per metro quadrato</translatorcomment>
        <translation>candela per metro quadrato</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>piede-lambert</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: candela al piede quadrato</translatorcomment>
        <translation>candela al piede quadrato</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>lux (emittanza)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: lumen al watt</translatorcomment>
        <translation>lumen al watt</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: pascal per metro</translatorcomment>
        <translation>pascal per metro</translation>
    </message>
    <message>
        <source>inch of water per 100foot</source>
        <translation>pollice d&apos;acqua per 100 piedi</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>piede d&apos;acqua per 100 piedi</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>pollice di mercurio per 100 piedi</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>millimetro di mercurio per 100 piedi</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: newton metro al grado</translatorcomment>
        <translation>newton metro al grado</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>kip piede al grado</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: chilonewton metro al grado</translatorcomment>
        <translation>chilonewton metro al grado</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>newton metro per grado e metro</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>kip piede per grado e piede</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>chilonewton metro per grado e metro</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>watt per metro quadrato e kelvin</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>unità termica britannica per ora, piede quadrato e grado Fahrenheit</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>metro cubo per secondo e metro quadrato</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>piede cubo per minuto e piede quadrato</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>litro per secondo e metro quadrato</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>metro cubo per secondo e metro cubo</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>piede cubo per minuto e piede cubo</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>litro per secondo e metro cubo</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>metro cubo per secondo e watt</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>piede cubo per minuto e tonnellata di refrigerazione</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>litro per secondo e kilowatt</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: metro quadrato al watt</translatorcomment>
        <translation>metro quadrato al watt</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>piede quadrato per tonnellata di refrigerazione</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: metro quadrato al kilowatt</translatorcomment>
        <translation>metro quadrato al kilowatt</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>piede quadrato per mille unità termiche britanniche all&apos;ora</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>secondo quadrato per metro e chilogrammo</translation>
    </message>
    <message>
        <source>inverse kilonewton</source>
        <translation>chilonewton inverso</translation>
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
        <translation>micrometro per metro e grado Celsius</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>micropollice per pollice e grado Fahrenheit</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>oersted</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: ampere per metro</translatorcomment>
        <translation>ampere per metro</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>watt per metro e kelvin</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>watt per metro e grado Celsius</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>newton per secondo e grado Celsius</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>dina per secondo e grado Celsius</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>BTU pollice per piede quadrato, ora e grado Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>BTU per pollice, secondo e grado Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>BTU per piede, secondo e grado Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>BTU per piede, ora e grado Fahrenheit</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>joule per grammo e grado Celsius</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>joule per chilogrammo e grado Celsius</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>millimetro quadrato per secondo quadrato e grado Celsius</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>erg per grammo e grado Celsius</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>micrometro quadrato per secondo quadrato e grado Celsius</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>BTU per libbra e grado Fahrenheit</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>nanogrammo per pascal, secondo e metro quadrato</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>grano per piede quadrato, ora e pollice di mercurio</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translatorcomment>CLDR: ohm metro</translatorcomment>
        <translation>ohm metro</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translatorcomment>CLDR: joule per grammo</translatorcomment>
        <translation>joule per grammo</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translatorcomment>CLDR: joule per chilogrammo</translatorcomment>
        <translation>joule per chilogrammo</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>BTU alla libbra</translation>
    </message>
</context>
</TS>
