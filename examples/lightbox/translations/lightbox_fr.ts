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
        <translation>Mettre « %1 » à la corbeille ?</translation>
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
        <translation>La photographie « %1 » a été pivotée. Enregistrer le tirage ?</translation>
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
<context>
    <name>CXmlFile</name>
    <message>
        <source>“%1” stands where “%2” is expected</source>
        <translation>« %1 » se trouve là où « %2 » est attendu</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>Impossible de lire %1 : %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, ligne %2 : %3</translation>
    </message>
    <message>
        <source>“%1” has no “%2”</source>
        <translation>« %1 » n’a pas de « %2 »</translation>
    </message>
    <message>
        <source>“%1” is not Base64 of a text</source>
        <translation>« %1 » n’est pas un texte en Base64</translation>
    </message>
</context>
<context>
    <name>CFilmHistory</name>
    <message>
        <source>“%1” is no number</source>
        <translation>« %1 » n’est pas un nombre</translation>
    </message>
</context>
<context>
    <name>CPresetBrowser</name>
    <message>
        <source>Film</source>
        <translation>Pellicule</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Time machine</source>
        <translation>Machine à remonter le temps</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Noir et blanc</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Négatif</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>Créateur</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Diapositive</translation>
    </message>
    <message>
        <source>Digital</source>
        <translation>Numérique</translation>
    </message>
    <message>
        <source>Toned</source>
        <translation>Viré</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignettage</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>Grain</translation>
    </message>
    <message>
        <source>Cinematic</source>
        <translation>Cinéma</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Also presets of the expert mode</source>
        <translation>Inclure les préréglages du mode expert</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Presets shown: %1</source>
        <translation>Préréglages affichés : %1</translation>
    </message>
    <message>
        <source>Tags: %1</source>
        <translation>Étiquettes : %1</translation>
    </message>
    <message>
        <source>Parameters: %1</source>
        <translation>Paramètres : %1</translation>
    </message>
</context>
<context>
    <name>CTimeLine</name>
    <message>
        <source>Film history</source>
        <translation>Histoire du film photographique</translation>
    </message>
    <message>
        <source>The decade before</source>
        <translation>La décennie précédente</translation>
    </message>
    <message>
        <source>The next decade</source>
        <translation>La décennie suivante</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Films de l’époque</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
    <message>
        <source>To try: %1</source>
        <translation>À essayer : %1</translation>
    </message>
</context>
<context>
    <name>CCalibrationCatalogue</name>
    <message>
        <source>The catalogue can&apos;t be copied to %1: %2</source>
        <translation>Impossible de copier le catalogue dans %1 : %2</translation>
    </message>
    <message>
        <source>The catalogue can&apos;t be opened: %1</source>
        <translation>Impossible d’ouvrir le catalogue : %1</translation>
    </message>
</context>
<context>
    <name>CCalibrationPanel</name>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>RAW only</source>
        <translation>RAW seulement</translation>
    </message>
    <message>
        <source>RGB only</source>
        <translation>RVB seulement</translation>
    </message>
    <message>
        <source>RAW and RGB</source>
        <translation>RAW et RVB</translation>
    </message>
    <message>
        <source>Calibration modules</source>
        <translation>Modules d’étalonnage</translation>
    </message>
    <message>
        <source>No photograph is open</source>
        <translation>Aucune photographie ouverte</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>Fichier du module</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Distance focale</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>The photograph does not tell its camera</source>
        <translation>La photographie n’indique pas son appareil</translation>
    </message>
    <message>
        <source>These modules serve it:</source>
        <translation>Modules qui conviennent :</translation>
    </message>
    <message>
        <source>One of these modules may serve it:</source>
        <translation>L’un de ces modules peut convenir :</translation>
    </message>
    <message>
        <source>No module of this camera serves the photograph</source>
        <translation>Aucun module de cet appareil ne convient à la photographie</translation>
    </message>
    <message>
        <source>No module was found for this lens. The camera has these:</source>
        <translation>Aucun module trouvé pour cet objectif. L’appareil dispose de :</translation>
    </message>
    <message>
        <source>The photograph does not tell its lens. The camera has these:</source>
        <translation>La photographie n’indique pas son objectif. L’appareil dispose de :</translation>
    </message>
    <message>
        <source>The catalogue does not have this camera</source>
        <translation>Le catalogue ne connaît pas cet appareil</translation>
    </message>
</context>
<context>
    <name>CPhotoMetadata</name>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>Impossible de lire %1 : %2</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop volumineux</translation>
    </message>
</context>
<context>
    <name>CReferenceMenu</name>
    <message>
        <source>&amp;Reference</source>
        <translation>&amp;Référence</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Préréglages</translation>
    </message>
    <message>
        <source>&amp;Film history</source>
        <translation>&amp;Histoire du film photographique</translation>
    </message>
    <message>
        <source>&amp;Calibration modules</source>
        <translation>Modules d’é&amp;talonnage</translation>
    </message>
</context>
</TS>
