<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>TessarinPrint</name>
    <message>
        <source>Print</source>
        <translation>Drukowanie</translation>
    </message>
    <message>
        <source>The print dialog cannot be opened.</source>
        <translation>Nie można otworzyć okna drukowania.</translation>
    </message>
    <message>
        <source>there is no printer: name one with --printer, --ppd or --sample</source>
        <translation>nie ma drukarki: należy ją podać za pomocą --printer, --ppd lub --sample</translation>
    </message>
    <message>
        <source>nothing was printed; pictures of the dialog (%1) are in %2, the options that Print would send are on standard output</source>
        <translation>nic nie wydrukowano; obrazy okna (%1) są w %2, a opcje, które wysłałby przycisk „Drukuj”, na standardowym wyjściu</translation>
    </message>
    <message>
        <source>the panel gives no summary</source>
        <translation>panel nie podaje podsumowania</translation>
    </message>
    <message>
        <source>standard output: the summary cannot be written</source>
        <translation>standardowe wyjście: nie można zapisać podsumowania</translation>
    </message>
    <message>
        <source>standard output: it cannot be written</source>
        <translation>standardowe wyjście: nie można zapisać</translation>
    </message>
    <message>
        <source>there is no display: to get a window, run this in a desktop session, set DISPLAY or WAYLAND_DISPLAY, or use a virtual display: xvfb-run -a tessarin-print</source>
        <translation>nie ma ekranu: aby uzyskać okno, należy uruchomić program w sesji graficznej, ustawić DISPLAY lub WAYLAND_DISPLAY albo użyć wirtualnego ekranu: xvfb-run -a tessarin-print</translation>
    </message>
    <message>
        <source>Show the printer that a PPD file describes.</source>
        <translation>Wyświetla drukarkę opisaną w pliku PPD.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>plik</translation>
    </message>
    <message>
        <source>Print on a queue of the print server.</source>
        <translation>Drukuje w kolejce serwera druku.</translation>
    </message>
    <message>
        <source>queue</source>
        <translation>kolejka</translation>
    </message>
    <message>
        <source>Show the sample printer that comes with the program.</source>
        <translation>Wyświetla przykładową drukarkę dostarczoną z programem.</translation>
    </message>
    <message>
        <source>Set an option of the printer or the job; may be given more than once.</source>
        <translation>Ustawia opcję drukarki lub zadania; można podać wielokrotnie.</translation>
    </message>
    <message>
        <source>key=value</source>
        <translation>klucz=wartość</translation>
    </message>
    <message>
        <source>Print this many copies.</source>
        <translation>Drukuje podaną liczbę kopii.</translation>
    </message>
    <message>
        <source>copies</source>
        <translation>kopie</translation>
    </message>
    <message>
        <source>Print these pages, such as 1-3,5,8-.</source>
        <translation>Drukuje podane strony, na przykład 1-3,5,8-.</translation>
    </message>
    <message>
        <source>ranges</source>
        <translation>zakresy</translation>
    </message>
    <message>
        <source>Start from a preset of the printer; -o, -n and -P go over it.</source>
        <translation>Zaczyna od zestawu ustawień drukarki; -o, -n i -P mają pierwszeństwo.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nazwa</translation>
    </message>
    <message>
        <source>Print at once, without a window; the panel&apos;s rules apply all the same.</source>
        <translation>Drukuje od razu, bez okna; reguły panelu nadal obowiązują.</translation>
    </message>
    <message>
        <source>Print nothing: list the printer&apos;s presets, one a line.</source>
        <translation>Niczego nie drukuje: wypisuje zestawy ustawień drukarki, po jednym w wierszu.</translation>
    </message>
    <message>
        <source>Print each document as a job of its own.</source>
        <translation>Drukuje każdy dokument jako osobne zadanie.</translation>
    </message>
    <message>
        <source>Write the job&apos;s options to a file, one key=value per line (&quot;-&quot;: to standard output, which is the default without a queue).</source>
        <translation>Zapisuje opcje zadania do pliku, po jednej parze klucz=wartość w wierszu (&quot;-&quot;: na standardowe wyjście, domyślnie przy braku kolejki).</translation>
    </message>
    <message>
        <source>Send the panel&apos;s diagnostic log to stderr, none, syslog (default) or a file.</source>
        <translation>Wysyła dziennik diagnostyczny panelu do stderr, none, syslog (domyślnie) lub do pliku.</translation>
    </message>
    <message>
        <source>where</source>
        <translation>cel</translation>
    </message>
    <message>
        <source>Load the panel from this folder (else from $TESSARIN_BUNDLE, else the one installed with the program).</source>
        <translation>Wczytuje panel z tego folderu (bez tej opcji: z $TESSARIN_BUNDLE, a w razie braku panel zainstalowany z programem).</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>folder</translation>
    </message>
    <message>
        <source>Show the dialog in this language, such as de or pt_BR.</source>
        <translation>Wyświetla okno w tym języku, na przykład de lub pt_BR.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>kod</translation>
    </message>
    <message>
        <source>Print nothing: save a picture of each page in this folder and list the job&apos;s options on standard output. Without a display this happens anyway, in ./tessarin-pages.</source>
        <translation>Niczego nie drukuje: zapisuje obraz każdej strony okna w tym folderze i wypisuje opcje zadania na standardowym wyjściu. Bez ekranu dzieje się tak zawsze, w ./tessarin-pages.</translation>
    </message>
    <message>
        <source>Print nothing and open no window: list the settings on standard output, as text or, with &quot;json&quot;, as JSON.</source>
        <translation>Niczego nie drukuje i nie otwiera okna: wypisuje ustawienia na standardowym wyjściu jako tekst lub, z &quot;json&quot;, jako JSON.</translation>
    </message>
    <message>
        <source>[json]</source>
        <translation>[json]</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Wyświetla ten tekst.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Wyświetla wersję.</translation>
    </message>
    <message>
        <source>The documents to print (&quot;-&quot;: standard input).</source>
        <translation>Dokumenty do wydrukowania (&quot;-&quot;: standardowe wejście).</translation>
    </message>
    <message>
        <source>usage: -o %1: there is no key before the &quot;=&quot;</source>
        <translation>użycie: -o %1: brak klucza przed &quot;=&quot;</translation>
    </message>
    <message>
        <source>usage: -n %1: not a number of copies from 1 to 9999</source>
        <translation>użycie: -n %1: to nie jest liczba kopii od 1 do 9999</translation>
    </message>
    <message>
        <source>usage: -P %1: %2</source>
        <translation>użycie: -P %1: %2</translation>
    </message>
    <message>
        <source>usage: --ppd and --printer cannot be given together: one printer at a time</source>
        <translation>użycie: --ppd i --printer nie można podać razem: tylko jedna drukarka naraz</translation>
    </message>
    <message>
        <source>usage: --printer %1: no name of a queue</source>
        <translation>użycie: --printer %1: to nie jest nazwa kolejki</translation>
    </message>
    <message>
        <source>usage: --sample cannot be given with --ppd or --printer: one printer at a time</source>
        <translation>użycie: --sample nie można podać razem z --ppd ani --printer: tylko jedna drukarka naraz</translation>
    </message>
    <message>
        <source>usage: --no-dialog prints, which --pictures, --summary and --list-presets do not</source>
        <translation>użycie: --no-dialog drukuje, a --pictures, --summary i --list-presets nie</translation>
    </message>
    <message>
        <source>usage: no document: there is nothing to print on queue %1</source>
        <translation>użycie: brak dokumentu: nie ma nic do wydrukowania w kolejce %1</translation>
    </message>
    <message>
        <source>(the default)</source>
        <translation>(domyślna)</translation>
    </message>
    <message>
        <source>usage: standard input (&quot;-&quot;) can be printed only once</source>
        <translation>użycie: standardowe wejście (&quot;-&quot;) można wydrukować tylko raz</translation>
    </message>
    <message>
        <source>usage: a document has an empty name</source>
        <translation>użycie: dokument ma pustą nazwę</translation>
    </message>
    <message>
        <source>usage: --language %1: not a language code such as de or pt_BR</source>
        <translation>użycie: --language %1: to nie jest kod języka taki jak de lub pt_BR</translation>
    </message>
    <message>
        <source>usage: --summary %1: not a form, which is text or json</source>
        <translation>użycie: --summary %1: nieznany format, dozwolone są text i json</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>użycie: %1</translation>
    </message>
    <message>
        <source>usage: --%1: the value is empty</source>
        <translation>użycie: --%1: wartość jest pusta</translation>
    </message>
    <message>
        <source>A print dialog with the panel of printer settings. Without --printer, --ppd or --sample it starts with the printer that was used last, or the default one.</source>
        <translation>Okno drukowania z panelem ustawień drukarki. Bez --printer, --ppd i --sample zaczyna od ostatnio używanej lub domyślnej drukarki.</translation>
    </message>
    <message>
        <source>
Exit codes: 0 printed (or done what was asked in place of printing), 1 cancelled, 2 usage, settings that are not possible or a file that cannot be written, 3 printer, 4 document, 5 plug-in.
</source>
        <translation>
Kody wyjścia: 0 wydrukowano (lub wykonano to, o co poproszono zamiast drukowania), 1 anulowano, 2 użycie, niemożliwe ustawienia lub plik, którego nie można zapisać, 3 drukarka, 4 dokument, 5 wtyczka.
</translation>
    </message>
    <message>
        <source>Custom Paper Size</source>
        <translation>Własny rozmiar papieru</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Szerokość:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Wysokość:</translation>
    </message>
    <message>
        <source> in</source>
        <translation> in</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Tr&amp;y Again</source>
        <translation>Spróbuj j&amp;eszcze raz</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Wyszukiwanie drukarek…</translation>
    </message>
    <message>
        <source>Print each document as a &amp;job of its own</source>
        <translation>Drukuj każdy dokument jako &amp;osobne zadanie</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drukuj</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>Otwieranie: %1…</translation>
    </message>
    <message>
        <source>Print – %1</source>
        <translation>Drukowanie – %1</translation>
    </message>
    <message>
        <source>Not possible on this printer</source>
        <translation>Niemożliwe na tej drukarce</translation>
    </message>
    <message>
        <source>There is no printer open.</source>
        <translation>Nie otwarto żadnej drukarki.</translation>
    </message>
    <message>
        <source>There are no printers. Choose another destination from the list above, or add a printer in the system&apos;s settings and look again.</source>
        <translation>Nie ma żadnych drukarek. Można wybrać inny cel z listy powyżej albo dodać drukarkę w ustawieniach systemu i wyszukać ponownie.</translation>
    </message>
    <message>
        <source>print</source>
        <translation>drukowanie</translation>
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
        <translation>Wykluczające się ustawienia</translation>
    </message>
    <message>
        <source>The printer cannot do all of this at once: %1.</source>
        <translation>Drukarka nie obsługuje tego wszystkiego naraz: %1.</translation>
    </message>
    <message>
        <source>Nothing was printed. Change one of these settings.</source>
        <translation>Nic nie wydrukowano. Należy zmienić jedno z tych ustawień.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Anuluj zadanie</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Close the dialog and let the job go on</source>
        <translation>Zamyka okno i pozwala kontynuować zadanie</translation>
    </message>
    <message>
        <source>Not printed: %1</source>
        <translation>Nie wydrukowano: %1</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Nie wydrukowano</translation>
    </message>
    <message>
        <source>Your document and settings are kept: you can try again.</source>
        <translation>Dokument i ustawienia zostały zachowane: można spróbować ponownie.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Ponów pró&amp;bę</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>Zapisz jako PD&amp;F…</translation>
    </message>
    <message>
        <source>There is no document to save as PDF.</source>
        <translation>Nie ma dokumentu do zapisania jako PDF.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Zapisz jako PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Pliki PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Drukowanie…</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Zatrzymywanie…</translation>
    </message>
    <message>
        <source>%1 is possible %2.</source>
        <extracomment>%1 is a setting with its value, %2 says what it does not go with</extracomment>
        <translation>%1 – możliwe, ale %2.</translation>
    </message>
    <message>
        <source>Change the other setting first.</source>
        <translation>Najpierw należy zmienić drugie ustawienie.</translation>
    </message>
    <message>
        <source>To make it fit, this would be set, too: %1.</source>
        <translation>Wymaga to także ustawienia: %1.</translation>
    </message>
    <message>
        <source>&amp;Change Both</source>
        <translation>Z&amp;mień oba</translation>
    </message>
    <message>
        <source>Changed, too: %1</source>
        <translation>Zmieniono także: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>Preset %1: not possible on this printer now</source>
        <translation>Zestaw ustawień %1: obecnie niemożliwe na tej drukarce</translation>
    </message>
    <message>
        <source>Preset applied: %1</source>
        <translation>Zastosowano zestaw ustawień: %1</translation>
    </message>
    <message>
        <source>Its default is not possible now</source>
        <translation>Wartość domyślna jest obecnie niemożliwa</translation>
    </message>
    <message>
        <source>Reset to its default: %1</source>
        <translation>Przywrócono wartość domyślną: %1</translation>
    </message>
    <message>
        <source>Reset to defaults.</source>
        <translation>Przywrócono wartości domyślne.</translation>
    </message>
    <message>
        <source>All settings are at their defaults.</source>
        <translation>Wszystkie ustawienia mają wartości domyślne.</translation>
    </message>
    <message>
        <source>Find a feature</source>
        <translation>Znajdź funkcję</translation>
    </message>
    <message>
        <source>This printer has no further features.</source>
        <translation>Ta drukarka nie ma dodatkowych funkcji.</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>No feature of this printer has “%1” in its name or choices.</source>
        <translation>Żadna funkcja tej drukarki nie ma „%1” w nazwie ani wśród wartości.</translation>
    </message>
    <message>
        <source>C&amp;ollate</source>
        <translation>&amp;Sortuj</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Wszystkie</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>S&amp;trony:</translation>
    </message>
    <message>
        <source>O&amp;f these:</source>
        <translation>Z &amp;nich:</translation>
    </message>
    <message>
        <source>Pap&amp;er size:</source>
        <translation>Rozmiar &amp;papieru:</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>Or&amp;ientacja:</translation>
    </message>
    <message>
        <source>&amp;Two-sided:</source>
        <translation>Dr&amp;uk dwustronny:</translation>
    </message>
    <message>
        <source>Pages per s&amp;heet:</source>
        <translation>Stron na &amp;arkusz:</translation>
    </message>
    <message>
        <source>Custom Size…</source>
        <translation>Własny rozmiar…</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Kopie</translation>
    </message>
    <message>
        <source>Whole copies one after the other</source>
        <translation>Całe kopie jedna po drugiej</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Kopie:</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Strony do wydrukowania</translation>
    </message>
    <message>
        <source>1-3, 5, 8-</source>
        <translation>1-3, 5, 8-</translation>
    </message>
    <message>
        <source>Print:</source>
        <translation>Drukuj:</translation>
    </message>
    <message>
        <source>Which pages? For example 1-3, 5, 8-</source>
        <translation>Które strony? Na przykład 1-3, 5, 8-</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>oczekiwanie</translation>
    </message>
    <message>
        <source>held</source>
        <translation>wstrzymano</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>drukowanie</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>zatrzymano</translation>
    </message>
    <message>
        <source>done</source>
        <translation>ukończono</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>anulowano</translation>
    </message>
    <message>
        <source>given up by the print server</source>
        <translation>przerwano przez serwer druku</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <extracomment>%1 is a job&apos;s number, %2 what it is doing</extracomment>
        <translation>Zadanie %1: %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>%1 is a choice, %2 says what it does not go with</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>a line was cut short</source>
        <translation>wiersz został skrócony</translation>
    </message>
    <message>
        <source>log %1: %2</source>
        <translation>dziennik %1: %2</translation>
    </message>
    <message>
        <source>log file %1: %2</source>
        <translation>plik dziennika %1: %2</translation>
    </message>
    <message>
        <source>%1=%2 (with the other settings it is %3)</source>
        <translation>%1=%2 (przy pozostałych ustawieniach jest %3)</translation>
    </message>
    <message>
        <source>not possible on this printer: %1</source>
        <translation>niemożliwe na tej drukarce: %1</translation>
    </message>
    <message>
        <source>the printer cannot do all of this at once: %1</source>
        <translation>drukarka nie obsługuje tego wszystkiego naraz: %1</translation>
    </message>
    <message>
        <source>job %1-%2
</source>
        <translation>zadanie %1-%2
</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>Zamknij powiadomienie</translation>
    </message>
    <message>
        <source>picture %1: %2</source>
        <translation>obraz %1: %2</translation>
    </message>
    <message>
        <source>folder for pictures %1: it cannot be made</source>
        <translation>folder obrazów %1: nie można utworzyć</translation>
    </message>
    <message>
        <source>page %1 (%2) cannot be selected for this printer: no picture of it</source>
        <translation>strony %1 (%2) nie można wybrać dla tej drukarki: brak jej obrazu</translation>
    </message>
    <message>
        <source>The printer&apos;s plug-in offers no panel of settings.</source>
        <translation>Wtyczka drukarki nie udostępnia panelu ustawień.</translation>
    </message>
    <message>
        <source>%1 is for other printers: this one has none of its options.</source>
        <translation>%1 dotyczy innych drukarek: ta nie ma żadnej z wymaganych opcji.</translation>
    </message>
    <message>
        <source>The panel could not read the printer&apos;s settings.</source>
        <translation>Panel nie mógł odczytać ustawień drukarki.</translation>
    </message>
    <message>
        <source>The panel of printer settings could not load its controls.</source>
        <translation>Panel ustawień drukarki nie mógł wczytać swoich elementów sterujących.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Strony</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Ustawienia drukarki</translation>
    </message>
    <message>
        <source>Printer Features</source>
        <translation>Funkcje drukarki</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>You can print all the same, with the settings of the other pages.</source>
        <translation>Mimo to można drukować z ustawieniami z pozostałych stron.</translation>
    </message>
    <message>
        <source>plug-in %1: %2</source>
        <translation>wtyczka %1: %2</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>nie ma takiego folderu</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>to nie jest folder</translation>
    </message>
    <message>
        <source>the bundle&apos;s description is missing</source>
        <translation>brak opisu pakietu</translation>
    </message>
    <message>
        <source>at byte %1: %2</source>
        <translation>bajt %1: %2</translation>
    </message>
    <message>
        <source>it does not give &quot;%1&quot;</source>
        <translation>nie podaje &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the library &quot;%1&quot; is not a file of the bundle&apos;s folder</source>
        <translation>biblioteka &quot;%1&quot; nie jest plikiem w folderze pakietu</translation>
    </message>
    <message>
        <source>the bundle&apos;s library is missing</source>
        <translation>brak biblioteki pakietu</translation>
    </message>
    <message>
        <source>it is not a plug-in (%1)</source>
        <translation>to nie jest wtyczka (%1)</translation>
    </message>
    <message>
        <source>it is a plug-in for something else (%1), not a print dialog panel</source>
        <translation>to wtyczka do czegoś innego (%1), a nie panel okna drukowania</translation>
    </message>
    <message>
        <source>it does not say for which version of the panel protocol it was made</source>
        <translation>nie podaje, dla której wersji protokołu panelu ją utworzono</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel protocol; this dialog has version %2</source>
        <translation>utworzono ją dla wersji %1 protokołu panelu; to okno ma wersję %2</translation>
    </message>
    <message>
        <source>its root object is not a panel factory</source>
        <translation>jej obiekt główny nie jest fabryką paneli</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>nie podano przyczyny</translation>
    </message>
    <message>
        <source>its panel factory could not be made</source>
        <translation>nie można utworzyć jej fabryki paneli</translation>
    </message>
    <message>
        <source>Pre&amp;sets</source>
        <translation>&amp;Zestawy ustawień</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Ustawienia domyślne</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Ostatnio używane</translation>
    </message>
    <message>
        <source>preset %1: this printer has none of this name</source>
        <translation>zestaw ustawień %1: ta drukarka nie ma zestawu o tej nazwie</translation>
    </message>
    <message>
        <source>preset %1: %2</source>
        <translation>zestaw ustawień %1: %2</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>&amp;Zapisz jako zestaw ustawień…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Z&amp;mień nazwę</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Make These &amp;My Defaults</source>
        <translation>Ustaw jako moje &amp;domyślne</translation>
    </message>
    <message>
        <source>Preset saved: %1</source>
        <translation>Zapisano zestaw ustawień: %1</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Zmiana nazwy zestawu ustawień</translation>
    </message>
    <message>
        <source>New name of the preset:</source>
        <translation>Nowa nazwa zestawu ustawień:</translation>
    </message>
    <message>
        <source>Preset renamed: %1</source>
        <translation>Zmieniono nazwę zestawu ustawień: %1</translation>
    </message>
    <message>
        <source>Preset deleted: %1</source>
        <translation>Usunięto zestaw ustawień: %1</translation>
    </message>
    <message>
        <source>These settings are your defaults for %1 now, in every program (%2).</source>
        <translation>Te ustawienia są teraz domyślne dla %1 w każdym programie (%2).</translation>
    </message>
    <message>
        <source>Sample printer</source>
        <translation>Przykładowa drukarka</translation>
    </message>
    <message>
        <source>Print lists the job&apos;s options</source>
        <translation>„Drukuj” wypisuje opcje zadania</translation>
    </message>
    <message>
        <source>Print writes the pages into a file</source>
        <translation>„Drukuj” zapisuje strony do pliku</translation>
    </message>
    <message>
        <source>PPD file %1: Print lists the job&apos;s options</source>
        <translation>Plik PPD %1: „Drukuj” wypisuje opcje zadania</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>D&amp;rukarka:</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drukarka</translation>
    </message>
    <message>
        <source>Look for printers again (F5)</source>
        <translation>Wyszukaj drukarki ponownie (F5)</translation>
    </message>
    <message>
        <source>Look for printers again</source>
        <translation>Wyszukaj drukarki ponownie</translation>
    </message>
    <message>
        <source>looking for printers…</source>
        <translation>wyszukiwanie drukarek…</translation>
    </message>
    <message>
        <source>Paper and &amp;layout</source>
        <translation>Papier i &amp;układ</translation>
    </message>
    <message>
        <source>Printer settings</source>
        <translation>Ustawienia drukarki</translation>
    </message>
    <message>
        <source>Printer &amp;features</source>
        <translation>&amp;Funkcje drukarki</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Zapisz jako zestaw ustawień</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nazwa:</translation>
    </message>
    <message>
        <source>The preset keeps:</source>
        <translation>Zestaw ustawień zachowuje:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Zapisz</translation>
    </message>
    <message>
        <source>Choose what the preset keeps.</source>
        <translation>Należy wybrać, co ma zachować zestaw ustawień.</translation>
    </message>
    <message>
        <source>This replaces the preset of the same name.</source>
        <translation>Zastąpi to zestaw ustawień o tej samej nazwie.</translation>
    </message>
    <message>
        <source>set for this job</source>
        <translation>ustawione dla tego zadania</translation>
    </message>
    <message>
        <source>changed (default: none)</source>
        <translation>zmienione (domyślnie: brak)</translation>
    </message>
    <message>
        <source>changed (default: %1)</source>
        <translation>zmienione (domyślnie: %1)</translation>
    </message>
    <message>
        <source>Reset to &amp;Default</source>
        <translation>Prz&amp;ywróć domyślne</translation>
    </message>
    <message>
        <source>Reset A&amp;ll to Defaults</source>
        <translation>Przywróć wszystkie domyś&amp;lne</translation>
    </message>
    <message>
        <source>Reset the selected settings (Delete)</source>
        <translation>Przywraca domyślne wartości zaznaczonych ustawień (Delete)</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ustawienie</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Uwagi</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Kopiu&amp;j</translation>
    </message>
    <message>
        <source>Other options of the job</source>
        <translation>Inne opcje zadania</translation>
    </message>
    <message>
        <source>not with %1</source>
        <extracomment>%1 lists settings, such as &quot;Media Type: Canvas&quot;</extracomment>
        <translation>nie razem z: %1</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>Kolejność kopii</translation>
    </message>
    <message>
        <source>collated (1, 2, 3, 1, 2, 3)</source>
        <translation>posortowane (1, 2, 3, 1, 2, 3)</translation>
    </message>
    <message>
        <source>page by page (1, 1, 2, 2, 3, 3)</source>
        <translation>strona po stronie (1, 1, 2, 2, 3, 3)</translation>
    </message>
    <message>
        <source>all</source>
        <translation>wszystkie</translation>
    </message>
    <message>
        <source>Of these</source>
        <translation>Z nich</translation>
    </message>
    <message>
        <source>odd and even pages</source>
        <translation>strony nieparzyste i parzyste</translation>
    </message>
    <message>
        <source>odd pages</source>
        <translation>strony nieparzyste</translation>
    </message>
    <message>
        <source>even pages</source>
        <translation>strony parzyste</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientacja</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatycznie</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>pionowa</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>pozioma</translation>
    </message>
    <message>
        <source>reverse landscape</source>
        <translation>odwrócona pozioma</translation>
    </message>
    <message>
        <source>reverse portrait</source>
        <translation>odwrócona pionowa</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Stron na arkusz</translation>
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
        <translation>zakresy stron: &quot;%1&quot; nie jest stroną ani zakresem takim jak 2-5</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; names a page that cannot be</source>
        <translation>zakresy stron: &quot;%1&quot; wskazuje stronę, która nie może istnieć</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; ends before it begins</source>
        <translation>zakresy stron: &quot;%1&quot; kończy się przed początkiem</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; does not follow the pages before it: a job prints its pages in their order, each once</source>
        <translation>zakresy stron: &quot;%1&quot; nie następuje po poprzednich stronach: zadanie drukuje strony w ich kolejności, każdą raz</translation>
    </message>
    <message>
        <source>a preset needs a name</source>
        <translation>zestaw ustawień musi mieć nazwę</translation>
    </message>
    <message numerus="yes">
        <source>the name of a preset has at most %n characters</source>
        <translation>
            <numerusform>nazwa zestawu ustawień może mieć najwyżej %n znak</numerusform>
            <numerusform>nazwa zestawu ustawień może mieć najwyżej %n znaki</numerusform>
            <numerusform>nazwa zestawu ustawień może mieć najwyżej %n znaków</numerusform>
        </translation>
    </message>
    <message>
        <source>the name of a preset is one line, without control characters</source>
        <translation>nazwa zestawu ustawień to jeden wiersz bez znaków sterujących</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is always there: no other preset can have its name</source>
        <translation>&quot;%1&quot; istnieje zawsze: żaden inny zestaw ustawień nie może mieć tej nazwy</translation>
    </message>
    <message>
        <source>presets file %1: %2</source>
        <translation>plik zestawów ustawień %1: %2</translation>
    </message>
    <message>
        <source>it is a directory</source>
        <translation>to jest katalog</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>to nie jest zwykły plik</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>jest za duży</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>wiersz %1, kolumna %2</translation>
    </message>
    <message>
        <source>&quot;presets&quot; is not a list</source>
        <translation>&quot;presets&quot; nie jest listą</translation>
    </message>
    <message>
        <source>&quot;lastUsed&quot; is not an object</source>
        <translation>&quot;lastUsed&quot; nie jest obiektem</translation>
    </message>
    <message>
        <source>line 1: not a JSON object</source>
        <translation>wiersz 1: to nie jest obiekt JSON</translation>
    </message>
    <message>
        <source>&quot;version&quot; is not a version number</source>
        <translation>&quot;version&quot; nie jest numerem wersji</translation>
    </message>
    <message>
        <source>it was written by a later version of this program (its format is %1, this program knows %2): its presets can be used, not changed</source>
        <translation>zapisała go nowsza wersja tego programu (jego format to %1, ten program zna %2): zawartych w nim zestawów ustawień można używać, ale nie można ich zmieniać</translation>
    </message>
    <message>
        <source>presets folder %1: %2</source>
        <translation>folder zestawów ustawień %1: %2</translation>
    </message>
    <message>
        <source>another program is changing presets and does not come to an end</source>
        <translation>inny program zmienia zestawy ustawień i nie kończy pracy</translation>
    </message>
    <message>
        <source>it cannot be locked</source>
        <translation>nie można zablokować</translation>
    </message>
    <message>
        <source>it would become too large</source>
        <translation>byłby za duży</translation>
    </message>
    <message>
        <source>too many damaged files beside it</source>
        <translation>obok jest zbyt wiele uszkodzonych plików</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;</source>
        <translation>nie ma zestawu ustawień &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is already a preset &quot;%1&quot;</source>
        <translation>zestaw ustawień &quot;%1&quot; już istnieje</translation>
    </message>
    <message>
        <source>presets: the printer has no name</source>
        <translation>zestawy ustawień: drukarka nie ma nazwy</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;: a value has no key</source>
        <translation>zestaw ustawień &quot;%1&quot;: wartość nie ma klucza</translation>
    </message>
    <message>
        <source>%1; it was kept as %2</source>
        <translation>%1; zachowano jako %2</translation>
    </message>
    <message>
        <source>print server %1: it cannot be reached: %2</source>
        <translation>serwer druku %1: nie można nawiązać połączenia: %2</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>utracono połączenie</translation>
    </message>
    <message>
        <source>nothing answers there</source>
        <translation>nic tam nie odpowiada</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>nie odpowiada</translation>
    </message>
    <message>
        <source>the print server %1 has no queue of this name</source>
        <translation>serwer druku %1 nie ma kolejki o tej nazwie</translation>
    </message>
    <message>
        <source>the print server %1 says: %2</source>
        <translation>serwer druku %1 zgłasza: %2</translation>
    </message>
    <message>
        <source>queue %1: %2</source>
        <translation>kolejka %1: %2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: %2</source>
        <translation>folder na plik PPD kolejki %1: %2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: the path %2 is too long</source>
        <translation>folder na plik PPD kolejki %1: ścieżka %2 jest za długa</translation>
    </message>
    <message>
        <source>file %1: it cannot be written</source>
        <translation>plik %1: nie można zapisać</translation>
    </message>
    <message>
        <source>queue %1: its PPD file cannot be fetched: %2</source>
        <translation>kolejka %1: nie można pobrać jej pliku PPD: %2</translation>
    </message>
    <message>
        <source>%1
Printed already: %2
Not printed: %3</source>
        <translation>%1
Już wydrukowano: %2
Nie wydrukowano: %3</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>bezczynna</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>nie przyjmuje zadań</translation>
    </message>
    <message>
        <source>print server %1: it does not list its queues: %2</source>
        <translation>serwer druku %1: nie podaje listy kolejek: %2</translation>
    </message>
    <message>
        <source>document %1: %2</source>
        <translation>dokument %1: %2</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>plik jest pusty</translation>
    </message>
    <message>
        <source>there is nothing in it</source>
        <translation>brak zawartości</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standardowe wejście</translation>
    </message>
    <message>
        <source>it can be printed only once</source>
        <translation>można wydrukować tylko raz</translation>
    </message>
    <message>
        <source>the print server does not cancel it: %1</source>
        <translation>serwer druku go nie anuluje: %1</translation>
    </message>
    <message>
        <source>the print server no longer has the queue %1</source>
        <translation>serwer druku nie ma już kolejki %1</translation>
    </message>
    <message>
        <source>the print server keeps no record of it</source>
        <translation>serwer druku nie ma o nim informacji</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>drukarka jest zatrzymana</translation>
    </message>
    <message>
        <source>sheets so far: %1</source>
        <translation>dotychczas arkuszy: %1</translation>
    </message>
    <message>
        <source>job %1: the print server %2 does not tell how it is: %3</source>
        <translation>zadanie %1: serwer druku %2 nie podaje jego stanu: %3</translation>
    </message>
    <message>
        <source>it is not accepting jobs</source>
        <translation>nie przyjmuje zadań</translation>
    </message>
    <message>
        <source>it does not take the job: %1</source>
        <translation>nie przyjmuje zadania: %1</translation>
    </message>
    <message>
        <source>it does not take the document %1: %2</source>
        <translation>nie przyjmuje dokumentu %1: %2</translation>
    </message>
    <message>
        <source> (job %1 may remain on the server: %2)</source>
        <translation> (zadanie %1 mogło pozostać na serwerze: %2)</translation>
    </message>
    <message>
        <source>there is no document to print</source>
        <translation>nie ma dokumentu do wydrukowania</translation>
    </message>
    <message>
        <source>it is a directory, not a PPD file</source>
        <translation>to jest katalog, a nie plik PPD</translation>
    </message>
    <message>
        <source>PPD file %1: %2</source>
        <translation>plik PPD %1: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>wiersz %1: %2</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>wstrzymana</translation>
    </message>
    <message>
        <source>being paused</source>
        <translation>trwa wstrzymywanie</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>wyłączona</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>łączenie z drukarką</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>drukarka nie odpowiada</translation>
    </message>
    <message>
        <source>paper is needed</source>
        <translation>potrzebny jest papier</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>brak papieru</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>mało papieru</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>zacięcie papieru</translation>
    </message>
    <message>
        <source>a cover is open</source>
        <translation>pokrywa jest otwarta</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>drzwiczki są otwarte</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>brak podajnika papieru</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>taca wyjściowa jest pełna</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>brak tuszu</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>mało tuszu</translation>
    </message>
    <message>
        <source>the waste container is full</source>
        <translation>pojemnik na odpady jest pełny</translation>
    </message>
    <message>
        <source>the waste container is almost full</source>
        <translation>pojemnik na odpady jest prawie pełny</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>brak tonera</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>mało tonera</translation>
    </message>
    <message>
        <source>the print server has no room left</source>
        <translation>na serwerze druku nie ma już miejsca</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>nowe zadania są wstrzymywane</translation>
    </message>
    <message>
        <source>a program of its driver is missing</source>
        <translation>brak programu jej sterownika</translation>
    </message>
    <message>
        <source>a program of its driver can be changed by others</source>
        <translation>program jej sterownika może zostać zmieniony przez innych</translation>
    </message>
    <message>
        <source>the printer is partly stopped</source>
        <translation>drukarka jest częściowo zatrzymana</translation>
    </message>
    <message>
        <source>it waits for its time or its release</source>
        <translation>czeka na swoją porę lub zwolnienie</translation>
    </message>
    <message>
        <source>documents are still to come</source>
        <translation>nie nadeszły jeszcze wszystkie dokumenty</translation>
    </message>
    <message>
        <source>cancelled by a person</source>
        <translation>anulowane przez użytkownika</translation>
    </message>
    <message>
        <source>cancelled by an operator</source>
        <translation>anulowane przez operatora</translation>
    </message>
    <message>
        <source>cancelled at the printer</source>
        <translation>anulowane na drukarce</translation>
    </message>
    <message>
        <source>the document is damaged</source>
        <translation>dokument jest uszkodzony</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>drukarka nie może drukować dokumentów tego rodzaju</translation>
    </message>
    <message>
        <source>printed with warnings</source>
        <translation>wydrukowano z ostrzeżeniami</translation>
    </message>
    <message>
        <source>printed with errors</source>
        <translation>wydrukowano z błędami</translation>
    </message>
    <message>
        <source>it holds a zero byte</source>
        <translation>zawiera bajt zerowy</translation>
    </message>
    <message>
        <source>a backslash is not followed by \, =, n or r</source>
        <translation>po ukośniku odwrotnym nie występuje \, =, n ani r</translation>
    </message>
    <message>
        <source>there is no &quot;=&quot; in it</source>
        <translation>nie ma w tym &quot;=&quot;</translation>
    </message>
    <message>
        <source>there is no key before the &quot;=&quot;</source>
        <translation>brak klucza przed &quot;=&quot;</translation>
    </message>
    <message>
        <source>it is not UTF-8 text</source>
        <translation>to nie jest tekst UTF-8</translation>
    </message>
    <message>
        <source>ticket on standard output: %1</source>
        <translation>opcje zadania na standardowym wyjściu: %1</translation>
    </message>
    <message>
        <source>ticket file %1: %2</source>
        <translation>plik opcji zadania %1: %2</translation>
    </message>
    <message>
        <source>file %1: %2</source>
        <translation>plik %1: %2</translation>
    </message>
    <message>
        <source>; it could not be removed again</source>
        <translation>; nie udało się go usunąć</translation>
    </message>
    <message>
        <source>; the earlier ones are in %1</source>
        <translation>; wcześniejsze są w %1</translation>
    </message>
    <message>
        <source>these options of %1 could not be kept: %2</source>
        <translation>nie można zachować tych opcji %1: %2</translation>
    </message>
    <message>
        <source>file %1: it cannot be written: %2</source>
        <translation>plik %1: nie można zapisać: %2</translation>
    </message>
    <message>
        <source>queue %1: the values of these options cannot be kept as defaults: %2</source>
        <translation>kolejka %1: wartości tych opcji nie można zachować jako domyślnych: %2</translation>
    </message>
    <message>
        <source>queue %1: the print server has no queue of this name</source>
        <translation>kolejka %1: serwer druku nie ma kolejki o tej nazwie</translation>
    </message>
    <message>
        <source>%1, for all users</source>
        <translation>%1, dla wszystkich użytkowników</translation>
    </message>
    <message>
        <source>the image cannot be read: %1</source>
        <translation>nie można odczytać obrazu: %1</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn</source>
        <translation>nie można narysować strony %1</translation>
    </message>
    <message>
        <source>there is no room for the paper</source>
        <translation>brak miejsca na papier</translation>
    </message>
    <message>
        <source>there is no preview of this kind of document</source>
        <translation>brak podglądu dla dokumentów tego rodzaju</translation>
    </message>
    <message>
        <source>the PDF file is damaged</source>
        <translation>plik PDF jest uszkodzony</translation>
    </message>
    <message>
        <source>the PDF file is protected by a password</source>
        <translation>plik PDF jest chroniony hasłem</translation>
    </message>
    <message>
        <source>the PDF file has no pages</source>
        <translation>plik PDF nie ma stron</translation>
    </message>
    <message>
        <source>none of the pages is selected</source>
        <translation>nie wybrano żadnej ze stron</translation>
    </message>
    <message>
        <source>a page cannot be begun: %1</source>
        <translation>nie można rozpocząć strony: %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>There is no document.</source>
        <translation>Nie ma dokumentu.</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Otwieranie…</translation>
    </message>
    <message numerus="yes">
        <source>None of the document&apos;s %n pages is selected.</source>
        <translation>
            <numerusform>Nie wybrano żadnej strony dokumentu (%n strona).</numerusform>
            <numerusform>Nie wybrano żadnej z %n stron dokumentu.</numerusform>
            <numerusform>Nie wybrano żadnej z %n stron dokumentu.</numerusform>
        </translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>Rysowanie…</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Arkusz %1 z %2</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Strona %1 z %2</translation>
    </message>
    <message>
        <source>only the first page is shown here; all pages are printed</source>
        <translation>tutaj widać tylko pierwszą stronę; drukowane są wszystkie</translation>
    </message>
    <message>
        <source>the text is longer than %1 MB</source>
        <translation>tekst jest dłuższy niż %1 MB</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Pierwsza strona</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Poprzednia strona</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Następna strona</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ostatnia strona</translation>
    </message>
    <message>
        <source>the part of this program that reads PDF files is missing</source>
        <translation>brakuje części tego programu, która odczytuje pliki PDF</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB, or damaged</source>
        <translation>jest większy niż %1 MiB lub uszkodzony</translation>
    </message>
</context>
</TS>
