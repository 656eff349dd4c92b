<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>Eenheden</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Eenheid</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>Eenheidsgroep</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbool</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>Getalnotatie</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Precisie</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Landinstelling</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>Ongeldige invoer</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>Onbekende eenheid</translation>
    </message>
</context>
</TS>
