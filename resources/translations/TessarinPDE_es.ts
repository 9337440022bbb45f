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
        <source>Bright Inks</source>
        <translation>Tintas claras</translation>
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
    <message>
        <source>The ink cartridges that are in the printer.</source>
        <translation>Los cartuchos de tinta que hay en la impresora.</translation>
    </message>
    <message>
        <source>What is printed on; ink amounts and colors are matched to it.</source>
        <translation>Sobre qué se imprime; las cantidades de tinta y los colores se ajustan a ello.</translation>
    </message>
    <message>
        <source>How finely the ink drops are placed: a higher resolution shows more detail and takes longer.</source>
        <translation>Con qué finura se colocan las gotas de tinta: una resolución mayor muestra más detalle y tarda más.</translation>
    </message>
    <message>
        <source>How colors that cannot be printed are replaced by colors that can.</source>
        <translation>Cómo se sustituyen los colores que no se pueden imprimir por otros que sí.</translation>
    </message>
    <message>
        <source>Whether the print is grey or in color, and which kind of color data it is made from.</source>
        <translation>Si se imprime en gris o en color, y a partir de qué tipo de datos de color.</translation>
    </message>
    <message>
        <source>The pattern of ink drops from which shades are made.</source>
        <translation>El patrón de gotas de tinta con el que se forman los tonos.</translation>
    </message>
    <message>
        <source>What the numbers of RGB data mean as colors.</source>
        <translation>Qué colores significan los números de los datos RGB.</translation>
    </message>
    <message>
        <source>What the numbers of CMYK data mean as colors.</source>
        <translation>Qué colores significan los números de los datos CMYK.</translation>
    </message>
    <message>
        <source>Makes the whole print lighter or darker.</source>
        <translation>Aclara u oscurece toda la impresión.</translation>
    </message>
    <message>
        <source>Makes the difference between light and dark stronger or weaker.</source>
        <translation>Aumenta o reduce la diferencia entre lo claro y lo oscuro.</translation>
    </message>
    <message>
        <source>The daylight in which the print will be looked at, from warm (D50) to cool (D80).</source>
        <translation>La luz diurna con la que se verá la impresión, de cálida (D50) a fría (D80).</translation>
    </message>
    <message>
        <source>Makes the colors more vivid or more muted.</source>
        <translation>Hace los colores más vivos o más apagados.</translation>
    </message>
    <message>
        <source>Makes the dark parts of the print lighter or darker.</source>
        <translation>Aclara u oscurece las partes oscuras de la impresión.</translation>
    </message>
    <message>
        <source>Gives greys a greenish or reddish tint.</source>
        <translation>Da a los grises un matiz verdoso o rojizo.</translation>
    </message>
    <message>
        <source>Gives greys a bluish or yellowish tint.</source>
        <translation>Da a los grises un matiz azulado o amarillento.</translation>
    </message>
    <message>
        <source>How much of dark and grey tones is printed with black ink in place of colored inks.</source>
        <translation>Cuánto de los tonos oscuros y grises se imprime con tinta negra en lugar de tintas de color.</translation>
    </message>
    <message>
        <source>How much bright cyan ink is used in place of cyan; without a slider for magenta, how much of all bright inks.</source>
        <translation>Cuánta tinta cian claro se usa en lugar de cian; sin control para magenta, cuánta de todas las tintas claras.</translation>
    </message>
    <message>
        <source>How much bright magenta ink is used in place of magenta.</source>
        <translation>Cuánta tinta magenta claro se usa en lugar de magenta.</translation>
    </message>
    <message>
        <source>The most ink of all colors together that may fall on one spot.</source>
        <translation>La máxima cantidad de tinta, de todos los colores juntos, que puede caer en un punto.</translation>
    </message>
    <message>
        <source>Takes this share away from the amount of all inks.</source>
        <translation>Quita esta proporción de la cantidad de todas las tintas.</translation>
    </message>
    <message>
        <source>The most black ink that may fall on one spot.</source>
        <translation>La máxima cantidad de tinta negra que puede caer en un punto.</translation>
    </message>
    <message>
        <source>The most cyan ink that may fall on one spot.</source>
        <translation>La máxima cantidad de tinta cian que puede caer en un punto.</translation>
    </message>
    <message>
        <source>The most magenta ink that may fall on one spot.</source>
        <translation>La máxima cantidad de tinta magenta que puede caer en un punto.</translation>
    </message>
    <message>
        <source>The most yellow ink that may fall on one spot.</source>
        <translation>La máxima cantidad de tinta amarilla que puede caer en un punto.</translation>
    </message>
    <message>
        <source>Adds black to the print or takes it away.</source>
        <translation>Añade negro a la impresión o se lo quita.</translation>
    </message>
    <message>
        <source>Adds cyan to the print or takes it away.</source>
        <translation>Añade cian a la impresión o se lo quita.</translation>
    </message>
    <message>
        <source>Adds magenta to the print or takes it away.</source>
        <translation>Añade magenta a la impresión o se lo quita.</translation>
    </message>
    <message>
        <source>Adds yellow to the print or takes it away.</source>
        <translation>Añade amarillo a la impresión o se lo quita.</translation>
    </message>
    <message>
        <source>The job&apos;s ink is counted, but nothing is printed.</source>
        <translation>Se cuenta la tinta del trabajo, pero no se imprime nada.</translation>
    </message>
    <message>
        <source>Lets the four sliders of this page change the colors of the print.</source>
        <translation>Permite que los cuatro controles de esta página cambien los colores de la impresión.</translation>
    </message>
    <message>
        <source>Ghostscript turns PostScript data into the printed picture, in place of the system&apos;s own interpreter.</source>
        <translation>Ghostscript convierte los datos PostScript en la imagen impresa, en lugar del intérprete del sistema.</translation>
    </message>
    <message>
        <source>How much of this ink the last job used.</source>
        <translation>Cuánta de esta tinta gastó el último trabajo.</translation>
    </message>
    <message>
        <source>How much of this ink all jobs together have used.</source>
        <translation>Cuánta de esta tinta han gastado todos los trabajos juntos.</translation>
    </message>
    <message>
        <source>Reads again how much ink was used.</source>
        <translation>Vuelve a leer cuánta tinta se ha gastado.</translation>
    </message>
    <message>
        <source>Not available with %1: %2.</source>
        <translation>No disponible con %1: %2.</translation>
    </message>
    <message>
        <source>Not available with %1: %2, a media profile without color data.</source>
        <translation>No disponible con %1: %2, un perfil sin datos de color.</translation>
    </message>
    <message>
        <source>Available when &quot;%1&quot; is switched on.</source>
        <translation>Disponible cuando «%1» está activado.</translation>
    </message>
    <message>
        <source>Not available: Ghostscript is not installed.</source>
        <translation>No disponible: Ghostscript no está instalado.</translation>
    </message>
    <message>
        <source>Not available with the present settings.</source>
        <translation>No disponible con los ajustes actuales.</translation>
    </message>
    <message>
        <source>This printer has nothing to choose here.</source>
        <translation>Esta impresora no ofrece opciones aquí.</translation>
    </message>
    <message>
        <source>Not offered with %1: %2 (%3): %4</source>
        <translation>No se ofrecen con %1: %2 (%3): %4</translation>
    </message>
    <message>
        <source>Excluded by %1: %2 (%3): %4</source>
        <translation>Excluidos por %1: %2 (%3): %4</translation>
    </message>
    <message>
        <source>Cannot be chosen (%1): %2</source>
        <translation>No se pueden elegir (%1): %2</translation>
    </message>
    <message>
        <source>A double click or Delete sets the default, %1.</source>
        <translation>Un doble clic o Supr pone el valor predeterminado, %1.</translation>
    </message>
    <message>
        <source>Digits or F2 open a field for a value.</source>
        <translation>Las cifras o F2 abren un campo para un valor.</translation>
    </message>
    <message>
        <source>Reset to default (%1)</source>
        <translation>Restablecer valor predeterminado (%1)</translation>
    </message>
    <message>
        <source>Enter a value…</source>
        <translation>Introducir un valor…</translation>
    </message>
    <message>
        <source>Enter a value from %1 to %2.</source>
        <translation>Introduzca un valor de %1 a %2.</translation>
    </message>
</context>
</TS>
