<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_AT">
<context>
    <name>Localizable</name>
    <message>
        <source>Cut</source>
        <translation>Band abschneiden</translation>
    </message>
</context>
</TS>
