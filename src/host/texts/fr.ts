<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Host</name>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Choix</translation>
    </message>
    <message>
        <source>Conflict</source>
        <translation>Conflit</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimer %1</translation>
    </message>
</context>
</TS>
