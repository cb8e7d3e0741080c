<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Host</name>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opção</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Seleção</translation>
    </message>
    <message>
        <source>Conflict</source>
        <translation>Conflito</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimir %1</translation>
    </message>
</context>
</TS>
