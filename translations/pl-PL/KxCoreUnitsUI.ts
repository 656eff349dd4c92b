<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
<context>
    <name>NumberFormat</name>
    <message>
        <source>Exponential</source>
        <translation>Wykładniczy</translation>
    </message>
    <message>
        <source>exponential</source>
        <translation>wykładniczy</translation>
    </message>
    <message>
        <source>Fixed Point</source>
        <translation>Stałoprzecinkowy</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólny</translation>
    </message>
    <message>
        <source>general</source>
        <translation>ogólny</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Liczbowy</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Ułamkowy</translation>
    </message>
</context>
<context>
    <name>UnitGroup</name>
    <message>
        <source>Dimensionless</source>
        <translation>Bezwymiarowe</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Długość</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Powierzchnia</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Objętość</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masa</translation>
    </message>
    <message>
        <source>Linear Weight</source>
        <translation>Masa liniowa</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>Liczność materii</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Kąt</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>Kąt bryłowy</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>Gęstość powierzchniowa</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Stężenie</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>Części na (ppm, ppb)</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>Natężenie prądu elektrycznego</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>Ładunek elektryczny</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>Pojemność elektryczna</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Przepływność bitowa</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Gęstość</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>Ciężar właściwy</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energia</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>Natężenie przepływu objętościowego</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>Natężenie przepływu masowego</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>Wydajność na skok</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Siła</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>Obciążenie liniowe</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Częstotliwość</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>Indukcyjność</translation>
    </message>
    <message>
        <source>Magnetic Flux Density</source>
        <translation>Indukcja magnetyczna</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>Strumień magnetyczny</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Moc</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>Moc na jednostkę objętości</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>Moc na jednostkę masy</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>Moc na jednostkę powierzchni</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Ciśnienie</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>Skala sił</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>Skala obciążeń liniowych</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>Skala obciążeń powierzchniowych</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>Moment liniowy</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>Rezystancja</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>Konduktancja</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Prędkość</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>Pojemność pamięci</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>Szybkość zmian temperatury</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>Moment obrotowy</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>Lepkość dynamiczna</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>Lepkość kinematyczna</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Przyspieszenie</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Napięcie elektryczne</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>Potencjał elektryczny</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>Światłość</translation>
    </message>
    <message>
        <source>Illuminance</source>
        <translation>Natężenie oświetlenia</translation>
    </message>
    <message>
        <source>Luminous Energy</source>
        <translation>Ilość światła</translation>
    </message>
    <message>
        <source>Luminous Flux</source>
        <translation>Strumień świetlny</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminancja</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>Emitancja świetlna</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>Skuteczność świetlna</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Spadek ciśnienia na tarcie</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>Sztywność obrotowa punktowa</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>Sztywność obrotowa liniowa</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>Współczynnik przenikania ciepła</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>Gęstość przepływu powietrza</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>Przepływ powietrza na objętość</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>Przepływ powietrza na moc</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>Powierzchnia na moc</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>Skala momentów</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>Współczynnik rozszerzalności cieplnej</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>Natężenie pola magnetycznego</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>Przewodność cieplna</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>Ciepło właściwe</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>Przepuszczalność pary wodnej</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>Rezystywność</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>Ciepło parowania</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>bez jednostki</translation>
    </message>
    <message>
        <source>meter</source>
        <translatorcomment>CLDR: metr</translatorcomment>
        <translation>metr</translation>
    </message>
    <message>
        <source>yottameter</source>
        <translatorcomment>CLDR: jottametr</translatorcomment>
        <translation>jottametr</translation>
    </message>
    <message>
        <source>zettameter</source>
        <translatorcomment>CLDR: zettametr</translatorcomment>
        <translation>zettametr</translation>
    </message>
    <message>
        <source>exameter</source>
        <translatorcomment>CLDR: eksametr</translatorcomment>
        <translation>eksametr</translation>
    </message>
    <message>
        <source>petameter</source>
        <translatorcomment>CLDR: petametr</translatorcomment>
        <translation>petametr</translation>
    </message>
    <message>
        <source>terameter</source>
        <translatorcomment>CLDR: terametr</translatorcomment>
        <translation>terametr</translation>
    </message>
    <message>
        <source>gigameter</source>
        <translatorcomment>CLDR: gigametr</translatorcomment>
        <translation>gigametr</translation>
    </message>
    <message>
        <source>megameter</source>
        <translatorcomment>CLDR: megametr</translatorcomment>
        <translation>megametr</translation>
    </message>
    <message>
        <source>kilometer</source>
        <translatorcomment>CLDR: kilometr</translatorcomment>
        <translation>kilometr</translation>
    </message>
    <message>
        <source>hectometer</source>
        <translatorcomment>CLDR: hektometr</translatorcomment>
        <translation>hektometr</translation>
    </message>
    <message>
        <source>decameter</source>
        <translatorcomment>CLDR: dekametr</translatorcomment>
        <translation>dekametr</translation>
    </message>
    <message>
        <source>decimeter</source>
        <translatorcomment>CLDR: decymetr</translatorcomment>
        <translation>decymetr</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translatorcomment>CLDR: centymetr</translatorcomment>
        <translation>centymetr</translation>
    </message>
    <message>
        <source>millimeter</source>
        <translatorcomment>CLDR: milimetr</translatorcomment>
        <translation>milimetr</translation>
    </message>
    <message>
        <source>micrometer</source>
        <translatorcomment>CLDR: mikrometr</translatorcomment>
        <translation>mikrometr</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translatorcomment>CLDR: nanometr</translatorcomment>
        <translation>nanometr</translation>
    </message>
    <message>
        <source>picometer</source>
        <translatorcomment>CLDR: pikometr</translatorcomment>
        <translation>pikometr</translation>
    </message>
    <message>
        <source>femtometer</source>
        <translatorcomment>CLDR: femtometr</translatorcomment>
        <translation>femtometr</translation>
    </message>
    <message>
        <source>attometer</source>
        <translatorcomment>CLDR: attometr</translatorcomment>
        <translation>attometr</translation>
    </message>
    <message>
        <source>zeptometer</source>
        <translatorcomment>CLDR: zeptometr</translatorcomment>
        <translation>zeptometr</translation>
    </message>
    <message>
        <source>yoctometer</source>
        <translatorcomment>CLDR: joktometr</translatorcomment>
        <translation>joktometr</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>cal angielski</translation>
    </message>
    <message>
        <source>foot</source>
        <translatorcomment>CLDR: stopa</translatorcomment>
        <translation>stopa</translation>
    </message>
    <message>
        <source>foot (Benoit)</source>
        <translation>stopa (Benoit)</translation>
    </message>
    <message>
        <source>foot (Clarke&apos;s; Cape)</source>
        <translation>stopa (Clarke; Kapsztad)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>stopa (Indie)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>stopa (Sears)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>stopa geodezyjna (USA)</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: jard</translatorcomment>
        <translation>jard</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>łańcuch</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>łańcuch (Ramsden; inżynierski)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: furlong</translatorcomment>
        <translation>furlong</translation>
    </message>
    <message>
        <source>mile</source>
        <translatorcomment>CLDR: mila</translatorcomment>
        <translation>mila</translation>
    </message>
    <message>
        <source>geographical mile</source>
        <translation>mila geograficzna</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>mila geodezyjna (USA)</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: mila morska</translatorcomment>
        <translation>mila morska</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>mila angielska (lądowa)</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>mila morska (Admiralicja)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>mikron</translation>
    </message>
    <message>
        <source>microinch</source>
        <translatorcomment>CLDR: mikrocal</translatorcomment>
        <translation>mikrocal</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>angstrem</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: jednostka astronomiczna</translatorcomment>
        <translation>jednostka astronomiczna</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>kabel (miara morska)</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>łokieć</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: sążeń</translatorcomment>
        <translation>sążeń</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>dłoń (hand)</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: rok świetlny</translatorcomment>
        <translation>rok świetlny</translation>
    </message>
    <message>
        <source>span</source>
        <translation>piędź</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>piędź (tkanina)</translation>
    </message>
    <message>
        <source>parsec</source>
        <translatorcomment>CLDR: parsek</translatorcomment>
        <translation>parsek</translation>
    </message>
    <message>
        <source>nautical league</source>
        <translation>liga morska</translation>
    </message>
    <message>
        <source>league</source>
        <translation>liga</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>mil (tysięczna cala)</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>mila skandynawska (Szwecja i Norwegia)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>ogniwo</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>ogniwo (Ramsden; inżynierskie)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>krok</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>dłoń (3 cale)</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>pręt (rod)</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>lina (rope)</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>motek</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>kaliber</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>cal geodezyjny</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>jard geodezyjny</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>pręt geodezyjny</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>bela (bolt)</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: metr kwadratowy</translatorcomment>
        <translation>metr kwadratowy</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: cal kwadratowy</translatorcomment>
        <translation>cal kwadratowy</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: stopa kwadratowa</translatorcomment>
        <translation>stopa kwadratowa</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: jard kwadratowy</translatorcomment>
        <translation>jard kwadratowy</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: akr</translatorcomment>
        <translation>akr</translation>
    </message>
    <message>
        <source>section</source>
        <translation>sekcja (mila kwadratowa)</translation>
    </message>
    <message>
        <source>township</source>
        <translation>township (36 mil kwadratowych)</translation>
    </message>
    <message>
        <source>hectare</source>
        <translatorcomment>CLDR: hektar</translatorcomment>
        <translation>hektar</translation>
    </message>
    <message>
        <source>square kilometer</source>
        <translatorcomment>CLDR: kilometr kwadratowy</translatorcomment>
        <translation>kilometr kwadratowy</translation>
    </message>
    <message>
        <source>square mile</source>
        <translatorcomment>CLDR: mila kwadratowa</translatorcomment>
        <translation>mila kwadratowa</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translatorcomment>CLDR: centymetr kwadratowy</translatorcomment>
        <translation>centymetr kwadratowy</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translatorcomment>CLDR: milimetr kwadratowy</translatorcomment>
        <translation>milimetr kwadratowy</translation>
    </message>
    <message>
        <source>circular mil</source>
        <translation>mil kołowy</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>kilo-mil kołowy</translation>
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
        <translation>angstrem kwadratowy</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>bela kwadratowa</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>kabel kwadratowy</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>kaliber kwadratowy</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>łokieć kwadratowy</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translatorcomment>CLDR: decymetr kwadratowy</translatorcomment>
        <translation>decymetr kwadratowy</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translation>sążeń kwadratowy</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translation>furlong kwadratowy</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translatorcomment>CLDR: gigametr kwadratowy</translatorcomment>
        <translation>gigametr kwadratowy</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>dłoń (hand) kwadratowa</translation>
    </message>
    <message>
        <source>square nautical league</source>
        <translation>liga morska kwadratowa</translation>
    </message>
    <message>
        <source>square league (statute)</source>
        <translation>liga kwadratowa (lądowa)</translation>
    </message>
    <message>
        <source>square light-year</source>
        <translation>rok świetlny kwadratowy</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>ogniwo kwadratowe</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>mikron kwadratowy</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>mila kwadratowa (morska brytyjska)</translation>
    </message>
    <message>
        <source>square mile (statute)</source>
        <translation>mila kwadratowa (lądowa)</translation>
    </message>
    <message>
        <source>square millimicron</source>
        <translation>milimikron kwadratowy</translation>
    </message>
    <message>
        <source>square pace</source>
        <translation>krok kwadratowy</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>dłoń kwadratowa</translation>
    </message>
    <message>
        <source>square parsec</source>
        <translatorcomment>CLDR: parsek kwadratowy</translatorcomment>
        <translation>parsek kwadratowy</translation>
    </message>
    <message>
        <source>square perch</source>
        <translation>pręt kwadratowy (perch)</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>lina kwadratowa</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>motek kwadratowy</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>piędź kwadratowa</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>stopa geodezyjna kwadratowa</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>łańcuch kwadratowy</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>mil kwadratowy</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translation>jednostka astronomiczna kwadratowa</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>akr geodezyjny</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>jard geodezyjny kwadratowy</translation>
    </message>
    <message>
        <source>board</source>
        <translation>deska (board)</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>sąg (powierzchnia)</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>mikrocal kwadratowy</translation>
    </message>
    <message>
        <source>square micrometer</source>
        <translatorcomment>CLDR: mikrometr kwadratowy</translatorcomment>
        <translation>mikrometr kwadratowy</translation>
    </message>
    <message>
        <source>liter</source>
        <translatorcomment>CLDR: litr</translatorcomment>
        <translation>litr</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translatorcomment>CLDR: centymetr sześcienny</translatorcomment>
        <translation>centymetr sześcienny</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translatorcomment>CLDR: łyżka stołowa</translatorcomment>
        <translation>łyżka stołowa</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>łyżka stołowa (Kanada)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>łyżka stołowa (USA)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>uncja płynu (imperialna)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>uncja płynu (USA)</translation>
    </message>
    <message>
        <source>cup</source>
        <translation>szklanka</translation>
    </message>
    <message>
        <source>cup (Canadian)</source>
        <translation>szklanka (Kanada)</translation>
    </message>
    <message>
        <source>cup (U.S.)</source>
        <translation>szklanka (USA)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>kwarta (imperialna)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>kwarta (USA, płyny)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>kwarta (USA, sypkie)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>galon (imperialny)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>galon (USA, płyny; wino)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>galon (USA, sypkie)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>galon piwny</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>buszel (imperialny)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>buszel (USA, płaski)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>buszel (USA, z czubem)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: centylitr</translatorcomment>
        <translation>centylitr</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: stopa sześcienna</translatorcomment>
        <translation>stopa sześcienna</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: cal sześcienny</translatorcomment>
        <translation>cal sześcienny</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: metr sześcienny</translatorcomment>
        <translation>metr sześcienny</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: jard sześcienny</translatorcomment>
        <translation>jard sześcienny</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>drachma płynu (fluid dram)</translation>
    </message>
    <message>
        <source>microliter</source>
        <translatorcomment>CLDR: mikrolitr</translatorcomment>
        <translation>mikrolitr</translation>
    </message>
    <message>
        <source>milliliter</source>
        <translatorcomment>CLDR: mililitr</translatorcomment>
        <translation>mililitr</translation>
    </message>
    <message>
        <source>pint (imperial)</source>
        <translation>pinta (imperialna)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>pinta (USA, płyny)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>pinta (USA, sypkie)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: łyżeczka</translatorcomment>
        <translation>łyżeczka</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>łyżeczka (Kanada)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>łyżeczka (USA)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>łyżeczka (imperialna)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translatorcomment>CLDR: milimetr sześcienny</translatorcomment>
        <translation>milimetr sześcienny</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>baryłka (imperialna)</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>baryłka (ropa naftowa)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>baryłka (USA, sypkie)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>baryłka (USA, płyny)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>stopa deskowa</translation>
    </message>
    <message>
        <source>decistere</source>
        <translation>decystr</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translatorcomment>CLDR: dekalitr</translatorcomment>
        <translation>dekalitr</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>dekastr</translation>
    </message>
    <message>
        <source>dram</source>
        <translatorcomment>CLDR: drachma płynu</translatorcomment>
        <translation>drachma płynu</translation>
    </message>
    <message>
        <source>firkin</source>
        <translation>firkin</translation>
    </message>
    <message>
        <source>cubic angstrom</source>
        <translation>angstrem sześcienny</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translation>jednostka astronomiczna sześcienna</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>bela sześcienna</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>kabel sześcienny</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>kaliber sześcienny</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>łańcuch sześcienny</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>łokieć sześcienny</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translation>sążeń sześcienny</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translation>furlong sześcienny</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translatorcomment>CLDR: gigametr sześcienny</translatorcomment>
        <translation>gigametr sześcienny</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>dłoń (hand) sześcienna</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translatorcomment>CLDR: hektometr sześcienny</translatorcomment>
        <translation>hektometr sześcienny</translation>
    </message>
    <message>
        <source>cubic nautical league</source>
        <translation>liga morska sześcienna</translation>
    </message>
    <message>
        <source>cubic league (statute)</source>
        <translation>liga sześcienna (lądowa)</translation>
    </message>
    <message>
        <source>cubic light-year</source>
        <translation>rok świetlny sześcienny</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>ogniwo sześcienne</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>mil sześcienny</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>mila sześcienna (morska brytyjska)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: mila sześcienna</translatorcomment>
        <translation>mila sześcienna</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translation>mila morska sześcienna</translation>
    </message>
    <message>
        <source>cubic mile (statute)</source>
        <translation>mila sześcienna (lądowa)</translation>
    </message>
    <message>
        <source>cubic millimicron</source>
        <translation>milimikron sześcienny</translation>
    </message>
    <message>
        <source>cubic pace</source>
        <translation>krok sześcienny</translation>
    </message>
    <message>
        <source>cubic palm</source>
        <translation>dłoń sześcienna</translation>
    </message>
    <message>
        <source>cubic parsec</source>
        <translatorcomment>CLDR: parsek sześcienny</translatorcomment>
        <translation>parsek sześcienny</translation>
    </message>
    <message>
        <source>cubic perch</source>
        <translation>pręt sześcienny (perch)</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>lina sześcienna</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>motek sześcienny</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>piędź sześcienna</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>stopa geodezyjna sześcienna</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translatorcomment>CLDR: decymetr sześcienny</translatorcomment>
        <translation>decymetr sześcienny</translation>
    </message>
    <message>
        <source>tun</source>
        <translation>beczka (tun)</translation>
    </message>
    <message>
        <source>peck</source>
        <translation>pek</translation>
    </message>
    <message>
        <source>peck (U.S. dry)</source>
        <translation>pek (USA, sypkie)</translation>
    </message>
    <message>
        <source>peck (imperial)</source>
        <translation>pek (imperialny)</translation>
    </message>
    <message>
        <source>minim (imperial)</source>
        <translation>minim (imperialny)</translation>
    </message>
    <message>
        <source>minim (U.S.)</source>
        <translation>minim (USA)</translation>
    </message>
    <message>
        <source>kiloliter</source>
        <translatorcomment>CLDR: kilolitr</translatorcomment>
        <translation>kilolitr</translation>
    </message>
    <message>
        <source>hogshead (U.S.)</source>
        <translation>beczka hogshead (USA)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>beczka hogshead (imperialna)</translation>
    </message>
    <message>
        <source>gill (imperial)</source>
        <translation>gill (imperialny)</translation>
    </message>
    <message>
        <source>gill (U.S.)</source>
        <translation>gill (USA)</translation>
    </message>
    <message>
        <source>cubic survey yard</source>
        <translation>jard geodezyjny sześcienny</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>stopa sągowa</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>sąg (drewno opałowe)</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>tona rejestrowa</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: akrostopa</translatorcomment>
        <translation>akrostopa</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>akrocal</translation>
    </message>
    <message>
        <source>cubic microinch</source>
        <translation>mikrocal sześcienny</translation>
    </message>
    <message>
        <source>cubic micrometer</source>
        <translatorcomment>CLDR: mikrometr sześcienny</translatorcomment>
        <translation>mikrometr sześcienny</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translatorcomment>CLDR: kilometr sześcienny</translatorcomment>
        <translation>kilometr sześcienny</translation>
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
        <translatorcomment>CLDR: jottagram</translatorcomment>
        <translation>jottagram</translation>
    </message>
    <message>
        <source>zettagram</source>
        <translatorcomment>CLDR: zettagram</translatorcomment>
        <translation>zettagram</translation>
    </message>
    <message>
        <source>exagram</source>
        <translatorcomment>CLDR: eksagram</translatorcomment>
        <translation>eksagram</translation>
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
        <translatorcomment>CLDR: decygram</translatorcomment>
        <translation>decygram</translation>
    </message>
    <message>
        <source>centigram</source>
        <translatorcomment>CLDR: centygram</translatorcomment>
        <translation>centygram</translation>
    </message>
    <message>
        <source>milligram</source>
        <translatorcomment>CLDR: miligram</translatorcomment>
        <translation>miligram</translation>
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
        <translatorcomment>CLDR: joktogram</translatorcomment>
        <translation>joktogram</translation>
    </message>
    <message>
        <source>pound (meter)</source>
        <translation>funt metryczny</translation>
    </message>
    <message>
        <source>pound</source>
        <translatorcomment>CLDR: funt</translatorcomment>
        <translation>funt</translation>
    </message>
    <message>
        <source>pound (troy)</source>
        <translation>funt trojański</translation>
    </message>
    <message>
        <source>ounce (avoirdupois)</source>
        <translation>uncja (avoirdupois)</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>uncja (aptekarska; trojańska)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: kamień</translatorcomment>
        <translation>kamień</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>tona krótka</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>tona długa</translation>
    </message>
    <message>
        <source>carat</source>
        <translatorcomment>CLDR: karat</translatorcomment>
        <translation>karat</translation>
    </message>
    <message>
        <source>carat (metric)</source>
        <translation>karat (metryczny)</translation>
    </message>
    <message>
        <source>dram (avoirdupois)</source>
        <translation>drachma (avoirdupois)</translation>
    </message>
    <message>
        <source>dram (apothecary; troy)</source>
        <translation>drachma (aptekarska; trojańska)</translation>
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
        <translation>cetnar długi</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>cetnar krótki</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: gran</translatorcomment>
        <translation>gran</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>gran perłowy</translation>
    </message>
    <message>
        <source>dalton</source>
        <translatorcomment>CLDR: jednostka masy atomowej</translatorcomment>
        <translation>jednostka masy atomowej</translation>
    </message>
    <message>
        <source>kilodalton</source>
        <translatorcomment>CLDR: kilojednostka masy atomowej</translatorcomment>
        <translation>kilojednostka masy atomowej</translation>
    </message>
    <message>
        <source>slug</source>
        <translation>slug</translation>
    </message>
    <message>
        <source>kilogram per meter</source>
        <translatorcomment>CLDR: kilogram na metr</translatorcomment>
        <translation>kilogram na metr</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: funt na stopę</translatorcomment>
        <translation>funt na stopę</translation>
    </message>
    <message>
        <source>mole</source>
        <translatorcomment>CLDR: mol</translatorcomment>
        <translation>mol</translation>
    </message>
    <message>
        <source>yottamole</source>
        <translatorcomment>CLDR: jottamol</translatorcomment>
        <translation>jottamol</translation>
    </message>
    <message>
        <source>zettamole</source>
        <translatorcomment>CLDR: zettamol</translatorcomment>
        <translation>zettamol</translation>
    </message>
    <message>
        <source>examole</source>
        <translatorcomment>CLDR: eksamol</translatorcomment>
        <translation>eksamol</translation>
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
        <translatorcomment>CLDR: decymol</translatorcomment>
        <translation>decymol</translation>
    </message>
    <message>
        <source>centimole</source>
        <translatorcomment>CLDR: centymol</translatorcomment>
        <translation>centymol</translation>
    </message>
    <message>
        <source>millimole</source>
        <translatorcomment>CLDR: milimol</translatorcomment>
        <translation>milimol</translation>
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
        <translatorcomment>CLDR: joktomol</translatorcomment>
        <translation>joktomol</translation>
    </message>
    <message>
        <source>radian</source>
        <translatorcomment>CLDR: radian</translatorcomment>
        <translation>radian</translation>
    </message>
    <message>
        <source>degree</source>
        <translatorcomment>CLDR: stopień</translatorcomment>
        <translation>stopień</translation>
    </message>
    <message>
        <source>milliradian</source>
        <translatorcomment>CLDR: miliradian</translatorcomment>
        <translation>miliradian</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>grad</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>tysięczna kątowa (NATO)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>tysięczna kątowa (Szwecja)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>tysięczna kątowa (ZSRR)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translatorcomment>CLDR: minuta kątowa</translatorcomment>
        <translation>minuta kątowa</translation>
    </message>
    <message>
        <source>angle second</source>
        <translatorcomment>CLDR: sekunda kątowa</translatorcomment>
        <translation>sekunda kątowa</translation>
    </message>
    <message>
        <source>milliarc second</source>
        <translation>milisekunda kątowa</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>steradian</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: gram na metr kwadratowy</translatorcomment>
        <translation>gram na metr kwadratowy</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: gram na cal kwadratowy</translatorcomment>
        <translation>gram na cal kwadratowy</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translatorcomment>CLDR: nanogram na litr</translatorcomment>
        <translation>nanogram na litr</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translatorcomment>CLDR: nanogram na decylitr</translatorcomment>
        <translation>nanogram na decylitr</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translatorcomment>CLDR: nanogram na mililitr</translatorcomment>
        <translation>nanogram na mililitr</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translatorcomment>CLDR: nanogram na mikrolitr</translatorcomment>
        <translation>nanogram na mikrolitr</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: część na milion</translatorcomment>
        <translation>część na milion</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>część na miliard</translation>
    </message>
    <message>
        <source>ampere</source>
        <translatorcomment>CLDR: amper</translatorcomment>
        <translation>amper</translation>
    </message>
    <message>
        <source>yottaampere</source>
        <translatorcomment>CLDR: jottaamper</translatorcomment>
        <translation>jottaamper</translation>
    </message>
    <message>
        <source>zettaampere</source>
        <translatorcomment>CLDR: zettaamper</translatorcomment>
        <translation>zettaamper</translation>
    </message>
    <message>
        <source>exaampere</source>
        <translatorcomment>CLDR: eksaamper</translatorcomment>
        <translation>eksaamper</translation>
    </message>
    <message>
        <source>petaampere</source>
        <translatorcomment>CLDR: petaamper</translatorcomment>
        <translation>petaamper</translation>
    </message>
    <message>
        <source>teraampere</source>
        <translatorcomment>CLDR: teraamper</translatorcomment>
        <translation>teraamper</translation>
    </message>
    <message>
        <source>gigaampere</source>
        <translatorcomment>CLDR: gigaamper</translatorcomment>
        <translation>gigaamper</translation>
    </message>
    <message>
        <source>megaampere</source>
        <translatorcomment>CLDR: megaamper</translatorcomment>
        <translation>megaamper</translation>
    </message>
    <message>
        <source>kiloampere</source>
        <translatorcomment>CLDR: kiloamper</translatorcomment>
        <translation>kiloamper</translation>
    </message>
    <message>
        <source>hectoampere</source>
        <translatorcomment>CLDR: hektoamper</translatorcomment>
        <translation>hektoamper</translation>
    </message>
    <message>
        <source>decaampere</source>
        <translatorcomment>CLDR: dekaamper</translatorcomment>
        <translation>dekaamper</translation>
    </message>
    <message>
        <source>deciampere</source>
        <translatorcomment>CLDR: decyamper</translatorcomment>
        <translation>decyamper</translation>
    </message>
    <message>
        <source>centiampere</source>
        <translatorcomment>CLDR: centyamper</translatorcomment>
        <translation>centyamper</translation>
    </message>
    <message>
        <source>milliampere</source>
        <translatorcomment>CLDR: miliamper</translatorcomment>
        <translation>miliamper</translation>
    </message>
    <message>
        <source>microampere</source>
        <translatorcomment>CLDR: mikroamper</translatorcomment>
        <translation>mikroamper</translation>
    </message>
    <message>
        <source>nanoampere</source>
        <translatorcomment>CLDR: nanoamper</translatorcomment>
        <translation>nanoamper</translation>
    </message>
    <message>
        <source>picoampere</source>
        <translatorcomment>CLDR: pikoamper</translatorcomment>
        <translation>pikoamper</translation>
    </message>
    <message>
        <source>femtoampere</source>
        <translatorcomment>CLDR: femtoamper</translatorcomment>
        <translation>femtoamper</translation>
    </message>
    <message>
        <source>attoampere</source>
        <translatorcomment>CLDR: attoamper</translatorcomment>
        <translation>attoamper</translation>
    </message>
    <message>
        <source>zeptoampere</source>
        <translatorcomment>CLDR: zeptoamper</translatorcomment>
        <translation>zeptoamper</translation>
    </message>
    <message>
        <source>yoctoampere</source>
        <translatorcomment>CLDR: joktoamper</translatorcomment>
        <translation>joktoamper</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>kulomb</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translation>amperogodzina</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translation>miliamperogodzina</translation>
    </message>
    <message>
        <source>faraday</source>
        <translation>faradaj</translation>
    </message>
    <message>
        <source>farad</source>
        <translation>farad</translation>
    </message>
    <message>
        <source>yottafarad</source>
        <translation>jottafarad</translation>
    </message>
    <message>
        <source>zettafarad</source>
        <translation>zettafarad</translation>
    </message>
    <message>
        <source>exafarad</source>
        <translation>eksafarad</translation>
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
        <translation>decyfarad</translation>
    </message>
    <message>
        <source>centifarad</source>
        <translation>centyfarad</translation>
    </message>
    <message>
        <source>millifarad</source>
        <translation>milifarad</translation>
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
        <translation>joktofarad</translation>
    </message>
    <message>
        <source>kilopicofarad</source>
        <translation>kilopikofarad</translation>
    </message>
    <message>
        <source>baud</source>
        <translation>bod</translation>
    </message>
    <message>
        <source>bit per second</source>
        <translatorcomment>CLDR: bit na sekundę</translatorcomment>
        <translation>bit na sekundę</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: bajt na sekundę</translatorcomment>
        <translation>bajt na sekundę</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>kilobod</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: kilobit na sekundę</translatorcomment>
        <translation>kilobit na sekundę</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: kilobajt na sekundę</translatorcomment>
        <translation>kilobajt na sekundę</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>megabod</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: megabit na sekundę</translatorcomment>
        <translation>megabit na sekundę</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: megabajt na sekundę</translatorcomment>
        <translation>megabajt na sekundę</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: kilogram na metr sześcienny</translatorcomment>
        <translation>kilogram na metr sześcienny</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translatorcomment>CLDR: kilogram na litr</translatorcomment>
        <translation>kilogram na litr</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translatorcomment>CLDR: gram na litr</translatorcomment>
        <translation>gram na litr</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translatorcomment>CLDR: mikrogram na mililitr</translatorcomment>
        <translation>mikrogram na mililitr</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: miligram na mililitr</translatorcomment>
        <translation>miligram na mililitr</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: funt na galon amerykański</translatorcomment>
        <translation>funt na galon amerykański</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: uncja na galon amerykański</translatorcomment>
        <translation>uncja na galon amerykański</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translation>funt na stopę sześcienną</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: funt na cal sześcienny</translatorcomment>
        <translation>funt na cal sześcienny</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: gram na centymetr sześcienny</translatorcomment>
        <translation>gram na centymetr sześcienny</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>niuton sekunda kwadratowa na milimetr do czwartej potęgi</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: niuton na metr sześcienny</translatorcomment>
        <translation>niuton na metr sześcienny</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: kiloniuton na metr sześcienny</translatorcomment>
        <translation>kiloniuton na metr sześcienny</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>funt-siła na stopę sześcienną</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>kip na cal sześcienny</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>kip na stopę sześcienną</translation>
    </message>
    <message>
        <source>joule</source>
        <translatorcomment>CLDR: dżul</translatorcomment>
        <translation>dżul</translation>
    </message>
    <message>
        <source>calorie</source>
        <translatorcomment>CLDR: kaloria</translatorcomment>
        <translation>kaloria</translation>
    </message>
    <message>
        <source>kilocalorie</source>
        <translatorcomment>CLDR: kilokaloria</translatorcomment>
        <translation>kilokaloria</translation>
    </message>
    <message>
        <source>British thermal unit (thermochemical)</source>
        <translation>brytyjska jednostka ciepła (termochemiczna)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>brytyjska jednostka ciepła (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>brytyjska jednostka ciepła (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>brytyjska jednostka ciepła (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>brytyjska jednostka ciepła (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>brytyjska jednostka ciepła (tablice międzynarodowe)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>brytyjska jednostka ciepła (średnia)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>brytyjska jednostka ciepła (39 °F)</translation>
    </message>
    <message>
        <source>kiloelectronvolt</source>
        <translatorcomment>CLDR: kiloelektronowolt</translatorcomment>
        <translation>kiloelektronowolt</translation>
    </message>
    <message>
        <source>megaelectronvolt</source>
        <translatorcomment>CLDR: megaelektronowolt</translatorcomment>
        <translation>megaelektronowolt</translation>
    </message>
    <message>
        <source>electronvolt</source>
        <translatorcomment>CLDR: elektronowolt</translatorcomment>
        <translation>elektronowolt</translation>
    </message>
    <message>
        <source>erg</source>
        <translation>erg</translation>
    </message>
    <message>
        <source>kilowatt hour</source>
        <translatorcomment>CLDR: kilowatogodzina</translatorcomment>
        <translation>kilowatogodzina</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translation>kilowatominuta</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translation>kilowatosekunda</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>therm (USA)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: niutonometr</translatorcomment>
        <translation>niutonometr</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translatorcomment>CLDR: dekaniutonometr</translatorcomment>
        <translation>dekaniutonometr</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translatorcomment>CLDR: kiloniutonometr</translatorcomment>
        <translation>kiloniutonometr</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translatorcomment>CLDR: meganiutonometr</translatorcomment>
        <translation>meganiutonometr</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>kilogram-siła metr</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>kilogram-siła stopa</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>tona-siła stopa</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>tona-siła metr</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>stopa kilofunt</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>stopa funt-siła</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>kaloria (20 °C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>kaloria (termochemiczna)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>kaloria (15 °C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>kaloria (średnia)</translation>
    </message>
    <message>
        <source>calorie (3.98 degree C)</source>
        <translation>kaloria (3,98 °C)</translation>
    </message>
    <message>
        <source>Therm (EC)</source>
        <translation>therm (WE)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: metr sześcienny na sekundę</translatorcomment>
        <translation>metr sześcienny na sekundę</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: litr na sekundę</translatorcomment>
        <translation>litr na sekundę</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: litr na minutę</translatorcomment>
        <translation>litr na minutę</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: litr na godzinę</translatorcomment>
        <translation>litr na godzinę</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translatorcomment>CLDR: galon amerykański na sekundę</translatorcomment>
        <translation>galon amerykański na sekundę</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: galon amerykański na minutę</translatorcomment>
        <translation>galon amerykański na minutę</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: galon amerykański na godzinę</translatorcomment>
        <translation>galon amerykański na godzinę</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: galon amerykański na dobę</translatorcomment>
        <translation>galon amerykański na dobę</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: mililitr na minutę</translatorcomment>
        <translation>mililitr na minutę</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: centymetr sześcienny na minutę</translatorcomment>
        <translation>centymetr sześcienny na minutę</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: stopa sześcienna na godzinę</translatorcomment>
        <translation>stopa sześcienna na godzinę</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: stopa sześcienna na minutę</translatorcomment>
        <translation>stopa sześcienna na minutę</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: stopa sześcienna na sekundę</translatorcomment>
        <translation>stopa sześcienna na sekundę</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: cal sześcienny na minutę</translatorcomment>
        <translation>cal sześcienny na minutę</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: metr sześcienny na godzinę</translatorcomment>
        <translation>metr sześcienny na godzinę</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: metr sześcienny na minutę</translatorcomment>
        <translation>metr sześcienny na minutę</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: centymetr sześcienny na sekundę</translatorcomment>
        <translation>centymetr sześcienny na sekundę</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: centymetr sześcienny na godzinę</translatorcomment>
        <translation>centymetr sześcienny na godzinę</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>galon amerykański na godzinę (USA)</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>galon amerykański na sekundę (USA)</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>galon imperialny na dobę</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>galon imperialny na godzinę</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>galon imperialny na minutę</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>galon imperialny na sekundę</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>milion galonów imperialnych na dobę</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: litr na dobę</translatorcomment>
        <translation>litr na dobę</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>milion litrów na dobę</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>galon amerykański na dobę (USA)</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>milion galonów amerykańskich na dobę</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: stopa sześcienna na dobę</translatorcomment>
        <translation>stopa sześcienna na dobę</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: metr sześcienny na dobę</translatorcomment>
        <translation>metr sześcienny na dobę</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: jard sześcienny na minutę</translatorcomment>
        <translation>jard sześcienny na minutę</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: akrostopa na dobę</translatorcomment>
        <translation>akrostopa na dobę</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: akrostopa na godzinę</translatorcomment>
        <translation>akrostopa na godzinę</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: akrostopa na minutę</translatorcomment>
        <translation>akrostopa na minutę</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>akrocal na godzinę</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>akrocal na minutę</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>stopa geodezyjna sześcienna na sekundę</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: kilogram na sekundę</translatorcomment>
        <translation>kilogram na sekundę</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: kilogram na minutę</translatorcomment>
        <translation>kilogram na minutę</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: kilogram na godzinę</translatorcomment>
        <translation>kilogram na godzinę</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: gram na sekundę</translatorcomment>
        <translation>gram na sekundę</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: gram na minutę</translatorcomment>
        <translation>gram na minutę</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: gram na godzinę</translatorcomment>
        <translation>gram na godzinę</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: funt na sekundę</translatorcomment>
        <translation>funt na sekundę</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: funt na minutę</translatorcomment>
        <translation>funt na minutę</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: funt na godzinę</translatorcomment>
        <translation>funt na godzinę</translation>
    </message>
    <message>
        <source>pint per stroke</source>
        <translation>pinta na skok</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>kwarta na skok</translation>
    </message>
    <message>
        <source>newton</source>
        <translatorcomment>CLDR: niuton</translatorcomment>
        <translation>niuton</translation>
    </message>
    <message>
        <source>yottanewton</source>
        <translatorcomment>CLDR: jottaniuton</translatorcomment>
        <translation>jottaniuton</translation>
    </message>
    <message>
        <source>zettanewton</source>
        <translatorcomment>CLDR: zettaniuton</translatorcomment>
        <translation>zettaniuton</translation>
    </message>
    <message>
        <source>exanewton</source>
        <translatorcomment>CLDR: eksaniuton</translatorcomment>
        <translation>eksaniuton</translation>
    </message>
    <message>
        <source>petanewton</source>
        <translatorcomment>CLDR: petaniuton</translatorcomment>
        <translation>petaniuton</translation>
    </message>
    <message>
        <source>teranewton</source>
        <translatorcomment>CLDR: teraniuton</translatorcomment>
        <translation>teraniuton</translation>
    </message>
    <message>
        <source>giganewton</source>
        <translatorcomment>CLDR: giganiuton</translatorcomment>
        <translation>giganiuton</translation>
    </message>
    <message>
        <source>meganewton</source>
        <translatorcomment>CLDR: meganiuton</translatorcomment>
        <translation>meganiuton</translation>
    </message>
    <message>
        <source>kilonewton</source>
        <translatorcomment>CLDR: kiloniuton</translatorcomment>
        <translation>kiloniuton</translation>
    </message>
    <message>
        <source>hectonewton</source>
        <translatorcomment>CLDR: hektoniuton</translatorcomment>
        <translation>hektoniuton</translation>
    </message>
    <message>
        <source>decanewton</source>
        <translatorcomment>CLDR: dekaniuton</translatorcomment>
        <translation>dekaniuton</translation>
    </message>
    <message>
        <source>decinewton</source>
        <translatorcomment>CLDR: decyniuton</translatorcomment>
        <translation>decyniuton</translation>
    </message>
    <message>
        <source>centinewton</source>
        <translatorcomment>CLDR: centyniuton</translatorcomment>
        <translation>centyniuton</translation>
    </message>
    <message>
        <source>millinewton</source>
        <translatorcomment>CLDR: miliniuton</translatorcomment>
        <translation>miliniuton</translation>
    </message>
    <message>
        <source>micronewton</source>
        <translatorcomment>CLDR: mikroniuton</translatorcomment>
        <translation>mikroniuton</translation>
    </message>
    <message>
        <source>nanonewton</source>
        <translatorcomment>CLDR: nanoniuton</translatorcomment>
        <translation>nanoniuton</translation>
    </message>
    <message>
        <source>piconewton</source>
        <translatorcomment>CLDR: pikoniuton</translatorcomment>
        <translation>pikoniuton</translation>
    </message>
    <message>
        <source>femtonewton</source>
        <translatorcomment>CLDR: femtoniuton</translatorcomment>
        <translation>femtoniuton</translation>
    </message>
    <message>
        <source>attonewton</source>
        <translatorcomment>CLDR: attoniuton</translatorcomment>
        <translation>attoniuton</translation>
    </message>
    <message>
        <source>zeptonewton</source>
        <translatorcomment>CLDR: zeptoniuton</translatorcomment>
        <translation>zeptoniuton</translation>
    </message>
    <message>
        <source>yoctonewton</source>
        <translatorcomment>CLDR: joktoniuton</translatorcomment>
        <translation>joktoniuton</translation>
    </message>
    <message>
        <source>kilopound</source>
        <translation>kilofunt</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>kilogram-siła</translation>
    </message>
    <message>
        <source>pound force</source>
        <translatorcomment>CLDR: funt-siła</translatorcomment>
        <translation>funt-siła</translation>
    </message>
    <message>
        <source>kip</source>
        <translation>kip</translation>
    </message>
    <message>
        <source>ton force</source>
        <translation>tona-siła</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>dyna</translation>
    </message>
    <message>
        <source>lbforce</source>
        <translation>lbf (funt-siła)</translation>
    </message>
    <message>
        <source>ounce force</source>
        <translation>uncja-siła</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: niuton na metr</translatorcomment>
        <translation>niuton na metr</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>kilofunt na stopę</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>kilogram-siła na metr</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>tona-siła na metr</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>funt-siła na stopę</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: dekaniuton na metr</translatorcomment>
        <translation>dekaniuton na metr</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translatorcomment>CLDR: kiloniuton na metr</translatorcomment>
        <translation>kiloniuton na metr</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translatorcomment>CLDR: meganiuton na metr</translatorcomment>
        <translation>meganiuton na metr</translation>
    </message>
    <message>
        <source>kip per foot</source>
        <translation>kip na stopę</translation>
    </message>
    <message>
        <source>kip per inch</source>
        <translation>kip na cal</translation>
    </message>
    <message>
        <source>hertz</source>
        <translatorcomment>CLDR: herc</translatorcomment>
        <translation>herc</translation>
    </message>
    <message>
        <source>kilohertz</source>
        <translatorcomment>CLDR: kiloherc</translatorcomment>
        <translation>kiloherc</translation>
    </message>
    <message>
        <source>megahertz</source>
        <translatorcomment>CLDR: megaherc</translatorcomment>
        <translation>megaherc</translation>
    </message>
    <message>
        <source>gigahertz</source>
        <translatorcomment>CLDR: gigaherc</translatorcomment>
        <translation>gigaherc</translation>
    </message>
    <message>
        <source>terahertz</source>
        <translatorcomment>CLDR: teraherc</translatorcomment>
        <translation>teraherc</translation>
    </message>
    <message>
        <source>cycle per second</source>
        <translation>cykl na sekundę</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: obrót na minutę</translatorcomment>
        <translation>obrót na minutę</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>błysk na sekundę</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>błysk na minutę</translation>
    </message>
    <message>
        <source>henry</source>
        <translation>henr</translation>
    </message>
    <message>
        <source>nanohenry</source>
        <translation>nanohenr</translation>
    </message>
    <message>
        <source>microhenry</source>
        <translation>mikrohenr</translation>
    </message>
    <message>
        <source>millihenry</source>
        <translation>milihenr</translation>
    </message>
    <message>
        <source>gauss</source>
        <translation>gaus</translation>
    </message>
    <message>
        <source>milligauss</source>
        <translation>miligaus</translation>
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
        <translation>makswel</translation>
    </message>
    <message>
        <source>watt</source>
        <translatorcomment>CLDR: wat</translatorcomment>
        <translation>wat</translation>
    </message>
    <message>
        <source>horsepower (metric)</source>
        <translation>koń mechaniczny (metryczny)</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>koń mechaniczny (elektryczny europejski)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>koń mechaniczny (imperialny mechaniczny)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>koń mechaniczny (imperialny elektryczny)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: kilokaloria na godzinę</translatorcomment>
        <translation>kilokaloria na godzinę</translation>
    </message>
    <message>
        <source>kilowatt</source>
        <translatorcomment>CLDR: kilowat</translatorcomment>
        <translation>kilowat</translation>
    </message>
    <message>
        <source>megawatt</source>
        <translatorcomment>CLDR: megawat</translatorcomment>
        <translation>megawat</translation>
    </message>
    <message>
        <source>microwatt</source>
        <translatorcomment>CLDR: mikrowat</translatorcomment>
        <translation>mikrowat</translation>
    </message>
    <message>
        <source>volt ampere</source>
        <translation>woltoamper</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translation>miliwoltoamper</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translation>kilowoltoamper</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translation>megawoltoamper</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: miliwat</translatorcomment>
        <translation>miliwat</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>kilogram-siła metr na sekundę</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>stopa funt-siła na sekundę</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: kaloria na sekundę</translatorcomment>
        <translation>kaloria na sekundę</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: kilokaloria na sekundę</translatorcomment>
        <translation>kilokaloria na sekundę</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>brytyjska jednostka ciepła (tablice międzynarodowe) na sekundę</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>brytyjska jednostka ciepła (tablice międzynarodowe) na godzinę</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>milion brytyjskich jednostek ciepła (tablice międzynarodowe) na godzinę</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>tysiąc brytyjskich jednostek ciepła (tablice międzynarodowe) na godzinę</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>tona chłodnicza</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: wat na metr sześcienny</translatorcomment>
        <translation>wat na metr sześcienny</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translation>wat na stopę sześcienną</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>brytyjska jednostka ciepła na godzinę i stopę sześcienną</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: wat na kilogram</translatorcomment>
        <translation>wat na kilogram</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: wat na metr kwadratowy</translatorcomment>
        <translation>wat na metr kwadratowy</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: kilowat na metr kwadratowy</translatorcomment>
        <translation>kilowat na metr kwadratowy</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translation>kilowat na stopę kwadratową</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translation>wat na stopę kwadratową</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>brytyjska jednostka ciepła na godzinę i stopę kwadratową</translation>
    </message>
    <message>
        <source>bar</source>
        <translatorcomment>CLDR: bar</translatorcomment>
        <translation>bar</translation>
    </message>
    <message>
        <source>bar absolute</source>
        <translation>bar absolutny</translation>
    </message>
    <message>
        <source>bar gauge</source>
        <translation>bar nadciśnienia</translation>
    </message>
    <message>
        <source>inch of mercury</source>
        <translatorcomment>CLDR: cal słupa rtęci</translatorcomment>
        <translation>cal słupa rtęci</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>cal słupa wody</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translatorcomment>CLDR: kilobar</translatorcomment>
        <translation>kilobar</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: kilogram na centymetr kwadratowy</translatorcomment>
        <translation>kilogram na centymetr kwadratowy</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: kilopaskal</translatorcomment>
        <translation>kilopaskal</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: kilofunt na cal kwadratowy</translatorcomment>
        <translation>kilofunt na cal kwadratowy</translation>
    </message>
    <message>
        <source>mega pascal</source>
        <translatorcomment>CLDR: megapaskal</translatorcomment>
        <translation>megapaskal</translation>
    </message>
    <message>
        <source>millibar</source>
        <translatorcomment>CLDR: millibar</translatorcomment>
        <translation>millibar</translation>
    </message>
    <message>
        <source>millimeter of mercury</source>
        <translatorcomment>CLDR: milimetr słupa rtęci</translatorcomment>
        <translation>milimetr słupa rtęci</translation>
    </message>
    <message>
        <source>milli pascal</source>
        <translatorcomment>CLDR: milipaskal</translatorcomment>
        <translation>milipaskal</translation>
    </message>
    <message>
        <source>pascal</source>
        <translatorcomment>CLDR: paskal</translatorcomment>
        <translation>paskal</translation>
    </message>
    <message>
        <source>pound per square inch (atmosphere)</source>
        <translation>funt na cal kwadratowy (absolutny)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>funt na cal kwadratowy (nadciśnienie)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translation>funt na stopę kwadratową</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: funt na cal kwadratowy</translatorcomment>
        <translation>funt na cal kwadratowy</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>atmosfera (fizyczna)</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>atmosfera (techniczna)</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>tor</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translatorcomment>CLDR: niuton na milimetr kwadratowy</translatorcomment>
        <translation>niuton na milimetr kwadratowy</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: niuton na metr kwadratowy</translatorcomment>
        <translation>niuton na metr kwadratowy</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translatorcomment>CLDR: dekaniuton na milimetr kwadratowy</translatorcomment>
        <translation>dekaniuton na milimetr kwadratowy</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: dekaniuton na metr kwadratowy</translatorcomment>
        <translation>dekaniuton na metr kwadratowy</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: kiloniuton na metr kwadratowy</translatorcomment>
        <translation>kiloniuton na metr kwadratowy</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: meganiuton na metr kwadratowy</translatorcomment>
        <translation>meganiuton na metr kwadratowy</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translation>kilofunt na stopę kwadratową</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>kilogram-siła na milimetr kwadratowy</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>kilogram-siła na centymetr kwadratowy</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>kilogram-siła na metr kwadratowy</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>tona-siła na centymetr kwadratowy</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>tona-siła na metr kwadratowy</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>tona-siła na stopę kwadratową</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translation>funt-siła na cal kwadratowy</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>stopa słupa wody</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>kip na cal kwadratowy</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>kip na stopę kwadratową</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>funt-siła na stopę kwadratową</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: gigapaskal</translatorcomment>
        <translation>gigapaskal</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>dyna na centymetr kwadratowy</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translatorcomment>CLDR: niuton na mikrometr kwadratowy</translatorcomment>
        <translation>niuton na mikrometr kwadratowy</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: metr na niuton</translatorcomment>
        <translation>metr na niuton</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translatorcomment>CLDR: metr na kiloniuton</translatorcomment>
        <translation>metr na kiloniuton</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>stopa na kip</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: metr kwadratowy na niuton</translatorcomment>
        <translation>metr kwadratowy na niuton</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: metr kwadratowy na kiloniuton</translatorcomment>
        <translation>metr kwadratowy na kiloniuton</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>stopa kwadratowa na kip</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: metr sześcienny na niuton</translatorcomment>
        <translation>metr sześcienny na niuton</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: metr sześcienny na kiloniuton</translatorcomment>
        <translation>metr sześcienny na kiloniuton</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>stopa sześcienna na kip</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: niutonometr na metr</translatorcomment>
        <translation>niutonometr na metr</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: dekaniutonometr na metr</translatorcomment>
        <translation>dekaniutonometr na metr</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: kiloniutonometr na metr</translatorcomment>
        <translation>kiloniutonometr na metr</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: meganiutonometr na metr</translatorcomment>
        <translation>meganiutonometr na metr</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>kip-stopa na stopę</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>kilogram-siła metr na metr</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>tona-siła metr na metr</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translatorcomment>CLDR: stopofunt na stopę</translatorcomment>
        <translation>stopofunt na stopę</translation>
    </message>
    <message>
        <source>ohm</source>
        <translatorcomment>CLDR: om</translatorcomment>
        <translation>om</translation>
    </message>
    <message>
        <source>kilohm</source>
        <translatorcomment>CLDR: kiloom</translatorcomment>
        <translation>kiloom</translation>
    </message>
    <message>
        <source>gigaohm</source>
        <translatorcomment>CLDR: gigaom</translatorcomment>
        <translation>gigaom</translation>
    </message>
    <message>
        <source>megohm</source>
        <translatorcomment>CLDR: megaom</translatorcomment>
        <translation>megaom</translation>
    </message>
    <message>
        <source>microohm</source>
        <translatorcomment>CLDR: mikroom</translatorcomment>
        <translation>mikroom</translation>
    </message>
    <message>
        <source>milliohm</source>
        <translatorcomment>CLDR: miliom</translatorcomment>
        <translation>miliom</translation>
    </message>
    <message>
        <source>siemens</source>
        <translation>simens</translation>
    </message>
    <message>
        <source>mho</source>
        <translation>mho</translation>
    </message>
    <message>
        <source>meter per second</source>
        <translatorcomment>CLDR: metr na sekundę</translatorcomment>
        <translation>metr na sekundę</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: milimetr na sekundę</translatorcomment>
        <translation>milimetr na sekundę</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: centymetr na sekundę</translatorcomment>
        <translation>centymetr na sekundę</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: metr na minutę</translatorcomment>
        <translation>metr na minutę</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: cal na sekundę</translatorcomment>
        <translation>cal na sekundę</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: stopa na sekundę</translatorcomment>
        <translation>stopa na sekundę</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: cal na minutę</translatorcomment>
        <translation>cal na minutę</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: stopa na minutę</translatorcomment>
        <translation>stopa na minutę</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: kilometr na godzinę</translatorcomment>
        <translation>kilometr na godzinę</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: mila na godzinę</translatorcomment>
        <translation>mila na godzinę</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: centymetr na minutę</translatorcomment>
        <translation>centymetr na minutę</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: stopa na godzinę</translatorcomment>
        <translation>stopa na godzinę</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: cal na godzinę</translatorcomment>
        <translation>cal na godzinę</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: kilometr na minutę</translatorcomment>
        <translation>kilometr na minutę</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: kilometr na sekundę</translatorcomment>
        <translation>kilometr na sekundę</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: węzeł</translatorcomment>
        <translation>węzeł</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>węzeł (Wielka Brytania)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: metr na godzinę</translatorcomment>
        <translation>metr na godzinę</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: mila na minutę</translatorcomment>
        <translation>mila na minutę</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: mila na sekundę</translatorcomment>
        <translation>mila na sekundę</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>mila geodezyjna na godzinę</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>stopa geodezyjna na sekundę</translation>
    </message>
    <message>
        <source>byte</source>
        <translatorcomment>CLDR: bajt</translatorcomment>
        <translation>bajt</translation>
    </message>
    <message>
        <source>bit</source>
        <translatorcomment>CLDR: bit</translatorcomment>
        <translation>bit</translation>
    </message>
    <message>
        <source>kilobyte</source>
        <translatorcomment>CLDR: kilobajt</translatorcomment>
        <translation>kilobajt</translation>
    </message>
    <message>
        <source>megabyte</source>
        <translatorcomment>CLDR: megabajt</translatorcomment>
        <translation>megabajt</translation>
    </message>
    <message>
        <source>gigabyte</source>
        <translatorcomment>CLDR: gigabajt</translatorcomment>
        <translation>gigabajt</translation>
    </message>
    <message>
        <source>terabyte</source>
        <translatorcomment>CLDR: terabajt</translatorcomment>
        <translation>terabajt</translation>
    </message>
    <message>
        <source>kibibyte</source>
        <translatorcomment>CLDR: kibibajt</translatorcomment>
        <translation>kibibajt</translation>
    </message>
    <message>
        <source>mebibyte</source>
        <translatorcomment>CLDR: mebibajt</translatorcomment>
        <translation>mebibajt</translation>
    </message>
    <message>
        <source>gibibyte</source>
        <translatorcomment>CLDR: gibibajt</translatorcomment>
        <translation>gibibajt</translation>
    </message>
    <message>
        <source>tebibyte</source>
        <translatorcomment>CLDR: tebibajt</translatorcomment>
        <translation>tebibajt</translation>
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
        <translatorcomment>CLDR: petabajt</translatorcomment>
        <translation>petabajt</translation>
    </message>
    <message>
        <source>pebibyte</source>
        <translatorcomment>CLDR: pebibajt</translatorcomment>
        <translation>pebibajt</translation>
    </message>
    <message>
        <source>exabyte</source>
        <translatorcomment>CLDR: eksabajt</translatorcomment>
        <translation>eksabajt</translation>
    </message>
    <message>
        <source>exbibyte</source>
        <translatorcomment>CLDR: eksbibajt</translatorcomment>
        <translation>eksbibajt</translation>
    </message>
    <message>
        <source>zettabyte</source>
        <translatorcomment>CLDR: zettabajt</translatorcomment>
        <translation>zettabajt</translation>
    </message>
    <message>
        <source>zebibyte</source>
        <translatorcomment>CLDR: zebibajt</translatorcomment>
        <translation>zebibajt</translation>
    </message>
    <message>
        <source>yottabyte</source>
        <translatorcomment>CLDR: jottabajt</translatorcomment>
        <translation>jottabajt</translation>
    </message>
    <message>
        <source>yobibyte</source>
        <translatorcomment>CLDR: jobibajt</translatorcomment>
        <translation>jobibajt</translation>
    </message>
    <message>
        <source>kelvin</source>
        <translatorcomment>CLDR: kelwin</translatorcomment>
        <translation>kelwin</translation>
    </message>
    <message>
        <source>degree Celsius</source>
        <translatorcomment>CLDR: stopień Celsjusza</translatorcomment>
        <translation>stopień Celsjusza</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: stopień Fahrenheita</translatorcomment>
        <translation>stopień Fahrenheita</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>stopień Rankine&apos;a</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: stopień Celsjusza na minutę</translatorcomment>
        <translation>stopień Celsjusza na minutę</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: stopień Fahrenheita na minutę</translatorcomment>
        <translation>stopień Fahrenheita na minutę</translation>
    </message>
    <message>
        <source>second</source>
        <translatorcomment>CLDR: sekunda</translatorcomment>
        <translation>sekunda</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translatorcomment>CLDR: jottasekunda</translatorcomment>
        <translation>jottasekunda</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translatorcomment>CLDR: zettasekunda</translatorcomment>
        <translation>zettasekunda</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translatorcomment>CLDR: eksasekunda</translatorcomment>
        <translation>eksasekunda</translation>
    </message>
    <message>
        <source>petasecond</source>
        <translatorcomment>CLDR: petasekunda</translatorcomment>
        <translation>petasekunda</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translatorcomment>CLDR: terasekunda</translatorcomment>
        <translation>terasekunda</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translatorcomment>CLDR: gigasekunda</translatorcomment>
        <translation>gigasekunda</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translatorcomment>CLDR: megasekunda</translatorcomment>
        <translation>megasekunda</translation>
    </message>
    <message>
        <source>kilosecond</source>
        <translatorcomment>CLDR: kilosekunda</translatorcomment>
        <translation>kilosekunda</translation>
    </message>
    <message>
        <source>hectosecond</source>
        <translatorcomment>CLDR: hektosekunda</translatorcomment>
        <translation>hektosekunda</translation>
    </message>
    <message>
        <source>decasecond</source>
        <translatorcomment>CLDR: dekasekunda</translatorcomment>
        <translation>dekasekunda</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translatorcomment>CLDR: decysekunda</translatorcomment>
        <translation>decysekunda</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translatorcomment>CLDR: centysekunda</translatorcomment>
        <translation>centysekunda</translation>
    </message>
    <message>
        <source>millisecond</source>
        <translatorcomment>CLDR: milisekunda</translatorcomment>
        <translation>milisekunda</translation>
    </message>
    <message>
        <source>microsecond</source>
        <translatorcomment>CLDR: mikrosekunda</translatorcomment>
        <translation>mikrosekunda</translation>
    </message>
    <message>
        <source>nanosecond</source>
        <translatorcomment>CLDR: nanosekunda</translatorcomment>
        <translation>nanosekunda</translation>
    </message>
    <message>
        <source>picosecond</source>
        <translatorcomment>CLDR: pikosekunda</translatorcomment>
        <translation>pikosekunda</translation>
    </message>
    <message>
        <source>femtosecond</source>
        <translatorcomment>CLDR: femtosekunda</translatorcomment>
        <translation>femtosekunda</translation>
    </message>
    <message>
        <source>attosecond</source>
        <translatorcomment>CLDR: attosekunda</translatorcomment>
        <translation>attosekunda</translation>
    </message>
    <message>
        <source>zeptosecond</source>
        <translatorcomment>CLDR: zeptosekunda</translatorcomment>
        <translation>zeptosekunda</translation>
    </message>
    <message>
        <source>yoctosecond</source>
        <translatorcomment>CLDR: joktosekunda</translatorcomment>
        <translation>joktosekunda</translation>
    </message>
    <message>
        <source>minute</source>
        <translatorcomment>CLDR: minuta</translatorcomment>
        <translation>minuta</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: godzina</translatorcomment>
        <translation>godzina</translation>
    </message>
    <message>
        <source>day</source>
        <translatorcomment>CLDR: doba</translatorcomment>
        <translation>doba</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: tydzień</translatorcomment>
        <translation>tydzień</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>dwa tygodnie</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: miesiąc</translatorcomment>
        <translation>miesiąc</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>miesiąc (niepełny, 29 dni)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>miesiąc (pełny, 30 dni)</translation>
    </message>
    <message>
        <source>year</source>
        <translatorcomment>CLDR: rok</translatorcomment>
        <translation>rok</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>rok (gregoriański)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>rok (juliański)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>rok gwiazdowy</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>rok zwrotnikowy</translation>
    </message>
    <message>
        <source>annum</source>
        <translation>annum</translation>
    </message>
    <message>
        <source>decade</source>
        <translatorcomment>CLDR: dekada</translatorcomment>
        <translation>dekada</translation>
    </message>
    <message>
        <source>century</source>
        <translatorcomment>CLDR: wiek</translatorcomment>
        <translation>wiek</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>wiek (juliański)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>tysiąclecie</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>tysiąclecie (gregoriańskie)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>tysiąclecie (juliańskie)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>niutonometr (moment)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>niutonocentymetr (moment)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>niutonodekametr (moment)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>stopa funt (moment)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>cal funt (moment)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>metr kilogram (moment)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>centymetr kilogram (moment)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>cal uncja (moment)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>gram centymetr (moment)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>dekaniutonometr (moment)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>kiloniutonometr (moment)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>meganiutonometr (moment)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>kip stopa (moment)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>kilogram-siła metr (moment)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>tona-siła metr (moment)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>funt-siła stopa (moment)</translation>
    </message>
    <message>
        <source>poise</source>
        <translation>puaz</translation>
    </message>
    <message>
        <source>centipoise</source>
        <translation>centypuaz</translation>
    </message>
    <message>
        <source>pascal second</source>
        <translation>paskalosekunda</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>funt masy na stopę i sekundę</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>funt masy na stopę i godzinę</translation>
    </message>
    <message>
        <source>stoke</source>
        <translation>stokes</translation>
    </message>
    <message>
        <source>centistoke</source>
        <translation>centystokes</translation>
    </message>
    <message>
        <source>meter per second squared</source>
        <translatorcomment>CLDR: metr na sekundę do kwadratu</translatorcomment>
        <translation>metr na sekundę do kwadratu</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>stopa na sekundę do kwadratu</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>stopa geodezyjna na sekundę do kwadratu</translation>
    </message>
    <message>
        <source>volt</source>
        <translatorcomment>CLDR: wolt</translatorcomment>
        <translation>wolt</translation>
    </message>
    <message>
        <source>kilovolt</source>
        <translatorcomment>CLDR: kilowolt</translatorcomment>
        <translation>kilowolt</translation>
    </message>
    <message>
        <source>microvolt</source>
        <translatorcomment>CLDR: mikrowolt</translatorcomment>
        <translation>mikrowolt</translation>
    </message>
    <message>
        <source>millivolt</source>
        <translatorcomment>CLDR: miliwolt</translatorcomment>
        <translation>miliwolt</translation>
    </message>
    <message>
        <source>volt (electrical potential)</source>
        <translation>wolt (potencjał elektryczny)</translation>
    </message>
    <message>
        <source>abvolt</source>
        <translation>abwolt</translation>
    </message>
    <message>
        <source>statvolt</source>
        <translation>statwolt</translation>
    </message>
    <message>
        <source>candela</source>
        <translatorcomment>CLDR: kandela</translatorcomment>
        <translation>kandela</translation>
    </message>
    <message>
        <source>lumen per steradian</source>
        <translation>lumen na steradian</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>świeca (candlepower)</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>luks (natężenie oświetlenia)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>stopoświeca</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translation>lumenosekunda</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>talbot</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>moc świetlna</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: lumen</translatorcomment>
        <translation>lumen</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: kandela na metr kwadratowy</translatorcomment>
        <translation>kandela na metr kwadratowy</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>stopolambert</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translation>kandela na stopę kwadratową</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>luks (emitancja)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: lumen na wat</translatorcomment>
        <translation>lumen na wat</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: paskal na metr</translatorcomment>
        <translation>paskal na metr</translation>
    </message>
    <message>
        <source>inch of water per 100foot</source>
        <translation>cal słupa wody na 100 stóp</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>stopa słupa wody na 100 stóp</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>cal słupa rtęci na 100 stóp</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>milimetr słupa rtęci na 100 stóp</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: niutonometr na stopień</translatorcomment>
        <translation>niutonometr na stopień</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>kip-stopa na stopień</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: kiloniutonometr na stopień</translatorcomment>
        <translation>kiloniutonometr na stopień</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>niutonometr na stopień na metr</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>kip-stopa na stopień na stopę</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>kiloniutonometr na stopień na metr</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>wat na metr kwadratowy i kelwin</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>brytyjska jednostka ciepła na godzinę, stopę kwadratową i stopień Fahrenheita</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>metr sześcienny na sekundę i metr kwadratowy</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>stopa sześcienna na minutę i stopę kwadratową</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>litr na sekundę i metr kwadratowy</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>metr sześcienny na sekundę i metr sześcienny</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>stopa sześcienna na minutę i stopę sześcienną</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>litr na sekundę i metr sześcienny</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>metr sześcienny na sekundę i wat</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>stopa sześcienna na minutę i tonę chłodniczą</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>litr na sekundę i kilowat</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: metr kwadratowy na wat</translatorcomment>
        <translation>metr kwadratowy na wat</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>stopa kwadratowa na tonę chłodniczą</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: metr kwadratowy na kilowat</translatorcomment>
        <translation>metr kwadratowy na kilowat</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>stopa kwadratowa na tysiąc brytyjskich jednostek ciepła na godzinę</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>sekunda kwadratowa na metr i kilogram</translation>
    </message>
    <message>
        <source>inverse kilonewton</source>
        <translation>odwrotność kiloniutona</translation>
    </message>
    <message>
        <source>inverse kip</source>
        <translation>odwrotność kipa</translation>
    </message>
    <message>
        <source>inverse fahrenheit</source>
        <translation>odwrotność stopnia Fahrenheita</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>odwrotność stopnia Celsjusza</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>mikrometr na metr i stopień Celsjusza</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>mikrocal na cal i stopień Fahrenheita</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>ersted</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: amper na metr</translatorcomment>
        <translation>amper na metr</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>wat na metr i kelwin</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>wat na metr i stopień Celsjusza</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>niuton na sekundę i stopień Celsjusza</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>dyna na sekundę i stopień Celsjusza</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>BTU cal na stopę kwadratową, godzinę i stopień Fahrenheita</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>BTU na cal, sekundę i stopień Fahrenheita</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>BTU na stopę, sekundę i stopień Fahrenheita</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>BTU na stopę, godzinę i stopień Fahrenheita</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>dżul na gram i stopień Celsjusza</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>dżul na kilogram i stopień Celsjusza</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>milimetr kwadratowy na sekundę kwadratową i stopień Celsjusza</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>erg na gram i stopień Celsjusza</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>mikrometr kwadratowy na sekundę kwadratową i stopień Celsjusza</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>BTU na funt i stopień Fahrenheita</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>nanogram na paskal, sekundę i metr kwadratowy</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>gran na stopę kwadratową, godzinę i cal słupa rtęci</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translation>omometr</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translatorcomment>CLDR: dżul na gram</translatorcomment>
        <translation>dżul na gram</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translatorcomment>CLDR: dżul na kilogram</translatorcomment>
        <translation>dżul na kilogram</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>BTU na funt</translation>
    </message>
</context>
</TS>
