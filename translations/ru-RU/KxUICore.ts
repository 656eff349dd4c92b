<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>Единицы</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Единица</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>Группа единиц</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Обозначение</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>Формат чисел</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Точность</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Языковой стандарт</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>Недопустимый ввод</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>Неизвестная единица</translation>
    </message>
</context>
</TS>
