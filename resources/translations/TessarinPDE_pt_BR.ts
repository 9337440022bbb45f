<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>TessarinPDE</name>
    <message>
        <source>Tessarin Settings</source>
        <translation>Ajustes Tessarin</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>Correção</translation>
    </message>
    <message>
        <source>Ink Consumption</source>
        <translation>Consumo de tinta</translation>
    </message>
    <message>
        <source>Ink Usage</source>
        <translation>Uso de tinta</translation>
    </message>
    <message>
        <source>Ink Limits</source>
        <translation>Lim. de tinta</translation>
    </message>
    <message>
        <source>Media Type:</source>
        <translation>Tipo de mídia:</translation>
    </message>
    <message>
        <source>Dithering:</source>
        <translation>Pontilhamento:</translation>
    </message>
    <message>
        <source>Cartridge:</source>
        <translation>Cartucho:</translation>
    </message>
    <message>
        <source>Print Resolution:</source>
        <translation>Resolução:</translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation>Brilho:</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>Contraste:</translation>
    </message>
    <message>
        <source>Use Ghostscript for PostScript</source>
        <translation>Usar Ghostscript para PostScript</translation>
    </message>
    <message>
        <source>Rendering Intent:</source>
        <translation>Intenção de render.:</translation>
    </message>
    <message>
        <source>Color Mode:</source>
        <translation>Modo de cor:</translation>
    </message>
    <message>
        <source>Color Space:</source>
        <translation>Espaço de cor:</translation>
    </message>
    <message>
        <source>Reference Light:</source>
        <translation>Luz de referência:</translation>
    </message>
    <message>
        <source>Color Gamut:</source>
        <translation>Gama de cores:</translation>
    </message>
    <message>
        <source>Shadows:</source>
        <translation>Sombras:</translation>
    </message>
    <message>
        <source>Greytone A:</source>
        <translation>Tom cinza A:</translation>
    </message>
    <message>
        <source>Greytone B:</source>
        <translation>Tom cinza B:</translation>
    </message>
    <message>
        <source>Manual color correction</source>
        <translation>Correção manual de cor</translation>
    </message>
    <message>
        <source>Black:</source>
        <translation>Preto:</translation>
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
        <translation>Amarelo:</translation>
    </message>
    <message>
        <source>Last Job</source>
        <translation>Último trab.</translation>
    </message>
    <message>
        <source>All Jobs</source>
        <translation>Todos os trab.</translation>
    </message>
    <message>
        <source>Sum:</source>
        <translation>Soma:</translation>
    </message>
    <message>
        <source>Print simulation (the printer prints nothing)</source>
        <translation>Simulação de impressão (a impressora não imprime)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Black Usage (UCR):</source>
        <translation>Uso de preto (UCR):</translation>
    </message>
    <message>
        <source>Bright Cyan
Usage:</source>
        <translation>Uso de ciano
claro:</translation>
    </message>
    <message>
        <source>Bright Inks
Usage:</source>
        <translation>Uso de tintas
claras:</translation>
    </message>
    <message>
        <source>Total Ink Maximum:</source>
        <translation>Máx. total de tinta:</translation>
    </message>
    <message>
        <source>Ink-Intensity:</source>
        <translation>Intens. da tinta:</translation>
    </message>
    <message>
        <source>Ink-Limit Black:</source>
        <translation>Limite do preto:</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan:</source>
        <translation>Limite do ciano:</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta:</source>
        <translation>Limite do magenta:</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow:</source>
        <translation>Limite do amarelo:</translation>
    </message>
    <message>
        <source>Print Simulation</source>
        <translation>Simul. de impressão</translation>
    </message>
    <message>
        <source>ON - printing is disabled</source>
        <translation>LIGADA - impressão desativada</translation>
    </message>
    <message>
        <source>OFF - printing is enabled</source>
        <translation>DESLIGADA - impressão ativada</translation>
    </message>
    <message>
        <source>Cartridge</source>
        <translation>Cartucho</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Tipo de mídia</translation>
    </message>
    <message>
        <source>Print Resolution</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>Rendering Intent</source>
        <translation>Intenção de render.</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Modo de cor</translation>
    </message>
    <message>
        <source>Dithering</source>
        <translation>Pontilhamento</translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation>Espaço de cor</translation>
    </message>
    <message>
        <source>CMYK-Colorspace</source>
        <translation>Espaço de cor CMYK</translation>
    </message>
    <message>
        <source>Postscript-Processor</source>
        <translation>Processador PostScript</translation>
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
        <translation>ativado</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>desativado</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brilho</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Reference Light</source>
        <translation>Luz de referência</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Gama de cores</translation>
    </message>
    <message>
        <source>Shadows</source>
        <translation>Sombras</translation>
    </message>
    <message>
        <source>Greytone A</source>
        <translation>Tom cinza A</translation>
    </message>
    <message>
        <source>Greytone B</source>
        <translation>Tom cinza B</translation>
    </message>
    <message>
        <source>Black Usage (UCR)</source>
        <translation>Uso de preto (UCR)</translation>
    </message>
    <message>
        <source>Usage Bright Cyan</source>
        <translation>Uso de ciano claro</translation>
    </message>
    <message>
        <source>Usage Bright Magenta</source>
        <translation>Uso de magenta claro</translation>
    </message>
    <message>
        <source>Bright Inks Usage:</source>
        <translation>Uso de tintas claras:</translation>
    </message>
    <message>
        <source>Bright Inks</source>
        <translation>Tintas claras</translation>
    </message>
    <message>
        <source>Total Ink Maximum</source>
        <translation>Máx. total de tinta</translation>
    </message>
    <message>
        <source>Ink-Intensity</source>
        <translation>Intens. da tinta</translation>
    </message>
    <message>
        <source>Ink-Limit Black</source>
        <translation>Limite do preto</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan</source>
        <translation>Limite do ciano</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta</source>
        <translation>Limite do magenta</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow</source>
        <translation>Limite do amarelo</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Preto</translation>
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
        <translation>Amarelo</translation>
    </message>
    <message>
        <source>Photo Black</source>
        <translation>Preto foto</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Cinza</translation>
    </message>
    <message>
        <source>bright Grey</source>
        <translation>Cinza claro</translation>
    </message>
    <message>
        <source>bright Mag.</source>
        <translation>Mag. claro</translation>
    </message>
    <message>
        <source>bright Cyan</source>
        <translation>Ciano claro</translation>
    </message>
    <message>
        <source>br. Yellow</source>
        <translation>Amar. claro</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Vermelho</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Optimizer</source>
        <translation>Otimizador</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Laranja</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violeta</translation>
    </message>
    <message>
        <source>PG Black</source>
        <translation>Preto PG</translation>
    </message>
    <message>
        <source>Matte Black</source>
        <translation>Preto fosco</translation>
    </message>
    <message>
        <source>dark Grey</source>
        <translation>Cinza esc.</translation>
    </message>
    <message>
        <source>Attention:</source>
        <translation>Atenção:</translation>
    </message>
    <message>
        <source>You have chosen an incomplete media profile without color data!
This profile should only be used for printing color charts!</source>
        <translation>Foi escolhido um perfil de mídia incompleto, sem dados de cor!
Este perfil só deve ser usado para imprimir cartas de cores!</translation>
    </message>
    <message>
        <source>The ink cartridges that are in the printer.</source>
        <translation>Os cartuchos de tinta que estão na impressora.</translation>
    </message>
    <message>
        <source>What is printed on; ink amounts and colors are matched to it.</source>
        <translation>Em que se imprime; as quantidades de tinta e as cores são ajustadas a isso.</translation>
    </message>
    <message>
        <source>How finely the ink drops are placed: a higher resolution shows more detail and takes longer.</source>
        <translation>Com que finura as gotas de tinta são colocadas: uma resolução maior mostra mais detalhes e demora mais.</translation>
    </message>
    <message>
        <source>How colors that cannot be printed are replaced by colors that can.</source>
        <translation>Como as cores que não podem ser impressas são substituídas por outras que podem.</translation>
    </message>
    <message>
        <source>Whether the print is grey or in color, and which kind of color data it is made from.</source>
        <translation>Se a impressão é em cinza ou em cores, e a partir de que tipo de dados de cor.</translation>
    </message>
    <message>
        <source>The pattern of ink drops from which shades are made.</source>
        <translation>O padrão de gotas de tinta que forma as tonalidades.</translation>
    </message>
    <message>
        <source>What the numbers of RGB data mean as colors.</source>
        <translation>Que cores os números dos dados RGB significam.</translation>
    </message>
    <message>
        <source>What the numbers of CMYK data mean as colors.</source>
        <translation>Que cores os números dos dados CMYK significam.</translation>
    </message>
    <message>
        <source>Makes the whole print lighter or darker.</source>
        <translation>Clareia ou escurece toda a impressão.</translation>
    </message>
    <message>
        <source>Makes the difference between light and dark stronger or weaker.</source>
        <translation>Aumenta ou reduz a diferença entre claro e escuro.</translation>
    </message>
    <message>
        <source>The daylight in which the print will be looked at, from warm (D50) to cool (D80).</source>
        <translation>A luz do dia em que a impressão será vista, de quente (D50) a fria (D80).</translation>
    </message>
    <message>
        <source>Makes the colors more vivid or more muted.</source>
        <translation>Deixa as cores mais vivas ou mais suaves.</translation>
    </message>
    <message>
        <source>Makes the dark parts of the print lighter or darker.</source>
        <translation>Clareia ou escurece as partes escuras da impressão.</translation>
    </message>
    <message>
        <source>Gives greys a greenish or reddish tint.</source>
        <translation>Dá aos cinzas um tom esverdeado ou avermelhado.</translation>
    </message>
    <message>
        <source>Gives greys a bluish or yellowish tint.</source>
        <translation>Dá aos cinzas um tom azulado ou amarelado.</translation>
    </message>
    <message>
        <source>How much of dark and grey tones is printed with black ink in place of colored inks.</source>
        <translation>Quanto dos tons escuros e cinzas é impresso com tinta preta em vez de tintas coloridas.</translation>
    </message>
    <message>
        <source>How much bright cyan ink is used in place of cyan; without a slider for magenta, how much of all bright inks.</source>
        <translation>Quanta tinta ciano clara é usada em vez de ciano; sem controle para magenta, quanta de todas as tintas claras.</translation>
    </message>
    <message>
        <source>How much bright magenta ink is used in place of magenta.</source>
        <translation>Quanta tinta magenta clara é usada em vez de magenta.</translation>
    </message>
    <message>
        <source>The most ink of all colors together that may fall on one spot.</source>
        <translation>A maior quantidade de tinta, de todas as cores juntas, que pode cair em um ponto.</translation>
    </message>
    <message>
        <source>Takes this share away from the amount of all inks.</source>
        <translation>Retira esta parte da quantidade de todas as tintas.</translation>
    </message>
    <message>
        <source>The most black ink that may fall on one spot.</source>
        <translation>A maior quantidade de tinta preta que pode cair em um ponto.</translation>
    </message>
    <message>
        <source>The most cyan ink that may fall on one spot.</source>
        <translation>A maior quantidade de tinta ciano que pode cair em um ponto.</translation>
    </message>
    <message>
        <source>The most magenta ink that may fall on one spot.</source>
        <translation>A maior quantidade de tinta magenta que pode cair em um ponto.</translation>
    </message>
    <message>
        <source>The most yellow ink that may fall on one spot.</source>
        <translation>A maior quantidade de tinta amarela que pode cair em um ponto.</translation>
    </message>
    <message>
        <source>Adds black to the print or takes it away.</source>
        <translation>Adiciona preto à impressão ou retira.</translation>
    </message>
    <message>
        <source>Adds cyan to the print or takes it away.</source>
        <translation>Adiciona ciano à impressão ou retira.</translation>
    </message>
    <message>
        <source>Adds magenta to the print or takes it away.</source>
        <translation>Adiciona magenta à impressão ou retira.</translation>
    </message>
    <message>
        <source>Adds yellow to the print or takes it away.</source>
        <translation>Adiciona amarelo à impressão ou retira.</translation>
    </message>
    <message>
        <source>The job&apos;s ink is counted, but nothing is printed.</source>
        <translation>A tinta do trabalho é contada, mas nada é impresso.</translation>
    </message>
    <message>
        <source>Lets the four sliders of this page change the colors of the print.</source>
        <translation>Permite que os quatro controles desta página mudem as cores da impressão.</translation>
    </message>
    <message>
        <source>Ghostscript turns PostScript data into the printed picture, in place of the system&apos;s own interpreter.</source>
        <translation>O Ghostscript transforma os dados PostScript na imagem impressa, em vez do interpretador do sistema.</translation>
    </message>
    <message>
        <source>How much of this ink the last job used.</source>
        <translation>Quanto desta tinta o último trabalho usou.</translation>
    </message>
    <message>
        <source>How much of this ink all jobs together have used.</source>
        <translation>Quanto desta tinta todos os trabalhos juntos usaram.</translation>
    </message>
    <message>
        <source>Reads again how much ink was used.</source>
        <translation>Lê novamente quanta tinta foi usada.</translation>
    </message>
    <message>
        <source>Not available with %1: %2.</source>
        <translation>Não disponível com %1: %2.</translation>
    </message>
    <message>
        <source>Not available with %1: %2, a media profile without color data.</source>
        <translation>Não disponível com %1: %2, um perfil sem dados de cor.</translation>
    </message>
    <message>
        <source>Available when &quot;%1&quot; is switched on.</source>
        <translation>Disponível quando “%1” está ativado.</translation>
    </message>
    <message>
        <source>Not available: Ghostscript is not installed.</source>
        <translation>Não disponível: o Ghostscript não está instalado.</translation>
    </message>
    <message>
        <source>Not available with the present settings.</source>
        <translation>Não disponível com as configurações atuais.</translation>
    </message>
    <message>
        <source>This printer has nothing to choose here.</source>
        <translation>Esta impressora não tem opções aqui.</translation>
    </message>
    <message>
        <source>Not offered with %1: %2 (%3): %4</source>
        <translation>Não oferecidos com %1: %2 (%3): %4</translation>
    </message>
    <message>
        <source>Excluded by %1: %2 (%3): %4</source>
        <translation>Excluídos por %1: %2 (%3): %4</translation>
    </message>
    <message>
        <source>Cannot be chosen (%1): %2</source>
        <translation>Não podem ser escolhidos (%1): %2</translation>
    </message>
    <message>
        <source>A double click or Delete sets the default, %1.</source>
        <translation>Um clique duplo ou Delete define o padrão, %1.</translation>
    </message>
    <message>
        <source>Digits or F2 open a field for a value.</source>
        <translation>Dígitos ou F2 abrem um campo para um valor.</translation>
    </message>
    <message>
        <source>Reset to default (%1)</source>
        <translation>Restaurar padrão (%1)</translation>
    </message>
    <message>
        <source>Enter a value…</source>
        <translation>Inserir um valor…</translation>
    </message>
    <message>
        <source>Enter a value from %1 to %2.</source>
        <translation>Insira um valor de %1 a %2.</translation>
    </message>
</context>
</TS>
