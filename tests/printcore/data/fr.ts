<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<dependencies>
    <dependency catalog="de.qm"/>
</dependencies>
<context>
    <name>Localizable</name>
    <message>
        <source>Margin</source>
        <translation>Marge</translation>
    </message>
</context>
</TS>
