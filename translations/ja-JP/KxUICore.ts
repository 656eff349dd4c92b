<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>単位グループ</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>記号</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>数値の形式</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>精度</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>ロケール</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>無効な入力</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>不明な単位</translation>
    </message>
</context>
</TS>
