<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>TessarinPrint</name>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>The print dialog cannot be opened.</source>
        <translation>No se puede abrir el diálogo de impresión.</translation>
    </message>
    <message>
        <source>there is no printer: name one with --printer, --ppd or --sample</source>
        <translation>no hay ninguna impresora: indique una con --printer, --ppd o --sample</translation>
    </message>
    <message>
        <source>nothing was printed; pictures of the dialog (%1) are in %2, the options that Print would send are on standard output</source>
        <translation>no se ha impreso nada; las imágenes del diálogo (%1) están en %2, y las opciones que enviaría «Imprimir», en la salida estándar</translation>
    </message>
    <message>
        <source>the panel gives no summary</source>
        <translation>el panel no proporciona ningún resumen</translation>
    </message>
    <message>
        <source>standard output: the summary cannot be written</source>
        <translation>salida estándar: no se puede escribir el resumen</translation>
    </message>
    <message>
        <source>standard output: it cannot be written</source>
        <translation>salida estándar: no se puede escribir</translation>
    </message>
    <message>
        <source>there is no display: to get a window, run this in a desktop session, set DISPLAY or WAYLAND_DISPLAY, or use a virtual display: xvfb-run -a tessarin-print</source>
        <translation>no hay ninguna pantalla: para obtener una ventana, ejecute esto en una sesión de escritorio, defina DISPLAY o WAYLAND_DISPLAY, o use una pantalla virtual: xvfb-run -a tessarin-print</translation>
    </message>
    <message>
        <source>Show the printer that a PPD file describes.</source>
        <translation>Muestra la impresora que describe un archivo PPD.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>archivo</translation>
    </message>
    <message>
        <source>Print on a queue of the print server.</source>
        <translation>Imprime en una cola del servidor de impresión.</translation>
    </message>
    <message>
        <source>queue</source>
        <translation>cola</translation>
    </message>
    <message>
        <source>Show the sample printer that comes with the program.</source>
        <translation>Muestra la impresora de ejemplo que acompaña al programa.</translation>
    </message>
    <message>
        <source>Set an option of the printer or the job; may be given more than once.</source>
        <translation>Define una opción de la impresora o del trabajo; puede indicarse más de una vez.</translation>
    </message>
    <message>
        <source>key=value</source>
        <translation>clave=valor</translation>
    </message>
    <message>
        <source>Print this many copies.</source>
        <translation>Imprime este número de copias.</translation>
    </message>
    <message>
        <source>copies</source>
        <translation>copias</translation>
    </message>
    <message>
        <source>Print these pages, such as 1-3,5,8-.</source>
        <translation>Imprime estas páginas, por ejemplo, 1-3,5,8-.</translation>
    </message>
    <message>
        <source>ranges</source>
        <translation>intervalos</translation>
    </message>
    <message>
        <source>Start from a preset of the printer; -o, -n and -P go over it.</source>
        <translation>Parte de un preajuste de la impresora; -o, -n y -P prevalecen sobre él.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>Print at once, without a window; the panel&apos;s rules apply all the same.</source>
        <translation>Imprime de inmediato, sin ventana; las reglas del panel se aplican igualmente.</translation>
    </message>
    <message>
        <source>Print nothing: list the printer&apos;s presets, one a line.</source>
        <translation>No imprime nada: enumera los preajustes de la impresora, uno por línea.</translation>
    </message>
    <message>
        <source>Print each document as a job of its own.</source>
        <translation>Imprime cada documento como un trabajo aparte.</translation>
    </message>
    <message>
        <source>Write the job&apos;s options to a file, one key=value per line (&quot;-&quot;: to standard output, which is the default without a queue).</source>
        <translation>Escribe las opciones del trabajo en un archivo, un par clave=valor por línea (&quot;-&quot;: en la salida estándar, que es lo predeterminado sin una cola).</translation>
    </message>
    <message>
        <source>Send the panel&apos;s diagnostic log to stderr, none, syslog (default) or a file.</source>
        <translation>Envía el registro de diagnóstico del panel a stderr, none, syslog (predeterminado) o un archivo.</translation>
    </message>
    <message>
        <source>where</source>
        <translation>destino</translation>
    </message>
    <message>
        <source>Load the panel from this folder (else from $TESSARIN_BUNDLE, else the one installed with the program).</source>
        <translation>Carga el panel desde esta carpeta (si no, desde $TESSARIN_BUNDLE y, en su defecto, el instalado con el programa).</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>carpeta</translation>
    </message>
    <message>
        <source>Show the dialog in this language, such as de or pt_BR.</source>
        <translation>Muestra el diálogo en este idioma, por ejemplo, de o pt_BR.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>código</translation>
    </message>
    <message>
        <source>Print nothing: save a picture of each page in this folder and list the job&apos;s options on standard output. Without a display this happens anyway, in ./tessarin-pages.</source>
        <translation>No imprime nada: guarda una imagen de cada página en esta carpeta y enumera las opciones del trabajo en la salida estándar. Sin una pantalla, esto ocurre de todos modos, en ./tessarin-pages.</translation>
    </message>
    <message>
        <source>Print nothing and open no window: list the settings on standard output, as text or, with &quot;json&quot;, as JSON.</source>
        <translation>No imprime nada ni abre ninguna ventana: enumera los ajustes en la salida estándar, como texto o, con &quot;json&quot;, como JSON.</translation>
    </message>
    <message>
        <source>[json]</source>
        <translation>[json]</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Muestra este texto.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Muestra la versión.</translation>
    </message>
    <message>
        <source>The documents to print (&quot;-&quot;: standard input).</source>
        <translation>Los documentos que se van a imprimir (&quot;-&quot;: entrada estándar).</translation>
    </message>
    <message>
        <source>usage: -o %1: there is no key before the &quot;=&quot;</source>
        <translation>uso: -o %1: no hay ninguna clave antes del &quot;=&quot;</translation>
    </message>
    <message>
        <source>usage: -n %1: not a number of copies from 1 to 9999</source>
        <translation>uso: -n %1: no es un número de copias de 1 a 9999</translation>
    </message>
    <message>
        <source>usage: -P %1: %2</source>
        <translation>uso: -P %1: %2</translation>
    </message>
    <message>
        <source>usage: --ppd and --printer cannot be given together: one printer at a time</source>
        <translation>uso: --ppd y --printer no pueden indicarse juntas: solo una impresora a la vez</translation>
    </message>
    <message>
        <source>usage: --printer %1: no name of a queue</source>
        <translation>uso: --printer %1: no es el nombre de una cola</translation>
    </message>
    <message>
        <source>usage: --sample cannot be given with --ppd or --printer: one printer at a time</source>
        <translation>uso: --sample no puede indicarse con --ppd ni --printer: solo una impresora a la vez</translation>
    </message>
    <message>
        <source>usage: --no-dialog prints, which --pictures, --summary and --list-presets do not</source>
        <translation>uso: --no-dialog imprime, mientras que --pictures, --summary y --list-presets no lo hacen</translation>
    </message>
    <message>
        <source>usage: no document: there is nothing to print on queue %1</source>
        <translation>uso: sin documento: no hay nada que imprimir en la cola %1</translation>
    </message>
    <message>
        <source>(the default)</source>
        <translation>(la predeterminada)</translation>
    </message>
    <message>
        <source>usage: standard input (&quot;-&quot;) can be printed only once</source>
        <translation>uso: la entrada estándar (&quot;-&quot;) solo puede imprimirse una vez</translation>
    </message>
    <message>
        <source>usage: a document has an empty name</source>
        <translation>uso: un documento tiene el nombre vacío</translation>
    </message>
    <message>
        <source>usage: --language %1: not a language code such as de or pt_BR</source>
        <translation>uso: --language %1: no es un código de idioma como de o pt_BR</translation>
    </message>
    <message>
        <source>usage: --summary %1: not a form, which is text or json</source>
        <translation>uso: --summary %1: no es un formato válido (text o json)</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>uso: %1</translation>
    </message>
    <message>
        <source>usage: --%1: the value is empty</source>
        <translation>uso: --%1: el valor está vacío</translation>
    </message>
    <message>
        <source>A print dialog with the panel of printer settings. Without --printer, --ppd or --sample it starts with the printer that was used last, or the default one.</source>
        <translation>Un diálogo de impresión con el panel de ajustes de la impresora. Sin --printer, --ppd ni --sample, empieza con la última impresora usada o con la predeterminada.</translation>
    </message>
    <message>
        <source>
Exit codes: 0 printed (or done what was asked in place of printing), 1 cancelled, 2 usage, settings that are not possible or a file that cannot be written, 3 printer, 4 document, 5 plug-in.
</source>
        <translation>
Códigos de salida: 0 impreso (o hecho lo que se pidió en lugar de imprimir), 1 cancelado, 2 uso, ajustes no posibles o un archivo que no se puede escribir, 3 impresora, 4 documento, 5 complemento.
</translation>
    </message>
    <message>
        <source>Custom Paper Size</source>
        <translation>Tamaño de papel personalizado</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>A&amp;nchura:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>Al&amp;tura:</translation>
    </message>
    <message>
        <source> in</source>
        <translation> pulg.</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Tr&amp;y Again</source>
        <translation>Intentar de n&amp;uevo</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Buscando impresoras…</translation>
    </message>
    <message>
        <source>Print each document as a &amp;job of its own</source>
        <translation>Imprimir cada documento como un traba&amp;jo aparte</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>Abriendo %1…</translation>
    </message>
    <message>
        <source>Print – %1</source>
        <translation>Imprimir – %1</translation>
    </message>
    <message>
        <source>Not possible on this printer</source>
        <translation>No es posible en esta impresora</translation>
    </message>
    <message>
        <source>There is no printer open.</source>
        <translation>No hay ninguna impresora abierta.</translation>
    </message>
    <message>
        <source>There are no printers. Choose another destination from the list above, or add a printer in the system&apos;s settings and look again.</source>
        <translation>No hay impresoras. Elija otro destino en la lista de arriba o añada una impresora en los ajustes del sistema y vuelva a buscar.</translation>
    </message>
    <message>
        <source>print</source>
        <translation>impresión</translation>
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
        <translation>Ajustes incompatibles entre sí</translation>
    </message>
    <message>
        <source>The printer cannot do all of this at once: %1.</source>
        <translation>La impresora no puede hacer todo esto a la vez: %1.</translation>
    </message>
    <message>
        <source>Nothing was printed. Change one of these settings.</source>
        <translation>No se ha impreso nada. Cambie uno de estos ajustes.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Cancelar trabajo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close the dialog and let the job go on</source>
        <translation>Cerrar el diálogo y dejar que el trabajo continúe</translation>
    </message>
    <message>
        <source>Not printed: %1</source>
        <translation>No se ha impreso: %1</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>No se ha impreso</translation>
    </message>
    <message>
        <source>Your document and settings are kept: you can try again.</source>
        <translation>El documento y los ajustes se conservan: puede intentarlo de nuevo.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Rei&amp;ntentar</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>Guardar como PD&amp;F…</translation>
    </message>
    <message>
        <source>There is no document to save as PDF.</source>
        <translation>No hay ningún documento que guardar como PDF.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Guardar como PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Archivos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Imprimiendo…</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Deteniendo…</translation>
    </message>
    <message>
        <source>%1 is possible %2.</source>
        <extracomment>%1 is a setting with its value, %2 says what it does not go with</extracomment>
        <translation>%1 es posible, pero %2.</translation>
    </message>
    <message>
        <source>Change the other setting first.</source>
        <translation>Cambie primero el otro ajuste.</translation>
    </message>
    <message>
        <source>To make it fit, this would be set, too: %1.</source>
        <translation>Para que sea compatible, también se definiría esto: %1.</translation>
    </message>
    <message>
        <source>&amp;Change Both</source>
        <translation>Ca&amp;mbiar ambos</translation>
    </message>
    <message>
        <source>Changed, too: %1</source>
        <translation>También se ha cambiado: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Desh&amp;acer</translation>
    </message>
    <message>
        <source>Preset %1: not possible on this printer now</source>
        <translation>Preajuste %1: ahora no es posible en esta impresora</translation>
    </message>
    <message>
        <source>Preset applied: %1</source>
        <translation>Preajuste aplicado: %1</translation>
    </message>
    <message>
        <source>Its default is not possible now</source>
        <translation>Su valor predeterminado no es posible ahora</translation>
    </message>
    <message>
        <source>Reset to its default: %1</source>
        <translation>Restablecido al valor predeterminado: %1</translation>
    </message>
    <message>
        <source>Reset to defaults.</source>
        <translation>Se han restablecido los valores predeterminados.</translation>
    </message>
    <message>
        <source>All settings are at their defaults.</source>
        <translation>Todos los ajustes tienen sus valores predeterminados.</translation>
    </message>
    <message>
        <source>Find a feature</source>
        <translation>Buscar una función</translation>
    </message>
    <message>
        <source>This printer has no further features.</source>
        <translation>Esta impresora no tiene más funciones.</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>No feature of this printer has “%1” in its name or choices.</source>
        <translation>Ninguna función de esta impresora contiene «%1» en su nombre ni en sus opciones.</translation>
    </message>
    <message>
        <source>C&amp;ollate</source>
        <translation>Interca&amp;lar</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Todas</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Pá&amp;ginas:</translation>
    </message>
    <message>
        <source>O&amp;f these:</source>
        <translation>D&amp;e estas:</translation>
    </message>
    <message>
        <source>Pap&amp;er size:</source>
        <translation>Tamaño del &amp;papel:</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>&amp;Orientación:</translation>
    </message>
    <message>
        <source>&amp;Two-sided:</source>
        <translation>&amp;Doble cara:</translation>
    </message>
    <message>
        <source>Pages per s&amp;heet:</source>
        <translation>Páginas por &amp;hoja:</translation>
    </message>
    <message>
        <source>Custom Size…</source>
        <translation>Tamaño personalizado…</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Whole copies one after the other</source>
        <translation>Copias completas, una tras otra</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copias:</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Páginas que se imprimirán</translation>
    </message>
    <message>
        <source>1-3, 5, 8-</source>
        <translation>1-3, 5, 8-</translation>
    </message>
    <message>
        <source>Print:</source>
        <translation>Imprimir:</translation>
    </message>
    <message>
        <source>Which pages? For example 1-3, 5, 8-</source>
        <translation>¿Qué páginas? Por ejemplo, 1-3, 5, 8-</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en espera</translation>
    </message>
    <message>
        <source>held</source>
        <translation>retenido</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>imprimiendo</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>impresión detenida</translation>
    </message>
    <message>
        <source>done</source>
        <translation>terminado</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>given up by the print server</source>
        <translation>abandonado por el servidor de impresión</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <extracomment>%1 is a job&apos;s number, %2 what it is doing</extracomment>
        <translation>Trabajo %1: %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>%1 is a choice, %2 says what it does not go with</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>a line was cut short</source>
        <translation>se ha truncado una línea</translation>
    </message>
    <message>
        <source>log %1: %2</source>
        <translation>registro %1: %2</translation>
    </message>
    <message>
        <source>log file %1: %2</source>
        <translation>archivo de registro %1: %2</translation>
    </message>
    <message>
        <source>%1=%2 (with the other settings it is %3)</source>
        <translation>%1=%2 (con los demás ajustes es %3)</translation>
    </message>
    <message>
        <source>not possible on this printer: %1</source>
        <translation>no es posible en esta impresora: %1</translation>
    </message>
    <message>
        <source>the printer cannot do all of this at once: %1</source>
        <translation>la impresora no puede hacer todo esto a la vez: %1</translation>
    </message>
    <message>
        <source>job %1-%2
</source>
        <translation>trabajo %1-%2
</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>Cerrar el aviso</translation>
    </message>
    <message>
        <source>picture %1: %2</source>
        <translation>imagen %1: %2</translation>
    </message>
    <message>
        <source>folder for pictures %1: it cannot be made</source>
        <translation>carpeta para imágenes %1: no se puede crear</translation>
    </message>
    <message>
        <source>page %1 (%2) cannot be selected for this printer: no picture of it</source>
        <translation>la página %1 (%2) no se puede seleccionar para esta impresora: no hay imagen de ella</translation>
    </message>
    <message>
        <source>The printer&apos;s plug-in offers no panel of settings.</source>
        <translation>El complemento de la impresora no ofrece ningún panel de ajustes.</translation>
    </message>
    <message>
        <source>%1 is for other printers: this one has none of its options.</source>
        <translation>%1 es para otras impresoras: esta no tiene ninguna de sus opciones.</translation>
    </message>
    <message>
        <source>The panel could not read the printer&apos;s settings.</source>
        <translation>El panel no ha podido leer los ajustes de la impresora.</translation>
    </message>
    <message>
        <source>The panel of printer settings could not load its controls.</source>
        <translation>El panel de ajustes de la impresora no ha podido cargar sus controles.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Ajustes de la impresora</translation>
    </message>
    <message>
        <source>Printer Features</source>
        <translation>Funciones de la impresora</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>You can print all the same, with the settings of the other pages.</source>
        <translation>Puede imprimir igualmente con los ajustes de las demás páginas.</translation>
    </message>
    <message>
        <source>plug-in %1: %2</source>
        <translation>complemento %1: %2</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>no existe esa carpeta</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>no es una carpeta</translation>
    </message>
    <message>
        <source>the bundle&apos;s description is missing</source>
        <translation>falta la descripción del paquete</translation>
    </message>
    <message>
        <source>at byte %1: %2</source>
        <translation>en el byte %1: %2</translation>
    </message>
    <message>
        <source>it does not give &quot;%1&quot;</source>
        <translation>no indica &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the library &quot;%1&quot; is not a file of the bundle&apos;s folder</source>
        <translation>la biblioteca &quot;%1&quot; no es un archivo de la carpeta del paquete</translation>
    </message>
    <message>
        <source>the bundle&apos;s library is missing</source>
        <translation>falta la biblioteca del paquete</translation>
    </message>
    <message>
        <source>it is not a plug-in (%1)</source>
        <translation>no es un complemento (%1)</translation>
    </message>
    <message>
        <source>it is a plug-in for something else (%1), not a print dialog panel</source>
        <translation>es un complemento para otra cosa (%1), no un panel del diálogo de impresión</translation>
    </message>
    <message>
        <source>it does not say for which version of the panel protocol it was made</source>
        <translation>no indica para qué versión del protocolo de paneles se creó</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel protocol; this dialog has version %2</source>
        <translation>se creó para la versión %1 del protocolo de paneles; este diálogo tiene la versión %2</translation>
    </message>
    <message>
        <source>its root object is not a panel factory</source>
        <translation>su objeto raíz no es una fábrica de paneles</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>no indicó ningún motivo</translation>
    </message>
    <message>
        <source>its panel factory could not be made</source>
        <translation>no se pudo crear su fábrica de paneles</translation>
    </message>
    <message>
        <source>Pre&amp;sets</source>
        <translation>Preaju&amp;stes</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Ajustes predeterminados</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Últimos ajustes usados</translation>
    </message>
    <message>
        <source>preset %1: this printer has none of this name</source>
        <translation>preajuste %1: esta impresora no tiene ninguno con este nombre</translation>
    </message>
    <message>
        <source>preset %1: %2</source>
        <translation>preajuste %1: %2</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>&amp;Guardar como preajuste…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Cambiar &amp;nombre</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Make These &amp;My Defaults</source>
        <translation>Usar como &amp;mis valores predeterminados</translation>
    </message>
    <message>
        <source>Preset saved: %1</source>
        <translation>Preajuste guardado: %1</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Cambiar nombre del preajuste</translation>
    </message>
    <message>
        <source>New name of the preset:</source>
        <translation>Nuevo nombre del preajuste:</translation>
    </message>
    <message>
        <source>Preset renamed: %1</source>
        <translation>Nombre del preajuste cambiado: %1</translation>
    </message>
    <message>
        <source>Preset deleted: %1</source>
        <translation>Preajuste eliminado: %1</translation>
    </message>
    <message>
        <source>These settings are your defaults for %1 now, in every program (%2).</source>
        <translation>Estos ajustes son ahora sus valores predeterminados para %1 en todos los programas (%2).</translation>
    </message>
    <message>
        <source>Sample printer</source>
        <translation>Impresora de ejemplo</translation>
    </message>
    <message>
        <source>Print lists the job&apos;s options</source>
        <translation>«Imprimir» enumera las opciones del trabajo</translation>
    </message>
    <message>
        <source>Print writes the pages into a file</source>
        <translation>«Imprimir» escribe las páginas en un archivo</translation>
    </message>
    <message>
        <source>PPD file %1: Print lists the job&apos;s options</source>
        <translation>Archivo PPD %1: «Imprimir» enumera las opciones del trabajo</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Imp&amp;resora:</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Look for printers again (F5)</source>
        <translation>Volver a buscar impresoras (F5)</translation>
    </message>
    <message>
        <source>Look for printers again</source>
        <translation>Volver a buscar impresoras</translation>
    </message>
    <message>
        <source>looking for printers…</source>
        <translation>buscando impresoras…</translation>
    </message>
    <message>
        <source>Paper and &amp;layout</source>
        <translation>&amp;Papel y disposición</translation>
    </message>
    <message>
        <source>Printer settings</source>
        <translation>Ajustes de la impresora</translation>
    </message>
    <message>
        <source>Printer &amp;features</source>
        <translation>&amp;Funciones de la impresora</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Guardar como preajuste</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>The preset keeps:</source>
        <translation>El preajuste guarda:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Choose what the preset keeps.</source>
        <translation>Elija qué guarda el preajuste.</translation>
    </message>
    <message>
        <source>This replaces the preset of the same name.</source>
        <translation>Esto sustituye al preajuste del mismo nombre.</translation>
    </message>
    <message>
        <source>set for this job</source>
        <translation>definido para este trabajo</translation>
    </message>
    <message>
        <source>changed (default: none)</source>
        <translation>cambiado (predeterminado: ninguno)</translation>
    </message>
    <message>
        <source>changed (default: %1)</source>
        <translation>cambiado (predeterminado: %1)</translation>
    </message>
    <message>
        <source>Reset to &amp;Default</source>
        <translation>Resta&amp;blecer valor predeterminado</translation>
    </message>
    <message>
        <source>Reset A&amp;ll to Defaults</source>
        <translation>Restablecer todos los &amp;valores</translation>
    </message>
    <message>
        <source>Reset the selected settings (Delete)</source>
        <translation>Restablecer los ajustes seleccionados (Supr)</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Other options of the job</source>
        <translation>Otras opciones del trabajo</translation>
    </message>
    <message>
        <source>not with %1</source>
        <extracomment>%1 lists settings, such as &quot;Media Type: Canvas&quot;</extracomment>
        <translation>no con %1</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>Orden de las copias</translation>
    </message>
    <message>
        <source>collated (1, 2, 3, 1, 2, 3)</source>
        <translation>intercaladas (1, 2, 3, 1, 2, 3)</translation>
    </message>
    <message>
        <source>page by page (1, 1, 2, 2, 3, 3)</source>
        <translation>página por página (1, 1, 2, 2, 3, 3)</translation>
    </message>
    <message>
        <source>all</source>
        <translation>todas</translation>
    </message>
    <message>
        <source>Of these</source>
        <translation>De estas</translation>
    </message>
    <message>
        <source>odd and even pages</source>
        <translation>páginas impares y pares</translation>
    </message>
    <message>
        <source>odd pages</source>
        <translation>páginas impares</translation>
    </message>
    <message>
        <source>even pages</source>
        <translation>páginas pares</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automática</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>vertical</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>horizontal</translation>
    </message>
    <message>
        <source>reverse landscape</source>
        <translation>horizontal invertida</translation>
    </message>
    <message>
        <source>reverse portrait</source>
        <translation>vertical invertida</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Páginas por hoja</translation>
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
        <translation>intervalos de páginas: &quot;%1&quot; no es una página ni un intervalo como 2-5</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; names a page that cannot be</source>
        <translation>intervalos de páginas: &quot;%1&quot; indica una página que no puede existir</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; ends before it begins</source>
        <translation>intervalos de páginas: &quot;%1&quot; termina antes de empezar</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; does not follow the pages before it: a job prints its pages in their order, each once</source>
        <translation>intervalos de páginas: &quot;%1&quot; no sigue a las páginas anteriores: un trabajo imprime sus páginas en orden, cada una una sola vez</translation>
    </message>
    <message>
        <source>a preset needs a name</source>
        <translation>un preajuste necesita un nombre</translation>
    </message>
    <message numerus="yes">
        <source>the name of a preset has at most %n characters</source>
        <translation>
            <numerusform>el nombre de un preajuste tiene como máximo %n carácter</numerusform>
            <numerusform>el nombre de un preajuste tiene como máximo %n caracteres</numerusform>
        </translation>
    </message>
    <message>
        <source>the name of a preset is one line, without control characters</source>
        <translation>el nombre de un preajuste ocupa una sola línea, sin caracteres de control</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is always there: no other preset can have its name</source>
        <translation>&quot;%1&quot; existe siempre: ningún otro preajuste puede llamarse igual</translation>
    </message>
    <message>
        <source>presets file %1: %2</source>
        <translation>archivo de preajustes %1: %2</translation>
    </message>
    <message>
        <source>it is a directory</source>
        <translation>es un directorio</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>línea %1, columna %2</translation>
    </message>
    <message>
        <source>&quot;presets&quot; is not a list</source>
        <translation>&quot;presets&quot; no es una lista</translation>
    </message>
    <message>
        <source>&quot;lastUsed&quot; is not an object</source>
        <translation>&quot;lastUsed&quot; no es un objeto</translation>
    </message>
    <message>
        <source>line 1: not a JSON object</source>
        <translation>línea 1: no es un objeto JSON</translation>
    </message>
    <message>
        <source>&quot;version&quot; is not a version number</source>
        <translation>&quot;version&quot; no es un número de versión</translation>
    </message>
    <message>
        <source>it was written by a later version of this program (its format is %1, this program knows %2): its presets can be used, not changed</source>
        <translation>lo escribió una versión posterior de este programa (su formato es %1, este programa conoce %2): sus preajustes se pueden usar, pero no cambiar</translation>
    </message>
    <message>
        <source>presets folder %1: %2</source>
        <translation>carpeta de preajustes %1: %2</translation>
    </message>
    <message>
        <source>another program is changing presets and does not come to an end</source>
        <translation>otro programa está cambiando preajustes y no termina</translation>
    </message>
    <message>
        <source>it cannot be locked</source>
        <translation>no se puede bloquear</translation>
    </message>
    <message>
        <source>it would become too large</source>
        <translation>sería demasiado grande</translation>
    </message>
    <message>
        <source>too many damaged files beside it</source>
        <translation>hay demasiados archivos dañados junto a él</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;</source>
        <translation>no existe el preajuste &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is already a preset &quot;%1&quot;</source>
        <translation>ya existe un preajuste &quot;%1&quot;</translation>
    </message>
    <message>
        <source>presets: the printer has no name</source>
        <translation>preajustes: la impresora no tiene nombre</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;: a value has no key</source>
        <translation>preajuste &quot;%1&quot;: un valor no tiene clave</translation>
    </message>
    <message>
        <source>%1; it was kept as %2</source>
        <translation>%1; se ha conservado como %2</translation>
    </message>
    <message>
        <source>print server %1: it cannot be reached: %2</source>
        <translation>servidor de impresión %1: no se puede contactar con él: %2</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>se ha perdido la conexión</translation>
    </message>
    <message>
        <source>nothing answers there</source>
        <translation>allí no responde nada</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>no responde</translation>
    </message>
    <message>
        <source>the print server %1 has no queue of this name</source>
        <translation>el servidor de impresión %1 no tiene ninguna cola con este nombre</translation>
    </message>
    <message>
        <source>the print server %1 says: %2</source>
        <translation>el servidor de impresión %1 dice: %2</translation>
    </message>
    <message>
        <source>queue %1: %2</source>
        <translation>cola %1: %2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: %2</source>
        <translation>carpeta para el PPD de la cola %1: %2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: the path %2 is too long</source>
        <translation>carpeta para el PPD de la cola %1: la ruta %2 es demasiado larga</translation>
    </message>
    <message>
        <source>file %1: it cannot be written</source>
        <translation>archivo %1: no se puede escribir</translation>
    </message>
    <message>
        <source>queue %1: its PPD file cannot be fetched: %2</source>
        <translation>cola %1: no se puede obtener su archivo PPD: %2</translation>
    </message>
    <message>
        <source>%1
Printed already: %2
Not printed: %3</source>
        <translation>%1
Ya impreso: %2
Sin imprimir: %3</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>inactiva</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>no acepta trabajos</translation>
    </message>
    <message>
        <source>print server %1: it does not list its queues: %2</source>
        <translation>servidor de impresión %1: no enumera sus colas: %2</translation>
    </message>
    <message>
        <source>document %1: %2</source>
        <translation>documento %1: %2</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <source>there is nothing in it</source>
        <translation>no contiene nada</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada estándar</translation>
    </message>
    <message>
        <source>it can be printed only once</source>
        <translation>solo se puede imprimir una vez</translation>
    </message>
    <message>
        <source>the print server does not cancel it: %1</source>
        <translation>el servidor de impresión no lo cancela: %1</translation>
    </message>
    <message>
        <source>the print server no longer has the queue %1</source>
        <translation>el servidor de impresión ya no tiene la cola %1</translation>
    </message>
    <message>
        <source>the print server keeps no record of it</source>
        <translation>el servidor de impresión no conserva ningún registro de él</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>la impresora está detenida</translation>
    </message>
    <message>
        <source>sheets so far: %1</source>
        <translation>hojas hasta ahora: %1</translation>
    </message>
    <message>
        <source>job %1: the print server %2 does not tell how it is: %3</source>
        <translation>trabajo %1: el servidor de impresión %2 no informa de su estado: %3</translation>
    </message>
    <message>
        <source>it is not accepting jobs</source>
        <translation>no acepta trabajos</translation>
    </message>
    <message>
        <source>it does not take the job: %1</source>
        <translation>no acepta el trabajo: %1</translation>
    </message>
    <message>
        <source>it does not take the document %1: %2</source>
        <translation>no acepta el documento %1: %2</translation>
    </message>
    <message>
        <source> (job %1 may remain on the server: %2)</source>
        <translation> (es posible que el trabajo %1 permanezca en el servidor: %2)</translation>
    </message>
    <message>
        <source>there is no document to print</source>
        <translation>no hay ningún documento que imprimir</translation>
    </message>
    <message>
        <source>it is a directory, not a PPD file</source>
        <translation>es un directorio, no un archivo PPD</translation>
    </message>
    <message>
        <source>PPD file %1: %2</source>
        <translation>archivo PPD %1: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pausa</translation>
    </message>
    <message>
        <source>being paused</source>
        <translation>entrando en pausa</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>apagada</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>sin conexión</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>conectando con la impresora</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>la impresora no responde</translation>
    </message>
    <message>
        <source>paper is needed</source>
        <translation>hay que cargar papel</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>sin papel</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>queda poco papel</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>atasco de papel</translation>
    </message>
    <message>
        <source>a cover is open</source>
        <translation>una cubierta está abierta</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>una puerta está abierta</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>falta la bandeja de papel</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>la bandeja de salida está llena</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>sin tinta</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>queda poca tinta</translation>
    </message>
    <message>
        <source>the waste container is full</source>
        <translation>el depósito de residuos está lleno</translation>
    </message>
    <message>
        <source>the waste container is almost full</source>
        <translation>el depósito de residuos está casi lleno</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>sin tóner</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>queda poco tóner</translation>
    </message>
    <message>
        <source>the print server has no room left</source>
        <translation>al servidor de impresión no le queda espacio</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>los trabajos nuevos se retienen</translation>
    </message>
    <message>
        <source>a program of its driver is missing</source>
        <translation>falta un programa de su controlador</translation>
    </message>
    <message>
        <source>a program of its driver can be changed by others</source>
        <translation>otros usuarios pueden modificar un programa de su controlador</translation>
    </message>
    <message>
        <source>the printer is partly stopped</source>
        <translation>la impresora está parcialmente detenida</translation>
    </message>
    <message>
        <source>it waits for its time or its release</source>
        <translation>espera su hora o su liberación</translation>
    </message>
    <message>
        <source>documents are still to come</source>
        <translation>aún faltan documentos por llegar</translation>
    </message>
    <message>
        <source>cancelled by a person</source>
        <translation>cancelado por un usuario</translation>
    </message>
    <message>
        <source>cancelled by an operator</source>
        <translation>cancelado por un operador</translation>
    </message>
    <message>
        <source>cancelled at the printer</source>
        <translation>cancelado en la impresora</translation>
    </message>
    <message>
        <source>the document is damaged</source>
        <translation>el documento está dañado</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>la impresora no puede imprimir este tipo de documento</translation>
    </message>
    <message>
        <source>printed with warnings</source>
        <translation>impreso con advertencias</translation>
    </message>
    <message>
        <source>printed with errors</source>
        <translation>impreso con errores</translation>
    </message>
    <message>
        <source>it holds a zero byte</source>
        <translation>contiene un byte nulo</translation>
    </message>
    <message>
        <source>a backslash is not followed by \, =, n or r</source>
        <translation>una barra inversa no va seguida de \, =, n o r</translation>
    </message>
    <message>
        <source>there is no &quot;=&quot; in it</source>
        <translation>no contiene ningún &quot;=&quot;</translation>
    </message>
    <message>
        <source>there is no key before the &quot;=&quot;</source>
        <translation>no hay ninguna clave antes del &quot;=&quot;</translation>
    </message>
    <message>
        <source>it is not UTF-8 text</source>
        <translation>no es texto UTF-8</translation>
    </message>
    <message>
        <source>ticket on standard output: %1</source>
        <translation>ticket en la salida estándar: %1</translation>
    </message>
    <message>
        <source>ticket file %1: %2</source>
        <translation>archivo de ticket %1: %2</translation>
    </message>
    <message>
        <source>file %1: %2</source>
        <translation>archivo %1: %2</translation>
    </message>
    <message>
        <source>; it could not be removed again</source>
        <translation>; no se ha podido volver a eliminar</translation>
    </message>
    <message>
        <source>; the earlier ones are in %1</source>
        <translation>; las anteriores están en %1</translation>
    </message>
    <message>
        <source>these options of %1 could not be kept: %2</source>
        <translation>no se han podido conservar estas opciones de %1: %2</translation>
    </message>
    <message>
        <source>file %1: it cannot be written: %2</source>
        <translation>archivo %1: no se puede escribir: %2</translation>
    </message>
    <message>
        <source>queue %1: the values of these options cannot be kept as defaults: %2</source>
        <translation>cola %1: los valores de estas opciones no se pueden conservar como predeterminados: %2</translation>
    </message>
    <message>
        <source>queue %1: the print server has no queue of this name</source>
        <translation>cola %1: el servidor de impresión no tiene ninguna cola con este nombre</translation>
    </message>
    <message>
        <source>%1, for all users</source>
        <translation>%1, para todos los usuarios</translation>
    </message>
    <message>
        <source>the image cannot be read: %1</source>
        <translation>no se puede leer la imagen: %1</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn</source>
        <translation>no se puede dibujar la página %1</translation>
    </message>
    <message>
        <source>there is no room for the paper</source>
        <translation>no hay espacio para el papel</translation>
    </message>
    <message>
        <source>there is no preview of this kind of document</source>
        <translation>no hay vista previa para este tipo de documento</translation>
    </message>
    <message>
        <source>the PDF file is damaged</source>
        <translation>el archivo PDF está dañado</translation>
    </message>
    <message>
        <source>the PDF file is protected by a password</source>
        <translation>el archivo PDF está protegido con contraseña</translation>
    </message>
    <message>
        <source>the PDF file has no pages</source>
        <translation>el archivo PDF no tiene páginas</translation>
    </message>
    <message>
        <source>none of the pages is selected</source>
        <translation>no se ha seleccionado ninguna de las páginas</translation>
    </message>
    <message>
        <source>a page cannot be begun: %1</source>
        <translation>no se puede empezar una página: %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>There is no document.</source>
        <translation>No hay ningún documento.</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Abriendo…</translation>
    </message>
    <message numerus="yes">
        <source>None of the document&apos;s %n pages is selected.</source>
        <translation>
            <numerusform>No se ha seleccionado ninguna página del documento (%n página).</numerusform>
            <numerusform>No se ha seleccionado ninguna de las %n páginas del documento.</numerusform>
        </translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>Dibujando…</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Hoja %1 de %2</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>only the first page is shown here; all pages are printed</source>
        <translation>aquí solo se muestra la primera página; se imprimen todas</translation>
    </message>
    <message>
        <source>the text is longer than %1 MB</source>
        <translation>el texto ocupa más de %1 MB</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primera página</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>the part of this program that reads PDF files is missing</source>
        <translation>falta la parte de este programa que lee archivos PDF</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB, or damaged</source>
        <translation>ocupa más de %1 MiB o está dañado</translation>
    </message>
</context>
</TS>
