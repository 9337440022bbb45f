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
        <source>Bright Inks</source>
        <translation>Inchiostri chiari</translation>
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
    <message>
        <source>The ink cartridges that are in the printer.</source>
        <translation>Le cartucce d’inchiostro presenti nella stampante.</translation>
    </message>
    <message>
        <source>What is printed on; ink amounts and colors are matched to it.</source>
        <translation>Su che cosa si stampa; le quantità d’inchiostro e i colori vi si adattano.</translation>
    </message>
    <message>
        <source>How finely the ink drops are placed: a higher resolution shows more detail and takes longer.</source>
        <translation>Con quanta finezza sono poste le gocce d’inchiostro: una risoluzione maggiore mostra più dettagli e richiede più tempo.</translation>
    </message>
    <message>
        <source>How colors that cannot be printed are replaced by colors that can.</source>
        <translation>Come i colori non stampabili sono sostituiti da colori stampabili.</translation>
    </message>
    <message>
        <source>Whether the print is grey or in color, and which kind of color data it is made from.</source>
        <translation>Se si stampa in grigio o a colori, e da quale tipo di dati di colore.</translation>
    </message>
    <message>
        <source>The pattern of ink drops from which shades are made.</source>
        <translation>Lo schema di gocce d’inchiostro da cui nascono le sfumature.</translation>
    </message>
    <message>
        <source>What the numbers of RGB data mean as colors.</source>
        <translation>Quali colori indicano i numeri dei dati RGB.</translation>
    </message>
    <message>
        <source>What the numbers of CMYK data mean as colors.</source>
        <translation>Quali colori indicano i numeri dei dati CMYK.</translation>
    </message>
    <message>
        <source>Makes the whole print lighter or darker.</source>
        <translation>Schiarisce o scurisce tutta la stampa.</translation>
    </message>
    <message>
        <source>Makes the difference between light and dark stronger or weaker.</source>
        <translation>Aumenta o riduce la differenza tra chiaro e scuro.</translation>
    </message>
    <message>
        <source>The daylight in which the print will be looked at, from warm (D50) to cool (D80).</source>
        <translation>La luce diurna in cui si guarderà la stampa, da calda (D50) a fredda (D80).</translation>
    </message>
    <message>
        <source>Makes the colors more vivid or more muted.</source>
        <translation>Rende i colori più vivaci o più tenui.</translation>
    </message>
    <message>
        <source>Makes the dark parts of the print lighter or darker.</source>
        <translation>Schiarisce o scurisce le parti scure della stampa.</translation>
    </message>
    <message>
        <source>Gives greys a greenish or reddish tint.</source>
        <translation>Dà ai grigi una tinta verdastra o rossastra.</translation>
    </message>
    <message>
        <source>Gives greys a bluish or yellowish tint.</source>
        <translation>Dà ai grigi una tinta bluastra o giallastra.</translation>
    </message>
    <message>
        <source>How much of dark and grey tones is printed with black ink in place of colored inks.</source>
        <translation>Quanto dei toni scuri e grigi si stampa con inchiostro nero anziché con inchiostri colorati.</translation>
    </message>
    <message>
        <source>How much bright cyan ink is used in place of cyan; without a slider for magenta, how much of all bright inks.</source>
        <translation>Quanto inchiostro ciano chiaro si usa al posto del ciano; senza cursore per il magenta, quanto di tutti gli inchiostri chiari.</translation>
    </message>
    <message>
        <source>How much bright magenta ink is used in place of magenta.</source>
        <translation>Quanto inchiostro magenta chiaro si usa al posto del magenta.</translation>
    </message>
    <message>
        <source>The most ink of all colors together that may fall on one spot.</source>
        <translation>La quantità massima d’inchiostro, di tutti i colori insieme, che può cadere su un punto.</translation>
    </message>
    <message>
        <source>Takes this share away from the amount of all inks.</source>
        <translation>Toglie questa parte dalla quantità di tutti gli inchiostri.</translation>
    </message>
    <message>
        <source>The most black ink that may fall on one spot.</source>
        <translation>La quantità massima d’inchiostro nero che può cadere su un punto.</translation>
    </message>
    <message>
        <source>The most cyan ink that may fall on one spot.</source>
        <translation>La quantità massima d’inchiostro ciano che può cadere su un punto.</translation>
    </message>
    <message>
        <source>The most magenta ink that may fall on one spot.</source>
        <translation>La quantità massima d’inchiostro magenta che può cadere su un punto.</translation>
    </message>
    <message>
        <source>The most yellow ink that may fall on one spot.</source>
        <translation>La quantità massima d’inchiostro giallo che può cadere su un punto.</translation>
    </message>
    <message>
        <source>Adds black to the print or takes it away.</source>
        <translation>Aggiunge nero alla stampa o lo toglie.</translation>
    </message>
    <message>
        <source>Adds cyan to the print or takes it away.</source>
        <translation>Aggiunge ciano alla stampa o lo toglie.</translation>
    </message>
    <message>
        <source>Adds magenta to the print or takes it away.</source>
        <translation>Aggiunge magenta alla stampa o lo toglie.</translation>
    </message>
    <message>
        <source>Adds yellow to the print or takes it away.</source>
        <translation>Aggiunge giallo alla stampa o lo toglie.</translation>
    </message>
    <message>
        <source>The job&apos;s ink is counted, but nothing is printed.</source>
        <translation>L’inchiostro del lavoro viene contato, ma non si stampa nulla.</translation>
    </message>
    <message>
        <source>Lets the four sliders of this page change the colors of the print.</source>
        <translation>Consente ai quattro cursori di questa pagina di cambiare i colori della stampa.</translation>
    </message>
    <message>
        <source>Ghostscript turns PostScript data into the printed picture, in place of the system&apos;s own interpreter.</source>
        <translation>Ghostscript trasforma i dati PostScript nell’immagine stampata, al posto dell’interprete del sistema.</translation>
    </message>
    <message>
        <source>How much of this ink the last job used.</source>
        <translation>Quanto di questo inchiostro ha usato l’ultimo lavoro.</translation>
    </message>
    <message>
        <source>How much of this ink all jobs together have used.</source>
        <translation>Quanto di questo inchiostro hanno usato tutti i lavori insieme.</translation>
    </message>
    <message>
        <source>Reads again how much ink was used.</source>
        <translation>Rilegge quanto inchiostro è stato usato.</translation>
    </message>
    <message>
        <source>Not available with %1: %2.</source>
        <translation>Non disponibile con %1: %2.</translation>
    </message>
    <message>
        <source>Not available with %1: %2, a media profile without color data.</source>
        <translation>Non disponibile con %1: %2, un profilo senza dati di colore.</translation>
    </message>
    <message>
        <source>Available when &quot;%1&quot; is switched on.</source>
        <translation>Disponibile quando «%1» è attivato.</translation>
    </message>
    <message>
        <source>Not available: Ghostscript is not installed.</source>
        <translation>Non disponibile: Ghostscript non è installato.</translation>
    </message>
    <message>
        <source>Not available with the present settings.</source>
        <translation>Non disponibile con le impostazioni attuali.</translation>
    </message>
    <message>
        <source>This printer has nothing to choose here.</source>
        <translation>Questa stampante non offre scelte qui.</translation>
    </message>
    <message>
        <source>Not offered with %1: %2 (%3): %4</source>
        <translation>Non offerti con %1: %2 (%3): %4</translation>
    </message>
    <message>
        <source>Excluded by %1: %2 (%3): %4</source>
        <translation>Esclusi da %1: %2 (%3): %4</translation>
    </message>
    <message>
        <source>Cannot be chosen (%1): %2</source>
        <translation>Non selezionabili (%1): %2</translation>
    </message>
    <message>
        <source>A double click or Delete sets the default, %1.</source>
        <translation>Un doppio clic o Canc imposta il valore predefinito, %1.</translation>
    </message>
    <message>
        <source>Digits or F2 open a field for a value.</source>
        <translation>Le cifre o F2 aprono un campo per un valore.</translation>
    </message>
    <message>
        <source>Reset to default (%1)</source>
        <translation>Ripristina valore predefinito (%1)</translation>
    </message>
    <message>
        <source>Enter a value…</source>
        <translation>Inserisci un valore…</translation>
    </message>
    <message>
        <source>Enter a value from %1 to %2.</source>
        <translation>Inserire un valore da %1 a %2.</translation>
    </message>
</context>
</TS>
