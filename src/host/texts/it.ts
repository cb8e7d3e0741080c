<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Host</name>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opzione</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Scelta</translation>
    </message>
    <message>
        <source>Conflict</source>
        <translation>Conflitto</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Stampa di %1</translation>
    </message>
</context>
</TS>
