<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-License-Identifier: MIT -->
<!-- Copyright (c) 2026 the UtilsDllzglv6 authors -->
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>CHelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;User guide</source>
        <translation>Guide de l’&amp;utilisateur</translation>
    </message>
    <message>
        <source>&amp;Learning</source>
        <translation>Appren&amp;tissage</translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation>A&amp;ssistance</translation>
    </message>
    <message>
        <source>H&amp;ome page</source>
        <translation>Page d’accuei&amp;l</translation>
    </message>
    <message>
        <source>Sho&amp;p</source>
        <translation>&amp;Boutique</translation>
    </message>
    <message>
        <source>&amp;Improvement program</source>
        <translation>Programme d’a&amp;mélioration</translation>
    </message>
    <message>
        <source>P&amp;atents</source>
        <translation>Bre&amp;vets</translation>
    </message>
    <message>
        <source>&amp;Check the data files</source>
        <translation>Vérifier les &amp;fichiers de données</translation>
    </message>
    <message>
        <source>A&amp;bout Zyx Grainlab</source>
        <translation>À &amp;propos de Zyx Grainlab</translation>
    </message>
</context>
<context>
    <name>CLanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Lightbox</source>
        <translation>Table lumineuse</translation>
    </message>
    <message>
        <source>&amp;Photograph</source>
        <translation>&amp;Photographie</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Open a &amp;folder...</source>
        <translation>Ouvrir un &amp;dossier…</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivante</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>P&amp;récédente</translation>
    </message>
    <message>
        <source>Tu&amp;rn</source>
        <translation>&amp;Pivoter</translation>
    </message>
    <message>
        <source>&amp;Save the print...</source>
        <translation>Enregistrer le &amp;tirage…</translation>
    </message>
    <message>
        <source>&amp;Ask the service</source>
        <translation>&amp;Interroger le service</translation>
    </message>
    <message>
        <source>Save a &amp;copy...</source>
        <translation>Enregistrer une &amp;copie…</translation>
    </message>
    <message>
        <source>Move to the &amp;trash...</source>
        <translation>Mettre à la cor&amp;beille…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Affic&amp;hage</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Zoom a&amp;vant</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Zoom a&amp;rrière</translation>
    </message>
    <message>
        <source>&amp;Whole photograph</source>
        <translation>Photographie &amp;entière</translation>
    </message>
    <message>
        <source>&amp;Fill the window</source>
        <translation>Re&amp;mplir la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>Ré&amp;glages</translation>
    </message>
    <message>
        <source>%1 will be spoken from the next start on</source>
        <translation>Langue à partir du prochain démarrage : %1</translation>
    </message>
    <message>
        <source>No photographs in this folder</source>
        <translation>Aucune photographie dans ce dossier</translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation>Chargement de %1</translation>
    </message>
    <message>
        <source>%1 takes too long</source>
        <translation>Le chargement de %1 prend trop de temps</translation>
    </message>
    <message>
        <source>%1 can&apos;t be shown</source>
        <translation>Impossible d’afficher %1</translation>
    </message>
    <message>
        <source>%1 of %2: %3, %4, %5</source>
        <translation>%1 sur %2 : %3, %4, %5</translation>
    </message>
    <message>
        <source>Open a photograph</source>
        <translation>Ouvrir une photographie</translation>
    </message>
    <message>
        <source>Photographs (%1)</source>
        <translation>Photographies (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Open a folder</source>
        <translation>Ouvrir un dossier</translation>
    </message>
    <message>
        <source>Ask the service</source>
        <translation>Interroger le service</translation>
    </message>
    <message>
        <source>Address of the service:</source>
        <translation>Adresse du service :</translation>
    </message>
    <message>
        <source>Asking %1</source>
        <translation>Interrogation de %1</translation>
    </message>
</context>
<context>
    <name>CPhotoFiles</name>
    <message>
        <source>%1 can&apos;t be moved to the trash</source>
        <translation>Impossible de mettre %1 à la corbeille</translation>
    </message>
    <message>
        <source>Move to the trash</source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot; to the trash?</source>
        <translation>Mettre « %1 » à la corbeille ?</translation>
    </message>
    <message>
        <source>Do not ask again</source>
        <translation>Ne plus demander</translation>
    </message>
    <message>
        <source>Save the print</source>
        <translation>Enregistrer le tirage</translation>
    </message>
    <message>
        <source>JPEG (*.jpg)</source>
        <translation>JPEG (*.jpg)</translation>
    </message>
    <message>
        <source>PNG (*.png)</source>
        <translation>PNG (*.png)</translation>
    </message>
    <message>
        <source>%1 can&apos;t be saved</source>
        <translation>Impossible d’enregistrer %1</translation>
    </message>
    <message>
        <source>Saved the print as %1</source>
        <translation>Tirage enregistré sous %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was turned. Save the print?</source>
        <translation>« %1 » a été pivotée. Enregistrer le tirage ?</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation>Enregistrer une copie</translation>
    </message>
    <message>
        <source>Name of the copy:</source>
        <translation>Nom de la copie :</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 copie</translation>
    </message>
    <message>
        <source>%1 print</source>
        <translation>%1 tirage</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be the name of a file</source>
        <translation>« %1 » n’est pas un nom de fichier valide</translation>
    </message>
    <message>
        <source>There is no room for a copy of %1</source>
        <translation>L’espace disponible ne suffit pas pour une copie de %1</translation>
    </message>
    <message>
        <source>Saved a copy as %1</source>
        <translation>Copie enregistrée sous %1</translation>
    </message>
    <message>
        <source>%1 is there already</source>
        <translation>%1 existe déjà</translation>
    </message>
    <message>
        <source>%1 can&apos;t be copied to %2</source>
        <translation>Impossible de copier %1 vers %2</translation>
    </message>
</context>
<context>
    <name>CPhotoService</name>
    <message>
        <source>No description: %1</source>
        <translation>Aucune description : %1</translation>
    </message>
    <message>
        <source>The service says: %1</source>
        <translation>Le service répond : %1</translation>
    </message>
    <message>
        <source>The service takes too long</source>
        <translation>Le service met trop de temps à répondre</translation>
    </message>
</context>
<context>
    <name>CPhotoView</name>
    <message>
        <source>Photograph</source>
        <translation>Photographie</translation>
    </message>
</context>
<context>
    <name>CSettingsPanel</name>
    <message>
        <source>Black and white</source>
        <translation>Noir et blanc</translation>
    </message>
    <message>
        <source>Shows the photograph without its colours</source>
        <translation>Affiche la photographie sans ses couleurs</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>En miroir</translation>
    </message>
    <message>
        <source>Shows the slide from its back</source>
        <translation>Affiche la diapositive vue de dos</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <source>Puts a white border around the photograph</source>
        <translation>Entoure la photographie d’un bord blanc</translation>
    </message>
</context>
<context>
    <name>CUnitMenu</name>
    <message>
        <source>&amp;Unit of sizes</source>
        <translation>&amp;Unité des dimensions</translation>
    </message>
    <message>
        <source>&amp;Pixels</source>
        <translation>&amp;Pixels</translation>
    </message>
    <message>
        <source>&amp;Inches</source>
        <translation>P&amp;ouces</translation>
    </message>
    <message>
        <source>&amp;Centimetres</source>
        <translation>&amp;Centimètres</translation>
    </message>
    <message>
        <source>&amp;Millimetres</source>
        <translation>&amp;Millimètres</translation>
    </message>
</context>
</TS>
