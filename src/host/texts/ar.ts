<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Host</name>
    <message>
        <source>Summary</source>
        <translation>الملخص</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>الخيار</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>الاختيار</translation>
    </message>
    <message>
        <source>Conflict</source>
        <translation>تعارض</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>طباعة %1</translation>
    </message>
</context>
</TS>
