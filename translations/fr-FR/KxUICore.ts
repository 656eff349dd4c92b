<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>Unités</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>Groupe d&apos;unités</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>Format numérique</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Précision</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Paramètres régionaux</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>Saisie non valide</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>Unité inconnue</translation>
    </message>
</context>
</TS>
