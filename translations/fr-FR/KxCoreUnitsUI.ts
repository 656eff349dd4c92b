<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>NumberFormat</name>
    <message>
        <source>Exponential</source>
        <translation>Exponentiel</translation>
    </message>
    <message>
        <source>exponential</source>
        <translation>exponentiel</translation>
    </message>
    <message>
        <source>Fixed Point</source>
        <translation>Virgule fixe</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>general</source>
        <translation>général</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
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
        <translation>Sans dimension</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Surface</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masse</translation>
    </message>
    <message>
        <source>Linear Weight</source>
        <translation>Masse linéique</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>Quantité de matière</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>Angle solide</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>Masse surfacique</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Concentration</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>Parties par</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>Courant électrique</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>Charge électrique</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>Capacité électrique</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Débit binaire</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Masse volumique</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>Poids volumique</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Énergie</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>Débit volumique</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>Débit massique</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>Débit par course</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Force</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>Force linéique</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>Inductance</translation>
    </message>
    <message>
        <source>Magnetic Flux Density</source>
        <translation>Densité de flux magnétique</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>Flux magnétique</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>Puissance par unité de volume</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>Puissance par unité de masse</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>Puissance par unité de surface</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pression</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>Échelle de force</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>Échelle de force linéique</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>Échelle de force surfacique</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>Moment linéique</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>Résistance électrique</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>Conductance électrique</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>Stockage informatique</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>Vitesse de variation de température</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>Couple</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>Viscosité dynamique</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>Viscosité cinématique</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Accélération</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tension électrique</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>Potentiel électrique</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>Intensité lumineuse</translation>
    </message>
    <message>
        <source>Illuminance</source>
        <translation>Éclairement lumineux</translation>
    </message>
    <message>
        <source>Luminous Energy</source>
        <translation>Énergie lumineuse</translation>
    </message>
    <message>
        <source>Luminous Flux</source>
        <translation>Flux lumineux</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminance</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>Émittance lumineuse</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>Efficacité lumineuse</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Perte de charge par frottement</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>Raideur en rotation ponctuelle</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>Raideur en rotation linéique</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>Coefficient de transfert thermique</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>Débit d&apos;air surfacique</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>Débit d&apos;air par volume</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>Débit d&apos;air par puissance</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>Surface par puissance</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>Échelle de moment</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>Coefficient de dilatation thermique</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>Intensité du champ magnétique</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>Conductivité thermique</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>Capacité thermique massique</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>Perméabilité</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>Résistivité électrique</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>Chaleur latente de vaporisation</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>sans unité</translation>
    </message>
    <message>
        <source>meter</source>
        <translatorcomment>CLDR: mètre</translatorcomment>
        <translation>mètre</translation>
    </message>
    <message>
        <source>yottameter</source>
        <translatorcomment>CLDR: yottamètre</translatorcomment>
        <translation>yottamètre</translation>
    </message>
    <message>
        <source>zettameter</source>
        <translatorcomment>CLDR: zettamètre</translatorcomment>
        <translation>zettamètre</translation>
    </message>
    <message>
        <source>exameter</source>
        <translatorcomment>CLDR: examètre</translatorcomment>
        <translation>examètre</translation>
    </message>
    <message>
        <source>petameter</source>
        <translatorcomment>CLDR: pétamètre</translatorcomment>
        <translation>pétamètre</translation>
    </message>
    <message>
        <source>terameter</source>
        <translatorcomment>CLDR: téramètre</translatorcomment>
        <translation>téramètre</translation>
    </message>
    <message>
        <source>gigameter</source>
        <translatorcomment>CLDR: gigamètre</translatorcomment>
        <translation>gigamètre</translation>
    </message>
    <message>
        <source>megameter</source>
        <translatorcomment>CLDR: mégamètre</translatorcomment>
        <translation>mégamètre</translation>
    </message>
    <message>
        <source>kilometer</source>
        <translatorcomment>CLDR: kilomètre</translatorcomment>
        <translation>kilomètre</translation>
    </message>
    <message>
        <source>hectometer</source>
        <translatorcomment>CLDR: hectomètre</translatorcomment>
        <translation>hectomètre</translation>
    </message>
    <message>
        <source>decameter</source>
        <translatorcomment>CLDR: décamètre</translatorcomment>
        <translation>décamètre</translation>
    </message>
    <message>
        <source>decimeter</source>
        <translatorcomment>CLDR: décimètre</translatorcomment>
        <translation>décimètre</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translatorcomment>CLDR: centimètre</translatorcomment>
        <translation>centimètre</translation>
    </message>
    <message>
        <source>millimeter</source>
        <translatorcomment>CLDR: millimètre</translatorcomment>
        <translation>millimètre</translation>
    </message>
    <message>
        <source>micrometer</source>
        <translatorcomment>CLDR: micromètre</translatorcomment>
        <translation>micromètre</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translatorcomment>CLDR: nanomètre</translatorcomment>
        <translation>nanomètre</translation>
    </message>
    <message>
        <source>picometer</source>
        <translatorcomment>CLDR: picomètre</translatorcomment>
        <translation>picomètre</translation>
    </message>
    <message>
        <source>femtometer</source>
        <translatorcomment>CLDR: femtomètre</translatorcomment>
        <translation>femtomètre</translation>
    </message>
    <message>
        <source>attometer</source>
        <translatorcomment>CLDR: attomètre</translatorcomment>
        <translation>attomètre</translation>
    </message>
    <message>
        <source>zeptometer</source>
        <translatorcomment>CLDR: zeptomètre</translatorcomment>
        <translation>zeptomètre</translation>
    </message>
    <message>
        <source>yoctometer</source>
        <translatorcomment>CLDR: yoctomètre</translatorcomment>
        <translation>yoctomètre</translation>
    </message>
    <message>
        <source>inch</source>
        <translatorcomment>CLDR: pouce</translatorcomment>
        <translation>pouce</translation>
    </message>
    <message>
        <source>foot</source>
        <translatorcomment>CLDR: pied</translatorcomment>
        <translation>pied</translation>
    </message>
    <message>
        <source>foot (Benoit)</source>
        <translation>pied (Benoit)</translation>
    </message>
    <message>
        <source>foot (Clarke&apos;s; Cape)</source>
        <translation>pied (Clarke ; Le Cap)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>pied (indien)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>pied (Sears)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>pied (arpentage US)</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: yard</translatorcomment>
        <translation>yard</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>chaîne</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>chaîne (Ramsden ; ingénieur)</translation>
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
        <translation>mille géographique</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>mile (arpentage US)</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: mille marin</translatorcomment>
        <translation>mille marin</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>mile terrestre</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>mille marin (Amirauté)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>micron</translation>
    </message>
    <message>
        <source>microinch</source>
        <translatorcomment>CLDR: micropouce</translatorcomment>
        <translation>micropouce</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>ångström</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: unité astronomique</translatorcomment>
        <translation>unité astronomique</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>encablure</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>coudée</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: brasse</translatorcomment>
        <translation>brasse</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>main</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: année-lumière</translatorcomment>
        <translation>année-lumière</translation>
    </message>
    <message>
        <source>span</source>
        <translation>empan</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>empan (tissu)</translation>
    </message>
    <message>
        <source>parsec</source>
        <translatorcomment>CLDR: parsec</translatorcomment>
        <translation>parsec</translation>
    </message>
    <message>
        <source>nautical league</source>
        <translation>lieue marine</translation>
    </message>
    <message>
        <source>league</source>
        <translation>lieue</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>mil</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>mil (Suède et Norvège)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>chaînon</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>chaînon (Ramsden ; ingénieur)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>pas</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>palme</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>perche</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>rope</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>écheveau</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>calibre</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>pouce d&apos;arpentage</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>yard d&apos;arpentage</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>perche d&apos;arpentage</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>bolt</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: mètre carré</translatorcomment>
        <translation>mètre carré</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: pouce carré</translatorcomment>
        <translation>pouce carré</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: pied carré</translatorcomment>
        <translation>pied carré</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: yard carré</translatorcomment>
        <translation>yard carré</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: acre anglo-saxonne</translatorcomment>
        <translation>acre anglo-saxonne</translation>
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
        <translatorcomment>CLDR: kilomètre carré</translatorcomment>
        <translation>kilomètre carré</translation>
    </message>
    <message>
        <source>square mile</source>
        <translatorcomment>CLDR: mille carré</translatorcomment>
        <translation>mille carré</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translatorcomment>CLDR: centimètre carré</translatorcomment>
        <translation>centimètre carré</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translatorcomment>CLDR: millimètre carré</translatorcomment>
        <translation>millimètre carré</translation>
    </message>
    <message>
        <source>circular mil</source>
        <translation>mil circulaire</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>kilo-mil circulaire</translation>
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
        <translation>ångström carré</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>bolt carré</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>encablure carrée</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>calibre carré</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>coudée carrée</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translatorcomment>CLDR: décimètre carré</translatorcomment>
        <translation>décimètre carré</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translation>brasse carrée</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translatorcomment>CLDR: furlong carré</translatorcomment>
        <translation>furlong carré</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translatorcomment>CLDR: gigamètre carré</translatorcomment>
        <translation>gigamètre carré</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>main carrée</translation>
    </message>
    <message>
        <source>square nautical league</source>
        <translation>lieue marine carrée</translation>
    </message>
    <message>
        <source>square league (statute)</source>
        <translation>lieue carrée (terrestre)</translation>
    </message>
    <message>
        <source>square light-year</source>
        <translation>année-lumière carrée</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>chaînon carré</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>micron carré</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>mille marin carré (R.-U.)</translation>
    </message>
    <message>
        <source>square mile (statute)</source>
        <translation>mile carré (terrestre)</translation>
    </message>
    <message>
        <source>square millimicron</source>
        <translation>millimicron carré</translation>
    </message>
    <message>
        <source>square pace</source>
        <translation>pas carré</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>palme carrée</translation>
    </message>
    <message>
        <source>square parsec</source>
        <translatorcomment>CLDR: parsec carré</translatorcomment>
        <translation>parsec carré</translation>
    </message>
    <message>
        <source>square perch</source>
        <translation>perche carrée</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>rope carré</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>écheveau carré</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>empan carré</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>pied carré d&apos;arpentage</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>chaîne carrée</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>mil carré</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translation>unité astronomique carrée</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>acre d&apos;arpentage</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>yard carré d&apos;arpentage</translation>
    </message>
    <message>
        <source>board</source>
        <translation>board</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>corde (surface)</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>micropouce carré</translation>
    </message>
    <message>
        <source>square micrometer</source>
        <translatorcomment>CLDR: micromètre carré</translatorcomment>
        <translation>micromètre carré</translation>
    </message>
    <message>
        <source>liter</source>
        <translatorcomment>CLDR: litre</translatorcomment>
        <translation>litre</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translatorcomment>CLDR: centimètre cube</translatorcomment>
        <translation>centimètre cube</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translatorcomment>CLDR: cuillère à soupe</translatorcomment>
        <translation>cuillère à soupe</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>cuillère à soupe (canadienne)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>cuillère à soupe (US)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>once liquide (impériale)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>once liquide (US)</translation>
    </message>
    <message>
        <source>cup</source>
        <translation>tasse</translation>
    </message>
    <message>
        <source>cup (Canadian)</source>
        <translation>tasse (canadienne)</translation>
    </message>
    <message>
        <source>cup (U.S.)</source>
        <translation>tasse (US)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>quart (impérial)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>quart (liquide US)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>quart (sec US)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>gallon (impérial)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>gallon (liquide US ; vin)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>gallon (sec US)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>gallon à bière</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>boisseau (impérial)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>boisseau (sec US, ras)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>boisseau (sec US, comble)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: centilitre</translatorcomment>
        <translation>centilitre</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: pied cube</translatorcomment>
        <translation>pied cube</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: pouce cube</translatorcomment>
        <translation>pouce cube</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: mètre cube</translatorcomment>
        <translation>mètre cube</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: yard cube</translatorcomment>
        <translation>yard cube</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>drachme liquide</translation>
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
        <translation>pinte (impériale)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>pinte (liquide US)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>pinte (sèche US)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: cuillère à café</translatorcomment>
        <translation>cuillère à café</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>cuillère à café (canadienne)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>cuillère à café (US)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>cuillère à café (impériale)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translatorcomment>CLDR: millimètre cube</translatorcomment>
        <translation>millimètre cube</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>baril (impérial)</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>baril (pétrole)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>baril (sec US)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>baril (liquide US)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>pied-planche</translation>
    </message>
    <message>
        <source>decistere</source>
        <translation>décistère</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translatorcomment>CLDR: décalitre</translatorcomment>
        <translation>décalitre</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>décastère</translation>
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
        <translation>ångström cube</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translatorcomment>CLDR: unité astronomique cube</translatorcomment>
        <translation>unité astronomique cube</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>bolt cube</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>encablure cube</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>calibre cube</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>chaîne cube</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>coudée cube</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translatorcomment>CLDR: brasse cube</translatorcomment>
        <translation>brasse cube</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translatorcomment>CLDR: furlong cube</translatorcomment>
        <translation>furlong cube</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translatorcomment>CLDR: gigamètre cube</translatorcomment>
        <translation>gigamètre cube</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>main cube</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translatorcomment>CLDR: hectomètre cube</translatorcomment>
        <translation>hectomètre cube</translation>
    </message>
    <message>
        <source>cubic nautical league</source>
        <translation>lieue marine cube</translation>
    </message>
    <message>
        <source>cubic league (statute)</source>
        <translation>lieue cube (terrestre)</translation>
    </message>
    <message>
        <source>cubic light-year</source>
        <translatorcomment>CLDR: année-lumière cube</translatorcomment>
        <translation>année-lumière cube</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>chaînon cube</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>mil cube</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>mille marin cube (R.-U.)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: mille cube</translatorcomment>
        <translation>mille cube</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translatorcomment>CLDR: mille marin cube</translatorcomment>
        <translation>mille marin cube</translation>
    </message>
    <message>
        <source>cubic mile (statute)</source>
        <translation>mile cube (terrestre)</translation>
    </message>
    <message>
        <source>cubic millimicron</source>
        <translation>millimicron cube</translation>
    </message>
    <message>
        <source>cubic pace</source>
        <translation>pas cube</translation>
    </message>
    <message>
        <source>cubic palm</source>
        <translation>palme cube</translation>
    </message>
    <message>
        <source>cubic parsec</source>
        <translatorcomment>CLDR: parsec cube</translatorcomment>
        <translation>parsec cube</translation>
    </message>
    <message>
        <source>cubic perch</source>
        <translation>perche cube</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>rope cube</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>écheveau cube</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>empan cube</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>pied cube d&apos;arpentage</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translatorcomment>CLDR: décimètre cube</translatorcomment>
        <translation>décimètre cube</translation>
    </message>
    <message>
        <source>tun</source>
        <translation>tonneau</translation>
    </message>
    <message>
        <source>peck</source>
        <translation>peck</translation>
    </message>
    <message>
        <source>peck (U.S. dry)</source>
        <translation>peck (sec US)</translation>
    </message>
    <message>
        <source>peck (imperial)</source>
        <translation>peck (impérial)</translation>
    </message>
    <message>
        <source>minim (imperial)</source>
        <translation>minime (impérial)</translation>
    </message>
    <message>
        <source>minim (U.S.)</source>
        <translation>minime (US)</translation>
    </message>
    <message>
        <source>kiloliter</source>
        <translatorcomment>CLDR: kilolitre</translatorcomment>
        <translation>kilolitre</translation>
    </message>
    <message>
        <source>hogshead (U.S.)</source>
        <translation>barrique (US)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>barrique (impériale)</translation>
    </message>
    <message>
        <source>gill (imperial)</source>
        <translation>gill (impérial)</translation>
    </message>
    <message>
        <source>gill (U.S.)</source>
        <translation>gill (US)</translation>
    </message>
    <message>
        <source>cubic survey yard</source>
        <translation>yard cube d&apos;arpentage</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>pied de corde</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>corde (bois de chauffage)</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>tonneau de jauge</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: acre-pied</translatorcomment>
        <translation>acre-pied</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>acre-pouce</translation>
    </message>
    <message>
        <source>cubic microinch</source>
        <translation>micropouce cube</translation>
    </message>
    <message>
        <source>cubic micrometer</source>
        <translatorcomment>CLDR: micromètre cube</translatorcomment>
        <translation>micromètre cube</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translatorcomment>CLDR: kilomètre cube</translatorcomment>
        <translation>kilomètre cube</translation>
    </message>
    <message>
        <source>kilogram</source>
        <translatorcomment>CLDR: kilogramme</translatorcomment>
        <translation>kilogramme</translation>
    </message>
    <message>
        <source>gram</source>
        <translatorcomment>CLDR: gramme</translatorcomment>
        <translation>gramme</translation>
    </message>
    <message>
        <source>yottagram</source>
        <translatorcomment>CLDR: yottagramme</translatorcomment>
        <translation>yottagramme</translation>
    </message>
    <message>
        <source>zettagram</source>
        <translatorcomment>CLDR: zettagramme</translatorcomment>
        <translation>zettagramme</translation>
    </message>
    <message>
        <source>exagram</source>
        <translatorcomment>CLDR: exagramme</translatorcomment>
        <translation>exagramme</translation>
    </message>
    <message>
        <source>petagram</source>
        <translatorcomment>CLDR: pétagramme</translatorcomment>
        <translation>pétagramme</translation>
    </message>
    <message>
        <source>teragram</source>
        <translatorcomment>CLDR: téragramme</translatorcomment>
        <translation>téragramme</translation>
    </message>
    <message>
        <source>gigagram</source>
        <translatorcomment>CLDR: gigagramme</translatorcomment>
        <translation>gigagramme</translation>
    </message>
    <message>
        <source>megagram</source>
        <translatorcomment>CLDR: mégagramme</translatorcomment>
        <translation>mégagramme</translation>
    </message>
    <message>
        <source>hectogram</source>
        <translatorcomment>CLDR: hectogramme</translatorcomment>
        <translation>hectogramme</translation>
    </message>
    <message>
        <source>decagram</source>
        <translatorcomment>CLDR: décagramme</translatorcomment>
        <translation>décagramme</translation>
    </message>
    <message>
        <source>decigram</source>
        <translatorcomment>CLDR: décigramme</translatorcomment>
        <translation>décigramme</translation>
    </message>
    <message>
        <source>centigram</source>
        <translatorcomment>CLDR: centigramme</translatorcomment>
        <translation>centigramme</translation>
    </message>
    <message>
        <source>milligram</source>
        <translatorcomment>CLDR: milligramme</translatorcomment>
        <translation>milligramme</translation>
    </message>
    <message>
        <source>microgram</source>
        <translatorcomment>CLDR: microgramme</translatorcomment>
        <translation>microgramme</translation>
    </message>
    <message>
        <source>nanogram</source>
        <translatorcomment>CLDR: nanogramme</translatorcomment>
        <translation>nanogramme</translation>
    </message>
    <message>
        <source>picogram</source>
        <translatorcomment>CLDR: picogramme</translatorcomment>
        <translation>picogramme</translation>
    </message>
    <message>
        <source>femtogram</source>
        <translatorcomment>CLDR: femtogramme</translatorcomment>
        <translation>femtogramme</translation>
    </message>
    <message>
        <source>attogram</source>
        <translatorcomment>CLDR: attogramme</translatorcomment>
        <translation>attogramme</translation>
    </message>
    <message>
        <source>zeptogram</source>
        <translatorcomment>CLDR: zeptogramme</translatorcomment>
        <translation>zeptogramme</translation>
    </message>
    <message>
        <source>yoctogram</source>
        <translatorcomment>CLDR: yoctogramme</translatorcomment>
        <translation>yoctogramme</translation>
    </message>
    <message>
        <source>pound (meter)</source>
        <translation>livre (mètre)</translation>
    </message>
    <message>
        <source>pound</source>
        <translatorcomment>CLDR: livre</translatorcomment>
        <translation>livre</translation>
    </message>
    <message>
        <source>pound (troy)</source>
        <translation>livre (troy)</translation>
    </message>
    <message>
        <source>ounce (avoirdupois)</source>
        <translation>once (avoirdupois)</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>once (apothicaire ; troy)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: stone</translatorcomment>
        <translation>stone</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>tonne courte</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>tonne longue</translation>
    </message>
    <message>
        <source>carat</source>
        <translatorcomment>CLDR: carat</translatorcomment>
        <translation>carat</translation>
    </message>
    <message>
        <source>carat (metric)</source>
        <translation>carat (métrique)</translation>
    </message>
    <message>
        <source>dram (avoirdupois)</source>
        <translation>drachme (avoirdupois)</translation>
    </message>
    <message>
        <source>dram (apothecary; troy)</source>
        <translation>drachme (apothicaire ; troy)</translation>
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
        <translation>quintal long</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>quintal court</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: grain</translatorcomment>
        <translation>grain</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>grain de perle</translation>
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
        <translatorcomment>CLDR: kilogramme par mètre</translatorcomment>
        <translation>kilogramme par mètre</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: livre par pied</translatorcomment>
        <translation>livre par pied</translation>
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
        <translatorcomment>CLDR: pétamole</translatorcomment>
        <translation>pétamole</translation>
    </message>
    <message>
        <source>teramole</source>
        <translatorcomment>CLDR: téramole</translatorcomment>
        <translation>téramole</translation>
    </message>
    <message>
        <source>gigamole</source>
        <translatorcomment>CLDR: gigamole</translatorcomment>
        <translation>gigamole</translation>
    </message>
    <message>
        <source>megamole</source>
        <translatorcomment>CLDR: mégamole</translatorcomment>
        <translation>mégamole</translation>
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
        <translatorcomment>CLDR: décamole</translatorcomment>
        <translation>décamole</translation>
    </message>
    <message>
        <source>decimole</source>
        <translatorcomment>CLDR: décimole</translatorcomment>
        <translation>décimole</translation>
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
        <translatorcomment>CLDR: degré</translatorcomment>
        <translation>degré</translation>
    </message>
    <message>
        <source>milliradian</source>
        <translatorcomment>CLDR: milliradian</translatorcomment>
        <translation>milliradian</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>grade</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>millième angulaire (OTAN)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>millième angulaire (Suède)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>millième angulaire (URSS)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translatorcomment>CLDR: minute d’arc</translatorcomment>
        <translation>minute d’arc</translation>
    </message>
    <message>
        <source>angle second</source>
        <translatorcomment>CLDR: seconde d’arc</translatorcomment>
        <translation>seconde d’arc</translation>
    </message>
    <message>
        <source>milliarc second</source>
        <translation>milliseconde d&apos;arc</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>stéradian</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: gramme par mètre carré</translatorcomment>
        <translation>gramme par mètre carré</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: gramme par pouce carré</translatorcomment>
        <translation>gramme par pouce carré</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translatorcomment>CLDR: nanogramme par litre</translatorcomment>
        <translation>nanogramme par litre</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translatorcomment>CLDR: nanogramme par décilitre</translatorcomment>
        <translation>nanogramme par décilitre</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translatorcomment>CLDR: nanogramme par millilitre</translatorcomment>
        <translation>nanogramme par millilitre</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translatorcomment>CLDR: nanogramme par microlitre</translatorcomment>
        <translation>nanogramme par microlitre</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: part par million</translatorcomment>
        <translation>part par million</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>partie par milliard</translation>
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
        <translatorcomment>CLDR: pétaampère</translatorcomment>
        <translation>pétaampère</translation>
    </message>
    <message>
        <source>teraampere</source>
        <translatorcomment>CLDR: téraampère</translatorcomment>
        <translation>téraampère</translation>
    </message>
    <message>
        <source>gigaampere</source>
        <translatorcomment>CLDR: gigaampère</translatorcomment>
        <translation>gigaampère</translation>
    </message>
    <message>
        <source>megaampere</source>
        <translatorcomment>CLDR: mégaampère</translatorcomment>
        <translation>mégaampère</translation>
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
        <translatorcomment>CLDR: décaampère</translatorcomment>
        <translation>décaampère</translation>
    </message>
    <message>
        <source>deciampere</source>
        <translatorcomment>CLDR: déciampère</translatorcomment>
        <translation>déciampère</translation>
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
        <translation>ampère-heure</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translation>milliampère-heure</translation>
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
        <translation>pétafarad</translation>
    </message>
    <message>
        <source>terafarad</source>
        <translation>térafarad</translation>
    </message>
    <message>
        <source>gigafarad</source>
        <translation>gigafarad</translation>
    </message>
    <message>
        <source>megafarad</source>
        <translation>mégafarad</translation>
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
        <translation>décafarad</translation>
    </message>
    <message>
        <source>decifarad</source>
        <translation>décifarad</translation>
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
        <translatorcomment>CLDR: bit par seconde</translatorcomment>
        <translation>bit par seconde</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: octet par seconde</translatorcomment>
        <translation>octet par seconde</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>kilobaud</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: kilobit par seconde</translatorcomment>
        <translation>kilobit par seconde</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: kilooctet par seconde</translatorcomment>
        <translation>kilooctet par seconde</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>mégabaud</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: mégabit par seconde</translatorcomment>
        <translation>mégabit par seconde</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: mégaoctet par seconde</translatorcomment>
        <translation>mégaoctet par seconde</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: kilogramme par mètre cube</translatorcomment>
        <translation>kilogramme par mètre cube</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translatorcomment>CLDR: kilogramme par litre</translatorcomment>
        <translation>kilogramme par litre</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translatorcomment>CLDR: gramme par litre</translatorcomment>
        <translation>gramme par litre</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translatorcomment>CLDR: microgramme par millilitre</translatorcomment>
        <translation>microgramme par millilitre</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: milligramme par millilitre</translatorcomment>
        <translation>milligramme par millilitre</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: livre par gallon</translatorcomment>
        <translation>livre par gallon</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: once par gallon</translatorcomment>
        <translation>once par gallon</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: livre par pied cube</translatorcomment>
        <translation>livre par pied cube</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: livre par pouce cube</translatorcomment>
        <translation>livre par pouce cube</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: gramme par centimètre cube</translatorcomment>
        <translation>gramme par centimètre cube</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>newton-seconde carrée par millimètre à la puissance quatre</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: newton par mètre cube</translatorcomment>
        <translation>newton par mètre cube</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: kilonewton par mètre cube</translatorcomment>
        <translation>kilonewton par mètre cube</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>livre-force par pied cube</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>kip par pouce cube</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>kip par pied cube</translation>
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
        <translation>unité thermique britannique (thermochimique)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>unité thermique britannique (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>unité thermique britannique (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>unité thermique britannique (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>unité thermique britannique (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>unité thermique britannique (table internationale)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>unité thermique britannique (moyenne)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>unité thermique britannique (39 °F)</translation>
    </message>
    <message>
        <source>kiloelectronvolt</source>
        <translatorcomment>CLDR: kiloélectronvolt</translatorcomment>
        <translation>kiloélectronvolt</translation>
    </message>
    <message>
        <source>megaelectronvolt</source>
        <translatorcomment>CLDR: mégaélectronvolt</translatorcomment>
        <translation>mégaélectronvolt</translation>
    </message>
    <message>
        <source>electronvolt</source>
        <translatorcomment>CLDR: électronvolt</translatorcomment>
        <translation>électronvolt</translation>
    </message>
    <message>
        <source>erg</source>
        <translation>erg</translation>
    </message>
    <message>
        <source>kilowatt hour</source>
        <translatorcomment>CLDR: kilowatt-heure</translatorcomment>
        <translation>kilowatt-heure</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translation>kilowatt-minute</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translation>kilowatt-seconde</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>therm (US)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: newton-mètre</translatorcomment>
        <translation>newton-mètre</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translatorcomment>CLDR: décanewton-mètre</translatorcomment>
        <translation>décanewton-mètre</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translatorcomment>CLDR: kilonewton-mètre</translatorcomment>
        <translation>kilonewton-mètre</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translatorcomment>CLDR: méganewton-mètre</translatorcomment>
        <translation>méganewton-mètre</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>kilogramme-force-mètre</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>kilogramme-force-pied</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>tonne-force-pied</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>tonne-force-mètre</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>pied-kilolivre</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>pied-livre-force</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>calorie (20 °C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>calorie (thermochimique)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>calorie (15 °C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>calorie (moyenne)</translation>
    </message>
    <message>
        <source>calorie (3.98 degree C)</source>
        <translation>calorie (3,98 °C)</translation>
    </message>
    <message>
        <source>Therm (EC)</source>
        <translation>therm (CE)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: mètre cube par seconde</translatorcomment>
        <translation>mètre cube par seconde</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: litre par seconde</translatorcomment>
        <translation>litre par seconde</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: litre par minute</translatorcomment>
        <translation>litre par minute</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: litre par heure</translatorcomment>
        <translation>litre par heure</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translatorcomment>CLDR: gallon par seconde</translatorcomment>
        <translation>gallon par seconde</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: gallon par minute</translatorcomment>
        <translation>gallon par minute</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: gallon par heure</translatorcomment>
        <translation>gallon par heure</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: gallon par jour</translatorcomment>
        <translation>gallon par jour</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: millilitre par minute</translatorcomment>
        <translation>millilitre par minute</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: centimètre cube par minute</translatorcomment>
        <translation>centimètre cube par minute</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: pied cube par heure</translatorcomment>
        <translation>pied cube par heure</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: pied cube par minute</translatorcomment>
        <translation>pied cube par minute</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: pied cube par seconde</translatorcomment>
        <translation>pied cube par seconde</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: pouce cube par minute</translatorcomment>
        <translation>pouce cube par minute</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: mètre cube par heure</translatorcomment>
        <translation>mètre cube par heure</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: mètre cube par minute</translatorcomment>
        <translation>mètre cube par minute</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: centimètre cube par seconde</translatorcomment>
        <translation>centimètre cube par seconde</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: centimètre cube par heure</translatorcomment>
        <translation>centimètre cube par heure</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>gallon US par heure</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>gallon US par seconde</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>gallon impérial par jour</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>gallon impérial par heure</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>gallon impérial par minute</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>gallon impérial par seconde</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>million de gallons impériaux par jour</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: litre par jour</translatorcomment>
        <translation>litre par jour</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>million de litres par jour</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>gallon US par jour</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>million de gallons US par jour</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: pied cube par jour</translatorcomment>
        <translation>pied cube par jour</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: mètre cube par jour</translatorcomment>
        <translation>mètre cube par jour</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: yard cube par minute</translatorcomment>
        <translation>yard cube par minute</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: acre-pied par jour</translatorcomment>
        <translation>acre-pied par jour</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: acre-pied par heure</translatorcomment>
        <translation>acre-pied par heure</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: acre-pied par minute</translatorcomment>
        <translation>acre-pied par minute</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>acre-pouce par heure</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>acre-pouce par minute</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>pied cube d&apos;arpentage par seconde</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: kilogramme par seconde</translatorcomment>
        <translation>kilogramme par seconde</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: kilogramme par minute</translatorcomment>
        <translation>kilogramme par minute</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: kilogramme par heure</translatorcomment>
        <translation>kilogramme par heure</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: gramme par seconde</translatorcomment>
        <translation>gramme par seconde</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: gramme par minute</translatorcomment>
        <translation>gramme par minute</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: gramme par heure</translatorcomment>
        <translation>gramme par heure</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: livre par seconde</translatorcomment>
        <translation>livre par seconde</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: livre par minute</translatorcomment>
        <translation>livre par minute</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: livre par heure</translatorcomment>
        <translation>livre par heure</translation>
    </message>
    <message>
        <source>pint per stroke</source>
        <translation>pinte par course</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>quart par course</translation>
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
        <translatorcomment>CLDR: pétanewton</translatorcomment>
        <translation>pétanewton</translation>
    </message>
    <message>
        <source>teranewton</source>
        <translatorcomment>CLDR: téranewton</translatorcomment>
        <translation>téranewton</translation>
    </message>
    <message>
        <source>giganewton</source>
        <translatorcomment>CLDR: giganewton</translatorcomment>
        <translation>giganewton</translation>
    </message>
    <message>
        <source>meganewton</source>
        <translatorcomment>CLDR: méganewton</translatorcomment>
        <translation>méganewton</translation>
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
        <translatorcomment>CLDR: décanewton</translatorcomment>
        <translation>décanewton</translation>
    </message>
    <message>
        <source>decinewton</source>
        <translatorcomment>CLDR: décinewton</translatorcomment>
        <translation>décinewton</translation>
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
        <translation>kilolivre</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>kilogramme-force</translation>
    </message>
    <message>
        <source>pound force</source>
        <translatorcomment>CLDR: livre-force</translatorcomment>
        <translation>livre-force</translation>
    </message>
    <message>
        <source>kip</source>
        <translation>kip</translation>
    </message>
    <message>
        <source>ton force</source>
        <translation>tonne-force</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>dyne</translation>
    </message>
    <message>
        <source>lbforce</source>
        <translation>livre-force (lbforce)</translation>
    </message>
    <message>
        <source>ounce force</source>
        <translation>once-force</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: newton par mètre</translatorcomment>
        <translation>newton par mètre</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>kilolivre par pied</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>kilogramme-force par mètre</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>tonne-force par mètre</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>livre-force par pied</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: décanewton par mètre</translatorcomment>
        <translation>décanewton par mètre</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translatorcomment>CLDR: kilonewton par mètre</translatorcomment>
        <translation>kilonewton par mètre</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translatorcomment>CLDR: méganewton par mètre</translatorcomment>
        <translation>méganewton par mètre</translation>
    </message>
    <message>
        <source>kip per foot</source>
        <translation>kip par pied</translation>
    </message>
    <message>
        <source>kip per inch</source>
        <translation>kip par pouce</translation>
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
        <translatorcomment>CLDR: mégahertz</translatorcomment>
        <translation>mégahertz</translation>
    </message>
    <message>
        <source>gigahertz</source>
        <translatorcomment>CLDR: gigahertz</translatorcomment>
        <translation>gigahertz</translation>
    </message>
    <message>
        <source>terahertz</source>
        <translatorcomment>CLDR: térahertz</translatorcomment>
        <translation>térahertz</translation>
    </message>
    <message>
        <source>cycle per second</source>
        <translation>cycle par seconde</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: tour par minute</translatorcomment>
        <translation>tour par minute</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>flash par seconde</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>flash par minute</translation>
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
        <translation>cheval-vapeur (métrique)</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>cheval-vapeur (électrique européen)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>cheval-vapeur (mécanique impérial)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>cheval-vapeur (électrique impérial)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: kilocalorie par heure</translatorcomment>
        <translation>kilocalorie par heure</translation>
    </message>
    <message>
        <source>kilowatt</source>
        <translatorcomment>CLDR: kilowatt</translatorcomment>
        <translation>kilowatt</translation>
    </message>
    <message>
        <source>megawatt</source>
        <translatorcomment>CLDR: mégawatt</translatorcomment>
        <translation>mégawatt</translation>
    </message>
    <message>
        <source>microwatt</source>
        <translatorcomment>CLDR: microwatt</translatorcomment>
        <translation>microwatt</translation>
    </message>
    <message>
        <source>volt ampere</source>
        <translation>voltampère</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translation>millivoltampère</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translation>kilovoltampère</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translation>mégavoltampère</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: milliwatt</translatorcomment>
        <translation>milliwatt</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>kilogramme-force-mètre par seconde</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>pied-livre-force par seconde</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: calorie par seconde</translatorcomment>
        <translation>calorie par seconde</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: kilocalorie par seconde</translatorcomment>
        <translation>kilocalorie par seconde</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>unité thermique britannique (table internationale) par seconde</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>unité thermique britannique (table internationale) par heure</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>million d&apos;unités thermiques britanniques (table internationale) par heure</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>millier d&apos;unités thermiques britanniques (table internationale) par heure</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>tonne de réfrigération</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: watt par mètre cube</translatorcomment>
        <translation>watt par mètre cube</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: watt par pied cube</translatorcomment>
        <translation>watt par pied cube</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>unité thermique britannique par heure-pied cube</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: watt par kilogramme</translatorcomment>
        <translation>watt par kilogramme</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: watt par mètre carré</translatorcomment>
        <translation>watt par mètre carré</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: kilowatt par mètre carré</translatorcomment>
        <translation>kilowatt par mètre carré</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: kilowatt par pied carré</translatorcomment>
        <translation>kilowatt par pied carré</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: watt par pied carré</translatorcomment>
        <translation>watt par pied carré</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>unité thermique britannique par heure-pied carré</translation>
    </message>
    <message>
        <source>bar</source>
        <translatorcomment>CLDR: bar</translatorcomment>
        <translation>bar</translation>
    </message>
    <message>
        <source>bar absolute</source>
        <translation>bar absolu</translation>
    </message>
    <message>
        <source>bar gauge</source>
        <translation>bar relatif</translation>
    </message>
    <message>
        <source>inch of mercury</source>
        <translatorcomment>CLDR: pouce de mercure</translatorcomment>
        <translation>pouce de mercure</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>pouce d&apos;eau</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translatorcomment>CLDR: kilobar</translatorcomment>
        <translation>kilobar</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: kilogramme par centimètre carré</translatorcomment>
        <translation>kilogramme par centimètre carré</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: kilopascal</translatorcomment>
        <translation>kilopascal</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: kilolivre par pouce carré</translatorcomment>
        <translation>kilolivre par pouce carré</translation>
    </message>
    <message>
        <source>mega pascal</source>
        <translatorcomment>CLDR: mégapascal</translatorcomment>
        <translation>mégapascal</translation>
    </message>
    <message>
        <source>millibar</source>
        <translatorcomment>CLDR: millibar</translatorcomment>
        <translation>millibar</translation>
    </message>
    <message>
        <source>millimeter of mercury</source>
        <translatorcomment>CLDR: millimètre de mercure</translatorcomment>
        <translation>millimètre de mercure</translation>
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
        <translation>livre par pouce carré (absolue)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>livre par pouce carré (relative)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: livre par pied carré</translatorcomment>
        <translation>livre par pied carré</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: livre par pouce carré</translatorcomment>
        <translation>livre par pouce carré</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>atmosphère (normale)</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>atmosphère (technique)</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>torr</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translatorcomment>CLDR: newton par millimètre carré</translatorcomment>
        <translation>newton par millimètre carré</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: newton par mètre carré</translatorcomment>
        <translation>newton par mètre carré</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translatorcomment>CLDR: décanewton par millimètre carré</translatorcomment>
        <translation>décanewton par millimètre carré</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: décanewton par mètre carré</translatorcomment>
        <translation>décanewton par mètre carré</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: kilonewton par mètre carré</translatorcomment>
        <translation>kilonewton par mètre carré</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: méganewton par mètre carré</translatorcomment>
        <translation>méganewton par mètre carré</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translatorcomment>CLDR: kilolivre par pied carré</translatorcomment>
        <translation>kilolivre par pied carré</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>kilogramme-force par millimètre carré</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>kilogramme-force par centimètre carré</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>kilogramme-force par mètre carré</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>tonne-force par centimètre carré</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>tonne-force par mètre carré</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>tonne-force par pied carré</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translatorcomment>CLDR: livre-force par pouce carré</translatorcomment>
        <translation>livre-force par pouce carré</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>pied d&apos;eau</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>kip par pouce carré</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>kip par pied carré</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>livre-force par pied carré</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: gigapascal</translatorcomment>
        <translation>gigapascal</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>dyne par centimètre carré</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translatorcomment>CLDR: newton par micromètre carré</translatorcomment>
        <translation>newton par micromètre carré</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: mètre par newton</translatorcomment>
        <translation>mètre par newton</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translatorcomment>CLDR: mètre par kilonewton</translatorcomment>
        <translation>mètre par kilonewton</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>pied par kip</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: mètre carré par newton</translatorcomment>
        <translation>mètre carré par newton</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: mètre carré par kilonewton</translatorcomment>
        <translation>mètre carré par kilonewton</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>pied carré par kip</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: mètre cube par newton</translatorcomment>
        <translation>mètre cube par newton</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: mètre cube par kilonewton</translatorcomment>
        <translation>mètre cube par kilonewton</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>pied cube par kip</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: newton-mètre par mètre</translatorcomment>
        <translation>newton-mètre par mètre</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: décanewton-mètre par mètre</translatorcomment>
        <translation>décanewton-mètre par mètre</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: kilonewton-mètre par mètre</translatorcomment>
        <translation>kilonewton-mètre par mètre</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: méganewton-mètre par mètre</translatorcomment>
        <translation>méganewton-mètre par mètre</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>kip-pied par pied</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>kilogramme-force-mètre par mètre</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>tonne-force-mètre par mètre</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translatorcomment>CLDR: livre-force-pied par pied</translatorcomment>
        <translation>livre-force-pied par pied</translation>
    </message>
    <message>
        <source>ohm</source>
        <translatorcomment>CLDR: ohm</translatorcomment>
        <translation>ohm</translation>
    </message>
    <message>
        <source>kilohm</source>
        <translation>kilohm</translation>
    </message>
    <message>
        <source>gigaohm</source>
        <translatorcomment>CLDR: gigaohm</translatorcomment>
        <translation>gigaohm</translation>
    </message>
    <message>
        <source>megohm</source>
        <translation>mégohm</translation>
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
        <translatorcomment>CLDR: mètre par seconde</translatorcomment>
        <translation>mètre par seconde</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: millimètre par seconde</translatorcomment>
        <translation>millimètre par seconde</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: centimètre par seconde</translatorcomment>
        <translation>centimètre par seconde</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: mètre par minute</translatorcomment>
        <translation>mètre par minute</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: pouce par seconde</translatorcomment>
        <translation>pouce par seconde</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: pied par seconde</translatorcomment>
        <translation>pied par seconde</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: pouce par minute</translatorcomment>
        <translation>pouce par minute</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: pied par minute</translatorcomment>
        <translation>pied par minute</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: kilomètre par heure</translatorcomment>
        <translation>kilomètre par heure</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: mile par heure</translatorcomment>
        <translation>mile par heure</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: centimètre par minute</translatorcomment>
        <translation>centimètre par minute</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: pied par heure</translatorcomment>
        <translation>pied par heure</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: pouce par heure</translatorcomment>
        <translation>pouce par heure</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: kilomètre par minute</translatorcomment>
        <translation>kilomètre par minute</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: kilomètre par seconde</translatorcomment>
        <translation>kilomètre par seconde</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: nœud</translatorcomment>
        <translation>nœud</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>nœud (R.-U.)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: mètre par heure</translatorcomment>
        <translation>mètre par heure</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: mile par minute</translatorcomment>
        <translation>mile par minute</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: mile par seconde</translatorcomment>
        <translation>mile par seconde</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>mile d&apos;arpentage par heure</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>pied d&apos;arpentage par seconde</translation>
    </message>
    <message>
        <source>byte</source>
        <translatorcomment>CLDR: octet</translatorcomment>
        <translation>octet</translation>
    </message>
    <message>
        <source>bit</source>
        <translatorcomment>CLDR: bit</translatorcomment>
        <translation>bit</translation>
    </message>
    <message>
        <source>kilobyte</source>
        <translatorcomment>CLDR: kilooctet</translatorcomment>
        <translation>kilooctet</translation>
    </message>
    <message>
        <source>megabyte</source>
        <translatorcomment>CLDR: mégaoctet</translatorcomment>
        <translation>mégaoctet</translation>
    </message>
    <message>
        <source>gigabyte</source>
        <translatorcomment>CLDR: gigaoctet</translatorcomment>
        <translation>gigaoctet</translation>
    </message>
    <message>
        <source>terabyte</source>
        <translatorcomment>CLDR: téraoctet</translatorcomment>
        <translation>téraoctet</translation>
    </message>
    <message>
        <source>kibibyte</source>
        <translatorcomment>CLDR: kibioctet</translatorcomment>
        <translation>kibioctet</translation>
    </message>
    <message>
        <source>mebibyte</source>
        <translatorcomment>CLDR: mébioctet</translatorcomment>
        <translation>mébioctet</translation>
    </message>
    <message>
        <source>gibibyte</source>
        <translatorcomment>CLDR: gibioctet</translatorcomment>
        <translation>gibioctet</translation>
    </message>
    <message>
        <source>tebibyte</source>
        <translatorcomment>CLDR: tébioctet</translatorcomment>
        <translation>tébioctet</translation>
    </message>
    <message>
        <source>kilobit</source>
        <translatorcomment>CLDR: kilobit</translatorcomment>
        <translation>kilobit</translation>
    </message>
    <message>
        <source>megabit</source>
        <translatorcomment>CLDR: mégabit</translatorcomment>
        <translation>mégabit</translation>
    </message>
    <message>
        <source>gigabit</source>
        <translatorcomment>CLDR: gigabit</translatorcomment>
        <translation>gigabit</translation>
    </message>
    <message>
        <source>petabyte</source>
        <translatorcomment>CLDR: pétaoctet</translatorcomment>
        <translation>pétaoctet</translation>
    </message>
    <message>
        <source>pebibyte</source>
        <translatorcomment>CLDR: pébioctet</translatorcomment>
        <translation>pébioctet</translation>
    </message>
    <message>
        <source>exabyte</source>
        <translatorcomment>CLDR: exaoctet</translatorcomment>
        <translation>exaoctet</translation>
    </message>
    <message>
        <source>exbibyte</source>
        <translatorcomment>CLDR: exbioctet</translatorcomment>
        <translation>exbioctet</translation>
    </message>
    <message>
        <source>zettabyte</source>
        <translatorcomment>CLDR: zettaoctet</translatorcomment>
        <translation>zettaoctet</translation>
    </message>
    <message>
        <source>zebibyte</source>
        <translatorcomment>CLDR: zébioctet</translatorcomment>
        <translation>zébioctet</translation>
    </message>
    <message>
        <source>yottabyte</source>
        <translatorcomment>CLDR: yottaoctet</translatorcomment>
        <translation>yottaoctet</translation>
    </message>
    <message>
        <source>yobibyte</source>
        <translatorcomment>CLDR: yobioctet</translatorcomment>
        <translation>yobioctet</translation>
    </message>
    <message>
        <source>kelvin</source>
        <translatorcomment>CLDR: kelvin</translatorcomment>
        <translation>kelvin</translation>
    </message>
    <message>
        <source>degree Celsius</source>
        <translatorcomment>CLDR: degré Celsius</translatorcomment>
        <translation>degré Celsius</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: degré Fahrenheit</translatorcomment>
        <translation>degré Fahrenheit</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>degré Rankine</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: degré Celsius par minute</translatorcomment>
        <translation>degré Celsius par minute</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: degré Fahrenheit par minute</translatorcomment>
        <translation>degré Fahrenheit par minute</translation>
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
        <translatorcomment>CLDR: pétaseconde</translatorcomment>
        <translation>pétaseconde</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translatorcomment>CLDR: téraseconde</translatorcomment>
        <translation>téraseconde</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translatorcomment>CLDR: gigaseconde</translatorcomment>
        <translation>gigaseconde</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translatorcomment>CLDR: mégaseconde</translatorcomment>
        <translation>mégaseconde</translation>
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
        <translatorcomment>CLDR: décaseconde</translatorcomment>
        <translation>décaseconde</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translatorcomment>CLDR: déciseconde</translatorcomment>
        <translation>déciseconde</translation>
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
        <translatorcomment>CLDR: minute</translatorcomment>
        <translation>minute</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: heure</translatorcomment>
        <translation>heure</translation>
    </message>
    <message>
        <source>day</source>
        <translatorcomment>CLDR: jour</translatorcomment>
        <translation>jour</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: semaine</translatorcomment>
        <translation>semaine</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>quinzaine</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: mois</translatorcomment>
        <translation>mois</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>mois (cave)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>mois (plein)</translation>
    </message>
    <message>
        <source>year</source>
        <translation>année</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>année (grégorienne)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>année (julienne)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>année sidérale</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>année tropique</translation>
    </message>
    <message>
        <source>annum</source>
        <translation>annum</translation>
    </message>
    <message>
        <source>decade</source>
        <translatorcomment>CLDR: décennie</translatorcomment>
        <translation>décennie</translation>
    </message>
    <message>
        <source>century</source>
        <translatorcomment>CLDR: siècle</translatorcomment>
        <translation>siècle</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>siècle (julien)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>millénaire</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>millénaire (grégorien)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>millénaire (julien)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>newton-mètre (couple)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>newton-centimètre (couple)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>newton-décamètre (couple)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>pied-livre (couple)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>pouce-livre (couple)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>mètre-kilogramme (couple)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>centimètre-kilogramme (couple)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>pouce-once (couple)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>gramme-centimètre (couple)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>décanewton-mètre (couple)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>kilonewton-mètre (couple)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>méganewton-mètre (couple)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>kip-pied (couple)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>kilogramme-force-mètre (couple)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>tonne-force-mètre (couple)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>livre-force-pied (couple)</translation>
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
        <translation>pascal-seconde</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>livre par pied-seconde</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>livre par pied-heure</translation>
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
        <translatorcomment>CLDR: mètre par seconde carrée</translatorcomment>
        <translation>mètre par seconde carrée</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>pied par seconde carrée</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>pied d&apos;arpentage par seconde carrée</translation>
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
        <translation>volt (potentiel électrique)</translation>
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
        <translation>lumen par stéradian</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>bougie</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>lux (éclairement)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>pied-bougie</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translation>lumen-seconde</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>talbot</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>puissance lumineuse</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: lumen</translatorcomment>
        <translation>lumen</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: candela par mètre carré</translatorcomment>
        <translation>candela par mètre carré</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>pied-lambert</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: candela par pied carré</translatorcomment>
        <translation>candela par pied carré</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>lux (émittance)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: lumen par watt</translatorcomment>
        <translation>lumen par watt</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: pascal par mètre</translatorcomment>
        <translation>pascal par mètre</translation>
    </message>
    <message>
        <source>inch of water per 100foot</source>
        <translation>pouce d&apos;eau par 100 pieds</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>pied d&apos;eau par 100 pieds</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>pouce de mercure par 100 pieds</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>millimètre de mercure par 100 pieds</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: newton-mètre par degré</translatorcomment>
        <translation>newton-mètre par degré</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>kip-pied par degré</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: kilonewton-mètre par degré</translatorcomment>
        <translation>kilonewton-mètre par degré</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>newton-mètre par degré par mètre</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>kip-pied par degré par pied</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>kilonewton-mètre par degré par mètre</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>watt par mètre carré-kelvin</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>unité thermique britannique par heure-pied carré-degré Fahrenheit</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>mètre cube par seconde-mètre carré</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>pied cube par minute-pied carré</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>litre par seconde-mètre carré</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>mètre cube par seconde-mètre cube</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>pied cube par minute-pied cube</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>litre par seconde-mètre cube</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>mètre cube par seconde-watt</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>pied cube par minute-tonne de réfrigération</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>litre par seconde-kilowatt</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: mètre carré par watt</translatorcomment>
        <translation>mètre carré par watt</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>pied carré par tonne de réfrigération</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: mètre carré par kilowatt</translatorcomment>
        <translation>mètre carré par kilowatt</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>pied carré par millier d&apos;unités thermiques britanniques par heure</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>seconde carrée par mètre-kilogramme</translation>
    </message>
    <message>
        <source>inverse kilonewton</source>
        <translation>inverse du kilonewton</translation>
    </message>
    <message>
        <source>inverse kip</source>
        <translation>inverse du kip</translation>
    </message>
    <message>
        <source>inverse fahrenheit</source>
        <translation>inverse du degré Fahrenheit</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>inverse du degré Celsius</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>micromètre par mètre-degré Celsius</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>micropouce par pouce-degré Fahrenheit</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>œrsted</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: ampère par mètre</translatorcomment>
        <translation>ampère par mètre</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>watt par mètre-kelvin</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>watt par mètre-degré Celsius</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>newton par seconde-degré Celsius</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>dyne par seconde-degré Celsius</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>BTU-pouce par pied carré-heure-degré Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>BTU par pouce-seconde-degré Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>BTU par pied-seconde-degré Fahrenheit</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>BTU par pied-heure-degré Fahrenheit</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>joule par gramme-degré Celsius</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>joule par kilogramme-degré Celsius</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>millimètre carré par seconde carrée-degré Celsius</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>erg par gramme-degré Celsius</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>micromètre carré par seconde carrée-degré Celsius</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>BTU par livre-degré Fahrenheit</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>nanogramme par pascal-seconde-mètre carré</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>grain par pied carré-heure-pouce de mercure</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translation>ohm-mètre</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translatorcomment>CLDR: joule par gramme</translatorcomment>
        <translation>joule par gramme</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translatorcomment>CLDR: joule par kilogramme</translatorcomment>
        <translation>joule par kilogramme</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>BTU par livre</translation>
    </message>
</context>
</TS>
