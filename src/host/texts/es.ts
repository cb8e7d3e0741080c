<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Host</name>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opción</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Conflict</source>
        <translation>Conflicto</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimir %1</translation>
    </message>
</context>
</TS>
