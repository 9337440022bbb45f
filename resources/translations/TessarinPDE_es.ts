<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>TessarinPDE</name>
    <message>
        <source>Tessarin Settings</source>
        <translation>Ajustes Tessarin</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>Corrección</translation>
    </message>
    <message>
        <source>Ink Consumption</source>
        <translation>Consumo de tinta</translation>
    </message>
    <message>
        <source>Ink Usage</source>
        <translation>Uso tinta</translation>
    </message>
    <message>
        <source>Ink Limits</source>
        <translation>Lím. tinta</translation>
    </message>
    <message>
        <source>Media Type:</source>
        <translation>Tipo papel:</translation>
    </message>
    <message>
        <source>Dithering:</source>
        <translation>Tramado:</translation>
    </message>
    <message>
        <source>Cartridge:</source>
        <translation>Cartucho:</translation>
    </message>
    <message>
        <source>Print Resolution:</source>
        <translation>Resolución:</translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation>Brillo:</translation>
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
        <translation>Prop. renderizado:</translation>
    </message>
    <message>
        <source>Color Mode:</source>
        <translation>Modo color:</translation>
    </message>
    <message>
        <source>Color Space:</source>
        <translation>Espacio color:</translation>
    </message>
    <message>
        <source>Reference Light:</source>
        <translation>Luz de referencia:</translation>
    </message>
    <message>
        <source>Color Gamut:</source>
        <translation>Gama color:</translation>
    </message>
    <message>
        <source>Shadows:</source>
        <translation>Sombras:</translation>
    </message>
    <message>
        <source>Greytone A:</source>
        <translation>Tono gris A:</translation>
    </message>
    <message>
        <source>Greytone B:</source>
        <translation>Tono gris B:</translation>
    </message>
    <message>
        <source>Manual color correction</source>
        <translation>Corrección manual de color</translation>
    </message>
    <message>
        <source>Black:</source>
        <translation>Negro:</translation>
    </message>
    <message>
        <source>Cyan:</source>
        <translation>Cian:</translation>
    </message>
    <message>
        <source>Magenta:</source>
        <translation>Magenta:</translation>
    </message>
    <message>
        <source>Yellow:</source>
        <translation>Amarillo:</translation>
    </message>
    <message>
        <source>Last Job</source>
        <translation>Últ. trabajo</translation>
    </message>
    <message>
        <source>All Jobs</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Sum:</source>
        <translation>Total:</translation>
    </message>
    <message>
        <source>Print simulation (the printer prints nothing)</source>
        <translation>Simulación (la impresora no imprime nada)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Releer</translation>
    </message>
    <message>
        <source>Black Usage (UCR):</source>
        <translation>Uso de negro (UCR):</translation>
    </message>
    <message>
        <source>Bright Cyan
Usage:</source>
        <translation>Uso de cian
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
        <translation>Tinta total máx.:</translation>
    </message>
    <message>
        <source>Ink-Intensity:</source>
        <translation>Intens. tinta:</translation>
    </message>
    <message>
        <source>Ink-Limit Black:</source>
        <translation>Límite negro:</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan:</source>
        <translation>Límite cian:</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta:</source>
        <translation>Límite magenta:</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow:</source>
        <translation>Límite amarillo:</translation>
    </message>
    <message>
        <source>Print Simulation</source>
        <translation>Simulación</translation>
    </message>
    <message>
        <source>ON - printing is disabled</source>
        <translation>SÍ - impresión desactivada</translation>
    </message>
    <message>
        <source>OFF - printing is enabled</source>
        <translation>NO - impresión activada</translation>
    </message>
    <message>
        <source>Cartridge</source>
        <translation>Cartucho</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Tipo papel</translation>
    </message>
    <message>
        <source>Print Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Rendering Intent</source>
        <translation>Prop. renderizado</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Modo color</translation>
    </message>
    <message>
        <source>Dithering</source>
        <translation>Tramado</translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation>Espacio color</translation>
    </message>
    <message>
        <source>CMYK-Colorspace</source>
        <translation>Espacio CMYK</translation>
    </message>
    <message>
        <source>Postscript-Processor</source>
        <translation>Intérprete PostScript</translation>
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
        <translation>activo</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>inactivo</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Reference Light</source>
        <translation>Luz de referencia</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Gama color</translation>
    </message>
    <message>
        <source>Shadows</source>
        <translation>Sombras</translation>
    </message>
    <message>
        <source>Greytone A</source>
        <translation>Tono gris A</translation>
    </message>
    <message>
        <source>Greytone B</source>
        <translation>Tono gris B</translation>
    </message>
    <message>
        <source>Black Usage (UCR)</source>
        <translation>Uso de negro (UCR)</translation>
    </message>
    <message>
        <source>Usage Bright Cyan</source>
        <translation>Uso de cian claro</translation>
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
        <translation>Tinta total máx.</translation>
    </message>
    <message>
        <source>Ink-Intensity</source>
        <translation>Intens. tinta</translation>
    </message>
    <message>
        <source>Ink-Limit Black</source>
        <translation>Límite negro</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan</source>
        <translation>Límite cian</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta</source>
        <translation>Límite magenta</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow</source>
        <translation>Límite amarillo</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Photo Black</source>
        <translation>Negro foto</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>bright Grey</source>
        <translation>Gris claro</translation>
    </message>
    <message>
        <source>bright Mag.</source>
        <translation>Mag. claro</translation>
    </message>
    <message>
        <source>bright Cyan</source>
        <translation>Cian claro</translation>
    </message>
    <message>
        <source>br. Yellow</source>
        <translation>Amar. claro</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
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
        <translation>Optimizador</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violeta</translation>
    </message>
    <message>
        <source>PG Black</source>
        <translation>Negro PG</translation>
    </message>
    <message>
        <source>Matte Black</source>
        <translation>Negro mate</translation>
    </message>
    <message>
        <source>dark Grey</source>
        <translation>Gris oscuro</translation>
    </message>
    <message>
        <source>Attention:</source>
        <translation>Atención:</translation>
    </message>
    <message>
        <source>You have chosen an incomplete media profile without color data!
This profile should only be used for printing color charts!</source>
        <translation>¡Ha elegido un perfil de papel incompleto, sin datos de color!
¡Este perfil solo debería usarse para imprimir cartas de color!</translation>
    </message>
</context>
</TS>
