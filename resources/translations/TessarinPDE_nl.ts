<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>TessarinPDE</name>
    <message>
        <source>Tessarin Settings</source>
        <translation>Tessarin-instellingen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kleur</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>Correctie</translation>
    </message>
    <message>
        <source>Ink Consumption</source>
        <translation>Inktverbruik</translation>
    </message>
    <message>
        <source>Ink Usage</source>
        <translation>Inktgebruik</translation>
    </message>
    <message>
        <source>Ink Limits</source>
        <translation>Inktlimieten</translation>
    </message>
    <message>
        <source>Media Type:</source>
        <translation>Mediatype:</translation>
    </message>
    <message>
        <source>Dithering:</source>
        <translation>Rastering:</translation>
    </message>
    <message>
        <source>Cartridge:</source>
        <translation>Cartridge:</translation>
    </message>
    <message>
        <source>Print Resolution:</source>
        <translation>Afdrukresolutie:</translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation>Helderheid:</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>Contrast:</translation>
    </message>
    <message>
        <source>Use Ghostscript for PostScript</source>
        <translation>Ghostscript voor PostScript</translation>
    </message>
    <message>
        <source>Rendering Intent:</source>
        <translation>Rendermethode:</translation>
    </message>
    <message>
        <source>Color Mode:</source>
        <translation>Kleurmodus:</translation>
    </message>
    <message>
        <source>Color Space:</source>
        <translation>Kleurruimte:</translation>
    </message>
    <message>
        <source>Reference Light:</source>
        <translation>Referentielicht:</translation>
    </message>
    <message>
        <source>Color Gamut:</source>
        <translation>Kleuromvang:</translation>
    </message>
    <message>
        <source>Shadows:</source>
        <translation>Schaduwen:</translation>
    </message>
    <message>
        <source>Greytone A:</source>
        <translation>Grijstoon A:</translation>
    </message>
    <message>
        <source>Greytone B:</source>
        <translation>Grijstoon B:</translation>
    </message>
    <message>
        <source>Manual color correction</source>
        <translation>Handmatige kleurcorrectie</translation>
    </message>
    <message>
        <source>Black:</source>
        <translation>Zwart:</translation>
    </message>
    <message>
        <source>Cyan:</source>
        <translation>Cyaan:</translation>
    </message>
    <message>
        <source>Magenta:</source>
        <translation>Magenta:</translation>
    </message>
    <message>
        <source>Yellow:</source>
        <translation>Geel:</translation>
    </message>
    <message>
        <source>Last Job</source>
        <translation>Laatste taak</translation>
    </message>
    <message>
        <source>All Jobs</source>
        <translation>Alle taken</translation>
    </message>
    <message>
        <source>Sum:</source>
        <translation>Som:</translation>
    </message>
    <message>
        <source>Print simulation (the printer prints nothing)</source>
        <translation>Afdruksimulatie (de printer drukt niets af)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Herladen</translation>
    </message>
    <message>
        <source>Black Usage (UCR):</source>
        <translation>Zwartaandeel (UCR):</translation>
    </message>
    <message>
        <source>Bright Cyan
Usage:</source>
        <translation>Aandeel
lichtcyaan:</translation>
    </message>
    <message>
        <source>Bright Inks
Usage:</source>
        <translation>Aandeel
lichte inkt:</translation>
    </message>
    <message>
        <source>Total Ink Maximum:</source>
        <translation>Max. inktdekking:</translation>
    </message>
    <message>
        <source>Ink-Intensity:</source>
        <translation>Inktintensiteit:</translation>
    </message>
    <message>
        <source>Ink-Limit Black:</source>
        <translation>Inktlimiet zwart:</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan:</source>
        <translation>Inktlimiet cyaan:</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta:</source>
        <translation>Inktlimiet magenta:</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow:</source>
        <translation>Inktlimiet geel:</translation>
    </message>
    <message>
        <source>Print Simulation</source>
        <translation>Afdruksimulatie</translation>
    </message>
    <message>
        <source>ON - printing is disabled</source>
        <translation>AAN - er wordt niet afgedrukt</translation>
    </message>
    <message>
        <source>OFF - printing is enabled</source>
        <translation>UIT - er wordt afgedrukt</translation>
    </message>
    <message>
        <source>Cartridge</source>
        <translation>Cartridge</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Mediatype</translation>
    </message>
    <message>
        <source>Print Resolution</source>
        <translation>Afdrukresolutie</translation>
    </message>
    <message>
        <source>Rendering Intent</source>
        <translation>Rendermethode</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Kleurmodus</translation>
    </message>
    <message>
        <source>Dithering</source>
        <translation>Rastering</translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation>Kleurruimte</translation>
    </message>
    <message>
        <source>CMYK-Colorspace</source>
        <translation>CMYK-kleurruimte</translation>
    </message>
    <message>
        <source>Postscript-Processor</source>
        <translation>PostScript-interpreter</translation>
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
        <translation>aan</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>uit</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helderheid</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Reference Light</source>
        <translation>Referentielicht</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Kleuromvang</translation>
    </message>
    <message>
        <source>Shadows</source>
        <translation>Schaduwen</translation>
    </message>
    <message>
        <source>Greytone A</source>
        <translation>Grijstoon A</translation>
    </message>
    <message>
        <source>Greytone B</source>
        <translation>Grijstoon B</translation>
    </message>
    <message>
        <source>Black Usage (UCR)</source>
        <translation>Zwartaandeel (UCR)</translation>
    </message>
    <message>
        <source>Usage Bright Cyan</source>
        <translation>Aandeel lichtcyaan</translation>
    </message>
    <message>
        <source>Usage Bright Magenta</source>
        <translation>Aandeel lichtmagenta</translation>
    </message>
    <message>
        <source>Bright Inks Usage:</source>
        <translation>Aandeel lichte inkt:</translation>
    </message>
    <message>
        <source>Total Ink Maximum</source>
        <translation>Max. inktdekking</translation>
    </message>
    <message>
        <source>Ink-Intensity</source>
        <translation>Inktintensiteit</translation>
    </message>
    <message>
        <source>Ink-Limit Black</source>
        <translation>Inktlimiet zwart</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan</source>
        <translation>Inktlimiet cyaan</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta</source>
        <translation>Inktlimiet magenta</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow</source>
        <translation>Inktlimiet geel</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Zwart</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyaan</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Geel</translation>
    </message>
    <message>
        <source>Photo Black</source>
        <translation>Fotozwart</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grijs</translation>
    </message>
    <message>
        <source>bright Grey</source>
        <translation>Lichtgrijs</translation>
    </message>
    <message>
        <source>bright Mag.</source>
        <translation>Lichtmagenta</translation>
    </message>
    <message>
        <source>bright Cyan</source>
        <translation>Lichtcyaan</translation>
    </message>
    <message>
        <source>br. Yellow</source>
        <translation>Lichtgeel</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rood</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Groen</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blauw</translation>
    </message>
    <message>
        <source>Optimizer</source>
        <translation>Optimizer</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Oranje</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>PG Black</source>
        <translation>PG-zwart</translation>
    </message>
    <message>
        <source>Matte Black</source>
        <translation>Matzwart</translation>
    </message>
    <message>
        <source>dark Grey</source>
        <translation>Donkergrijs</translation>
    </message>
    <message>
        <source>Attention:</source>
        <translation>Let op:</translation>
    </message>
    <message>
        <source>You have chosen an incomplete media profile without color data!
This profile should only be used for printing color charts!</source>
        <translation>U hebt een onvolledig mediaprofiel zonder kleurgegevens gekozen!
Gebruik dit profiel alleen om kleurenkaarten af te drukken!</translation>
    </message>
</context>
</TS>
