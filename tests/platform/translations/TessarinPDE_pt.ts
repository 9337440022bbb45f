<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Tessarin Settings authors -->
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<TS version="2.1" language="pt">
<context>
    <name>TessarinPDE</name>
    <message>
        <source>Language</source>
        <translation>pt</translation>
    </message>
    <message>
        <source>Cancel &amp; go</source>
        <translation>Abbrechen &amp; los – pt</translation>
    </message>
    <message>
        <source>Two
lines:</source>
        <translation>Zwei
Zeilen: pt</translation>
    </message>
    <message>
        <source>Unfinished</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Elsewhere</name>
    <message>
        <source>Foreign</source>
        <translation>Fremd</translation>
    </message>
</context>
</TS>
