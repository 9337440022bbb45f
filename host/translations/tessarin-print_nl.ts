<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>TessarinPrint</name>
    <message>
        <source>Print</source>
        <translation>Afdrukken</translation>
    </message>
    <message>
        <source>The print dialog cannot be opened.</source>
        <translation>Het afdrukvenster kan niet worden geopend.</translation>
    </message>
    <message>
        <source>there is no printer: name one with --printer, --ppd or --sample</source>
        <translation>er is geen printer: geef er een op met --printer, --ppd of --sample</translation>
    </message>
    <message>
        <source>nothing was printed; pictures of the dialog (%1) are in %2, the options that Print would send are on standard output</source>
        <translation>er is niets afgedrukt; afbeeldingen van het venster (%1) staan in %2, de opties die ‘Afdrukken’ zou verzenden staan op de standaarduitvoer</translation>
    </message>
    <message>
        <source>the panel gives no summary</source>
        <translation>het paneel geeft geen samenvatting</translation>
    </message>
    <message>
        <source>standard output: the summary cannot be written</source>
        <translation>standaarduitvoer: de samenvatting kan niet worden geschreven</translation>
    </message>
    <message>
        <source>standard output: it cannot be written</source>
        <translation>standaarduitvoer: schrijven is niet mogelijk</translation>
    </message>
    <message>
        <source>there is no display: to get a window, run this in a desktop session, set DISPLAY or WAYLAND_DISPLAY, or use a virtual display: xvfb-run -a tessarin-print</source>
        <translation>er is geen beeldscherm: start dit voor een venster in een bureaubladsessie, stel DISPLAY of WAYLAND_DISPLAY in of gebruik een virtueel beeldscherm: xvfb-run -a tessarin-print</translation>
    </message>
    <message>
        <source>Show the printer that a PPD file describes.</source>
        <translation>De printer tonen die een PPD-bestand beschrijft.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>bestand</translation>
    </message>
    <message>
        <source>Print on a queue of the print server.</source>
        <translation>Afdrukken via een wachtrij van de afdrukserver.</translation>
    </message>
    <message>
        <source>queue</source>
        <translation>wachtrij</translation>
    </message>
    <message>
        <source>Show the sample printer that comes with the program.</source>
        <translation>De meegeleverde voorbeeldprinter tonen.</translation>
    </message>
    <message>
        <source>Set an option of the printer or the job; may be given more than once.</source>
        <translation>Een optie van de printer of de taak instellen; mag meermaals worden opgegeven.</translation>
    </message>
    <message>
        <source>key=value</source>
        <translation>sleutel=waarde</translation>
    </message>
    <message>
        <source>Print this many copies.</source>
        <translation>Dit aantal kopieën afdrukken.</translation>
    </message>
    <message>
        <source>copies</source>
        <translation>kopieën</translation>
    </message>
    <message>
        <source>Print these pages, such as 1-3,5,8-.</source>
        <translation>Deze pagina&apos;s afdrukken, zoals 1-3,5,8-.</translation>
    </message>
    <message>
        <source>ranges</source>
        <translation>bereiken</translation>
    </message>
    <message>
        <source>Start from a preset of the printer; -o, -n and -P go over it.</source>
        <translation>Uitgaan van een voorinstelling van de printer; -o, -n en -P hebben voorrang.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>naam</translation>
    </message>
    <message>
        <source>Print at once, without a window; the panel&apos;s rules apply all the same.</source>
        <translation>Meteen afdrukken, zonder venster; de regels van het paneel gelden evengoed.</translation>
    </message>
    <message>
        <source>Print nothing: list the printer&apos;s presets, one a line.</source>
        <translation>Niets afdrukken: de voorinstellingen van de printer opsommen, één per regel.</translation>
    </message>
    <message>
        <source>Print each document as a job of its own.</source>
        <translation>Elk document als afzonderlijke taak afdrukken.</translation>
    </message>
    <message>
        <source>Write the job&apos;s options to a file, one key=value per line (&quot;-&quot;: to standard output, which is the default without a queue).</source>
        <translation>De opties van de taak naar een bestand schrijven, één sleutel=waarde per regel (&quot;-&quot;: naar de standaarduitvoer, wat zonder wachtrij de standaard is).</translation>
    </message>
    <message>
        <source>Send the panel&apos;s diagnostic log to stderr, none, syslog (default) or a file.</source>
        <translation>Het diagnostische logboek van het paneel naar stderr, none, syslog (standaard) of een bestand sturen.</translation>
    </message>
    <message>
        <source>where</source>
        <translation>doel</translation>
    </message>
    <message>
        <source>Load the panel from this folder (else from $TESSARIN_BUNDLE, else the one installed with the program).</source>
        <translation>Het paneel uit deze map laden (anders uit $TESSARIN_BUNDLE, anders het paneel dat met het programma is geïnstalleerd).</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>map</translation>
    </message>
    <message>
        <source>Show the dialog in this language, such as de or pt_BR.</source>
        <translation>Het venster in deze taal tonen, zoals de of pt_BR.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>code</translation>
    </message>
    <message>
        <source>Print nothing: save a picture of each page in this folder and list the job&apos;s options on standard output. Without a display this happens anyway, in ./tessarin-pages.</source>
        <translation>Niets afdrukken: een afbeelding van elke pagina in deze map opslaan en de opties van de taak op de standaarduitvoer opsommen. Zonder beeldscherm gebeurt dit hoe dan ook, in ./tessarin-pages.</translation>
    </message>
    <message>
        <source>Print nothing and open no window: list the settings on standard output, as text or, with &quot;json&quot;, as JSON.</source>
        <translation>Niets afdrukken en geen venster openen: de instellingen op de standaarduitvoer opsommen, als tekst of, met &quot;json&quot;, als JSON.</translation>
    </message>
    <message>
        <source>[json]</source>
        <translation>[json]</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Deze tekst tonen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>De versie tonen.</translation>
    </message>
    <message>
        <source>The documents to print (&quot;-&quot;: standard input).</source>
        <translation>De af te drukken documenten (&quot;-&quot;: standaardinvoer).</translation>
    </message>
    <message>
        <source>usage: -o %1: there is no key before the &quot;=&quot;</source>
        <translation>gebruik: -o %1: er staat geen sleutel vóór de &quot;=&quot;</translation>
    </message>
    <message>
        <source>usage: -n %1: not a number of copies from 1 to 9999</source>
        <translation>gebruik: -n %1: geen aantal kopieën van 1 tot 9999</translation>
    </message>
    <message>
        <source>usage: -P %1: %2</source>
        <translation>gebruik: -P %1: %2</translation>
    </message>
    <message>
        <source>usage: --ppd and --printer cannot be given together: one printer at a time</source>
        <translation>gebruik: --ppd en --printer kunnen niet samen worden opgegeven: één printer tegelijk</translation>
    </message>
    <message>
        <source>usage: --printer %1: no name of a queue</source>
        <translation>gebruik: --printer %1: geen naam van een wachtrij</translation>
    </message>
    <message>
        <source>usage: --sample cannot be given with --ppd or --printer: one printer at a time</source>
        <translation>gebruik: --sample kan niet samen met --ppd of --printer worden opgegeven: één printer tegelijk</translation>
    </message>
    <message>
        <source>usage: --no-dialog prints, which --pictures, --summary and --list-presets do not</source>
        <translation>gebruik: --no-dialog drukt af, --pictures, --summary en --list-presets doen dat niet</translation>
    </message>
    <message>
        <source>usage: no document: there is nothing to print on queue %1</source>
        <translation>gebruik: geen document: er is niets af te drukken via wachtrij %1</translation>
    </message>
    <message>
        <source>(the default)</source>
        <translation>(de standaard)</translation>
    </message>
    <message>
        <source>usage: standard input (&quot;-&quot;) can be printed only once</source>
        <translation>gebruik: de standaardinvoer (&quot;-&quot;) kan maar één keer worden afgedrukt</translation>
    </message>
    <message>
        <source>usage: a document has an empty name</source>
        <translation>gebruik: een document heeft een lege naam</translation>
    </message>
    <message>
        <source>usage: --language %1: not a language code such as de or pt_BR</source>
        <translation>gebruik: --language %1: geen taalcode zoals de of pt_BR</translation>
    </message>
    <message>
        <source>usage: --summary %1: not a form, which is text or json</source>
        <translation>gebruik: --summary %1: geen vorm; mogelijk zijn text en json</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>gebruik: %1</translation>
    </message>
    <message>
        <source>usage: --%1: the value is empty</source>
        <translation>gebruik: --%1: de waarde is leeg</translation>
    </message>
    <message>
        <source>A print dialog with the panel of printer settings. Without --printer, --ppd or --sample it starts with the printer that was used last, or the default one.</source>
        <translation>Een afdrukvenster met het paneel van printerinstellingen. Zonder --printer, --ppd of --sample begint het met de laatst gebruikte printer of de standaardprinter.</translation>
    </message>
    <message>
        <source>
Exit codes: 0 printed (or done what was asked in place of printing), 1 cancelled, 2 usage, settings that are not possible or a file that cannot be written, 3 printer, 4 document, 5 plug-in.
</source>
        <translation>
Afsluitcodes: 0 afgedrukt (of gedaan wat in plaats van afdrukken is gevraagd), 1 geannuleerd, 2 gebruik, instellingen die niet mogelijk zijn of een bestand dat niet kan worden geschreven, 3 printer, 4 document, 5 plug-in.
</translation>
    </message>
    <message>
        <source>Custom Paper Size</source>
        <translation>Aangepast papierformaat</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breedte:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Hoogte:</translation>
    </message>
    <message>
        <source> in</source>
        <translation> inch</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Tr&amp;y Again</source>
        <translation>Opn&amp;ieuw proberen</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Printers zoeken…</translation>
    </message>
    <message>
        <source>Print each document as a &amp;job of its own</source>
        <translation>Elk document als afzonderlijke &amp;taak afdrukken</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Af&amp;drukken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>%1 openen…</translation>
    </message>
    <message>
        <source>Print – %1</source>
        <translation>Afdrukken – %1</translation>
    </message>
    <message>
        <source>Not possible on this printer</source>
        <translation>Niet mogelijk op deze printer</translation>
    </message>
    <message>
        <source>There is no printer open.</source>
        <translation>Er is geen printer geopend.</translation>
    </message>
    <message>
        <source>There are no printers. Choose another destination from the list above, or add a printer in the system&apos;s settings and look again.</source>
        <translation>Er zijn geen printers. Kies een andere bestemming in de lijst hierboven, of voeg in de systeeminstellingen een printer toe en zoek opnieuw.</translation>
    </message>
    <message>
        <source>print</source>
        <translation>afdruk</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is a setting, %2 its value
----------
%1 says what was tried, %2 lists the settings</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Settings that exclude each other</source>
        <translation>Instellingen die elkaar uitsluiten</translation>
    </message>
    <message>
        <source>The printer cannot do all of this at once: %1.</source>
        <translation>De printer kan dit niet allemaal tegelijk: %1.</translation>
    </message>
    <message>
        <source>Nothing was printed. Change one of these settings.</source>
        <translation>Er is niets afgedrukt. Wijzig een van deze instellingen.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Taak annuleren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Close the dialog and let the job go on</source>
        <translation>Het venster sluiten en de taak laten doorgaan</translation>
    </message>
    <message>
        <source>Not printed: %1</source>
        <translation>Niet afgedrukt: %1</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Niet afgedrukt</translation>
    </message>
    <message>
        <source>Your document and settings are kept: you can try again.</source>
        <translation>Uw document en instellingen blijven behouden: u kunt het opnieuw proberen.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Op&amp;nieuw</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>Opslaan als PD&amp;F…</translation>
    </message>
    <message>
        <source>There is no document to save as PDF.</source>
        <translation>Er is geen document om als PDF op te slaan.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Opslaan als PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF-bestanden (*.pdf)</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Afdrukken…</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Stoppen…</translation>
    </message>
    <message>
        <source>%1 is possible %2.</source>
        <extracomment>%1 is a setting with its value, %2 says what it does not go with</extracomment>
        <translation>%1 is %2 mogelijk.</translation>
    </message>
    <message>
        <source>Change the other setting first.</source>
        <translation>Wijzig eerst de andere instelling.</translation>
    </message>
    <message>
        <source>To make it fit, this would be set, too: %1.</source>
        <translation>Om het passend te maken wordt ook dit ingesteld: %1.</translation>
    </message>
    <message>
        <source>&amp;Change Both</source>
        <translation>Beide &amp;wijzigen</translation>
    </message>
    <message>
        <source>Changed, too: %1</source>
        <translation>Ook gewijzigd: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Ongedaan &amp;maken</translation>
    </message>
    <message>
        <source>Preset %1: not possible on this printer now</source>
        <translation>Voorinstelling %1: nu niet mogelijk op deze printer</translation>
    </message>
    <message>
        <source>Preset applied: %1</source>
        <translation>Voorinstelling toegepast: %1</translation>
    </message>
    <message>
        <source>Its default is not possible now</source>
        <translation>De standaardwaarde is nu niet mogelijk</translation>
    </message>
    <message>
        <source>Reset to its default: %1</source>
        <translation>Teruggezet naar standaardwaarde: %1</translation>
    </message>
    <message>
        <source>Reset to defaults.</source>
        <translation>Teruggezet naar standaardwaarden.</translation>
    </message>
    <message>
        <source>All settings are at their defaults.</source>
        <translation>Alle instellingen hebben hun standaardwaarde.</translation>
    </message>
    <message>
        <source>Find a feature</source>
        <translation>Functie zoeken</translation>
    </message>
    <message>
        <source>This printer has no further features.</source>
        <translation>Deze printer heeft geen verdere functies.</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>No feature of this printer has “%1” in its name or choices.</source>
        <translation>Geen functie van deze printer heeft ‘%1’ in de naam of de keuzes.</translation>
    </message>
    <message>
        <source>C&amp;ollate</source>
        <translation>S&amp;orteren</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Pa&amp;gina&apos;s:</translation>
    </message>
    <message>
        <source>O&amp;f these:</source>
        <translation>&amp;Hiervan:</translation>
    </message>
    <message>
        <source>Pap&amp;er size:</source>
        <translation>&amp;Papierformaat:</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>Afdruk&amp;stand:</translation>
    </message>
    <message>
        <source>&amp;Two-sided:</source>
        <translation>Du&amp;bbelzijdig:</translation>
    </message>
    <message>
        <source>Pages per s&amp;heet:</source>
        <translation>Pagina&apos;s per v&amp;el:</translation>
    </message>
    <message>
        <source>Custom Size…</source>
        <translation>Aangepast formaat…</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Kopieën</translation>
    </message>
    <message>
        <source>Whole copies one after the other</source>
        <translation>Volledige kopieën na elkaar</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Kopieën:</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Af te drukken pagina&apos;s</translation>
    </message>
    <message>
        <source>1-3, 5, 8-</source>
        <translation>1-3, 5, 8-</translation>
    </message>
    <message>
        <source>Print:</source>
        <translation>Afdrukken:</translation>
    </message>
    <message>
        <source>Which pages? For example 1-3, 5, 8-</source>
        <translation>Welke pagina&apos;s? Bijvoorbeeld 1-3, 5, 8-</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wacht</translation>
    </message>
    <message>
        <source>held</source>
        <translation>vastgehouden</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>bezig met afdrukken</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>gestopt</translation>
    </message>
    <message>
        <source>done</source>
        <translation>voltooid</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>geannuleerd</translation>
    </message>
    <message>
        <source>given up by the print server</source>
        <translation>afgebroken door de afdrukserver</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <extracomment>%1 is a job&apos;s number, %2 what it is doing</extracomment>
        <translation>Taak %1: %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>%1 is a choice, %2 says what it does not go with</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>a line was cut short</source>
        <translation>een regel is afgekapt</translation>
    </message>
    <message>
        <source>log %1: %2</source>
        <translation>logboek %1: %2</translation>
    </message>
    <message>
        <source>log file %1: %2</source>
        <translation>logbestand %1: %2</translation>
    </message>
    <message>
        <source>%1=%2 (with the other settings it is %3)</source>
        <translation>%1=%2 (met de andere instellingen is het %3)</translation>
    </message>
    <message>
        <source>not possible on this printer: %1</source>
        <translation>niet mogelijk op deze printer: %1</translation>
    </message>
    <message>
        <source>the printer cannot do all of this at once: %1</source>
        <translation>de printer kan dit niet allemaal tegelijk: %1</translation>
    </message>
    <message>
        <source>job %1-%2
</source>
        <translation>taak %1-%2
</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>De melding sluiten</translation>
    </message>
    <message>
        <source>picture %1: %2</source>
        <translation>afbeelding %1: %2</translation>
    </message>
    <message>
        <source>folder for pictures %1: it cannot be made</source>
        <translation>map voor afbeeldingen %1: kan niet worden gemaakt</translation>
    </message>
    <message>
        <source>page %1 (%2) cannot be selected for this printer: no picture of it</source>
        <translation>pagina %1 (%2) kan voor deze printer niet worden gekozen: geen afbeelding ervan</translation>
    </message>
    <message>
        <source>The printer&apos;s plug-in offers no panel of settings.</source>
        <translation>De plug-in van de printer biedt geen paneel met instellingen.</translation>
    </message>
    <message>
        <source>%1 is for other printers: this one has none of its options.</source>
        <translation>%1 is voor andere printers: deze heeft geen van de bijbehorende opties.</translation>
    </message>
    <message>
        <source>The panel could not read the printer&apos;s settings.</source>
        <translation>Het paneel kon de instellingen van de printer niet lezen.</translation>
    </message>
    <message>
        <source>The panel of printer settings could not load its controls.</source>
        <translation>Het paneel van printerinstellingen kon zijn bedieningselementen niet laden.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagina&apos;s</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Printerinstellingen</translation>
    </message>
    <message>
        <source>Printer Features</source>
        <translation>Printerfuncties</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Samenvatting</translation>
    </message>
    <message>
        <source>You can print all the same, with the settings of the other pages.</source>
        <translation>U kunt evengoed afdrukken, met de instellingen van de andere pagina&apos;s.</translation>
    </message>
    <message>
        <source>plug-in %1: %2</source>
        <translation>plug-in %1: %2</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>deze map bestaat niet</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>is geen map</translation>
    </message>
    <message>
        <source>the bundle&apos;s description is missing</source>
        <translation>de beschrijving van de bundel ontbreekt</translation>
    </message>
    <message>
        <source>at byte %1: %2</source>
        <translation>bij byte %1: %2</translation>
    </message>
    <message>
        <source>it does not give &quot;%1&quot;</source>
        <translation>&quot;%1&quot; is niet opgegeven</translation>
    </message>
    <message>
        <source>the library &quot;%1&quot; is not a file of the bundle&apos;s folder</source>
        <translation>de bibliotheek &quot;%1&quot; is geen bestand in de map van de bundel</translation>
    </message>
    <message>
        <source>the bundle&apos;s library is missing</source>
        <translation>de bibliotheek van de bundel ontbreekt</translation>
    </message>
    <message>
        <source>it is not a plug-in (%1)</source>
        <translation>is geen plug-in (%1)</translation>
    </message>
    <message>
        <source>it is a plug-in for something else (%1), not a print dialog panel</source>
        <translation>is een plug-in voor iets anders (%1), geen paneel voor het afdrukvenster</translation>
    </message>
    <message>
        <source>it does not say for which version of the panel protocol it was made</source>
        <translation>geeft niet aan voor welke versie van het paneelprotocol het is gemaakt</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel protocol; this dialog has version %2</source>
        <translation>is gemaakt voor versie %1 van het paneelprotocol; dit venster heeft versie %2</translation>
    </message>
    <message>
        <source>its root object is not a panel factory</source>
        <translation>het hoofdobject is geen paneelfactory</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>zonder opgave van reden</translation>
    </message>
    <message>
        <source>its panel factory could not be made</source>
        <translation>de paneelfactory kon niet worden gemaakt</translation>
    </message>
    <message>
        <source>Pre&amp;sets</source>
        <translation>&amp;Voorinstellingen</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Standaardinstellingen</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Laatst gebruikt</translation>
    </message>
    <message>
        <source>preset %1: this printer has none of this name</source>
        <translation>voorinstelling %1: deze printer heeft er geen met deze naam</translation>
    </message>
    <message>
        <source>preset %1: %2</source>
        <translation>voorinstelling %1: %2</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>Op&amp;slaan als voorinstelling…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Hernoemen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Verwijderen</translation>
    </message>
    <message>
        <source>Make These &amp;My Defaults</source>
        <translation>Instellen als &amp;mijn standaard</translation>
    </message>
    <message>
        <source>Preset saved: %1</source>
        <translation>Voorinstelling opgeslagen: %1</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Voorinstelling hernoemen</translation>
    </message>
    <message>
        <source>New name of the preset:</source>
        <translation>Nieuwe naam van de voorinstelling:</translation>
    </message>
    <message>
        <source>Preset renamed: %1</source>
        <translation>Voorinstelling hernoemd: %1</translation>
    </message>
    <message>
        <source>Preset deleted: %1</source>
        <translation>Voorinstelling verwijderd: %1</translation>
    </message>
    <message>
        <source>These settings are your defaults for %1 now, in every program (%2).</source>
        <translation>Deze instellingen zijn nu uw standaard voor %1, in elk programma (%2).</translation>
    </message>
    <message>
        <source>Sample printer</source>
        <translation>Voorbeeldprinter</translation>
    </message>
    <message>
        <source>Print lists the job&apos;s options</source>
        <translation>‘Afdrukken’ somt de opties van de taak op</translation>
    </message>
    <message>
        <source>Print writes the pages into a file</source>
        <translation>‘Afdrukken’ schrijft de pagina&apos;s naar een bestand</translation>
    </message>
    <message>
        <source>PPD file %1: Print lists the job&apos;s options</source>
        <translation>PPD-bestand %1: ‘Afdrukken’ somt de opties van de taak op</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>P&amp;rinter:</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>Look for printers again (F5)</source>
        <translation>Opnieuw naar printers zoeken (F5)</translation>
    </message>
    <message>
        <source>Look for printers again</source>
        <translation>Opnieuw naar printers zoeken</translation>
    </message>
    <message>
        <source>looking for printers…</source>
        <translation>printers zoeken…</translation>
    </message>
    <message>
        <source>Paper and &amp;layout</source>
        <translation>Papier en &amp;lay-out</translation>
    </message>
    <message>
        <source>Printer settings</source>
        <translation>Printerinstellingen</translation>
    </message>
    <message>
        <source>Printer &amp;features</source>
        <translation>Printer&amp;functies</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Opslaan als voorinstelling</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Naam:</translation>
    </message>
    <message>
        <source>The preset keeps:</source>
        <translation>De voorinstelling bewaart:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Op&amp;slaan</translation>
    </message>
    <message>
        <source>Choose what the preset keeps.</source>
        <translation>Kies wat de voorinstelling bewaart.</translation>
    </message>
    <message>
        <source>This replaces the preset of the same name.</source>
        <translation>Dit vervangt de voorinstelling met dezelfde naam.</translation>
    </message>
    <message>
        <source>set for this job</source>
        <translation>ingesteld voor deze taak</translation>
    </message>
    <message>
        <source>changed (default: none)</source>
        <translation>gewijzigd (standaard: geen)</translation>
    </message>
    <message>
        <source>changed (default: %1)</source>
        <translation>gewijzigd (standaard: %1)</translation>
    </message>
    <message>
        <source>Reset to &amp;Default</source>
        <translation>Terug&amp;zetten naar standaard</translation>
    </message>
    <message>
        <source>Reset A&amp;ll to Defaults</source>
        <translation>A&amp;lles terugzetten naar standaard</translation>
    </message>
    <message>
        <source>Reset the selected settings (Delete)</source>
        <translation>De geselecteerde instellingen terugzetten (Delete)</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Instelling</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Opmerking</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiëren</translation>
    </message>
    <message>
        <source>Other options of the job</source>
        <translation>Andere opties van de taak</translation>
    </message>
    <message>
        <source>not with %1</source>
        <extracomment>%1 lists settings, such as &quot;Media Type: Canvas&quot;</extracomment>
        <translation>niet met %1</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>Volgorde van kopieën</translation>
    </message>
    <message>
        <source>collated (1, 2, 3, 1, 2, 3)</source>
        <translation>gesorteerd (1, 2, 3, 1, 2, 3)</translation>
    </message>
    <message>
        <source>page by page (1, 1, 2, 2, 3, 3)</source>
        <translation>pagina voor pagina (1, 1, 2, 2, 3, 3)</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Of these</source>
        <translation>Hiervan</translation>
    </message>
    <message>
        <source>odd and even pages</source>
        <translation>oneven en even pagina&apos;s</translation>
    </message>
    <message>
        <source>odd pages</source>
        <translation>oneven pagina&apos;s</translation>
    </message>
    <message>
        <source>even pages</source>
        <translation>even pagina&apos;s</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Afdrukstand</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>staand</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>liggend</translation>
    </message>
    <message>
        <source>reverse landscape</source>
        <translation>omgekeerd liggend</translation>
    </message>
    <message>
        <source>reverse portrait</source>
        <translation>omgekeerd staand</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Pagina&apos;s per vel</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 is &quot;Custom&quot; in the printer&apos;s words, %2 the custom value, such as a paper size
----------
%1 is a printer&apos;s state, %2 lists the reasons</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; is not a page or a range such as 2-5</source>
        <translation>paginabereiken: &quot;%1&quot; is geen pagina en geen bereik zoals 2-5</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; names a page that cannot be</source>
        <translation>paginabereiken: &quot;%1&quot; noemt een pagina die niet kan bestaan</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; ends before it begins</source>
        <translation>paginabereiken: &quot;%1&quot; eindigt vóór het begin</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; does not follow the pages before it: a job prints its pages in their order, each once</source>
        <translation>paginabereiken: &quot;%1&quot; volgt niet op de pagina&apos;s ervoor: een taak drukt de pagina&apos;s op volgorde af, elk één keer</translation>
    </message>
    <message>
        <source>a preset needs a name</source>
        <translation>een voorinstelling heeft een naam nodig</translation>
    </message>
    <message numerus="yes">
        <source>the name of a preset has at most %n characters</source>
        <translation>
            <numerusform>de naam van een voorinstelling heeft hoogstens %n teken</numerusform>
            <numerusform>de naam van een voorinstelling heeft hoogstens %n tekens</numerusform>
        </translation>
    </message>
    <message>
        <source>the name of a preset is one line, without control characters</source>
        <translation>de naam van een voorinstelling is één regel, zonder stuurtekens</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is always there: no other preset can have its name</source>
        <translation>&quot;%1&quot; is er altijd: geen andere voorinstelling kan zo heten</translation>
    </message>
    <message>
        <source>presets file %1: %2</source>
        <translation>voorinstellingenbestand %1: %2</translation>
    </message>
    <message>
        <source>it is a directory</source>
        <translation>is een map</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>is geen gewoon bestand</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>is te groot</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>regel %1, kolom %2</translation>
    </message>
    <message>
        <source>&quot;presets&quot; is not a list</source>
        <translation>&quot;presets&quot; is geen lijst</translation>
    </message>
    <message>
        <source>&quot;lastUsed&quot; is not an object</source>
        <translation>&quot;lastUsed&quot; is geen object</translation>
    </message>
    <message>
        <source>line 1: not a JSON object</source>
        <translation>regel 1: geen JSON-object</translation>
    </message>
    <message>
        <source>&quot;version&quot; is not a version number</source>
        <translation>&quot;version&quot; is geen versienummer</translation>
    </message>
    <message>
        <source>it was written by a later version of this program (its format is %1, this program knows %2): its presets can be used, not changed</source>
        <translation>is geschreven door een nieuwere versie van dit programma (indeling %1, dit programma kent %2): de voorinstellingen kunnen worden gebruikt, niet gewijzigd</translation>
    </message>
    <message>
        <source>presets folder %1: %2</source>
        <translation>voorinstellingenmap %1: %2</translation>
    </message>
    <message>
        <source>another program is changing presets and does not come to an end</source>
        <translation>een ander programma wijzigt voorinstellingen en komt niet tot een einde</translation>
    </message>
    <message>
        <source>it cannot be locked</source>
        <translation>kan niet worden vergrendeld</translation>
    </message>
    <message>
        <source>it would become too large</source>
        <translation>zou te groot worden</translation>
    </message>
    <message>
        <source>too many damaged files beside it</source>
        <translation>te veel beschadigde bestanden ernaast</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;</source>
        <translation>er is geen voorinstelling &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is already a preset &quot;%1&quot;</source>
        <translation>er is al een voorinstelling &quot;%1&quot;</translation>
    </message>
    <message>
        <source>presets: the printer has no name</source>
        <translation>voorinstellingen: de printer heeft geen naam</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;: a value has no key</source>
        <translation>voorinstelling &quot;%1&quot;: een waarde heeft geen sleutel</translation>
    </message>
    <message>
        <source>%1; it was kept as %2</source>
        <translation>%1; bewaard als %2</translation>
    </message>
    <message>
        <source>print server %1: it cannot be reached: %2</source>
        <translation>afdrukserver %1: niet bereikbaar: %2</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>de verbinding is verbroken</translation>
    </message>
    <message>
        <source>nothing answers there</source>
        <translation>daar antwoordt niets</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>antwoordt niet</translation>
    </message>
    <message>
        <source>the print server %1 has no queue of this name</source>
        <translation>de afdrukserver %1 heeft geen wachtrij met deze naam</translation>
    </message>
    <message>
        <source>the print server %1 says: %2</source>
        <translation>de afdrukserver %1 meldt: %2</translation>
    </message>
    <message>
        <source>queue %1: %2</source>
        <translation>wachtrij %1: %2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: %2</source>
        <translation>map voor de PPD van wachtrij %1: %2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: the path %2 is too long</source>
        <translation>map voor de PPD van wachtrij %1: het pad %2 is te lang</translation>
    </message>
    <message>
        <source>file %1: it cannot be written</source>
        <translation>bestand %1: kan niet worden geschreven</translation>
    </message>
    <message>
        <source>queue %1: its PPD file cannot be fetched: %2</source>
        <translation>wachtrij %1: het PPD-bestand kan niet worden opgehaald: %2</translation>
    </message>
    <message>
        <source>%1
Printed already: %2
Not printed: %3</source>
        <translation>%1
Al afgedrukt: %2
Niet afgedrukt: %3</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>gereed</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>neemt geen taken aan</translation>
    </message>
    <message>
        <source>print server %1: it does not list its queues: %2</source>
        <translation>afdrukserver %1: geeft geen lijst van wachtrijen: %2</translation>
    </message>
    <message>
        <source>document %1: %2</source>
        <translation>document %1: %2</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>het bestand is leeg</translation>
    </message>
    <message>
        <source>there is nothing in it</source>
        <translation>bevat niets</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standaardinvoer</translation>
    </message>
    <message>
        <source>it can be printed only once</source>
        <translation>kan maar één keer worden afgedrukt</translation>
    </message>
    <message>
        <source>the print server does not cancel it: %1</source>
        <translation>de afdrukserver annuleert de taak niet: %1</translation>
    </message>
    <message>
        <source>the print server no longer has the queue %1</source>
        <translation>de afdrukserver heeft de wachtrij %1 niet meer</translation>
    </message>
    <message>
        <source>the print server keeps no record of it</source>
        <translation>de afdrukserver heeft er geen gegevens van</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>de printer is gestopt</translation>
    </message>
    <message>
        <source>sheets so far: %1</source>
        <translation>vellen tot nu toe: %1</translation>
    </message>
    <message>
        <source>job %1: the print server %2 does not tell how it is: %3</source>
        <translation>taak %1: de afdrukserver %2 meldt de status niet: %3</translation>
    </message>
    <message>
        <source>it is not accepting jobs</source>
        <translation>neemt geen taken aan</translation>
    </message>
    <message>
        <source>it does not take the job: %1</source>
        <translation>neemt de taak niet aan: %1</translation>
    </message>
    <message>
        <source>it does not take the document %1: %2</source>
        <translation>neemt het document %1 niet aan: %2</translation>
    </message>
    <message>
        <source> (job %1 may remain on the server: %2)</source>
        <translation> (taak %1 blijft mogelijk op de server staan: %2)</translation>
    </message>
    <message>
        <source>there is no document to print</source>
        <translation>er is geen document om af te drukken</translation>
    </message>
    <message>
        <source>it is a directory, not a PPD file</source>
        <translation>is een map, geen PPD-bestand</translation>
    </message>
    <message>
        <source>PPD file %1: %2</source>
        <translation>PPD-bestand %1: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>regel %1: %2</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>gepauzeerd</translation>
    </message>
    <message>
        <source>being paused</source>
        <translation>wordt gepauzeerd</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>uitgeschakeld</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>verbinding maken met de printer</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>de printer antwoordt niet</translation>
    </message>
    <message>
        <source>paper is needed</source>
        <translation>papier nodig</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>papier is op</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>papier is bijna op</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>papierstoring</translation>
    </message>
    <message>
        <source>a cover is open</source>
        <translation>een afdekking is open</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>een klep is open</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>de papierlade ontbreekt</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>de uitvoerlade is vol</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>inkt is op</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>inkt is bijna op</translation>
    </message>
    <message>
        <source>the waste container is full</source>
        <translation>de afvalbak is vol</translation>
    </message>
    <message>
        <source>the waste container is almost full</source>
        <translation>de afvalbak is bijna vol</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>toner is op</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>toner is bijna op</translation>
    </message>
    <message>
        <source>the print server has no room left</source>
        <translation>de afdrukserver heeft geen ruimte meer</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>nieuwe taken worden vastgehouden</translation>
    </message>
    <message>
        <source>a program of its driver is missing</source>
        <translation>een programma van het stuurprogramma ontbreekt</translation>
    </message>
    <message>
        <source>a program of its driver can be changed by others</source>
        <translation>een programma van het stuurprogramma kan door anderen worden gewijzigd</translation>
    </message>
    <message>
        <source>the printer is partly stopped</source>
        <translation>de printer is gedeeltelijk gestopt</translation>
    </message>
    <message>
        <source>it waits for its time or its release</source>
        <translation>wacht op het tijdstip of de vrijgave</translation>
    </message>
    <message>
        <source>documents are still to come</source>
        <translation>er volgen nog documenten</translation>
    </message>
    <message>
        <source>cancelled by a person</source>
        <translation>geannuleerd door een gebruiker</translation>
    </message>
    <message>
        <source>cancelled by an operator</source>
        <translation>geannuleerd door een operator</translation>
    </message>
    <message>
        <source>cancelled at the printer</source>
        <translation>geannuleerd op de printer</translation>
    </message>
    <message>
        <source>the document is damaged</source>
        <translation>het document is beschadigd</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>de printer kan dit soort document niet afdrukken</translation>
    </message>
    <message>
        <source>printed with warnings</source>
        <translation>afgedrukt met waarschuwingen</translation>
    </message>
    <message>
        <source>printed with errors</source>
        <translation>afgedrukt met fouten</translation>
    </message>
    <message>
        <source>it holds a zero byte</source>
        <translation>bevat een nulbyte</translation>
    </message>
    <message>
        <source>a backslash is not followed by \, =, n or r</source>
        <translation>na een backslash volgt geen \, =, n of r</translation>
    </message>
    <message>
        <source>there is no &quot;=&quot; in it</source>
        <translation>bevat geen &quot;=&quot;</translation>
    </message>
    <message>
        <source>there is no key before the &quot;=&quot;</source>
        <translation>er staat geen sleutel vóór de &quot;=&quot;</translation>
    </message>
    <message>
        <source>it is not UTF-8 text</source>
        <translation>is geen UTF-8-tekst</translation>
    </message>
    <message>
        <source>ticket on standard output: %1</source>
        <translation>ticket op de standaarduitvoer: %1</translation>
    </message>
    <message>
        <source>ticket file %1: %2</source>
        <translation>ticketbestand %1: %2</translation>
    </message>
    <message>
        <source>file %1: %2</source>
        <translation>bestand %1: %2</translation>
    </message>
    <message>
        <source>; it could not be removed again</source>
        <translation>; het kon niet weer worden verwijderd</translation>
    </message>
    <message>
        <source>; the earlier ones are in %1</source>
        <translation>; de eerdere staan in %1</translation>
    </message>
    <message>
        <source>these options of %1 could not be kept: %2</source>
        <translation>deze opties van %1 konden niet worden behouden: %2</translation>
    </message>
    <message>
        <source>file %1: it cannot be written: %2</source>
        <translation>bestand %1: kan niet worden geschreven: %2</translation>
    </message>
    <message>
        <source>queue %1: the values of these options cannot be kept as defaults: %2</source>
        <translation>wachtrij %1: de waarden van deze opties kunnen niet als standaard worden bewaard: %2</translation>
    </message>
    <message>
        <source>queue %1: the print server has no queue of this name</source>
        <translation>wachtrij %1: de afdrukserver heeft geen wachtrij met deze naam</translation>
    </message>
    <message>
        <source>%1, for all users</source>
        <translation>%1, voor alle gebruikers</translation>
    </message>
    <message>
        <source>the image cannot be read: %1</source>
        <translation>de afbeelding kan niet worden gelezen: %1</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn</source>
        <translation>pagina %1 kan niet worden getekend</translation>
    </message>
    <message>
        <source>there is no room for the paper</source>
        <translation>er is geen ruimte voor het papier</translation>
    </message>
    <message>
        <source>there is no preview of this kind of document</source>
        <translation>er is geen voorbeeld van dit soort document</translation>
    </message>
    <message>
        <source>the PDF file is damaged</source>
        <translation>het PDF-bestand is beschadigd</translation>
    </message>
    <message>
        <source>the PDF file is protected by a password</source>
        <translation>het PDF-bestand is met een wachtwoord beveiligd</translation>
    </message>
    <message>
        <source>the PDF file has no pages</source>
        <translation>het PDF-bestand heeft geen pagina&apos;s</translation>
    </message>
    <message>
        <source>none of the pages is selected</source>
        <translation>geen van de pagina&apos;s is geselecteerd</translation>
    </message>
    <message>
        <source>a page cannot be begun: %1</source>
        <translation>een pagina kan niet worden begonnen: %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Voorbeeld</translation>
    </message>
    <message>
        <source>There is no document.</source>
        <translation>Er is geen document.</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Openen…</translation>
    </message>
    <message numerus="yes">
        <source>None of the document&apos;s %n pages is selected.</source>
        <translation>
            <numerusform>De %n pagina van het document is niet geselecteerd.</numerusform>
            <numerusform>Geen van de %n pagina&apos;s van het document is geselecteerd.</numerusform>
        </translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>Tekenen…</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Vel %1 van %2</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 van %2</translation>
    </message>
    <message>
        <source>only the first page is shown here; all pages are printed</source>
        <translation>hier wordt alleen de eerste pagina getoond; alle pagina&apos;s worden afgedrukt</translation>
    </message>
    <message>
        <source>the text is longer than %1 MB</source>
        <translation>de tekst is langer dan %1 MB</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Eerste pagina</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorige pagina</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Volgende pagina</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Laatste pagina</translation>
    </message>
    <message>
        <source>the part of this program that reads PDF files is missing</source>
        <translation>het onderdeel van dit programma dat pdf-bestanden leest, ontbreekt</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB, or damaged</source>
        <translation>is groter dan %1 MiB of beschadigd</translation>
    </message>
</context>
</TS>
