<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unità di misura</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>Gruppo di unità</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Simbolo</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>Formato numerico</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Precisione</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Impostazioni locali</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>Input non valido</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>Unità sconosciuta</translation>
    </message>
</context>
</TS>
