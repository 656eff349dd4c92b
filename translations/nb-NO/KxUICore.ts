<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb_NO">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>Enheter</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Enhet</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>Enhetsgruppe</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>Tallformat</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Presisjon</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Nasjonal innstilling</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Verdi</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>Ugyldig inndata</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>Ukjent enhet</translation>
    </message>
</context>
</TS>
