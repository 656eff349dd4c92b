<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>Unidades</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>Grupo de unidades</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Símbolo</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>Formato numérico</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Precisión</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Configuración regional</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>Entrada no válida</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>Unidad desconocida</translation>
    </message>
</context>
</TS>
