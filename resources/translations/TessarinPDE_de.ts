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
        <source>Bright Inks</source>
        <translation>Helle Tinten</translation>
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
    <message>
        <source>The ink cartridges that are in the printer.</source>
        <translation>Die Tintenpatronen, die im Drucker sind.</translation>
    </message>
    <message>
        <source>What is printed on; ink amounts and colors are matched to it.</source>
        <translation>Worauf gedruckt wird; Tintenmengen und Farben werden darauf abgestimmt.</translation>
    </message>
    <message>
        <source>How finely the ink drops are placed: a higher resolution shows more detail and takes longer.</source>
        <translation>Wie fein die Tintentropfen gesetzt werden: eine höhere Auflösung zeigt mehr Details und dauert länger.</translation>
    </message>
    <message>
        <source>How colors that cannot be printed are replaced by colors that can.</source>
        <translation>Wie Farben, die nicht druckbar sind, durch druckbare ersetzt werden.</translation>
    </message>
    <message>
        <source>Whether the print is grey or in color, and which kind of color data it is made from.</source>
        <translation>Ob in Grau oder in Farbe gedruckt wird und aus welcher Art von Farbdaten.</translation>
    </message>
    <message>
        <source>The pattern of ink drops from which shades are made.</source>
        <translation>Das Muster aus Tintentropfen, aus dem Farbabstufungen entstehen.</translation>
    </message>
    <message>
        <source>What the numbers of RGB data mean as colors.</source>
        <translation>Welche Farben mit den Zahlen von RGB-Daten gemeint sind.</translation>
    </message>
    <message>
        <source>What the numbers of CMYK data mean as colors.</source>
        <translation>Welche Farben mit den Zahlen von CMYK-Daten gemeint sind.</translation>
    </message>
    <message>
        <source>Makes the whole print lighter or darker.</source>
        <translation>Macht den ganzen Druck heller oder dunkler.</translation>
    </message>
    <message>
        <source>Makes the difference between light and dark stronger or weaker.</source>
        <translation>Verstärkt oder verringert den Unterschied zwischen Hell und Dunkel.</translation>
    </message>
    <message>
        <source>The daylight in which the print will be looked at, from warm (D50) to cool (D80).</source>
        <translation>Das Tageslicht, in dem der Druck betrachtet wird, von warm (D50) bis kühl (D80).</translation>
    </message>
    <message>
        <source>Makes the colors more vivid or more muted.</source>
        <translation>Macht die Farben kräftiger oder gedämpfter.</translation>
    </message>
    <message>
        <source>Makes the dark parts of the print lighter or darker.</source>
        <translation>Macht die dunklen Stellen des Drucks heller oder dunkler.</translation>
    </message>
    <message>
        <source>Gives greys a greenish or reddish tint.</source>
        <translation>Gibt Grautönen einen grünlichen oder rötlichen Stich.</translation>
    </message>
    <message>
        <source>Gives greys a bluish or yellowish tint.</source>
        <translation>Gibt Grautönen einen bläulichen oder gelblichen Stich.</translation>
    </message>
    <message>
        <source>How much of dark and grey tones is printed with black ink in place of colored inks.</source>
        <translation>Wie viel von dunklen und grauen Tönen mit schwarzer statt mit farbiger Tinte gedruckt wird.</translation>
    </message>
    <message>
        <source>How much bright cyan ink is used in place of cyan; without a slider for magenta, how much of all bright inks.</source>
        <translation>Wie viel helles Cyan anstelle von Cyan verwendet wird; ohne Regler für Magenta: wie viel aller hellen Tinten.</translation>
    </message>
    <message>
        <source>How much bright magenta ink is used in place of magenta.</source>
        <translation>Wie viel helles Magenta anstelle von Magenta verwendet wird.</translation>
    </message>
    <message>
        <source>The most ink of all colors together that may fall on one spot.</source>
        <translation>Wie viel Tinte aller Farben zusammen höchstens auf eine Stelle kommt.</translation>
    </message>
    <message>
        <source>Takes this share away from the amount of all inks.</source>
        <translation>Verringert die Menge aller Tinten um diesen Anteil.</translation>
    </message>
    <message>
        <source>The most black ink that may fall on one spot.</source>
        <translation>Wie viel schwarze Tinte höchstens auf eine Stelle kommt.</translation>
    </message>
    <message>
        <source>The most cyan ink that may fall on one spot.</source>
        <translation>Wie viel cyanfarbene Tinte höchstens auf eine Stelle kommt.</translation>
    </message>
    <message>
        <source>The most magenta ink that may fall on one spot.</source>
        <translation>Wie viel magentafarbene Tinte höchstens auf eine Stelle kommt.</translation>
    </message>
    <message>
        <source>The most yellow ink that may fall on one spot.</source>
        <translation>Wie viel gelbe Tinte höchstens auf eine Stelle kommt.</translation>
    </message>
    <message>
        <source>Adds black to the print or takes it away.</source>
        <translation>Gibt dem Druck mehr oder weniger Schwarz.</translation>
    </message>
    <message>
        <source>Adds cyan to the print or takes it away.</source>
        <translation>Gibt dem Druck mehr oder weniger Cyan.</translation>
    </message>
    <message>
        <source>Adds magenta to the print or takes it away.</source>
        <translation>Gibt dem Druck mehr oder weniger Magenta.</translation>
    </message>
    <message>
        <source>Adds yellow to the print or takes it away.</source>
        <translation>Gibt dem Druck mehr oder weniger Gelb.</translation>
    </message>
    <message>
        <source>The job&apos;s ink is counted, but nothing is printed.</source>
        <translation>Die Tinte des Auftrags wird gezählt, aber es wird nichts gedruckt.</translation>
    </message>
    <message>
        <source>Lets the four sliders of this page change the colors of the print.</source>
        <translation>Lässt die vier Regler dieser Seite auf die Farben des Drucks wirken.</translation>
    </message>
    <message>
        <source>Ghostscript turns PostScript data into the printed picture, in place of the system&apos;s own interpreter.</source>
        <translation>Ghostscript macht aus PostScript-Daten das gedruckte Bild, anstelle des Interpreters des Systems.</translation>
    </message>
    <message>
        <source>How much of this ink the last job used.</source>
        <translation>Wie viel von dieser Tinte der letzte Auftrag verbraucht hat.</translation>
    </message>
    <message>
        <source>How much of this ink all jobs together have used.</source>
        <translation>Wie viel von dieser Tinte alle Aufträge zusammen verbraucht haben.</translation>
    </message>
    <message>
        <source>Reads again how much ink was used.</source>
        <translation>Liest erneut, wie viel Tinte verbraucht wurde.</translation>
    </message>
    <message>
        <source>Not available with %1: %2.</source>
        <translation>Nicht verfügbar mit %1: %2.</translation>
    </message>
    <message>
        <source>Not available with %1: %2, a media profile without color data.</source>
        <translation>Nicht verfügbar mit %1: %2, einem Medienprofil ohne Farbdaten.</translation>
    </message>
    <message>
        <source>Available when &quot;%1&quot; is switched on.</source>
        <translation>Verfügbar, wenn „%1“ eingeschaltet ist.</translation>
    </message>
    <message>
        <source>Not available: Ghostscript is not installed.</source>
        <translation>Nicht verfügbar: Ghostscript ist nicht installiert.</translation>
    </message>
    <message>
        <source>Not available with the present settings.</source>
        <translation>Mit den jetzigen Einstellungen nicht verfügbar.</translation>
    </message>
    <message>
        <source>This printer has nothing to choose here.</source>
        <translation>Dieser Drucker hat hier nichts zur Auswahl.</translation>
    </message>
    <message>
        <source>Not offered with %1: %2 (%3): %4</source>
        <translation>Nicht angeboten mit %1: %2 (%3): %4</translation>
    </message>
    <message>
        <source>Excluded by %1: %2 (%3): %4</source>
        <translation>Ausgeschlossen durch %1: %2 (%3): %4</translation>
    </message>
    <message>
        <source>Cannot be chosen (%1): %2</source>
        <translation>Nicht wählbar (%1): %2</translation>
    </message>
    <message>
        <source>A double click or Delete sets the default, %1.</source>
        <translation>Ein Doppelklick oder Entf setzt den Standardwert, %1.</translation>
    </message>
    <message>
        <source>Digits or F2 open a field for a value.</source>
        <translation>Ziffern oder F2 öffnen ein Feld für einen Wert.</translation>
    </message>
    <message>
        <source>Reset to default (%1)</source>
        <translation>Auf Standard zurücksetzen (%1)</translation>
    </message>
    <message>
        <source>Enter a value…</source>
        <translation>Wert eingeben …</translation>
    </message>
    <message>
        <source>Enter a value from %1 to %2.</source>
        <translation>Geben Sie einen Wert von %1 bis %2 ein.</translation>
    </message>
</context>
</TS>
