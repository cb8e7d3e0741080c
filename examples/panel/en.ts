<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>OP_PANEL_NAME</source>
        <translation>Label Printer</translation>
    </message>
    <message>
        <source>ExPrintSpeed</source>
        <translation>Print speed</translation>
    </message>
    <message>
        <source>ExDarkness</source>
        <translation>Darkness, 0 to 15</translation>
    </message>
    <message>
        <source>ExPeelOff</source>
        <translation>Peel off labels</translation>
    </message>
</context>
</TS>
