<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>Einheitengruppe</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>Zahlenformat</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Genauigkeit</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Gebietsschema</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>Ungültige Eingabe</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>Unbekannte Einheit</translation>
    </message>
</context>
</TS>
