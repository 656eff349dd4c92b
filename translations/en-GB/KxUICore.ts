<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>Units</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>Unit Group</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>Number Format</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Precision</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Locale</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>Invalid input</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>Unknown unit</translation>
    </message>
</context>
</TS>
