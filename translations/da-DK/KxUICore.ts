<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da_DK">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>Enheder</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Enhed</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>Enhedsgruppe</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>Talformat</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Præcision</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Landestandard</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Værdi</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>Ugyldigt input</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>Ukendt enhed</translation>
    </message>
</context>
</TS>
