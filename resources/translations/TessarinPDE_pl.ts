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
        <source>Bright Inks</source>
        <translation>Jasne tusze</translation>
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
    <message>
        <source>The ink cartridges that are in the printer.</source>
        <translation>Wkłady z tuszem, które są w drukarce.</translation>
    </message>
    <message>
        <source>What is printed on; ink amounts and colors are matched to it.</source>
        <translation>To, na czym się drukuje; ilości tuszu i kolory są do tego dopasowane.</translation>
    </message>
    <message>
        <source>How finely the ink drops are placed: a higher resolution shows more detail and takes longer.</source>
        <translation>Jak gęsto są umieszczane krople tuszu: wyższa rozdzielczość daje więcej szczegółów i trwa dłużej.</translation>
    </message>
    <message>
        <source>How colors that cannot be printed are replaced by colors that can.</source>
        <translation>Jak kolory, których nie da się wydrukować, są zastępowane kolorami drukowalnymi.</translation>
    </message>
    <message>
        <source>Whether the print is grey or in color, and which kind of color data it is made from.</source>
        <translation>Czy druk jest szary, czy kolorowy i z jakiego rodzaju danych kolorów powstaje.</translation>
    </message>
    <message>
        <source>The pattern of ink drops from which shades are made.</source>
        <translation>Wzór kropli tuszu, z którego powstają odcienie.</translation>
    </message>
    <message>
        <source>What the numbers of RGB data mean as colors.</source>
        <translation>Jakie kolory oznaczają liczby danych RGB.</translation>
    </message>
    <message>
        <source>What the numbers of CMYK data mean as colors.</source>
        <translation>Jakie kolory oznaczają liczby danych CMYK.</translation>
    </message>
    <message>
        <source>Makes the whole print lighter or darker.</source>
        <translation>Rozjaśnia lub przyciemnia cały wydruk.</translation>
    </message>
    <message>
        <source>Makes the difference between light and dark stronger or weaker.</source>
        <translation>Zwiększa lub zmniejsza różnicę między jasnym a ciemnym.</translation>
    </message>
    <message>
        <source>The daylight in which the print will be looked at, from warm (D50) to cool (D80).</source>
        <translation>Światło dzienne, w którym wydruk będzie oglądany, od ciepłego (D50) do zimnego (D80).</translation>
    </message>
    <message>
        <source>Makes the colors more vivid or more muted.</source>
        <translation>Czyni kolory żywszymi lub bardziej stonowanymi.</translation>
    </message>
    <message>
        <source>Makes the dark parts of the print lighter or darker.</source>
        <translation>Rozjaśnia lub przyciemnia ciemne części wydruku.</translation>
    </message>
    <message>
        <source>Gives greys a greenish or reddish tint.</source>
        <translation>Nadaje szarościom odcień zielonkawy lub czerwonawy.</translation>
    </message>
    <message>
        <source>Gives greys a bluish or yellowish tint.</source>
        <translation>Nadaje szarościom odcień niebieskawy lub żółtawy.</translation>
    </message>
    <message>
        <source>How much of dark and grey tones is printed with black ink in place of colored inks.</source>
        <translation>Jaka część ciemnych i szarych tonów jest drukowana czarnym tuszem zamiast kolorowych.</translation>
    </message>
    <message>
        <source>How much bright cyan ink is used in place of cyan; without a slider for magenta, how much of all bright inks.</source>
        <translation>Ile jasnego cyjanu jest używane zamiast cyjanu; bez suwaka magenty: ile wszystkich jasnych tuszy.</translation>
    </message>
    <message>
        <source>How much bright magenta ink is used in place of magenta.</source>
        <translation>Ile jasnej magenty jest używane zamiast magenty.</translation>
    </message>
    <message>
        <source>The most ink of all colors together that may fall on one spot.</source>
        <translation>Największa łączna ilość tuszu wszystkich kolorów w jednym miejscu.</translation>
    </message>
    <message>
        <source>Takes this share away from the amount of all inks.</source>
        <translation>Zmniejsza ilość wszystkich tuszy o tę część.</translation>
    </message>
    <message>
        <source>The most black ink that may fall on one spot.</source>
        <translation>Największa ilość czarnego tuszu w jednym miejscu.</translation>
    </message>
    <message>
        <source>The most cyan ink that may fall on one spot.</source>
        <translation>Największa ilość cyjanowego tuszu w jednym miejscu.</translation>
    </message>
    <message>
        <source>The most magenta ink that may fall on one spot.</source>
        <translation>Największa ilość magentowego tuszu w jednym miejscu.</translation>
    </message>
    <message>
        <source>The most yellow ink that may fall on one spot.</source>
        <translation>Największa ilość żółtego tuszu w jednym miejscu.</translation>
    </message>
    <message>
        <source>Adds black to the print or takes it away.</source>
        <translation>Nadaje wydrukowi więcej lub mniej czerni.</translation>
    </message>
    <message>
        <source>Adds cyan to the print or takes it away.</source>
        <translation>Nadaje wydrukowi więcej lub mniej cyjanu.</translation>
    </message>
    <message>
        <source>Adds magenta to the print or takes it away.</source>
        <translation>Nadaje wydrukowi więcej lub mniej magenty.</translation>
    </message>
    <message>
        <source>Adds yellow to the print or takes it away.</source>
        <translation>Nadaje wydrukowi więcej lub mniej żółci.</translation>
    </message>
    <message>
        <source>The job&apos;s ink is counted, but nothing is printed.</source>
        <translation>Tusz zadania jest liczony, ale nic nie jest drukowane.</translation>
    </message>
    <message>
        <source>Lets the four sliders of this page change the colors of the print.</source>
        <translation>Pozwala czterem suwakom tej strony zmieniać kolory wydruku.</translation>
    </message>
    <message>
        <source>Ghostscript turns PostScript data into the printed picture, in place of the system&apos;s own interpreter.</source>
        <translation>Ghostscript zamienia dane PostScript na drukowany obraz zamiast interpretera systemu.</translation>
    </message>
    <message>
        <source>How much of this ink the last job used.</source>
        <translation>Ile tego tuszu zużyło ostatnie zadanie.</translation>
    </message>
    <message>
        <source>How much of this ink all jobs together have used.</source>
        <translation>Ile tego tuszu zużyły wszystkie zadania razem.</translation>
    </message>
    <message>
        <source>Reads again how much ink was used.</source>
        <translation>Odczytuje ponownie, ile tuszu zużyto.</translation>
    </message>
    <message>
        <source>Not available with %1: %2.</source>
        <translation>Niedostępne przy %1: %2.</translation>
    </message>
    <message>
        <source>Not available with %1: %2, a media profile without color data.</source>
        <translation>Niedostępne przy %1: %2, profilu nośnika bez danych kolorów.</translation>
    </message>
    <message>
        <source>Available when &quot;%1&quot; is switched on.</source>
        <translation>Dostępne, gdy włączono „%1”.</translation>
    </message>
    <message>
        <source>Not available: Ghostscript is not installed.</source>
        <translation>Niedostępne: Ghostscript nie jest zainstalowany.</translation>
    </message>
    <message>
        <source>Not available with the present settings.</source>
        <translation>Niedostępne przy obecnych ustawieniach.</translation>
    </message>
    <message>
        <source>This printer has nothing to choose here.</source>
        <translation>Ta drukarka nie ma tu nic do wyboru.</translation>
    </message>
    <message>
        <source>Not offered with %1: %2 (%3): %4</source>
        <translation>Nieoferowane przy %1: %2 (%3): %4</translation>
    </message>
    <message>
        <source>Excluded by %1: %2 (%3): %4</source>
        <translation>Wykluczone przez %1: %2 (%3): %4</translation>
    </message>
    <message>
        <source>Cannot be chosen (%1): %2</source>
        <translation>Nie można wybrać (%1): %2</translation>
    </message>
    <message>
        <source>A double click or Delete sets the default, %1.</source>
        <translation>Dwukrotne kliknięcie lub Delete przywraca wartość domyślną, %1.</translation>
    </message>
    <message>
        <source>Digits or F2 open a field for a value.</source>
        <translation>Cyfry lub F2 otwierają pole na wartość.</translation>
    </message>
    <message>
        <source>Reset to default (%1)</source>
        <translation>Przywróć wartość domyślną (%1)</translation>
    </message>
    <message>
        <source>Enter a value…</source>
        <translation>Wpisz wartość…</translation>
    </message>
    <message>
        <source>Enter a value from %1 to %2.</source>
        <translation>Wpisz wartość od %1 do %2.</translation>
    </message>
</context>
</TS>
