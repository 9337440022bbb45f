<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>TessarinPDE</name>
    <message>
        <source>Tessarin Settings</source>
        <translation>Ustawienia Tessarin</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kolor</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>Korekcja</translation>
    </message>
    <message>
        <source>Ink Consumption</source>
        <translation>Zużycie tuszu</translation>
    </message>
    <message>
        <source>Ink Usage</source>
        <translation>Tusze</translation>
    </message>
    <message>
        <source>Ink Limits</source>
        <translation>Limity tuszu</translation>
    </message>
    <message>
        <source>Media Type:</source>
        <translation>Typ nośnika:</translation>
    </message>
    <message>
        <source>Dithering:</source>
        <translation>Rastrowanie:</translation>
    </message>
    <message>
        <source>Cartridge:</source>
        <translation>Wkład:</translation>
    </message>
    <message>
        <source>Print Resolution:</source>
        <translation>Rozdzielczość:</translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation>Jasność:</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>Kontrast:</translation>
    </message>
    <message>
        <source>Use Ghostscript for PostScript</source>
        <translation>Użyj Ghostscript dla PostScript</translation>
    </message>
    <message>
        <source>Rendering Intent:</source>
        <translation>Metoda renderowania:</translation>
    </message>
    <message>
        <source>Color Mode:</source>
        <translation>Tryb koloru:</translation>
    </message>
    <message>
        <source>Color Space:</source>
        <translation>Przestrz. barw:</translation>
    </message>
    <message>
        <source>Reference Light:</source>
        <translation>Światło wzorcowe:</translation>
    </message>
    <message>
        <source>Color Gamut:</source>
        <translation>Gamut barw:</translation>
    </message>
    <message>
        <source>Shadows:</source>
        <translation>Cienie:</translation>
    </message>
    <message>
        <source>Greytone A:</source>
        <translation>Szarość A:</translation>
    </message>
    <message>
        <source>Greytone B:</source>
        <translation>Szarość B:</translation>
    </message>
    <message>
        <source>Manual color correction</source>
        <translation>Ręczna korekcja kolorów</translation>
    </message>
    <message>
        <source>Black:</source>
        <translation>Czarny:</translation>
    </message>
    <message>
        <source>Cyan:</source>
        <translation>Cyjan:</translation>
    </message>
    <message>
        <source>Magenta:</source>
        <translation>Magenta:</translation>
    </message>
    <message>
        <source>Yellow:</source>
        <translation>Żółty:</translation>
    </message>
    <message>
        <source>Last Job</source>
        <translation>Ost. zadanie</translation>
    </message>
    <message>
        <source>All Jobs</source>
        <translation>Wszystkie</translation>
    </message>
    <message>
        <source>Sum:</source>
        <translation>Suma:</translation>
    </message>
    <message>
        <source>Print simulation (the printer prints nothing)</source>
        <translation>Symulacja druku (drukarka nic nie drukuje)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Odśwież</translation>
    </message>
    <message>
        <source>Black Usage (UCR):</source>
        <translation>Udział czerni (UCR):</translation>
    </message>
    <message>
        <source>Bright Cyan
Usage:</source>
        <translation>Udział jasn.
cyjanu:</translation>
    </message>
    <message>
        <source>Bright Inks
Usage:</source>
        <translation>Udział jasn.
tuszy:</translation>
    </message>
    <message>
        <source>Total Ink Maximum:</source>
        <translation>Łączny limit tuszu:</translation>
    </message>
    <message>
        <source>Ink-Intensity:</source>
        <translation>Intens. tuszu:</translation>
    </message>
    <message>
        <source>Ink-Limit Black:</source>
        <translation>Limit czarnego:</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan:</source>
        <translation>Limit cyjanu:</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta:</source>
        <translation>Limit magenty:</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow:</source>
        <translation>Limit żółtego:</translation>
    </message>
    <message>
        <source>Print Simulation</source>
        <translation>Symulacja druku</translation>
    </message>
    <message>
        <source>ON - printing is disabled</source>
        <translation>WŁ. - drukarka nie drukuje</translation>
    </message>
    <message>
        <source>OFF - printing is enabled</source>
        <translation>WYŁ. - drukarka drukuje</translation>
    </message>
    <message>
        <source>Cartridge</source>
        <translation>Wkład</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Typ nośnika</translation>
    </message>
    <message>
        <source>Print Resolution</source>
        <translation>Rozdzielczość</translation>
    </message>
    <message>
        <source>Rendering Intent</source>
        <translation>Metoda renderowania</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Tryb koloru</translation>
    </message>
    <message>
        <source>Dithering</source>
        <translation>Rastrowanie</translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation>Przestrz. barw</translation>
    </message>
    <message>
        <source>CMYK-Colorspace</source>
        <translation>Przestrzeń CMYK</translation>
    </message>
    <message>
        <source>Postscript-Processor</source>
        <translation>Interpreter PostScript</translation>
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
        <translation>włączone</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>wyłączone</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Jasność</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Reference Light</source>
        <translation>Światło wzorcowe</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Gamut barw</translation>
    </message>
    <message>
        <source>Shadows</source>
        <translation>Cienie</translation>
    </message>
    <message>
        <source>Greytone A</source>
        <translation>Szarość A</translation>
    </message>
    <message>
        <source>Greytone B</source>
        <translation>Szarość B</translation>
    </message>
    <message>
        <source>Black Usage (UCR)</source>
        <translation>Udział czerni (UCR)</translation>
    </message>
    <message>
        <source>Usage Bright Cyan</source>
        <translation>Udział jasn. cyjanu</translation>
    </message>
    <message>
        <source>Usage Bright Magenta</source>
        <translation>Udział jasn. magenty</translation>
    </message>
    <message>
        <source>Bright Inks Usage:</source>
        <translation>Udział jasn. tuszy:</translation>
    </message>
    <message>
        <source>Total Ink Maximum</source>
        <translation>Łączny limit tuszu</translation>
    </message>
    <message>
        <source>Ink-Intensity</source>
        <translation>Intens. tuszu</translation>
    </message>
    <message>
        <source>Ink-Limit Black</source>
        <translation>Limit czarnego</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan</source>
        <translation>Limit cyjanu</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta</source>
        <translation>Limit magenty</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow</source>
        <translation>Limit żółtego</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Czarny</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyjan</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Żółty</translation>
    </message>
    <message>
        <source>Photo Black</source>
        <translation>Czarny foto</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Szary</translation>
    </message>
    <message>
        <source>bright Grey</source>
        <translation>Jasnoszary</translation>
    </message>
    <message>
        <source>bright Mag.</source>
        <translation>Jasna mag.</translation>
    </message>
    <message>
        <source>bright Cyan</source>
        <translation>Jasny cyjan</translation>
    </message>
    <message>
        <source>br. Yellow</source>
        <translation>Jasnożółty</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Czerwony</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zielony</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Niebieski</translation>
    </message>
    <message>
        <source>Optimizer</source>
        <translation>Optymaliz.</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Pomarańcz.</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Fiolet</translation>
    </message>
    <message>
        <source>PG Black</source>
        <translation>Czarny PG</translation>
    </message>
    <message>
        <source>Matte Black</source>
        <translation>Czarny mat</translation>
    </message>
    <message>
        <source>dark Grey</source>
        <translation>Ciemnoszary</translation>
    </message>
    <message>
        <source>Attention:</source>
        <translation>Uwaga:</translation>
    </message>
    <message>
        <source>You have chosen an incomplete media profile without color data!
This profile should only be used for printing color charts!</source>
        <translation>Wybrano niepełny profil nośnika bez danych o kolorach!
Ten profil służy tylko do drukowania wzorników kolorów!</translation>
    </message>
</context>
</TS>
