<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>TessarinPDE</name>
    <message>
        <source>Tessarin Settings</source>
        <translation>Réglages Tessarin</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>Correction</translation>
    </message>
    <message>
        <source>Ink Consumption</source>
        <translation>Consommation</translation>
    </message>
    <message>
        <source>Ink Usage</source>
        <translation>Encrage</translation>
    </message>
    <message>
        <source>Ink Limits</source>
        <translation>Limites encre</translation>
    </message>
    <message>
        <source>Media Type:</source>
        <translation>Support :</translation>
    </message>
    <message>
        <source>Dithering:</source>
        <translation>Tramage :</translation>
    </message>
    <message>
        <source>Cartridge:</source>
        <translation>Cartouche :</translation>
    </message>
    <message>
        <source>Print Resolution:</source>
        <translation>Résolution :</translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation>Luminosité :</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>Contraste :</translation>
    </message>
    <message>
        <source>Use Ghostscript for PostScript</source>
        <translation>Utiliser Ghostscript (PostScript)</translation>
    </message>
    <message>
        <source>Rendering Intent:</source>
        <translation>Mode de rendu :</translation>
    </message>
    <message>
        <source>Color Mode:</source>
        <translation>Mode couleur :</translation>
    </message>
    <message>
        <source>Color Space:</source>
        <translation>Esp. couleur :</translation>
    </message>
    <message>
        <source>Reference Light:</source>
        <translation>Lumière de réf. :</translation>
    </message>
    <message>
        <source>Color Gamut:</source>
        <translation>Gamut :</translation>
    </message>
    <message>
        <source>Shadows:</source>
        <translation>Ombres :</translation>
    </message>
    <message>
        <source>Greytone A:</source>
        <translation>Ton gris A :</translation>
    </message>
    <message>
        <source>Greytone B:</source>
        <translation>Ton gris B :</translation>
    </message>
    <message>
        <source>Manual color correction</source>
        <translation>Correction couleur manuelle</translation>
    </message>
    <message>
        <source>Black:</source>
        <translation>Noir :</translation>
    </message>
    <message>
        <source>Cyan:</source>
        <translation>Cyan :</translation>
    </message>
    <message>
        <source>Magenta:</source>
        <translation>Magenta :</translation>
    </message>
    <message>
        <source>Yellow:</source>
        <translation>Jaune :</translation>
    </message>
    <message>
        <source>Last Job</source>
        <translation>Dern. tâche</translation>
    </message>
    <message>
        <source>All Jobs</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Sum:</source>
        <translation>Total :</translation>
    </message>
    <message>
        <source>Print simulation (the printer prints nothing)</source>
        <translation>Simulation d’impression (rien n’est imprimé)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Relire</translation>
    </message>
    <message>
        <source>Black Usage (UCR):</source>
        <translation>Part de noir (UCR) :</translation>
    </message>
    <message>
        <source>Bright Cyan
Usage:</source>
        <translation>Part cyan
clair :</translation>
    </message>
    <message>
        <source>Bright Inks
Usage:</source>
        <translation>Part encres
claires :</translation>
    </message>
    <message>
        <source>Total Ink Maximum:</source>
        <translation>Encrage total max. :</translation>
    </message>
    <message>
        <source>Ink-Intensity:</source>
        <translation>Intensité encre :</translation>
    </message>
    <message>
        <source>Ink-Limit Black:</source>
        <translation>Limite noir :</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan:</source>
        <translation>Limite cyan :</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta:</source>
        <translation>Limite magenta :</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow:</source>
        <translation>Limite jaune :</translation>
    </message>
    <message>
        <source>Print Simulation</source>
        <translation>Simulation d’impr.</translation>
    </message>
    <message>
        <source>ON - printing is disabled</source>
        <translation>ACTIVE - impression désactivée</translation>
    </message>
    <message>
        <source>OFF - printing is enabled</source>
        <translation>INACTIVE - impression activée</translation>
    </message>
    <message>
        <source>Cartridge</source>
        <translation>Cartouche</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>Print Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Rendering Intent</source>
        <translation>Mode de rendu</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Mode couleur</translation>
    </message>
    <message>
        <source>Dithering</source>
        <translation>Tramage</translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation>Esp. couleur</translation>
    </message>
    <message>
        <source>CMYK-Colorspace</source>
        <translation>Espace CMJN</translation>
    </message>
    <message>
        <source>Postscript-Processor</source>
        <translation>Interpréteur PostScript</translation>
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
        <translation>activé</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Reference Light</source>
        <translation>Lumière de réf.</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Gamut</translation>
    </message>
    <message>
        <source>Shadows</source>
        <translation>Ombres</translation>
    </message>
    <message>
        <source>Greytone A</source>
        <translation>Ton gris A</translation>
    </message>
    <message>
        <source>Greytone B</source>
        <translation>Ton gris B</translation>
    </message>
    <message>
        <source>Black Usage (UCR)</source>
        <translation>Part de noir (UCR)</translation>
    </message>
    <message>
        <source>Usage Bright Cyan</source>
        <translation>Part cyan clair</translation>
    </message>
    <message>
        <source>Usage Bright Magenta</source>
        <translation>Part magenta clair</translation>
    </message>
    <message>
        <source>Bright Inks Usage:</source>
        <translation>Part encres claires :</translation>
    </message>
    <message>
        <source>Bright Inks</source>
        <translation>Encres claires</translation>
    </message>
    <message>
        <source>Total Ink Maximum</source>
        <translation>Encrage total max.</translation>
    </message>
    <message>
        <source>Ink-Intensity</source>
        <translation>Intensité encre</translation>
    </message>
    <message>
        <source>Ink-Limit Black</source>
        <translation>Limite noir</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan</source>
        <translation>Limite cyan</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta</source>
        <translation>Limite magenta</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow</source>
        <translation>Limite jaune</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Photo Black</source>
        <translation>Noir photo</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>bright Grey</source>
        <translation>Gris clair</translation>
    </message>
    <message>
        <source>bright Mag.</source>
        <translation>Mag. clair</translation>
    </message>
    <message>
        <source>bright Cyan</source>
        <translation>Cyan clair</translation>
    </message>
    <message>
        <source>br. Yellow</source>
        <translation>Jaune clair</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Optimizer</source>
        <translation>Optimiseur</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>PG Black</source>
        <translation>Noir PG</translation>
    </message>
    <message>
        <source>Matte Black</source>
        <translation>Noir mat</translation>
    </message>
    <message>
        <source>dark Grey</source>
        <translation>Gris foncé</translation>
    </message>
    <message>
        <source>Attention:</source>
        <translation>Attention :</translation>
    </message>
    <message>
        <source>You have chosen an incomplete media profile without color data!
This profile should only be used for printing color charts!</source>
        <translation>Vous avez choisi un profil de support incomplet, sans données de couleur !
Ce profil ne doit servir qu’à imprimer des chartes de couleurs !</translation>
    </message>
    <message>
        <source>The ink cartridges that are in the printer.</source>
        <translation>Les cartouches d’encre qui sont dans l’imprimante.</translation>
    </message>
    <message>
        <source>What is printed on; ink amounts and colors are matched to it.</source>
        <translation>Ce sur quoi on imprime ; les quantités d’encre et les couleurs y sont adaptées.</translation>
    </message>
    <message>
        <source>How finely the ink drops are placed: a higher resolution shows more detail and takes longer.</source>
        <translation>La finesse avec laquelle les gouttes d’encre sont posées : une résolution plus haute montre plus de détails et prend plus de temps.</translation>
    </message>
    <message>
        <source>How colors that cannot be printed are replaced by colors that can.</source>
        <translation>Comment les couleurs non imprimables sont remplacées par des couleurs imprimables.</translation>
    </message>
    <message>
        <source>Whether the print is grey or in color, and which kind of color data it is made from.</source>
        <translation>Si l’impression est en gris ou en couleur, et à partir de quel type de données de couleur.</translation>
    </message>
    <message>
        <source>The pattern of ink drops from which shades are made.</source>
        <translation>Le motif de gouttes d’encre dont sont faites les nuances.</translation>
    </message>
    <message>
        <source>What the numbers of RGB data mean as colors.</source>
        <translation>Les couleurs que désignent les nombres des données RVB.</translation>
    </message>
    <message>
        <source>What the numbers of CMYK data mean as colors.</source>
        <translation>Les couleurs que désignent les nombres des données CMJN.</translation>
    </message>
    <message>
        <source>Makes the whole print lighter or darker.</source>
        <translation>Éclaircit ou assombrit toute l’impression.</translation>
    </message>
    <message>
        <source>Makes the difference between light and dark stronger or weaker.</source>
        <translation>Renforce ou atténue la différence entre le clair et le sombre.</translation>
    </message>
    <message>
        <source>The daylight in which the print will be looked at, from warm (D50) to cool (D80).</source>
        <translation>La lumière du jour sous laquelle l’impression sera regardée, de chaude (D50) à froide (D80).</translation>
    </message>
    <message>
        <source>Makes the colors more vivid or more muted.</source>
        <translation>Rend les couleurs plus vives ou plus ternes.</translation>
    </message>
    <message>
        <source>Makes the dark parts of the print lighter or darker.</source>
        <translation>Éclaircit ou assombrit les parties sombres de l’impression.</translation>
    </message>
    <message>
        <source>Gives greys a greenish or reddish tint.</source>
        <translation>Donne aux gris une teinte verdâtre ou rougeâtre.</translation>
    </message>
    <message>
        <source>Gives greys a bluish or yellowish tint.</source>
        <translation>Donne aux gris une teinte bleuâtre ou jaunâtre.</translation>
    </message>
    <message>
        <source>How much of dark and grey tones is printed with black ink in place of colored inks.</source>
        <translation>La part des tons sombres et gris imprimée à l’encre noire au lieu d’encres de couleur.</translation>
    </message>
    <message>
        <source>How much bright cyan ink is used in place of cyan; without a slider for magenta, how much of all bright inks.</source>
        <translation>La quantité d’encre cyan clair utilisée à la place du cyan ; sans curseur pour le magenta, celle de toutes les encres claires.</translation>
    </message>
    <message>
        <source>How much bright magenta ink is used in place of magenta.</source>
        <translation>La quantité d’encre magenta clair utilisée à la place du magenta.</translation>
    </message>
    <message>
        <source>The most ink of all colors together that may fall on one spot.</source>
        <translation>La quantité maximale d’encre, toutes couleurs ensemble, qui peut tomber sur un point.</translation>
    </message>
    <message>
        <source>Takes this share away from the amount of all inks.</source>
        <translation>Retire cette part de la quantité de toutes les encres.</translation>
    </message>
    <message>
        <source>The most black ink that may fall on one spot.</source>
        <translation>La quantité maximale d’encre noire qui peut tomber sur un point.</translation>
    </message>
    <message>
        <source>The most cyan ink that may fall on one spot.</source>
        <translation>La quantité maximale d’encre cyan qui peut tomber sur un point.</translation>
    </message>
    <message>
        <source>The most magenta ink that may fall on one spot.</source>
        <translation>La quantité maximale d’encre magenta qui peut tomber sur un point.</translation>
    </message>
    <message>
        <source>The most yellow ink that may fall on one spot.</source>
        <translation>La quantité maximale d’encre jaune qui peut tomber sur un point.</translation>
    </message>
    <message>
        <source>Adds black to the print or takes it away.</source>
        <translation>Ajoute du noir à l’impression ou en retire.</translation>
    </message>
    <message>
        <source>Adds cyan to the print or takes it away.</source>
        <translation>Ajoute du cyan à l’impression ou en retire.</translation>
    </message>
    <message>
        <source>Adds magenta to the print or takes it away.</source>
        <translation>Ajoute du magenta à l’impression ou en retire.</translation>
    </message>
    <message>
        <source>Adds yellow to the print or takes it away.</source>
        <translation>Ajoute du jaune à l’impression ou en retire.</translation>
    </message>
    <message>
        <source>The job&apos;s ink is counted, but nothing is printed.</source>
        <translation>L’encre de la tâche est comptée, mais rien n’est imprimé.</translation>
    </message>
    <message>
        <source>Lets the four sliders of this page change the colors of the print.</source>
        <translation>Permet aux quatre curseurs de cette page de changer les couleurs de l’impression.</translation>
    </message>
    <message>
        <source>Ghostscript turns PostScript data into the printed picture, in place of the system&apos;s own interpreter.</source>
        <translation>Ghostscript fait des données PostScript l’image imprimée, à la place de l’interpréteur du système.</translation>
    </message>
    <message>
        <source>How much of this ink the last job used.</source>
        <translation>La quantité de cette encre utilisée par la dernière tâche.</translation>
    </message>
    <message>
        <source>How much of this ink all jobs together have used.</source>
        <translation>La quantité de cette encre utilisée par toutes les tâches ensemble.</translation>
    </message>
    <message>
        <source>Reads again how much ink was used.</source>
        <translation>Relit la quantité d’encre utilisée.</translation>
    </message>
    <message>
        <source>Not available with %1: %2.</source>
        <translation>Pas disponible avec %1 : %2.</translation>
    </message>
    <message>
        <source>Not available with %1: %2, a media profile without color data.</source>
        <translation>Pas disponible avec %1 : %2, un profil sans données de couleur.</translation>
    </message>
    <message>
        <source>Available when &quot;%1&quot; is switched on.</source>
        <translation>Disponible lorsque « %1 » est activé.</translation>
    </message>
    <message>
        <source>Not available: Ghostscript is not installed.</source>
        <translation>Pas disponible : Ghostscript n’est pas installé.</translation>
    </message>
    <message>
        <source>Not available with the present settings.</source>
        <translation>Pas disponible avec les réglages actuels.</translation>
    </message>
    <message>
        <source>This printer has nothing to choose here.</source>
        <translation>Cette imprimante n’offre aucun choix ici.</translation>
    </message>
    <message>
        <source>Not offered with %1: %2 (%3): %4</source>
        <translation>Non proposés avec %1 : %2 (%3) : %4</translation>
    </message>
    <message>
        <source>Excluded by %1: %2 (%3): %4</source>
        <translation>Exclus par %1 : %2 (%3) : %4</translation>
    </message>
    <message>
        <source>Cannot be chosen (%1): %2</source>
        <translation>Ne peuvent être choisis (%1) : %2</translation>
    </message>
    <message>
        <source>A double click or Delete sets the default, %1.</source>
        <translation>Un double clic ou Suppr remet la valeur par défaut, %1.</translation>
    </message>
    <message>
        <source>Digits or F2 open a field for a value.</source>
        <translation>Des chiffres ou F2 ouvrent un champ pour une valeur.</translation>
    </message>
    <message>
        <source>Reset to default (%1)</source>
        <translation>Rétablir la valeur par défaut (%1)</translation>
    </message>
    <message>
        <source>Enter a value…</source>
        <translation>Saisir une valeur…</translation>
    </message>
    <message>
        <source>Enter a value from %1 to %2.</source>
        <translation>Saisissez une valeur de %1 à %2.</translation>
    </message>
</context>
</TS>
