<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR">
<context>
    <name>NumberFormat</name>
    <message>
        <source>Exponential</source>
        <translation>Üstel</translation>
    </message>
    <message>
        <source>exponential</source>
        <translation>üstel</translation>
    </message>
    <message>
        <source>Fixed Point</source>
        <translation>Sabit noktalı</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>general</source>
        <translation>genel</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Sayı</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Kesir</translation>
    </message>
</context>
<context>
    <name>UnitGroup</name>
    <message>
        <source>Dimensionless</source>
        <translation>Boyutsuz</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Uzunluk</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Alan</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Hacim</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Kütle</translation>
    </message>
    <message>
        <source>Linear Weight</source>
        <translation>Doğrusal kütle</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>Madde miktarı</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Açı</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>Katı açı</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>Alansal yoğunluk</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Derişim</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>Oran (ppm, ppb)</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>Elektrik akımı</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>Elektrik yükü</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>Kapasitans</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Bit hızı</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Yoğunluk</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>Birim hacim ağırlığı</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Enerji</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>Hacimsel debi</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>Kütlesel debi</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>Strok başına debi</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Kuvvet</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>Çizgisel yük</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frekans</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>Endüktans</translation>
    </message>
    <message>
        <source>Magnetic Flux Density</source>
        <translation>Manyetik akı yoğunluğu</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>Manyetik akı</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Güç</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>Birim hacim başına güç</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>Birim kütle başına güç</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>Birim alan başına güç</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Basınç</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>Kuvvet ölçeği</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>Çizgisel yük ölçeği</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>Alansal yük ölçeği</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>Çizgisel moment</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>Elektriksel direnç</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>Elektriksel iletkenlik</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Hız</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>Veri depolama</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Sıcaklık</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>Sıcaklık değişim hızı</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zaman</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>Tork</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>Dinamik viskozite</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>Kinematik viskozite</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>İvme</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Gerilim</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>Elektrik potansiyeli</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>Işık şiddeti</translation>
    </message>
    <message>
        <source>Illuminance</source>
        <translation>Aydınlık düzeyi</translation>
    </message>
    <message>
        <source>Luminous Energy</source>
        <translation>Işık enerjisi</translation>
    </message>
    <message>
        <source>Luminous Flux</source>
        <translation>Işık akısı</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Parıltı</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>Işıklılık</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>Işık verimi</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Sürtünme basınç kaybı</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>Noktasal dönel yay katsayısı</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>Çizgisel dönel yay katsayısı</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>Isı geçiş katsayısı</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>Hava debisi yoğunluğu</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>Hacim başına hava debisi</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>Güç başına hava debisi</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>Güç başına alan</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>Moment ölçeği</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>Isıl genleşme katsayısı</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>Manyetik alan şiddeti</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>Isıl iletkenlik</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>Özgül ısı</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>Buhar geçirgenliği</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>Özdirenç</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>Özgül buharlaşma ısısı</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>birimsiz</translation>
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
        <translatorcomment>CLDR: hektometre</translatorcomment>
        <translation>hektometre</translation>
    </message>
    <message>
        <source>decameter</source>
        <translatorcomment>CLDR: dekametre</translatorcomment>
        <translation>dekametre</translation>
    </message>
    <message>
        <source>decimeter</source>
        <translatorcomment>CLDR: desimetre</translatorcomment>
        <translation>desimetre</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translatorcomment>CLDR: santimetre</translatorcomment>
        <translation>santimetre</translation>
    </message>
    <message>
        <source>millimeter</source>
        <translatorcomment>CLDR: milimetre</translatorcomment>
        <translation>milimetre</translation>
    </message>
    <message>
        <source>micrometer</source>
        <translatorcomment>CLDR: mikrometre</translatorcomment>
        <translation>mikrometre</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translatorcomment>CLDR: nanometre</translatorcomment>
        <translation>nanometre</translation>
    </message>
    <message>
        <source>picometer</source>
        <translatorcomment>CLDR: pikometre</translatorcomment>
        <translation>pikometre</translation>
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
        <translatorcomment>CLDR: yoktometre</translatorcomment>
        <translation>yoktometre</translation>
    </message>
    <message>
        <source>inch</source>
        <translatorcomment>CLDR: inç</translatorcomment>
        <translation>inç</translation>
    </message>
    <message>
        <source>foot</source>
        <translatorcomment>CLDR: fit</translatorcomment>
        <translation>fit</translation>
    </message>
    <message>
        <source>foot (Benoit)</source>
        <translation>fit (Benoit)</translation>
    </message>
    <message>
        <source>foot (Clarke&apos;s; Cape)</source>
        <translation>fit (Clarke; Cape Town)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>fit (Hindistan)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>fit (Sears)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>ölçme fiti (ABD)</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: yarda</translatorcomment>
        <translation>yarda</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>zincir (chain)</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>zincir (Ramsden; mühendis)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: furlong</translatorcomment>
        <translation>furlong</translation>
    </message>
    <message>
        <source>mile</source>
        <translation>İngiliz mili</translation>
    </message>
    <message>
        <source>geographical mile</source>
        <translation>coğrafi mil</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>ölçme mili (ABD)</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: deniz mili</translatorcomment>
        <translation>deniz mili</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>kara mili</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>deniz mili (Amirallik)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>mikron</translation>
    </message>
    <message>
        <source>microinch</source>
        <translatorcomment>CLDR: mikroinç</translatorcomment>
        <translation>mikroinç</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>angstrom</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: astronomik birim</translatorcomment>
        <translation>astronomik birim</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>gomina</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>arşın (cubit)</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: fathom</translatorcomment>
        <translation>fathom</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>el (hand)</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: ışık yılı</translatorcomment>
        <translation>ışık yılı</translation>
    </message>
    <message>
        <source>span</source>
        <translation>karış</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>karış (kumaş)</translation>
    </message>
    <message>
        <source>parsec</source>
        <translatorcomment>CLDR: parsek</translatorcomment>
        <translation>parsek</translation>
    </message>
    <message>
        <source>nautical league</source>
        <translation>deniz fersahı</translation>
    </message>
    <message>
        <source>league</source>
        <translation>fersah</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>mil (inç binde biri)</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>İskandinav mili (İsveç ve Norveç)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>halka (link)</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>halka (Ramsden; mühendis)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>adım</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>avuç (3 inç)</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>rod</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>rope (20 fit)</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>çile</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>kalibre</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>ölçme inçi</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>ölçme yardası</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>ölçme rodu</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>top (kumaş, bolt)</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: metrekare</translatorcomment>
        <translation>metrekare</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: inç kare</translatorcomment>
        <translation>inç kare</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: fit kare</translatorcomment>
        <translation>fit kare</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: yarda kare</translatorcomment>
        <translation>yarda kare</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: akre</translatorcomment>
        <translation>akre</translation>
    </message>
    <message>
        <source>section</source>
        <translation>section (mil kare)</translation>
    </message>
    <message>
        <source>township</source>
        <translation>township (36 mil kare)</translation>
    </message>
    <message>
        <source>hectare</source>
        <translatorcomment>CLDR: hektar</translatorcomment>
        <translation>hektar</translation>
    </message>
    <message>
        <source>square kilometer</source>
        <translatorcomment>CLDR: kilometrekare</translatorcomment>
        <translation>kilometrekare</translation>
    </message>
    <message>
        <source>square mile</source>
        <translatorcomment>CLDR: mil kare</translatorcomment>
        <translation>mil kare</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translatorcomment>CLDR: santimetrekare</translatorcomment>
        <translation>santimetrekare</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translatorcomment>CLDR: milimetrekare</translatorcomment>
        <translation>milimetrekare</translation>
    </message>
    <message>
        <source>circular mil</source>
        <translation>dairesel mil</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>kilo dairesel mil</translation>
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
        <translation>santiar</translation>
    </message>
    <message>
        <source>square angstrom</source>
        <translation>angstrom kare</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>top kare</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>gomina kare</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>kalibre kare</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>arşın kare</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translatorcomment>CLDR: desimetrekare</translatorcomment>
        <translation>desimetrekare</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translatorcomment>CLDR: fathomkare</translatorcomment>
        <translation>fathomkare</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translatorcomment>CLDR: furlongkare</translatorcomment>
        <translation>furlongkare</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translatorcomment>CLDR: gigametrekare</translatorcomment>
        <translation>gigametrekare</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>el kare</translation>
    </message>
    <message>
        <source>square nautical league</source>
        <translation>deniz fersahı kare</translation>
    </message>
    <message>
        <source>square league (statute)</source>
        <translation>fersah kare (kara)</translation>
    </message>
    <message>
        <source>square light-year</source>
        <translatorcomment>CLDR: ışık yılıkare</translatorcomment>
        <translation>ışık yılıkare</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>halka kare</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>mikron kare</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>mil kare (İngiliz deniz)</translation>
    </message>
    <message>
        <source>square mile (statute)</source>
        <translation>mil kare (kara)</translation>
    </message>
    <message>
        <source>square millimicron</source>
        <translation>milimikron kare</translation>
    </message>
    <message>
        <source>square pace</source>
        <translation>adım kare</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>avuç kare</translation>
    </message>
    <message>
        <source>square parsec</source>
        <translatorcomment>CLDR: parsekkare</translatorcomment>
        <translation>parsekkare</translation>
    </message>
    <message>
        <source>square perch</source>
        <translation>perch kare</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>rope kare</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>çile kare</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>karış kare</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>ölçme fiti kare</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>zincir kare</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>mil kare (inç binde biri)</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translation>astronomik birim kare</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>ölçme akresi</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>ölçme yardası kare</translation>
    </message>
    <message>
        <source>board</source>
        <translation>tahta (board)</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>cord (alan)</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>mikroinç kare</translation>
    </message>
    <message>
        <source>square micrometer</source>
        <translatorcomment>CLDR: mikrometrekare</translatorcomment>
        <translation>mikrometrekare</translation>
    </message>
    <message>
        <source>liter</source>
        <translatorcomment>CLDR: litre</translatorcomment>
        <translation>litre</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translatorcomment>CLDR: santimetreküp</translatorcomment>
        <translation>santimetreküp</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translatorcomment>CLDR: yemek kaşığı</translatorcomment>
        <translation>yemek kaşığı</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>yemek kaşığı (Kanada)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>yemek kaşığı (ABD)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>sıvı ons (İngiliz)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>sıvı ons (ABD)</translation>
    </message>
    <message>
        <source>cup</source>
        <translation>fincan</translation>
    </message>
    <message>
        <source>cup (Canadian)</source>
        <translation>fincan (Kanada)</translation>
    </message>
    <message>
        <source>cup (U.S.)</source>
        <translation>fincan (ABD)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>kuart (İngiliz)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>kuart (ABD, sıvı)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>kuart (ABD, kuru)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>galon (İngiliz)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>galon (ABD, sıvı; şarap)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>galon (ABD, kuru)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>bira galonu</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>buşel (İngiliz)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>buşel (ABD, silme)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>buşel (ABD, tepeleme)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: santilitre</translatorcomment>
        <translation>santilitre</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: fit küp</translatorcomment>
        <translation>fit küp</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: inç küp</translatorcomment>
        <translation>inç küp</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: metreküp</translatorcomment>
        <translation>metreküp</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: yarda küp</translatorcomment>
        <translation>yarda küp</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>sıvı dram</translation>
    </message>
    <message>
        <source>microliter</source>
        <translatorcomment>CLDR: mikrolitre</translatorcomment>
        <translation>mikrolitre</translation>
    </message>
    <message>
        <source>milliliter</source>
        <translatorcomment>CLDR: mililitre</translatorcomment>
        <translation>mililitre</translation>
    </message>
    <message>
        <source>pint (imperial)</source>
        <translation>pint (İngiliz)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>pint (ABD, sıvı)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>pint (ABD, kuru)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: çay kaşığı</translatorcomment>
        <translation>çay kaşığı</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>çay kaşığı (Kanada)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>çay kaşığı (ABD)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>çay kaşığı (İngiliz)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translatorcomment>CLDR: milimetreküp</translatorcomment>
        <translation>milimetreküp</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>varil (İngiliz)</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>varil (petrol)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>varil (ABD, kuru)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>varil (ABD, sıvı)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>tahta fiti</translation>
    </message>
    <message>
        <source>decistere</source>
        <translation>desister</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translatorcomment>CLDR: dekalitre</translatorcomment>
        <translation>dekalitre</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>dekaster</translation>
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
        <translation>angstrom küp</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translation>astronomik birim küp</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>top küp</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>gomina küp</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>kalibre küp</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>zincir küp</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>arşın küp</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translatorcomment>CLDR: fathomküp</translatorcomment>
        <translation>fathomküp</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translatorcomment>CLDR: furlongküp</translatorcomment>
        <translation>furlongküp</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translatorcomment>CLDR: gigametreküp</translatorcomment>
        <translation>gigametreküp</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>el küp</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translatorcomment>CLDR: hektometreküp</translatorcomment>
        <translation>hektometreküp</translation>
    </message>
    <message>
        <source>cubic nautical league</source>
        <translation>deniz fersahı küp</translation>
    </message>
    <message>
        <source>cubic league (statute)</source>
        <translation>fersah küp (kara)</translation>
    </message>
    <message>
        <source>cubic light-year</source>
        <translatorcomment>CLDR: ışık yılıküp</translatorcomment>
        <translation>ışık yılıküp</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>halka küp</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>mil küp (inç binde biri)</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>mil küp (İngiliz deniz)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: mil küp</translatorcomment>
        <translation>mil küp</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translation>deniz mili küp</translation>
    </message>
    <message>
        <source>cubic mile (statute)</source>
        <translation>mil küp (kara)</translation>
    </message>
    <message>
        <source>cubic millimicron</source>
        <translation>milimikron küp</translation>
    </message>
    <message>
        <source>cubic pace</source>
        <translation>adım küp</translation>
    </message>
    <message>
        <source>cubic palm</source>
        <translation>avuç küp</translation>
    </message>
    <message>
        <source>cubic parsec</source>
        <translatorcomment>CLDR: parsekküp</translatorcomment>
        <translation>parsekküp</translation>
    </message>
    <message>
        <source>cubic perch</source>
        <translation>perch küp</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>rope küp</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>çile küp</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>karış küp</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>ölçme fiti küp</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translatorcomment>CLDR: desimetreküp</translatorcomment>
        <translation>desimetreküp</translation>
    </message>
    <message>
        <source>tun</source>
        <translation>fıçı (tun)</translation>
    </message>
    <message>
        <source>peck</source>
        <translation>pek</translation>
    </message>
    <message>
        <source>peck (U.S. dry)</source>
        <translation>pek (ABD, kuru)</translation>
    </message>
    <message>
        <source>peck (imperial)</source>
        <translation>pek (İngiliz)</translation>
    </message>
    <message>
        <source>minim (imperial)</source>
        <translation>minim (İngiliz)</translation>
    </message>
    <message>
        <source>minim (U.S.)</source>
        <translation>minim (ABD)</translation>
    </message>
    <message>
        <source>kiloliter</source>
        <translatorcomment>CLDR: kilolitre</translatorcomment>
        <translation>kilolitre</translation>
    </message>
    <message>
        <source>hogshead (U.S.)</source>
        <translation>hogshead (ABD)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>hogshead (İngiliz)</translation>
    </message>
    <message>
        <source>gill (imperial)</source>
        <translation>gill (İngiliz)</translation>
    </message>
    <message>
        <source>gill (U.S.)</source>
        <translation>gill (ABD)</translation>
    </message>
    <message>
        <source>cubic survey yard</source>
        <translation>ölçme yardası küp</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>cord-fit</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>cord (yakacak odun)</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>gros ton (register)</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: akre fit</translatorcomment>
        <translation>akre fit</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>akre-inç</translation>
    </message>
    <message>
        <source>cubic microinch</source>
        <translation>mikroinç küp</translation>
    </message>
    <message>
        <source>cubic micrometer</source>
        <translatorcomment>CLDR: mikrometreküp</translatorcomment>
        <translation>mikrometreküp</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translatorcomment>CLDR: kilometreküp</translatorcomment>
        <translation>kilometreküp</translation>
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
        <translatorcomment>CLDR: desigram</translatorcomment>
        <translation>desigram</translation>
    </message>
    <message>
        <source>centigram</source>
        <translatorcomment>CLDR: santigram</translatorcomment>
        <translation>santigram</translation>
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
        <translation>metrik libre</translation>
    </message>
    <message>
        <source>pound</source>
        <translatorcomment>CLDR: libre</translatorcomment>
        <translation>libre</translation>
    </message>
    <message>
        <source>pound (troy)</source>
        <translation>troy libre</translation>
    </message>
    <message>
        <source>ounce (avoirdupois)</source>
        <translation>ons (avoirdupois)</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>ons (eczacı; troy)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: stone</translatorcomment>
        <translation>stone</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>kısa ton</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>uzun ton</translation>
    </message>
    <message>
        <source>carat</source>
        <translatorcomment>CLDR: karat</translatorcomment>
        <translation>karat</translation>
    </message>
    <message>
        <source>carat (metric)</source>
        <translation>kırat (metrik)</translation>
    </message>
    <message>
        <source>dram (avoirdupois)</source>
        <translation>dram (avoirdupois)</translation>
    </message>
    <message>
        <source>dram (apothecary; troy)</source>
        <translation>dram (eczacı; troy)</translation>
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
        <translation>uzun hundredweight</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>kısa hundredweight</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: tane</translatorcomment>
        <translation>tane</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>inci grenı</translation>
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
        <translatorcomment>CLDR: kilogram/metre</translatorcomment>
        <translation>kilogram/metre</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: libre/fit</translatorcomment>
        <translation>libre/fit</translation>
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
        <translation>eksamol</translation>
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
        <translation>hektomol</translation>
    </message>
    <message>
        <source>decamole</source>
        <translation>dekamol</translation>
    </message>
    <message>
        <source>decimole</source>
        <translation>desimol</translation>
    </message>
    <message>
        <source>centimole</source>
        <translation>santimol</translation>
    </message>
    <message>
        <source>millimole</source>
        <translation>milimol</translation>
    </message>
    <message>
        <source>micromole</source>
        <translation>mikromol</translation>
    </message>
    <message>
        <source>nanomole</source>
        <translation>nanomol</translation>
    </message>
    <message>
        <source>picomole</source>
        <translation>pikomol</translation>
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
        <translation>yoktomol</translation>
    </message>
    <message>
        <source>radian</source>
        <translatorcomment>CLDR: radyan</translatorcomment>
        <translation>radyan</translation>
    </message>
    <message>
        <source>degree</source>
        <translatorcomment>CLDR: derece</translatorcomment>
        <translation>derece</translation>
    </message>
    <message>
        <source>milliradian</source>
        <translatorcomment>CLDR: miliradyan</translatorcomment>
        <translation>miliradyan</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>grad (gon)</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>açısal mil (NATO)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>açısal mil (İsveç)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>açısal mil (SSCB)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translatorcomment>CLDR: açısal dakika</translatorcomment>
        <translation>açısal dakika</translation>
    </message>
    <message>
        <source>angle second</source>
        <translatorcomment>CLDR: açısal saniye</translatorcomment>
        <translation>açısal saniye</translation>
    </message>
    <message>
        <source>milliarc second</source>
        <translation>açısal milisaniye</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>steradyan</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: gram/metrekare</translatorcomment>
        <translation>gram/metrekare</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: gram/in²</translatorcomment>
        <translation>gram/in²</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translatorcomment>CLDR: nanogram/litre</translatorcomment>
        <translation>nanogram/litre</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translatorcomment>CLDR: nanogram/desilitre</translatorcomment>
        <translation>nanogram/desilitre</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translatorcomment>CLDR: nanogram/mililitre</translatorcomment>
        <translation>nanogram/mililitre</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translatorcomment>CLDR: nanogram/mikrolitre</translatorcomment>
        <translation>nanogram/mikrolitre</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: parça/milyon</translatorcomment>
        <translation>parça/milyon</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>milyarda bir</translation>
    </message>
    <message>
        <source>ampere</source>
        <translatorcomment>CLDR: amper</translatorcomment>
        <translation>amper</translation>
    </message>
    <message>
        <source>yottaampere</source>
        <translatorcomment>CLDR: yottaamper</translatorcomment>
        <translation>yottaamper</translation>
    </message>
    <message>
        <source>zettaampere</source>
        <translatorcomment>CLDR: zettaamper</translatorcomment>
        <translation>zettaamper</translation>
    </message>
    <message>
        <source>exaampere</source>
        <translatorcomment>CLDR: exaamper</translatorcomment>
        <translation>exaamper</translation>
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
        <translatorcomment>CLDR: desiamper</translatorcomment>
        <translation>desiamper</translation>
    </message>
    <message>
        <source>centiampere</source>
        <translatorcomment>CLDR: santiamper</translatorcomment>
        <translation>santiamper</translation>
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
        <translatorcomment>CLDR: yoktoamper</translatorcomment>
        <translation>yoktoamper</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>coulomb</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translation>amper saat</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translation>miliamper saat</translation>
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
        <translation>desifarad</translation>
    </message>
    <message>
        <source>centifarad</source>
        <translation>santifarad</translation>
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
        <translatorcomment>CLDR: bit/saniye</translatorcomment>
        <translation>bit/saniye</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: bayt/saniye</translatorcomment>
        <translation>bayt/saniye</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>kilobaud</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: kilobit/saniye</translatorcomment>
        <translation>kilobit/saniye</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: kilobayt/saniye</translatorcomment>
        <translation>kilobayt/saniye</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>megabaud</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: megabit/saniye</translatorcomment>
        <translation>megabit/saniye</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: megabayt/saniye</translatorcomment>
        <translation>megabayt/saniye</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: kilogram/metreküp</translatorcomment>
        <translation>kilogram/metreküp</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translatorcomment>CLDR: kilogram/litre</translatorcomment>
        <translation>kilogram/litre</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translatorcomment>CLDR: gram/litre</translatorcomment>
        <translation>gram/litre</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translatorcomment>CLDR: mikrogram/mililitre</translatorcomment>
        <translation>mikrogram/mililitre</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: miligram/mililitre</translatorcomment>
        <translation>miligram/mililitre</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: libre/galon</translatorcomment>
        <translation>libre/galon</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: ons/galon</translatorcomment>
        <translation>ons/galon</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: libre/fit küp</translatorcomment>
        <translation>libre/fit küp</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: libre/inç küp</translatorcomment>
        <translation>libre/inç küp</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: gram /santimetreküp</translatorcomment>
        <translation>gram /santimetreküp</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>newton saniye kare/milimetre üzeri dört</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: newton/metreküp</translatorcomment>
        <translation>newton/metreküp</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: kilonewton/metreküp</translatorcomment>
        <translation>kilonewton/metreküp</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>libre kuvvet/fit küp</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>kip/inç küp</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>kip/fit küp</translation>
    </message>
    <message>
        <source>joule</source>
        <translatorcomment>CLDR: jul</translatorcomment>
        <translation>jul</translation>
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
        <translation>İngiliz ısı birimi (termokimyasal)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>İngiliz ısı birimi (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>İngiliz ısı birimi (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>İngiliz ısı birimi (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>İngiliz ısı birimi (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>İngiliz ısı birimi (uluslararası tablo)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>İngiliz ısı birimi (ortalama)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>İngiliz ısı birimi (39 °F)</translation>
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
        <translatorcomment>CLDR: kilovatsaat</translatorcomment>
        <translation>kilovatsaat</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translation>kilovat dakika</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translation>kilovat saniye</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>therm (ABD)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: newton metre</translatorcomment>
        <translation>newton metre</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translatorcomment>CLDR: dekanewton metre</translatorcomment>
        <translation>dekanewton metre</translation>
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
        <translation>kilogram kuvvet metre</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>kilogram kuvvet fit</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>ton kuvvet fit</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>ton kuvvet metre</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>fit kilolibre</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>fit libre kuvvet</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>kalori (20 °C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>kalori (termokimyasal)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>kalori (15 °C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>kalori (ortalama)</translation>
    </message>
    <message>
        <source>calorie (3.98 degree C)</source>
        <translation>kalori (3,98 °C)</translation>
    </message>
    <message>
        <source>Therm (EC)</source>
        <translation>therm (AT)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: metreküp/saniye</translatorcomment>
        <translation>metreküp/saniye</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: litre/saniye</translatorcomment>
        <translation>litre/saniye</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: litre/dakika</translatorcomment>
        <translation>litre/dakika</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: litre/saat</translatorcomment>
        <translation>litre/saat</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translatorcomment>CLDR: galon/saniye</translatorcomment>
        <translation>galon/saniye</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: galon/dakika</translatorcomment>
        <translation>galon/dakika</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: galon/saat</translatorcomment>
        <translation>galon/saat</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: galon/gün</translatorcomment>
        <translation>galon/gün</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: mililitre/dakika</translatorcomment>
        <translation>mililitre/dakika</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: santimetreküp/dakika</translatorcomment>
        <translation>santimetreküp/dakika</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: fit küp/saat</translatorcomment>
        <translation>fit küp/saat</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: fit küp/dakika</translatorcomment>
        <translation>fit küp/dakika</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: fit küp/saniye</translatorcomment>
        <translation>fit küp/saniye</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: inç küp/dakika</translatorcomment>
        <translation>inç küp/dakika</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: metreküp/saat</translatorcomment>
        <translation>metreküp/saat</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: metreküp/dakika</translatorcomment>
        <translation>metreküp/dakika</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: santimetreküp/saniye</translatorcomment>
        <translation>santimetreküp/saniye</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: santimetreküp/saat</translatorcomment>
        <translation>santimetreküp/saat</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>ABD galonu/saat</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>ABD galonu/saniye</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>İngiliz galonu/gün</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>İngiliz galonu/saat</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>İngiliz galonu/dakika</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>İngiliz galonu/saniye</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>milyon İngiliz galonu/gün</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: litre/gün</translatorcomment>
        <translation>litre/gün</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>milyon litre/gün</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>ABD galonu/gün</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>milyon ABD galonu/gün</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: fit küp/gün</translatorcomment>
        <translation>fit küp/gün</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: metreküp/gün</translatorcomment>
        <translation>metreküp/gün</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: yarda küp/dakika</translatorcomment>
        <translation>yarda küp/dakika</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: akre fit/gün</translatorcomment>
        <translation>akre fit/gün</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: akre fit/saat</translatorcomment>
        <translation>akre fit/saat</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: akre fit/dakika</translatorcomment>
        <translation>akre fit/dakika</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>akre-inç/saat</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>akre-inç/dakika</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>ölçme fiti küp/saniye</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: kilogram/saniye</translatorcomment>
        <translation>kilogram/saniye</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: kilogram/dakika</translatorcomment>
        <translation>kilogram/dakika</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: kilogram/saat</translatorcomment>
        <translation>kilogram/saat</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: gram/saniye</translatorcomment>
        <translation>gram/saniye</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: gram/dakika</translatorcomment>
        <translation>gram/dakika</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: gram/saat</translatorcomment>
        <translation>gram/saat</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: libre/saniye</translatorcomment>
        <translation>libre/saniye</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: libre/dakika</translatorcomment>
        <translation>libre/dakika</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: libre/saat</translatorcomment>
        <translation>libre/saat</translation>
    </message>
    <message>
        <source>pint per stroke</source>
        <translation>pint/strok</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>kuart/strok</translation>
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
        <translatorcomment>CLDR: desinewton</translatorcomment>
        <translation>desinewton</translation>
    </message>
    <message>
        <source>centinewton</source>
        <translatorcomment>CLDR: santinewton</translatorcomment>
        <translation>santinewton</translation>
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
        <translation>kilolibre</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>kilogram kuvvet</translation>
    </message>
    <message>
        <source>pound force</source>
        <translatorcomment>CLDR: pound kuvvet</translatorcomment>
        <translation>pound kuvvet</translation>
    </message>
    <message>
        <source>kip</source>
        <translation>kip</translation>
    </message>
    <message>
        <source>ton force</source>
        <translation>ton kuvvet</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>din</translation>
    </message>
    <message>
        <source>lbforce</source>
        <translation>lbf (libre kuvvet)</translation>
    </message>
    <message>
        <source>ounce force</source>
        <translation>ons kuvvet</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: newton/metre</translatorcomment>
        <translation>newton/metre</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>kilolibre/fit</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>kilogram kuvvet/metre</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>ton kuvvet/metre</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>libre kuvvet/fit</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: dekanewton/metre</translatorcomment>
        <translation>dekanewton/metre</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translatorcomment>CLDR: kilonewton/metre</translatorcomment>
        <translation>kilonewton/metre</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translatorcomment>CLDR: meganewton/metre</translatorcomment>
        <translation>meganewton/metre</translation>
    </message>
    <message>
        <source>kip per foot</source>
        <translation>kip/fit</translation>
    </message>
    <message>
        <source>kip per inch</source>
        <translation>kip/inç</translation>
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
        <translation>devir/saniye</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: devir/dakika</translatorcomment>
        <translation>devir/dakika</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>flaş/saniye</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>flaş/dakika</translation>
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
        <translatorcomment>CLDR: vat</translatorcomment>
        <translation>vat</translation>
    </message>
    <message>
        <source>horsepower (metric)</source>
        <translation>beygir gücü (metrik)</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>beygir gücü (Avrupa elektrik)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>beygir gücü (İngiliz mekanik)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>beygir gücü (İngiliz elektrik)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: kilokalori/saat</translatorcomment>
        <translation>kilokalori/saat</translation>
    </message>
    <message>
        <source>kilowatt</source>
        <translatorcomment>CLDR: kilovat</translatorcomment>
        <translation>kilovat</translation>
    </message>
    <message>
        <source>megawatt</source>
        <translatorcomment>CLDR: megavat</translatorcomment>
        <translation>megavat</translation>
    </message>
    <message>
        <source>microwatt</source>
        <translatorcomment>CLDR: mikrovat</translatorcomment>
        <translation>mikrovat</translation>
    </message>
    <message>
        <source>volt ampere</source>
        <translation>volt amper</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translation>milivolt amper</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translation>kilovolt amper</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translation>megavolt amper</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: milivat</translatorcomment>
        <translation>milivat</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>kilogram kuvvet metre/saniye</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>fit libre kuvvet/saniye</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: kalori/saniye</translatorcomment>
        <translation>kalori/saniye</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: kilokalori/saniye</translatorcomment>
        <translation>kilokalori/saniye</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>İngiliz ısı birimi (uluslararası tablo)/saniye</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>İngiliz ısı birimi (uluslararası tablo)/saat</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>milyon İngiliz ısı birimi (uluslararası tablo)/saat</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>bin İngiliz ısı birimi (uluslararası tablo)/saat</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>soğutma tonu</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: vat/metreküp</translatorcomment>
        <translation>vat/metreküp</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: vat/fit küp</translatorcomment>
        <translation>vat/fit küp</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>İngiliz ısı birimi/(saat·fit küp)</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: vat/kg</translatorcomment>
        <translation>vat/kg</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: vat/metrekare</translatorcomment>
        <translation>vat/metrekare</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: kilovat/metrekare</translatorcomment>
        <translation>kilovat/metrekare</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: kilovat/fit kare</translatorcomment>
        <translation>kilovat/fit kare</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: vat/fit kare</translatorcomment>
        <translation>vat/fit kare</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>İngiliz ısı birimi/(saat·fit kare)</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>bar</translation>
    </message>
    <message>
        <source>bar absolute</source>
        <translation>bar mutlak</translation>
    </message>
    <message>
        <source>bar gauge</source>
        <translation>bar gösterge</translation>
    </message>
    <message>
        <source>inch of mercury</source>
        <translatorcomment>CLDR: inç cıva</translatorcomment>
        <translation>inç cıva</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>inç su sütunu</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translation>kilobar</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: kilogram/santimetrekare</translatorcomment>
        <translation>kilogram/santimetrekare</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: kilopaskal</translatorcomment>
        <translation>kilopaskal</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: kilolibre/in²</translatorcomment>
        <translation>kilolibre/in²</translation>
    </message>
    <message>
        <source>mega pascal</source>
        <translatorcomment>CLDR: megapaskal</translatorcomment>
        <translation>megapaskal</translation>
    </message>
    <message>
        <source>millibar</source>
        <translatorcomment>CLDR: milibar</translatorcomment>
        <translation>milibar</translation>
    </message>
    <message>
        <source>millimeter of mercury</source>
        <translatorcomment>CLDR: milimetre cıva</translatorcomment>
        <translation>milimetre cıva</translation>
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
        <translation>libre/inç kare (mutlak)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>libre/inç kare (gösterge)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: libre/fit kare</translatorcomment>
        <translation>libre/fit kare</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: libre/in²</translatorcomment>
        <translation>libre/in²</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>atmosfer (standart)</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>teknik atmosfer</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>torr</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translatorcomment>CLDR: newton/milimetrekare</translatorcomment>
        <translation>newton/milimetrekare</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: newton/metrekare</translatorcomment>
        <translation>newton/metrekare</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translatorcomment>CLDR: dekanewton/milimetrekare</translatorcomment>
        <translation>dekanewton/milimetrekare</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: dekanewton/metrekare</translatorcomment>
        <translation>dekanewton/metrekare</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: kilonewton/metrekare</translatorcomment>
        <translation>kilonewton/metrekare</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: meganewton/metrekare</translatorcomment>
        <translation>meganewton/metrekare</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translatorcomment>CLDR: kilolibre/fit kare</translatorcomment>
        <translation>kilolibre/fit kare</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>kilogram kuvvet/milimetrekare</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>kilogram kuvvet/santimetrekare</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>kilogram kuvvet/metrekare</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>ton kuvvet/santimetrekare</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>ton kuvvet/metrekare</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>ton kuvvet/fit kare</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translatorcomment>CLDR: libre/inç kare</translatorcomment>
        <translation>libre/inç kare</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>fit su sütunu</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>kip/inç kare</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>kip/fit kare</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>libre kuvvet/fit kare</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: gigapaskal</translatorcomment>
        <translation>gigapaskal</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>din/santimetrekare</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translatorcomment>CLDR: newton/mikrometrekare</translatorcomment>
        <translation>newton/mikrometrekare</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: metre/newton</translatorcomment>
        <translation>metre/newton</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translatorcomment>CLDR: metre/kilonewton</translatorcomment>
        <translation>metre/kilonewton</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>fit/kip</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: metrekare/newton</translatorcomment>
        <translation>metrekare/newton</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: metrekare/kilonewton</translatorcomment>
        <translation>metrekare/kilonewton</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>fit kare/kip</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: metreküp/newton</translatorcomment>
        <translation>metreküp/newton</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: metreküp/kilonewton</translatorcomment>
        <translation>metreküp/kilonewton</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>fit küp/kip</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: newton metre/metre</translatorcomment>
        <translation>newton metre/metre</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: dekanewton metre/metre</translatorcomment>
        <translation>dekanewton metre/metre</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: kilonewton metre/metre</translatorcomment>
        <translation>kilonewton metre/metre</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: meganewton metre/metre</translatorcomment>
        <translation>meganewton metre/metre</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>kip-fit/fit</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>kilogram kuvvet metre/metre</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>ton kuvvet metre/metre</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translatorcomment>CLDR: pound fit/fit</translatorcomment>
        <translation>pound fit/fit</translation>
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
        <translatorcomment>CLDR: metre/saniye</translatorcomment>
        <translation>metre/saniye</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: milimetre/saniye</translatorcomment>
        <translation>milimetre/saniye</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: santimetre/saniye</translatorcomment>
        <translation>santimetre/saniye</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: metre/dakika</translatorcomment>
        <translation>metre/dakika</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: inç/saniye</translatorcomment>
        <translation>inç/saniye</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: fit/saniye</translatorcomment>
        <translation>fit/saniye</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: inç/dakika</translatorcomment>
        <translation>inç/dakika</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: fit/dakika</translatorcomment>
        <translation>fit/dakika</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: kilometre/saat</translatorcomment>
        <translation>kilometre/saat</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: mil/saat</translatorcomment>
        <translation>mil/saat</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: santimetre/dakika</translatorcomment>
        <translation>santimetre/dakika</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: fit/saat</translatorcomment>
        <translation>fit/saat</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: inç/saat</translatorcomment>
        <translation>inç/saat</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: kilometre/dakika</translatorcomment>
        <translation>kilometre/dakika</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: kilometre/saniye</translatorcomment>
        <translation>kilometre/saniye</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: knot</translatorcomment>
        <translation>knot</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>knot (Birleşik Krallık)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: metre/saat</translatorcomment>
        <translation>metre/saat</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: mil/dakika</translatorcomment>
        <translation>mil/dakika</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: mil/saniye</translatorcomment>
        <translation>mil/saniye</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>ölçme mili/saat</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>ölçme fiti/saniye</translation>
    </message>
    <message>
        <source>byte</source>
        <translatorcomment>CLDR: bayt</translatorcomment>
        <translation>bayt</translation>
    </message>
    <message>
        <source>bit</source>
        <translatorcomment>CLDR: bit</translatorcomment>
        <translation>bit</translation>
    </message>
    <message>
        <source>kilobyte</source>
        <translatorcomment>CLDR: kilobayt</translatorcomment>
        <translation>kilobayt</translation>
    </message>
    <message>
        <source>megabyte</source>
        <translatorcomment>CLDR: megabayt</translatorcomment>
        <translation>megabayt</translation>
    </message>
    <message>
        <source>gigabyte</source>
        <translatorcomment>CLDR: gigabayt</translatorcomment>
        <translation>gigabayt</translation>
    </message>
    <message>
        <source>terabyte</source>
        <translatorcomment>CLDR: terabayt</translatorcomment>
        <translation>terabayt</translation>
    </message>
    <message>
        <source>kibibyte</source>
        <translatorcomment>CLDR: kibibayt</translatorcomment>
        <translation>kibibayt</translation>
    </message>
    <message>
        <source>mebibyte</source>
        <translatorcomment>CLDR: mebibayt</translatorcomment>
        <translation>mebibayt</translation>
    </message>
    <message>
        <source>gibibyte</source>
        <translatorcomment>CLDR: gibibayt</translatorcomment>
        <translation>gibibayt</translation>
    </message>
    <message>
        <source>tebibyte</source>
        <translatorcomment>CLDR: tebibayt</translatorcomment>
        <translation>tebibayt</translation>
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
        <translatorcomment>CLDR: petabayt</translatorcomment>
        <translation>petabayt</translation>
    </message>
    <message>
        <source>pebibyte</source>
        <translatorcomment>CLDR: pebibayt</translatorcomment>
        <translation>pebibayt</translation>
    </message>
    <message>
        <source>exabyte</source>
        <translatorcomment>CLDR: exabayt</translatorcomment>
        <translation>exabayt</translation>
    </message>
    <message>
        <source>exbibyte</source>
        <translatorcomment>CLDR: exbibayt</translatorcomment>
        <translation>exbibayt</translation>
    </message>
    <message>
        <source>zettabyte</source>
        <translatorcomment>CLDR: zettabayt</translatorcomment>
        <translation>zettabayt</translation>
    </message>
    <message>
        <source>zebibyte</source>
        <translatorcomment>CLDR: zebibayt</translatorcomment>
        <translation>zebibayt</translation>
    </message>
    <message>
        <source>yottabyte</source>
        <translatorcomment>CLDR: yottabayt</translatorcomment>
        <translation>yottabayt</translation>
    </message>
    <message>
        <source>yobibyte</source>
        <translatorcomment>CLDR: yobebayt</translatorcomment>
        <translation>yobebayt</translation>
    </message>
    <message>
        <source>kelvin</source>
        <translatorcomment>CLDR: kelvin</translatorcomment>
        <translation>kelvin</translation>
    </message>
    <message>
        <source>degree Celsius</source>
        <translatorcomment>CLDR: santigrat derece</translatorcomment>
        <translation>santigrat derece</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: fahrenhayt derece</translatorcomment>
        <translation>fahrenhayt derece</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>Rankine derecesi</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: santigrat derece/dakika</translatorcomment>
        <translation>santigrat derece/dakika</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: fahrenhayt derece/dakika</translatorcomment>
        <translation>fahrenhayt derece/dakika</translation>
    </message>
    <message>
        <source>second</source>
        <translatorcomment>CLDR: saniye</translatorcomment>
        <translation>saniye</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translatorcomment>CLDR: yottasaniye</translatorcomment>
        <translation>yottasaniye</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translatorcomment>CLDR: zettasaniye</translatorcomment>
        <translation>zettasaniye</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translatorcomment>CLDR: exasaniye</translatorcomment>
        <translation>exasaniye</translation>
    </message>
    <message>
        <source>petasecond</source>
        <translatorcomment>CLDR: petasaniye</translatorcomment>
        <translation>petasaniye</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translatorcomment>CLDR: terasaniye</translatorcomment>
        <translation>terasaniye</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translatorcomment>CLDR: gigasaniye</translatorcomment>
        <translation>gigasaniye</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translatorcomment>CLDR: megasaniye</translatorcomment>
        <translation>megasaniye</translation>
    </message>
    <message>
        <source>kilosecond</source>
        <translatorcomment>CLDR: kilosaniye</translatorcomment>
        <translation>kilosaniye</translation>
    </message>
    <message>
        <source>hectosecond</source>
        <translatorcomment>CLDR: hektosaniye</translatorcomment>
        <translation>hektosaniye</translation>
    </message>
    <message>
        <source>decasecond</source>
        <translatorcomment>CLDR: dekasaniye</translatorcomment>
        <translation>dekasaniye</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translatorcomment>CLDR: desisaniye</translatorcomment>
        <translation>desisaniye</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translatorcomment>CLDR: santisaniye</translatorcomment>
        <translation>santisaniye</translation>
    </message>
    <message>
        <source>millisecond</source>
        <translatorcomment>CLDR: milisaniye</translatorcomment>
        <translation>milisaniye</translation>
    </message>
    <message>
        <source>microsecond</source>
        <translatorcomment>CLDR: mikrosaniye</translatorcomment>
        <translation>mikrosaniye</translation>
    </message>
    <message>
        <source>nanosecond</source>
        <translatorcomment>CLDR: nanosaniye</translatorcomment>
        <translation>nanosaniye</translation>
    </message>
    <message>
        <source>picosecond</source>
        <translatorcomment>CLDR: pikosaniye</translatorcomment>
        <translation>pikosaniye</translation>
    </message>
    <message>
        <source>femtosecond</source>
        <translatorcomment>CLDR: femtosaniye</translatorcomment>
        <translation>femtosaniye</translation>
    </message>
    <message>
        <source>attosecond</source>
        <translatorcomment>CLDR: attosaniye</translatorcomment>
        <translation>attosaniye</translation>
    </message>
    <message>
        <source>zeptosecond</source>
        <translatorcomment>CLDR: zeptosaniye</translatorcomment>
        <translation>zeptosaniye</translation>
    </message>
    <message>
        <source>yoctosecond</source>
        <translatorcomment>CLDR: yoktosaniye</translatorcomment>
        <translation>yoktosaniye</translation>
    </message>
    <message>
        <source>minute</source>
        <translatorcomment>CLDR: dakika</translatorcomment>
        <translation>dakika</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: saat</translatorcomment>
        <translation>saat</translation>
    </message>
    <message>
        <source>day</source>
        <translatorcomment>CLDR: gün</translatorcomment>
        <translation>gün</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: hafta</translatorcomment>
        <translation>hafta</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>iki hafta</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: ay</translatorcomment>
        <translation>ay</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>ay (eksik, 29 gün)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>ay (tam, 30 gün)</translation>
    </message>
    <message>
        <source>year</source>
        <translatorcomment>CLDR: yıl</translatorcomment>
        <translation>yıl</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>yıl (Gregoryen)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>yıl (Jülyen)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>yıldız yılı</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>tropikal yıl</translation>
    </message>
    <message>
        <source>annum</source>
        <translation>annum</translation>
    </message>
    <message>
        <source>decade</source>
        <translatorcomment>CLDR: on yıl</translatorcomment>
        <translation>on yıl</translation>
    </message>
    <message>
        <source>century</source>
        <translatorcomment>CLDR: yüzyıl</translatorcomment>
        <translation>yüzyıl</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>yüzyıl (Jülyen)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>bin yıl</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>bin yıl (Gregoryen)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>bin yıl (Jülyen)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>newton metre (tork)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>newton santimetre (tork)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>newton dekametre (tork)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>fit libre (tork)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>inç libre (tork)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>metre kilogram (tork)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>santimetre kilogram (tork)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>inç ons (tork)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>gram santimetre (tork)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>dekanewton metre (tork)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>kilonewton metre (tork)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>meganewton metre (tork)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>kip fit (tork)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>kilogram kuvvet metre (tork)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>ton kuvvet metre (tork)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>libre kuvvet fit (tork)</translation>
    </message>
    <message>
        <source>poise</source>
        <translation>poise</translation>
    </message>
    <message>
        <source>centipoise</source>
        <translation>santipoise</translation>
    </message>
    <message>
        <source>pascal second</source>
        <translation>pascal saniye</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>libre kütle/(fit·saniye)</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>libre kütle/(fit·saat)</translation>
    </message>
    <message>
        <source>stoke</source>
        <translation>stokes</translation>
    </message>
    <message>
        <source>centistoke</source>
        <translation>santistokes</translation>
    </message>
    <message>
        <source>meter per second squared</source>
        <translatorcomment>CLDR: metre/saniye²</translatorcomment>
        <translation>metre/saniye²</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>fit/saniye kare</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>ölçme fiti/saniye kare</translation>
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
        <translation>volt (elektrik potansiyeli)</translation>
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
        <translation>lümen/steradyan</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>mum gücü</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>lüks (aydınlık düzeyi)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>fit-mum</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translation>lümen saniye</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>talbot</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>ışık gücü</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: lümen</translatorcomment>
        <translation>lümen</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: kandela/metrekare</translatorcomment>
        <translation>kandela/metrekare</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>fit-lambert</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: kandela/fit kare</translatorcomment>
        <translation>kandela/fit kare</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>lüks (ışıklılık)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: lümen/vat</translatorcomment>
        <translation>lümen/vat</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: paskal/metre</translatorcomment>
        <translation>paskal/metre</translation>
    </message>
    <message>
        <source>inch of water per 100foot</source>
        <translation>inç su sütunu/100 fit</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>fit su sütunu/100 fit</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>inç cıva/100 fit</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>milimetre cıva/100 fit</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: newton metre/derece</translatorcomment>
        <translation>newton metre/derece</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>kip-fit/derece</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: kilonewton metre/derece</translatorcomment>
        <translation>kilonewton metre/derece</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>newton metre/derece/metre</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>kip-fit/derece/fit</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>kilonewton metre/derece/metre</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>vat/(metrekare·kelvin)</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>İngiliz ısı birimi/(saat·fit kare·Fahrenheit derecesi)</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>metreküp/(saniye·metrekare)</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>fit küp/(dakika·fit kare)</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>litre/(saniye·metrekare)</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>metreküp/(saniye·metreküp)</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>fit küp/(dakika·fit küp)</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>litre/(saniye·metreküp)</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>metreküp/(saniye·vat)</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>fit küp/(dakika·soğutma tonu)</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>litre/(saniye·kilovat)</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: metrekare/vat</translatorcomment>
        <translation>metrekare/vat</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>fit kare/soğutma tonu</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: metrekare/kilovat</translatorcomment>
        <translation>metrekare/kilovat</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>fit kare/(bin İngiliz ısı birimi/saat)</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>saniye kare/(metre·kilogram)</translation>
    </message>
    <message>
        <source>inverse kilonewton</source>
        <translation>ters kilonewton</translation>
    </message>
    <message>
        <source>inverse kip</source>
        <translation>ters kip</translation>
    </message>
    <message>
        <source>inverse fahrenheit</source>
        <translation>ters Fahrenheit derecesi</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>ters Celsius derecesi</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>mikrometre/(metre·Celsius derecesi)</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>mikroinç/(inç·Fahrenheit derecesi)</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>oersted</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: amper/metre</translatorcomment>
        <translation>amper/metre</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>vat/(metre·kelvin)</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>vat/(metre·Celsius derecesi)</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>newton/(saniye·Celsius derecesi)</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>din/(saniye·Celsius derecesi)</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>BTU·inç/(fit kare·saat·Fahrenheit derecesi)</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>BTU/(inç·saniye·Fahrenheit derecesi)</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>BTU/(fit·saniye·Fahrenheit derecesi)</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>BTU/(fit·saat·Fahrenheit derecesi)</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>jul/(gram·Celsius derecesi)</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>jul/(kilogram·Celsius derecesi)</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>milimetrekare/(saniye kare·Celsius derecesi)</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>erg/(gram·Celsius derecesi)</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>mikrometrekare/(saniye kare·Celsius derecesi)</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>BTU/(libre·Fahrenheit derecesi)</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>nanogram/(pascal·saniye·metrekare)</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>gren/(fit kare·saat·inç cıva)</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translation>ohm metre</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translatorcomment>CLDR: jul/gram</translatorcomment>
        <translation>jul/gram</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translatorcomment>CLDR: jul/kg</translatorcomment>
        <translation>jul/kg</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>BTU/libre</translation>
    </message>
</context>
</TS>
