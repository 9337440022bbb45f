<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>TessarinPrint</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>The print dialog cannot be opened.</source>
        <translation>Der Druckdialog kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>there is no printer: name one with --printer, --ppd or --sample</source>
        <translation>kein Drucker vorhanden: mit --printer, --ppd oder --sample einen angeben</translation>
    </message>
    <message>
        <source>nothing was printed; pictures of the dialog (%1) are in %2, the options that Print would send are on standard output</source>
        <translation>es wurde nichts gedruckt; Bilder des Dialogs (%1) liegen in %2, die Optionen, die „Drucken“ senden würde, stehen auf der Standardausgabe</translation>
    </message>
    <message>
        <source>the panel gives no summary</source>
        <translation>das Panel liefert keine Zusammenfassung</translation>
    </message>
    <message>
        <source>standard output: the summary cannot be written</source>
        <translation>Standardausgabe: Die Zusammenfassung kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>standard output: it cannot be written</source>
        <translation>Standardausgabe: Schreiben nicht möglich</translation>
    </message>
    <message>
        <source>there is no display: to get a window, run this in a desktop session, set DISPLAY or WAYLAND_DISPLAY, or use a virtual display: xvfb-run -a tessarin-print</source>
        <translation>keine Anzeige vorhanden: Für ein Fenster das Programm in einer Desktop-Sitzung starten, DISPLAY oder WAYLAND_DISPLAY setzen oder eine virtuelle Anzeige verwenden: xvfb-run -a tessarin-print</translation>
    </message>
    <message>
        <source>Show the printer that a PPD file describes.</source>
        <translation>Den Drucker zeigen, den eine PPD-Datei beschreibt.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Print on a queue of the print server.</source>
        <translation>In eine Warteschlange des Druckservers drucken.</translation>
    </message>
    <message>
        <source>queue</source>
        <translation>Warteschlange</translation>
    </message>
    <message>
        <source>Show the sample printer that comes with the program.</source>
        <translation>Den mitgelieferten Beispieldrucker zeigen.</translation>
    </message>
    <message>
        <source>Set an option of the printer or the job; may be given more than once.</source>
        <translation>Eine Option des Druckers oder des Auftrags setzen; mehrfach möglich.</translation>
    </message>
    <message>
        <source>key=value</source>
        <translation>Schlüssel=Wert</translation>
    </message>
    <message>
        <source>Print this many copies.</source>
        <translation>So viele Exemplare drucken.</translation>
    </message>
    <message>
        <source>copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Print these pages, such as 1-3,5,8-.</source>
        <translation>Diese Seiten drucken, zum Beispiel 1-3,5,8-.</translation>
    </message>
    <message>
        <source>ranges</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>Start from a preset of the printer; -o, -n and -P go over it.</source>
        <translation>Von einer Voreinstellung des Druckers ausgehen; -o, -n und -P haben Vorrang.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Print at once, without a window; the panel&apos;s rules apply all the same.</source>
        <translation>Sofort drucken, ohne Fenster; die Regeln des Panels gelten trotzdem.</translation>
    </message>
    <message>
        <source>Print nothing: list the printer&apos;s presets, one a line.</source>
        <translation>Nichts drucken: die Voreinstellungen des Druckers auflisten, eine pro Zeile.</translation>
    </message>
    <message>
        <source>Print each document as a job of its own.</source>
        <translation>Jedes Dokument als eigenen Auftrag drucken.</translation>
    </message>
    <message>
        <source>Write the job&apos;s options to a file, one key=value per line (&quot;-&quot;: to standard output, which is the default without a queue).</source>
        <translation>Die Optionen des Auftrags in eine Datei schreiben, ein Schlüssel=Wert pro Zeile (&quot;-&quot;: auf die Standardausgabe, was ohne Warteschlange die Vorgabe ist).</translation>
    </message>
    <message>
        <source>Send the panel&apos;s diagnostic log to stderr, none, syslog (default) or a file.</source>
        <translation>Das Diagnoseprotokoll des Panels an stderr, none, syslog (Standard) oder eine Datei senden.</translation>
    </message>
    <message>
        <source>where</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Load the panel from this folder (else from $TESSARIN_BUNDLE, else the one installed with the program).</source>
        <translation>Das Panel aus diesem Ordner laden (sonst aus $TESSARIN_BUNDLE, sonst das mit dem Programm installierte).</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Show the dialog in this language, such as de or pt_BR.</source>
        <translation>Den Dialog in dieser Sprache zeigen, zum Beispiel de oder pt_BR.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Print nothing: save a picture of each page in this folder and list the job&apos;s options on standard output. Without a display this happens anyway, in ./tessarin-pages.</source>
        <translation>Nichts drucken: ein Bild jeder Seite in diesem Ordner speichern und die Optionen des Auftrags auf der Standardausgabe auflisten. Ohne Anzeige geschieht das ohnehin, in ./tessarin-pages.</translation>
    </message>
    <message>
        <source>Print nothing and open no window: list the settings on standard output, as text or, with &quot;json&quot;, as JSON.</source>
        <translation>Nichts drucken und kein Fenster öffnen: die Einstellungen auf der Standardausgabe auflisten, als Text oder, mit &quot;json&quot;, als JSON.</translation>
    </message>
    <message>
        <source>[json]</source>
        <translation>[json]</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Diesen Text zeigen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version zeigen.</translation>
    </message>
    <message>
        <source>The documents to print (&quot;-&quot;: standard input).</source>
        <translation>Die zu druckenden Dokumente (&quot;-&quot;: Standardeingabe).</translation>
    </message>
    <message>
        <source>usage: -o %1: there is no key before the &quot;=&quot;</source>
        <translation>Aufruf: -o %1: kein Schlüssel vor dem &quot;=&quot;</translation>
    </message>
    <message>
        <source>usage: -n %1: not a number of copies from 1 to 9999</source>
        <translation>Aufruf: -n %1: keine Anzahl von Exemplaren von 1 bis 9999</translation>
    </message>
    <message>
        <source>usage: -P %1: %2</source>
        <translation>Aufruf: -P %1: %2</translation>
    </message>
    <message>
        <source>usage: --ppd and --printer cannot be given together: one printer at a time</source>
        <translation>Aufruf: --ppd und --printer können nicht zusammen angegeben werden: nur ein Drucker auf einmal</translation>
    </message>
    <message>
        <source>usage: --printer %1: no name of a queue</source>
        <translation>Aufruf: --printer %1: kein Name einer Warteschlange</translation>
    </message>
    <message>
        <source>usage: --sample cannot be given with --ppd or --printer: one printer at a time</source>
        <translation>Aufruf: --sample kann nicht mit --ppd oder --printer angegeben werden: nur ein Drucker auf einmal</translation>
    </message>
    <message>
        <source>usage: --no-dialog prints, which --pictures, --summary and --list-presets do not</source>
        <translation>Aufruf: --no-dialog druckt, --pictures, --summary und --list-presets dagegen nicht</translation>
    </message>
    <message>
        <source>usage: no document: there is nothing to print on queue %1</source>
        <translation>Aufruf: kein Dokument: Für die Warteschlange %1 gibt es nichts zu drucken</translation>
    </message>
    <message>
        <source>(the default)</source>
        <translation>(Standard)</translation>
    </message>
    <message>
        <source>usage: standard input (&quot;-&quot;) can be printed only once</source>
        <translation>Aufruf: Die Standardeingabe (&quot;-&quot;) kann nur einmal gedruckt werden</translation>
    </message>
    <message>
        <source>usage: a document has an empty name</source>
        <translation>Aufruf: Ein Dokument hat einen leeren Namen</translation>
    </message>
    <message>
        <source>usage: --language %1: not a language code such as de or pt_BR</source>
        <translation>Aufruf: --language %1: kein Sprachcode wie de oder pt_BR</translation>
    </message>
    <message>
        <source>usage: --summary %1: not a form, which is text or json</source>
        <translation>Aufruf: --summary %1: kein Format; möglich sind text und json</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>usage: --%1: the value is empty</source>
        <translation>Aufruf: --%1: Der Wert ist leer</translation>
    </message>
    <message>
        <source>A print dialog with the panel of printer settings. Without --printer, --ppd or --sample it starts with the printer that was used last, or the default one.</source>
        <translation>Ein Druckdialog mit dem Panel der Druckereinstellungen. Ohne --printer, --ppd oder --sample beginnt er mit dem zuletzt verwendeten Drucker oder dem Standarddrucker.</translation>
    </message>
    <message>
        <source>
Exit codes: 0 printed (or done what was asked in place of printing), 1 cancelled, 2 usage, settings that are not possible or a file that cannot be written, 3 printer, 4 document, 5 plug-in.
</source>
        <translation>
Rückgabewerte: 0 gedruckt (oder erledigt, was statt des Druckens verlangt war), 1 abgebrochen, 2 Aufruf, nicht mögliche Einstellungen oder eine nicht schreibbare Datei, 3 Drucker, 4 Dokument, 5 Plugin.
</translation>
    </message>
    <message>
        <source>Custom Paper Size</source>
        <translation>Benutzerdefiniertes Papierformat</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source> in</source>
        <translation> Zoll</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Tr&amp;y Again</source>
        <translation>Erneut versu&amp;chen</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Drucker werden gesucht …</translation>
    </message>
    <message>
        <source>Print each document as a &amp;job of its own</source>
        <translation>Jedes Dokument als eigenen A&amp;uftrag drucken</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>%1 wird geöffnet …</translation>
    </message>
    <message>
        <source>Print – %1</source>
        <translation>Drucken – %1</translation>
    </message>
    <message>
        <source>Not possible on this printer</source>
        <translation>Auf diesem Drucker nicht möglich</translation>
    </message>
    <message>
        <source>There is no printer open.</source>
        <translation>Es ist kein Drucker geöffnet.</translation>
    </message>
    <message>
        <source>There are no printers. Choose another destination from the list above, or add a printer in the system&apos;s settings and look again.</source>
        <translation>Es sind keine Drucker vorhanden. Wählen Sie ein anderes Ziel aus der Liste oben, oder fügen Sie in den Systemeinstellungen einen Drucker hinzu und suchen Sie erneut.</translation>
    </message>
    <message>
        <source>print</source>
        <translation>Druck</translation>
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
        <translation>Einander ausschließende Einstellungen</translation>
    </message>
    <message>
        <source>The printer cannot do all of this at once: %1.</source>
        <translation>Der Drucker kann dies nicht alles zugleich: %1.</translation>
    </message>
    <message>
        <source>Nothing was printed. Change one of these settings.</source>
        <translation>Es wurde nichts gedruckt. Ändern Sie eine dieser Einstellungen.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Auftrag abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close the dialog and let the job go on</source>
        <translation>Den Dialog schließen und den Auftrag weiterlaufen lassen</translation>
    </message>
    <message>
        <source>Not printed: %1</source>
        <translation>Nicht gedruckt: %1</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Nicht gedruckt</translation>
    </message>
    <message>
        <source>Your document and settings are kept: you can try again.</source>
        <translation>Ihr Dokument und Ihre Einstellungen bleiben erhalten: Sie können es erneut versuchen.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>Als PD&amp;F speichern …</translation>
    </message>
    <message>
        <source>There is no document to save as PDF.</source>
        <translation>Es gibt kein Dokument, das als PDF gespeichert werden kann.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Wird gedruckt …</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Wird angehalten …</translation>
    </message>
    <message>
        <source>%1 is possible %2.</source>
        <extracomment>%1 is a setting with its value, %2 says what it does not go with</extracomment>
        <translation>%1 ist %2 möglich.</translation>
    </message>
    <message>
        <source>Change the other setting first.</source>
        <translation>Ändern Sie zuerst die andere Einstellung.</translation>
    </message>
    <message>
        <source>To make it fit, this would be set, too: %1.</source>
        <translation>Damit es passt, würde auch dies eingestellt: %1.</translation>
    </message>
    <message>
        <source>&amp;Change Both</source>
        <translation>Beide &amp;ändern</translation>
    </message>
    <message>
        <source>Changed, too: %1</source>
        <translation>Ebenfalls geändert: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Rück&amp;gängig</translation>
    </message>
    <message>
        <source>Preset %1: not possible on this printer now</source>
        <translation>Voreinstellung %1: auf diesem Drucker derzeit nicht möglich</translation>
    </message>
    <message>
        <source>Preset applied: %1</source>
        <translation>Voreinstellung angewendet: %1</translation>
    </message>
    <message>
        <source>Its default is not possible now</source>
        <translation>Der Standardwert ist derzeit nicht möglich</translation>
    </message>
    <message>
        <source>Reset to its default: %1</source>
        <translation>Auf Standardwert zurückgesetzt: %1</translation>
    </message>
    <message>
        <source>Reset to defaults.</source>
        <translation>Auf Standardwerte zurückgesetzt.</translation>
    </message>
    <message>
        <source>All settings are at their defaults.</source>
        <translation>Alle Einstellungen haben ihre Standardwerte.</translation>
    </message>
    <message>
        <source>Find a feature</source>
        <translation>Funktion suchen</translation>
    </message>
    <message>
        <source>This printer has no further features.</source>
        <translation>Dieser Drucker hat keine weiteren Funktionen.</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>No feature of this printer has “%1” in its name or choices.</source>
        <translation>Keine Funktion dieses Druckers enthält „%1“ im Namen oder in den Auswahlmöglichkeiten.</translation>
    </message>
    <message>
        <source>C&amp;ollate</source>
        <translation>S&amp;ortieren</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>&amp;Seiten:</translation>
    </message>
    <message>
        <source>O&amp;f these:</source>
        <translation>Davo&amp;n:</translation>
    </message>
    <message>
        <source>Pap&amp;er size:</source>
        <translation>&amp;Papierformat:</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>Ausr&amp;ichtung:</translation>
    </message>
    <message>
        <source>&amp;Two-sided:</source>
        <translation>&amp;Beidseitig:</translation>
    </message>
    <message>
        <source>Pages per s&amp;heet:</source>
        <translation>Seiten pro B&amp;latt:</translation>
    </message>
    <message>
        <source>Custom Size…</source>
        <translation>Benutzerdefiniertes Format …</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Whole copies one after the other</source>
        <translation>Vollständige Exemplare nacheinander</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Exemplare:</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Zu druckende Seiten</translation>
    </message>
    <message>
        <source>1-3, 5, 8-</source>
        <translation>1-3, 5, 8-</translation>
    </message>
    <message>
        <source>Print:</source>
        <translation>Drucken:</translation>
    </message>
    <message>
        <source>Which pages? For example 1-3, 5, 8-</source>
        <translation>Welche Seiten? Zum Beispiel 1-3, 5, 8-</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wartet</translation>
    </message>
    <message>
        <source>held</source>
        <translation>zurückgehalten</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>druckt</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>done</source>
        <translation>fertig</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>given up by the print server</source>
        <translation>vom Druckserver abgebrochen</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <extracomment>%1 is a job&apos;s number, %2 what it is doing</extracomment>
        <translation>Auftrag %1: %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>%1 is a choice, %2 says what it does not go with</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>a line was cut short</source>
        <translation>eine Zeile wurde abgeschnitten</translation>
    </message>
    <message>
        <source>log %1: %2</source>
        <translation>Protokoll %1: %2</translation>
    </message>
    <message>
        <source>log file %1: %2</source>
        <translation>Protokolldatei %1: %2</translation>
    </message>
    <message>
        <source>%1=%2 (with the other settings it is %3)</source>
        <translation>%1=%2 (mit den anderen Einstellungen ist es %3)</translation>
    </message>
    <message>
        <source>not possible on this printer: %1</source>
        <translation>auf diesem Drucker nicht möglich: %1</translation>
    </message>
    <message>
        <source>the printer cannot do all of this at once: %1</source>
        <translation>der Drucker kann dies nicht alles zugleich: %1</translation>
    </message>
    <message>
        <source>job %1-%2
</source>
        <translation>Auftrag %1-%2
</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>Den Hinweis schließen</translation>
    </message>
    <message>
        <source>picture %1: %2</source>
        <translation>Bild %1: %2</translation>
    </message>
    <message>
        <source>folder for pictures %1: it cannot be made</source>
        <translation>Ordner für Bilder %1: Anlegen nicht möglich</translation>
    </message>
    <message>
        <source>page %1 (%2) cannot be selected for this printer: no picture of it</source>
        <translation>Seite %1 (%2) kann für diesen Drucker nicht ausgewählt werden: kein Bild davon</translation>
    </message>
    <message>
        <source>The printer&apos;s plug-in offers no panel of settings.</source>
        <translation>Das Plugin des Druckers bietet kein Panel mit Einstellungen.</translation>
    </message>
    <message>
        <source>%1 is for other printers: this one has none of its options.</source>
        <translation>%1 ist für andere Drucker: Dieser hat keine der zugehörigen Optionen.</translation>
    </message>
    <message>
        <source>The panel could not read the printer&apos;s settings.</source>
        <translation>Das Panel konnte die Einstellungen des Druckers nicht lesen.</translation>
    </message>
    <message>
        <source>The panel of printer settings could not load its controls.</source>
        <translation>Das Panel der Druckereinstellungen konnte seine Bedienelemente nicht laden.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Druckereinstellungen</translation>
    </message>
    <message>
        <source>Printer Features</source>
        <translation>Druckerfunktionen</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>You can print all the same, with the settings of the other pages.</source>
        <translation>Sie können trotzdem drucken, mit den Einstellungen der anderen Seiten.</translation>
    </message>
    <message>
        <source>plug-in %1: %2</source>
        <translation>Plugin %1: %2</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>diesen Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>ist kein Ordner</translation>
    </message>
    <message>
        <source>the bundle&apos;s description is missing</source>
        <translation>die Beschreibung des Bundles fehlt</translation>
    </message>
    <message>
        <source>at byte %1: %2</source>
        <translation>bei Byte %1: %2</translation>
    </message>
    <message>
        <source>it does not give &quot;%1&quot;</source>
        <translation>&quot;%1&quot; ist nicht angegeben</translation>
    </message>
    <message>
        <source>the library &quot;%1&quot; is not a file of the bundle&apos;s folder</source>
        <translation>die Bibliothek &quot;%1&quot; ist keine Datei im Ordner des Bundles</translation>
    </message>
    <message>
        <source>the bundle&apos;s library is missing</source>
        <translation>die Bibliothek des Bundles fehlt</translation>
    </message>
    <message>
        <source>it is not a plug-in (%1)</source>
        <translation>ist kein Plugin (%1)</translation>
    </message>
    <message>
        <source>it is a plug-in for something else (%1), not a print dialog panel</source>
        <translation>ist ein Plugin für etwas anderes (%1), kein Panel für den Druckdialog</translation>
    </message>
    <message>
        <source>it does not say for which version of the panel protocol it was made</source>
        <translation>gibt nicht an, für welche Version des Panel-Protokolls es erstellt wurde</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel protocol; this dialog has version %2</source>
        <translation>wurde für Version %1 des Panel-Protokolls erstellt; dieser Dialog hat Version %2</translation>
    </message>
    <message>
        <source>its root object is not a panel factory</source>
        <translation>das Wurzelobjekt ist keine Panel-Factory</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>ohne Angabe eines Grundes</translation>
    </message>
    <message>
        <source>its panel factory could not be made</source>
        <translation>die Panel-Factory konnte nicht erzeugt werden</translation>
    </message>
    <message>
        <source>Pre&amp;sets</source>
        <translation>&amp;Voreinstellungen</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Standardeinstellungen</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>preset %1: this printer has none of this name</source>
        <translation>Voreinstellung %1: Dieser Drucker hat keine dieses Namens</translation>
    </message>
    <message>
        <source>preset %1: %2</source>
        <translation>Voreinstellung %1: %2</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>Als Voreinstellung &amp;speichern …</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Make These &amp;My Defaults</source>
        <translation>Als &amp;meinen Standard festlegen</translation>
    </message>
    <message>
        <source>Preset saved: %1</source>
        <translation>Voreinstellung gespeichert: %1</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Voreinstellung umbenennen</translation>
    </message>
    <message>
        <source>New name of the preset:</source>
        <translation>Neuer Name der Voreinstellung:</translation>
    </message>
    <message>
        <source>Preset renamed: %1</source>
        <translation>Voreinstellung umbenannt: %1</translation>
    </message>
    <message>
        <source>Preset deleted: %1</source>
        <translation>Voreinstellung gelöscht: %1</translation>
    </message>
    <message>
        <source>These settings are your defaults for %1 now, in every program (%2).</source>
        <translation>Diese Einstellungen sind jetzt Ihr Standard für %1, in jedem Programm (%2).</translation>
    </message>
    <message>
        <source>Sample printer</source>
        <translation>Beispieldrucker</translation>
    </message>
    <message>
        <source>Print lists the job&apos;s options</source>
        <translation>„Drucken“ listet die Optionen des Auftrags auf</translation>
    </message>
    <message>
        <source>Print writes the pages into a file</source>
        <translation>„Drucken“ schreibt die Seiten in eine Datei</translation>
    </message>
    <message>
        <source>PPD file %1: Print lists the job&apos;s options</source>
        <translation>PPD-Datei %1: „Drucken“ listet die Optionen des Auftrags auf</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>D&amp;rucker:</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Look for printers again (F5)</source>
        <translation>Erneut nach Druckern suchen (F5)</translation>
    </message>
    <message>
        <source>Look for printers again</source>
        <translation>Erneut nach Druckern suchen</translation>
    </message>
    <message>
        <source>looking for printers…</source>
        <translation>Drucker werden gesucht …</translation>
    </message>
    <message>
        <source>Paper and &amp;layout</source>
        <translation>Papier und &amp;Layout</translation>
    </message>
    <message>
        <source>Printer settings</source>
        <translation>Druckereinstellungen</translation>
    </message>
    <message>
        <source>Printer &amp;features</source>
        <translation>Drucker&amp;funktionen</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Als Voreinstellung speichern</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>The preset keeps:</source>
        <translation>Die Voreinstellung enthält:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Choose what the preset keeps.</source>
        <translation>Wählen Sie, was die Voreinstellung enthält.</translation>
    </message>
    <message>
        <source>This replaces the preset of the same name.</source>
        <translation>Dies ersetzt die gleichnamige Voreinstellung.</translation>
    </message>
    <message>
        <source>set for this job</source>
        <translation>für diesen Auftrag gesetzt</translation>
    </message>
    <message>
        <source>changed (default: none)</source>
        <translation>geändert (Standard: keiner)</translation>
    </message>
    <message>
        <source>changed (default: %1)</source>
        <translation>geändert (Standard: %1)</translation>
    </message>
    <message>
        <source>Reset to &amp;Default</source>
        <translation>Auf Standard &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>Reset A&amp;ll to Defaults</source>
        <translation>Alles auf Standard zurückse&amp;tzen</translation>
    </message>
    <message>
        <source>Reset the selected settings (Delete)</source>
        <translation>Die ausgewählten Einstellungen zurücksetzen (Entf)</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Other options of the job</source>
        <translation>Weitere Optionen des Auftrags</translation>
    </message>
    <message>
        <source>not with %1</source>
        <extracomment>%1 lists settings, such as &quot;Media Type: Canvas&quot;</extracomment>
        <translation>nicht mit %1</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>Reihenfolge der Exemplare</translation>
    </message>
    <message>
        <source>collated (1, 2, 3, 1, 2, 3)</source>
        <translation>sortiert (1, 2, 3, 1, 2, 3)</translation>
    </message>
    <message>
        <source>page by page (1, 1, 2, 2, 3, 3)</source>
        <translation>Seite für Seite (1, 1, 2, 2, 3, 3)</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Of these</source>
        <translation>Davon</translation>
    </message>
    <message>
        <source>odd and even pages</source>
        <translation>ungerade und gerade Seiten</translation>
    </message>
    <message>
        <source>odd pages</source>
        <translation>ungerade Seiten</translation>
    </message>
    <message>
        <source>even pages</source>
        <translation>gerade Seiten</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>reverse landscape</source>
        <translation>Querformat, umgekehrt</translation>
    </message>
    <message>
        <source>reverse portrait</source>
        <translation>Hochformat, umgekehrt</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Seiten pro Blatt</translation>
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
        <translation>Seitenbereiche: &quot;%1&quot; ist weder eine Seite noch ein Bereich wie 2-5</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; names a page that cannot be</source>
        <translation>Seitenbereiche: &quot;%1&quot; nennt eine Seite, die es nicht geben kann</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; ends before it begins</source>
        <translation>Seitenbereiche: &quot;%1&quot; endet vor dem Anfang</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; does not follow the pages before it: a job prints its pages in their order, each once</source>
        <translation>Seitenbereiche: &quot;%1&quot; folgt nicht auf die Seiten davor: Ein Auftrag druckt seine Seiten der Reihe nach, jede einmal</translation>
    </message>
    <message>
        <source>a preset needs a name</source>
        <translation>eine Voreinstellung braucht einen Namen</translation>
    </message>
    <message numerus="yes">
        <source>the name of a preset has at most %n characters</source>
        <translation>
            <numerusform>der Name einer Voreinstellung hat höchstens %n Zeichen</numerusform>
            <numerusform>der Name einer Voreinstellung hat höchstens %n Zeichen</numerusform>
        </translation>
    </message>
    <message>
        <source>the name of a preset is one line, without control characters</source>
        <translation>der Name einer Voreinstellung ist eine Zeile, ohne Steuerzeichen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is always there: no other preset can have its name</source>
        <translation>&quot;%1&quot; ist immer vorhanden: Keine andere Voreinstellung kann so heißen</translation>
    </message>
    <message>
        <source>presets file %1: %2</source>
        <translation>Voreinstellungsdatei %1: %2</translation>
    </message>
    <message>
        <source>it is a directory</source>
        <translation>ist ein Verzeichnis</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ist keine reguläre Datei</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>ist zu groß</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>&quot;presets&quot; is not a list</source>
        <translation>&quot;presets&quot; ist keine Liste</translation>
    </message>
    <message>
        <source>&quot;lastUsed&quot; is not an object</source>
        <translation>&quot;lastUsed&quot; ist kein Objekt</translation>
    </message>
    <message>
        <source>line 1: not a JSON object</source>
        <translation>Zeile 1: kein JSON-Objekt</translation>
    </message>
    <message>
        <source>&quot;version&quot; is not a version number</source>
        <translation>&quot;version&quot; ist keine Versionsnummer</translation>
    </message>
    <message>
        <source>it was written by a later version of this program (its format is %1, this program knows %2): its presets can be used, not changed</source>
        <translation>wurde von einer neueren Version dieses Programms geschrieben (Format %1, dieses Programm kennt %2): Die Voreinstellungen können verwendet, aber nicht geändert werden</translation>
    </message>
    <message>
        <source>presets folder %1: %2</source>
        <translation>Voreinstellungsordner %1: %2</translation>
    </message>
    <message>
        <source>another program is changing presets and does not come to an end</source>
        <translation>ein anderes Programm ändert gerade Voreinstellungen und wird nicht fertig</translation>
    </message>
    <message>
        <source>it cannot be locked</source>
        <translation>kann nicht gesperrt werden</translation>
    </message>
    <message>
        <source>it would become too large</source>
        <translation>würde zu groß</translation>
    </message>
    <message>
        <source>too many damaged files beside it</source>
        <translation>zu viele beschädigte Dateien daneben</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;</source>
        <translation>es gibt keine Voreinstellung &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is already a preset &quot;%1&quot;</source>
        <translation>es gibt schon eine Voreinstellung &quot;%1&quot;</translation>
    </message>
    <message>
        <source>presets: the printer has no name</source>
        <translation>Voreinstellungen: Der Drucker hat keinen Namen</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;: a value has no key</source>
        <translation>Voreinstellung &quot;%1&quot;: Ein Wert hat keinen Schlüssel</translation>
    </message>
    <message>
        <source>%1; it was kept as %2</source>
        <translation>%1; aufbewahrt als %2</translation>
    </message>
    <message>
        <source>print server %1: it cannot be reached: %2</source>
        <translation>Druckserver %1: nicht erreichbar: %2</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>die Verbindung ist abgebrochen</translation>
    </message>
    <message>
        <source>nothing answers there</source>
        <translation>dort antwortet nichts</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>antwortet nicht</translation>
    </message>
    <message>
        <source>the print server %1 has no queue of this name</source>
        <translation>der Druckserver %1 hat keine Warteschlange dieses Namens</translation>
    </message>
    <message>
        <source>the print server %1 says: %2</source>
        <translation>der Druckserver %1 meldet: %2</translation>
    </message>
    <message>
        <source>queue %1: %2</source>
        <translation>Warteschlange %1: %2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: %2</source>
        <translation>Ordner für die PPD der Warteschlange %1: %2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: the path %2 is too long</source>
        <translation>Ordner für die PPD der Warteschlange %1: Der Pfad %2 ist zu lang</translation>
    </message>
    <message>
        <source>file %1: it cannot be written</source>
        <translation>Datei %1: Schreiben nicht möglich</translation>
    </message>
    <message>
        <source>queue %1: its PPD file cannot be fetched: %2</source>
        <translation>Warteschlange %1: Die PPD-Datei kann nicht geholt werden: %2</translation>
    </message>
    <message>
        <source>%1
Printed already: %2
Not printed: %3</source>
        <translation>%1
Bereits gedruckt: %2
Nicht gedruckt: %3</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>print server %1: it does not list its queues: %2</source>
        <translation>Druckserver %1: listet seine Warteschlangen nicht auf: %2</translation>
    </message>
    <message>
        <source>document %1: %2</source>
        <translation>Dokument %1: %2</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>there is nothing in it</source>
        <translation>enthält nichts</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>it can be printed only once</source>
        <translation>kann nur einmal gedruckt werden</translation>
    </message>
    <message>
        <source>the print server does not cancel it: %1</source>
        <translation>der Druckserver bricht den Auftrag nicht ab: %1</translation>
    </message>
    <message>
        <source>the print server no longer has the queue %1</source>
        <translation>der Druckserver hat die Warteschlange %1 nicht mehr</translation>
    </message>
    <message>
        <source>the print server keeps no record of it</source>
        <translation>dem Druckserver ist dazu nichts mehr bekannt</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>der Drucker ist angehalten</translation>
    </message>
    <message>
        <source>sheets so far: %1</source>
        <translation>Blätter bisher: %1</translation>
    </message>
    <message>
        <source>job %1: the print server %2 does not tell how it is: %3</source>
        <translation>Auftrag %1: Der Druckserver %2 meldet den Stand nicht: %3</translation>
    </message>
    <message>
        <source>it is not accepting jobs</source>
        <translation>nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>it does not take the job: %1</source>
        <translation>nimmt den Auftrag nicht an: %1</translation>
    </message>
    <message>
        <source>it does not take the document %1: %2</source>
        <translation>nimmt das Dokument %1 nicht an: %2</translation>
    </message>
    <message>
        <source> (job %1 may remain on the server: %2)</source>
        <translation> (Auftrag %1 bleibt möglicherweise auf dem Server: %2)</translation>
    </message>
    <message>
        <source>there is no document to print</source>
        <translation>es gibt kein Dokument zu drucken</translation>
    </message>
    <message>
        <source>it is a directory, not a PPD file</source>
        <translation>ist ein Verzeichnis, keine PPD-Datei</translation>
    </message>
    <message>
        <source>PPD file %1: %2</source>
        <translation>PPD-Datei %1: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>pausiert</translation>
    </message>
    <message>
        <source>being paused</source>
        <translation>wird pausiert</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>ausgeschaltet</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>Verbindung zum Drucker wird hergestellt</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>der Drucker antwortet nicht</translation>
    </message>
    <message>
        <source>paper is needed</source>
        <translation>Papier wird benötigt</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>kein Papier mehr</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>wenig Papier</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>Papierstau</translation>
    </message>
    <message>
        <source>a cover is open</source>
        <translation>eine Abdeckung ist offen</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>eine Klappe ist offen</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>das Papierfach fehlt</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>das Ausgabefach ist voll</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>keine Tinte mehr</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>wenig Tinte</translation>
    </message>
    <message>
        <source>the waste container is full</source>
        <translation>der Resttintenbehälter ist voll</translation>
    </message>
    <message>
        <source>the waste container is almost full</source>
        <translation>der Resttintenbehälter ist fast voll</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>kein Toner mehr</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>wenig Toner</translation>
    </message>
    <message>
        <source>the print server has no room left</source>
        <translation>der Druckserver hat keinen Platz mehr</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>neue Aufträge werden zurückgehalten</translation>
    </message>
    <message>
        <source>a program of its driver is missing</source>
        <translation>ein Programm des Treibers fehlt</translation>
    </message>
    <message>
        <source>a program of its driver can be changed by others</source>
        <translation>ein Programm des Treibers kann von anderen verändert werden</translation>
    </message>
    <message>
        <source>the printer is partly stopped</source>
        <translation>der Drucker ist teilweise angehalten</translation>
    </message>
    <message>
        <source>it waits for its time or its release</source>
        <translation>wartet auf den Termin oder die Freigabe</translation>
    </message>
    <message>
        <source>documents are still to come</source>
        <translation>es fehlen noch Dokumente</translation>
    </message>
    <message>
        <source>cancelled by a person</source>
        <translation>von einem Benutzer abgebrochen</translation>
    </message>
    <message>
        <source>cancelled by an operator</source>
        <translation>von einem Operator abgebrochen</translation>
    </message>
    <message>
        <source>cancelled at the printer</source>
        <translation>am Drucker abgebrochen</translation>
    </message>
    <message>
        <source>the document is damaged</source>
        <translation>das Dokument ist beschädigt</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>der Drucker kann diese Art von Dokument nicht drucken</translation>
    </message>
    <message>
        <source>printed with warnings</source>
        <translation>mit Warnungen gedruckt</translation>
    </message>
    <message>
        <source>printed with errors</source>
        <translation>mit Fehlern gedruckt</translation>
    </message>
    <message>
        <source>it holds a zero byte</source>
        <translation>enthält ein Null-Byte</translation>
    </message>
    <message>
        <source>a backslash is not followed by \, =, n or r</source>
        <translation>auf einen Backslash folgt nicht \, =, n oder r</translation>
    </message>
    <message>
        <source>there is no &quot;=&quot; in it</source>
        <translation>enthält kein &quot;=&quot;</translation>
    </message>
    <message>
        <source>there is no key before the &quot;=&quot;</source>
        <translation>vor dem &quot;=&quot; steht kein Schlüssel</translation>
    </message>
    <message>
        <source>it is not UTF-8 text</source>
        <translation>ist kein UTF-8-Text</translation>
    </message>
    <message>
        <source>ticket on standard output: %1</source>
        <translation>Ticket auf der Standardausgabe: %1</translation>
    </message>
    <message>
        <source>ticket file %1: %2</source>
        <translation>Ticketdatei %1: %2</translation>
    </message>
    <message>
        <source>file %1: %2</source>
        <translation>Datei %1: %2</translation>
    </message>
    <message>
        <source>; it could not be removed again</source>
        <translation>; das Entfernen danach ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>; the earlier ones are in %1</source>
        <translation>; die früheren sind in %1</translation>
    </message>
    <message>
        <source>these options of %1 could not be kept: %2</source>
        <translation>diese Optionen von %1 konnten nicht behalten werden: %2</translation>
    </message>
    <message>
        <source>file %1: it cannot be written: %2</source>
        <translation>Datei %1: Schreiben nicht möglich: %2</translation>
    </message>
    <message>
        <source>queue %1: the values of these options cannot be kept as defaults: %2</source>
        <translation>Warteschlange %1: Die Werte dieser Optionen können nicht als Standard gespeichert werden: %2</translation>
    </message>
    <message>
        <source>queue %1: the print server has no queue of this name</source>
        <translation>Warteschlange %1: Der Druckserver hat keine Warteschlange dieses Namens</translation>
    </message>
    <message>
        <source>%1, for all users</source>
        <translation>%1, für alle Benutzer</translation>
    </message>
    <message>
        <source>the image cannot be read: %1</source>
        <translation>das Bild kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn</source>
        <translation>Seite %1 kann nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>there is no room for the paper</source>
        <translation>es ist kein Platz für das Papier</translation>
    </message>
    <message>
        <source>there is no preview of this kind of document</source>
        <translation>für diese Art von Dokument gibt es keine Vorschau</translation>
    </message>
    <message>
        <source>the PDF file is damaged</source>
        <translation>die PDF-Datei ist beschädigt</translation>
    </message>
    <message>
        <source>the PDF file is protected by a password</source>
        <translation>die PDF-Datei ist durch ein Passwort geschützt</translation>
    </message>
    <message>
        <source>the PDF file has no pages</source>
        <translation>die PDF-Datei hat keine Seiten</translation>
    </message>
    <message>
        <source>none of the pages is selected</source>
        <translation>keine der Seiten ist ausgewählt</translation>
    </message>
    <message>
        <source>a page cannot be begun: %1</source>
        <translation>eine Seite kann nicht begonnen werden: %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>There is no document.</source>
        <translation>Es ist kein Dokument vorhanden.</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Wird geöffnet …</translation>
    </message>
    <message numerus="yes">
        <source>None of the document&apos;s %n pages is selected.</source>
        <translation>
            <numerusform>Die %n Seite des Dokuments ist nicht ausgewählt.</numerusform>
            <numerusform>Keine der %n Seiten des Dokuments ist ausgewählt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>Wird gezeichnet …</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Blatt %1 von %2</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>only the first page is shown here; all pages are printed</source>
        <translation>hier wird nur die erste Seite gezeigt; gedruckt werden alle Seiten</translation>
    </message>
    <message>
        <source>the text is longer than %1 MB</source>
        <translation>der Text ist länger als %1 MB</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>the part of this program that reads PDF files is missing</source>
        <translation>der Teil dieses Programms, der PDF-Dateien liest, fehlt</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB, or damaged</source>
        <translation>ist größer als %1 MiB oder beschädigt</translation>
    </message>
</context>
</TS>
