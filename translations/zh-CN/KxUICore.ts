<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>计量单位</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>单位组</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>数字格式</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>精度</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>区域设置</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>输入无效</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>未知单位</translation>
    </message>
</context>
</TS>
