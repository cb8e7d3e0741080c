<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Host</name>
    <message>
        <source>Summary</source>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opcja</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Wybór</translation>
    </message>
    <message>
        <source>Conflict</source>
        <translation>Konflikt</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Drukowanie: %1</translation>
    </message>
</context>
</TS>
