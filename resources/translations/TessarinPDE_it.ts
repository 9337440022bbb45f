<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>TessarinPDE</name>
    <message>
        <source>Tessarin Settings</source>
        <translation>Impostazioni Tessarin</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>Correzione</translation>
    </message>
    <message>
        <source>Ink Consumption</source>
        <translation>Consumo inch.</translation>
    </message>
    <message>
        <source>Ink Usage</source>
        <translation>Inchiostri</translation>
    </message>
    <message>
        <source>Ink Limits</source>
        <translation>Limiti inch.</translation>
    </message>
    <message>
        <source>Media Type:</source>
        <translation>Supporto:</translation>
    </message>
    <message>
        <source>Dithering:</source>
        <translation>Dithering:</translation>
    </message>
    <message>
        <source>Cartridge:</source>
        <translation>Cartuccia:</translation>
    </message>
    <message>
        <source>Print Resolution:</source>
        <translation>Risoluzione stampa:</translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation>Luminosità:</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>Contrasto:</translation>
    </message>
    <message>
        <source>Use Ghostscript for PostScript</source>
        <translation>Usa Ghostscript per PostScript</translation>
    </message>
    <message>
        <source>Rendering Intent:</source>
        <translation>Intento di resa:</translation>
    </message>
    <message>
        <source>Color Mode:</source>
        <translation>Modo colore:</translation>
    </message>
    <message>
        <source>Color Space:</source>
        <translation>Spazio colore:</translation>
    </message>
    <message>
        <source>Reference Light:</source>
        <translation>Illuminante:</translation>
    </message>
    <message>
        <source>Color Gamut:</source>
        <translation>Gamut colore:</translation>
    </message>
    <message>
        <source>Shadows:</source>
        <translation>Ombre:</translation>
    </message>
    <message>
        <source>Greytone A:</source>
        <translation>Grigio A:</translation>
    </message>
    <message>
        <source>Greytone B:</source>
        <translation>Grigio B:</translation>
    </message>
    <message>
        <source>Manual color correction</source>
        <translation>Correzione colore manuale</translation>
    </message>
    <message>
        <source>Black:</source>
        <translation>Nero:</translation>
    </message>
    <message>
        <source>Cyan:</source>
        <translation>Ciano:</translation>
    </message>
    <message>
        <source>Magenta:</source>
        <translation>Magenta:</translation>
    </message>
    <message>
        <source>Yellow:</source>
        <translation>Giallo:</translation>
    </message>
    <message>
        <source>Last Job</source>
        <translation>Ult. lavoro</translation>
    </message>
    <message>
        <source>All Jobs</source>
        <translation>Tot. lavori</translation>
    </message>
    <message>
        <source>Sum:</source>
        <translation>Totale:</translation>
    </message>
    <message>
        <source>Print simulation (the printer prints nothing)</source>
        <translation>Simulazione stampa (la stampante non stampa)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Ricarica</translation>
    </message>
    <message>
        <source>Black Usage (UCR):</source>
        <translation>Uso del nero (UCR):</translation>
    </message>
    <message>
        <source>Bright Cyan
Usage:</source>
        <translation>Uso ciano
chiaro:</translation>
    </message>
    <message>
        <source>Bright Inks
Usage:</source>
        <translation>Uso inch.
chiari:</translation>
    </message>
    <message>
        <source>Total Ink Maximum:</source>
        <translation>Copertura max (TAC):</translation>
    </message>
    <message>
        <source>Ink-Intensity:</source>
        <translation>Intensità inch.:</translation>
    </message>
    <message>
        <source>Ink-Limit Black:</source>
        <translation>Limite nero:</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan:</source>
        <translation>Limite ciano:</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta:</source>
        <translation>Limite magenta:</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow:</source>
        <translation>Limite giallo:</translation>
    </message>
    <message>
        <source>Print Simulation</source>
        <translation>Simulazione stampa</translation>
    </message>
    <message>
        <source>ON - printing is disabled</source>
        <translation>ON - stampa disattivata</translation>
    </message>
    <message>
        <source>OFF - printing is enabled</source>
        <translation>OFF - stampa attiva</translation>
    </message>
    <message>
        <source>Cartridge</source>
        <translation>Cartuccia</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Supporto</translation>
    </message>
    <message>
        <source>Print Resolution</source>
        <translation>Risoluzione stampa</translation>
    </message>
    <message>
        <source>Rendering Intent</source>
        <translation>Intento di resa</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Modo colore</translation>
    </message>
    <message>
        <source>Dithering</source>
        <translation>Dithering</translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation>Spazio colore</translation>
    </message>
    <message>
        <source>CMYK-Colorspace</source>
        <translation>Spazio colore CMYK</translation>
    </message>
    <message>
        <source>Postscript-Processor</source>
        <translation>Interprete PostScript</translation>
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
        <translation>attivo</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>inattivo</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrasto</translation>
    </message>
    <message>
        <source>Reference Light</source>
        <translation>Illuminante</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Gamut colore</translation>
    </message>
    <message>
        <source>Shadows</source>
        <translation>Ombre</translation>
    </message>
    <message>
        <source>Greytone A</source>
        <translation>Grigio A</translation>
    </message>
    <message>
        <source>Greytone B</source>
        <translation>Grigio B</translation>
    </message>
    <message>
        <source>Black Usage (UCR)</source>
        <translation>Uso del nero (UCR)</translation>
    </message>
    <message>
        <source>Usage Bright Cyan</source>
        <translation>Uso ciano chiaro</translation>
    </message>
    <message>
        <source>Usage Bright Magenta</source>
        <translation>Uso magenta chiaro</translation>
    </message>
    <message>
        <source>Bright Inks Usage:</source>
        <translation>Uso inch. chiari:</translation>
    </message>
    <message>
        <source>Total Ink Maximum</source>
        <translation>Copertura max (TAC)</translation>
    </message>
    <message>
        <source>Ink-Intensity</source>
        <translation>Intensità inch.</translation>
    </message>
    <message>
        <source>Ink-Limit Black</source>
        <translation>Limite nero</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan</source>
        <translation>Limite ciano</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta</source>
        <translation>Limite magenta</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow</source>
        <translation>Limite giallo</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Nero</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Ciano</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Giallo</translation>
    </message>
    <message>
        <source>Photo Black</source>
        <translation>Nero foto</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grigio</translation>
    </message>
    <message>
        <source>bright Grey</source>
        <translation>Grigio chiaro</translation>
    </message>
    <message>
        <source>bright Mag.</source>
        <translation>Mag. chiaro</translation>
    </message>
    <message>
        <source>bright Cyan</source>
        <translation>Ciano chiaro</translation>
    </message>
    <message>
        <source>br. Yellow</source>
        <translation>Giallo ch.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
    <message>
        <source>Optimizer</source>
        <translation>Ottimizz.</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Arancio</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Viola</translation>
    </message>
    <message>
        <source>PG Black</source>
        <translation>Nero PG</translation>
    </message>
    <message>
        <source>Matte Black</source>
        <translation>Nero opaco</translation>
    </message>
    <message>
        <source>dark Grey</source>
        <translation>Grigio sc.</translation>
    </message>
    <message>
        <source>Attention:</source>
        <translation>Attenzione:</translation>
    </message>
    <message>
        <source>You have chosen an incomplete media profile without color data!
This profile should only be used for printing color charts!</source>
        <translation>È stato scelto un profilo del supporto incompleto, senza dati di colore!
Questo profilo va usato solo per stampare tavole colori!</translation>
    </message>
</context>
</TS>
