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
</context>
</TS>
