<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>Birimler</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Birim</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>Birim grubu</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Simge</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>Sayı biçimi</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Duyarlık</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Yerel ayar</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>Geçersiz giriş</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>Bilinmeyen birim</translation>
    </message>
</context>
</TS>
