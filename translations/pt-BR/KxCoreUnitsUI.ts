<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
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
        <translation>Ponto fixo</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>general</source>
        <translation>geral</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Fração</translation>
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
        <translation>Comprimento</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Área</translation>
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
        <translation>Massa linear</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>Quantidade de substância</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ângulo</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>Ângulo sólido</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>Densidade superficial</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Concentração</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>Partes por (ppm, ppb)</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>Corrente elétrica</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>Carga elétrica</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>Capacitância</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Taxa de bits</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Massa específica</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>Peso específico</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energia</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>Vazão volumétrica</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>Vazão mássica</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>Vazão por curso</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Força</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>Carga linear</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequência</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>Indutância</translation>
    </message>
    <message>
        <source>Magnetic Flux Density</source>
        <translation>Densidade de fluxo magnético</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>Fluxo magnético</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Potência</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>Potência por unidade de volume</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>Potência por unidade de massa</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>Potência por unidade de área</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pressão</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>Escala de força</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>Escala de carga linear</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>Escala de carga de área</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>Momento linear</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>Resistência elétrica</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>Condutância elétrica</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>Armazenamento de dados</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>Taxa de variação de temperatura</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>Torque</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>Viscosidade dinâmica</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>Viscosidade cinemática</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Aceleração</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tensão elétrica</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>Potencial elétrico</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>Intensidade luminosa</translation>
    </message>
    <message>
        <source>Illuminance</source>
        <translation>Iluminância</translation>
    </message>
    <message>
        <source>Luminous Energy</source>
        <translation>Energia luminosa</translation>
    </message>
    <message>
        <source>Luminous Flux</source>
        <translation>Fluxo luminoso</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminância</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>Emitância luminosa</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>Eficiência luminosa</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Perda de carga por atrito</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>Rigidez rotacional pontual</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>Rigidez rotacional linear</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>Coeficiente de transferência de calor</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>Densidade de vazão de ar</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>Vazão de ar por volume</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>Vazão de ar por potência</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>Área por potência</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>Escala de momento</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>Coeficiente de dilatação térmica</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>Intensidade de campo magnético</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>Condutividade térmica</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>Calor específico</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>Permeabilidade ao vapor</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>Resistividade elétrica</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>Calor latente de vaporização</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>adimensional</translation>
    </message>
    <message>
        <source>meter</source>
        <translatorcomment>CLDR: metro</translatorcomment>
        <translation>metro</translation>
    </message>
    <message>
        <source>yottameter</source>
        <translatorcomment>CLDR: iotametro</translatorcomment>
        <translation>iotametro</translation>
    </message>
    <message>
        <source>zettameter</source>
        <translatorcomment>CLDR: zetametro</translatorcomment>
        <translation>zetametro</translation>
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
        <translatorcomment>CLDR: quilômetro</translatorcomment>
        <translation>quilômetro</translation>
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
        <translatorcomment>CLDR: micrômetro</translatorcomment>
        <translation>micrômetro</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translatorcomment>CLDR: nanômetro</translatorcomment>
        <translation>nanômetro</translation>
    </message>
    <message>
        <source>picometer</source>
        <translatorcomment>CLDR: picômetro</translatorcomment>
        <translation>picômetro</translation>
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
        <translatorcomment>CLDR: ioctometro</translatorcomment>
        <translation>ioctometro</translation>
    </message>
    <message>
        <source>inch</source>
        <translatorcomment>CLDR: polegada</translatorcomment>
        <translation>polegada</translation>
    </message>
    <message>
        <source>foot</source>
        <translatorcomment>CLDR: pé</translatorcomment>
        <translation>pé</translation>
    </message>
    <message>
        <source>foot (Benoit)</source>
        <translation>pé (Benoit)</translation>
    </message>
    <message>
        <source>foot (Clarke&apos;s; Cape)</source>
        <translation>pé (Clarke; Cidade do Cabo)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>pé (Índia)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>pé (Sears)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>pé de levantamento (EUA)</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: jarda</translatorcomment>
        <translation>jarda</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>cadeia</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>cadeia (Ramsden; de engenheiro)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: furlong</translatorcomment>
        <translation>furlong</translation>
    </message>
    <message>
        <source>mile</source>
        <translatorcomment>CLDR: milha</translatorcomment>
        <translation>milha</translation>
    </message>
    <message>
        <source>geographical mile</source>
        <translation>milha geográfica</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>milha de levantamento (EUA)</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: milha náutica</translatorcomment>
        <translation>milha náutica</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>milha terrestre</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>milha náutica (Almirantado)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>mícron</translation>
    </message>
    <message>
        <source>microinch</source>
        <translatorcomment>CLDR: micropolegada</translatorcomment>
        <translation>micropolegada</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>angstrom</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: unidade astronômica</translatorcomment>
        <translation>unidade astronômica</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>amarra (cabo)</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>côvado</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: braça</translatorcomment>
        <translation>braça</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>mão (hand)</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: ano-luz</translatorcomment>
        <translation>ano-luz</translation>
    </message>
    <message>
        <source>span</source>
        <translation>palmo</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>palmo (tecido)</translation>
    </message>
    <message>
        <source>parsec</source>
        <translatorcomment>CLDR: parsec</translatorcomment>
        <translation>parsec</translation>
    </message>
    <message>
        <source>nautical league</source>
        <translation>légua náutica</translation>
    </message>
    <message>
        <source>league</source>
        <translation>légua</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>milésimo de polegada</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>milha escandinava (Suécia e Noruega)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>elo</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>elo (Ramsden; de engenheiro)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>passo</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>palma (3 polegadas)</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>vara (rod)</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>corda (rope)</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>meada</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>calibre</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>polegada de levantamento</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>jarda de levantamento</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>vara de levantamento</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>peça de tecido (bolt)</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: metro quadrado</translatorcomment>
        <translation>metro quadrado</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: polegada quadrada</translatorcomment>
        <translation>polegada quadrada</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: pé quadrado</translatorcomment>
        <translation>pé quadrado</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: jarda quadrada</translatorcomment>
        <translation>jarda quadrada</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: acre</translatorcomment>
        <translation>acre</translation>
    </message>
    <message>
        <source>section</source>
        <translation>seção</translation>
    </message>
    <message>
        <source>township</source>
        <translation>township (municipalidade topográfica)</translation>
    </message>
    <message>
        <source>hectare</source>
        <translatorcomment>CLDR: hectare</translatorcomment>
        <translation>hectare</translation>
    </message>
    <message>
        <source>square kilometer</source>
        <translatorcomment>CLDR: quilômetro quadrado</translatorcomment>
        <translation>quilômetro quadrado</translation>
    </message>
    <message>
        <source>square mile</source>
        <translatorcomment>CLDR: milha quadrada</translatorcomment>
        <translation>milha quadrada</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translatorcomment>CLDR: centímetro quadrado</translatorcomment>
        <translation>centímetro quadrado</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translatorcomment>CLDR: milímetro quadrado</translatorcomment>
        <translation>milímetro quadrado</translation>
    </message>
    <message>
        <source>circular mil</source>
        <translation>mil circular</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>quilo-mil circular</translation>
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
        <translation>angstrom quadrado</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>peça de tecido quadrada</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>amarra quadrada</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>calibre quadrado</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>côvado quadrado</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translatorcomment>CLDR: decímetro quadrado</translatorcomment>
        <translation>decímetro quadrado</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translation>braça quadrada</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translatorcomment>CLDR: furlong quadrado</translatorcomment>
        <translation>furlong quadrado</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translatorcomment>CLDR: gigametro quadrado</translatorcomment>
        <translation>gigametro quadrado</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>mão (hand) quadrada</translation>
    </message>
    <message>
        <source>square nautical league</source>
        <translation>légua náutica quadrada</translation>
    </message>
    <message>
        <source>square league (statute)</source>
        <translation>légua quadrada (terrestre)</translation>
    </message>
    <message>
        <source>square light-year</source>
        <translatorcomment>CLDR: ano-luz quadrado</translatorcomment>
        <translation>ano-luz quadrado</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>elo quadrado</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>mícron quadrado</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>milha quadrada (náutica britânica)</translation>
    </message>
    <message>
        <source>square mile (statute)</source>
        <translation>milha quadrada (terrestre)</translation>
    </message>
    <message>
        <source>square millimicron</source>
        <translation>milimícron quadrado</translation>
    </message>
    <message>
        <source>square pace</source>
        <translation>passo quadrado</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>palma quadrada</translation>
    </message>
    <message>
        <source>square parsec</source>
        <translatorcomment>CLDR: parsec quadrado</translatorcomment>
        <translation>parsec quadrado</translation>
    </message>
    <message>
        <source>square perch</source>
        <translation>perca quadrada</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>corda quadrada</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>meada quadrada</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>palmo quadrado</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>pé de levantamento quadrado</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>cadeia quadrada</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>milésimo de polegada quadrado</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translation>unidade astronômica quadrada</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>acre de levantamento</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>jarda de levantamento quadrada</translation>
    </message>
    <message>
        <source>board</source>
        <translation>tábua (board)</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>corda de lenha (área)</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>micropolegada quadrada</translation>
    </message>
    <message>
        <source>square micrometer</source>
        <translatorcomment>CLDR: micrômetro quadrado</translatorcomment>
        <translation>micrômetro quadrado</translation>
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
        <translatorcomment>CLDR: colher de sopa</translatorcomment>
        <translation>colher de sopa</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>colher de sopa (Canadá)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>colher de sopa (EUA)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>onça líquida (imperial)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>onça líquida (EUA)</translation>
    </message>
    <message>
        <source>cup</source>
        <translation>xícara</translation>
    </message>
    <message>
        <source>cup (Canadian)</source>
        <translation>xícara (Canadá)</translation>
    </message>
    <message>
        <source>cup (U.S.)</source>
        <translation>xícara (EUA)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>quarto de galão (imperial)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>quarto de galão (EUA, líquidos)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>quarto de galão (EUA, secos)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>galão (imperial)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>galão (EUA, líquidos; vinho)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>galão (EUA, secos)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>galão de cerveja</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>alqueire (imperial)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>alqueire (EUA, raso)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>alqueire (EUA, cheio)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: centilitro</translatorcomment>
        <translation>centilitro</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: pé cúbico</translatorcomment>
        <translation>pé cúbico</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: polegada cúbica</translatorcomment>
        <translation>polegada cúbica</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: metro cúbico</translatorcomment>
        <translation>metro cúbico</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: jarda cúbica</translatorcomment>
        <translation>jarda cúbica</translation>
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
        <translation>quartilho (imperial)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>quartilho (EUA, líquidos)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>quartilho (EUA, secos)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: colher de chá</translatorcomment>
        <translation>colher de chá</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>colher de chá (Canadá)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>colher de chá (EUA)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>colher de chá (imperial)</translation>
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
        <translation>barril (EUA, secos)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>barril (EUA, líquidos)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>pé de tábua</translation>
    </message>
    <message>
        <source>decistere</source>
        <translation>decistere</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translatorcomment>CLDR: decalitro</translatorcomment>
        <translation>decalitro</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>decastere</translation>
    </message>
    <message>
        <source>dram</source>
        <translatorcomment>CLDR: dracma líquido</translatorcomment>
        <translation>dracma líquido</translation>
    </message>
    <message>
        <source>firkin</source>
        <translation>firkin</translation>
    </message>
    <message>
        <source>cubic angstrom</source>
        <translation>angstrom cúbico</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translation>unidade astronômica cúbica</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>peça de tecido cúbica</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>amarra cúbica</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>calibre cúbico</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>cadeia cúbica</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>côvado cúbico</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translation>braça cúbica</translation>
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
        <translation>mão (hand) cúbica</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translatorcomment>CLDR: hectometro cúbico</translatorcomment>
        <translation>hectometro cúbico</translation>
    </message>
    <message>
        <source>cubic nautical league</source>
        <translation>légua náutica cúbica</translation>
    </message>
    <message>
        <source>cubic league (statute)</source>
        <translation>légua cúbica (terrestre)</translation>
    </message>
    <message>
        <source>cubic light-year</source>
        <translatorcomment>CLDR: ano-luz cúbico</translatorcomment>
        <translation>ano-luz cúbico</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>elo cúbico</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>milésimo de polegada cúbico</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>milha cúbica (náutica britânica)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: milha cúbica</translatorcomment>
        <translation>milha cúbica</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translation>milha náutica cúbica</translation>
    </message>
    <message>
        <source>cubic mile (statute)</source>
        <translation>milha cúbica (terrestre)</translation>
    </message>
    <message>
        <source>cubic millimicron</source>
        <translation>milimícron cúbico</translation>
    </message>
    <message>
        <source>cubic pace</source>
        <translation>passo cúbico</translation>
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
        <translation>perca cúbica</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>corda cúbica</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>meada cúbica</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>palmo cúbico</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>pé de levantamento cúbico</translation>
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
        <translation>peck (EUA, secos)</translation>
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
        <translation>mínima (EUA)</translation>
    </message>
    <message>
        <source>kiloliter</source>
        <translatorcomment>CLDR: quilolitro</translatorcomment>
        <translation>quilolitro</translation>
    </message>
    <message>
        <source>hogshead (U.S.)</source>
        <translation>pipa (EUA)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>pipa (imperial)</translation>
    </message>
    <message>
        <source>gill (imperial)</source>
        <translation>gill (imperial)</translation>
    </message>
    <message>
        <source>gill (U.S.)</source>
        <translation>gill (EUA)</translation>
    </message>
    <message>
        <source>cubic survey yard</source>
        <translation>jarda de levantamento cúbica</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>pé de corda de lenha</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>corda de lenha</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>tonelada de arqueação</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: acre-pé</translatorcomment>
        <translation>acre-pé</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>acre-polegada</translation>
    </message>
    <message>
        <source>cubic microinch</source>
        <translation>micropolegada cúbica</translation>
    </message>
    <message>
        <source>cubic micrometer</source>
        <translatorcomment>CLDR: micrômetro cúbico</translatorcomment>
        <translation>micrômetro cúbico</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translatorcomment>CLDR: quilômetro cúbico</translatorcomment>
        <translation>quilômetro cúbico</translation>
    </message>
    <message>
        <source>kilogram</source>
        <translatorcomment>CLDR: quilograma</translatorcomment>
        <translation>quilograma</translation>
    </message>
    <message>
        <source>gram</source>
        <translatorcomment>CLDR: grama</translatorcomment>
        <translation>grama</translation>
    </message>
    <message>
        <source>yottagram</source>
        <translatorcomment>CLDR: iotagrama</translatorcomment>
        <translation>iotagrama</translation>
    </message>
    <message>
        <source>zettagram</source>
        <translatorcomment>CLDR: zetagrama</translatorcomment>
        <translation>zetagrama</translation>
    </message>
    <message>
        <source>exagram</source>
        <translatorcomment>CLDR: exagrama</translatorcomment>
        <translation>exagrama</translation>
    </message>
    <message>
        <source>petagram</source>
        <translatorcomment>CLDR: petagrama</translatorcomment>
        <translation>petagrama</translation>
    </message>
    <message>
        <source>teragram</source>
        <translatorcomment>CLDR: teragrama</translatorcomment>
        <translation>teragrama</translation>
    </message>
    <message>
        <source>gigagram</source>
        <translatorcomment>CLDR: gigagrama</translatorcomment>
        <translation>gigagrama</translation>
    </message>
    <message>
        <source>megagram</source>
        <translatorcomment>CLDR: megagrama</translatorcomment>
        <translation>megagrama</translation>
    </message>
    <message>
        <source>hectogram</source>
        <translatorcomment>CLDR: hectograma</translatorcomment>
        <translation>hectograma</translation>
    </message>
    <message>
        <source>decagram</source>
        <translatorcomment>CLDR: decagrama</translatorcomment>
        <translation>decagrama</translation>
    </message>
    <message>
        <source>decigram</source>
        <translatorcomment>CLDR: decigrama</translatorcomment>
        <translation>decigrama</translation>
    </message>
    <message>
        <source>centigram</source>
        <translatorcomment>CLDR: centigrama</translatorcomment>
        <translation>centigrama</translation>
    </message>
    <message>
        <source>milligram</source>
        <translatorcomment>CLDR: miligrama</translatorcomment>
        <translation>miligrama</translation>
    </message>
    <message>
        <source>microgram</source>
        <translatorcomment>CLDR: micrograma</translatorcomment>
        <translation>micrograma</translation>
    </message>
    <message>
        <source>nanogram</source>
        <translatorcomment>CLDR: nanograma</translatorcomment>
        <translation>nanograma</translation>
    </message>
    <message>
        <source>picogram</source>
        <translatorcomment>CLDR: picograma</translatorcomment>
        <translation>picograma</translation>
    </message>
    <message>
        <source>femtogram</source>
        <translatorcomment>CLDR: femtograma</translatorcomment>
        <translation>femtograma</translation>
    </message>
    <message>
        <source>attogram</source>
        <translatorcomment>CLDR: attograma</translatorcomment>
        <translation>attograma</translation>
    </message>
    <message>
        <source>zeptogram</source>
        <translatorcomment>CLDR: zeptograma</translatorcomment>
        <translation>zeptograma</translation>
    </message>
    <message>
        <source>yoctogram</source>
        <translatorcomment>CLDR: ioctograma</translatorcomment>
        <translation>ioctograma</translation>
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
        <translation>onça (avoirdupois)</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>onça (farmacêutica; troy)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: stone</translatorcomment>
        <translation>stone</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>tonelada curta</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>tonelada longa</translation>
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
        <translation>dracma (farmacêutica; troy)</translation>
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
        <translation>quintal longo (hundredweight)</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>quintal curto (hundredweight)</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: grão</translatorcomment>
        <translation>grão</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>grão de pérola</translation>
    </message>
    <message>
        <source>dalton</source>
        <translatorcomment>CLDR: dalton</translatorcomment>
        <translation>dalton</translation>
    </message>
    <message>
        <source>kilodalton</source>
        <translatorcomment>CLDR: quilodalton</translatorcomment>
        <translation>quilodalton</translation>
    </message>
    <message>
        <source>slug</source>
        <translation>slug</translation>
    </message>
    <message>
        <source>kilogram per meter</source>
        <translatorcomment>CLDR: quilograma por metro</translatorcomment>
        <translation>quilograma por metro</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: libra por pé</translatorcomment>
        <translation>libra por pé</translation>
    </message>
    <message>
        <source>mole</source>
        <translatorcomment>CLDR: mol</translatorcomment>
        <translation>mol</translation>
    </message>
    <message>
        <source>yottamole</source>
        <translatorcomment>CLDR: iotamol</translatorcomment>
        <translation>iotamol</translation>
    </message>
    <message>
        <source>zettamole</source>
        <translatorcomment>CLDR: zetamol</translatorcomment>
        <translation>zetamol</translation>
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
        <translatorcomment>CLDR: quilomol</translatorcomment>
        <translation>quilomol</translation>
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
        <translatorcomment>CLDR: ioctomol</translatorcomment>
        <translation>ioctomol</translation>
    </message>
    <message>
        <source>radian</source>
        <translatorcomment>CLDR: radiano</translatorcomment>
        <translation>radiano</translation>
    </message>
    <message>
        <source>degree</source>
        <translatorcomment>CLDR: grau</translatorcomment>
        <translation>grau</translation>
    </message>
    <message>
        <source>milliradian</source>
        <translatorcomment>CLDR: miliradiano</translatorcomment>
        <translation>miliradiano</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>grado centesimal</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>milésimo angular (OTAN)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>milésimo angular (Suécia)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>milésimo angular (URSS)</translation>
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
        <translation>milissegundo de arco</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>esterradiano</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: grama por metro quadrado</translatorcomment>
        <translation>grama por metro quadrado</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: grama por polegada quadrada</translatorcomment>
        <translation>grama por polegada quadrada</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translatorcomment>CLDR: nanograma por litro</translatorcomment>
        <translation>nanograma por litro</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translatorcomment>CLDR: nanograma por decilitro</translatorcomment>
        <translation>nanograma por decilitro</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translatorcomment>CLDR: nanograma por mililitro</translatorcomment>
        <translation>nanograma por mililitro</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translatorcomment>CLDR: nanograma por microlitro</translatorcomment>
        <translation>nanograma por microlitro</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: parte por milhão</translatorcomment>
        <translation>parte por milhão</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>parte por bilhão</translation>
    </message>
    <message>
        <source>ampere</source>
        <translatorcomment>CLDR: ampere</translatorcomment>
        <translation>ampere</translation>
    </message>
    <message>
        <source>yottaampere</source>
        <translatorcomment>CLDR: iotaampere</translatorcomment>
        <translation>iotaampere</translation>
    </message>
    <message>
        <source>zettaampere</source>
        <translatorcomment>CLDR: zetaampere</translatorcomment>
        <translation>zetaampere</translation>
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
        <translatorcomment>CLDR: quiloampere</translatorcomment>
        <translation>quiloampere</translation>
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
        <translatorcomment>CLDR: miliampere</translatorcomment>
        <translation>miliampere</translation>
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
        <translatorcomment>CLDR: ioctoampere</translatorcomment>
        <translation>ioctoampere</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>coulomb</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translatorcomment>CLDR: ampere–hora</translatorcomment>
        <translation>ampere–hora</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translatorcomment>CLDR: miliampere–hora</translatorcomment>
        <translation>miliampere–hora</translation>
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
        <translation>quilofarad</translation>
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
        <translation>milifarad</translation>
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
        <translation>quilopicofarad</translation>
    </message>
    <message>
        <source>baud</source>
        <translation>baud</translation>
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
        <translation>quilobaud</translation>
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
        <translation>megabaud</translation>
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
        <translatorcomment>CLDR: quilograma por metro cúbico</translatorcomment>
        <translation>quilograma por metro cúbico</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translatorcomment>CLDR: quilograma por litro</translatorcomment>
        <translation>quilograma por litro</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translatorcomment>CLDR: grama por litro</translatorcomment>
        <translation>grama por litro</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translatorcomment>CLDR: micrograma por mililitro</translatorcomment>
        <translation>micrograma por mililitro</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: miligrama por mililitro</translatorcomment>
        <translation>miligrama por mililitro</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: libra por galão</translatorcomment>
        <translation>libra por galão</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: onça por galão</translatorcomment>
        <translation>onça por galão</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: libra por pé cúbico</translatorcomment>
        <translation>libra por pé cúbico</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: libra por polegada cúbica</translatorcomment>
        <translation>libra por polegada cúbica</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: grama por centímetro cúbico</translatorcomment>
        <translation>grama por centímetro cúbico</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>newton segundo quadrado por milímetro à quarta</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: newton por metro cúbico</translatorcomment>
        <translation>newton por metro cúbico</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: quilonewton por metro cúbico</translatorcomment>
        <translation>quilonewton por metro cúbico</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>libra-força por pé cúbico</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>kip por polegada cúbica</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>kip por pé cúbico</translation>
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
        <translatorcomment>CLDR: quilocaloria</translatorcomment>
        <translation>quilocaloria</translation>
    </message>
    <message>
        <source>British thermal unit (thermochemical)</source>
        <translation>unidade térmica britânica (termoquímica)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>unidade térmica britânica (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>unidade térmica britânica (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>unidade térmica britânica (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>unidade térmica britânica (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>unidade térmica britânica (tabela internacional)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>unidade térmica britânica (média)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>unidade térmica britânica (39 °F)</translation>
    </message>
    <message>
        <source>kiloelectronvolt</source>
        <translatorcomment>CLDR: quiloelétron-volt</translatorcomment>
        <translation>quiloelétron-volt</translation>
    </message>
    <message>
        <source>megaelectronvolt</source>
        <translatorcomment>CLDR: megaelétron-volt</translatorcomment>
        <translation>megaelétron-volt</translation>
    </message>
    <message>
        <source>electronvolt</source>
        <translatorcomment>CLDR: elétron-volt</translatorcomment>
        <translation>elétron-volt</translation>
    </message>
    <message>
        <source>erg</source>
        <translation>erg</translation>
    </message>
    <message>
        <source>kilowatt hour</source>
        <translatorcomment>CLDR: quilowatt-hora</translatorcomment>
        <translation>quilowatt-hora</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translatorcomment>CLDR: quilowatt–minuto</translatorcomment>
        <translation>quilowatt–minuto</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translatorcomment>CLDR: quilowatt–segundo</translatorcomment>
        <translation>quilowatt–segundo</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>therm (EUA)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: newton-metro</translatorcomment>
        <translation>newton-metro</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translatorcomment>CLDR: decanewton-metro</translatorcomment>
        <translation>decanewton-metro</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translatorcomment>CLDR: quilonewton-metro</translatorcomment>
        <translation>quilonewton-metro</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translatorcomment>CLDR: meganewton-metro</translatorcomment>
        <translation>meganewton-metro</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>quilograma-força metro</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>quilograma-força pé</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>tonelada-força pé</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>tonelada-força metro</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>pé quilolibra</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>pé libra-força</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>caloria (20 °C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>caloria (termoquímica)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>caloria (15 °C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>caloria (média)</translation>
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
        <translatorcomment>CLDR: galão por segundo</translatorcomment>
        <translation>galão por segundo</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: galão por minuto</translatorcomment>
        <translation>galão por minuto</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: galão por hora</translatorcomment>
        <translation>galão por hora</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: galão por dia</translatorcomment>
        <translation>galão por dia</translation>
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
        <translatorcomment>CLDR: pé cúbico por hora</translatorcomment>
        <translation>pé cúbico por hora</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: pé cúbico por minuto</translatorcomment>
        <translation>pé cúbico por minuto</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: pé cúbico por segundo</translatorcomment>
        <translation>pé cúbico por segundo</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: polegada cúbica por minuto</translatorcomment>
        <translation>polegada cúbica por minuto</translation>
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
        <translation>galão americano por hora</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>galão americano por segundo</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>galão imperial por dia</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>galão imperial por hora</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>galão imperial por minuto</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>galão imperial por segundo</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>milhão de galões imperiais por dia</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: litro por dia</translatorcomment>
        <translation>litro por dia</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>milhão de litros por dia</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>galão americano por dia</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>milhão de galões americanos por dia</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: pé cúbico por dia</translatorcomment>
        <translation>pé cúbico por dia</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: metro cúbico por dia</translatorcomment>
        <translation>metro cúbico por dia</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: jarda cúbica por minuto</translatorcomment>
        <translation>jarda cúbica por minuto</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: acre-pé por dia</translatorcomment>
        <translation>acre-pé por dia</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: acre-pé por hora</translatorcomment>
        <translation>acre-pé por hora</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: acre-pé por minuto</translatorcomment>
        <translation>acre-pé por minuto</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>acre-polegada por hora</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>acre-polegada por minuto</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>pé de levantamento cúbico por segundo</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: quilograma por segundo</translatorcomment>
        <translation>quilograma por segundo</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: quilograma por minuto</translatorcomment>
        <translation>quilograma por minuto</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: quilograma por hora</translatorcomment>
        <translation>quilograma por hora</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: grama por segundo</translatorcomment>
        <translation>grama por segundo</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: grama por minuto</translatorcomment>
        <translation>grama por minuto</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: grama por hora</translatorcomment>
        <translation>grama por hora</translation>
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
        <translation>quartilho por curso</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>quarto de galão por curso</translation>
    </message>
    <message>
        <source>newton</source>
        <translatorcomment>CLDR: newton</translatorcomment>
        <translation>newton</translation>
    </message>
    <message>
        <source>yottanewton</source>
        <translatorcomment>CLDR: iotanewton</translatorcomment>
        <translation>iotanewton</translation>
    </message>
    <message>
        <source>zettanewton</source>
        <translatorcomment>CLDR: zetanewton</translatorcomment>
        <translation>zetanewton</translation>
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
        <translatorcomment>CLDR: quilonewton</translatorcomment>
        <translation>quilonewton</translation>
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
        <translatorcomment>CLDR: ioctonewton</translatorcomment>
        <translation>ioctonewton</translation>
    </message>
    <message>
        <source>kilopound</source>
        <translation>quilolibra</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>quilograma-força</translation>
    </message>
    <message>
        <source>pound force</source>
        <translatorcomment>CLDR: libra de força</translatorcomment>
        <translation>libra de força</translation>
    </message>
    <message>
        <source>kip</source>
        <translation>kip</translation>
    </message>
    <message>
        <source>ton force</source>
        <translation>tonelada-força</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>dina</translation>
    </message>
    <message>
        <source>lbforce</source>
        <translation>lbf (libra-força)</translation>
    </message>
    <message>
        <source>ounce force</source>
        <translation>onça-força</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: newton por metro</translatorcomment>
        <translation>newton por metro</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>quilolibra por pé</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>quilograma-força por metro</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>tonelada-força por metro</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>libra-força por pé</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: decanewton por metro</translatorcomment>
        <translation>decanewton por metro</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translatorcomment>CLDR: quilonewton por metro</translatorcomment>
        <translation>quilonewton por metro</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translatorcomment>CLDR: meganewton por metro</translatorcomment>
        <translation>meganewton por metro</translation>
    </message>
    <message>
        <source>kip per foot</source>
        <translation>kip por pé</translation>
    </message>
    <message>
        <source>kip per inch</source>
        <translation>kip por polegada</translation>
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
        <translation>ciclo por segundo</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: revolução por minuto</translatorcomment>
        <translation>revolução por minuto</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>lampejo por segundo</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>lampejo por minuto</translation>
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
        <translation>cavalo-vapor (métrico)</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>cavalo-vapor (elétrico europeu)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>horsepower (mecânico imperial)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>horsepower (elétrico imperial)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: quilocaloria por hora</translatorcomment>
        <translation>quilocaloria por hora</translation>
    </message>
    <message>
        <source>kilowatt</source>
        <translatorcomment>CLDR: quilowatt</translatorcomment>
        <translation>quilowatt</translation>
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
        <translatorcomment>CLDR: volt–ampere</translatorcomment>
        <translation>volt–ampere</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translatorcomment>CLDR: milivolt–ampere</translatorcomment>
        <translation>milivolt–ampere</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translatorcomment>CLDR: quilovolt–ampere</translatorcomment>
        <translation>quilovolt–ampere</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translatorcomment>CLDR: megavolt–ampere</translatorcomment>
        <translation>megavolt–ampere</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: miliwatt</translatorcomment>
        <translation>miliwatt</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>quilograma-força metro por segundo</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>pé libra-força por segundo</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: caloria por segundo</translatorcomment>
        <translation>caloria por segundo</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: quilocaloria por segundo</translatorcomment>
        <translation>quilocaloria por segundo</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>unidade térmica britânica (tabela internacional) por segundo</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>unidade térmica britânica (tabela internacional) por hora</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>milhão de unidades térmicas britânicas (tabela internacional) por hora</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>mil unidades térmicas britânicas (tabela internacional) por hora</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>tonelada de refrigeração</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: watt por metro cúbico</translatorcomment>
        <translation>watt por metro cúbico</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: watt por pé cúbico</translatorcomment>
        <translation>watt por pé cúbico</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>unidade térmica britânica por hora e pé cúbico</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: watt por quilograma</translatorcomment>
        <translation>watt por quilograma</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: watt por metro quadrado</translatorcomment>
        <translation>watt por metro quadrado</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: quilowatt por metro quadrado</translatorcomment>
        <translation>quilowatt por metro quadrado</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: quilowatt por pé quadrado</translatorcomment>
        <translation>quilowatt por pé quadrado</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: watt por pé quadrado</translatorcomment>
        <translation>watt por pé quadrado</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>unidade térmica britânica por hora e pé quadrado</translation>
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
        <translatorcomment>CLDR: polegada de mercúrio</translatorcomment>
        <translation>polegada de mercúrio</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>polegada de água</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translatorcomment>CLDR: quilobar</translatorcomment>
        <translation>quilobar</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: quilograma por centímetro quadrado</translatorcomment>
        <translation>quilograma por centímetro quadrado</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: quilopascal</translatorcomment>
        <translation>quilopascal</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: quilolibra por polegada quadrada</translatorcomment>
        <translation>quilolibra por polegada quadrada</translation>
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
        <translatorcomment>CLDR: milímetro de mercúrio</translatorcomment>
        <translation>milímetro de mercúrio</translation>
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
        <translation>libra por polegada quadrada (absoluta)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>libra por polegada quadrada (manométrica)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: libra por pé quadrado</translatorcomment>
        <translation>libra por pé quadrado</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: libra por polegada quadrada</translatorcomment>
        <translation>libra por polegada quadrada</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>atmosfera (padrão)</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>atmosfera (técnica)</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>torr</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translatorcomment>CLDR: newton por milímetro quadrado</translatorcomment>
        <translation>newton por milímetro quadrado</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: newton por metro quadrado</translatorcomment>
        <translation>newton por metro quadrado</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translatorcomment>CLDR: decanewton por milímetro quadrado</translatorcomment>
        <translation>decanewton por milímetro quadrado</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: decanewton por metro quadrado</translatorcomment>
        <translation>decanewton por metro quadrado</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: quilonewton por metro quadrado</translatorcomment>
        <translation>quilonewton por metro quadrado</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: meganewton por metro quadrado</translatorcomment>
        <translation>meganewton por metro quadrado</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translatorcomment>CLDR: quilolibra por pé quadrado</translatorcomment>
        <translation>quilolibra por pé quadrado</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>quilograma-força por milímetro quadrado</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>quilograma-força por centímetro quadrado</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>quilograma-força por metro quadrado</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>tonelada-força por centímetro quadrado</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>tonelada-força por metro quadrado</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>tonelada-força por pé quadrado</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translation>libra-força por polegada quadrada</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>pé de água</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>kip por polegada quadrada</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>kip por pé quadrado</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>libra-força por pé quadrado</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: gigapascal</translatorcomment>
        <translation>gigapascal</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>dina por centímetro quadrado</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translatorcomment>CLDR: newton por micrômetro quadrado</translatorcomment>
        <translation>newton por micrômetro quadrado</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: metro por newton</translatorcomment>
        <translation>metro por newton</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translatorcomment>CLDR: metro por quilonewton</translatorcomment>
        <translation>metro por quilonewton</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>pé por kip</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: metro quadrado por newton</translatorcomment>
        <translation>metro quadrado por newton</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: metro quadrado por quilonewton</translatorcomment>
        <translation>metro quadrado por quilonewton</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>pé quadrado por kip</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: metro cúbico por newton</translatorcomment>
        <translation>metro cúbico por newton</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: metro cúbico por quilonewton</translatorcomment>
        <translation>metro cúbico por quilonewton</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>pé cúbico por kip</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: newton-metro por metro</translatorcomment>
        <translation>newton-metro por metro</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: decanewton-metro por metro</translatorcomment>
        <translation>decanewton-metro por metro</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: quilonewton-metro por metro</translatorcomment>
        <translation>quilonewton-metro por metro</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: meganewton-metro por metro</translatorcomment>
        <translation>meganewton-metro por metro</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>kip-pé por pé</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>quilograma-força metro por metro</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>tonelada-força metro por metro</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translatorcomment>CLDR: pé-libra por pé</translatorcomment>
        <translation>pé-libra por pé</translation>
    </message>
    <message>
        <source>ohm</source>
        <translatorcomment>CLDR: ohm</translatorcomment>
        <translation>ohm</translation>
    </message>
    <message>
        <source>kilohm</source>
        <translatorcomment>CLDR: quiloohm</translatorcomment>
        <translation>quiloohm</translation>
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
        <translatorcomment>CLDR: polegada por segundo</translatorcomment>
        <translation>polegada por segundo</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: pé por segundo</translatorcomment>
        <translation>pé por segundo</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: polegada por minuto</translatorcomment>
        <translation>polegada por minuto</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: pé por minuto</translatorcomment>
        <translation>pé por minuto</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: quilômetro por hora</translatorcomment>
        <translation>quilômetro por hora</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: milha por hora</translatorcomment>
        <translation>milha por hora</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: centímetro por minuto</translatorcomment>
        <translation>centímetro por minuto</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: pé por hora</translatorcomment>
        <translation>pé por hora</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: polegada por hora</translatorcomment>
        <translation>polegada por hora</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: quilômetro por minuto</translatorcomment>
        <translation>quilômetro por minuto</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: quilômetro por segundo</translatorcomment>
        <translation>quilômetro por segundo</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: nó</translatorcomment>
        <translation>nó</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>nó (Reino Unido)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: metro por hora</translatorcomment>
        <translation>metro por hora</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: milha por minuto</translatorcomment>
        <translation>milha por minuto</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: milha por segundo</translatorcomment>
        <translation>milha por segundo</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>milha de levantamento por hora</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>pé de levantamento por segundo</translation>
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
        <translatorcomment>CLDR: zetabyte</translatorcomment>
        <translation>zetabyte</translation>
    </message>
    <message>
        <source>zebibyte</source>
        <translatorcomment>CLDR: zebibyte</translatorcomment>
        <translation>zebibyte</translation>
    </message>
    <message>
        <source>yottabyte</source>
        <translatorcomment>CLDR: iotabyte</translatorcomment>
        <translation>iotabyte</translation>
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
        <translatorcomment>CLDR: grau Celsius</translatorcomment>
        <translation>grau Celsius</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: grau Fahrenheit</translatorcomment>
        <translation>grau Fahrenheit</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>grau Rankine</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: grau Celsius por minuto</translatorcomment>
        <translation>grau Celsius por minuto</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: grau Fahrenheit por minuto</translatorcomment>
        <translation>grau Fahrenheit por minuto</translation>
    </message>
    <message>
        <source>second</source>
        <translatorcomment>CLDR: segundo</translatorcomment>
        <translation>segundo</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translatorcomment>CLDR: iotasegundo</translatorcomment>
        <translation>iotasegundo</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translatorcomment>CLDR: zetasegundo</translatorcomment>
        <translation>zetasegundo</translation>
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
        <translatorcomment>CLDR: quilosegundo</translatorcomment>
        <translation>quilosegundo</translation>
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
        <translatorcomment>CLDR: milissegundo</translatorcomment>
        <translation>milissegundo</translation>
    </message>
    <message>
        <source>microsecond</source>
        <translatorcomment>CLDR: microssegundo</translatorcomment>
        <translation>microssegundo</translation>
    </message>
    <message>
        <source>nanosecond</source>
        <translatorcomment>CLDR: nanossegundo</translatorcomment>
        <translation>nanossegundo</translation>
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
        <translatorcomment>CLDR: ioctosegundo</translatorcomment>
        <translation>ioctosegundo</translation>
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
        <translatorcomment>CLDR: dia</translatorcomment>
        <translation>dia</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: semana</translatorcomment>
        <translation>semana</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>quinzena</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: mês</translatorcomment>
        <translation>mês</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>mês (cavo, 29 dias)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>mês (cheio, 30 dias)</translation>
    </message>
    <message>
        <source>year</source>
        <translatorcomment>CLDR: ano</translatorcomment>
        <translation>ano</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>ano (gregoriano)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>ano (juliano)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>ano sideral</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>ano trópico</translation>
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
        <translatorcomment>CLDR: século</translatorcomment>
        <translation>século</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>século (juliano)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>milênio</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>milênio (gregoriano)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>milênio (juliano)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>newton metro (torque)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>newton centímetro (torque)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>newton decâmetro (torque)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>pé libra (torque)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>polegada libra (torque)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>metro quilograma (torque)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>centímetro quilograma (torque)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>polegada onça (torque)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>grama centímetro (torque)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>decanewton metro (torque)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>quilonewton metro (torque)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>meganewton metro (torque)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>kip pé (torque)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>quilograma-força metro (torque)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>tonelada-força metro (torque)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>libra-força pé (torque)</translation>
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
        <translatorcomment>CLDR: pascal–segundo</translatorcomment>
        <translation>pascal–segundo</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>libra massa por pé e segundo</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>libra massa por pé e hora</translation>
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
        <translatorcomment>CLDR: metro por segundo ao quadrado</translatorcomment>
        <translation>metro por segundo ao quadrado</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>pé por segundo ao quadrado</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>pé de levantamento por segundo ao quadrado</translation>
    </message>
    <message>
        <source>volt</source>
        <translatorcomment>CLDR: volt</translatorcomment>
        <translation>volt</translation>
    </message>
    <message>
        <source>kilovolt</source>
        <translatorcomment>CLDR: quilovolt</translatorcomment>
        <translation>quilovolt</translation>
    </message>
    <message>
        <source>microvolt</source>
        <translatorcomment>CLDR: microvolt</translatorcomment>
        <translation>microvolt</translation>
    </message>
    <message>
        <source>millivolt</source>
        <translatorcomment>CLDR: milivolt</translatorcomment>
        <translation>milivolt</translation>
    </message>
    <message>
        <source>volt (electrical potential)</source>
        <translation>volt (potencial elétrico)</translation>
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
        <translation>lúmen por esterradiano</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>vela (candlepower)</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>lux (iluminância)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>pé-vela</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translatorcomment>CLDR: lúmen–segundo</translatorcomment>
        <translation>lúmen–segundo</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>talbot</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>potência luminosa</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: lúmen</translatorcomment>
        <translation>lúmen</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: candela por metro quadrado</translatorcomment>
        <translation>candela por metro quadrado</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>pé-lambert</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: candela por pé quadrado</translatorcomment>
        <translation>candela por pé quadrado</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>lux (emitância)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: lúmen por watt</translatorcomment>
        <translation>lúmen por watt</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: pascal por metro</translatorcomment>
        <translation>pascal por metro</translation>
    </message>
    <message>
        <source>inch of water per 100foot</source>
        <translation>polegada de água por 100 pés</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>pé de água por 100 pés</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>polegada de mercúrio por 100 pés</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>milímetro de mercúrio por 100 pés</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: newton-metro por grau</translatorcomment>
        <translation>newton-metro por grau</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>kip pé por grau</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: quilonewton-metro por grau</translatorcomment>
        <translation>quilonewton-metro por grau</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>newton metro por grau e metro</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>kip pé por grau e pé</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>quilonewton metro por grau e metro</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>watt por metro quadrado e kelvin</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>unidade térmica britânica por hora, pé quadrado e grau Fahrenheit</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>metro cúbico por segundo e metro quadrado</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>pé cúbico por minuto e pé quadrado</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>litro por segundo e metro quadrado</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>metro cúbico por segundo e metro cúbico</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>pé cúbico por minuto e pé cúbico</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>litro por segundo e metro cúbico</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>metro cúbico por segundo e watt</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>pé cúbico por minuto e tonelada de refrigeração</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>litro por segundo e quilowatt</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: metro quadrado por watt</translatorcomment>
        <translation>metro quadrado por watt</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>pé quadrado por tonelada de refrigeração</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: metro quadrado por quilowatt</translatorcomment>
        <translation>metro quadrado por quilowatt</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>pé quadrado por mil unidades térmicas britânicas por hora</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>segundo quadrado por metro e quilograma</translation>
    </message>
    <message>
        <source>inverse kilonewton</source>
        <translation>quilonewton inverso</translation>
    </message>
    <message>
        <source>inverse kip</source>
        <translation>kip inverso</translation>
    </message>
    <message>
        <source>inverse fahrenheit</source>
        <translation>grau Fahrenheit inverso</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>grau Celsius inverso</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>micrômetro por metro e grau Celsius</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>micropolegada por polegada e grau Fahrenheit</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>oersted</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: ampere por metro</translatorcomment>
        <translation>ampere por metro</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>watt por metro e kelvin</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>watt por metro e grau Celsius</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>newton por segundo e grau Celsius</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>dina por segundo e grau Celsius</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>BTU polegada por pé quadrado, hora e grau Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>BTU por polegada, segundo e grau Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>BTU por pé, segundo e grau Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>BTU por pé, hora e grau Fahrenheit</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>joule por grama e grau Celsius</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>joule por quilograma e grau Celsius</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>milímetro quadrado por segundo quadrado e grau Celsius</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>erg por grama e grau Celsius</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>micrômetro quadrado por segundo quadrado e grau Celsius</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>BTU por libra e grau Fahrenheit</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>nanograma por pascal, segundo e metro quadrado</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>grão por pé quadrado, hora e polegada de mercúrio</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translatorcomment>CLDR: ohm–metro</translatorcomment>
        <translation>ohm–metro</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translatorcomment>CLDR: joule por grama</translatorcomment>
        <translation>joule por grama</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translatorcomment>CLDR: joule por quilograma</translatorcomment>
        <translation>joule por quilograma</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>BTU por libra</translation>
    </message>
</context>
</TS>
