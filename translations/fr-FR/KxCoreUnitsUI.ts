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
        <translation>mètre</translation>
    </message>
    <message>
        <source>yottameter</source>
        <translation>yottamètre</translation>
    </message>
    <message>
        <source>zettameter</source>
        <translation>zettamètre</translation>
    </message>
    <message>
        <source>exameter</source>
        <translation>examètre</translation>
    </message>
    <message>
        <source>petameter</source>
        <translation>pétamètre</translation>
    </message>
    <message>
        <source>terameter</source>
        <translation>téramètre</translation>
    </message>
    <message>
        <source>gigameter</source>
        <translation>gigamètre</translation>
    </message>
    <message>
        <source>megameter</source>
        <translation>mégamètre</translation>
    </message>
    <message>
        <source>kilometer</source>
        <translation>kilomètre</translation>
    </message>
    <message>
        <source>hectometer</source>
        <translation>hectomètre</translation>
    </message>
    <message>
        <source>decameter</source>
        <translation>décamètre</translation>
    </message>
    <message>
        <source>decimeter</source>
        <translation>décimètre</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translation>centimètre</translation>
    </message>
    <message>
        <source>millimeter</source>
        <translation>millimètre</translation>
    </message>
    <message>
        <source>micrometer</source>
        <translation>micromètre</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translation>nanomètre</translation>
    </message>
    <message>
        <source>picometer</source>
        <translation>picomètre</translation>
    </message>
    <message>
        <source>femtometer</source>
        <translation>femtomètre</translation>
    </message>
    <message>
        <source>attometer</source>
        <translation>attomètre</translation>
    </message>
    <message>
        <source>zeptometer</source>
        <translation>zeptomètre</translation>
    </message>
    <message>
        <source>yoctometer</source>
        <translation>yoctomètre</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>pouce</translation>
    </message>
    <message>
        <source>foot</source>
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
        <translation>furlong</translation>
    </message>
    <message>
        <source>mile</source>
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
        <translation>micropouce</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>ångström</translation>
    </message>
    <message>
        <source>astronomical unit</source>
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
        <translation>brasse</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>main</translation>
    </message>
    <message>
        <source>light-year</source>
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
        <translation>mètre carré</translation>
    </message>
    <message>
        <source>square inch</source>
        <translation>pouce carré</translation>
    </message>
    <message>
        <source>square foot</source>
        <translation>pied carré</translation>
    </message>
    <message>
        <source>square yard</source>
        <translation>yard carré</translation>
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
        <translation>kilomètre carré</translation>
    </message>
    <message>
        <source>square mile</source>
        <translation>mile carré</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translation>centimètre carré</translation>
    </message>
    <message>
        <source>square millimeter</source>
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
        <translation>décimètre carré</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translation>brasse carrée</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translation>furlong carré</translation>
    </message>
    <message>
        <source>square gigameter</source>
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
        <translation>micromètre carré</translation>
    </message>
    <message>
        <source>liter</source>
        <translation>litre</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translation>centimètre cube</translation>
    </message>
    <message>
        <source>tablespoon</source>
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
        <translation>centilitre</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translation>pied cube</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translation>pouce cube</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translation>mètre cube</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translation>yard cube</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>drachme liquide</translation>
    </message>
    <message>
        <source>microliter</source>
        <translation>microlitre</translation>
    </message>
    <message>
        <source>milliliter</source>
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
        <translation>décalitre</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>décastère</translation>
    </message>
    <message>
        <source>dram</source>
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
        <translation>brasse cube</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translation>furlong cube</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translation>gigamètre cube</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>main cube</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
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
        <translation>mile cube</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
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
        <translation>micromètre cube</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translation>kilomètre cube</translation>
    </message>
    <message>
        <source>kilogram</source>
        <translation>kilogramme</translation>
    </message>
    <message>
        <source>gram</source>
        <translation>gramme</translation>
    </message>
    <message>
        <source>yottagram</source>
        <translation>yottagramme</translation>
    </message>
    <message>
        <source>zettagram</source>
        <translation>zettagramme</translation>
    </message>
    <message>
        <source>exagram</source>
        <translation>exagramme</translation>
    </message>
    <message>
        <source>petagram</source>
        <translation>pétagramme</translation>
    </message>
    <message>
        <source>teragram</source>
        <translation>téragramme</translation>
    </message>
    <message>
        <source>gigagram</source>
        <translation>gigagramme</translation>
    </message>
    <message>
        <source>megagram</source>
        <translation>mégagramme</translation>
    </message>
    <message>
        <source>hectogram</source>
        <translation>hectogramme</translation>
    </message>
    <message>
        <source>decagram</source>
        <translation>décagramme</translation>
    </message>
    <message>
        <source>decigram</source>
        <translation>décigramme</translation>
    </message>
    <message>
        <source>centigram</source>
        <translation>centigramme</translation>
    </message>
    <message>
        <source>milligram</source>
        <translation>milligramme</translation>
    </message>
    <message>
        <source>microgram</source>
        <translation>microgramme</translation>
    </message>
    <message>
        <source>nanogram</source>
        <translation>nanogramme</translation>
    </message>
    <message>
        <source>picogram</source>
        <translation>picogramme</translation>
    </message>
    <message>
        <source>femtogram</source>
        <translation>femtogramme</translation>
    </message>
    <message>
        <source>attogram</source>
        <translation>attogramme</translation>
    </message>
    <message>
        <source>zeptogram</source>
        <translation>zeptogramme</translation>
    </message>
    <message>
        <source>yoctogram</source>
        <translation>yoctogramme</translation>
    </message>
    <message>
        <source>pound (meter)</source>
        <translation>livre (mètre)</translation>
    </message>
    <message>
        <source>pound</source>
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
        <translation>grain</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>grain de perle</translation>
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
        <translation>kilogramme par mètre</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translation>livre par pied</translation>
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
        <translation>pétamole</translation>
    </message>
    <message>
        <source>teramole</source>
        <translation>téramole</translation>
    </message>
    <message>
        <source>gigamole</source>
        <translation>gigamole</translation>
    </message>
    <message>
        <source>megamole</source>
        <translation>mégamole</translation>
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
        <translation>décamole</translation>
    </message>
    <message>
        <source>decimole</source>
        <translation>décimole</translation>
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
        <translation>degré</translation>
    </message>
    <message>
        <source>milliradian</source>
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
        <translation>minute d&apos;angle</translation>
    </message>
    <message>
        <source>angle second</source>
        <translation>seconde d&apos;angle</translation>
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
        <translation>gramme par mètre carré</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translation>gramme par pouce carré</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translation>nanogramme par litre</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translation>nanogramme par décilitre</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translation>nanogramme par millilitre</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translation>nanogramme par microlitre</translation>
    </message>
    <message>
        <source>part per million</source>
        <translation>partie par million</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>partie par milliard</translation>
    </message>
    <message>
        <source>ampere</source>
        <translation>ampère</translation>
    </message>
    <message>
        <source>yottaampere</source>
        <translation>yottaampère</translation>
    </message>
    <message>
        <source>zettaampere</source>
        <translation>zettaampère</translation>
    </message>
    <message>
        <source>exaampere</source>
        <translation>exaampère</translation>
    </message>
    <message>
        <source>petaampere</source>
        <translation>pétaampère</translation>
    </message>
    <message>
        <source>teraampere</source>
        <translation>téraampère</translation>
    </message>
    <message>
        <source>gigaampere</source>
        <translation>gigaampère</translation>
    </message>
    <message>
        <source>megaampere</source>
        <translation>mégaampère</translation>
    </message>
    <message>
        <source>kiloampere</source>
        <translation>kiloampère</translation>
    </message>
    <message>
        <source>hectoampere</source>
        <translation>hectoampère</translation>
    </message>
    <message>
        <source>decaampere</source>
        <translation>décaampère</translation>
    </message>
    <message>
        <source>deciampere</source>
        <translation>déciampère</translation>
    </message>
    <message>
        <source>centiampere</source>
        <translation>centiampère</translation>
    </message>
    <message>
        <source>milliampere</source>
        <translation>milliampère</translation>
    </message>
    <message>
        <source>microampere</source>
        <translation>microampère</translation>
    </message>
    <message>
        <source>nanoampere</source>
        <translation>nanoampère</translation>
    </message>
    <message>
        <source>picoampere</source>
        <translation>picoampère</translation>
    </message>
    <message>
        <source>femtoampere</source>
        <translation>femtoampère</translation>
    </message>
    <message>
        <source>attoampere</source>
        <translation>attoampère</translation>
    </message>
    <message>
        <source>zeptoampere</source>
        <translation>zeptoampère</translation>
    </message>
    <message>
        <source>yoctoampere</source>
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
        <translation>bit par seconde</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translation>octet par seconde</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>kilobaud</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translation>kilobit par seconde</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translation>kilooctet par seconde</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>mégabaud</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translation>mégabit par seconde</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translation>mégaoctet par seconde</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translation>kilogramme par mètre cube</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translation>kilogramme par litre</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translation>gramme par litre</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translation>microgramme par millilitre</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translation>milligramme par millilitre</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translation>livre par gallon</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translation>once par gallon</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translation>livre par pied cube</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translation>livre par pouce cube</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translation>gramme par centimètre cube</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>newton-seconde carrée par millimètre à la puissance quatre</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translation>newton par mètre cube</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
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
        <translation>kiloélectronvolt</translation>
    </message>
    <message>
        <source>megaelectronvolt</source>
        <translation>mégaélectronvolt</translation>
    </message>
    <message>
        <source>electronvolt</source>
        <translation>électronvolt</translation>
    </message>
    <message>
        <source>erg</source>
        <translation>erg</translation>
    </message>
    <message>
        <source>kilowatt hour</source>
        <translation>kilowattheure</translation>
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
        <translation>newton-mètre</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translation>décanewton-mètre</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translation>kilonewton-mètre</translation>
    </message>
    <message>
        <source>meganewton meter</source>
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
        <translation>mètre cube par seconde</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translation>litre par seconde</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translation>litre par minute</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translation>litre par heure</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translation>gallon par seconde</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translation>gallon par minute</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translation>gallon par heure</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translation>gallon par jour</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translation>millilitre par minute</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translation>centimètre cube par minute</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translation>pied cube par heure</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translation>pied cube par minute</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translation>pied cube par seconde</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translation>pouce cube par minute</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translation>mètre cube par heure</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translation>mètre cube par minute</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translation>centimètre cube par seconde</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
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
        <translation>pied cube par jour</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translation>mètre cube par jour</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translation>yard cube par minute</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translation>acre-pied par jour</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translation>acre-pied par heure</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
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
        <translation>kilogramme par seconde</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translation>kilogramme par minute</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translation>kilogramme par heure</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translation>gramme par seconde</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translation>gramme par minute</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translation>gramme par heure</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translation>livre par seconde</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translation>livre par minute</translation>
    </message>
    <message>
        <source>pound per hour</source>
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
        <translation>pétanewton</translation>
    </message>
    <message>
        <source>teranewton</source>
        <translation>téranewton</translation>
    </message>
    <message>
        <source>giganewton</source>
        <translation>giganewton</translation>
    </message>
    <message>
        <source>meganewton</source>
        <translation>méganewton</translation>
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
        <translation>décanewton</translation>
    </message>
    <message>
        <source>decinewton</source>
        <translation>décinewton</translation>
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
        <translation>kilolivre</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>kilogramme-force</translation>
    </message>
    <message>
        <source>pound force</source>
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
        <translation>décanewton par mètre</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translation>kilonewton par mètre</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
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
        <translation>hertz</translation>
    </message>
    <message>
        <source>kilohertz</source>
        <translation>kilohertz</translation>
    </message>
    <message>
        <source>megahertz</source>
        <translation>mégahertz</translation>
    </message>
    <message>
        <source>gigahertz</source>
        <translation>gigahertz</translation>
    </message>
    <message>
        <source>terahertz</source>
        <translation>térahertz</translation>
    </message>
    <message>
        <source>cycle per second</source>
        <translation>cycle par seconde</translation>
    </message>
    <message>
        <source>revolution per minute</source>
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
        <translation>kilocalorie par heure</translation>
    </message>
    <message>
        <source>kilowatt</source>
        <translation>kilowatt</translation>
    </message>
    <message>
        <source>megawatt</source>
        <translation>mégawatt</translation>
    </message>
    <message>
        <source>microwatt</source>
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
        <translation>calorie par seconde</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
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
        <translation>watt par mètre cube</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translation>watt par pied cube</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>unité thermique britannique par heure-pied cube</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translation>watt par kilogramme</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translation>watt par mètre carré</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translation>kilowatt par mètre carré</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translation>kilowatt par pied carré</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translation>watt par pied carré</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>unité thermique britannique par heure-pied carré</translation>
    </message>
    <message>
        <source>bar</source>
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
        <translation>pouce de mercure</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>pouce d&apos;eau</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translation>kilobar</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translation>kilogramme par centimètre carré</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translation>kilopascal</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translation>kilolivre par pouce carré</translation>
    </message>
    <message>
        <source>mega pascal</source>
        <translation>mégapascal</translation>
    </message>
    <message>
        <source>millibar</source>
        <translation>millibar</translation>
    </message>
    <message>
        <source>millimeter of mercury</source>
        <translation>millimètre de mercure</translation>
    </message>
    <message>
        <source>milli pascal</source>
        <translation>millipascal</translation>
    </message>
    <message>
        <source>pascal</source>
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
        <translation>livre par pied carré</translation>
    </message>
    <message>
        <source>pound per square inch</source>
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
        <translation>newton par millimètre carré</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translation>newton par mètre carré</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translation>décanewton par millimètre carré</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translation>décanewton par mètre carré</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translation>kilonewton par mètre carré</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translation>méganewton par mètre carré</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
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
        <translation>gigapascal</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>dyne par centimètre carré</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translation>newton par micromètre carré</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translation>mètre par newton</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translation>mètre par kilonewton</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>pied par kip</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translation>mètre carré par newton</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translation>mètre carré par kilonewton</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>pied carré par kip</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translation>mètre cube par newton</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translation>mètre cube par kilonewton</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>pied cube par kip</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translation>newton-mètre par mètre</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translation>décanewton-mètre par mètre</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translation>kilonewton-mètre par mètre</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
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
        <translation>livre-force-pied par pied</translation>
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
        <translation>mégohm</translation>
    </message>
    <message>
        <source>microohm</source>
        <translation>micro-ohm</translation>
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
        <translation>mètre par seconde</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translation>millimètre par seconde</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translation>centimètre par seconde</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translation>mètre par minute</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translation>pouce par seconde</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translation>pied par seconde</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translation>pouce par minute</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translation>pied par minute</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translation>kilomètre par heure</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translation>mile par heure</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translation>centimètre par minute</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translation>pied par heure</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translation>pouce par heure</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translation>kilomètre par minute</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translation>kilomètre par seconde</translation>
    </message>
    <message>
        <source>knot</source>
        <translation>nœud</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>nœud (R.-U.)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translation>mètre par heure</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translation>mile par minute</translation>
    </message>
    <message>
        <source>mile per second</source>
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
        <translation>octet</translation>
    </message>
    <message>
        <source>bit</source>
        <translation>bit</translation>
    </message>
    <message>
        <source>kilobyte</source>
        <translation>kilooctet</translation>
    </message>
    <message>
        <source>megabyte</source>
        <translation>mégaoctet</translation>
    </message>
    <message>
        <source>gigabyte</source>
        <translation>gigaoctet</translation>
    </message>
    <message>
        <source>terabyte</source>
        <translation>téraoctet</translation>
    </message>
    <message>
        <source>kibibyte</source>
        <translation>kibioctet</translation>
    </message>
    <message>
        <source>mebibyte</source>
        <translation>mébioctet</translation>
    </message>
    <message>
        <source>gibibyte</source>
        <translation>gibioctet</translation>
    </message>
    <message>
        <source>tebibyte</source>
        <translation>tébioctet</translation>
    </message>
    <message>
        <source>kilobit</source>
        <translation>kilobit</translation>
    </message>
    <message>
        <source>megabit</source>
        <translation>mégabit</translation>
    </message>
    <message>
        <source>gigabit</source>
        <translation>gigabit</translation>
    </message>
    <message>
        <source>petabyte</source>
        <translation>pétaoctet</translation>
    </message>
    <message>
        <source>pebibyte</source>
        <translation>pébioctet</translation>
    </message>
    <message>
        <source>exabyte</source>
        <translation>exaoctet</translation>
    </message>
    <message>
        <source>exbibyte</source>
        <translation>exbioctet</translation>
    </message>
    <message>
        <source>zettabyte</source>
        <translation>zettaoctet</translation>
    </message>
    <message>
        <source>zebibyte</source>
        <translation>zébioctet</translation>
    </message>
    <message>
        <source>yottabyte</source>
        <translation>yottaoctet</translation>
    </message>
    <message>
        <source>yobibyte</source>
        <translation>yobioctet</translation>
    </message>
    <message>
        <source>kelvin</source>
        <translation>kelvin</translation>
    </message>
    <message>
        <source>degree Celsius</source>
        <translation>degré Celsius</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translation>degré Fahrenheit</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>degré Rankine</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translation>degré Celsius par minute</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translation>degré Fahrenheit par minute</translation>
    </message>
    <message>
        <source>second</source>
        <translation>seconde</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translation>yottaseconde</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translation>zettaseconde</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translation>exaseconde</translation>
    </message>
    <message>
        <source>petasecond</source>
        <translation>pétaseconde</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translation>téraseconde</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translation>gigaseconde</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translation>mégaseconde</translation>
    </message>
    <message>
        <source>kilosecond</source>
        <translation>kiloseconde</translation>
    </message>
    <message>
        <source>hectosecond</source>
        <translation>hectoseconde</translation>
    </message>
    <message>
        <source>decasecond</source>
        <translation>décaseconde</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translation>déciseconde</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translation>centiseconde</translation>
    </message>
    <message>
        <source>millisecond</source>
        <translation>milliseconde</translation>
    </message>
    <message>
        <source>microsecond</source>
        <translation>microseconde</translation>
    </message>
    <message>
        <source>nanosecond</source>
        <translation>nanoseconde</translation>
    </message>
    <message>
        <source>picosecond</source>
        <translation>picoseconde</translation>
    </message>
    <message>
        <source>femtosecond</source>
        <translation>femtoseconde</translation>
    </message>
    <message>
        <source>attosecond</source>
        <translation>attoseconde</translation>
    </message>
    <message>
        <source>zeptosecond</source>
        <translation>zeptoseconde</translation>
    </message>
    <message>
        <source>yoctosecond</source>
        <translation>yoctoseconde</translation>
    </message>
    <message>
        <source>minute</source>
        <translation>minute</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>heure</translation>
    </message>
    <message>
        <source>day</source>
        <translation>jour</translation>
    </message>
    <message>
        <source>week</source>
        <translation>semaine</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>quinzaine</translation>
    </message>
    <message>
        <source>month</source>
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
        <translation>décennie</translation>
    </message>
    <message>
        <source>century</source>
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
        <translation>lumen</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translation>candela par mètre carré</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>pied-lambert</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translation>candela par pied carré</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>lux (émittance)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translation>lumen par watt</translation>
    </message>
    <message>
        <source>pascal per meter</source>
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
        <translation>newton-mètre par degré</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>kip-pied par degré</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
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
        <translation>mètre carré par watt</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>pied carré par tonne de réfrigération</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
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
        <translation>joule par gramme</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translation>joule par kilogramme</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>BTU par livre</translation>
    </message>
</context>
</TS>
