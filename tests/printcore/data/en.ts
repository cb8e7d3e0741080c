<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Cut</source>
        <translation>Cut the tape</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margin</translation>
    </message>
    <message>
        <source>Only English</source>
        <translation>Spoken in English</translation>
    </message>
    <message>
        <source>Untranslated</source>
        <translation></translation>
    </message>
</context>
<context>
    <name>Alerts</name>
    <message>
        <source>Cut</source>
        <translation>The cutter is open</translation>
    </message>
</context>
</TS>
