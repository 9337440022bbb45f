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
        <source>Bright Inks</source>
        <translation>Lichte inkten</translation>
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
    <message>
        <source>The ink cartridges that are in the printer.</source>
        <translation>De cartridges die in de printer zitten.</translation>
    </message>
    <message>
        <source>What is printed on; ink amounts and colors are matched to it.</source>
        <translation>Waarop wordt afgedrukt; inkthoeveelheden en kleuren worden erop afgestemd.</translation>
    </message>
    <message>
        <source>How finely the ink drops are placed: a higher resolution shows more detail and takes longer.</source>
        <translation>Hoe fijn de inktdruppels worden geplaatst: een hogere resolutie toont meer details en duurt langer.</translation>
    </message>
    <message>
        <source>How colors that cannot be printed are replaced by colors that can.</source>
        <translation>Hoe kleuren die niet kunnen worden afgedrukt, door afdrukbare worden vervangen.</translation>
    </message>
    <message>
        <source>Whether the print is grey or in color, and which kind of color data it is made from.</source>
        <translation>Of in grijs of in kleur wordt afgedrukt, en uit welk soort kleurgegevens.</translation>
    </message>
    <message>
        <source>The pattern of ink drops from which shades are made.</source>
        <translation>Het patroon van inktdruppels waaruit tinten ontstaan.</translation>
    </message>
    <message>
        <source>What the numbers of RGB data mean as colors.</source>
        <translation>Welke kleuren de getallen van RGB-gegevens betekenen.</translation>
    </message>
    <message>
        <source>What the numbers of CMYK data mean as colors.</source>
        <translation>Welke kleuren de getallen van CMYK-gegevens betekenen.</translation>
    </message>
    <message>
        <source>Makes the whole print lighter or darker.</source>
        <translation>Maakt de hele afdruk lichter of donkerder.</translation>
    </message>
    <message>
        <source>Makes the difference between light and dark stronger or weaker.</source>
        <translation>Maakt het verschil tussen licht en donker groter of kleiner.</translation>
    </message>
    <message>
        <source>The daylight in which the print will be looked at, from warm (D50) to cool (D80).</source>
        <translation>Het daglicht waarin de afdruk wordt bekeken, van warm (D50) tot koel (D80).</translation>
    </message>
    <message>
        <source>Makes the colors more vivid or more muted.</source>
        <translation>Maakt de kleuren levendiger of doffer.</translation>
    </message>
    <message>
        <source>Makes the dark parts of the print lighter or darker.</source>
        <translation>Maakt de donkere delen van de afdruk lichter of donkerder.</translation>
    </message>
    <message>
        <source>Gives greys a greenish or reddish tint.</source>
        <translation>Geeft grijstinten een groenige of roodachtige zweem.</translation>
    </message>
    <message>
        <source>Gives greys a bluish or yellowish tint.</source>
        <translation>Geeft grijstinten een blauwige of gelige zweem.</translation>
    </message>
    <message>
        <source>How much of dark and grey tones is printed with black ink in place of colored inks.</source>
        <translation>Hoeveel van donkere en grijze tinten met zwarte in plaats van gekleurde inkt wordt afgedrukt.</translation>
    </message>
    <message>
        <source>How much bright cyan ink is used in place of cyan; without a slider for magenta, how much of all bright inks.</source>
        <translation>Hoeveel lichtcyaan in plaats van cyaan wordt gebruikt; zonder schuifregelaar voor magenta: hoeveel van alle lichte inkten.</translation>
    </message>
    <message>
        <source>How much bright magenta ink is used in place of magenta.</source>
        <translation>Hoeveel lichtmagenta in plaats van magenta wordt gebruikt.</translation>
    </message>
    <message>
        <source>The most ink of all colors together that may fall on one spot.</source>
        <translation>De meeste inkt van alle kleuren samen die op één plek mag komen.</translation>
    </message>
    <message>
        <source>Takes this share away from the amount of all inks.</source>
        <translation>Vermindert de hoeveelheid van alle inkten met dit aandeel.</translation>
    </message>
    <message>
        <source>The most black ink that may fall on one spot.</source>
        <translation>De meeste zwarte inkt die op één plek mag komen.</translation>
    </message>
    <message>
        <source>The most cyan ink that may fall on one spot.</source>
        <translation>De meeste cyaaninkt die op één plek mag komen.</translation>
    </message>
    <message>
        <source>The most magenta ink that may fall on one spot.</source>
        <translation>De meeste magenta-inkt die op één plek mag komen.</translation>
    </message>
    <message>
        <source>The most yellow ink that may fall on one spot.</source>
        <translation>De meeste gele inkt die op één plek mag komen.</translation>
    </message>
    <message>
        <source>Adds black to the print or takes it away.</source>
        <translation>Geeft de afdruk meer of minder zwart.</translation>
    </message>
    <message>
        <source>Adds cyan to the print or takes it away.</source>
        <translation>Geeft de afdruk meer of minder cyaan.</translation>
    </message>
    <message>
        <source>Adds magenta to the print or takes it away.</source>
        <translation>Geeft de afdruk meer of minder magenta.</translation>
    </message>
    <message>
        <source>Adds yellow to the print or takes it away.</source>
        <translation>Geeft de afdruk meer of minder geel.</translation>
    </message>
    <message>
        <source>The job&apos;s ink is counted, but nothing is printed.</source>
        <translation>De inkt van de taak wordt geteld, maar er wordt niets afgedrukt.</translation>
    </message>
    <message>
        <source>Lets the four sliders of this page change the colors of the print.</source>
        <translation>Laat de vier schuifregelaars van deze pagina de kleuren van de afdruk veranderen.</translation>
    </message>
    <message>
        <source>Ghostscript turns PostScript data into the printed picture, in place of the system&apos;s own interpreter.</source>
        <translation>Ghostscript maakt van PostScript-gegevens het afgedrukte beeld, in plaats van de interpreter van het systeem.</translation>
    </message>
    <message>
        <source>How much of this ink the last job used.</source>
        <translation>Hoeveel van deze inkt de laatste taak heeft verbruikt.</translation>
    </message>
    <message>
        <source>How much of this ink all jobs together have used.</source>
        <translation>Hoeveel van deze inkt alle taken samen hebben verbruikt.</translation>
    </message>
    <message>
        <source>Reads again how much ink was used.</source>
        <translation>Leest opnieuw hoeveel inkt is verbruikt.</translation>
    </message>
    <message>
        <source>Not available with %1: %2.</source>
        <translation>Niet beschikbaar met %1: %2.</translation>
    </message>
    <message>
        <source>Not available with %1: %2, a media profile without color data.</source>
        <translation>Niet beschikbaar met %1: %2, een mediaprofiel zonder kleurgegevens.</translation>
    </message>
    <message>
        <source>Available when &quot;%1&quot; is switched on.</source>
        <translation>Beschikbaar als ‘%1’ is ingeschakeld.</translation>
    </message>
    <message>
        <source>Not available: Ghostscript is not installed.</source>
        <translation>Niet beschikbaar: Ghostscript is niet geïnstalleerd.</translation>
    </message>
    <message>
        <source>Not available with the present settings.</source>
        <translation>Niet beschikbaar met de huidige instellingen.</translation>
    </message>
    <message>
        <source>This printer has nothing to choose here.</source>
        <translation>Deze printer heeft hier niets te kiezen.</translation>
    </message>
    <message>
        <source>Not offered with %1: %2 (%3): %4</source>
        <translation>Niet aangeboden met %1: %2 (%3): %4</translation>
    </message>
    <message>
        <source>Excluded by %1: %2 (%3): %4</source>
        <translation>Uitgesloten door %1: %2 (%3): %4</translation>
    </message>
    <message>
        <source>Cannot be chosen (%1): %2</source>
        <translation>Niet te kiezen (%1): %2</translation>
    </message>
    <message>
        <source>A double click or Delete sets the default, %1.</source>
        <translation>Een dubbelklik of Delete zet de standaardwaarde, %1.</translation>
    </message>
    <message>
        <source>Digits or F2 open a field for a value.</source>
        <translation>Cijfers of F2 openen een veld voor een waarde.</translation>
    </message>
    <message>
        <source>Reset to default (%1)</source>
        <translation>Standaardwaarde herstellen (%1)</translation>
    </message>
    <message>
        <source>Enter a value…</source>
        <translation>Waarde invoeren…</translation>
    </message>
    <message>
        <source>Enter a value from %1 to %2.</source>
        <translation>Voer een waarde van %1 tot %2 in.</translation>
    </message>
</context>
</TS>
