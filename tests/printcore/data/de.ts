<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Localizable</name>
    <message>
        <source>Cut</source>
        <translation>Band schneiden</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>Größe</source>
        <translation>Größe in mm</translation>
    </message>
</context>
</TS>
