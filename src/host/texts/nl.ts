<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>Host</name>
    <message>
        <source>Summary</source>
        <translation>Samenvatting</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Optie</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Keuze</translation>
    </message>
    <message>
        <source>Conflict</source>
        <translation>Conflict</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 afdrukken</translation>
    </message>
</context>
</TS>
