<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>TessarinPDE</name>
    <message>
        <source>Tessarin Settings</source>
        <translation>Tessarin-Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>Korrektur</translation>
    </message>
    <message>
        <source>Ink Consumption</source>
        <translation>Verbrauch</translation>
    </message>
    <message>
        <source>Ink Usage</source>
        <translation>Tintennutzung</translation>
    </message>
    <message>
        <source>Ink Limits</source>
        <translation>Tintenlimits</translation>
    </message>
    <message>
        <source>Media Type:</source>
        <translation>Medientyp:</translation>
    </message>
    <message>
        <source>Dithering:</source>
        <translation>Rasterung:</translation>
    </message>
    <message>
        <source>Cartridge:</source>
        <translation>Patrone:</translation>
    </message>
    <message>
        <source>Print Resolution:</source>
        <translation>Druckauflösung:</translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation>Helligkeit:</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>Kontrast:</translation>
    </message>
    <message>
        <source>Use Ghostscript for PostScript</source>
        <translation>Ghostscript für PostScript verwenden</translation>
    </message>
    <message>
        <source>Rendering Intent:</source>
        <translation>Rendering-Intent:</translation>
    </message>
    <message>
        <source>Color Mode:</source>
        <translation>Farbmodus:</translation>
    </message>
    <message>
        <source>Color Space:</source>
        <translation>Farbraum:</translation>
    </message>
    <message>
        <source>Reference Light:</source>
        <translation>Referenzlicht:</translation>
    </message>
    <message>
        <source>Color Gamut:</source>
        <translation>Farbumfang:</translation>
    </message>
    <message>
        <source>Shadows:</source>
        <translation>Schatten:</translation>
    </message>
    <message>
        <source>Greytone A:</source>
        <translation>Grauton A:</translation>
    </message>
    <message>
        <source>Greytone B:</source>
        <translation>Grauton B:</translation>
    </message>
    <message>
        <source>Manual color correction</source>
        <translation>Manuelle Farbkorrektur</translation>
    </message>
    <message>
        <source>Black:</source>
        <translation>Schwarz:</translation>
    </message>
    <message>
        <source>Cyan:</source>
        <translation>Cyan:</translation>
    </message>
    <message>
        <source>Magenta:</source>
        <translation>Magenta:</translation>
    </message>
    <message>
        <source>Yellow:</source>
        <translation>Gelb:</translation>
    </message>
    <message>
        <source>Last Job</source>
        <translation>Letzter Auftrag</translation>
    </message>
    <message>
        <source>All Jobs</source>
        <translation>Alle Aufträge</translation>
    </message>
    <message>
        <source>Sum:</source>
        <translation>Summe:</translation>
    </message>
    <message>
        <source>Print simulation (the printer prints nothing)</source>
        <translation>Drucksimulation (der Drucker druckt nichts)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Black Usage (UCR):</source>
        <translation>Schwarzanteil (UCR):</translation>
    </message>
    <message>
        <source>Bright Cyan
Usage:</source>
        <translation>Hellcyan-
Anteil:</translation>
    </message>
    <message>
        <source>Bright Inks
Usage:</source>
        <translation>Helltinten-
Anteil:</translation>
    </message>
    <message>
        <source>Total Ink Maximum:</source>
        <translation>Gesamtfarbauftrag:</translation>
    </message>
    <message>
        <source>Ink-Intensity:</source>
        <translation>Tintenstärke:</translation>
    </message>
    <message>
        <source>Ink-Limit Black:</source>
        <translation>Limit Schwarz:</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan:</source>
        <translation>Limit Cyan:</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta:</source>
        <translation>Limit Magenta:</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow:</source>
        <translation>Limit Gelb:</translation>
    </message>
    <message>
        <source>Print Simulation</source>
        <translation>Drucksimulation</translation>
    </message>
    <message>
        <source>ON - printing is disabled</source>
        <translation>EIN - es wird nicht gedruckt</translation>
    </message>
    <message>
        <source>OFF - printing is enabled</source>
        <translation>AUS - es wird gedruckt</translation>
    </message>
    <message>
        <source>Cartridge</source>
        <translation>Patrone</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Medientyp</translation>
    </message>
    <message>
        <source>Print Resolution</source>
        <translation>Druckauflösung</translation>
    </message>
    <message>
        <source>Rendering Intent</source>
        <translation>Rendering-Intent</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>Dithering</source>
        <translation>Rasterung</translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation>Farbraum</translation>
    </message>
    <message>
        <source>CMYK-Colorspace</source>
        <translation>CMYK-Farbraum</translation>
    </message>
    <message>
        <source>Postscript-Processor</source>
        <translation>PostScript-Interpreter</translation>
    </message>
    <message>
        <source>Ghostscript</source>
        <translation>Ghostscript</translation>
    </message>
    <message>
        <source>Mac OS</source>
        <translation>Mac OS</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>eingeschaltet</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>ausgeschaltet</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Reference Light</source>
        <translation>Referenzlicht</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Farbumfang</translation>
    </message>
    <message>
        <source>Shadows</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Greytone A</source>
        <translation>Grauton A</translation>
    </message>
    <message>
        <source>Greytone B</source>
        <translation>Grauton B</translation>
    </message>
    <message>
        <source>Black Usage (UCR)</source>
        <translation>Schwarzanteil (UCR)</translation>
    </message>
    <message>
        <source>Usage Bright Cyan</source>
        <translation>Anteil Hellcyan</translation>
    </message>
    <message>
        <source>Usage Bright Magenta</source>
        <translation>Anteil Hellmagenta</translation>
    </message>
    <message>
        <source>Bright Inks Usage:</source>
        <translation>Helltinten-Anteil:</translation>
    </message>
    <message>
        <source>Total Ink Maximum</source>
        <translation>Gesamtfarbauftrag</translation>
    </message>
    <message>
        <source>Ink-Intensity</source>
        <translation>Tintenstärke</translation>
    </message>
    <message>
        <source>Ink-Limit Black</source>
        <translation>Limit Schwarz</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan</source>
        <translation>Limit Cyan</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta</source>
        <translation>Limit Magenta</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow</source>
        <translation>Limit Gelb</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Photo Black</source>
        <translation>Fotoschwarz</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>bright Grey</source>
        <translation>Hellgrau</translation>
    </message>
    <message>
        <source>bright Mag.</source>
        <translation>Hellmagenta</translation>
    </message>
    <message>
        <source>bright Cyan</source>
        <translation>Hellcyan</translation>
    </message>
    <message>
        <source>br. Yellow</source>
        <translation>Hellgelb</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Optimizer</source>
        <translation>Glanzoptimierer</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>PG Black</source>
        <translation>PG-Schwarz</translation>
    </message>
    <message>
        <source>Matte Black</source>
        <translation>Mattschwarz</translation>
    </message>
    <message>
        <source>dark Grey</source>
        <translation>Dunkelgrau</translation>
    </message>
    <message>
        <source>Attention:</source>
        <translation>Achtung:</translation>
    </message>
    <message>
        <source>You have chosen an incomplete media profile without color data!
This profile should only be used for printing color charts!</source>
        <translation>Sie haben ein unvollständiges Medienprofil ohne Farbdaten gewählt!
Dieses Profil ist nur zum Drucken von Farbtafeln gedacht!</translation>
    </message>
</context>
</TS>
