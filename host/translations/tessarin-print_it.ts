<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>TessarinPrint</name>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>The print dialog cannot be opened.</source>
        <translation>Impossibile aprire la finestra di stampa.</translation>
    </message>
    <message>
        <source>there is no printer: name one with --printer, --ppd or --sample</source>
        <translation>nessuna stampante: indicarne una con --printer, --ppd o --sample</translation>
    </message>
    <message>
        <source>nothing was printed; pictures of the dialog (%1) are in %2, the options that Print would send are on standard output</source>
        <translation>non è stato stampato nulla; le immagini della finestra (%1) sono in %2, le opzioni che «Stampa» invierebbe sono sullo standard output</translation>
    </message>
    <message>
        <source>the panel gives no summary</source>
        <translation>il pannello non fornisce alcun riepilogo</translation>
    </message>
    <message>
        <source>standard output: the summary cannot be written</source>
        <translation>standard output: impossibile scrivere il riepilogo</translation>
    </message>
    <message>
        <source>standard output: it cannot be written</source>
        <translation>standard output: scrittura impossibile</translation>
    </message>
    <message>
        <source>there is no display: to get a window, run this in a desktop session, set DISPLAY or WAYLAND_DISPLAY, or use a virtual display: xvfb-run -a tessarin-print</source>
        <translation>nessun display disponibile: per ottenere una finestra, eseguire il programma in una sessione desktop, impostare DISPLAY o WAYLAND_DISPLAY oppure usare un display virtuale: xvfb-run -a tessarin-print</translation>
    </message>
    <message>
        <source>Show the printer that a PPD file describes.</source>
        <translation>Mostra la stampante descritta da un file PPD.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>file</translation>
    </message>
    <message>
        <source>Print on a queue of the print server.</source>
        <translation>Stampa su una coda del server di stampa.</translation>
    </message>
    <message>
        <source>queue</source>
        <translation>coda</translation>
    </message>
    <message>
        <source>Show the sample printer that comes with the program.</source>
        <translation>Mostra la stampante di esempio fornita con il programma.</translation>
    </message>
    <message>
        <source>Set an option of the printer or the job; may be given more than once.</source>
        <translation>Imposta un&apos;opzione della stampante o del lavoro; si può indicare più volte.</translation>
    </message>
    <message>
        <source>key=value</source>
        <translation>chiave=valore</translation>
    </message>
    <message>
        <source>Print this many copies.</source>
        <translation>Stampa questo numero di copie.</translation>
    </message>
    <message>
        <source>copies</source>
        <translation>copie</translation>
    </message>
    <message>
        <source>Print these pages, such as 1-3,5,8-.</source>
        <translation>Stampa queste pagine, ad esempio 1-3,5,8-.</translation>
    </message>
    <message>
        <source>ranges</source>
        <translation>intervalli</translation>
    </message>
    <message>
        <source>Start from a preset of the printer; -o, -n and -P go over it.</source>
        <translation>Parte da una preimpostazione della stampante; -o, -n e -P hanno la precedenza.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nome</translation>
    </message>
    <message>
        <source>Print at once, without a window; the panel&apos;s rules apply all the same.</source>
        <translation>Stampa subito, senza finestra; le regole del pannello valgono comunque.</translation>
    </message>
    <message>
        <source>Print nothing: list the printer&apos;s presets, one a line.</source>
        <translation>Non stampa nulla: elenca le preimpostazioni della stampante, una per riga.</translation>
    </message>
    <message>
        <source>Print each document as a job of its own.</source>
        <translation>Stampa ogni documento come lavoro separato.</translation>
    </message>
    <message>
        <source>Write the job&apos;s options to a file, one key=value per line (&quot;-&quot;: to standard output, which is the default without a queue).</source>
        <translation>Scrive le opzioni del lavoro in un file, una chiave=valore per riga (&quot;-&quot;: sullo standard output, che è il valore predefinito in assenza di una coda).</translation>
    </message>
    <message>
        <source>Send the panel&apos;s diagnostic log to stderr, none, syslog (default) or a file.</source>
        <translation>Invia il log di diagnostica del pannello a stderr, none (nessuno), syslog (predefinito) o a un file.</translation>
    </message>
    <message>
        <source>where</source>
        <translation>dove</translation>
    </message>
    <message>
        <source>Load the panel from this folder (else from $TESSARIN_BUNDLE, else the one installed with the program).</source>
        <translation>Carica il pannello da questa cartella (altrimenti da $TESSARIN_BUNDLE, altrimenti quello installato con il programma).</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>cartella</translation>
    </message>
    <message>
        <source>Show the dialog in this language, such as de or pt_BR.</source>
        <translation>Mostra la finestra in questa lingua, ad esempio de o pt_BR.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>codice</translation>
    </message>
    <message>
        <source>Print nothing: save a picture of each page in this folder and list the job&apos;s options on standard output. Without a display this happens anyway, in ./tessarin-pages.</source>
        <translation>Non stampa nulla: salva un&apos;immagine di ogni pagina in questa cartella ed elenca le opzioni del lavoro sullo standard output. Senza un display ciò avviene comunque, in ./tessarin-pages.</translation>
    </message>
    <message>
        <source>Print nothing and open no window: list the settings on standard output, as text or, with &quot;json&quot;, as JSON.</source>
        <translation>Non stampa nulla e non apre finestre: elenca le impostazioni sullo standard output, come testo o, con &quot;json&quot;, come JSON.</translation>
    </message>
    <message>
        <source>[json]</source>
        <translation>[json]</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Mostra questo testo.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostra la versione.</translation>
    </message>
    <message>
        <source>The documents to print (&quot;-&quot;: standard input).</source>
        <translation>I documenti da stampare (&quot;-&quot;: standard input).</translation>
    </message>
    <message>
        <source>usage: -o %1: there is no key before the &quot;=&quot;</source>
        <translation>uso: -o %1: manca la chiave prima di &quot;=&quot;</translation>
    </message>
    <message>
        <source>usage: -n %1: not a number of copies from 1 to 9999</source>
        <translation>uso: -n %1: non è un numero di copie da 1 a 9999</translation>
    </message>
    <message>
        <source>usage: -P %1: %2</source>
        <translation>uso: -P %1: %2</translation>
    </message>
    <message>
        <source>usage: --ppd and --printer cannot be given together: one printer at a time</source>
        <translation>uso: --ppd e --printer non si possono indicare insieme: una stampante alla volta</translation>
    </message>
    <message>
        <source>usage: --printer %1: no name of a queue</source>
        <translation>uso: --printer %1: non è il nome di una coda</translation>
    </message>
    <message>
        <source>usage: --sample cannot be given with --ppd or --printer: one printer at a time</source>
        <translation>uso: --sample non si può indicare con --ppd o --printer: una stampante alla volta</translation>
    </message>
    <message>
        <source>usage: --no-dialog prints, which --pictures, --summary and --list-presets do not</source>
        <translation>uso: --no-dialog stampa, mentre --pictures, --summary e --list-presets non stampano</translation>
    </message>
    <message>
        <source>usage: no document: there is nothing to print on queue %1</source>
        <translation>uso: nessun documento: non c&apos;è nulla da stampare sulla coda %1</translation>
    </message>
    <message>
        <source>(the default)</source>
        <translation>(predefinita)</translation>
    </message>
    <message>
        <source>usage: standard input (&quot;-&quot;) can be printed only once</source>
        <translation>uso: lo standard input (&quot;-&quot;) si può stampare una sola volta</translation>
    </message>
    <message>
        <source>usage: a document has an empty name</source>
        <translation>uso: un documento ha un nome vuoto</translation>
    </message>
    <message>
        <source>usage: --language %1: not a language code such as de or pt_BR</source>
        <translation>uso: --language %1: non è un codice di lingua come de o pt_BR</translation>
    </message>
    <message>
        <source>usage: --summary %1: not a form, which is text or json</source>
        <translation>uso: --summary %1: non è un formato valido, cioè text o json</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>uso: %1</translation>
    </message>
    <message>
        <source>usage: --%1: the value is empty</source>
        <translation>uso: --%1: il valore è vuoto</translation>
    </message>
    <message>
        <source>A print dialog with the panel of printer settings. Without --printer, --ppd or --sample it starts with the printer that was used last, or the default one.</source>
        <translation>Una finestra di stampa con il pannello delle impostazioni della stampante. Senza --printer, --ppd o --sample si avvia con l&apos;ultima stampante usata o con quella predefinita.</translation>
    </message>
    <message>
        <source>
Exit codes: 0 printed (or done what was asked in place of printing), 1 cancelled, 2 usage, settings that are not possible or a file that cannot be written, 3 printer, 4 document, 5 plug-in.
</source>
        <translation>
Codici di uscita: 0 stampato (o eseguito quanto richiesto al posto della stampa), 1 annullato, 2 uso, impostazioni non possibili o file che non si può scrivere, 3 stampante, 4 documento, 5 plugin.
</translation>
    </message>
    <message>
        <source>Custom Paper Size</source>
        <translation>Formato carta personalizzato</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Larghezza:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Altezza:</translation>
    </message>
    <message>
        <source> in</source>
        <translation> poll.</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Tr&amp;y Again</source>
        <translation>Ripro&amp;va</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Ricerca delle stampanti…</translation>
    </message>
    <message>
        <source>Print each document as a &amp;job of its own</source>
        <translation>Stampa ogni documento come &amp;lavoro separato</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Stam&amp;pa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>Apertura di %1…</translation>
    </message>
    <message>
        <source>Print – %1</source>
        <translation>Stampa – %1</translation>
    </message>
    <message>
        <source>Not possible on this printer</source>
        <translation>Non possibile su questa stampante</translation>
    </message>
    <message>
        <source>There is no printer open.</source>
        <translation>Nessuna stampante aperta.</translation>
    </message>
    <message>
        <source>There are no printers. Choose another destination from the list above, or add a printer in the system&apos;s settings and look again.</source>
        <translation>Nessuna stampante trovata. Scegliere un&apos;altra destinazione dall&apos;elenco in alto oppure aggiungere una stampante nelle impostazioni di sistema e ripetere la ricerca.</translation>
    </message>
    <message>
        <source>print</source>
        <translation>stampa</translation>
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
        <translation>Impostazioni che si escludono a vicenda</translation>
    </message>
    <message>
        <source>The printer cannot do all of this at once: %1.</source>
        <translation>La stampante non può combinare tutte queste impostazioni: %1.</translation>
    </message>
    <message>
        <source>Nothing was printed. Change one of these settings.</source>
        <translation>Non è stato stampato nulla. Modificare una di queste impostazioni.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Annulla lavoro</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Close the dialog and let the job go on</source>
        <translation>Chiude la finestra e lascia proseguire il lavoro</translation>
    </message>
    <message>
        <source>Not printed: %1</source>
        <translation>Non stampato: %1</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Non stampato</translation>
    </message>
    <message>
        <source>Your document and settings are kept: you can try again.</source>
        <translation>Il documento e le impostazioni sono conservati: è possibile riprovare.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Ripro&amp;va</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>Salva come P&amp;DF…</translation>
    </message>
    <message>
        <source>There is no document to save as PDF.</source>
        <translation>Nessun documento da salvare come PDF.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Salva come PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>File PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Stampa in corso…</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Interruzione in corso…</translation>
    </message>
    <message>
        <source>%1 is possible %2.</source>
        <extracomment>%1 is a setting with its value, %2 says what it does not go with</extracomment>
        <translation>%1 è possibile, ma %2.</translation>
    </message>
    <message>
        <source>Change the other setting first.</source>
        <translation>Modificare prima l&apos;altra impostazione.</translation>
    </message>
    <message>
        <source>To make it fit, this would be set, too: %1.</source>
        <translation>Per renderlo compatibile verrebbe impostato anche: %1.</translation>
    </message>
    <message>
        <source>&amp;Change Both</source>
        <translation>Cam&amp;bia entrambe</translation>
    </message>
    <message>
        <source>Changed, too: %1</source>
        <translation>Modificato anche: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nnulla modifica</translation>
    </message>
    <message>
        <source>Preset %1: not possible on this printer now</source>
        <translation>Preimpostazione %1: al momento non possibile su questa stampante</translation>
    </message>
    <message>
        <source>Preset applied: %1</source>
        <translation>Preimpostazione applicata: %1</translation>
    </message>
    <message>
        <source>Its default is not possible now</source>
        <translation>Il valore predefinito al momento non è possibile</translation>
    </message>
    <message>
        <source>Reset to its default: %1</source>
        <translation>Ripristinato al valore predefinito: %1</translation>
    </message>
    <message>
        <source>Reset to defaults.</source>
        <translation>Valori predefiniti ripristinati.</translation>
    </message>
    <message>
        <source>All settings are at their defaults.</source>
        <translation>Tutte le impostazioni hanno il valore predefinito.</translation>
    </message>
    <message>
        <source>Find a feature</source>
        <translation>Trova una funzione</translation>
    </message>
    <message>
        <source>This printer has no further features.</source>
        <translation>Questa stampante non ha altre funzioni.</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>No feature of this printer has “%1” in its name or choices.</source>
        <translation>Nessuna funzione di questa stampante contiene «%1» nel nome o nelle scelte.</translation>
    </message>
    <message>
        <source>C&amp;ollate</source>
        <translation>&amp;Fascicola</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Tutte</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Pa&amp;gine:</translation>
    </message>
    <message>
        <source>O&amp;f these:</source>
        <translation>Di &amp;queste:</translation>
    </message>
    <message>
        <source>Pap&amp;er size:</source>
        <translation>For&amp;mato carta:</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>&amp;Orientamento:</translation>
    </message>
    <message>
        <source>&amp;Two-sided:</source>
        <translation>Fronte/&amp;retro:</translation>
    </message>
    <message>
        <source>Pages per s&amp;heet:</source>
        <translation>Pagin&amp;e per foglio:</translation>
    </message>
    <message>
        <source>Custom Size…</source>
        <translation>Formato personalizzato…</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Whole copies one after the other</source>
        <translation>Copie intere una dopo l&apos;altra</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copie:</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Pagine da stampare</translation>
    </message>
    <message>
        <source>1-3, 5, 8-</source>
        <translation>1-3, 5, 8-</translation>
    </message>
    <message>
        <source>Print:</source>
        <translation>Stampa:</translation>
    </message>
    <message>
        <source>Which pages? For example 1-3, 5, 8-</source>
        <translation>Quali pagine? Ad esempio 1-3, 5, 8-</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>in attesa</translation>
    </message>
    <message>
        <source>held</source>
        <translation>trattenuto</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>in stampa</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>stampa interrotta</translation>
    </message>
    <message>
        <source>done</source>
        <translation>completato</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annullato</translation>
    </message>
    <message>
        <source>given up by the print server</source>
        <translation>abbandonato dal server di stampa</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <extracomment>%1 is a job&apos;s number, %2 what it is doing</extracomment>
        <translation>Lavoro %1: %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>%1 is a choice, %2 says what it does not go with</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>a line was cut short</source>
        <translation>una riga è stata troncata</translation>
    </message>
    <message>
        <source>log %1: %2</source>
        <translation>log %1: %2</translation>
    </message>
    <message>
        <source>log file %1: %2</source>
        <translation>file di log %1: %2</translation>
    </message>
    <message>
        <source>%1=%2 (with the other settings it is %3)</source>
        <translation>%1=%2 (con le altre impostazioni è %3)</translation>
    </message>
    <message>
        <source>not possible on this printer: %1</source>
        <translation>non possibile su questa stampante: %1</translation>
    </message>
    <message>
        <source>the printer cannot do all of this at once: %1</source>
        <translation>la stampante non può combinare tutte queste impostazioni: %1</translation>
    </message>
    <message>
        <source>job %1-%2
</source>
        <translation>lavoro %1-%2
</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>Chiudi l&apos;avviso</translation>
    </message>
    <message>
        <source>picture %1: %2</source>
        <translation>immagine %1: %2</translation>
    </message>
    <message>
        <source>folder for pictures %1: it cannot be made</source>
        <translation>cartella per le immagini %1: impossibile crearla</translation>
    </message>
    <message>
        <source>page %1 (%2) cannot be selected for this printer: no picture of it</source>
        <translation>la pagina %1 (%2) non si può selezionare per questa stampante: nessuna immagine disponibile</translation>
    </message>
    <message>
        <source>The printer&apos;s plug-in offers no panel of settings.</source>
        <translation>Il plugin della stampante non offre alcun pannello di impostazioni.</translation>
    </message>
    <message>
        <source>%1 is for other printers: this one has none of its options.</source>
        <translation>%1 è per altre stampanti: questa non ha nessuna delle sue opzioni.</translation>
    </message>
    <message>
        <source>The panel could not read the printer&apos;s settings.</source>
        <translation>Il pannello non ha potuto leggere le impostazioni della stampante.</translation>
    </message>
    <message>
        <source>The panel of printer settings could not load its controls.</source>
        <translation>Il pannello delle impostazioni della stampante non ha potuto caricare i propri controlli.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Impostazioni stampante</translation>
    </message>
    <message>
        <source>Printer Features</source>
        <translation>Funzioni stampante</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>You can print all the same, with the settings of the other pages.</source>
        <translation>È comunque possibile stampare, con le impostazioni delle altre pagine.</translation>
    </message>
    <message>
        <source>plug-in %1: %2</source>
        <translation>plugin %1: %2</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>la cartella non esiste</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>non è una cartella</translation>
    </message>
    <message>
        <source>the bundle&apos;s description is missing</source>
        <translation>manca la descrizione del bundle</translation>
    </message>
    <message>
        <source>at byte %1: %2</source>
        <translation>al byte %1: %2</translation>
    </message>
    <message>
        <source>it does not give &quot;%1&quot;</source>
        <translation>non indica &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the library &quot;%1&quot; is not a file of the bundle&apos;s folder</source>
        <translation>la libreria &quot;%1&quot; non è un file della cartella del bundle</translation>
    </message>
    <message>
        <source>the bundle&apos;s library is missing</source>
        <translation>manca la libreria del bundle</translation>
    </message>
    <message>
        <source>it is not a plug-in (%1)</source>
        <translation>non è un plugin (%1)</translation>
    </message>
    <message>
        <source>it is a plug-in for something else (%1), not a print dialog panel</source>
        <translation>è un plugin per altro (%1), non un pannello della finestra di stampa</translation>
    </message>
    <message>
        <source>it does not say for which version of the panel protocol it was made</source>
        <translation>non indica per quale versione del protocollo del pannello è stato creato</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel protocol; this dialog has version %2</source>
        <translation>è stato creato per la versione %1 del protocollo del pannello; questa finestra ha la versione %2</translation>
    </message>
    <message>
        <source>its root object is not a panel factory</source>
        <translation>l&apos;oggetto radice non è una factory di pannelli</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>non ha indicato il motivo</translation>
    </message>
    <message>
        <source>its panel factory could not be made</source>
        <translation>impossibile creare la sua factory di pannelli</translation>
    </message>
    <message>
        <source>Pre&amp;sets</source>
        <translation>Pre&amp;impostazioni</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Impostazioni predefinite</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Ultime usate</translation>
    </message>
    <message>
        <source>preset %1: this printer has none of this name</source>
        <translation>preimpostazione %1: questa stampante non ne ha con questo nome</translation>
    </message>
    <message>
        <source>preset %1: %2</source>
        <translation>preimpostazione %1: %2</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>&amp;Salva come preimpostazione…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rinomina</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>Make These &amp;My Defaults</source>
        <translation>Usa queste come &amp;mie predefinite</translation>
    </message>
    <message>
        <source>Preset saved: %1</source>
        <translation>Preimpostazione salvata: %1</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Rinomina preimpostazione</translation>
    </message>
    <message>
        <source>New name of the preset:</source>
        <translation>Nuovo nome della preimpostazione:</translation>
    </message>
    <message>
        <source>Preset renamed: %1</source>
        <translation>Preimpostazione rinominata: %1</translation>
    </message>
    <message>
        <source>Preset deleted: %1</source>
        <translation>Preimpostazione eliminata: %1</translation>
    </message>
    <message>
        <source>These settings are your defaults for %1 now, in every program (%2).</source>
        <translation>Queste impostazioni sono ora quelle predefinite per %1, in ogni programma (%2).</translation>
    </message>
    <message>
        <source>Sample printer</source>
        <translation>Stampante di esempio</translation>
    </message>
    <message>
        <source>Print lists the job&apos;s options</source>
        <translation>«Stampa» elenca le opzioni del lavoro</translation>
    </message>
    <message>
        <source>Print writes the pages into a file</source>
        <translation>«Stampa» scrive le pagine in un file</translation>
    </message>
    <message>
        <source>PPD file %1: Print lists the job&apos;s options</source>
        <translation>File PPD %1: «Stampa» elenca le opzioni del lavoro</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>&amp;Stampante:</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Stampante</translation>
    </message>
    <message>
        <source>Look for printers again (F5)</source>
        <translation>Cerca di nuovo le stampanti (F5)</translation>
    </message>
    <message>
        <source>Look for printers again</source>
        <translation>Cerca di nuovo le stampanti</translation>
    </message>
    <message>
        <source>looking for printers…</source>
        <translation>ricerca delle stampanti…</translation>
    </message>
    <message>
        <source>Paper and &amp;layout</source>
        <translation>Carta e &amp;layout</translation>
    </message>
    <message>
        <source>Printer settings</source>
        <translation>Impostazioni stampante</translation>
    </message>
    <message>
        <source>Printer &amp;features</source>
        <translation>&amp;Funzioni stampante</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Salva come preimpostazione</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>The preset keeps:</source>
        <translation>La preimpostazione conserva:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>Choose what the preset keeps.</source>
        <translation>Scegliere che cosa conserva la preimpostazione.</translation>
    </message>
    <message>
        <source>This replaces the preset of the same name.</source>
        <translation>Sostituisce la preimpostazione con lo stesso nome.</translation>
    </message>
    <message>
        <source>set for this job</source>
        <translation>impostato per questo lavoro</translation>
    </message>
    <message>
        <source>changed (default: none)</source>
        <translation>modificato (predefinito: nessuno)</translation>
    </message>
    <message>
        <source>changed (default: %1)</source>
        <translation>modificato (predefinito: %1)</translation>
    </message>
    <message>
        <source>Reset to &amp;Default</source>
        <translation>Ripristin&amp;a predefinito</translation>
    </message>
    <message>
        <source>Reset A&amp;ll to Defaults</source>
        <translation>Ripristina t&amp;utti i predefiniti</translation>
    </message>
    <message>
        <source>Reset the selected settings (Delete)</source>
        <translation>Ripristina le impostazioni selezionate (Canc)</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Impostazione</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>Other options of the job</source>
        <translation>Altre opzioni del lavoro</translation>
    </message>
    <message>
        <source>not with %1</source>
        <extracomment>%1 lists settings, such as &quot;Media Type: Canvas&quot;</extracomment>
        <translation>non con %1</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>Ordine delle copie</translation>
    </message>
    <message>
        <source>collated (1, 2, 3, 1, 2, 3)</source>
        <translation>fascicolate (1, 2, 3, 1, 2, 3)</translation>
    </message>
    <message>
        <source>page by page (1, 1, 2, 2, 3, 3)</source>
        <translation>pagina per pagina (1, 1, 2, 2, 3, 3)</translation>
    </message>
    <message>
        <source>all</source>
        <translation>tutte</translation>
    </message>
    <message>
        <source>Of these</source>
        <translation>Di queste</translation>
    </message>
    <message>
        <source>odd and even pages</source>
        <translation>pagine dispari e pari</translation>
    </message>
    <message>
        <source>odd pages</source>
        <translation>pagine dispari</translation>
    </message>
    <message>
        <source>even pages</source>
        <translation>pagine pari</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientamento</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatico</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>verticale</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>orizzontale</translation>
    </message>
    <message>
        <source>reverse landscape</source>
        <translation>orizzontale invertito</translation>
    </message>
    <message>
        <source>reverse portrait</source>
        <translation>verticale invertito</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Pagine per foglio</translation>
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
        <translation>intervalli di pagine: &quot;%1&quot; non è una pagina né un intervallo come 2-5</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; names a page that cannot be</source>
        <translation>intervalli di pagine: &quot;%1&quot; indica una pagina che non può esistere</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; ends before it begins</source>
        <translation>intervalli di pagine: &quot;%1&quot; finisce prima di iniziare</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; does not follow the pages before it: a job prints its pages in their order, each once</source>
        <translation>intervalli di pagine: &quot;%1&quot; non segue le pagine precedenti: un lavoro stampa le pagine nel loro ordine, ciascuna una sola volta</translation>
    </message>
    <message>
        <source>a preset needs a name</source>
        <translation>una preimpostazione deve avere un nome</translation>
    </message>
    <message numerus="yes">
        <source>the name of a preset has at most %n characters</source>
        <translation>
            <numerusform>il nome di una preimpostazione ha al massimo %n carattere</numerusform>
            <numerusform>il nome di una preimpostazione ha al massimo %n caratteri</numerusform>
        </translation>
    </message>
    <message>
        <source>the name of a preset is one line, without control characters</source>
        <translation>il nome di una preimpostazione è una sola riga, senza caratteri di controllo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is always there: no other preset can have its name</source>
        <translation>&quot;%1&quot; è sempre presente: nessun&apos;altra preimpostazione può avere questo nome</translation>
    </message>
    <message>
        <source>presets file %1: %2</source>
        <translation>file delle preimpostazioni %1: %2</translation>
    </message>
    <message>
        <source>it is a directory</source>
        <translation>è una cartella</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>non è un file regolare</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>è troppo grande</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>riga %1, colonna %2</translation>
    </message>
    <message>
        <source>&quot;presets&quot; is not a list</source>
        <translation>&quot;presets&quot; non è un elenco</translation>
    </message>
    <message>
        <source>&quot;lastUsed&quot; is not an object</source>
        <translation>&quot;lastUsed&quot; non è un oggetto</translation>
    </message>
    <message>
        <source>line 1: not a JSON object</source>
        <translation>riga 1: non è un oggetto JSON</translation>
    </message>
    <message>
        <source>&quot;version&quot; is not a version number</source>
        <translation>&quot;version&quot; non è un numero di versione</translation>
    </message>
    <message>
        <source>it was written by a later version of this program (its format is %1, this program knows %2): its presets can be used, not changed</source>
        <translation>è stato scritto da una versione più recente di questo programma (il suo formato è %1, questo programma conosce %2): le preimpostazioni si possono usare, ma non modificare</translation>
    </message>
    <message>
        <source>presets folder %1: %2</source>
        <translation>cartella delle preimpostazioni %1: %2</translation>
    </message>
    <message>
        <source>another program is changing presets and does not come to an end</source>
        <translation>un altro programma sta modificando le preimpostazioni e non termina</translation>
    </message>
    <message>
        <source>it cannot be locked</source>
        <translation>impossibile bloccarlo</translation>
    </message>
    <message>
        <source>it would become too large</source>
        <translation>diventerebbe troppo grande</translation>
    </message>
    <message>
        <source>too many damaged files beside it</source>
        <translation>troppi file danneggiati nella stessa cartella</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;</source>
        <translation>la preimpostazione &quot;%1&quot; non esiste</translation>
    </message>
    <message>
        <source>there is already a preset &quot;%1&quot;</source>
        <translation>la preimpostazione &quot;%1&quot; esiste già</translation>
    </message>
    <message>
        <source>presets: the printer has no name</source>
        <translation>preimpostazioni: la stampante non ha un nome</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;: a value has no key</source>
        <translation>preimpostazione &quot;%1&quot;: un valore non ha chiave</translation>
    </message>
    <message>
        <source>%1; it was kept as %2</source>
        <translation>%1; è stato conservato come %2</translation>
    </message>
    <message>
        <source>print server %1: it cannot be reached: %2</source>
        <translation>server di stampa %1: non raggiungibile: %2</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>la connessione si è interrotta</translation>
    </message>
    <message>
        <source>nothing answers there</source>
        <translation>nessuna risposta a questo indirizzo</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>non risponde</translation>
    </message>
    <message>
        <source>the print server %1 has no queue of this name</source>
        <translation>il server di stampa %1 non ha una coda con questo nome</translation>
    </message>
    <message>
        <source>the print server %1 says: %2</source>
        <translation>il server di stampa %1 comunica: %2</translation>
    </message>
    <message>
        <source>queue %1: %2</source>
        <translation>coda %1: %2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: %2</source>
        <translation>cartella per il PPD della coda %1: %2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: the path %2 is too long</source>
        <translation>cartella per il PPD della coda %1: il percorso %2 è troppo lungo</translation>
    </message>
    <message>
        <source>file %1: it cannot be written</source>
        <translation>file %1: impossibile scriverlo</translation>
    </message>
    <message>
        <source>queue %1: its PPD file cannot be fetched: %2</source>
        <translation>coda %1: impossibile recuperare il suo file PPD: %2</translation>
    </message>
    <message>
        <source>%1
Printed already: %2
Not printed: %3</source>
        <translation>%1
Già stampato: %2
Non stampato: %3</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>inattiva</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>non accetta lavori</translation>
    </message>
    <message>
        <source>print server %1: it does not list its queues: %2</source>
        <translation>server di stampa %1: non elenca le sue code: %2</translation>
    </message>
    <message>
        <source>document %1: %2</source>
        <translation>documento %1: %2</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>il file è vuoto</translation>
    </message>
    <message>
        <source>there is nothing in it</source>
        <translation>non contiene nulla</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standard input</translation>
    </message>
    <message>
        <source>it can be printed only once</source>
        <translation>si può stampare una sola volta</translation>
    </message>
    <message>
        <source>the print server does not cancel it: %1</source>
        <translation>il server di stampa non lo annulla: %1</translation>
    </message>
    <message>
        <source>the print server no longer has the queue %1</source>
        <translation>il server di stampa non ha più la coda %1</translation>
    </message>
    <message>
        <source>the print server keeps no record of it</source>
        <translation>il server di stampa non ne conserva traccia</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>la stampante è ferma</translation>
    </message>
    <message>
        <source>sheets so far: %1</source>
        <translation>fogli finora: %1</translation>
    </message>
    <message>
        <source>job %1: the print server %2 does not tell how it is: %3</source>
        <translation>lavoro %1: il server di stampa %2 non ne comunica lo stato: %3</translation>
    </message>
    <message>
        <source>it is not accepting jobs</source>
        <translation>non accetta lavori</translation>
    </message>
    <message>
        <source>it does not take the job: %1</source>
        <translation>non accetta il lavoro: %1</translation>
    </message>
    <message>
        <source>it does not take the document %1: %2</source>
        <translation>non accetta il documento %1: %2</translation>
    </message>
    <message>
        <source> (job %1 may remain on the server: %2)</source>
        <translation> (il lavoro %1 potrebbe essere rimasto sul server: %2)</translation>
    </message>
    <message>
        <source>there is no document to print</source>
        <translation>nessun documento da stampare</translation>
    </message>
    <message>
        <source>it is a directory, not a PPD file</source>
        <translation>è una cartella, non un file PPD</translation>
    </message>
    <message>
        <source>PPD file %1: %2</source>
        <translation>file PPD %1: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>riga %1: %2</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>in pausa</translation>
    </message>
    <message>
        <source>being paused</source>
        <translation>messa in pausa in corso</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>spenta</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>non in linea</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>connessione alla stampante in corso</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>la stampante non risponde</translation>
    </message>
    <message>
        <source>paper is needed</source>
        <translation>è necessaria della carta</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>carta esaurita</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>carta in esaurimento</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>carta inceppata</translation>
    </message>
    <message>
        <source>a cover is open</source>
        <translation>un coperchio è aperto</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>uno sportello è aperto</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>manca il vassoio della carta</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>il vassoio di uscita è pieno</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>inchiostro esaurito</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>inchiostro in esaurimento</translation>
    </message>
    <message>
        <source>the waste container is full</source>
        <translation>il contenitore di scarto è pieno</translation>
    </message>
    <message>
        <source>the waste container is almost full</source>
        <translation>il contenitore di scarto è quasi pieno</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>toner esaurito</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>toner in esaurimento</translation>
    </message>
    <message>
        <source>the print server has no room left</source>
        <translation>il server di stampa non ha più spazio</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>i nuovi lavori vengono trattenuti</translation>
    </message>
    <message>
        <source>a program of its driver is missing</source>
        <translation>manca un programma del suo driver</translation>
    </message>
    <message>
        <source>a program of its driver can be changed by others</source>
        <translation>un programma del suo driver può essere modificato da altri</translation>
    </message>
    <message>
        <source>the printer is partly stopped</source>
        <translation>la stampante è parzialmente ferma</translation>
    </message>
    <message>
        <source>it waits for its time or its release</source>
        <translation>attende l&apos;orario stabilito o lo sblocco</translation>
    </message>
    <message>
        <source>documents are still to come</source>
        <translation>altri documenti devono ancora arrivare</translation>
    </message>
    <message>
        <source>cancelled by a person</source>
        <translation>annullato da un utente</translation>
    </message>
    <message>
        <source>cancelled by an operator</source>
        <translation>annullato da un operatore</translation>
    </message>
    <message>
        <source>cancelled at the printer</source>
        <translation>annullato sulla stampante</translation>
    </message>
    <message>
        <source>the document is damaged</source>
        <translation>il documento è danneggiato</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>la stampante non può stampare questo tipo di documento</translation>
    </message>
    <message>
        <source>printed with warnings</source>
        <translation>stampato con avvisi</translation>
    </message>
    <message>
        <source>printed with errors</source>
        <translation>stampato con errori</translation>
    </message>
    <message>
        <source>it holds a zero byte</source>
        <translation>contiene un byte zero</translation>
    </message>
    <message>
        <source>a backslash is not followed by \, =, n or r</source>
        <translation>una barra inversa non è seguita da \, =, n o r</translation>
    </message>
    <message>
        <source>there is no &quot;=&quot; in it</source>
        <translation>non contiene &quot;=&quot;</translation>
    </message>
    <message>
        <source>there is no key before the &quot;=&quot;</source>
        <translation>manca la chiave prima di &quot;=&quot;</translation>
    </message>
    <message>
        <source>it is not UTF-8 text</source>
        <translation>non è testo UTF-8</translation>
    </message>
    <message>
        <source>ticket on standard output: %1</source>
        <translation>ticket sullo standard output: %1</translation>
    </message>
    <message>
        <source>ticket file %1: %2</source>
        <translation>file del ticket %1: %2</translation>
    </message>
    <message>
        <source>file %1: %2</source>
        <translation>file %1: %2</translation>
    </message>
    <message>
        <source>; it could not be removed again</source>
        <translation>; non è stato possibile rimuoverlo</translation>
    </message>
    <message>
        <source>; the earlier ones are in %1</source>
        <translation>; i precedenti sono in %1</translation>
    </message>
    <message>
        <source>these options of %1 could not be kept: %2</source>
        <translation>non è stato possibile conservare queste opzioni di %1: %2</translation>
    </message>
    <message>
        <source>file %1: it cannot be written: %2</source>
        <translation>file %1: impossibile scriverlo: %2</translation>
    </message>
    <message>
        <source>queue %1: the values of these options cannot be kept as defaults: %2</source>
        <translation>coda %1: i valori di queste opzioni non si possono conservare come predefiniti: %2</translation>
    </message>
    <message>
        <source>queue %1: the print server has no queue of this name</source>
        <translation>coda %1: il server di stampa non ha una coda con questo nome</translation>
    </message>
    <message>
        <source>%1, for all users</source>
        <translation>%1, per tutti gli utenti</translation>
    </message>
    <message>
        <source>the image cannot be read: %1</source>
        <translation>impossibile leggere l&apos;immagine: %1</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn</source>
        <translation>impossibile disegnare la pagina %1</translation>
    </message>
    <message>
        <source>there is no room for the paper</source>
        <translation>non c&apos;è spazio per la carta</translation>
    </message>
    <message>
        <source>there is no preview of this kind of document</source>
        <translation>nessuna anteprima per questo tipo di documento</translation>
    </message>
    <message>
        <source>the PDF file is damaged</source>
        <translation>il file PDF è danneggiato</translation>
    </message>
    <message>
        <source>the PDF file is protected by a password</source>
        <translation>il file PDF è protetto da password</translation>
    </message>
    <message>
        <source>the PDF file has no pages</source>
        <translation>il file PDF non ha pagine</translation>
    </message>
    <message>
        <source>none of the pages is selected</source>
        <translation>nessuna delle pagine è selezionata</translation>
    </message>
    <message>
        <source>a page cannot be begun: %1</source>
        <translation>impossibile iniziare una pagina: %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>There is no document.</source>
        <translation>Nessun documento.</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Apertura…</translation>
    </message>
    <message numerus="yes">
        <source>None of the document&apos;s %n pages is selected.</source>
        <translation>
            <numerusform>Nessuna pagina selezionata: il documento ha %n pagina.</numerusform>
            <numerusform>Nessuna delle %n pagine del documento è selezionata.</numerusform>
        </translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>Disegno in corso…</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Foglio %1 di %2</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 di %2</translation>
    </message>
    <message>
        <source>only the first page is shown here; all pages are printed</source>
        <translation>qui è mostrata solo la prima pagina; vengono stampate tutte le pagine</translation>
    </message>
    <message>
        <source>the text is longer than %1 MB</source>
        <translation>il testo supera %1 MB</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Prima pagina</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Pagina precedente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Pagina successiva</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ultima pagina</translation>
    </message>
    <message>
        <source>the part of this program that reads PDF files is missing</source>
        <translation>manca la parte di questo programma che legge i file PDF</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB, or damaged</source>
        <translation>è più grande di %1 MiB o danneggiato</translation>
    </message>
</context>
</TS>
