<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>TessarinPrint</name>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>The print dialog cannot be opened.</source>
        <translation>Impossible d’ouvrir la boîte de dialogue d’impression.</translation>
    </message>
    <message>
        <source>there is no printer: name one with --printer, --ppd or --sample</source>
        <translation>aucune imprimante&#xa0;: indiquez-en une avec --printer, --ppd ou --sample</translation>
    </message>
    <message>
        <source>nothing was printed; pictures of the dialog (%1) are in %2, the options that Print would send are on standard output</source>
        <translation>rien n’a été imprimé&#xa0;; des images de la boîte de dialogue (%1) se trouvent dans %2, les options qu’enverrait «&#xa0;Imprimer&#xa0;» sont sur la sortie standard</translation>
    </message>
    <message>
        <source>the panel gives no summary</source>
        <translation>le panneau ne fournit pas de résumé</translation>
    </message>
    <message>
        <source>standard output: the summary cannot be written</source>
        <translation>sortie standard&#xa0;: impossible d’écrire le résumé</translation>
    </message>
    <message>
        <source>standard output: it cannot be written</source>
        <translation>sortie standard&#xa0;: écriture impossible</translation>
    </message>
    <message>
        <source>there is no display: to get a window, run this in a desktop session, set DISPLAY or WAYLAND_DISPLAY, or use a virtual display: xvfb-run -a tessarin-print</source>
        <translation>aucun affichage&#xa0;: pour obtenir une fenêtre, lancez ce programme dans une session de bureau, définissez DISPLAY ou WAYLAND_DISPLAY, ou utilisez un affichage virtuel&#xa0;: xvfb-run -a tessarin-print</translation>
    </message>
    <message>
        <source>Show the printer that a PPD file describes.</source>
        <translation>Afficher l’imprimante décrite par un fichier PPD.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fichier</translation>
    </message>
    <message>
        <source>Print on a queue of the print server.</source>
        <translation>Imprimer sur une file d’attente du serveur d’impression.</translation>
    </message>
    <message>
        <source>queue</source>
        <translation>file d’attente</translation>
    </message>
    <message>
        <source>Show the sample printer that comes with the program.</source>
        <translation>Afficher l’imprimante d’exemple fournie avec le programme.</translation>
    </message>
    <message>
        <source>Set an option of the printer or the job; may be given more than once.</source>
        <translation>Définir une option de l’imprimante ou de la tâche&#xa0;; peut être indiqué plusieurs fois.</translation>
    </message>
    <message>
        <source>key=value</source>
        <translation>clé=valeur</translation>
    </message>
    <message>
        <source>Print this many copies.</source>
        <translation>Imprimer ce nombre de copies.</translation>
    </message>
    <message>
        <source>copies</source>
        <translation>copies</translation>
    </message>
    <message>
        <source>Print these pages, such as 1-3,5,8-.</source>
        <translation>Imprimer ces pages, par exemple 1-3,5,8-.</translation>
    </message>
    <message>
        <source>ranges</source>
        <translation>plages</translation>
    </message>
    <message>
        <source>Start from a preset of the printer; -o, -n and -P go over it.</source>
        <translation>Partir d’un préréglage de l’imprimante&#xa0;; -o, -n et -P l’emportent sur lui.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>Print at once, without a window; the panel&apos;s rules apply all the same.</source>
        <translation>Imprimer immédiatement, sans fenêtre&#xa0;; les règles du panneau s’appliquent quand même.</translation>
    </message>
    <message>
        <source>Print nothing: list the printer&apos;s presets, one a line.</source>
        <translation>Ne rien imprimer&#xa0;: lister les préréglages de l’imprimante, un par ligne.</translation>
    </message>
    <message>
        <source>Print each document as a job of its own.</source>
        <translation>Imprimer chaque document comme une tâche distincte.</translation>
    </message>
    <message>
        <source>Write the job&apos;s options to a file, one key=value per line (&quot;-&quot;: to standard output, which is the default without a queue).</source>
        <translation>Écrire les options de la tâche dans un fichier, une clé=valeur par ligne (&quot;-&quot;&#xa0;: sur la sortie standard, par défaut en l’absence de file d’attente).</translation>
    </message>
    <message>
        <source>Send the panel&apos;s diagnostic log to stderr, none, syslog (default) or a file.</source>
        <translation>Envoyer le journal de diagnostic du panneau vers stderr, none, syslog (par défaut) ou un fichier.</translation>
    </message>
    <message>
        <source>where</source>
        <translation>destination</translation>
    </message>
    <message>
        <source>Load the panel from this folder (else from $TESSARIN_BUNDLE, else the one installed with the program).</source>
        <translation>Charger le panneau depuis ce dossier (sinon depuis $TESSARIN_BUNDLE, sinon celui installé avec le programme).</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>dossier</translation>
    </message>
    <message>
        <source>Show the dialog in this language, such as de or pt_BR.</source>
        <translation>Afficher la boîte de dialogue dans cette langue, par exemple de ou pt_BR.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>code</translation>
    </message>
    <message>
        <source>Print nothing: save a picture of each page in this folder and list the job&apos;s options on standard output. Without a display this happens anyway, in ./tessarin-pages.</source>
        <translation>Ne rien imprimer&#xa0;: enregistrer une image de chaque page dans ce dossier et lister les options de la tâche sur la sortie standard. Sans affichage, cela se fait de toute façon, dans ./tessarin-pages.</translation>
    </message>
    <message>
        <source>Print nothing and open no window: list the settings on standard output, as text or, with &quot;json&quot;, as JSON.</source>
        <translation>Ne rien imprimer et n’ouvrir aucune fenêtre&#xa0;: lister les réglages sur la sortie standard, sous forme de texte ou, avec &quot;json&quot;, en JSON.</translation>
    </message>
    <message>
        <source>[json]</source>
        <translation>[json]</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Afficher ce texte.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>The documents to print (&quot;-&quot;: standard input).</source>
        <translation>Les documents à imprimer (&quot;-&quot;&#xa0;: entrée standard).</translation>
    </message>
    <message>
        <source>usage: -o %1: there is no key before the &quot;=&quot;</source>
        <translation>utilisation&#xa0;: -o %1&#xa0;: il n’y a pas de clé avant le &quot;=&quot;</translation>
    </message>
    <message>
        <source>usage: -n %1: not a number of copies from 1 to 9999</source>
        <translation>utilisation&#xa0;: -n %1&#xa0;: n’est pas un nombre de copies de 1 à 9999</translation>
    </message>
    <message>
        <source>usage: -P %1: %2</source>
        <translation>utilisation&#xa0;: -P %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>usage: --ppd and --printer cannot be given together: one printer at a time</source>
        <translation>utilisation&#xa0;: --ppd et --printer ne peuvent pas être indiqués ensemble&#xa0;: une seule imprimante à la fois</translation>
    </message>
    <message>
        <source>usage: --printer %1: no name of a queue</source>
        <translation>utilisation&#xa0;: --printer %1&#xa0;: n’est pas un nom de file d’attente</translation>
    </message>
    <message>
        <source>usage: --sample cannot be given with --ppd or --printer: one printer at a time</source>
        <translation>utilisation&#xa0;: --sample ne peut pas être indiqué avec --ppd ou --printer&#xa0;: une seule imprimante à la fois</translation>
    </message>
    <message>
        <source>usage: --no-dialog prints, which --pictures, --summary and --list-presets do not</source>
        <translation>utilisation&#xa0;: --no-dialog imprime, contrairement à --pictures, --summary et --list-presets</translation>
    </message>
    <message>
        <source>usage: no document: there is nothing to print on queue %1</source>
        <translation>utilisation&#xa0;: aucun document&#xa0;: il n’y a rien à imprimer sur la file d’attente %1</translation>
    </message>
    <message>
        <source>(the default)</source>
        <translation>(par défaut)</translation>
    </message>
    <message>
        <source>usage: standard input (&quot;-&quot;) can be printed only once</source>
        <translation>utilisation&#xa0;: l’entrée standard (&quot;-&quot;) ne peut être imprimée qu’une seule fois</translation>
    </message>
    <message>
        <source>usage: a document has an empty name</source>
        <translation>utilisation&#xa0;: un document a un nom vide</translation>
    </message>
    <message>
        <source>usage: --language %1: not a language code such as de or pt_BR</source>
        <translation>utilisation&#xa0;: --language %1&#xa0;: n’est pas un code de langue tel que de ou pt_BR</translation>
    </message>
    <message>
        <source>usage: --summary %1: not a form, which is text or json</source>
        <translation>utilisation&#xa0;: --summary %1&#xa0;: n’est pas un format (text ou json)</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>utilisation&#xa0;: %1</translation>
    </message>
    <message>
        <source>usage: --%1: the value is empty</source>
        <translation>utilisation&#xa0;: --%1&#xa0;: la valeur est vide</translation>
    </message>
    <message>
        <source>A print dialog with the panel of printer settings. Without --printer, --ppd or --sample it starts with the printer that was used last, or the default one.</source>
        <translation>Une boîte de dialogue d’impression avec le panneau de réglages de l’imprimante. Sans --printer, --ppd ni --sample, elle s’ouvre avec la dernière imprimante utilisée ou avec l’imprimante par défaut.</translation>
    </message>
    <message>
        <source>
Exit codes: 0 printed (or done what was asked in place of printing), 1 cancelled, 2 usage, settings that are not possible or a file that cannot be written, 3 printer, 4 document, 5 plug-in.
</source>
        <translation>
Codes de sortie&#xa0;: 0 imprimé (ou action demandée à la place effectuée), 1 annulé, 2 utilisation, réglages impossibles ou fichier impossible à écrire, 3 imprimante, 4 document, 5 greffon.
</translation>
    </message>
    <message>
        <source>Custom Paper Size</source>
        <translation>Format de papier personnalisé</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largeur&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Hauteur&#xa0;:</translation>
    </message>
    <message>
        <source> in</source>
        <translation> po</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Tr&amp;y Again</source>
        <translation>Réess&amp;ayer</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Recherche d’imprimantes…</translation>
    </message>
    <message>
        <source>Print each document as a &amp;job of its own</source>
        <translation>Imprimer chaque document comme une &amp;tâche distincte</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>Ouverture de %1…</translation>
    </message>
    <message>
        <source>Print – %1</source>
        <translation>Imprimer – %1</translation>
    </message>
    <message>
        <source>Not possible on this printer</source>
        <translation>Impossible sur cette imprimante</translation>
    </message>
    <message>
        <source>There is no printer open.</source>
        <translation>Aucune imprimante n’est ouverte.</translation>
    </message>
    <message>
        <source>There are no printers. Choose another destination from the list above, or add a printer in the system&apos;s settings and look again.</source>
        <translation>Il n’y a pas d’imprimante. Choisissez une autre destination dans la liste ci-dessus, ou ajoutez une imprimante dans les paramètres du système et relancez la recherche.</translation>
    </message>
    <message>
        <source>print</source>
        <translation>impression</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is a setting, %2 its value
----------
%1 says what was tried, %2 lists the settings</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Settings that exclude each other</source>
        <translation>Réglages incompatibles entre eux</translation>
    </message>
    <message>
        <source>The printer cannot do all of this at once: %1.</source>
        <translation>L’imprimante ne peut pas faire tout cela à la fois&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Nothing was printed. Change one of these settings.</source>
        <translation>Rien n’a été imprimé. Modifiez l’un de ces réglages.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Annuler la tâche</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close the dialog and let the job go on</source>
        <translation>Fermer la boîte de dialogue et laisser la tâche se poursuivre</translation>
    </message>
    <message>
        <source>Not printed: %1</source>
        <translation>Non imprimé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Non imprimé</translation>
    </message>
    <message>
        <source>Your document and settings are kept: you can try again.</source>
        <translation>Le document et les réglages sont conservés&#xa0;: vous pouvez réessayer.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Réess&amp;ayer</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>Enregistrer en P&amp;DF…</translation>
    </message>
    <message>
        <source>There is no document to save as PDF.</source>
        <translation>Il n’y a pas de document à enregistrer en PDF.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Enregistrer en PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Fichiers PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Impression en cours…</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Arrêt en cours…</translation>
    </message>
    <message>
        <source>%1 is possible %2.</source>
        <extracomment>%1 is a setting with its value, %2 says what it does not go with</extracomment>
        <translation>%1 est possible, mais %2.</translation>
    </message>
    <message>
        <source>Change the other setting first.</source>
        <translation>Modifiez d’abord l’autre réglage.</translation>
    </message>
    <message>
        <source>To make it fit, this would be set, too: %1.</source>
        <translation>Pour que ce soit compatible, ceci serait également modifié&#xa0;: %1.</translation>
    </message>
    <message>
        <source>&amp;Change Both</source>
        <translation>Modifier les deu&amp;x</translation>
    </message>
    <message>
        <source>Changed, too: %1</source>
        <translation>Également modifié&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Défair&amp;e</translation>
    </message>
    <message>
        <source>Preset %1: not possible on this printer now</source>
        <translation>Préréglage %1&#xa0;: actuellement impossible sur cette imprimante</translation>
    </message>
    <message>
        <source>Preset applied: %1</source>
        <translation>Préréglage appliqué&#xa0;: %1</translation>
    </message>
    <message>
        <source>Its default is not possible now</source>
        <translation>Sa valeur par défaut est actuellement impossible</translation>
    </message>
    <message>
        <source>Reset to its default: %1</source>
        <translation>Valeur par défaut rétablie&#xa0;: %1</translation>
    </message>
    <message>
        <source>Reset to defaults.</source>
        <translation>Valeurs par défaut rétablies.</translation>
    </message>
    <message>
        <source>All settings are at their defaults.</source>
        <translation>Tous les réglages ont leur valeur par défaut.</translation>
    </message>
    <message>
        <source>Find a feature</source>
        <translation>Rechercher une fonction</translation>
    </message>
    <message>
        <source>This printer has no further features.</source>
        <translation>Cette imprimante n’a pas d’autres fonctions.</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1&#xa0;:</translation>
    </message>
    <message>
        <source>No feature of this printer has “%1” in its name or choices.</source>
        <translation>Aucune fonction de cette imprimante ne contient «&#xa0;%1&#xa0;» dans son nom ou ses choix.</translation>
    </message>
    <message>
        <source>C&amp;ollate</source>
        <translation>A&amp;ssembler</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>T&amp;outes</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Pa&amp;ges&#xa0;:</translation>
    </message>
    <message>
        <source>O&amp;f these:</source>
        <translation>&amp;Parmi celles-ci&#xa0;:</translation>
    </message>
    <message>
        <source>Pap&amp;er size:</source>
        <translation>&amp;Format de papier&#xa0;:</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>Orie&amp;ntation&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Two-sided:</source>
        <translation>Recto &amp;verso&#xa0;:</translation>
    </message>
    <message>
        <source>Pages per s&amp;heet:</source>
        <translation>Pages par feui&amp;lle&#xa0;:</translation>
    </message>
    <message>
        <source>Custom Size…</source>
        <translation>Format personnalisé…</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Whole copies one after the other</source>
        <translation>Copies complètes l’une après l’autre</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copies&#xa0;:</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Pages à imprimer</translation>
    </message>
    <message>
        <source>1-3, 5, 8-</source>
        <translation>1-3, 5, 8-</translation>
    </message>
    <message>
        <source>Print:</source>
        <translation>Imprimer&#xa0;:</translation>
    </message>
    <message>
        <source>Which pages? For example 1-3, 5, 8-</source>
        <translation>Quelles pages&#xa0;? Par exemple 1-3, 5, 8-</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en attente</translation>
    </message>
    <message>
        <source>held</source>
        <translation>retenue</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>impression en cours</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrêtée</translation>
    </message>
    <message>
        <source>done</source>
        <translation>terminée</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annulée</translation>
    </message>
    <message>
        <source>given up by the print server</source>
        <translation>abandonnée par le serveur d’impression</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <extracomment>%1 is a job&apos;s number, %2 what it is doing</extracomment>
        <translation>Tâche %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>%1 is a choice, %2 says what it does not go with</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>a line was cut short</source>
        <translation>une ligne a été tronquée</translation>
    </message>
    <message>
        <source>log %1: %2</source>
        <translation>journal %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>log file %1: %2</source>
        <translation>fichier journal %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1=%2 (with the other settings it is %3)</source>
        <translation>%1=%2 (avec les autres réglages, c’est %3)</translation>
    </message>
    <message>
        <source>not possible on this printer: %1</source>
        <translation>impossible sur cette imprimante&#xa0;: %1</translation>
    </message>
    <message>
        <source>the printer cannot do all of this at once: %1</source>
        <translation>l’imprimante ne peut pas faire tout cela à la fois&#xa0;: %1</translation>
    </message>
    <message>
        <source>job %1-%2
</source>
        <translation>tâche %1-%2
</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>Fermer le message</translation>
    </message>
    <message>
        <source>picture %1: %2</source>
        <translation>image %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>folder for pictures %1: it cannot be made</source>
        <translation>dossier d’images %1&#xa0;: création impossible</translation>
    </message>
    <message>
        <source>page %1 (%2) cannot be selected for this printer: no picture of it</source>
        <translation>la page %1 (%2) ne peut pas être sélectionnée pour cette imprimante&#xa0;: pas d’image de cette page</translation>
    </message>
    <message>
        <source>The printer&apos;s plug-in offers no panel of settings.</source>
        <translation>Le greffon de l’imprimante ne propose pas de panneau de réglages.</translation>
    </message>
    <message>
        <source>%1 is for other printers: this one has none of its options.</source>
        <translation>%1 est destiné à d’autres imprimantes&#xa0;: celle-ci n’a aucune de ses options.</translation>
    </message>
    <message>
        <source>The panel could not read the printer&apos;s settings.</source>
        <translation>Le panneau n’a pas pu lire les réglages de l’imprimante.</translation>
    </message>
    <message>
        <source>The panel of printer settings could not load its controls.</source>
        <translation>Le panneau de réglages de l’imprimante n’a pas pu charger ses commandes.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Réglages de l’imprimante</translation>
    </message>
    <message>
        <source>Printer Features</source>
        <translation>Fonctions de l’imprimante</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>You can print all the same, with the settings of the other pages.</source>
        <translation>Vous pouvez tout de même imprimer, avec les réglages des autres pages.</translation>
    </message>
    <message>
        <source>plug-in %1: %2</source>
        <translation>greffon %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>ce dossier n’existe pas</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>ce n’est pas un dossier</translation>
    </message>
    <message>
        <source>the bundle&apos;s description is missing</source>
        <translation>la description du paquet est absente</translation>
    </message>
    <message>
        <source>at byte %1: %2</source>
        <translation>à l’octet %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>it does not give &quot;%1&quot;</source>
        <translation>&quot;%1&quot; n’y est pas indiqué</translation>
    </message>
    <message>
        <source>the library &quot;%1&quot; is not a file of the bundle&apos;s folder</source>
        <translation>la bibliothèque &quot;%1&quot; n’est pas un fichier du dossier du paquet</translation>
    </message>
    <message>
        <source>the bundle&apos;s library is missing</source>
        <translation>la bibliothèque du paquet est absente</translation>
    </message>
    <message>
        <source>it is not a plug-in (%1)</source>
        <translation>ce n’est pas un greffon (%1)</translation>
    </message>
    <message>
        <source>it is a plug-in for something else (%1), not a print dialog panel</source>
        <translation>c’est un greffon destiné à autre chose (%1), pas un panneau de boîte de dialogue d’impression</translation>
    </message>
    <message>
        <source>it does not say for which version of the panel protocol it was made</source>
        <translation>il n’indique pas pour quelle version du protocole de panneau il a été conçu</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel protocol; this dialog has version %2</source>
        <translation>il a été conçu pour la version %1 du protocole de panneau&#xa0;; cette boîte de dialogue utilise la version %2</translation>
    </message>
    <message>
        <source>its root object is not a panel factory</source>
        <translation>son objet racine n’est pas une fabrique de panneaux</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>il n’a donné aucune raison</translation>
    </message>
    <message>
        <source>its panel factory could not be made</source>
        <translation>sa fabrique de panneaux n’a pas pu être créée</translation>
    </message>
    <message>
        <source>Pre&amp;sets</source>
        <translation>Pré&amp;réglages</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Réglages par défaut</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Derniers réglages utilisés</translation>
    </message>
    <message>
        <source>preset %1: this printer has none of this name</source>
        <translation>préréglage %1&#xa0;: cette imprimante n’en a aucun de ce nom</translation>
    </message>
    <message>
        <source>preset %1: %2</source>
        <translation>préréglage %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>&amp;Enregistrer comme préréglage…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Make These &amp;My Defaults</source>
        <translation>En faire &amp;mes réglages par défaut</translation>
    </message>
    <message>
        <source>Preset saved: %1</source>
        <translation>Préréglage enregistré&#xa0;: %1</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Renommer le préréglage</translation>
    </message>
    <message>
        <source>New name of the preset:</source>
        <translation>Nouveau nom du préréglage&#xa0;:</translation>
    </message>
    <message>
        <source>Preset renamed: %1</source>
        <translation>Préréglage renommé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Preset deleted: %1</source>
        <translation>Préréglage supprimé&#xa0;: %1</translation>
    </message>
    <message>
        <source>These settings are your defaults for %1 now, in every program (%2).</source>
        <translation>Ces réglages sont désormais vos réglages par défaut pour %1, dans tous les programmes (%2).</translation>
    </message>
    <message>
        <source>Sample printer</source>
        <translation>Imprimante d’exemple</translation>
    </message>
    <message>
        <source>Print lists the job&apos;s options</source>
        <translation>«&#xa0;Imprimer&#xa0;» liste les options de la tâche</translation>
    </message>
    <message>
        <source>Print writes the pages into a file</source>
        <translation>«&#xa0;Imprimer&#xa0;» écrit les pages dans un fichier</translation>
    </message>
    <message>
        <source>PPD file %1: Print lists the job&apos;s options</source>
        <translation>Fichier PPD %1&#xa0;: «&#xa0;Imprimer&#xa0;» liste les options de la tâche</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>I&amp;mprimante&#xa0;:</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Look for printers again (F5)</source>
        <translation>Rechercher à nouveau les imprimantes (F5)</translation>
    </message>
    <message>
        <source>Look for printers again</source>
        <translation>Rechercher à nouveau les imprimantes</translation>
    </message>
    <message>
        <source>looking for printers…</source>
        <translation>recherche d’imprimantes…</translation>
    </message>
    <message>
        <source>Paper and &amp;layout</source>
        <translation>Papier et &amp;mise en page</translation>
    </message>
    <message>
        <source>Printer settings</source>
        <translation>Réglages de l’imprimante</translation>
    </message>
    <message>
        <source>Printer &amp;features</source>
        <translation>&amp;Fonctions de l’imprimante</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Enregistrer comme préréglage</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>The preset keeps:</source>
        <translation>Le préréglage conserve&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Choose what the preset keeps.</source>
        <translation>Choisissez ce que le préréglage conserve.</translation>
    </message>
    <message>
        <source>This replaces the preset of the same name.</source>
        <translation>Ceci remplace le préréglage du même nom.</translation>
    </message>
    <message>
        <source>set for this job</source>
        <translation>défini pour cette tâche</translation>
    </message>
    <message>
        <source>changed (default: none)</source>
        <translation>modifié (par défaut&#xa0;: aucun)</translation>
    </message>
    <message>
        <source>changed (default: %1)</source>
        <translation>modifié (par défaut&#xa0;: %1)</translation>
    </message>
    <message>
        <source>Reset to &amp;Default</source>
        <translation>Réta&amp;blir la valeur par défaut</translation>
    </message>
    <message>
        <source>Reset A&amp;ll to Defaults</source>
        <translation>To&amp;ut rétablir par défaut</translation>
    </message>
    <message>
        <source>Reset the selected settings (Delete)</source>
        <translation>Rétablir les réglages sélectionnés (Suppr)</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Other options of the job</source>
        <translation>Autres options de la tâche</translation>
    </message>
    <message>
        <source>not with %1</source>
        <extracomment>%1 lists settings, such as &quot;Media Type: Canvas&quot;</extracomment>
        <translation>pas avec %1</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>Ordre des copies</translation>
    </message>
    <message>
        <source>collated (1, 2, 3, 1, 2, 3)</source>
        <translation>assemblées (1, 2, 3, 1, 2, 3)</translation>
    </message>
    <message>
        <source>page by page (1, 1, 2, 2, 3, 3)</source>
        <translation>page par page (1, 1, 2, 2, 3, 3)</translation>
    </message>
    <message>
        <source>all</source>
        <translation>toutes</translation>
    </message>
    <message>
        <source>Of these</source>
        <translation>Parmi celles-ci</translation>
    </message>
    <message>
        <source>odd and even pages</source>
        <translation>pages impaires et paires</translation>
    </message>
    <message>
        <source>odd pages</source>
        <translation>pages impaires</translation>
    </message>
    <message>
        <source>even pages</source>
        <translation>pages paires</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatique</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>portrait</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>paysage</translation>
    </message>
    <message>
        <source>reverse landscape</source>
        <translation>paysage inversé</translation>
    </message>
    <message>
        <source>reverse portrait</source>
        <translation>portrait inversé</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Pages par feuille</translation>
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
        <translation>plages de pages&#xa0;: &quot;%1&quot; n’est ni une page ni une plage telle que 2-5</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; names a page that cannot be</source>
        <translation>plages de pages&#xa0;: &quot;%1&quot; désigne une page qui ne peut pas exister</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; ends before it begins</source>
        <translation>plages de pages&#xa0;: &quot;%1&quot; se termine avant de commencer</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; does not follow the pages before it: a job prints its pages in their order, each once</source>
        <translation>plages de pages&#xa0;: &quot;%1&quot; ne suit pas les pages qui précèdent&#xa0;: une tâche imprime ses pages dans l’ordre, chacune une seule fois</translation>
    </message>
    <message>
        <source>a preset needs a name</source>
        <translation>un préréglage doit avoir un nom</translation>
    </message>
    <message numerus="yes">
        <source>the name of a preset has at most %n characters</source>
        <translation>
            <numerusform>le nom d’un préréglage comporte au plus %n caractère</numerusform>
            <numerusform>le nom d’un préréglage comporte au plus %n caractères</numerusform>
        </translation>
    </message>
    <message>
        <source>the name of a preset is one line, without control characters</source>
        <translation>le nom d’un préréglage tient sur une ligne, sans caractères de contrôle</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is always there: no other preset can have its name</source>
        <translation>&quot;%1&quot; existe toujours&#xa0;: aucun autre préréglage ne peut porter ce nom</translation>
    </message>
    <message>
        <source>presets file %1: %2</source>
        <translation>fichier de préréglages %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>it is a directory</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop volumineux</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>ligne %1, colonne %2</translation>
    </message>
    <message>
        <source>&quot;presets&quot; is not a list</source>
        <translation>&quot;presets&quot; n’est pas une liste</translation>
    </message>
    <message>
        <source>&quot;lastUsed&quot; is not an object</source>
        <translation>&quot;lastUsed&quot; n’est pas un objet</translation>
    </message>
    <message>
        <source>line 1: not a JSON object</source>
        <translation>ligne 1&#xa0;: n’est pas un objet JSON</translation>
    </message>
    <message>
        <source>&quot;version&quot; is not a version number</source>
        <translation>&quot;version&quot; n’est pas un numéro de version</translation>
    </message>
    <message>
        <source>it was written by a later version of this program (its format is %1, this program knows %2): its presets can be used, not changed</source>
        <translation>il a été écrit par une version plus récente de ce programme (son format est %1, ce programme connaît %2)&#xa0;: ses préréglages peuvent être utilisés, mais pas modifiés</translation>
    </message>
    <message>
        <source>presets folder %1: %2</source>
        <translation>dossier de préréglages %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>another program is changing presets and does not come to an end</source>
        <translation>un autre programme est en train de modifier des préréglages et n’a toujours pas fini</translation>
    </message>
    <message>
        <source>it cannot be locked</source>
        <translation>verrouillage impossible</translation>
    </message>
    <message>
        <source>it would become too large</source>
        <translation>il deviendrait trop volumineux</translation>
    </message>
    <message>
        <source>too many damaged files beside it</source>
        <translation>trop de fichiers endommagés à côté de lui</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;</source>
        <translation>il n’y a pas de préréglage &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is already a preset &quot;%1&quot;</source>
        <translation>il existe déjà un préréglage &quot;%1&quot;</translation>
    </message>
    <message>
        <source>presets: the printer has no name</source>
        <translation>préréglages&#xa0;: l’imprimante n’a pas de nom</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;: a value has no key</source>
        <translation>préréglage &quot;%1&quot;&#xa0;: une valeur n’a pas de clé</translation>
    </message>
    <message>
        <source>%1; it was kept as %2</source>
        <translation>%1&#xa0;; il a été conservé sous %2</translation>
    </message>
    <message>
        <source>print server %1: it cannot be reached: %2</source>
        <translation>serveur d’impression %1&#xa0;: il est injoignable&#xa0;: %2</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>la connexion a été perdue</translation>
    </message>
    <message>
        <source>nothing answers there</source>
        <translation>rien ne répond à cette adresse</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>pas de réponse</translation>
    </message>
    <message>
        <source>the print server %1 has no queue of this name</source>
        <translation>le serveur d’impression %1 n’a pas de file d’attente de ce nom</translation>
    </message>
    <message>
        <source>the print server %1 says: %2</source>
        <translation>le serveur d’impression %1 indique&#xa0;: %2</translation>
    </message>
    <message>
        <source>queue %1: %2</source>
        <translation>file d’attente %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: %2</source>
        <translation>dossier du PPD de la file d’attente %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: the path %2 is too long</source>
        <translation>dossier du PPD de la file d’attente %1&#xa0;: le chemin %2 est trop long</translation>
    </message>
    <message>
        <source>file %1: it cannot be written</source>
        <translation>fichier %1&#xa0;: écriture impossible</translation>
    </message>
    <message>
        <source>queue %1: its PPD file cannot be fetched: %2</source>
        <translation>file d’attente %1&#xa0;: impossible de récupérer son fichier PPD&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1
Printed already: %2
Not printed: %3</source>
        <translation>%1
Déjà imprimé&#xa0;: %2
Non imprimé&#xa0;: %3</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>inactive</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>n’accepte pas de tâches</translation>
    </message>
    <message>
        <source>print server %1: it does not list its queues: %2</source>
        <translation>serveur d’impression %1&#xa0;: il ne donne pas la liste de ses files d’attente&#xa0;: %2</translation>
    </message>
    <message>
        <source>document %1: %2</source>
        <translation>document %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>there is nothing in it</source>
        <translation>il n’y a rien dedans</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>it can be printed only once</source>
        <translation>une seule impression est possible</translation>
    </message>
    <message>
        <source>the print server does not cancel it: %1</source>
        <translation>le serveur d’impression ne l’annule pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>the print server no longer has the queue %1</source>
        <translation>le serveur d’impression n’a plus la file d’attente %1</translation>
    </message>
    <message>
        <source>the print server keeps no record of it</source>
        <translation>le serveur d’impression n’en garde pas trace</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>l’imprimante est arrêtée</translation>
    </message>
    <message>
        <source>sheets so far: %1</source>
        <translation>feuilles jusqu’ici&#xa0;: %1</translation>
    </message>
    <message>
        <source>job %1: the print server %2 does not tell how it is: %3</source>
        <translation>tâche %1&#xa0;: le serveur d’impression %2 n’indique pas son état&#xa0;: %3</translation>
    </message>
    <message>
        <source>it is not accepting jobs</source>
        <translation>elle n’accepte pas de tâches</translation>
    </message>
    <message>
        <source>it does not take the job: %1</source>
        <translation>elle n’accepte pas la tâche&#xa0;: %1</translation>
    </message>
    <message>
        <source>it does not take the document %1: %2</source>
        <translation>elle n’accepte pas le document %1&#xa0;: %2</translation>
    </message>
    <message>
        <source> (job %1 may remain on the server: %2)</source>
        <translation> (la tâche %1 peut rester sur le serveur&#xa0;: %2)</translation>
    </message>
    <message>
        <source>there is no document to print</source>
        <translation>il n’y a pas de document à imprimer</translation>
    </message>
    <message>
        <source>it is a directory, not a PPD file</source>
        <translation>c’est un dossier, pas un fichier PPD</translation>
    </message>
    <message>
        <source>PPD file %1: %2</source>
        <translation>fichier PPD %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pause</translation>
    </message>
    <message>
        <source>being paused</source>
        <translation>mise en pause</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>éteinte</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>hors ligne</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>connexion à l’imprimante</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>l’imprimante ne répond pas</translation>
    </message>
    <message>
        <source>paper is needed</source>
        <translation>papier requis</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>plus de papier</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>presque plus de papier</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>bourrage papier</translation>
    </message>
    <message>
        <source>a cover is open</source>
        <translation>un capot est ouvert</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>une porte est ouverte</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>le bac à papier est absent</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>le bac de sortie est plein</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>plus d’encre</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>presque plus d’encre</translation>
    </message>
    <message>
        <source>the waste container is full</source>
        <translation>le bac de récupération est plein</translation>
    </message>
    <message>
        <source>the waste container is almost full</source>
        <translation>le bac de récupération est presque plein</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>plus de toner</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>presque plus de toner</translation>
    </message>
    <message>
        <source>the print server has no room left</source>
        <translation>le serveur d’impression n’a plus d’espace libre</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>les nouvelles tâches sont retenues</translation>
    </message>
    <message>
        <source>a program of its driver is missing</source>
        <translation>un programme de son pilote est absent</translation>
    </message>
    <message>
        <source>a program of its driver can be changed by others</source>
        <translation>un programme de son pilote peut être modifié par d’autres</translation>
    </message>
    <message>
        <source>the printer is partly stopped</source>
        <translation>l’imprimante est partiellement arrêtée</translation>
    </message>
    <message>
        <source>it waits for its time or its release</source>
        <translation>elle attend son heure ou sa libération</translation>
    </message>
    <message>
        <source>documents are still to come</source>
        <translation>des documents sont encore attendus</translation>
    </message>
    <message>
        <source>cancelled by a person</source>
        <translation>annulée par un utilisateur</translation>
    </message>
    <message>
        <source>cancelled by an operator</source>
        <translation>annulée par un opérateur</translation>
    </message>
    <message>
        <source>cancelled at the printer</source>
        <translation>annulée sur l’imprimante</translation>
    </message>
    <message>
        <source>the document is damaged</source>
        <translation>le document est endommagé</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>l’imprimante ne peut pas imprimer ce type de document</translation>
    </message>
    <message>
        <source>printed with warnings</source>
        <translation>imprimée avec des avertissements</translation>
    </message>
    <message>
        <source>printed with errors</source>
        <translation>imprimée avec des erreurs</translation>
    </message>
    <message>
        <source>it holds a zero byte</source>
        <translation>il contient un octet nul</translation>
    </message>
    <message>
        <source>a backslash is not followed by \, =, n or r</source>
        <translation>une barre oblique inverse n’est pas suivie de \, =, n ou r</translation>
    </message>
    <message>
        <source>there is no &quot;=&quot; in it</source>
        <translation>il n’y a pas de &quot;=&quot; dedans</translation>
    </message>
    <message>
        <source>there is no key before the &quot;=&quot;</source>
        <translation>il n’y a pas de clé avant le &quot;=&quot;</translation>
    </message>
    <message>
        <source>it is not UTF-8 text</source>
        <translation>ce n’est pas du texte UTF-8</translation>
    </message>
    <message>
        <source>ticket on standard output: %1</source>
        <translation>ticket sur la sortie standard&#xa0;: %1</translation>
    </message>
    <message>
        <source>ticket file %1: %2</source>
        <translation>fichier de ticket %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>file %1: %2</source>
        <translation>fichier %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>; it could not be removed again</source>
        <translation>; il n’a pas pu être supprimé ensuite</translation>
    </message>
    <message>
        <source>; the earlier ones are in %1</source>
        <translation>; les précédents sont dans %1</translation>
    </message>
    <message>
        <source>these options of %1 could not be kept: %2</source>
        <translation>ces options de %1 n’ont pas pu être conservées&#xa0;: %2</translation>
    </message>
    <message>
        <source>file %1: it cannot be written: %2</source>
        <translation>fichier %1&#xa0;: écriture impossible&#xa0;: %2</translation>
    </message>
    <message>
        <source>queue %1: the values of these options cannot be kept as defaults: %2</source>
        <translation>file d’attente %1&#xa0;: les valeurs de ces options ne peuvent pas être conservées par défaut&#xa0;: %2</translation>
    </message>
    <message>
        <source>queue %1: the print server has no queue of this name</source>
        <translation>file d’attente %1&#xa0;: le serveur d’impression n’a pas de file d’attente de ce nom</translation>
    </message>
    <message>
        <source>%1, for all users</source>
        <translation>%1, pour tous les utilisateurs</translation>
    </message>
    <message>
        <source>the image cannot be read: %1</source>
        <translation>impossible de lire l’image&#xa0;: %1</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn</source>
        <translation>impossible de dessiner la page %1</translation>
    </message>
    <message>
        <source>there is no room for the paper</source>
        <translation>il n’y a pas de place pour le papier</translation>
    </message>
    <message>
        <source>there is no preview of this kind of document</source>
        <translation>pas d’aperçu pour ce type de document</translation>
    </message>
    <message>
        <source>the PDF file is damaged</source>
        <translation>le fichier PDF est endommagé</translation>
    </message>
    <message>
        <source>the PDF file is protected by a password</source>
        <translation>le fichier PDF est protégé par un mot de passe</translation>
    </message>
    <message>
        <source>the PDF file has no pages</source>
        <translation>le fichier PDF n’a aucune page</translation>
    </message>
    <message>
        <source>none of the pages is selected</source>
        <translation>aucune des pages n’est sélectionnée</translation>
    </message>
    <message>
        <source>a page cannot be begun: %1</source>
        <translation>impossible de commencer une page&#xa0;: %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>There is no document.</source>
        <translation>Il n’y a pas de document.</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Ouverture…</translation>
    </message>
    <message numerus="yes">
        <source>None of the document&apos;s %n pages is selected.</source>
        <translation>
            <numerusform>Document de %n page&#xa0;: aucune n’est sélectionnée.</numerusform>
            <numerusform>Aucune des %n pages du document n’est sélectionnée.</numerusform>
        </translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>Rendu en cours…</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Feuille %1 sur %2</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>only the first page is shown here; all pages are printed</source>
        <translation>seule la première page est affichée ici&#xa0;; toutes les pages sont imprimées</translation>
    </message>
    <message>
        <source>the text is longer than %1 MB</source>
        <translation>le texte dépasse %1&#xa0;Mo</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Première page</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Dernière page</translation>
    </message>
    <message>
        <source>the part of this program that reads PDF files is missing</source>
        <translation>la partie de ce programme qui lit les fichiers PDF est absente</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB, or damaged</source>
        <translation>il dépasse %1 Mio ou est endommagé</translation>
    </message>
</context>
</TS>
