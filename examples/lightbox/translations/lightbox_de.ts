<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-License-Identifier: MIT -->
<!-- Copyright (c) 2026 the UtilsDllzglv6 authors -->
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CHelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;User guide</source>
        <translation>&amp;Benutzerhandbuch</translation>
    </message>
    <message>
        <source>&amp;Learning</source>
        <translation>&amp;Lernen</translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation>&amp;Support</translation>
    </message>
    <message>
        <source>H&amp;ome page</source>
        <translation>S&amp;tartseite</translation>
    </message>
    <message>
        <source>Sho&amp;p</source>
        <translation>Sho&amp;p</translation>
    </message>
    <message>
        <source>&amp;Improvement program</source>
        <translation>&amp;Verbesserungsprogramm</translation>
    </message>
    <message>
        <source>P&amp;atents</source>
        <translation>P&amp;atente</translation>
    </message>
    <message>
        <source>&amp;Check the data files</source>
        <translation>&amp;Datendateien prüfen</translation>
    </message>
    <message>
        <source>A&amp;bout Zyx Grainlab</source>
        <translation>&amp;Über Zyx Grainlab</translation>
    </message>
</context>
<context>
    <name>CLanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Lightbox</source>
        <translation>Leuchttisch</translation>
    </message>
    <message>
        <source>&amp;Photograph</source>
        <translation>&amp;Foto</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Open a &amp;folder...</source>
        <translation>&amp;Ordner öffnen …</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Nächstes</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Vorheriges</translation>
    </message>
    <message>
        <source>Tu&amp;rn</source>
        <translation>&amp;Drehen</translation>
    </message>
    <message>
        <source>&amp;Save the print...</source>
        <translation>Abzug &amp;speichern …</translation>
    </message>
    <message>
        <source>&amp;Ask the service</source>
        <translation>Dienst &amp;befragen</translation>
    </message>
    <message>
        <source>Save a &amp;copy...</source>
        <translation>&amp;Kopie speichern …</translation>
    </message>
    <message>
        <source>Move to the &amp;trash...</source>
        <translation>In den &amp;Papierkorb verschieben …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Whole photograph</source>
        <translation>Ganzes &amp;Foto</translation>
    </message>
    <message>
        <source>&amp;Fill the window</source>
        <translation>Fenster fü&amp;llen</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>%1 will be spoken from the next start on</source>
        <translation>Sprache ab dem nächsten Start: %1</translation>
    </message>
    <message>
        <source>No photographs in this folder</source>
        <translation>Keine Fotos in diesem Ordner</translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation>%1 wird geladen</translation>
    </message>
    <message>
        <source>%1 takes too long</source>
        <translation>%1 braucht zu lange</translation>
    </message>
    <message>
        <source>%1 can&apos;t be shown</source>
        <translation>%1 kann nicht angezeigt werden</translation>
    </message>
    <message>
        <source>%1 of %2: %3, %4, %5</source>
        <translation>%1 von %2: %3, %4, %5</translation>
    </message>
    <message>
        <source>Open a photograph</source>
        <translation>Foto öffnen</translation>
    </message>
    <message>
        <source>Photographs (%1)</source>
        <translation>Fotos (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open a folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Ask the service</source>
        <translation>Dienst befragen</translation>
    </message>
    <message>
        <source>Address of the service:</source>
        <translation>Adresse des Dienstes:</translation>
    </message>
    <message>
        <source>Asking %1</source>
        <translation>%1 wird befragt</translation>
    </message>
</context>
<context>
    <name>CPhotoFiles</name>
    <message>
        <source>%1 can&apos;t be moved to the trash</source>
        <translation>%1 kann nicht in den Papierkorb verschoben werden</translation>
    </message>
    <message>
        <source>Move to the trash</source>
        <translation>In den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot; to the trash?</source>
        <translation>„%1“ in den Papierkorb verschieben?</translation>
    </message>
    <message>
        <source>Do not ask again</source>
        <translation>Nicht mehr fragen</translation>
    </message>
    <message>
        <source>Save the print</source>
        <translation>Abzug speichern</translation>
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
        <translation>%1 kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Saved the print as %1</source>
        <translation>Abzug als %1 gespeichert</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was turned. Save the print?</source>
        <translation>„%1“ wurde gedreht. Abzug speichern?</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation>Kopie speichern</translation>
    </message>
    <message>
        <source>Name of the copy:</source>
        <translation>Name der Kopie:</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 Kopie</translation>
    </message>
    <message>
        <source>%1 print</source>
        <translation>%1 Abzug</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be the name of a file</source>
        <translation>„%1“ ist kein gültiger Dateiname</translation>
    </message>
    <message>
        <source>There is no room for a copy of %1</source>
        <translation>Für eine Kopie von %1 ist kein Platz</translation>
    </message>
    <message>
        <source>Saved a copy as %1</source>
        <translation>Kopie als %1 gespeichert</translation>
    </message>
    <message>
        <source>%1 is there already</source>
        <translation>%1 ist bereits vorhanden</translation>
    </message>
    <message>
        <source>%1 can&apos;t be copied to %2</source>
        <translation>%1 kann nicht nach %2 kopiert werden</translation>
    </message>
</context>
<context>
    <name>CPhotoService</name>
    <message>
        <source>No description: %1</source>
        <translation>Keine Beschreibung: %1</translation>
    </message>
    <message>
        <source>The service says: %1</source>
        <translation>Der Dienst meldet: %1</translation>
    </message>
    <message>
        <source>The service takes too long</source>
        <translation>Der Dienst braucht zu lange</translation>
    </message>
</context>
<context>
    <name>CPhotoView</name>
    <message>
        <source>Photograph</source>
        <translation>Foto</translation>
    </message>
</context>
<context>
    <name>CSettingsPanel</name>
    <message>
        <source>Black and white</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>Shows the photograph without its colours</source>
        <translation>Zeigt das Foto ohne Farben</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Gespiegelt</translation>
    </message>
    <message>
        <source>Shows the slide from its back</source>
        <translation>Zeigt das Dia von der Rückseite</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Puts a white border around the photograph</source>
        <translation>Legt einen weißen Rand um das Foto</translation>
    </message>
</context>
<context>
    <name>CUnitMenu</name>
    <message>
        <source>&amp;Unit of sizes</source>
        <translation>&amp;Maßeinheit</translation>
    </message>
    <message>
        <source>&amp;Pixels</source>
        <translation>&amp;Pixel</translation>
    </message>
    <message>
        <source>&amp;Inches</source>
        <translation>&amp;Zoll</translation>
    </message>
    <message>
        <source>&amp;Centimetres</source>
        <translation>Z&amp;entimeter</translation>
    </message>
    <message>
        <source>&amp;Millimetres</source>
        <translation>&amp;Millimeter</translation>
    </message>
</context>
<context>
    <name>CXmlFile</name>
    <message>
        <source>“%1” stands where “%2” is expected</source>
        <translation>„%1“ steht, wo „%2“ erwartet wird</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, Zeile %2: %3</translation>
    </message>
    <message>
        <source>“%1” has no “%2”</source>
        <translation>„%1“ hat kein „%2“</translation>
    </message>
    <message>
        <source>“%1” is not Base64 of a text</source>
        <translation>„%1“ ist kein Base64 eines Textes</translation>
    </message>
</context>
<context>
    <name>CFilmHistory</name>
    <message>
        <source>“%1” is no number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
</context>
<context>
    <name>CPresetBrowser</name>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Time machine</source>
        <translation>Zeitmaschine</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Negativ</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>Designerlook</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Dia</translation>
    </message>
    <message>
        <source>Digital</source>
        <translation>Digital</translation>
    </message>
    <message>
        <source>Toned</source>
        <translation>Getont</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignettierung</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>Korn</translation>
    </message>
    <message>
        <source>Cinematic</source>
        <translation>Kinolook</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Voreinstellungen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Also presets of the expert mode</source>
        <translation>Voreinstellungen des Expertenmodus einbeziehen</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Presets shown: %1</source>
        <translation>Angezeigte Voreinstellungen: %1</translation>
    </message>
    <message>
        <source>Tags: %1</source>
        <translation>Schlagwörter: %1</translation>
    </message>
    <message>
        <source>Parameters: %1</source>
        <translation>Parameter: %1</translation>
    </message>
</context>
<context>
    <name>CTimeLine</name>
    <message>
        <source>Film history</source>
        <translation>Geschichte des fotografischen Films</translation>
    </message>
    <message>
        <source>The decade before</source>
        <translation>Das Jahrzehnt davor</translation>
    </message>
    <message>
        <source>The next decade</source>
        <translation>Das nächste Jahrzehnt</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Filme</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>To try: %1</source>
        <translation>Zum Ausprobieren: %1</translation>
    </message>
</context>
<context>
    <name>CCalibrationCatalogue</name>
    <message>
        <source>The catalogue can&apos;t be copied to %1: %2</source>
        <translation>Der Katalog kann nicht nach %1 kopiert werden: %2</translation>
    </message>
    <message>
        <source>The catalogue can&apos;t be opened: %1</source>
        <translation>Der Katalog kann nicht geöffnet werden: %1</translation>
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
        <translation>Nur RAW</translation>
    </message>
    <message>
        <source>RGB only</source>
        <translation>Nur RGB</translation>
    </message>
    <message>
        <source>RAW and RGB</source>
        <translation>RAW und RGB</translation>
    </message>
    <message>
        <source>Calibration modules</source>
        <translation>Kalibrierungsmodule</translation>
    </message>
    <message>
        <source>No photograph is open</source>
        <translation>Kein Foto geöffnet</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>Modul</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objektiv</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Brennweite</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>The photograph does not tell its camera</source>
        <translation>Das Foto nennt keine Kamera</translation>
    </message>
    <message>
        <source>These modules serve it:</source>
        <translation>Diese Module passen dazu:</translation>
    </message>
    <message>
        <source>One of these modules may serve it:</source>
        <translation>Eines dieser Module passt möglicherweise dazu:</translation>
    </message>
    <message>
        <source>No module of this camera serves the photograph</source>
        <translation>Kein Modul dieser Kamera passt zu dem Foto</translation>
    </message>
    <message>
        <source>No module was found for this lens. The camera has these:</source>
        <translation>Für dieses Objektiv wurde kein Modul gefunden. Die Kamera hat diese:</translation>
    </message>
    <message>
        <source>The photograph does not tell its lens. The camera has these:</source>
        <translation>Das Foto nennt kein Objektiv. Die Kamera hat diese:</translation>
    </message>
    <message>
        <source>The catalogue does not have this camera</source>
        <translation>Der Katalog kennt diese Kamera nicht</translation>
    </message>
</context>
<context>
    <name>CPhotoMetadata</name>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>sie ist zu groß</translation>
    </message>
</context>
<context>
    <name>CReferenceMenu</name>
    <message>
        <source>&amp;Reference</source>
        <translation>&amp;Nachschlagen</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Voreinstellungen</translation>
    </message>
    <message>
        <source>&amp;Film history</source>
        <translation>&amp;Geschichte des fotografischen Films</translation>
    </message>
    <message>
        <source>&amp;Calibration modules</source>
        <translation>&amp;Kalibrierungsmodule</translation>
    </message>
</context>
</TS>
