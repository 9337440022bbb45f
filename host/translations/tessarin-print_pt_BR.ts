<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>TessarinPrint</name>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>The print dialog cannot be opened.</source>
        <translation>Não foi possível abrir o diálogo de impressão.</translation>
    </message>
    <message>
        <source>there is no printer: name one with --printer, --ppd or --sample</source>
        <translation>não há impressora: indique uma com --printer, --ppd ou --sample</translation>
    </message>
    <message>
        <source>nothing was printed; pictures of the dialog (%1) are in %2, the options that Print would send are on standard output</source>
        <translation>nada foi impresso; as imagens do diálogo (%1) estão em %2 e as opções que “Imprimir” enviaria estão na saída padrão</translation>
    </message>
    <message>
        <source>the panel gives no summary</source>
        <translation>o painel não fornece um resumo</translation>
    </message>
    <message>
        <source>standard output: the summary cannot be written</source>
        <translation>saída padrão: não é possível gravar o resumo</translation>
    </message>
    <message>
        <source>standard output: it cannot be written</source>
        <translation>saída padrão: não é possível gravar</translation>
    </message>
    <message>
        <source>there is no display: to get a window, run this in a desktop session, set DISPLAY or WAYLAND_DISPLAY, or use a virtual display: xvfb-run -a tessarin-print</source>
        <translation>não há tela: para obter uma janela, execute em uma sessão gráfica, defina DISPLAY ou WAYLAND_DISPLAY ou use uma tela virtual: xvfb-run -a tessarin-print</translation>
    </message>
    <message>
        <source>Show the printer that a PPD file describes.</source>
        <translation>Mostra a impressora descrita por um arquivo PPD.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>arquivo</translation>
    </message>
    <message>
        <source>Print on a queue of the print server.</source>
        <translation>Imprime em uma fila do servidor de impressão.</translation>
    </message>
    <message>
        <source>queue</source>
        <translation>fila</translation>
    </message>
    <message>
        <source>Show the sample printer that comes with the program.</source>
        <translation>Mostra a impressora de exemplo que acompanha o programa.</translation>
    </message>
    <message>
        <source>Set an option of the printer or the job; may be given more than once.</source>
        <translation>Define uma opção da impressora ou do trabalho; pode ser usada mais de uma vez.</translation>
    </message>
    <message>
        <source>key=value</source>
        <translation>chave=valor</translation>
    </message>
    <message>
        <source>Print this many copies.</source>
        <translation>Imprime este número de cópias.</translation>
    </message>
    <message>
        <source>copies</source>
        <translation>cópias</translation>
    </message>
    <message>
        <source>Print these pages, such as 1-3,5,8-.</source>
        <translation>Imprime estas páginas, por exemplo 1-3,5,8-.</translation>
    </message>
    <message>
        <source>ranges</source>
        <translation>intervalos</translation>
    </message>
    <message>
        <source>Start from a preset of the printer; -o, -n and -P go over it.</source>
        <translation>Parte de uma predefinição da impressora; -o, -n e -P prevalecem sobre ela.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nome</translation>
    </message>
    <message>
        <source>Print at once, without a window; the panel&apos;s rules apply all the same.</source>
        <translation>Imprime imediatamente, sem janela; as regras do painel continuam valendo.</translation>
    </message>
    <message>
        <source>Print nothing: list the printer&apos;s presets, one a line.</source>
        <translation>Não imprime: lista as predefinições da impressora, uma por linha.</translation>
    </message>
    <message>
        <source>Print each document as a job of its own.</source>
        <translation>Imprime cada documento como um trabalho separado.</translation>
    </message>
    <message>
        <source>Write the job&apos;s options to a file, one key=value per line (&quot;-&quot;: to standard output, which is the default without a queue).</source>
        <translation>Grava as opções do trabalho em um arquivo, uma chave=valor por linha (&quot;-&quot;: na saída padrão, que é o padrão quando não há fila).</translation>
    </message>
    <message>
        <source>Send the panel&apos;s diagnostic log to stderr, none, syslog (default) or a file.</source>
        <translation>Envia o log de diagnóstico do painel para stderr, none, syslog (padrão) ou um arquivo.</translation>
    </message>
    <message>
        <source>where</source>
        <translation>destino</translation>
    </message>
    <message>
        <source>Load the panel from this folder (else from $TESSARIN_BUNDLE, else the one installed with the program).</source>
        <translation>Carrega o painel desta pasta (senão, de $TESSARIN_BUNDLE; senão, o instalado com o programa).</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>pasta</translation>
    </message>
    <message>
        <source>Show the dialog in this language, such as de or pt_BR.</source>
        <translation>Mostra o diálogo neste idioma, por exemplo de ou pt_BR.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>código</translation>
    </message>
    <message>
        <source>Print nothing: save a picture of each page in this folder and list the job&apos;s options on standard output. Without a display this happens anyway, in ./tessarin-pages.</source>
        <translation>Não imprime: salva uma imagem de cada página nesta pasta e lista as opções do trabalho na saída padrão. Sem uma tela, isso acontece de qualquer forma, em ./tessarin-pages.</translation>
    </message>
    <message>
        <source>Print nothing and open no window: list the settings on standard output, as text or, with &quot;json&quot;, as JSON.</source>
        <translation>Não imprime nem abre janela: lista as configurações na saída padrão, como texto ou, com &quot;json&quot;, como JSON.</translation>
    </message>
    <message>
        <source>[json]</source>
        <translation>[json]</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Mostra este texto.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostra a versão.</translation>
    </message>
    <message>
        <source>The documents to print (&quot;-&quot;: standard input).</source>
        <translation>Os documentos a imprimir (&quot;-&quot;: entrada padrão).</translation>
    </message>
    <message>
        <source>usage: -o %1: there is no key before the &quot;=&quot;</source>
        <translation>uso: -o %1: não há chave antes do &quot;=&quot;</translation>
    </message>
    <message>
        <source>usage: -n %1: not a number of copies from 1 to 9999</source>
        <translation>uso: -n %1: não é um número de cópias de 1 a 9999</translation>
    </message>
    <message>
        <source>usage: -P %1: %2</source>
        <translation>uso: -P %1: %2</translation>
    </message>
    <message>
        <source>usage: --ppd and --printer cannot be given together: one printer at a time</source>
        <translation>uso: --ppd e --printer não podem ser usadas juntas: uma impressora por vez</translation>
    </message>
    <message>
        <source>usage: --printer %1: no name of a queue</source>
        <translation>uso: --printer %1: não é o nome de uma fila</translation>
    </message>
    <message>
        <source>usage: --sample cannot be given with --ppd or --printer: one printer at a time</source>
        <translation>uso: --sample não pode ser usada com --ppd ou --printer: uma impressora por vez</translation>
    </message>
    <message>
        <source>usage: --no-dialog prints, which --pictures, --summary and --list-presets do not</source>
        <translation>uso: --no-dialog imprime, mas --pictures, --summary e --list-presets não</translation>
    </message>
    <message>
        <source>usage: no document: there is nothing to print on queue %1</source>
        <translation>uso: nenhum documento: não há nada para imprimir na fila %1</translation>
    </message>
    <message>
        <source>(the default)</source>
        <translation>(padrão)</translation>
    </message>
    <message>
        <source>usage: standard input (&quot;-&quot;) can be printed only once</source>
        <translation>uso: a entrada padrão (&quot;-&quot;) só pode ser impressa uma vez</translation>
    </message>
    <message>
        <source>usage: a document has an empty name</source>
        <translation>uso: um documento tem o nome vazio</translation>
    </message>
    <message>
        <source>usage: --language %1: not a language code such as de or pt_BR</source>
        <translation>uso: --language %1: não é um código de idioma como de ou pt_BR</translation>
    </message>
    <message>
        <source>usage: --summary %1: not a form, which is text or json</source>
        <translation>uso: --summary %1: não é um formato, que pode ser text ou json</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>uso: %1</translation>
    </message>
    <message>
        <source>usage: --%1: the value is empty</source>
        <translation>uso: --%1: o valor está vazio</translation>
    </message>
    <message>
        <source>A print dialog with the panel of printer settings. Without --printer, --ppd or --sample it starts with the printer that was used last, or the default one.</source>
        <translation>Um diálogo de impressão com o painel de configurações da impressora. Sem --printer, --ppd ou --sample, começa com a última impressora usada ou com a padrão.</translation>
    </message>
    <message>
        <source>
Exit codes: 0 printed (or done what was asked in place of printing), 1 cancelled, 2 usage, settings that are not possible or a file that cannot be written, 3 printer, 4 document, 5 plug-in.
</source>
        <translation>
Códigos de saída: 0 impresso (ou feito o que foi pedido em vez de imprimir), 1 cancelado, 2 uso, configurações impossíveis ou arquivo que não pode ser gravado, 3 impressora, 4 documento, 5 plug-in.
</translation>
    </message>
    <message>
        <source>Custom Paper Size</source>
        <translation>Tamanho de papel personalizado</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largura:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Altura:</translation>
    </message>
    <message>
        <source> in</source>
        <translation> pol</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Tr&amp;y Again</source>
        <translation>Tentar no&amp;vamente</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Procurando impressoras…</translation>
    </message>
    <message>
        <source>Print each document as a &amp;job of its own</source>
        <translation>Imprimir cada documento como um &amp;trabalho separado</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
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
        <translation>Abrindo %1…</translation>
    </message>
    <message>
        <source>Print – %1</source>
        <translation>Imprimir – %1</translation>
    </message>
    <message>
        <source>Not possible on this printer</source>
        <translation>Não é possível nesta impressora</translation>
    </message>
    <message>
        <source>There is no printer open.</source>
        <translation>Nenhuma impressora aberta.</translation>
    </message>
    <message>
        <source>There are no printers. Choose another destination from the list above, or add a printer in the system&apos;s settings and look again.</source>
        <translation>Não há impressoras. Escolha outro destino na lista acima ou adicione uma impressora nas configurações do sistema e procure novamente.</translation>
    </message>
    <message>
        <source>print</source>
        <translation>impressão</translation>
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
        <translation>Configurações que se excluem mutuamente</translation>
    </message>
    <message>
        <source>The printer cannot do all of this at once: %1.</source>
        <translation>A impressora não pode fazer tudo isto ao mesmo tempo: %1.</translation>
    </message>
    <message>
        <source>Nothing was printed. Change one of these settings.</source>
        <translation>Nada foi impresso. Altere uma destas configurações.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Cancelar trabalho</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Close the dialog and let the job go on</source>
        <translation>Fechar o diálogo e deixar o trabalho continuar</translation>
    </message>
    <message>
        <source>Not printed: %1</source>
        <translation>Não impresso: %1</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Não impresso</translation>
    </message>
    <message>
        <source>Your document and settings are kept: you can try again.</source>
        <translation>O documento e as configurações foram mantidos: é possível tentar novamente.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Tentar no&amp;vamente</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>&amp;Salvar como PDF…</translation>
    </message>
    <message>
        <source>There is no document to save as PDF.</source>
        <translation>Não há documento para salvar como PDF.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Salvar como PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Arquivos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Imprimindo…</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Parando…</translation>
    </message>
    <message>
        <source>%1 is possible %2.</source>
        <extracomment>%1 is a setting with its value, %2 says what it does not go with</extracomment>
        <translation>%1 é possível, mas %2.</translation>
    </message>
    <message>
        <source>Change the other setting first.</source>
        <translation>Altere primeiro a outra configuração.</translation>
    </message>
    <message>
        <source>To make it fit, this would be set, too: %1.</source>
        <translation>Para que seja possível, isto também seria definido: %1.</translation>
    </message>
    <message>
        <source>&amp;Change Both</source>
        <translation>Alterar am&amp;bos</translation>
    </message>
    <message>
        <source>Changed, too: %1</source>
        <translation>Também alterado: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Desfa&amp;zer</translation>
    </message>
    <message>
        <source>Preset %1: not possible on this printer now</source>
        <translation>Predefinição %1: não é possível nesta impressora no momento</translation>
    </message>
    <message>
        <source>Preset applied: %1</source>
        <translation>Predefinição aplicada: %1</translation>
    </message>
    <message>
        <source>Its default is not possible now</source>
        <translation>O padrão não é possível no momento</translation>
    </message>
    <message>
        <source>Reset to its default: %1</source>
        <translation>Padrão restaurado: %1</translation>
    </message>
    <message>
        <source>Reset to defaults.</source>
        <translation>Padrões restaurados.</translation>
    </message>
    <message>
        <source>All settings are at their defaults.</source>
        <translation>Todas as configurações estão no padrão.</translation>
    </message>
    <message>
        <source>Find a feature</source>
        <translation>Localizar um recurso</translation>
    </message>
    <message>
        <source>This printer has no further features.</source>
        <translation>Esta impressora não tem outros recursos.</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>No feature of this printer has “%1” in its name or choices.</source>
        <translation>Nenhum recurso desta impressora tem “%1” no nome ou nas opções.</translation>
    </message>
    <message>
        <source>C&amp;ollate</source>
        <translation>A&amp;grupar</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>T&amp;odas</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>&amp;Páginas:</translation>
    </message>
    <message>
        <source>O&amp;f these:</source>
        <translation>Dest&amp;as:</translation>
    </message>
    <message>
        <source>Pap&amp;er size:</source>
        <translation>Tamanho do pap&amp;el:</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>Orie&amp;ntação:</translation>
    </message>
    <message>
        <source>&amp;Two-sided:</source>
        <translation>&amp;Frente e verso:</translation>
    </message>
    <message>
        <source>Pages per s&amp;heet:</source>
        <translation>Páginas por fol&amp;ha:</translation>
    </message>
    <message>
        <source>Custom Size…</source>
        <translation>Tamanho personalizado…</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Cópias</translation>
    </message>
    <message>
        <source>Whole copies one after the other</source>
        <translation>Cópias completas, uma após a outra</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Cópias:</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Páginas a imprimir</translation>
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
        <translation>Quais páginas? Por exemplo, 1-3, 5, 8-</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>aguardando</translation>
    </message>
    <message>
        <source>held</source>
        <translation>retido</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>imprimindo</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>impressão parada</translation>
    </message>
    <message>
        <source>done</source>
        <translation>concluído</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>given up by the print server</source>
        <translation>abandonado pelo servidor de impressão</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <extracomment>%1 is a job&apos;s number, %2 what it is doing</extracomment>
        <translation>Trabalho %1: %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>%1 is a choice, %2 says what it does not go with</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>a line was cut short</source>
        <translation>uma linha foi truncada</translation>
    </message>
    <message>
        <source>log %1: %2</source>
        <translation>log %1: %2</translation>
    </message>
    <message>
        <source>log file %1: %2</source>
        <translation>arquivo de log %1: %2</translation>
    </message>
    <message>
        <source>%1=%2 (with the other settings it is %3)</source>
        <translation>%1=%2 (com as outras configurações, é %3)</translation>
    </message>
    <message>
        <source>not possible on this printer: %1</source>
        <translation>não é possível nesta impressora: %1</translation>
    </message>
    <message>
        <source>the printer cannot do all of this at once: %1</source>
        <translation>a impressora não pode fazer tudo isto ao mesmo tempo: %1</translation>
    </message>
    <message>
        <source>job %1-%2
</source>
        <translation>trabalho %1-%2
</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>Fechar o aviso</translation>
    </message>
    <message>
        <source>picture %1: %2</source>
        <translation>imagem %1: %2</translation>
    </message>
    <message>
        <source>folder for pictures %1: it cannot be made</source>
        <translation>pasta das imagens %1: não é possível criar</translation>
    </message>
    <message>
        <source>page %1 (%2) cannot be selected for this printer: no picture of it</source>
        <translation>a página %1 (%2) não pode ser selecionada para esta impressora: sem imagem dela</translation>
    </message>
    <message>
        <source>The printer&apos;s plug-in offers no panel of settings.</source>
        <translation>O plug-in da impressora não oferece um painel de configurações.</translation>
    </message>
    <message>
        <source>%1 is for other printers: this one has none of its options.</source>
        <translation>%1 é para outras impressoras: esta não tem nenhuma das opções correspondentes.</translation>
    </message>
    <message>
        <source>The panel could not read the printer&apos;s settings.</source>
        <translation>O painel não conseguiu ler as configurações da impressora.</translation>
    </message>
    <message>
        <source>The panel of printer settings could not load its controls.</source>
        <translation>O painel de configurações da impressora não conseguiu carregar seus controles.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Configurações da impressora</translation>
    </message>
    <message>
        <source>Printer Features</source>
        <translation>Recursos da impressora</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>You can print all the same, with the settings of the other pages.</source>
        <translation>Ainda é possível imprimir, com as configurações das outras páginas.</translation>
    </message>
    <message>
        <source>plug-in %1: %2</source>
        <translation>plug-in %1: %2</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>esta pasta não existe</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>não é uma pasta</translation>
    </message>
    <message>
        <source>the bundle&apos;s description is missing</source>
        <translation>falta a descrição do pacote</translation>
    </message>
    <message>
        <source>at byte %1: %2</source>
        <translation>no byte %1: %2</translation>
    </message>
    <message>
        <source>it does not give &quot;%1&quot;</source>
        <translation>não fornece &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the library &quot;%1&quot; is not a file of the bundle&apos;s folder</source>
        <translation>a biblioteca &quot;%1&quot; não é um arquivo da pasta do pacote</translation>
    </message>
    <message>
        <source>the bundle&apos;s library is missing</source>
        <translation>falta a biblioteca do pacote</translation>
    </message>
    <message>
        <source>it is not a plug-in (%1)</source>
        <translation>não é um plug-in (%1)</translation>
    </message>
    <message>
        <source>it is a plug-in for something else (%1), not a print dialog panel</source>
        <translation>é um plug-in para outra finalidade (%1), não um painel do diálogo de impressão</translation>
    </message>
    <message>
        <source>it does not say for which version of the panel protocol it was made</source>
        <translation>não informa para qual versão do protocolo de painel foi feito</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel protocol; this dialog has version %2</source>
        <translation>foi feito para a versão %1 do protocolo de painel; este diálogo tem a versão %2</translation>
    </message>
    <message>
        <source>its root object is not a panel factory</source>
        <translation>o objeto raiz não é uma fábrica de painéis</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>nenhum motivo foi informado</translation>
    </message>
    <message>
        <source>its panel factory could not be made</source>
        <translation>não foi possível criar a fábrica de painéis</translation>
    </message>
    <message>
        <source>Pre&amp;sets</source>
        <translation>Pre&amp;definições</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Configurações padrão</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Últimas usadas</translation>
    </message>
    <message>
        <source>preset %1: this printer has none of this name</source>
        <translation>predefinição %1: esta impressora não tem nenhuma com este nome</translation>
    </message>
    <message>
        <source>preset %1: %2</source>
        <translation>predefinição %1: %2</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>&amp;Salvar como predefinição…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renomear</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Excluir</translation>
    </message>
    <message>
        <source>Make These &amp;My Defaults</source>
        <translation>Usar como &amp;meu padrão</translation>
    </message>
    <message>
        <source>Preset saved: %1</source>
        <translation>Predefinição salva: %1</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Renomear predefinição</translation>
    </message>
    <message>
        <source>New name of the preset:</source>
        <translation>Novo nome da predefinição:</translation>
    </message>
    <message>
        <source>Preset renamed: %1</source>
        <translation>Predefinição renomeada: %1</translation>
    </message>
    <message>
        <source>Preset deleted: %1</source>
        <translation>Predefinição excluída: %1</translation>
    </message>
    <message>
        <source>These settings are your defaults for %1 now, in every program (%2).</source>
        <translation>Estas configurações agora são o seu padrão para %1, em todos os programas (%2).</translation>
    </message>
    <message>
        <source>Sample printer</source>
        <translation>Impressora de exemplo</translation>
    </message>
    <message>
        <source>Print lists the job&apos;s options</source>
        <translation>“Imprimir” lista as opções do trabalho</translation>
    </message>
    <message>
        <source>Print writes the pages into a file</source>
        <translation>“Imprimir” grava as páginas em um arquivo</translation>
    </message>
    <message>
        <source>PPD file %1: Print lists the job&apos;s options</source>
        <translation>Arquivo PPD %1: “Imprimir” lista as opções do trabalho</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>I&amp;mpressora:</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impressora</translation>
    </message>
    <message>
        <source>Look for printers again (F5)</source>
        <translation>Procurar impressoras novamente (F5)</translation>
    </message>
    <message>
        <source>Look for printers again</source>
        <translation>Procurar impressoras novamente</translation>
    </message>
    <message>
        <source>looking for printers…</source>
        <translation>procurando impressoras…</translation>
    </message>
    <message>
        <source>Paper and &amp;layout</source>
        <translation>Papel e &amp;layout</translation>
    </message>
    <message>
        <source>Printer settings</source>
        <translation>Configurações da impressora</translation>
    </message>
    <message>
        <source>Printer &amp;features</source>
        <translation>&amp;Recursos da impressora</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Salvar como predefinição</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>The preset keeps:</source>
        <translation>A predefinição guarda:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salvar</translation>
    </message>
    <message>
        <source>Choose what the preset keeps.</source>
        <translation>Escolha o que a predefinição guarda.</translation>
    </message>
    <message>
        <source>This replaces the preset of the same name.</source>
        <translation>Isto substitui a predefinição de mesmo nome.</translation>
    </message>
    <message>
        <source>set for this job</source>
        <translation>definido para este trabalho</translation>
    </message>
    <message>
        <source>changed (default: none)</source>
        <translation>alterado (padrão: nenhum)</translation>
    </message>
    <message>
        <source>changed (default: %1)</source>
        <translation>alterado (padrão: %1)</translation>
    </message>
    <message>
        <source>Reset to &amp;Default</source>
        <translation>Resta&amp;urar o padrão</translation>
    </message>
    <message>
        <source>Reset A&amp;ll to Defaults</source>
        <translation>&amp;Restaurar todos os padrões</translation>
    </message>
    <message>
        <source>Reset the selected settings (Delete)</source>
        <translation>Restaurar as configurações selecionadas (Delete)</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Configuração</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Observação</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Other options of the job</source>
        <translation>Outras opções do trabalho</translation>
    </message>
    <message>
        <source>not with %1</source>
        <extracomment>%1 lists settings, such as &quot;Media Type: Canvas&quot;</extracomment>
        <translation>não com %1</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>Ordem das cópias</translation>
    </message>
    <message>
        <source>collated (1, 2, 3, 1, 2, 3)</source>
        <translation>agrupadas (1, 2, 3, 1, 2, 3)</translation>
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
        <translation>Destas</translation>
    </message>
    <message>
        <source>odd and even pages</source>
        <translation>páginas ímpares e pares</translation>
    </message>
    <message>
        <source>odd pages</source>
        <translation>páginas ímpares</translation>
    </message>
    <message>
        <source>even pages</source>
        <translation>páginas pares</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientação</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automática</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>retrato</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>paisagem</translation>
    </message>
    <message>
        <source>reverse landscape</source>
        <translation>paisagem invertida</translation>
    </message>
    <message>
        <source>reverse portrait</source>
        <translation>retrato invertido</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Páginas por folha</translation>
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
        <translation>intervalos de páginas: &quot;%1&quot; não é uma página nem um intervalo como 2-5</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; names a page that cannot be</source>
        <translation>intervalos de páginas: &quot;%1&quot; indica uma página que não pode existir</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; ends before it begins</source>
        <translation>intervalos de páginas: &quot;%1&quot; termina antes de começar</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; does not follow the pages before it: a job prints its pages in their order, each once</source>
        <translation>intervalos de páginas: &quot;%1&quot; não vem depois das páginas anteriores: um trabalho imprime as páginas em ordem, cada uma só uma vez</translation>
    </message>
    <message>
        <source>a preset needs a name</source>
        <translation>uma predefinição precisa de um nome</translation>
    </message>
    <message numerus="yes">
        <source>the name of a preset has at most %n characters</source>
        <translation>
            <numerusform>o nome de uma predefinição tem no máximo %n caractere</numerusform>
            <numerusform>o nome de uma predefinição tem no máximo %n caracteres</numerusform>
        </translation>
    </message>
    <message>
        <source>the name of a preset is one line, without control characters</source>
        <translation>o nome de uma predefinição tem uma só linha, sem caracteres de controle</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is always there: no other preset can have its name</source>
        <translation>&quot;%1&quot; sempre existe: nenhuma outra predefinição pode ter esse nome</translation>
    </message>
    <message>
        <source>presets file %1: %2</source>
        <translation>arquivo de predefinições %1: %2</translation>
    </message>
    <message>
        <source>it is a directory</source>
        <translation>é um diretório</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>não é um arquivo regular</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>é grande demais</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>linha %1, coluna %2</translation>
    </message>
    <message>
        <source>&quot;presets&quot; is not a list</source>
        <translation>&quot;presets&quot; não é uma lista</translation>
    </message>
    <message>
        <source>&quot;lastUsed&quot; is not an object</source>
        <translation>&quot;lastUsed&quot; não é um objeto</translation>
    </message>
    <message>
        <source>line 1: not a JSON object</source>
        <translation>linha 1: não é um objeto JSON</translation>
    </message>
    <message>
        <source>&quot;version&quot; is not a version number</source>
        <translation>&quot;version&quot; não é um número de versão</translation>
    </message>
    <message>
        <source>it was written by a later version of this program (its format is %1, this program knows %2): its presets can be used, not changed</source>
        <translation>foi gravado por uma versão mais recente deste programa (o formato é %1, este programa conhece %2): as predefinições podem ser usadas, mas não alteradas</translation>
    </message>
    <message>
        <source>presets folder %1: %2</source>
        <translation>pasta de predefinições %1: %2</translation>
    </message>
    <message>
        <source>another program is changing presets and does not come to an end</source>
        <translation>outro programa está alterando as predefinições e não termina</translation>
    </message>
    <message>
        <source>it cannot be locked</source>
        <translation>não é possível bloquear</translation>
    </message>
    <message>
        <source>it would become too large</source>
        <translation>ficaria grande demais</translation>
    </message>
    <message>
        <source>too many damaged files beside it</source>
        <translation>há arquivos danificados demais ao lado</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;</source>
        <translation>não há predefinição &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is already a preset &quot;%1&quot;</source>
        <translation>já existe uma predefinição &quot;%1&quot;</translation>
    </message>
    <message>
        <source>presets: the printer has no name</source>
        <translation>predefinições: a impressora não tem nome</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;: a value has no key</source>
        <translation>predefinição &quot;%1&quot;: um valor não tem chave</translation>
    </message>
    <message>
        <source>%1; it was kept as %2</source>
        <translation>%1; foi guardado como %2</translation>
    </message>
    <message>
        <source>print server %1: it cannot be reached: %2</source>
        <translation>servidor de impressão %1: não foi possível acessar: %2</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>a conexão foi perdida</translation>
    </message>
    <message>
        <source>nothing answers there</source>
        <translation>não há resposta nesse endereço</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>não responde</translation>
    </message>
    <message>
        <source>the print server %1 has no queue of this name</source>
        <translation>o servidor de impressão %1 não tem uma fila com este nome</translation>
    </message>
    <message>
        <source>the print server %1 says: %2</source>
        <translation>o servidor de impressão %1 informa: %2</translation>
    </message>
    <message>
        <source>queue %1: %2</source>
        <translation>fila %1: %2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: %2</source>
        <translation>pasta para o PPD da fila %1: %2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: the path %2 is too long</source>
        <translation>pasta para o PPD da fila %1: o caminho %2 é longo demais</translation>
    </message>
    <message>
        <source>file %1: it cannot be written</source>
        <translation>arquivo %1: não é possível gravar</translation>
    </message>
    <message>
        <source>queue %1: its PPD file cannot be fetched: %2</source>
        <translation>fila %1: não foi possível obter o arquivo PPD: %2</translation>
    </message>
    <message>
        <source>%1
Printed already: %2
Not printed: %3</source>
        <translation>%1
Já impresso: %2
Não impresso: %3</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>ociosa</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>não aceita trabalhos</translation>
    </message>
    <message>
        <source>print server %1: it does not list its queues: %2</source>
        <translation>servidor de impressão %1: não lista as filas: %2</translation>
    </message>
    <message>
        <source>document %1: %2</source>
        <translation>documento %1: %2</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>o arquivo está vazio</translation>
    </message>
    <message>
        <source>there is nothing in it</source>
        <translation>não há nada nele</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada padrão</translation>
    </message>
    <message>
        <source>it can be printed only once</source>
        <translation>só pode ser impressa uma vez</translation>
    </message>
    <message>
        <source>the print server does not cancel it: %1</source>
        <translation>o servidor de impressão não o cancela: %1</translation>
    </message>
    <message>
        <source>the print server no longer has the queue %1</source>
        <translation>o servidor de impressão não tem mais a fila %1</translation>
    </message>
    <message>
        <source>the print server keeps no record of it</source>
        <translation>o servidor de impressão não guarda registro dele</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>a impressora está parada</translation>
    </message>
    <message>
        <source>sheets so far: %1</source>
        <translation>folhas até agora: %1</translation>
    </message>
    <message>
        <source>job %1: the print server %2 does not tell how it is: %3</source>
        <translation>trabalho %1: o servidor de impressão %2 não informa o estado: %3</translation>
    </message>
    <message>
        <source>it is not accepting jobs</source>
        <translation>não está aceitando trabalhos</translation>
    </message>
    <message>
        <source>it does not take the job: %1</source>
        <translation>não aceita o trabalho: %1</translation>
    </message>
    <message>
        <source>it does not take the document %1: %2</source>
        <translation>não aceita o documento %1: %2</translation>
    </message>
    <message>
        <source> (job %1 may remain on the server: %2)</source>
        <translation> (o trabalho %1 pode permanecer no servidor: %2)</translation>
    </message>
    <message>
        <source>there is no document to print</source>
        <translation>não há documento para imprimir</translation>
    </message>
    <message>
        <source>it is a directory, not a PPD file</source>
        <translation>é um diretório, não um arquivo PPD</translation>
    </message>
    <message>
        <source>PPD file %1: %2</source>
        <translation>arquivo PPD %1: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>linha %1: %2</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>em pausa</translation>
    </message>
    <message>
        <source>being paused</source>
        <translation>entrando em pausa</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>desligada</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>off-line</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>conectando à impressora</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>a impressora não responde</translation>
    </message>
    <message>
        <source>paper is needed</source>
        <translation>é preciso colocar papel</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>sem papel</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>pouco papel</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>papel atolado</translation>
    </message>
    <message>
        <source>a cover is open</source>
        <translation>uma tampa está aberta</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>uma porta está aberta</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>falta a bandeja de papel</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>a bandeja de saída está cheia</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>sem tinta</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>pouca tinta</translation>
    </message>
    <message>
        <source>the waste container is full</source>
        <translation>o reservatório de resíduos está cheio</translation>
    </message>
    <message>
        <source>the waste container is almost full</source>
        <translation>o reservatório de resíduos está quase cheio</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>sem toner</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>pouco toner</translation>
    </message>
    <message>
        <source>the print server has no room left</source>
        <translation>o servidor de impressão não tem mais espaço</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>novos trabalhos ficam retidos</translation>
    </message>
    <message>
        <source>a program of its driver is missing</source>
        <translation>falta um programa do driver</translation>
    </message>
    <message>
        <source>a program of its driver can be changed by others</source>
        <translation>um programa do driver pode ser alterado por terceiros</translation>
    </message>
    <message>
        <source>the printer is partly stopped</source>
        <translation>a impressora está parcialmente parada</translation>
    </message>
    <message>
        <source>it waits for its time or its release</source>
        <translation>aguarda o horário marcado ou a liberação</translation>
    </message>
    <message>
        <source>documents are still to come</source>
        <translation>ainda faltam documentos</translation>
    </message>
    <message>
        <source>cancelled by a person</source>
        <translation>cancelado por um usuário</translation>
    </message>
    <message>
        <source>cancelled by an operator</source>
        <translation>cancelado por um operador</translation>
    </message>
    <message>
        <source>cancelled at the printer</source>
        <translation>cancelado na impressora</translation>
    </message>
    <message>
        <source>the document is damaged</source>
        <translation>o documento está danificado</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>a impressora não pode imprimir este tipo de documento</translation>
    </message>
    <message>
        <source>printed with warnings</source>
        <translation>impresso com avisos</translation>
    </message>
    <message>
        <source>printed with errors</source>
        <translation>impresso com erros</translation>
    </message>
    <message>
        <source>it holds a zero byte</source>
        <translation>contém um byte zero</translation>
    </message>
    <message>
        <source>a backslash is not followed by \, =, n or r</source>
        <translation>uma barra invertida não é seguida de \, =, n ou r</translation>
    </message>
    <message>
        <source>there is no &quot;=&quot; in it</source>
        <translation>não contém &quot;=&quot;</translation>
    </message>
    <message>
        <source>there is no key before the &quot;=&quot;</source>
        <translation>não há chave antes do &quot;=&quot;</translation>
    </message>
    <message>
        <source>it is not UTF-8 text</source>
        <translation>não é texto UTF-8</translation>
    </message>
    <message>
        <source>ticket on standard output: %1</source>
        <translation>tíquete na saída padrão: %1</translation>
    </message>
    <message>
        <source>ticket file %1: %2</source>
        <translation>arquivo de tíquete %1: %2</translation>
    </message>
    <message>
        <source>file %1: %2</source>
        <translation>arquivo %1: %2</translation>
    </message>
    <message>
        <source>; it could not be removed again</source>
        <translation>; não foi possível removê-lo depois</translation>
    </message>
    <message>
        <source>; the earlier ones are in %1</source>
        <translation>; as anteriores estão em %1</translation>
    </message>
    <message>
        <source>these options of %1 could not be kept: %2</source>
        <translation>não foi possível guardar estas opções de %1: %2</translation>
    </message>
    <message>
        <source>file %1: it cannot be written: %2</source>
        <translation>arquivo %1: não é possível gravar: %2</translation>
    </message>
    <message>
        <source>queue %1: the values of these options cannot be kept as defaults: %2</source>
        <translation>fila %1: os valores destas opções não podem ser guardados como padrão: %2</translation>
    </message>
    <message>
        <source>queue %1: the print server has no queue of this name</source>
        <translation>fila %1: o servidor de impressão não tem uma fila com este nome</translation>
    </message>
    <message>
        <source>%1, for all users</source>
        <translation>%1, para todos os usuários</translation>
    </message>
    <message>
        <source>the image cannot be read: %1</source>
        <translation>não foi possível ler a imagem: %1</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn</source>
        <translation>não é possível desenhar a página %1</translation>
    </message>
    <message>
        <source>there is no room for the paper</source>
        <translation>não há espaço para o papel</translation>
    </message>
    <message>
        <source>there is no preview of this kind of document</source>
        <translation>não há visualização para este tipo de documento</translation>
    </message>
    <message>
        <source>the PDF file is damaged</source>
        <translation>o arquivo PDF está danificado</translation>
    </message>
    <message>
        <source>the PDF file is protected by a password</source>
        <translation>o arquivo PDF está protegido por senha</translation>
    </message>
    <message>
        <source>the PDF file has no pages</source>
        <translation>o arquivo PDF não tem páginas</translation>
    </message>
    <message>
        <source>none of the pages is selected</source>
        <translation>nenhuma das páginas está selecionada</translation>
    </message>
    <message>
        <source>a page cannot be begun: %1</source>
        <translation>não é possível iniciar uma página: %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Visualização</translation>
    </message>
    <message>
        <source>There is no document.</source>
        <translation>Não há documento.</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Abrindo…</translation>
    </message>
    <message numerus="yes">
        <source>None of the document&apos;s %n pages is selected.</source>
        <translation>
            <numerusform>O documento tem %n página, que não está selecionada.</numerusform>
            <numerusform>Nenhuma das %n páginas do documento está selecionada.</numerusform>
        </translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>Desenhando…</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Folha %1 de %2</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>only the first page is shown here; all pages are printed</source>
        <translation>somente a primeira página é mostrada aqui; todas as páginas são impressas</translation>
    </message>
    <message>
        <source>the text is longer than %1 MB</source>
        <translation>o texto tem mais de %1 MB</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primeira página</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Próxima página</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>the part of this program that reads PDF files is missing</source>
        <translation>falta a parte deste programa que lê arquivos PDF</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB, or damaged</source>
        <translation>é maior que %1 MiB ou está danificado</translation>
    </message>
</context>
</TS>
