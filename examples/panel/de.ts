<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>OP_PANEL_NAME</source>
        <translation>Etikettendrucker</translation>
    </message>
    <message>
        <source>ExPrintSpeed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>ExDarkness</source>
        <translation>Schwärzung, 0 bis 15</translation>
    </message>
    <message>
        <source>ExPeelOff</source>
        <translation>Etiketten ablösen</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
</TS>
