<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Host</name>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>選択内容</translation>
    </message>
    <message>
        <source>Conflict</source>
        <translation>競合</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 を印刷</translation>
    </message>
</context>
</TS>
