<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk_UA">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>Одиниці</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Одиниця</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>Група одиниць</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Позначення</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>Формат чисел</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Точність</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Мовний стандарт</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значення</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>Неприпустиме введення</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>Невідома одиниця</translation>
    </message>
</context>
</TS>
