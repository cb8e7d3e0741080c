<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Host</name>
    <message>
        <source>Summary</source>
        <extracomment>Title of the tab that lists what the panels have set.</extracomment>
        <translation>Summary</translation>
    </message>
    <message>
        <source>Option</source>
        <extracomment>Head of the summary&apos;s first column: which option.</extracomment>
        <translation>Option</translation>
    </message>
    <message>
        <source>Choice</source>
        <extracomment>Head of the summary&apos;s second column: what is chosen for the option.</extracomment>
        <translation>Choice</translation>
    </message>
    <message>
        <source>Conflict</source>
        <extracomment>Option of a line of the summary that names two choices that the printer cannot
            combine.</extracomment>
        <translation>Conflict</translation>
    </message>
    <message>
        <source>Print %1</source>
        <extracomment>Title of the print dialog&apos;s window; %1 is the document&apos;s name.</extracomment>
        <translation>Print %1</translation>
    </message>
</context>
</TS>
