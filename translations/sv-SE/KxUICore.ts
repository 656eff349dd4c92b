<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE">
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
        <translation>Enhetsgrupp</translation>
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
        <translation>Precision</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Språkinställning</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Värde</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>Ogiltig inmatning</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>Okänd enhet</translation>
    </message>
</context>
</TS>
