<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ">
<context>
    <name>NumberFormat</name>
    <message>
        <source>Exponential</source>
        <translation>Exponenciální</translation>
    </message>
    <message>
        <source>exponential</source>
        <translation>exponenciální</translation>
    </message>
    <message>
        <source>Fixed Point</source>
        <translation>Pevná řádová čárka</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Obecný</translation>
    </message>
    <message>
        <source>general</source>
        <translation>obecný</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Číslo</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Zlomek</translation>
    </message>
</context>
<context>
    <name>UnitGroup</name>
    <message>
        <source>Dimensionless</source>
        <translation>Bezrozměrné</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Délka</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Plocha</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Objem</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Hmotnost</translation>
    </message>
    <message>
        <source>Linear Weight</source>
        <translation>Délková hmotnost</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>Látkové množství</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Úhel</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>Prostorový úhel</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>Plošná hmotnost</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Koncentrace</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>Díly na (ppm, ppb)</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>Elektrický proud</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>Elektrický náboj</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>Elektrická kapacita</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Přenosová rychlost</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Hustota</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>Měrná tíha</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energie</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>Objemový průtok</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>Hmotnostní průtok</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>Průtok na zdvih</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Síla</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>Liniové zatížení</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frekvence</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>Indukčnost</translation>
    </message>
    <message>
        <source>Magnetic Flux Density</source>
        <translation>Magnetická indukce</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>Magnetický tok</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Výkon</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>Výkon na jednotku objemu</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>Výkon na jednotku hmotnosti</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>Výkon na jednotku plochy</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Tlak</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>Měřítko síly</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>Měřítko liniového zatížení</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>Měřítko plošného zatížení</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>Liniový moment</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>Elektrický odpor</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>Elektrická vodivost</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Rychlost</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>Datová kapacita</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Teplota</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>Rychlost změny teploty</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>Točivý moment</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>Dynamická viskozita</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>Kinematická viskozita</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Zrychlení</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Elektrické napětí</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>Elektrický potenciál</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>Svítivost</translation>
    </message>
    <message>
        <source>Illuminance</source>
        <translation>Osvětlenost</translation>
    </message>
    <message>
        <source>Luminous Energy</source>
        <translation>Světelné množství</translation>
    </message>
    <message>
        <source>Luminous Flux</source>
        <translation>Světelný tok</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Jas</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>Světlení</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>Měrný světelný výkon</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Tlaková ztráta třením</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>Bodová rotační tuhost</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>Liniová rotační tuhost</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>Součinitel prostupu tepla</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>Hustota průtoku vzduchu</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>Průtok vzduchu na objem</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>Průtok vzduchu na výkon</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>Plocha na výkon</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>Měřítko momentu</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>Součinitel teplotní roztažnosti</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>Intenzita magnetického pole</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>Tepelná vodivost</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>Měrná tepelná kapacita</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>Propustnost vodní páry</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>Rezistivita</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>Měrné skupenské teplo varu</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>bez jednotky</translation>
    </message>
    <message>
        <source>meter</source>
        <translatorcomment>CLDR: metr</translatorcomment>
        <translation>metr</translation>
    </message>
    <message>
        <source>yottameter</source>
        <translatorcomment>CLDR: yottametr</translatorcomment>
        <translation>yottametr</translation>
    </message>
    <message>
        <source>zettameter</source>
        <translatorcomment>CLDR: zettametr</translatorcomment>
        <translation>zettametr</translation>
    </message>
    <message>
        <source>exameter</source>
        <translatorcomment>CLDR: exametr</translatorcomment>
        <translation>exametr</translation>
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
        <translatorcomment>CLDR: decimetr</translatorcomment>
        <translation>decimetr</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translatorcomment>CLDR: centimetr</translatorcomment>
        <translation>centimetr</translation>
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
        <translatorcomment>CLDR: yoktometr</translatorcomment>
        <translation>yoktometr</translation>
    </message>
    <message>
        <source>inch</source>
        <translatorcomment>CLDR: palec</translatorcomment>
        <translation>palec</translation>
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
        <translation>stopa (Clarke; Kapské Město)</translation>
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
        <translation>zeměměřická stopa (USA)</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: yard</translatorcomment>
        <translation>yard</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>řetěz</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>řetěz (Ramsden; inženýrský)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: furlong</translatorcomment>
        <translation>furlong</translation>
    </message>
    <message>
        <source>mile</source>
        <translatorcomment>CLDR: míle</translatorcomment>
        <translation>míle</translation>
    </message>
    <message>
        <source>geographical mile</source>
        <translation>zeměpisná míle</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>zeměměřická míle (USA)</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: námořní míle</translatorcomment>
        <translation>námořní míle</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>anglická míle (pozemní)</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>námořní míle (admiralitní)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>mikron</translation>
    </message>
    <message>
        <source>microinch</source>
        <translatorcomment>CLDR: mikropalec</translatorcomment>
        <translation>mikropalec</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>ångström</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: astronomická jednotka</translatorcomment>
        <translation>astronomická jednotka</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>kabel (námořní délka)</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>loket</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: sáh</translatorcomment>
        <translation>sáh</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>dlaň (hand)</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: světelný rok</translatorcomment>
        <translation>světelný rok</translation>
    </message>
    <message>
        <source>span</source>
        <translation>píď</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>píď (textilní)</translation>
    </message>
    <message>
        <source>parsec</source>
        <translatorcomment>CLDR: parsek</translatorcomment>
        <translation>parsek</translation>
    </message>
    <message>
        <source>nautical league</source>
        <translation>námořní liga</translation>
    </message>
    <message>
        <source>league</source>
        <translation>liga</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>mil (tisícina palce)</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>skandinávská míle (Švédsko a Norsko)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>článek</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>článek (Ramsden; inženýrský)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>krok</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>dlaň (3 palce)</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>prut (rod)</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>lano (rope)</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>přadeno</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>ráž</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>zeměměřický palec</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>zeměměřický yard</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>zeměměřický prut</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>role látky (bolt)</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: metr čtvereční</translatorcomment>
        <translation>metr čtvereční</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: palec čtvereční</translatorcomment>
        <translation>palec čtvereční</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: stopa čtvereční</translatorcomment>
        <translation>stopa čtvereční</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: yard čtvereční</translatorcomment>
        <translation>yard čtvereční</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: akr</translatorcomment>
        <translation>akr</translation>
    </message>
    <message>
        <source>section</source>
        <translation>sekce (čtvereční míle)</translation>
    </message>
    <message>
        <source>township</source>
        <translation>township (36 čtverečních mil)</translation>
    </message>
    <message>
        <source>hectare</source>
        <translatorcomment>CLDR: hektar</translatorcomment>
        <translation>hektar</translation>
    </message>
    <message>
        <source>square kilometer</source>
        <translatorcomment>CLDR: kilometr čtvereční</translatorcomment>
        <translation>kilometr čtvereční</translation>
    </message>
    <message>
        <source>square mile</source>
        <translatorcomment>CLDR: míle čtvereční</translatorcomment>
        <translation>míle čtvereční</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translatorcomment>CLDR: centimetr čtvereční</translatorcomment>
        <translation>centimetr čtvereční</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translatorcomment>CLDR: milimetr čtvereční</translatorcomment>
        <translation>milimetr čtvereční</translation>
    </message>
    <message>
        <source>circular mil</source>
        <translation>kruhový mil</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>kilo kruhový mil</translation>
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
        <translation>ångström čtvereční</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>role látky čtvereční</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>kabel čtvereční</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>ráž čtvereční</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>loket čtvereční</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translatorcomment>CLDR: decimetr čtvereční</translatorcomment>
        <translation>decimetr čtvereční</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translatorcomment>CLDR: sáh čtvereční</translatorcomment>
        <translation>sáh čtvereční</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translatorcomment>CLDR: furlong čtvereční</translatorcomment>
        <translation>furlong čtvereční</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translatorcomment>CLDR: gigametr čtvereční</translatorcomment>
        <translation>gigametr čtvereční</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>dlaň (hand) čtvereční</translation>
    </message>
    <message>
        <source>square nautical league</source>
        <translation>námořní liga čtvereční</translation>
    </message>
    <message>
        <source>square league (statute)</source>
        <translation>liga čtvereční (pozemní)</translation>
    </message>
    <message>
        <source>square light-year</source>
        <translatorcomment>CLDR: světelný rok čtvereční</translatorcomment>
        <translation>světelný rok čtvereční</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>článek čtvereční</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>mikron čtvereční</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>míle čtvereční (britská námořní)</translation>
    </message>
    <message>
        <source>square mile (statute)</source>
        <translation>míle čtvereční (pozemní)</translation>
    </message>
    <message>
        <source>square millimicron</source>
        <translation>milimikron čtvereční</translation>
    </message>
    <message>
        <source>square pace</source>
        <translation>krok čtvereční</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>dlaň čtvereční</translation>
    </message>
    <message>
        <source>square parsec</source>
        <translatorcomment>CLDR: parsek čtvereční</translatorcomment>
        <translation>parsek čtvereční</translation>
    </message>
    <message>
        <source>square perch</source>
        <translation>prut čtvereční (perch)</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>lano čtvereční</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>přadeno čtvereční</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>píď čtvereční</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>zeměměřická stopa čtvereční</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>řetěz čtvereční</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>mil čtvereční</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translatorcomment>CLDR: astronomická jednotka čtvereční</translatorcomment>
        <translation>astronomická jednotka čtvereční</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>zeměměřický akr</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>zeměměřický yard čtvereční</translation>
    </message>
    <message>
        <source>board</source>
        <translation>prkno (board)</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>kord (plocha)</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>mikropalec čtvereční</translation>
    </message>
    <message>
        <source>square micrometer</source>
        <translatorcomment>CLDR: mikrometr čtvereční</translatorcomment>
        <translation>mikrometr čtvereční</translation>
    </message>
    <message>
        <source>liter</source>
        <translatorcomment>CLDR: litr</translatorcomment>
        <translation>litr</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translatorcomment>CLDR: centimetr krychlový</translatorcomment>
        <translation>centimetr krychlový</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translatorcomment>CLDR: lžíce</translatorcomment>
        <translation>lžíce</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>polévková lžíce (Kanada)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>polévková lžíce (USA)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>kapalinová unce (imperiální)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>kapalinová unce (USA)</translation>
    </message>
    <message>
        <source>cup</source>
        <translation>hrnek</translation>
    </message>
    <message>
        <source>cup (Canadian)</source>
        <translation>hrnek (Kanada)</translation>
    </message>
    <message>
        <source>cup (U.S.)</source>
        <translation>hrnek (USA)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>kvart (imperiální)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>kvart (USA, kapaliny)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>kvart (USA, sypké látky)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>galon (imperiální)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>galon (USA, kapaliny; víno)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>galon (USA, sypké látky)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>pivní galon</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>bušl (imperiální)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>bušl (USA, zarovnaný)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>bušl (USA, s vrchem)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: centilitr</translatorcomment>
        <translation>centilitr</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: stopa krychlová</translatorcomment>
        <translation>stopa krychlová</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: palec krychlový</translatorcomment>
        <translation>palec krychlový</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: metr krychlový</translatorcomment>
        <translation>metr krychlový</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: yard krychlový</translatorcomment>
        <translation>yard krychlový</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>kapalinový dram</translation>
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
        <translation>pinta (imperiální)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>pinta (USA, kapaliny)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>pinta (USA, sypké látky)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: lžička</translatorcomment>
        <translation>lžička</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>čajová lžička (Kanada)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>čajová lžička (USA)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>čajová lžička (imperiální)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translatorcomment>CLDR: milimetr krychlový</translatorcomment>
        <translation>milimetr krychlový</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>barel (imperiální)</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>barel (ropný)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>barel (USA, sypké látky)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>barel (USA, kapaliny)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>prkenná stopa</translation>
    </message>
    <message>
        <source>decistere</source>
        <translation>decistér</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translatorcomment>CLDR: dekalitr</translatorcomment>
        <translation>dekalitr</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>dekastér</translation>
    </message>
    <message>
        <source>dram</source>
        <translatorcomment>CLDR: dutý dram</translatorcomment>
        <translation>dutý dram</translation>
    </message>
    <message>
        <source>firkin</source>
        <translation>firkin</translation>
    </message>
    <message>
        <source>cubic angstrom</source>
        <translation>ångström krychlový</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translation>astronomická jednotka krychlová</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>role látky krychlová</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>kabel krychlový</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>ráž krychlová</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>řetěz krychlový</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>loket krychlový</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translation>sáh krychlový</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translation>furlong krychlový</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translatorcomment>CLDR: gigametr krychlový</translatorcomment>
        <translation>gigametr krychlový</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>dlaň (hand) krychlová</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translatorcomment>CLDR: hektometr krychlový</translatorcomment>
        <translation>hektometr krychlový</translation>
    </message>
    <message>
        <source>cubic nautical league</source>
        <translation>námořní liga krychlová</translation>
    </message>
    <message>
        <source>cubic league (statute)</source>
        <translation>liga krychlová (pozemní)</translation>
    </message>
    <message>
        <source>cubic light-year</source>
        <translation>světelný rok krychlový</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>článek krychlový</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>mil krychlový</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>míle krychlová (britská námořní)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: míle krychlová</translatorcomment>
        <translation>míle krychlová</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translation>námořní míle krychlová</translation>
    </message>
    <message>
        <source>cubic mile (statute)</source>
        <translation>míle krychlová (pozemní)</translation>
    </message>
    <message>
        <source>cubic millimicron</source>
        <translation>milimikron krychlový</translation>
    </message>
    <message>
        <source>cubic pace</source>
        <translation>krok krychlový</translation>
    </message>
    <message>
        <source>cubic palm</source>
        <translation>dlaň krychlová</translation>
    </message>
    <message>
        <source>cubic parsec</source>
        <translation>parsek krychlový</translation>
    </message>
    <message>
        <source>cubic perch</source>
        <translation>prut krychlový (perch)</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>lano krychlové</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>přadeno krychlové</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>píď krychlová</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>zeměměřická stopa krychlová</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translatorcomment>CLDR: decimetr krychlový</translatorcomment>
        <translation>decimetr krychlový</translation>
    </message>
    <message>
        <source>tun</source>
        <translation>sud (tun)</translation>
    </message>
    <message>
        <source>peck</source>
        <translation>pek</translation>
    </message>
    <message>
        <source>peck (U.S. dry)</source>
        <translation>pek (USA, sypké látky)</translation>
    </message>
    <message>
        <source>peck (imperial)</source>
        <translation>pek (imperiální)</translation>
    </message>
    <message>
        <source>minim (imperial)</source>
        <translation>minim (imperiální)</translation>
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
        <translation>hogshead (USA)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>hogshead (imperiální)</translation>
    </message>
    <message>
        <source>gill (imperial)</source>
        <translation>gill (imperiální)</translation>
    </message>
    <message>
        <source>gill (U.S.)</source>
        <translation>gill (USA)</translation>
    </message>
    <message>
        <source>cubic survey yard</source>
        <translation>zeměměřický yard krychlový</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>kordová stopa</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>kord (palivové dřevo)</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>registrová tuna</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: akro-stopa</translatorcomment>
        <translation>akro-stopa</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>akr-palec</translation>
    </message>
    <message>
        <source>cubic microinch</source>
        <translation>mikropalec krychlový</translation>
    </message>
    <message>
        <source>cubic micrometer</source>
        <translatorcomment>CLDR: mikrometr krychlový</translatorcomment>
        <translation>mikrometr krychlový</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translatorcomment>CLDR: kilometr krychlový</translatorcomment>
        <translation>kilometr krychlový</translation>
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
        <translatorcomment>CLDR: yoktogram</translatorcomment>
        <translation>yoktogram</translation>
    </message>
    <message>
        <source>pound (meter)</source>
        <translation>metrická libra</translation>
    </message>
    <message>
        <source>pound</source>
        <translatorcomment>CLDR: libra</translatorcomment>
        <translation>libra</translation>
    </message>
    <message>
        <source>pound (troy)</source>
        <translation>trojská libra</translation>
    </message>
    <message>
        <source>ounce (avoirdupois)</source>
        <translation>unce (avoirdupois)</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>unce (lékárnická; trojská)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: kámen</translatorcomment>
        <translation>kámen</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>krátká tuna</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>dlouhá tuna</translation>
    </message>
    <message>
        <source>carat</source>
        <translatorcomment>CLDR: karát</translatorcomment>
        <translation>karát</translation>
    </message>
    <message>
        <source>carat (metric)</source>
        <translation>karát (metrický)</translation>
    </message>
    <message>
        <source>dram (avoirdupois)</source>
        <translation>dram (avoirdupois)</translation>
    </message>
    <message>
        <source>dram (apothecary; troy)</source>
        <translation>dram (lékárnický; trojský)</translation>
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
        <translation>dlouhý cent (hundredweight)</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>krátký cent (hundredweight)</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: grain</translatorcomment>
        <translation>grain</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>perlový grain</translation>
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
        <translatorcomment>CLDR: kilogram na metr</translatorcomment>
        <translation>kilogram na metr</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: libra na stopu</translatorcomment>
        <translation>libra na stopu</translation>
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
        <translatorcomment>CLDR: yoktomol</translatorcomment>
        <translation>yoktomol</translation>
    </message>
    <message>
        <source>radian</source>
        <translatorcomment>CLDR: radián</translatorcomment>
        <translation>radián</translation>
    </message>
    <message>
        <source>degree</source>
        <translatorcomment>CLDR: stupeň</translatorcomment>
        <translation>stupeň</translation>
    </message>
    <message>
        <source>milliradian</source>
        <translatorcomment>CLDR: miliradián</translatorcomment>
        <translation>miliradián</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>gon</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>dílec (NATO)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>dílec (Švédsko)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>dílec (SSSR)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translation>úhlová minuta</translation>
    </message>
    <message>
        <source>angle second</source>
        <translatorcomment>CLDR: vteřina</translatorcomment>
        <translation>vteřina</translation>
    </message>
    <message>
        <source>milliarc second</source>
        <translation>úhlová milisekunda</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>steradián</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: gram na metr čtvereční</translatorcomment>
        <translation>gram na metr čtvereční</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: gram na palec čtvereční</translatorcomment>
        <translation>gram na palec čtvereční</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translatorcomment>CLDR: nanogram na litr</translatorcomment>
        <translation>nanogram na litr</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translatorcomment>CLDR: nanogram/decilitr</translatorcomment>
        <translation>nanogram/decilitr</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translatorcomment>CLDR: nanogram/mililitr</translatorcomment>
        <translation>nanogram/mililitr</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translatorcomment>CLDR: nanogram/mikrolitr</translatorcomment>
        <translation>nanogram/mikrolitr</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: díl z milionu</translatorcomment>
        <translation>díl z milionu</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>díl z miliardy</translation>
    </message>
    <message>
        <source>ampere</source>
        <translatorcomment>CLDR: ampér</translatorcomment>
        <translation>ampér</translation>
    </message>
    <message>
        <source>yottaampere</source>
        <translatorcomment>CLDR: yottaampér</translatorcomment>
        <translation>yottaampér</translation>
    </message>
    <message>
        <source>zettaampere</source>
        <translatorcomment>CLDR: zettaampér</translatorcomment>
        <translation>zettaampér</translation>
    </message>
    <message>
        <source>exaampere</source>
        <translatorcomment>CLDR: exaampér</translatorcomment>
        <translation>exaampér</translation>
    </message>
    <message>
        <source>petaampere</source>
        <translatorcomment>CLDR: petaampér</translatorcomment>
        <translation>petaampér</translation>
    </message>
    <message>
        <source>teraampere</source>
        <translatorcomment>CLDR: teraampér</translatorcomment>
        <translation>teraampér</translation>
    </message>
    <message>
        <source>gigaampere</source>
        <translatorcomment>CLDR: gigaampér</translatorcomment>
        <translation>gigaampér</translation>
    </message>
    <message>
        <source>megaampere</source>
        <translatorcomment>CLDR: megaampér</translatorcomment>
        <translation>megaampér</translation>
    </message>
    <message>
        <source>kiloampere</source>
        <translatorcomment>CLDR: kiloampér</translatorcomment>
        <translation>kiloampér</translation>
    </message>
    <message>
        <source>hectoampere</source>
        <translatorcomment>CLDR: hektoampér</translatorcomment>
        <translation>hektoampér</translation>
    </message>
    <message>
        <source>decaampere</source>
        <translatorcomment>CLDR: dekaampér</translatorcomment>
        <translation>dekaampér</translation>
    </message>
    <message>
        <source>deciampere</source>
        <translatorcomment>CLDR: deciampér</translatorcomment>
        <translation>deciampér</translation>
    </message>
    <message>
        <source>centiampere</source>
        <translatorcomment>CLDR: centiampér</translatorcomment>
        <translation>centiampér</translation>
    </message>
    <message>
        <source>milliampere</source>
        <translatorcomment>CLDR: miliampér</translatorcomment>
        <translation>miliampér</translation>
    </message>
    <message>
        <source>microampere</source>
        <translatorcomment>CLDR: mikroampér</translatorcomment>
        <translation>mikroampér</translation>
    </message>
    <message>
        <source>nanoampere</source>
        <translatorcomment>CLDR: nanoampér</translatorcomment>
        <translation>nanoampér</translation>
    </message>
    <message>
        <source>picoampere</source>
        <translatorcomment>CLDR: pikoampér</translatorcomment>
        <translation>pikoampér</translation>
    </message>
    <message>
        <source>femtoampere</source>
        <translatorcomment>CLDR: femtoampér</translatorcomment>
        <translation>femtoampér</translation>
    </message>
    <message>
        <source>attoampere</source>
        <translatorcomment>CLDR: attoampér</translatorcomment>
        <translation>attoampér</translation>
    </message>
    <message>
        <source>zeptoampere</source>
        <translatorcomment>CLDR: zeptoampér</translatorcomment>
        <translation>zeptoampér</translation>
    </message>
    <message>
        <source>yoctoampere</source>
        <translatorcomment>CLDR: yoktoampér</translatorcomment>
        <translation>yoktoampér</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>coulomb</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translatorcomment>CLDR: ampérhodina</translatorcomment>
        <translation>ampérhodina</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translatorcomment>CLDR: miliampérhodina</translatorcomment>
        <translation>miliampérhodina</translation>
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
        <translatorcomment>CLDR: bit za sekundu</translatorcomment>
        <translation>bit za sekundu</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: bajt za sekundu</translatorcomment>
        <translation>bajt za sekundu</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>kilobaud</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: kilobit za sekundu</translatorcomment>
        <translation>kilobit za sekundu</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: kilobajt za sekundu</translatorcomment>
        <translation>kilobajt za sekundu</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>megabaud</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: megabit za sekundu</translatorcomment>
        <translation>megabit za sekundu</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: megabajt za sekundu</translatorcomment>
        <translation>megabajt za sekundu</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: kilogram na metr krychlový</translatorcomment>
        <translation>kilogram na metr krychlový</translation>
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
        <translatorcomment>CLDR: mikrogram/mililitr</translatorcomment>
        <translation>mikrogram/mililitr</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: miligram/mililitr</translatorcomment>
        <translation>miligram/mililitr</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: libra na galon</translatorcomment>
        <translation>libra na galon</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: unce na galon</translatorcomment>
        <translation>unce na galon</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: libra/stopa krychlová</translatorcomment>
        <translation>libra/stopa krychlová</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: libra/palec krychlový</translatorcomment>
        <translation>libra/palec krychlový</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: gram na centimetr krychlový</translatorcomment>
        <translation>gram na centimetr krychlový</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>newton sekunda na druhou na milimetr na čtvrtou</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: newton na metr krychlový</translatorcomment>
        <translation>newton na metr krychlový</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: kilonewton na metr krychlový</translatorcomment>
        <translation>kilonewton na metr krychlový</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>librová síla na krychlovou stopu</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>kip na krychlový palec</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>kip na krychlovou stopu</translation>
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
        <translation>britská tepelná jednotka (termochemická)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>britská tepelná jednotka (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>britská tepelná jednotka (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>britská tepelná jednotka (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>britská tepelná jednotka (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>britská tepelná jednotka (mezinárodní tabulková)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>britská tepelná jednotka (střední)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>britská tepelná jednotka (39 °F)</translation>
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
        <translatorcomment>CLDR: kilowatthodina</translatorcomment>
        <translation>kilowatthodina</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translatorcomment>CLDR: kilowattminuta</translatorcomment>
        <translation>kilowattminuta</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translatorcomment>CLDR: kilowattsekunda</translatorcomment>
        <translation>kilowattsekunda</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>therm (USA)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: newtonmetr</translatorcomment>
        <translation>newtonmetr</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translatorcomment>CLDR: dekanewtonmetr</translatorcomment>
        <translation>dekanewtonmetr</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translatorcomment>CLDR: kilonewtonmetr</translatorcomment>
        <translation>kilonewtonmetr</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translatorcomment>CLDR: meganewtonmetr</translatorcomment>
        <translation>meganewtonmetr</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>kilopondmetr</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>kilopondstopa</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>tunová síla stopa</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>tunová síla metr</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>stopa kilolibra</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>stopa librová síla</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>kalorie (20 °C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>kalorie (termochemická)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>kalorie (15 °C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>kalorie (střední)</translation>
    </message>
    <message>
        <source>calorie (3.98 degree C)</source>
        <translation>kalorie (3,98 °C)</translation>
    </message>
    <message>
        <source>Therm (EC)</source>
        <translation>therm (ES)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: metr krychlový za sekundu</translatorcomment>
        <translation>metr krychlový za sekundu</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: litr za sekundu</translatorcomment>
        <translation>litr za sekundu</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: litr za minutu</translatorcomment>
        <translation>litr za minutu</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: litr za hodinu</translatorcomment>
        <translation>litr za hodinu</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translatorcomment>CLDR: galon za sekundu</translatorcomment>
        <translation>galon za sekundu</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: galon za minutu</translatorcomment>
        <translation>galon za minutu</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: galon za hodinu</translatorcomment>
        <translation>galon za hodinu</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: galon za den</translatorcomment>
        <translation>galon za den</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: mililitr za minutu</translatorcomment>
        <translation>mililitr za minutu</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: centimetr krychlový za minutu</translatorcomment>
        <translation>centimetr krychlový za minutu</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: stopa krychlová za hodinu</translatorcomment>
        <translation>stopa krychlová za hodinu</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: stopa krychlová za minutu</translatorcomment>
        <translation>stopa krychlová za minutu</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: stopa krychlová za sekundu</translatorcomment>
        <translation>stopa krychlová za sekundu</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: palec krychlový za minutu</translatorcomment>
        <translation>palec krychlový za minutu</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: metr krychlový za hodinu</translatorcomment>
        <translation>metr krychlový za hodinu</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: metr krychlový za minutu</translatorcomment>
        <translation>metr krychlový za minutu</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: centimetr krychlový za sekundu</translatorcomment>
        <translation>centimetr krychlový za sekundu</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: centimetr krychlový za hodinu</translatorcomment>
        <translation>centimetr krychlový za hodinu</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>americký galon za hodinu</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>americký galon za sekundu</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>imperiální galon za den</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>imperiální galon za hodinu</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>imperiální galon za minutu</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>imperiální galon za sekundu</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>milion imperiálních galonů za den</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: litr za den</translatorcomment>
        <translation>litr za den</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>milion litrů za den</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>americký galon za den</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>milion amerických galonů za den</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: stopa krychlová za den</translatorcomment>
        <translation>stopa krychlová za den</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: metr krychlový za den</translatorcomment>
        <translation>metr krychlový za den</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: yard krychlový za minutu</translatorcomment>
        <translation>yard krychlový za minutu</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: akro-stopa za den</translatorcomment>
        <translation>akro-stopa za den</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: akro-stopa za hodinu</translatorcomment>
        <translation>akro-stopa za hodinu</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: akro-stopa za minutu</translatorcomment>
        <translation>akro-stopa za minutu</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>akr-palec za hodinu</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>akr-palec za minutu</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>zeměměřická stopa krychlová za sekundu</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: kilogram za sekundu</translatorcomment>
        <translation>kilogram za sekundu</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: kilogram za minutu</translatorcomment>
        <translation>kilogram za minutu</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: kilogram za hodinu</translatorcomment>
        <translation>kilogram za hodinu</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: gram za sekundu</translatorcomment>
        <translation>gram za sekundu</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: gram za minutu</translatorcomment>
        <translation>gram za minutu</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: gram za hodinu</translatorcomment>
        <translation>gram za hodinu</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: libra za sekundu</translatorcomment>
        <translation>libra za sekundu</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: libra za minutu</translatorcomment>
        <translation>libra za minutu</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: libra za hodinu</translatorcomment>
        <translation>libra za hodinu</translation>
    </message>
    <message>
        <source>pint per stroke</source>
        <translation>pinta na zdvih</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>kvart na zdvih</translation>
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
        <translatorcomment>CLDR: milinewton</translatorcomment>
        <translation>milinewton</translation>
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
        <translatorcomment>CLDR: yoktonewton</translatorcomment>
        <translation>yoktonewton</translation>
    </message>
    <message>
        <source>kilopound</source>
        <translation>kilolibra</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>kilopond</translation>
    </message>
    <message>
        <source>pound force</source>
        <translatorcomment>CLDR: libra síly</translatorcomment>
        <translation>libra síly</translation>
    </message>
    <message>
        <source>kip</source>
        <translation>kip</translation>
    </message>
    <message>
        <source>ton force</source>
        <translation>tunová síla</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>dyn</translation>
    </message>
    <message>
        <source>lbforce</source>
        <translation>lbf (librová síla)</translation>
    </message>
    <message>
        <source>ounce force</source>
        <translation>uncová síla</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: newton na metr</translatorcomment>
        <translation>newton na metr</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>kilolibra na stopu</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>kilopond na metr</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>tunová síla na metr</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>librová síla na stopu</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: dekanewton na metr</translatorcomment>
        <translation>dekanewton na metr</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translatorcomment>CLDR: kilonewton na metr</translatorcomment>
        <translation>kilonewton na metr</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translatorcomment>CLDR: meganewton na metr</translatorcomment>
        <translation>meganewton na metr</translation>
    </message>
    <message>
        <source>kip per foot</source>
        <translation>kip na stopu</translation>
    </message>
    <message>
        <source>kip per inch</source>
        <translation>kip na palec</translation>
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
        <translation>cyklus za sekundu</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: otáčka za minutu</translatorcomment>
        <translation>otáčka za minutu</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>záblesk za sekundu</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>záblesk za minutu</translation>
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
        <translation>milihenry</translation>
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
        <translation>gama</translation>
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
        <translation>koňská síla (metrická)</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>koňská síla (evropská elektrická)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>koňská síla (imperiální mechanická)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>koňská síla (imperiální elektrická)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: kilokalorie za hodinu</translatorcomment>
        <translation>kilokalorie za hodinu</translation>
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
        <translatorcomment>CLDR: voltampér</translatorcomment>
        <translation>voltampér</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translatorcomment>CLDR: milivoltampér</translatorcomment>
        <translation>milivoltampér</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translatorcomment>CLDR: kilovoltampér</translatorcomment>
        <translation>kilovoltampér</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translatorcomment>CLDR: megavoltampér</translatorcomment>
        <translation>megavoltampér</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: miliwatt</translatorcomment>
        <translation>miliwatt</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>kilopondmetr za sekundu</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>stopa librová síla za sekundu</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: kalorie za sekundu</translatorcomment>
        <translation>kalorie za sekundu</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: kilokalorie za sekundu</translatorcomment>
        <translation>kilokalorie za sekundu</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>britská tepelná jednotka (mezinárodní tabulková) za sekundu</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>britská tepelná jednotka (mezinárodní tabulková) za hodinu</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>milion britských tepelných jednotek (mezinárodní tabulkové) za hodinu</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>tisíc britských tepelných jednotek (mezinárodní tabulkové) za hodinu</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>chladicí tuna</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: watt na metr krychlový</translatorcomment>
        <translation>watt na metr krychlový</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: watt/stopa krychlová</translatorcomment>
        <translation>watt/stopa krychlová</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>britská tepelná jednotka za hodinu a krychlovou stopu</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: watt na kilogram</translatorcomment>
        <translation>watt na kilogram</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: watt na metr čtvereční</translatorcomment>
        <translation>watt na metr čtvereční</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: kilowatt na metr čtvereční</translatorcomment>
        <translation>kilowatt na metr čtvereční</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: kilowatt/stopa čtvereční</translatorcomment>
        <translation>kilowatt/stopa čtvereční</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: watt/stopa čtvereční</translatorcomment>
        <translation>watt/stopa čtvereční</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>britská tepelná jednotka za hodinu a čtvereční stopu</translation>
    </message>
    <message>
        <source>bar</source>
        <translatorcomment>CLDR: bar</translatorcomment>
        <translation>bar</translation>
    </message>
    <message>
        <source>bar absolute</source>
        <translation>bar absolutní</translation>
    </message>
    <message>
        <source>bar gauge</source>
        <translation>bar přetlakový</translation>
    </message>
    <message>
        <source>inch of mercury</source>
        <translatorcomment>CLDR: palec rtuťového sloupce</translatorcomment>
        <translation>palec rtuťového sloupce</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>palec vodního sloupce</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translatorcomment>CLDR: kilobar</translatorcomment>
        <translation>kilobar</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: kilogram na centimetr čtvereční</translatorcomment>
        <translation>kilogram na centimetr čtvereční</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: kilopascal</translatorcomment>
        <translation>kilopascal</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: kilolibra na palec čtvereční</translatorcomment>
        <translation>kilolibra na palec čtvereční</translation>
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
        <translatorcomment>CLDR: milimetr rtuťového sloupce</translatorcomment>
        <translation>milimetr rtuťového sloupce</translation>
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
        <translation>libra na čtvereční palec (absolutní)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>libra na čtvereční palec (přetlak)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: libra/stopa čtvereční</translatorcomment>
        <translation>libra/stopa čtvereční</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: libra na palec čtvereční</translatorcomment>
        <translation>libra na palec čtvereční</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>atmosféra (fyzikální)</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>atmosféra (technická)</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>torr</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translatorcomment>CLDR: newton/milimetr čtvereční</translatorcomment>
        <translation>newton/milimetr čtvereční</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: newton na metr čtvereční</translatorcomment>
        <translation>newton na metr čtvereční</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translatorcomment>CLDR: dekanewton/milimetr čtvereční</translatorcomment>
        <translation>dekanewton/milimetr čtvereční</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: dekanewton na metr čtvereční</translatorcomment>
        <translation>dekanewton na metr čtvereční</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: kilonewton na metr čtvereční</translatorcomment>
        <translation>kilonewton na metr čtvereční</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: meganewton na metr čtvereční</translatorcomment>
        <translation>meganewton na metr čtvereční</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translatorcomment>CLDR: kilolibra/stopa čtvereční</translatorcomment>
        <translation>kilolibra/stopa čtvereční</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>kilopond na čtvereční milimetr</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>kilopond na čtvereční centimetr</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>kilopond na čtvereční metr</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>tunová síla na čtvereční centimetr</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>tunová síla na čtvereční metr</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>tunová síla na čtvereční stopu</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translatorcomment>CLDR: libra na čtvereční palec</translatorcomment>
        <translation>libra na čtvereční palec</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>stopa vodního sloupce</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>kip na čtvereční palec</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>kip na čtvereční stopu</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>librová síla na čtvereční stopu</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: gigapascal</translatorcomment>
        <translation>gigapascal</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>dyn na čtvereční centimetr</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translatorcomment>CLDR: newton/mikrometr čtvereční</translatorcomment>
        <translation>newton/mikrometr čtvereční</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: metr/newton</translatorcomment>
        <translation>metr/newton</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translatorcomment>CLDR: metr/kilonewton</translatorcomment>
        <translation>metr/kilonewton</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>stopa na kip</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: metr čtvereční/newton</translatorcomment>
        <translation>metr čtvereční/newton</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: metr čtvereční/kilonewton</translatorcomment>
        <translation>metr čtvereční/kilonewton</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>čtvereční stopa na kip</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: metr krychlový/newton</translatorcomment>
        <translation>metr krychlový/newton</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: metr krychlový/kilonewton</translatorcomment>
        <translation>metr krychlový/kilonewton</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>krychlová stopa na kip</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: newtonmetr na metr</translatorcomment>
        <translation>newtonmetr na metr</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: dekanewtonmetr na metr</translatorcomment>
        <translation>dekanewtonmetr na metr</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: kilonewtonmetr na metr</translatorcomment>
        <translation>kilonewtonmetr na metr</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: meganewtonmetr na metr</translatorcomment>
        <translation>meganewtonmetr na metr</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>kip-stopa na stopu</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>kilopondmetr na metr</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>tunová síla metr na metr</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translatorcomment>CLDR: librostopa na stopu</translatorcomment>
        <translation>librostopa na stopu</translation>
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
        <translatorcomment>CLDR: miliohm</translatorcomment>
        <translation>miliohm</translation>
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
        <translatorcomment>CLDR: metr za sekundu</translatorcomment>
        <translation>metr za sekundu</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: milimetr za sekundu</translatorcomment>
        <translation>milimetr za sekundu</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: centimetr za sekundu</translatorcomment>
        <translation>centimetr za sekundu</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: metr za minutu</translatorcomment>
        <translation>metr za minutu</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: palec za sekundu</translatorcomment>
        <translation>palec za sekundu</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: stopa za sekundu</translatorcomment>
        <translation>stopa za sekundu</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: palec za minutu</translatorcomment>
        <translation>palec za minutu</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: stopa za minutu</translatorcomment>
        <translation>stopa za minutu</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: kilometr za hodinu</translatorcomment>
        <translation>kilometr za hodinu</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: míle za hodinu</translatorcomment>
        <translation>míle za hodinu</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: centimetr za minutu</translatorcomment>
        <translation>centimetr za minutu</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: stopa za hodinu</translatorcomment>
        <translation>stopa za hodinu</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: palec za hodinu</translatorcomment>
        <translation>palec za hodinu</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: kilometr za minutu</translatorcomment>
        <translation>kilometr za minutu</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: kilometr za sekundu</translatorcomment>
        <translation>kilometr za sekundu</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: uzel</translatorcomment>
        <translation>uzel</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>uzel (Spojené království)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: metr za hodinu</translatorcomment>
        <translation>metr za hodinu</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: míle za minutu</translatorcomment>
        <translation>míle za minutu</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: míle za sekundu</translatorcomment>
        <translation>míle za sekundu</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>zeměměřická míle za hodinu</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>zeměměřická stopa za sekundu</translation>
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
        <translatorcomment>CLDR: exabajt</translatorcomment>
        <translation>exabajt</translation>
    </message>
    <message>
        <source>exbibyte</source>
        <translatorcomment>CLDR: exbibajt</translatorcomment>
        <translation>exbibajt</translation>
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
        <translatorcomment>CLDR: yottabajt</translatorcomment>
        <translation>yottabajt</translation>
    </message>
    <message>
        <source>yobibyte</source>
        <translatorcomment>CLDR: yobibajt</translatorcomment>
        <translation>yobibajt</translation>
    </message>
    <message>
        <source>kelvin</source>
        <translatorcomment>CLDR: kelvin</translatorcomment>
        <translation>kelvin</translation>
    </message>
    <message>
        <source>degree Celsius</source>
        <translatorcomment>CLDR: stupeň Celsia</translatorcomment>
        <translation>stupeň Celsia</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: stupeň Fahrenheita</translatorcomment>
        <translation>stupeň Fahrenheita</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>stupeň Rankina</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: stupeň Celsia za minutu</translatorcomment>
        <translation>stupeň Celsia za minutu</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: stupeň Fahrenheita za minutu</translatorcomment>
        <translation>stupeň Fahrenheita za minutu</translation>
    </message>
    <message>
        <source>second</source>
        <translatorcomment>CLDR: sekunda</translatorcomment>
        <translation>sekunda</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translatorcomment>CLDR: yottasekunda</translatorcomment>
        <translation>yottasekunda</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translatorcomment>CLDR: zettasekunda</translatorcomment>
        <translation>zettasekunda</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translatorcomment>CLDR: exasekunda</translatorcomment>
        <translation>exasekunda</translation>
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
        <translatorcomment>CLDR: decisekunda</translatorcomment>
        <translation>decisekunda</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translatorcomment>CLDR: centisekunda</translatorcomment>
        <translation>centisekunda</translation>
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
        <translatorcomment>CLDR: yoktosekunda</translatorcomment>
        <translation>yoktosekunda</translation>
    </message>
    <message>
        <source>minute</source>
        <translatorcomment>CLDR: minuta</translatorcomment>
        <translation>minuta</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: hodina</translatorcomment>
        <translation>hodina</translation>
    </message>
    <message>
        <source>day</source>
        <translatorcomment>CLDR: den</translatorcomment>
        <translation>den</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: týden</translatorcomment>
        <translation>týden</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>čtrnáct dní</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: měsíc</translatorcomment>
        <translation>měsíc</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>měsíc (krátký, 29 dní)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>měsíc (plný, 30 dní)</translation>
    </message>
    <message>
        <source>year</source>
        <translatorcomment>CLDR: rok</translatorcomment>
        <translation>rok</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>rok (gregoriánský)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>rok (juliánský)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>siderický rok</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>tropický rok</translation>
    </message>
    <message>
        <source>annum</source>
        <translation>annum</translation>
    </message>
    <message>
        <source>decade</source>
        <translatorcomment>CLDR: desetiletí</translatorcomment>
        <translation>desetiletí</translation>
    </message>
    <message>
        <source>century</source>
        <translatorcomment>CLDR: století</translatorcomment>
        <translation>století</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>století (juliánské)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>tisíciletí</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>tisíciletí (gregoriánské)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>tisíciletí (juliánské)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>newtonmetr (moment)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>newtoncentimetr (moment)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>newtondekametr (moment)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>stopa libra (moment)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>palec libra (moment)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>metr kilogram (moment)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>centimetr kilogram (moment)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>palec unce (moment)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>gram centimetr (moment)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>dekanewtonmetr (moment)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>kilonewtonmetr (moment)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>meganewtonmetr (moment)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>kip stopa (moment)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>kilopondmetr (moment)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>tunová síla metr (moment)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>librová síla stopa (moment)</translation>
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
        <translatorcomment>CLDR: pascalsekunda</translatorcomment>
        <translation>pascalsekunda</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>libra hmotnosti na stopu a sekundu</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>libra hmotnosti na stopu a hodinu</translation>
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
        <translatorcomment>CLDR: metr za sekundu na druhou</translatorcomment>
        <translation>metr za sekundu na druhou</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>stopa za sekundu na druhou</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>zeměměřická stopa za sekundu na druhou</translation>
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
        <translatorcomment>CLDR: milivolt</translatorcomment>
        <translation>milivolt</translation>
    </message>
    <message>
        <source>volt (electrical potential)</source>
        <translation>volt (elektrický potenciál)</translation>
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
        <translatorcomment>CLDR: kandela</translatorcomment>
        <translation>kandela</translation>
    </message>
    <message>
        <source>lumen per steradian</source>
        <translation>lumen na steradián</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>svíčka (candlepower)</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>lux (osvětlenost)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>stopa-svíčka</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translatorcomment>CLDR: lumensekunda</translatorcomment>
        <translation>lumensekunda</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>talbot</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>světelný výkon</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: lumen</translatorcomment>
        <translation>lumen</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: kandela na metr čtvereční</translatorcomment>
        <translation>kandela na metr čtvereční</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>stopa-lambert</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: kandela/stopa čtvereční</translatorcomment>
        <translation>kandela/stopa čtvereční</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>lux (světlení)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: lumen/watt</translatorcomment>
        <translation>lumen/watt</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: pascal na metr</translatorcomment>
        <translation>pascal na metr</translation>
    </message>
    <message>
        <source>inch of water per 100foot</source>
        <translation>palec vodního sloupce na 100 stop</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>stopa vodního sloupce na 100 stop</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>palec rtuťového sloupce na 100 stop</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>milimetr rtuťového sloupce na 100 stop</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: newtonmetr/stupeň</translatorcomment>
        <translation>newtonmetr/stupeň</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>kip-stopa na stupeň</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: kilonewtonmetr/stupeň</translatorcomment>
        <translation>kilonewtonmetr/stupeň</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>newtonmetr na stupeň a metr</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>kip-stopa na stupeň a stopu</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>kilonewtonmetr na stupeň a metr</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>watt na čtvereční metr a kelvin</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>britská tepelná jednotka za hodinu, čtvereční stopu a stupeň Fahrenheita</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>krychlový metr za sekundu a čtvereční metr</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>krychlová stopa za minutu a čtvereční stopu</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>litr za sekundu a čtvereční metr</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>krychlový metr za sekundu a krychlový metr</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>krychlová stopa za minutu a krychlovou stopu</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>litr za sekundu a krychlový metr</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>krychlový metr za sekundu a watt</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>krychlová stopa za minutu a chladicí tunu</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>litr za sekundu a kilowatt</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: metr čtvereční/watt</translatorcomment>
        <translation>metr čtvereční/watt</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>čtvereční stopa na chladicí tunu</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: metr čtvereční/kilowatt</translatorcomment>
        <translation>metr čtvereční/kilowatt</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>čtvereční stopa na tisíc britských tepelných jednotek za hodinu</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>sekunda na druhou na metr a kilogram</translation>
    </message>
    <message>
        <source>inverse kilonewton</source>
        <translation>převrácený kilonewton</translation>
    </message>
    <message>
        <source>inverse kip</source>
        <translation>převrácený kip</translation>
    </message>
    <message>
        <source>inverse fahrenheit</source>
        <translation>převrácený stupeň Fahrenheita</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>převrácený stupeň Celsia</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>mikrometr na metr a stupeň Celsia</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>mikropalec na palec a stupeň Fahrenheita</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>oersted</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: ampér na metr</translatorcomment>
        <translation>ampér na metr</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>watt na metr a kelvin</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>watt na metr a stupeň Celsia</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>newton za sekundu a stupeň Celsia</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>dyn za sekundu a stupeň Celsia</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>BTU palec na čtvereční stopu, hodinu a stupeň Fahrenheita</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>BTU na palec, sekundu a stupeň Fahrenheita</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>BTU na stopu, sekundu a stupeň Fahrenheita</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>BTU na stopu, hodinu a stupeň Fahrenheita</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>joule na gram a stupeň Celsia</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>joule na kilogram a stupeň Celsia</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>čtvereční milimetr na sekundu na druhou a stupeň Celsia</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>erg na gram a stupeň Celsia</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>čtvereční mikrometr na sekundu na druhou a stupeň Celsia</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>BTU na libru a stupeň Fahrenheita</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>nanogram na pascal, sekundu a čtvereční metr</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>grain na čtvereční stopu, hodinu a palec rtuťového sloupce</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translatorcomment>CLDR: ohmmetr</translatorcomment>
        <translation>ohmmetr</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translatorcomment>CLDR: joule na gram</translatorcomment>
        <translation>joule na gram</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translatorcomment>CLDR: joule na kilogram</translatorcomment>
        <translation>joule na kilogram</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>BTU na libru</translation>
    </message>
</context>
</TS>
