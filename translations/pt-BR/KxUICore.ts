<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>Unidades</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidade</translation>
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
        <translation>Precisão</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>Localidade</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>Entrada inválida</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>Unidade desconhecida</translation>
    </message>
</context>
</TS>
