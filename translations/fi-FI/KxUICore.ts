<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi_FI">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>Yksiköt</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Yksikkö</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>Yksikköryhmä</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Tunnus</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>Lukumuoto</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Tarkkuus</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Alue-asetus</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Arvo</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>Virheellinen syöte</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>Tuntematon yksikkö</translation>
    </message>
</context>
</TS>
