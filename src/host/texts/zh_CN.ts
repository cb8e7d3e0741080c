<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Host</name>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Conflict</source>
        <translation>冲突</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>打印 %1</translation>
    </message>
</context>
</TS>
