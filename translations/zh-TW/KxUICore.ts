<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>單位</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>计量單位</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>單位组</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>數字格式</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>精度</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>地區設定</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>輸入無效</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>未知單位</translation>
    </message>
</context>
</TS>
