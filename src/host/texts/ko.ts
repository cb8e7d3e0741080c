<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>Host</name>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>Conflict</source>
        <translation>충돌</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 인쇄</translation>
    </message>
</context>
</TS>
