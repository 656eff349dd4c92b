<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>KxUICore</name>
    <message>
        <source>Units</source>
        <translation>단위</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>측정 단위</translation>
    </message>
    <message>
        <source>Unit Group</source>
        <translation>단위 그룹</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>기호</translation>
    </message>
    <message>
        <source>Number Format</source>
        <translation>숫자 형식</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>정밀도</translation>
    </message>
    <message>
        <source>Locale</source>
        <translation>로캘</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation>잘못된 입력</translation>
    </message>
    <message>
        <source>Unknown unit</source>
        <translation>알 수 없는 단위</translation>
    </message>
</context>
</TS>
