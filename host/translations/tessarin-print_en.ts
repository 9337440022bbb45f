<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>TessarinPrint</name>
    <message numerus="yes">
        <source>the name of a preset has at most %n characters</source>
        <translation>
            <numerusform>the name of a preset has at most %n character</numerusform>
            <numerusform>the name of a preset has at most %n characters</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>None of the document&apos;s %n pages is selected.</source>
        <translation>
            <numerusform>The document&apos;s only page is not selected.</numerusform>
            <numerusform>None of the document&apos;s %n pages is selected.</numerusform>
        </translation>
    </message>
</context>
</TS>
