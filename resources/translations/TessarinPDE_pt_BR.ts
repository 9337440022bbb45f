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
</context>
</TS>
