<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi_FI">
<context>
    <name>NumberFormat</name>
    <message>
        <source>Exponential</source>
        <translation>Eksponentiaalinen</translation>
    </message>
    <message>
        <source>exponential</source>
        <translation>eksponentiaalinen</translation>
    </message>
    <message>
        <source>Fixed Point</source>
        <translation>Kiinteä desimaali</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Yleinen</translation>
    </message>
    <message>
        <source>general</source>
        <translation>yleinen</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Luku</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Murtoluku</translation>
    </message>
</context>
<context>
    <name>UnitGroup</name>
    <message>
        <source>Dimensionless</source>
        <translation>Dimensioton</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Pituus</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Pinta-ala</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Tilavuus</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Massa</translation>
    </message>
    <message>
        <source>Linear Weight</source>
        <translation>Pituusmassa</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>Ainemäärä</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Kulma</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>Avaruuskulma</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>Pintatiheys</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Pitoisuus</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>Osuus (ppm, ppb)</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>Sähkövirta</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>Sähkövaraus</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>Kapasitanssi</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Bittinopeus</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Tiheys</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>Ominaispaino</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energia</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>Tilavuusvirta</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>Massavirta</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>Tuotto iskua kohden</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Voima</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>Viivakuorma</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Taajuus</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>Induktanssi</translation>
    </message>
    <message>
        <source>Magnetic Flux Density</source>
        <translation>Magneettivuon tiheys</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>Magneettivuo</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Teho</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>Teho tilavuusyksikköä kohden</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>Teho massayksikköä kohden</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>Teho pinta-alayksikköä kohden</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Paine</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>Voimaskaala</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>Viivakuormaskaala</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>Pintakuormaskaala</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>Viivamomentti</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>Sähkövastus</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>Konduktanssi</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Nopeus</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>Tallennuskapasiteetti</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Lämpötila</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>Lämpötilan muutosnopeus</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Aika</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>Vääntömomentti</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>Dynaaminen viskositeetti</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>Kinemaattinen viskositeetti</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Kiihtyvyys</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Jännite</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>Sähköpotentiaali</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>Valovoima</translation>
    </message>
    <message>
        <source>Illuminance</source>
        <translation>Valaistusvoimakkuus</translation>
    </message>
    <message>
        <source>Luminous Energy</source>
        <translation>Valomäärä</translation>
    </message>
    <message>
        <source>Luminous Flux</source>
        <translation>Valovirta</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminanssi</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>Valon emittanssi</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>Valotehokkuus</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Kitkapainehäviö</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>Pistemäinen kiertojousijäykkyys</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>Viivamainen kiertojousijäykkyys</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>Lämmönsiirtokerroin</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>Ilmavirran tiheys</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>Ilmavirta tilavuutta kohden</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>Ilmavirta tehoa kohden</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>Pinta-ala tehoa kohden</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>Momenttiskaala</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>Lämpölaajenemiskerroin</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>Magneettikentän voimakkuus</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>Lämmönjohtavuus</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>Ominaislämpökapasiteetti</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>Vesihöyrynläpäisevyys</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>Resistiivisyys</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>Ominaishöyrystymislämpö</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>yksikötön</translation>
    </message>
    <message>
        <source>meter</source>
        <translatorcomment>CLDR: metri</translatorcomment>
        <translation>metri</translation>
    </message>
    <message>
        <source>yottameter</source>
        <translatorcomment>CLDR: jottametri</translatorcomment>
        <translation>jottametri</translation>
    </message>
    <message>
        <source>zettameter</source>
        <translatorcomment>CLDR: tsettametri</translatorcomment>
        <translation>tsettametri</translation>
    </message>
    <message>
        <source>exameter</source>
        <translatorcomment>CLDR: eksametri</translatorcomment>
        <translation>eksametri</translation>
    </message>
    <message>
        <source>petameter</source>
        <translatorcomment>CLDR: petametri</translatorcomment>
        <translation>petametri</translation>
    </message>
    <message>
        <source>terameter</source>
        <translatorcomment>CLDR: terametri</translatorcomment>
        <translation>terametri</translation>
    </message>
    <message>
        <source>gigameter</source>
        <translatorcomment>CLDR: gigametri</translatorcomment>
        <translation>gigametri</translation>
    </message>
    <message>
        <source>megameter</source>
        <translatorcomment>CLDR: megametri</translatorcomment>
        <translation>megametri</translation>
    </message>
    <message>
        <source>kilometer</source>
        <translatorcomment>CLDR: kilometri</translatorcomment>
        <translation>kilometri</translation>
    </message>
    <message>
        <source>hectometer</source>
        <translatorcomment>CLDR: hehtometri</translatorcomment>
        <translation>hehtometri</translation>
    </message>
    <message>
        <source>decameter</source>
        <translatorcomment>CLDR: dekametri</translatorcomment>
        <translation>dekametri</translation>
    </message>
    <message>
        <source>decimeter</source>
        <translatorcomment>CLDR: desimetri</translatorcomment>
        <translation>desimetri</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translatorcomment>CLDR: senttimetri</translatorcomment>
        <translation>senttimetri</translation>
    </message>
    <message>
        <source>millimeter</source>
        <translatorcomment>CLDR: millimetri</translatorcomment>
        <translation>millimetri</translation>
    </message>
    <message>
        <source>micrometer</source>
        <translatorcomment>CLDR: mikrometri</translatorcomment>
        <translation>mikrometri</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translatorcomment>CLDR: nanometri</translatorcomment>
        <translation>nanometri</translation>
    </message>
    <message>
        <source>picometer</source>
        <translatorcomment>CLDR: pikometri</translatorcomment>
        <translation>pikometri</translation>
    </message>
    <message>
        <source>femtometer</source>
        <translatorcomment>CLDR: femtometri</translatorcomment>
        <translation>femtometri</translation>
    </message>
    <message>
        <source>attometer</source>
        <translatorcomment>CLDR: attometri</translatorcomment>
        <translation>attometri</translation>
    </message>
    <message>
        <source>zeptometer</source>
        <translatorcomment>CLDR: tseptometri</translatorcomment>
        <translation>tseptometri</translation>
    </message>
    <message>
        <source>yoctometer</source>
        <translatorcomment>CLDR: joktometri</translatorcomment>
        <translation>joktometri</translation>
    </message>
    <message>
        <source>inch</source>
        <translatorcomment>CLDR: tuuma</translatorcomment>
        <translation>tuuma</translation>
    </message>
    <message>
        <source>foot</source>
        <translatorcomment>CLDR: jalka</translatorcomment>
        <translation>jalka</translation>
    </message>
    <message>
        <source>foot (Benoit)</source>
        <translation>jalka (Benoit)</translation>
    </message>
    <message>
        <source>foot (Clarke&apos;s; Cape)</source>
        <translation>jalka (Clarke; Kapkaupunki)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>jalka (Intia)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>jalka (Sears)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>maanmittausjalka (USA)</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: jaardi</translatorcomment>
        <translation>jaardi</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>ketju (chain)</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>ketju (Ramsden; insinööri)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: furlong</translatorcomment>
        <translation>furlong</translation>
    </message>
    <message>
        <source>mile</source>
        <translatorcomment>CLDR: maili</translatorcomment>
        <translation>maili</translation>
    </message>
    <message>
        <source>geographical mile</source>
        <translation>maantieteellinen maili</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>maanmittausmaili (USA)</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: meripeninkulma</translatorcomment>
        <translation>meripeninkulma</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>englantilainen maili (maa)</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>meripeninkulma (amiraliteetti)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>mikroni</translation>
    </message>
    <message>
        <source>microinch</source>
        <translatorcomment>CLDR: mikrotuuma</translatorcomment>
        <translation>mikrotuuma</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>ångström</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: astronominen yksikkö</translatorcomment>
        <translation>astronominen yksikkö</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>kaapelinmitta</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>kyynärä</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: syli</translatorcomment>
        <translation>syli</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>kämmen (hand)</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: valovuosi</translatorcomment>
        <translation>valovuosi</translation>
    </message>
    <message>
        <source>span</source>
        <translation>vaaksa</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>vaaksa (tekstiili)</translation>
    </message>
    <message>
        <source>parsec</source>
        <translatorcomment>CLDR: parsek</translatorcomment>
        <translation>parsek</translation>
    </message>
    <message>
        <source>nautical league</source>
        <translation>merileague</translation>
    </message>
    <message>
        <source>league</source>
        <translation>league (englantilainen)</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>mil (tuuman tuhannesosa)</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>peninkulma (Ruotsi ja Norja)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>lenkki (link)</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>lenkki (Ramsden; insinööri)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>askel</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>kämmenleveys (3 tuumaa)</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>sauva (rod)</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>köysi (rope)</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>vyyhti</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>kaliiperi</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>maanmittaustuuma</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>maanmittausjaardi</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>maanmittaussauva</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>pakka (bolt)</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: neliömetri</translatorcomment>
        <translation>neliömetri</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: neliötuuma</translatorcomment>
        <translation>neliötuuma</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: neliöjalka</translatorcomment>
        <translation>neliöjalka</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: neliöjaardi</translatorcomment>
        <translation>neliöjaardi</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: eekkeri</translatorcomment>
        <translation>eekkeri</translation>
    </message>
    <message>
        <source>section</source>
        <translation>section (neliömaili)</translation>
    </message>
    <message>
        <source>township</source>
        <translation>township (36 neliömailia)</translation>
    </message>
    <message>
        <source>hectare</source>
        <translatorcomment>CLDR: hehtaari</translatorcomment>
        <translation>hehtaari</translation>
    </message>
    <message>
        <source>square kilometer</source>
        <translatorcomment>CLDR: neliökilometri</translatorcomment>
        <translation>neliökilometri</translation>
    </message>
    <message>
        <source>square mile</source>
        <translatorcomment>CLDR: neliömaili</translatorcomment>
        <translation>neliömaili</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translatorcomment>CLDR: neliösenttimetri</translatorcomment>
        <translation>neliösenttimetri</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translatorcomment>CLDR: neliömillimetri</translatorcomment>
        <translation>neliömillimetri</translation>
    </message>
    <message>
        <source>circular mil</source>
        <translation>ympyrämil</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>kiloympyrämil</translation>
    </message>
    <message>
        <source>are</source>
        <translation>aari</translation>
    </message>
    <message>
        <source>barn</source>
        <translation>barn</translation>
    </message>
    <message>
        <source>centare</source>
        <translation>sentiaari</translation>
    </message>
    <message>
        <source>square angstrom</source>
        <translation>neliöångström</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>neliöpakka</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>neliökaapelinmitta</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>neliökaliiperi</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>neliökyynärä</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translatorcomment>CLDR: neliödesimetri</translatorcomment>
        <translation>neliödesimetri</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translatorcomment>CLDR: neliösyli</translatorcomment>
        <translation>neliösyli</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translatorcomment>CLDR: neliöfurlong</translatorcomment>
        <translation>neliöfurlong</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translatorcomment>CLDR: neliögigametri</translatorcomment>
        <translation>neliögigametri</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>neliökämmen</translation>
    </message>
    <message>
        <source>square nautical league</source>
        <translation>neliömerileague</translation>
    </message>
    <message>
        <source>square league (statute)</source>
        <translation>neliöleague (maa)</translation>
    </message>
    <message>
        <source>square light-year</source>
        <translatorcomment>CLDR: neliövalovuosi</translatorcomment>
        <translation>neliövalovuosi</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>neliölenkki</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>neliömikroni</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>neliömaili (brittiläinen meri)</translation>
    </message>
    <message>
        <source>square mile (statute)</source>
        <translation>neliömaili (maa)</translation>
    </message>
    <message>
        <source>square millimicron</source>
        <translation>neliömillimikroni</translation>
    </message>
    <message>
        <source>square pace</source>
        <translation>neliöaskel</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>neliökämmenleveys</translation>
    </message>
    <message>
        <source>square parsec</source>
        <translatorcomment>CLDR: neliöparsek</translatorcomment>
        <translation>neliöparsek</translation>
    </message>
    <message>
        <source>square perch</source>
        <translation>neliöperch</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>neliököysi</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>neliövyyhti</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>neliövaaksa</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>neliömaanmittausjalka</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>neliöketju</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>neliömil</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translation>astronominen neliöyksikkö</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>maanmittauseekkeri</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>neliömaanmittausjaardi</translation>
    </message>
    <message>
        <source>board</source>
        <translation>lauta (board)</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>cord (ala)</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>neliömikrotuuma</translation>
    </message>
    <message>
        <source>square micrometer</source>
        <translatorcomment>CLDR: neliömikrometri</translatorcomment>
        <translation>neliömikrometri</translation>
    </message>
    <message>
        <source>liter</source>
        <translatorcomment>CLDR: litra</translatorcomment>
        <translation>litra</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translatorcomment>CLDR: kuutiosenttimetri</translatorcomment>
        <translation>kuutiosenttimetri</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translatorcomment>CLDR: ruokalusikka</translatorcomment>
        <translation>ruokalusikka</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>ruokalusikka (Kanada)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>ruokalusikka (USA)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>nesteunssi (imperial)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>nesteunssi (USA)</translation>
    </message>
    <message>
        <source>cup</source>
        <translation>kuppi</translation>
    </message>
    <message>
        <source>cup (Canadian)</source>
        <translation>kuppi (Kanada)</translation>
    </message>
    <message>
        <source>cup (U.S.)</source>
        <translation>kuppi (USA)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>kvartti (imperial)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>kvartti (USA, neste)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>kvartti (USA, kuiva)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>gallona (imperial)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>gallona (USA, neste; viini)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>gallona (USA, kuiva)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>olutgallona</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>busheli (imperial)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>busheli (USA, tasattu)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>busheli (USA, kukkurainen)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: senttilitra</translatorcomment>
        <translation>senttilitra</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: kuutiojalka</translatorcomment>
        <translation>kuutiojalka</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: kuutiotuuma</translatorcomment>
        <translation>kuutiotuuma</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: kuutiometri</translatorcomment>
        <translation>kuutiometri</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: kuutiojaardi</translatorcomment>
        <translation>kuutiojaardi</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>nestedrami</translation>
    </message>
    <message>
        <source>microliter</source>
        <translatorcomment>CLDR: mikrolitra</translatorcomment>
        <translation>mikrolitra</translation>
    </message>
    <message>
        <source>milliliter</source>
        <translatorcomment>CLDR: millilitra</translatorcomment>
        <translation>millilitra</translation>
    </message>
    <message>
        <source>pint (imperial)</source>
        <translation>pintti (imperial)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>pintti (USA, neste)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>pintti (USA, kuiva)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: teelusikka</translatorcomment>
        <translation>teelusikka</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>teelusikka (Kanada)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>teelusikka (USA)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>teelusikka (imperial)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translatorcomment>CLDR: kuutiomillimetri</translatorcomment>
        <translation>kuutiomillimetri</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>tynnyri (imperial)</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>tynnyri (öljy)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>tynnyri (USA, kuiva)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>tynnyri (USA, neste)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>lautajalka</translation>
    </message>
    <message>
        <source>decistere</source>
        <translation>desistere</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translatorcomment>CLDR: dekalitra</translatorcomment>
        <translation>dekalitra</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>dekastere</translation>
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
        <translation>kuutioångström</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translation>astronominen kuutioyksikkö</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>kuutiopakka</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>kuutiokaapelinmitta</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>kuutiokaliiperi</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>kuutioketju</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>kuutiokyynärä</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translatorcomment>CLDR: kuutiosyli</translatorcomment>
        <translation>kuutiosyli</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translatorcomment>CLDR: kuutiofurlong</translatorcomment>
        <translation>kuutiofurlong</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translatorcomment>CLDR: kuutiogigametri</translatorcomment>
        <translation>kuutiogigametri</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>kuutiokämmen</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translatorcomment>CLDR: kuutiohehtometri</translatorcomment>
        <translation>kuutiohehtometri</translation>
    </message>
    <message>
        <source>cubic nautical league</source>
        <translation>kuutiomerileague</translation>
    </message>
    <message>
        <source>cubic league (statute)</source>
        <translation>kuutioleague (maa)</translation>
    </message>
    <message>
        <source>cubic light-year</source>
        <translatorcomment>CLDR: kuutiovalovuosi</translatorcomment>
        <translation>kuutiovalovuosi</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>kuutiolenkki</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>kuutiomil</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>kuutiomaili (brittiläinen meri)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: kuutiomaili</translatorcomment>
        <translation>kuutiomaili</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translatorcomment>CLDR: kuutiomeripeninkulma</translatorcomment>
        <translation>kuutiomeripeninkulma</translation>
    </message>
    <message>
        <source>cubic mile (statute)</source>
        <translation>kuutiomaili (maa)</translation>
    </message>
    <message>
        <source>cubic millimicron</source>
        <translation>kuutiomillimikroni</translation>
    </message>
    <message>
        <source>cubic pace</source>
        <translation>kuutioaskel</translation>
    </message>
    <message>
        <source>cubic palm</source>
        <translation>kuutiokämmenleveys</translation>
    </message>
    <message>
        <source>cubic parsec</source>
        <translatorcomment>CLDR: kuutioparsek</translatorcomment>
        <translation>kuutioparsek</translation>
    </message>
    <message>
        <source>cubic perch</source>
        <translation>kuutioperch</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>kuutioköysi</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>kuutiovyyhti</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>kuutiovaaksa</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>kuutiomaanmittausjalka</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translatorcomment>CLDR: kuutiodesimetri</translatorcomment>
        <translation>kuutiodesimetri</translation>
    </message>
    <message>
        <source>tun</source>
        <translation>tynnyri (tun)</translation>
    </message>
    <message>
        <source>peck</source>
        <translation>peck</translation>
    </message>
    <message>
        <source>peck (U.S. dry)</source>
        <translation>peck (USA, kuiva)</translation>
    </message>
    <message>
        <source>peck (imperial)</source>
        <translation>peck (imperial)</translation>
    </message>
    <message>
        <source>minim (imperial)</source>
        <translation>minimi (imperial)</translation>
    </message>
    <message>
        <source>minim (U.S.)</source>
        <translation>minimi (USA)</translation>
    </message>
    <message>
        <source>kiloliter</source>
        <translatorcomment>CLDR: kilolitra</translatorcomment>
        <translation>kilolitra</translation>
    </message>
    <message>
        <source>hogshead (U.S.)</source>
        <translation>oksihoodi (USA)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>oksihoodi (imperial)</translation>
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
        <translation>kuutiomaanmittausjaardi</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>cord-jalka</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>cord (polttopuu)</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>rekisteritonni</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: eekkerijalka</translatorcomment>
        <translation>eekkerijalka</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>eekkerituuma</translation>
    </message>
    <message>
        <source>cubic microinch</source>
        <translation>kuutiomikrotuuma</translation>
    </message>
    <message>
        <source>cubic micrometer</source>
        <translatorcomment>CLDR: kuutiomikrometri</translatorcomment>
        <translation>kuutiomikrometri</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translatorcomment>CLDR: kuutiokilometri</translatorcomment>
        <translation>kuutiokilometri</translation>
    </message>
    <message>
        <source>kilogram</source>
        <translatorcomment>CLDR: kilogramma</translatorcomment>
        <translation>kilogramma</translation>
    </message>
    <message>
        <source>gram</source>
        <translatorcomment>CLDR: gramma</translatorcomment>
        <translation>gramma</translation>
    </message>
    <message>
        <source>yottagram</source>
        <translatorcomment>CLDR: jottagramma</translatorcomment>
        <translation>jottagramma</translation>
    </message>
    <message>
        <source>zettagram</source>
        <translatorcomment>CLDR: tsettagramma</translatorcomment>
        <translation>tsettagramma</translation>
    </message>
    <message>
        <source>exagram</source>
        <translatorcomment>CLDR: eksagramma</translatorcomment>
        <translation>eksagramma</translation>
    </message>
    <message>
        <source>petagram</source>
        <translatorcomment>CLDR: petagramma</translatorcomment>
        <translation>petagramma</translation>
    </message>
    <message>
        <source>teragram</source>
        <translatorcomment>CLDR: teragramma</translatorcomment>
        <translation>teragramma</translation>
    </message>
    <message>
        <source>gigagram</source>
        <translatorcomment>CLDR: gigagramma</translatorcomment>
        <translation>gigagramma</translation>
    </message>
    <message>
        <source>megagram</source>
        <translatorcomment>CLDR: megagramma</translatorcomment>
        <translation>megagramma</translation>
    </message>
    <message>
        <source>hectogram</source>
        <translatorcomment>CLDR: hehtogramma</translatorcomment>
        <translation>hehtogramma</translation>
    </message>
    <message>
        <source>decagram</source>
        <translatorcomment>CLDR: dekagramma</translatorcomment>
        <translation>dekagramma</translation>
    </message>
    <message>
        <source>decigram</source>
        <translatorcomment>CLDR: desigramma</translatorcomment>
        <translation>desigramma</translation>
    </message>
    <message>
        <source>centigram</source>
        <translatorcomment>CLDR: senttigramma</translatorcomment>
        <translation>senttigramma</translation>
    </message>
    <message>
        <source>milligram</source>
        <translatorcomment>CLDR: milligramma</translatorcomment>
        <translation>milligramma</translation>
    </message>
    <message>
        <source>microgram</source>
        <translatorcomment>CLDR: mikrogramma</translatorcomment>
        <translation>mikrogramma</translation>
    </message>
    <message>
        <source>nanogram</source>
        <translatorcomment>CLDR: nanogramma</translatorcomment>
        <translation>nanogramma</translation>
    </message>
    <message>
        <source>picogram</source>
        <translatorcomment>CLDR: pikogramma</translatorcomment>
        <translation>pikogramma</translation>
    </message>
    <message>
        <source>femtogram</source>
        <translatorcomment>CLDR: femtogramma</translatorcomment>
        <translation>femtogramma</translation>
    </message>
    <message>
        <source>attogram</source>
        <translatorcomment>CLDR: attogramma</translatorcomment>
        <translation>attogramma</translation>
    </message>
    <message>
        <source>zeptogram</source>
        <translatorcomment>CLDR: tseptogramma</translatorcomment>
        <translation>tseptogramma</translation>
    </message>
    <message>
        <source>yoctogram</source>
        <translatorcomment>CLDR: joktogramma</translatorcomment>
        <translation>joktogramma</translation>
    </message>
    <message>
        <source>pound (meter)</source>
        <translation>metrinen pauna</translation>
    </message>
    <message>
        <source>pound</source>
        <translatorcomment>CLDR: pauna</translatorcomment>
        <translation>pauna</translation>
    </message>
    <message>
        <source>pound (troy)</source>
        <translation>troy-pauna</translation>
    </message>
    <message>
        <source>ounce (avoirdupois)</source>
        <translation>unssi (avoirdupois)</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>unssi (apteekki; troy)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: stone</translatorcomment>
        <translation>stone</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>lyhyt tonni</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>pitkä tonni</translation>
    </message>
    <message>
        <source>carat</source>
        <translatorcomment>CLDR: karaatti</translatorcomment>
        <translation>karaatti</translation>
    </message>
    <message>
        <source>carat (metric)</source>
        <translation>karaatti (metrinen)</translation>
    </message>
    <message>
        <source>dram (avoirdupois)</source>
        <translation>drami (avoirdupois)</translation>
    </message>
    <message>
        <source>dram (apothecary; troy)</source>
        <translation>drami (apteekki; troy)</translation>
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
        <translation>pitkä sentneri</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>lyhyt sentneri</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: graani</translatorcomment>
        <translation>graani</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>helmigrain</translation>
    </message>
    <message>
        <source>dalton</source>
        <translatorcomment>CLDR: atomimassayksikkö</translatorcomment>
        <translation>atomimassayksikkö</translation>
    </message>
    <message>
        <source>kilodalton</source>
        <translatorcomment>CLDR: kiloatomimassayksikkö</translatorcomment>
        <translation>kiloatomimassayksikkö</translation>
    </message>
    <message>
        <source>slug</source>
        <translation>slug</translation>
    </message>
    <message>
        <source>kilogram per meter</source>
        <translatorcomment>CLDR: kilogramma / metri</translatorcomment>
        <translation>kilogramma / metri</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: pauna / jalka</translatorcomment>
        <translation>pauna / jalka</translation>
    </message>
    <message>
        <source>mole</source>
        <translatorcomment>CLDR: mooli</translatorcomment>
        <translation>mooli</translation>
    </message>
    <message>
        <source>yottamole</source>
        <translatorcomment>CLDR: jottamooli</translatorcomment>
        <translation>jottamooli</translation>
    </message>
    <message>
        <source>zettamole</source>
        <translatorcomment>CLDR: tsettamooli</translatorcomment>
        <translation>tsettamooli</translation>
    </message>
    <message>
        <source>examole</source>
        <translatorcomment>CLDR: eksamooli</translatorcomment>
        <translation>eksamooli</translation>
    </message>
    <message>
        <source>petamole</source>
        <translatorcomment>CLDR: petamooli</translatorcomment>
        <translation>petamooli</translation>
    </message>
    <message>
        <source>teramole</source>
        <translatorcomment>CLDR: teramooli</translatorcomment>
        <translation>teramooli</translation>
    </message>
    <message>
        <source>gigamole</source>
        <translatorcomment>CLDR: gigamooli</translatorcomment>
        <translation>gigamooli</translation>
    </message>
    <message>
        <source>megamole</source>
        <translatorcomment>CLDR: megamooli</translatorcomment>
        <translation>megamooli</translation>
    </message>
    <message>
        <source>kilomole</source>
        <translatorcomment>CLDR: kilomooli</translatorcomment>
        <translation>kilomooli</translation>
    </message>
    <message>
        <source>hectomole</source>
        <translatorcomment>CLDR: hehtomooli</translatorcomment>
        <translation>hehtomooli</translation>
    </message>
    <message>
        <source>decamole</source>
        <translatorcomment>CLDR: dekamooli</translatorcomment>
        <translation>dekamooli</translation>
    </message>
    <message>
        <source>decimole</source>
        <translatorcomment>CLDR: desimooli</translatorcomment>
        <translation>desimooli</translation>
    </message>
    <message>
        <source>centimole</source>
        <translatorcomment>CLDR: senttimooli</translatorcomment>
        <translation>senttimooli</translation>
    </message>
    <message>
        <source>millimole</source>
        <translatorcomment>CLDR: millimooli</translatorcomment>
        <translation>millimooli</translation>
    </message>
    <message>
        <source>micromole</source>
        <translatorcomment>CLDR: mikromooli</translatorcomment>
        <translation>mikromooli</translation>
    </message>
    <message>
        <source>nanomole</source>
        <translatorcomment>CLDR: nanomooli</translatorcomment>
        <translation>nanomooli</translation>
    </message>
    <message>
        <source>picomole</source>
        <translatorcomment>CLDR: pikomooli</translatorcomment>
        <translation>pikomooli</translation>
    </message>
    <message>
        <source>femtomole</source>
        <translatorcomment>CLDR: femtomooli</translatorcomment>
        <translation>femtomooli</translation>
    </message>
    <message>
        <source>attomole</source>
        <translatorcomment>CLDR: attomooli</translatorcomment>
        <translation>attomooli</translation>
    </message>
    <message>
        <source>zeptomole</source>
        <translatorcomment>CLDR: tseptomooli</translatorcomment>
        <translation>tseptomooli</translation>
    </message>
    <message>
        <source>yoctomole</source>
        <translatorcomment>CLDR: joktomooli</translatorcomment>
        <translation>joktomooli</translation>
    </message>
    <message>
        <source>radian</source>
        <translatorcomment>CLDR: radiaani</translatorcomment>
        <translation>radiaani</translation>
    </message>
    <message>
        <source>degree</source>
        <translatorcomment>CLDR: aste</translatorcomment>
        <translation>aste</translation>
    </message>
    <message>
        <source>milliradian</source>
        <translatorcomment>CLDR: milliradiaani</translatorcomment>
        <translation>milliradiaani</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>gooni</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>piiru (Nato)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>piiru (Ruotsi)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>piiru (Neuvostoliitto)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translatorcomment>CLDR: kulmaminuutti</translatorcomment>
        <translation>kulmaminuutti</translation>
    </message>
    <message>
        <source>angle second</source>
        <translatorcomment>CLDR: kulmasekunti</translatorcomment>
        <translation>kulmasekunti</translation>
    </message>
    <message>
        <source>milliarc second</source>
        <translation>millikaarisekunti</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>steradiaani</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: gramma / neliömetri</translatorcomment>
        <translation>gramma / neliömetri</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: gramma / neliötuuma</translatorcomment>
        <translation>gramma / neliötuuma</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translatorcomment>CLDR: nanogramma / litra</translatorcomment>
        <translation>nanogramma / litra</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translatorcomment>CLDR: nanogramma/desilitra</translatorcomment>
        <translation>nanogramma/desilitra</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translatorcomment>CLDR: nanogramma/millilitra</translatorcomment>
        <translation>nanogramma/millilitra</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translatorcomment>CLDR: nanogramma/mikrolitra</translatorcomment>
        <translation>nanogramma/mikrolitra</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: miljoonasosa</translatorcomment>
        <translation>miljoonasosa</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>miljardisosa</translation>
    </message>
    <message>
        <source>ampere</source>
        <translatorcomment>CLDR: ampeeri</translatorcomment>
        <translation>ampeeri</translation>
    </message>
    <message>
        <source>yottaampere</source>
        <translatorcomment>CLDR: jottaampeeri</translatorcomment>
        <translation>jottaampeeri</translation>
    </message>
    <message>
        <source>zettaampere</source>
        <translatorcomment>CLDR: tsettaampeeri</translatorcomment>
        <translation>tsettaampeeri</translation>
    </message>
    <message>
        <source>exaampere</source>
        <translatorcomment>CLDR: eksaampeeri</translatorcomment>
        <translation>eksaampeeri</translation>
    </message>
    <message>
        <source>petaampere</source>
        <translatorcomment>CLDR: petaampeeri</translatorcomment>
        <translation>petaampeeri</translation>
    </message>
    <message>
        <source>teraampere</source>
        <translatorcomment>CLDR: teraampeeri</translatorcomment>
        <translation>teraampeeri</translation>
    </message>
    <message>
        <source>gigaampere</source>
        <translatorcomment>CLDR: gigaampeeri</translatorcomment>
        <translation>gigaampeeri</translation>
    </message>
    <message>
        <source>megaampere</source>
        <translatorcomment>CLDR: megaampeeri</translatorcomment>
        <translation>megaampeeri</translation>
    </message>
    <message>
        <source>kiloampere</source>
        <translatorcomment>CLDR: kiloampeeri</translatorcomment>
        <translation>kiloampeeri</translation>
    </message>
    <message>
        <source>hectoampere</source>
        <translatorcomment>CLDR: hehtoampeeri</translatorcomment>
        <translation>hehtoampeeri</translation>
    </message>
    <message>
        <source>decaampere</source>
        <translatorcomment>CLDR: dekaampeeri</translatorcomment>
        <translation>dekaampeeri</translation>
    </message>
    <message>
        <source>deciampere</source>
        <translatorcomment>CLDR: desiampeeri</translatorcomment>
        <translation>desiampeeri</translation>
    </message>
    <message>
        <source>centiampere</source>
        <translatorcomment>CLDR: senttiampeeri</translatorcomment>
        <translation>senttiampeeri</translation>
    </message>
    <message>
        <source>milliampere</source>
        <translatorcomment>CLDR: milliampeeri</translatorcomment>
        <translation>milliampeeri</translation>
    </message>
    <message>
        <source>microampere</source>
        <translatorcomment>CLDR: mikroampeeri</translatorcomment>
        <translation>mikroampeeri</translation>
    </message>
    <message>
        <source>nanoampere</source>
        <translatorcomment>CLDR: nanoampeeri</translatorcomment>
        <translation>nanoampeeri</translation>
    </message>
    <message>
        <source>picoampere</source>
        <translatorcomment>CLDR: pikoampeeri</translatorcomment>
        <translation>pikoampeeri</translation>
    </message>
    <message>
        <source>femtoampere</source>
        <translatorcomment>CLDR: femtoampeeri</translatorcomment>
        <translation>femtoampeeri</translation>
    </message>
    <message>
        <source>attoampere</source>
        <translatorcomment>CLDR: attoampeeri</translatorcomment>
        <translation>attoampeeri</translation>
    </message>
    <message>
        <source>zeptoampere</source>
        <translatorcomment>CLDR: tseptoampeeri</translatorcomment>
        <translation>tseptoampeeri</translation>
    </message>
    <message>
        <source>yoctoampere</source>
        <translatorcomment>CLDR: joktoampeeri</translatorcomment>
        <translation>joktoampeeri</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>coulombi</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translation>ampeeritunti</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translation>milliampeeritunti</translation>
    </message>
    <message>
        <source>faraday</source>
        <translation>faraday</translation>
    </message>
    <message>
        <source>farad</source>
        <translation>faradi</translation>
    </message>
    <message>
        <source>yottafarad</source>
        <translation>jottafaradi</translation>
    </message>
    <message>
        <source>zettafarad</source>
        <translation>tsettafaradi</translation>
    </message>
    <message>
        <source>exafarad</source>
        <translation>eksafaradi</translation>
    </message>
    <message>
        <source>petafarad</source>
        <translation>petafaradi</translation>
    </message>
    <message>
        <source>terafarad</source>
        <translation>terafaradi</translation>
    </message>
    <message>
        <source>gigafarad</source>
        <translation>gigafaradi</translation>
    </message>
    <message>
        <source>megafarad</source>
        <translation>megafaradi</translation>
    </message>
    <message>
        <source>kilofarad</source>
        <translation>kilofaradi</translation>
    </message>
    <message>
        <source>hectofarad</source>
        <translation>hehtofaradi</translation>
    </message>
    <message>
        <source>decafarad</source>
        <translation>dekafaradi</translation>
    </message>
    <message>
        <source>decifarad</source>
        <translation>desifaradi</translation>
    </message>
    <message>
        <source>centifarad</source>
        <translation>senttifaradi</translation>
    </message>
    <message>
        <source>millifarad</source>
        <translation>millifaradi</translation>
    </message>
    <message>
        <source>microfarad</source>
        <translation>mikrofaradi</translation>
    </message>
    <message>
        <source>nanofarad</source>
        <translation>nanofaradi</translation>
    </message>
    <message>
        <source>picofarad</source>
        <translation>pikofaradi</translation>
    </message>
    <message>
        <source>femtofarad</source>
        <translation>femtofaradi</translation>
    </message>
    <message>
        <source>attofarad</source>
        <translation>attofaradi</translation>
    </message>
    <message>
        <source>zeptofarad</source>
        <translation>tseptofaradi</translation>
    </message>
    <message>
        <source>yoctofarad</source>
        <translation>joktofaradi</translation>
    </message>
    <message>
        <source>kilopicofarad</source>
        <translation>kilopikofaradi</translation>
    </message>
    <message>
        <source>baud</source>
        <translation>baudi</translation>
    </message>
    <message>
        <source>bit per second</source>
        <translatorcomment>CLDR: bitti / sekunti</translatorcomment>
        <translation>bitti / sekunti</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: tavu / sekunti</translatorcomment>
        <translation>tavu / sekunti</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>kilobaudi</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: kilobitti / sekunti</translatorcomment>
        <translation>kilobitti / sekunti</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: kilotavu / sekunti</translatorcomment>
        <translation>kilotavu / sekunti</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>megabaudi</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: megabitti / sekunti</translatorcomment>
        <translation>megabitti / sekunti</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: megatavu / sekunti</translatorcomment>
        <translation>megatavu / sekunti</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: kilogramma / kuutiometri</translatorcomment>
        <translation>kilogramma / kuutiometri</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translatorcomment>CLDR: kilogramma / litra</translatorcomment>
        <translation>kilogramma / litra</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translatorcomment>CLDR: gramma / litra</translatorcomment>
        <translation>gramma / litra</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translatorcomment>CLDR: mikrogramma/millilitra</translatorcomment>
        <translation>mikrogramma/millilitra</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: milligramma/millilitra</translatorcomment>
        <translation>milligramma/millilitra</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: pauna / am. gallona</translatorcomment>
        <translation>pauna / am. gallona</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: unssi / am. gallona</translatorcomment>
        <translation>unssi / am. gallona</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: pauna/kuutiojalka</translatorcomment>
        <translation>pauna/kuutiojalka</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: pauna/kuutiotuuma</translatorcomment>
        <translation>pauna/kuutiotuuma</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: gramma / kuutiosenttimetri</translatorcomment>
        <translation>gramma / kuutiosenttimetri</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>newton neliösekunti / millimetri neljänteen</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: newton / kuutiometri</translatorcomment>
        <translation>newton / kuutiometri</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: kilonewton / kuutiometri</translatorcomment>
        <translation>kilonewton / kuutiometri</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>naulavoima / kuutiojalka</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>kip / kuutiotuuma</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>kip / kuutiojalka</translation>
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
        <translation>brittiläinen lämpöyksikkö (termokemiallinen)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>brittiläinen lämpöyksikkö (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>brittiläinen lämpöyksikkö (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>brittiläinen lämpöyksikkö (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>brittiläinen lämpöyksikkö (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>brittiläinen lämpöyksikkö (kansainvälinen taulukko)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>brittiläinen lämpöyksikkö (keskiarvo)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>brittiläinen lämpöyksikkö (39 °F)</translation>
    </message>
    <message>
        <source>kiloelectronvolt</source>
        <translatorcomment>CLDR: kiloelektronivoltti</translatorcomment>
        <translation>kiloelektronivoltti</translation>
    </message>
    <message>
        <source>megaelectronvolt</source>
        <translatorcomment>CLDR: megaelektronivoltti</translatorcomment>
        <translation>megaelektronivoltti</translation>
    </message>
    <message>
        <source>electronvolt</source>
        <translatorcomment>CLDR: elektronivoltti</translatorcomment>
        <translation>elektronivoltti</translation>
    </message>
    <message>
        <source>erg</source>
        <translation>ergi</translation>
    </message>
    <message>
        <source>kilowatt hour</source>
        <translatorcomment>CLDR: kilowattitunti</translatorcomment>
        <translation>kilowattitunti</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translation>kilowattiminuutti</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translation>kilowattisekunti</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>therm (USA)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: newtonmetri</translatorcomment>
        <translation>newtonmetri</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translatorcomment>CLDR: dekanewtonmetri</translatorcomment>
        <translation>dekanewtonmetri</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translatorcomment>CLDR: kilonewtonmetri</translatorcomment>
        <translation>kilonewtonmetri</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translatorcomment>CLDR: meganewtonmetri</translatorcomment>
        <translation>meganewtonmetri</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>kilopondimetri</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>kilopondijalka</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>tonnivoimajalka</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>tonnivoimametri</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>jalkakilonaula</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>jalkanaulavoima</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>kalori (20 °C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>kalori (termokemiallinen)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>kalori (15 °C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>kalori (keskiarvo)</translation>
    </message>
    <message>
        <source>calorie (3.98 degree C)</source>
        <translation>kalori (3,98 °C)</translation>
    </message>
    <message>
        <source>Therm (EC)</source>
        <translation>therm (EY)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: kuutiometri / sekunti</translatorcomment>
        <translation>kuutiometri / sekunti</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: litra / sekunti</translatorcomment>
        <translation>litra / sekunti</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: litra / minuutti</translatorcomment>
        <translation>litra / minuutti</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: litra / tunti</translatorcomment>
        <translation>litra / tunti</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translatorcomment>CLDR: am. gallona / sekunti</translatorcomment>
        <translation>am. gallona / sekunti</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: am. gallona / minuutti</translatorcomment>
        <translation>am. gallona / minuutti</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: am. gallona / tunti</translatorcomment>
        <translation>am. gallona / tunti</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: am. gallona / päivä</translatorcomment>
        <translation>am. gallona / päivä</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: millilitra / minuutti</translatorcomment>
        <translation>millilitra / minuutti</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: kuutiosenttimetri / minuutti</translatorcomment>
        <translation>kuutiosenttimetri / minuutti</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: kuutiojalka / tunti</translatorcomment>
        <translation>kuutiojalka / tunti</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: kuutiojalka / minuutti</translatorcomment>
        <translation>kuutiojalka / minuutti</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: kuutiojalka / sekunti</translatorcomment>
        <translation>kuutiojalka / sekunti</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: kuutiotuuma / minuutti</translatorcomment>
        <translation>kuutiotuuma / minuutti</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: kuutiometri / tunti</translatorcomment>
        <translation>kuutiometri / tunti</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: kuutiometri / minuutti</translatorcomment>
        <translation>kuutiometri / minuutti</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: kuutiosenttimetri / sekunti</translatorcomment>
        <translation>kuutiosenttimetri / sekunti</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: kuutiosenttimetri / tunti</translatorcomment>
        <translation>kuutiosenttimetri / tunti</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>Yhdysvaltain gallona / tunti</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>Yhdysvaltain gallona / sekunti</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>brittiläinen gallona / vuorokausi</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>brittiläinen gallona / tunti</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>brittiläinen gallona / minuutti</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>brittiläinen gallona / sekunti</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>miljoona brittiläistä gallonaa / vuorokausi</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: litra / päivä</translatorcomment>
        <translation>litra / päivä</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>miljoona litraa / vuorokausi</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>Yhdysvaltain gallona / vuorokausi</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>miljoona Yhdysvaltain gallonaa / vuorokausi</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: kuutiojalka / päivä</translatorcomment>
        <translation>kuutiojalka / päivä</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: kuutiometri / päivä</translatorcomment>
        <translation>kuutiometri / päivä</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: kuutiojaardi / minuutti</translatorcomment>
        <translation>kuutiojaardi / minuutti</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: eekkerijalka / päivä</translatorcomment>
        <translation>eekkerijalka / päivä</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: eekkerijalka / tunti</translatorcomment>
        <translation>eekkerijalka / tunti</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: eekkerijalka / minuutti</translatorcomment>
        <translation>eekkerijalka / minuutti</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>eekkerituuma / tunti</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>eekkerituuma / minuutti</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>kuutiomaanmittausjalka / sekunti</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: kilogramma / sekunti</translatorcomment>
        <translation>kilogramma / sekunti</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: kilogramma / minuutti</translatorcomment>
        <translation>kilogramma / minuutti</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: kilogramma / tunti</translatorcomment>
        <translation>kilogramma / tunti</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: gramma / sekunti</translatorcomment>
        <translation>gramma / sekunti</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: gramma / minuutti</translatorcomment>
        <translation>gramma / minuutti</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: gramma / tunti</translatorcomment>
        <translation>gramma / tunti</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: pauna / sekunti</translatorcomment>
        <translation>pauna / sekunti</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: pauna / minuutti</translatorcomment>
        <translation>pauna / minuutti</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: pauna / tunti</translatorcomment>
        <translation>pauna / tunti</translation>
    </message>
    <message>
        <source>pint per stroke</source>
        <translation>pintti / isku</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>kvartti / isku</translation>
    </message>
    <message>
        <source>newton</source>
        <translatorcomment>CLDR: newton</translatorcomment>
        <translation>newton</translation>
    </message>
    <message>
        <source>yottanewton</source>
        <translatorcomment>CLDR: jottanewton</translatorcomment>
        <translation>jottanewton</translation>
    </message>
    <message>
        <source>zettanewton</source>
        <translatorcomment>CLDR: tsettanewton</translatorcomment>
        <translation>tsettanewton</translation>
    </message>
    <message>
        <source>exanewton</source>
        <translatorcomment>CLDR: eksanewton</translatorcomment>
        <translation>eksanewton</translation>
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
        <translatorcomment>CLDR: hehtonewton</translatorcomment>
        <translation>hehtonewton</translation>
    </message>
    <message>
        <source>decanewton</source>
        <translatorcomment>CLDR: dekanewton</translatorcomment>
        <translation>dekanewton</translation>
    </message>
    <message>
        <source>decinewton</source>
        <translatorcomment>CLDR: desinewton</translatorcomment>
        <translation>desinewton</translation>
    </message>
    <message>
        <source>centinewton</source>
        <translatorcomment>CLDR: senttinewton</translatorcomment>
        <translation>senttinewton</translation>
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
        <translatorcomment>CLDR: tseptonewton</translatorcomment>
        <translation>tseptonewton</translation>
    </message>
    <message>
        <source>yoctonewton</source>
        <translatorcomment>CLDR: joktonewton</translatorcomment>
        <translation>joktonewton</translation>
    </message>
    <message>
        <source>kilopound</source>
        <translation>kilonaula</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>kilopondi</translation>
    </message>
    <message>
        <source>pound force</source>
        <translatorcomment>CLDR: pauna-voima</translatorcomment>
        <translation>pauna-voima</translation>
    </message>
    <message>
        <source>kip</source>
        <translation>kip</translation>
    </message>
    <message>
        <source>ton force</source>
        <translation>tonnivoima</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>dyne</translation>
    </message>
    <message>
        <source>lbforce</source>
        <translation>lbf (naulavoima)</translation>
    </message>
    <message>
        <source>ounce force</source>
        <translation>unssivoima</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: newton / metri</translatorcomment>
        <translation>newton / metri</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>kilonaula / jalka</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>kilopondi / metri</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>tonnivoima / metri</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>naulavoima / jalka</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: dekanewton / metri</translatorcomment>
        <translation>dekanewton / metri</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translatorcomment>CLDR: kilonewton / metri</translatorcomment>
        <translation>kilonewton / metri</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translatorcomment>CLDR: meganewton / metri</translatorcomment>
        <translation>meganewton / metri</translation>
    </message>
    <message>
        <source>kip per foot</source>
        <translation>kip / jalka</translation>
    </message>
    <message>
        <source>kip per inch</source>
        <translation>kip / tuuma</translation>
    </message>
    <message>
        <source>hertz</source>
        <translatorcomment>CLDR: hertsi</translatorcomment>
        <translation>hertsi</translation>
    </message>
    <message>
        <source>kilohertz</source>
        <translatorcomment>CLDR: kilohertsi</translatorcomment>
        <translation>kilohertsi</translation>
    </message>
    <message>
        <source>megahertz</source>
        <translatorcomment>CLDR: megahertsi</translatorcomment>
        <translation>megahertsi</translation>
    </message>
    <message>
        <source>gigahertz</source>
        <translatorcomment>CLDR: gigahertsi</translatorcomment>
        <translation>gigahertsi</translation>
    </message>
    <message>
        <source>terahertz</source>
        <translatorcomment>CLDR: terahertsi</translatorcomment>
        <translation>terahertsi</translation>
    </message>
    <message>
        <source>cycle per second</source>
        <translation>jakso / sekunti</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: kierros / minuutti</translatorcomment>
        <translation>kierros / minuutti</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>välähdys / sekunti</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>välähdys / minuutti</translation>
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
        <translatorcomment>CLDR: watti</translatorcomment>
        <translation>watti</translation>
    </message>
    <message>
        <source>horsepower (metric)</source>
        <translation>hevosvoima (metrinen)</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>hevosvoima (eurooppalainen sähkö)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>hevosvoima (brittiläinen mekaaninen)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>hevosvoima (brittiläinen sähkö)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: kilokalori / tunti</translatorcomment>
        <translation>kilokalori / tunti</translation>
    </message>
    <message>
        <source>kilowatt</source>
        <translatorcomment>CLDR: kilowatti</translatorcomment>
        <translation>kilowatti</translation>
    </message>
    <message>
        <source>megawatt</source>
        <translatorcomment>CLDR: megawatti</translatorcomment>
        <translation>megawatti</translation>
    </message>
    <message>
        <source>microwatt</source>
        <translatorcomment>CLDR: mikrowatti</translatorcomment>
        <translation>mikrowatti</translation>
    </message>
    <message>
        <source>volt ampere</source>
        <translation>volttiampeeri</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translation>millivolttiampeeri</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translation>kilovolttiampeeri</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translation>megavolttiampeeri</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: milliwatti</translatorcomment>
        <translation>milliwatti</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>kilopondimetri / sekunti</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>jalkanaulavoima / sekunti</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: kalori / sekunti</translatorcomment>
        <translation>kalori / sekunti</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: kilokalori / sekunti</translatorcomment>
        <translation>kilokalori / sekunti</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>brittiläinen lämpöyksikkö (kansainvälinen taulukko) / sekunti</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>brittiläinen lämpöyksikkö (kansainvälinen taulukko) / tunti</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>miljoona brittiläistä lämpöyksikköä (kansainvälinen taulukko) / tunti</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>tuhat brittiläistä lämpöyksikköä (kansainvälinen taulukko) / tunti</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>jäähdytystonni</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: watti / kuutiometri</translatorcomment>
        <translation>watti / kuutiometri</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: watti/kuutiojalka</translatorcomment>
        <translation>watti/kuutiojalka</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>brittiläinen lämpöyksikkö / (tunti · kuutiojalka)</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: watti / kilogramma</translatorcomment>
        <translation>watti / kilogramma</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: watti / neliömetri</translatorcomment>
        <translation>watti / neliömetri</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: kilowatti / neliömetri</translatorcomment>
        <translation>kilowatti / neliömetri</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: kilowatti/neliöjalka</translatorcomment>
        <translation>kilowatti/neliöjalka</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: watti/neliöjalka</translatorcomment>
        <translation>watti/neliöjalka</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>brittiläinen lämpöyksikkö / (tunti · neliöjalka)</translation>
    </message>
    <message>
        <source>bar</source>
        <translatorcomment>CLDR: baari</translatorcomment>
        <translation>baari</translation>
    </message>
    <message>
        <source>bar absolute</source>
        <translation>bar absoluuttinen</translation>
    </message>
    <message>
        <source>bar gauge</source>
        <translation>bar ylipaine</translation>
    </message>
    <message>
        <source>inch of mercury</source>
        <translatorcomment>CLDR: elohopeatuuma</translatorcomment>
        <translation>elohopeatuuma</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>tuuma vesipatsasta</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translatorcomment>CLDR: kilobaari</translatorcomment>
        <translation>kilobaari</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: kilogramma / neliösenttimetri</translatorcomment>
        <translation>kilogramma / neliösenttimetri</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: kilopascal</translatorcomment>
        <translation>kilopascal</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: kilopauna / neliötuuma</translatorcomment>
        <translation>kilopauna / neliötuuma</translation>
    </message>
    <message>
        <source>mega pascal</source>
        <translatorcomment>CLDR: megapascal</translatorcomment>
        <translation>megapascal</translation>
    </message>
    <message>
        <source>millibar</source>
        <translatorcomment>CLDR: millibaari</translatorcomment>
        <translation>millibaari</translation>
    </message>
    <message>
        <source>millimeter of mercury</source>
        <translatorcomment>CLDR: elohopeamillimetri</translatorcomment>
        <translation>elohopeamillimetri</translation>
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
        <translation>pauna / neliötuuma (absoluuttinen)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>pauna / neliötuuma (ylipaine)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: pauna/neliöjalka</translatorcomment>
        <translation>pauna/neliöjalka</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: pauna / neliötuuma</translatorcomment>
        <translation>pauna / neliötuuma</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>normaali-ilmakehä</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>tekninen ilmakehä</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>torr</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translatorcomment>CLDR: newton/neliömillimetri</translatorcomment>
        <translation>newton/neliömillimetri</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: newton / neliömetri</translatorcomment>
        <translation>newton / neliömetri</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translatorcomment>CLDR: dekanewton/neliömillimetri</translatorcomment>
        <translation>dekanewton/neliömillimetri</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: dekanewton / neliömetri</translatorcomment>
        <translation>dekanewton / neliömetri</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: kilonewton / neliömetri</translatorcomment>
        <translation>kilonewton / neliömetri</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: meganewton / neliömetri</translatorcomment>
        <translation>meganewton / neliömetri</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translatorcomment>CLDR: kilopauna/neliöjalka</translatorcomment>
        <translation>kilopauna/neliöjalka</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>kilopondi / neliömillimetri</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>kilopondi / neliösenttimetri</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>kilopondi / neliömetri</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>tonnivoima / neliösenttimetri</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>tonnivoima / neliömetri</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>tonnivoima / neliöjalka</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translation>naulavoima / neliötuuma</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>jalka vesipatsasta</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>kip / neliötuuma</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>kip / neliöjalka</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>naulavoima / neliöjalka</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: gigapascal</translatorcomment>
        <translation>gigapascal</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>dyne / neliösenttimetri</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translatorcomment>CLDR: newton/neliömikrometri</translatorcomment>
        <translation>newton/neliömikrometri</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: metri/newton</translatorcomment>
        <translation>metri/newton</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translatorcomment>CLDR: metri/kilonewton</translatorcomment>
        <translation>metri/kilonewton</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>jalka / kip</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: neliömetri/newton</translatorcomment>
        <translation>neliömetri/newton</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: neliömetri/kilonewton</translatorcomment>
        <translation>neliömetri/kilonewton</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>neliöjalka / kip</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: kuutiometri/newton</translatorcomment>
        <translation>kuutiometri/newton</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: kuutiometri/kilonewton</translatorcomment>
        <translation>kuutiometri/kilonewton</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>kuutiojalka / kip</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: newtonmetri / metri</translatorcomment>
        <translation>newtonmetri / metri</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: dekanewtonmetri / metri</translatorcomment>
        <translation>dekanewtonmetri / metri</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: kilonewtonmetri / metri</translatorcomment>
        <translation>kilonewtonmetri / metri</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: meganewtonmetri / metri</translatorcomment>
        <translation>meganewtonmetri / metri</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>kip-jalka / jalka</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>kilopondimetri / metri</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>tonnivoimametri / metri</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translatorcomment>CLDR: pauna-jalka / jalka</translatorcomment>
        <translation>pauna-jalka / jalka</translation>
    </message>
    <message>
        <source>ohm</source>
        <translatorcomment>CLDR: ohmi</translatorcomment>
        <translation>ohmi</translation>
    </message>
    <message>
        <source>kilohm</source>
        <translatorcomment>CLDR: kiloohmi</translatorcomment>
        <translation>kiloohmi</translation>
    </message>
    <message>
        <source>gigaohm</source>
        <translatorcomment>CLDR: gigaohmi</translatorcomment>
        <translation>gigaohmi</translation>
    </message>
    <message>
        <source>megohm</source>
        <translatorcomment>CLDR: megaohmi</translatorcomment>
        <translation>megaohmi</translation>
    </message>
    <message>
        <source>microohm</source>
        <translatorcomment>CLDR: mikroohmi</translatorcomment>
        <translation>mikroohmi</translation>
    </message>
    <message>
        <source>milliohm</source>
        <translatorcomment>CLDR: milliohmi</translatorcomment>
        <translation>milliohmi</translation>
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
        <translatorcomment>CLDR: metri sekunnissa</translatorcomment>
        <translation>metri sekunnissa</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: millimetri / sekunti</translatorcomment>
        <translation>millimetri / sekunti</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: senttimetri / sekunti</translatorcomment>
        <translation>senttimetri / sekunti</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: metri / minuutti</translatorcomment>
        <translation>metri / minuutti</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: tuuma / sekunti</translatorcomment>
        <translation>tuuma / sekunti</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: jalka / sekunti</translatorcomment>
        <translation>jalka / sekunti</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: tuuma / minuutti</translatorcomment>
        <translation>tuuma / minuutti</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: jalka / minuutti</translatorcomment>
        <translation>jalka / minuutti</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: kilometri tunnissa</translatorcomment>
        <translation>kilometri tunnissa</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: maili tunnissa</translatorcomment>
        <translation>maili tunnissa</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: senttimetri / minuutti</translatorcomment>
        <translation>senttimetri / minuutti</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: jalka / tunti</translatorcomment>
        <translation>jalka / tunti</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: tuuma / tunti</translatorcomment>
        <translation>tuuma / tunti</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: kilometri / minuutti</translatorcomment>
        <translation>kilometri / minuutti</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: kilometri / sekunti</translatorcomment>
        <translation>kilometri / sekunti</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: solmu</translatorcomment>
        <translation>solmu</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>solmu (Iso-Britannia)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: metri / tunti</translatorcomment>
        <translation>metri / tunti</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: maili / minuutti</translatorcomment>
        <translation>maili / minuutti</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: maili / sekunti</translatorcomment>
        <translation>maili / sekunti</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>maanmittausmaili / tunti</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>maanmittausjalka / sekunti</translation>
    </message>
    <message>
        <source>byte</source>
        <translatorcomment>CLDR: tavu</translatorcomment>
        <translation>tavu</translation>
    </message>
    <message>
        <source>bit</source>
        <translatorcomment>CLDR: bitti</translatorcomment>
        <translation>bitti</translation>
    </message>
    <message>
        <source>kilobyte</source>
        <translatorcomment>CLDR: kilotavu</translatorcomment>
        <translation>kilotavu</translation>
    </message>
    <message>
        <source>megabyte</source>
        <translatorcomment>CLDR: megatavu</translatorcomment>
        <translation>megatavu</translation>
    </message>
    <message>
        <source>gigabyte</source>
        <translatorcomment>CLDR: gigatavu</translatorcomment>
        <translation>gigatavu</translation>
    </message>
    <message>
        <source>terabyte</source>
        <translatorcomment>CLDR: teratavu</translatorcomment>
        <translation>teratavu</translation>
    </message>
    <message>
        <source>kibibyte</source>
        <translatorcomment>CLDR: kibitavu</translatorcomment>
        <translation>kibitavu</translation>
    </message>
    <message>
        <source>mebibyte</source>
        <translatorcomment>CLDR: mebitavu</translatorcomment>
        <translation>mebitavu</translation>
    </message>
    <message>
        <source>gibibyte</source>
        <translatorcomment>CLDR: gibitavu</translatorcomment>
        <translation>gibitavu</translation>
    </message>
    <message>
        <source>tebibyte</source>
        <translatorcomment>CLDR: tebitavu</translatorcomment>
        <translation>tebitavu</translation>
    </message>
    <message>
        <source>kilobit</source>
        <translatorcomment>CLDR: kilobitti</translatorcomment>
        <translation>kilobitti</translation>
    </message>
    <message>
        <source>megabit</source>
        <translatorcomment>CLDR: megabitti</translatorcomment>
        <translation>megabitti</translation>
    </message>
    <message>
        <source>gigabit</source>
        <translatorcomment>CLDR: gigabitti</translatorcomment>
        <translation>gigabitti</translation>
    </message>
    <message>
        <source>petabyte</source>
        <translatorcomment>CLDR: petatavu</translatorcomment>
        <translation>petatavu</translation>
    </message>
    <message>
        <source>pebibyte</source>
        <translatorcomment>CLDR: pebitavu</translatorcomment>
        <translation>pebitavu</translation>
    </message>
    <message>
        <source>exabyte</source>
        <translatorcomment>CLDR: eksatavu</translatorcomment>
        <translation>eksatavu</translation>
    </message>
    <message>
        <source>exbibyte</source>
        <translatorcomment>CLDR: eksbitavu</translatorcomment>
        <translation>eksbitavu</translation>
    </message>
    <message>
        <source>zettabyte</source>
        <translatorcomment>CLDR: tsettatavu</translatorcomment>
        <translation>tsettatavu</translation>
    </message>
    <message>
        <source>zebibyte</source>
        <translatorcomment>CLDR: tsebitavu</translatorcomment>
        <translation>tsebitavu</translation>
    </message>
    <message>
        <source>yottabyte</source>
        <translatorcomment>CLDR: jottatavu</translatorcomment>
        <translation>jottatavu</translation>
    </message>
    <message>
        <source>yobibyte</source>
        <translatorcomment>CLDR: jobitavu</translatorcomment>
        <translation>jobitavu</translation>
    </message>
    <message>
        <source>kelvin</source>
        <translatorcomment>CLDR: kelvin</translatorcomment>
        <translation>kelvin</translation>
    </message>
    <message>
        <source>degree Celsius</source>
        <translatorcomment>CLDR: celsiusaste</translatorcomment>
        <translation>celsiusaste</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: fahrenheitaste</translatorcomment>
        <translation>fahrenheitaste</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>Rankinen aste</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: celsiusaste / minuutti</translatorcomment>
        <translation>celsiusaste / minuutti</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: fahrenheitaste / minuutti</translatorcomment>
        <translation>fahrenheitaste / minuutti</translation>
    </message>
    <message>
        <source>second</source>
        <translatorcomment>CLDR: sekunti</translatorcomment>
        <translation>sekunti</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translatorcomment>CLDR: jottasekunti</translatorcomment>
        <translation>jottasekunti</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translatorcomment>CLDR: tsettasekunti</translatorcomment>
        <translation>tsettasekunti</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translatorcomment>CLDR: eksasekunti</translatorcomment>
        <translation>eksasekunti</translation>
    </message>
    <message>
        <source>petasecond</source>
        <translatorcomment>CLDR: petasekunti</translatorcomment>
        <translation>petasekunti</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translatorcomment>CLDR: terasekunti</translatorcomment>
        <translation>terasekunti</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translatorcomment>CLDR: gigasekunti</translatorcomment>
        <translation>gigasekunti</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translatorcomment>CLDR: megasekunti</translatorcomment>
        <translation>megasekunti</translation>
    </message>
    <message>
        <source>kilosecond</source>
        <translatorcomment>CLDR: kilosekunti</translatorcomment>
        <translation>kilosekunti</translation>
    </message>
    <message>
        <source>hectosecond</source>
        <translatorcomment>CLDR: hehtosekunti</translatorcomment>
        <translation>hehtosekunti</translation>
    </message>
    <message>
        <source>decasecond</source>
        <translatorcomment>CLDR: dekasekunti</translatorcomment>
        <translation>dekasekunti</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translatorcomment>CLDR: desisekunti</translatorcomment>
        <translation>desisekunti</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translatorcomment>CLDR: senttisekunti</translatorcomment>
        <translation>senttisekunti</translation>
    </message>
    <message>
        <source>millisecond</source>
        <translatorcomment>CLDR: millisekunti</translatorcomment>
        <translation>millisekunti</translation>
    </message>
    <message>
        <source>microsecond</source>
        <translatorcomment>CLDR: mikrosekunti</translatorcomment>
        <translation>mikrosekunti</translation>
    </message>
    <message>
        <source>nanosecond</source>
        <translatorcomment>CLDR: nanosekunti</translatorcomment>
        <translation>nanosekunti</translation>
    </message>
    <message>
        <source>picosecond</source>
        <translatorcomment>CLDR: pikosekunti</translatorcomment>
        <translation>pikosekunti</translation>
    </message>
    <message>
        <source>femtosecond</source>
        <translatorcomment>CLDR: femtosekunti</translatorcomment>
        <translation>femtosekunti</translation>
    </message>
    <message>
        <source>attosecond</source>
        <translatorcomment>CLDR: attosekunti</translatorcomment>
        <translation>attosekunti</translation>
    </message>
    <message>
        <source>zeptosecond</source>
        <translatorcomment>CLDR: tseptosekunti</translatorcomment>
        <translation>tseptosekunti</translation>
    </message>
    <message>
        <source>yoctosecond</source>
        <translatorcomment>CLDR: joktosekunti</translatorcomment>
        <translation>joktosekunti</translation>
    </message>
    <message>
        <source>minute</source>
        <translatorcomment>CLDR: minuutti</translatorcomment>
        <translation>minuutti</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: tunti</translatorcomment>
        <translation>tunti</translation>
    </message>
    <message>
        <source>day</source>
        <translatorcomment>CLDR: päivä</translatorcomment>
        <translation>päivä</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: viikko</translatorcomment>
        <translation>viikko</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>kaksi viikkoa</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: kuukausi</translatorcomment>
        <translation>kuukausi</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>kuukausi (vajaa, 29 päivää)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>kuukausi (täysi, 30 päivää)</translation>
    </message>
    <message>
        <source>year</source>
        <translatorcomment>CLDR: vuosi</translatorcomment>
        <translation>vuosi</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>vuosi (gregoriaaninen)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>vuosi (juliaaninen)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>sideerinen vuosi</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>trooppinen vuosi</translation>
    </message>
    <message>
        <source>annum</source>
        <translation>annum</translation>
    </message>
    <message>
        <source>decade</source>
        <translatorcomment>CLDR: vuosikymmen</translatorcomment>
        <translation>vuosikymmen</translation>
    </message>
    <message>
        <source>century</source>
        <translatorcomment>CLDR: vuosisata</translatorcomment>
        <translation>vuosisata</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>vuosisata (juliaaninen)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>vuosituhat</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>vuosituhat (gregoriaaninen)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>vuosituhat (juliaaninen)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>newtonmetri (momentti)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>newtonsenttimetri (momentti)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>newtondekametri (momentti)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>jalkanaula (momentti)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>tuumanaula (momentti)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>metrikilogramma (momentti)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>senttimetrikilogramma (momentti)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>tuumaunssi (momentti)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>grammasenttimetri (momentti)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>dekanewtonmetri (momentti)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>kilonewtonmetri (momentti)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>meganewtonmetri (momentti)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>kip-jalka (momentti)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>kilopondimetri (momentti)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>tonnivoimametri (momentti)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>naulavoimajalka (momentti)</translation>
    </message>
    <message>
        <source>poise</source>
        <translation>poise</translation>
    </message>
    <message>
        <source>centipoise</source>
        <translation>senttipoise</translation>
    </message>
    <message>
        <source>pascal second</source>
        <translation>pascalsekunti</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>naulamassa / (jalka · sekunti)</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>naulamassa / (jalka · tunti)</translation>
    </message>
    <message>
        <source>stoke</source>
        <translation>stokes</translation>
    </message>
    <message>
        <source>centistoke</source>
        <translation>senttistokes</translation>
    </message>
    <message>
        <source>meter per second squared</source>
        <translatorcomment>CLDR: metri per sekunti toiseen</translatorcomment>
        <translation>metri per sekunti toiseen</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>jalka / sekunti toiseen</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>maanmittausjalka / sekunti toiseen</translation>
    </message>
    <message>
        <source>volt</source>
        <translatorcomment>CLDR: voltti</translatorcomment>
        <translation>voltti</translation>
    </message>
    <message>
        <source>kilovolt</source>
        <translatorcomment>CLDR: kilovoltti</translatorcomment>
        <translation>kilovoltti</translation>
    </message>
    <message>
        <source>microvolt</source>
        <translatorcomment>CLDR: mikrovoltti</translatorcomment>
        <translation>mikrovoltti</translation>
    </message>
    <message>
        <source>millivolt</source>
        <translatorcomment>CLDR: millivoltti</translatorcomment>
        <translation>millivoltti</translation>
    </message>
    <message>
        <source>volt (electrical potential)</source>
        <translation>voltti (sähköpotentiaali)</translation>
    </message>
    <message>
        <source>abvolt</source>
        <translation>abvoltti</translation>
    </message>
    <message>
        <source>statvolt</source>
        <translation>statvoltti</translation>
    </message>
    <message>
        <source>candela</source>
        <translatorcomment>CLDR: kandela</translatorcomment>
        <translation>kandela</translation>
    </message>
    <message>
        <source>lumen per steradian</source>
        <translation>luumen / steradiaani</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>normaalikynttilä (candlepower)</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>luksi (valaistusvoimakkuus)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>jalkakynttilä</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translation>luumensekunti</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>talbot</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>valoteho</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: luumen</translatorcomment>
        <translation>luumen</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: kandela / neliömetri</translatorcomment>
        <translation>kandela / neliömetri</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>jalkalambert</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: kandela/neliöjalka</translatorcomment>
        <translation>kandela/neliöjalka</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>luksi (emittanssi)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: luumen/watti</translatorcomment>
        <translation>luumen/watti</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: pascal / metri</translatorcomment>
        <translation>pascal / metri</translation>
    </message>
    <message>
        <source>inch of water per 100foot</source>
        <translation>tuuma vesipatsasta / 100 jalkaa</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>jalka vesipatsasta / 100 jalkaa</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>tuuma elohopeaa / 100 jalkaa</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>millimetri elohopeaa / 100 jalkaa</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: newtonmetri/aste</translatorcomment>
        <translation>newtonmetri/aste</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>kip-jalka / aste</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: kilonewtonmetri/aste</translatorcomment>
        <translation>kilonewtonmetri/aste</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>newtonmetri / aste / metri</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>kip-jalka / aste / jalka</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>kilonewtonmetri / aste / metri</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>watti / (neliömetri · kelvin)</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>brittiläinen lämpöyksikkö / (tunti · neliöjalka · Fahrenheit-aste)</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>kuutiometri / (sekunti · neliömetri)</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>kuutiojalka / (minuutti · neliöjalka)</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>litra / (sekunti · neliömetri)</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>kuutiometri / (sekunti · kuutiometri)</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>kuutiojalka / (minuutti · kuutiojalka)</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>litra / (sekunti · kuutiometri)</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>kuutiometri / (sekunti · watti)</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>kuutiojalka / (minuutti · jäähdytystonni)</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>litra / (sekunti · kilowatti)</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: neliömetri/watti</translatorcomment>
        <translation>neliömetri/watti</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>neliöjalka / jäähdytystonni</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: neliömetri/kilowatti</translatorcomment>
        <translation>neliömetri/kilowatti</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>neliöjalka / (tuhat brittiläistä lämpöyksikköä / tunti)</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>neliösekunti / (metri · kilogramma)</translation>
    </message>
    <message>
        <source>inverse kilonewton</source>
        <translation>käänteinen kilonewton</translation>
    </message>
    <message>
        <source>inverse kip</source>
        <translation>käänteinen kip</translation>
    </message>
    <message>
        <source>inverse fahrenheit</source>
        <translation>käänteinen Fahrenheit-aste</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>käänteinen celsiusaste</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>mikrometri / (metri · celsiusaste)</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>mikrotuuma / (tuuma · Fahrenheit-aste)</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>oersted</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: ampeeri / metri</translatorcomment>
        <translation>ampeeri / metri</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>watti / (metri · kelvin)</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>watti / (metri · celsiusaste)</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>newton / (sekunti · celsiusaste)</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>dyne / (sekunti · celsiusaste)</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>BTU-tuuma / (neliöjalka · tunti · Fahrenheit-aste)</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>BTU / (tuuma · sekunti · Fahrenheit-aste)</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>BTU / (jalka · sekunti · Fahrenheit-aste)</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>BTU / (jalka · tunti · Fahrenheit-aste)</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>joule / (gramma · celsiusaste)</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>joule / (kilogramma · celsiusaste)</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>neliömillimetri / (neliösekunti · celsiusaste)</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>ergi / (gramma · celsiusaste)</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>neliömikrometri / (neliösekunti · celsiusaste)</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>BTU / (pauna · Fahrenheit-aste)</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>nanogramma / (pascal · sekunti · neliömetri)</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>graani / (neliöjalka · tunti · tuuma elohopeaa)</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translation>ohmimetri</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translatorcomment>CLDR: joule / gramma</translatorcomment>
        <translation>joule / gramma</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translatorcomment>CLDR: joule / kilogramma</translatorcomment>
        <translation>joule / kilogramma</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>BTU / pauna</translation>
    </message>
</context>
</TS>
