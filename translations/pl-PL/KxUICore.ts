<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>Jednostki</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Jednostka</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>Grupa jednostek</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>Format liczb</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Dokładność</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Ustawienia regionalne</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>Nieprawidłowe dane</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>Nieznana jednostka</translation>
    </message>
</context>
</TS>
