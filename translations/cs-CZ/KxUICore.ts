<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>Jednotky</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Jednotka</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>Skupina jednotek</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Značka</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>Formát čísla</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Přesnost</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Národní prostředí</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>Neplatný vstup</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>Neznámá jednotka</translation>
    </message>
</context>
</TS>
